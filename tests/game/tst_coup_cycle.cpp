#include "coup_cycle.h"
#include "number_records.h"
#include "numberstorage.h"
#include "setting.h"
#include "test_box.h"

#include <functional>
#include <memory>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// What follows what in a coup, and what becomes of answers that come twice, late or never.
class tst_coup_cycle : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void a_coup_takes_its_steps_in_order();
    void may_set_is_true_from_the_opening_to_the_closing_of_the_bets();
    void won_jetons_go_before_the_limits_and_replay_comes_behind_them();
    void a_host_may_answer_at_once();
    void coups_follow_each_other();

    void hand_changes_in_a_row_cost_one_coup();
    void a_hand_change_is_in_the_permanence_when_the_systems_hear_of_it();
    void a_file_that_ends_in_hand_changes_is_no_coup();
    void an_empty_file_is_no_coup();
    void the_last_number_of_a_file_still_plays();

    void a_coup_that_falls_due_in_pause_waits_for_its_end();
    void a_due_coup_that_is_played_otherwise_is_due_no_more();
    void a_coup_under_way_goes_on_in_pause();
    void bets_are_opened_in_pause_too();
    void nothing_begins_while_the_game_is_stopped();

    void a_stop_voids_the_coup_data();
    void a_stop_voids_the_coup();
    void a_stop_in_the_middle_of_a_step_ends_it_data();
    void a_stop_in_the_middle_of_a_step_ends_it();
    void a_start_behind_such_a_stop_is_a_new_game_data();
    void a_start_behind_such_a_stop_is_a_new_game();

    void bets_are_closed_once_for_each_coup();
    void a_throw_is_evaluated_once_data();
    void a_throw_is_evaluated_once();
    void scores_are_counted_for_four_players_and_no_more();
    void a_score_that_comes_in_the_middle_of_the_last_one_is_dropped();

    void the_bets_open_when_the_last_system_has_played();
    void the_turn_of_a_system_ends_once();
    void a_lost_report_of_a_system_does_not_stop_the_game();
    void a_system_that_ends_in_its_own_turn_is_still_awaited();

private:
    class recording_host;

    void play_coup_to(const QString& last_call);
    void answer_all_late();
    void count_four_scores();
    void load_numbers(const QByteArray& lines);
    QList<int> permanence() const { return numbers->last_numbers(4, true); }

    std::unique_ptr<setting> settings;
    std::unique_ptr<numberStorage> numbers;
    std::unique_ptr<game_table> table;
    std::unique_ptr<recording_host> host;
    std::unique_ptr<coup_cycle> cycle;
};

/// Notes every call; a test may have something done in the middle of one.
class tst_coup_cycle::recording_host : public coup_host
{
public:
    void bets_closed(const player_sums& seeded) override
    {
        note("closed",
             QString(" %1 %2 %3 %4").arg(seeded[0]).arg(seeded[1]).arg(seeded[2]).arg(seeded[3]));
    }
    void hand_change_thrown() override { note("hand change"); }
    void start_throw(int number) override { note("throw", QString(" %1").arg(number)); }
    void number_stored(int number) override { note("stored", QString(" %1").arg(number)); }
    void count_scores(const number_hit_property& property, const player_sums& scores) override
    {
        note("scores",
             QString(" of %1: %2 %3 %4 %5")
                 .arg(property.number)
                 .arg(scores[0])
                 .arg(scores[1])
                 .arg(scores[2])
                 .arg(scores[3]));
    }
    void score_entered(player_names player, qint64 score) override
    {
        note("entered", QString(" %1 %2").arg(player + 1).arg(score));
    }
    void check_system_borders() override { note("borders"); }
    player_flags playing_systems() const override { return playing; }
    void play_systems() override { note("systems"); }
    void bets_opened() override { note("opened"); }
    void load_file_ended() override { note("load end"); }

    /// Has something done the next time that a call comes.
    void do_once(const QString& call, std::function<void()> action) { actions[call] = action; }

    QStringList calls;
    player_flags playing{};

private:
    void note(const QString& call, const QString& details = {})
    {
        calls.append(call + details);
        const std::function<void()> action = actions.take(call);
        if (action) action();
    }

