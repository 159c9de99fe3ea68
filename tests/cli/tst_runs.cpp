// Whole runs: every folder of tests/runs/ holds systems, numbers and the protocols that were
// worked out for them. A new run is a new folder:
//
//   system.syf         the system of player 1, or system_1.syf to system_4.syf
//   expected.out       its protocol, or expected_1.out to expected_4.out
//   numbers.inp        the numbers, or numbers_1.inp, numbers_2.inp .. one behind the other, or a
//                      collection numbers.snp that names them
//   settings.ini       settings that are not the defaults, if any
//
// The first line of a system is a comment that says what the run proves.

#include "command_settings.h"
#include "headless_game.h"
#include "play_options.h"
#include "run_folder.h"
#include "runner_process.h"
#include "test_box.h"

#include <QCommandLineParser>
#include <QLoggingCategory>

using namespace run_folder;

class tst_runs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void there_are_runs();
    void every_folder_is_complete_data() { add_rows(); }
    void every_folder_is_complete();
    void the_first_difference_is_told_data();
    void the_first_difference_is_told();
    void a_run_that_differs_is_told();
    void every_run_leaves_its_protocols_and_none_touches_the_next_data() { add_rows(); }
    void every_run_leaves_its_protocols_and_none_touches_the_next();

private:
    static void add_rows();
};

namespace
{

/// The options of the command `play` for a run whose folder is the working directory.
QStringList options_of(const QDir& folder)
{
    QStringList options{"play"};
    for (const run_seat& seat : seats_of(folder)) {
        options << "--system" << QStringLiteral("%1:%2").arg(seat.player).arg(seat.system);
        options << "--protocol" << QStringLiteral("%1:%2").arg(seat.player).arg(seat.played);
    }
    for (const QString& file : number_files_of(folder))
        options << "--numbers" << file;
    if (folder.exists("settings.ini"))
        options << "--settings"
                << "settings.ini";
    return options;
}

/// Plays in this process. Returns what is wrong, or an empty text.
QString play(const QStringList& options)
{
    QCommandLineParser parser;
    play_options::declare(parser);
    if (!parser.parse(options)) return parser.errorText();
    play_request request;
    QString fault = play_options::read(parser, request);
    if (!fault.isEmpty()) return fault;

    setting settings;
    fault = command_settings::apply(settings, request.settings_file, request.changed_settings);
    if (!fault.isEmpty()) return fault;
    headless_game game(request, settings);
    fault = game.prepare();
    return fault.isEmpty() ? game.play() : fault;
}

QString line_text(const QList<QByteArray>& lines, int index)
{
    if (index >= lines.size()) return QStringLiteral("(no line)");
    return '"' + QString::fromUtf8(lines.at(index)).replace('\r', "\\r") + '"';
}

/// Tells file, line number and both lines of the first difference; empty if there is none.
QString first_difference(const QString& file, const QByteArray& expected, const QByteArray& actual)
{
    if (expected == actual) return {};
    const QList<QByteArray> wanted = expected.split('\n');
    const QList<QByteArray> got = actual.split('\n');
    int line = 0;
    while (line < wanted.size() && line < got.size() && wanted.at(line) == got.at(line))
        ++line;
    return QStringLiteral("%1, line %2\n  expected: %3\n  actual:   %4")
        .arg(file)
        .arg(line + 1)
        .arg(line_text(wanted, line), line_text(got, line));
}

/// Plays a copy of a folder in a box of its own. Returns the first difference of each protocol,
/// or what went wrong; empty if every byte is as expected.
QString differences_of(const QString& run, const QDir& folder)
{
    const QTemporaryDir box;
    for (const QString& file : folder.entryList(QDir::Files)) {
        if (!QFile::copy(folder.filePath(file), box.filePath(file))) return "cannot copy " + file;
    }
    const entered_folder inside(box.path());
    const QString fault = play(options_of(QDir(box.path())));
    if (!fault.isEmpty()) return run + ": " + fault;
    QStringList told;
    for (const run_seat& seat : seats_of(QDir(box.path()))) {
        told << first_difference(
            run + '/' + seat.expected, read_file(seat.expected), read_file(seat.played));
    }
    told.removeAll(QString());
    return told.join('\n');
}

} // namespace

