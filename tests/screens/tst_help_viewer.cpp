#include "help_viewer.h"
#include "test_box.h"

#include <QGuiApplication>

#include <array>

using general_setting::LANG_ENGLISH;
using general_setting::LANG_GERMAN;

class tst_help_viewer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void the_help_program_gets_the_file_of_the_language();
    void the_desktop_shows_what_there_is_data();
    void the_desktop_shows_what_there_is();
    void a_place_is_shown_by_the_browser();
    void a_page_that_leads_to_a_place_is_taken();
    void a_page_that_is_missing_becomes_the_contents();
    void what_is_opened_is_handed_over();
    void without_a_manual_nothing_happens();
    void the_desktop_is_asked_for_a_program_data();
    void the_desktop_is_asked_for_a_program();
    void cleanup() { help_viewer::set_platform({}); }

private:
    void add_file(const QString& name);
    help_viewer viewer_of_desktop(bool shows_compiled_help);
    QUrl url_of_file(const QString& name) const;

    QVector<QUrl> opened;
};

void tst_help_viewer::init()
{
    opened.clear();
    QDir("program").removeRecursively();
}

void tst_help_viewer::add_file(const QString& name)
{
    const QString path = "program/resources/" + name;
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

help_viewer tst_help_viewer::viewer_of_desktop(bool shows_compiled_help)
{
    help_viewer::platform desktop;
    desktop.program_folder = QDir::currentPath() + "/program";
    desktop.shows_compiled_help = [=] { return shows_compiled_help; };
    desktop.open_url = [this](const QUrl& url) {
        opened.append(url);
        return true;
    };
    help_viewer::set_platform(desktop);
    return help_viewer();
}

QUrl tst_help_viewer::url_of_file(const QString& name) const
{
    return QUrl::fromLocalFile(QDir::currentPath() + "/program/resources/" + name);
}

void tst_help_viewer::the_help_program_gets_the_file_of_the_language()
{
    help_viewer::platform windows;
    windows.program_folder = "C:/Games/Zarvello";
    windows.has_help_program = true;
    windows.open_url = [](const QUrl&) { return false; };
    help_viewer::set_platform(windows);
    const help_viewer viewer;
    QVERIFY(viewer.needs_help_program());
    QCOMPARE(viewer.help_program_arguments(LANG_GERMAN, {}),
             QStringList("C:/Games/Zarvello\\resources\\zarvelloD.chm"));
    QCOMPARE(viewer.help_program_arguments(LANG_ENGLISH, {}),
             QStringList("C:/Games/Zarvello\\resources\\zarvelloE.chm"));
    QCOMPARE(viewer.help_program_arguments(LANG_ENGLISH, "game.html#time"),
             QStringList("C:/Games/Zarvello\\resources\\zarvelloE.chm::/game.html#time"));
}

void tst_help_viewer::the_desktop_shows_what_there_is_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("shows_compiled_help");
    QTest::addColumn<QString>("german");
    QTest::addColumn<QString>("english");

    const QStringList pages{"help/de/index.html", "help/en/index.html"};
    const QStringList all = pages + QStringList{"zarvelloD.chm", "zarvelloE.chm"};
    QTest::newRow("all, with a viewer") << all << true << "zarvelloD.chm"
                                        << "zarvelloE.chm";
    QTest::newRow("all, no viewer") << all << false << "help/de/index.html"
                                    << "help/en/index.html";
    QTest::newRow("pages only") << pages << true << "help/de/index.html"
                                << "help/en/index.html";
    QTest::newRow("compiled only, no viewer known")
        << QStringList{"zarvelloD.chm", "zarvelloE.chm"} << false << "zarvelloD.chm"
        << "zarvelloE.chm";
    QTest::newRow("German only") << QStringList{"zarvelloD.chm"} << true << "zarvelloD.chm"
                                 << "";
}

