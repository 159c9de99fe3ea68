#include "download_update_dialog.h"
#include "small_http_server.h"
#include "window_bench.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>

/// The download of a newer version, from a server of the test.
class tst_download_update_dialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void it_looks_as_designed();
    void the_head_fits_whatever_the_version_is();
    void the_bar_shows_the_percent_data();
    void the_bar_shows_the_percent();
    void a_good_download_is_started_and_ends_the_program();
    void an_older_file_is_replaced();
    void a_length_that_is_not_told();
    void a_setup_that_does_not_start_ends_the_program_too();
    void a_download_that_fails_data();
    void a_download_that_fails();
    void a_server_that_is_not_there();
    void a_server_that_falls_silent_data();
    void a_server_that_falls_silent();
    void a_folder_that_cannot_be_written_data();
    void a_folder_that_cannot_be_written();
    void a_full_disk();
    void closing_it_breaks_the_download_off();
    void closing_it_behind_the_end_keeps_the_program_data();
    void closing_it_behind_the_end_keeps_the_program();
    void destroying_it_breaks_the_download_off();
    void a_certificate_that_is_not_trusted();
    void a_certificate_that_is_trusted();
    void a_redirection_is_followed();
    void a_redirection_to_an_open_address_is_not();
    void texts_follow_the_language();

private:
    QStringList started; // the files that the dialog has started
    bool is_startable = true;
};

namespace
{

constexpr int patience = 30000; // ms, of a test that waits for the network
const char setup_file[] = "./update/ZarvelloSetup.exe";
const QString good_text = QStringLiteral(
    "Download komplett!\nDas Programm wird beendet und der Update wird installiert!");
const QString bad_text =
    QStringLiteral("Download wurde mit einem Fehler abgebrochen!\n"
                   "Laden Sie bitte den Update direkt von der Homepage herunter!");

QByteArray setup_program(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 31 + i / 251);
    return bytes;
}

