// The pages of the manual about the language tell the truth: every example is played and compared
// with what stands behind its fence, every form of the language is met by an example, and every
// text that the language can show stands on the page where a user looks for it.
//
// Behind the fence of an example (```syf):
//
//   numbers="1 2 99 00"    the numbers played, 1 2 3 without it; 99 is a hand change, '/' begins
//                          the next file
//   american               the American table
//   part="frame"           the text takes the place of %s in frame.syf
//   bets="EC03:1 / - / .." the bets of each coup, with their amounts
//   credit="2001 2000"     the credits behind the last coups
//   error="text"           the error that ends the system; without it there must be none
//   warnings="text"        what the check warns of; without it it must not warn
//   end="text"             the reason for which the system was stopped
//   message="text / text"  what the messages show
//   pauses="1"             how often the system asked for a pause
//
// A block ```protocol behind an example is the protocol that it leaves. A table behind an example
// shows a reader what its options tell: coup, number, bets and credit.

#include "headless_game.h"
#include "play_options.h"
#include "run_folder.h"
#include "statement_compiler.h"
#include "statement_split.h"
#include "system_check.h"
#include "system_file_reader.h"
#include "test_box.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTextStream>

class tst_help_language : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("*=false"); }
    void there_are_examples_data() { add_languages(); }
    void there_are_examples();
    void both_languages_show_the_same_examples();
    void tables_show_what_the_options_tell_data() { add_languages(); }
    void tables_show_what_the_options_tell();
    void a_false_claim_is_told_data();
    void a_false_claim_is_told();
    void an_example_does_what_is_told_data();
    void an_example_does_what_is_told();
    void every_pattern_is_met_by_an_example_data() { add_languages(); }
    void every_pattern_is_met_by_an_example();
    void every_variant_is_met_by_an_example_data() { add_languages(); }
    void every_variant_is_met_by_an_example();
    void every_text_of_the_language_is_told_data() { add_languages(); }
    void every_text_of_the_language_is_told();

private:
    static void add_languages();
};