void tst_runs::add_rows()
{
    QTest::addColumn<QString>("run");
    for (const QString& run : run_names())
        QTest::newRow(qPrintable(run)) << run;
}

void tst_runs::initTestCase()
{
    // Some runs are about what is only logged; it is no part of their protocols.
    QLoggingCategory::setFilterRules("*=false");
}

void tst_runs::there_are_runs()
{
    QVERIFY(run_names().size() >= 20);
}

void tst_runs::every_folder_is_complete()
{
    QFETCH(QString, run);
    const QDir folder = folder_of(run);
    QStringList known{"settings.ini", "numbers.snp"};
    const QStringList numbers = folder.entryList({"numbers*.inp"});
    QVERIFY2(!numbers.isEmpty(), "no numbers");
    known += numbers;
    if (!folder.exists("numbers.snp")) QCOMPARE(number_files_of(folder), numbers);

    const QList<run_seat> seats = seats_of(folder);
    QVERIFY2(!seats.isEmpty(), "no system");
    for (const run_seat& seat : seats) {
        const QByteArray system = read_file(folder.filePath(seat.system));
        QVERIFY2(system.startsWith("// "), "the first line has to say what the run proves");
        QVERIFY2(folder.exists(seat.expected), qPrintable(seat.expected));
        known << seat.system << seat.expected;
    }
    for (const QString& file : folder.entryList(QDir::Files | QDir::Hidden))
        QVERIFY2(known.contains(file), qPrintable("belongs to no player: " + file));
}

void tst_runs::the_first_difference_is_told_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QByteArray>("actual");
    QTest::addColumn<QString>("told");
    const auto row =
        [](const char* name, const char* expected, const char* actual, const QString& told) {
            QTest::newRow(name) << QByteArray(expected) << QByteArray(actual) << told;
        };
    // clang-format off
    row("equal",           "a\nb\n", "a\nb\n",   "");
    row("another line",    "a\nb\n", "a\nc\nd",  "x.out, line 2\n  expected: \"b\"\n  actual:   \"c\"");
    row("a line too few",  "a\nb",   "a",        "x.out, line 2\n  expected: \"b\"\n  actual:   (no line)");
    row("a line too many", "a",      "a\nb",     "x.out, line 2\n  expected: (no line)\n  actual:   \"b\"");
    row("no end of line",  "a\n",    "a",        "x.out, line 2\n  expected: \"\"\n  actual:   (no line)");
    row("blank at an end", "a \nb",  "a\nb",     "x.out, line 1\n  expected: \"a \"\n  actual:   \"a\"");
    row("other line ends", "a\nb",   "a\r\nb",   "x.out, line 1\n  expected: \"a\"\n  actual:   \"a\\r\"");
    // clang-format on
}

void tst_runs::the_first_difference_is_told()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, actual);
    QFETCH(QString, told);
    QCOMPARE(first_difference("x.out", expected, actual), told);
}

void tst_runs::a_run_that_differs_is_told()
{
    const QTemporaryDir box;
    write_file(box.filePath("system.syf"), "// red\nAL: SZ EC03;\n");
    write_file(box.filePath("numbers.inp"), "1\n2\n");
    const QByteArray header = " GZ     Gew/Ver     Gesetzt    Guthaben    system.syf\n"
                              "---------------------------------------  \n"
                              " 01           1           1        2001  numbers.inp\n";
    write_file(box.filePath("expected.out"),
               header + " 02          -1           1        2001  \n");
    QCOMPARE(differences_of("red", QDir(box.path())),
             QString("red/expected.out, line 4\n"
                     "  expected: \" 02          -1           1        2001  \"\n"
                     "  actual:   \" 02          -1           1        2000  \""));

    QFile::remove(box.filePath("numbers.inp"));
    QVERIFY(differences_of("red", QDir(box.path())).startsWith("red: "));
}

// A run, the next one, both again: what a run leaves behind in the process would show.
void tst_runs::every_run_leaves_its_protocols_and_none_touches_the_next()
{
    QFETCH(QString, run);
    const QStringList names = run_names();
    const QString next = names.at((names.indexOf(run) + 1) % names.size());
    for (const QString& played : {run, next, run, next}) {
        const QString told = differences_of(played, folder_of(played));
        QVERIFY2(told.isEmpty(), qPrintable('\n' + told));
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_runs>(argc, argv);
}

#include "tst_runs.moc"