QByteArray stored()
{
    QFile file(setup_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// The dialog and its parts, run within the event loop of an application as in the program.
struct bench {
    explicit bench(const QString& version = QStringLiteral("V4.10.0"))
        : dialog(std::make_unique<download_update_dialog>(version))
    {
    }

    QLabel* head() const { return child_of<QLabel>(*dialog, "LB_head_download"); }
    QLabel* end_label() const { return child_of<QLabel>(*dialog, "LB_download_complete"); }
    QProgressBar* bar() const { return child_of<QProgressBar>(*dialog, "PB_download"); }
    QDialogButtonBox* buttons() const { return child_of<QDialogButtonBox>(*dialog, "buttonBox"); }
    QTimer* timer() const { return child_of<QTimer>(*dialog, "shutdown_timer"); }

    bool shows_failure() const
    {
        return end_label()->isVisible() && end_label()->text() == bad_text &&
               end_label()->styleSheet() == QLatin1String("QLabel { color : red; }") &&
               !bar()->isVisible();
    }
    bool shows_success() const
    {
        return end_label()->isVisible() && end_label()->text() == good_text &&
               end_label()->styleSheet().isEmpty() && !bar()->isVisible();
    }

    /// Executes the dialog; what the test does stands in the function, behind which the dialog is
    /// closed. True if the dialog has ended the program before.
    bool run(const std::function<void()>& what) const
    {
        constexpr int closed = 7;
        const QSignalSpy finished(dialog.get(), &QDialog::finished);
        const auto execute = [&] {
            QTimer::singleShot(0, dialog.get(), [&] {
                what();
                if (!has_quit) dialog->reject();
            });
            dialog->exec();
            if (finished.count() > 0) QCoreApplication::exit(closed);
        };
        QTimer::singleShot(0, dialog.get(), execute);
        return QCoreApplication::exec() != closed;
    }

    /// The time to read is over.
    void let_time_pass() const
    {
        has_quit = fire(timer());
        QVERIFY(has_quit);
    }

    std::unique_ptr<download_update_dialog> dialog;
    mutable bool has_quit = false;
};

} // namespace

void tst_download_update_dialog::init()
{
    QDir("update").removeRecursively();
    QFile::remove("update");
    started.clear();
    is_startable = true;
    download_update_dialog::set_program_starter([this](const QString& file) {
        started.append(file);
        return is_startable;
    });
}

void tst_download_update_dialog::cleanup()
{
    download_update_dialog::set_program_starter({});
    QVERIFY(!update_server::current().is_set());
}

void tst_download_update_dialog::it_looks_as_designed()
{
    const bench shown;
    shown.dialog->show();
    QCOMPARE(shown.dialog->windowTitle(), QString("Download Zarvello"));
    QCOMPARE(shown.dialog->size(), QSize(440, 173));
    QCOMPARE(shown.dialog->minimumSize(), QSize(440, 173));
    QCOMPARE(shown.dialog->maximumSize(), QSize(440, 173));
    QCOMPARE(shown.head()->text(), QString("Download Zarvello V4.10.0"));
    QCOMPARE(shown.head()->alignment(), Qt::AlignCenter);
    QVERIFY(shown.head()->font().pointSize() > shown.dialog->font().pointSize());
    QCOMPARE(shown.bar()->value(), 50);
    QVERIFY(shown.bar()->isVisible());
    QVERIFY(!shown.end_label()->isVisible());
    QCOMPARE(shown.end_label()->text(), good_text);
    QVERIFY(shown.buttons()->button(QDialogButtonBox::Cancel));
    QVERIFY(!shown.timer()->isActive());
    QCOMPARE(shown.timer()->interval(), 10000);
}

void tst_download_update_dialog::the_head_fits_whatever_the_version_is()
{
    const bench shown("V5.0.0 <b>" + QString(60, 'W'));
    shown.dialog->show();
    QCOMPARE(shown.dialog->size(), QSize(440, 173));
    const QFontMetrics metrics(shown.head()->font());
    QVERIFY(metrics.horizontalAdvance(shown.head()->text()) <= shown.head()->width());
    QCOMPARE(shown.head()->textFormat(), Qt::PlainText);
}

void tst_download_update_dialog::the_bar_shows_the_percent_data()
{
    QTest::addColumn<qlonglong>("received");
    QTest::addColumn<qlonglong>("total");
    QTest::addColumn<int>("percent");
    const auto row = [](const char* name, qlonglong received, qlonglong total, int percent) {
        QTest::newRow(name) << received << total << percent;
    };
    // clang-format off
    row("nothing",                      0,          200,        0);
    row("half a percent",               1,          200,        0);
    row("truncated",                    99,         200,        49);
    row("two thirds",                   2,          3,          66);
    row("nearly all",                   199,        200,        99);
    row("all",                          200,        200,        100);
    row("100 / 97 loses a little",      97,         97,         99);
    row("one byte",                     1,          1,          100);
    row("more than an int holds",       3000000000, 4000000000, 75);
    row("total not known",              1000,       -1,         50);
    row("an empty file",                0,          0,          50);
    // clang-format on
}

void tst_download_update_dialog::the_bar_shows_the_percent()
{
    QFETCH(qlonglong, received);
    QFETCH(qlonglong, total);
    const bench shown;
    QVERIFY(QMetaObject::invokeMethod(shown.dialog.get(),
                                      "downloadProgress",
                                      Q_ARG(qlonglong, received),
                                      Q_ARG(qlonglong, total)));
    QTEST(shown.bar()->value(), "percent");
}

void tst_download_update_dialog::a_good_download_is_started_and_ends_the_program()
{
    const QByteArray setup = setup_program(300000);
    small_http_server server;
    server.always_send(http_answer(setup));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const QSignalSpy begun(shown.dialog.get(), &download_update_dialog::start_download);
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_success());
        QCOMPARE(shown.bar()->value(), 100);
        QCOMPARE(stored(), setup);
        QCOMPARE(started, QStringList());
        shown.let_time_pass();
    });
    QVERIFY(has_ended);
    QCOMPARE(started, QStringList(setup_file));
    QCOMPARE(begun.count(), 1);
    QCOMPARE(server.requests(), QVector<QByteArray>{"/software/ZarvelloSetup.exe"});
    QVERIFY(server.heads().first().contains("\r\nAccept-Encoding: identity\r\n"));
}

