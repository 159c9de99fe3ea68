#include "system_play_message.h"

#include "language_fault.h"
#include "numberstorage.h"
#include "past_throw.h"
#include "system_play_argument.h"
#include "system_play_counter.h"
#include "system_play_einheiten.h"
#include "system_play_playtable.h"
#include "system_play_steigerungstabelle.h"

#include <functional>

namespace
{

constexpr int largest_argument_place = 999;     // AG(a..b)
constexpr int largest_playtable_place = 999999; // PTn(i..j)

/// A place or a range of places, "n" or "a..b".
struct place_range {
    bool is_range = false;
    bool first_is_read = false;
    bool last_is_read = false;
    int first = 0;
    int last = 0;
};

place_range read_places(const QString& text)
{
    place_range range;
    const int dots = text.indexOf(QLatin1String(".."));
    range.is_range = dots >= 0;
    range.first = text.left(range.is_range ? dots : text.size()).toInt(&range.first_is_read);
    if (range.is_range) range.last = text.mid(dots + 2).toInt(&range.last_is_read);
    return range;
}

/// The texts for what can be wrong with places.
struct place_faults {
    QString single;
    QString first;
    QString last;
    QString order;
    QString other;
};

/// What is wrong with the places; empty when nothing is.
QString fault_of(const place_range& range, int largest, const place_faults& faults)
{
    if (!range.is_range) return range.first_is_read && range.first > 0 ? QString() : faults.single;
    if (!range.first_is_read) return faults.first;
    if (!range.last_is_read) return faults.last;
    if (range.last < range.first) return faults.order;
    if (range.first < 1 || range.first == range.last || range.last > largest) return faults.other;
    return {};
}

/// The entries of a place or range, joined with ",".
QString joined_entries(const place_range& range, const std::function<QString(int)>& entry)
{
    if (!range.is_range) return entry(range.first);
    QStringList entries;
    for (int place = range.first; place <= range.last; ++place)
        entries.append(entry(place));
    return entries.join(QLatin1Char(','));
}

QString value_line(const QString& label, const QString& value)
{
    return label + QLatin1String(": ") + value + QLatin1String("<br>");
}

bool is_digit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool is_word(const QString& argument, const char* word)
{
    return argument.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

bool starts_with(const QString& argument, const char* word)
{
    return argument.startsWith(QLatin1String(word), Qt::CaseInsensitive);
}

} // namespace

system_play_message::system_play_message(const message_sources& sources,
                                         const play_environment& environment,
                                         play_listener*& outward,
                                         general_player::player_names own_player)
    : shown(sources)
    , game(environment)
    , listener(outward)
    , player(own_player)
{
}

void system_play_message::run(sys_result_info& result, const QString& text)
{
    constexpr int word_length = 7; // "MESSAGE"

    QString rest = text.mid(word_length).trimmed();
    if (starts_with(rest, "ON")) {
        enabled = true;
        return;
    }
    if (starts_with(rest, "OFF")) {
        enabled = false;
        return;
    }
    if (!enabled) return;

    if (!rest.startsWith(QLatin1Char('('))) {
        set_fault(result, tr("'(' wurde nicht gefunden!"), rest);
        return;
    }
    rest.remove(0, 1);
    if (rest.endsWith(QLatin1Char('|'))) rest.chop(1);
    if (!rest.endsWith(QLatin1Char(')'))) {
        set_fault(result, tr("')' wurde nicht gefunden!"), rest);
        return;
    }
    rest.chop(1);

    QStringList lines(tr("Spieler: ") + QString::number(player + 1) + QLatin1String("<br>"));
    const QStringList arguments = rest.split(QLatin1Char(','));
    for (const QString& argument : arguments)
        add_argument(result, lines, argument);
    if (result.status == system_status::all_right) listener->sys_message_display(lines);
}

void system_play_message::add_argument(sys_result_info& result,
                                       QStringList& lines,
                                       const QString& argument) const
{
    if (argument.isEmpty()) return;
    switch (argument.at(0).toUpper().unicode()) {
    case u'\'': {
        QString words = argument;
        words.remove(QLatin1Char('\''));
        lines.append(QLatin1String("<br><b>") + words + QLatin1String("</b><br><br>"));
        return;
    }
    case u'G':
    case u'V':
        add_throw(result, lines, argument);
        return;
    case u'C':
        add_counter(result, lines, argument);
        return;
    case u'E':
        add_unit(result, lines, argument);
        return;
    case u'S':
        add_table(result, lines, argument);
        return;
    case u'A':
        add_previous_bets(result, lines, argument);
        return;
    case u'P':
        add_playtable(result, lines, argument);
        return;
    default:
        return;
    }
}

void system_play_message::add_throw(sys_result_info& result,
                                    QStringList& lines,
                                    const QString& argument) const
{
    const bool is_digit_form =
        argument.size() == 2 && starts_with(argument, "V") && is_digit(argument.at(1));
    if (is_word(argument, "GZ")) {
        lines.append(value_line(QStringLiteral("GZ"), throw_text(argument)));
    } else if (is_word(argument, "VZ")) {
        lines.append(value_line(QStringLiteral("VZ"), throw_text(argument)));
    } else if (is_digit_form) {
        lines.append(value_line(argument, throw_text(argument)));
    } else {
        refuse_form(result, argument);
    }
}

void system_play_message::add_counter(sys_result_info& result,
                                      QStringList& lines,
                                      const QString& argument) const
{
    const int counter = read_counter_number(QStringView(argument).mid(2));
    if (!starts_with(argument, "CO") || counter < 0) {
        refuse_form(result, argument);
        return;
    }
    lines.append(value_line(argument, QString::number(shown.counters.value(counter))));
}

void system_play_message::add_unit(sys_result_info& result,
                                   QStringList& lines,
                                   const QString& argument) const
{
    if (is_word(argument, "EIC")) {
        lines.append(value_line(argument, QString::number(shown.units.current_unit())));
        return;
    }
    if (argument.size() != 3 || !starts_with(argument, "EI") || !is_digit(argument.at(2))) {
        refuse_form(result, argument);
        return;
    }
    const int unit = argument.at(2).unicode() - u'0';
    lines.append(value_line(argument, QString::number(shown.units.value(unit))));
}

void system_play_message::add_table(sys_result_info& result,
                                    QStringList& lines,
                                    const QString& argument) const
{
    const bool has_digit = argument.size() == 3 && is_digit(argument.at(2));
    const int table = has_digit ? argument.at(2).unicode() - u'0' : 0;
    if (!starts_with(argument, "ST") || table < 1) {
        refuse_form(result, argument);
        return;
    }
    lines.append(value_line(argument,
                            QString::number(shown.tables.position(table)) + tr("/Wert: ") +
                                QString::number(shown.tables.current_value(table))));
}

void system_play_message::add_previous_bets(sys_result_info& result,
                                            QStringList& lines,
                                            const QString& argument) const
{
    constexpr int opening_length = 3; // "AG("

    if (!starts_with(argument, "AG(") || !argument.endsWith(QLatin1Char(')'))) {
        refuse_form(result, argument);
        return;
    }
    const place_range range =
        read_places(argument.mid(opening_length, argument.size() - opening_length - 1));
    const QString fault =
        fault_of(range,
                 largest_argument_place,
                 {tr("Der Argument Wert muss numerisch und größer als 0 sein!"),
                  tr("Der Start Argument Wert muss numerisch und größer als 0 sein!"),
                  tr("Der Ende Argument Wert muss numerisch und größer als 0 sein!"),
                  tr("Der zweite Argument Wert muss größer sein als der erste Argument Wert!"),
                  tr("Die Argument Werte müssen größer als 0 sein!")});
    if (!fault.isEmpty()) {
        refuse(result, fault, argument);
        return;
    }
    lines.append(value_line(
        argument, joined_entries(range, [&](int place) { return shown.arguments.text(place); })));
}

void system_play_message::add_playtable(sys_result_info& result,
                                        QStringList& lines,
                                        const QString& argument) const
{
    const int opening = argument.indexOf(QLatin1Char('('));
    if (!starts_with(argument, "PT") || opening < 0 || !argument.endsWith(QLatin1Char(')'))) {
        refuse_form(result, argument);
        return;
    }
    const int table = argument.mid(2, opening - 2).toInt();
    const place_range range = read_places(argument.mid(opening + 1, argument.size() - opening - 2));
    const place_faults faults = {
        tr("Der Playtabellen Wert muss numerisch und größer als 0 sein!"),
        tr("Der Start Playtabellen Wert muss numerisch und größer als 0 sein!"),
        tr("Der Ende Playtabellen Wert muss numerisch und größer als 0 sein!"),
        tr("Der zweite Playtabellen Wert muss größer sein als der erste Playtabellen Wert!"),
        tr("Die Playtabellen Werte müssen größer als 0 sein!")};
    const bool has_table = table >= 1 && table <= system_play_playtable::table_count;
    const QString fault =
        has_table ? fault_of(range, largest_playtable_place, faults) : faults.single;
    if (!fault.isEmpty()) {
        refuse(result, fault, argument);
        return;
    }
    lines.append(value_line(argument, joined_entries(range, [&](int place) {
                                return shown.playtables.entry(table, place);
                            })));
}

QString system_play_message::throw_text(const QString& token) const
{
    const int number = past_throw(token).number_in(game.numbers.history());
    return number == number_code::no_number ? QStringLiteral("--") : QString::number(number);
}

/// The work goes on with the next argument; of several faults the first is told.
void system_play_message::refuse(sys_result_info& result,
                                 const QString& text,
                                 const QString& argument)
{
    if (result.status == system_status::all_right) set_fault(result, text, argument);
}

void system_play_message::refuse_form(sys_result_info& result, const QString& argument)
{
    refuse(result, tr("Das Message Argument '%1' wird nicht unterstützt!").arg(argument), argument);
}
