#ifndef SYSTEM_PLAY_CHETON_H
#define SYSTEM_PLAY_CHETON_H

#include "bet_target.h"
#include "play_environment.h"

#include <QCoreApplication>

class system_play_argument;
class system_play_einheiten;

/**
 * Puts out the bets of a system: one jeton or announcement with the amount of the current unit.
 */
class system_play_cheton
{
    Q_DECLARE_TR_FUNCTIONS(system_play_cheton)

public:
    system_play_cheton(system_play_einheiten& units,
                       system_play_argument& arguments,
                       play_listener*& listener,
                       general_player::player_names player);

    /// Status 4 for a word that names nothing; else status 2, and the bet is out.
    void set(sys_result_info& result, const bet_target& target);

private:
    system_play_einheiten& units;
    system_play_argument& arguments;
    play_listener*& listener;
    general_player::player_names player;
};

#endif // SYSTEM_PLAY_CHETON_H
