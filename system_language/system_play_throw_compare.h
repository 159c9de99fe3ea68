#ifndef SYSTEM_PLAY_THROW_COMPARE_H
#define SYSTEM_PLAY_THROW_COMPARE_H

#include "bet_target.h"
#include "past_throw.h"
#include "play_environment.h"
#include "sys_play_operator_check.h"

/// The test `RZ(n/op k)`, read once from its token.
struct count_test {
    int range = 0; ///< last numbers that are looked at
    sys_play_operator_check selector;
    bet_target target;
};

/**
 * The tests of a system on the last numbers: was a throw covered by a bet, and how often was a
 * bet hit among the last n. Hand changes are not among the numbers.
 */
class system_play_throw_compare
{
    Q_DECLARE_TR_FUNCTIONS(system_play_throw_compare)

public:
    explicit system_play_throw_compare(const play_environment& environment);

    static count_test read_count_test(const QString& token, const QString& jeton_token);

    /// Writes `check_result`. Status 4 when the throw has not fallen yet or a word is wrong.
    void
    check_throw(sys_result_info& result, const past_throw& thrown, const bet_target& target) const;

    /// Writes `check_result`; false while fewer than n numbers have fallen, but with none at all
    /// the count is 0.
    void count_check(sys_result_info& result, const count_test& test) const;

private:
    bool covers_number(const bet_target& target, int number) const;

    const play_environment& game;
};

#endif // SYSTEM_PLAY_THROW_COMPARE_H
