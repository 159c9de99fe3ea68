#include "desktop_bench.h"
#include "file_dialog.h"
#include "systemgame_monitor.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPropertyAnimation>
#include <QTableWidget>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;

/// Systems play at the table of the real window: chosen, watched, stopped, mended.
class tst_systems_in_a_game : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void a_system_is_started_by_the_dialog();
    void a_system_plays_beside_a_human();
    void a_jeton_on_the_table_keeps_a_system_away();
    void the_monitor_shows_the_bets_of_its_player();
    void four_systems_end_in_four_ways();
    void an_error_is_mended_in_the_editor_and_plays_again();
    void a_message_blocks_the_round();
    void stop_takes_every_system_and_protocol_away();
    void reset_recommends_a_new_start();
    void a_file_that_is_gone_is_told();
    void a_protocol_that_cannot_be_written_stops_nothing();
    void a_system_that_restarts_for_ever_lets_the_game_go_on();
    void a_chosen_number_is_marked_in_the_protocol();
    void a_number_chosen_under_the_ball_is_marked_one_coup_later();
    void a_reset_loses_no_line_of_the_protocol();
    void a_system_that_is_saved_while_it_plays_starts_again();
    void there_is_one_editor();
    void stop_under_a_box_of_a_system();
    void quit_under_a_message_of_a_system();

private:
    static void write(const QString& file, const QByteArray& text);
    static QByteArray contents(const QString& file);
    void choose(const desktop_bench& bench, int player, const QString& system, bool protocol);

    box_user user;
};

namespace
{

const QByteArray bet_on_red = "ST:\nSZ EI1(1),EC03;\nAL:\nSZ EC03;\n";

/// The one editor window, null if there is none.
QWidget* open_editor()
{
    QWidget* found = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->inherits("editor_window") && window->isVisible()) found = window;
    return found;
}

QString edit_name(int player)
{
    return QStringLiteral("LE_system_game_file_%1").arg(player);
}

} // namespace

void tst_systems_in_a_game::init()
{
    user.forget();
    QDir(QStringLiteral("sysout")).removeRecursively(); // protocols are written on at their end
    QDir().mkpath(QStringLiteral("system"));
    QDir().mkpath(QStringLiteral("sysout"));
}

void tst_systems_in_a_game::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_systems_in_a_game::write(const QString& file, const QByteArray& text)
{
    QFile target(file);
    QVERIFY(target.open(QIODevice::WriteOnly | QIODevice::Truncate));
    target.write(text);
}

QByteArray tst_systems_in_a_game::contents(const QString& file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

/// Gives a player to a system as a user does: by the dialog, whose line edits are double clicked.
void tst_systems_in_a_game::choose(const desktop_bench& bench,
                                   int player,
                                   const QString& system,
                                   bool protocol)
{
    user.with_dialog("systemspiel_dialog", [&](QWidget* dialog) {
        file_dialog::set_chooser([&](const file_dialog::request& what) {
            if (what.filter.contains(QStringLiteral("*.syf"))) return system;
            return QStringLiteral("sysout/player_%1.out").arg(player);
        });
        auto* file = child_of<QLineEdit>(*dialog, edit_name(player));
        QTest::mouseDClick(file, Qt::LeftButton);
        desktop_bench::settle();
        if (protocol) {
            auto* out = child_of<QLineEdit>(*dialog,
                                            QStringLiteral("LE_system_output_file_%1").arg(player));
            QTest::mouseDClick(out, Qt::LeftButton);
            desktop_bench::settle();
        }
        file_dialog::set_chooser({});
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSystemspiel");
    bench.settle();
}

void tst_systems_in_a_game::a_system_is_started_by_the_dialog()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), true);
    QVERIFY(bench.table().account_of(PLAYER_1).is_system);
    QCOMPARE(bench.child<QPushButton>("PB_status_1")->text(), QStringLiteral("System"));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1); // its first round played at once
    QCOMPARE(bench.table().active_player(), PLAYER_2);
    bench.play(1);                                                      // red
    bench.play(2);                                                      // black
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000 + 1 - 1 - 1)); // one lies again
    const QList<QByteArray> lines = contents(QStringLiteral("sysout/player_1.out")).split('\n');
    QVERIFY(lines.size() >= 4);
    QVERIFY(lines[0].contains("red.syf"));
    // Number 3 wide, win, set, credit 12 wide each; chosen numbers carry a star.
    QCOMPARE(lines[2].simplified(), QByteArray("*01 1 1 2001"));
    QCOMPARE(lines[3].simplified(), QByteArray("*02 -1 1 2000"));
}

