#include "game_table.h"
#include "number_records.h"
#include "test_box.h"

#include <limits>

using general_player::NO_PLAYER;
using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// Setting, taking and clearing jetons, and who plays.
class tst_game_table : public QObject
{
    Q_OBJECT

private slots:
    void a_fresh_table_is_empty();
    void setting_moves_the_stake_from_credit_to_seeded();
    void a_human_sets_as_far_as_the_credit_goes_data();
    void a_human_sets_as_far_as_the_credit_goes();
    void a_system_player_may_run_below_zero();
    void pieces_join_a_jeton_at_its_own_value();
    void a_joining_piece_must_be_paid_at_the_value_of_the_jeton();
    void without_debit_only_seeded_grows();
    void pieces_beyond_the_largest_count_are_not_set_data();
    void pieces_beyond_the_largest_count_are_not_set();
    void what_is_no_place_or_no_piece_is_not_set_data();
    void what_is_no_place_or_no_piece_is_not_set();
    void taking_gives_one_piece_back();
    void taking_the_last_piece_removes_the_jeton();
    void taking_where_nothing_lies_does_nothing();
    void clearing_gives_every_jeton_of_the_player_back();
    void a_change_of_form_gives_back_what_the_form_lacks_data();
    void a_change_of_form_gives_back_what_the_form_lacks();
    void jetons_are_told_in_the_order_of_the_places();
    void closing_tells_the_seeded_sums();
    void the_active_player_is_chosen_among_humans();
    void a_system_takes_over_and_the_next_human_becomes_active();
    void with_four_systems_nobody_is_active();
    void a_freed_player_becomes_active_only_where_nobody_is();
    void a_replaced_active_player_is_restored_once();
    void a_system_player_has_no_replay();
    void all_may_set_only_while_nobody_is_kept_from_it();
    void score_steps_are_told_unless_they_are_zero();
    void stopping_puts_everything_back();
};

namespace
{

/// Remembers what the table tells.
class recorder : public table_listener
{
public:
    void player_credit_seeded_update(player_names player) override
    {
        calls.append(QString("account %1").arg(player + 1));
    }
    void player_changed() override { calls.append("player changed"); }
    void recreate_prison_jetons(player_names player) override
    {
        calls.append(QString("prison %1").arg(player + 1));
    }
    void check_status_replay() override { calls.append("replay"); }

    QStringList calls;
};

constexpr int largest_count = std::numeric_limits<int>::max();

game_table table_with_credit(qint64 credit)
{
    game_table table;
    for (int i = 0; i < player_count; ++i)
        table.set_credit(static_cast<player_names>(i), credit);
    return table;
}

} // namespace

void tst_game_table::a_fresh_table_is_empty()
{
    const game_table table;
    QCOMPARE(table.active_player(), PLAYER_1);
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        const account& own = table.account_of(player);
        QCOMPARE(own.credit, qint64{0});
        QCOMPARE(own.seeded, qint64{0});
        QVERIFY(!own.replay && !own.is_system && !own.system_flag && !own.may_set);
        QVERIFY(!table.has_jetons(player));
        QVERIFY(table.prison_of(player).is_empty());
    }
}

void tst_game_table::setting_moves_the_stake_from_credit_to_seeded()
{
    game_table table = table_with_credit(100);
    recorder listener;
    table.set_listener(&listener);
    QVERIFY(table.set_jeton(PLAYER_2, jetons::CH15, 5, 3, debit::from_credit));
    QCOMPARE(table.credit(PLAYER_2), qint64{85});
    QCOMPARE(table.seeded(PLAYER_2), qint64{15});
    QCOMPARE(table.count(PLAYER_2, jetons::CH15), 3);
    QCOMPARE(listener.calls, QStringList{"account 2"});

    QCOMPARE(table.count(PLAYER_1, jetons::CH15), 0);
    QCOMPARE(table.credit(PLAYER_1), qint64{100});
}

void tst_game_table::a_human_sets_as_far_as_the_credit_goes_data()
{
    QTest::addColumn<qint64>("credit");
    QTest::addColumn<bool>("is_set");
    // Two pieces of 5 are to be set.
    // clang-format off
    QTest::newRow("more than enough") << qint64{11} << true;
    QTest::newRow("all of it")        << qint64{10} << true;
    QTest::newRow("one too little")   << qint64{9}  << false;
    QTest::newRow("nothing")          << qint64{0}  << false;
    QTest::newRow("debts")            << qint64{-1} << false;
    // clang-format on
}

