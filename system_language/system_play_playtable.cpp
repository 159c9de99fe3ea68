#include "system_play_playtable.h"

#include "language_fault.h"
#include "numberstorage.h"
#include "system_play_cheton.h"
#include "token_argument.h"

system_play_playtable::system_play_playtable(system_play_cheton& own_cheton,
                                             const play_environment& environment)
    : cheton(own_cheton)
    , game(environment)
{
}

/// What the text between the parentheses asks for.
static void read_argument(playtable_action& action, const QString& argument)
{
    using kind = playtable_action::kind;

    const auto is = [&](const char* word) {
        return argument.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    bool is_number = false;
    const int place = argument.toInt(&is_number);
    if (is("C")) {
        action.what = kind::clear;
    } else if (is("A")) {
        action.what = kind::drop_first;
    } else if (is("D")) {
        action.what = kind::drop_last;
    } else if (is_number) {
        action.what = kind::set_entry;
        action.place = place;
    } else if (is("GZ")) {
        action.what = kind::append_last_number;
    } else {
        action.what = kind::append;
        action.target = read_bet_target(argument);
    }
}

playtable_action system_play_playtable::read_action(const QString& token)
{
    playtable_action action;
    action.table = token.mid(2, 1).toInt();
    if (action.table < 1 || action.table > table_count) return {};
    const QString tail = token.mid(3);
    if (!tail.startsWith(QLatin1Char('('))) {
        action.what = playtable_action::kind::set_all;
        return action;
    }
    read_argument(action, token_argument(tail));
    return action;
}

void system_play_playtable::action(sys_result_info& result, const playtable_action& asked)
{
    using kind = playtable_action::kind;

    if (asked.what == kind::nothing) return;
    table_entries& list = entries(asked.table);
    switch (asked.what) {
    case kind::nothing:
        return;
    case kind::set_all:
        set_all(result, list);
        return;
    case kind::set_entry:
        if (asked.place < 1 || static_cast<std::size_t>(asked.place) > list.size()) return;
        cheton.set(result, list[static_cast<std::size_t>(asked.place - 1)]);
        return;
    case kind::clear:
        list.clear();
        return;
    case kind::drop_first:
        if (!list.empty()) list.erase(list.begin());
        return;
    case kind::drop_last:
        if (!list.empty()) list.pop_back();
        return;
    case kind::append_last_number:
        append_last_number(list);
        return;
    case kind::append:
        list.push_back(asked.target);
        return;
    }
}

/// A wrong entry does not keep the others from being set; only the last one's outcome stays.
void system_play_playtable::set_all(sys_result_info& result, const table_entries& list)
{
    for (const bet_target& target : list) {
        begin_statement(result);
        cheton.set(result, target);
    }
}

void system_play_playtable::append_last_number(table_entries& list)
{
    const std::vector<quint8>& thrown = game.numbers.history().thrown();
    if (thrown.empty()) return;
    const auto jeton = static_cast<jetons::jeton_names>(jetons::PL00 + thrown.back());
    list.push_back({jeton, jetons::NO_EXT_JETON, jetons::name(jeton)});
}

QString system_play_playtable::entry(int table, int place) const
{
    const table_entries& list = entries(table);
    const bool lies = place >= 1 && static_cast<std::size_t>(place) <= list.size();
    return lies ? list[static_cast<std::size_t>(place - 1)].text : QStringLiteral("--");
}
