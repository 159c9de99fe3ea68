#include "system_play_settings.h"

#include "language_fault.h"
#include "system_play_counter.h"
#include "system_play_steigerungstabelle.h"

#include <QStringList>

using system_play_options::sg_rescan_options;

/// The number of an option such as "V(300)".
static QString number_of(const QString& option)
{
    QString number = option.mid(1);
    number.remove(QLatin1Char('('));
    number.remove(QLatin1Char(')'));
    return number;
}

system_play_settings::system_play_settings(system_play_steigerungstabelle& own_tables,
                                           option_receiver& run)
    : tables(own_tables)
    , receiver(run)
{
}

void system_play_settings::read_options(sys_result_info& result, const QString& text)
{
    QString list = text.mid(text.indexOf(QLatin1Char('(')) + 1);
    list.chop(1);
    const QStringList all = list.split(QLatin1Char(','));
    for (const QString& option : all) {
        read_option(result, option);
        if (result.status == system_status::error) return;
    }
}

void system_play_settings::read_option(sys_result_info& result, const QString& option)
{
    using namespace system_play_options;

    if (option.isEmpty()) return;
    switch (option.at(0).toUpper().unicode()) {
    case u'I':
        read_delay(result, option);
        return;
    case u'A':
        set_ext_rescan_option(option_overflow_restart, 0, 0);
        return;
    case u'S':
        read_reset(result, option);
        return;
    case u'H':
        send_to_run(option_hand_change);
        return;
    case u'E':
        set_ext_rescan_option(option_overflow_stop, 0, 0);
        return;
    case u'V':
        send_limit(option_loss_limit, option);
        return;
    case u'G':
        send_limit(option_gain_limit, option);
        return;
    case u'C':
        send_limit(option_coup_limit, option);
        return;
    case u'P':
        send_to_run(option_pause);
        return;
    case u'R':
        send_to_run(option_next_load_file);
        return;
    case u'N':
        send_to_run(option_limit_restart);
        return;
    default:
        return;
    }
}

void system_play_settings::read_delay(sys_result_info& result, const QString& option)
{
    if (delay_done) return;
    const int coups = number_of(option).toInt();
    delay_done = true;
    if (coups < 1) return;
    options[system_play_options::option_delay] = true;
    result.status = system_status::delay_begun;
    receiver.sys_ignore_counter(coups - 1);
}

/// "S", "S(STt(COnn)" with its end still open or not, or a further "STt(COnn)" of an open list.
void system_play_settings::read_reset(sys_result_info& result, const QString& option)
{
    constexpr int opening_length = 4; // "S(ST"
    constexpr int further_length = 2; // "ST"

    if (option == QLatin1String("S")) {
        set_ext_rescan_option(
            system_play_options::option_overflow_wrap, table_number, counter_number);
    } else if (option.startsWith(QLatin1String("S(ST"), Qt::CaseInsensitive)) {
        read_counter_reset(result, option, opening_length);
    } else if (option.startsWith(QLatin1String("ST"), Qt::CaseInsensitive)) {
        if (!list_open) {
            set_fault(result, tr("Syntax Steigerungstabelle Rücksetzung falsch!"), option);
            return;
        }
        read_counter_reset(result, option, further_length);
    }
}

void system_play_settings::read_counter_reset(sys_result_info& result,
                                              const QString& option,
                                              int name_length)
{
    constexpr int counter_word_length = 3; // "(CO"

    QString rest = option.mid(name_length);
    const QChar digit = rest.isEmpty() ? QChar() : rest.at(0);
    if (digit < QLatin1Char('0') || digit > QLatin1Char('9')) {
        set_fault(result, tr("Syntax Steigerungstabelle Rücksetzung falsch!"), option);
        return;
    }
    table_number = digit.unicode() - u'0';
    rest.remove(0, 1);
    if (!rest.startsWith(QLatin1String("(CO"), Qt::CaseInsensitive)) {
        set_fault(result, tr("Counter erwartet!"), option);
        return;
    }
    rest.remove(0, counter_word_length);
    const int closing = rest.count(QLatin1Char(')'));
    if (closing < 1 || closing > 2) {
        set_fault(result, tr("Counter Klammer fehlt!"), option);
        return;
    }
    rest.remove(QLatin1Char('('));
    rest.remove(QLatin1Char(')'));
    bool is_number = false;
    const int number = rest.toInt(&is_number);
    if (!is_number || number < 0 || number >= system_play_counter::counter_count) {
        const bool is_further = name_length == 2;
        set_fault(
            result, is_further ? tr("Counter erwartet!") : tr("Counter Syntax falsch!"), option);
        return;
    }
    counter_number = number;
    list_open = closing == 1;
    set_ext_rescan_option(system_play_options::option_overflow_reset, table_number, counter_number);
}

void system_play_settings::send_limit(sg_rescan_options option, const QString& text)
{
    options[static_cast<std::size_t>(option)] = true;
    receiver.set_rescan_option(option, number_of(text).toInt());
}

void system_play_settings::send_to_run(sg_rescan_options option)
{
    options[static_cast<std::size_t>(option)] = true;
    receiver.set_rescan_option(option, 0);
}

void system_play_settings::set_ext_rescan_option(sg_rescan_options option, int table, int counter)
{
    options[static_cast<std::size_t>(option)] = true;
    tables.set_rescan_option(option, table, counter);
}
