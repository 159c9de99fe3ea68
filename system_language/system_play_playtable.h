#ifndef SYSTEM_PLAY_PLAYTABLE_H
#define SYSTEM_PLAY_PLAYTABLE_H

#include "bet_target.h"
#include "play_environment.h"

#include <array>
#include <vector>

class system_play_cheton;

/// The action `PTt...`, read once from its token.
struct playtable_action {
    enum class kind : quint8 {
        nothing, ///< no digit 1 to 9 behind "PT"
        set_all,
        set_entry,
        clear,
        drop_first,
        drop_last,
        append_last_number,
        append
    };

    kind what = kind::nothing;
    int table = 0;     ///< 1 to 9
    int place = 0;     ///< entry counted from 1
    bet_target target; ///< what is appended
};

/**
 * The nine play tables of a system: lists of bets that are collected now and set later.
 */
class system_play_playtable
{
public:
    static constexpr int table_count = 9;

    system_play_playtable(system_play_cheton& cheton, const play_environment& environment);

    static playtable_action read_action(const QString& token);

    /// Status 4 when an entry names no bet; where a whole table is set, the last entry decides.
    void action(sys_result_info& result, const playtable_action& asked);

    /// An entry counted from 1, "--" when there is none. @param table  1 to 9
    QString entry(int table, int place) const;

private:
    using table_entries = std::vector<bet_target>;

    table_entries& entries(int table) { return tables[static_cast<std::size_t>(table - 1)]; }
    const table_entries& entries(int table) const
    {
        return tables[static_cast<std::size_t>(table - 1)];
    }
    void set_all(sys_result_info& result, const table_entries& list);
    void append_last_number(table_entries& list);

    system_play_cheton& cheton;
    const play_environment& game;
    std::array<table_entries, table_count> tables;
};

#endif // SYSTEM_PLAY_PLAYTABLE_H