void tst_download_update_dialog::an_older_file_is_replaced()
{
    QVERIFY(QDir().mkdir("update"));
    QFile older(setup_file);
    QVERIFY(older.open(QIODevice::WriteOnly));
    older.write(QByteArray(5000, 'o'));
    older.close();

    small_http_server server;
    server.always_send(http_answer("new"));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    shown.run([&] { QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience); });
    QCOMPARE(stored(), QByteArray("new"));
}

void tst_download_update_dialog::a_length_that_is_not_told()
{
    small_http_server server;
    server.always_send("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + setup_program(70000));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const QSignalSpy values(shown.bar(), &QProgressBar::valueChanged);
    shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_success());
    });
    QVERIFY(values.count() > 0);
    for (const auto& value : values)
        QCOMPARE(value.first().toInt(), 100); // at the end, or by the total that is known then
    QCOMPARE(stored(), setup_program(70000));
}

void tst_download_update_dialog::a_setup_that_does_not_start_ends_the_program_too()
{
    is_startable = false;
    small_http_server server;
    server.always_send(http_answer("no program"));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    QTest::ignoreMessage(QtWarningMsg, "can't start \"./update/ZarvelloSetup.exe\"");
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        shown.let_time_pass();
    });
    QVERIFY(has_ended);
    QCOMPARE(started, QStringList(setup_file));
}

void tst_download_update_dialog::a_download_that_fails_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QByteArray>("left_behind");
    const QByteArray part = setup_program(400);
    QTest::newRow("cut off in the middle") << http_answer(part, 1000) << part;
    QTest::newRow("cut off before the first byte") << http_answer("", 1000) << QByteArray();
    QTest::newRow("cut off in its head")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Le") << QByteArray();
    QTest::newRow("not there") << http_answer("", "404 Not Found") << QByteArray();
    QTest::newRow("server in trouble") << http_answer("", "500 Trouble") << QByteArray();
    QTest::newRow("no language of the net") << QByteArray("hello\r\n\r\n") << QByteArray();
}

/// The file stays behind as far as it came; it is not started, but the program ends all the same.
void tst_download_update_dialog::a_download_that_fails()
{
    QFETCH(QByteArray, answer);
    small_http_server server;
    server.always_send(answer);
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_failure());
        QCOMPARE(shown.bar()->value(), 100);
        QVERIFY(shown.buttons()->button(QDialogButtonBox::Close));
        shown.let_time_pass();
    });
    QVERIFY(has_ended);
    QCOMPARE(started, QStringList());
    QTEST(stored(), "left_behind");
}

void tst_download_update_dialog::a_server_that_is_not_there()
{
    update_server gone;
    {
        const small_http_server server;
        gone = server.as_update_server();
    }
    const update_server_in_use in_use(gone);
    const bench shown;
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_failure());
        shown.let_time_pass();
    });
    QVERIFY(has_ended);
    QCOMPARE(stored(), QByteArray());
}

void tst_download_update_dialog::a_server_that_falls_silent_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("left_behind");
    QTest::newRow("at once") << QByteArray() << QByteArray();
    QTest::newRow("in the middle") << http_answer("first part", 1000) << QByteArray("first part");
}

