// The manual is opened from the menu and by F1, in the language of the settings and by the way of
// the platform.

#include "desktop_bench.h"
#include "help_viewer.h"
#include "load_files_option.h"
#include "options.h"

#include <QProcess>
#include <QRegularExpression>

class tst_help_in_window : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { help_viewer::set_platform({}); }
    void the_menu_opens_the_contents_data();
    void the_menu_opens_the_contents();
    void f1_opens_the_page_of_a_dialog();
    void f1_in_the_window_opens_the_contents();
    void the_help_program_gets_the_file();
    void the_process_goes_when_the_help_program_ends();
    void a_help_program_that_is_missing_leaves_nothing_behind();
    void every_key_of_the_menus_is_told();

private:
    void put_in_a_desktop();
    void put_in_windows();
    QUrl page(const QString& name) const;

    QVector<QUrl> opened;
    box_user user;
};

namespace
{

/// Puts a program of that name in front of all others while it lives.
class program_in_path
{
public:
    program_in_path(const QString& name, const QByteArray& script)
        : before(qgetenv("PATH"))
    {
        if (!QDir().mkpath("bin")) qFatal("no folder for a program");
        QFile program("bin/" + name);
        if (!program.open(QIODevice::WriteOnly)) qFatal("no program");
        program.write(script);
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", (QDir::currentPath() + "/bin:").toUtf8() + before);
    }
    ~program_in_path() { qputenv("PATH", before); }
    Q_DISABLE_COPY(program_in_path)

private:
    const QByteArray before;
};

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_help_in_window::init()
{
    user.forget();
    opened.clear();
    for (const char* folder : {"program/resources/help/de", "program/resources/help/en"}) {
        QVERIFY(QDir().mkpath(folder));
        for (const char* name : {"index.html", "load_files.html", "settings.html"}) {
            QFile file(QString("%1/%2").arg(folder, name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }
}

void tst_help_in_window::put_in_a_desktop()
{
    help_viewer::platform desktop;
    desktop.program_folder = QDir::currentPath() + "/program";
    desktop.shows_compiled_help = [] { return false; };
    desktop.open_url = [this](const QUrl& url) {
        opened.append(url);
        return true;
    };
    help_viewer::set_platform(desktop);
}

void tst_help_in_window::put_in_windows()
{
    put_in_a_desktop();
    help_viewer::platform windows;
    windows.program_folder = "C:/Zarvello";
    windows.has_help_program = true;
    windows.open_url = [this](const QUrl& url) {
        opened.append(url);
        return true;
    };
    help_viewer::set_platform(windows);
}

QUrl tst_help_in_window::page(const QString& name) const
{
    return QUrl::fromLocalFile(QDir::currentPath() + "/program/resources/help/" + name);
}

void tst_help_in_window::the_menu_opens_the_contents_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("German") << "1"
                            << "de/index.html";
    QTest::newRow("English") << "2"
                             << "en/index.html";
    QTest::newRow("any other value") << "7"
                                     << "en/index.html";
    const bool is_german = QLocale::system().name().startsWith("de");
    QTest::newRow("of the system") << "0" << (is_german ? "de/index.html" : "en/index.html");
}

void tst_help_in_window::the_menu_opens_the_contents()
{
    QFETCH(QString, language);
    QFETCH(QString, file);
    put_in_a_desktop();
    const desktop_bench bench({"s_language=" + language});
    bench.trigger("actionHilfe");
    QCOMPARE(opened, QVector<QUrl>{page(file)});
    QVERIFY(bench.window->findChildren<QProcess*>().isEmpty());
}

void tst_help_in_window::f1_opens_the_page_of_a_dialog()
{
    put_in_a_desktop();
    const desktop_bench bench({"s_language=1"});
    for (const char* name : {"load_files_option", "Options"}) {
        user.with_dialog(name, [](QWidget* dialog) {
            QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key_F1);
            static_cast<QDialog*>(dialog)->reject();
        });
    }
    bench.trigger("actionLadedateien");
    bench.trigger("actionOptionen");
    QCOMPARE(user.dialogs_left(), 0);
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened[0], page("de/load_files.html"));
    QVERIFY(opened[1].fileName().contains("settings"));
}

void tst_help_in_window::f1_in_the_window_opens_the_contents()
{
    put_in_a_desktop();
    const desktop_bench bench({"s_language=2"});
    QTest::keyClick(bench.window.get(), Qt::Key_F1);
    QCOMPARE(opened, QVector<QUrl>{page("en/index.html")});
}

void tst_help_in_window::the_help_program_gets_the_file()
{
    put_in_windows();
    const program_in_path stand_in("hh.exe", "#!/bin/sh\nprintf '%s' \"$1\" > given.txt\n");
    const desktop_bench bench({"s_language=1"});
    bench.trigger("actionHilfe");
    QTRY_COMPARE(content_of("given.txt"), QByteArray("C:/Zarvello\\resources\\zarvelloD.chm"));
    QTest::keyClick(bench.window.get(), Qt::Key_F1);
    QTRY_COMPARE(content_of("given.txt"),
                 QByteArray("C:/Zarvello\\resources\\zarvelloD.chm::/index.html"));
    QVERIFY(opened.isEmpty());
}

void tst_help_in_window::the_process_goes_when_the_help_program_ends()
{
    put_in_windows();
    const program_in_path stand_in("hh.exe", "#!/bin/sh\nread line\nexit 1\n");
    const desktop_bench bench({"s_language=1"});
    bench.trigger("actionHilfe");
    auto* process = bench.window->findChild<QProcess*>();
    QVERIFY(process);
    QVERIFY(process->waitForStarted());
    QCOMPARE(process->openMode() & QIODevice::ReadWrite, QIODevice::ReadWrite);
    process->write("end\n");
    QTRY_VERIFY(bench.window->findChildren<QProcess*>().isEmpty());
}

void tst_help_in_window::a_help_program_that_is_missing_leaves_nothing_behind()
{
    put_in_windows();
    const desktop_bench bench({"s_language=1"});
    bench.trigger("actionHilfe");
    QTRY_VERIFY(bench.window->findChildren<QProcess*>().isEmpty());
    QVERIFY(user.boxes().isEmpty());
}

/// Also those that no form holds.
void tst_help_in_window::every_key_of_the_menus_is_told()
{
    const QString manual = QStringLiteral(ZARVELLO_SOURCE_DIR "/help/%1/shortcuts.md");
    const QString english = QString::fromUtf8(content_of(manual.arg("en")));
    const QString german = QString::fromUtf8(content_of(manual.arg("de")));
    const auto is_told = [](const QString& page, const QString& keys) {
        const QRegularExpression cell("(?:\\| |, )" + QRegularExpression::escape(keys) +
                                      "(?: \\||, )");
        return cell.match(page).hasMatch();
    };
    const desktop_bench bench;
    int told = 0;
    for (const QAction* action : bench.window->findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            if (key.isEmpty()) continue; // a standard key that this desktop lacks
            const QString keys = key.toString(QKeySequence::PortableText);
            QString keys_in_german = keys;
            keys_in_german.replace("Ctrl", "Strg").replace("Shift", "Umschalt");
            keys_in_german.replace("Del", "Entf").replace("Backspace", "Rücktaste");
            QVERIFY2(is_told(english, keys), qPrintable(keys));
            QVERIFY2(is_told(german, keys_in_german), qPrintable(keys_in_german));
            ++told;
        }
    }
    QVERIFY(told >= 40);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_help_in_window>(argc, argv);
}

#include "tst_help_in_window.moc"
