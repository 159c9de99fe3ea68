// The manual hangs together: both languages have the same pages, headings and anchors, no link
// leads nowhere, and whatever F1, a form, a setting or an option needs is told.

#include "help_table.h"
#include "manual_html.h"
#include "play_options.h"
#include "system_pattern.h"
#include "test_box.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

using manual::language;

class tst_help : public QObject
{
    Q_OBJECT

private slots:
    void contents_are_read();
    void parts_of_a_page_are_found();
    void options_of_a_block_are_found();
    void a_table_of_keys_is_read();
    void headings_take_their_anchors();
    void a_page_is_put_into_its_frame();
    void both_languages_have_every_page();
    void no_page_is_forgotten_data() { add_languages(); }
    void no_page_is_forgotten();
    void both_languages_have_the_same_headings();
    void no_anchor_stands_twice_data() { add_languages(); }
    void no_anchor_stands_twice();
    void every_link_leads_somewhere_data() { add_languages(); }
    void every_link_leads_somewhere();
    void every_key_leads_somewhere_data() { add_languages(); }
    void every_key_leads_somewhere();
    void every_window_has_a_key();
    void every_word_of_the_language_has_a_key();
    void every_shortcut_is_told_data() { add_languages(); }
    void every_shortcut_is_told();
    void every_setting_is_told_data() { add_languages(); }
    void every_setting_is_told();
    void every_option_of_the_runner_is_told_data() { add_languages(); }
    void every_option_of_the_runner_is_told();

private:
    static void add_languages();
};

namespace
{

QDir sources()
{
    return QDir(QStringLiteral(ZARVELLO_SOURCE_DIR "/help"));
}

QString folder(int spoken)
{
    return manual::folder_of(static_cast<language>(spoken));
}

QString text_of(const QString& folder, const QString& page)
{
    return manual::read_text(sources().filePath(folder + '/' + page + ".md"));
}

QStringList page_names(language spoken)
{
    QStringList names;
    for (const manual::page& page : manual::read_contents(sources(), spoken).pages)
        names.append(page.name);
    return names;
}

/// What is wrong with "page.html#anchor" as seen from a page; empty for a good one.
QString fault_of_link(const QString& folder, const QString& from, const QString& target)
{
    if (target.endsWith(".png"))
        return sources().exists(folder + '/' + target) ? QString() : "no picture " + target;
    const QString file = target.section('#', 0, 0);
    const QString anchor = target.section('#', 1);
    if (!file.isEmpty() && !file.endsWith(".html")) return "not a page: " + target;
    const QString page = file.isEmpty() ? from : file.chopped(5);
    const QString text = text_of(folder, page);
    if (text.isEmpty()) return "no page " + target;
    if (anchor.isEmpty() || manual::parts_of(text).anchors.contains(anchor)) return {};
    return "no anchor " + target;
}

/// Class name and object names with a shortcut of a form.
struct form_content {
    QString class_name;
    QStringList shortcuts;
};

form_content read_form(const QString& path)
{
    QFile file(path);
    form_content form;
    if (!file.open(QIODevice::ReadOnly)) return form;
    QXmlStreamReader xml(&file);
    bool is_shortcut = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) continue;
        if (xml.name() == QLatin1String("class") && form.class_name.isEmpty()) {
            form.class_name = xml.readElementText();
        } else if (xml.name() == QLatin1String("property")) {
            is_shortcut = xml.attributes().value("name") == QLatin1String("shortcut");
        } else if (xml.name() == QLatin1String("string") && is_shortcut) {
            form.shortcuts.append(xml.readElementText());
        }
    }
    return form;
}

QVector<form_content> all_forms()
{
    const QDir folder(QStringLiteral(ZARVELLO_SOURCE_DIR "/forms"));
    QVector<form_content> forms;
    for (const QString& name : folder.entryList({"*.ui"}))
        forms.append(read_form(folder.filePath(name)));
    return forms;
}

/// "Ctrl+Shift+S" as a German keyboard has it.
QString german_shortcut(QString keys)
{
    keys.replace("Ctrl", "Strg").replace("Shift", "Umschalt").replace("Del", "Entf");
    return keys.replace("Backspace", "Rücktaste").replace("Space", "Leertaste");
}

} // namespace

void tst_help::add_languages()
{
    QTest::addColumn<int>("spoken");
    QTest::newRow("German") << int(language::german);
    QTest::newRow("English") << int(language::english);
}

