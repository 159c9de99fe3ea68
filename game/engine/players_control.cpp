#include "players_control.h"

#include "chance_geometry.h"
#include "settings_rules.h"

#include <array>

using general_player::player_count;
using general_player::player_names;

namespace
{

/// A name tab of the status table. Unit: pixels of the full-size design.
struct name_tab {
    int left;
    int right;
};

constexpr std::array<name_tab, player_count> name_tabs = {
    {{115, 214}, {225, 322}, {333, 430}, {441, 538}}};
constexpr int tab_top = 7;
constexpr int tab_bottom = 44;

} // namespace

players_control& players_control::instance()
{
    static players_control shared;
    return shared;
}

players_control::players_control(const setting& settings, QObject* parent)
    : QObject(parent)
    , game_setting(settings)
{
    accounts.set_listener(this);
}

void players_control::reset()
{
    accounts = game_table();
    accounts.set_listener(this);
}

int players_control::player_status(player_names player) const
{
    if (accounts.account_of(player).is_system) return 1;
    return accounts.active_player() == player ? 0 : 2;
}

void players_control::toggle_replay(player_names player)
{
    accounts.set_replay(player, !accounts.account_of(player).replay);
}

void players_control::set_replay_for_all(bool on)
{
    for (int i = 0; i < player_count; ++i) {
        accounts.set_replay(static_cast<player_names>(i), on);
    }
}

void players_control::select_player(player_names player)
{
    accounts.make_active(player);
    emit change_play_statistic_view(player);
}

void players_control::player_selection(QPoint point)
{
    if (point.y() < scaled(tab_top, reduction) || point.y() > scaled(tab_bottom, reduction)) return;
    for (std::size_t i = 0; i < name_tabs.size(); ++i) {
        if (point.x() < scaled(name_tabs[i].left, reduction)) continue;
        if (point.x() > scaled(name_tabs[i].right, reduction)) continue;
        select_player(static_cast<player_names>(i));
        return;
    }
}

void players_control::player_add_score_to_credit(player_names player, int amount)
{
    accounts.add_credit(player, amount);
}

void players_control::players_finished_with_set()
{
    tell_seeded(accounts.close_bets());
}

void players_control::tell_seeded(const player_sums& seeded)
{
    emit players_seeded_to_storage(seeded[0], seeded[1], seeded[2], seeded[3]);
}

void players_control::checksReplay()
{
    accounts.checks_replay();
    emit replay_setting_finish();
}

void players_control::increase_jeton_value(jeton_info info)
{
    if (info.player == general_player::NO_PLAYER) return;
    if (!accounts.account_of(info.player).may_set) return;
    const player_names active = accounts.active_player();
    if (active == general_player::NO_PLAYER) return;
    const bool is_own = info.player == active;
    const int value =
        is_own ? info.value : piece_value(game_setting, accounts.account_of(active).is_system);
    accounts.set_jeton(active, info.jeton, value, is_own ? info.count : 1, debit::from_credit);
}

void players_control::decrease_jeton_value(jeton_info info)
{
    if (info.player == general_player::NO_PLAYER) return;
    if (!accounts.account_of(info.player).may_set) return;
    const player_names active = accounts.active_player();
    if (active == general_player::NO_PLAYER) return;
    accounts.take_piece(active, info.jeton);
}
