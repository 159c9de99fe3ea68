#include "coup_cycle.h"
#include "language_bench.h"
#include "system_seats.h"
#include "test_box.h"

#include <QRegularExpression>

#include <functional>

using general_player::player_names;

static constexpr player_names one = general_player::PLAYER_1;
static constexpr player_names two = general_player::PLAYER_2;
static constexpr player_names three = general_player::PLAYER_3;
static constexpr player_names four = general_player::PLAYER_4;

class tst_system_seats : public QObject
{
    Q_OBJECT

private slots:
    void systems_bet_in_the_order_of_their_start();
    void a_system_started_again_goes_to_the_end();
    void limits_are_checked_in_player_order();
    void a_hand_change_goes_round_in_start_order();
    void every_coup_opens_the_bets_once_data();
    void every_coup_opens_the_bets_once();
    void the_first_round_runs_at_once();
    void in_a_coup_its_turn_is_the_first_round();
    void a_started_player_belongs_to_the_system();
    void a_file_with_a_fault_seats_nobody_data();
    void a_file_with_a_fault_seats_nobody();
    void a_system_may_end_in_its_first_round();
    void a_system_that_ends_reports_its_round_data();
    void a_system_that_ends_reports_its_round();
    void a_system_may_be_started_from_its_own_end();
    void a_fault_in_the_file_may_be_mended_from_its_own_end();
    void a_system_taken_out_before_its_turn_does_not_play();
    void a_system_taken_out_in_its_turn_is_not_reset_any_more();
    void a_system_taken_out_by_its_message_does_nothing_more();
    void a_stopped_system_leaves_its_jetons();
    void all_systems_stop_together();
    void a_pause_comes_behind_the_end();
    void a_bet_is_told_with_its_line();
    void a_reset_tells_that_the_bets_went_back();
    void two_limits_of_a_coup_take_one_load_file();
    void the_same_run_gives_the_same_twice();
};

namespace
{

/// A table whose coups are answered at once, with systems at it.
class seated_game : public language_bench, public coup_host, public seats_host
{
public:
    explicit seated_game(table_form form = table_form::french)
        : language_bench(form)
    {
        settings.set_state(game_state::running);
    }

    /// Starts a system from its text.
    bool start(player_names player, const QString& system)
    {
        const QString path = QStringLiteral("system_%1.syf").arg(int(player) + 1);
        if (!write_file(path, system.toUtf8())) qFatal("no system file");
        settings.set_s_user_sys_file(player, path);
        return seats.start(player);
    }

    /// Plays a coup with a number; gives what was told meanwhile.
    QStringList coup(int number)
    {
        told.clear();
        numbers.set_manual_number(number);
        cycle.close_bets();
        return told;
    }

    QStringList coup_from_file()
    {
        told.clear();
        cycle.close_bets();
        return told;
    }

    coup_cycle cycle{table, numbers, settings, *this};
    system_seats seats{environment, cycle, *this};
    QStringList told;
    QVector<sys_result_info> ends;
    int opened = 0;
    std::function<void()> at_bets_closed;
    std::function<void(player_names)> at_message;
    std::function<void(player_names)> at_end;

    void bets_closed(const player_sums& sums) override
    {
        for (std::size_t i = 0; i < sums.size(); ++i)
            statistic.add_seeded(static_cast<player_names>(i), sums[i]);
        if (at_bets_closed) at_bets_closed();
    }
    void hand_change_thrown() override { seats.hand_change(); }
    void start_throw(int) override { cycle.throw_finished(); }
    void number_stored(int) override {}
    void count_scores(const number_hit_property&, const player_sums& scores) override
    {
        for (std::size_t i = 0; i < scores.size(); ++i) {
            table.add_credit(static_cast<player_names>(i), scores[i]);
            cycle.score_counted(static_cast<player_names>(i), scores[i]);
        }
    }
    void score_entered(player_names player, qint64 score) override
    {
        statistic.add_score(player, score, table.credit(player));
    }
    void check_system_borders() override { seats.check_borders(); }
    player_flags playing_systems() const override { return seats.playing(); }
    void play_systems() override { seats.play(); }
    void bets_opened() override { ++opened; }
    void load_file_ended() override {}

