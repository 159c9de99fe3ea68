#ifndef TABLE_RULES_H
#define TABLE_RULES_H

#include "game_types.h"

/// The settings that decide what a coup pays: a plain value, so that an evaluation can be
/// computed without the settings object.
struct table_rules {
    table_form form = table_form::french;
    bool stake_joins_win = true; ///< the stake is paid out with the win (`s_jeton_to_win`)
    int staff_piece = 0;         ///< 0 none, 1 "PL", 2 "PL-CH" (`s_tip_def_index`)
    bool prison = true;          ///< even chances go to prison at zero (`s_zero_handling`)
    int piece_value = 1;         ///< worth of a human's piece: 1, or the size of the real mode
};

inline bool operator==(const table_rules& left, const table_rules& right)
{
    return left.form == right.form && left.stake_joins_win == right.stake_joins_win &&
           left.staff_piece == right.staff_piece && left.prison == right.prison &&
           left.piece_value == right.piece_value;
}

inline bool operator!=(const table_rules& left, const table_rules& right)
{
    return !(left == right);
}

#endif // TABLE_RULES_H
