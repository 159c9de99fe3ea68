#ifndef SYSTEM_GAME_H
#define SYSTEM_GAME_H

#include "system_file.h"
#include "system_play.h"

/**
 * The system of one player: its file, and the run that plays it. Signals fan in from the game
 * and out from the run; whoever needs speed calls `run()` and gives it a listener.
 */
class system_game : public system_file
{
    Q_OBJECT

public:
    /// Keeps the references of the environment.
    system_game(const play_environment& environment,
                general_player::player_names player,
                QObject* parent = nullptr);

    /// Reads and checks the file that the settings name for the player. With status 2 the start
    /// section is due; anything else tells what is wrong, and the system can't play.
    sys_result_info start_system_file();

    system_play& run() { return system_run; }

signals:
    void play_system();
    void check_special_system_game_borders();
    void hand_change_throw();

    void set_system_jeton(general_player::player_names player,
                          jetons::jeton_names jeton,
                          jetons::ext_jeton_names ext_jeton,
                          int jeton_amount);
    void system_status_to_main_thread(general_player::player_names player, sys_result_info info);
    void sys_message_display(QStringList lines);
    void system_monitor_action(general_player::player_names player, QString action);
    void system_play_round_complete();

private:
    sys_result_info check_sections() const;

    general_player::player_names player;
    system_play system_run;
};

#endif // SYSTEM_GAME_H
