#include "language_bench.h"
#include "system_play_argument.h"
#include "system_play_einheiten.h"
#include "system_play_playtable.h"
#include "test_box.h"

class tst_system_play_playtable : public QObject
{
    Q_OBJECT

private slots:
    // bets
    void a_bet_takes_the_current_unit_data();
    void a_bet_takes_the_current_unit();
    void a_unit_below_one_bets_one_and_is_logged_data();
    void a_unit_below_one_bets_one_and_is_logged();
    void a_word_that_names_no_bet_is_told_data();
    void a_word_that_names_no_bet_is_told();
    void bets_in_front_of_a_wrong_one_stay();
    // play tables
    void a_table_sets_what_it_collected_data();
    void a_table_sets_what_it_collected();
    void the_last_number_joins_a_table_data();
    void the_last_number_joins_a_table();
    void the_last_entry_of_a_table_decides_data();
    void the_last_entry_of_a_table_decides();
    void an_entry_is_told_by_its_place();
    // bets of the round before
    void a_number_is_tested_against_the_round_before_data();
    void a_number_is_tested_against_the_round_before();
    void the_running_round_is_not_tested();
    void a_round_without_bets_leaves_nothing();
    void a_number_that_has_not_fallen_is_no_error_data();
    void a_number_that_has_not_fallen_is_no_error();
    void what_is_no_number_word_is_told_data();
    void what_is_no_number_word_is_told();
    void a_bet_of_the_round_before_is_told_by_its_key();
};

void tst_system_play_playtable::a_bet_takes_the_current_unit_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("bets");
    // clang-format off
    QTest::newRow("no unit was ever current") << "SZ EC01;"                       << QStringList{"EC01 x1"};
    QTest::newRow("the last unit")            << "SZ EI1(5),EC01;"                << QStringList{"EC01 x5"};
    QTest::newRow("a bet does not use it up") << "SZ EI1(5),EC01,EC02;"           << QStringList{"EC01 x5", "EC02 x5"};
    QTest::newRow("another unit")             << "SZ EI1(5),EI2(7),EC01,EI1+0,EC02;" << QStringList{"EC01 x7", "EC02 x5"};
    QTest::newRow("bets in front of a unit")  << "SZ EC01,EI1(5);"                << QStringList{"EC01 x1"};
    QTest::newRow("an announcement")          << "SZ EI1(3),GS,FI07;"             << QStringList{"GS x3", "FI07 x3"};
    QTest::newRow("a neighbour bet")          << "SZ DN36;"                       << QStringList{"DN36 x1"};
    QTest::newRow("the same place twice")     << "SZ PL00,PL00;"                  << QStringList{"PL00 x1", "PL00 x1"};
    // clang-format on
}

void tst_system_play_playtable::a_bet_takes_the_current_unit()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, bets);
    statement_bench bench;
    QCOMPARE(bench.run(statement).status, 2);
    QCOMPARE(bench.notes.bets, bets);
}

void tst_system_play_playtable::a_unit_below_one_bets_one_and_is_logged_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("unit");
    // clang-format off
    QTest::newRow("zero")            << "SZ EI1(5),EI1*0,EC01;"                   << "0";
    QTest::newRow("a negative int")  << "SZ EI1(65536),EI1*32768,EC01;"           << "-2147483648";
    // clang-format on
}

void tst_system_play_playtable::a_unit_below_one_bets_one_and_is_logged()
{
    QFETCH(QString, statement);
    QFETCH(QString, unit);
    statement_bench bench;
    const QString log = "Warning: amount " + unit + " of a bet is replaced by 1";
    QTest::ignoreMessage(QtDebugMsg, log.toUtf8().constData());
    QCOMPARE(bench.run(statement).status, 2);
    QCOMPARE(bench.notes.bets, QStringList{"EC01 x1"});
}

void tst_system_play_playtable::a_word_that_names_no_bet_is_told_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("lower case")              << "SZ ec01;"  << "ec01";
    QTest::newRow("bare type")               << "SZ EC;"    << "EC";
    QTest::newRow("place that there is not") << "SZ|EC00"   << "EC00";
    QTest::newRow("place beyond the table")  << "SZ|PL38"   << "PL38";
    QTest::newRow("form of a jeton")         << "SZ|AB12"   << "AB12";
    // clang-format on
}

