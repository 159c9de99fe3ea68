#include "sys_play_operator_check.h"

#include "language_fault.h"

#include <array>

namespace
{

struct operator_row {
    const char16_t* text;
    int length;
    compare_operator sign;
};

// The two-character operators stand in front of those that they begin with.
constexpr std::array<operator_row, 6> operator_rows = {{
    {u"<=", 2, compare_operator::less_or_equal},
    {u">=", 2, compare_operator::greater_or_equal},
    {u"<>", 2, compare_operator::unequal},
    {u"=", 1, compare_operator::equal},
    {u"<", 1, compare_operator::less},
    {u">", 1, compare_operator::greater},
}};

} // namespace

operator_at_start read_operator(QStringView text)
{
    for (const operator_row& row : operator_rows) {
        if (text.startsWith(QStringView(row.text, row.length))) return {true, row.sign, row.length};
    }
    return {};
}

sys_play_operator_check::sys_play_operator_check(const QString& text)
    : selector_text(text)
{
    const operator_at_start start = read_operator(text);
    operator_found = start.found;
    sign = start.sign;
    right = text.mid(start.length).toInt();
    is_valid = operator_found && right > 0;
}

void sys_play_operator_check::report_fault(sys_result_info& result) const
{
    const QString text = operator_found
                             ? tr("Der Vergleichswert muss größer als 0 sein!")
                             : tr("S: Operator '%1' ist nicht gültig!").arg(selector_text.left(1));
    set_fault(result, text, selector_text);
}
