#include "system_play_counter.h"
#include "system_play_einheiten.h"
#include "test_box.h"

#include <limits>

static constexpr int whole_line = 1; // mark modes
static constexpr int piece_of_line = 2;
static constexpr qint64 largest = std::numeric_limits<qint64>::max();

class tst_system_play_einheiten : public QObject
{
    Q_OBJECT

private slots:
    void all_units_start_at_zero_and_a_bet_at_one();
    void a_change_makes_its_unit_current_data();
    void a_change_makes_its_unit_current();
    void a_fresh_unit_is_zero_data();
    void a_fresh_unit_is_zero();
    void every_unit_has_its_own_value();
    void a_unit_beyond_64_bits_stays_at_the_largest_value();
    void the_current_unit_is_the_low_32_bits_data();
    void the_current_unit_is_the_low_32_bits();
    void a_bound_cuts_and_tells_so_data();
    void a_bound_cuts_and_tells_so();
    void a_bound_behind_an_assignment_is_refused_data();
    void a_bound_behind_an_assignment_is_refused();
    void a_table_gives_its_value_to_a_unit();
    void a_place_of_a_table_may_be_a_counter();
    void a_table_without_values_is_told();
    void a_table_that_ends_the_round_leaves_the_unit_data();
    void a_table_that_ends_the_round_leaves_the_unit();
    void what_is_no_place_of_a_table_changes_nothing_data();
    void what_is_no_place_of_a_table_changes_nothing();
    void what_is_no_unit_changes_nothing_data();
    void what_is_no_unit_changes_nothing();
};

namespace
{

/// The units of a system with the tables and counters behind them.
struct unit_stores {
    sys_result_info set(const QString& token, unit_bound bound = unit_bound::none, int limit = 0)
    {
        sys_result_info result;
        units.set(result, system_play_einheiten::read_action(token), bound, limit);
        return result;
    }

    void fill(const QString& token)
    {
        sys_result_info result;
        tables.fill(result, token);
        QCOMPARE(result.status, 2);
    }

    system_play_counter counters;
    system_play_steigerungstabelle tables{counters};
    system_play_einheiten units{tables};
};

} // namespace

void tst_system_play_einheiten::all_units_start_at_zero_and_a_bet_at_one()
{
    const unit_stores stores;
    for (int unit = 0; unit < 10; ++unit)
        QCOMPARE(stores.units.value(unit), qint64(0));
    QCOMPARE(stores.units.current_unit(), 1);
}

void tst_system_play_einheiten::a_change_makes_its_unit_current_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("changed");
    // clang-format off
    QTest::newRow("assignment")                  << 5  << "EI1(7)"      << 7;
    QTest::newRow("assignment of zero")          << 5  << "EI1(0)"      << 0;
    QTest::newRow("assignment of six digits")    << 5  << "EI1(999999)" << 999999;
    QTest::newRow("assignment that is no number")<< 5  << "EI1(x)"      << 5;
    QTest::newRow("addition")                    << 5  << "EI1+4"       << 9;
    QTest::newRow("addition of zero")            << 5  << "EI1+0"       << 5;
    QTest::newRow("multiplication")              << 5  << "EI1*3"       << 15;
    QTest::newRow("multiplication with zero")    << 5  << "EI1*0"       << 0;
    QTest::newRow("division")                    << 6  << "EI1/2"       << 3;
    QTest::newRow("division cuts")               << 5  << "EI1/2"       << 2;
    QTest::newRow("division down to zero")       << 5  << "EI1/6"       << 0;
    QTest::newRow("division by zero")            << 5  << "EI1/0"       << 5;
    QTest::newRow("subtraction")                 << 10 << "EI1-3"       << 7;
    QTest::newRow("subtraction to zero")         << 1  << "EI1-1"       << 1;
    QTest::newRow("subtraction below zero")      << 1  << "EI1-9"       << 1;
    QTest::newRow("digits without operator")     << 5  << "EI12"        << 5;
    QTest::newRow("unit alone")                  << 5  << "EI1"         << 5;
    QTest::newRow("lower case")                  << 5  << "ei1+1"       << 6;
    QTest::newRow("no number to add is zero")    << 5  << "EI1+x"       << 5;
    QTest::newRow("no number to take is zero")   << 5  << "EI1-"        << 5;
    QTest::newRow("no factor is zero")           << 5  << "EI1*x"       << 0;
    QTest::newRow("no divisor is zero")          << 5  << "EI1/x"       << 5;
    // clang-format on
}

