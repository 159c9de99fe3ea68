#ifndef GAME_TABLE_H
#define GAME_TABLE_H

#include "game_types.h"
#include "jeton_layout.h"
#include "number_hit_property.h"
#include "table_rules.h"

#include <QVector>

#include <array>
#include <vector>

/// One amount per player, in player order. Unit: worth in money, as credit and seeded.
using player_sums = std::array<qint64, general_player::player_count>;

/// The jetons of one player on one place, as data: the button on the screen is its view.
struct jeton_info {
    general_player::player_names player = general_player::NO_PLAYER;
    jetons::jeton_names jeton = jetons::NO_JETON;
    int value = 0; ///< worth of one piece
    int count = 0; ///< pieces that lie here
};

/// What one player owns and may do.
struct account {
    qint64 credit = 0;        ///< the capital not on the table; a system player's can run below 0
    qint64 seeded = 0;        ///< the worth of the jetons on the table
    bool replay = false;      ///< the last bet is set again after each coup
    bool is_system = false;   ///< a system game plays this player
    bool system_flag = false; ///< a protocol is written for this player
    bool may_set = false;     ///< bets are open for this player
};

/// The even chances of one player that sit in prison; bit i stands for `EC01` + i.
struct prison_record {
    unsigned in_prison = 0;
    unsigned in_double_prison = 0;
    std::array<int, 6> value{}; ///< worth of the imprisoned piece

    bool is_empty() const { return (in_prison | in_double_prison) == 0; }
};

/// A piece that leaves prison and must lie again on the next coup.
struct back_jeton {
    general_player::player_names player;
    jetons::jeton_names jeton;
    int count;
};

/// Whether setting a jeton costs the player something.
enum class debit {
    from_credit, ///< the stake is taken from the credit, which must suffice for a human
    none         ///< the stake was paid long ago: only the seeded sum grows
};

/// What the world around the accounts may want to hear. No call comes back into the table.
class table_listener
{
public:
    virtual ~table_listener() = default;

    virtual void player_credit_seeded_update(general_player::player_names player) = 0;
    virtual void player_changed() = 0;
    virtual void recreate_prison_jetons(general_player::player_names player) = 0;
    virtual void check_status_replay() = 0;

    /// A player is evaluated; a score of 0 is told too.
    virtual void player_score_changend(general_player::player_names, qlonglong) {}
    /// A piece leaves prison and will lie again on the next coup.
    virtual void save_zero_back_jeton(general_player::player_names, jetons::jeton_names, int) {}
};

/**
 * The accounts of the four players and all jetons on the table: the rules of setting, of the
 * evaluation, of prison and of replay. A plain value that needs no window and no settings
 * object; not thread-safe.
 *
 * Every function keeps credit + seeded + what is in prison or released of a player as it is, but
 * for `evaluate()` with `clear_won_jetons()`, and for `add_credit()`, `set_credit()` and `stop()`.
 */
class game_table
{
public:
    using player_names = general_player::player_names;
    using jeton_names = jetons::jeton_names;

    /// The one who is told of changes; null, the default, for nobody.
    void set_listener(table_listener* new_listener) { listener = new_listener; }

    // accounts

    const account& account_of(player_names player) const { return accounts[index(player)]; }
    qint64 credit(player_names player) const { return account_of(player).credit; }
    qint64 seeded(player_names player) const { return account_of(player).seeded; }
    player_sums credits() const;
    void set_credit(player_names player, qint64 credit);
    void add_credit(player_names player, qint64 amount);
    void set_may_set(player_names player, bool may_set);
    void set_may_set_for_all(bool may_set);
    /// True when no player is kept from setting.
    bool all_may_set() const;
    void set_protocol_flag(player_names player, bool on);
    /// A system player's replay stays off.
    void set_replay(player_names player, bool on);
    bool any_replay() const;

    // who plays

