#include "desktop_bench.h"
#include "download_update_dialog.h"
#include "file_dialog.h"
#include "small_http_server.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSignalSpy>

using general_player::PLAYER_1;

/// The search for a newer version by the real window, at a server of the test.
class tst_update_check : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void without_a_server_nothing_is_asked();
    void the_setting_switches_it_off();
    void a_newer_version_is_offered_data();
    void a_newer_version_is_offered();
    void a_version_is_no_markup();
    void everything_else_is_quiet_data();
    void everything_else_is_quiet();
    void a_huge_answer_is_broken_off_data();
    void a_huge_answer_is_broken_off();
    void an_answer_without_end_is_broken_off();
    void a_server_that_is_not_there();
    void a_server_that_stalls_does_not_delay_the_game();
    void closing_the_window_while_it_waits();
    void asked_by_hand_it_answers_data();
    void asked_by_hand_it_answers();
    void asked_by_hand_while_it_waits();
    void asked_again_and_again();
    void a_certificate_that_is_not_trusted();
    void no_answer_opens_no_download();
    void yes_opens_the_download();
    void the_game_waits_for_the_answer();
    void a_changed_text_is_asked_for_before_the_download();
    void run_and_windows_are_kept_before_the_download();

private:
    box_user user;
};

namespace
{

constexpr int patience = 30000; // ms, of a test that waits for the network
const QString not_by_itself = QStringLiteral("s_auto_update_check=false");
const QString offer_4_10 =
    QStringLiteral("Es ist eine neue Zarvello Version (V4.10.0) verfügbar. Soll die neue Version "
                   "heruntergeladen und installiert werden?");
const QString nothing_newer = QStringLiteral("Es ist keine neuere Zarvello Version verfügbar.");
const QString no_valid_answer = QStringLiteral("Vom Update-Server kam keine gültige Antwort.");

QByteArray version_file(const QByteArray& version)
{
    return "[V4]\r\nZvlHaupt = " + version + "\r\n";
}

bool waits_for_an_answer(const desktop_bench& bench)
{
    return !bench.window->findChildren<QNetworkReply*>().isEmpty();
}

} // namespace

/// The server was asked so often, and every answer is worked off.
#define TRY_ASKED(server, bench, count)                                                            \
    QTRY_VERIFY_WITH_TIMEOUT((server).requests().size() == (count) && !waits_for_an_answer(bench), \
                             patience)

void tst_update_check::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
    QVERIFY(!update_server::current().is_set());
    QDir("update").removeRecursively();
}

void tst_update_check::without_a_server_nothing_is_asked()
{
    const desktop_bench bench;
    QVERIFY(bench.settings().s_auto_update_check());
    QVERIFY(!bench.child<QAction>("actionUpdate")->isEnabled());
    emit bench.window->makeUpdateCheck();
    bench.settle();
    QVERIFY(!bench.window->findChild<QNetworkAccessManager*>());
    QVERIFY(user.boxes().isEmpty());
}

void tst_update_check::the_setting_switches_it_off()
{
    small_http_server server;
    server.always_send(http_answer(version_file("V4.10.0")));
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    bench.settle();
    QVERIFY(!bench.window->findChild<QNetworkAccessManager*>());
    QVERIFY(bench.child<QAction>("actionUpdate")->isEnabled());
}

void tst_update_check::a_newer_version_is_offered_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("shown");
    QTest::newRow("second number, as a number") << version_file("V4.10.0") << "V4.10.0";
    QTest::newRow("third number") << version_file("V4.2.1") << "V4.2.1";
    QTest::newRow("first number") << version_file("V5.0.0") << "V5.0.0";
    QTest::newRow("text behind the version") << version_file("V5.0.7 beta") << "V5.0.7 beta";
    QTest::newRow("UTF-8") << version_file("V5.0.7 f\xc3\xbcr alle") << "V5.0.7 für alle";
}