void tst_system_play_einheiten::a_change_makes_its_unit_current()
{
    QFETCH(int, start);
    QFETCH(QString, token);
    QFETCH(int, changed);
    unit_stores stores;
    stores.set(QStringLiteral("EI1(%1)").arg(start));
    stores.set(QStringLiteral("EI2(400)")); // another unit is current
    const sys_result_info result = stores.set(token);
    QCOMPARE(result.status, 2);
    QCOMPARE(stores.units.value(1), qint64(changed));
    QCOMPARE(stores.units.current_unit(), changed);
    QCOMPARE(stores.units.value(2), qint64(400));
}

void tst_system_play_einheiten::a_fresh_unit_is_zero_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("value");
    // clang-format off
    QTest::newRow("half of it")        << "EI3/2" << 0;
    QTest::newRow("twice as much")     << "EI3*2" << 0;
    QTest::newRow("one more")          << "EI3+1" << 1;
    QTest::newRow("one less floors")   << "EI3-1" << 1;
    QTest::newRow("just made current") << "EI35"  << 0;
    // clang-format on
}

void tst_system_play_einheiten::a_fresh_unit_is_zero()
{
    QFETCH(QString, token);
    QFETCH(int, value);
    unit_stores stores;
    stores.set(token);
    QCOMPARE(stores.units.value(3), qint64(value));
    QCOMPARE(stores.units.current_unit(), value);
}

void tst_system_play_einheiten::every_unit_has_its_own_value()
{
    unit_stores stores;
    for (int unit = 0; unit < 10; ++unit)
        stores.set(QStringLiteral("EI%1(%2)").arg(unit).arg(70 + unit));
    for (int unit = 0; unit < 10; ++unit)
        QCOMPARE(stores.units.value(unit), qint64(70 + unit));
    QCOMPARE(stores.units.current_unit(), 79);
}

void tst_system_play_einheiten::a_unit_beyond_64_bits_stays_at_the_largest_value()
{
    unit_stores stores;
    stores.set(QStringLiteral("EI1(999999)"));
    stores.set(QStringLiteral("EI1*999999"));
    QCOMPARE(stores.units.value(1), Q_INT64_C(999998000001));
    stores.set(QStringLiteral("EI1*999999"));
    QCOMPARE(stores.units.value(1), Q_INT64_C(999997000002999999));
    stores.set(QStringLiteral("EI1*999999"));
    QCOMPARE(stores.units.value(1), largest);
    stores.set(QStringLiteral("EI1+1"));
    QCOMPARE(stores.units.value(1), largest);
    QCOMPARE(stores.set(QStringLiteral("EI1*2"), unit_bound::maximum, 64).status, 12);
    QCOMPARE(stores.units.value(1), qint64(64));
}

void tst_system_play_einheiten::the_current_unit_is_the_low_32_bits_data()
{
    QTest::addColumn<QStringList>("tokens");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("current");
    // clang-format off
    QTest::newRow("largest int")      << QStringList{"EI1(32768)", "EI1*65536", "EI1-1"}  << Q_INT64_C(2147483647) << 2147483647;
    QTest::newRow("one more")         << QStringList{"EI1(32768)", "EI1*65536"}           << Q_INT64_C(2147483648) << std::numeric_limits<int>::min();
    QTest::newRow("32 bits of ones")  << QStringList{"EI1(65536)", "EI1*65536", "EI1-1"}  << Q_INT64_C(4294967295) << -1;
    QTest::newRow("only a 33rd bit")  << QStringList{"EI1(65536)", "EI1*65536"}           << Q_INT64_C(4294967296) << 0;
    QTest::newRow("and five more")    << QStringList{"EI1(65536)", "EI1*65536", "EI1+5"}  << Q_INT64_C(4294967301) << 5;
    // clang-format on
}