void tst_game_table::a_human_sets_as_far_as_the_credit_goes()
{
    QFETCH(qint64, credit);
    QFETCH(bool, is_set);
    game_table table = table_with_credit(credit);
    recorder listener;
    table.set_listener(&listener);
    QCOMPARE(table.set_jeton(PLAYER_1, jetons::EC03, 5, 2, debit::from_credit), is_set);
    QCOMPARE(table.credit(PLAYER_1), is_set ? credit - 10 : credit);
    QCOMPARE(table.seeded(PLAYER_1), qint64{is_set ? 10 : 0});
    QCOMPARE(table.lies(PLAYER_1, jetons::EC03), is_set);
    QCOMPARE(listener.calls.isEmpty(), !is_set);
}

void tst_game_table::a_system_player_may_run_below_zero()
{
    game_table table = table_with_credit(10);
    table.make_system_player(PLAYER_2);
    QVERIFY(table.set_jeton(PLAYER_2, jetons::EC03, 1, 64, debit::from_credit));
    QCOMPARE(table.credit(PLAYER_2), qint64{-54});
    QCOMPARE(table.seeded(PLAYER_2), qint64{64});
}

void tst_game_table::pieces_join_a_jeton_at_its_own_value()
{
    game_table table = table_with_credit(100);
    QVERIFY(table.set_jeton(PLAYER_1, jetons::PL17, 5, 1, debit::from_credit));
    QVERIFY(table.set_jeton(PLAYER_1, jetons::PL17, 2, 3, debit::from_credit));
    QCOMPARE(table.count(PLAYER_1, jetons::PL17), 4);
    QCOMPARE(table.jetons_of(PLAYER_1).first().value, 5);
    QCOMPARE(table.seeded(PLAYER_1), qint64{20});
    QCOMPARE(table.credit(PLAYER_1), qint64{80});
}

void tst_game_table::a_joining_piece_must_be_paid_at_the_value_of_the_jeton()
{
    game_table table = table_with_credit(9);
    QVERIFY(table.set_jeton(PLAYER_1, jetons::PL17, 5, 1, debit::from_credit));
    QVERIFY(!table.set_jeton(PLAYER_1, jetons::PL17, 1, 1, debit::from_credit));
    QCOMPARE(table.count(PLAYER_1, jetons::PL17), 1);
    QCOMPARE(table.credit(PLAYER_1), qint64{4});
}

void tst_game_table::without_debit_only_seeded_grows()
{
    game_table table = table_with_credit(0);
    QVERIFY(table.set_jeton(PLAYER_1, jetons::EC01, 5, 1, debit::none));
    QCOMPARE(table.credit(PLAYER_1), qint64{0});
    QCOMPARE(table.seeded(PLAYER_1), qint64{5});
    QCOMPARE(table.count(PLAYER_1, jetons::EC01), 1);
}

void tst_game_table::pieces_beyond_the_largest_count_are_not_set_data()
{
    QTest::addColumn<int>("lying");
    QTest::addColumn<int>("added");
    QTest::addColumn<int>("set");
    // clang-format off
    QTest::newRow("all fit")  << largest_count - 5 << 5             << 5;
    QTest::newRow("two fit")  << largest_count - 2 << 5             << 2;
    QTest::newRow("none fit") << largest_count     << 1             << 0;
    QTest::newRow("twice")    << largest_count     << largest_count << 0;
    // clang-format on
}

void tst_game_table::pieces_beyond_the_largest_count_are_not_set()
{
    QFETCH(int, lying);
    QFETCH(int, added);
    QFETCH(int, set);
    game_table table;
    table.make_system_player(PLAYER_1);
    QVERIFY(table.set_jeton(PLAYER_1, jetons::EC03, 1, lying, debit::from_credit));
    QCOMPARE(table.set_jeton(PLAYER_1, jetons::EC03, 1, added, debit::from_credit), set > 0);
    const qint64 pieces = qint64{lying} + set;
    QCOMPARE(qint64{table.count(PLAYER_1, jetons::EC03)}, pieces);
    QCOMPARE(table.seeded(PLAYER_1), pieces);
    QCOMPARE(table.credit(PLAYER_1), -pieces);
}

void tst_game_table::what_is_no_place_or_no_piece_is_not_set_data()
{
    QTest::addColumn<int>("jeton");
    QTest::addColumn<int>("count");
    // clang-format off
    QTest::newRow("end of the places") << int{jetons::LAST_JN}     << 1;
    QTest::newRow("no jeton")          << int{jetons::NO_JETON}    << 1;
    QTest::newRow("prison")            << int{jetons::PRIS_EC01}   << 1;
    QTest::newRow("double prison")     << int{jetons::D_PRIS_EC06} << 1;
    QTest::newRow("no piece")          << int{jetons::EC01}        << 0;
    QTest::newRow("less than none")    << int{jetons::EC01}        << -1;
    // clang-format on
}