void tst_help::contents_are_read()
{
    const QDir box;
    QVERIFY(box.mkpath("de"));
    const auto write = [](const QString& path, const QByteArray& text) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    QVERIFY(!manual::read_contents(box, language::german).fault.isEmpty());
    write("contents.txt", "0 one\n1 two\n");
    write("de/one.md", "# Größe\n\nText\n");
    QCOMPARE(manual::read_contents(box, language::german).fault,
             QString("de/two.md: no page with a title in its first line"));
    write("de/two.md", "no title\n");
    QVERIFY(!manual::read_contents(box, language::german).fault.isEmpty());
    write("de/two.md", "# Two\n");
    const manual::contents read = manual::read_contents(box, language::german);
    QVERIFY(read.fault.isEmpty());
    QCOMPARE(read.pages.size(), 2);
    QCOMPARE(read.pages[0].title, QString("Größe"));
    QCOMPARE(read.pages[1].name, QString("two"));
    QCOMPARE(read.pages[1].level, 1);
    write("contents.txt", "0 one\ntwo\n");
    QCOMPARE(manual::read_contents(box, language::german).fault,
             QString("contents.txt: not a page: two"));
}

void tst_help::parts_of_a_page_are_found()
{
    const manual::page_parts parts = manual::parts_of("# Title\n"
                                                      "\n"
                                                      "<a id=\"co\"></a>\n"
                                                      "\n"
                                                      "## Counters [x](a.html#b)\n"
                                                      "`[no](link.html)` and ![p](p.png)\n"
                                                      "| <a id=\"cell\"></a>x |\n"
                                                      "## Without\n"
                                                      "```syf credit=\"1\"\n"
                                                      "# no heading [no](link.html)\n"
                                                      "```\n");
    QCOMPARE(parts.headings.size(), 3);
    QCOMPARE(parts.headings[0].level, 1);
    QCOMPARE(parts.headings[1].anchor, QString("co"));
    QVERIFY(parts.headings[2].anchor.isEmpty());
    QCOMPARE(parts.anchors, QStringList({"co", "cell"}));
    QCOMPARE(parts.links.size(), 2);
    QCOMPARE(parts.links[0].target, QString("a.html#b"));
    QCOMPARE(parts.links[0].line, 5);
    QCOMPARE(parts.links[1].target, QString("p.png"));
    QCOMPARE(parts.blocks.size(), 1);
    QCOMPARE(parts.blocks[0].line, 9);
    QCOMPARE(parts.blocks[0].text, QString("# no heading [no](link.html)\n"));
}

void tst_help::options_of_a_block_are_found()
{
    manual::block block;
    block.options = "numbers=\"1 2 warnings\" american error=\"a = b\"";
    QCOMPARE(block.option("numbers"), QString("1 2 warnings"));
    QCOMPARE(block.option("error"), QString("a = b"));
    QVERIFY(block.has_option("american"));
    QVERIFY(!block.has_option("warnings"));
    QVERIFY(block.option("american").isEmpty());
}

void tst_help::a_table_of_keys_is_read()
{
    help_table table;
    QVERIFY(table.read("# a comment\n\nOptions  settings\nstatement:CO language_counters#co\n"));
    QCOMPARE(table.page_of("Options"), QString("settings.html"));
    QCOMPARE(table.page_of("statement:CO"), QString("language_counters.html#co"));
    QVERIFY(table.page_of("options").isEmpty());
    QVERIFY(table.read("Options game"));
    QCOMPARE(table.page_of("Options"), QString("game.html"));
    QCOMPARE(table.keys(), QStringList({"Options", "statement:CO"}));
    QVERIFY(!table.read("Options\n"));
    QVERIFY(!table.read("Options settings.html\n"));
}

void tst_help::headings_take_their_anchors()
{
    const manual::set_page page = manual::finish_page({0, "x", "X"},
                                                      "<h1>X</h1>\n"
                                                      "<p><a id=\"co\"></a></p>\n"
                                                      "<h2>A &amp; <code>B</code></h2>\n"
                                                      "<p>text</p>\n"
                                                      "<h2>C</h2>\n");
    QCOMPARE(page.body,
             QString("<h1 id=\"s1\">X</h1>\n<h2 id=\"co\">A &amp; <code>B</code></h2>\n"
                     "<p>text</p>\n<h2 id=\"s2\">C</h2>\n"));
    QCOMPARE(page.headings.size(), 2);
    QCOMPARE(page.headings[0].text, QString("A & B"));
    QCOMPARE(page.headings[0].anchor, QString("co"));
    QCOMPARE(page.headings[1].anchor, QString("s2"));
}

