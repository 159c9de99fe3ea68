#ifndef SYSTEM_PLAY_COMMAND_LINE_H
#define SYSTEM_PLAY_COMMAND_LINE_H

#include "statement_program.h"
#include "system_play_argument.h"
#include "system_play_cheton.h"
#include "system_play_message.h"
#include "system_play_settings.h"

#include <memory>

/**
 * Runs the statements of a system on the state that they work on: counters, units, progression
 * and play tables, the bets of the last round, options. A restart replaces that state.
 */
class system_play_command_line
{
    Q_DECLARE_TR_FUNCTIONS(system_play_command_line)

public:
    /// @param listener  where bets and messages go; may be exchanged while no statement runs
    system_play_command_line(const play_environment& environment,
                             general_player::player_names player,
                             play_listener*& listener,
                             option_receiver& receiver);

    /// Runs one statement. @param start_section  true only for the section `ST:`
    void run_command(sys_result_info& result, const statement_program& program, bool start_section);

    /// A new, empty state. @param keep_delay_off  the delay of the option I does not act again
    void rebuild_command_line(bool keep_delay_off);

    /// The counters of the end of the start section are those that an overflow goes back to.
    void save_counter_start_values();

    /// The bets of this round become those that `AG(n)` speaks of.
    void end_of_round();

private:
    /// Everything that a restart forgets, in the order in which it depends on one another.
    struct language_state {
        language_state(const play_environment& environment,
                       general_player::player_names player,
                       play_listener*& listener,
                       option_receiver& receiver);

        system_play_counter counters;
        system_play_steigerungstabelle tables;
        system_play_einheiten units;
        system_play_settings settings;
        system_play_argument arguments;
        system_play_cheton cheton;
        system_play_playtable playtables;
        system_play_throw_compare throw_compare;
        system_play_signal_compare signal_compare;
        system_play_message message;
    };

    struct test_runner;
    struct step_runner;

    bool all_tests_hold(sys_result_info& result, const statement_program& program);
    void run_steps(sys_result_info& result, const statement_program& program, bool start_section);
    const play_environment& game;
    general_player::player_names player;
    play_listener*& listener;
    option_receiver& receiver;
    std::unique_ptr<language_state> state;
};

#endif // SYSTEM_PLAY_COMMAND_LINE_H
