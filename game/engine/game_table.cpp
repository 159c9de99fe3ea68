#include "game_table.h"

#include "number_places.h"
#include "payout.h"

#include <algorithm>
#include <limits>

using general_player::NO_PLAYER;
using general_player::player_count;

static constexpr int even_chances = 6;
static constexpr std::size_t all_players = player_count;

static constexpr unsigned bit(int even_chance)
{
    return 1U << even_chance;
}

player_sums game_table::credits() const
{
    player_sums sums{};
    for (std::size_t i = 0; i < all_players; ++i)
        sums[i] = accounts[i].credit;
    return sums;
}

void game_table::set_credit(player_names player, qint64 credit)
{
    accounts[index(player)].credit = credit;
    tell_account(index(player));
}

void game_table::add_credit(player_names player, qint64 amount)
{
    if (amount == 0) return;
    accounts[index(player)].credit += amount;
    tell_account(index(player));
}

void game_table::set_may_set(player_names player, bool may_set)
{
    accounts[index(player)].may_set = may_set;
}

void game_table::set_may_set_for_all(bool may_set)
{
    for (account& each : accounts)
        each.may_set = may_set;
}

bool game_table::all_may_set() const
{
    return std::all_of(
        accounts.begin(), accounts.end(), [](const account& each) { return each.may_set; });
}

void game_table::set_protocol_flag(player_names player, bool on)
{
    accounts[index(player)].system_flag = on;
}

void game_table::set_replay(player_names player, bool on)
{
    account& owner = accounts[index(player)];
    owner.replay = on && !owner.is_system;
    if (listener) listener->check_status_replay();
}

bool game_table::any_replay() const
{
    return std::any_of(
        accounts.begin(), accounts.end(), [](const account& each) { return each.replay; });
}

bool game_table::make_active(player_names player)
{
    if (player == NO_PLAYER || player == active || account_of(player).is_system) return false;
    active = player;
    if (listener) listener->player_changed();
    return true;
}

void game_table::replace_active_player(player_names player)
{
    if (!active_is_replaced) saved_active = active;
    active_is_replaced = true;
    active = player;
}

void game_table::restore_active_player()
{
    if (!active_is_replaced) return;
    active_is_replaced = false;
    active = saved_active;
}

void game_table::make_system_player(player_names player)
{
    account& owner = accounts[index(player)];
    owner.is_system = true;
    owner.replay = false;
    if (active == player) {
        const auto human = std::find_if(
            accounts.begin(), accounts.end(), [](const account& each) { return !each.is_system; });
        active = player_at(static_cast<std::size_t>(human - accounts.begin()));
    }
    if (listener) {
        listener->check_status_replay();
        listener->player_changed();
        listener->recreate_prison_jetons(player);
    }
}

void game_table::make_normal_player(player_names player)
{
    accounts[index(player)].is_system = false;
    if (active == NO_PLAYER) active = player;
    if (listener) {
        listener->player_changed();
        listener->recreate_prison_jetons(player);
    }
}

bool game_table::lies(player_names player, jeton_names jeton) const
{
    return jeton_table[index(player)].lies(jeton);
}

int game_table::count(player_names player, jeton_names jeton) const
{
    return lies(player, jeton) ? jeton_table[index(player)].at(jeton).count : 0;
}

QVector<jeton_info> game_table::jetons_of(player_names player) const
{
    const jeton_layout& layout = jeton_table[index(player)];
    QVector<jeton_info> lying;
    layout.places().for_each([&](int place) {
        const jeton_stack& stack = layout.at(place);
        lying.append({player, static_cast<jeton_names>(place), stack.value, stack.count});
    });
    return lying;
}

bool game_table::has_jetons(player_names player) const
{
    return !jeton_table[index(player)].is_empty();
}

QVector<jetons::jeton_names> game_table::imprisoned(player_names player) const
{
    const prison_record& prison = prison_of(player);
    QVector<jeton_names> chances;
    for (int i = 0; i < even_chances; ++i) {
        if ((prison.in_prison | prison.in_double_prison) & bit(i)) {
            chances.append(static_cast<jeton_names>(jetons::EC01 + i));
        }
    }
    return chances;
}

