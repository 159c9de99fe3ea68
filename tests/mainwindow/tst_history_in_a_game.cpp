#include "desktop_bench.h"
#include "file_dialog.h"
#include "statusprogressbar.h"

#include <QComboBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTableWidget>

#include <utility>

/// The year permanence around the real table: what games leave in the file, in good and bad
/// times, and what a history brings back into statistic and permanence.
class tst_history_in_a_game : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void a_stopped_game_is_a_block();
    void a_game_without_a_coup_leaves_nothing();
    void the_end_of_the_program_saves_the_run();
    void hand_changes_and_chosen_numbers_of_a_load_run();
    void a_run_that_cannot_be_saved_is_offered_again();
    void a_start_without_the_lost_run_data();
    void a_start_without_the_lost_run();
    void the_end_with_a_run_that_cannot_be_saved_data();
    void the_end_with_a_run_that_cannot_be_saved();
    void a_draft_of_a_killed_game_is_taken();

    void the_actions_follow_the_game();
    void the_permanence_window_pauses_the_game();
    void the_year_file_shows_the_running_game();

    void a_history_is_loaded_by_the_dialog();
    void a_history_file_is_chosen_by_its_field();
    void a_history_replaces_the_statistic_data();
    void a_history_replaces_the_statistic();
    void a_history_that_ends_on_a_hand_change_lets_the_dialog_close();

    void a_load_at_the_start();
    void a_load_at_the_start_without_files();
    void a_load_at_the_start_that_ends_on_a_hand_change();
    void the_window_lives_while_a_hundred_thousand_coups_load();
    void a_window_closed_in_a_load_sends_nothing_more();
    void a_window_may_die_in_a_load_data();
    void a_window_may_die_in_a_load();
    void a_very_long_history();

private:
    void answer(QMessageBox::StandardButton button) { user.answer(button); }
    void open_history(const desktop_bench& bench, std::function<void(QWidget&)> act);

    box_user user;
    QString chosen;
};

