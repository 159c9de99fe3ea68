#include "language_bench.h"
#include "test_box.h"

class tst_system_play_message : public QObject
{
    Q_OBJECT

private slots:
    void nothing_is_shown_before_message_on();
    void message_off_ends_the_messages_data();
    void message_off_ends_the_messages();
    void a_restart_switches_messages_off();
    void the_player_is_told();
    void an_argument_adds_its_line_data();
    void an_argument_adds_its_line();
    void arguments_add_their_lines_in_order();
    void throws_are_told_as_far_as_they_fell_data();
    void throws_are_told_as_far_as_they_fell();
    void a_table_tells_position_and_value();
    void a_unit_tells_its_whole_value();
    void a_wrong_argument_is_told_data();
    void a_wrong_argument_is_told();
    void of_several_faults_the_first_is_told();
    void a_message_without_brackets_is_told_data();
    void a_message_without_brackets_is_told();
};

/// The lines of a message of player 1 behind the line with the player.
static QString shown(statement_bench& bench, const QString& statement)
{
    bench.notes.messages.clear();
    bench.run("MESSAGE ON;");
    if (bench.run(statement).status != 2 || bench.notes.messages.size() != 1) return "no message";
    return bench.notes.messages.first().mid(QStringLiteral("Spieler: 1<br>").size());
}

void tst_system_play_message::nothing_is_shown_before_message_on()
{
    statement_bench bench;
    QCOMPARE(bench.run("MESSAGE('x');").status, 2);
    QCOMPARE(bench.run("MESSAGE(AG(0));").status, 2); // faults are not looked for
    QCOMPARE(bench.notes.messages, QStringList());
    bench.run("MESSAGE ON;");
    QCOMPARE(bench.notes.messages, QStringList());
    bench.run("MESSAGE('x');");
    QCOMPARE(bench.notes.messages, QStringList{"Spieler: 1<br><br><b>x</b><br><br>"});
}

void tst_system_play_message::message_off_ends_the_messages_data()
{
    QTest::addColumn<QString>("on");
    QTest::addColumn<QString>("off");
    QTest::newRow("upper case") << "MESSAGE ON;"
                                << "MESSAGE OFF;";
    QTest::newRow("lower case") << "message on;"
                                << "message off;";
    QTest::newRow("no blank") << "MESSAGEON;"
                              << "MESSAGEOFF;";
    QTest::newRow("behind a test") << "IF CO01(0) THEN MESSAGE ON;"
                                   << "IF CO01(0) THEN MESSAGE OFF;";
}

void tst_system_play_message::message_off_ends_the_messages()
{
    QFETCH(QString, on);
    QFETCH(QString, off);
    statement_bench bench;
    QCOMPARE(bench.run_all({on, "MESSAGE('a');"}).status, 2);
    QCOMPARE(bench.notes.messages.size(), 1);
    QCOMPARE(bench.run_all({off, "MESSAGE('b');"}).status, 2);
    QCOMPARE(bench.notes.messages.size(), 1);
}

void tst_system_play_message::a_restart_switches_messages_off()
{
    statement_bench bench;
    bench.run("MESSAGE ON;");
    bench.command_line.rebuild_command_line(true);
    bench.run("MESSAGE('a');");
    QCOMPARE(bench.notes.messages, QStringList());
}

void tst_system_play_message::the_player_is_told()
{
    language_bench bench;
    noting_listener notes;
    noting_receiver receiver;
    play_listener* outward = &notes;
    system_play_command_line line(bench.environment, general_player::PLAYER_4, outward, receiver);
    const statement_reader reader(bench.patterns);
    sys_result_info result;
    line.run_command(result, reader.read("MESSAGEON|"), false);
    line.run_command(result, reader.read("MESSAGE(CO01)|"), false);
    QCOMPARE(notes.messages, QStringList{"Spieler: 4<br>CO01: 0<br>"});
}

