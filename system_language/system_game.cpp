#include "system_game.h"

#include "system_sektor_check.h"

system_game::system_game(const play_environment& environment,
                         general_player::player_names own_player,
                         QObject* parent)
    : system_file(environment.settings, environment.patterns, parent)
    , player(own_player)
    , system_run(environment, own_player)
{
    const system_play* run = &system_run;
    connect(this, &system_game::play_system, run, &system_play::play);
    connect(this,
            &system_game::check_special_system_game_borders,
            run,
            &system_play::check_special_system_game_borders);
    connect(this, &system_game::hand_change_throw, run, &system_play::hand_change_sign_throw);

    connect(run, &system_play::set_system_jeton, this, &system_game::set_system_jeton);
    connect(run,
            &system_play::system_status_to_main_thread,
            this,
            &system_game::system_status_to_main_thread);
    connect(run, &system_play::sys_message_display, this, &system_game::sys_message_display);
    connect(run, &system_play::system_monitor_action, this, &system_game::system_monitor_action);
    connect(run,
            &system_play::system_play_round_complete,
            this,
            &system_game::system_play_round_complete);
}

sys_result_info system_game::start_system_file()
{
    sys_result_info result = read_system_file(player);
    if (result.status == system_status::all_right) result = check_sections();
    if (result.status == system_status::all_right) {
        system_run.init(section_st(), section_al(), section_ve(), section_gw());
    }
    result.player = player;
    return result;
}

/// Options may stand in the start section only.
sys_result_info system_game::check_sections() const
{
    const system_sektor_check check;
    sys_result_info result;
    for (const QList<section_line>* section : {&section_al(), &section_gw(), &section_ve()}) {
        result = check.check_section(*section);
        if (result.status != system_status::all_right) break;
    }
    return result;
}