    QHash<QString, std::function<void()>> actions;
};

void tst_coup_cycle::init()
{
    settings = std::make_unique<setting>();
    settings->set_state(game_state::running);
    numbers = std::make_unique<numberStorage>(*settings);
    table = std::make_unique<game_table>();
    for (int i = 0; i < player_count; ++i)
        table->set_credit(static_cast<player_names>(i), 100);
    host = std::make_unique<recording_host>();
    cycle = std::make_unique<coup_cycle>(*table, *numbers, *settings, *host);
    numbers->set_manual_number(36); // red
}

void tst_coup_cycle::cleanup()
{
    cycle.reset();
    host.reset();
    table.reset();
    numbers.reset();
    settings.reset();
}

/// Plays a coup with two pieces of player 1 on red from its begin until a call has come.
void tst_coup_cycle::play_coup_to(const QString& last_call)
{
    cycle->open_bets();
    table->set_jeton(PLAYER_1, jetons::EC03, 1, 2, debit::from_credit);
    if (last_call == "opened") return;
    cycle->close_bets();
    if (last_call == "throw") return;
    cycle->throw_finished();
    if (last_call == "scores") return;
    count_four_scores();
}

void tst_coup_cycle::count_four_scores()
{
    for (int i = 0; i < player_count; ++i)
        cycle->score_counted(static_cast<player_names>(i), i == 0 ? 4 : 0);
}

/// Everything that might still come from the coup that was stopped.
void tst_coup_cycle::answer_all_late()
{
    cycle->throw_finished();
    count_four_scores();
    for (int i = 0; i < player_count; ++i)
        cycle->system_round_complete(static_cast<player_names>(i));
    QVERIFY(!cycle->pause_ended());
}

void tst_coup_cycle::load_numbers(const QByteArray& lines)
{
    QFile file("numbers.inp");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(lines), qint64{lines.size()});
    file.close();
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = "numbers.inp";
    numbers->cancel_manual_number();
    numbers->set_load_files(choice);
}

void tst_coup_cycle::a_coup_takes_its_steps_in_order()
{
    QCOMPARE(cycle->number(), -1);
    QCOMPARE(cycle->open_rounds(), -1);
    cycle->open_bets();
    QCOMPARE(host->calls, QStringList{"opened"});
    table->set_jeton(PLAYER_1, jetons::EC03, 1, 2, debit::from_credit);
    table->set_jeton(PLAYER_4, jetons::PL36, 1, 1, debit::from_credit);
    host->calls.clear();
    QVERIFY(!cycle->is_running());
    cycle->close_bets();
    QCOMPARE(host->calls, (QStringList{"closed 2 0 0 1", "throw 36"}));
    QVERIFY(cycle->is_running());
    QCOMPARE(cycle->number(), 36);
    QVERIFY(permanence().isEmpty());

    host->calls.clear();
    cycle->throw_finished();
    QCOMPARE(host->calls, (QStringList{"stored 36", "scores of 36: 4 0 0 36"}));
    QCOMPARE(permanence(), (QList<int>{-1, -1, -1, 36}));
    QCOMPARE(table->credit(PLAYER_1), qint64{98}); // the host counts

    host->calls.clear();
    cycle->score_counted(PLAYER_3, 0);
    cycle->score_counted(PLAYER_1, 4);
    cycle->score_counted(PLAYER_2, 0);
    QCOMPARE(host->calls, (QStringList{"entered 3 0", "entered 1 4", "entered 2 0"}));
    QVERIFY(table->lies(PLAYER_1, jetons::EC03));
    host->calls.clear();
    cycle->score_counted(PLAYER_4, 36);
    QCOMPARE(host->calls, (QStringList{"entered 4 36", "borders", "opened"}));
    QVERIFY(!table->has_jetons(PLAYER_1));
    QVERIFY(!cycle->is_running());
    QCOMPARE(cycle->open_rounds(), -1);
}

