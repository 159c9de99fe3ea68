#include "language_bench.h"
#include "test_box.h"

#include <QRegularExpression>

#include <random>

class tst_system_play_command_line : public QObject
{
    Q_OBJECT

private slots:
    void a_chain_stops_at_its_first_failed_test_data();
    void a_chain_stops_at_its_first_failed_test();
    void a_failed_test_is_no_error();
    void a_consequence_sets_the_status_data();
    void a_consequence_sets_the_status();
    void an_item_list_runs_from_left_to_right();
    void an_item_list_ends_at_its_first_fault();
    void a_bound_decides_what_runs_behind_it_data();
    void a_bound_decides_what_runs_behind_it();
    void a_faulty_bound_is_told_data();
    void a_faulty_bound_is_told();
    void words_that_mean_nothing_are_logged_data();
    void words_that_mean_nothing_are_logged();
    void a_fill_belongs_to_the_start_section();
    void a_table_without_values_is_told();
    void options_are_read_in_a_list();
    void an_overflow_ends_the_list_data();
    void an_overflow_ends_the_list();
    void a_faulty_test_is_told_data();
    void a_faulty_test_is_told();
    void a_rebuild_forgets_everything();
    void a_rebuild_may_keep_the_delay_off_data();
    void a_rebuild_may_keep_the_delay_off();
    void counters_go_back_to_the_saved_values();
    void any_token_text_runs();
};

/// Runs a test in front of a counter that tells whether it held.
static QString outcome_of(const QString& tests)
{
    statement_bench bench;
    bench.throw_numbers({20, 1}); // black even passe, red odd manque
    bench.run_all({"SZ CO01(5),ST1(7);"});
    const sys_result_info result = bench.run("IF " + tests + " THEN SZ PL17;");
    if (result.status != 2) return result.error_text;
    return bench.notes.bets.isEmpty() ? QStringLiteral("no") : QStringLiteral("yes");
}

void tst_system_play_command_line::a_chain_stops_at_its_first_failed_test_data()
{
    QTest::addColumn<QString>("tests");
    QTest::addColumn<QString>("outcome");
    // clang-format off
    QTest::newRow("one that holds")           << "CO01(5)"                                       << "yes";
    QTest::newRow("one that fails")           << "CO01(6)"                                       << "no";
    QTest::newRow("table")                    << "ST1(7)"                                        << "yes";
    QTest::newRow("all hold")                 << "CO01(5) AND IF GZ IN EC03 AND IF VZ IN EC04"   << "yes";
    QTest::newRow("first fails")              << "CO01(6) AND IF GZ IN EC03 AND IF VZ IN EC04"   << "no";
    QTest::newRow("second fails")             << "CO01(5) AND IF GZ IN EC04 AND IF VZ IN EC04"   << "no";
    QTest::newRow("last fails")               << "CO01(5) AND IF GZ IN EC03 AND IF VZ IN EC03"   << "no";
    QTest::newRow("inverted")                 << "GZ NOT IN EC04 AND IF VZ NOT IN EC03"          << "yes";
    QTest::newRow("inverted, blanks")         << "GZ NOT   IN EC03"                              << "no";
    QTest::newRow("inverted, no blank")       << "GZ NOTIN EC04"                                 << "yes";
    QTest::newRow("faulty behind a failed")   << "CO01(6) AND IF EI1(5) IN EC01"                 << "no";
    QTest::newRow("faulty behind one that holds") << "CO01(5) AND IF EI1(5) IN EC01"             << "S: Unbekannte IF Aktion!";
    // clang-format on
}

void tst_system_play_command_line::a_chain_stops_at_its_first_failed_test()
{
    QFETCH(QString, tests);
    QFETCH(QString, outcome);
    QCOMPARE(outcome_of(tests), outcome);
}

void tst_system_play_command_line::a_failed_test_is_no_error()
{
    statement_bench bench;
    const sys_result_info result = bench.run("IF CO01(5) THEN STOP;");
    QCOMPARE(result.status, 2);
    QVERIFY(!result.check_result);
    QVERIFY(result.error_text.isEmpty());
}