    void jeton_set(player_names player,
                   jetons::jeton_names jeton,
                   jetons::ext_jeton_names ext_jeton,
                   int amount,
                   int line) override
    {
        tell(player, bet_text(jeton, ext_jeton, amount) + " line " + QString::number(line));
    }
    void monitor_action(player_names player, const QString& action) override
    {
        tell(player, action);
    }
    void bets_returned(player_names player) override { tell(player, "returned"); }
    void message_shown(player_names player, const QStringList&) override
    {
        tell(player, "message");
        if (at_message) at_message(player);
    }
    void pause_wanted(player_names player) override { tell(player, "pause"); }
    void system_ended(player_names player, const sys_result_info& info) override
    {
        tell(player, "ended " + QString::number(info.status));
        ends.append(info);
        if (at_end) at_end(player);
    }
    void round_complete(player_names player) override
    {
        tell(player, "complete");
        cycle.system_round_complete(player);
    }

private:
    void tell(player_names player, const QString& what)
    {
        told.append(QString::number(player + 1) + ' ' + what);
    }
};

} // namespace

static const QString red = QStringLiteral("AL: SZ EC03;");

void tst_system_seats::systems_bet_in_the_order_of_their_start()
{
    seated_game game;
    for (const player_names player : {three, one, four, two})
        QVERIFY(game.start(player, red));
    QCOMPARE(game.coup(20),
             (QStringList{"3 EC03 x1 line 1",
                          "3 complete",
                          "1 EC03 x1 line 1",
                          "1 complete",
                          "4 EC03 x1 line 1",
                          "4 complete",
                          "2 EC03 x1 line 1",
                          "2 complete"}));
}

void tst_system_seats::a_system_started_again_goes_to_the_end()
{
    seated_game game;
    for (const player_names player : {one, two, three, one})
        QVERIFY(game.start(player, "AL: SZ CO01(1);"));
    QCOMPARE(game.coup(20), (QStringList{"2 complete", "3 complete", "1 complete"}));
    game.seats.stop(three);
    QVERIFY(game.start(three, "AL: SZ CO01(1);"));
    QCOMPARE(game.coup(20), (QStringList{"2 complete", "1 complete", "3 complete"}));
}

void tst_system_seats::limits_are_checked_in_player_order()
{
    seated_game game;
    for (const player_names player : {four, two, three, one})
        QVERIFY(game.start(player, "ST: SZ STMAX(C(1));"));
    QCOMPARE(game.coup(20), (QStringList{"1 ended 8", "2 ended 8", "3 ended 8", "4 ended 8"}));
    QVERIFY(!game.seats.any_plays());
    QCOMPARE(game.opened, 1);
}

void tst_system_seats::a_hand_change_goes_round_in_start_order()
{
    seated_game game;
    for (const player_names player : {four, one, three})
        QVERIFY(game.start(player, player == one ? red : QStringLiteral("ST: SZ STMAX(H);")));
    game.told.clear();
    game.seats.hand_change();
    const QString reset = QStringLiteral(" SysReset durchgeführt");
    QCOMPARE(game.told, (QStringList{"4 returned", "4" + reset, "3 returned", "3" + reset}));
}

void tst_system_seats::every_coup_opens_the_bets_once_data()
{
    QTest::addColumn<QString>("system"); // of player 2; player 1 and 3 bet on red
    // clang-format off
    QTest::newRow("it plays")            << "AL: SZ EC01;";
    QTest::newRow("it waits")            << "ST: SZ STMAX(I(2));";
    QTest::newRow("it restarts")         << "ST: SZ EC01;\nAL: RESTART;";
    QTest::newRow("it stops")            << "ST: SZ EC01;\nAL: STOP;";
    QTest::newRow("it has a fault")      << "ST: SZ EC01;\nAL: SZ EC;";
    QTest::newRow("it reaches a limit")  << "ST: SZ STMAX(C(1));";
    QTest::newRow("a limit restarts it") << "ST: SZ STMAX(C(1),N);";
    QTest::newRow("it ended at its start") << "ST: STOP;";
    // clang-format on
}

void tst_system_seats::every_coup_opens_the_bets_once()
{
    QFETCH(QString, system);
    seated_game game;
    game.start(one, red);
    game.start(two, system);
    game.start(three, red);
    for (int coup = 1; coup <= 4; ++coup) {
        const QStringList told = game.coup(20);
        QCOMPARE(game.opened, coup);
        QCOMPARE(game.cycle.open_rounds(), 0);
        QCOMPARE(told.count("1 complete"), 1);
        QVERIFY(told.count("2 complete") <= 1);
        QCOMPARE(told.count("3 complete"), 1);
    }
}