void tst_game_table::what_is_no_place_or_no_piece_is_not_set()
{
    QFETCH(int, jeton);
    QFETCH(int, count);
    const auto place = static_cast<jetons::jeton_names>(jeton);
    game_table table = table_with_credit(100);
    QVERIFY(!table.set_jeton(PLAYER_1, place, 1, count, debit::from_credit));
    QVERIFY(!table.set_jeton(PLAYER_1, place, 1, count, debit::none));
    table.take_piece(PLAYER_1, place);
    QVERIFY(!table.has_jetons(PLAYER_1));
    QCOMPARE(table.credit(PLAYER_1), qint64{100});
    QCOMPARE(table.seeded(PLAYER_1), qint64{0});
}

void tst_game_table::taking_gives_one_piece_back()
{
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_3, jetons::DZ02, 5, 3, debit::from_credit);
    recorder listener;
    table.set_listener(&listener);
    table.take_piece(PLAYER_3, jetons::DZ02);
    QCOMPARE(table.count(PLAYER_3, jetons::DZ02), 2);
    QCOMPARE(table.credit(PLAYER_3), qint64{90});
    QCOMPARE(table.seeded(PLAYER_3), qint64{10});
    QCOMPARE(listener.calls, QStringList{"account 3"});
}

void tst_game_table::taking_the_last_piece_removes_the_jeton()
{
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_3, jetons::DZ02, 5, 1, debit::from_credit);
    table.take_piece(PLAYER_3, jetons::DZ02);
    QVERIFY(!table.lies(PLAYER_3, jetons::DZ02));
    QVERIFY(!table.has_jetons(PLAYER_3));
    QCOMPARE(table.credit(PLAYER_3), qint64{100});
    QCOMPARE(table.seeded(PLAYER_3), qint64{0});
}

void tst_game_table::taking_where_nothing_lies_does_nothing()
{
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::DZ02, 5, 1, debit::from_credit);
    recorder listener;
    table.set_listener(&listener);
    table.take_piece(PLAYER_1, jetons::DZ01);
    table.take_piece(PLAYER_2, jetons::DZ02);
    QCOMPARE(table.credit(PLAYER_1), qint64{95});
    QCOMPARE(table.credit(PLAYER_2), qint64{100});
    QCOMPARE(listener.calls, QStringList{});
}

void tst_game_table::clearing_gives_every_jeton_of_the_player_back()
{
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::DZ02, 5, 2, debit::from_credit);
    table.set_jeton(PLAYER_1, jetons::PL37, 1, 7, debit::from_credit);
    table.set_jeton(PLAYER_2, jetons::PL37, 1, 7, debit::from_credit);
    recorder listener;
    table.set_listener(&listener);
    table.clear_jetons(PLAYER_1);
    QVERIFY(!table.has_jetons(PLAYER_1));
    QCOMPARE(table.credit(PLAYER_1), qint64{100});
    QCOMPARE(table.seeded(PLAYER_1), qint64{0});
    QCOMPARE(table.count(PLAYER_2, jetons::PL37), 7);
    QCOMPARE(listener.calls, QStringList{"account 1"});
}

void tst_game_table::a_change_of_form_gives_back_what_the_form_lacks_data()
{
    QTest::addColumn<QString>("jeton");
    QTest::addColumn<bool>("on_french");
    QTest::addColumn<bool>("on_american");
    // clang-format off
    QTest::newRow("double zero")    << "PL37" << false << true;
    QTest::newRow("0/00")           << "CH61" << false << true;
    QTest::newRow("00/2")           << "CH62" << false << true;
    QTest::newRow("00/3")           << "CH63" << false << true;
    QTest::newRow("0/00/2")         << "TP15" << false << true;
    QTest::newRow("00/2/3")         << "TP16" << false << true;
    QTest::newRow("0/3")            << "CH03" << true  << false;
    QTest::newRow("0/2/3")          << "TP02" << true  << false;
    QTest::newRow("zero")           << "PL00" << true  << true;
    QTest::newRow("0/2")            << "CH02" << true  << true;
    QTest::newRow("0/1/2")          << "TP01" << true  << true;
    QTest::newRow("first numbers")  << "CA01" << true  << true;
    QTest::newRow("even chance")    << "EC06" << true  << true;
    // clang-format on
}