namespace
{

constexpr auto first_player = general_player::PLAYER_1;

QString read_text(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void write_text(const QString& path, const QString& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

QDir manual_of(const QString& language)
{
    return QDir(QStringLiteral(ZARVELLO_SOURCE_DIR "/help/") + language);
}

QStringList pages_of(const QString& language)
{
    return manual_of(language).entryList({"language_*.md"}, QDir::Files, QDir::Name);
}

/// An example as it stands in the manual.
struct example {
    QString place; // page and line
    QString options;
    QString text;
    QString protocol; // that of the block behind it, if there is one
    QStringList rows; // of the table behind it, if there is one

    bool has(const QString& name) const { return option(name).hasMatch(); }
    QString value(const QString& name) const { return option(name).captured(2); }
    int table() const { return has("american") ? 1 : 0; }

    QString system() const
    {
        if (!has("part")) return text;
        QString frame = read_text(ZARVELLO_SOURCE_DIR "/help/" + value("part") + ".syf");
        return frame.replace("%s\n", text);
    }

private:
    QRegularExpressionMatch option(const QString& name) const
    {
        const QRegularExpression form("(\\w+)(?:=\"([^\"]*)\")?");
        for (auto match = form.globalMatch(options); match.hasNext();) {
            const QRegularExpressionMatch found = match.next();
            if (found.captured(1) == name) return found;
        }
        return {};
    }
};

/// The rows of the table of coups with which a text begins; empty if it begins with none.
QStringList rows_of_table(const QString& markdown)
{
    const QStringList lines = markdown.trimmed().split('\n');
    QStringList rows;
    if (!lines.first().startsWith("| Coup |")) return rows;
    for (const QString& line : lines.mid(2)) {
        if (!line.startsWith('|')) break;
        rows << line;
    }
    return rows;
}

/// The examples of a page; a protocol belongs to the example in front of it.
QVector<example> examples_in(const QString& page, const QString& markdown)
{
    static const QRegularExpression block("^```(\\w+)([^\\n]*)\\n(.*?)^```$",
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    QVector<example> examples;
    for (auto match = block.globalMatch(markdown); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const int line = markdown.leftRef(found.capturedStart()).count('\n') + 1;
        const QString kind = found.captured(1);
        if (kind == "syf") {
            examples.append({QStringLiteral("%1:%2").arg(page).arg(line),
                             found.captured(2),
                             found.captured(3),
                             {},
                             rows_of_table(markdown.mid(found.capturedEnd()))});
        } else if (kind == "protocol" && !examples.isEmpty()) {
            examples.last().protocol = found.captured(3);
        }
    }
    return examples;
}

QVector<example> examples_of(const QString& language)
{
    QVector<example> examples;
    for (const QString& page : pages_of(language))
        examples +=
            examples_in(language + '/' + page, read_text(manual_of(language).filePath(page)));
    return examples;
}

QString without_comments(QString text)
{
    static const QRegularExpression comment("//[^\n]*|/\\*.*?\\*/",
                                            QRegularExpression::DotMatchesEverythingOption);
    return text.remove(comment);
}

/// What an example did.
struct outcome {
    QString fault; // of the run itself
    QStringList errors;
    QStringList warnings;
    QString ended_with;
    bool ended_in_error = false;
    QStringList bets; // of each coup, until the system ended
    QStringList credits;
    QString messages;
    qint64 pauses = 0;
    QString protocol;
};

QString without_blank_ends(const QString& text)
{
    QStringList lines = text.split('\n');
    for (QString& line : lines)
        while (line.endsWith(' '))
            line.chop(1);
    return lines.join('\n').trimmed();
}

QString bets_in(const QJsonObject& coup)
{
    QStringList bets;
    for (const QJsonValue bet : coup.value("bets").toArray())
        bets << QStringLiteral("%1:%2").arg(bet["jeton"].toString()).arg(bet["amount"].toInt());
    return bets.isEmpty() ? QStringLiteral("-") : bets.join(' ');
}

void read_trace(const QString& trace, outcome& result)
{
    for (const QString& line : trace.split('\n', Qt::SkipEmptyParts)) {
        const QJsonObject coup = QJsonDocument::fromJson(line.toUtf8()).object();
        for (const QJsonValue message : coup.value("messages").toArray())
            for (const QJsonValue part : message.toArray())
                result.messages += part.toString();
        const QJsonValue number = coup.value("number");
        if (!number.isNull() && number.toInt() != number_code::hand_change)
            result.bets << bets_in(coup);
    }
}

void read_credits(outcome& result)
{
    static const QRegularExpression coup("^ *\\*?\\d\\d +-?\\d+ +\\d+ +(-?\\d+)");
    for (const QString& line : result.protocol.split('\n')) {
        const QRegularExpressionMatch match = coup.match(line);
        if (match.hasMatch()) result.credits << match.captured(1);
    }
}

/// Writes the numbers of an example into files and returns their names.
QStringList write_numbers(const QString& numbers)
{
    static const QRegularExpression hand_change(" *\\b99\\b *");
    QStringList files;
    for (QString list : numbers.split('/')) {
        files << (files.isEmpty() ? QString("numbers.inp")
                                  : QStringLiteral("numbers_%1.inp").arg(files.size() + 1));
        write_text(files.last(), list.replace(hand_change, "\n-\n"));
    }
    return files;
}

void check(const example& shown, outcome& result)
{
    const system_pattern patterns(shown.table());
    for (const system_finding& finding : check_system_text(shown.system(), patterns)) {
        const bool is_error = finding.severity == system_finding::kind::error;
        (is_error ? result.errors : result.warnings) << finding.text;
    }
}

void play(const example& shown, outcome& result)
{
    QStringList options{
        "play", "--system", "system.syf", "--protocol", "played.out", "--trace", "trace"};
    for (const QString& file :
         write_numbers(shown.has("numbers") ? shown.value("numbers") : "1 2 3"))
        options << "--numbers" << file;
    write_text("system.syf", shown.system());
    QCommandLineParser parser;
    play_options::declare(parser);
    play_request request;
    parser.parse(options);
    result.fault = play_options::read(parser, request);
    if (!result.fault.isEmpty()) return;

    setting settings;
    settings.set_s_table_form(shown.table());
    headless_game game(request, settings);
    result.fault = game.prepare();
    if (result.fault.isEmpty()) result.fault = game.play();
    const std::optional<run_figures>& figures = game.figures_of(first_player);
    result.ended_in_error = figures->end == run_end::error;
    result.ended_with = figures->end_info.error_text;
    result.pauses = figures->pauses;
}

/// Checks and plays an example in a box of its own.
outcome outcome_of(const example& shown)
{
    const QTemporaryDir box;
    const run_folder::entered_folder inside(box.path());
    outcome result;
    check(shown, result);
    play(shown, result);
    result.protocol = read_text("played.out");
    read_trace(read_text("trace"), result);
    read_credits(result);
    return result;
}

QString difference(const QString& what, const QStringList& told, const QStringList& done)
{
    if (told == done) return {};
    return QStringLiteral("%1: told \"%2\", done \"%3\"")
        .arg(what, told.join(" / "), done.join(" / "));
}

QString bets_difference(const example& shown, const outcome& done)
{
    if (!shown.has("bets")) return {};
    const QStringList told = shown.value("bets").split(" / ");
    QStringList laid = done.bets;
    while (laid.size() < told.size())
        laid << "-";
    return difference("bets", told, laid);
}

QString credit_difference(const example& shown, const outcome& done)
{
    if (!shown.has("credit")) return {};
    const QStringList told = shown.value("credit").split(' ');
    return difference("credit", told, done.credits.mid(qMax(0, done.credits.size() - told.size())));
}

QString error_difference(const example& shown, const outcome& done)
{
    const QString told = shown.value("error");
    if (!told.isEmpty())
        return done.ended_in_error && done.ended_with.contains(told)
                   ? QString()
                   : "error: told \"" + told + "\", done \"" + done.ended_with + '"';
    if (done.ended_in_error) return "error: " + done.ended_with;
    return done.errors.isEmpty() ? QString() : "check: " + done.errors.join(" / ");
}

QString warning_difference(const example& shown, const outcome& done)
{
    const QString all = done.warnings.join('\n');
    if (shown.has("warnings"))
        return !all.isEmpty() && all.contains(shown.value("warnings")) ? QString()
                                                                       : "warnings: done " + all;
    return done.warnings.isEmpty() || shown.has("error") ? QString() : "warnings: " + all;
}

QString end_difference(const example& shown, const outcome& done)
{
    if (shown.has("end") && (done.ended_in_error || done.ended_with != shown.value("end")))
        return "end: " + done.ended_with;
    if (shown.has("pauses") && done.pauses != shown.value("pauses").toLongLong())
        return QStringLiteral("pauses: %1").arg(done.pauses);
    if (shown.has("message")) {
        for (const QString& part : shown.value("message").split(" / "))
            if (!done.messages.contains(part)) return "message: " + done.messages;
    }
    return {};
}

QString protocol_difference(const example& shown, const outcome& done)
{
    if (shown.protocol.isEmpty()) return {};
    return difference(
        "protocol", {without_blank_ends(shown.protocol)}, {without_blank_ends(done.protocol)});
}

/// What an example told and did not do; empty if all is true.
QString differences_of(const example& shown)
{
    const outcome done = outcome_of(shown);
    QStringList told{done.fault,
                     error_difference(shown, done),
                     warning_difference(shown, done),
                     bets_difference(shown, done),
                     credit_difference(shown, done),
                     end_difference(shown, done),
                     protocol_difference(shown, done)};
    told.removeAll(QString());
    return told.join('\n');
}

/// "EC03:1 DZ01:2" as a table shows it.
QString bets_in_table(QString bets)
{
    static const QRegularExpression bet("(\\w+):(\\d+)");
    return bets == "-" ? QString("–") : bets.replace(' ', ", ").replace(bet, "`\\1` \\2");
}

/// The rows of the table that belongs behind an example: of the coups whose credit is told.
QStringList rows_told_by(const example& shown, const QString& hand_change)
{
    const QStringList numbers = shown.value("numbers").split(' ');
    if (!shown.has("bets") || !shown.has("credit") || numbers.contains("/")) return {};
    const QStringList bets = shown.value("bets").split(" / ");
    const QStringList credits = shown.value("credit").split(' ');
    QStringList rows;
    int coup = 0;
    for (const QString& number : numbers) {
        const bool is_number = number != "99";
        if (is_number) ++coup;
        const int credit = coup - 1 - (bets.size() - credits.size());
        if (!is_number && !rows.isEmpty()) rows << QStringLiteral("| | %1 | | |").arg(hand_change);
        if (!is_number || credit < 0) continue;
        rows << QStringLiteral("| %1 | %2 | %3 | %4 |")
                    .arg(QString::number(coup),
                         number,
                         bets_in_table(bets.value(coup - 1)),
                         credits.value(credit));
    }
    return rows;
}

/// The tokens to which the statements of the right examples for one table compile.
QStringList tokens_of(const QString& language, int table)
{
    const system_pattern patterns(table);
    const statement_compiler compiler(patterns);
    QStringList tokens;
    for (const example& shown : examples_of(language)) {
        if (shown.has("error") || shown.table() != table) continue;
        QString text = shown.system();
        QTextStream stream(&text);
        const system_sections sections =
            split_statements(read_system_lines(stream).lines, patterns.get_section_patterns());
        for (const section_line& line : sections.section_st + sections.section_gw +
                                            sections.section_ve + sections.section_al) {
            sys_result_info result;
            compiler.compile_statement(result, line.text);
            if (result.status == system_status::all_right)
                tokens += result.command_text.split('|', Qt::SkipEmptyParts);
        }
    }
    tokens.removeDuplicates();
    return tokens;
}

/// The arguments of all messages among the tokens.
QStringList message_arguments(const QStringList& tokens)
{
    QStringList arguments;
    for (const QString& token : tokens)
        if (token.startsWith("MESSAGE(")) arguments += token.mid(8).chopped(1).split(',');
    return arguments;
}

/// The patterns that are the first of their list for none of the words, as one text.
QString unmet(const QStringList& patterns, const QStringList& words)
{
    QStringList left = patterns;
    for (const QString& word : words) {
        for (const QString& pattern : patterns) {
            if (!QRegExp(pattern, Qt::CaseInsensitive).exactMatch(word)) continue;
            left.removeAll(pattern);
            break;
        }
    }
    return left.join("  ");
}

/// The forms that none of the words has, as one text.
QString unmatched(const QStringList& forms, const QStringList& words)
{
    QStringList left;
    for (const QString& form : forms)
        if (words.filter(QRegularExpression('^' + form + '$')).isEmpty()) left << form;
    return left.join("  ");
}

/// The texts that a source file shows, as they stand in tr().
QStringList texts_in(const QString& source)
{
    static const QRegularExpression call("\\btr\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)\\)");
    static const QRegularExpression literal("\"((?:[^\"\\\\]|\\\\.)*)\"");
    QStringList texts;
    for (auto match = call.globalMatch(source); match.hasNext();) {
        QString text;
        const QString literals = match.next().captured(1);
        for (auto part = literal.globalMatch(literals); part.hasNext();)
            text += part.next().captured(1);
        texts << text;
    }
    return texts;
}

/// True if the text stands in the manual as code, with anything in the place of %1, %2 ...
bool is_quoted(const QString& text, const QString& page)
{
    static const QRegularExpression place("%\\d");
    QStringList parts;
    for (const QString& part : text.split(place))
        parts << QRegularExpression::escape(part);
    return QRegularExpression('`' + parts.join("[^`\n]*") + '`').match(page).hasMatch();
}

} // namespace

void tst_help_language::add_languages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << "de";
    QTest::newRow("English") << "en";
}

void tst_help_language::there_are_examples()
{
    QFETCH(QString, language);
    QVERIFY(pages_of(language).size() >= 10);
    QVERIFY(examples_of(language).size() >= 100);
}

void tst_help_language::both_languages_show_the_same_examples()
{
    QCOMPARE(pages_of("en"), pages_of("de"));
    for (const QString& page : pages_of("de")) {
        const auto german = examples_in(page, read_text(manual_of("de").filePath(page)));
        const auto english = examples_in(page, read_text(manual_of("en").filePath(page)));
        QCOMPARE(english.size(), german.size());
        for (int i = 0; i < german.size(); ++i) {
            QCOMPARE(english.at(i).options, german.at(i).options);
            QCOMPARE(english.at(i).protocol, german.at(i).protocol);
            QCOMPARE(without_comments(english.at(i).text), without_comments(german.at(i).text));
        }
    }
}

void tst_help_language::tables_show_what_the_options_tell()
{
    QFETCH(QString, language);
    const QString hand_change = language == "de" ? "Handwechsel" : "hand change";
    int tables = 0;
    for (const example& shown : examples_of(language)) {
        if (!shown.rows.isEmpty()) ++tables;
        QVERIFY2(shown.rows == rows_told_by(shown, hand_change), qPrintable(shown.place));
    }
    QVERIFY(tables >= 50);
}

void tst_help_language::a_false_claim_is_told_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const QString& options, const QString& told) {
        QTest::newRow(name) << options << told;
    };
    // clang-format off
    row("all true",       "numbers=\"1 2\" bets=\"EC03:1 / EC03:1\" credit=\"2001 2000\"",  "");
    row("another bet",    "numbers=\"1\" bets=\"EC04:1\"",          "bets: told \"EC04:1\", done \"EC03:1\"");
    row("another amount", "numbers=\"1\" bets=\"EC03:2\"",          "bets: told \"EC03:2\", done \"EC03:1\"");
    row("a bet too few",  "numbers=\"1 2\" bets=\"EC03:1\"",        "bets: told \"EC03:1\", done \"EC03:1 / EC03:1\"");
    row("a bet too many", "numbers=\"1\" bets=\"EC03:1 / EC03:1\"", "bets: told \"EC03:1 / EC03:1\", done \"EC03:1 / -\"");
    row("another credit", "credit=\"2000\"",  "credit: told \"2000\", done \"2001\"");
    row("no error",       "error=\"Syntax\"", "error: told \"Syntax\", done \"\"");
    row("no warning",     "warnings",         "warnings: done ");
    row("no end",         "end=\"Grund\"",    "end: ");
    row("no pause",       "pauses=\"1\"",     "pauses: 0");
    row("no message",     "message=\"GZ\"",   "message: ");
    // clang-format on
}