void tst_system_seats::the_first_round_runs_at_once()
{
    seated_game game;
    QVERIFY(game.start(one, "ST: SZ EC01;\nAL: SZ EC02;"));
    QCOMPARE(game.told, (QStringList{"1 EC01 x1 line 1", "1 complete"}));
    QCOMPARE(game.opened, 0); // the round belongs to no coup
    QVERIFY(game.table.lies(one, jetons::EC01));
    QCOMPARE(game.coup(1), (QStringList{"1 EC02 x1 line 2", "1 complete"}));
    QCOMPARE(game.opened, 1);
}

void tst_system_seats::in_a_coup_its_turn_is_the_first_round()
{
    seated_game game;
    bool was_started = false;
    game.at_bets_closed = [&] {
        if (was_started) return;
        was_started = true;
        QVERIFY(game.start(one, "ST: SZ EC01;\nAL: SZ EC02;"));
        QVERIFY(game.told.isEmpty());
    };
    QCOMPARE(game.coup(1), (QStringList{"1 EC01 x1 line 1", "1 complete"}));
    QVERIFY(game.table.lies(one, jetons::EC01));
    QCOMPARE(game.coup(1), (QStringList{"1 EC02 x1 line 2", "1 complete"}));
    QCOMPARE(game.opened, 2);
}

void tst_system_seats::a_started_player_belongs_to_the_system()
{
    seated_game game;
    game.start(one, "ST: SZ EI1(5000),EC01;");
    QVERIFY(game.table.account_of(one).is_system);
    QCOMPARE(game.table.active_player(), two);
    QCOMPARE(game.table.credit(one), qint64(-4000)); // a system's credit is not tested
    const player_flags playing = {true, false, false, false};
    QCOMPARE(game.seats.playing(), playing);
    QVERIFY(game.seats.plays(one));
    QVERIFY(!game.seats.plays(two));
}

void tst_system_seats::a_file_with_a_fault_seats_nobody_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<int>("line");
    // clang-format off
    QTest::newRow("no section")      << "SZ EC01;"             << QStringLiteral("Code ohne Sektion nicht zuflässig!") << 1;
    QTest::newRow("options in AL")   << "AL:\n\nSZ STMAX(S);"  << QStringLiteral("Bedingung STMAX in falscher Sektion gefunden!") << 3;
    QTest::newRow("other table")     << "AL:\nSZ PL37;"        << QStringLiteral("Französischer Tisch aktiv - Amerikanische Setzungen gefunden!") << 2;
    // clang-format on
}

void tst_system_seats::a_file_with_a_fault_seats_nobody()
{
    QFETCH(QString, system);
    QFETCH(QString, error_text);
    QFETCH(int, line);
    seated_game game;
    QVERIFY(!game.start(three, system));
    QCOMPARE(game.told, QStringList{"3 ended 4"});
    QCOMPARE(game.ends.first().error_text, error_text);
    QCOMPARE(game.ends.first().error_line, line);
    QCOMPARE(game.ends.first().player, 2);
    QVERIFY(!game.seats.plays(three));
    QVERIFY(!game.table.account_of(three).is_system);
    QCOMPARE(game.coup(1), QStringList());
    QCOMPARE(game.opened, 1);
}

void tst_system_seats::a_system_may_end_in_its_first_round()
{
    seated_game game;
    QVERIFY(!game.start(one, "ST: SZ EC01; STOP;"));
    QCOMPARE(game.told, (QStringList{"1 EC01 x1 line 1", "1 ended 8", "1 complete"}));
    QVERIFY(!game.seats.plays(one));
    QVERIFY(!game.table.account_of(one).is_system);
    QVERIFY(game.table.lies(one, jetons::EC01));

    // No number has fallen: the signal finds index 0.
    QVERIFY(!game.start(two, "ST: IF UZ(5/H) IN EC RESULT SZ EC;"));
    QCOMPARE(game.ends.last().status, 4);
    QCOMPARE(game.ends.last().error_text, QStringLiteral("Jeton Setzung EC00 nicht möglich!"));
    QCOMPARE(game.opened, 0);
}

void tst_system_seats::a_system_that_ends_reports_its_round_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("status");
    QTest::newRow("stop") << "STOP;" << 8;
    QTest::newRow("fault") << "SZ EC;" << 4;
    QTest::newRow("fault with the line marked") << "IF UZ(1/H) IN EC RESULT SZ DZ;" << 10;
    QTest::newRow("empty table") << "SZ EI1(ST1(1));" << 11;
}

