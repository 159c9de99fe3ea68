#include "system_play_signal_compare.h"

#include "language_fault.h"
#include "number_records.h"
#include "numberstorage.h"
#include "system_play_counter.h"
#include "token_argument.h"

static constexpr int type_length = 2;         // "EC"
static constexpr int counter_name_length = 4; // "CO12"
static constexpr int highest_index = 63;      // CH63

system_play_signal_compare::system_play_signal_compare(const play_environment& environment)
    : game(environment)
{
}

static signal_selector read_selector(const QString& text)
{
    using kind = signal_selector::kind;

    signal_selector selector;
    if (text.compare(QLatin1String("H"), Qt::CaseInsensitive) == 0) {
        selector.what = kind::most_hit;
    } else if (text.compare(QLatin1String("N"), Qt::CaseInsensitive) == 0) {
        selector.what = kind::least_hit;
    } else {
        selector.condition = sys_play_operator_check(text);
    }
    return selector;
}

static void read_target(signal_test& test)
{
    const QString& target = test.target_token;
    if (target.compare(test.type_token, Qt::CaseInsensitive) == 0) {
        test.target = signal_test::target_kind::jeton;
        test.target_is_usable = target.size() == type_length;
    } else if (target.startsWith(QLatin1String("CO"), Qt::CaseInsensitive)) {
        test.counter = read_counter_number(QStringView(target).mid(type_length));
        test.target = target.size() == type_length ? signal_test::target_kind::jeton
                                                   : signal_test::target_kind::counter;
        test.target_is_usable = target.size() == type_length ||
                                (target.size() == counter_name_length && test.counter >= 0);
    }
    if (test.target != signal_test::target_kind::jeton) return;
    test.jetons.reserve(highest_index + 1);
    for (int index = 0; index <= highest_index; ++index) {
        test.jetons.push_back(read_bet_target(
            QStringLiteral("%1%2").arg(test.type_token).arg(index, 2, 10, QLatin1Char('0'))));
    }
}

signal_test system_play_signal_compare::read_test(const QString& token,
                                                  const QString& type_token,
                                                  const QString& target_token)
{
    const QStringList pieces = window_pieces(token);

    signal_test test;
    test.range = pieces.value(0).toInt();
    test.selector = read_selector(pieces.value(1));
    test.type = sys_play_jeton_hit_list::read_type(type_token);
    test.type_token = type_token;
    test.type_is_known = read_bet_target(type_token + QLatin1String("01")).is_known();
    test.target_token = target_token;
    read_target(test);
    return test;
}

void system_play_signal_compare::signal_check(sys_result_info& result, const signal_test& test)
{
    result.check_result = false;
    if (test.target == signal_test::target_kind::different) {
        set_fault(result,
                  tr("Signal Jeton unterschiedlich zum Setz Jeton!"),
                  test.target_token,
                  system_status::error_marked,
                  system_status::mark_line);
        return;
    }
    if (test.range < 1) {
        set_fault(result,
                  tr("Der Überprüfungsbereich muss größer als 0 sein!"),
                  QString(),
                  system_status::error,
                  system_status::mark_line);
        return;
    }
    if (test.type == signal_type::not_allowed) {
        set_fault(result,
                  tr("Der Signal Jeton Typ %1 ist nicht erlaubt!").arg(test.type_token),
                  test.type_token);
        return;
    }
    if (!count_hits(result, test)) return;
    hit_list.evaluate(result, test.selector);
    const bool found = result.status == system_status::all_right && result.check_result;
    if (found && !test.target_is_usable) {
        set_fault(result, tr("Signal Jeton/Aktion wurde nicht gefunden!"), test.target_token);
    }
}

/// False when there is nothing to evaluate: too few numbers, or a type that has no names.
bool system_play_signal_compare::count_hits(sys_result_info& result, const signal_test& test)
{
    hit_list.prepare(test.type, game.form());
    const std::vector<quint8>& thrown = game.numbers.history().thrown();
    if (thrown.empty()) return true;
    const auto range = static_cast<std::size_t>(test.range);
    if (thrown.size() < range) return false;
    if (!test.type_is_known) {
        set_fault(result, tr("S: Signal Jeton wurde nicht gefunden!"), test.type_token);
        return false;
    }
    for (std::size_t i = thrown.size() - range; i < thrown.size(); ++i) {
        hit_list.add_number(property_of(thrown[i]));
    }
    return true;
}