void tst_system_play_command_line::a_consequence_sets_the_status_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("status");
    // clang-format off
    QTest::newRow("restart")                   << "RESTART;"                       << 6;
    QTest::newRow("restart N")                 << "RESTART(N);"                    << 6;
    QTest::newRow("restart F")                 << "RESTART(F);"                    << 7;
    QTest::newRow("restart with a comma")      << "RESTART(,);"                    << 2;
    QTest::newRow("restart, lower case")       << "restart( f );"                  << 7;
    QTest::newRow("stop")                      << "STOP;"                          << 8;
    QTest::newRow("behind a test, restart")    << "IF CO01(0) THEN RESTART;"       << 2;
    QTest::newRow("behind a test, restart N")  << "IF CO01(0) THEN RESTART(N);"    << 6;
    QTest::newRow("behind a test, restart F")  << "IF CO01(0) THEN RESTART(F);"    << 7;
    QTest::newRow("behind a test, with comma") << "IF CO01(0) THEN RESTART(,);"    << 2;
    QTest::newRow("behind a test, stop")       << "IF CO01(0) THEN STOP;"          << 8;
    QTest::newRow("behind a failed test")      << "IF CO01(1) THEN STOP;"          << 2;
    // clang-format on
}

void tst_system_play_command_line::a_consequence_sets_the_status()
{
    QFETCH(QString, statement);
    QFETCH(int, status);
    statement_bench bench;
    QCOMPARE(bench.run(statement).status, status);
}

void tst_system_play_command_line::an_item_list_runs_from_left_to_right()
{
    statement_bench bench;
    QCOMPARE(bench.run("SZ EI1(2),EC01,CO01(3),ST1(8,9),EI2(ST1(2)),EC02,CO01(+4),PT1(EC03),PT1;")
                 .status,
             2);
    QCOMPARE(bench.notes.bets, (QStringList{"EC01 x2", "EC02 x9", "EC03 x9"}));
    QCOMPARE(bench.told("CO01"), QStringLiteral("Spieler: 1<br>CO01: 7<br>"));
}

void tst_system_play_command_line::an_item_list_ends_at_its_first_fault()
{
    statement_bench bench;
    QCOMPARE(bench.run("SZ CO01(1),EC,CO01(2);").status, 4);
    QCOMPARE(bench.told("CO01"), QStringLiteral("Spieler: 1<br>CO01: 1<br>"));
}

void tst_system_play_command_line::a_bound_decides_what_runs_behind_it_data()
{
    QTest::addColumn<QString>("statement"); // with EI1 at 1
    QTest::addColumn<QStringList>("bets");
    QTest::addColumn<QString>("unit");
    // clang-format off
    QTest::newRow("maximum not touched")        << "SZ EC01,EI1+1 MAX 3 THEN SZ EC02;" << QStringList{"EC01 x1"}            << "2";
    QTest::newRow("maximum touched")            << "SZ EC01,EI1+3 MAX 3 THEN SZ EC02;" << QStringList{"EC01 x1", "EC02 x3"} << "3";
    QTest::newRow("maximum reached is not touched") << "SZ EI1+2 MAX 3 THEN SZ EC02;"  << QStringList{}                     << "3";
    QTest::newRow("only the first is dropped")  << "SZ EI1+1 MAX 3 THEN SZ EC02,EC03;" << QStringList{"EC03 x2"}            << "2";
    QTest::newRow("touched, all run")           << "SZ EI1+9 MAX 3 THEN SZ EC02,EC03;" << QStringList{"EC02 x3", "EC03 x3"} << "3";
    QTest::newRow("nothing behind it")          << "SZ EI1+9 MAX 3;"                   << QStringList{}                     << "3";
    QTest::newRow("minimum touched")            << "SZ EI1+0 MIN 5 THEN SZ EC02;"      << QStringList{"EC02 x5"}            << "5";
    QTest::newRow("minimum not touched")        << "SZ EI1*8 MIN 5 THEN SZ EC02;"      << QStringList{}                     << "8";
    QTest::newRow("lower case")                 << "SZ ei1+9 max 3 then sz EC02;"      << QStringList{"EC02 x3"}            << "3";
    QTest::newRow("the touched unit again")     << "SZ EI1+9 MAX 3 THEN SZ EI1(1),EC02;" << QStringList{"EC02 x1"}          << "1";
    QTest::newRow("division by zero and a bound") << "SZ EI1/0 MIN 4 THEN SZ EC02;"    << QStringList{"EC02 x4"}            << "4";
    QTest::newRow("behind a test")              << "IF CO01(0) THEN SZ EI1+9 MAX 3 THEN SZ EC02;" << QStringList{"EC02 x3"} << "3";
    // clang-format on
}

