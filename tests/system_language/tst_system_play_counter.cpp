#include "system_play_counter.h"
#include "test_box.h"

#include <limits>

static constexpr int largest = std::numeric_limits<int>::max();

class tst_system_play_counter : public QObject
{
    Q_OBJECT

private slots:
    void all_counters_start_at_zero();
    void an_action_changes_its_counter_data();
    void an_action_changes_its_counter();
    void every_counter_has_its_own_value();
    void an_action_on_no_counter_changes_none_data();
    void an_action_on_no_counter_changes_none();
    void a_test_compares_from_the_left_data();
    void a_test_compares_from_the_left();
    void a_test_that_does_not_read_never_holds_data();
    void a_test_that_does_not_read_never_holds();
    void a_counter_goes_back_to_its_start_value();
    void without_saved_values_a_counter_goes_back_to_zero();
    void a_counter_number_has_two_digits_data();
    void a_counter_number_has_two_digits();
};

static void act(system_play_counter& counters, const QString& token)
{
    counters.set(system_play_counter::read_action(token));
}

/// Counters 1 and 2 with values of their own.
static system_play_counter counters_with(int first, int second)
{
    system_play_counter counters;
    act(counters, QStringLiteral("CO01(%1)").arg(first));
    act(counters, QStringLiteral("CO02(%1)").arg(second));
    return counters;
}

static bool check(const system_play_counter& counters, const QString& token)
{
    return counters.check(system_play_counter::read_test(token));
}

void tst_system_play_counter::all_counters_start_at_zero()
{
    const system_play_counter counters;
    for (int index = 0; index < 100; ++index)
        QCOMPARE(counters.value(index), 0);
}

void tst_system_play_counter::an_action_changes_its_counter_data()
{
    QTest::addColumn<int>("first");  // CO01 in front of the action
    QTest::addColumn<int>("second"); // CO02
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("changed"); // CO01 behind it
    // clang-format off
    QTest::newRow("assignment")               << 3 << 7 << "CO01(5)"          << 5;
    QTest::newRow("six digits")               << 3 << 7 << "CO01(999999)"     << 999999;
    QTest::newRow("addition")                 << 3 << 7 << "CO01(+5)"         << 8;
    QTest::newRow("subtraction")              << 8 << 7 << "CO01(-5)"         << 3;
    QTest::newRow("subtraction to zero")      << 5 << 7 << "CO01(-5)"         << 0;
    QTest::newRow("subtraction below zero")   << 3 << 7 << "CO01(-5)"         << 0;
    QTest::newRow("copy")                     << 3 << 7 << "CO01(CO02)"       << 7;
    QTest::newRow("copy of itself")           << 3 << 7 << "CO01(CO01)"       << 3;
    QTest::newRow("copy, lower case")         << 3 << 7 << "co01(co02)"       << 7;
    QTest::newRow("sum of counters")          << 3 << 7 << "CO01(+CO02)"      << 10;
    QTest::newRow("sum with itself")          << 3 << 7 << "CO01(+CO01)"      << 6;
    QTest::newRow("difference of counters")   << 9 << 7 << "CO01(-CO02)"      << 2;
    QTest::newRow("difference below zero")    << 3 << 7 << "CO01(-CO02)"      << 0;
    QTest::newRow("difference with itself")   << 3 << 7 << "CO01(-CO01)"      << 0;
    QTest::newRow("largest value plus one")   << largest << 7 << "CO01(+1)"   << largest;
    QTest::newRow("sum beyond the largest")   << largest << largest << "CO01(+CO02)" << largest;
    QTest::newRow("no number")                << 3 << 7 << "CO01(x)"          << 3;
    QTest::newRow("number beyond int")        << 3 << 7 << "CO01(2147483648)" << 3;
    QTest::newRow("an operator of a test")    << 3 << 7 << "CO01(=5)"         << 3;
    QTest::newRow("two signs of a test")      << 3 << 7 << "CO01(+=5)"        << 3;
    QTest::newRow("a sign alone")             << 3 << 7 << "CO01(-)"          << 3;
    QTest::newRow("nothing between brackets") << 3 << 7 << "CO01()"           << 3;
    QTest::newRow("no brackets")              << 3 << 7 << "CO01"             << 3;
    QTest::newRow("a counter without digits") << 3 << 7 << "CO01(+COxx)"      << 3;
    QTest::newRow("a counter cut short")      << 3 << 7 << "CO01(C)"          << 3;
    // clang-format on
}

void tst_system_play_counter::an_action_changes_its_counter()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, token);
    QFETCH(int, changed);
    system_play_counter counters = counters_with(first, second);
    act(counters, token);
    QCOMPARE(counters.value(1), changed);
    QCOMPARE(counters.value(2), second);
}

