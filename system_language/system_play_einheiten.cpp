#include "system_play_einheiten.h"

#include "language_fault.h"
#include "token_argument.h"

#include <algorithm>
#include <limits>

static constexpr qint64 largest = std::numeric_limits<qint64>::max();
static constexpr qint64 smallest = std::numeric_limits<qint64>::min();

static quint64 magnitude(qint64 value)
{
    return value < 0 ? 0 - static_cast<quint64>(value) : static_cast<quint64>(value);
}

/// Product and sum, held at the ends of the 64-bit range.
static qint64 saturated_product(qint64 left, qint64 right)
{
    const bool fits = left == 0 || magnitude(right) <= quint64(largest) / magnitude(left);
    if (fits) return left * right;
    return (left < 0) == (right < 0) ? largest : smallest;
}

static qint64 saturated_sum(qint64 left, qint64 right)
{
    if (right > 0 && left > largest - right) return largest;
    if (right < 0 && left < smallest - right) return smallest;
    return left + right;
}

system_play_einheiten::system_play_einheiten(system_play_steigerungstabelle& own_tables)
    : tables(own_tables)
{
}

unit_action system_play_einheiten::read_action(const QString& token)
{
    using kind = unit_action::kind;

    unit_action action;
    action.token = token;
    const QChar unit = token.size() > 2 ? token.at(2) : QChar();
    if (unit < QLatin1Char('0') || unit > QLatin1Char('9')) return action;
    action.index = unit.unicode() - u'0';
    const QString tail = token.mid(3);
    if (tail.startsWith(QLatin1Char('('))) {
        const QString inside = token_argument(tail);
        bool is_number = false;
        action.number = inside.toInt(&is_number);
        action.what = is_number ? kind::assign : kind::nothing;
        if (!is_number && inside.startsWith(QLatin1String("ST"), Qt::CaseInsensitive)) {
            action.what = kind::assign_from_table;
            action.move = system_play_steigerungstabelle::read_move(inside);
        }
        return action;
    }
    action.what = kind::select;
    action.number = tail.mid(1).toInt();
    if (tail.startsWith(QLatin1Char('*'))) action.what = kind::multiply;
    if (tail.startsWith(QLatin1Char('+'))) action.what = kind::add;
    if (tail.startsWith(QLatin1Char('-'))) action.what = kind::subtract;
    if (tail.startsWith(QLatin1Char('/'))) action.what = kind::divide;
    return action;
}

void system_play_einheiten::set(sys_result_info& result,
                                const unit_action& action,
                                unit_bound bound,
                                int limit)
{
    if (action.what == unit_action::kind::foreign) return;
    qint64& unit = units[static_cast<std::size_t>(action.index)];
    if (!action.is_assignment()) {
        compute(action);
        apply_bound(result, unit, bound, limit);
    } else if (bound != unit_bound::none) {
        set_fault(result,
                  tr("MIN/MAX Setzung für eine normale Einheitensetzung nicht erlaubt!"),
                  action.token);
    } else if (action.what == unit_action::kind::assign) {
        unit = action.number;
    } else if (action.what == unit_action::kind::assign_from_table) {
        assign_from_table(result, action);
    }
    current = static_cast<int>(static_cast<quint32>(unit));
}

void system_play_einheiten::assign_from_table(sys_result_info& result, const unit_action& action)
{
    if (action.move.what == table_move::kind::none) return;
    const int value = tables.move(result, action.move);
    if (result.status != system_status::all_right) return;
    if (value == 0) {
        set_fault(result,
                  tr("Verwendung einer Steigerungstabelle die noch nicht initialisiert wurde!"),
                  action.token,
                  system_status::error_table_undefined,
                  system_status::mark_line);
        return;
    }
    units[static_cast<std::size_t>(action.index)] = value;
}

void system_play_einheiten::compute(const unit_action& action)
{
    using kind = unit_action::kind;

    qint64& unit = units[static_cast<std::size_t>(action.index)];
    const qint64 number = action.number;
    switch (action.what) {
    case kind::multiply:
        unit = saturated_product(unit, number);
        return;
    case kind::add:
        unit = saturated_sum(unit, number);
        return;
    case kind::subtract:
        unit = std::max<qint64>(saturated_sum(unit, -number), 1);
        return;
    case kind::divide:
        if (number != 0) unit /= number;
        return;
    default:
        return;
    }
}

void system_play_einheiten::apply_bound(sys_result_info& result,
                                        qint64& unit,
                                        unit_bound bound,
                                        int limit)
{
    const bool touched = (bound == unit_bound::maximum && unit > limit) ||
                         (bound == unit_bound::minimum && unit < limit);
    if (!touched) return;
    unit = limit;
    result.status = system_status::bound_reached;
}
