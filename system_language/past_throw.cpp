#include "past_throw.h"

#include "game_types.h"
#include "language_fault.h"
#include "number_history.h"

static constexpr int numbers_before_v0 = 2; // GZ and VZ
static constexpr int highest_digit = 9;

past_throw::past_throw(const QString& token)
    : throw_token(token)
{
    if (token.startsWith(QLatin1String("GZ"), Qt::CaseInsensitive)) {
        reason = fault::none;
    } else if (token.startsWith(QLatin1String("VZ"), Qt::CaseInsensitive)) {
        reason = fault::none;
        numbers_back = 1;
    } else if (token.startsWith(QLatin1Char('V'), Qt::CaseInsensitive)) {
        bool is_number = false;
        const int digit = token.mid(1).toInt(&is_number);
        const bool fits = is_number && digit >= 0 && digit <= highest_digit;
        reason = fits ? fault::none : fault::no_number;
        numbers_back = fits ? numbers_before_v0 + digit : 0;
    }
}

bool past_throw::check_token(sys_result_info& result) const
{
    if (reason == fault::none) return true;
    const QString text = reason == fault::no_number
                             ? tr("S: Ungültige Überprüfung (keine Nummer): %1 !")
                             : tr("S: Ungültige Überprüfung (kein V): %1 !");
    set_fault(result, text.arg(throw_token), throw_token);
    return false;
}

int past_throw::number_in(const number_history& history) const
{
    const std::vector<quint8>& thrown = history.thrown();
    const auto wanted = static_cast<std::size_t>(numbers_back);
    if (wanted >= thrown.size()) return number_code::no_number;
    return thrown[thrown.size() - 1 - wanted];
}