void tst_system_play_counter::every_counter_has_its_own_value()
{
    system_play_counter counters;
    for (int index = 0; index < 100; ++index)
        act(counters, QStringLiteral("CO%1(%2)").arg(index, 2, 10, QChar('0')).arg(1000 + index));
    for (int index = 0; index < 100; ++index)
        QCOMPARE(counters.value(index), 1000 + index);
}

void tst_system_play_counter::an_action_on_no_counter_changes_none_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("no digits") << "COxx(5)";
    QTest::newRow("one digit") << "CO5(5)";
    QTest::newRow("a sign") << "CO-1(5)";
    QTest::newRow("nothing") << "CO";
}

void tst_system_play_counter::an_action_on_no_counter_changes_none()
{
    QFETCH(QString, token);
    system_play_counter counters;
    act(counters, token);
    for (int index = 0; index < 100; ++index)
        QCOMPARE(counters.value(index), 0);
}

void tst_system_play_counter::a_test_compares_from_the_left_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("for_4"); // whether a counter of 4 passes
    QTest::addColumn<bool>("for_5");
    QTest::addColumn<bool>("for_6");
    // clang-format off
    QTest::newRow("bare number means equal")  << "5"      << false << true  << false;
    QTest::newRow("equal")                    << "=5"     << false << true  << false;
    QTest::newRow("less")                     << "<5"     << true  << false << false;
    QTest::newRow("less or equal")            << "<=5"    << true  << true  << false;
    QTest::newRow("greater")                  << ">5"     << false << false << true;
    QTest::newRow("greater or equal")         << ">=5"    << false << true  << true;
    QTest::newRow("unequal")                  << "<>5"    << true  << false << true;
    QTest::newRow("a plus belongs to the 5")  << "+5"     << false << true  << false;
    QTest::newRow("negative number")          << "-5"     << false << false << false;
    QTest::newRow("bare counter means equal") << "CO02"   << false << true  << false;
    QTest::newRow("equal to a counter")       << "=CO02"  << false << true  << false;
    QTest::newRow("less than a counter")      << "<CO02"  << true  << false << false;
    QTest::newRow("at most a counter")        << "<=CO02" << true  << true  << false;
    QTest::newRow("greater than a counter")   << ">CO02"  << false << false << true;
    QTest::newRow("at least a counter")       << ">=CO02" << false << true  << true;
    QTest::newRow("unequal to a counter")     << "<>CO02" << true  << false << true;
    QTest::newRow("lower case")               << ">=co02" << false << true  << true;
    // clang-format on
}

void tst_system_play_counter::a_test_compares_from_the_left()
{
    QFETCH(QString, condition);
    QFETCH(bool, for_4);
    QFETCH(bool, for_5);
    QFETCH(bool, for_6);
    const QString token = QStringLiteral("CO01(%1)").arg(condition);
    QCOMPARE(check(counters_with(4, 5), token), for_4);
    QCOMPARE(check(counters_with(5, 5), token), for_5);
    QCOMPARE(check(counters_with(6, 5), token), for_6);
}

void tst_system_play_counter::a_test_that_does_not_read_never_holds_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("no number") << "CO01(x)";
    QTest::newRow("two operators") << "CO01(==0)";
    QTest::newRow("operators in the wrong order") << "CO01(=<5)";
    QTest::newRow("operator alone") << "CO01(<>)";
    QTest::newRow("no counter on the right") << "CO01(=COxx)";
    QTest::newRow("no counter on the left") << "COxx(0)";
    QTest::newRow("nothing") << "CO01()";
}

void tst_system_play_counter::a_test_that_does_not_read_never_holds()
{
    QFETCH(QString, token);
    QVERIFY(!check(system_play_counter(), token));
}

void tst_system_play_counter::a_counter_goes_back_to_its_start_value()
{
    system_play_counter counters = counters_with(3, 7);
    counters.save_counter_start_values();
    act(counters, QStringLiteral("CO01(+10)"));
    act(counters, QStringLiteral("CO02(+10)"));
    counters.restore_counter_start_value(1);
    QCOMPARE(counters.value(1), 3);
    QCOMPARE(counters.value(2), 17);
}

void tst_system_play_counter::without_saved_values_a_counter_goes_back_to_zero()
{
    system_play_counter counters = counters_with(3, 7);
    counters.restore_counter_start_value(1);
    QCOMPARE(counters.value(1), 0);
}

void tst_system_play_counter::a_counter_number_has_two_digits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    // clang-format off
    QTest::newRow("first")        << "00"  << 0;
    QTest::newRow("last")         << "99"  << 99;
    QTest::newRow("one digit")    << "5"   << -1;
    QTest::newRow("three digits") << "100" << -1;
    QTest::newRow("negative")     << "-1"  << -1;
    QTest::newRow("letters")      << "ab"  << -1;
    QTest::newRow("nothing")      << ""    << -1;
    // clang-format on
}

void tst_system_play_counter::a_counter_number_has_two_digits()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QCOMPARE(read_counter_number(text), number);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_counter>(argc, argv);
}

#include "tst_system_play_counter.moc"
