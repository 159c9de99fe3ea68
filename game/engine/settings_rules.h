#ifndef SETTINGS_RULES_H
#define SETTINGS_RULES_H

#include "setting.h"
#include "table_rules.h"

/// The worth of one piece that a player sets: in real mode the size of it, but 1 for a system.
inline int piece_value(const setting& settings, bool is_system)
{
    const bool is_real = settings.s_setzart() == 1 && !is_system;
    return is_real ? settings.s_setzart_real_size() : 1;
}

/// The rules that the settings ask for.
inline table_rules rules_of(const setting& settings)
{
    table_rules rules;
    rules.form = settings.form();
    rules.stake_joins_win = settings.s_jeton_to_win();
    rules.staff_piece = settings.s_tip_def_index();
    rules.prison = settings.s_zero_handling();
    rules.piece_value = piece_value(settings, false);
    return rules;
}

#endif // SETTINGS_RULES_H
