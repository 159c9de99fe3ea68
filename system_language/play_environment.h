#ifndef PLAY_ENVIRONMENT_H
#define PLAY_ENVIRONMENT_H

#include "game_types.h"
#include "jetons.h"
#include "setting.h"
#include "sys_result_info.h"

#include <QStringList>

class game_table;
class numberStorage;
class player_status_reader;
class system_pattern;

/// What a running system tells the world. Every call may lead to the end of the system; the
/// caller only goes on to report.
class play_listener
{
public:
    virtual ~play_listener() = default;

    /// A bet: a jeton with `NO_EXT_JETON`, or an announcement with `NO_JETON`.
    virtual void set_system_jeton(general_player::player_names player,
                                  jetons::jeton_names jeton,
                                  jetons::ext_jeton_names ext_jeton,
                                  int jeton_amount) = 0;

    /// Stop, pause or error, by `sys_result_info::status`.
    virtual void system_status_to_main_thread(general_player::player_names player,
                                              sys_result_info info) = 0;

    /// A message to the user, in pieces of rich text.
    virtual void sys_message_display(QStringList lines) = 0;

    /// What the system did, for its monitor.
    virtual void system_monitor_action(general_player::player_names player, QString action) = 0;

    /// A reset has sent the bets of the system back into the credit.
    virtual void system_bets_returned() {}

    /// The turn is over.
    virtual void system_play_round_complete() = 0;
};

/// The game that a system plays in. Nothing is owned; all outlive the system.
struct play_environment {
    game_table& table;
    numberStorage& numbers;
    const player_status_reader& statistic;
    const system_pattern& patterns;
    const setting& settings;

    table_form form() const { return settings.form(); }
};

#endif // PLAY_ENVIRONMENT_H
