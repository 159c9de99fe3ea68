#ifndef COUP_CYCLE_H
#define COUP_CYCLE_H

#include "game_table.h"

class numberStorage;
class setting;

/// One flag per player, in player order.
using player_flags = std::array<bool, general_player::player_count>;

/**
 * What the order of a coup asks of the program around it. The desktop puts time bar, wheel and
 * panels between question and answer, a headless program answers at once.
 */
class coup_host
{
public:
    virtual ~coup_host() = default;

    /// The bets are closed; the sums go to the statistic.
    virtual void bets_closed(const player_sums& seeded) = 0;

    /// A hand change mark was drawn and stands in the permanence: systems react to it.
    virtual void hand_change_thrown() = 0;

    /// Throws the drawn number, 0 to 37. Answered by `coup_cycle::throw_finished()`.
    virtual void start_throw(int number) = 0;

    /// A number, or the mark 99, has entered the permanence.
    virtual void number_stored(int number) = 0;

    /// The number is evaluated: the scores are to be counted into the credits. Answered by
    /// `coup_cycle::score_counted()` for each of the four players, also for a score of 0.
    virtual void count_scores(const number_hit_property& property, const player_sums& scores) = 0;

    /// A player's score is in the credit; it goes to the statistic.
    virtual void score_entered(general_player::player_names player, qint64 score) = 0;

    /// Every running system checks its limits, in player order. All figures of the coup must
    /// have reached the statistic before that.
    virtual void check_system_borders() = 0;

    /// The players whose system plays now.
    virtual player_flags playing_systems() const = 0;

    /// Every running system plays its turn. Answered by `coup_cycle::system_round_complete()`
    /// for each.
    virtual void play_systems() = 0;

    /// The bets of the next coup are open. Answered, when the time is up, by
    /// `coup_cycle::close_bets()`.
    virtual void bets_opened() = 0;

    /// The load files are played to their end; the source of numbers is random again.
    virtual void load_file_ended() = 0;
};

/**
 * The order of a coup: the one place that knows what follows what. Each step is asked for by a
 * call and goes on where the host answers; whatever arrives twice, late, or after a stop is
 * dropped, so no coup is lost or played double.
 *
 * Lives in one thread and may be re-entered from the host's calls.
 */
class coup_cycle
{
public:
    coup_cycle(game_table& table, numberStorage& numbers, const setting& settings, coup_host& host);

    /// Opens the bets of the next coup, or ends load file mode first where the last recorded
    /// number is out. Does nothing while the game is stopped.
    void open_bets();

    /// Closes the bets and throws the next number. In pause the coup is remembered until
    /// `pause_ended()`; a second call for the same bets does nothing.
    void close_bets();

    /// The ball rests: permanence, evaluation, counting.
    void throw_finished();

    /// One player's score has been counted into the credit. With the fourth the coup goes on:
    /// won jetons, prison, limits, replay, systems.
    void score_counted(general_player::player_names player, qint64 score);

    /// A system has finished its turn. Reports of a system that is not awaited are dropped.
    void system_round_complete(general_player::player_names player);

    /// Runs the coup that fell due in pause; returns whether there was one.
    bool pause_ended();

    /// Forgets the coup under way: its answers find nothing to go on with.
    void stop();

    /// True from the draw of a number until the next bets are open.
    bool is_running() const { return coup_running; }

    /// The number of the coup under way, 99 for a hand change, -1 before the first.
    int number() const { return active_number; }

    /// True if the number of the coup under way was chosen by hand.
    bool number_was_chosen() const { return is_chosen; }

    /// Systems whose turn is awaited, -1 when none play.
    int open_rounds() const { return open_system_rounds; }

private:
    int draw_number();
    bool is_stopped() const;
    bool was_stopped_since(unsigned earlier_stops) const;
    void finish_coup();
    void play_systems();

    game_table& table;
    numberStorage& numbers;
    const setting& settings;
    coup_host& host;

    bool coup_running = false;    // a number is drawn and the next bets are not open yet
    bool coup_due = false;        // the bets ran out in pause
    bool throw_open = false;      // the ball is on its way
    bool evaluation_open = false; // scores are being counted
    int collect_count = 0;        // players whose score is counted
    table_rules coup_rules;       // the rules at the evaluation hold to the end of the coup
    table_form coup_form = table_form::french; // of the table on which the bets closed
    int active_number = -1;
    bool is_chosen = false; // the active number, by hand
    int open_system_rounds = -1;
    player_flags round_open{};
    unsigned stops = 0; // counted, so that a step notices a stop in the middle of it
};

#endif // COUP_CYCLE_H