namespace
{

const QString start_load = QStringLiteral("s_use_history_throws_startup=true");
const QByteArray three_coups = "5\n0\n-\n17\n";

QString year_file()
{
    return QStringLiteral("Stat%1.log").arg(QDate::currentDate().year());
}

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

/// The block of a file without its dates: " Coups : 2" and the lines behind it.
QByteArray without_dates(const QByteArray& content)
{
    const int place = content.indexOf(" Coups : ");
    return place < 0 ? QByteArray() : content.mid(place);
}

QByteArray block_of_today(const QByteArray& lines)
{
    return "::  " + QDateTime::currentDateTime().toString("dddd,dd.MMMM.yyyy hh:mm:ss").toUtf8() +
           " - x Coups : 1\n" + lines + "\n";
}

QList<int> permanence(const desktop_bench& bench)
{
    QList<int> numbers;
    for (const quint8 number : bench.numbers().history().all())
        numbers.append(number);
    return numbers;
}

void press_ok(QWidget& dialog)
{
    child_of<QDialogButtonBox>(dialog, QStringLiteral("buttonBox"))
        ->button(QDialogButtonBox::Ok)
        ->click();
}

QStringList protocol_of(QWidget& dialog)
{
    QStringList lines;
    const auto* list = child_of<QListWidget>(dialog, QStringLiteral("LW_load_protocol"));
    for (int row = 0; row < list->count(); ++row)
        lines.append(list->item(row)->text());
    return lines;
}

/// Waits for the other thread by the events that it sends, up to a limit of rounds.
template <typename condition>
bool comes_true(const condition& is_true)
{
    for (int i = 0; i < 200'000 && !is_true(); ++i)
        QCoreApplication::processEvents();
    return is_true();
}

void press_load(QWidget& dialog)
{
    child_of<QPushButton>(dialog, QStringLiteral("PB_load_file"))->click();
    QVERIFY(comes_true([&dialog] {
        return child_of<QDialogButtonBox>(dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->isEnabled();
    }));
}

/// The end of a program ends its dialogs too; here the next test goes on behind it.
void forget_the_end_of_the_program()
{
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QCoreApplication::exec();
}

/// The next window loads the history at its start; no event has run in it yet.
void restart_with_a_load(desktop_bench& bench)
{
    bench.settings().set_s_use_history_throws_startup(true);
    bench.window.reset(); // writes the settings
    bench.window = std::make_unique<MainWindow>();
    bench.window->show();
}

int bar_state_of(const desktop_bench& bench)
{
    return bench.child<StatusProgressBar>("time_bar")->get_state();
}

bool is_enabled(const desktop_bench& bench, const char* name)
{
    if (auto* action = bench.window->findChild<QAction*>(QString::fromLatin1(name)))
        return action->isEnabled();
    return bench.child<QWidget>(name)->isEnabled();
}

} // namespace

void tst_history_in_a_game::init()
{
    user.forget();
    const QStringList files = QDir().entryList(QDir::Files | QDir::System);
    for (const QString& file : files)
        QFile::remove(file);
    QDir().rmdir(year_file());
    file_dialog::set_chooser([this](const file_dialog::request&) { return chosen; });
}

void tst_history_in_a_game::cleanup()
{
    file_dialog::set_chooser({});
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_history_in_a_game::open_history(const desktop_bench& bench,
                                         std::function<void(QWidget&)> act)
{
    user.with_dialog("history_dialog", [act = std::move(act)](QWidget* dialog) {
        act(*dialog);
        press_ok(*dialog);
    });
    bench.trigger("actionHistory_laden");
}

// ---- the run in play

void tst_history_in_a_game::a_stopped_game_is_a_block()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(7);
    bench.play(0);
    QVERIFY(!QFile::exists(year_file()));
    answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(without_dates(content_of(year_file())), QByteArray(" Coups : 2\n07  0\n\n"));

    bench.trigger("actionStart");
    bench.play(36);
    answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    const QByteArray content = content_of(year_file());
    QCOMPARE(content.count("::  "), 2);
    QVERIFY(content.endsWith(" Coups : 1\n36\n\n"));
}

void tst_history_in_a_game::a_game_without_a_coup_leaves_nothing()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QVERIFY(!QFile::exists(year_file()));
}

void tst_history_in_a_game::the_end_of_the_program_saves_the_run()
{
    {
        const desktop_bench bench;
        bench.trigger("actionStart");
        bench.play(12);
    }
    QCOMPARE(without_dates(content_of(year_file())), QByteArray(" Coups : 1\n12\n\n"));
}

// Of the file nothing is recorded; the number chosen by hand is.
void tst_history_in_a_game::hand_changes_and_chosen_numbers_of_a_load_run()
{
    for (const bool are_recorded : {false, true}) {
        QFile::remove(year_file());
        put("table.inp", "5\n-\n6\n");
        {
            const desktop_bench bench(
                {QStringLiteral("s_add_lofil_throw_to_year_stat=%1")
                     .arg(are_recorded ? QLatin1String("true") : QLatin1String("false"))});
            load_file_settings choice;
            choice.active = true;
            choice.files[0] = QStringLiteral("table.inp");
            bench.numbers().set_load_files(choice);
            bench.trigger("actionStart");
            bench.right_click_wheel();
            bench.finish_coup();
            bench.play(21);
            bench.right_click_wheel();
            bench.finish_coup();
            QCOMPARE(permanence(bench), (QList<int>{5, 21, 99, 6}));
        }
        QCOMPARE(without_dates(content_of(year_file())),
                 are_recorded ? QByteArray(" Coups : 3\n05 21 -- 06\n\n")
                              : QByteArray(" Coups : 1\n21\n\n"));
    }
}

void tst_history_in_a_game::a_run_that_cannot_be_saved_is_offered_again()
{
    QVERIFY(QDir().mkdir(year_file()));
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(7);
    answer(QMessageBox::Yes);
    answer(QMessageBox::Ok);
    bench.trigger("actionStop");
    QCOMPARE(user.boxes().size(), 2);
    QCOMPARE(user.boxes()[1].title, QStringLiteral("Zarvello Info"));
    QVERIFY(user.boxes()[1].text.startsWith(
        QStringLiteral("Die Jahrespermanenz \"%1\" konnte nicht geschrieben werden!")
            .arg(year_file())));
    QCOMPARE(user.boxes()[1].icon, QMessageBox::Warning);

    QVERIFY(QDir().rmdir(year_file()));
    bench.trigger("actionStart"); // it can be written now
    QCOMPARE(user.boxes().size(), 2);
    QCOMPARE(without_dates(content_of(year_file())), QByteArray(" Coups : 1\n07\n\n"));
    QCOMPARE(bench.settings().state(), game_state::running);
}

void tst_history_in_a_game::a_start_without_the_lost_run_data()
{
    QTest::addColumn<bool>("is_dropped");
    QTest::newRow("yes drops it") << true;
    QTest::newRow("no keeps it") << false;
}

void tst_history_in_a_game::a_start_without_the_lost_run()
{
    QFETCH(bool, is_dropped);
    QVERIFY(QDir().mkdir(year_file()));
    {
        const desktop_bench bench;
        bench.trigger("actionStart");
        bench.play(7);
        answer(QMessageBox::Yes);
        answer(QMessageBox::Ok);
        bench.trigger("actionStop");
        answer(is_dropped ? QMessageBox::Yes : QMessageBox::No);
        bench.trigger("actionStart");
        QCOMPARE(user.boxes().size(), 3);
        QCOMPARE(bench.settings().state(), is_dropped ? game_state::running : game_state::stopped);
        QVERIFY(QDir().rmdir(year_file()));
    }
    QCOMPARE(without_dates(content_of(year_file())),
             is_dropped ? QByteArray() : QByteArray(" Coups : 1\n07\n\n"));
}

void tst_history_in_a_game::the_end_with_a_run_that_cannot_be_saved_data()
{
    QTest::addColumn<bool>("ends");
    QTest::newRow("yes ends") << true;
    QTest::newRow("no goes on") << false;
}

void tst_history_in_a_game::the_end_with_a_run_that_cannot_be_saved()
{
    QFETCH(bool, ends);
    QVERIFY(QDir().mkdir(year_file()));
    {
        desktop_bench bench;
        bench.trigger("actionStart");
        bench.play(7);
        answer(ends ? QMessageBox::Yes : QMessageBox::No);
        QCOMPARE(bench.window->close(), ends);
        QCOMPARE(user.boxes().size(), 1);
        QVERIFY(user.boxes()[0].text.endsWith(
            QStringLiteral("Der letzte Lauf (1 Coups) wird beim nächsten Programmstart noch einmal "
                           "geschrieben.")));
        forget_the_end_of_the_program();
    }
    QVERIFY(QDir().rmdir(year_file()));
    QVERIFY(QFile::exists(QStringLiteral("Stat_run_1.draft")));
    const desktop_bench next;
    QCOMPARE(without_dates(content_of(year_file())), QByteArray(" Coups : 1\n07\n\n"));
    QVERIFY(!QFile::exists(QStringLiteral("Stat_run_1.draft")));
}

void tst_history_in_a_game::a_draft_of_a_killed_game_is_taken()
{
    put("Stat_run_1.draft", "2018-03-01T20:15:07\n2018-03-01T20:16:07 1 0\n");
    const desktop_bench bench;
    QCOMPARE(without_dates(content_of(QStringLiteral("Stat2018.log"))),
             QByteArray(" Coups : 2\n01  0\n\n"));
    QCOMPARE(permanence(bench), QList<int>());
}

// ---- the windows

void tst_history_in_a_game::the_actions_follow_the_game()
{
    const desktop_bench bench;
    const auto enabled = [&bench] {
        return QList<bool>{is_enabled(bench, "actionHistory_laden"),
                           is_enabled(bench, "actionAktuelle_Permanenz"),
                           is_enabled(bench, "actionJahrespermanenz")};
    };
    QCOMPARE(enabled(), (QList<bool>{true, true, true}));
    bench.trigger("actionStart");
    QCOMPARE(enabled(), (QList<bool>{false, true, true}));
    bench.trigger("actionPause");
    QCOMPARE(enabled(), (QList<bool>{false, true, true}));
    answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(enabled(), (QList<bool>{true, true, true}));
}

void tst_history_in_a_game::the_permanence_window_pauses_the_game()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(7);
    game_state state_meanwhile = game_state::stopped;
    QString first_number;
    user.with_dialog("actual_permanence", [&](QWidget* window) {
        state_meanwhile = bench.settings().state();
        first_number =
            child_of<QTableWidget>(*window, QStringLiteral("permanence_table"))->item(3, 1)->text();
        press_ok(*window);
    });
    bench.trigger("actionAktuelle_Permanenz");
    QCOMPARE(first_number, QStringLiteral("7"));
    QCOMPARE(state_meanwhile, game_state::paused);
    QCOMPARE(bench.settings().state(), game_state::running);

