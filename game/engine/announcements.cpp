#include "announcements.h"

#include "wheel_order.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace
{

using jeton_list = QVector<jetons::jeton_names>;
using ext_list = QVector<jetons::ext_jeton_names>;

/// A kind of neighbour bet: the number and some pockets on each side of it.
struct neighbour_kind {
    jetons::ext_jeton_names first; ///< the bet around 0; that around n lies n further
    int reach;                     ///< pockets on each side
};

constexpr std::array<neighbour_kind, 3> neighbour_kinds = {{
    {jetons::DN00, 3},
    {jetons::ZN00, 2},
    {jetons::EN00, 1},
}};

bool contains(std::initializer_list<int> numbers, int number)
{
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

bool belongs_to_sector(jetons::ext_jeton_names name, int number)
{
    // clang-format off
    switch (name) {
    case jetons::GS:
        return contains({4, 7, 12, 15, 18, 21, 19, 22, 32, 35, 0, 2, 3, 25, 29, 26, 28}, number);
    case jetons::KS:
        return contains({5, 8, 10, 11, 13, 16, 23, 24, 27, 30, 33, 36}, number);
    case jetons::OR:
    case jetons::OP:
        return contains({1, 6, 9, 14, 17, 20, 31, 34}, number);
    case jetons::ZS:
        return contains({0, 3, 12, 15, 26, 32, 35}, number);
    default:
        return false;
    }
    // clang-format on
}

jetons::jeton_names plein_of(int number)
{
    return static_cast<jetons::jeton_names>(jetons::PL00 + number);
}

jetons::ext_jeton_names neighbour_bet(const neighbour_kind& kind, int number)
{
    return static_cast<jetons::ext_jeton_names>(kind.first + number);
}

jeton_list finale_jetons(int digit, table_form form)
{
    jeton_list list;
    for (int number = digit; number <= 36; number += 10)
        list.append(plein_of(number));
    if (digit == 0 && form == table_form::american) list.append(jetons::PL37);
    return list;
}

/// The pockets around a number, the number in the middle; empty when it is not on the wheel.
QVector<int> pockets_around(int number, int reach, table_form form)
{
    QVector<int> pockets;
    const int index = wheel_index(number, form);
    if (index < 0) return pockets;
    for (int offset = -reach; offset <= reach; ++offset) {
        pockets.append(wheel_number(index + offset, form));
    }
    return pockets;
}

jeton_list neighbour_jetons(int number, int reach, table_form form)
{
    jeton_list list;
    for (const int pocket : pockets_around(number, reach, form))
        list.append(plein_of(pocket));
    return list;
}

void add_french_sectors(QVector<jeton_list>& lists)
{
    using j = jetons;
    // clang-format off
    lists[j::GS] = {j::CH07, j::CH15, j::CH21, j::CH22, j::CH35,
                    j::TP02, j::TP02, j::CA18, j::CA18};
    lists[j::KS] = {j::CH08, j::CH43, j::CH16, j::CH52, j::CH30, j::CH36};
    lists[j::OR] = {j::PL01, j::CH09, j::CH17, j::CH20, j::CH34};
    lists[j::OP] = {j::PL01, j::PL06, j::PL09, j::PL14, j::PL17, j::PL20, j::PL31, j::PL34};
    lists[j::ZS] = {j::CH03, j::PL26, j::CH35, j::CH15};
    // clang-format on
}

QVector<jeton_list> make_jeton_lists(table_form form)
{
    QVector<jeton_list> lists(jetons::LAST_ext_JN);
    for (int digit = 0; digit <= 9; ++digit) {
        lists[jetons::FI00 + digit] = finale_jetons(digit, form);
    }
    if (form == table_form::french) add_french_sectors(lists);
    for (const neighbour_kind& kind : neighbour_kinds) {
        for (int number = 0; number < number_code::number_count; ++number) {
            lists[neighbour_bet(kind, number)] = neighbour_jetons(number, kind.reach, form);
        }
    }
    return lists;
}

ext_list make_hit_list(int number, table_form form)
{
    ext_list list;
    const int digit = number == number_code::double_zero ? 0 : number % 10;
    list.append(static_cast<jetons::ext_jeton_names>(jetons::FI00 + digit));
    for (const auto name : {jetons::GS, jetons::KS, jetons::OR, jetons::OP, jetons::ZS}) {
        if (belongs_to_sector(name, number)) list.append(name);
    }
    for (const neighbour_kind& kind : neighbour_kinds) {
        for (const int pocket : pockets_around(number, kind.reach, form)) {
            list.append(neighbour_bet(kind, pocket));
        }
    }
    return list;
}

QVector<ext_list> make_hit_lists(table_form form)
{
    QVector<ext_list> lists;
    for (int number = 0; number < number_code::number_count; ++number) {
        lists.append(make_hit_list(number, form));
    }
    return lists;
}

} // namespace

const QVector<jetons::jeton_names>& announcement_jetons(jetons::ext_jeton_names announcement,
                                                        table_form form)
{
    static const QVector<jeton_list> french = make_jeton_lists(table_form::french);
    static const QVector<jeton_list> american = make_jeton_lists(table_form::american);
    static const jeton_list nothing;
    if (announcement >= jetons::LAST_ext_JN) return nothing;
    return (form == table_form::american ? american : french).at(announcement);
}

const QVector<jetons::ext_jeton_names>& hit_announcements(int number, table_form form)
{
    static const QVector<ext_list> french = make_hit_lists(table_form::french);
    static const QVector<ext_list> american = make_hit_lists(table_form::american);
    static const ext_list nothing;
    if (!number_code::is_number(number)) return nothing;
    return (form == table_form::american ? american : french).at(number);
}

bool hits(jetons::ext_jeton_names announcement, int number, table_form form)
{
    return hit_announcements(number, form).contains(announcement);
}
