// The examples of the guide and of the page about the runner do what the pages say. The pages of
// the language have a test of their own.
//
// A block ```syf is a system file; behind its fence stands what is known of it:
//
//   name="x.syf"       the file is kept under this name for the other blocks of the page
//   numbers="1 2"      the numbers played, or file="french_5000.inp" for a file of the examples
//   credit="2001 2000" the credits behind the last coups
//   end="text"         why the system was stopped
//   error="text"       the error that the check tells; the file is not played then
//   warnings="text"    the warning of the check; without it there must be none
//
// A block ```protocol is the protocol that the system in front of it leaves, or its beginning. A
// block ```run holds command lines of the runner behind '$', each with what it prints and, if it is
// not 0, the exit status in brackets.

#include "headless_game.h"
#include "manual_source.h"
#include "play_options.h"
#include "runner_process.h"
#include "system_check.h"
#include "test_box.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

class tst_help_examples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void false_claims_are_told_data();
    void false_claims_are_told();
    void false_output_is_told();
    void there_are_examples_data() { add_pages(); }
    void there_are_examples();
    void systems_do_what_is_told_data() { add_pages(); }
    void systems_do_what_is_told();
    void commands_print_what_is_shown_data();
    void commands_print_what_is_shown();
    void both_languages_show_the_same();

private:
    static void add_pages();
};

namespace
{

const QDir help_sources(QStringLiteral(ZARVELLO_SOURCE_DIR "/help"));
constexpr auto pages_with_examples = {"first_system", "runner"};

QVector<manual::block> blocks_of(const QString& folder, const QString& page)
{
    return manual::parts_of(manual::read_text(help_sources.filePath(folder + '/' + page + ".md")))
        .blocks;
}

void copy_files(const QString& from, const QString& to)
{
    QVERIFY(QDir().mkpath(to));
    const QDir folder(from);
    for (const QString& file : folder.entryList(QDir::Files)) {
        if (!QFile::exists(to + '/' + file))
            QVERIFY(QFile::copy(folder.filePath(file), to + '/' + file));
    }
}

QString without_end_blanks(QString line)
{
    while (line.endsWith(' '))
        line.chop(1);
    return line;
}

/// What is said of a system, and what it did.
struct outcome {
    QStringList errors;   // of the check
    QStringList warnings; // of the check
    QStringList credits;  // behind each coup
    QString end;          // empty if the numbers ended
    QString fault;        // of the run itself
};

void play(const QStringList& options, outcome& result)
{
    QCommandLineParser parser;
    play_options::declare(parser);
    parser.parse(options);
    play_request request;
    result.fault = play_options::read(parser, request);
    if (!result.fault.isEmpty()) return;
    setting settings;
    headless_game game(request, settings);
    result.fault = game.prepare();
    if (result.fault.isEmpty()) result.fault = game.play();
    if (!result.fault.isEmpty()) return;
    const run_figures& figures = *game.figures_of(general_player::PLAYER_1);
    if (figures.end != run_end::numbers) result.end = figures.end_info.error_text;
}

QStringList credits_of_trace()
{
    QStringList credits;
    for (const QByteArray& line : read_file("trace.json").split('\n')) {
        const QJsonObject coup = QJsonDocument::fromJson(line).object();
        if (!coup.contains("credit")) continue;
        credits.append(QString::number(coup.value("credit").toInt()));
    }
    return credits;
}

outcome outcome_of(const manual::block& example)
{
    outcome result;
    for (const system_finding& finding : check_system_text(example.text, system_pattern(0))) {
        const bool is_error = finding.severity == system_finding::kind::error;
        (is_error ? result.errors : result.warnings).append(finding.text);
    }
    if (!result.errors.isEmpty()) return result;

    const QString name = example.has_option("name") ? example.option("name") : "system.syf";
    write_file(name, example.text.toUtf8());
    write_file("numbers.inp", example.option("numbers").toUtf8() + '\n');
    const QString numbers =
        example.has_option("file") ? "sysin/" + example.option("file") : "numbers.inp";
    QFile::remove("system.out");
    play({"play",
          "--system",
          name,
          "--numbers",
          numbers,
          "--protocol",
          "system.out",
          "--trace",
          "trace.json"},
         result);
    result.credits = credits_of_trace();
    return result;
}

/// The first false claim of an example; empty if all hold.
QString false_claim(const manual::block& example)
{
    const outcome real = outcome_of(example);
    if (real.errors.value(0) != example.option("error")) return "error: " + real.errors.join(", ");
    if (real.warnings.value(0) != example.option("warnings"))
        return "warnings: " + real.warnings.join(", ");
    if (!real.fault.isEmpty()) return real.fault;
    if (real.end != example.option("end")) return "end: " + real.end;
    const QStringList told = example.option("credit").split(' ', Qt::SkipEmptyParts);
    if (told.isEmpty() && real.errors.isEmpty()) return "nothing is told of its credit";
    const QStringList last = real.credits.mid(qMax(0, real.credits.size() - told.size()));
    return last == told ? QString() : "credit: " + last.join(' ');
}

/// The first line of a protocol that is not in the file written; empty if it begins with all.
QString false_line(const manual::block& protocol)
{
    const QStringList written = QString::fromUtf8(read_file("system.out")).split('\n');
    const QStringList told = protocol.text.split('\n', Qt::SkipEmptyParts);
    for (int i = 0; i < told.size(); ++i) {
        if (without_end_blanks(written.value(i)) != told.at(i)) return written.value(i);
    }
    return {};
}

/// Runs the commands of a block; returns what they print, in the form of the block.
QString printed_by(const manual::block& commands)
{
    QString printed;
    for (const QString& line : commands.text.split('\n')) {
        if (!line.startsWith("$ ")) continue;
        const QStringList words = line.mid(2).split(' ');
        if (words.first() != "zarvello-cli") return "not a command: " + line;
        const runner_answer answer = run_runner(words.mid(1));
        printed += line + '\n' + answer.errors + answer.output;
        if (answer.status != 0) printed += QString("[%1]\n").arg(answer.status);
    }
    return printed;
}

} // namespace

