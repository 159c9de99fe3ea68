#include "language_bench.h"
#include "system_play_settings.h"
#include "system_play_steigerungstabelle.h"
#include "test_box.h"

class tst_system_play_settings : public QObject
{
    Q_OBJECT

private slots:
    void every_option_goes_to_its_receiver_data();
    void every_option_goes_to_its_receiver();
    void what_was_set_can_be_asked();
    void a_delay_begins_once_data();
    void a_delay_begins_once();
    void a_delay_marked_as_done_does_not_begin();
    void options_around_a_delay_act_at_once();
    void an_overflow_option_reaches_the_tables_data();
    void an_overflow_option_reaches_the_tables();
    void a_list_of_resets_reaches_its_tables();
    void a_bare_s_behind_a_list_resets_nothing_more();
    void a_wrong_option_is_told_data();
    void a_wrong_option_is_told();
    void a_wrong_option_ends_the_list();
};

namespace
{

/// The reader of options between the tables and the run.
struct option_stores {
    sys_result_info read(const QString& token)
    {
        sys_result_info result;
        settings.read_options(result, token);
        return result;
    }

    /// Value of a table of one place when it is asked for one more.
    int overflow(int table, sys_result_info& result)
    {
        tables.fill(result, QStringLiteral("ST%1(7,8)").arg(table));
        return tables.move(result, {table_move::kind::place, table, 3});
    }

    void set_counter(const QString& token)
    {
        counters.set(system_play_counter::read_action(token));
    }

    system_play_counter counters;
    system_play_steigerungstabelle tables{counters};
    noting_receiver receiver;
    system_play_settings settings{tables, receiver};
};

} // namespace

void tst_system_play_settings::every_option_goes_to_its_receiver_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QStringList>("options");
    // clang-format off
    QTest::newRow("loss limit")            << "STMAX(V(300))"        << QStringList{"6=300"};
    QTest::newRow("gain limit")            << "STMAX(G(200))"        << QStringList{"7=200"};
    QTest::newRow("coup limit")            << "STMAX(C(999999))"     << QStringList{"8=999999"};
    QTest::newRow("hand change")           << "STMAX(H)"             << QStringList{"4=0"};
    QTest::newRow("pause")                 << "STMAX(P)"             << QStringList{"10=0"};
    QTest::newRow("next load file")        << "STMAX(R)"             << QStringList{"11=0"};
    QTest::newRow("restart at a limit")    << "STMAX(N)"             << QStringList{"12=0"};
    QTest::newRow("options of the tables") << "STMAX(A,S,E)"         << QStringList{};
    QTest::newRow("no effect")             << "STMAX(L)"             << QStringList{};
    QTest::newRow("unknown letter")        << "STMAX(X)"             << QStringList{};
    QTest::newRow("nothing")               << "STMAX()"              << QStringList{};
    QTest::newRow("empty options")         << "STMAX(,,P,)"          << QStringList{"10=0"};
    QTest::newRow("limit without number")  << "STMAX(V)"             << QStringList{"6=0"};
    QTest::newRow("limit of zero")         << "STMAX(C(0))"          << QStringList{"8=0"};
    QTest::newRow("lower case")            << "stmax(v(5),h)"        << QStringList{"6=5", "4=0"};
    QTest::newRow("in the order written")  << "STMAX(C(5),V(3),N)"   << QStringList{"8=5", "6=3", "12=0"};
    QTest::newRow("twice")                 << "STMAX(C(5),C(7))"     << QStringList{"8=5", "8=7"};
    QTest::newRow("a list cut too late")   << "STMAX(V),CO01(5)"     << QStringList{"6=0", "8=0"};
    // clang-format on
}

void tst_system_play_settings::every_option_goes_to_its_receiver()
{
    QFETCH(QString, token);
    QFETCH(QStringList, options);
    option_stores stores;
    QCOMPARE(stores.read(token).status, 2);
    QCOMPARE(stores.receiver.options, options);
}

void tst_system_play_settings::what_was_set_can_be_asked()
{
    using namespace system_play_options;
    option_stores stores;
    stores.read(QStringLiteral("STMAX(I(3),A,H,N)"));
    for (const auto option :
         {option_delay, option_overflow_restart, option_hand_change, option_limit_restart}) {
        QVERIFY(stores.settings.has_option(option));
    }
    for (const auto option : {option_overflow_stop, option_pause, option_next_load_file})
        QVERIFY(!stores.settings.has_option(option));
}