void tst_systems_in_a_game::a_system_plays_beside_a_human()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 2, QStringLiteral("system/red.syf"), false);
    QCOMPARE(bench.table().active_player(), PLAYER_1);
    bench.click(jetons::EC04);
    bench.play(2); // black
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2001));
    QCOMPARE(bench.table().credit(PLAYER_2), qint64(1998));
    QCOMPARE(bench.table().count(PLAYER_2, jetons::EC03), 1);
    QCOMPARE(bench.table().active_player(), PLAYER_1);
}

void tst_systems_in_a_game::a_jeton_on_the_table_keeps_a_system_away()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL01);
    user.answer(QMessageBox::Ok);
    choose(bench, 1, QStringLiteral("system/red.syf"), false);
    QVERIFY(user.boxes().last().text.startsWith(
        QStringLiteral("Aktivierung nicht möglich, da ein normales Spiel")));
    QVERIFY(!bench.table().account_of(PLAYER_1).is_system);
}

void tst_systems_in_a_game::the_monitor_shows_the_bets_of_its_player()
{
    write(QStringLiteral("system/two.syf"), "ST:\nSZ EI1(2),EC03,DZ01;\nAL:\nSZ EC03;\n");
    desktop_bench bench;
    bench.trigger("actionStart");
    auto* own = bench.child<systemgame_monitor>("systemgame_monitor_2");
    auto* other = bench.child<systemgame_monitor>("systemgame_monitor_1");
    bench.child<QAction>("actionSysMonitor_2")->trigger();
    QVERIFY(own->isVisible());
    choose(bench, 2, QStringLiteral("system/two.syf"), false);
    auto* rows = own->findChild<QTableWidget*>();
    QVERIFY(rows);
    QCOMPARE(rows->rowCount(), 2);
    QCOMPARE(rows->item(0, 0)->text(), QStringLiteral("2 / EC RED"));
    QCOMPARE(rows->item(1, 0)->text(), QStringLiteral("2 / DZ 1"));
    QCOMPARE(other->findChild<QTableWidget*>()->rowCount(), 0);
    bench.play(20);
    QCOMPARE(rows->rowCount(), 1); // the turn for the next coup
    QCOMPARE(rows->item(0, 0)->text(), QStringLiteral("2 / EC RED"));
    own->close();
    QVERIFY(!bench.child<QAction>("actionSysMonitor_2")->isChecked());
}

void tst_systems_in_a_game::four_systems_end_in_four_ways()
{
    write(QStringLiteral("system/limit.syf"),
          "ST:\nSZ STMAX(V(2));\nSZ EI1(1),EC03;\nAL:\nSZ EC03;\n");
    write(QStringLiteral("system/stop.syf"), "ST:\nSZ CO01(1);\nAL:\nSTOP;\n");
    write(QStringLiteral("system/error.syf"), "ST:\nSZ EI1(1),EC03;\nVE:\nSZ EC;\n");
    write(QStringLiteral("system/on.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/limit.syf"), false);
    choose(bench, 2, QStringLiteral("system/stop.syf"), false);
    choose(bench, 3, QStringLiteral("system/error.syf"), false);
    choose(bench, 4, QStringLiteral("system/on.syf"), true);
    QCOMPARE(bench.table().active_player(), general_player::NO_PLAYER);

    user.answer(QMessageBox::Ok); // STOP
    user.answer(QMessageBox::No); // the error
    bench.play(2);                // black: all lose
    QCOMPARE(user.boxes().size(), 2);
    QCOMPARE(user.boxes()[0].title, QStringLiteral("Zarvello Info"));
    QCOMPARE(user.boxes()[0].text, QStringLiteral("Systemspiel für Spieler 2 wurde gestoppt!\n"));
    QCOMPARE(user.boxes()[1].title, QStringLiteral("Systemspiel für Spieler 1 wurde beendet!"));
    QVERIFY(user.boxes()[1].text.contains(QStringLiteral("Zeilennummer: 4<br>")));
    QVERIFY(user.boxes()[1].text.contains(QStringLiteral("SZ <b><FONT COLOR='#800000'><u>EC")));
    QVERIFY(!bench.table().account_of(PLAYER_2).is_system);
    QVERIFY(!bench.table().account_of(PLAYER_3).is_system);
    QVERIFY(bench.table().account_of(PLAYER_1).is_system);

    user.answer(QMessageBox::Ok); // the limit
    bench.play(4);                // black again: two lost
    QCOMPARE(user.boxes().last().text,
             QStringLiteral("Systemspiel für Spieler 1 wurde gestoppt!\n"
                            "Grund: Verlust Grenze erreicht!"));
    QVERIFY(!bench.table().account_of(PLAYER_1).is_system);

    bench.play(6);
    QVERIFY(bench.table().account_of(PLAYER_4).is_system);
    QCOMPARE(bench.table().count(PLAYER_4, jetons::EC03), 1);
    QCOMPARE(contents(QStringLiteral("sysout/player_4.out")).count('\n'), 2 + 3);
}

