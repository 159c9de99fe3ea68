// The runner as a user meets it: its answers, its exit status, the files it writes.

#include "plain_martingale.h"
#include "runner_process.h"
#include "test_box.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

class tst_runner_program : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void wrong_use_is_told_with_status_2_data();
    void wrong_use_is_told_with_status_2();
    void help_is_no_error();
    void it_writes_nothing_but_what_is_asked_for();
    void the_settings_file_of_the_folder_is_not_read_by_itself();
    void a_protocol_agrees_with_a_plain_program();
    void a_protocol_is_written_on_at_its_end();
    void a_full_disk_is_told();
    void a_full_disk_is_told_data();
    void standard_output_is_written_to_and_not_replaced();
    void the_trace_tells_bets_and_figures();
    void a_hand_change_has_no_figures();
    void prison_is_told_after_the_coup();
    void bets_of_a_reset_are_not_traced();
    void the_last_turn_stands_in_a_closing_object();
    void the_summary_tells_how_each_system_ended();
    void an_error_of_a_system_is_status_1();
    void the_game_goes_on_behind_an_ended_system();
    void four_systems_play_together();
    void follow_files_and_collections_are_played();
    void a_missing_file_of_a_collection_is_told();
    void start_modes_cut_the_numbers();
    void a_seed_repeats_a_random_run();
    void tokens_prints_every_statement();
    void tokens_tells_errors_with_mark();
    void tokens_tells_a_fault_of_the_reader();
    void bad_files_neither_crash_nor_hang_data();
    void bad_files_neither_crash_nor_hang();
    void every_example_runs_data();
    void every_example_runs();
    void the_runner_needs_no_window_libraries();

private:
    static QList<QJsonObject> trace_of(const QString& path);
    static QJsonObject player_summary(const QString& path, int player);
};

static const QByteArray red_system = "AL: SZ EC03;\n";

void tst_runner_program::init()
{
    write_file("red.syf", red_system);
    write_file("three.inp", "1 2 3\n"); // red, black, red
    for (const char* left : {"run.out", "trace.jsonl", "summary.json"})
        QFile::remove(left);
}

QList<QJsonObject> tst_runner_program::trace_of(const QString& path)
{
    QList<QJsonObject> objects;
    const QList<QByteArray> lines = read_file(path).split('\n');
    for (const QByteArray& line : lines) {
        if (!line.isEmpty()) objects.append(QJsonDocument::fromJson(line).object());
    }
    return objects;
}

QJsonObject tst_runner_program::player_summary(const QString& path, int player)
{
    const QJsonObject all = QJsonDocument::fromJson(read_file(path)).object();
    for (const QJsonValue& each : all.value("players").toArray()) {
        if (each.toObject().value("player").toInt() == player) return each.toObject();
    }
    return {};
}

