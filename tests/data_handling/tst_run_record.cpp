#include "load_file_reader.h"
#include "run_record.h"
#include "test_box.h"

#include <QFile>
#include <QProcess>

#include <csignal>
#include <iostream>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>
#endif

static const QDateTime evening(QDate(2018, 3, 1), QTime(20, 15, 7));
static const QDateTime night(QDate(2018, 3, 1), QTime(23, 4, 0));
static const QString header = "::  Thursday,01.March.2018 20:15:07 - Thursday,01.March.2018 "
                              "23:04:00 Coups : ";

static run_record run_of(const QList<int>& numbers)
{
    run_record run;
    for (const int number : numbers)
        run.add(number, evening);
    run.run_end = night;
    return run;
}

static QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

static void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(path));
    }
}

/// The block of a hundred times the same number from 1 to 9.
static QByteArray block_of_hundred(int number)
{
    const QByteArray item = "0" + QByteArray::number(number);
    const auto line = [&item](int items) { return item + (' ' + item).repeated(items - 1) + '\n'; };
    return header.toLatin1() + "100\n" + line(30) + line(30) + line(30) + line(10) + '\n';
}

/// The block of a run in the year file, byte for byte, and what becomes of it when the file can't
/// be written.
class tst_run_record : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QFile::remove("Stat2018.log"); }

    void a_run_counts_its_entries();
    void a_block_data();
    void a_block();
    void the_file_is_that_of_the_year_of_the_begin();
    void blocks_are_appended();
    void a_torn_file_does_not_swallow_the_next_header();
    void a_run_without_numbers_writes_nothing();
    void an_unwritable_file_data();
    void an_unwritable_file();
    void a_pipe_or_device_takes_no_block_data();
    void a_pipe_or_device_takes_no_block();
    void a_full_disk_leaves_no_part_of_a_block();
    void blocks_of_two_programs_do_not_mix();
    void a_block_is_found_in_its_file_data();
    void a_block_is_found_in_its_file();
    void every_language_reads_its_own_blocks_data();
    void every_language_reads_its_own_blocks();
};

void tst_run_record::a_run_counts_its_entries()
{
    const run_record empty;
    QVERIFY(empty.is_empty());
    QCOMPARE(empty.run_start, QDateTime::fromMSecsSinceEpoch(0));
    QCOMPARE(empty.run_end, QDateTime::fromMSecsSinceEpoch(0));

    run_record run;
    run.add(99, evening);
    run.add(17, evening.addSecs(60));
    run.add(38, evening);
    run.add(-1, evening);
    run.add(37, evening.addSecs(90));
    QCOMPARE(run.run_start, evening);
    QCOMPARE(run.run_coups, qint64(2));
    QCOMPARE(run.run_hand_changes, qint64(1));
    QVERIFY(run.run_numbers == std::vector<quint8>({99, 17, 37}));
}

void tst_run_record::a_block_data()
{
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QString>("block");
    const auto row = [](const char* name, const QList<int>& numbers, const QString& block) {
        QTest::newRow(name) << numbers << block;
    };
    QList<int> thirty;
    for (int number = 1; number <= 30; ++number)
        thirty.append(number);
    const QString line_of_thirty = "01 02 03 04 05 06 07 08 09 10 11 12 13 14 15 16 17 18 19 20 21 "
                                   "22 23 24 25 26 27 28 29 30\n";
    // clang-format off
    row("one number",          {7},                 header + "1\n07\n\n");
    row("two digits",          {7, 23, 36},         header + "3\n07 23 36\n\n");
    row("zero at the begin",   {0, 5},              header + "2\n 0 05\n\n");
    row("zero in the line",    {5, 0, 0, 6},        header + "4\n05  0  0 06\n\n");
    row("double zero",         {37, 1, 37},         header + "3\n00 01 00\n\n");
    row("hand change",         {1, 99, 2},          header + "2\n01 -- 02\n\n");
    row("hand change first",   {99, 2},             header + "1\n-- 02\n\n");
    row("hand change alone",   {99},                header + "0\n--\n\n");
    row("thirty",              thirty,              header + "30\n" + line_of_thirty + '\n');
    row("thirty-one",          thirty + QList<int>{31},
                               header + "31\n" + line_of_thirty + "31\n\n");
    row("zero in a new line",  thirty + QList<int>{0, 4},
                               header + "32\n" + line_of_thirty + " 0 04\n\n");
    row("hand changes count for the line", QList<int>{99} + thirty,
                               header + "30\n-- 01 02 03 04 05 06 07 08 09 10 11 12 13 14 15 16 17 "
                                        "18 19 20 21 22 23 24 25 26 27 28 29\n30\n\n");
    row("empty",               {},                  QString());
    // clang-format on
}