bool game_table::set_jeton(player_names player, jeton_names jeton, int value, int count, debit from)
{
    if (jeton >= jetons::LAST_JN || count < 1) return false;
    account& owner = accounts[index(player)];
    jeton_layout& layout = jeton_table[index(player)];
    const bool lies_here = layout.lies(jeton);
    if (lies_here) {
        value = layout.at(jeton).value;
        count = std::min(count, std::numeric_limits<int>::max() - layout.at(jeton).count);
        if (count == 0) return false;
    }
    const qint64 stake = jeton_stack{value, count}.stake();
    if (from == debit::from_credit && !owner.is_system && owner.credit < stake) return false;

    if (lies_here) {
        layout.at(jeton).count += count;
    } else {
        layout.put(jeton, {value, count});
    }
    owner.seeded += stake;
    if (from == debit::from_credit) owner.credit -= stake;
    tell_account(index(player));
    return true;
}

void game_table::take_piece(player_names player, jeton_names jeton)
{
    if (jeton >= jetons::LAST_JN || !lies(player, jeton)) return;
    jeton_layout& layout = jeton_table[index(player)];
    jeton_stack& stack = layout.at(jeton);
    account& owner = accounts[index(player)];
    owner.credit += stack.value;
    owner.seeded -= stack.value;
    if (stack.count < 2) {
        layout.remove(jeton);
    } else {
        --stack.count;
    }
    tell_account(index(player));
}

void game_table::clear_jetons(player_names player)
{
    account& owner = accounts[index(player)];
    jeton_table[index(player)].clear();
    owner.credit += owner.seeded;
    owner.seeded = 0;
    tell_account(index(player));
}

void game_table::keep_only_chances_of(table_form form)
{
    static constexpr std::array<jeton_names, 6> only_american = {
        jetons::PL37, jetons::CH61, jetons::CH62, jetons::CH63, jetons::TP15, jetons::TP16};
    static constexpr std::array<jeton_names, 2> only_french = {jetons::CH03, jetons::TP02};

    place_set missing;
    if (form == table_form::american) {
        for (const jeton_names jeton : only_french)
            missing.insert(jeton);
    } else {
        for (const jeton_names jeton : only_american)
            missing.insert(jeton);
    }
    for (std::size_t i = 0; i < all_players; ++i) {
        const place_set off = jeton_table[i].places().common_with(missing);
        if (off.is_empty()) continue;
        const qint64 stake = jeton_table[i].stake_on(off);
        jeton_table[i].remove(off);
        accounts[i].seeded -= stake;
        accounts[i].credit += stake;
        tell_account(i);
    }
}

player_sums game_table::close_bets()
{
    player_sums sums{};
    for (std::size_t i = 0; i < all_players; ++i) {
        sums[i] = accounts[i].seeded;
        if (jeton_table[i].is_empty() && last_bet[i].is_empty()) continue;
        last_bet[i].copy_from(jeton_table[i]);
    }
    return sums;
}

player_sums game_table::evaluate(const number_hit_property& property, const table_rules& rules)
{
    released.clear();
    player_sums scores{};
    if (!property.valid) return scores;
    use_rules(rules);
    for (std::size_t i = 0; i < all_players; ++i) {
        replay_in_coup[i] = accounts[i].replay;
        const std::size_t first_released = released.size();
        if (!jeton_table[i].is_empty() || !prisons[i].is_empty()) {
            scores[i] = evaluate_player(i, property, rules);
        }
        if (listener) tell_evaluation(i, scores[i], first_released);
    }
    return scores;
}

void game_table::tell_evaluation(std::size_t i, qint64 score, std::size_t first_released) const
{
    tell_account(i);
    for (std::size_t back = first_released; back < released.size(); ++back) {
        listener->save_zero_back_jeton(player_at(i), released[back].jeton, released[back].count);
    }
    listener->player_score_changend(player_at(i), score);
}

qint64 game_table::evaluate_player(std::size_t i,
                                   const number_hit_property& property,
                                   const table_rules& rules)
{
    qint64 score = 0;
    const bool is_zero = property.number == 0 || property.number == number_code::double_zero;
    if (!is_zero) {
        prison_update(i, property);
    } else if (rules.prison) {
        score += zero_rule(i);
    }

    jeton_layout& layout = jeton_table[i];
    const place_set& hit = places_hit_by(property.number);
    const place_set won = layout.places().common_with(hit);
    const place_set lost = layout.places().without(hit);
    won.for_each([&](int place) {
        score += layout.at(place).stake() * multipliers[static_cast<std::size_t>(place)];
    });

    accounts[i].seeded -= layout.stake_on(lost);
    if (!replay_in_coup[i]) {
        layout.remove(lost);
    } else if (!rules.stake_joins_win) {
        repeat_hit_stakes(i, won);
    }
    return score;
}