void tst_runner_program::wrong_use_is_told_with_status_2_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("told");
    const QStringList red = {"play", "--system", "red.syf"};
    // clang-format off
    QTest::newRow("no command")          << QStringList()                                        << "Usage:";
    QTest::newRow("unknown command")     << QStringList{"jouer"}                                 << "unknown command: jouer";
    QTest::newRow("unknown option")      << red + QStringList{"--fast"}                          << "fast";
    QTest::newRow("no system")           << QStringList{"play", "--numbers", "three.inp"}        << "no --system";
    QTest::newRow("no numbers")          << red                                                  << "--numbers or --random";
    QTest::newRow("numbers and random")  << red + QStringList{"--numbers", "three.inp", "--random", "5"} << "--numbers or --random";
    QTest::newRow("missing system")      << QStringList{"play", "--system", "no.syf", "--random", "5"}   << "no.syf: file not found";
    QTest::newRow("missing numbers")     << red + QStringList{"--numbers", "no.inp"}             << "no.inp: file not found";
    QTest::newRow("folder as numbers")   << red + QStringList{"--numbers", "."}                  << ".: is a directory";
    QTest::newRow("folder as system")    << QStringList{"play", "--system", ".", "--random", "5"} << ".: is a directory";
    QTest::newRow("device as numbers")   << red + QStringList{"--numbers", "/dev/null"}           << "/dev/null: is no regular file";
    QTest::newRow("player 5")            << QStringList{"play", "--system", "5:red.syf", "--random", "5"} << "1 to 4";
    QTest::newRow("player twice")        << red + QStringList{"--system", "1:red.syf", "--random", "5"}   << "twice for player 1";
    QTest::newRow("protocol for nobody") << red + QStringList{"--protocol", "2:run.out", "--random", "5"} << "player 2, who has no --system";
    QTest::newRow("unknown key")         << red + QStringList{"--random", "5", "--set", "s_speed=1"}      << "s_speed";
    QTest::newRow("key without value")   << red + QStringList{"--random", "5", "--set", "s_table_form"}   << "KEY=VALUE";
    QTest::newRow("value no number")     << red + QStringList{"--random", "5", "--set", "s_table_form=x"} << "s_table_form";
    QTest::newRow("missing settings")    << red + QStringList{"--random", "5", "--settings", "no.ini"}    << "no.ini: file not found";
    QTest::newRow("bad count")           << red + QStringList{"--random", "many"}                << "--random many";
    QTest::newRow("bad seed")            << red + QStringList{"--random", "5", "--seed", "-1"}   << "--seed -1";
    QTest::newRow("bad start")           << red + QStringList{"--numbers", "three.inp", "--start", "fix"} << "--start fix";
    QTest::newRow("start of random")     << red + QStringList{"--random", "5", "--start", "fix:2"}        << "--start goes with --numbers";
    QTest::newRow("stray argument")      << red + QStringList{"--random", "5", "red.syf"}        << "unexpected argument: red.syf";
    QTest::newRow("protocol in no folder") << red + QStringList{"--random", "5", "--protocol", "no/run.out"} << "no/run.out";
    QTest::newRow("trace in no folder")  << red + QStringList{"--random", "5", "--trace", "no/trace"}     << "no/trace";
    QTest::newRow("summary in no folder") << red + QStringList{"--random", "5", "--summary", "no/sum"}    << "no/sum";
    QTest::newRow("tokens of nothing")   << QStringList{"tokens"}                                << "one system file";
    QTest::newRow("tokens of a missing file") << QStringList{"tokens", "no.syf"}                 << "no.syf: file not found";
    // clang-format on
}

void tst_runner_program::wrong_use_is_told_with_status_2()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, told);
    const runner_answer answer = run_runner(arguments);
    QCOMPARE(answer.status, 2);
    QVERIFY2(answer.errors.contains(told), qPrintable(answer.errors));
}

void tst_runner_program::help_is_no_error()
{
    QCOMPARE(run_runner({"--help"}).status, 0);
    const runner_answer play = run_runner({"play", "--help"});
    QCOMPARE(play.status, 0);
    QVERIFY(play.output.contains("--numbers"));
    QCOMPARE(run_runner({"tokens", "--help"}).status, 0);
}

void tst_runner_program::it_writes_nothing_but_what_is_asked_for()
{
    const QStringList before = QDir().entryList(QDir::AllEntries | QDir::Hidden);
    const runner_answer answer =
        run_runner({"play", "--system", "red.syf", "--numbers", "three.inp", "--quiet"});
    QCOMPARE(answer.status, 0);
    QCOMPARE(answer.output, QString());
    QCOMPARE(answer.errors, QString());
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::Hidden), before);
}

void tst_runner_program::the_settings_file_of_the_folder_is_not_read_by_itself()
{
    write_file("zarvello.ini", "[option]\ns_start_jetons=77\n");
    const QStringList run = {
        "play", "--system", "red.syf", "--numbers", "three.inp", "--summary", "summary.json"};
    QCOMPARE(run_runner(run).status, 0);
    QCOMPARE(player_summary("summary.json", 1).value("start_credit").toInt(), 2000);
    QCOMPARE(run_runner(run + QStringList{"--settings", "zarvello.ini"}).status, 0);
    QCOMPARE(player_summary("summary.json", 1).value("start_credit").toInt(), 77);
    const QStringList over = {"--settings", "zarvello.ini", "--set", "s_start_jetons=5"};
    QCOMPARE(run_runner(run + over).status, 0);
    QCOMPARE(player_summary("summary.json", 1).value("start_credit").toInt(), 5);
    QFile::remove("zarvello.ini");
}