void tst_coup_cycle::may_set_is_true_from_the_opening_to_the_closing_of_the_bets()
{
    QStringList met;
    const auto note = [&](const QString& call) {
        host->do_once(call, [this, call, &met] {
            met.append(call + (table->all_may_set() ? " open" : " closed"));
        });
    };
    for (const char* call : {"opened", "closed", "throw", "stored", "scores", "borders"})
        note(call);
    play_coup_to("scores");
    note("opened");
    count_four_scores();
    QCOMPARE(met,
             (QStringList{"opened open",
                          "closed closed",
                          "throw closed",
                          "stored closed",
                          "scores closed",
                          "borders closed",
                          "opened open"}));
}

void tst_coup_cycle::won_jetons_go_before_the_limits_and_replay_comes_behind_them()
{
    // Player 1 has replay, player 2 a piece in prison on red, player 3 a system.
    table->set_jeton(PLAYER_2, jetons::EC03, 1, 1, debit::from_credit);
    table->evaluate(property_of(0), table_rules());
    table->set_replay(PLAYER_1, true);
    table->make_system_player(PLAYER_3);
    host->playing[PLAYER_3] = true;
    qint64 seeded_at_borders = -1;
    int back_at_borders = -1;
    qint64 seeded_at_systems = -1;
    host->do_once("borders", [&] {
        seeded_at_borders = table->seeded(PLAYER_1);
        back_at_borders = table->count(PLAYER_2, jetons::EC03);
    });
    host->do_once("systems", [&] {
        seeded_at_systems = table->seeded(PLAYER_1);
        cycle->system_round_complete(PLAYER_3);
    });
    play_coup_to("opened");
    cycle->close_bets();
    cycle->throw_finished();
    count_four_scores();
    QCOMPARE(seeded_at_borders, qint64{0});
    QCOMPARE(back_at_borders, 1);
    QCOMPARE(seeded_at_systems, qint64{2});
    QCOMPARE(host->calls.mid(host->calls.size() - 3),
             (QStringList{"borders", "systems", "opened"}));
}

void tst_coup_cycle::a_host_may_answer_at_once()
{
    host->do_once("throw", [this] { cycle->throw_finished(); });
    host->do_once("scores", [this] { count_four_scores(); });
    play_coup_to("throw");
    QCOMPARE(host->calls,
             (QStringList{"opened",
                          "closed 2 0 0 0",
                          "throw 36",
                          "stored 36",
                          "scores of 36: 4 0 0 0",
                          "entered 1 4",
                          "entered 2 0",
                          "entered 3 0",
                          "entered 4 0",
                          "borders",
                          "opened"}));
}

void tst_coup_cycle::coups_follow_each_other()
{
    for (const int number : {5, 0, 36}) {
        numbers->set_manual_number(number);
        play_coup_to("all");
    }
    QCOMPARE(host->calls.filter("throw"), (QStringList{"throw 5", "throw 0", "throw 36"}));
    QCOMPARE(permanence(), (QList<int>{-1, 5, 0, 36}));
}

void tst_coup_cycle::hand_changes_in_a_row_cost_one_coup()
{
    load_numbers("-\n-\n-\n17\n5\n");
    play_coup_to("throw");
    QCOMPARE(host->calls,
             (QStringList{"opened",
                          "stored 99",
                          "hand change",
                          "stored 99",
                          "hand change",
                          "stored 99",
                          "hand change",
                          "closed 2 0 0 0",
                          "throw 17"}));
    QCOMPARE(permanence(), (QList<int>{-1, 99, 99, 99}));
    cycle->throw_finished();
    QCOMPARE(permanence(), (QList<int>{99, 99, 99, 17}));
    QCOMPARE(numbers->last_numbers(2, false), (QList<int>{-1, 17}));
}

void tst_coup_cycle::a_hand_change_is_in_the_permanence_when_the_systems_hear_of_it()
{
    load_numbers("-\n17\n5\n");
    QList<int> heard;
    int number = 0;
    host->do_once("hand change", [&] {
        heard = numbers->last_numbers(1, true);
        number = cycle->number();
        table->clear_jetons(PLAYER_1); // a system that takes its bets back
    });
    play_coup_to("throw");
    QCOMPARE(heard, QList<int>{99});
    QCOMPARE(number, 99);
    QVERIFY(host->calls.contains("closed 0 0 0 0"));
}