void tst_system_seats::a_system_that_ends_reports_its_round()
{
    QFETCH(QString, statement);
    QFETCH(int, status);
    seated_game game;
    game.start(one, "ST: SZ CO01(1);\nAL: SZ EC01; " + statement + " SZ EC02;");
    game.start(two, red);
    player_names active_at_end = general_player::NO_PLAYER;
    game.at_end = [&](player_names) { active_at_end = game.table.active_player(); };
    const QString ended = "1 ended " + QString::number(status);
    QCOMPARE(
        game.coup(20),
        (QStringList{"1 EC01 x1 line 2", ended, "1 complete", "2 EC03 x1 line 1", "2 complete"}));
    QCOMPARE(active_at_end, three); // the user is asked when the player is put back
    QCOMPARE(game.ends.first().error_line, 2);
    QVERIFY(game.table.lies(one, jetons::EC01));
    QCOMPARE(game.coup(20), (QStringList{"2 EC03 x1 line 1", "2 complete"}));
    QCOMPARE(game.opened, 2);
    QCOMPARE(game.table.active_player(), three); // as before the rounds
}

void tst_system_seats::a_system_may_be_started_from_its_own_end()
{
    seated_game game;
    game.start(one, "ST: SZ CO01(1);\nAL: STOP;");
    game.start(two, red);
    game.at_end = [&](player_names player) {
        game.at_end = nullptr;
        QVERIFY(game.start(player, "ST: SZ EC06;"));
    };
    QCOMPARE(game.coup(20),
             (QStringList{"1 ended 8", "1 complete", "2 EC03 x1 line 1", "2 complete"}));
    QVERIFY(game.seats.plays(one));
    QCOMPARE(game.coup(20),
             (QStringList{"2 EC03 x1 line 1", "2 complete", "1 EC06 x1 line 1", "1 complete"}));
    QCOMPARE(game.opened, 2);
}

void tst_system_seats::a_fault_in_the_file_may_be_mended_from_its_own_end()
{
    seated_game game;
    game.at_end = [&](player_names player) {
        game.at_end = nullptr;
        QVERIFY(game.start(player, red));
    };
    game.start(one, "SZ EC01;");
    QCOMPARE(game.told, (QStringList{"1 ended 4", "1 EC03 x1 line 1", "1 complete"}));
    QVERIFY(game.seats.plays(one));
    QVERIFY(game.table.account_of(one).is_system);
}

void tst_system_seats::a_system_taken_out_before_its_turn_does_not_play()
{
    seated_game game;
    game.start(one, "ST: SZ CO01(1);\nAL: MESSAGE ON; MESSAGE('x');");
    game.start(two, red);
    game.start(three, red);
    game.at_message = [&](player_names) { game.seats.stop(two); };
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("did not report"));
    QCOMPARE(game.coup(20),
             (QStringList{"1 message", "1 complete", "3 EC03 x1 line 1", "3 complete"}));
    QCOMPARE(game.opened, 1);
}

void tst_system_seats::a_system_taken_out_in_its_turn_is_not_reset_any_more()
{
    seated_game game;
    game.start(one, "ST: SZ STMAX(H);\nAL: SZ EC01; MESSAGE ON; MESSAGE('x');");
    game.at_message = [&](player_names player) {
        game.seats.hand_change();
        game.seats.stop(player);
    };
    QCOMPARE(game.coup(20), (QStringList{"1 EC01 x1 line 2", "1 message", "1 complete"}));
    QVERIFY(game.table.lies(one, jetons::EC01));
    QCOMPARE(game.opened, 1);
}

void tst_system_seats::a_system_taken_out_by_its_message_does_nothing_more()
{
    seated_game game;
    game.at_message = [&](player_names player) { game.seats.stop(player); };
    QVERIFY(game.start(one, "ST: MESSAGE ON;\nAL:\nSZ EC01;\nMESSAGE('x');\nSZ EC02;\nRESTART;\n"));
    QCOMPARE(game.coup(20), (QStringList{"1 EC01 x1 line 3", "1 message", "1 complete"}));
    // What lies belongs to a human now, and no restart sweeps it off the table.
    QCOMPARE(game.table.count(one, jetons::EC01), 1);
    QCOMPARE(game.table.count(one, jetons::EC02), 0);
}

