#include "file_dialog.h"
#include "file_saver.h"
#include "window_bench.h"

#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <sys/stat.h>

namespace
{

/// While it lives no file of this process grows beyond a limit, as on a full disk.
class small_disk
{
public:
    explicit small_disk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit small{bytes, usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~small_disk() { setrlimit(RLIMIT_FSIZE, &usual); }
    small_disk(const small_disk&) = delete;
    small_disk& operator=(const small_disk&) = delete;

private:
    rlimit usual{};
};

/// A user who saves under one name and reads what the box says.
struct saving_desk {
    explicit saving_desk(const QString& name)
        : path(QDir::current().filePath(name))
    {
        file_dialog::set_chooser([this](const file_dialog::request&) { return path; });
    }
    ~saving_desk() { file_dialog::set_chooser({}); }

    bool save(const QByteArray& bytes)
    {
        return file_saver::save(nullptr, {"Titel", "zahlen", "csv", "*.csv", [this, bytes] {
                                              ++asked_for_content;
                                              return bytes;
                                          }});
    }
    /// Saves and gives the reason that the user is told; empty if there was no box.
    QString failure(const QByteArray& bytes)
    {
        user.answer(QMessageBox::Ok);
        if (save(bytes) || user.boxes().size() != 1) return {};
        const QString begin = "Die Datei " + path + " konnte nicht gespeichert werden.\n";
        const QString text = user.boxes().first().text;
        return text.startsWith(begin) ? text.mid(begin.size()) : QString();
    }

    QString path;
    box_user user;
    int asked_for_content = 0;
};

void put(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray bytes_of(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

const QString no_regular_file = "Das ist keine gewöhnliche Datei.";

} // namespace

/// Saving a file where the user wants it, and what can go wrong with it.
class tst_file_saver : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void a_file_is_written_as_a_whole_data();
    void a_file_is_written_as_a_whole();
    void a_full_disk_keeps_the_old_file_data();
    void a_full_disk_keeps_the_old_file();
    void a_failed_content_keeps_the_old_file();
    void a_folder_is_not_replaced();
    void a_pipe_is_not_replaced();
    void a_link_leads_to_its_file();
};

void tst_file_saver::cleanup()
{
    const auto names = QDir::current().entryList(QDir::AllEntries | QDir::System | QDir::Hidden |
                                                 QDir::NoDotAndDotDot);
    for (const QString& name : names)
        if (!QFile::remove(name)) QDir().rmdir(name);
}

void tst_file_saver::a_file_is_written_as_a_whole_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("one byte") << 1;
    QTest::newRow("a table") << 5000;
    QTest::newRow("a picture") << 3000000;
}

void tst_file_saver::a_file_is_written_as_a_whole()
{
    QFETCH(int, size);
    QByteArray bytes(size, 'n');
    bytes.front() = 'f';
    bytes.back() = 'l';
    put("zahlen.csv", "old");
    saving_desk desk("zahlen.csv");
    QVERIFY(desk.save(bytes));
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(bytes_of("zahlen.csv"), bytes);
    QCOMPARE(QDir::current().entryList(QDir::Files), QStringList("zahlen.csv"));
}

void tst_file_saver::a_full_disk_keeps_the_old_file_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("size");
    QTest::newRow("no room at all") << 0 << 100;
    QTest::newRow("less than a buffer") << 1000 << 2000;
    QTest::newRow("more than a buffer") << 20000 << 200000;
}

void tst_file_saver::a_full_disk_keeps_the_old_file()
{
    QFETCH(int, room);
    QFETCH(int, size);
    put("zahlen.csv", "old");
    saving_desk desk("zahlen.csv");
    QString reason;
    {
        const small_disk disk(static_cast<rlim_t>(room));
        reason = desk.failure(QByteArray(size, 'n'));
    }
    QCOMPARE(reason, QString::fromLocal8Bit(strerror(EFBIG)));
    QCOMPARE(bytes_of("zahlen.csv"), QByteArray("old"));
    QCOMPARE(QDir::current().entryList(QDir::Files | QDir::Hidden), QStringList("zahlen.csv"));
}

void tst_file_saver::a_failed_content_keeps_the_old_file()
{
    put("zahlen.csv", "old");
    saving_desk desk("zahlen.csv");
    QCOMPARE(desk.failure({}), QString("Der Inhalt konnte nicht erzeugt werden."));
    QCOMPARE(bytes_of("zahlen.csv"), QByteArray("old"));
}

void tst_file_saver::a_folder_is_not_replaced()
{
    QVERIFY(QDir().mkdir("ordner.csv"));
    saving_desk desk("ordner.csv");
    QCOMPARE(desk.failure("new"), no_regular_file);
    QVERIFY(QFileInfo("ordner.csv").isDir());
}

void tst_file_saver::a_pipe_is_not_replaced()
{
    QCOMPARE(mkfifo("pipe.csv", 0600), 0);
    saving_desk desk("pipe.csv");
    QCOMPARE(desk.failure("new"), no_regular_file);
    QCOMPARE(desk.asked_for_content, 0);
    struct stat state {
    };
    QCOMPARE(lstat("pipe.csv", &state), 0);
    QVERIFY(S_ISFIFO(state.st_mode));
}

void tst_file_saver::a_link_leads_to_its_file()
{
    put("ziel.csv", "old");
    QVERIFY(QFile::link("ziel.csv", "verweis.csv"));
    saving_desk desk("verweis.csv");
    QVERIFY(desk.save("new"));
    QVERIFY(QFileInfo("verweis.csv").isSymLink());
    QCOMPARE(bytes_of("ziel.csv"), QByteArray("new"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_file_saver>(argc, argv);
}

#include "tst_file_saver.moc"
