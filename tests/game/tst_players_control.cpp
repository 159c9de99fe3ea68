#include "number_records.h"
#include "players_control.h"
#include "test_box.h"

#include <QSignalSpy>

#include <limits>
#include <memory>

using general_player::NO_PLAYER;
using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// What mouse and panels ask of the accounts, and what these tell outward.
class tst_players_control : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void a_name_tab_makes_its_player_active_data();
    void a_name_tab_makes_its_player_active();
    void a_tab_of_a_system_player_shows_the_statistic_only();
    void the_tab_of_the_active_player_changes_nobody();
    void a_player_is_active_waiting_or_a_system();
    void a_click_adds_a_piece_to_the_own_jeton();
    void several_pieces_are_added_all_or_none();
    void a_held_button_adds_until_the_credit_is_used_up();
    void a_click_on_another_players_jeton_sets_the_own_data();
    void a_click_on_another_players_jeton_sets_the_own();
    void a_right_click_takes_one_piece();
    void a_right_click_on_the_last_piece_removes_the_jeton();
    void a_right_click_on_another_players_jeton_takes_from_the_own();
    void closed_bets_are_not_changed();
    void without_an_active_player_clicks_do_nothing();
    void replay_is_toggled_for_one_or_set_for_all();
    void replay_stays_off_for_a_system();
    void a_counted_score_goes_into_the_credit();
    void closing_the_bets_tells_the_four_sums();
    void checking_the_replay_tells_its_end();
    void an_unpaid_replay_is_told();
    void changes_of_role_ask_for_the_prison_pictures();

private:
    static jeton_info one_piece(player_names player, jetons::jeton_names jeton, int value)
    {
        return {player, jeton, value, 1};
    }

    setting settings;
    std::unique_ptr<players_control> players;
    game_table* table = nullptr;
};

void tst_players_control::initTestCase()
{
    qRegisterMetaType<general_player::player_names>("general_player::player_names");
}

void tst_players_control::init()
{
    settings.set_s_setzart(0);
    players = std::make_unique<players_control>(settings);
    table = &players->table();
    for (int i = 0; i < player_count; ++i)
        table->set_credit(static_cast<player_names>(i), 100);
    table->set_may_set_for_all(true);
}

void tst_players_control::cleanup()
{
    players.reset();
}

void tst_players_control::a_name_tab_makes_its_player_active_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("player"); // of the tab, -1 for none
    // Tabs at x 115 to 214, 225 to 322, 333 to 430, 441 to 538, y 7 to 44; each v is shown at the
    // integer part of v - reduction * v.
    // clang-format off
    QTest::newRow("first, top left")       << 0.0 << QPoint(115, 7)  << 0;
    QTest::newRow("first, bottom right")   << 0.0 << QPoint(214, 44) << 0;
    QTest::newRow("left of the first")     << 0.0 << QPoint(114, 20) << -1;
    QTest::newRow("between 1 and 2, left") << 0.0 << QPoint(215, 20) << -1;
    QTest::newRow("between 1 and 2")       << 0.0 << QPoint(224, 20) << -1;
    QTest::newRow("second, left")          << 0.0 << QPoint(225, 20) << 1;
    QTest::newRow("second, right")         << 0.0 << QPoint(322, 20) << 1;
    QTest::newRow("right of the second")   << 0.0 << QPoint(323, 20) << -1;
    QTest::newRow("left of the third")     << 0.0 << QPoint(332, 20) << -1;
    QTest::newRow("third, left")           << 0.0 << QPoint(333, 20) << 2;
    QTest::newRow("third, right")          << 0.0 << QPoint(430, 20) << 2;
    QTest::newRow("right of the third")    << 0.0 << QPoint(431, 20) << -1;
    QTest::newRow("left of the fourth")    << 0.0 << QPoint(440, 20) << -1;
    QTest::newRow("fourth, left")          << 0.0 << QPoint(441, 20) << 3;
    QTest::newRow("fourth, right")         << 0.0 << QPoint(538, 20) << 3;
    QTest::newRow("right of the fourth")   << 0.0 << QPoint(539, 20) << -1;
    QTest::newRow("above")                 << 0.0 << QPoint(150, 6)  << -1;
    QTest::newRow("below")                 << 0.0 << QPoint(150, 45) << -1;
    QTest::newRow("far away")              << 0.0 << QPoint(-9, -9)  << -1;
    // 0.3: y 4.9 to 30.8, first tab x 80.5 to 149.8, fourth 308.7 to 376.6.
    QTest::newRow("smaller, top left")     << 0.3 << QPoint(80, 4)   << 0;
    QTest::newRow("smaller, bottom right") << 0.3 << QPoint(149, 30) << 0;
    QTest::newRow("smaller, left")         << 0.3 << QPoint(79, 4)   << -1;
    QTest::newRow("smaller, above")        << 0.3 << QPoint(80, 3)   << -1;
    QTest::newRow("smaller, right")        << 0.3 << QPoint(150, 30) << -1;
    QTest::newRow("smaller, below")        << 0.3 << QPoint(149, 31) << -1;
    QTest::newRow("smaller, fourth")       << 0.3 << QPoint(376, 20) << 3;
    QTest::newRow("smaller, past it")      << 0.3 << QPoint(377, 20) << -1;
    // clang-format on
}