void tst_run_record::a_block()
{
    QFETCH(QList<int>, numbers);
    QFETCH(QString, block);
    const run_record run = run_of(numbers);
    QCOMPARE(format_run_block(run), block);
    QVERIFY(append_to_year_file(run));
    QCOMPARE(content_of("Stat2018.log"), numbers.isEmpty() ? "no file" : block.toLatin1());
}

void tst_run_record::the_file_is_that_of_the_year_of_the_begin()
{
    QCOMPARE(year_file_name(2018), QString("Stat2018.log"));
    QCOMPARE(year_file_name(987), QString("Stat0987.log"));

    run_record run;
    run.add(3, QDateTime(QDate(2018, 12, 31), QTime(23, 59, 58)));
    run.run_end = QDateTime(QDate(2019, 1, 1), QTime(0, 30));
    QVERIFY(append_to_year_file(run));
    QCOMPARE(content_of("Stat2018.log"),
             QByteArray("::  Monday,31.December.2018 23:59:58 - Tuesday,01.January.2019 00:30:00 "
                        "Coups : 1\n03\n\n"));
    QVERIFY(!QFile::exists("Stat2019.log"));
}

void tst_run_record::blocks_are_appended()
{
    QVERIFY(append_to_year_file(run_of({1})));
    QVERIFY(append_to_year_file(run_of({2, 3})));
    QCOMPARE(content_of("Stat2018.log"),
             (header + "1\n01\n\n" + header + "2\n02 03\n\n").toLatin1());
}

void tst_run_record::a_torn_file_does_not_swallow_the_next_header()
{
    put("Stat2018.log", "::  Thursday,01.March.2018\n05 06");
    QVERIFY(append_to_year_file(run_of({1})));
    QCOMPARE(content_of("Stat2018.log"),
             "::  Thursday,01.March.2018\n05 06\n" + (header + "1\n01\n\n").toLatin1());
}

void tst_run_record::a_run_without_numbers_writes_nothing()
{
    QVERIFY(append_to_year_file(run_record()));
    QVERIFY(!QFile::exists("Stat2018.log"));
    QVERIFY(!QFile::exists("Stat1970.log"));
}

void tst_run_record::an_unwritable_file_data()
{
    QTest::addColumn<bool>("is_folder");
    QTest::newRow("a folder has its name") << true;
    QTest::newRow("a disk that is full") << false;
}

void tst_run_record::an_unwritable_file()
{
    QFETCH(bool, is_folder);
    if (is_folder) {
        QVERIFY(QDir().mkdir("Stat2018.log"));
    } else if (!QFile::exists("/dev/full") || !QFile::link("/dev/full", "Stat2018.log")) {
        QSKIP("there is no full device here");
    }
    QVERIFY(!append_to_year_file(run_of({1})));
    QDir().rmdir("Stat2018.log");
}

void tst_run_record::a_pipe_or_device_takes_no_block_data()
{
    QTest::addColumn<QString>("device"); // empty for a pipe
    QTest::newRow("a pipe that nobody reads") << QString();
    QTest::newRow("a device that swallows everything") << "/dev/null";
}