void tst_help::a_page_is_put_into_its_frame()
{
    QVector<manual::set_page> pages;
    for (const char* name : {"one", "two", "three"})
        pages.append(manual::finish_page({0, name, QString(name).toUpper()}, "<h2>@title@</h2>"));
    const QString frame = "@language@|@title@|@contents@|@body@|@neighbours@";
    const QStringList middle = manual::browser_page(frame, pages, 1, language::english).split('|');
    QCOMPARE(middle[0], QString("en"));
    QCOMPARE(middle[1], QString("TWO"));
    QCOMPARE(middle[2].count("<li class=\"level0"), 3);
    QVERIFY(middle[2].contains("class=\"level0 here\"><a href=\"two.html\">TWO</a>"));
    QCOMPARE(middle[3], QString("<h2 id=\"s1\">@title@</h2>"));
    QVERIFY(middle[4].contains("href=\"one.html\""));
    QVERIFY(middle[4].contains("href=\"three.html\""));
    const QString first = manual::browser_page(frame, pages, 0, language::english);
    QVERIFY(!first.contains("class=\"before\""));
    QVERIFY(first.contains("class=\"next\""));
}

void tst_help::both_languages_have_every_page()
{
    const manual::contents german = manual::read_contents(sources(), language::german);
    const manual::contents english = manual::read_contents(sources(), language::english);
    QVERIFY2(german.fault.isEmpty(), qPrintable(german.fault));
    QVERIFY2(english.fault.isEmpty(), qPrintable(english.fault));
    QVERIFY(german.pages.size() >= 13);
    QCOMPARE(german.pages.first().name, QString("index"));
    QCOMPARE(german.pages.first().level, 0);
    QCOMPARE(page_names(language::german), page_names(language::english));
}

void tst_help::no_page_is_forgotten()
{
    QFETCH(int, spoken);
    const QStringList names = page_names(static_cast<language>(spoken));
    for (const QString& file : QDir(sources().filePath(folder(spoken))).entryList({"*.md"}))
        QVERIFY2(names.contains(file.chopped(3)), qPrintable(file + " is not in contents.txt"));
}

void tst_help::both_languages_have_the_same_headings()
{
    const auto outline = [](const QString& folder, const QString& page) {
        QStringList lines;
        for (const manual::heading& heading : manual::parts_of(text_of(folder, page)).headings)
            lines.append(QString::number(heading.level) + ' ' + heading.anchor);
        return lines;
    };
    for (const QString& page : page_names(language::german)) {
        QVERIFY2(outline("de", page) == outline("en", page),
                 qPrintable(page + ":\n" + outline("de", page).join('\n') + "\nbut\n" +
                            outline("en", page).join('\n')));
        QCOMPARE(manual::parts_of(text_of("de", page)).anchors,
                 manual::parts_of(text_of("en", page)).anchors);
    }
}

void tst_help::no_anchor_stands_twice()
{
    QFETCH(int, spoken);
    for (const QString& page : page_names(static_cast<language>(spoken))) {
        QStringList anchors = manual::parts_of(text_of(folder(spoken), page)).anchors;
        QVERIFY2(anchors.removeDuplicates() == 0, qPrintable(page));
    }
}

void tst_help::every_link_leads_somewhere()
{
    QFETCH(int, spoken);
    QStringList faults;
    int links = 0;
    for (const QString& page : page_names(static_cast<language>(spoken))) {
        for (const manual::link& link : manual::parts_of(text_of(folder(spoken), page)).links) {
            ++links;
            const QString fault = fault_of_link(folder(spoken), page, link.target);
            if (!fault.isEmpty())
                faults.append(QString("%1:%2: %3").arg(page).arg(link.line).arg(fault));
        }
    }
    QVERIFY(links > 50);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    QVERIFY(!fault_of_link(folder(spoken), "index", "settings.html#nowhere").isEmpty());
    QVERIFY(!fault_of_link(folder(spoken), "index", "nowhere.html").isEmpty());
    QVERIFY(!fault_of_link(folder(spoken), "index", "nowhere.png").isEmpty());
}