void tst_system_play_message::an_argument_adds_its_line_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("line");
    // clang-format off
    QTest::newRow("text")                     << "'Hallo Welt'"   << "<br><b>Hallo Welt</b><br><br>";
    QTest::newRow("text with a bracket")      << "'a)b'"          << "<br><b>a)b</b><br><br>";
    QTest::newRow("empty text")               << "''"             << "<br><b></b><br><br>";
    QTest::newRow("text cut by a comma")      << "'a,b'"          << "<br><b>a</b><br><br>";
    QTest::newRow("last number")              << "GZ"             << "GZ: 37<br>";
    QTest::newRow("last number, lower case")  << "gz"             << "GZ: 37<br>";
    QTest::newRow("number before")            << "VZ"             << "VZ: 5<br>";
    QTest::newRow("third number")             << "V0"             << "V0: 0<br>";
    QTest::newRow("with a blank")             << "V 0"            << "V0: 0<br>";
    QTest::newRow("lower case keeps its case")<< "v0"             << "v0: 0<br>";
    QTest::newRow("number not fallen")        << "V1"             << "V1: --<br>";
    QTest::newRow("counter")                  << "CO07"           << "CO07: 70<br>";
    QTest::newRow("counter, lower case")      << "co07"           << "co07: 70<br>";
    QTest::newRow("unit")                     << "EI3"            << "EI3: 30<br>";
    QTest::newRow("current unit")             << "EIC"            << "EIC: 4<br>";
    QTest::newRow("current, lower case")      << "eic"            << "eic: 4<br>";
    QTest::newRow("table")                    << "ST1"            << "ST1: 1/Wert: 8<br>";
    QTest::newRow("empty table")              << "ST3"            << "ST3: 0/Wert: 0<br>";
    QTest::newRow("previous bet")             << "AG(1)"          << "AG(1): EC01<br>";
    QTest::newRow("previous announcement")    << "AG(2)"          << "AG(2): GS<br>";
    QTest::newRow("previous bet, beyond")     << "AG(7)"          << "AG(7): --<br>";
    QTest::newRow("previous bet, far beyond") << "AG(1000)"       << "AG(1000): --<br>";
    QTest::newRow("range of previous bets")   << "AG(1..3)"       << "AG(1..3): EC01,GS,--<br>";
    QTest::newRow("entry of a play table")    << "PT2(1)"         << "PT2(1): PL05<br>";
    QTest::newRow("entry beyond")             << "PT2(3)"         << "PT2(3): --<br>";
    QTest::newRow("empty play table")         << "PT9(1)"         << "PT9(1): --<br>";
    QTest::newRow("range of a play table")    << "PT2(1..3)"      << "PT2(1..3): PL05,EC06,--<br>";
    QTest::newRow("another letter")           << "XY"             << "";
    QTest::newRow("a digit")                  << "17"             << "";
    QTest::newRow("empty")                    << ""               << "";
    // clang-format on
}

void tst_system_play_message::an_argument_adds_its_line()
{
    QFETCH(QString, argument);
    QFETCH(QString, line);
    statement_bench bench(table_form::american);
    bench.throw_numbers({0, 5, 99, 37});
    bench.run_all({"SZ EC01,PT3(EC02);"});
    bench.run("SZ|GS"); // only by its token on this table
    bench.command_line.end_of_round();
    bench.run_all({"SZ CO07(70),EI3(30),ST1(2,8),EI2(ST1(2)),EI2/2;", "SZ PT2(PL05),PT2(EC06);"});
    QCOMPARE(shown(bench, "MESSAGE(" + argument + ");"), line);
}

void tst_system_play_message::arguments_add_their_lines_in_order()
{
    statement_bench bench;
    bench.throw_numbers({17});
    QCOMPARE(shown(bench, "MESSAGE( 'Stand' , CO01 , GZ , 'Ende' );"),
             QStringLiteral("<br><b>Stand</b><br><br>CO01: 0<br>GZ: 17<br>"
                            "<br><b>Ende</b><br><br>"));
}

void tst_system_play_message::throws_are_told_as_far_as_they_fell_data()
{
    QTest::addColumn<int>("fallen");
    for (const int fallen : {0, 1, 2, 3, 11, 12, 13})
        QTest::newRow(qPrintable(QString::number(fallen) + " numbers")) << fallen;
}