void tst_update_check::a_newer_version_is_offered()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, shown);
    small_http_server server;
    server.always_send(http_answer(file));
    const update_server_in_use in_use(server.as_update_server());
    user.answer(QMessageBox::No);
    bool is_yes_default = false;
    user.looks_at_box = [&is_yes_default] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        is_yes_default = box && box->defaultButton() == box->button(QMessageBox::Yes) &&
                         box->standardButtons() == (QMessageBox::Yes | QMessageBox::No);
    };
    const desktop_bench bench;
    const QSignalSpy wanted(bench.window.get(), &MainWindow::open_download_dialog);
    TRY_ASKED(server, bench, 1);
    QCOMPARE(server.requests(), QVector<QByteArray>{"/ZVupdate/ZVVersion.txt"});
    QCOMPARE(user.boxes().size(), 1);
    const shown_box& offer = user.boxes().first();
    QCOMPARE(offer.title, QString("Zarvello Info"));
    QCOMPARE(offer.text,
             QString("Es ist eine neue Zarvello Version (%1) verfügbar. Soll die neue Version "
                     "heruntergeladen und installiert werden?")
                 .arg(shown));
    QCOMPARE(offer.icon, QMessageBox::Question);
    QVERIFY(is_yes_default);
    QCOMPARE(wanted.count(), 0);
}

void tst_update_check::a_version_is_no_markup()
{
    small_http_server server;
    server.always_send(http_answer(version_file("V9.9.9<br><img src=x>")));
    const update_server_in_use in_use(server.as_update_server());
    user.answer(QMessageBox::No);
    bool is_plain = false;
    user.looks_at_box = [&is_plain] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        is_plain = box && box->textFormat() == Qt::PlainText;
    };
    const desktop_bench bench;
    TRY_ASKED(server, bench, 1);
    QVERIFY(is_plain);
}

void tst_update_check::everything_else_is_quiet_data()
{
    QTest::addColumn<QByteArray>("answer");
    const QByteArray newer = version_file("V9.9.9");
    // clang-format off
    QTest::newRow("equal")               << http_answer(version_file("V4.2.0"));
    QTest::newRow("older")               << http_answer(version_file("V3.9.9"));
    QTest::newRow("no section")          << http_answer("ZvlHaupt = V9.9.9");
    QTest::newRow("no key")              << http_answer("[V4]\nV9.9.9");
    QTest::newRow("no marks")            << http_answer("V9.9.9");
    QTest::newRow("no third number")     << http_answer(version_file("V9.9"));
    QTest::newRow("nothing behind")      << http_answer(version_file(""));
    QTest::newRow("garbage")             << http_answer(QByteArray("\0\xff\xfe[V4\x80]ZvlHaupt =", 18));
    QTest::newRow("empty")               << http_answer("");
    QTest::newRow("not there")           << http_answer(newer, "404 Not Found");
    QTest::newRow("cut off")             << http_answer(newer, newer.size() + 100);
    QTest::newRow("no language")         << QByteArray("[V4]\r\nZvlHaupt = V9.9.9\r\n\r\n");
    QTest::newRow("hangs up")            << QByteArray();
    // clang-format on
}

void tst_update_check::everything_else_is_quiet()
{
    QFETCH(QByteArray, answer);
    small_http_server server;
    server.always_send(answer);
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    emit bench.window->makeUpdateCheck();
    QVERIFY(waits_for_an_answer(bench));
    QTRY_VERIFY_WITH_TIMEOUT(!waits_for_an_answer(bench), patience);
    QVERIFY(!server.requests().isEmpty());
    QVERIFY(user.boxes().isEmpty());
}

void tst_update_check::a_huge_answer_is_broken_off_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("is_read");
    QTest::newRow("as large as it may be") << 65536 << true;
    QTest::newRow("a byte more") << 65537 << false;
    QTest::newRow("huge") << 5000000 << false;
}

