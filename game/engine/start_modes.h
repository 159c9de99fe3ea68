#ifndef START_MODES_H
#define START_MODES_H

#include "load_file_types.h"

#include <functional>
#include <vector>

/// The numbers of a load file and the count of hand change marks among them.
struct start_numbers {
    std::vector<quint8> numbers;
    int hand_changes = 0;
};

/**
 * Cuts the numbers of a load file to what its start mode plays.
 *
 * - Normal start: everything.
 * - Fix start: `fix_start` numbers are dropped, but of n entries never more than (n + 1) / 2.
 * - Random start 1: play begins at a random number from `random_1_begin` to `random_1_end`.
 *   The first number can't be hit: a start at number 1 drops the whole list.
 * - Random start 2: the file is divided into `random_2_max_attack` parts; from a random number of
 *   each on, `random_2_length` numbers and the marks between them are played. The marks counted
 *   are those of the last attack. Without any attack everything is played. Attacks that overlap
 *   copy numbers more than once; the result is limited to `longest_attack_list` entries, or to
 *   the size of the file if that is larger.
 *
 * An empty list and an unknown mode change nothing.
 *
 * @param file    all numbers of one file in its order, 0 to 37 and 99 for a hand change
 * @param random  called for each random decision; gives 0 or more, as `qrand()` does
 */
start_numbers apply_start_mode(start_numbers file,
                               const load_file_settings& settings,
                               const std::function<int()>& random);

/// Limit of the random start 2. Unit: entries.
constexpr size_t longest_attack_list = 10'000'000;

#endif // START_MODES_H
