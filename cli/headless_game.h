#ifndef HEADLESS_GAME_H
#define HEADLESS_GAME_H

#include "coup_cycle.h"
#include "numberstorage.h"
#include "play_request.h"
#include "player_accounting.h"
#include "run_figures.h"
#include "run_trace.h"
#include "setting.h"
#include "system_output.h"
#include "system_pattern.h"
#include "system_seats.h"

#include <functional>
#include <memory>

/**
 * A game without a window: systems play numbers as fast as the machine can. Everything is an
 * object of its own, so one process can play run after run and each begins from nothing.
 *
 * The order of events is that of a super short game in which systems and protocols were switched
 * on before the start.
 */
class headless_game : private coup_host, private seats_host
{
public:
    using player_names = general_player::player_names;

    /// Called now and then with the coups played so far.
    using progress_callback = std::function<void(qint64)>;

    /// @param settings  outlive the game; the systems and protocols of the request are put there
    headless_game(const play_request& request, setting& settings);
    ~headless_game() override;

    /// Opens protocols and trace, loads the numbers and lets every system play its first turn.
    /// Returns what is wrong, or an empty text.
    QString prepare();

    /// Plays until the numbers end. Returns what is wrong, or an empty text; what was played
    /// until then is written.
    QString play(const progress_callback& progress = {});

    qint64 coups() const { return coup_count; }
    bool plays(player_names player) const { return figures_of(player).has_value(); }
    /// Figures of a player to whom a system was given.
    const std::optional<run_figures>& figures_of(player_names player) const
    {
        return figures[static_cast<std::size_t>(player)];
    }
    const numberStorage& numbers() const { return number_storage; }

private:
    void bets_closed(const player_sums& seeded) override;
    void hand_change_thrown() override;
    void start_throw(int number) override;
    void number_stored(int) override {}
    void count_scores(const number_hit_property& property, const player_sums& scores) override;
    void score_entered(player_names player, qint64 score) override;
    void check_system_borders() override { seats.check_borders(); }
    player_flags playing_systems() const override { return seats.playing(); }
    void play_systems() override { seats.play(); }
    void bets_opened() override {}
    void load_file_ended() override;

    void jeton_set(player_names player,
                   jetons::jeton_names jeton,
                   jetons::ext_jeton_names ext_jeton,
                   int amount,
                   int line) override;
    void monitor_action(player_names player, const QString& action) override;
    void bets_returned(player_names player) override;
    void message_shown(player_names player, const QStringList& lines) override;
    void pause_wanted(player_names player) override;
    void system_ended(player_names player, const sys_result_info& info) override;
    void round_complete(player_names player) override { cycle.system_round_complete(player); }

    static std::size_t index(player_names player) { return static_cast<std::size_t>(player); }

    bool is_traced(player_names player) const;
    bool numbers_remain() const;
    QString open_protocols();
    QString write_fault() const;
    QString finish();
    void trace_coup(player_names player, qint64 score);
    void close_trace_of_ended();

    play_request request;
    setting& game_setting;
    game_table table;
    numberStorage number_storage;
    player_accounting accounting;
    system_pattern patterns;
    coup_cycle cycle;
    system_seats seats;

    std::array<std::unique_ptr<system_output>, general_player::player_count> outputs;
    std::array<std::optional<run_figures>, general_player::player_count> figures;
    std::vector<player_names> watched; // players to whom a system was given
    std::unique_ptr<run_trace> trace;
    player_flags trace_open{}; // players whose closing object is still to come
    player_sums seeded_sums{}; // of the coup under way
    qint64 coup_count = 0;
    bool load_ended = false;
};

#endif // HEADLESS_GAME_H