void tst_system_play_message::throws_are_told_as_far_as_they_fell()
{
    QFETCH(int, fallen);
    statement_bench bench;
    for (int number = 1; number <= fallen; ++number)
        bench.throw_numbers({number});
    const QStringList words = {
        "GZ", "VZ", "V0", "V1", "V2", "V3", "V4", "V5", "V6", "V7", "V8", "V9"};
    QString expected;
    for (int back = 0; back < words.size(); ++back) {
        const bool has_fallen = back < fallen;
        expected += words.at(back) + ": " +
                    (has_fallen ? QString::number(fallen - back) : QStringLiteral("--")) + "<br>";
    }
    QCOMPARE(shown(bench, "MESSAGE(" + words.join(',') + ");"), expected);
}

void tst_system_play_message::a_table_tells_position_and_value()
{
    statement_bench bench;
    bench.run("SZ ST9(5,6,7);");
    QCOMPARE(shown(bench, "MESSAGE(ST9);"), QStringLiteral("ST9: 0/Wert: 5<br>"));
    bench.run("SZ EI1(ST9(3));");
    QCOMPARE(shown(bench, "MESSAGE(ST9);"), QStringLiteral("ST9: 2/Wert: 7<br>"));
}

void tst_system_play_message::a_unit_tells_its_whole_value()
{
    statement_bench bench;
    bench.run("SZ EI1(65536),EI1*65536,EI1+5;");
    QCOMPARE(shown(bench, "MESSAGE(EI1,EIC);"), QStringLiteral("EI1: 4294967301<br>EIC: 5<br>"));
}

void tst_system_play_message::a_wrong_argument_is_told_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("error_text");
    const QString form = QStringLiteral("Das Message Argument '%1' wird nicht unterstützt!");
    const QString bet = QStringLiteral("Der Argument Wert muss numerisch und größer als 0 sein!");
    const QString bet_first =
        QStringLiteral("Der Start Argument Wert muss numerisch und größer als 0 sein!");
    const QString bet_last =
        QStringLiteral("Der Ende Argument Wert muss numerisch und größer als 0 sein!");
    const QString bet_order =
        QStringLiteral("Der zweite Argument Wert muss größer sein als der erste Argument Wert!");
    const QString bet_other = QStringLiteral("Die Argument Werte müssen größer als 0 sein!");
    const QString table =
        QStringLiteral("Der Playtabellen Wert muss numerisch und größer als 0 sein!");
    const QString table_first =
        QStringLiteral("Der Start Playtabellen Wert muss numerisch und größer als 0 sein!");
    const QString table_last =
        QStringLiteral("Der Ende Playtabellen Wert muss numerisch und größer als 0 sein!");
    const QString table_order = QStringLiteral(
        "Der zweite Playtabellen Wert muss größer sein als der erste Playtabellen Wert!");
    const QString table_other = QStringLiteral("Die Playtabellen Werte müssen größer als 0 sein!");
    // clang-format off
    QTest::newRow("number word with more")  << "GZX"            << form.arg("GZX");
    QTest::newRow("G alone")                << "G"              << form.arg("G");
    QTest::newRow("two digits behind V")    << "V12"            << form.arg("V12");
    QTest::newRow("letter behind V")        << "VA"             << form.arg("VA");
    QTest::newRow("one digit behind CO")    << "CO1"            << form.arg("CO1");
    QTest::newRow("three digits behind CO") << "CO001"          << form.arg("CO001");
    QTest::newRow("C and no O")             << "CX01"           << form.arg("CX01");
    QTest::newRow("unit without digit")     << "EI"             << form.arg("EI");
    QTest::newRow("unit of two digits")     << "EI12"           << form.arg("EI12");
    QTest::newRow("an even chance")         << "EC01"           << form.arg("EC01");
    QTest::newRow("table zero")             << "ST0"            << form.arg("ST0");
    QTest::newRow("no table")               << "STX"            << form.arg("STX");
    QTest::newRow("AG without brackets")    << "AG1"            << form.arg("AG1");
    QTest::newRow("play table alone")       << "PT1"            << form.arg("PT1");
    QTest::newRow("a plein")                << "PL05"           << form.arg("PL05");
    QTest::newRow("bet 0")                  << "AG(0)"          << bet;
    QTest::newRow("negative bet")           << "AG(-1)"         << bet;
    QTest::newRow("no bet")                 << "AG(x)"          << bet;
    QTest::newRow("nothing in AG")          << "AG()"           << bet;
    QTest::newRow("first bet no number")    << "AG(x..2)"       << bet_first;
    QTest::newRow("neither a number")       << "AG(x..y)"       << bet_first;
    QTest::newRow("no first bet")           << "AG(..2)"        << bet_first;
    QTest::newRow("last bet no number")     << "AG(1..x)"       << bet_last;
    QTest::newRow("no last bet")            << "AG(1..)"        << bet_last;
    QTest::newRow("bets in wrong order")    << "AG(3..1)"       << bet_order;
    QTest::newRow("from bet 0")             << "AG(0..3)"       << bet_other;
    QTest::newRow("the same bet twice")     << "AG(2..2)"       << bet_other;
    QTest::newRow("too far a bet")          << "AG(1..1000)"    << bet_other;
    QTest::newRow("play table 0")           << "PT0(1)"         << table;
    QTest::newRow("play table of 2 digits") << "PT12(1)"        << table;
    QTest::newRow("no play table")          << "PTX(1)"         << table;
    QTest::newRow("range of play table 0")  << "PT0(1..2)"      << table;
    QTest::newRow("entry 0")                << "PT1(0)"         << table;
    QTest::newRow("no entry")               << "PT1(x)"         << table;
    QTest::newRow("first entry no number")  << "PT1(x..2)"      << table_first;
    QTest::newRow("last entry no number")   << "PT1(1..x)"      << table_last;
    QTest::newRow("entries in wrong order") << "PT1(2..1)"      << table_order;
    QTest::newRow("from entry 0")           << "PT1(0..2)"      << table_other;
    QTest::newRow("the same entry twice")   << "PT1(4..4)"      << table_other;
    QTest::newRow("too far an entry")       << "PT1(1..1000000)" << table_other;
    // clang-format on
}