void tst_system_play_einheiten::the_current_unit_is_the_low_32_bits()
{
    QFETCH(QStringList, tokens);
    QFETCH(qint64, value);
    QFETCH(int, current);
    unit_stores stores;
    for (const QString& token : tokens)
        stores.set(token);
    QCOMPARE(stores.units.value(1), value);
    QCOMPARE(stores.units.current_unit(), current);
}

void tst_system_play_einheiten::a_bound_cuts_and_tells_so_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("token");
    QTest::addColumn<bool>("is_maximum");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("changed");
    QTest::addColumn<int>("status"); // 12 where the bound was touched
    // clang-format off
    QTest::newRow("below the maximum")           << 1 << "EI1+1" << true  << 3 << 2 << 2;
    QTest::newRow("at the maximum")              << 2 << "EI1+1" << true  << 3 << 3 << 2;
    QTest::newRow("above the maximum")           << 3 << "EI1+1" << true  << 3 << 3 << 12;
    QTest::newRow("far above the maximum")       << 3 << "EI1*9" << true  << 3 << 3 << 12;
    QTest::newRow("above the minimum")           << 7 << "EI1-1" << false << 5 << 6 << 2;
    QTest::newRow("at the minimum")              << 6 << "EI1-1" << false << 5 << 5 << 2;
    QTest::newRow("below the minimum")           << 5 << "EI1-1" << false << 5 << 5 << 12;
    QTest::newRow("zero is below every minimum") << 5 << "EI1*0" << false << 1 << 1 << 12;
    QTest::newRow("a division by zero counts")   << 9 << "EI1/0" << true  << 4 << 4 << 12;
    QTest::newRow("so does a unit just chosen")  << 9 << "EI12"  << true  << 4 << 4 << 12;
    // clang-format on
}

void tst_system_play_einheiten::a_bound_cuts_and_tells_so()
{
    QFETCH(int, start);
    QFETCH(QString, token);
    QFETCH(bool, is_maximum);
    QFETCH(int, limit);
    QFETCH(int, changed);
    QFETCH(int, status);
    unit_stores stores;
    stores.set(QStringLiteral("EI1(%1)").arg(start));
    const unit_bound bound = is_maximum ? unit_bound::maximum : unit_bound::minimum;
    QCOMPARE(stores.set(token, bound, limit).status, status);
    QCOMPARE(stores.units.value(1), qint64(changed));
    QCOMPARE(stores.units.current_unit(), changed);
}

void tst_system_play_einheiten::a_bound_behind_an_assignment_is_refused_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("a number") << "EI1(5)";
    QTest::newRow("a table") << "EI1(ST1(1))";
    QTest::newRow("neither") << "EI1(x)";
}

void tst_system_play_einheiten::a_bound_behind_an_assignment_is_refused()
{
    QFETCH(QString, token);
    for (const unit_bound bound : {unit_bound::maximum, unit_bound::minimum}) {
        unit_stores stores;
        stores.fill(QStringLiteral("ST1(8)"));
        stores.set(QStringLiteral("EI1(3)"));
        stores.set(QStringLiteral("EI2(400)"));
        const sys_result_info result = stores.set(token, bound, 100);
        QCOMPARE(result.status, 4);
        QCOMPARE(
            result.error_text,
            QStringLiteral("MIN/MAX Setzung für eine normale Einheitensetzung nicht erlaubt!"));
        QCOMPARE(result.mark_mode, piece_of_line);
        QCOMPARE(result.mark_text, token);
        QCOMPARE(stores.units.value(1), qint64(3));
        QCOMPARE(stores.units.current_unit(), 3);
    }
}

void tst_system_play_einheiten::a_table_gives_its_value_to_a_unit()
{
    unit_stores stores;
    stores.fill(QStringLiteral("ST2(10,20,30)"));
    QCOMPARE(stores.set(QStringLiteral("EI1(ST2(2))")).status, 2);
    QCOMPARE(stores.units.value(1), qint64(20));
    QCOMPARE(stores.units.current_unit(), 20);
    stores.set(QStringLiteral("EI4(ST2(+1))"));
    QCOMPARE(stores.units.value(4), qint64(30));
    QCOMPARE(stores.units.current_unit(), 30);
    QCOMPARE(stores.units.value(1), qint64(20));
}

