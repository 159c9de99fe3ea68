#ifndef STATEMENT_PROGRAM_H
#define STATEMENT_PROGRAM_H

#include "bet_target.h"
#include "past_throw.h"
#include "system_play_counter.h"
#include "system_play_einheiten.h"
#include "system_play_playtable.h"
#include "system_play_signal_compare.h"
#include "system_play_throw_compare.h"

#include <variant>
#include <vector>

// What the tokens of a statement mean, worked out once. Running it splits no text, compares no
// names and allocates nothing. A fault that shows when the statement runs is kept as such and
// told at each run.

/// A test or an action that fails whenever it is reached.
struct faulty_step {
    QString error_text;
    QString mark_text;
};

/// `STMAX(...)`
struct options_action {
    QString token;
};

/// `STt(v,v,...)`
struct fill_action {
    QString token;
};

/// A unit change and the bound that may stand behind it.
struct bounded_unit_action {
    unit_action unit;
    unit_bound bound = unit_bound::none;
    int limit = 0;
    bool limit_is_readable = false;
    QString limit_token;
    int next_when_touched = 0; ///< step that follows when the bound was touched
};

/// The target of a signal test: becomes the jeton, or sets the counter, that the test found.
struct signal_action {
    int test = 0; ///< index of the signal test
};

/// A word that is no action: told to the debug log, no more.
struct unknown_action {
    QString token;
};

using set_action = std::variant<bet_target,
                                bounded_unit_action,
                                counter_action,
                                playtable_action,
                                signal_action,
                                options_action,
                                fill_action,
                                unknown_action>;

/// One action of a set statement.
struct set_step {
    set_action action;
    int next = 0; ///< step that follows
};

/// `GZ`, `VZ` or `Vd` against a jeton.
struct throw_test {
    past_throw thrown;
    bet_target target;
    bool is_inverted = false;
};

/// `GZ`, `VZ` or `Vd` against a bet of the round before.
struct argument_test {
    past_throw thrown;
    int number = 0;
    bool is_inverted = false;
};

using test_step = std::variant<throw_test,
                               argument_test,
                               count_test,
                               signal_test,
                               counter_test,
                               table_test,
                               faulty_step>;

/// What a statement does when all its tests hold.
enum class statement_end : quint8 { nothing, set, restart, restart_full, stop, message };

/// The meaning of one token text.
struct statement_program {
    std::vector<test_step> tests; ///< all must hold, in this order
    statement_end end = statement_end::nothing;
    std::vector<set_step> steps; ///< for `set`
    QString message;             ///< for `message`
};

#endif // STATEMENT_PROGRAM_H