void tst_help_language::a_false_claim_is_told()
{
    QFETCH(QString, options);
    QFETCH(QString, told);
    QCOMPARE(differences_of({"here", options, "AL:\nSZ EC03;\n", {}, {}}), told);
}

void tst_help_language::an_example_does_what_is_told_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("index");
    for (const char* language : {"de", "en"}) {
        const QVector<example> examples = examples_of(language);
        for (int i = 0; i < examples.size(); ++i)
            QTest::newRow(qPrintable(examples.at(i).place)) << QString(language) << i;
    }
}

void tst_help_language::an_example_does_what_is_told()
{
    QFETCH(QString, language);
    QFETCH(int, index);
    static QString read_language;
    static QVector<example> examples;
    if (read_language != language) examples = examples_of(language);
    read_language = language;
    const QString told = differences_of(examples.at(index));
    QVERIFY2(told.isEmpty(), qPrintable('\n' + examples.at(index).text + told));
}

void tst_help_language::every_pattern_is_met_by_an_example()
{
    QFETCH(QString, language);
    const system_pattern french(0);
    const system_pattern american(1);
    const QStringList french_tokens = tokens_of(language, 0);
    const QStringList american_tokens = tokens_of(language, 1);
    const QStringList tokens = french_tokens + american_tokens;
    QCOMPARE(unmet(french.get_argument_patterns(), tokens), QString());
    QCOMPARE(unmet(french.get_keyword_patterns(), tokens), QString());
    QCOMPARE(unmet(french.get_jeton_patterns(), french_tokens), QString());
    QCOMPARE(unmet(french.get_argument_number_patterns(), tokens), QString());
    QCOMPARE(unmet(american.get_american_patterns(), american_tokens), QString());
    QCOMPARE(unmet(french.get_message_patterns(), message_arguments(tokens)), QString());
    QStringList lines;
    for (const example& shown : examples_of(language))
        lines += shown.text.split('\n');
    QCOMPARE(unmet(french.get_section_patterns(), lines), QString());
}

