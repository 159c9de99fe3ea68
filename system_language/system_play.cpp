#include "system_play.h"

#include "game_table.h"
#include "language_fault.h"
#include "numberstorage.h"

using namespace system_play_options;

// Restart depends on nothing but the delay flag, so a system that restarts more often than this
// in one coup would do so for ever.
static constexpr int restarts_per_coup = 3;

system_play::system_play(const play_environment& environment,
                         general_player::player_names own_player,
                         QObject* parent)
    : system_play_section(environment, own_player, parent)
{
    connect(this, &system_play::sys_ignore_counter, this, &system_play::set_ignore_counter);
    connect(this, &system_play::set_rescan_option, this, &system_play::take_rescan_option);
}

void system_play::init(const QList<section_line>& st,
                       const QList<section_line>& al,
                       const QList<section_line>& ve,
                       const QList<section_line>& gw)
{
    section_st = section_of(st);
    section_al = section_of(al);
    section_ve = section_of(ve);
    section_gw = section_of(gw);
    ignore_counter = 0;
    out_of_play = false;
    start_credit = game.table.credit(player);
}

void system_play::play()
{
    if (in_round) {
        noted.round = true;
        return;
    }
    do {
        noted.round = false;
        in_round = true;
        if (!out_of_play) play_round();
        in_round = false;
        carry_out_noted();
        listener->system_play_round_complete();
    } while (noted.round);
}

void system_play::play_round()
{
    for (int restarts = 0;; ++restarts) {
        game.table.replace_active_player(player);
        if (ignore_counter > 0) {
            ++coup_count_all;
            --ignore_counter;
            listener->system_monitor_action(player, tr("Verzögerung aktiv"));
            break;
        }
        if (play_due_sections() != section_outcome::restart || out_of_play) break;
        sys_reset();
        game.table.restore_active_player();
        if (restarts < restarts_per_coup) continue;
        qCWarning(language_log) << "player" << player + 1
                                << "restarts without end; the round is given up";
        return;
    }
    game.table.restore_active_player();
}

/// Chooses the sections of this round and runs them.
section_outcome system_play::play_due_sections()
{
    const bool start_is_due = ignore_counter == 0;
    if (start_is_due) ignore_counter = -1;
    const section_outcome outcome = start_is_due ? play_start_round() : play_running_round();
    count_round();
    command_line.end_of_round();
    return outcome;
}

section_outcome system_play::play_start_round()
{
    if (!section_st.empty()) return play_section_lines(section_st, true);
    return play_section_lines(section_al, false);
}

section_outcome system_play::play_running_round()
{
    const player_status status = game.statistic.status_of(player);
    if (status.last_seeded > 0) {
        section& judged = status.last_score < status.last_seeded ? section_ve : section_gw;
        const section_outcome outcome = play_section_lines(judged, false);
        if (outcome != section_outcome::go_on) return outcome;
    }
    return play_section_lines(section_al, false);
}

void system_play::count_round()
{
    ++coup_count_all;
    if (ignore_counter < 1 && !delay_began()) ++coup_count_border;
}

void system_play::check_special_system_game_borders()
{
    if (out_of_play) return;
    if (in_round) {
        noted.border_check = true;
        return;
    }
    if (!any_rescan_option) return;
    const player_status status = game.statistic.status_of(player);
    const qint64 credit = status.has_credit ? status.last_credit : game.table.credit(player);
    const qint64 delta = credit - start_credit;
    if (is_set(option_loss_limit) && delta <= -option_value(option_loss_limit)) {
        system_border_reached(option_loss_limit);
    } else if (is_set(option_gain_limit) && delta >= option_value(option_gain_limit)) {
        system_border_reached(option_gain_limit);
    } else if (is_set(option_coup_limit) && coup_count_border >= option_value(option_coup_limit)) {
        system_border_reached(option_coup_limit);
    }
}

void system_play::system_border_reached(sg_rescan_options option)
{
    if (is_set(option_next_load_file) || is_set(option_limit_restart)) {
        const bool has_next = game.numbers.in_load_mode() && game.numbers.follow_files_left() > 0;
        if (is_set(option_next_load_file) && has_next) game.numbers.step_to_next_load_file();
        command_line.rebuild_command_line(true);
        sys_reset();
        return;
    }
    out_of_play = true;
    const bool pause = is_set(option_pause);
    sys_result_info info;
    info.status = system_status::stop;
    info.player = player;
    switch (option) {
    case option_loss_limit:
        info.error_text = tr("Grund: Verlust Grenze erreicht!");
        break;
    case option_gain_limit:
        info.error_text = tr("Grund: Gewinn Grenze erreicht!");
        break;
    default:
        info.error_text = tr("Grund: Coup Grenze erreicht!");
        break;
    }
    listener->system_status_to_main_thread(player, info);
    if (!pause) return;
    info.status = system_status::pause;
    listener->system_status_to_main_thread(player, info);
}

void system_play::hand_change_sign_throw()
{
    if (out_of_play) return;
    if (in_round) {
        noted.hand_change = true;
        return;
    }
    if (!is_set(option_hand_change)) return;
    command_line.rebuild_command_line(true);
    sys_reset();
}

void system_play::carry_out_noted()
{
    if (noted.hand_change) {
        noted.hand_change = false;
        hand_change_sign_throw();
    }
    if (noted.border_check) {
        noted.border_check = false;
        check_special_system_game_borders();
    }
}

void system_play::sys_reset()
{
    game.table.clear_jetons(player);
    listener->system_bets_returned();
    ignore_counter = 0;
    coup_count_border = 0;
    rescan_options = {};
    any_rescan_option = false;
    start_credit = game.table.credit(player);
    listener->system_monitor_action(player, tr("SysReset durchgeführt"));
}

void system_play::take_rescan_option(sg_rescan_options rescan_opt, qlonglong rescan_opt_value)
{
    rescan_options[static_cast<std::size_t>(rescan_opt)] = rescan_opt_value;
    any_rescan_option = true;
}

bool system_play::is_set(sg_rescan_options option) const
{
    return rescan_options[static_cast<std::size_t>(option)].has_value();
}

qint64 system_play::option_value(sg_rescan_options option) const
{
    return rescan_options[static_cast<std::size_t>(option)].value_or(0);
}
