#include "sys_play_jeton_hit_list.h"

#include "jetons.h"

#include <algorithm>

namespace
{

struct type_row {
    const char* name;
    int french_size;
    int american_size;
    int first_jeton; ///< value of index 0: one below the first name where that is numbered 1
};

// In the order of signal_type.
// clang-format off
constexpr std::array<type_row, 9> type_rows = {{
    {"PL", 37, 38, jetons::PL00},
    {"EC",  7,  7, jetons::EC01 - 1},
    {"DZ",  4,  4, jetons::DZ01 - 1},
    {"KL",  4,  4, jetons::KL01 - 1},
    {"TP", 15, 17, jetons::TP01 - 1},
    {"TS", 12, 12, jetons::TS01 - 1},
    {"CA", 24, 24, jetons::CA01 - 1},
    {"CH", 61, 64, jetons::CH01 - 1},
    {"FI", 10, 10, jetons::FI00},
}};
// clang-format on

int finale_of(int number)
{
    return number == number_code::double_zero ? 0 : number % 10;
}

} // namespace

signal_type sys_play_jeton_hit_list::read_type(const QString& type_token)
{
    const auto row = std::find_if(type_rows.begin(), type_rows.end(), [&](const type_row& each) {
        return type_token.compare(QLatin1String(each.name), Qt::CaseInsensitive) == 0;
    });
    return static_cast<signal_type>(row - type_rows.begin());
}

void sys_play_jeton_hit_list::prepare(signal_type type, table_form form)
{
    const type_row& row = type_rows[static_cast<std::size_t>(type)];
    counted_type = type;
    size = static_cast<std::size_t>(form == table_form::american ? row.american_size
                                                                 : row.french_size);
    first_jeton = row.first_jeton;
    std::fill_n(hits.begin(), size, 0);
}

template <std::size_t places>
void sys_play_jeton_hit_list::add_jetons(const int (&list)[places])
{
    for (const int jeton : list) {
        if (jeton == jetons::NO_JETON) return;
        add_jeton(jeton);
    }
}

void sys_play_jeton_hit_list::add_number(const number_hit_property& property)
{
    switch (counted_type) {
    case signal_type::pl:
        add_jeton(property.number);
        return;
    case signal_type::ec:
        add_jetons(property.ec);
        return;
    case signal_type::dz:
        add_jeton(property.dz);
        return;
    case signal_type::kl:
        add_jeton(property.kl);
        return;
    case signal_type::tp:
        add_jetons(property.tp);
        return;
    case signal_type::ts:
        add_jetons(property.ts);
        return;
    case signal_type::ca:
        add_jetons(property.ca);
        return;
    case signal_type::ch:
        add_jetons(property.ch);
        return;
    case signal_type::fi:
        add_jeton(finale_of(property.number));
        return;
    case signal_type::not_allowed:
        return;
    }
}

void sys_play_jeton_hit_list::evaluate(sys_result_info& result,
                                       const signal_selector& selector) const
{
    const auto first = hits.begin();
    const auto last = first + static_cast<std::ptrdiff_t>(size);
    if (selector.what != signal_selector::kind::compared) {
        const auto chosen = selector.what == signal_selector::kind::most_hit
                                ? std::max_element(first, last)
                                : std::min_element(first, last);
        result.check_result = true;
        result.value = static_cast<int>(chosen - first);
        return;
    }
    for (auto hit = first; hit != last; ++hit) {
        selector.condition.check(result, *hit);
        if (result.status != system_status::all_right) return;
        if (!result.check_result) continue;
        result.value = static_cast<int>(hit - first);
        return;
    }
    result.check_result = false;
}