void tst_help::every_key_leads_somewhere()
{
    QFETCH(int, spoken);
    const help_table table = help_table::of_the_program();
    QVERIFY(table.keys().size() > 30);
    for (const QString& key : table.keys()) {
        const QString fault = fault_of_link(folder(spoken), "index", table.page_of(key));
        QVERIFY2(fault.isEmpty(), qPrintable(key + ": " + fault));
    }
    const QStringList files = sources().entryList({"keys*.txt"});
    QVERIFY(files.contains("keys.txt"));
    for (const QString& file : files) {
        help_table alone;
        QVERIFY2(alone.read(manual::read_text(sources().filePath(file))), qPrintable(file));
    }
}

void tst_help::every_window_has_a_key()
{
    const help_table table = help_table::of_the_program();
    const QVector<form_content> forms = all_forms();
    QVERIFY(forms.size() >= 8);
    for (const form_content& form : forms) {
        QVERIFY(!form.class_name.isEmpty());
        QVERIFY2(!table.page_of(form.class_name).isEmpty(), qPrintable(form.class_name));
    }
}

void tst_help::every_word_of_the_language_has_a_key()
{
    const help_table table = help_table::of_the_program();
    const system_pattern patterns(0);
    const QStringList all = patterns.get_section_patterns() + patterns.get_jeton_patterns() +
                            patterns.get_argument_patterns() + patterns.get_keyword_patterns();
    static const QRegularExpression head("(?:\\\\b\\(?|\\||^\\()([A-Z]+)(?![^\\[]*\\])");
    QStringList words;
    for (const QString& pattern : all) {
        for (auto match = head.globalMatch(pattern); match.hasNext();)
            words.append(match.next().captured(1));
    }
    words.removeDuplicates();
    for (const char* sure : {"ST", "AL", "PL", "ZS", "DN", "EI", "CO", "UZ", "SZ", "IF", "MESSAGE"})
        QVERIFY2(words.contains(sure), sure);
    QStringList missing;
    for (const QString& word : qAsConst(words))
        if (table.page_of("statement:" + word).isEmpty()) missing.append(word);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(' ')));
}

void tst_help::every_shortcut_is_told()
{
    QFETCH(int, spoken);
    const QString text = text_of(folder(spoken), "shortcuts");
    int shortcuts = 0;
    QStringList missing;
    for (const form_content& form : all_forms()) {
        for (const QString& shortcut : form.shortcuts) {
            ++shortcuts;
            const QString keys =
                spoken == int(language::german) ? german_shortcut(shortcut) : shortcut;
            const QRegularExpression told("(?:\\| |, )" + QRegularExpression::escape(keys) +
                                          "(?: \\||, )");
            if (!told.match(text).hasMatch()) missing.append(form.class_name + ": " + keys);
        }
    }
    QVERIFY(shortcuts >= 20);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

void tst_help::every_setting_is_told()
{
    QFETCH(int, spoken);
    static const QRegularExpression row("\\{\"(s_\\w+)\",");
    const QString code = manual::read_text(ZARVELLO_SOURCE_DIR "/game/engine/setting.cpp");
    const QString text = text_of(folder(spoken), "settings");
    int keys = 0;
    QStringList missing;
    for (auto match = row.globalMatch(code); match.hasNext();) {
        const QString key = match.next().captured(1);
        ++keys;
        const bool is_in_range = key.contains(QRegularExpression("_file_[23]$"));
        if (!is_in_range && !text.contains('`' + key)) missing.append(key);
    }
    QVERIFY(keys >= 38);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(' ')));
}

void tst_help::every_option_of_the_runner_is_told()
{
    QFETCH(int, spoken);
    QCommandLineParser parser;
    play_options::declare(parser);
    static const QRegularExpression option("^  (--[a-z]+)", QRegularExpression::MultilineOption);
    const QString text = text_of(folder(spoken), "runner");
    int options = 0;
    for (auto match = option.globalMatch(parser.helpText()); match.hasNext();) {
        const QString name = match.next().captured(1);
        ++options;
        QVERIFY2(text.contains("| `" + name), qPrintable(name));
    }
    QCOMPARE(options, 11);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_help>(argc, argv);
}

#include "tst_help.moc"