/// The version stands at the end, so it is found only if all is read.
void tst_update_check::a_huge_answer_is_broken_off()
{
    QFETCH(int, size);
    QFETCH(bool, is_read);
    small_http_server server;
    server.always_send(http_answer(version_file("V4.10.0").rightJustified(size, ' ')));
    const update_server_in_use in_use(server.as_update_server());
    if (is_read) user.answer(QMessageBox::No);
    const desktop_bench bench;
    TRY_ASKED(server, bench, 1);
    QCOMPARE(user.boxes().size(), is_read ? 1 : 0);
}

void tst_update_check::an_answer_without_end_is_broken_off()
{
    small_http_server server;
    QPointer<QTcpSocket> socket;
    server.answers = [&socket](QTcpSocket& to, const QByteArray&) {
        socket = &to;
        to.write("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(200000, ' '));
    };
    update_server patient = server.as_update_server();
    patient.longest_silence = 10 * patience; // so that it is not the silence that ends it
    const update_server_in_use in_use(patient);
    const desktop_bench bench;
    TRY_ASKED(server, bench, 1);
    QTRY_VERIFY_WITH_TIMEOUT(socket->state() == QAbstractSocket::UnconnectedState, patience);
    QVERIFY(user.boxes().isEmpty());
}

void tst_update_check::a_server_that_is_not_there()
{
    update_server gone;
    {
        const small_http_server server;
        gone = server.as_update_server();
    }
    const update_server_in_use in_use(gone);
    const desktop_bench bench({not_by_itself});
    emit bench.window->makeUpdateCheck();
    QVERIFY(waits_for_an_answer(bench));
    QTRY_VERIFY_WITH_TIMEOUT(!waits_for_an_answer(bench), patience);
    QVERIFY(user.boxes().isEmpty());
}

void tst_update_check::a_server_that_stalls_does_not_delay_the_game()
{
    small_http_server server; // answers nothing
    update_server silent = server.as_update_server();
    silent.longest_silence = 4000;
    const update_server_in_use in_use(silent);
    const desktop_bench bench;
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, patience);
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.play(12);
    QCOMPARE(bench.table().credit(PLAYER_1), 2035); // the check still waits or has given up
    QTRY_VERIFY_WITH_TIMEOUT(!waits_for_an_answer(bench), patience);
    QCOMPARE(server.requests().size(), 1);
    QVERIFY(user.boxes().isEmpty());
}

void tst_update_check::closing_the_window_while_it_waits()
{
    small_http_server server;
    QPointer<QTcpSocket> socket;
    server.answers = [&socket](QTcpSocket& to, const QByteArray&) { socket = &to; };
    update_server patient = server.as_update_server();
    patient.longest_silence = 10 * patience;
    const update_server_in_use in_use(patient);
    QElapsedTimer clock;
    {
        const desktop_bench bench;
        QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, patience);
        QVERIFY(waits_for_an_answer(bench));
        clock.start();
        // As in the program: closing the window ends the event loop.
        QTimer::singleShot(0, bench.window.get(), &QWidget::close);
        QCOMPARE(QCoreApplication::exec(), 0);
    }
    QVERIFY(clock.elapsed() < patience); // nobody waits for the server
    QTRY_VERIFY_WITH_TIMEOUT(socket->state() == QAbstractSocket::UnconnectedState, patience);
    QVERIFY(user.boxes().isEmpty());
}

void tst_update_check::asked_by_hand_it_answers_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QMessageBox::Icon>("icon");
    const auto row = [](const char* name,
                        const QByteArray& answer,
                        const QString& text,
                        QMessageBox::Icon icon) { QTest::newRow(name) << answer << text << icon; };
    row("newer", http_answer(version_file("V4.10.0")), offer_4_10, QMessageBox::Question);
    row("equal", http_answer(version_file("V4.2.0")), nothing_newer, QMessageBox::Information);
    row("older", http_answer(version_file("V3.9.9")), nothing_newer, QMessageBox::Information);
    row("broken", http_answer("V9.9.9"), no_valid_answer, QMessageBox::Warning);
    row("not there", http_answer("", "404 Not Found"), no_valid_answer, QMessageBox::Warning);
}