void tst_system_play_settings::a_delay_begins_once_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("status"); // 5 where a delay begins
    QTest::addColumn<QStringList>("options");
    // clang-format off
    QTest::newRow("many coups")     << "STMAX(I(12))" << 5 << QStringList{"ignore 11"};
    QTest::newRow("one coup")       << "STMAX(I(1))"  << 5 << QStringList{"ignore 0"};
    QTest::newRow("no coup")        << "STMAX(I(0))"  << 2 << QStringList{};
    QTest::newRow("without number") << "STMAX(I)"     << 2 << QStringList{};
    QTest::newRow("twice")          << "STMAX(I(4),I(9))" << 5 << QStringList{"ignore 3"};
    // clang-format on
}

void tst_system_play_settings::a_delay_begins_once()
{
    QFETCH(QString, token);
    QFETCH(int, status);
    QFETCH(QStringList, options);
    option_stores stores;
    QCOMPARE(stores.read(token).status, status);
    QCOMPARE(stores.receiver.options, options);
    QCOMPARE(stores.read(token).status, 2);
    QCOMPARE(stores.receiver.options, options);
}

void tst_system_play_settings::a_delay_marked_as_done_does_not_begin()
{
    option_stores stores;
    stores.settings.mark_delay_done();
    QCOMPARE(stores.read(QStringLiteral("STMAX(I(5),C(100))")).status, 2);
    QCOMPARE(stores.receiver.options, QStringList{"8=100"});
}

void tst_system_play_settings::options_around_a_delay_act_at_once()
{
    option_stores stores;
    QCOMPARE(stores.read(QStringLiteral("STMAX(V(9),I(5),C(100))")).status, 5);
    QCOMPARE(stores.receiver.options, (QStringList{"6=9", "ignore 4", "8=100"}));
    stores.receiver.options.clear();
    QCOMPARE(stores.read(QStringLiteral("STMAX(V(9),I(5),C(100))")).status, 2);
    QCOMPARE(stores.receiver.options, (QStringList{"6=9", "8=100"}));
}

void tst_system_play_settings::an_overflow_option_reaches_the_tables_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("value"); // of the table 7, 8 asked for a third place
    QTest::addColumn<int>("status");
    // clang-format off
    QTest::newRow("none")                  << "STMAX(H)"            << 8 << 2;
    QTest::newRow("A")                     << "STMAX(A)"            << 0 << 6;
    QTest::newRow("S")                     << "STMAX(S)"            << 7 << 2;
    QTest::newRow("E")                     << "STMAX(E)"            << 0 << 8;
    QTest::newRow("S with a counter")      << "STMAX(S(ST1(CO05)))" << 7 << 2;
    QTest::newRow("the same, lower case")  << "STMAX(s(st1(co05)))" << 7 << 2;
    QTest::newRow("s alone is no option")  << "STMAX(s)"            << 8 << 2;
    QTest::newRow("S and no table")        << "STMAX(S(5))"         << 8 << 2;
    QTest::newRow("L has no effect")       << "STMAX(L)"            << 8 << 2;
    QTest::newRow("table 0 wraps as well") << "STMAX(S(ST0(CO05)))" << 7 << 2;
    // clang-format on
}

void tst_system_play_settings::an_overflow_option_reaches_the_tables()
{
    QFETCH(QString, token);
    QFETCH(int, value);
    QFETCH(int, status);
    option_stores stores;
    stores.read(token);
    sys_result_info result;
    QCOMPARE(stores.overflow(1, result), value);
    QCOMPARE(result.status, status);
}

void tst_system_play_settings::a_list_of_resets_reaches_its_tables()
{
    option_stores stores;
    stores.set_counter(QStringLiteral("CO05(50)"));
    stores.set_counter(QStringLiteral("CO06(60)"));
    stores.set_counter(QStringLiteral("CO07(70)"));
    const QString token = QStringLiteral("STMAX(S(ST1(CO05),ST2(CO06),ST2(CO07)),P)");
    QCOMPARE(stores.read(token).status, 2);
    QCOMPARE(stores.receiver.options, QStringList{"10=0"});
    sys_result_info result;
    QCOMPARE(stores.overflow(2, result), 7);
    QCOMPARE(stores.counters.value(5), 50);
    QCOMPARE(stores.counters.value(6), 0);
    QCOMPARE(stores.counters.value(7), 0);
    stores.overflow(1, result);
    QCOMPARE(stores.counters.value(5), 0);
}

