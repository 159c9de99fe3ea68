#include "system_play_counter.h"
#include "system_play_steigerungstabelle.h"
#include "test_box.h"

#include <limits>

using system_play_options::sg_rescan_options;

static constexpr int whole_line = 1; // mark modes
static constexpr int piece_of_line = 2;

class tst_system_play_steigerungstabelle : public QObject
{
    Q_OBJECT

private slots:
    void a_fresh_table_is_empty();
    void a_second_fill_extends_the_first();
    void values_below_one_are_refused_data();
    void values_below_one_are_refused();
    void values_in_front_of_a_wrong_one_stay();
    void a_move_goes_to_its_place_data();
    void a_move_goes_to_its_place();
    void an_empty_table_gives_zero_before_any_option();
    void an_overflow_follows_the_options_data();
    void an_overflow_follows_the_options();
    void the_options_hold_for_all_tables();
    void a_table_resets_only_its_own_counters();
    void a_counter_of_no_table_is_not_reset();
    void several_counters_go_back_together();
    void a_test_compares_the_current_value_data();
    void a_test_compares_the_current_value();
    void a_test_that_does_not_read_is_told_data();
    void a_test_that_does_not_read_is_told();
};

namespace
{

/// Tables and the counters behind them.
struct table_stores {
    sys_result_info fill(const QString& token)
    {
        sys_result_info result;
        tables.fill(result, token);
        return result;
    }

    int move(const QString& text) { return move(last, text); }

    int move(sys_result_info& result, const QString& text)
    {
        result = {};
        return tables.move(result, system_play_steigerungstabelle::read_move(text));
    }

    void set_counter(const QString& token)
    {
        counters.set(system_play_counter::read_action(token));
    }

    void set_option(int option, int table = 0, int counter = 0)
    {
        tables.set_rescan_option(static_cast<sg_rescan_options>(option), table, counter);
    }

    system_play_counter counters;
    system_play_steigerungstabelle tables{counters};
    sys_result_info last;
};

} // namespace

void tst_system_play_steigerungstabelle::a_fresh_table_is_empty()
{
    const table_stores stores;
    for (int table = 1; table <= 9; ++table) {
        QCOMPARE(stores.tables.position(table), 0);
        QCOMPARE(stores.tables.current_value(table), 0);
    }
}

void tst_system_play_steigerungstabelle::a_second_fill_extends_the_first()
{
    table_stores stores;
    QCOMPARE(stores.fill(QStringLiteral("ST1(1,2)")).status, 2);
    QCOMPARE(stores.fill(QStringLiteral("ST9(7)")).status, 2);
    QCOMPARE(stores.fill(QStringLiteral("ST1(4,999999)")).status, 2);
    QCOMPARE(stores.move(QStringLiteral("ST1(1)")), 1);
    QCOMPARE(stores.move(QStringLiteral("ST1(2)")), 2);
    QCOMPARE(stores.move(QStringLiteral("ST1(3)")), 4);
    QCOMPARE(stores.move(QStringLiteral("ST1(4)")), 999999);
    QCOMPARE(stores.tables.current_value(9), 7);
}

void tst_system_play_steigerungstabelle::values_below_one_are_refused_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("mark_text");
    // clang-format off
    QTest::newRow("zero alone")         << "ST1(0)"     << "0";
    QTest::newRow("zero in the middle") << "ST1(1,0,2)" << "0";
    QTest::newRow("the first is told")  << "ST1(1,00,0)"<< "00";
    QTest::newRow("negative")           << "ST1(-3)"    << "-3";
    QTest::newRow("no number")          << "ST1(1,x)"   << "x";
    QTest::newRow("nothing")            << "ST1(1,,2)"  << "";
    // clang-format on
}

