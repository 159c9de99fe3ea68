#include "jeton_board.h"
#include "number_records.h"
#include "players_control.h"
#include "setting.h"
#include "window_bench.h"

#include <QPointer>
#include <QSignalSpy>

using general_player::NO_PLAYER;
using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// The jetons on the screen as a mirror of the accounts.
class tst_jeton_board : public QObject
{
    Q_OBJECT

private slots:
    void a_set_jeton_lies_at_its_place();
    void a_jeton_that_stays_keeps_its_button();
    void a_jeton_that_is_gone_is_out_of_sight_at_once();
    void a_coup_leaves_the_won_jetons_until_they_are_cleared();
    void with_replay_the_jetons_stay();
    void a_left_press_adds_a_piece();
    void a_right_press_on_the_last_piece_takes_the_jeton_away();
    void a_held_button_adds_until_the_credit_is_used_up();
    void a_held_right_button_ends_with_the_jeton();
    void a_press_on_another_players_jeton_sets_the_own();
    void a_right_press_on_another_players_jeton_takes_from_the_own();
    void closed_bets_are_not_changed();
    void without_an_active_player_a_press_does_nothing();
    void a_rescale_moves_and_resizes_everything();
    void another_form_moves_the_jetons();
    void the_active_players_jetons_lie_on_top();
    void the_tab_of_a_system_player_raises_its_jetons();
    void prison_pictures_are_built_hidden_data();
    void prison_pictures_are_built_hidden();
    void prison_pictures_show_who_sits_there();
    void prison_pictures_let_the_mouse_through();
    void prison_pictures_are_taken_away();
    void a_change_of_role_builds_the_prison_pictures_anew();
    void nothing_is_built_anew_while_the_game_is_stopped();
    void what_is_nowhere_has_no_jeton();
    void the_jetons_go_with_their_board();
};

namespace
{

void deliver_deletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// A window, four players with 1000 each who may set, and the board.
struct table_desk {
    table_desk()
    {
        window.resize(1460, 844);
        window.show();
        for (int i = 0; i < player_count; ++i)
            table.set_credit(static_cast<player_names>(i), 1000);
        table.set_may_set_for_all(true);
        settings.set_state(game_state::running);
    }

    void set(player_names player, jetons::jeton_names jeton, int count = 1)
    {
        table.set_jeton(player, jeton, 1, count, debit::from_credit);
    }
    jeton_button* jeton(player_names player, jetons::jeton_names place) const
    {
        return board->jeton(player, place);
    }
    QTimer* timer(player_names player, jetons::jeton_names place, const char* name) const
    {
        return child_of<QTimer>(*jeton(player, place), name);
    }

    /// A coup in which the stake joins the win, up to the evaluation.
    void throw_number(int number)
    {
        table.close_bets();
        table.evaluate(property_of(number), rules);
    }

    setting settings;
    players_control players;
    game_table& table = players.table();
    table_rules rules;
    QWidget window;
    jeton_board* board = new jeton_board(&window, players, settings);
};

} // namespace

void tst_jeton_board::a_set_jeton_lies_at_its_place()
{
    table_desk desk;
    desk.set(PLAYER_2, jetons::PL07, 12);
    auto* jeton = child_of<jeton_button>(desk.window, "jeton_2_PL07");
    QCOMPARE(jeton, desk.jeton(PLAYER_2, jetons::PL07));
    QVERIFY(jeton->isVisible());
    QCOMPARE(jeton->geometry(), QRect(668, 365, 31, 31));
    QCOMPARE(jeton->info().count, 12);
    QCOMPARE(jeton->info().value, 1);
    // The four players lie side by side on an even chance.
    for (int i = 0; i < player_count; ++i)
        desk.set(static_cast<player_names>(i), jetons::EC03);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::EC03)->pos(), QPoint(465, 721));
    QCOMPARE(desk.jeton(PLAYER_4, jetons::EC03)->pos(), QPoint(557, 721));
}

