#include "number_control.h"

#include "announcements.h"
#include "players_control.h"
#include "setting.h"
#include "table_regions.h"

#include <mutex>

using general_player::player_names;

void lay_system_bet(game_table& table,
                    table_form form,
                    player_names player,
                    jetons::jeton_names jeton,
                    jetons::ext_jeton_names ext_jeton,
                    int amount)
{
    if (jeton != jetons::NO_JETON) {
        table.set_jeton(player, jeton, 1, amount, debit::from_credit);
        return;
    }
    for (const jetons::jeton_names each : announcement_jetons(ext_jeton, form)) {
        table.set_jeton(player, each, 1, amount, debit::from_credit);
    }
}

static bool is_neighbour_bet(jetons::ext_jeton_names ext_jeton)
{
    return ext_jeton > jetons::ENZNDN && ext_jeton < jetons::LAST_ext_JN;
}

number_control& number_control::instance()
{
    static number_control shared(players_control::instance().table(), setting::instance());
    return shared;
}

number_control::number_control(const game_table& table, const setting& settings, QObject* parent)
    : QObject(parent)
    , accounts(table)
    , game_setting(settings)
{
}

const QVector<jetons::ext_jeton_names>& number_control::hit_list(int number) const
{
    return hit_announcements(number, game_setting.form());
}

void number_control::set_remove_jeton_via_table_point(general_setting::setting_jeton_action action,
                                                      QPoint point)
{
    // A click that comes out of the handling of another one must not wait for it.
    const std::unique_lock<QMutex> click(click_guard, std::try_to_lock);
    if (!click.owns_lock()) return;

    const player_names player = accounts.active_player();
    if (player == general_player::NO_PLAYER) return;
    const table_hit hit = chance_at(point, reduction, game_setting.form());
    if (hit.jeton != jetons::NO_JETON) {
        emit jeton_type_on_pos(action, hit.jeton, player, 1);
    } else if (hit.announcement != jetons::NO_EXT_JETON) {
        set_remove_ext_jeton_via_ext_jeton_name(action, hit.announcement, player, 1);
    }
}

void number_control::set_remove_ext_jeton_via_ext_jeton_name(
    general_setting::setting_jeton_action action,
    jetons::ext_jeton_names ext_jeton,
    player_names player,
    int amount)
{
    if (player == general_player::NO_PLAYER) return;
    if (action == general_setting::SELECT_JETON && !is_neighbour_bet(ext_jeton)) {
        emit draw_selection_for_special_jetons(ext_jeton);
        return;
    }
    const QVector<jetons::jeton_names>& list = announcement_jetons(ext_jeton, game_setting.form());
    if (list.isEmpty()) return;
    const account& owner = accounts.account_of(player);
    const bool must_pay = action == general_setting::SET_JETON && !owner.is_system;
    if (must_pay && owner.credit < static_cast<qint64>(amount) * list.size()) {
        emit set_not_possible_to_less_credit(list.size());
        return;
    }
    for (const jetons::jeton_names jeton : list) {
        emit jeton_type_on_pos(action, jeton, player, amount);
    }
    emit finished();
}