void tst_system_play_steigerungstabelle::values_below_one_are_refused()
{
    QFETCH(QString, token);
    QFETCH(QString, mark_text);
    table_stores stores;
    const sys_result_info result = stores.fill(token);
    QCOMPARE(result.status, 10);
    QCOMPARE(result.error_text,
             QStringLiteral("Werte in der Steigerungstabelle müssen größer 0 sein!"));
    QCOMPARE(result.mark_mode, whole_line);
    QCOMPARE(result.mark_text, mark_text);
}

void tst_system_play_steigerungstabelle::values_in_front_of_a_wrong_one_stay()
{
    table_stores stores;
    stores.fill(QStringLiteral("ST1(3,5,0,7)"));
    QCOMPARE(stores.move(QStringLiteral("ST1(2)")), 5);
    QCOMPARE(stores.move(QStringLiteral("ST1(3)")), 5); // there is no third place
    QCOMPARE(stores.tables.position(1), 1);
}

void tst_system_play_steigerungstabelle::a_move_goes_to_its_place_data()
{
    QTest::addColumn<int>("start"); // place in the table 1, 2, 4, 8, from 1
    QTest::addColumn<QString>("move");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("position"); // from 0
    // clang-format off
    QTest::newRow("first place")              << 3 << "ST1(1)"    << 1 << 0;
    QTest::newRow("last place")               << 3 << "ST1(4)"    << 8 << 3;
    QTest::newRow("place behind the last")    << 3 << "ST1(5)"    << 8 << 3;
    QTest::newRow("two-digit place")          << 3 << "ST1(99)"   << 8 << 3;
    QTest::newRow("place zero")               << 3 << "ST1(0)"    << 1 << 0;
    QTest::newRow("one forward")              << 1 << "ST1(+1)"   << 2 << 1;
    QTest::newRow("none forward")             << 2 << "ST1(+0)"   << 2 << 1;
    QTest::newRow("forward to the last")      << 1 << "ST1(+3)"   << 8 << 3;
    QTest::newRow("forward at the last")      << 4 << "ST1(+1)"   << 8 << 3;
    QTest::newRow("far forward")              << 2 << "ST1(+99)"  << 8 << 3;
    QTest::newRow("one back")                 << 3 << "ST1(-1)"   << 2 << 1;
    QTest::newRow("back to the first")        << 4 << "ST1(-3)"   << 1 << 0;
    QTest::newRow("back at the first")        << 1 << "ST1(-1)"   << 1 << 0;
    QTest::newRow("far back")                 << 4 << "ST1(-99)"  << 1 << 0;
    QTest::newRow("counter of 3")             << 1 << "ST1(CO03)" << 4 << 2;
    QTest::newRow("counter of 0")             << 3 << "ST1(CO00)" << 1 << 0;
    QTest::newRow("counter behind the last")  << 1 << "ST1(CO05)" << 8 << 3;
    QTest::newRow("largest counter")          << 1 << "ST1(CO06)" << 8 << 3;
    QTest::newRow("lower case")               << 1 << "st1(co03)" << 4 << 2;
    QTest::newRow("no number: no value")      << 3 << "ST1(x)"    << 0 << 2;
    QTest::newRow("no steps: no value")       << 3 << "ST1(+x)"   << 0 << 2;
    QTest::newRow("no counter: no value")     << 3 << "ST1(COxx)" << 0 << 2;
    QTest::newRow("no table: no value")       << 3 << "ST0(1)"    << 0 << 2;
    QTest::newRow("empty table: no value")    << 3 << "ST2(1)"    << 0 << 2;
    // clang-format on
}

void tst_system_play_steigerungstabelle::a_move_goes_to_its_place()
{
    QFETCH(int, start);
    QFETCH(QString, move);
    QFETCH(int, value);
    QFETCH(int, position);
    table_stores stores;
    stores.fill(QStringLiteral("ST1(1,2,4,8)"));
    stores.set_counter(QStringLiteral("CO03(3)"));
    stores.set_counter(QStringLiteral("CO05(5)"));
    stores.set_counter(QStringLiteral("CO06(%1)").arg(std::numeric_limits<int>::max()));
    stores.move(QStringLiteral("ST1(%1)").arg(start));
    sys_result_info result;
    QCOMPARE(stores.move(result, move), value);
    QCOMPARE(result.status, 2);
    QCOMPARE(stores.tables.position(1), position);
}