    player_names active_player() const { return active; }
    /// Makes a player active who is neither active already nor a system player; returns whether
    /// anything changed.
    bool make_active(player_names player);
    /// Makes a player the active one for the span of a system's turn.
    void replace_active_player(player_names player);
    /// Undoes `replace_active_player()`; without one to undo nothing happens.
    void restore_active_player();
    /// Gives a player to a system: replay goes off, and an active player hands over to the first
    /// human, or to `NO_PLAYER` when there is none.
    void make_system_player(player_names player);
    void make_normal_player(player_names player);

    // jetons

    bool lies(player_names player, jeton_names jeton) const;
    /// Pieces that lie on a place, 0 for none.
    int count(player_names player, jeton_names jeton) const;
    QVector<jeton_info> jetons_of(player_names player) const;
    bool has_jetons(player_names player) const;
    const prison_record& prison_of(player_names player) const { return prisons[index(player)]; }
    /// Names of the even chances that sit in prison or double prison, ascending.
    QVector<jeton_names> imprisoned(player_names player) const;

    /// Sets pieces of a value; a jeton already there keeps its own piece value. Refused in
    /// silence when a human's credit does not suffice. What would not fit an int count of
    /// pieces is not set and not debited. Returns whether anything was set.
    bool set_jeton(player_names player, jeton_names jeton, int value, int count, debit from);
    /// Takes one piece back into the credit; without a jeton there nothing happens.
    void take_piece(player_names player, jeton_names jeton);
    /// Takes all jetons of a player off the table; the money returns to the credit.
    void clear_jetons(player_names player);
    /// Takes the jetons off that a table form does not have; the money returns.
    void keep_only_chances_of(table_form form);

    // the coup, in this order

    /// Remembers the bets for replay. Returns the seeded sums.
    player_sums close_bets();
    /// Zero rule, prison and payout of one number for all players. Unit: worth. Lost jetons leave
    /// the table; `back_jetons()` tells which pieces are released from prison.
    player_sums evaluate(const number_hit_property& property, const table_rules& rules);
    const std::vector<back_jeton>& back_jetons() const { return released; }
    /// Takes the paid jetons off the table where the stake joins the win; those of a player with
    /// replay stay, unpaid.
    void clear_won_jetons(const table_rules& rules);
    /// Sets the released pieces again, without debit.
    void set_back_jetons(const table_rules& rules);
    /// Pays the replay bets; a bet that does not fit the credit ends the replay of its player.
    void checks_replay();

    /// Everything back: no jetons, no prison, every credit the start capital.
    void stop(qint64 start_capital);

private:
    static std::size_t index(player_names player) { return static_cast<std::size_t>(player); }
    static player_names player_at(std::size_t i) { return static_cast<player_names>(i); }

    qint64
    evaluate_player(std::size_t i, const number_hit_property& property, const table_rules& rules);
    qint64 zero_rule(std::size_t i);
    void prison_update(std::size_t i, const number_hit_property& property);
    void repeat_hit_stakes(std::size_t i, const place_set& hits);
    void pay_replay(std::size_t i);
    void end_unpaid_replay(std::size_t i);
    void use_rules(const table_rules& rules);
    void tell_account(std::size_t i) const;
    void tell_evaluation(std::size_t i, qint64 score, std::size_t first_released) const;

    template <typename value_type>
    using per_player = std::array<value_type, general_player::player_count>;

    per_player<jeton_layout> jeton_table;
    per_player<jeton_layout> last_bet; // what lay on the table when the bets closed
    per_player<account> accounts;
    per_player<prison_record> prisons;
    per_player<bool> replay_in_coup{}; // replay flags as they were at the evaluation
    std::vector<back_jeton> released;

    player_names active = general_player::PLAYER_1;
    player_names saved_active = general_player::PLAYER_1;
    bool active_is_replaced = false;

    table_rules paid_rules;                            // the rules of `multipliers`
    std::array<qint64, jetons::LAST_JN> multipliers{}; // 0: not worked out yet
    table_listener* listener = nullptr;
};

#endif // GAME_TABLE_H
