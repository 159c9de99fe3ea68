#ifndef PLAIN_TABLE_H
#define PLAIN_TABLE_H

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

/// The numbers on which a bet wins, worked out from the name of the bet alone; 37 is the double
/// zero.
inline std::set<int> plain_numbers(const std::string& bet, bool american)
{
    static const std::set<int> reds = {
        1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};
    static const std::map<std::string, std::set<int>> around_zero = {
        // clang-format off
        {"CH01", {0, 1}},    {"CH02", {0, 2}},     {"CH03", {0, 3}},
        {"CH61", {0, 37}},   {"CH62", {2, 37}},    {"CH63", {3, 37}},
        {"TP01", {0, 1, 2}}, {"TP02", {0, 2, 3}},
        {"TP15", {0, 2, 37}}, {"TP16", {2, 3, 37}},
        // clang-format on
    };
    const auto special = around_zero.find(bet);
    if (special != around_zero.end()) return special->second;
    if (bet == "CA01") return american ? std::set<int>{0, 1, 2, 3, 37} : std::set<int>{0, 1, 2, 3};

    const std::string kind = bet.substr(0, 2);
    const int n = std::stoi(bet.substr(2));
    if (kind == "PL") return {n};
    if (kind == "CH" && n <= 36) return {n - 3, n};
    if (kind == "CH") { // two in each street, from 1/2 on
        const int low = 3 * ((n - 37) / 2) + (n - 37) % 2 + 1;
        return {low, low + 1};
    }
    if (kind == "CA") { // two between each pair of streets, from 1/2/4/5 on
        const int low = 3 * ((n - 2) / 2) + (n - 2) % 2 + 1;
        return {low, low + 1, low + 3, low + 4};
    }
    std::set<int> numbers;
    for (int number = 1; number <= 36; ++number) {
        const bool red = reds.count(number) == 1;
        const bool wins = (kind == "TP" && (number + 2) / 3 == n - 2) ||
                          (kind == "TS" && ((number + 2) / 3 == n || (number + 2) / 3 == n + 1)) ||
                          (kind == "KL" && number % 3 == n % 3) ||
                          (kind == "DZ" && (number + 11) / 12 == n) ||
                          (bet == "EC01" && number <= 18) || (bet == "EC02" && number % 2 == 0) ||
                          (bet == "EC03" && red) || (bet == "EC04" && !red) ||
                          (bet == "EC05" && number % 2 == 1) || (bet == "EC06" && number >= 19);
        if (wins) numbers.insert(number);
    }
    return numbers;
}

/// The rules of a plain table, in plain terms.
struct plain_rules {
    bool american = false;
    bool stake_joins_win = true;
    int staff_piece = 0;
    bool prison = true;
    int piece_value = 1;
};

/// Stakes that a winning bet brings.
inline int plain_payout(const std::string& bet, const plain_rules& rules)
{
    static const std::map<std::string, int> stakes = {
        // clang-format off
        {"PL", 36}, {"CH", 18}, {"TP", 12}, {"CA", 9}, {"TS", 6}, {"DZ", 3}, {"KL", 3}, {"EC", 2},
        // clang-format on
    };
    const std::string kind = bet.substr(0, 2);
    int payout = stakes.at(kind);
    if (bet == "CA01" && rules.american) payout = 7;
    if (kind == "PL" && rules.staff_piece > 0) --payout;
    if (kind == "CH" && rules.staff_piece == 2) --payout;
    return rules.stake_joins_win ? payout : payout - 1;
}

/// Pieces on a place.
struct plain_stack {
    long long value = 0;
    long long count = 0;

    bool operator==(const plain_stack& other) const
    {
        return value == other.value && count == other.count;
    }
};

using plain_stacks = std::map<std::string, plain_stack>;

/// What a player of a plain table owns.
struct plain_player {
    long long credit = 0;
    long long seeded = 0;
    bool replay = false;
    bool replay_in_coup = false;
    bool is_system = false;
    plain_stacks table;
    plain_stacks last_bet;
    std::set<std::string> prison;
    std::set<std::string> double_prison;
};

/**
 * The accounts of four players once more, written with maps of names and one small step after
 * the other, the way a croupier would tell the rules: slow, and a second opinion on every coup.
 */
class plain_table
{
public:
    std::array<plain_player, 4> players;
    std::vector<std::pair<int, std::string>> released; ///< player and even chance

    static long long worth(const plain_stacks& stacks)
    {
        long long sum = 0;
        for (const auto& [bet, stack] : stacks)
            sum += stack.value * stack.count;
        return sum;
    }

    void set(int who, const std::string& bet, int value, int count, bool is_paid)
    {
        plain_player& player = players.at(static_cast<std::size_t>(who));
        const auto lying = player.table.find(bet);
        const long long worth_of_one = lying == player.table.end() ? value : lying->second.value;
        const long long stake = worth_of_one * count;
        if (is_paid && !player.is_system && player.credit - stake < 0) return;
        player.table[bet].value = worth_of_one;
        player.table[bet].count += count;
        player.seeded += stake;
        if (is_paid) player.credit -= stake;
    }