void tst_runner_program::a_protocol_agrees_with_a_plain_program()
{
    constexpr int coups = 20000;
    QByteArray numbers;
    quint32 state = 4711;
    for (int i = 0; i < coups; ++i) {
        state = state * 1664525U + 1013904223U;
        numbers += QByteArray::number((state >> 16) % 37) + '\n';
    }
    write_file("many.inp", numbers);
    write_file("martingale.syf", martingale_system);
    const runner_answer answer = run_runner({"play",
                                             "--system",
                                             "martingale.syf",
                                             "--numbers",
                                             "many.inp",
                                             "--protocol",
                                             "run.out",
                                             "--quiet"});
    QCOMPARE(answer.status, 0);
    plain_martingale("many.inp", "plain.out", "martingale.syf", "many.inp");
    const QByteArray protocol = read_file("run.out");
    QCOMPARE(protocol.count('\n'), coups + 2);
    QCOMPARE(protocol, read_file("plain.out"));
}

void tst_runner_program::a_protocol_is_written_on_at_its_end()
{
    const QStringList run = {"play",
                             "--system",
                             "red.syf",
                             "--numbers",
                             "three.inp",
                             "--protocol",
                             "run.out",
                             "--quiet"};
    QCOMPARE(run_runner(run).status, 0);
    const QByteArray once = read_file("run.out");
    // The first turn bets too: red wins on 1, loses on 2, wins on 3.
    QCOMPARE(once,
             QByteArray(" GZ     Gew/Ver     Gesetzt    Guthaben    red.syf\n"
                        "---------------------------------------  \n"
                        " 01           1           1        2001  three.inp\n"
                        " 02          -1           1        2000  \n"
                        " 03           1           1        2001  \n"));
    QCOMPARE(run_runner(run).status, 0);
    QCOMPARE(read_file("run.out"), once + '\n' + once);
}

void tst_runner_program::a_full_disk_is_told_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("protocol") << "--protocol";
    QTest::newRow("trace") << "--trace";
    QTest::newRow("summary") << "--summary";
}

void tst_runner_program::a_full_disk_is_told()
{
    QFETCH(QString, option);
    if (!QFile::exists("/dev/full")) QSKIP("no device that is always full");
    const runner_answer answer = run_runner(
        {"play", "--system", "red.syf", "--numbers", "three.inp", "--quiet", option, "/dev/full"});
    QCOMPARE(answer.status, 2);
    QVERIFY2(answer.errors.contains("cannot write /dev/full"), qPrintable(answer.errors));
}

void tst_runner_program::standard_output_is_written_to_and_not_replaced()
{
    if (!QFile::exists("/dev/stdout")) QSKIP("no name for standard output");
    write_file("answer.txt", "before\n");
    QProcess runner;
    runner.setStandardOutputFile("answer.txt", QIODevice::Append);
    runner.start(QStringLiteral(ZARVELLO_RUNNER),
                 {"play",
                  "--system",
                  "red.syf",
                  "--numbers",
                  "three.inp",
                  "--quiet",
                  "--trace",
                  "/dev/stdout",
                  "--summary",
                  "/dev/stdout"});
    QVERIFY(runner.waitForFinished());
    QCOMPARE(runner.exitCode(), 0);
    const QByteArray answer = read_file("answer.txt");
    QVERIFY(answer.startsWith("before\n{"));
    QCOMPARE(answer.count("\"number\":"), 4); // three coups and the closing object
    QVERIFY(answer.contains("\"end_credit\": 2001"));
}

