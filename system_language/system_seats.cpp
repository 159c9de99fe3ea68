#include "system_seats.h"

#include "game_table.h"
#include "number_control.h"

#include <algorithm>

/// One player's system and the listener that stands between it and the table.
class system_seats::seat : private play_listener
{
public:
    seat(system_seats& all_seats, player_names player)
        : game(all_seats.environment, player)
        , owner(all_seats)
        , own_player(player)
    {
        game.run().set_listener(this);
    }

    system_game game;

private:
    void set_system_jeton(player_names player,
                          jetons::jeton_names jeton,
                          jetons::ext_jeton_names ext_jeton,
                          int jeton_amount) override
    {
        const play_environment& table = owner.environment;
        lay_system_bet(table.table, table.form(), player, jeton, ext_jeton, jeton_amount);
        owner.host.jeton_set(player, jeton, ext_jeton, jeton_amount, game.run().current_line());
    }

    void system_status_to_main_thread(player_names player, sys_result_info info) override
    {
        owner.act_on_status(player, info);
    }

    void sys_message_display(QStringList lines) override
    {
        owner.host.message_shown(own_player, lines);
    }

    void system_monitor_action(player_names player, QString action) override
    {
        owner.host.monitor_action(player, action);
    }

    void system_bets_returned() override { owner.host.bets_returned(own_player); }

    void system_play_round_complete() override { owner.host.round_complete(own_player); }

    system_seats& owner;
    player_names own_player;
};

void system_seats::player_order::remove(player_names player)
{
    const auto last = players.begin() + count;
    count = static_cast<std::size_t>(std::remove(players.begin(), last, player) - players.begin());
}

system_seats::system_seats(const play_environment& play_place,
                           const coup_cycle& game_cycle,
                           seats_host& seats_listener)
    : environment(play_place)
    , cycle(game_cycle)
    , host(seats_listener)
{
}

system_seats::~system_seats() = default;

bool system_seats::start(player_names player)
{
    stop(player);
    drop_ended();
    environment.table.make_system_player(player);
    seats[index(player)] = std::make_unique<seat>(*this, player);
    start_order.append(player);
    system_game& game = seats[index(player)]->game;
    const sys_result_info result = game.start_system_file();
    if (result.status != system_status::all_right) {
        act_on_status(player, result);
        return false;
    }
    if (!cycle.is_running()) {
        ++calls_under_way;
        game.run().play();
        --calls_under_way;
    }
    return plays(player);
}

void system_seats::stop(player_names player)
{
    std::unique_ptr<seat>& taken = seats[index(player)];
    if (!taken) return;
    taken->game.run().end_play();
    ended.push_back(std::move(taken));
    start_order.remove(player);
    environment.table.make_normal_player(player);
}

void system_seats::stop_all()
{
    for (int i = 0; i < general_player::player_count; ++i)
        stop(static_cast<player_names>(i));
}

player_flags system_seats::playing() const
{
    player_flags flags{};
    for (std::size_t i = 0; i < flags.size(); ++i)
        flags[i] = seats[i] != nullptr;
    return flags;
}

void system_seats::play()
{
    drop_ended();
    ++calls_under_way;
    const player_order order = start_order; // a system that ends leaves the list meanwhile
    for (const player_names player : order) {
        if (plays(player)) seats[index(player)]->game.run().play();
    }
    --calls_under_way;
}

void system_seats::check_borders()
{
    ++calls_under_way;
    for (const std::unique_ptr<seat>& each : seats) {
        if (each) each->game.run().check_special_system_game_borders();
    }
    --calls_under_way;
}

void system_seats::hand_change()
{
    ++calls_under_way;
    const player_order order = start_order;
    for (const player_names player : order) {
        if (plays(player)) seats[index(player)]->game.run().hand_change_sign_throw();
    }
    --calls_under_way;
}

/// Whatever is told, the system is out of play before anybody is asked anything.
void system_seats::act_on_status(player_names player, const sys_result_info& info)
{
    if (info.status == system_status::pause) {
        host.pause_wanted(player);
        return;
    }
    environment.table.restore_active_player();
    stop(player);
    host.system_ended(player, info);
}

/// Ended systems are destroyed where none of them can stand on the stack.
void system_seats::drop_ended()
{
    if (calls_under_way == 0) ended.clear();
}
