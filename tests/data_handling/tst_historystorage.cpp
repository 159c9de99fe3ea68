#include "determine_history_files_and_date.h"
#include "historystorage.h"
#include "numberstorage.h"
#include "setting.h"
#include "test_box.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QSignalSpy>

#include <csignal>
#include <iostream>
#include <memory>

using numbers = QList<int>;

static QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

static QString put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    return path;
}

namespace
{

/// A storage with its own source of numbers and a clock that stands until it is moved.
struct storage_bench {
    storage_bench()
    {
        storage->set_clock([this] { return moment; });
        QObject::connect(storage.get(),
                         &historystorage::load_hist_number,
                         [this](int number, bool update_display) {
                             sent.append(number);
                             shown.append(update_display);
                         });
    }

    void play(const numbers& list) const
    {
        for (const int number : list)
            storage->add_run_number(number);
    }

    load_file_info load(const QStringList& files, const QDate& first_date = QDate(1970, 1, 1))
    {
        sent.clear();
        shown.clear();
        return storage->load_History_to_game(files, first_date);
    }

    QDateTime moment{QDate(2018, 3, 1), QTime(20, 15, 7)};
    setting settings;
    numberStorage source{settings};
    std::unique_ptr<historystorage> storage = std::make_unique<historystorage>(source, settings);
    numbers sent;
    QList<bool> shown;
};

constexpr char play_and_die[] = "--play-and-die";

/// Plays 25 coups in a process of its own that is then killed in the middle of the game.
bool play_in_a_process_that_is_killed()
{
    QProcess process;
    process.setWorkingDirectory(QDir::currentPath());
    process.start(QCoreApplication::applicationFilePath(), {play_and_die});
    process.waitForFinished(60000);
    return process.exitStatus() == QProcess::CrashExit;
}

QStringList drafts()
{
    return QDir().entryList({"Stat_run_*"}, QDir::Files, QDir::Name);
}

const QByteArray saved_draft = "::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 "
                               "20:34:07 Coups : 19\n"
                               "01 02 03 04 05 06 07 08 09 -- 11 12 13 14 15 16 17 18 19 20\n\n";

} // namespace

/// What is recorded of the games, what is saved of it in good and bad times, and what a load reads
/// back and sends.
class tst_historystorage : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void a_run_becomes_a_block();
    void a_game_without_a_number_appends_nothing();
    void two_runs_are_two_blocks();
    void the_run_that_is_shown_stays();
    void switched_off_nothing_is_recorded();
    void load_files_are_recorded_on_demand_data();
    void load_files_are_recorded_on_demand();
    void a_manual_number_in_a_load_run_is_recorded();
    void a_run_that_cannot_be_saved_stays();
    void a_cleared_run_is_gone();

    void the_draft_follows_every_ten_numbers();
    void a_killed_game_is_saved_at_the_next_start();
    void a_draft_whose_run_was_saved_is_no_second_block();
    void a_draft_of_a_living_program_is_left_alone();
    void two_programs_have_two_drafts();
    void a_draft_that_cannot_be_saved_waits();
    void a_failed_save_writes_the_whole_draft();
    void a_damaged_draft_data();
    void a_damaged_draft();
    void a_dead_program_with_our_own_number();
    void switched_off_drafts_wait();

    void a_load_sends_every_entry_once();
    void only_the_last_entry_is_to_be_shown_data();
    void only_the_last_entry_is_to_be_shown();
    void blocks_before_the_first_date_stay_away();
    void several_files_are_one_list();
    void what_was_written_is_partly_lost_on_reading();
    void nothing_to_read_ends_at_once_data();
    void nothing_to_read_ends_at_once();
    void a_file_that_breaks_off_is_read_as_far_as_it_goes();
    void the_total_goes_on_from_load_to_load();
    void oddities_of_the_files_are_passed_on();
    void events_run_every_thousand_numbers();
    void a_second_load_meanwhile_does_nothing();
    void a_broken_off_load_sends_nothing_more();
    void a_storage_may_die_in_the_middle();
    void a_million_numbers();
};

void tst_historystorage::init()
{
    const QStringList files = QDir().entryList(QDir::Files);
    for (const QString& file : files)
        QFile::remove(file);
}

// ---- the run