void tst_systems_in_a_game::an_error_is_mended_in_the_editor_and_plays_again()
{
    write(QStringLiteral("system/error.syf"), "ST:\nSZ EI1(1),EC03;\nVE:\nSZ EC;\n");
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/error.syf"), false);
    user.answer(QMessageBox::Yes);
    bench.play(2);
    QWidget* editor = open_editor();
    QVERIFY(editor);
    auto* text = editor->findChild<QPlainTextEdit*>();
    QVERIFY(text);
    QCOMPARE(text->textCursor().blockNumber(), 3); // the line of the error
    text->setPlainText(QString::fromLatin1(bet_on_red));
    child_of<QAction>(*editor, QStringLiteral("actionSpeichern"))->trigger();
    bench.settle();
    QCOMPARE(contents(QStringLiteral("system/error.syf")), bet_on_red);
    choose(bench, 1, QStringLiteral("system/error.syf"), false);
    QVERIFY(bench.table().account_of(PLAYER_1).is_system);
    editor->close();
    bench.settle();
}

void tst_systems_in_a_game::a_message_blocks_the_round()
{
    write(QStringLiteral("system/message.syf"),
          "ST:\nMESSAGE ON;\nSZ EI1(1);\nAL:\nMESSAGE('Hallo');\nSZ EC03;\n");
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/message.syf"), false);
    bool were_bets_open = true;
    int jetons_before_the_answer = -1;
    user.looks_at_box = [&] {
        were_bets_open = bench.table().all_may_set();
        jetons_before_the_answer = bench.table().count(PLAYER_1, jetons::EC03);
    };
    user.answer(QMessageBox::Ok);
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.boxes().first().title, QStringLiteral("Zarvello Systemspiel Nachricht"));
    QVERIFY(user.boxes().first().text.contains(QStringLiteral("Hallo")));
    QVERIFY(!were_bets_open);
    QCOMPARE(jetons_before_the_answer, 0); // what stands behind the message waits
    QVERIFY(bench.table().all_may_set());
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1);
}

void tst_systems_in_a_game::stop_takes_every_system_and_protocol_away()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), true);
    bench.play(1);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QVERIFY(!bench.table().account_of(PLAYER_1).is_system);
    QVERIFY(!bench.table().account_of(PLAYER_1).system_flag);
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    const QByteArray protocol = contents(QStringLiteral("sysout/player_1.out"));
    bench.trigger("actionStart");
    bench.play(1);
    QCOMPARE(contents(QStringLiteral("sysout/player_1.out")), protocol);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
}

void tst_systems_in_a_game::reset_recommends_a_new_start()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), false);
    user.answer(QMessageBox::Yes);
    user.answer(QMessageBox::Ok);
    bench.trigger("actionReset");
    QCOMPARE(user.boxes().last().title, QStringLiteral("Zarvello Warnung"));
    QCOMPARE(user.boxes().last().icon, QMessageBox::Warning);
}

