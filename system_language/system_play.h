#ifndef SYSTEM_PLAY_H
#define SYSTEM_PLAY_H

#include "player_accounting.h"
#include "system_play_section.h"

#include <array>

/**
 * Plays one player's system, one round a coup: chooses the section, delays, restarts, tests the
 * limits and ends. Whatever happens in a round, it ends with exactly one
 * `system_play_round_complete()`.
 */
class system_play : public system_play_section
{
    Q_OBJECT

public:
    system_play(const play_environment& environment,
                general_player::player_names player,
                QObject* parent = nullptr);

    /// Takes the statements over and makes the start section due. The limits count from the
    /// present credit of the player.
    void init(const QList<section_line>& st,
              const QList<section_line>& al,
              const QList<section_line>& ve,
              const QList<section_line>& gw);

    /// Rounds that were really played, delays included, since the start of the system.
    int rounds() const { return coup_count_all; }

    /// True from the limit that ended the system.
    bool is_finished() const { return out_of_play; }

public slots:
    /// Plays one round.
    void play();

    /// Ends or restarts the system when a limit is reached; asked once a coup, after evaluation.
    void check_special_system_game_borders();

    /// Resets the system where it asked for that at a hand change.
    void hand_change_sign_throw();

    /// Takes the system out of play: it only reports the end of its rounds from here on.
    void end_play() { out_of_play = true; }

    void set_ignore_counter(int coups) { ignore_counter = coups; }
    void take_rescan_option(system_play_options::sg_rescan_options rescan_opt,
                            qlonglong rescan_opt_value);

private:
    /// What was asked for in the middle of a round, done at its end.
    struct noted_requests {
        bool hand_change = false;
        bool border_check = false;
        bool round = false;
    };

    void play_round();
    section_outcome play_due_sections();
    section_outcome play_start_round();
    section_outcome play_running_round();
    void count_round();
    void system_border_reached(system_play_options::sg_rescan_options option);
    void sys_reset();
    bool is_set(system_play_options::sg_rescan_options option) const;
    qint64 option_value(system_play_options::sg_rescan_options option) const;
    void carry_out_noted();

    section section_st;
    section section_al;
    section section_ve;
    section section_gw;

    int coup_count_all = 0;
    int coup_count_border = 0; // rounds that count for the limit C
    int ignore_counter = 0;    // 0 start due, -1 running, above 0 rounds still to wait
    qint64 start_credit = 0;   // credit at start or at the last reset
    bool in_round = false;
    noted_requests noted;

    std::array<std::optional<qint64>, system_play_options::option_count> rescan_options;
    bool any_rescan_option = false;
};

#endif // SYSTEM_PLAY_H
