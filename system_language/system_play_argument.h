#ifndef SYSTEM_PLAY_ARGUMENT_H
#define SYSTEM_PLAY_ARGUMENT_H

#include "bet_target.h"
#include "past_throw.h"
#include "play_environment.h"

#include <vector>

/// The argument `AG(n)` of a test; a number that does not read is 0, which names no bet.
int read_argument_number(const QString& token);

/**
 * The bets that a system put out in the running round, and those of the round before, which
 * `AG(n)` speaks of.
 */
class system_play_argument
{
public:
    explicit system_play_argument(const play_environment& environment);

    /// Notes a bet of the running round.
    void add_argument_to_actual_list(jetons::jeton_names jeton_name,
                                     jetons::ext_jeton_names ext_jeton_name)
    {
        actual.push_back({jeton_name, ext_jeton_name});
    }

    /// The bets of the running round become those of the round before.
    void end_of_round()
    {
        previous.swap(actual);
        actual.clear();
    }

    /// Writes `check_result`: whether the throw is covered by bet n of the round before. False
    /// for a throw that has not fallen yet and for a bet that there was not.
    void check(sys_result_info& result, const past_throw& thrown, int number) const;

    /// Key of bet n of the round before, counted from 1; "--" when there was none.
    QString text(int number) const;

private:
    struct argument_bet {
        jetons::jeton_names jeton;
        jetons::ext_jeton_names ext_jeton;
    };

    bool has_previous(int number) const
    {
        return number >= 1 && static_cast<std::size_t>(number) <= previous.size();
    }
    const argument_bet& previous_bet(int number) const
    {
        return previous[static_cast<std::size_t>(number - 1)];
    }

    const play_environment& game;
    std::vector<argument_bet> actual;
    std::vector<argument_bet> previous;
};

#endif // SYSTEM_PLAY_ARGUMENT_H
