#ifndef SYSTEM_PLAY_STEIGERUNGSTABELLE_H
#define SYSTEM_PLAY_STEIGERUNGSTABELLE_H

#include "sys_result_info.h"
#include "system_play_options.h"

#include <QCoreApplication>

#include <array>
#include <vector>

class system_play_counter;

/// The move of a progression table that `EIn(STt(...))` asks for, read once from its text.
struct table_move {
    enum class kind : quint8 { none, place, forward, back, counter_place };

    kind what = kind::none; ///< `none`: not readable, no move and no value
    int table = 0;          ///< 1 to 9
    int number = 0;         ///< a place counted from 1, a number of steps, or a counter
};

/// The test `STt(v)`, read once from its token.
struct table_test {
    int table = 0; ///< 1 to 9, 0 when not readable
    int value = 0; ///< compared with the current value of the table
    bool is_number = false;
    QString value_text;
};

/**
 * The nine progression tables of a system, their positions, and what happens when a table is
 * asked for a place behind its last.
 */
class system_play_steigerungstabelle
{
    Q_DECLARE_TR_FUNCTIONS(system_play_steigerungstabelle)

public:
    static constexpr int table_count = 9;

    explicit system_play_steigerungstabelle(system_play_counter& counters);

    /// Reads "STt(...)" with a place, "+k", "-k" or a counter.
    static table_move read_move(const QString& text);
    static table_test read_test(const QString& token);

    /// Appends the values of "STt(v,v,...)". Status 10 at a value below 1; what stands in front
    /// of it stays.
    void fill(sys_result_info& result, const QString& token);

    /// Writes `check_result`. Status 4 when the value is no number or the table none of the nine.
    void check(sys_result_info& result, const table_test& test);

    /// Moves a table and returns the value there, 0 for an empty table. An overflow may set
    /// status 6 or 8; the value is 0 then unless an option wraps the table.
    int move(sys_result_info& result, const table_move& asked);

    /// Position of a table, from 0. @param table  1 to 9
    int position(int table) const { return positions[slot(table)]; }

    /// Value at the current position, 0 for an empty table. @param table  1 to 9
    int current_value(int table) const;

    /// An overflow option, with a table (1 to 9, 0 for none) and the counter that goes back to its
    /// start value when that table overflows.
    void
    set_rescan_option(system_play_options::sg_rescan_options rescan_opt, int table, int counter);

private:
    static std::size_t slot(int table) { return static_cast<std::size_t>(table - 1); }

    int move_to(sys_result_info& result, int table, qint64 place);
    int overflow(sys_result_info& result, int table);
    bool has_option(system_play_options::sg_rescan_options option) const
    {
        return overflow_options[static_cast<std::size_t>(option)];
    }

    system_play_counter& counters;
    std::array<std::vector<int>, table_count> tables;
    std::array<int, table_count> positions{};
    std::array<bool, system_play_options::option_count> overflow_options{};
    bool any_overflow_option = false;
    std::array<std::vector<int>, table_count> reset_counters;
};

#endif // SYSTEM_PLAY_STEIGERUNGSTABELLE_H