void tst_update_check::asked_by_hand_it_answers()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, text);
    QFETCH(QMessageBox::Icon, icon);
    small_http_server server;
    server.always_send(answer);
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    user.answer(icon == QMessageBox::Question ? QMessageBox::No : QMessageBox::Ok);
    bench.trigger("actionUpdate");
    TRY_ASKED(server, bench, 1);
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.boxes().first().title, QString("Zarvello Info"));
    QCOMPARE(user.boxes().first().text, text);
    QCOMPARE(user.boxes().first().icon, icon);
}

/// The user who asks while the program does so by itself gets its answer.
void tst_update_check::asked_by_hand_while_it_waits()
{
    small_http_server server;
    QPointer<QTcpSocket> socket;
    server.answers = [&socket](QTcpSocket& to, const QByteArray&) { socket = &to; };
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench;
    QTRY_VERIFY_WITH_TIMEOUT(socket, patience);
    bench.trigger("actionUpdate");
    bench.trigger("actionUpdate");
    bench.settle();
    QVERIFY(user.boxes().isEmpty());
    user.answer(QMessageBox::Ok);
    socket->write(http_answer(version_file("V4.2.0")));
    TRY_ASKED(server, bench, 1);
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.boxes().first().text, nothing_newer);

    // The next one by itself is quiet again.
    server.always_send(http_answer(version_file("V4.2.0")));
    emit bench.window->makeUpdateCheck();
    TRY_ASKED(server, bench, 2);
    QCOMPARE(user.boxes().size(), 1);
}

void tst_update_check::asked_again_and_again()
{
    small_http_server server;
    server.always_send(http_answer(version_file("V4.2.0")));
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    for (int times = 1; times <= 3; ++times) {
        user.answer(QMessageBox::Ok);
        bench.trigger("actionUpdate");
        TRY_ASKED(server, bench, times);
        QCOMPARE(user.boxes().size(), times);
    }
    QCOMPARE(bench.window->findChildren<QNetworkAccessManager*>().size(), 1);
}

void tst_update_check::a_certificate_that_is_not_trusted()
{
    if (!QSslSocket::supportsSsl()) QSKIP("no secure connections on this machine");
    small_http_server server(small_http_server::speech::secure);
    server.always_send(http_answer(version_file("V9.9.9")));
    const update_server_in_use in_use(server.as_update_server());
    {
        const desktop_bench bench({not_by_itself});
        emit bench.window->makeUpdateCheck();
        QVERIFY(waits_for_an_answer(bench));
        QTRY_VERIFY_WITH_TIMEOUT(!waits_for_an_answer(bench), patience);
        QVERIFY(server.requests().isEmpty());
        QVERIFY(user.boxes().isEmpty());
    }
    // The same server is heard once its certificate is trusted.
    const trusted_test_certificate trusted;
    user.answer(QMessageBox::No);
    const desktop_bench bench;
    TRY_ASKED(server, bench, 1);
    QCOMPARE(user.boxes().size(), 1);
}

void tst_update_check::no_answer_opens_no_download()
{
    small_http_server server;
    server.always_send(http_answer(version_file("V4.10.0")));
    const update_server_in_use in_use(server.as_update_server());
    user.answer(QMessageBox::No);
    const desktop_bench bench;
    TRY_ASKED(server, bench, 1);
    bench.settle();
    QVERIFY(!bench.window->findChild<download_update_dialog*>());
    QCOMPARE(user.boxes().size(), 1);
}

