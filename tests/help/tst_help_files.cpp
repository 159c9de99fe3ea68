// What is built of the manual: pages for the browser and compiled help files. Without the programs
// that build them there is nothing to look at.

#include "help_table.h"
#include "manual_chm.h"
#include "test_box.h"

#include <QProcess>
#include <QRegularExpression>

using manual::language;

class tst_help_files : public QObject
{
    Q_OBJECT

private slots:
    void texts_are_written_in_the_code_page();
    void a_project_names_its_files();
    void contents_are_a_tree();
    void the_index_is_sorted();
    void every_page_is_built_data() { add_languages(); }
    void every_page_is_built();
    void every_link_of_a_built_page_leads_somewhere_data() { add_languages(); }
    void every_link_of_a_built_page_leads_somewhere();
    void every_key_with_a_place_has_a_page_that_leads_there_data() { add_languages(); }
    void every_key_with_a_place_has_a_page_that_leads_there();
    void the_compiled_file_holds_every_page_data() { add_languages(); }
    void the_compiled_file_holds_every_page();
    void the_help_lies_beside_the_program();

private:
    static void add_languages();
};

namespace
{

#ifdef ZARVELLO_HELP_FOLDER
constexpr bool is_built = true;
const QString help_folder = ZARVELLO_HELP_FOLDER;
const QString resource_folder = ZARVELLO_RESOURCE_FOLDER;
const QString chm_lister = ZARVELLO_CHM_LIST;
#else
constexpr bool is_built = false;
const QString help_folder;
const QString resource_folder;
const QString chm_lister;
#endif

constexpr auto no_programs = "no programs to build the help are installed";

QVector<manual::page> pages_of(int spoken)
{
    return manual::read_contents(QDir(ZARVELLO_SOURCE_DIR "/help"), static_cast<language>(spoken))
        .pages;
}

QString folder_of(int spoken)
{
    return manual::folder_of(static_cast<language>(spoken));
}

QString built_page(int spoken, const QString& file)
{
    return manual::read_text(help_folder + '/' + folder_of(spoken) + '/' + file);
}

QString chm_name(int spoken)
{
    return spoken == int(language::german) ? "zarvelloD.chm" : "zarvelloE.chm";
}

QByteArray bytes_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

manual::set_page made_page(int level, const QString& name, const QString& title)
{
    manual::set_page page;
    page.source = {level, name, title};
    return page;
}

} // namespace

void tst_help_files::add_languages()
{
    QTest::addColumn<int>("spoken");
    QTest::newRow("German") << int(language::german);
    QTest::newRow("English") << int(language::english);
}

void tst_help_files::texts_are_written_in_the_code_page()
{
    // ä is E4, ß DF, the dash 96 and the euro 80 there; the arrow (U+2192) is not.
    QCOMPARE(manual::in_code_page("aäß\u2013\u20ac\u2192"), QByteArray("a\xE4\xDF\x96\x80&#8594;"));
}

void tst_help_files::a_project_names_its_files()
{
    const QString project = QString::fromLatin1(
        manual::chm_project("x.chm", {"a.html", "p.png"}, {0, "a", "A"}, language::german));
    QVERIFY(project.contains("Compiled file=x.chm\n"));
    QVERIFY(project.contains("Default topic=a.html\n"));
    QVERIFY(project.contains("Language=0x407 "));
    QVERIFY(project.endsWith("[FILES]\na.html\np.png\n"));
    QVERIFY(manual::chm_project("x.chm", {}, {}, language::english).contains("Language=0x809 "));
}

void tst_help_files::contents_are_a_tree()
{
    const QString tree = QString::fromLatin1(manual::chm_contents(
        {made_page(0, "a", "A"), made_page(1, "b", "B"), made_page(0, "c", "C & D")}));
    QCOMPARE(tree.count("<UL>"), 2);
    QCOMPARE(tree.count("</UL>"), 2);
    const int inner = tree.indexOf("<UL>", tree.indexOf("\"a.html\""));
    QVERIFY(inner > 0 && inner < tree.indexOf("\"b.html\""));
    QVERIFY(tree.indexOf("</UL>") < tree.indexOf("\"c.html\""));
    QVERIFY(tree.contains("value=\"C &amp; D\""));
}

void tst_help_files::the_index_is_sorted()
{
    manual::set_page page = made_page(0, "a", "Zahl");
    page.headings = {{2, "beta", "b"}, {2, "Anfang", "x"}};
    const QString index = QString::fromLatin1(manual::chm_index({page}));
    QVERIFY(index.indexOf("Anfang") < index.indexOf("beta"));
    QVERIFY(index.indexOf("beta") < index.indexOf("Zahl"));
    QVERIFY(index.contains("\"a.html#b\""));
}

