#include "system_play_throw_compare.h"

#include "announcements.h"
#include "language_fault.h"
#include "number_places.h"
#include "numberstorage.h"
#include "token_argument.h"

#include <algorithm>

system_play_throw_compare::system_play_throw_compare(const play_environment& environment)
    : game(environment)
{
}

count_test system_play_throw_compare::read_count_test(const QString& token,
                                                      const QString& jeton_token)
{
    const QStringList halves = window_pieces(token);
    count_test test;
    test.range = halves.value(0).toInt();
    test.selector = sys_play_operator_check(halves.value(1));
    test.target = read_bet_target(jeton_token);
    return test;
}

void system_play_throw_compare::check_throw(sys_result_info& result,
                                            const past_throw& thrown,
                                            const bet_target& target) const
{
    result.check_result = false;
    if (!thrown.check_token(result)) return;
    const int number = thrown.number_in(game.numbers.history());
    if (number == number_code::no_number) {
        set_fault(result,
                  tr("Eine Überprüfung auf %1 ist noch nicht möglich! Für eine Überprüfung sind "
                     "mehr Coups notwendig (Tipp: siehe Verzögerungsbedingungen)!")
                      .arg(thrown.token()),
                  thrown.token());
        return;
    }
    if (!target.is_known()) {
        set_fault(result, tr("S: Ungültige Überprüfung: %1 !").arg(target.text), target.text);
        return;
    }
    result.check_result = covers_number(target, number);
}

void system_play_throw_compare::count_check(sys_result_info& result, const count_test& test) const
{
    result.check_result = false;
    const std::vector<quint8>& thrown = game.numbers.history().thrown();
    const auto range = static_cast<std::size_t>(std::max(test.range, 0));
    int count = 0;
    if (!thrown.empty() && range > 0) {
        if (thrown.size() < range) return;
        if (!test.target.is_known()) {
            set_fault(result, tr("Cheton Typ wurde nicht gefunden!"), test.target.text);
            return;
        }
        const auto first = thrown.end() - static_cast<std::ptrdiff_t>(range);
        count = static_cast<int>(std::count_if(first, thrown.end(), [&](quint8 number) {
            return covers_number(test.target, number);
        }));
    }
    test.selector.check(result, count);
}

bool system_play_throw_compare::covers_number(const bet_target& target, int number) const
{
    return target.is_jeton() ? places_hit_by(number).contains(target.jeton)
                             : hits(target.ext_jeton, number, game.form());
}