void tst_game_table::a_change_of_form_gives_back_what_the_form_lacks()
{
    QFETCH(QString, jeton);
    QFETCH(bool, on_french);
    QFETCH(bool, on_american);
    const jetons::jeton_names place = jetons::value_of(jeton);
    for (const table_form form : {table_form::french, table_form::american}) {
        const bool stays = form == table_form::french ? on_french : on_american;
        for (int i = 0; i < player_count; ++i) {
            const auto player = static_cast<player_names>(i);
            game_table table = table_with_credit(100);
            table.set_jeton(player, place, 5, 3, debit::from_credit);
            table.set_jeton(player, jetons::PL17, 2, 1, debit::from_credit);
            table.keep_only_chances_of(form);
            QCOMPARE(table.lies(player, place), stays);
            QCOMPARE(table.credit(player), qint64{stays ? 83 : 98});
            QCOMPARE(table.seeded(player), qint64{stays ? 17 : 2});
            QCOMPARE(table.count(player, jetons::PL17), 1);
        }
    }
}

void tst_game_table::jetons_are_told_in_the_order_of_the_places()
{
    game_table table = table_with_credit(100);
    for (const auto jeton : {jetons::DZ03, jetons::PL00, jetons::EC01, jetons::CH27}) {
        table.set_jeton(PLAYER_4, jeton, 2, 1, debit::from_credit);
    }
    table.set_jeton(PLAYER_4, jetons::CH27, 2, 4, debit::from_credit);
    const QVector<jeton_info> lying = table.jetons_of(PLAYER_4);
    QCOMPARE(lying.size(), 4);
    QCOMPARE(lying.at(0).jeton, jetons::PL00);
    QCOMPARE(lying.at(1).jeton, jetons::CH27);
    QCOMPARE(lying.at(2).jeton, jetons::EC01);
    QCOMPARE(lying.at(3).jeton, jetons::DZ03);
    QCOMPARE(lying.at(1).player, PLAYER_4);
    QCOMPARE(lying.at(1).value, 2);
    QCOMPARE(lying.at(1).count, 5);
}

void tst_game_table::closing_tells_the_seeded_sums()
{
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::PL01, 1, 3, debit::from_credit);
    table.set_jeton(PLAYER_1, jetons::PL02, 1, 4, debit::from_credit);
    table.set_jeton(PLAYER_4, jetons::PL02, 5, 2, debit::from_credit);
    QCOMPARE(table.close_bets(), (player_sums{7, 0, 0, 10}));
    QCOMPARE(table.credits(), (player_sums{93, 100, 100, 90}));
    QCOMPARE(table.count(PLAYER_1, jetons::PL01), 3);
}

void tst_game_table::the_active_player_is_chosen_among_humans()
{
    game_table table;
    table.make_system_player(PLAYER_3);
    recorder listener;
    table.set_listener(&listener);
    QVERIFY(!table.make_active(PLAYER_1)); // is active already
    QVERIFY(!table.make_active(PLAYER_3));
    QVERIFY(!table.make_active(NO_PLAYER));
    QCOMPARE(table.active_player(), PLAYER_1);
    QCOMPARE(listener.calls, QStringList{});
    QVERIFY(table.make_active(PLAYER_4));
    QCOMPARE(table.active_player(), PLAYER_4);
    QCOMPARE(listener.calls, QStringList{"player changed"});
}

void tst_game_table::a_system_takes_over_and_the_next_human_becomes_active()
{
    game_table table;
    recorder listener;
    table.set_listener(&listener);
    table.make_system_player(PLAYER_1);
    QVERIFY(table.account_of(PLAYER_1).is_system);
    QCOMPARE(table.active_player(), PLAYER_2);
    QCOMPARE(listener.calls.count("prison 1"), 1);

    table.make_active(PLAYER_4);
    table.make_system_player(PLAYER_3); // a waiting player: the active one stays
    QCOMPARE(table.active_player(), PLAYER_4);
    table.make_system_player(PLAYER_4); // the first human, not the next one
    QCOMPARE(table.active_player(), PLAYER_2);
}

void tst_game_table::with_four_systems_nobody_is_active()
{
    game_table table;
    for (int i = 0; i < player_count; ++i)
        table.make_system_player(static_cast<player_names>(i));
    QCOMPARE(table.active_player(), NO_PLAYER);
    for (int i = 0; i < player_count; ++i)
        QVERIFY(!table.make_active(static_cast<player_names>(i)));
    QCOMPARE(table.active_player(), NO_PLAYER);
}