void tst_runner_program::the_trace_tells_bets_and_figures()
{
    write_file("two.syf", "ST:\nSZ EI1(3),EC03;\nAL:\nSZ EC03,\nPL05;\nSZ FI00;\n");
    write_file("two.inp", "1 5\n");
    const runner_answer answer = run_runner(
        {"play", "--system", "2:two.syf", "--numbers", "two.inp", "--trace", "trace.jsonl"});
    QCOMPARE(answer.status, 1); // a blank behind the comma: the line does not compile
    QVERIFY(answer.errors.contains("two.syf:4: error:"));

    write_file("two.syf", "ST:\nSZ EI1(3),EC03;\nAL:\nSZ EC03,PL05\n;\nSZ FI00;\n");
    QCOMPARE(
        run_runner(
            {"play", "--system", "2:two.syf", "--numbers", "two.inp", "--trace", "trace.jsonl"})
            .status,
        0);
    const QList<QJsonObject> trace = trace_of("trace.jsonl");
    QCOMPARE(trace.size(), 3);
    QCOMPARE(trace[0],
             (QJsonObject{
                 {"coup", 1},
                 {"number", 1},
                 {"player", 2},
                 {"bets", QJsonArray{QJsonObject{{"jeton", "EC03"}, {"amount", 3}, {"line", 2}}}},
                 {"actions", QJsonArray()},
                 {"messages", QJsonArray()},
                 {"seeded", 3},
                 {"score", 6},
                 {"credit", 2003},
                 {"prison", QJsonArray()}}));
    // Red 5: 3 on red pay 6, 3 on the 5 pay 108, four finals with 3 each are lost.
    QCOMPARE(trace[1],
             (QJsonObject{{"coup", 2},
                          {"number", 5},
                          {"player", 2},
                          {"bets",
                           QJsonArray{QJsonObject{{"jeton", "EC03"}, {"amount", 3}, {"line", 4}},
                                      QJsonObject{{"jeton", "PL05"}, {"amount", 3}, {"line", 4}},
                                      QJsonObject{{"jeton", "FI00"}, {"amount", 3}, {"line", 6}}}},
                          {"actions", QJsonArray()},
                          {"messages", QJsonArray()},
                          {"seeded", 18},
                          {"score", 114},
                          {"credit", 2003 - 18 + 114},
                          {"prison", QJsonArray()}}));
}

void tst_runner_program::a_hand_change_has_no_figures()
{
    write_file("hands.inp", "1\n-\n--\n2\n");
    QCOMPARE(
        run_runner(
            {"play", "--system", "red.syf", "--numbers", "hands.inp", "--trace", "trace.jsonl"})
            .status,
        0);
    const QList<QJsonObject> trace = trace_of("trace.jsonl");
    QCOMPARE(trace.size(), 5);
    const QJsonObject mark = {{"coup", 2}, {"number", 99}, {"player", 1}};
    QCOMPARE(trace[1], mark);
    QCOMPARE(trace[2], mark);
    QCOMPARE(trace[3].value("number").toInt(), 2);
    QCOMPARE(trace[3].value("coup").toInt(), 2);
}

void tst_runner_program::prison_is_told_after_the_coup()
{
    write_file("zeros.inp", "0 0 1 2\n");
    QCOMPARE(
        run_runner(
            {"play", "--system", "red.syf", "--numbers", "zeros.inp", "--trace", "trace.jsonl"})
            .status,
        0);
    const QList<QJsonObject> trace = trace_of("trace.jsonl");
    // 0: the piece goes to prison. 0: it moves to double prison, the next piece to prison.
    // 1, red: the one in prison returns, the one in double prison moves down. 2, black: lost.
    QCOMPARE(trace[0].value("prison").toArray(), QJsonArray{"EC03"});
    QCOMPARE(trace[1].value("prison").toArray(), QJsonArray{"EC03"});
    QCOMPARE(trace[2].value("prison").toArray(), QJsonArray{"EC03"});
    QCOMPARE(trace[2].value("score").toInt(), 2);
    QCOMPARE(trace[3].value("seeded").toInt(), 2); // the piece that came back, and the new one
    QCOMPARE(trace[3].value("prison").toArray(), QJsonArray());
}

void tst_runner_program::bets_of_a_reset_are_not_traced()
{
    write_file("again.syf", "ST: SZ EC03;\nAL: SZ EC04; RESTART;\n");
    QCOMPARE(
        run_runner(
            {"play", "--system", "again.syf", "--numbers", "three.inp", "--trace", "trace.jsonl"})
            .status,
        0);
    const QJsonObject second = trace_of("trace.jsonl").at(1);
    QCOMPARE(second.value("bets").toArray(),
             (QJsonArray{QJsonObject{{"jeton", "EC03"}, {"amount", 1}, {"line", 1}}}));
    QCOMPARE(second.value("actions").toArray(), QJsonArray{QString("SysReset durchgeführt")});
    QCOMPARE(second.value("seeded").toInt(), 1);
}