void tst_download_update_dialog::a_server_that_falls_silent()
{
    QFETCH(QByteArray, sent);
    small_http_server server;
    server.answers = [sent](QTcpSocket& to, const QByteArray&) { to.write(sent); };
    update_server impatient = server.as_update_server();
    impatient.longest_silence = 300;
    const update_server_in_use in_use(impatient);
    const bench shown;
    shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_failure());
    });
    QTEST(stored(), "left_behind");
}

void tst_download_update_dialog::a_folder_that_cannot_be_written_data()
{
    QTest::addColumn<bool>("folder_is_a_file");
    QTest::newRow("a file in the place of the folder") << true;
    QTest::newRow("a folder in the place of the file") << false;
}

/// Nothing is fetched, and nothing ends the program.
void tst_download_update_dialog::a_folder_that_cannot_be_written()
{
    QFETCH(bool, folder_is_a_file);
    if (folder_is_a_file) {
        QFile file("update");
        QVERIFY(file.open(QIODevice::WriteOnly));
    } else {
        QVERIFY(QDir().mkpath(setup_file));
    }
    small_http_server server;
    server.always_send(http_answer("setup"));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const QSignalSpy begun(shown.dialog.get(), &download_update_dialog::start_download);
    const bool has_ended = shown.run([&] {
        QVERIFY(shown.dialog->isVisible());
        QVERIFY(shown.shows_failure());
        QVERIFY(!shown.timer()->isActive());
        QTest::mouseClick(shown.buttons()->button(QDialogButtonBox::Close), Qt::LeftButton);
        QVERIFY(!shown.dialog->isVisible());
    });
    QVERIFY(!has_ended);
    QCOMPARE(begun.count(), 0);
    QVERIFY(server.requests().isEmpty());
}

void tst_download_update_dialog::a_full_disk()
{
    if (!QFileInfo::exists("/dev/full")) QSKIP("no device that is always full");
    QVERIFY(QDir().mkdir("update"));
    QVERIFY(QFile::link("/dev/full", setup_file));
    small_http_server server;
    server.always_send(http_answer(setup_program(100000)));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_failure());
        shown.let_time_pass();
    });
    QVERIFY(has_ended);
    QCOMPARE(started, QStringList());
}

void tst_download_update_dialog::closing_it_breaks_the_download_off()
{
    small_http_server server;
    QPointer<QTcpSocket> socket;
    server.answers = [&socket](QTcpSocket& to, const QByteArray&) {
        socket = &to;
        to.write(http_answer("first part", 1000));
    };
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const bool has_ended = shown.run([&] {
        QTRY_COMPARE_WITH_TIMEOUT(stored(), QByteArray("first part"), patience);
        QTest::mouseClick(shown.buttons()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        QVERIFY(!shown.dialog->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(socket->state() == QAbstractSocket::UnconnectedState, patience);
    });
    QVERIFY(!has_ended);
    QVERIFY(!shown.timer()->isActive());
    QCOMPARE(shown.end_label()->text(), good_text); // neither an end nor a failure was shown
    QVERIFY(shown.end_label()->isHidden());
    QCOMPARE(stored(), QByteArray("first part"));
    QCOMPARE(started, QStringList());
}

void tst_download_update_dialog::closing_it_behind_the_end_keeps_the_program_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("a good end") << http_answer("setup");
    QTest::newRow("a failure") << http_answer("set", 5);
}

void tst_download_update_dialog::closing_it_behind_the_end_keeps_the_program()
{
    QFETCH(QByteArray, answer);
    small_http_server server;
    server.always_send(answer);
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        shown.dialog->close();
        QVERIFY(!shown.timer()->isActive());
    });
    QVERIFY(!has_ended);
    QCOMPARE(started, QStringList());
}