void tst_system_play_steigerungstabelle::an_empty_table_gives_zero_before_any_option()
{
    table_stores stores;
    for (const int option : {1, 2, 3, 5})
        stores.set_option(option, 1, 5);
    sys_result_info result;
    QCOMPARE(stores.move(result, QStringLiteral("ST1(+1)")), 0);
    QCOMPARE(result.status, 2);
}

void tst_system_play_steigerungstabelle::an_overflow_follows_the_options_data()
{
    QTest::addColumn<QList<int>>("options"); // as numbered: 1 A, 2 S, 3 S(ST1(CO05)), 5 E
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("counter"); // CO05, which stood at 9 at the start and is 3 now
    // clang-format off
    QTest::newRow("none: the last value again") << QList<int>{}           << 4 << 2 << 2 << 3;
    QTest::newRow("A")                          << QList<int>{1}          << 0 << 2 << 6 << 3;
    QTest::newRow("S")                          << QList<int>{2}          << 1 << 0 << 2 << 3;
    QTest::newRow("S with a counter")           << QList<int>{3}          << 1 << 0 << 2 << 9;
    QTest::newRow("E")                          << QList<int>{5}          << 0 << 2 << 8 << 3;
    QTest::newRow("E wins over A")              << QList<int>{1, 5}       << 0 << 2 << 8 << 3;
    QTest::newRow("in either order")            << QList<int>{5, 1}       << 0 << 2 << 8 << 3;
    QTest::newRow("S and A")                    << QList<int>{2, 1}       << 1 << 0 << 6 << 3;
    QTest::newRow("S and E")                    << QList<int>{5, 2}       << 1 << 0 << 8 << 3;
    QTest::newRow("counter and A")              << QList<int>{1, 3}       << 1 << 0 << 6 << 9;
    QTest::newRow("both S")                     << QList<int>{2, 3}       << 1 << 0 << 2 << 9;
    QTest::newRow("all")                        << QList<int>{1, 2, 3, 5} << 1 << 0 << 8 << 9;
    QTest::newRow("an option twice")            << QList<int>{2, 2}       << 1 << 0 << 2 << 3;
    // clang-format on
}

void tst_system_play_steigerungstabelle::an_overflow_follows_the_options()
{
    QFETCH(QList<int>, options);
    QFETCH(int, value);
    QFETCH(int, position);
    QFETCH(int, status);
    QFETCH(int, counter);
    for (const QString& move : {QStringLiteral("ST1(+1)"), QStringLiteral("ST1(9)")}) {
        table_stores stores;
        stores.fill(QStringLiteral("ST1(1,2,4)"));
        stores.set_counter(QStringLiteral("CO05(9)"));
        stores.counters.save_counter_start_values();
        stores.set_counter(QStringLiteral("CO05(3)"));
        for (const int option : options)
            stores.set_option(option, option == 3 ? 1 : 0, option == 3 ? 5 : 0);
        stores.move(QStringLiteral("ST1(3)"));
        sys_result_info result;
        QCOMPARE(stores.move(result, move), value);
        QCOMPARE(result.status, status);
        QCOMPARE(stores.tables.position(1), position);
        QCOMPARE(stores.counters.value(5), counter);
    }
}

void tst_system_play_steigerungstabelle::the_options_hold_for_all_tables()
{
    table_stores stores;
    stores.set_option(3, 1, 5);
    for (int table = 1; table <= 9; ++table) {
        stores.fill(QStringLiteral("ST%1(10,20)").arg(table));
        QCOMPARE(stores.move(QStringLiteral("ST%1(3)").arg(table)), 10);
        QCOMPARE(stores.tables.position(table), 0);
    }
}