void tst_coup_cycle::a_file_that_ends_in_hand_changes_is_no_coup()
{
    load_numbers("17\n-\n-\n");
    play_coup_to("all");
    table->set_jeton(PLAYER_1, jetons::EC03, 1, 2, debit::from_credit);
    host->calls.clear();
    cycle->close_bets();
    QCOMPARE(host->calls,
             (QStringList{
                 "stored 99", "hand change", "stored 99", "hand change", "load end", "opened"}));
    QCOMPARE(table->count(PLAYER_1, jetons::EC03), 2);
    QVERIFY(table->all_may_set());
    QVERIFY(!cycle->is_running());
    QVERIFY(numbers->get_source_mode() == number_source::random);
    QVERIFY(!numbers->last_number_is_out());

    numbers->set_manual_number(5);
    host->calls.clear();
    cycle->close_bets();
    QCOMPARE(host->calls, (QStringList{"closed 2 0 0 0", "throw 5"}));
}

void tst_coup_cycle::an_empty_file_is_no_coup()
{
    load_numbers("");
    play_coup_to("opened");
    host->calls.clear();
    cycle->close_bets();
    QCOMPARE(host->calls, (QStringList{"load end", "opened"}));
    QCOMPARE(table->count(PLAYER_1, jetons::EC03), 2);
    QVERIFY(permanence().isEmpty());
}

void tst_coup_cycle::the_last_number_of_a_file_still_plays()
{
    load_numbers("17\n");
    play_coup_to("throw");
    QVERIFY(host->calls.contains("throw 17"));
    QVERIFY(!host->calls.contains("load end"));
    cycle->throw_finished();
    host->calls.clear();
    count_four_scores();
    QCOMPARE(host->calls.mid(4), (QStringList{"borders", "load end", "opened"}));
    QVERIFY(numbers->get_source_mode() == number_source::random);
}

void tst_coup_cycle::a_coup_that_falls_due_in_pause_waits_for_its_end()
{
    play_coup_to("opened");
    settings->set_state(game_state::paused);
    host->calls.clear();
    cycle->close_bets();
    QCOMPARE(host->calls, QStringList{});
    QVERIFY(!cycle->is_running());
    QVERIFY(table->all_may_set());

    settings->set_state(game_state::running);
    QVERIFY(cycle->pause_ended());
    QCOMPARE(host->calls, (QStringList{"closed 2 0 0 0", "throw 36"}));
    QVERIFY(!cycle->pause_ended());
    QCOMPARE(host->calls.size(), 2);
}

void tst_coup_cycle::a_due_coup_that_is_played_otherwise_is_due_no_more()
{
    play_coup_to("opened");
    settings->set_state(game_state::paused);
    cycle->close_bets();
    settings->set_state(game_state::running);
    cycle->close_bets();
    QCOMPARE(host->calls.last(), QString("throw 36"));
    QVERIFY(!cycle->pause_ended());
}

void tst_coup_cycle::a_coup_under_way_goes_on_in_pause()
{
    play_coup_to("throw");
    settings->set_state(game_state::paused);
    cycle->throw_finished();
    count_four_scores();
    QCOMPARE(host->calls.last(), QString("opened"));
    cycle->close_bets();
    QCOMPARE(host->calls.last(), QString("opened"));
    settings->set_state(game_state::running);
    numbers->set_manual_number(5);
    QVERIFY(cycle->pause_ended());
    QCOMPARE(host->calls.last(), QString("throw 5"));
}

void tst_coup_cycle::bets_are_opened_in_pause_too()
{
    settings->set_state(game_state::paused);
    cycle->open_bets();
    QCOMPARE(host->calls, QStringList{"opened"});
    QVERIFY(table->all_may_set());
    QVERIFY(!cycle->pause_ended()); // no coup fell due
}

