#ifndef PAYOUT_H
#define PAYOUT_H

#include "jetons.h"
#include "table_rules.h"

/// The kinds of single bets.
enum class chance_kind {
    plein,
    cheval,
    transversale_pleine,
    transversale_simple,
    einfache_chance,
    carre,
    kolonne,
    dutzend,
    none ///< no place of the table
};

/// The kind of a place; prison places and end marks are `none`.
constexpr chance_kind kind_of(jetons::jeton_names jeton)
{
    if (jeton <= jetons::PL37) return chance_kind::plein;
    if (jeton <= jetons::CH63) return chance_kind::cheval;
    if (jeton <= jetons::TP16) return chance_kind::transversale_pleine;
    if (jeton <= jetons::TS11) return chance_kind::transversale_simple;
    if (jeton <= jetons::EC06) return chance_kind::einfache_chance;
    if (jeton <= jetons::CA23) return chance_kind::carre;
    if (jeton <= jetons::KL03) return chance_kind::kolonne;
    if (jeton <= jetons::DZ03) return chance_kind::dutzend;
    return chance_kind::none;
}

/// What a winning place pays with the stake included and no piece for the staff.
/// Unit: stakes. 0 for what is no place.
constexpr int full_multiplier(jetons::jeton_names jeton, table_form form)
{
    switch (kind_of(jeton)) {
    // clang-format off
    case chance_kind::plein:               return 36;
    case chance_kind::cheval:              return 18;
    case chance_kind::transversale_pleine: return 12;
    case chance_kind::carre:
        // With the double zero the bet on the first numbers holds five.
        return jeton == jetons::CA01 && form == table_form::american ? 7 : 9;
    case chance_kind::transversale_simple: return 6;
    case chance_kind::dutzend:
    case chance_kind::kolonne:             return 3;
    case chance_kind::einfache_chance:     return 2;
    case chance_kind::none:                return 0;
        // clang-format on
    }
    return 0;
}

/// Stakes that a winning place keeps back for the staff: 0 or 1. The setting 1 takes it from a
/// plein, 2 from plein and cheval; any other value takes nothing.
constexpr int staff_share(jetons::jeton_names jeton, int staff_piece)
{
    const chance_kind kind = kind_of(jeton);
    if (kind == chance_kind::plein) return staff_piece == 1 || staff_piece == 2 ? 1 : 0;
    if (kind == chance_kind::cheval) return staff_piece == 2 ? 1 : 0;
    return 0;
}

/// What a winning place adds to the score. Unit: stakes. One less where the stake doesn't join
/// the win (it stays on its place instead), and one less for the staff. 0 for what is no place.
constexpr int multiplier(jetons::jeton_names jeton, const table_rules& rules)
{
    if (kind_of(jeton) == chance_kind::none) return 0;
    const int lying_stake = rules.stake_joins_win ? 0 : 1;
    return full_multiplier(jeton, rules.form) - lying_stake - staff_share(jeton, rules.staff_piece);
}

#endif // PAYOUT_H