void tst_system_play_playtable::a_word_that_names_no_bet_is_told()
{
    QFETCH(QString, statement);
    QFETCH(QString, name);
    statement_bench bench;
    const sys_result_info result = bench.run(statement);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, "Jeton Setzung " + name + QStringLiteral(" nicht möglich!"));
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, name);
    QCOMPARE(bench.notes.bets, QStringList());
}

void tst_system_play_playtable::bets_in_front_of_a_wrong_one_stay()
{
    statement_bench bench;
    QCOMPARE(bench.run("SZ EC01,ec02,EC03;").status, 4);
    QCOMPARE(bench.notes.bets, QStringList{"EC01 x1"});
}

void tst_system_play_playtable::a_table_sets_what_it_collected_data()
{
    QTest::addColumn<QString>("collected");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("bets");
    const QStringList both = {"EC01 x1", "PL17 x1"};
    const QStringList first = {"EC01 x1"};
    const QStringList second = {"PL17 x1"};
    // clang-format off
    QTest::newRow("all")                    << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1;"            << both;
    QTest::newRow("all, twice")             << "SZ PT1(EC01);"           << "SZ PT1,PT1;"        << QStringList{"EC01 x1", "EC01 x1"};
    QTest::newRow("with the current unit")  << "SZ PT1(EC01);"           << "SZ EI1(4),PT1;"     << QStringList{"EC01 x4"};
    QTest::newRow("an announcement")        << "SZ PT1(GS);"             << "SZ PT1;"            << QStringList{"GS x1"};
    QTest::newRow("orphans en plein")       << "SZ PT1(OP);"             << "SZ PT1;"            << QStringList{"OP x1"};
    QTest::newRow("the same entry twice")   << "SZ PT1(EC01),PT1(EC01);" << "SZ PT1(2);"         << first;
    QTest::newRow("empty")                  << "SZ PT2(EC01);"           << "SZ PT1;"            << QStringList{};
    QTest::newRow("first entry")            << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(1);"         << first;
    QTest::newRow("second entry")           << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(2);"         << second;
    QTest::newRow("third of two entries")   << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(3);"         << QStringList{};
    QTest::newRow("entry zero")             << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(0);"         << QStringList{};
    QTest::newRow("entry far away")         << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(999999);"    << QStringList{};
    QTest::newRow("entry of an empty table")<< "SZ PT2(EC01);"           << "SZ PT1(1);"         << QStringList{};
    QTest::newRow("without the first")      << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(A),PT1;"     << second;
    QTest::newRow("without the last")       << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(D),PT1;"     << first;
    QTest::newRow("cleared")                << "SZ PT1(EC01),PT1(PL17);" << "SZ PT1(C),PT1;"     << QStringList{};
    QTest::newRow("lower case")             << "SZ PT1(EC01),PT1(PL17);" << "SZ pt1(a),pt1;"     << second;
    QTest::newRow("first of an empty table")<< "SZ PT2(EC01);"           << "SZ PT1(A),PT1,PT2;" << first;
    QTest::newRow("last of an empty table") << "SZ PT2(EC01);"           << "SZ PT1(D),PT1,PT2;" << first;
    QTest::newRow("another is not cleared") << "SZ PT9(EC01);"           << "SZ PT8(C),PT9;"     << first;
    QTest::newRow("table zero")             << "SZ PT1(EC01);"           << "SZ|PT0|PT"          << QStringList{};
    // clang-format on
}

void tst_system_play_playtable::a_table_sets_what_it_collected()
{
    QFETCH(QString, collected);
    QFETCH(QString, statement);
    QFETCH(QStringList, bets);
    statement_bench bench;
    QCOMPARE(bench.run(collected).status, 2);
    QCOMPARE(bench.notes.bets, QStringList());
    QCOMPARE(bench.run(statement).status, 2);
    QCOMPARE(bench.notes.bets, bets);
}

void tst_system_play_playtable::the_last_number_joins_a_table_data()
{
    QTest::addColumn<QVector<int>>("thrown");
    QTest::addColumn<QStringList>("bets");
    // clang-format off
    QTest::newRow("no number")            << QVector<int>{}          << QStringList{};
    QTest::newRow("only a hand change")   << QVector<int>{99}        << QStringList{};
    QTest::newRow("one digit")            << QVector<int>{17, 5}     << QStringList{"PL05 x1"};
    QTest::newRow("zero")                 << QVector<int>{17, 0}     << QStringList{"PL00 x1"};
    QTest::newRow("double zero")          << QVector<int>{17, 37}    << QStringList{"PL37 x1"};
    QTest::newRow("behind a hand change") << QVector<int>{17, 5, 99} << QStringList{"PL05 x1"};
    // clang-format on
}