void tst_coup_cycle::nothing_begins_while_the_game_is_stopped()
{
    settings->set_state(game_state::stopped);
    cycle->open_bets();
    cycle->close_bets();
    answer_all_late();
    QCOMPARE(host->calls, QStringList{});
    QVERIFY(!table->all_may_set());
    QVERIFY(numbers->get_source_mode() == number_source::manual); // nothing was drawn
}

void tst_coup_cycle::a_stop_voids_the_coup_data()
{
    QTest::addColumn<QString>("phase");
    for (const char* phase : {"opened", "due in pause", "throw", "scores", "three counted"})
        QTest::newRow(phase) << QString(phase);
}

void tst_coup_cycle::a_stop_voids_the_coup()
{
    QFETCH(QString, phase);
    if (phase == "due in pause") {
        play_coup_to("opened");
        settings->set_state(game_state::paused);
        cycle->close_bets();
    } else if (phase == "three counted") {
        play_coup_to("scores");
        for (const player_names player : {PLAYER_1, PLAYER_2, PLAYER_3})
            cycle->score_counted(player, 0);
    } else {
        play_coup_to(phase);
    }
    settings->set_state(game_state::stopped);
    cycle->stop();
    table->stop(2000);
    host->calls.clear();
    answer_all_late();
    cycle->close_bets(); // the one that was posted before the stop
    QCOMPARE(host->calls, QStringList{});
    QVERIFY(!cycle->is_running());
    QCOMPARE(cycle->open_rounds(), -1);

    // Nor do late answers disturb the next game.
    settings->set_state(game_state::running);
    numbers->set_manual_number(36);
    cycle->open_bets();
    answer_all_late();
    QCOMPARE(host->calls, QStringList{"opened"});
    play_coup_to("all");
    QCOMPARE(host->calls.filter("throw"), QStringList{"throw 36"});
    QCOMPARE(host->calls.filter("entered").size(), 4);
    QCOMPARE(host->calls.last(), QString("opened"));
}

void tst_coup_cycle::a_stop_in_the_middle_of_a_step_ends_it_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QStringList>("before"); // calls of the coup up to the stop
    const QStringList drawn = {"stored 99", "hand change"};
    const QStringList thrown = drawn + QStringList{"closed 2 0 0 0", "throw 36"};
    const QStringList counted = thrown + QStringList{"stored 36", "scores of 36: 4 0 0 0"};
    const QStringList entered =
        counted + QStringList{"entered 1 4", "entered 2 0", "entered 3 0", "entered 4 0"};
    // clang-format off
    QTest::newRow("hand change") << "hand change" << drawn;
    QTest::newRow("throw")       << "throw"       << thrown;
    QTest::newRow("counting")    << "scores"      << counted;
    QTest::newRow("limits")      << "borders"     << entered + QStringList{"borders"};
    QTest::newRow("systems")     << "systems"     << entered + QStringList{"borders", "systems"};
    // clang-format on
}

void tst_coup_cycle::a_stop_in_the_middle_of_a_step_ends_it()
{
    QFETCH(QString, call);
    QFETCH(QStringList, before);
    load_numbers("-\n36\n5\n");
    host->playing[PLAYER_2] = true;
    host->do_once(call, [this] {
        settings->set_state(game_state::stopped);
        cycle->stop();
        table->stop(2000);
    });
    play_coup_to("all");
    QCOMPARE(host->calls.mid(1), before);
    answer_all_late();
    QCOMPARE(host->calls.mid(1), before);
    QCOMPARE(table->credits(), (player_sums{2000, 2000, 2000, 2000}));
}

void tst_coup_cycle::a_start_behind_such_a_stop_is_a_new_game_data()
{
    QTest::addColumn<QString>("call");
    for (const char* call : {"reading", "hand change", "entered", "borders", "systems"})
        QTest::newRow(call) << QString(call);
}