void tst_historystorage::a_run_becomes_a_block()
{
    storage_bench bench;
    bench.play({99, 17});
    bench.moment = bench.moment.addSecs(60);
    bench.play({0});
    QCOMPARE(bench.storage->run().run_coups, qint64(2));
    QCOMPARE(bench.storage->run().run_hand_changes, qint64(1));
    QVERIFY(bench.storage->save_run());
    QCOMPARE(content_of("Stat2018.log"),
             QByteArray("::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 20:16:07 "
                        "Coups : 2\n-- 17  0\n\n"));
    QVERIFY(bench.storage->run().is_empty());
    QCOMPARE(bench.storage->run().run_start, QDateTime::fromMSecsSinceEpoch(0));
}

void tst_historystorage::a_game_without_a_number_appends_nothing()
{
    storage_bench bench;
    bench.storage->clear_run();
    QVERIFY(bench.storage->save_run());
    QCOMPARE(QDir().entryList(QDir::Files), QStringList());
}

void tst_historystorage::two_runs_are_two_blocks()
{
    storage_bench bench;
    bench.play({1});
    QVERIFY(bench.storage->save_run());
    QVERIFY(bench.storage->save_run()); // what is saved is not saved again
    bench.storage->clear_run();
    bench.play({2});
    QVERIFY(bench.storage->save_run());
    const QByteArray header = "::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 "
                              "20:15:07 Coups : 1\n";
    QCOMPARE(content_of("Stat2018.log"), header + "01\n\n" + header + "02\n\n");
}

void tst_historystorage::the_run_that_is_shown_stays()
{
    storage_bench bench;
    QCOMPARE(bench.storage->format_run_block(), QString());
    bench.play({8});
    bench.moment = bench.moment.addSecs(3);
    const QString block = "::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 20:15:10 "
                          "Coups : 1\n08\n\n";
    QCOMPARE(bench.storage->format_run_block(), block);
    QCOMPARE(bench.storage->format_run_block(), block);
    QCOMPARE(bench.storage->run().run_coups, qint64(1));
}

void tst_historystorage::switched_off_nothing_is_recorded()
{
    storage_bench bench;
    bench.settings.set_s_year_statistic(false);
    bench.play({1, 2});
    QVERIFY(bench.storage->run().is_empty());

    bench.settings.set_s_year_statistic(true);
    bench.play({3});
    bench.settings.set_s_year_statistic(false);
    QVERIFY(bench.storage->save_run());
    QCOMPARE(QDir().entryList(QDir::Files), QStringList());
}

void tst_historystorage::load_files_are_recorded_on_demand_data()
{
    QTest::addColumn<bool>("are_recorded");
    QTest::addColumn<numbers>("run");
    QTest::newRow("off") << false << numbers{};
    QTest::newRow("on") << true << numbers{4, 99, 5};
}

void tst_historystorage::load_files_are_recorded_on_demand()
{
    QFETCH(bool, are_recorded);
    storage_bench bench;
    bench.settings.set_s_add_lofil_throw_to_year_stat(are_recorded);
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = put("table.inp", "4\n-\n5\n");
    bench.source.set_load_files(choice);
    for (int i = 0; i < 3; ++i)
        bench.storage->add_run_number(bench.source.next_number());
    numbers recorded;
    for (const quint8 number : bench.storage->run().run_numbers)
        recorded.append(number);
    QTEST(recorded, "run");
}

void tst_historystorage::a_manual_number_in_a_load_run_is_recorded()
{
    storage_bench bench;
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = put("table.inp", "4\n5\n");
    bench.source.set_load_files(choice);
    bench.storage->add_run_number(bench.source.next_number());
    bench.source.set_manual_number(21);
    bench.storage->add_run_number(bench.source.next_number());
    bench.storage->add_run_number(bench.source.next_number());
    QVERIFY(bench.storage->run().run_numbers == std::vector<quint8>{21});
}