// The one would hold the program up, in the other the block would be lost without a word.
void tst_run_record::a_pipe_or_device_takes_no_block()
{
#ifdef Q_OS_UNIX
    QFETCH(QString, device);
    if (device.isEmpty()) {
        QCOMPARE(mkfifo("Stat2018.log", 0600), 0);
    } else {
        QVERIFY(QFile::link(device, "Stat2018.log"));
    }
    QVERIFY(!append_to_year_file(run_of({1})));
    QVERIFY(!is_in_year_file(run_of({1})));
#else
    QSKIP("has no such files");
#endif
}

// The limit stands for a disk on which 100 bytes are free.
void tst_run_record::a_full_disk_leaves_no_part_of_a_block()
{
#ifdef Q_OS_UNIX
    const QByteArray first = (header + "1\n01\n\n").toLatin1();
    put("Stat2018.log", first);
    rlimit old_limit{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old_limit), 0);
    rlimit limit = old_limit;
    limit.rlim_cur = static_cast<rlim_t>(first.size()) + 100;
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    QList<int> many;
    for (int i = 0; i < 100; ++i)
        many.append(20);
    const bool is_saved = append_to_year_file(run_of(many));
    setrlimit(RLIMIT_FSIZE, &old_limit);
    std::signal(SIGXFSZ, old_handler);
    QVERIFY(!is_saved);
    QCOMPARE(content_of("Stat2018.log"), first);
#else
    QSKIP("needs a limit for the size of files");
#endif
}

// Two processes append forty blocks each, at the same time; see main().
void tst_run_record::blocks_of_two_programs_do_not_mix()
{
    QProcess first;
    QProcess second;
    for (QProcess* process : {&first, &second}) {
        process->setWorkingDirectory(QDir::currentPath());
        process->start(QCoreApplication::applicationFilePath(),
                       {"--append", process == &first ? "1" : "2"});
    }
    QVERIFY(first.waitForFinished(60000));
    QVERIFY(second.waitForFinished(60000));

    QCOMPARE(content_of("Stat2018.log").count("::  "), 80);
    const QByteArray ones = block_of_hundred(1), twos = block_of_hundred(2);
    QByteArray rest = content_of("Stat2018.log");
    for (int block = 0; block < 80; ++block) {
        const bool is_first = rest.startsWith(ones);
        QVERIFY2(is_first || rest.startsWith(twos), rest.left(500).constData());
        rest.remove(0, is_first ? ones.size() : twos.size());
    }
    QCOMPARE(rest, QByteArray());
}

void tst_run_record::a_block_is_found_in_its_file_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QList<int>>("run");
    QTest::addColumn<bool>("is_found");
    const QByteArray begin = "::  Thursday,01.March.2018 20:15:07 - ";
    const QByteArray end = "Thursday,01.March.2018 23:59:59 Coups : 32\n";
    const QByteArray other = "::  Thursday,01.March.2018 20:15:08 - ";
    const QByteArray line = " 0 00 --" + QByteArray(" 20").repeated(27) + "\n";
    QList<int> thirty_one = {0, 37, 99};
    while (thirty_one.size() < 31)
        thirty_one.append(20);
    // clang-format off
    QTest::newRow("no block")          << QByteArray()                                      << QList<int>{1, 2} << false;
    QTest::newRow("the block")         << begin + end + "01 02\n\n"                         << QList<int>{1, 2} << true;
    QTest::newRow("its begin")         << begin + end + "01 02 03\n\n"                      << QList<int>{1, 2} << true;
    QTest::newRow("behind another")    << other + end + "05\n\n" + begin + end + "01 02\n\n"<< QList<int>{1, 2} << true;
    QTest::newRow("of another second") << other + end + "01 02\n\n"                         << QList<int>{1, 2} << false;
    QTest::newRow("other numbers")     << begin + end + "01 03\n\n"                         << QList<int>{1, 2} << false;
    QTest::newRow("a part of it")      << begin + end + "01\n\n"                            << QList<int>{1, 2} << false;
    QTest::newRow("a torn header")     << begin                                             << QList<int>{1, 2} << false;
    QTest::newRow("two with one begin")<< begin + end + "05\n\n" + begin + end + "01 02\n\n"<< QList<int>{1, 2} << true;
    QTest::newRow("two lines")         << begin + end + line + "20 36\n\n"                  << thirty_one       << true;
    QTest::newRow("another 2nd line")  << begin + end + line + "21 36\n\n"                  << thirty_one       << false;
    QTest::newRow("an empty run")      << begin + end + "01 02\n\n"                         << QList<int>{}     << false;
    // clang-format on
}