void tst_update_check::yes_opens_the_download()
{
    small_http_server server;
    server.answers = [](QTcpSocket& to, const QByteArray& path) {
        const bool is_version = path == "/ZVupdate/ZVVersion.txt";
        to.write(is_version ? http_answer(version_file("V4.10.0")) : http_answer("part", 1000));
    };
    const update_server_in_use in_use(server.as_update_server());
    user.answer(QMessageBox::Yes);
    QString head;
    user.with_dialog("download_update_dialog", [&](QWidget* dialog) {
        head = child_of<QLabel>(*dialog, "LB_head_download")->text();
        QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 2, patience);
        dialog->close();
    });
    const desktop_bench bench;
    const QSignalSpy wanted(bench.window.get(), &MainWindow::open_download_dialog);
    TRY_ASKED(server, bench, 2);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted.first().first().toString(), QString("V4.10.0"));
    QCOMPARE(head, QString("Download Zarvello V4.10.0"));
    QCOMPARE(server.requests().last(), QByteArray("/software/ZarvelloSetup.exe"));
    bench.settle();
    QVERIFY(!bench.window->findChild<download_update_dialog*>());
    QVERIFY(bench.window->isVisible());
}

void tst_update_check::the_game_waits_for_the_answer()
{
    small_http_server server;
    server.always_send(http_answer(version_file("V4.10.0")));
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    bench.trigger("actionStart");
    game_state under_the_box = game_state::stopped;
    user.looks_at_box = [&] { under_the_box = bench.settings().state(); };
    user.answer(QMessageBox::No);
    emit bench.window->makeUpdateCheck();
    TRY_ASKED(server, bench, 1);
    QVERIFY(under_the_box == game_state::paused);
    QVERIFY(bench.settings().state() == game_state::running);
    bench.click(jetons::PL12);
    bench.play(12);
    QCOMPARE(bench.table().credit(PLAYER_1), 2035);
}

void tst_update_check::a_changed_text_is_asked_for_before_the_download()
{
    small_http_server server;
    server.answers = [](QTcpSocket& to, const QByteArray&) { to.write(http_answer("part", 1000)); };
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    file_dialog::set_chooser([](const file_dialog::request&) { return QString("new.syf"); });
    bench.trigger("actionNeue_Datei");
    file_dialog::set_chooser({});
    bench.settle();
    QPlainTextEdit* text = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->inherits("editor_window")) text = window->findChild<QPlainTextEdit*>();
    QVERIFY(text);
    text->insertPlainText("AL: SZ EC03;");

    user.answer(QMessageBox::Cancel);
    emit bench.window->open_download_dialog("V4.10.0");
    QCOMPARE(user.boxes().size(), 1);
    QVERIFY(server.requests().isEmpty());

    user.answer(QMessageBox::No); // it may be given up
    user.with_dialog("download_update_dialog", [](QWidget* dialog) { dialog->close(); });
    emit bench.window->open_download_dialog("V4.10.0");
    QCOMPARE(user.boxes().size(), 2);
    QCOMPARE(user.dialogs_left(), 0);
}

// Behind it the program ends without a question, on a disk that may be full then.
void tst_update_check::run_and_windows_are_kept_before_the_download()
{
    small_http_server server;
    server.answers = [](QTcpSocket& to, const QByteArray&) { to.write(http_answer("part", 1000)); };
    const update_server_in_use in_use(server.as_update_server());
    const desktop_bench bench({not_by_itself});
    bench.trigger("actionStart");
    bench.play(7);
    bench.play(0);
    bench.trigger("actionSysMonitor_2");
    QByteArray draft;
    bool is_monitor_kept = false;
    user.with_dialog("download_update_dialog", [&](QWidget* dialog) {
        QFile file("Stat_run_1.draft");
        if (file.open(QIODevice::ReadOnly)) draft = file.readAll();
        const QSettings places("./zarvello_desktop.ini", QSettings::IniFormat);
        const QStringList keys = places.allKeys();
        for (const QString& key : keys)
            is_monitor_kept |=
                key.endsWith("_open") && places.value(key).toBool() && !key.contains("MainWindow");
        dialog->close();
    });
    emit bench.window->open_download_dialog("V4.10.0");
    QVERIFY2(draft.endsWith(" 7 0\n"), draft.constData());
    QVERIFY(is_monitor_kept);
    QCOMPARE(bench.settings().state(), game_state::running);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_update_check>(argc, argv);
}

#include "tst_update_check.moc"