void tst_historystorage::a_run_that_cannot_be_saved_stays()
{
    if (!QFile::exists("/dev/full") || !QFile::link("/dev/full", "Stat2018.log")) {
        QSKIP("there is no full device here");
    }
    storage_bench bench;
    bench.play({1, 99, 2});
    QVERIFY(!bench.storage->save_run());
    QVERIFY(!bench.storage->save_run());
    QCOMPARE(bench.storage->run().run_coups, qint64(2));
    bench.play({3});
    QVERIFY(QFile::remove("Stat2018.log"));
    bench.moment = bench.moment.addSecs(1);
    QVERIFY(bench.storage->save_run());
    QCOMPARE(content_of("Stat2018.log"),
             QByteArray("::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 20:15:08 "
                        "Coups : 3\n01 -- 02 03\n\n"));
    QCOMPARE(drafts(), QStringList());
}

void tst_historystorage::a_cleared_run_is_gone()
{
    storage_bench bench;
    bench.play({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    QVERIFY(!drafts().isEmpty());
    bench.storage->clear_run();
    QVERIFY(bench.storage->run().is_empty());
    QCOMPARE(bench.storage->run().run_coups, qint64(0));
    QCOMPARE(drafts(), QStringList());
    QVERIFY(bench.storage->save_run());
    QVERIFY(!QFile::exists("Stat2018.log"));
}

// ---- drafts

void tst_historystorage::the_draft_follows_every_ten_numbers()
{
    storage_bench bench;
    bench.play({1, 2, 3, 4, 5, 6, 7, 8, 9});
    QCOMPARE(drafts(), QStringList());
    bench.moment = bench.moment.addSecs(60);
    bench.play({99});
    QCOMPARE(content_of("Stat_run_1.draft"),
             QByteArray("2018-03-01T20:15:07\n2018-03-01T20:16:07 1 2 3 4 5 6 7 8 9 99\n"));
    QVERIFY(bench.storage->run_is_in_draft());
    bench.play({0});
    QVERIFY(!bench.storage->run_is_in_draft());
    bench.moment = bench.moment.addSecs(60);
    bench.play({37, 1, 1, 1, 1, 1, 1, 1, 1});
    QCOMPARE(content_of("Stat_run_1.draft"),
             QByteArray("2018-03-01T20:15:07\n2018-03-01T20:16:07 1 2 3 4 5 6 7 8 9 99\n"
                        "2018-03-01T20:17:07 0 37 1 1 1 1 1 1 1 1\n"));
    QCOMPARE(permanence_years(), QStringList());
    QVERIFY(bench.storage->save_run());
    QCOMPARE(drafts(), QStringList());
}

void tst_historystorage::a_killed_game_is_saved_at_the_next_start()
{
#ifndef Q_OS_UNIX
    QSKIP("needs a signal that kills");
#endif
    QVERIFY(play_in_a_process_that_is_killed());
    QVERIFY(drafts().contains("Stat_run_1.draft"));
    QVERIFY(drafts().contains("Stat_run_1.draft.lock"));
    storage_bench bench;
    bench.storage->save_left_runs();
    QCOMPARE(content_of("Stat2018.log"), saved_draft);
    QCOMPARE(drafts(), QStringList());
    QVERIFY(bench.storage->run().is_empty()); // it is no part of the game that follows
}

// The program was killed between the save of the run and the removal of its draft.
void tst_historystorage::a_draft_whose_run_was_saved_is_no_second_block()
{
    QByteArray draft;
    {
        storage_bench killed;
        killed.play({1, 2, 3, 4, 5, 6, 7, 8, 9, 99, 11});
        draft = content_of("Stat_run_1.draft");
        QVERIFY(killed.storage->save_run());
    }
    put("Stat_run_1.draft", draft);
    const QByteArray saved = content_of("Stat2018.log");
    storage_bench next;
    next.storage->save_left_runs();
    QCOMPARE(content_of("Stat2018.log"), saved);
    QCOMPARE(saved.count("::  "), 1);
    QCOMPARE(drafts(), QStringList());
}

void tst_historystorage::a_draft_of_a_living_program_is_left_alone()
{
    storage_bench living;
    living.play({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    const QByteArray draft = content_of("Stat_run_1.draft");
    storage_bench other;
    other.storage->save_left_runs();
    QCOMPARE(content_of("Stat_run_1.draft"), draft);
    QVERIFY(!QFile::exists("Stat2018.log"));
}

void tst_historystorage::two_programs_have_two_drafts()
{
    storage_bench first;
    storage_bench second;
    first.play({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    second.play({11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    QCOMPARE(content_of("Stat_run_2.draft"),
             QByteArray("2018-03-01T20:15:07\n"
                        "2018-03-01T20:15:07 11 12 13 14 15 16 17 18 19 20\n"));
    QVERIFY(first.storage->save_run());
    QCOMPARE(drafts(), QStringList({"Stat_run_2.draft", "Stat_run_2.draft.lock"}));
    QVERIFY(second.storage->save_run());
    QCOMPARE(content_of("Stat2018.log").count("::  "), 2);
    QCOMPARE(drafts(), QStringList());
}

void tst_historystorage::a_draft_that_cannot_be_saved_waits()
{
    const QByteArray draft = "2018-03-01T20:15:07\n2018-03-01T20:16:07 1 2\n";
    put("Stat_run_1.draft", draft);
    QVERIFY(QDir().mkdir("Stat2018.log"));
    {
        storage_bench bench;
        bench.storage->save_left_runs();
        QCOMPARE(content_of("Stat_run_1.draft"), draft);
        // A game meanwhile does not write over it.
        bench.play({1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
        QCOMPARE(content_of("Stat_run_1.draft"), draft);
        QVERIFY(QFile::exists("Stat_run_2.draft"));
    }
    QVERIFY(QDir().rmdir("Stat2018.log"));
    storage_bench next;
    next.storage->save_left_runs();
    QCOMPARE(content_of("Stat2018.log"),
             QByteArray("::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 20:16:07 "
                        "Coups : 2\n01 02\n\n"
                        "::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 20:15:07 "
                        "Coups : 10\n01 01 01 01 01 01 01 01 01 01\n\n"));
    QCOMPARE(drafts(), QStringList());
}

void tst_historystorage::a_failed_save_writes_the_whole_draft()
{
    QVERIFY(QDir().mkdir("Stat2018.log"));
    {
        storage_bench bench;
        bench.play({5, 6});
        bench.moment = bench.moment.addSecs(4);
        QVERIFY(!bench.storage->save_run());
        QVERIFY(bench.storage->run_is_in_draft());
    }
    QVERIFY(QDir().rmdir("Stat2018.log"));
    storage_bench next;
    next.storage->save_left_runs();
    QCOMPARE(content_of("Stat2018.log"),
             QByteArray("::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 20:15:11 "
                        "Coups : 2\n05 06\n\n"));
}

void tst_historystorage::a_damaged_draft_data()
{
    QTest::addColumn<QByteArray>("draft");
    QTest::addColumn<QByteArray>("lines"); // of the block, empty for none
    const QByteArray begin = "2018-03-01T20:15:07\n2018-03-01T20:16:07 1 2\n";
    // clang-format off
    QTest::newRow("empty")             << QByteArray()                             << QByteArray();
    QTest::newRow("half a begin")      << QByteArray("2018-03-01T2")               << QByteArray();
    QTest::newRow("no begin")          << QByteArray("hello\n5 6\n")               << QByteArray();
    QTest::newRow("no numbers")        << QByteArray("2018-03-01T20:15:07\n")      << QByteArray();
    QTest::newRow("half a line")       << begin + "2018-03-01T20:17:07 3 4"        << QByteArray("01 02\n\n");
    QTest::newRow("a line of nothing") << begin + "\n2018-03-01T20:17:07 3\n"      << QByteArray("01 02\n\n");
    QTest::newRow("a bad time")        << begin + "2018-99-01T20:17:07 3\n"        << QByteArray("01 02\n\n");
    QTest::newRow("a word")            << begin + "2018-03-01T20:17:07 x\n"        << QByteArray("01 02\n\n");
    QTest::newRow("a number too high") << begin + "2018-03-01T20:17:07 38\n"       << QByteArray("01 02\n\n");
    QTest::newRow("zeros of a disk")   << begin + QByteArray(5000, '\0')           << QByteArray("01 02\n\n");
    // clang-format on
}

void tst_historystorage::a_damaged_draft()
{
    QFETCH(QByteArray, draft);
    QFETCH(QByteArray, lines);
    put("Stat_run_7.draft", draft);
    storage_bench bench;
    bench.storage->save_left_runs();
    const QByteArray block = "::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 "
                             "20:16:07 Coups : 2\n";
    QCOMPARE(content_of("Stat2018.log"), lines.isEmpty() ? "no file" : block + lines);
    QCOMPARE(drafts(), QStringList());
}

// The lock tells our own process number, as it can in a container, and nobody holds it.
void tst_historystorage::a_dead_program_with_our_own_number()
{
#ifndef Q_OS_UNIX
    QSKIP("the lock of a dead program is taken by its file there");
#endif
    put("Stat_run_1.draft", "2018-03-01T20:15:07\n2018-03-01T20:16:07 1 2\n");
    QByteArray lock;
    {
        QLockFile own("own.lock");
        QVERIFY(own.lock());
        lock = content_of("own.lock");
    }
    put("Stat_run_1.draft.lock", lock);
    storage_bench bench;
    bench.storage->save_left_runs();
    QVERIFY(content_of("Stat2018.log").endsWith("01 02\n\n"));
    QCOMPARE(drafts(), QStringList());
}

void tst_historystorage::switched_off_drafts_wait()
{
    put("Stat_run_1.draft", "2018-03-01T20:15:07\n2018-03-01T20:16:07 1 2\n");
    storage_bench bench;
    bench.settings.set_s_year_statistic(false);
    bench.storage->save_left_runs();
    QVERIFY(QFile::exists("Stat_run_1.draft"));
    QVERIFY(!QFile::exists("Stat2018.log"));
}

// ---- history

static QByteArray block_of(const QDate& day, const QByteArray& lines)
{
    return "::  " + QDateTime(day, QTime(20, 0)).toString("dddd,dd.MMMM.yyyy hh:mm:ss").toLatin1() +
           " - x Coups : 1\n" + lines + "\n";
}

void tst_historystorage::a_load_sends_every_entry_once()
{
    storage_bench bench;
    QSignalSpy totals(bench.storage.get(), &historystorage::dis_history_stat_counter);
    QSignalSpy lasts(bench.storage.get(), &historystorage::history_set_throw);
    QSignalSpy ends(bench.storage.get(), &historystorage::info_if_history_load_is_finish);
    put("Stat2018.log", block_of({2018, 3, 1}, " 0 17\n--\n36 05\n"));
    const load_file_info info = bench.load({"./Stat2018.log"});
    QCOMPARE(bench.sent, (numbers{0, 17, 99, 36, 5}));
    QCOMPARE(bench.shown, (QList<bool>{false, false, false, false, true}));
    QCOMPARE(info.numbers, 4);
    QCOMPARE(info.hand_changes, 1);
    QCOMPARE(totals, (QList<QVariantList>{{5}}));
    QCOMPARE(lasts, (QList<QVariantList>{{5}}));
    QCOMPARE(ends.count(), 0);
    QVERIFY(!bench.storage->ends_on_hand_change());
    QVERIFY(bench.storage->run().is_empty()); // never recorded
}

void tst_historystorage::only_the_last_entry_is_to_be_shown_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<bool>("ends_on_mark");
    QTest::newRow("a number") << QByteArray("--\n01 02\n") << false;
    QTest::newRow("a hand change") << QByteArray("01 02\n--\n") << true;
}

void tst_historystorage::only_the_last_entry_is_to_be_shown()
{
    QFETCH(QByteArray, lines);
    QFETCH(bool, ends_on_mark);
    storage_bench bench;
    put("Stat2018.log", block_of({2018, 3, 1}, lines));
    bench.load({"./Stat2018.log"});
    QCOMPARE(bench.shown, (QList<bool>{false, false, true}));
    QCOMPARE(bench.sent.last() == 99, ends_on_mark);
    QCOMPARE(bench.storage->ends_on_hand_change(), ends_on_mark);
}

void tst_historystorage::blocks_before_the_first_date_stay_away()
{
    storage_bench bench;
    put("Stat2018.log", block_of({2018, 3, 1}, "01\n") + block_of({2018, 3, 3}, "02\n"));
    bench.load({"./Stat2018.log"}, QDate(2018, 3, 2));
    QCOMPARE(bench.sent, numbers{2});
    bench.load({"./Stat2018.log"}, QDate(2018, 3, 1));
    QCOMPARE(bench.sent, (numbers{1, 2}));
    // A header of another language has no date and hides its block, also without a limit.
    put("other.log", "::  Lundi,01.Brumaire.2018 20:00:00 - x\n07\n\n");
    bench.load({"other.log"}, QDate(1970, 1, 1));
    QCOMPARE(bench.sent, numbers{});
}

void tst_historystorage::several_files_are_one_list()
{
    storage_bench bench;
    put("Stat2017.log", block_of({2017, 12, 30}, "01\n"));
    put("Stat2018.log", block_of({2018, 1, 2}, "02\n"));
    const load_file_info info = bench.load({"./Stat2017.log", "./Stat2018.log"});
    QCOMPARE(bench.sent, (numbers{1, 2}));
    QCOMPARE(bench.shown, (QList<bool>{false, true}));
    QCOMPARE(info.file_name, QString("./Stat2018.log"));
}

// A mark in the line is dropped; behind a mark at its begin the rest of the line is.
void tst_historystorage::what_was_written_is_partly_lost_on_reading()
{
    storage_bench bench;
    numbers run = {1, 99, 2};
    while (run.size() < 30)
        run.append(3);
    run += numbers{99, 4, 5};
    bench.play(run);
    QVERIFY(bench.storage->save_run());
    bench.load({"./Stat2018.log"});
    numbers expected = {1, 2};
    while (expected.size() < 29)
        expected.append(3);
    expected.append(99);
    QCOMPARE(bench.sent, expected);
}

void tst_historystorage::nothing_to_read_ends_at_once_data()
{
    QTest::addColumn<QStringList>("files");
    put("empty.log", "");
    put("text.log", "no numbers\nat all\n");
    QTest::newRow("no file chosen") << QStringList();
    QTest::newRow("no such file") << QStringList{"Stat1999.log"};
    QTest::newRow("no path") << QStringList{QString()};
    QTest::newRow("a folder") << QStringList{"."};
    QTest::newRow("empty") << QStringList{"empty.log"};
    QTest::newRow("text") << QStringList{"text.log"};
}

void tst_historystorage::nothing_to_read_ends_at_once()
{
    QFETCH(QStringList, files);
    put("empty.log", "");
    put("text.log", "no numbers\nat all\n");
    storage_bench bench;
    QSignalSpy totals(bench.storage.get(), &historystorage::dis_history_stat_counter);
    QSignalSpy lasts(bench.storage.get(), &historystorage::history_set_throw);
    QSignalSpy ends(bench.storage.get(), &historystorage::info_if_history_load_is_finish);
    QCOMPARE(bench.load(files).numbers, 0);
    QCOMPARE(bench.sent, numbers{});
    QCOMPARE(ends.count(), 1);
    QCOMPARE(totals, (QList<QVariantList>{{0}}));
    QCOMPARE(lasts.count(), 0);
    QVERIFY(!bench.storage->ends_on_hand_change());
}

void tst_historystorage::a_file_that_breaks_off_is_read_as_far_as_it_goes()
{
    storage_bench bench;
    put("Stat2018.log",
        block_of({2018, 3, 1}, "01 02\n") + "::  Friday,02.March.2018 20:00:00 - "
                                            "Friday,02.March.2018 21:00:00 Coups : "
                                            "40\n03 04 1");
    bench.load({"./Stat2018.log"});
    QCOMPARE(bench.sent, (numbers{1, 2, 3, 4, 1}));
}

void tst_historystorage::the_total_goes_on_from_load_to_load()
{
    storage_bench bench;
    QSignalSpy totals(bench.storage.get(), &historystorage::dis_history_stat_counter);
    put("a.inp", "1 2\n-\n");
    bench.load({"a.inp"});
    bench.load({"a.inp"});
    bench.storage->forget_history_total();
    bench.load({"a.inp"});
    QCOMPARE(totals, (QList<QVariantList>{{3}, {6}, {3}}));
}

void tst_historystorage::oddities_of_the_files_are_passed_on()
{
    storage_bench bench;
    QSignalSpy illegal(bench.storage.get(), &historystorage::load_file_illegal_number_found);
    QSignalSpy zeros(bench.storage.get(), &historystorage::load_file_warning_00_on_franz_table);
    QTest::ignoreMessage(QtDebugMsg, "illegal number found 41");
    put("a.inp", "1 41 00\n");
    bench.load({"a.inp"});
    QCOMPARE(bench.sent, (numbers{1, 0}));
    QCOMPARE(illegal, (QList<QVariantList>{{41}}));
    QCOMPARE(zeros, (QList<QVariantList>{{true}}));
}

static QByteArray lines_of_thirty(int count)
{
    QByteArray line;
    for (int i = 0; i < 30; ++i)
        line += i == 0 ? "17" : " 17";
    return (line + '\n').repeated(count);
}

// Of 3510 numbers 3000, 2000 and 1000 are left behind 510, 1510 and 2510.
void tst_historystorage::events_run_every_thousand_numbers()
{
    storage_bench bench;
    numbers looks;
    bool is_posted = false;
    connect(bench.storage.get(), &historystorage::load_hist_number, this, [&] {
        if (is_posted) return;
        is_posted = true;
        QMetaObject::invokeMethod(
            this,
            [&] {
                looks.append(bench.sent.size());
                is_posted = false;
            },
            Qt::QueuedConnection);
    });
    put("a.inp", lines_of_thirty(117));
    bench.load({"a.inp"});
    QCOMPARE(looks, (numbers{510, 1510, 2510}));
    QCoreApplication::sendPostedEvents(this);
}

void tst_historystorage::a_second_load_meanwhile_does_nothing()
{
    storage_bench bench;
    put("a.inp", lines_of_thirty(50));
    put("b.inp", "5\n");
    bool was_loading = false;
    QMetaObject::invokeMethod(
        this,
        [&] {
            was_loading = bench.storage->is_loading();
            QCOMPARE(bench.storage->load_History_to_game({"b.inp"}, {}).numbers, 0);
        },
        Qt::QueuedConnection);
    QCOMPARE(bench.load({"a.inp"}).numbers, 1500);
    QVERIFY(was_loading);
    QCOMPARE(bench.sent.size(), 1500);
    QVERIFY(!bench.storage->is_loading());
}

void tst_historystorage::a_broken_off_load_sends_nothing_more()
{
    storage_bench bench;
    QSignalSpy lasts(bench.storage.get(), &historystorage::history_set_throw);
    put("a.inp", lines_of_thirty(50));
    QMetaObject::invokeMethod(
        this, [&] { bench.storage->break_off_load(); }, Qt::QueuedConnection);
    bench.load({"a.inp"});
    QCOMPARE(bench.sent.size(), 500); // the events run with 1000 left
    QCOMPARE(lasts.count(), 0);
    bench.load({"a.inp"}); // the next one is a load like any other
    QCOMPARE(bench.sent.size(), 1500);
}

void tst_historystorage::a_storage_may_die_in_the_middle()
{
    storage_bench bench;
    put("a.inp", lines_of_thirty(101));
    QMetaObject::invokeMethod(
        this, [&] { bench.storage.reset(); }, Qt::QueuedConnection);
    QCOMPARE(bench.storage->load_History_to_game({"a.inp"}, QDate(1970, 1, 1)).numbers, 3030);
    QVERIFY(!bench.storage);
    QCOMPARE(bench.sent.size(), 30); // the events run with 3000 left
}

// The limit is generous; it is there to notice a load whose costs grow with the square.
void tst_historystorage::a_million_numbers()
{
    storage_bench bench;
    QElapsedTimer clock;
    put("a.inp", lines_of_thirty(33334));
    clock.start();
    QCOMPARE(bench.load({"a.inp"}).numbers, 1000020);
    QCOMPARE(bench.sent.size(), 1000020);
    QVERIFY2(clock.elapsed() < 30000, qPrintable(QString::number(clock.elapsed())));
}

#ifdef Q_OS_UNIX
static int play_and_be_killed()
{
    const storage_bench bench;
    QDateTime moment = bench.moment;
    bench.storage->set_clock([&moment] { return moment; });
    for (int number = 1; number <= 25; ++number) {
        bench.storage->add_run_number(number == 10 ? 99 : number);
        moment = moment.addSecs(60);
    }
    raise(SIGKILL);
    return 0;
}
#endif

int main(int argc, char** argv)
{
    qputenv("LC_ALL", "C"); // the names of days and months
#ifdef Q_OS_UNIX
    if (argc > 1 && qstrcmp(argv[1], play_and_die) == 0) {
        const QCoreApplication application(argc, argv);
        return play_and_be_killed();
    }
#endif
    return run_in_own_box<tst_historystorage>(argc, argv);
}

#include "tst_historystorage.moc"
