#include "system_play_steigerungstabelle.h"

#include "language_fault.h"
#include "system_play_counter.h"
#include "token_argument.h"

#include <QStringList>

#include <algorithm>

using system_play_options::sg_rescan_options;

/// The digit behind "ST", 0 for anything but 1 to 9.
static int table_number(const QString& text)
{
    const int number = text.mid(2, 1).toInt();
    return number >= 1 && number <= system_play_steigerungstabelle::table_count ? number : 0;
}

system_play_steigerungstabelle::system_play_steigerungstabelle(system_play_counter& own_counters)
    : counters(own_counters)
{
}

table_move system_play_steigerungstabelle::read_move(const QString& text)
{
    using kind = table_move::kind;

    const int table = table_number(text);
    QString argument = token_argument(text);
    if (table == 0) return {};
    if (argument.startsWith(QLatin1String("CO"), Qt::CaseInsensitive)) {
        const int counter = read_counter_number(QStringView(argument).mid(2, 2));
        if (counter < 0) return {};
        return {kind::counter_place, table, counter};
    }
    kind what = kind::place;
    if (argument.startsWith(QLatin1Char('+'))) what = kind::forward;
    if (argument.startsWith(QLatin1Char('-'))) what = kind::back;
    if (what != kind::place) argument.remove(0, 1);
    bool is_number = false;
    const int number = argument.toInt(&is_number);
    if (!is_number) return {};
    return {what, table, number};
}

table_test system_play_steigerungstabelle::read_test(const QString& token)
{
    table_test test;
    test.table = table_number(token);
    test.value_text = token_argument(token);
    test.value = test.value_text.toInt(&test.is_number);
    return test;
}

void system_play_steigerungstabelle::fill(sys_result_info& result, const QString& token)
{
    const int table = table_number(token);
    if (table == 0) return;
    const QStringList values = token_argument(token).split(QLatin1Char(','));
    for (const QString& text : values) {
        const int value = text.toInt();
        if (value < 1) {
            set_fault(result,
                      tr("Werte in der Steigerungstabelle müssen größer 0 sein!"),
                      text,
                      system_status::error_marked,
                      system_status::mark_line);
            return;
        }
        tables[slot(table)].push_back(value);
    }
}

void system_play_steigerungstabelle::check(sys_result_info& result, const table_test& test)
{
    if (test.table == 0 || !test.is_number) {
        set_fault(result, tr("S: ST Wert ist nicht gültig!"), test.value_text);
        return;
    }
    result.check_result = current_value(test.table) == test.value;
}

int system_play_steigerungstabelle::move(sys_result_info& result, const table_move& asked)
{
    using kind = table_move::kind;

    const qint64 number = asked.number;
    switch (asked.what) {
    case kind::none:
        return 0;
    case kind::place:
        return move_to(result, asked.table, number - 1);
    case kind::forward:
        return move_to(result, asked.table, position(asked.table) + number);
    case kind::back:
        return move_to(result, asked.table, position(asked.table) - number);
    case kind::counter_place:
        return move_to(result, asked.table, qint64(counters.value(asked.number)) - 1);
    }
    return 0;
}

int system_play_steigerungstabelle::move_to(sys_result_info& result, int table, qint64 place)
{
    const std::vector<int>& values = tables[slot(table)];
    if (values.empty()) return 0;
    if (place >= static_cast<qint64>(values.size())) return overflow(result, table);
    const int reached = static_cast<int>(std::max<qint64>(place, 0));
    positions[slot(table)] = reached;
    return values[static_cast<std::size_t>(reached)];
}

/// The options are looked at in the order 2, 3, 1, 5, and all that are set take effect.
int system_play_steigerungstabelle::overflow(sys_result_info& result, int table)
{
    const std::vector<int>& values = tables[slot(table)];
    if (!any_overflow_option) {
        positions[slot(table)] = static_cast<int>(values.size()) - 1;
        return values.back();
    }
    int value = 0;
    if (has_option(system_play_options::option_overflow_wrap) ||
        has_option(system_play_options::option_overflow_reset)) {
        value = values.front();
        positions[slot(table)] = 0;
    }
    if (has_option(system_play_options::option_overflow_reset)) {
        for (const int counter : reset_counters[slot(table)]) {
            counters.restore_counter_start_value(counter);
        }
    }
    if (has_option(system_play_options::option_overflow_restart)) {
        result.status = system_status::restart;
    }
    if (has_option(system_play_options::option_overflow_stop)) {
        result.status = system_status::stop;
    }
    return value;
}

int system_play_steigerungstabelle::current_value(int table) const
{
    const std::vector<int>& values = tables[slot(table)];
    return values.empty() ? 0 : values[static_cast<std::size_t>(position(table))];
}

void system_play_steigerungstabelle::set_rescan_option(sg_rescan_options rescan_opt,
                                                       int table,
                                                       int counter)
{
    overflow_options[static_cast<std::size_t>(rescan_opt)] = true;
    any_overflow_option = true;
    if (table < 1 || table > table_count) return;
    std::vector<int>& list = reset_counters[slot(table)];
    if (counter < 0 || counter >= system_play_counter::counter_count) return;
    if (std::find(list.begin(), list.end(), counter) == list.end()) list.push_back(counter);
}