// What one pattern lets through is several forms to a reader.
void tst_help_language::every_variant_is_met_by_an_example()
{
    QFETCH(QString, language);
    const QStringList tokens = tokens_of(language, 0) + tokens_of(language, 1);
    const QStringList arguments = message_arguments(tokens);
    QStringList variants;
    for (const char* sign : {"", "\\+", "-", "=", "<", "<=", ">", ">=", "<>"})
        variants << QStringLiteral("CO\\d\\d\\(%1\\d+\\)").arg(sign);
    for (const char* sign : {"", "\\+", "-", "<", "<>"})
        variants << QStringLiteral("CO\\d\\d\\(%1CO\\d\\d\\)").arg(sign);
    for (const char* sign : {"", "\\+", "\\*", "/"})
        variants << QStringLiteral("EI\\d%1\\d+").arg(sign);
    for (const char* place : {"\\d+", "\\+\\d+", "-\\d+", "CO\\d\\d"})
        variants << QStringLiteral("EI\\d\\(ST\\d\\(%1\\)\\)").arg(place);
    for (const char* entry : {"\\d+", "A", "D", "C", "GZ", "[A-Z]{2}\\d\\d"})
        variants << QStringLiteral("PT\\d\\(%1\\)").arg(entry);
    for (const char* option : {"I\\(\\d+\\)",
                               "V\\(\\d+\\)",
                               "G\\(\\d+\\)",
                               "C\\(\\d+\\)",
                               "N",
                               "R",
                               "P",
                               "S",
                               "A",
                               "E",
                               "H",
                               "L"})
        variants << QStringLiteral("STMAX\\((.*,)?%1(,.*)?\\)").arg(option);
    variants << "STMAX\\(S\\(ST\\d\\(CO\\d\\d\\),ST\\d\\(CO\\d\\d\\)\\)\\)";
    for (const char* sign : {"=", "<", "<=", ">", ">="})
        variants << QStringLiteral("RZ\\(\\d+/%1\\d+\\)").arg(sign);
    for (const char* choice : {"H", "N", "=\\d+/F", "<\\d+/A", "<=\\d+", ">\\d+", ">=\\d+"})
        variants << QStringLiteral("UZ\\(\\d+/%1\\)").arg(choice);
    for (const char* word : {"RESTART",
                             "RESTART\\(N\\)",
                             "RESTART\\(F\\)",
                             "GS",
                             "KS",
                             "OR",
                             "ZS",
                             "EN\\d\\d",
                             "ZN\\d\\d",
                             "DN\\d\\d",
                             "EN37",
                             "ZN37",
                             "DN37",
                             "V0",
                             "V9"})
        variants << word;
    QCOMPARE(unmatched(variants, tokens), QString());

    const QStringList shown{"'.*'",
                            "GZ",
                            "VZ",
                            "V\\d",
                            "CO\\d\\d",
                            "EI\\d",
                            "EIC",
                            "ST\\d",
                            "AG\\(\\d+\\)",
                            "AG\\(\\d+\\.\\.\\d+\\)",
                            "PT\\d\\(\\d+\\)",
                            "PT\\d\\(\\d+\\.\\.\\d+\\)"};
    QCOMPARE(unmatched(shown, arguments), QString());
}