void tst_systems_in_a_game::a_file_that_is_gone_is_told()
{
    write(QStringLiteral("system/gone.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    user.with_dialog("systemspiel_dialog", [&](QWidget* dialog) {
        file_dialog::set_chooser(
            [](const file_dialog::request&) { return QStringLiteral("system/gone.syf"); });
        QTest::mouseDClick(child_of<QLineEdit>(*dialog, edit_name(1)), Qt::LeftButton);
        desktop_bench::settle();
        file_dialog::set_chooser({});
        QFile::remove(QStringLiteral("system/gone.syf"));
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    user.answer(QMessageBox::No);
    bench.trigger("actionSystemspiel");
    bench.settle();
    QVERIFY(user.boxes().last().text.contains(
        QStringLiteral("Die Systemspieldatei konnte nicht geöffnet werden!")));
    QVERIFY(!bench.table().account_of(PLAYER_1).is_system);
    bench.play(1); // the game goes on
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({1}));
}

void tst_systems_in_a_game::a_protocol_that_cannot_be_written_stops_nothing()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    QDir().mkpath(QStringLiteral("sysout/player_1.out")); // a folder stands in its place
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), true);
    bench.play(1);
    bench.play(3);
    QVERIFY(bench.table().account_of(PLAYER_1).is_system);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2001));
    QDir().rmdir(QStringLiteral("sysout/player_1.out"));
}

void tst_systems_in_a_game::a_system_that_restarts_for_ever_lets_the_game_go_on()
{
    write(QStringLiteral("system/ever.syf"), "ST:\nRESTART;\n");
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/ever.syf"), false);
    for (const int number : {1, 2, 3})
        bench.play(number);
    QCOMPARE(bench.numbers().last_numbers(3, true), QList<int>({1, 2, 3}));
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(bench.settings().state(), game_state::stopped);
}

void tst_systems_in_a_game::a_chosen_number_is_marked_in_the_protocol()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), true);
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        child_of<QPushButton>(*dialog, QStringLiteral("PB_5"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    bench.right_click_wheel();
    bench.finish_coup();
    const QList<QByteArray> lines = contents(QStringLiteral("sysout/player_1.out")).split('\n');
    QVERIFY(lines[lines.size() - 2].startsWith("*05"));
}

void tst_systems_in_a_game::a_number_chosen_under_the_ball_is_marked_one_coup_later()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), true);
    const auto land = [&] {
        const auto animations =
            bench.child<QGraphicsView>("GV_Wheel")->findChildren<QPropertyAnimation*>();
        for (QPropertyAnimation* animation : animations)
            animation->setCurrentTime(animation->duration());
        bench.finish_coup();
    };
    bench.right_click_wheel();
    bench.numbers().set_manual_number(5);
    land();
    bench.right_click_wheel();
    land();
    const QList<QByteArray> lines = contents(QStringLiteral("sysout/player_1.out")).split('\n');
    QVERIFY(!lines[lines.size() - 3].startsWith("*"));
    QVERIFY(lines[lines.size() - 2].startsWith("*05"));
}

void tst_systems_in_a_game::a_reset_loses_no_line_of_the_protocol()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), true);
    for (const int number : {1, 2, 3})
        bench.play(number);
    user.answer(QMessageBox::Yes);
    user.answer(QMessageBox::Ok);
    bench.trigger("actionReset");
    for (const int number : {4, 6})
        bench.play(number);
    QStringList numbers;
    const QList<QByteArray> lines = contents(QStringLiteral("sysout/player_1.out")).split('\n');
    for (int i = lines.size() - 6; i < lines.size() - 1; ++i)
        numbers.append(QString::fromLatin1(lines[i].left(3)));
    QCOMPARE(numbers,
             QStringList({QStringLiteral("*01"),
                          QStringLiteral("*02"),
                          QStringLiteral("*03"),
                          QStringLiteral("*04"),
                          QStringLiteral("*06")}));
}