void tst_jeton_board::a_jeton_that_stays_keeps_its_button()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::DZ02, 2);
    const jeton_button* before = desk.jeton(PLAYER_1, jetons::DZ02);
    desk.set(PLAYER_1, jetons::DZ02, 3);
    desk.set(PLAYER_1, jetons::DZ01);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::DZ02), before);
    QCOMPARE(before->info().count, 5);
    QCOMPARE(desk.window.findChildren<jeton_button*>().size(), 2);
}

void tst_jeton_board::a_jeton_that_is_gone_is_out_of_sight_at_once()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::CA05);
    const QPointer<jeton_button> jeton = desk.jeton(PLAYER_1, jetons::CA05);
    desk.table.clear_jetons(PLAYER_1);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::CA05), nullptr);
    QVERIFY(jeton); // still there, for whoever is on the stack
    QVERIFY(jeton->isHidden());
    deliver_deletions();
    QVERIFY(!jeton);
    desk.set(PLAYER_1, jetons::CA05);
    QVERIFY(desk.jeton(PLAYER_1, jetons::CA05)->isVisible());
}

void tst_jeton_board::a_coup_leaves_the_won_jetons_until_they_are_cleared()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL17);
    desk.set(PLAYER_1, jetons::PL18);
    desk.set(PLAYER_3, jetons::EC03);
    desk.throw_number(17);
    QVERIFY(desk.jeton(PLAYER_1, jetons::PL17)->isVisible());
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL18), nullptr);
    QCOMPARE(desk.jeton(PLAYER_3, jetons::EC03), nullptr);
    desk.table.clear_won_jetons(desk.rules);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL17), nullptr);
}

void tst_jeton_board::with_replay_the_jetons_stay()
{
    table_desk desk;
    desk.table.set_replay(PLAYER_1, true);
    desk.set(PLAYER_1, jetons::PL18, 2);
    const jeton_button* jeton = desk.jeton(PLAYER_1, jetons::PL18);
    desk.throw_number(17);
    desk.table.clear_won_jetons(desk.rules);
    desk.table.checks_replay();
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL18), jeton);
    QVERIFY(jeton->isVisible());
    QCOMPARE(jeton->info().count, 2);
}

void tst_jeton_board::a_left_press_adds_a_piece()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07, 4);
    QTest::mouseClick(desk.jeton(PLAYER_1, jetons::PL07), Qt::LeftButton);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->info().count, 5);
    QCOMPARE(desk.table.count(PLAYER_1, jetons::PL07), 5);
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{995});
}

void tst_jeton_board::a_right_press_on_the_last_piece_takes_the_jeton_away()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07, 2);
    const QPointer<jeton_button> jeton = desk.jeton(PLAYER_1, jetons::PL07);
    QTest::mouseClick(jeton, Qt::RightButton);
    QCOMPARE(jeton->info().count, 1);
    QTest::mousePress(jeton, Qt::RightButton);
    QVERIFY(jeton && jeton->isHidden());
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07), nullptr);
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{1000});
    deliver_deletions();
    QVERIFY(!jeton);
}

void tst_jeton_board::a_held_button_adds_until_the_credit_is_used_up()
{
    table_desk desk;
    desk.table.set_credit(PLAYER_1, 5);
    desk.set(PLAYER_1, jetons::PL07, 1);
    jeton_button* jeton = desk.jeton(PLAYER_1, jetons::PL07);
    QTest::mousePress(jeton, Qt::LeftButton);
    for (int tick = 0; tick < 10; ++tick)
        QVERIFY(fire(desk.timer(PLAYER_1, jetons::PL07, "increase_timer")));
    QCOMPARE(jeton->info().count, 5);
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{0});
    QTest::mouseRelease(jeton, Qt::LeftButton);
    QVERIFY(!fire(desk.timer(PLAYER_1, jetons::PL07, "increase_timer")));
}

void tst_jeton_board::a_held_right_button_ends_with_the_jeton()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07, 3);
    const QPointer<jeton_button> jeton = desk.jeton(PLAYER_1, jetons::PL07);
    QTimer* timer = desk.timer(PLAYER_1, jetons::PL07, "decrease_timer");
    QTest::mousePress(jeton, Qt::RightButton);
    QVERIFY(fire(timer));
    QCOMPARE(jeton->info().count, 1);
    QVERIFY(fire(timer));
    QVERIFY(jeton->isHidden());
    QVERIFY(!timer->isActive());
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{1000});
}