void tst_download_update_dialog::destroying_it_breaks_the_download_off()
{
    small_http_server server;
    QPointer<QTcpSocket> socket;
    server.answers = [&socket](QTcpSocket& to, const QByteArray&) {
        socket = &to;
        to.write(http_answer("first part", 1000));
    };
    const update_server_in_use in_use(server.as_update_server());
    {
        bench shown;
        shown.run([&] {
            QTRY_COMPARE_WITH_TIMEOUT(stored(), QByteArray("first part"), patience);
            shown.has_quit = true; // it is still open when the program ends
            QCoreApplication::quit();
        });
    }
    QTRY_VERIFY_WITH_TIMEOUT(socket->state() == QAbstractSocket::UnconnectedState, patience);
    QCOMPARE(started, QStringList());
}

void tst_download_update_dialog::a_certificate_that_is_not_trusted()
{
    if (!QSslSocket::supportsSsl()) QSKIP("no secure connections on this machine");
    small_http_server server(small_http_server::speech::secure);
    server.always_send(http_answer("setup"));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    const bool has_ended = shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_failure());
        shown.let_time_pass();
    });
    QVERIFY(has_ended);
    QVERIFY(server.requests().isEmpty());
    QCOMPARE(stored(), QByteArray());
    QCOMPARE(started, QStringList());
}

void tst_download_update_dialog::a_certificate_that_is_trusted()
{
    if (!QSslSocket::supportsSsl()) QSKIP("no secure connections on this machine");
    const trusted_test_certificate trusted;
    small_http_server server(small_http_server::speech::secure);
    server.always_send(http_answer("setup"));
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_success());
    });
    QCOMPARE(stored(), QByteArray("setup"));
}

void tst_download_update_dialog::a_redirection_is_followed()
{
    small_http_server target;
    target.always_send(http_answer("setup"));
    small_http_server server;
    server.always_send("HTTP/1.1 302 Found\r\nLocation: " +
                       target.as_update_server().url("/elsewhere").toEncoded() +
                       "\r\nContent-Length: 0\r\n\r\n");
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_success());
    });
    QCOMPARE(target.requests(), QVector<QByteArray>{"/elsewhere"});
    QCOMPARE(stored(), QByteArray("setup"));
}

void tst_download_update_dialog::a_redirection_to_an_open_address_is_not()
{
    if (!QSslSocket::supportsSsl()) QSKIP("no secure connections on this machine");
    const trusted_test_certificate trusted;
    small_http_server target;
    target.always_send(http_answer("setup"));
    small_http_server server(small_http_server::speech::secure);
    server.always_send("HTTP/1.1 302 Found\r\nLocation: " +
                       target.as_update_server().url("/elsewhere").toEncoded() +
                       "\r\nContent-Length: 0\r\n\r\n");
    const update_server_in_use in_use(server.as_update_server());
    const bench shown;
    shown.run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(shown.timer()->isActive(), patience);
        QVERIFY(shown.shows_failure());
    });
    QCOMPARE(server.requests().size(), 1);
    QVERIFY(target.requests().isEmpty());
    QCOMPARE(stored(), QByteArray());
}

/// Puts every text between angle brackets.
class bracket_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return '<' + QString::fromUtf8(text) + '>';
    }
};

void tst_download_update_dialog::texts_follow_the_language()
{
    QFile file("update"); // in the place of the folder, so that a failure is shown
    QVERIFY(file.open(QIODevice::WriteOnly));
    const bench good;
    const bench bad;
    bad.run([&] {
        bracket_translator brackets;
        QVERIFY(QCoreApplication::installTranslator(&brackets));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(bad.end_label()->text(), '<' + bad_text + '>');
        QCOMPARE(good.end_label()->text(), '<' + good_text + '>');
        QCOMPARE(good.head()->text(), QString("<Download Zarvello> V4.10.0"));
        QCOMPARE(good.dialog->windowTitle(), QString("<Download Zarvello>"));
        QCoreApplication::removeTranslator(&brackets);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(bad.end_label()->text(), bad_text);
        QCOMPARE(good.end_label()->text(), good_text);
    });
}

int main(int argc, char** argv)
{
    return run_window_test<tst_download_update_dialog>(argc, argv);
}

#include "tst_download_update_dialog.moc"
