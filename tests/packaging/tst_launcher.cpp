#include "test_box.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

/// The script that starts the program in the folder of its user, with a program of the test in the
/// place of the real one.
class tst_launcher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void a_first_start_makes_the_folder();
    void files_of_the_user_stay_as_they_are();
    void an_example_that_was_removed_does_not_come_back();
    void another_folder_by_the_environment_data();
    void another_folder_by_the_environment();
    void arguments_arrive_data();
    void arguments_arrive();
    void the_status_is_that_of_the_program();
    void it_may_be_called_by_a_link();
    void it_starts_without_examples();
    void a_folder_that_cannot_be_made_data();
    void a_folder_that_cannot_be_made();
    void without_a_home_it_gives_up();

private:
    QString tree; // what is installed, and the home of the user
};

namespace
{

constexpr int longest_wait = 60000; // ms

/// Prints what it was given, a line for each.
const char fake_program[] = "#!/bin/sh\n"
                            "echo \"in:$PWD\"\n"
                            "[ -z \"${ZARVELLO_MISSING_FOLDER:-}\" ] ||"
                            " echo \"missing:$ZARVELLO_MISSING_FOLDER\"\n"
                            "for argument do echo \"argument:$argument\"; done\n"
                            "exit 5\n";

void write_file(const QString& path, const QByteArray& content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), static_cast<qint64>(content.size()));
}

void write_program(const QString& path, const QByteArray& content)
{
    write_file(path, content);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// What a start has done.
struct outcome {
    int status = -1;
    QStringList said; // by the program
    QString errors;
};

outcome start(const QString& launcher,
              const QStringList& arguments,
              const QString& home,
              const QMap<QString, QString>& more = {})
{
    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    for (const char* name :
         {"DISPLAY", "WAYLAND_DISPLAY", "ZARVELLO_HOME", "ZARVELLO_MISSING_FOLDER", "HOME"})
        around.remove(name);
    if (!home.isNull()) around.insert("HOME", home);
    for (auto entry = more.begin(); entry != more.end(); ++entry)
        around.insert(entry.key(), entry.value());
    QProcess process;
    process.setProcessEnvironment(around);
    process.setWorkingDirectory(QDir::currentPath());
    process.start(launcher, arguments);
    outcome result;
    if (!process.waitForFinished(longest_wait)) return result;
    result.status = process.exitCode();
    result.said = QString::fromUtf8(process.readAllStandardOutput())
                      .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

} // namespace

void tst_launcher::init()
{
    tree = QDir::currentPath() + "/an installed tree";
    const QString source = ZARVELLO_SOURCE_DIR "/packaging/zarvello.sh";
    write_program(tree + "/bin/zarvello", content_of(source));
    write_program(tree + "/lib/zarvello/zarvello", fake_program);
    write_file(tree + "/share/zarvello/examples/system/red.syf", "a system");
    write_file(tree + "/share/zarvello/examples/system/two words.syf", "another");
    write_file(tree + "/share/zarvello/examples/sysin/french.inp", "numbers");
    QVERIFY(QDir().mkpath(tree + "/user"));
}

void tst_launcher::cleanup()
{
    QVERIFY(QDir(tree).removeRecursively());
}

void tst_launcher::a_first_start_makes_the_folder()
{
    const QString folder = tree + "/user/Zarvello";
    const outcome first = start(tree + "/bin/zarvello", {}, tree + "/user");
    QCOMPARE(first.said, QStringList("in:" + folder));
    QCOMPARE(first.errors, QString());
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({"sysin", "sysout", "system", "update"}));
    QCOMPARE(content_of(folder + "/system/red.syf"), QByteArray("a system"));
    QCOMPARE(content_of(folder + "/system/two words.syf"), QByteArray("another"));
    QCOMPARE(content_of(folder + "/sysin/french.inp"), QByteArray("numbers"));
    QVERIFY(QDir(folder + "/sysout").isEmpty());
    QVERIFY(QDir(folder + "/update").isEmpty());
    QVERIFY(QFileInfo(folder + "/system/red.syf").isWritable());
}

void tst_launcher::files_of_the_user_stay_as_they_are()
{
    const QString folder = tree + "/user/Zarvello";
    write_file(folder + "/system/red.syf", "my own");
    write_file(folder + "/zarvello.ini", "[option]\n");
    const outcome second = start(tree + "/bin/zarvello", {}, tree + "/user");
    QCOMPARE(second.said, QStringList("in:" + folder));
    QCOMPARE(content_of(folder + "/system/red.syf"), QByteArray("my own"));
    QCOMPARE(content_of(folder + "/zarvello.ini"), QByteArray("[option]\n"));
    QCOMPARE(content_of(folder + "/sysin/french.inp"), QByteArray("numbers")); // was missing
}

void tst_launcher::an_example_that_was_removed_does_not_come_back()
{
    const QString removed = tree + "/user/Zarvello/system/red.syf";
    start(tree + "/bin/zarvello", {}, tree + "/user");
    QVERIFY(QFile::remove(removed));
    const outcome second = start(tree + "/bin/zarvello", {}, tree + "/user");
    QCOMPARE(second.status, 5);
    QVERIFY(!QFile::exists(removed));
}