void tst_system_play_command_line::a_bound_decides_what_runs_behind_it()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, bets);
    QFETCH(QString, unit);
    statement_bench bench;
    bench.run("SZ EI1(1);");
    QCOMPARE(bench.run(statement).status, 2);
    QCOMPARE(bench.notes.bets, bets);
    QCOMPARE(bench.told("EI1"), "Spieler: 1<br>EI1: " + unit + "<br>");
}

void tst_system_play_command_line::a_faulty_bound_is_told_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<QString>("mark_text");
    const QString assignment =
        QStringLiteral("MIN/MAX Setzung für eine normale Einheitensetzung nicht erlaubt!");
    const QString maximum = QStringLiteral("MAX Wert muss größer als 0 sein!");
    const QString minimum = QStringLiteral("MIN Wert muss größer als 0 sein!");
    const QString no_maximum = QStringLiteral("S: MAX Wert ungültig!");
    const QString no_minimum = QStringLiteral("S: MIN Wert ungültig!");
    // clang-format off
    QTest::newRow("behind an assignment")    << "SZ EI1(5) MAX 3;"       << assignment << "EI1(5)";
    QTest::newRow("behind a table")          << "SZ EI1(ST1(1)) MIN 3;"  << assignment << "EI1(ST1(1))";
    QTest::newRow("maximum zero")            << "SZ EI1+1 MAX 0;"        << maximum    << "0";
    QTest::newRow("minimum zero")            << "SZ EI1+1 MIN 000;"      << minimum    << "000";
    QTest::newRow("before the assignment")   << "SZ EI1(5) MAX 0;"       << maximum    << "0";
    QTest::newRow("maximum is no number")    << "SZ|EI1+1|MAX|x"         << no_maximum << "x";
    QTest::newRow("minimum is no number")    << "SZ|EI1+1|MIN|THEN|SZ|EC01" << no_minimum << "THEN";
    QTest::newRow("maximum is missing")      << "SZ|EI1+1|MAX"           << no_maximum << "";
    // clang-format on
}

void tst_system_play_command_line::a_faulty_bound_is_told()
{
    QFETCH(QString, statement);
    QFETCH(QString, error_text);
    QFETCH(QString, mark_text);
    statement_bench bench;
    bench.run("SZ ST1(8),EI1(2);");
    const sys_result_info result = bench.run(statement);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, mark_text);
    QCOMPARE(bench.told("EI1"), QStringLiteral("Spieler: 1<br>EI1: 2<br>"));
}

void tst_system_play_command_line::words_that_mean_nothing_are_logged_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("bets");
    // clang-format off
    QTest::newRow("bound behind a jeton")   << "SZ EC01 MAX 5;"                << QStringList{"MAX", "5"} << QStringList{"EC01 x1"};
    QTest::newRow("bound and an item")      << "SZ CO01(1) MIN 5 THEN SZ EC02;" << QStringList{"MIN", "5", "THEN", "SZ"} << QStringList{"EC02 x1"};
    QTest::newRow("signal as an item")      << "SZ UZ(5/2),EC01;"              << QStringList{"UZ\\(5/2\\)"} << QStringList{"EC01 x1"};
    // clang-format on
}

void tst_system_play_command_line::words_that_mean_nothing_are_logged()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, words);
    QFETCH(QStringList, bets);
    statement_bench bench;
    for (const QString& word : words) {
        const QRegularExpression log("Not implemented sz action: .*" + word);
        QTest::ignoreMessage(QtDebugMsg, log);
    }
    QCOMPARE(bench.run(statement).status, 2);
    QCOMPARE(bench.notes.bets, bets);
}

void tst_system_play_command_line::a_fill_belongs_to_the_start_section()
{
    statement_bench bench;
    const sys_result_info result = bench.run("SZ CO01(3),ST1(1,2);", false);
    QCOMPARE(result.status, 4);
    QCOMPARE(
        result.error_text,
        QStringLiteral("Eine Steigerungstabellen Belegung ist nur in der Start Sektion erlaubt!"));
    QCOMPARE(result.mark_mode, whole_line);
    QCOMPARE(bench.run("IF CO01(3) THEN SZ ST1(1,2);", true).status, 2);
    QCOMPARE(bench.run("IF CO01(3) THEN SZ ST1(4);", false).status, 4);
    QCOMPARE(bench.told("ST1"), QStringLiteral("Spieler: 1<br>ST1: 0/Wert: 1<br>"));
}