/// At zero the jetons in double prison are lost, those in prison move on, and of the jetons on
/// the even chances half returns and an odd piece goes to prison. Returns what returns.
qint64 game_table::zero_rule(std::size_t i)
{
    qint64 returned = 0;
    prison_record& prison = prisons[i];
    const jeton_layout& layout = jeton_table[i];
    prison.in_double_prison = prison.in_prison;
    prison.in_prison = 0;
    for (int chance = 0; chance < even_chances; ++chance) {
        const int place = jetons::EC01 + chance;
        if (!layout.lies(place)) continue;
        const jeton_stack& stack = layout.at(place);
        returned += static_cast<qint64>(stack.count / 2) * stack.value;
        if (stack.count % 2 == 0) continue;
        prison.in_prison |= bit(chance);
        prison.value[static_cast<std::size_t>(chance)] = stack.value;
    }
    return returned;
}

/// At any other number a prisoner on a winning chance is released, one in double prison moves
/// down, and the rest is lost.
void game_table::prison_update(std::size_t i, const number_hit_property& property)
{
    prison_record& prison = prisons[i];
    if (prison.is_empty()) return;
    unsigned winning = 0;
    for (const int chance : property.ec) {
        if (chance == jetons::NO_JETON) continue;
        winning |= bit(chance - jetons::EC01);
    }
    for (int chance = 0; chance < even_chances; ++chance) {
        if ((prison.in_prison & winning & bit(chance)) == 0) continue;
        released.push_back({player_at(i), static_cast<jeton_names>(jetons::EC01 + chance), 1});
    }
    prison.in_prison = prison.in_double_prison & winning;
    prison.in_double_prison = 0;
}

/// With replay and the winning jeton left on its place, the repeated bet joins it; pieces that
/// do not fit are not repeated, so they are not paid for either.
void game_table::repeat_hit_stakes(std::size_t i, const place_set& hits)
{
    hits.for_each([&](int place) {
        if (!last_bet[i].lies(place)) return;
        int& count = jeton_table[i].at(place).count;
        int& repeated = last_bet[i].at(place).count;
        repeated = std::min(repeated, std::numeric_limits<int>::max() - count);
        count += repeated;
    });
}

void game_table::clear_won_jetons(const table_rules& rules)
{
    if (!rules.stake_joins_win) return;
    for (std::size_t i = 0; i < all_players; ++i) {
        if (jeton_table[i].is_empty()) continue;
        accounts[i].seeded = 0;
        if (!replay_in_coup[i]) jeton_table[i].clear();
        tell_account(i);
    }
}

void game_table::set_back_jetons(const table_rules& rules)
{
    for (const back_jeton& back : released) {
        const int value = account_of(back.player).is_system ? 1 : rules.piece_value;
        set_jeton(back.player, back.jeton, value, back.count, debit::none);
    }
    released.clear();
}

void game_table::checks_replay()
{
    for (std::size_t i = 0; i < all_players; ++i) {
        if (replay_in_coup[i]) {
            pay_replay(i);
        } else {
            last_bet[i].clear();
        }
    }
}

void game_table::pay_replay(std::size_t i)
{
    const qint64 stake = last_bet[i].stake_on(last_bet[i].places());
    if (stake > accounts[i].credit) {
        end_unpaid_replay(i);
        return;
    }
    accounts[i].credit -= stake;
    accounts[i].seeded += stake;
    tell_account(i);
}

/// The bet that stayed on the table for replay can't be paid: what is unpaid leaves the table.
void game_table::end_unpaid_replay(std::size_t i)
{
    jeton_layout& layout = jeton_table[i];
    last_bet[i].places().for_each([&](int place) {
        if (!layout.lies(place)) return;
        layout.at(place).count -= last_bet[i].at(place).count;
        if (layout.at(place).count < 1) layout.remove(place);
    });
    last_bet[i].clear();
    accounts[i].replay = false;
    tell_account(i);
    if (listener) listener->check_status_replay();
}

void game_table::stop(qint64 start_capital)
{
    released.clear();
    for (std::size_t i = 0; i < all_players; ++i) {
        jeton_table[i].clear();
        last_bet[i].clear();
        prisons[i] = {};
        replay_in_coup[i] = false;
        accounts[i].seeded = 0;
        accounts[i].credit = start_capital;
        accounts[i].may_set = false;
        tell_account(i);
    }
}

void game_table::use_rules(const table_rules& rules)
{
    if (multipliers[0] != 0 && rules == paid_rules) return;
    paid_rules = rules;
    for (int place = 0; place < jetons::LAST_JN; ++place) {
        multipliers[static_cast<std::size_t>(place)] =
            multiplier(static_cast<jeton_names>(place), rules);
    }
}

void game_table::tell_account(std::size_t i) const
{
    if (listener) listener->player_credit_seeded_update(player_at(i));
}