void tst_run_record::a_block_is_found_in_its_file()
{
    QFETCH(QByteArray, file);
    QFETCH(QList<int>, run);
    put("Stat2018.log", file);
    QTEST(is_in_year_file(run_of(run)), "is_found");
    QVERIFY(run.isEmpty() || append_to_year_file(run_of(run)));
    QCOMPARE(is_in_year_file(run_of(run)), !run.isEmpty());
}

void tst_run_record::every_language_reads_its_own_blocks_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("begin"); // of the header
    // clang-format off
    const struct { const char* language; const char* begin; } rows[] = {
        {"C",          "::  Thursday,01.March.2018 20:15:07 - "},
        {"de_DE.UTF-8","::  Donnerstag,01.März.2018 20:15:07 - "},
        {"fr_FR.UTF-8","::  jeudi,01.mars.2018 20:15:07 - "},
        {"ru_RU.UTF-8","::  четверг,01.марта.2018 20:15:07 - "},
        {"vi_VN.UTF-8","::  Thứ Năm,01.tháng 3.2018 20:15:07 - "},
    };
    // clang-format on
    for (const auto& row : rows)
        QTest::newRow(row.language) << row.language << QString::fromUtf8(row.begin);
}

// The names are those of the process, so it takes one of its own: see main().
void tst_run_record::every_language_reads_its_own_blocks()
{
    QFETCH(QString, language);
    QFETCH(QString, begin);
    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    around.insert("LC_ALL", language);
    QProcess process;
    process.setProcessEnvironment(around);
    process.setWorkingDirectory(QDir::currentPath());
    process.start(QCoreApplication::applicationFilePath(), {"--write-and-read"});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.readAllStandardOutput(), QByteArray("17 0 \n"));
    QVERIFY(QString::fromUtf8(content_of("Stat2018.log")).startsWith(begin));
}

static int append_forty(int number)
{
    QList<int> hundred;
    for (int i = 0; i < 100; ++i)
        hundred.append(number);
    for (int block = 0; block < 40; ++block)
        append_to_year_file(run_of(hundred));
    return 0;
}

/// Saves a run in the language of the environment and tells what a read from its day on yields.
static int write_and_read()
{
    append_to_year_file(run_of({17, 0}));
    reading_rules rules;
    rules.mode = reading_mode::history;
    rules.first_date = evening.date();
    for (const quint8 number : read_load_files({"./Stat2018.log"}, rules).numbers)
        std::cout << int{number} << ' ';
    std::cout << std::endl;
    return 0;
}

int main(int argc, char** argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--write-and-read") == 0) {
        const QCoreApplication application(argc, argv);
        return write_and_read();
    }
    qputenv("LC_ALL", "C"); // the names of days and months
    if (argc > 2 && qstrcmp(argv[1], "--append") == 0) {
        const QCoreApplication application(argc, argv);
        return append_forty(QByteArray(argv[2]).toInt());
    }
    return run_in_own_box<tst_run_record>(argc, argv);
}

#include "tst_run_record.moc"