void tst_help_language::every_text_of_the_language_is_told()
{
    QFETCH(QString, language);
    const QStringList warning_sources{"statement_warnings.cpp", "system_check.cpp"};
    // What a monitor or a message shows is no error.
    const QStringList displays{
        "Spieler: ", "/Wert: ", "Verzögerung aktiv", "SysReset durchgeführt"};
    const QString errors = read_text(manual_of(language).filePath("language_errors.md"));
    const QString traps = read_text(manual_of(language).filePath("language_traps.md"));
    QString all;
    for (const QString& page : pages_of(language))
        all += read_text(manual_of(language).filePath(page));

    QStringList missing;
    int found = 0;
    const QDir sources(ZARVELLO_SOURCE_DIR "/system_language");
    for (const QString& file : sources.entryList({"*.cpp"}, QDir::Files)) {
        const QString& page = warning_sources.contains(file) ? traps : errors;
        for (const QString& text : texts_in(read_text(sources.filePath(file)))) {
            ++found;
            const bool is_told =
                displays.contains(text) ? all.contains(text) : is_quoted(text, page);
            if (!is_told) missing << file + ": " + text;
        }
    }
    QVERIFY(found >= 90);
    QCOMPARE(missing.join('\n'), QString());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_help_language>(argc, argv);
}

#include "tst_help_language.moc"