void tst_systems_in_a_game::a_system_that_is_saved_while_it_plays_starts_again()
{
    write(QStringLiteral("system/red.syf"), bet_on_red);
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/red.syf"), false);
    bench.child<QAction>("actionSystemdatei_1")->trigger();
    bench.settle();
    QWidget* editor = open_editor();
    QVERIFY(editor);
    editor->findChild<QPlainTextEdit*>()->setPlainText(
        QStringLiteral("ST:\nSZ EI1(1),DZ01;\nAL:\nSZ DZ01;\n"));
    game_state under_the_turn = game_state::stopped;
    const auto watch = connect(bench.window.get(), &MainWindow::display_set_on_monitor, [&] {
        under_the_turn = bench.settings().state();
    });
    user.answer(QMessageBox::Yes);
    child_of<QAction>(*editor, QStringLiteral("actionSpeichern"))->trigger();
    bench.settle();
    disconnect(watch);
    QVERIFY(bench.table().account_of(PLAYER_1).is_system);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::DZ01), 1);
    QCOMPARE(under_the_turn, game_state::paused);
    QCOMPARE(bench.settings().state(), game_state::running);
}

void tst_systems_in_a_game::there_is_one_editor()
{
    write(QStringLiteral("system/one.syf"), bet_on_red);
    write(QStringLiteral("system/two.syf"), bet_on_red);
    desktop_bench bench({QStringLiteral("s_user_sys_file_1=system/one.syf"),
                         QStringLiteral("s_user_sys_file_2=system/two.syf")});
    bench.child<QAction>("actionSystemdatei_1")->trigger();
    bench.settle();
    QWidget* first = open_editor();
    QVERIFY(first);
    auto* text = first->findChild<QPlainTextEdit*>();
    text->insertPlainText(QStringLiteral("// changed\n"));
    user.answer(QMessageBox::Cancel); // the text is kept, and nothing else opens
    bench.child<QAction>("actionSystemdatei_2")->trigger();
    bench.settle();
    QCOMPARE(open_editor(), first);
    user.answer(QMessageBox::Cancel);
    bench.trigger("actionBeenden"); // the program goes on
    QVERIFY(first->isVisible());
    user.answer(QMessageBox::Yes);
    bench.child<QAction>("actionSystemdatei_2")->trigger();
    bench.settle();
    QVERIFY(contents(QStringLiteral("system/one.syf")).startsWith("// changed\n"));
    QCOMPARE(open_editor()->windowTitle(), QStringLiteral("two.syf"));
}

void tst_systems_in_a_game::stop_under_a_box_of_a_system()
{
    write(QStringLiteral("system/stop.syf"), "ST:\nSZ EI1(1),EC03;\nAL:\nSTOP;\n");
    desktop_bench bench;
    bench.trigger("actionStart");
    choose(bench, 1, QStringLiteral("system/stop.syf"), false);
    bench.numbers().set_manual_number(1);
    bench.right_click_wheel();
    // The question stands first; the box of the system comes over it and is closed first.
    user.answer(QMessageBox::Yes);
    user.answer(QMessageBox::Ok);
    QMetaObject::invokeMethod(
        bench.window.get(), [&] { bench.finish_coup(); }, Qt::QueuedConnection);
    bench.trigger("actionStop");
    bench.settle();
    QCOMPARE(bench.settings().state(), game_state::stopped);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QVERIFY(!bench.table().all_may_set());
}

/// The last test: behind a quit no dialog runs in this program any more.
void tst_systems_in_a_game::quit_under_a_message_of_a_system()
{
    write(QStringLiteral("system/message.syf"),
          "ST:\nMESSAGE ON;\nSZ EI1(1);\nAL:\nMESSAGE('Hallo');\nSZ EC03;\n");
    auto bench = std::make_unique<desktop_bench>();
    bench->trigger("actionStart");
    choose(*bench, 1, QStringLiteral("system/message.syf"), true);
    user.looks_at_box = [&] { bench->trigger("actionBeenden"); };
    user.answer(QMessageBox::Ok);
    bench->right_click_wheel();
    bench->finish_coup();
    QCOMPARE(user.boxes().size(), 1);
    bench.reset();
    QCOMPARE(setting::instance().state(), game_state::stopped);
    // Whole lines up to the last coup.
    QCOMPARE(contents(QStringLiteral("sysout/player_1.out")).count('\n'), 2 + 1);
    QVERIFY(
        contents(QStringLiteral("zarvello.ini")).contains("s_user_sys_file_1=system/message.syf"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_systems_in_a_game>(argc, argv);
}
#include "tst_systems_in_a_game.moc"
