#ifndef SYSTEM_PLAY_EINHEITEN_H
#define SYSTEM_PLAY_EINHEITEN_H

#include "system_play_steigerungstabelle.h"

/// A bound behind a unit change.
enum class unit_bound : quint8 { none, maximum, minimum };

/// The action `EIn...`, read once from its token.
struct unit_action {
    enum class kind : quint8 {
        nothing, ///< an assignment that does not read: the unit becomes current, no more
        select,
        assign,
        assign_from_table,
        multiply,
        add,
        subtract,
        divide,
        foreign ///< no digit behind "EI": no unit is touched
    };

    kind what = kind::foreign;
    int index = 0;  ///< the unit, 0 to 9
    int number = 0; ///< a value that does not read counts as 0
    table_move move;
    QString token;

    bool is_assignment() const
    {
        return what == kind::assign || what == kind::assign_from_table || what == kind::nothing;
    }
};

/**
 * The ten units of a system and the current one, which is the amount of the next bet. A unit
 * that grows beyond 64 bits stays at the largest value.
 */
class system_play_einheiten
{
    Q_DECLARE_TR_FUNCTIONS(system_play_einheiten)

public:
    static constexpr int unit_count = 10;

    explicit system_play_einheiten(system_play_steigerungstabelle& tables);

    static unit_action read_action(const QString& token);

    /// Changes a unit and makes it current. Status 12 when the bound was touched, 6 or 8 when a
    /// table overflowed, 11 for a table without values, 4 for a bound behind an assignment.
    void set(sys_result_info& result, const unit_action& action, unit_bound bound, int limit);

    /// The amount of the next bet: the low 32 bits of the current unit, 1 before any was set.
    int current_unit() const { return current; }

    /// @param index  0 to 9
    qint64 value(int index) const { return units[static_cast<std::size_t>(index)]; }

private:
    void assign_from_table(sys_result_info& result, const unit_action& action);
    void compute(const unit_action& action);
    void apply_bound(sys_result_info& result, qint64& unit, unit_bound bound, int limit);

    system_play_steigerungstabelle& tables;
    std::array<qint64, unit_count> units{};
    int current = 1;
};

#endif // SYSTEM_PLAY_EINHEITEN_H