void tst_system_seats::a_stopped_system_leaves_its_jetons()
{
    seated_game game;
    game.start(one, red);
    game.seats.stop(one);
    QVERIFY(game.table.lies(one, jetons::EC03));
    QVERIFY(!game.table.account_of(one).is_system);
    QCOMPARE(game.coup(1), QStringList());
    QCOMPARE(game.table.credit(one), qint64(1001));
    game.seats.stop(one); // twice is as good as once
    QVERIFY(!game.seats.any_plays());
}

void tst_system_seats::all_systems_stop_together()
{
    seated_game game;
    for (const player_names player : {two, four, one, three})
        QVERIFY(game.start(player, red));
    QCOMPARE(game.table.active_player(), general_player::NO_PLAYER);
    game.seats.stop_all();
    QVERIFY(!game.seats.any_plays());
    QCOMPARE(game.seats.playing(), player_flags{});
    QCOMPARE(game.coup(20), QStringList());
    QVERIFY(game.table.active_player() != general_player::NO_PLAYER);
}

void tst_system_seats::a_pause_comes_behind_the_end()
{
    seated_game game;
    game.start(two, "ST: SZ STMAX(C(1),P);");
    QCOMPARE(game.coup(20), (QStringList{"2 ended 8", "2 pause"}));
    QCOMPARE(game.ends.first().error_text, QStringLiteral("Grund: Coup Grenze erreicht!"));
}

void tst_system_seats::a_bet_is_told_with_its_line()
{
    seated_game game;
    game.start(one, "ST:\nSZ EC01;\n// no code\nIF CO01(0)\nTHEN SZ EI1(3),GS,PL00;\n");
    QCOMPARE(game.told,
             (QStringList{"1 EC01 x1 line 2", "1 GS x3 line 4", "1 PL00 x3 line 4", "1 complete"}));
    QCOMPARE(game.table.count(one, jetons::TP02), 6);
    QCOMPARE(game.table.seeded(one), qint64(1 + 9 * 3 + 3));
}

void tst_system_seats::a_reset_tells_that_the_bets_went_back()
{
    seated_game game;
    game.start(one, "ST: SZ EC01;\nAL: SZ EC02; RESTART;");
    QCOMPARE(game.coup(20),
             (QStringList{"1 EC02 x1 line 2",
                          "1 returned",
                          QStringLiteral("1 SysReset durchgeführt"),
                          "1 EC01 x1 line 1",
                          "1 complete"}));
    QCOMPARE(game.table.credit(one), qint64(1000 - 1 - 1)); // one lost, one on the table
}

void tst_system_seats::two_limits_of_a_coup_take_one_load_file()
{
    QVERIFY(write_file("first.inp", "20 21 22 23"));
    QVERIFY(write_file("second.inp", "1 2 3"));
    QVERIFY(write_file("third.inp", "31 32 33"));
    seated_game game;
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = "first.inp";
    choice.files[1] = "second.inp";
    choice.files[2] = "third.inp";
    game.numbers.set_load_files(choice);
    game.start(one, "ST: SZ STMAX(C(2),R);");
    game.start(two, "ST: SZ STMAX(C(2),R);");
    for (int coup = 0; coup < 3; ++coup)
        game.coup_from_file();
    QCOMPARE(game.numbers.last_numbers(3, true), (QList<int>{20, 21, 1}));
    QCOMPARE(game.numbers.follow_files_left(), 1);
}

void tst_system_seats::the_same_run_gives_the_same_twice()
{
    const auto run = [] {
        seated_game game;
        game.start(two,
                   "ST: SZ STMAX(S,V(9),N); SZ ST1(1,2,4),EI1(ST1(1)),EC03;\n"
                   "VE: SZ EI1(ST1(+1));\nGW: SZ EI1(ST1(1));\nAL: SZ EC03;");
        game.start(one,
                   "ST: SZ CO01(0);\nAL: IF GZ IN EC01 THEN SZ CO01(+1);\n"
                   "IF CO01(3) THEN RESTART(N); SZ DZ02;");
        QStringList all = game.told;
        for (int coup = 0; coup < 200; ++coup)
            all += game.coup((coup * coup + 7 * coup) % 37);
        all.append(QString::number(game.table.credit(one)));
        all.append(QString::number(game.table.credit(two)));
        return all;
    };
    const QStringList first = run();
    QVERIFY(first.size() > 800);
    QCOMPARE(run(), first);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_seats>(argc, argv);
}

#include "tst_system_seats.moc"