void tst_game_table::a_freed_player_becomes_active_only_where_nobody_is()
{
    game_table table;
    for (int i = 0; i < player_count; ++i)
        table.make_system_player(static_cast<player_names>(i));
    recorder listener;
    table.set_listener(&listener);
    table.make_normal_player(PLAYER_3);
    QVERIFY(!table.account_of(PLAYER_3).is_system);
    QCOMPARE(table.active_player(), PLAYER_3);
    QCOMPARE(listener.calls.count("prison 3"), 1);
    table.make_normal_player(PLAYER_1);
    QCOMPARE(table.active_player(), PLAYER_3);
}

void tst_game_table::a_replaced_active_player_is_restored_once()
{
    game_table table;
    table.make_active(PLAYER_2);
    table.restore_active_player(); // nothing to undo
    QCOMPARE(table.active_player(), PLAYER_2);
    table.replace_active_player(PLAYER_4);
    QCOMPARE(table.active_player(), PLAYER_4);
    table.restore_active_player();
    QCOMPARE(table.active_player(), PLAYER_2);
    table.make_active(PLAYER_3);
    table.restore_active_player(); // undone already: the choice stands
    QCOMPARE(table.active_player(), PLAYER_3);
}

void tst_game_table::a_system_player_has_no_replay()
{
    game_table table;
    table.set_replay(PLAYER_1, true);
    table.set_replay(PLAYER_2, true);
    QVERIFY(table.any_replay());
    table.make_system_player(PLAYER_1);
    QVERIFY(!table.account_of(PLAYER_1).replay);
    table.set_replay(PLAYER_1, true);
    QVERIFY(!table.account_of(PLAYER_1).replay);
    QVERIFY(table.any_replay());
    recorder listener;
    table.set_listener(&listener);
    table.set_replay(PLAYER_2, false);
    QVERIFY(!table.any_replay());
    QCOMPARE(listener.calls, QStringList{"replay"});
}

void tst_game_table::all_may_set_only_while_nobody_is_kept_from_it()
{
    game_table table;
    QVERIFY(!table.all_may_set());
    table.set_may_set_for_all(true);
    QVERIFY(table.all_may_set());
    table.set_may_set(PLAYER_3, false);
    QVERIFY(!table.all_may_set());
    QVERIFY(table.account_of(PLAYER_2).may_set);
    QVERIFY(!table.account_of(PLAYER_3).may_set);
}

void tst_game_table::score_steps_are_told_unless_they_are_zero()
{
    game_table table = table_with_credit(10);
    recorder listener;
    table.set_listener(&listener);
    table.add_credit(PLAYER_2, 100);
    table.add_credit(PLAYER_2, 0);
    table.add_credit(PLAYER_2, -3);
    QCOMPARE(table.credit(PLAYER_2), qint64{107});
    QCOMPARE(listener.calls, (QStringList{"account 2", "account 2"}));
}

void tst_game_table::stopping_puts_everything_back()
{
    game_table table = table_with_credit(100);
    const table_rules rules;
    table.set_may_set_for_all(true);
    table.set_replay(PLAYER_2, true);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 1, debit::from_credit);
    table.evaluate(property_of(0), rules); // the piece of 1 goes to prison
    table.set_jeton(PLAYER_2, jetons::EC03, 1, 3, debit::from_credit);
    table.close_bets();
    table.evaluate(property_of(0), rules);  // it goes to double prison, one of 2 to prison
    table.evaluate(property_of(36), rules); // 1 is back in prison, 2 is released
    QCOMPARE(table.imprisoned(PLAYER_1).size(), 1);
    QCOMPARE(table.back_jetons().size(), std::size_t{1});

    table.stop(2000);
    QVERIFY(table.back_jetons().empty());
    QVERIFY(!table.all_may_set());
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        QVERIFY(!table.has_jetons(player));
        QVERIFY(table.prison_of(player).is_empty());
        QVERIFY(!table.account_of(player).may_set);
        QCOMPARE(table.credit(player), qint64{2000});
        QCOMPARE(table.seeded(player), qint64{0});
    }

    // What is left of the coup finds nothing to act on.
    table.clear_won_jetons(rules);
    table.set_back_jetons(rules);
    table.checks_replay();
    QCOMPARE(table.credits(), (player_sums{2000, 2000, 2000, 2000}));
    QVERIFY(!table.has_jetons(PLAYER_1) && !table.has_jetons(PLAYER_2));
    QVERIFY(table.account_of(PLAYER_2).replay); // the wish to repeat survives
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_game_table>(argc, argv);
}

#include "tst_game_table.moc"