void tst_system_play_command_line::a_table_without_values_is_told()
{
    statement_bench bench;
    const sys_result_info result = bench.run("SZ EI1(ST4(+1));");
    QCOMPARE(result.status, 11);
    QCOMPARE(
        result.error_text,
        QStringLiteral("Verwendung einer Steigerungstabelle die noch nicht initialisiert wurde!"));
    QCOMPARE(result.mark_mode, whole_line);
}

void tst_system_play_command_line::options_are_read_in_a_list()
{
    statement_bench bench;
    QCOMPARE(bench.run("SZ EC01,STMAX(I(5), C(100)),EC02;").status, 5);
    QCOMPARE(bench.receiver.options, (QStringList{"ignore 4", "8=100"}));
    QCOMPARE(bench.notes.bets, QStringList{"EC01 x1"}); // the delay ends the list
    QCOMPARE(bench.run("SZ EC01,STMAX(I(5), C(100)),EC02;").status, 2);
    QCOMPARE(bench.receiver.options, (QStringList{"ignore 4", "8=100", "8=100"}));
    QCOMPARE(bench.notes.bets, (QStringList{"EC01 x1", "EC01 x1", "EC02 x1"}));
}

void tst_system_play_command_line::an_overflow_ends_the_list_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("bets");
    QTest::addColumn<QString>("unit");
    // clang-format off
    QTest::newRow("no option") << "H" << 2 << QStringList{"EC01 x8"} << "8";
    QTest::newRow("wrap")      << "S" << 2 << QStringList{"EC01 x4"} << "4";
    QTest::newRow("restart")   << "A" << 6 << QStringList{}          << "8";
    QTest::newRow("stop")      << "E" << 8 << QStringList{}          << "8";
    // clang-format on
}

void tst_system_play_command_line::an_overflow_ends_the_list()
{
    QFETCH(QString, option);
    QFETCH(int, status);
    QFETCH(QStringList, bets);
    QFETCH(QString, unit);
    statement_bench bench;
    bench.run_all({"SZ STMAX(" + option + ");", "SZ ST1(4,8);", "SZ EI1(ST1(2));"});
    QCOMPARE(bench.run("SZ EI1(ST1(+1)),EC01;").status, status);
    QCOMPARE(bench.notes.bets, bets);
    QCOMPARE(bench.told("EI1"), "Spieler: 1<br>EI1: " + unit + "<br>");
}

void tst_system_play_command_line::a_faulty_test_is_told_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<QString>("mark_text");
    const QString unknown = QStringLiteral("S: Unbekannte IF Aktion!");
    const QString keyword = QStringLiteral("Schlüsselwort IN erwartet!");
    const QString value = QStringLiteral("S: ST Wert ist nicht gültig!");
    // clang-format off
    QTest::newRow("a unit")                 << "IF EI1(5) IN EC01 THEN STOP;"   << unknown << "EI1(5)";
    QTest::newRow("a play table")           << "IF PT1 IN EC01 THEN STOP;"      << unknown << "PT1";
    QTest::newRow("nothing")                << "IF|"                            << unknown << "";
    QTest::newRow("count, negated")         << "IF RZ(5/<2) NOT IN EC01 THEN STOP;" << keyword << "NOT IN";
    QTest::newRow("the same, lower case")   << "IF RZ(5/<2) not in EC01 THEN STOP;" << keyword << "not in";
    QTest::newRow("count, another word")    << "IF|RZ(5/<2)|MAX|EC01|THEN|STOP" << keyword << "MAX";
    QTest::newRow("two values of a table")  << "IF ST1(1,2) THEN STOP;"         << value   << "1,2";
    QTest::newRow("the options")            << "IF STMAX(A) THEN STOP;"         << value   << "A";
    // clang-format on
}

void tst_system_play_command_line::a_faulty_test_is_told()
{
    QFETCH(QString, statement);
    QFETCH(QString, error_text);
    QFETCH(QString, mark_text);
    statement_bench bench;
    const sys_result_info result = bench.run(statement);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, mark_text);
}