void tst_runner_program::the_last_turn_stands_in_a_closing_object()
{
    write_file("talk.syf", "ST: MESSAGE ON;\nAL: SZ EC03; MESSAGE('now',GZ);\n");
    QCOMPARE(
        run_runner(
            {"play", "--system", "talk.syf", "--numbers", "three.inp", "--trace", "trace.jsonl"})
            .status,
        0);
    const QList<QJsonObject> trace = trace_of("trace.jsonl");
    QCOMPARE(trace.size(), 4);
    QCOMPARE(trace[1].value("messages").toArray(),
             (QJsonArray{QJsonArray{"Spieler: 1<br>", "<br><b>now</b><br><br>", "GZ: 1<br>"}}));
    QVERIFY(trace[3].value("number").isNull());
    QCOMPARE(trace[3].value("messages").toArray(),
             (QJsonArray{QJsonArray{"Spieler: 1<br>", "<br><b>now</b><br><br>", "GZ: 3<br>"}}));
    QVERIFY(!trace[3].contains("credit"));
}

void tst_runner_program::the_summary_tells_how_each_system_ended()
{
    write_file("limit.syf", "ST: SZ STMAX(C(2),P); SZ EC03;\nAL: SZ EC03;\n");
    write_file("stop.syf", "AL: IF GZ IN PL00 THEN STOP;\nSZ EC03;\n");
    write_file("error.syf", "ST: SZ CO01(0);\nAL:\nSZ ec03;\n");
    write_file("zero_last.inp", "3 0 2 4\n");
    write_file("stop.syf", "ST: SZ EC03;\nAL: IF GZ IN PL00 THEN STOP;\nSZ EC03;\n");
    const runner_answer answer = run_runner({"play",
                                             "--system",
                                             "1:red.syf",
                                             "--system",
                                             "2:limit.syf",
                                             "--system",
                                             "3:stop.syf",
                                             "--system",
                                             "4:error.syf",
                                             "--numbers",
                                             "zero_last.inp",
                                             "--summary",
                                             "summary.json"});
    QCOMPARE(answer.status, 1);
    QCOMPARE(answer.errors, QString("error.syf:3: error: Jeton Setzung ec03 nicht möglich!\n"));
    const auto end_of = [](int player) {
        return player_summary("summary.json", player).value("end").toObject();
    };
    QCOMPARE(end_of(1).value("how").toString(), QString("numbers"));
    QCOMPARE(end_of(2).value("how").toString(), QString("limit"));
    QCOMPARE(end_of(2).value("text").toString(), QString("Grund: Coup Grenze erreicht!"));
    QCOMPARE(end_of(2).value("coup").toInt(), 2);
    QCOMPARE(player_summary("summary.json", 2).value("pauses").toInt(), 1);
    QCOMPARE(end_of(3).value("how").toString(), QString("stop"));
    QCOMPARE(end_of(3).value("line").toInt(), 2);
    QCOMPARE(end_of(4).value("how").toString(), QString("error"));
    QCOMPARE(end_of(4).value("line").toInt(), 3);
    QCOMPARE(end_of(4).value("mark").toString(), QString("ec03"));

    // Red: 3 wins 1, at 0 the piece goes to prison, 2 loses it and the next, 4 loses.
    const QJsonObject red = player_summary("summary.json", 1);
    QCOMPARE(red.value("coups").toInt(), 4);
    QCOMPARE(red.value("start_credit").toInt(), 2000);
    QCOMPARE(red.value("highest_credit").toInt(), 2001);
    QCOMPARE(red.value("end_credit").toInt(), 1998);
    QCOMPARE(red.value("lowest_credit").toInt(), 1998);
    QCOMPARE(red.value("largest_drawdown").toInt(), 3);
    QCOMPARE(red.value("longest_won_run").toInt(), 1);
    QCOMPARE(red.value("longest_lost_run").toInt(), 3);
    QCOMPARE(red.value("sum_set").toInt(), 4);
    QCOMPARE(red.value("sum_returned").toInt(), 2);
}

void tst_runner_program::an_error_of_a_system_is_status_1()
{
    write_file("wrong.syf", "AL:\nSZ EC01 EC02;\n");
    const runner_answer answer =
        run_runner({"play", "--system", "wrong.syf", "--numbers", "three.inp"});
    QCOMPARE(answer.status, 1);
    QVERIFY(answer.errors.contains("wrong.syf:2: error: Schlüsselwörter MAX,MIN oder ; erwartet!"));
}

