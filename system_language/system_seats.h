#ifndef SYSTEM_SEATS_H
#define SYSTEM_SEATS_H

#include "coup_cycle.h"
#include "system_game.h"

#include <array>
#include <memory>
#include <vector>

/// What the systems at the table ask of the program around them.
class seats_host
{
public:
    using player_names = general_player::player_names;

    virtual ~seats_host() = default;

    /// A bet lies on the table. @param line  line in the file of the statement that set it
    virtual void jeton_set(player_names player,
                           jetons::jeton_names jeton,
                           jetons::ext_jeton_names ext_jeton,
                           int amount,
                           int line) = 0;

    /// Something for the monitor of the player.
    virtual void monitor_action(player_names player, const QString& action) = 0;

    /// The system was reset: its bets have gone back into the credit.
    virtual void bets_returned(player_names player) = 0;

    /// A message to the user; on the desktop the call blocks.
    virtual void message_shown(player_names player, const QStringList& lines) = 0;

    /// A system asked for a pause at a limit.
    virtual void pause_wanted(player_names player) = 0;

    /// A system is out of play: status 8 with the reason, empty for `STOP`; else an error.
    virtual void system_ended(player_names player, const sys_result_info& info) = 0;

    /// A system has finished its turn.
    virtual void round_complete(player_names player) = 0;
};

/**
 * The systems that play at the table, at most one a player: starts them, lets them play in the
 * order in which they were started, and takes them out of play.
 */
class system_seats
{
public:
    using player_names = general_player::player_names;

    system_seats(const play_environment& environment, const coup_cycle& cycle, seats_host& host);
    ~system_seats();

    /// Gives the player to the system file that the settings name, and lets it play its first
    /// round at once; in the middle of a coup the turn of that coup is its first round. A system
    /// that plays already is stopped first. What is wrong goes to `seats_host::system_ended()`.
    /// Returns whether the system plays afterwards.
    bool start(player_names player);

    /// Takes a system out of play; its jetons stay on the table.
    void stop(player_names player);
    void stop_all();

    player_flags playing() const;
    bool plays(player_names player) const { return seats[index(player)] != nullptr; }
    bool any_plays() const { return start_order.count > 0; }

    /// Every system plays its turn, in the order in which they were started.
    void play();

    /// Every system checks its limits, in player order.
    void check_borders();

    /// Every system hears of a hand change, in the order in which they were started.
    void hand_change();

private:
    class seat;

    /// Players in the order in which their systems were started.
    struct player_order {
        std::array<player_names, general_player::player_count> players{};
        std::size_t count = 0;

        void append(player_names player) { players[count++] = player; }
        void remove(player_names player);
        auto begin() const { return players.begin(); }
        auto end() const { return players.begin() + count; }
    };

    static std::size_t index(player_names player) { return static_cast<std::size_t>(player); }

    void act_on_status(player_names player, const sys_result_info& info);
    void drop_ended();

    play_environment environment;
    const coup_cycle& cycle;
    seats_host& host;
    std::array<std::unique_ptr<seat>, general_player::player_count> seats;
    player_order start_order;
    std::vector<std::unique_ptr<seat>> ended; // may still stand on the stack
    int calls_under_way = 0;
};

#endif // SYSTEM_SEATS_H