void tst_help_examples::initTestCase()
{
    QLoggingCategory::setFilterRules("*=false");
    copy_files(ZARVELLO_SOURCE_DIR "/examples/sysin", "sysin");
    copy_files(ZARVELLO_SOURCE_DIR "/examples/system", "system");
}

void tst_help_examples::add_pages()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("page");
    for (const char* folder : {"de", "en"}) {
        for (const char* page : pages_with_examples)
            QTest::addRow("%s/%s", folder, page) << folder << page;
    }
}

void tst_help_examples::false_claims_are_told_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("told");

    // Red: one piece. 1 is red, 2 black.
    const QString red = "AL:\nSZ EC03;\n";
    QTest::newRow("true") << "numbers=\"1 2\" credit=\"2001 2000\"" << red << "";
    QTest::newRow("last credit only") << "numbers=\"1 2\" credit=\"2000\"" << red << "";
    QTest::newRow("false credit") << "numbers=\"1 2\" credit=\"2001 1999\"" << red
                                  << "credit: 2001 2000";
    QTest::newRow("a coup too many")
        << "numbers=\"1\" credit=\"2000 2001\"" << red << "credit: 2001";
    QTest::newRow("nothing told") << "numbers=\"1\"" << red << "nothing is told of its credit";
    QTest::newRow("no error") << "error=\"Syntax Fehler!\"" << red << "error: ";
    QTest::newRow("error") << "numbers=\"1\" credit=\"2001\""
                           << "AL:\nSZ EC07;\n"
                           << "error: Syntax Fehler!";
    QTest::newRow("warning") << "numbers=\"1\" credit=\"2001\""
                             << "AL:\nSZ EC03,;\n"
                             << "warnings: Die Aufzählung endet mit einem Komma!";
    QTest::newRow("stopped") << "numbers=\"1 2\" credit=\"2001 2001\""
                             << "ST:\nSZ STMAX(G(1));\nSZ EC03;\nAL:\nSZ EC03;\n"
                             << "end: Grund: Gewinn Grenze erreicht!";
}