void tst_system_play_command_line::a_rebuild_forgets_everything()
{
    statement_bench bench;
    bench.throw_numbers({1});
    bench.run_all({"SZ STMAX(A);", "SZ CO01(5),EI1(7),ST1(4,8),PT1(EC01),EC03;"});
    bench.command_line.save_counter_start_values();
    bench.command_line.end_of_round();
    bench.command_line.rebuild_command_line(false);
    QCOMPARE(bench.told("CO01,EI1,EIC,ST1,PT1(1),AG(1)"),
             QStringLiteral("Spieler: 1<br>CO01: 0<br>EI1: 0<br>EIC: 1<br>ST1: 0/Wert: 0<br>"
                            "PT1(1): --<br>AG(1): --<br>"));
    bench.run("SZ ST1(3);");
    QCOMPARE(bench.run("SZ EI1(ST1(+1));").status, 2); // the option A is gone
}

void tst_system_play_command_line::a_rebuild_may_keep_the_delay_off_data()
{
    QTest::addColumn<bool>("keep_delay_off");
    QTest::addColumn<int>("status");
    QTest::newRow("kept off") << true << 2;
    QTest::newRow("acts again") << false << 5;
}

void tst_system_play_command_line::a_rebuild_may_keep_the_delay_off()
{
    QFETCH(bool, keep_delay_off);
    QFETCH(int, status);
    statement_bench bench;
    bench.command_line.rebuild_command_line(keep_delay_off);
    QCOMPARE(bench.run("SZ STMAX(I(5));").status, status);
}

void tst_system_play_command_line::counters_go_back_to_the_saved_values()
{
    statement_bench bench;
    bench.run_all({"SZ STMAX(S(ST1(CO05)));", "SZ ST1(4,8),CO05(9),CO06(9);"});
    bench.command_line.save_counter_start_values();
    bench.run_all({"SZ CO05(1),CO06(1);", "SZ EI1(ST1(3));"});
    QCOMPARE(bench.told("CO05,CO06,EI1"),
             QStringLiteral("Spieler: 1<br>CO05: 9<br>CO06: 1<br>EI1: 4<br>"));
}

static void be_silent(QtMsgType, const QMessageLogContext&, const QString&) {}

/// Token texts that no compiler wrote end with a status of their own and nothing worse.
void tst_system_play_command_line::any_token_text_runs()
{
    static const QStringList pieces = {"IF",
                                       "SZ",
                                       "THEN",
                                       "RESULT",
                                       "AND",
                                       "IN",
                                       "NOTIN",
                                       "GZ",
                                       "V9",
                                       "UZ(1/H)",
                                       "UZ(1/=1)",
                                       "RZ(1/>2)",
                                       "RZ(x",
                                       "CO99(+CO01)",
                                       "CO05",
                                       "CO5",
                                       "ST1(1,2)",
                                       "ST1(",
                                       "STMAX(A,I(3))",
                                       "STMAX(S(ST1(CO05)))",
                                       "EI1(ST1(+1))",
                                       "EI1(ST1(CO99))",
                                       "EI1*999999",
                                       "EI1/0",
                                       "MAX",
                                       "MIN",
                                       "99",
                                       "EC",
                                       "EC01",
                                       "EC00",
                                       "CH",
                                       "PT1",
                                       "PT1(GZ)",
                                       "PT1(99)",
                                       "PT1(A)",
                                       "AG(1)",
                                       "MESSAGEON",
                                       "MESSAGE('x',AG(1..3),PT1(1))",
                                       "RESTART",
                                       "STOP",
                                       "",
                                       "DZ",
                                       "FI"};
    const QtMessageHandler usual = qInstallMessageHandler(be_silent);
    std::mt19937 generator(11);
    statement_bench bench;
    bench.throw_numbers({1, 37, 0, 36});
    bool all_known = true;
    for (int statement = 0; statement < 20000; ++statement) {
        QStringList tokens = {generator() % 2 == 0 ? QStringLiteral("SZ") : QStringLiteral("IF")};
        const int count = static_cast<int>(generator() % 9);
        for (int i = 0; i < count; ++i)
            tokens.append(pieces.at(static_cast<int>(generator() % unsigned(pieces.size()))));
        const sys_result_info result = bench.run(tokens.join('|') + '|', generator() % 2 == 0);
        static const QVector<int> known = {2, 4, 5, 6, 7, 8, 10, 11};
        all_known = all_known && known.contains(result.status);
        if (statement % 100 == 99) bench.command_line.rebuild_command_line(false);
        if (statement % 10 == 9) bench.command_line.end_of_round();
        bench.notes = {};
        bench.receiver.options.clear();
    }
    qInstallMessageHandler(usual);
    QVERIFY(all_known);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_command_line>(argc, argv);
}

#include "tst_system_play_command_line.moc"