void tst_runner_program::the_game_goes_on_behind_an_ended_system()
{
    write_file("stop.syf", "ST: SZ EC03;\nAL: STOP;\n");
    QCOMPARE(run_runner({"play",
                         "--system",
                         "stop.syf",
                         "--numbers",
                         "three.inp",
                         "--protocol",
                         "run.out",
                         "--trace",
                         "trace.jsonl"})
                 .status,
             0);
    // Every coup of the game has its line, also those that nobody bets on.
    QVERIFY(read_file("run.out").endsWith(" 01           1           1        2001  three.inp\n"
                                          " 02           0           0        2001  \n"
                                          " 03           0           0        2001  \n"));
    QCOMPARE(trace_of("trace.jsonl").size(), 2); // one coup, and the turn that stopped
}

void tst_runner_program::four_systems_play_together()
{
    QStringList run = {"play", "--numbers", "three.inp"};
    const QStringList systems = {"EC03", "EC04", "PL02", "DZ01"};
    for (int i = 0; i < systems.size(); ++i) {
        const QString file = QString("p%1.syf").arg(i + 1);
        write_file(file, ("AL: SZ " + systems[i] + ";\n").toUtf8());
        QFile::remove(QString("p%1.out").arg(i + 1));
        run += QStringList{"--system", QString("%1:%2").arg(i + 1).arg(file)};
        run += QStringList{"--protocol", QString("%1:p%1.out").arg(i + 1)};
    }
    QCOMPARE(run_runner(run).status, 0);
    const auto last_credit = [](int player) {
        const QList<QByteArray> lines = read_file(QString("p%1.out").arg(player)).split('\n');
        return lines.at(lines.size() - 2).mid(27, 12).trimmed().toInt();
    };
    QCOMPARE(last_credit(1), 2001); // red: +1 -1 +1
    QCOMPARE(last_credit(2), 1999); // black: -1 +1 -1
    QCOMPARE(last_credit(3), 2033); // the 2: -1 +35 -1
    QCOMPARE(last_credit(4), 2006); // first dozen: +2 +2 +2
}

void tst_runner_program::follow_files_and_collections_are_played()
{
    write_file("b.inp", "4\n");
    write_file("all.snp", "// two files\nthree.inp\nb.inp\n");
    QCOMPARE(run_runner({"play",
                         "--system",
                         "red.syf",
                         "--numbers",
                         "all.snp",
                         "--numbers",
                         "b.inp",
                         "--protocol",
                         "run.out"})
                 .status,
             0);
    const QByteArray blanks(41, ' ');
    QVERIFY(read_file("run.out").endsWith(blanks + "// two files\n" +
                                          " 01           1           1        2001  three.inp\n"
                                          " 02          -1           1        2000  \n"
                                          " 03           1           1        2001  \n" +
                                          blanks + "Ende three.inp\n" + blanks + "// two files\n" +
                                          " 04          -1           1        2000  b.inp\n"
                                          " 04          -1           1        1999  \n"));
}

void tst_runner_program::a_missing_file_of_a_collection_is_told()
{
    write_file("holes.snp", "three.inp\nmissing.inp\n");
    const runner_answer answer =
        run_runner({"play", "--system", "red.syf", "--numbers", "holes.snp"});
    QCOMPARE(answer.status, 2);
    QVERIFY2(answer.errors.contains("missing.inp"), qPrintable(answer.errors));
}

void tst_runner_program::start_modes_cut_the_numbers()
{
    write_file("ten.inp", "1 2 3 4 5 6 7 8 9 10\n");
    const auto coups_with = [](const QString& start) {
        if (run_runner({"play",
                        "--system",
                        "red.syf",
                        "--numbers",
                        "ten.inp",
                        "--start",
                        start,
                        "--summary",
                        "summary.json"})
                .status != 0) {
            return -1;
        }
        return QJsonDocument::fromJson(read_file("summary.json")).object().value("coups").toInt();
    };
    QCOMPARE(coups_with("normal"), 10);
    QCOMPARE(coups_with("fix:3"), 7);
    QCOMPARE(coups_with("fix:8"), 5); // at most half of the list is cut
    QCOMPARE(coups_with("random1:4-4"), 7);
    QCOMPARE(coups_with("random1:1-1"), 0); // the whole list goes
    QCOMPARE(coups_with("random2:1,10"), 10);
}