void tst_coup_cycle::a_start_behind_such_a_stop_is_a_new_game()
{
    QFETCH(QString, call);
    const auto stop_and_start = [this] {
        cycle->stop();
        table->stop(2000);
        host->calls.clear();
        cycle->open_bets();
    };
    // The number 36 is the last of its file: with it the follow file is read.
    QFile follow("follow.inp");
    QVERIFY(follow.open(QIODevice::WriteOnly));
    follow.write("5\n");
    follow.close();
    load_numbers("-\n36\n");
    load_file_settings choice = numbers->load_settings();
    choice.files[1] = "follow.inp";
    numbers->set_load_files(choice);
    host->playing[PLAYER_2] = true;
    int answered = 0;
    if (call == "reading") {
        numbers->set_line_hook([&] {
            if (answered++ == 0) stop_and_start();
        });
    } else if (call == "entered") {
        play_coup_to("scores");
        for (const player_names player : {PLAYER_1, PLAYER_2, PLAYER_3})
            cycle->score_counted(player, 0);
        host->do_once("entered", stop_and_start);
        cycle->score_counted(PLAYER_4, 0);
    } else {
        host->do_once(call, stop_and_start);
    }
    if (call != "entered") play_coup_to("all");

    // The old coup neither throws nor opens the bets a second time, nor do its late answers.
    answer_all_late();
    QCOMPARE(host->calls, QStringList{"opened"});
    QVERIFY(!cycle->is_running());
    QVERIFY(table->all_may_set());
    QCOMPARE(cycle->open_rounds(), -1);
    QCOMPARE(table->credits(), (player_sums{2000, 2000, 2000, 2000}));
}

void tst_coup_cycle::bets_are_closed_once_for_each_coup()
{
    play_coup_to("opened");
    host->do_once("closed", [this] { cycle->close_bets(); });
    host->do_once("throw", [this] { cycle->close_bets(); });
    host->do_once("scores", [this] { cycle->close_bets(); });
    host->do_once("borders", [this] { cycle->close_bets(); });
    cycle->close_bets();
    cycle->close_bets();
    cycle->throw_finished();
    cycle->close_bets();
    count_four_scores();
    QCOMPARE(host->calls.filter("closed").size(), 1);
    QCOMPARE(host->calls.filter("throw").size(), 1);

    numbers->set_manual_number(5);
    cycle->close_bets();
    QCOMPARE(host->calls.last(), QString("throw 5"));
}

void tst_coup_cycle::a_throw_is_evaluated_once_data()
{
    QTest::addColumn<QString>("call"); // in which the ball is said to rest once more
    for (const char* call : {"closed", "stored", "scores", "entered", "borders", "systems"})
        QTest::newRow(call) << QString(call);
}

void tst_coup_cycle::a_throw_is_evaluated_once()
{
    QFETCH(QString, call);
    host->playing[PLAYER_3] = true;
    host->do_once("systems", [this] { cycle->system_round_complete(PLAYER_3); });
    if (call == "systems") {
        host->do_once("systems", [this] {
            cycle->throw_finished();
            cycle->system_round_complete(PLAYER_3);
        });
    } else {
        host->do_once(call, [this] { cycle->throw_finished(); });
    }
    cycle->throw_finished(); // before there is a throw
    play_coup_to("all");
    cycle->throw_finished(); // behind the coup
    QCOMPARE(host->calls.filter("stored"), QStringList{"stored 36"});
    QCOMPARE(host->calls.filter("scores"), QStringList{"scores of 36: 4 0 0 0"});
    QCOMPARE(host->calls.filter("opened").size(), 2);
    QCOMPARE(permanence(), (QList<int>{-1, -1, -1, 36}));
}

void tst_coup_cycle::scores_are_counted_for_four_players_and_no_more()
{
    cycle->score_counted(PLAYER_1, 5); // nothing to count yet
    play_coup_to("throw");
    cycle->score_counted(PLAYER_1, 5);
    QVERIFY(host->calls.filter("entered").isEmpty());
    cycle->throw_finished();
    count_four_scores();
    QCOMPARE(host->calls.filter("entered").size(), 4);
    cycle->score_counted(PLAYER_1, 5);
    QCOMPARE(host->calls.filter("entered").size(), 4);
    QCOMPARE(host->calls.filter("borders").size(), 1);

    // The count begins anew with each coup.
    numbers->set_manual_number(5);
    play_coup_to("scores");
    for (const player_names player : {PLAYER_1, PLAYER_2, PLAYER_3})
        cycle->score_counted(player, 0);
    QCOMPARE(host->calls.filter("borders").size(), 1);
    cycle->score_counted(PLAYER_4, 0);
    QCOMPARE(host->calls.filter("borders").size(), 2);
}

