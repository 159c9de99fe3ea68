#include "system_play_counter.h"

#include "token_argument.h"

#include <algorithm>
#include <limits>

int read_counter_number(QStringView two_digits)
{
    bool is_number = false;
    const int number = two_digits.toString().toInt(&is_number);
    const bool fits = number >= 0 && number < system_play_counter::counter_count;
    return is_number && fits && two_digits.size() == 2 ? number : -1;
}

static bool names_counter(const QString& argument)
{
    return argument.startsWith(QLatin1Char('C'), Qt::CaseInsensitive);
}

/// Number of the counter that an argument "COmm" names.
static int named_counter(const QString& argument)
{
    return read_counter_number(QStringView(argument).mid(2, 2));
}

static int saturated(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, 0, std::numeric_limits<int>::max()));
}

counter_action system_play_counter::read_action(const QString& token)
{
    using kind = counter_action::kind;

    const int index = read_counter_number(QStringView(token).mid(2, 2));
    QString argument = token_argument(token);
    if (index < 0 || argument.isEmpty()) return {};

    const QChar first = argument.at(0);
    const bool adds = first == QLatin1Char('+');
    const bool takes = first == QLatin1Char('-');
    if (adds || takes) argument.remove(0, 1);

    if (names_counter(argument)) {
        const int other = named_counter(argument);
        if (other < 0) return {};
        return {adds    ? kind::add_counter
                : takes ? kind::subtract_counter
                        : kind::copy,
                index,
                other};
    }
    bool is_number = false;
    const int number = argument.toInt(&is_number);
    if (!is_number) return {};
    return {adds ? kind::add : takes ? kind::subtract : kind::assign, index, number};
}

counter_test system_play_counter::read_test(const QString& token)
{
    counter_test test;
    test.index = read_counter_number(QStringView(token).mid(2, 2));
    if (test.index < 0) return {};

    const QString argument = token_argument(token);
    const operator_at_start start = read_operator(argument);
    const QString right = argument.mid(start.length);
    test.sign = start.sign;
    test.with_counter = names_counter(right);
    if (test.with_counter) {
        test.number = named_counter(right);
        test.is_readable = test.number >= 0;
    } else {
        test.number = right.toInt(&test.is_readable);
    }
    return test;
}

void system_play_counter::set(const counter_action& action)
{
    using kind = counter_action::kind;

    int& counter = counters[static_cast<std::size_t>(action.index)];
    const qint64 now = counter;
    const qint64 given = action.number;
    switch (action.what) {
    case kind::nothing:
        return;
    case kind::assign:
        counter = action.number;
        return;
    case kind::add:
        counter = saturated(now + given);
        return;
    case kind::subtract:
        counter = saturated(now - given);
        return;
    case kind::copy:
        counter = value(action.number);
        return;
    case kind::add_counter:
        counter = saturated(now + value(action.number));
        return;
    case kind::subtract_counter:
        counter = saturated(now - value(action.number));
        return;
    }
}

void system_play_counter::restore_counter_start_value(int index)
{
    counters[static_cast<std::size_t>(index)] = start_values[static_cast<std::size_t>(index)];
}