void tst_runner_program::a_seed_repeats_a_random_run()
{
    const auto numbers_of = [](const QStringList& more) {
        run_runner(QStringList{
                       "play", "--system", "red.syf", "--random", "200", "--trace", "trace.jsonl"} +
                   more);
        QVector<int> numbers;
        for (const QJsonObject& coup : trace_of("trace.jsonl")) {
            numbers.append(coup.value("number").toInt());
        }
        return numbers;
    };
    const QVector<int> first = numbers_of({"--seed", "7"});
    QCOMPARE(first.size(), 201);
    QCOMPARE(numbers_of({"--seed", "7"}), first);
    QVERIFY(numbers_of({"--seed", "8"}) != first);
    const QVector<int> american = numbers_of({"--seed", "7", "--set", "s_table_form=1"});
    QVERIFY(american.contains(37));
    QVERIFY(!first.contains(37));
}

void tst_runner_program::tokens_prints_every_statement()
{
    write_file("all.syf",
               "GW: SZ CO01(0);\nVE: SZ EI1 + 1 MAX 100 THEN SZ EC01;\nST: SZ EC02; SZ EC03;\n"
               "AL:\nIF V0 NOT IN EC03 AND IF GZ IN EC03\nTHEN STOP;\nRESTART(F);\n");
    const runner_answer answer = run_runner({"tokens", "all.syf"});
    QCOMPARE(answer.status, 0);
    QCOMPARE(answer.output,
             QString("3\tST\tSZ|EC02\n"
                     "3\tST\tSZ|EC03\n"
                     "5\tAL\tIF|V0|NOTIN|EC03|AND|IF|GZ|IN|EC03|THEN|STOP\n"
                     "7\tAL\tRESTART(F)|\n"
                     "2\tVE\tSZ|EI1+1|MAX|100|THEN|SZ|EC01\n"
                     "1\tGW\tSZ|CO01(0)\n"));
}

void tst_runner_program::tokens_tells_errors_with_mark()
{
    write_file("wrong.syf", "AL:\nSZ EC01;\nSZ EC01 MAX 1234567;\nSZ EC01 EC02;\n");
    const runner_answer answer = run_runner({"tokens", "wrong.syf"});
    QCOMPARE(answer.status, 1);
    QCOMPARE(answer.output,
             QString("2\tAL\tSZ|EC01\n"
                     "3\tAL\terror: Zahl mit max. 6 Stellen erwartet!\t2\t1234567\n"
                     "4\tAL\terror: Schlüsselwörter MAX,MIN oder ; erwartet!\t1\tEC02;\n"));
}

void tst_runner_program::tokens_tells_a_fault_of_the_reader()
{
    write_file("american.syf", "AL:\nSZ PL37;\n");
    const runner_answer french = run_runner({"tokens", "american.syf"});
    QCOMPARE(french.status, 1);
    QCOMPARE(french.output,
             QString("2\t-\terror: Französischer Tisch aktiv - Amerikanische Setzungen "
                     "gefunden!\t2\tPL37\n"));
    const runner_answer american =
        run_runner({"tokens", "american.syf", "--set", "s_table_form=1"});
    QCOMPARE(american.status, 0);
    QCOMPARE(american.output, QString("2\tAL\tSZ|PL37\n"));

    write_file("late.syf", "ST: SZ EC01;\nAL: SZ STMAX(S);\n");
    QCOMPARE(run_runner({"tokens", "late.syf"}).output,
             QString("2\t-\terror: Bedingung STMAX in falscher Sektion gefunden!\t1\t\n"));
}

