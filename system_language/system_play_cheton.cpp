#include "system_play_cheton.h"

#include "language_fault.h"
#include "system_play_argument.h"
#include "system_play_einheiten.h"

system_play_cheton::system_play_cheton(system_play_einheiten& own_units,
                                       system_play_argument& own_arguments,
                                       play_listener*& outward,
                                       general_player::player_names own_player)
    : units(own_units)
    , arguments(own_arguments)
    , listener(outward)
    , player(own_player)
{
}

void system_play_cheton::set(sys_result_info& result, const bet_target& target)
{
    if (!target.is_known()) {
        set_fault(result, tr("Jeton Setzung %1 nicht möglich!").arg(target.text), target.text);
        return;
    }
    int amount = units.current_unit();
    if (amount < 1) {
        qCDebug(language_log) << "Warning: amount" << amount << "of a bet is replaced by 1";
        amount = 1;
    }
    arguments.add_argument_to_actual_list(target.jeton, target.ext_jeton);
    listener->set_system_jeton(player, target.jeton, target.ext_jeton, amount);
}