void tst_system_play_playtable::the_last_number_joins_a_table()
{
    QFETCH(QVector<int>, thrown);
    QFETCH(QStringList, bets);
    statement_bench bench(table_form::american);
    bench.throw_numbers(thrown);
    QCOMPARE(bench.run("SZ PT1(GZ);").status, 2);
    QCOMPARE(bench.bets_of("SZ PT1;"), bets);
    bench.throw_numbers({36}); // the number of that coup stays
    QCOMPARE(bench.bets_of("SZ PT1;"), bets);
}

void tst_system_play_playtable::the_last_entry_of_a_table_decides_data()
{
    QTest::addColumn<QString>("collected");
    QTest::addColumn<QString>("wrong"); // the entry that is told, empty for none
    QTest::addColumn<QStringList>("bets");
    const QStringList both = {"EC01 x1", "EC02 x1"};
    // clang-format off
    QTest::newRow("wrong in the middle") << "SZ PT1(EC01),PT1(XX),PT1(EC02);" << ""     << both;
    QTest::newRow("wrong in front")      << "SZ PT1(XX),PT1(EC01),PT1(EC02);" << ""     << both;
    QTest::newRow("wrong at the end")    << "SZ PT1(EC01),PT1(EC02),PT1(XX);" << "XX"   << both;
    QTest::newRow("form of a jeton")     << "SZ PT1(EC01),PT1(EC02),PT1(EC07);" << "EC07" << both;
    QTest::newRow("lower case")          << "SZ PT1(EC01),PT1(EC02),PT1(ec03);" << "ec03" << both;
    // clang-format on
}

void tst_system_play_playtable::the_last_entry_of_a_table_decides()
{
    QFETCH(QString, collected);
    QFETCH(QString, wrong);
    QFETCH(QStringList, bets);
    statement_bench bench;
    QCOMPARE(bench.run(collected).status, 2);
    const sys_result_info result = bench.run("SZ PT1;");
    QCOMPARE(result.status, wrong.isEmpty() ? 2 : 4);
    const QString error_text = "Jeton Setzung " + wrong + QStringLiteral(" nicht möglich!");
    QCOMPARE(result.error_text, wrong.isEmpty() ? QString() : error_text);
    QCOMPARE(result.mark_text, wrong);
    QCOMPARE(bench.notes.bets, bets);
}

void tst_system_play_playtable::an_entry_is_told_by_its_place()
{
    statement_bench bench;
    bench.run("SZ PT3(EC01),PT3(XX);");
    QCOMPARE(bench.told("PT3(1)"), QStringLiteral("Spieler: 1<br>PT3(1): EC01<br>"));
    QCOMPARE(bench.told("PT3(2)"), QStringLiteral("Spieler: 1<br>PT3(2): XX<br>"));
    QCOMPARE(bench.told("PT3(3)"), QStringLiteral("Spieler: 1<br>PT3(3): --<br>"));
    QCOMPARE(bench.told("PT4(1)"), QStringLiteral("Spieler: 1<br>PT4(1): --<br>"));
}

void tst_system_play_playtable::a_number_is_tested_against_the_round_before_data()
{
    QTest::addColumn<QString>("test");
    QTest::addColumn<bool>("holds");
    // The round before set EC03 (red), GS and PL04; the last numbers were 33, 4, 1.
    // clang-format off
    QTest::newRow("hit by the last number")        << "GZ IN AG(1)"     << true;  // 1 is red
    QTest::newRow("not hit, announcement")         << "GZ IN AG(2)"     << false; // 1 is none of GS
    QTest::newRow("not hit, plein")                << "GZ IN AG(3)"     << false;
    QTest::newRow("number before, not hit")        << "VZ IN AG(1)"     << false; // 4 is black
    QTest::newRow("number before, announcement")   << "VZ IN AG(2)"     << true;
    QTest::newRow("number before, plein")          << "VZ IN AG(3)"     << true;
    QTest::newRow("third number")                  << "V0 IN AG(2)"     << false; // 33 is of KS
    QTest::newRow("inverted, hit")                 << "GZ NOT IN AG(1)" << false;
    QTest::newRow("inverted, not hit")             << "V0 NOT IN AG(1)" << true;  // 33 is black
    QTest::newRow("bet zero")                      << "GZ IN AG(0)"     << false;
    QTest::newRow("one more than there were")      << "GZ IN AG(4)"     << false;
    QTest::newRow("far more than there were")      << "GZ IN AG(999)"   << false;
    QTest::newRow("inverted, bet zero")            << "GZ NOT IN AG(0)" << true;
    QTest::newRow("inverted, more than there were")<< "GZ NOT IN AG(4)" << true;
    QTest::newRow("lower case")                    << "gz in ag(1)"     << true;
    // clang-format on
}