void tst_system_play_settings::a_bare_s_behind_a_list_resets_nothing_more()
{
    option_stores stores;
    stores.set_counter(QStringLiteral("CO05(50)"));
    stores.set_counter(QStringLiteral("CO00(1)"));
    QCOMPARE(stores.read(QStringLiteral("STMAX(S(ST1(CO05)),S)")).status, 2);
    sys_result_info result;
    QCOMPARE(stores.overflow(1, result), 7);
    QCOMPARE(stores.counters.value(5), 0);
    QCOMPARE(stores.counters.value(0), 1);
}

void tst_system_play_settings::a_wrong_option_is_told_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<QString>("mark_text");
    const QString syntax = QStringLiteral("Syntax Steigerungstabelle Rücksetzung falsch!");
    const QString counter = QStringLiteral("Counter erwartet!");
    const QString bracket = QStringLiteral("Counter Klammer fehlt!");
    const QString counter_syntax = QStringLiteral("Counter Syntax falsch!");
    // clang-format off
    QTest::newRow("pair without S(")         << "STMAX(ST1(CO05))"               << syntax         << "ST1(CO05)";
    QTest::newRow("pair behind the list")    << "STMAX(S(ST1(CO05)),ST2(CO06))"  << syntax         << "ST2(CO06)";
    QTest::newRow("no table")                << "STMAX(S(STX(CO05)))"            << syntax         << "S(STX(CO05))";
    QTest::newRow("no table in a pair")      << "STMAX(S(ST1(CO05),STX(CO06)))"  << syntax         << "STX(CO06))";
    QTest::newRow("nothing behind ST")       << "STMAX(S(ST)"                    << syntax         << "S(ST";
    QTest::newRow("no CO")                   << "STMAX(S(ST1(5)))"               << counter        << "S(ST1(5))";
    QTest::newRow("two-digit table")         << "STMAX(S(ST12(CO05)))"           << counter        << "S(ST12(CO05))";
    QTest::newRow("no CO in a pair")         << "STMAX(S(ST1(CO05),ST2(6)))"     << counter        << "ST2(6))";
    QTest::newRow("no number in a pair")     << "STMAX(S(ST1(CO05),ST2(CO)))"    << counter        << "ST2(CO))";
    QTest::newRow("no counter in a pair")    << "STMAX(S(ST1(CO05),ST2(CO100)))" << counter        << "ST2(CO100))";
    QTest::newRow("no bracket")              << "STMAX(S(ST1(CO05)"              << bracket        << "S(ST1(CO05";
    QTest::newRow("three brackets")          << "STMAX(S(ST1(CO05))),ST1(1,2)"   << bracket        << "S(ST1(CO05)))";
    QTest::newRow("no number")               << "STMAX(S(ST1(CO)))"              << counter_syntax << "S(ST1(CO))";
    QTest::newRow("letters")                 << "STMAX(S(ST1(COAB)))"            << counter_syntax << "S(ST1(COAB))";
    QTest::newRow("no counter")              << "STMAX(S(ST1(CO100)))"           << counter_syntax << "S(ST1(CO100))";
    // clang-format on
}

void tst_system_play_settings::a_wrong_option_is_told()
{
    QFETCH(QString, token);
    QFETCH(QString, error_text);
    QFETCH(QString, mark_text);
    option_stores stores;
    const sys_result_info result = stores.read(token);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, mark_text);
}

void tst_system_play_settings::a_wrong_option_ends_the_list()
{
    option_stores stores;
    QCOMPARE(stores.read(QStringLiteral("STMAX(I(4),V(1),ST1(CO05),C(3))")).status, 4);
    QCOMPARE(stores.receiver.options, (QStringList{"ignore 3", "6=1"}));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_settings>(argc, argv);
}

#include "tst_system_play_settings.moc"