void tst_jeton_board::a_press_on_another_players_jeton_sets_the_own()
{
    table_desk desk;
    desk.set(PLAYER_2, jetons::PL07, 4);
    jeton_button* foreign = desk.jeton(PLAYER_2, jetons::PL07);
    QTest::mousePress(foreign, Qt::LeftButton);
    QVERIFY(!desk.timer(PLAYER_2, jetons::PL07, "increase_timer")->isActive());
    QCOMPARE(foreign->info().count, 4);
    QVERIFY(desk.jeton(PLAYER_1, jetons::PL07)->isVisible());
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->info().count, 1);
    QTest::mouseRelease(foreign, Qt::LeftButton);
    QTest::mouseClick(foreign, Qt::LeftButton);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->info().count, 2);
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{998});
    QCOMPARE(desk.table.credit(PLAYER_2), qint64{996});
}

void tst_jeton_board::a_right_press_on_another_players_jeton_takes_from_the_own()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07, 2);
    desk.set(PLAYER_2, jetons::PL07, 4);
    jeton_button* foreign = desk.jeton(PLAYER_2, jetons::PL07);
    QTest::mousePress(foreign, Qt::RightButton);
    QVERIFY(!desk.timer(PLAYER_2, jetons::PL07, "decrease_timer")->isActive());
    QCOMPARE(foreign->info().count, 4);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->info().count, 1);
}

void tst_jeton_board::closed_bets_are_not_changed()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07, 2);
    desk.table.set_may_set_for_all(false);
    QTest::mouseClick(desk.jeton(PLAYER_1, jetons::PL07), Qt::LeftButton);
    QTest::mouseClick(desk.jeton(PLAYER_1, jetons::PL07), Qt::RightButton);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->info().count, 2);
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{998});
}

void tst_jeton_board::without_an_active_player_a_press_does_nothing()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07, 2);
    for (int i = 0; i < player_count; ++i)
        desk.table.make_system_player(static_cast<player_names>(i));
    QCOMPARE(desk.table.active_player(), NO_PLAYER);
    QTest::mouseClick(desk.jeton(PLAYER_1, jetons::PL07), Qt::LeftButton);
    QTest::mouseClick(desk.jeton(PLAYER_1, jetons::PL07), Qt::RightButton);
    QCOMPARE(desk.table.count(PLAYER_1, jetons::PL07), 2);
}

void tst_jeton_board::a_rescale_moves_and_resizes_everything()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07);
    desk.board->create_prison_jetons(PLAYER_1);
    desk.board->set_reduction(0.3);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->geometry(), QRect(467, 264, 21, 21));
    // 761 and 46 give 532 - 32, and 740 of the y 518 + 30.
    const QRect prison(500, 548, 21, 21);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PRIS_EC01)->geometry(), prison);
    desk.set(PLAYER_1, jetons::PL08);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL08)->size(), QSize(21, 21));
    desk.board->set_reduction(0.0);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07)->geometry(), QRect(668, 365, 31, 31));
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PRIS_EC01)->geometry(), QRect(715, 770, 31, 31));
}

void tst_jeton_board::another_form_moves_the_jetons()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL00);
    desk.set(PLAYER_1, jetons::CH03);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL00)->pos(), QPoint(854, 461));
    desk.settings.set_s_table_form(1);
    desk.table.keep_only_chances_of(table_form::american);
    desk.board->refresh_all();
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL00)->pos(), QPoint(854, 389));
    QCOMPARE(desk.jeton(PLAYER_1, jetons::CH03), nullptr);
    QCOMPARE(desk.table.credit(PLAYER_1), qint64{999});
}