void tst_system_play_einheiten::a_place_of_a_table_may_be_a_counter()
{
    unit_stores stores;
    stores.fill(QStringLiteral("ST2(10,20,30)"));
    stores.counters.set(system_play_counter::read_action(QStringLiteral("CO07(3)")));
    stores.set(QStringLiteral("EI1(ST2(CO07))"));
    QCOMPARE(stores.units.value(1), qint64(30));
    stores.set(QStringLiteral("ei1(st2(co08))"));
    QCOMPARE(stores.units.value(1), qint64(10));
}

void tst_system_play_einheiten::a_table_without_values_is_told()
{
    unit_stores stores;
    stores.set(QStringLiteral("EI1(3)"));
    stores.set(QStringLiteral("EI2(400)"));
    const sys_result_info result = stores.set(QStringLiteral("EI1(ST1(1))"));
    QCOMPARE(result.status, 11);
    QCOMPARE(
        result.error_text,
        QStringLiteral("Verwendung einer Steigerungstabelle die noch nicht initialisiert wurde!"));
    QCOMPARE(result.mark_mode, whole_line);
    QCOMPARE(result.mark_text, QStringLiteral("EI1(ST1(1))"));
    QCOMPARE(stores.units.value(1), qint64(3));
    QCOMPARE(stores.units.current_unit(), 3);
}

void tst_system_play_einheiten::a_table_that_ends_the_round_leaves_the_unit_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("status");
    QTest::newRow("A restarts") << 1 << 6;
    QTest::newRow("E stops") << 5 << 8;
}

void tst_system_play_einheiten::a_table_that_ends_the_round_leaves_the_unit()
{
    QFETCH(int, option);
    QFETCH(int, status);
    unit_stores stores;
    stores.fill(QStringLiteral("ST1(10,20)"));
    stores.tables.set_rescan_option(
        static_cast<system_play_options::sg_rescan_options>(option), 0, 0);
    stores.set(QStringLiteral("EI1(ST1(2))"));
    stores.set(QStringLiteral("EI2(400)"));
    QCOMPARE(stores.set(QStringLiteral("EI1(ST1(+1))")).status, status);
    QCOMPARE(stores.units.value(1), qint64(20));
    QCOMPARE(stores.units.current_unit(), 20);
    QCOMPARE(stores.tables.position(1), 1);
}

void tst_system_play_einheiten::what_is_no_place_of_a_table_changes_nothing_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("no number") << "EI1(ST1(x))";
    QTest::newRow("no number of steps") << "EI1(ST1(+x))";
    QTest::newRow("no counter") << "EI1(ST1(COxx))";
    QTest::newRow("no table") << "EI1(ST0(1))";
}

void tst_system_play_einheiten::what_is_no_place_of_a_table_changes_nothing()
{
    QFETCH(QString, token);
    unit_stores stores;
    stores.fill(QStringLiteral("ST1(10,20)"));
    stores.set(QStringLiteral("EI1(3)"));
    QCOMPARE(stores.set(token).status, 2);
    QCOMPARE(stores.units.value(1), qint64(3));
    QCOMPARE(stores.units.current_unit(), 3);
    QCOMPARE(stores.tables.position(1), 0);
}

void tst_system_play_einheiten::what_is_no_unit_changes_nothing_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("letter") << "EIx(5)";
    QTest::newRow("no digit") << "EI(5)";
    QTest::newRow("nothing") << "EI";
}

void tst_system_play_einheiten::what_is_no_unit_changes_nothing()
{
    QFETCH(QString, token);
    unit_stores stores;
    QCOMPARE(stores.set(token).status, 2);
    for (int unit = 0; unit < 10; ++unit)
        QCOMPARE(stores.units.value(unit), qint64(0));
    QCOMPARE(stores.units.current_unit(), 1);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_einheiten>(argc, argv);
}

#include "tst_system_play_einheiten.moc"