    // A pause of the user goes on behind it, also when the window is closed by its frame.
    bench.trigger("actionPause");
    user.with_dialog("actual_permanence", [](QWidget* window) { window->close(); });
    bench.trigger("actionAktuelle_Permanenz");
    QCOMPARE(bench.settings().state(), game_state::paused);
}

void tst_history_in_a_game::the_year_file_shows_the_running_game()
{
    put(year_file(), "::  a\n01\n\n");
    const desktop_bench bench;
    const auto shown = [&] {
        QString text;
        user.with_dialog("year_file_permanenz", [&text](QWidget* window) {
            text = child_of<QPlainTextEdit>(*window, QStringLiteral("PE_year_file"))->toPlainText();
            window->close();
        });
        bench.trigger("actionJahrespermanenz");
        return text;
    };
    QCOMPARE(shown(), QStringLiteral("::  a\n01\n*aktueller Lauf\n-"));
    bench.trigger("actionStart");
    bench.play(7);
    QVERIFY(shown().startsWith(QStringLiteral("::  a\n01\n*aktueller Lauf\n::  ")));
    QVERIFY(shown().endsWith(QStringLiteral(" Coups : 1\n07\n\n")));
    QCOMPARE(content_of(year_file()), QByteArray("::  a\n01\n\n"));
    QCOMPARE(bench.settings().state(), game_state::running);
}

