#include "coup_cycle.h"

#include "number_records.h"
#include "numberstorage.h"
#include "settings_rules.h"

#include <algorithm>

using general_player::player_count;
using general_player::player_names;

coup_cycle::coup_cycle(game_table& game_accounts,
                       numberStorage& number_source,
                       const setting& game_settings,
                       coup_host& game_host)
    : table(game_accounts)
    , numbers(number_source)
    , settings(game_settings)
    , host(game_host)
{
}

bool coup_cycle::is_stopped() const
{
    return settings.state() == game_state::stopped;
}

/// True when the game was stopped meanwhile, also when it has been started again since.
bool coup_cycle::was_stopped_since(unsigned earlier_stops) const
{
    return is_stopped() || stops != earlier_stops;
}

void coup_cycle::open_bets()
{
    coup_running = false;
    if (numbers.last_number_is_out()) {
        numbers.clear_last_number_is_out();
        numbers.set_source_mode(number_source::random);
        host.load_file_ended();
    }
    if (is_stopped()) return;
    table.set_may_set_for_all(true);
    host.bets_opened();
}

void coup_cycle::close_bets()
{
    if (is_stopped() || coup_running) return;
    if (settings.state() == game_state::paused) {
        coup_due = true;
        return;
    }
    coup_running = true;
    coup_due = false;
    coup_form = settings.form();
    table.set_may_set_for_all(false);

    const unsigned earlier_stops = stops;
    const int drawn = draw_number();
    if (was_stopped_since(earlier_stops)) return;
    if (drawn == number_code::no_number) {
        open_bets();
        return;
    }
    active_number = drawn;
    host.bets_closed(table.close_bets());
    throw_open = true;
    host.start_throw(drawn);
}

/// Draws until a number comes that can be thrown; hand changes on the way are stored and told.
int coup_cycle::draw_number()
{
    const unsigned earlier_stops = stops;
    is_chosen = numbers.get_source_mode() == number_source::manual;
    int drawn = numbers.next_number();
    while (drawn == number_code::hand_change && !was_stopped_since(earlier_stops)) {
        active_number = drawn;
        numbers.add_to_permanence(drawn);
        host.number_stored(drawn);
        host.hand_change_thrown();
        if (was_stopped_since(earlier_stops)) break;
        is_chosen = numbers.get_source_mode() == number_source::manual;
        drawn = numbers.next_number();
    }
    return drawn;
}

void coup_cycle::throw_finished()
{
    if (!throw_open || is_stopped()) return;
    throw_open = false;
    numbers.add_to_permanence(active_number);
    host.number_stored(active_number);

    const number_hit_property& property = property_of(active_number);
    collect_count = 0;
    evaluation_open = true;
    coup_rules = rules_of(settings);
    coup_rules.form = coup_form; // the wheel and the table are still those of the throw
    host.count_scores(property, table.evaluate(property, coup_rules));
}

void coup_cycle::score_counted(player_names player, qint64 score)
{
    if (!evaluation_open) return;
    const bool is_last = ++collect_count == player_count;
    if (is_last) evaluation_open = false;
    const unsigned earlier_stops = stops;
    host.score_entered(player, score);
    if (is_last && !was_stopped_since(earlier_stops)) finish_coup();
}

void coup_cycle::finish_coup()
{
    table.clear_won_jetons(coup_rules);
    table.set_back_jetons(coup_rules);
    const unsigned earlier_stops = stops;
    host.check_system_borders();
    if (was_stopped_since(earlier_stops)) return;
    table.checks_replay();
    play_systems();
}

void coup_cycle::play_systems()
{
    round_open = host.playing_systems();
    open_system_rounds = static_cast<int>(std::count(round_open.begin(), round_open.end(), true));
    if (open_system_rounds > 0) {
        host.play_systems();
        if (open_system_rounds > 0) {
            qWarning("a system did not report the end of its turn");
            open_system_rounds = 0;
            round_open = {};
            open_bets();
        }
        return;
    }
    open_system_rounds = -1;
    open_bets();
}

void coup_cycle::system_round_complete(player_names player)
{
    bool& open = round_open[static_cast<std::size_t>(player)];
    if (!open) return;
    open = false;
    if (--open_system_rounds < 1) open_bets();
}

bool coup_cycle::pause_ended()
{
    if (!coup_due) return false;
    coup_due = false;
    close_bets();
    return true;
}

void coup_cycle::stop()
{
    ++stops;
    coup_running = false;
    coup_due = false;
    throw_open = false;
    evaluation_open = false;
    collect_count = 0;
    open_system_rounds = -1;
    round_open = {};
}