void tst_coup_cycle::a_score_that_comes_in_the_middle_of_the_last_one_is_dropped()
{
    play_coup_to("scores");
    for (const player_names player : {PLAYER_1, PLAYER_2, PLAYER_3})
        cycle->score_counted(player, 0);
    host->do_once("entered", [this] { cycle->score_counted(PLAYER_4, 0); });
    cycle->score_counted(PLAYER_4, 0);
    QCOMPARE(host->calls.filter("entered").size(), 4);
    QCOMPARE(host->calls.filter("borders").size(), 1);
    QCOMPARE(host->calls.filter("opened").size(), 2);
}

void tst_coup_cycle::the_bets_open_when_the_last_system_has_played()
{
    host->playing = {false, true, false, true};
    QList<int> open;
    host->do_once("systems", [&] {
        open.append(cycle->open_rounds());
        cycle->system_round_complete(PLAYER_4);
        open.append(cycle->open_rounds());
        QVERIFY(host->calls.last() == "systems");
        cycle->system_round_complete(PLAYER_2);
        open.append(cycle->open_rounds());
        QVERIFY(host->calls.last() == "opened");
    });
    play_coup_to("all");
    QCOMPARE(open, (QList<int>{2, 1, 0}));
    QCOMPARE(host->calls.filter("opened").size(), 2);
    QVERIFY(!cycle->is_running());
}

void tst_coup_cycle::the_turn_of_a_system_ends_once()
{
    host->playing = {true, true, false, false};
    cycle->system_round_complete(PLAYER_1); // the round in which the system was started
    QCOMPARE(host->calls, QStringList{});
    host->do_once("systems", [this] {
        cycle->system_round_complete(PLAYER_1);
        cycle->system_round_complete(PLAYER_1);
        cycle->system_round_complete(PLAYER_3); // plays no system
        QCOMPARE(cycle->open_rounds(), 1);
        cycle->system_round_complete(PLAYER_2);
        cycle->system_round_complete(PLAYER_2);
    });
    play_coup_to("all");
    cycle->system_round_complete(PLAYER_2);
    QCOMPARE(host->calls.filter("opened").size(), 2);
}

void tst_coup_cycle::a_lost_report_of_a_system_does_not_stop_the_game()
{
    host->playing = {true, true, false, false};
    host->do_once("systems", [this] { cycle->system_round_complete(PLAYER_1); });
    QTest::ignoreMessage(QtWarningMsg, "a system did not report the end of its turn");
    play_coup_to("all");
    QCOMPARE(host->calls.filter("opened").size(), 2);
    QCOMPARE(cycle->open_rounds(), 0);
    cycle->system_round_complete(PLAYER_2); // too late
    QCOMPARE(host->calls.filter("opened").size(), 2);

    // The next coup waits for both again.
    host->do_once("systems", [this] {
        cycle->system_round_complete(PLAYER_2);
        QCOMPARE(cycle->open_rounds(), 1);
        cycle->system_round_complete(PLAYER_1);
    });
    numbers->set_manual_number(5);
    play_coup_to("all");
    QCOMPARE(host->calls.filter("opened").size(), 4); // one of them by the test
}

void tst_coup_cycle::a_system_that_ends_in_its_own_turn_is_still_awaited()
{
    // A system that stops in its own turn reports all the same.
    host->playing = {true, false, false, false};
    host->do_once("systems", [this] {
        host->playing = {};
        cycle->system_round_complete(PLAYER_1);
    });
    play_coup_to("all");
    QCOMPARE(host->calls.last(), QString("opened"));
    QCOMPARE(cycle->open_rounds(), 0);
    numbers->set_manual_number(5);
    host->calls.clear();
    play_coup_to("all");
    QVERIFY(!host->calls.contains("systems"));
    QCOMPARE(cycle->open_rounds(), -1);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_coup_cycle>(argc, argv);
}

#include "tst_coup_cycle.moc"