// ---- the dialog

void tst_history_in_a_game::a_history_is_loaded_by_the_dialog()
{
    put(year_file(), block_of_today("05 17\n--\n 0 36\n"));
    const desktop_bench bench;
    QSignalSpy counted(bench.window.get(), &MainWindow::update_statistic_data);
    QSignalSpy shown(bench.window.get(), &MainWindow::set_throw);
    QStringList protocol;
    open_history(bench, [&protocol](QWidget& dialog) {
        child_of<QRadioButton>(dialog, QStringLiteral("RB_history_year"))->click();
        press_load(dialog);
        protocol = protocol_of(dialog);
    });
    QCOMPARE(permanence(bench), (QList<int>{5, 17, 99, 0, 36}));
    QCOMPARE(counted.count(), 4);
    QList<bool> updates;
    for (const QList<QVariant>& arguments : counted)
        updates.append(arguments[1].toBool());
    QCOMPARE(updates, (QList<bool>{false, false, false, true}));
    QCOMPARE(shown, (QList<QVariantList>{{36}}));
    QCOMPARE(protocol.mid(1),
             QStringList({QStringLiteral("Das Laden war erfolgreich! Coups: 4 Handwechsel: 1"),
                          QStringLiteral("Einarbeitung läuft - bitte warten ..."),
                          QStringLiteral("Einarbeitung komplett und erfolgreich!")}));
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_R_10")->text(), QStringLiteral("36"));
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_N_9")->text(), QStringLiteral("0"));

    // It is no part of the game that follows.
    bench.trigger("actionStart");
    answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(content_of(year_file()).count("::  "), 1);
}

void tst_history_in_a_game::a_history_file_is_chosen_by_its_field()
{
    put("table.inp", three_coups);
    chosen = QDir::current().absoluteFilePath(QStringLiteral("table.inp"));
    const desktop_bench bench;
    open_history(bench, [](QWidget& dialog) {
        QTest::mouseClick(child_of<QLineEdit>(dialog, QStringLiteral("LE_history_loadfile")),
                          Qt::LeftButton);
        desktop_bench::settle();
        press_load(dialog);
    });
    QCOMPARE(permanence(bench), (QList<int>{5, 0, 99, 17}));
}

void tst_history_in_a_game::a_history_replaces_the_statistic_data()
{
    QTest::addColumn<bool>("is_cleared");
    QTest::newRow("yes") << true;
    QTest::newRow("no breaks off") << false;
}