    void take(int who, const std::string& bet)
    {
        plain_player& player = players.at(static_cast<std::size_t>(who));
        const auto lying = player.table.find(bet);
        if (lying == player.table.end()) return;
        player.credit += lying->second.value;
        player.seeded -= lying->second.value;
        if (--lying->second.count == 0) player.table.erase(lying);
    }

    void clear(int who)
    {
        plain_player& player = players.at(static_cast<std::size_t>(who));
        player.table.clear();
        player.credit += player.seeded;
        player.seeded = 0;
    }

    void change_form(bool american)
    {
        const std::vector<std::string> french_only = {"CH03", "TP02"};
        const std::vector<std::string> american_only = {
            "PL37", "CH61", "CH62", "CH63", "TP15", "TP16"};
        for (plain_player& player : players) {
            for (const std::string& bet : american ? french_only : american_only) {
                if (player.table.count(bet) == 0) continue;
                const long long stake = player.table[bet].value * player.table[bet].count;
                player.table.erase(bet);
                player.seeded -= stake;
                player.credit += stake;
            }
        }
    }

    void close()
    {
        for (plain_player& player : players)
            player.last_bet = player.table;
    }

    std::array<long long, 4> evaluate(int number, const plain_rules& rules)
    {
        std::array<long long, 4> scores{};
        released.clear();
        for (std::size_t who = 0; who < players.size(); ++who) {
            plain_player& player = players[who];
            player.replay_in_coup = player.replay;
            if (number != 0 && number != 37) {
                update_prison(static_cast<int>(who), number);
            } else if (rules.prison) {
                scores[who] += apply_zero_rule(player);
            }
            scores[who] += pay(player, number, rules);
        }
        return scores;
    }

    void clear_won(const plain_rules& rules)
    {
        if (!rules.stake_joins_win) return;
        for (plain_player& player : players) {
            player.seeded = 0;
            if (!player.replay_in_coup) player.table.clear();
        }
    }

    void set_back(const plain_rules& rules)
    {
        for (const auto& [who, bet] : released) {
            const bool is_system = players.at(static_cast<std::size_t>(who)).is_system;
            set(who, bet, is_system ? 1 : rules.piece_value, 1, false);
        }
        released.clear();
    }

    void check_replay()
    {
        for (plain_player& player : players) {
            if (!player.replay_in_coup) {
                player.last_bet.clear();
                continue;
            }
            const long long cost = worth(player.last_bet);
            if (player.credit - cost >= 0) {
                player.credit -= cost;
                player.seeded += cost;
                continue;
            }
            player.replay = false;
            for (const auto& [bet, stack] : player.last_bet) {
                if (player.table.count(bet) == 0) continue;
                player.table[bet].count -= stack.count;
                if (player.table[bet].count < 1) player.table.erase(bet);
            }
            player.last_bet.clear();
        }
    }

private:
    static std::vector<std::string> even_chances()
    {
        return {"EC01", "EC02", "EC03", "EC04", "EC05", "EC06"};
    }

    static long long apply_zero_rule(plain_player& player)
    {
        long long returned = 0;
        for (const std::string& chance : even_chances()) {
            player.double_prison.erase(chance);
            if (player.prison.erase(chance) == 1) player.double_prison.insert(chance);
            if (player.table.count(chance) == 0) continue;
            const plain_stack& stack = player.table[chance];
            returned += stack.count / 2 * stack.value;
            if (stack.count % 2 == 1) player.prison.insert(chance);
        }
        return returned;
    }

    void update_prison(int who, int number)
    {
        plain_player& player = players.at(static_cast<std::size_t>(who));
        std::set<std::string> stays;
        for (const std::string& chance : even_chances()) {
            if (plain_numbers(chance, false).count(number) == 0) continue;
            if (player.prison.count(chance) == 1) released.emplace_back(who, chance);
            if (player.double_prison.count(chance) == 1) stays.insert(chance);
        }
        player.prison = stays;
        player.double_prison.clear();
    }

    static long long pay(plain_player& player, int number, const plain_rules& rules)
    {
        long long score = 0;
        plain_stacks remaining;
        for (const auto& [bet, stack] : player.table) {
            const long long stake = stack.value * stack.count;
            if (plain_numbers(bet, rules.american).count(number) == 1) {
                score += stake * plain_payout(bet, rules);
                remaining[bet] = stack;
                const bool grows = player.replay_in_coup && !rules.stake_joins_win;
                if (grows) remaining[bet].count += player.last_bet[bet].count;
                continue;
            }
            player.seeded -= stake;
            if (player.replay_in_coup) remaining[bet] = stack;
        }
        player.table = remaining;
        return score;
    }
};

#endif // PLAIN_TABLE_H
