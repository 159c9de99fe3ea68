#include "system_play_argument.h"

#include "announcements.h"
#include "number_places.h"
#include "numberstorage.h"

int read_argument_number(const QString& token)
{
    QString number = token;
    number.remove(QLatin1Char(' '));
    number.remove(QLatin1String("AG("), Qt::CaseInsensitive);
    number.remove(QLatin1Char(')'));
    return number.toInt();
}

system_play_argument::system_play_argument(const play_environment& environment)
    : game(environment)
{
}

void system_play_argument::check(sys_result_info& result,
                                 const past_throw& thrown,
                                 int number) const
{
    result.check_result = false;
    if (!thrown.check_token(result)) return;
    const int fallen = thrown.number_in(game.numbers.history());
    if (fallen == number_code::no_number || !has_previous(number)) return;
    const argument_bet& bet = previous_bet(number);
    result.check_result = bet.ext_jeton == jetons::NO_EXT_JETON
                              ? places_hit_by(fallen).contains(bet.jeton)
                              : hits(bet.ext_jeton, fallen, game.form());
}

QString system_play_argument::text(int number) const
{
    if (!has_previous(number)) return QStringLiteral("--");
    const argument_bet& bet = previous_bet(number);
    return bet.ext_jeton == jetons::NO_EXT_JETON ? jetons::name(bet.jeton)
                                                 : jetons::name(bet.ext_jeton);
}