void tst_system_play_playtable::a_number_is_tested_against_the_round_before()
{
    QFETCH(QString, test);
    QFETCH(bool, holds);
    statement_bench bench;
    bench.run("SZ EC03,PT1(GS),PT1;");
    bench.run("SZ PL04;");
    bench.command_line.end_of_round();
    bench.throw_numbers({33, 4, 1});
    const sys_result_info result = bench.run("IF " + test + " THEN SZ CO01(1);");
    QCOMPARE(result.status, 2);
    QCOMPARE(result.check_result, holds);
}

void tst_system_play_playtable::the_running_round_is_not_tested()
{
    statement_bench bench;
    bench.throw_numbers({1});
    bench.run("SZ EC03;");
    QVERIFY(!bench.holds("GZ IN AG(1)"));
    bench.command_line.end_of_round();
    bench.run("SZ EC04;"); // black, in front of the test of the red one
    QVERIFY(bench.holds("GZ IN AG(1)"));
}

void tst_system_play_playtable::a_round_without_bets_leaves_nothing()
{
    statement_bench bench;
    bench.throw_numbers({1});
    bench.run("SZ EC03;");
    bench.command_line.end_of_round();
    bench.command_line.end_of_round();
    QVERIFY(!bench.holds("GZ IN AG(1)"));
}

void tst_system_play_playtable::a_number_that_has_not_fallen_is_no_error_data()
{
    QTest::addColumn<QVector<int>>("thrown");
    QTest::addColumn<QString>("token");
    QTest::newRow("no number at all") << QVector<int>{} << "GZ";
    QTest::newRow("one number too few") << QVector<int>{1} << "VZ";
    QTest::newRow("eleven of twelve") << QVector<int>(11, 1) << "V9";
}

void tst_system_play_playtable::a_number_that_has_not_fallen_is_no_error()
{
    QFETCH(QVector<int>, thrown);
    QFETCH(QString, token);
    statement_bench bench;
    bench.throw_numbers(thrown);
    bench.run("SZ EC03;");
    bench.command_line.end_of_round();
    sys_result_info result = bench.run("IF " + token + " IN AG(1) THEN SZ CO01(1);");
    QCOMPARE(result.status, 2);
    QVERIFY(!result.check_result);
    result = bench.run("IF " + token + " NOT IN AG(1) THEN SZ CO01(1);");
    QCOMPARE(result.status, 2);
    QVERIFY(result.check_result);
}

void tst_system_play_playtable::what_is_no_number_word_is_told_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("error_text");
    // clang-format off
    QTest::newRow("no V")      << "GX" << QStringLiteral("S: Ungültige Überprüfung (kein V): GX !");
    QTest::newRow("no number") << "VX" << QStringLiteral("S: Ungültige Überprüfung (keine Nummer): VX !");
    QTest::newRow("V alone")   << "V"  << QStringLiteral("S: Ungültige Überprüfung (keine Nummer): V !");
    // clang-format on
}

void tst_system_play_playtable::what_is_no_number_word_is_told()
{
    QFETCH(QString, token);
    QFETCH(QString, error_text);
    language_bench bench;
    bench.throw_numbers({1});
    const system_play_argument arguments(bench.environment);
    sys_result_info result;
    arguments.check(result, past_throw(token), 1);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, token);
    QVERIFY(!result.check_result);
}

void tst_system_play_playtable::a_bet_of_the_round_before_is_told_by_its_key()
{
    language_bench bench;
    system_play_argument arguments(bench.environment);
    arguments.add_argument_to_actual_list(jetons::EC01, jetons::NO_EXT_JETON);
    arguments.add_argument_to_actual_list(jetons::NO_JETON, jetons::GS);
    QCOMPARE(arguments.text(1), QStringLiteral("--"));
    arguments.end_of_round();
    QCOMPARE(arguments.text(1), QStringLiteral("EC01"));
    QCOMPARE(arguments.text(2), QStringLiteral("GS"));
    for (const int number : {-1, 0, 3, 7})
        QCOMPARE(arguments.text(number), QStringLiteral("--"));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_playtable>(argc, argv);
}

#include "tst_system_play_playtable.moc"