void tst_help_viewer::the_desktop_shows_what_there_is()
{
    QFETCH(QStringList, files);
    QFETCH(bool, shows_compiled_help);
    QFETCH(QString, german);
    QFETCH(QString, english);
    for (const QString& file : files)
        add_file(file);
    const help_viewer viewer = viewer_of_desktop(shows_compiled_help);
    QVERIFY(!viewer.needs_help_program());
    const auto wanted = [this](const QString& name) {
        return name.isEmpty() ? QUrl() : url_of_file(name);
    };
    QCOMPARE(viewer.url_of(LANG_GERMAN, {}), wanted(german));
    QCOMPARE(viewer.url_of(LANG_ENGLISH, {}), wanted(english));
}

void tst_help_viewer::a_place_is_shown_by_the_browser()
{
    for (const char* file : {"help/de/index.html", "help/de/game.html", "zarvelloD.chm"})
        add_file(file);
    const help_viewer viewer = viewer_of_desktop(true);
    QCOMPARE(viewer.url_of(LANG_GERMAN, "game.html"), url_of_file("help/de/game.html"));
    QUrl place = url_of_file("help/de/game.html");
    place.setFragment("time");
    QCOMPARE(viewer.url_of(LANG_GERMAN, "game.html#time"), place);
}

void tst_help_viewer::a_page_that_leads_to_a_place_is_taken()
{
    for (const char* file :
         {"help/de/index.html", "help/de/game.html", "help/de/at-game-time.html"})
        add_file(file);
    const help_viewer viewer = viewer_of_desktop(false);
    QCOMPARE(viewer.url_of(LANG_GERMAN, "game.html#time"),
             url_of_file("help/de/at-game-time.html"));
}

void tst_help_viewer::a_page_that_is_missing_becomes_the_contents()
{
    add_file("help/de/index.html");
    const help_viewer viewer = viewer_of_desktop(false);
    QCOMPARE(viewer.url_of(LANG_GERMAN, "game.html#time"), url_of_file("help/de/index.html"));
}

void tst_help_viewer::what_is_opened_is_handed_over()
{
    add_file("help/en/index.html");
    viewer_of_desktop(false).open(LANG_ENGLISH, {});
    QCOMPARE(opened, QVector<QUrl>{url_of_file("help/en/index.html")});
}

void tst_help_viewer::without_a_manual_nothing_happens()
{
    viewer_of_desktop(true).open(LANG_GERMAN, {});
    QVERIFY(opened.isEmpty());
}

void tst_help_viewer::the_desktop_is_asked_for_a_program_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("shows");

    const QString cache = "applications/mimeinfo.cache";
    QTest::newRow("no list") << "" << QByteArray() << false;
    QTest::newRow("listed") << cache
                            << QByteArray("[MIME Cache]\napplication/vnd.ms-htmlhelp=x.desktop;\n")
                            << true;
    QTest::newRow("other name of the type")
        << cache << QByteArray("application/x-chm=x.desktop;\n") << true;
    QTest::newRow("chosen by the user")
        << "applications/mimeapps.list"
        << QByteArray("[Default Applications]\napplication/vnd.ms-htmlhelp=x.desktop\n") << true;
    QTest::newRow("chosen in the configuration")
        << "mimeapps.list" << QByteArray("application/x-chm=x.desktop\n") << true;
    QTest::newRow("other types") << cache << QByteArray("application/pdf=x.desktop;\n") << false;
    QTest::newRow("no program") << cache << QByteArray("application/vnd.ms-htmlhelp=\n") << false;
}

void tst_help_viewer::the_desktop_is_asked_for_a_program()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(bool, shows);
    QDir("data").removeRecursively();
    QVERIFY(QDir().mkpath("data/applications"));
    if (!file.isEmpty()) {
        QFile list("data/" + file);
        QVERIFY(list.open(QIODevice::WriteOnly));
        list.write(content);
    }
    const QByteArray own = (QDir::currentPath() + "/data").toUtf8();
    const QByteArray none = (QDir::currentPath() + "/none").toUtf8();
    const std::array<const char*, 4> names = {
        "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"};
    for (const char* name : names)
        qputenv(name, QByteArray(name).endsWith("HOME") ? own : none);
    const bool is_shown = help_viewer::this_platform().shows_compiled_help();
    for (const char* name : names)
        qunsetenv(name);
    QCOMPARE(is_shown, shows);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_help_viewer, QGuiApplication>(argc, argv);
}

#include "tst_help_viewer.moc"
