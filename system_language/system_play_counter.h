#ifndef SYSTEM_PLAY_COUNTER_H
#define SYSTEM_PLAY_COUNTER_H

#include "sys_play_operator_check.h"

#include <array>

/// What an action `COnn(...)` does, read once from its token.
struct counter_action {
    enum class kind : quint8 {
        nothing,
        assign,
        add,
        subtract,
        copy,
        add_counter,
        subtract_counter
    };

    kind what = kind::nothing; ///< `nothing` also for a number that does not read
    int index = 0;             ///< the counter, 0 to 99
    int number = 0;            ///< a number, or the other counter
};

/// The test `COnn(...)`, read once from its token.
struct counter_test {
    int index = 0;
    compare_operator sign = compare_operator::equal;
    bool with_counter = false; ///< compared with a counter, else with a number
    bool is_readable = false;  ///< false: the test never holds
    int number = 0;            ///< a number, or the other counter
};

/**
 * The hundred counters of a system and the values that they had at the end of the start section.
 * A counter never becomes negative by an action and stays at the largest int.
 */
class system_play_counter
{
public:
    static constexpr int counter_count = 100;

    /// Reads "COnn(" argument ")"; blanks are gone from a token.
    static counter_action read_action(const QString& token);
    static counter_test read_test(const QString& token);

    void set(const counter_action& action);

    bool check(const counter_test& test) const
    {
        if (!test.is_readable) return false;
        const int right = test.with_counter ? value(test.number) : test.number;
        return compare(value(test.index), test.sign, right);
    }

    /// @param index  0 to 99
    int value(int index) const { return counters[static_cast<std::size_t>(index)]; }

    /// The counter goes back to the value it had at the end of the start section.
    void restore_counter_start_value(int index);
    void save_counter_start_values() { start_values = counters; }

private:
    std::array<int, counter_count> counters{};
    std::array<int, counter_count> start_values{};
};

/// Reads the two digits of a counter name; -1 for anything but 00 to 99.
int read_counter_number(QStringView two_digits);

#endif // SYSTEM_PLAY_COUNTER_H