void tst_system_play_steigerungstabelle::a_table_resets_only_its_own_counters()
{
    table_stores stores;
    stores.fill(QStringLiteral("ST1(1)"));
    stores.fill(QStringLiteral("ST2(1)"));
    stores.set_counter(QStringLiteral("CO05(3)"));
    stores.set_counter(QStringLiteral("CO06(4)"));
    stores.set_option(3, 1, 5);
    stores.set_option(3, 2, 6);
    stores.move(QStringLiteral("ST2(+1)"));
    QCOMPARE(stores.counters.value(5), 3);
    QCOMPARE(stores.counters.value(6), 0);
    stores.move(QStringLiteral("ST1(+1)"));
    QCOMPARE(stores.counters.value(5), 0);
}

void tst_system_play_steigerungstabelle::a_counter_of_no_table_is_not_reset()
{
    table_stores stores;
    stores.fill(QStringLiteral("ST1(1,2)"));
    stores.set_counter(QStringLiteral("CO05(3)"));
    stores.set_option(3, 0, 5);
    QCOMPARE(stores.move(QStringLiteral("ST1(3)")), 1);
    QCOMPARE(stores.counters.value(5), 3);
}

void tst_system_play_steigerungstabelle::several_counters_go_back_together()
{
    table_stores stores;
    stores.fill(QStringLiteral("ST1(1)"));
    for (const int counter : {5, 6, 5}) {
        stores.set_counter(QStringLiteral("CO0%1(8)").arg(counter));
        stores.set_option(3, 1, counter);
    }
    stores.move(QStringLiteral("ST1(+1)"));
    QCOMPARE(stores.counters.value(5), 0);
    QCOMPARE(stores.counters.value(6), 0);
}

void tst_system_play_steigerungstabelle::a_test_compares_the_current_value_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<bool>("holds");
    // clang-format off
    QTest::newRow("value at position 3")  << "ST1(5)" << true;
    QTest::newRow("its place")            << "ST1(4)" << false;
    QTest::newRow("another value")        << "ST1(1)" << false;
    QTest::newRow("lower case")           << "st1(5)" << true;
    QTest::newRow("empty table, no zero") << "ST2(5)" << false;
    QTest::newRow("empty table, zero")    << "ST2(0)" << true;
    // clang-format on
}

void tst_system_play_steigerungstabelle::a_test_compares_the_current_value()
{
    QFETCH(QString, token);
    QFETCH(bool, holds);
    table_stores stores;
    stores.fill(QStringLiteral("ST1(1,2,3,5)"));
    stores.move(QStringLiteral("ST1(4)"));
    QCOMPARE(stores.tables.position(1), 3);
    sys_result_info result;
    stores.tables.check(result, system_play_steigerungstabelle::read_test(token));
    QCOMPARE(result.status, 2);
    QCOMPARE(result.check_result, holds);
    QCOMPARE(stores.tables.position(1), 3);
}

void tst_system_play_steigerungstabelle::a_test_that_does_not_read_is_told_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("mark_text");
    QTest::newRow("two values") << "ST1(1,2)"
                                << "1,2";
    QTest::newRow("no number") << "ST1(x)"
                               << "x";
    QTest::newRow("the options") << "STMAX(A)"
                                 << "A";
}

void tst_system_play_steigerungstabelle::a_test_that_does_not_read_is_told()
{
    QFETCH(QString, token);
    QFETCH(QString, mark_text);
    table_stores stores;
    sys_result_info result;
    stores.tables.check(result, system_play_steigerungstabelle::read_test(token));
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QStringLiteral("S: ST Wert ist nicht gültig!"));
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, mark_text);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_steigerungstabelle>(argc, argv);
}

#include "tst_system_play_steigerungstabelle.moc"
