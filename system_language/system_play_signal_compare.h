#ifndef SYSTEM_PLAY_SIGNAL_COMPARE_H
#define SYSTEM_PLAY_SIGNAL_COMPARE_H

#include "bet_target.h"
#include "play_environment.h"
#include "sys_play_jeton_hit_list.h"

#include <vector>

/// The test `UZ(n/sel) IN type RESULT SZ target`, read once from its tokens.
struct signal_test {
    /// What the found index becomes.
    enum class target_kind : quint8 {
        jeton,    ///< the jeton of the type with this index
        counter,  ///< the value of a counter
        different ///< target and type differ: an error
    };

    int range = 0; ///< last numbers that are looked at
    signal_type type = signal_type::not_allowed;
    bool type_is_known = false; ///< the names of the type are found as it is written
    QString type_token;
    signal_selector selector;
    target_kind target = target_kind::different;
    bool target_is_usable = false; ///< two letters, or a counter name
    QString target_token;
    int counter = 0;                ///< for `counter`
    std::vector<bet_target> jetons; ///< for `jeton`, by index
};

/**
 * The signal test of a system: of all jetons of a type, which one was hit most, least, or so and
 * so often among the last numbers.
 */
class system_play_signal_compare
{
    Q_DECLARE_TR_FUNCTIONS(system_play_signal_compare)

public:
    explicit system_play_signal_compare(const play_environment& environment);

    /// @param target_token  the word behind RESULT SZ, empty when there is none
    static signal_test
    read_test(const QString& token, const QString& type_token, const QString& target_token);

    /// Writes `check_result` and the index found into `value`. False while fewer than n numbers
    /// have fallen; with none at all every count is 0.
    void signal_check(sys_result_info& result, const signal_test& test);

private:
    bool count_hits(sys_result_info& result, const signal_test& test);

    const play_environment& game;
    sys_play_jeton_hit_list hit_list;
};

#endif // SYSTEM_PLAY_SIGNAL_COMPARE_H