void tst_system_play_message::a_wrong_argument_is_told()
{
    QFETCH(QString, argument);
    QFETCH(QString, error_text);
    statement_bench bench;
    bench.run("MESSAGE ON;");
    const sys_result_info result = bench.run("MESSAGE(CO01," + argument + ",CO02);");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, argument);
    QCOMPARE(bench.notes.messages, QStringList());
}

void tst_system_play_message::of_several_faults_the_first_is_told()
{
    statement_bench bench;
    bench.run("MESSAGE ON;");
    const sys_result_info result = bench.run("MESSAGE(PT1(0),AG(0),GZX);");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text,
             QStringLiteral("Der Playtabellen Wert muss numerisch und größer als 0 sein!"));
    QCOMPARE(result.mark_text, QStringLiteral("PT1(0)"));
}

void tst_system_play_message::a_message_without_brackets_is_told_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("error_text");
    // clang-format off
    QTest::newRow("no opening one")       << "MESSAGE|"           << "'(' wurde nicht gefunden!";
    QTest::newRow("another word")         << "MESSAGE'x')|"       << "'(' wurde nicht gefunden!";
    QTest::newRow("no closing one")       << "MESSAGE('x'|"       << "')' wurde nicht gefunden!";
    QTest::newRow("only an opening one")  << "MESSAGE(|"          << "')' wurde nicht gefunden!";
    QTest::newRow("a bar in the text")    << "MESSAGE('a|b');"    << "')' wurde nicht gefunden!";
    // clang-format on
}

void tst_system_play_message::a_message_without_brackets_is_told()
{
    QFETCH(QString, statement);
    QFETCH(QString, error_text);
    statement_bench bench;
    QCOMPARE(bench.run(statement).status, 2); // messages are off
    bench.run("MESSAGE ON;");
    const sys_result_info result = bench.run(statement);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(bench.notes.messages, QStringList());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_message>(argc, argv);
}

#include "tst_system_play_message.moc"