void tst_players_control::a_name_tab_makes_its_player_active()
{
    QFETCH(double, reduction);
    QFETCH(QPoint, point);
    QFETCH(int, player);
    players->set_reduction(reduction);
    const player_names before = player == 0 ? PLAYER_4 : PLAYER_1;
    table->make_active(before);
    const QSignalSpy shown(players.get(), &players_control::change_play_statistic_view);
    players->player_selection(point);
    QCOMPARE(table->active_player(), player < 0 ? before : static_cast<player_names>(player));
    QCOMPARE(shown.count(), player < 0 ? 0 : 1);
    if (player >= 0) QCOMPARE(shown.first().first().toInt(), player);
}

void tst_players_control::a_tab_of_a_system_player_shows_the_statistic_only()
{
    table->make_system_player(PLAYER_2);
    const QSignalSpy changed(players.get(), &players_control::player_changed);
    const QSignalSpy shown(players.get(), &players_control::change_play_statistic_view);
    players->player_selection(QPoint(250, 20));
    QCOMPARE(table->active_player(), PLAYER_1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(shown.count(), 1);
}

void tst_players_control::the_tab_of_the_active_player_changes_nobody()
{
    const QSignalSpy changed(players.get(), &players_control::player_changed);
    const QSignalSpy shown(players.get(), &players_control::change_play_statistic_view);
    players->player_selection(QPoint(150, 20));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(shown.count(), 1);
    players->player_selection(QPoint(250, 20));
    QCOMPARE(changed.count(), 1);
}

void tst_players_control::a_player_is_active_waiting_or_a_system()
{
    QCOMPARE(players->player_status(PLAYER_1), 0);
    QCOMPARE(players->player_status(PLAYER_2), 2);
    table->make_system_player(PLAYER_1);
    QCOMPARE(players->player_status(PLAYER_1), 1);
    QCOMPARE(players->player_status(PLAYER_2), 0);
    QCOMPARE(players->player_status(PLAYER_3), 2);

    // For the span of its turn a system is the active player, and a system all the same.
    table->replace_active_player(PLAYER_1);
    QCOMPARE(players->player_status(PLAYER_1), 1);
    QCOMPARE(players->player_status(PLAYER_2), 2);
}

void tst_players_control::a_click_adds_a_piece_to_the_own_jeton()
{
    table->set_jeton(PLAYER_1, jetons::CA05, 5, 2, debit::from_credit);
    const QSignalSpy updated(players.get(), &players_control::player_credit_seeded_update);
    players->increase_jeton_value(one_piece(PLAYER_1, jetons::CA05, 5));
    QCOMPARE(table->count(PLAYER_1, jetons::CA05), 3);
    QCOMPARE(table->credit(PLAYER_1), qint64{85});
    QCOMPARE(table->seeded(PLAYER_1), qint64{15});
    QCOMPARE(updated.count(), 1);
    QCOMPARE(updated.first().first().toInt(), int{PLAYER_1});
}

void tst_players_control::several_pieces_are_added_all_or_none()
{
    table->set_credit(PLAYER_1, 20);
    table->set_jeton(PLAYER_1, jetons::CA05, 5, 1, debit::from_credit);
    players->increase_jeton_value({PLAYER_1, jetons::CA05, 5, 4});
    QCOMPARE(table->count(PLAYER_1, jetons::CA05), 1);
    players->increase_jeton_value({PLAYER_1, jetons::CA05, 5, 3});
    QCOMPARE(table->count(PLAYER_1, jetons::CA05), 4);
    QCOMPARE(table->credit(PLAYER_1), qint64{0});
}

void tst_players_control::a_held_button_adds_until_the_credit_is_used_up()
{
    table->set_credit(PLAYER_1, 17);
    table->set_jeton(PLAYER_1, jetons::CA05, 5, 1, debit::from_credit);
    for (int tick = 0; tick < 10; ++tick)
        players->increase_jeton_value(one_piece(PLAYER_1, jetons::CA05, 5));
    QCOMPARE(table->count(PLAYER_1, jetons::CA05), 3);
    QCOMPARE(table->credit(PLAYER_1), qint64{2});
    QCOMPARE(table->seeded(PLAYER_1), qint64{15});
}

void tst_players_control::a_click_on_another_players_jeton_sets_the_own_data()
{
    QTest::addColumn<int>("setzart");
    QTest::addColumn<int>("own_pieces"); // of 2 each, before the click
    QTest::addColumn<qint64>("credit");
    // The jeton of the other player is worth 5 a piece; a new one is worth what the own pieces are.
    // clang-format off
    QTest::newRow("none lies there, pieces of 1")  << 0 << 0 << qint64{99};
    QTest::newRow("none lies there, pieces of 10") << 1 << 0 << qint64{90};
    QTest::newRow("one lies there")                << 1 << 1 << qint64{96};
    QTest::newRow("three lie there")               << 0 << 3 << qint64{92};
    // clang-format on
}

void tst_players_control::a_click_on_another_players_jeton_sets_the_own()
{
    QFETCH(int, setzart);
    QFETCH(int, own_pieces);
    QFETCH(qint64, credit);
    settings.set_s_setzart(setzart);
    settings.set_s_setzart_real_size(10);
    table->set_jeton(PLAYER_1, jetons::EC02, 2, own_pieces, debit::from_credit);
    table->set_jeton(PLAYER_2, jetons::EC02, 5, 4, debit::from_credit);
    players->increase_jeton_value({PLAYER_2, jetons::EC02, 5, 4});
    QCOMPARE(table->count(PLAYER_1, jetons::EC02), own_pieces + 1);
    QCOMPARE(table->credit(PLAYER_1), credit);
    QCOMPARE(table->count(PLAYER_2, jetons::EC02), 4);
    QCOMPARE(table->credit(PLAYER_2), qint64{80});
}

void tst_players_control::a_right_click_takes_one_piece()
{
    table->set_jeton(PLAYER_1, jetons::EC02, 5, 3, debit::from_credit);
    const QSignalSpy updated(players.get(), &players_control::player_credit_seeded_update);
    players->decrease_jeton_value(one_piece(PLAYER_1, jetons::EC02, 5));
    QCOMPARE(table->count(PLAYER_1, jetons::EC02), 2);
    QCOMPARE(table->credit(PLAYER_1), qint64{90});
    QCOMPARE(table->seeded(PLAYER_1), qint64{10});
    QCOMPARE(updated.count(), 1);
}

void tst_players_control::a_right_click_on_the_last_piece_removes_the_jeton()
{
    table->set_jeton(PLAYER_1, jetons::EC02, 5, 1, debit::from_credit);
    players->decrease_jeton_value(one_piece(PLAYER_1, jetons::EC02, 5));
    QVERIFY(!table->lies(PLAYER_1, jetons::EC02));
    QCOMPARE(table->credit(PLAYER_1), qint64{100});
    QCOMPARE(table->seeded(PLAYER_1), qint64{0});
}

void tst_players_control::a_right_click_on_another_players_jeton_takes_from_the_own()
{
    table->set_jeton(PLAYER_1, jetons::EC02, 2, 2, debit::from_credit);
    table->set_jeton(PLAYER_2, jetons::EC02, 5, 4, debit::from_credit);
    for (const int left : {1, 0, 0}) {
        players->decrease_jeton_value(one_piece(PLAYER_2, jetons::EC02, 5));
        QCOMPARE(table->count(PLAYER_1, jetons::EC02), left);
    }
    QCOMPARE(table->credit(PLAYER_1), qint64{100});
    QCOMPARE(table->count(PLAYER_2, jetons::EC02), 4);
}

void tst_players_control::closed_bets_are_not_changed()
{
    table->set_jeton(PLAYER_1, jetons::EC02, 5, 2, debit::from_credit);
    table->set_jeton(PLAYER_2, jetons::EC02, 5, 2, debit::from_credit);
    table->set_may_set(PLAYER_2, false);
    players->increase_jeton_value(one_piece(PLAYER_2, jetons::EC02, 5));
    players->decrease_jeton_value(one_piece(PLAYER_2, jetons::EC02, 5));
    QCOMPARE(table->count(PLAYER_1, jetons::EC02), 2);
    QCOMPARE(table->count(PLAYER_2, jetons::EC02), 2);
    table->set_may_set_for_all(false);
    players->increase_jeton_value(one_piece(PLAYER_1, jetons::EC02, 5));
    players->decrease_jeton_value(one_piece(PLAYER_1, jetons::EC02, 5));
    QCOMPARE(table->count(PLAYER_1, jetons::EC02), 2);
    QCOMPARE(table->credit(PLAYER_1), qint64{90});
}

void tst_players_control::without_an_active_player_clicks_do_nothing()
{
    table->set_jeton(PLAYER_2, jetons::EC02, 5, 2, debit::from_credit);
    for (int i = 0; i < player_count; ++i)
        table->make_system_player(static_cast<player_names>(i));
    players->increase_jeton_value(one_piece(PLAYER_2, jetons::EC02, 5));
    players->decrease_jeton_value(one_piece(PLAYER_2, jetons::EC02, 5));
    players->increase_jeton_value(one_piece(NO_PLAYER, jetons::EC02, 5));
    players->decrease_jeton_value(one_piece(NO_PLAYER, jetons::EC02, 5));
    QCOMPARE(table->count(PLAYER_2, jetons::EC02), 2);
    QCOMPARE(table->credits(), (player_sums{100, 90, 100, 100}));
}

void tst_players_control::replay_is_toggled_for_one_or_set_for_all()
{
    const QSignalSpy checked(players.get(), &players_control::checkStatusReplay);
    players->toggle_replay(PLAYER_3);
    QVERIFY(table->account_of(PLAYER_3).replay);
    QVERIFY(!table->account_of(PLAYER_1).replay);
    QCOMPARE(checked.count(), 1);
    players->toggle_replay(PLAYER_3);
    QVERIFY(!table->any_replay());

    players->toggle_replay(PLAYER_2);
    players->set_replay_for_all(true);
    for (int i = 0; i < player_count; ++i)
        QVERIFY(table->account_of(static_cast<player_names>(i)).replay);
    players->set_replay_for_all(false);
    QVERIFY(!table->any_replay());
}

void tst_players_control::replay_stays_off_for_a_system()
{
    table->make_system_player(PLAYER_2);
    players->toggle_replay(PLAYER_2);
    QVERIFY(!table->any_replay());
    players->set_replay_for_all(true);
    QVERIFY(table->account_of(PLAYER_1).replay);
    QVERIFY(!table->account_of(PLAYER_2).replay);
}

void tst_players_control::a_counted_score_goes_into_the_credit()
{
    const QSignalSpy updated(players.get(), &players_control::player_credit_seeded_update);
    players->player_add_score_to_credit(PLAYER_4, 10);
    players->player_add_score_to_credit(PLAYER_4, std::numeric_limits<int>::max());
    QCOMPARE(table->credit(PLAYER_4), qint64{110} + std::numeric_limits<int>::max());
    QCOMPARE(table->seeded(PLAYER_4), qint64{0});
    QCOMPARE(updated.count(), 2);
}

void tst_players_control::closing_the_bets_tells_the_four_sums()
{
    table->set_jeton(PLAYER_2, jetons::PL01, 5, 2, debit::from_credit);
    table->set_jeton(PLAYER_2, jetons::EC01, 5, 1, debit::from_credit);
    table->set_jeton(PLAYER_4, jetons::EC01, 1, 7, debit::from_credit);
    const QSignalSpy told(players.get(), &players_control::players_seeded_to_storage);
    players->players_finished_with_set();
    QCOMPARE(told.count(), 1);
    const QList<QVariant> expected = {0LL, 15LL, 0LL, 7LL};
    QCOMPARE(told.first(), expected);
}

void tst_players_control::checking_the_replay_tells_its_end()
{
    table->set_jeton(PLAYER_1, jetons::EC03, 5, 2, debit::from_credit);
    players->set_replay_for_all(true);
    players->players_finished_with_set();
    table->evaluate(property_of(35), table_rules());
    table->clear_won_jetons(table_rules());
    const QSignalSpy finished(players.get(), &players_control::replay_setting_finish);
    players->checksReplay();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(table->credit(PLAYER_1), qint64{80});
    QCOMPARE(table->seeded(PLAYER_1), qint64{10});
    QCOMPARE(table->active_player(), PLAYER_1);
}

void tst_players_control::an_unpaid_replay_is_told()
{
    table->set_credit(PLAYER_1, 10);
    table->set_jeton(PLAYER_1, jetons::EC03, 5, 2, debit::from_credit);
    players->toggle_replay(PLAYER_1);
    players->players_finished_with_set();
    table->evaluate(property_of(35), table_rules());
    const QSignalSpy checked(players.get(), &players_control::checkStatusReplay);
    const QSignalSpy updated(players.get(), &players_control::player_credit_seeded_update);
    players->checksReplay();
    QCOMPARE(checked.count(), 1);
    QCOMPARE(updated.count(), 1);
    QVERIFY(!table->any_replay());
}

void tst_players_control::changes_of_role_ask_for_the_prison_pictures()
{
    const QSignalSpy asked(players.get(), &players_control::recreate_prison_jetons);
    table->make_system_player(PLAYER_2);
    table->make_normal_player(PLAYER_2);
    QCOMPARE(asked.count(), 2);
    QCOMPARE(asked.at(0).first().toInt(), int{PLAYER_2});
    QCOMPARE(asked.at(1).first().toInt(), int{PLAYER_2});
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_players_control>(argc, argv);
}

#include "tst_players_control.moc"