void tst_history_in_a_game::a_history_replaces_the_statistic()
{
    QFETCH(bool, is_cleared);
    put("table.inp", three_coups);
    chosen = QDir::current().absoluteFilePath(QStringLiteral("table.inp"));
    const desktop_bench bench;
    bench.numbers().add_to_permanence(1);
    QString last_line;
    answer(is_cleared ? QMessageBox::Yes : QMessageBox::No);
    open_history(bench, [&last_line](QWidget& dialog) {
        QTest::mouseClick(child_of<QLineEdit>(dialog, QStringLiteral("LE_history_loadfile")),
                          Qt::LeftButton);
        desktop_bench::settle();
        child_of<QRadioButton>(dialog, QStringLiteral("RB_reset_statistic"))->click();
        press_load(dialog);
        last_line = protocol_of(dialog).last();
    });
    QCOMPARE(permanence(bench), is_cleared ? QList<int>({5, 0, 99, 17}) : QList<int>({1}));
    QCOMPARE(last_line,
             is_cleared ? QStringLiteral("Einarbeitung komplett und erfolgreich!")
                        : QStringLiteral("Einarbeitung nicht erfolgreich!"));
}

void tst_history_in_a_game::a_history_that_ends_on_a_hand_change_lets_the_dialog_close()
{
    put(year_file(), block_of_today("05\n--\n"));
    const desktop_bench bench;
    open_history(bench, [](QWidget& dialog) {
        child_of<QRadioButton>(dialog, QStringLiteral("RB_history_year"))->click();
        press_load(dialog);
    });
    QCOMPARE(permanence(bench), (QList<int>{5, 99}));
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_N_10")->text(), QStringLiteral("--"));
}

// ---- the load at the start

void tst_history_in_a_game::a_load_at_the_start()
{
    put(year_file(), block_of_today("05 17 36\n"));
    put("Stat2019.log", block_of_today("01\n"));
    const desktop_bench loading({start_load, QStringLiteral("s_history_year_index=0")});
    QVERIFY(comes_true([&] { return is_enabled(loading, "actionStart"); }));
    QCOMPARE(permanence(loading), (QList<int>{5, 17, 36})); // the year before is not asked for
    QCOMPARE(bar_state_of(loading), bar_state::manual_stopped);
    QVERIFY(is_enabled(loading, "PB_replay"));
    QVERIFY(!is_enabled(loading, "PB_super_short_play")); // it was not before
    QVERIFY(is_enabled(loading, "actionLadedateien"));
    QVERIFY(is_enabled(loading, "actionHistory_laden"));
    QCOMPARE(loading.child<QLabel>("LB_ND_DA_R_10")->text(), QStringLiteral("36"));

    loading.trigger("actionStart"); // the game plays as ever behind it
    loading.play(2);
    QCOMPARE(permanence(loading), (QList<int>{5, 17, 36, 2}));
    QVERIFY(!is_enabled(loading, "actionStart"));
}

void tst_history_in_a_game::a_load_at_the_start_without_files()
{
    const desktop_bench bench({start_load});
    QVERIFY(comes_true([&] { return is_enabled(bench, "actionStart"); }));
    QCOMPARE(bar_state_of(bench), bar_state::manual_stopped);
    QCOMPARE(permanence(bench), QList<int>());
}

// Nothing ends it but a later load whose last entry is a number.
void tst_history_in_a_game::a_load_at_the_start_that_ends_on_a_hand_change()
{
    put(year_file(), block_of_today("05\n--\n"));
    put("table.inp", three_coups);
    const desktop_bench bench({start_load});
    QVERIFY(comes_true([&] { return permanence(bench).size() == 2; }));
    for (int i = 0; i < 100; ++i)
        desktop_bench::settle();
    QVERIFY(!is_enabled(bench, "actionStart"));
    QVERIFY(!is_enabled(bench, "PB_replay"));
    QCOMPARE(bar_state_of(bench), bar_state::history_loading);
    QMetaObject::invokeMethod(bench.window.get(), "on_actionStart_triggered");
    QCOMPARE(bench.settings().state(), game_state::stopped);

    chosen = QDir::current().absoluteFilePath(QStringLiteral("table.inp"));
    open_history(bench, [](QWidget& dialog) {
        QTest::mouseClick(child_of<QLineEdit>(dialog, QStringLiteral("LE_history_loadfile")),
                          Qt::LeftButton);
        desktop_bench::settle();
        press_load(dialog);
    });
    QVERIFY(comes_true([&] { return is_enabled(bench, "actionStart"); }));
    QVERIFY(is_enabled(bench, "PB_replay"));
    QCOMPARE(bar_state_of(bench), bar_state::manual_stopped);
}

