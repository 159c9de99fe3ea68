#ifndef SETTINGS_RULES_H
#define SETTINGS_RULES_H

#include "setting.h"
#include "table_rules.h"

/// The rules that the settings ask for.
inline table_rules rules_of(const setting& settings)
{
    table_rules rules;
    rules.form = settings.form();
    rules.stake_joins_win = settings.s_jeton_to_win();
    rules.staff_piece = settings.s_tip_def_index();
    rules.prison = settings.s_zero_handling();
    const bool pieces_only = settings.s_setzart() == 0;
    rules.piece_value = pieces_only ? 1 : settings.s_setzart_real_size();
    return rules;
}

#endif // SETTINGS_RULES_H