void tst_help_files::every_page_is_built()
{
    if (!is_built) QSKIP(no_programs);
    QFETCH(int, spoken);
    for (const manual::page& page : pages_of(spoken)) {
        const QString html = built_page(spoken, page.name + ".html");
        QVERIFY2(html.contains("<title>" + page.title.toHtmlEscaped()), qPrintable(page.name));
        QVERIFY2(html.contains(" here\"><a href=\"" + page.name + ".html\">"),
                 qPrintable(page.name));
        QVERIFY2(!html.contains("<script"), qPrintable(page.name));
        QVERIFY2(!html.contains(QRegularExpression("(src|href)=\"https?:")), qPrintable(page.name));
        QVERIFY2(!html.contains(QRegularExpression("@(title|contents|body|neighbours)@")),
                 qPrintable(page.name));
        QVERIFY2(!html.contains(" | "), qPrintable(page.name + ": a table was not set"));
    }
}

void tst_help_files::every_link_of_a_built_page_leads_somewhere()
{
    if (!is_built) QSKIP(no_programs);
    QFETCH(int, spoken);
    static const QRegularExpression link("(?:src|href)=\"([^\"#]*)(?:#([^\"]*))?\"");
    const QDir folder(help_folder + '/' + folder_of(spoken));
    QStringList faults;
    int links = 0;
    for (const QString& file : folder.entryList({"*.html"})) {
        const QString html = built_page(spoken, file);
        for (auto match = link.globalMatch(html); match.hasNext();) {
            const QRegularExpressionMatch found = match.next();
            const QString target = found.captured(1).isEmpty() ? file : found.captured(1);
            const QString id = found.captured(2);
            ++links;
            if (!folder.exists(target)) faults.append(file + ": no file " + target);
            if (!id.isEmpty() && !built_page(spoken, target).contains("id=\"" + id + '"'))
                faults.append(file + ": no place " + target + '#' + id);
        }
    }
    faults.removeDuplicates();
    QVERIFY(links > 300);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

void tst_help_files::every_key_with_a_place_has_a_page_that_leads_there()
{
    if (!is_built) QSKIP(no_programs);
    QFETCH(int, spoken);
    const help_table table = help_table::of_the_program();
    int places = 0;
    for (const QString& key : table.keys()) {
        const QString target = table.page_of(key);
        if (!target.contains('#')) continue;
        ++places;
        const QString html = built_page(spoken, manual::name_of_leading_page(target));
        QVERIFY2(html.contains("content=\"0; url=" + target + '"'), qPrintable(key));
    }
    QVERIFY(places > 10);
    QCOMPARE(manual::name_of_leading_page("counters.html#co"), QString("at-counters-co.html"));
}

void tst_help_files::the_compiled_file_holds_every_page()
{
    if (!is_built) QSKIP(no_programs);
    QFETCH(int, spoken);
    const QString file = help_folder + '/' + chm_name(spoken);
    QVERIFY(bytes_of(file).startsWith("ITSF")); // what every such file begins with
    if (chm_lister.endsWith("NOTFOUND")) QSKIP("no program to look into compiled help");

    QProcess lister;
    lister.start(chm_lister, {"extractall", file, "."});
    QVERIFY(lister.waitForFinished(60000));
    QCOMPARE(lister.exitCode(), 0);
    const QByteArray contents = bytes_of("zarvello.hhc");
    for (const manual::page& page : pages_of(spoken)) {
        const QByteArray html = bytes_of(page.name + ".html");
        const QByteArray title = manual::in_code_page(page.title.toHtmlEscaped());
        QVERIFY2(html.contains("charset=windows-1252"), qPrintable(page.name));
        QVERIFY2(html.contains("<title>" + title + "</title>"), qPrintable(page.name));
        QVERIFY2(contents.contains("value=\"" + title + '"'), qPrintable(page.name));
    }
    QVERIFY(bytes_of("table.png").startsWith("\x89PNG"));
    if (spoken == int(language::german)) {
        QVERIFY(bytes_of("table.html").contains("Tisch, Eins\xE4tze, Gewinne"));
    }
}

void tst_help_files::the_help_lies_beside_the_program()
{
    if (!is_built) QSKIP(no_programs);
    for (const char* file :
         {"help/de/index.html", "help/en/index.html", "zarvelloD.chm", "zarvelloE.chm"})
        QVERIFY2(QFile::exists(resource_folder + '/' + file), file);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_help_files>(argc, argv);
}

#include "tst_help_files.moc"