namespace
{

QByteArray many_coups(int count)
{
    QByteArray line;
    for (int number = 1; number <= 25; ++number)
        line += QByteArray::number(number) + (number == 25 ? "\n" : " ");
    return line.repeated(count / 25);
}

} // namespace

// The events come by the number of coups between them, whatever the speed of the machine: at most
// a thousand while they are sent.
void tst_history_in_a_game::the_window_lives_while_a_hundred_thousand_coups_load()
{
    put(year_file(), block_of_today(many_coups(100'000)));
    desktop_bench bench;
    restart_with_a_load(bench);
    int looks = 0;
    int longest = 0;
    int sent_before = 0;
    bool is_posted = false;
    bool was_start_enabled = false;
    connect(bench.window.get(), &MainWindow::update_statistic_data, this, [&] {
        if (std::exchange(is_posted, true)) return;
        QMetaObject::invokeMethod(
            this,
            [&] {
                const int sent = static_cast<int>(bench.numbers().history().all().size());
                longest = qMax(longest, sent - sent_before);
                sent_before = sent;
                ++looks;
                is_posted = false;
                if (sent < 100'000) was_start_enabled |= is_enabled(bench, "actionStart");
            },
            Qt::QueuedConnection);
    });
    QVERIFY(comes_true([&] { return is_enabled(bench, "actionStart"); }));
    QCoreApplication::sendPostedEvents(this);
    QCOMPARE(bench.numbers().history().all().size(), std::size_t(100'000));
    QVERIFY2(looks >= 99, qPrintable(QString::number(looks)));
    QVERIFY2(longest <= 1000, qPrintable(QString::number(longest)));
    QVERIFY(!was_start_enabled);
}

void tst_history_in_a_game::a_window_closed_in_a_load_sends_nothing_more()
{
    put(year_file(), block_of_today(many_coups(50'000)));
    desktop_bench bench;
    restart_with_a_load(bench);
    bool is_posted = false;
    connect(bench.window.get(), &MainWindow::update_statistic_data, this, [&] {
        if (std::exchange(is_posted, true)) return;
        QMetaObject::invokeMethod(
            this, [&] { bench.window->close(); }, Qt::QueuedConnection);
    });
    QVERIFY(comes_true([&] { return !bench.window->isVisible(); }));
    desktop_bench::settle();
    QVERIFY(bench.numbers().history().all().size() <= 1000);
    forget_the_end_of_the_program();
}

void tst_history_in_a_game::a_window_may_die_in_a_load_data()
{
    QTest::addColumn<bool>("in_the_read");
    QTest::newRow("while the file is read") << true;
    QTest::newRow("while the numbers are sent") << false;
}

void tst_history_in_a_game::a_window_may_die_in_a_load()
{
    QFETCH(bool, in_the_read);
    put(year_file(), block_of_today(many_coups(50'000)));
    desktop_bench bench;
    restart_with_a_load(bench);
    bool is_posted = false;
    const auto let_it_die = [&] { bench.window.reset(); };
    if (in_the_read) QMetaObject::invokeMethod(this, let_it_die, Qt::QueuedConnection);
    connect(bench.window.get(), &MainWindow::update_statistic_data, this, [&] {
        if (std::exchange(is_posted, true)) return;
        QMetaObject::invokeMethod(this, let_it_die, Qt::QueuedConnection);
    });
    QVERIFY(comes_true([&] { return !bench.window; }));
    QCoreApplication::processEvents();
}

// A million coups, which take a second or two; the limit notices costs that grow with the square.
// Under a sanitizer, which makes each coup many times as dear, there are less of them.
void tst_history_in_a_game::a_very_long_history()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr int coups = 100'000;
#else
    constexpr int coups = 1'000'000;
#endif
    put(year_file(), block_of_today(many_coups(coups)));
    QElapsedTimer clock;
    clock.start();
    const desktop_bench bench({start_load});
    QVERIFY(comes_true([&] { return is_enabled(bench, "actionStart"); }));
    QCOMPARE(bench.numbers().history().all().size(), std::size_t(coups));
    qInfo("%d coups: %lld ms", coups, clock.elapsed());
    QVERIFY2(clock.elapsed() < 60'000, qPrintable(QString::number(clock.elapsed())));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_history_in_a_game>(argc, argv);
}

#include "tst_history_in_a_game.moc"