void tst_jeton_board::the_active_players_jetons_lie_on_top()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07);
    desk.set(PLAYER_2, jetons::PL07);
    const QPoint middle = desk.jeton(PLAYER_1, jetons::PL07)->geometry().center();
    QCOMPARE(desk.window.childAt(middle), desk.jeton(PLAYER_2, jetons::PL07));
    desk.table.make_active(PLAYER_3);
    desk.table.make_active(PLAYER_1);
    QCOMPARE(desk.window.childAt(middle), desk.jeton(PLAYER_1, jetons::PL07));
    desk.players.player_selection(QPoint(230, 20));
    QCOMPARE(desk.window.childAt(middle), desk.jeton(PLAYER_2, jetons::PL07));
}

void tst_jeton_board::the_tab_of_a_system_player_raises_its_jetons()
{
    table_desk desk;
    desk.table.make_system_player(PLAYER_2);
    desk.set(PLAYER_2, jetons::PL07);
    desk.set(PLAYER_1, jetons::PL07);
    const QPoint middle = desk.jeton(PLAYER_1, jetons::PL07)->geometry().center();
    QCOMPARE(desk.window.childAt(middle), desk.jeton(PLAYER_1, jetons::PL07));
    desk.players.player_selection(QPoint(230, 20));
    QCOMPARE(desk.table.active_player(), PLAYER_1);
    QCOMPARE(desk.window.childAt(middle), desk.jeton(PLAYER_2, jetons::PL07));
}

void tst_jeton_board::prison_pictures_are_built_hidden_data()
{
    QTest::addColumn<int>("mode"); // 1 for pieces of real money
    QTest::addColumn<bool>("is_system");
    QTest::addColumn<int>("value");
    QTest::newRow("pieces") << 0 << false << 1;
    QTest::newRow("real") << 1 << false << 20;
    QTest::newRow("real, system") << 1 << true << 1;
}

void tst_jeton_board::prison_pictures_are_built_hidden()
{
    QFETCH(int, mode);
    QFETCH(bool, is_system);
    QFETCH(int, value);
    table_desk desk;
    desk.settings.set_s_setzart(mode);
    desk.settings.set_s_setzart_real_size(20);
    desk.settings.set_state(game_state::stopped);
    if (is_system) desk.table.make_system_player(PLAYER_3);
    desk.board->create_prison_jetons(PLAYER_3);
    const auto pictures = desk.window.findChildren<jeton_button*>();
    QCOMPARE(pictures.size(), 12);
    for (const jeton_button* picture : pictures) {
        QVERIFY(picture->isHidden());
        QCOMPARE(picture->info().value, value);
        QCOMPARE(picture->info().count, 1);
        QVERIFY(picture->objectName().contains("_PRIS_EC"));
    }
    QCOMPARE(child_of<jeton_button>(desk.window, "jeton_3_PRIS_EC06")->pos(), QPoint(152, 770));
    QCOMPARE(child_of<jeton_button>(desk.window, "jeton_3_D_PRIS_EC01")->pos(), QPoint(776, 680));
}

void tst_jeton_board::prison_pictures_show_who_sits_there()
{
    table_desk desk;
    for (int i = 0; i < player_count; ++i)
        desk.board->create_prison_jetons(static_cast<player_names>(i));
    desk.set(PLAYER_1, jetons::EC03, 1);
    desk.set(PLAYER_2, jetons::EC04, 2); // half returns, nobody goes to prison
    desk.throw_number(0);
    QVERIFY(desk.jeton(PLAYER_1, jetons::PRIS_EC03)->isVisible());
    QVERIFY(!desk.jeton(PLAYER_1, jetons::D_PRIS_EC03)->isVisible());
    QVERIFY(!desk.jeton(PLAYER_2, jetons::PRIS_EC04)->isVisible());
    desk.throw_number(0);
    QVERIFY(!desk.jeton(PLAYER_1, jetons::PRIS_EC03)->isVisible());
    QVERIFY(desk.jeton(PLAYER_1, jetons::D_PRIS_EC03)->isVisible());
    desk.throw_number(1); // red: back to single prison
    QVERIFY(desk.jeton(PLAYER_1, jetons::PRIS_EC03)->isVisible());
    QVERIFY(!desk.jeton(PLAYER_1, jetons::D_PRIS_EC03)->isVisible());
    desk.throw_number(3); // red: free, and back on its chance
    QVERIFY(!desk.jeton(PLAYER_1, jetons::PRIS_EC03)->isVisible());
    desk.table.clear_won_jetons(desk.rules);
    desk.table.set_back_jetons(desk.rules);
    QVERIFY(desk.jeton(PLAYER_1, jetons::EC03)->isVisible());
}