void tst_runner_program::bad_files_neither_crash_nor_hang_data()
{
    QTest::addColumn<QByteArray>("system");
    QTest::addColumn<QByteArray>("numbers");
    QTest::addColumn<int>("status");
    QByteArray binary;
    for (int i = 0; i < 5000; ++i)
        binary.append(static_cast<char>(i * 7919 >> 3));
    const QByteArray numbers = "1 2 3\n";
    // clang-format off
    QTest::newRow("empty system")        << QByteArray()                         << numbers << 1;
    QTest::newRow("only a keyword")      << QByteArray("ST:")                    << numbers << 0;
    QTest::newRow("binary system")       << binary                               << numbers << 1;
    QTest::newRow("Latin-1 comment")     << QByteArray("// \xe4\xf6\xfc\nAL: SZ EC03;\n") << numbers << 0;
    QTest::newRow("restarts for ever")   << QByteArray("ST: SZ EC03; RESTART;")  << numbers << 0;
    QTest::newRow("restarts fully for ever") << QByteArray("ST: RESTART(F);")    << numbers << 0;
    QTest::newRow("overflow restarts in ST") << QByteArray("ST: SZ STMAX(A); SZ ST1(1); SZ EI1(ST1(2));") << numbers << 0;
    QTest::newRow("division by zero")    << QByteArray("AL: SZ EI1(5); SZ EI1/0,EC03;") << numbers << 0;
    QTest::newRow("units overflow")      << QByteArray("ST: SZ EI1(999999);\nAL: SZ EI1*999999; SZ EI1*999999,PL01;") << numbers << 0;
    QTest::newRow("counters overflow")   << QByteArray("ST: SZ CO01(999999);\nAL: SZ CO01(+CO01),CO01(+CO01),CO01(+CO01);") << numbers << 0;
    QTest::newRow("megabyte of letters") << QByteArray("AL:\nSZ EC03;") + QByteArray(1 << 20, 'x') << numbers << 1;
    QTest::newRow("megabyte of items")   << QByteArray("AL:\nSZ EC03") + QByteArray(",EC03").repeated(150000) + ";\n" << numbers << 0;
    QTest::newRow("empty numbers")       << red_system << QByteArray()           << 0;
    QTest::newRow("binary numbers")      << red_system << binary                 << 0;
    QTest::newRow("only marks")          << red_system << QByteArray("-\n-\n-\n") << 0;
    QTest::newRow("megabyte line")       << red_system << QByteArray("7 ").repeated(1 << 19) << 0;
    QTest::newRow("digits without end")  << red_system << QByteArray(1 << 20, '9') << 0;
    QTest::newRow("bar in a message")    << QByteArray("ST: MESSAGE ON;\nAL: MESSAGE('a|b');") << numbers << 1;
    // clang-format on
}

void tst_runner_program::bad_files_neither_crash_nor_hang()
{
    QFETCH(QByteArray, system);
    QFETCH(QByteArray, numbers);
    QFETCH(int, status);
    write_file("bad.syf", system);
    write_file("bad.inp", numbers);
    const runner_answer answer = run_runner({"play",
                                             "--system",
                                             "bad.syf",
                                             "--numbers",
                                             "bad.inp",
                                             "--protocol",
                                             "run.out",
                                             "--trace",
                                             "trace.jsonl"});
    QCOMPARE(answer.status, status);
    QFile::remove("run.out");
}

void tst_runner_program::every_example_runs_data()
{
    QTest::addColumn<QString>("system");
    const QDir folder(ZARVELLO_SOURCE_DIR "/examples/system");
    const QStringList systems = folder.entryList({"*.syf"});
    QVERIFY(systems.size() >= 8);
    for (const QString& system : systems)
        QTest::newRow(qPrintable(system)) << folder.filePath(system);
}

void tst_runner_program::every_example_runs()
{
    QFETCH(QString, system);
    const QString numbers = ZARVELLO_SOURCE_DIR "/examples/sysin/";
    const bool is_american = system.contains("american");
    const QStringList table = {"--set", is_american ? "s_table_form=1" : "s_table_form=0"};
    const runner_answer tokens = run_runner(QStringList{"tokens", system} + table);
    QCOMPARE(tokens.status, 0);
    const runner_answer answer =
        run_runner(QStringList{"play",
                               "--system",
                               system,
                               "--numbers",
                               numbers + (is_american ? "american_2000.inp" : "french_all.snp"),
                               "--summary",
                               "summary.json"} +
                   table);
    QVERIFY2(answer.status == 0, qPrintable(answer.errors));
    QCOMPARE(player_summary("summary.json", 1).value("coups").toInt(), is_american ? 2000 : 5500);
    QVERIFY(player_summary("summary.json", 1).value("sum_set").toInt() > 0);
}

void tst_runner_program::the_runner_needs_no_window_libraries()
{
    QProcess ldd;
    ldd.start("ldd", {QStringLiteral(ZARVELLO_RUNNER)});
    if (!ldd.waitForFinished() || ldd.exitCode() != 0) QSKIP("no ldd on this machine");
    const QString libraries = QString::fromLocal8Bit(ldd.readAllStandardOutput());
    QVERIFY(libraries.contains("Qt5Core"));
    for (const char* forbidden : {"Qt5Gui", "Qt5Widgets", "qwt"}) {
        QVERIFY2(!libraries.contains(forbidden), forbidden);
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_runner_program>(argc, argv);
}

#include "tst_runner_program.moc"