void tst_launcher::another_folder_by_the_environment_data()
{
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("folder");
    const QString here = QDir::currentPath();
    QTest::newRow("absolute") << here + "/an installed tree/games"
                              << here + "/an installed tree/games";
    QTest::newRow("folders above it")
        << here + "/an installed tree/a/b c/d" << here + "/an installed tree/a/b c/d";
    QTest::newRow("relative") << "an installed tree/games" << here + "/an installed tree/games";
}

void tst_launcher::another_folder_by_the_environment()
{
    QFETCH(QString, named);
    QFETCH(QString, folder);
    const outcome result =
        start(tree + "/bin/zarvello", {}, tree + "/user", {{"ZARVELLO_HOME", named}});
    QCOMPARE(result.said, QStringList("in:" + folder));
    QVERIFY(QFile::exists(folder + "/system/red.syf"));
    QVERIFY(!QFile::exists(tree + "/user/Zarvello"));
}

void tst_launcher::arguments_arrive_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("arrived");
    const QString here = QDir::currentPath() + '/';
    const QStringList file = {"an installed tree/user/my file.syf"};
    QTest::newRow("a file") << file << QStringList{here + file.first()};
    QTest::newRow("a file, absolute")
        << QStringList{here + file.first()} << QStringList{here + file.first()};
    QTest::newRow("no file") << QStringList{"nowhere.syf"} << QStringList{"nowhere.syf"};
    QTest::newRow("a folder") << QStringList{"an installed tree"}
                              << QStringList{"an installed tree"};
    QTest::newRow("options and signs")
        << QStringList{"-style", "fusion", "a  b", "*", "$HOME", "\"'\\", ""}
        << QStringList{"-style", "fusion", "a  b", "*", "$HOME", "\"'\\", ""};
    QTest::newRow("order") << QStringList{"--one", file.first(), "two"}
                           << QStringList{"--one", here + file.first(), "two"};
}

void tst_launcher::arguments_arrive()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, arrived);
    write_file(tree + "/user/my file.syf", "a system");
    QStringList expected = {"in:" + tree + "/user/Zarvello"};
    for (const QString& argument : arrived)
        expected.append("argument:" + argument);
    QCOMPARE(start(tree + "/bin/zarvello", given, tree + "/user").said, expected);
}

void tst_launcher::the_status_is_that_of_the_program()
{
    QCOMPARE(start(tree + "/bin/zarvello", {}, tree + "/user").status, 5);
}

void tst_launcher::it_may_be_called_by_a_link()
{
    QVERIFY(QDir().mkpath(tree + "/elsewhere"));
    QVERIFY(QFile::link("../bin/zarvello", tree + "/elsewhere/play"));
    const outcome result = start(tree + "/elsewhere/play", {}, tree + "/user");
    QCOMPARE(result.said, QStringList("in:" + tree + "/user/Zarvello"));
    QVERIFY(QFile::exists(tree + "/user/Zarvello/system/red.syf"));
}

void tst_launcher::it_starts_without_examples()
{
    QVERIFY(QDir(tree + "/share").removeRecursively());
    const outcome result = start(tree + "/bin/zarvello", {}, tree + "/user");
    QCOMPARE(result.said, QStringList("in:" + tree + "/user/Zarvello"));
    QCOMPARE(result.errors, QString());
    QVERIFY(QDir(tree + "/user/Zarvello/system").isEmpty());
}

void tst_launcher::a_folder_that_cannot_be_made_data()
{
    QTest::addColumn<QString>("file_in_the_way");
    QTest::addColumn<bool>("has_screen");
    QTest::newRow("the folder") << "/Zarvello" << false;
    QTest::newRow("the folder, before a screen") << "/Zarvello" << true;
    QTest::newRow("one in it") << "/Zarvello/sysout" << false;
    QTest::newRow("one in it, before a screen") << "/Zarvello/sysout" << true;
}

/// It is told on the terminal; before a screen the program shows it too, and does nothing else.
void tst_launcher::a_folder_that_cannot_be_made()
{
    QFETCH(QString, file_in_the_way);
    QFETCH(bool, has_screen);
    const QString folder = tree + "/user" + file_in_the_way;
    write_file(folder, "in the way");
    QMap<QString, QString> screen;
    if (has_screen) screen.insert("DISPLAY", ":99");
    const outcome result = start(tree + "/bin/zarvello", {}, tree + "/user", screen);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, "zarvello: can't make or enter the folder " + folder + '\n');
    QCOMPARE(result.said.contains("missing:" + folder), has_screen);
    QCOMPARE(result.said.size(), has_screen ? 2 : 0);
    QCOMPARE(content_of(folder), QByteArray("in the way"));
}

void tst_launcher::without_a_home_it_gives_up()
{
    const outcome result = start(tree + "/bin/zarvello", {}, QString());
    QVERIFY(result.status != 0);
    QVERIFY(result.status != 5);
    QVERIFY(result.errors.contains("HOME"));
    QVERIFY(result.said.isEmpty());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_launcher>(argc, argv);
}

#include "tst_launcher.moc"
