#ifndef NUMBER_HISTORY_H
#define NUMBER_HISTORY_H

#include "game_types.h"

#include <QList>

#include <vector>

/**
 * The permanence: all numbers of the game in the order in which they fell, kept in one byte each.
 * There are two views of it: with the hand change marks, as the table shows it, and without them,
 * as every test on the past reads it.
 */
class number_history
{
public:
    /// Takes the newest number. Range: 0 to 37, or 99 for a hand change; anything else is ignored.
    void add(int number)
    {
        if (number_code::is_number(number)) {
            numbers.push_back(static_cast<quint8>(number));
        } else if (number != number_code::hand_change) {
            return;
        }
        entries.push_back(static_cast<quint8>(number));
    }

    /// Forgets everything.
    void clear();

    /// The newest numbers. Shape: exactly count entries, the oldest first, so the newest is the
    /// last; places the game has not reached yet hold -1 and stand in front. The list is empty
    /// when the chosen view is, and for a count below 1.
    QList<int> last_numbers(int count, bool with_marks) const;

    /// All numbers without hand change marks, the oldest first.
    const std::vector<quint8>& thrown() const { return numbers; }

    /// All numbers with hand change marks (99), the oldest first.
    const std::vector<quint8>& all() const { return entries; }

private:
    std::vector<quint8> numbers; // without marks
    std::vector<quint8> entries; // with marks
};

#endif // NUMBER_HISTORY_H