void tst_help_examples::false_claims_are_told()
{
    QFETCH(QString, options);
    QFETCH(QString, text);
    QFETCH(QString, told);
    manual::block block;
    block.options = options;
    block.text = text;
    QCOMPARE(false_claim(block), told);
}

void tst_help_examples::false_output_is_told()
{
    manual::block system;
    system.options = "name=\"red.syf\" numbers=\"1\" credit=\"2001\"";
    system.text = "AL:\nSZ EC03;\n";
    QVERIFY(false_claim(system).isEmpty());
    manual::block protocol;
    const QString head = " GZ     Gew/Ver     Gesetzt    Guthaben    red.syf\n"
                         "---------------------------------------\n";
    protocol.text = head + " 01           1           1        2001  numbers.inp\n";
    QVERIFY2(false_line(protocol).isEmpty(), qPrintable(false_line(protocol)));
    protocol.text = head + " 01           1           1        2002  numbers.inp\n";
    QCOMPARE(false_line(protocol), QString(" 01           1           1        2001  numbers.inp"));

    manual::block commands;
    commands.text = "$ zarvello-cli check missing.syf\nnothing\n";
    QCOMPARE(printed_by(commands),
             QString("$ zarvello-cli check missing.syf\n"
                     "zarvello-cli: missing.syf: file not found\n[2]\n"));
}

void tst_help_examples::there_are_examples()
{
    QFETCH(QString, folder);
    QFETCH(QString, page);
    const QVector<manual::block> blocks = blocks_of(folder, page);
    const auto count = [&](const char* kind) {
        return std::count_if(blocks.cbegin(), blocks.cend(), [&](const manual::block& block) {
            return block.kind == kind;
        });
    };
    QVERIFY(count("syf") >= 3);
    QVERIFY(count("run") >= 1);
    for (const manual::block& block : blocks)
        QVERIFY2(QStringList({"syf", "protocol", "run"}).contains(block.kind),
                 qPrintable(block.kind));
}

void tst_help_examples::systems_do_what_is_told()
{
    QFETCH(QString, folder);
    QFETCH(QString, page);
    for (const manual::block& block : blocks_of(folder, page)) {
        const bool is_system = block.kind == "syf";
        if (!is_system && block.kind != "protocol") continue;
        const QString told = is_system ? false_claim(block) : false_line(block);
        QVERIFY2(told.isEmpty(), qPrintable(QString("line %1: %2").arg(block.line).arg(told)));
    }
}

void tst_help_examples::commands_print_what_is_shown_data()
{
    QTest::addColumn<QString>("page");
    for (const char* page : pages_with_examples)
        QTest::newRow(page) << page;
}

// The other language shows the same, see below.
void tst_help_examples::commands_print_what_is_shown()
{
    QFETCH(QString, page);
    for (const manual::block& block : blocks_of("de", page)) {
        if (block.kind == "syf" && block.has_option("name"))
            write_file(block.option("name"), block.text.toUtf8());
        if (block.kind != "run") continue;
        QCOMPARE(printed_by(block), block.text);
    }
}

void tst_help_examples::both_languages_show_the_same()
{
    for (const char* page : pages_with_examples) {
        const QVector<manual::block> german = blocks_of("de", page);
        const QVector<manual::block> english = blocks_of("en", page);
        QCOMPARE(german.size(), english.size());
        for (int i = 0; i < german.size(); ++i) {
            QCOMPARE(german[i].kind, english[i].kind);
            QCOMPARE(german[i].options, english[i].options);
            if (german[i].kind != "syf") QCOMPARE(german[i].text, english[i].text);
        }
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_help_examples>(argc, argv);
}

#include "tst_help_examples.moc"