void tst_jeton_board::prison_pictures_let_the_mouse_through()
{
    table_desk desk;
    desk.board->create_prison_jetons(PLAYER_1);
    desk.set(PLAYER_1, jetons::EC03, 1);
    desk.throw_number(0);
    const jeton_button* prisoner = desk.jeton(PLAYER_1, jetons::PRIS_EC03);
    QVERIFY(prisoner->isVisible());
    QCOMPARE(desk.window.childAt(prisoner->geometry().center()), nullptr);
}

void tst_jeton_board::prison_pictures_are_taken_away()
{
    table_desk desk;
    desk.board->create_prison_jetons(PLAYER_1);
    desk.board->create_prison_jetons(PLAYER_4);
    desk.set(PLAYER_1, jetons::EC03, 1);
    desk.throw_number(0);
    const QPointer<jeton_button> prisoner = desk.jeton(PLAYER_1, jetons::PRIS_EC03);
    desk.table.stop(1000);
    QVERIFY(prisoner->isHidden());
    desk.board->remove_prison_jetons();
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PRIS_EC03), nullptr);
    deliver_deletions();
    QVERIFY(!prisoner);
    QVERIFY(desk.window.findChildren<jeton_button*>().isEmpty());
}

void tst_jeton_board::a_change_of_role_builds_the_prison_pictures_anew()
{
    table_desk desk;
    desk.settings.set_s_setzart(1);
    desk.settings.set_s_setzart_real_size(50);
    desk.board->create_prison_jetons(PLAYER_2);
    desk.set(PLAYER_2, jetons::EC06, 1);
    desk.throw_number(0);
    const jeton_button* before = desk.jeton(PLAYER_2, jetons::PRIS_EC06);
    QCOMPARE(before->info().value, 50);
    desk.table.make_system_player(PLAYER_2);
    const jeton_button* after = desk.jeton(PLAYER_2, jetons::PRIS_EC06);
    QVERIFY(after != before);
    QCOMPARE(after->info().value, 1);
    QVERIFY(after->isVisible()); // the piece still sits there
    QVERIFY(before->isHidden());
    desk.table.make_normal_player(PLAYER_2);
    QCOMPARE(desk.jeton(PLAYER_2, jetons::PRIS_EC06)->info().value, 50);
    deliver_deletions();
    QCOMPARE(desk.window.findChildren<jeton_button*>().size(), 12);
}

void tst_jeton_board::nothing_is_built_anew_while_the_game_is_stopped()
{
    table_desk desk;
    desk.settings.set_state(game_state::stopped);
    desk.table.make_system_player(PLAYER_2);
    QVERIFY(desk.window.findChildren<jeton_button*>().isEmpty());
    desk.settings.set_state(game_state::paused);
    desk.table.make_normal_player(PLAYER_2);
    QCOMPARE(desk.window.findChildren<jeton_button*>().size(), 12);
}

void tst_jeton_board::what_is_nowhere_has_no_jeton()
{
    const table_desk desk;
    QCOMPARE(desk.jeton(NO_PLAYER, jetons::PL07), nullptr);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::PL07), nullptr);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::NO_JETON), nullptr);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::LAST_JN), nullptr);
    QCOMPARE(desk.jeton(PLAYER_1, jetons::D_PRIS_EC06), nullptr);
}

void tst_jeton_board::the_jetons_go_with_their_board()
{
    table_desk desk;
    desk.set(PLAYER_1, jetons::PL07);
    desk.board->create_prison_jetons(PLAYER_1);
    delete desk.board;
    desk.set(PLAYER_1, jetons::PL08);
    deliver_deletions();
    QVERIFY(desk.window.findChildren<jeton_button*>().isEmpty());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_jeton_board>(argc, argv);
}

#include "tst_jeton_board.moc"
