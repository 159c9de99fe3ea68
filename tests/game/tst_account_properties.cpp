#include "game_table.h"
#include "number_records.h"
#include "plain_table.h"
#include "test_box.h"

#include <random>

using general_player::player_count;
using general_player::player_names;

/// Long random games against a second, naive way of keeping the accounts, and what must hold in
/// every game whatever is played.
class tst_account_properties : public QObject
{
    Q_OBJECT

private slots:
    void a_random_game_is_that_of_the_plain_table_data();
    void a_random_game_is_that_of_the_plain_table();
    void only_the_evaluation_moves_money_in_or_out_data();
    void only_the_evaluation_moves_money_in_or_out();
    void open_bets_are_worth_what_is_seeded_data();
    void open_bets_are_worth_what_is_seeded();
};

namespace
{

constexpr int coups_per_game = 1500;

/// Random whole numbers that are the same with every library.
class dice
{
public:
    explicit dice(quint32 seed)
        : twister(seed)
    {
    }

    /// 0 to below faces.
    int throw_one_of(int faces)
    {
        return static_cast<int>(twister() % static_cast<quint32>(faces));
    }
    bool one_in(int faces) { return throw_one_of(faces) == 0; }
    player_names player() { return static_cast<player_names>(throw_one_of(player_count)); }

    /// A place; the even chances and the fields around zero come more often than the rest.
    jetons::jeton_names place()
    {
        const int first = one_in(2) ? jetons::EC01 : jetons::PL00;
        const int count = first == jetons::EC01 ? 6 : jetons::LAST_JN;
        return static_cast<jetons::jeton_names>(first + throw_one_of(count));
    }

    /// A number of the wheel; a zero comes every fourth time.
    int number(table_form form)
    {
        if (!one_in(4)) return throw_one_of(pocket_count(form));
        return form == table_form::american && one_in(2) ? number_code::double_zero : 0;
    }

private:
    std::mt19937 twister;
};

std::string name_of(jetons::jeton_names jeton)
{
    return jetons::name(jeton).toStdString();
}

plain_rules plain(const table_rules& rules)
{
    return {rules.form == table_form::american,
            rules.stake_joins_win,
            rules.staff_piece,
            rules.prison,
            rules.piece_value};
}

plain_stacks stacks_of(const game_table& table, player_names player)
{
    plain_stacks stacks;
    for (const jeton_info& jeton : table.jetons_of(player)) {
        stacks[name_of(jeton.jeton)] = {jeton.value, jeton.count};
    }
    return stacks;
}

std::set<std::string> chances_of(unsigned bits)
{
    std::set<std::string> chances;
    for (int i = 0; i < 6; ++i) {
        if (bits >> i & 1U) chances.insert("EC0" + std::to_string(i + 1));
    }
    return chances;
}

std::vector<std::pair<int, std::string>> released_by(const game_table& table)
{
    std::vector<std::pair<int, std::string>> released;
    for (const back_jeton& back : table.back_jetons())
        released.emplace_back(back.player, name_of(back.jeton));
    return released;
}

/// The same game on both tables, step by step.
class twin_game
{
public:
    twin_game(quint32 seed, const table_rules& first_rules)
        : rules(first_rules)
        , random(seed)
    {
        for (int i = 0; i < player_count; ++i)
            add_credit(static_cast<player_names>(i), 500);
    }

    /// One coup with everything that may happen around it. Empty, or what differs.
    QString play()
    {
        if (random.one_in(20)) change_rules();
        for (int act = 0; act < 8; ++act) {
            act_on_bets();
            if (const QString fault = difference(); !fault.isEmpty()) return "bets: " + fault;
        }
        const player_sums seeded = fast.close_bets();
        slow.close();
        for (std::size_t i = 0; i < seeded.size(); ++i) {
            if (seeded[i] != slow.players[i].seeded) return "seeded sums differ";
        }
        return play_number(random.number(rules.form));
    }

private:
    QString play_number(int number)
    {
        const QString where = QString("number %1: ").arg(number);
        const player_sums scores = fast.evaluate(property_of(number), rules);
        const std::array<long long, 4> expected = slow.evaluate(number, plain(rules));
        for (std::size_t i = 0; i < scores.size(); ++i) {
            if (scores[i] != expected[i]) return where + "scores differ";
            add_credit(static_cast<player_names>(i), scores[i]);
        }
        if (released_by(fast) != slow.released) return where + "released pieces differ";
        if (const QString fault = difference(); !fault.isEmpty()) return where + fault;

        if (random.one_in(5)) toggle_replay(random.player());
        fast.clear_won_jetons(rules);
        slow.clear_won(plain(rules));
        if (const QString fault = difference(); !fault.isEmpty()) return "cleared: " + fault;
        fast.set_back_jetons(rules);
        slow.set_back(plain(rules));
        if (const QString fault = difference(); !fault.isEmpty()) return "set back: " + fault;
        fast.checks_replay();
        slow.check_replay();
        if (const QString fault = difference(); !fault.isEmpty()) return "replay: " + fault;
        return {};
    }

    void change_rules()
    {
        rules.staff_piece = random.throw_one_of(3);
        rules.prison = !random.one_in(3);
        rules.piece_value = random.one_in(2) ? 1 : 5;
        rules.form = random.one_in(2) ? table_form::french : table_form::american;
        fast.keep_only_chances_of(rules.form);
        slow.change_form(rules.form == table_form::american);
    }

    void act_on_bets()
    {
        const player_names player = random.player();
        const jetons::jeton_names jeton = random.place();
        switch (random.throw_one_of(16)) {
        case 0:
            fast.clear_jetons(player);
            slow.clear(player);
            break;
        case 1:
        case 2:
            fast.take_piece(player, jeton);
            slow.take(player, name_of(jeton));
            break;
        case 3:
            toggle_replay(player);
            break;
        case 4:
            change_role(player);
            break;
        case 5:
            add_credit(player, random.throw_one_of(100));
            break;
        default:
            set(player, jeton);
            break;
        }
    }

    void set(player_names player, jetons::jeton_names jeton)
    {
        const int value = fast.account_of(player).is_system ? 1 : 1 + random.throw_one_of(5);
        const int count = 1 + random.throw_one_of(6);
        fast.set_jeton(player, jeton, value, count, debit::from_credit);
        slow.set(player, name_of(jeton), value, count, true);
    }

    void toggle_replay(player_names player)
    {
        fast.set_replay(player, !fast.account_of(player).replay);
        plain_player& owner = slow.players[static_cast<std::size_t>(player)];
        owner.replay = !owner.replay && !owner.is_system;
    }

    void change_role(player_names player)
    {
        plain_player& owner = slow.players[static_cast<std::size_t>(player)];
        if (owner.is_system) {
            fast.make_normal_player(player);
            owner.is_system = false;
        } else {
            fast.make_system_player(player);
            owner.is_system = true;
            owner.replay = false;
        }
    }

    void add_credit(player_names player, qint64 amount)
    {
        fast.add_credit(player, amount);
        slow.players[static_cast<std::size_t>(player)].credit += amount;
    }

    /// What the two tables do not agree about; empty when they do.
    QString difference() const
    {
        for (int i = 0; i < player_count; ++i) {
            const auto player = static_cast<player_names>(i);
            const plain_player& owner = slow.players[static_cast<std::size_t>(i)];
            const account& own = fast.account_of(player);
            const QString whose = QString(" of player %1 differs").arg(i + 1);
            if (own.credit != owner.credit) return "credit" + whose;
            if (own.seeded != owner.seeded) return "seeded" + whose;
            if (own.replay != owner.replay) return "replay" + whose;
            if (own.is_system != owner.is_system) return "role" + whose;
            if (stacks_of(fast, player) != owner.table) return "layout" + whose;
            const prison_record& prison = fast.prison_of(player);
            if (chances_of(prison.in_prison) != owner.prison) return "prison" + whose;
            if (chances_of(prison.in_double_prison) != owner.double_prison) {
                return "double prison" + whose;
            }
        }
        return {};
    }

    table_rules rules;
    dice random;
    game_table fast;
    plain_table slow;
};

/// A game of two humans, whose pieces are worth 5, and two systems.
class fixed_roles_game
{
public:
    fixed_roles_game(quint32 seed, const table_rules& game_rules)
        : rules(game_rules)
        , random(seed)
    {
        rules.piece_value = 5;
        table.make_system_player(general_player::PLAYER_3);
        table.make_system_player(general_player::PLAYER_4);
        for (int i = 0; i < player_count; ++i)
            table.set_credit(static_cast<player_names>(i), 3000);
    }

    int piece_value(player_names player) const
    {
        return table.account_of(player).is_system ? 1 : rules.piece_value;
    }

    /// Credit, bets, and what sits in prison or has just left it.
    qint64 wealth_of(player_names player) const
    {
        const prison_record& prison = table.prison_of(player);
        const auto in_prison = static_cast<qint64>(chances_of(prison.in_prison).size() +
                                                   chances_of(prison.in_double_prison).size());
        qint64 pieces = in_prison;
        for (const back_jeton& back : table.back_jetons()) {
            if (back.player == player) pieces += back.count;
        }
        return table.credit(player) + table.seeded(player) + pieces * piece_value(player);
    }

    player_sums wealth() const
    {
        player_sums sums{};
        for (std::size_t i = 0; i < sums.size(); ++i)
            sums[i] = wealth_of(static_cast<player_names>(i));
        return sums;
    }

    void act_on_bets()
    {
        const player_names player = random.player();
        const jetons::jeton_names jeton = random.place();
        const int act = random.throw_one_of(12);
        if (act == 0) table.clear_jetons(player);
        if (act == 1) table.take_piece(player, jeton);
        if (act == 2) table.set_replay(player, !table.account_of(player).replay);
        if (act == 3) {
            table.keep_only_chances_of(random.one_in(2) ? table_form::french
                                                        : table_form::american);
        }
        if (act < 4) return;
        table.set_jeton(
            player, jeton, piece_value(player), 1 + random.throw_one_of(6), debit::from_credit);
    }

    /// The one step that may change the wealth.
    void evaluate()
    {
        const int number = random.number(rules.form);
        const player_sums scores = table.evaluate(property_of(number), rules);
        for (std::size_t i = 0; i < scores.size(); ++i)
            table.add_credit(static_cast<player_names>(i), scores[i]);
        table.clear_won_jetons(rules);
    }

    table_rules rules;
    dice random;
    game_table table;
};

void add_game_rows()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<quint32>("seed");
    // clang-format off
    QTest::newRow("french, stake joins")   << table_form::french   << true  << 11U;
    QTest::newRow("french, stake stays")   << table_form::french   << false << 12U;
    QTest::newRow("american, stake joins") << table_form::american << true  << 13U;
    QTest::newRow("american, stake stays") << table_form::american << false << 14U;
    // clang-format on
}

table_rules rules_of(table_form form, bool stake_joins_win)
{
    table_rules rules;
    rules.form = form;
    rules.stake_joins_win = stake_joins_win;
    return rules;
}

} // namespace

void tst_account_properties::a_random_game_is_that_of_the_plain_table_data()
{
    add_game_rows();
}

void tst_account_properties::a_random_game_is_that_of_the_plain_table()
{
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(quint32, seed);
    twin_game game(seed, rules_of(form, stake_joins_win));
    for (int coup = 1; coup <= coups_per_game; ++coup) {
        const QString fault = game.play();
        QVERIFY2(fault.isEmpty(), qPrintable(QString("coup %1, %2").arg(coup).arg(fault)));
    }
}

void tst_account_properties::only_the_evaluation_moves_money_in_or_out_data()
{
    add_game_rows();
}

void tst_account_properties::only_the_evaluation_moves_money_in_or_out()
{
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(quint32, seed);
    fixed_roles_game game(seed, rules_of(form, stake_joins_win));
    for (int coup = 1; coup <= coups_per_game; ++coup) {
        const player_sums before = game.wealth();
        for (int act = 0; act < 8; ++act)
            game.act_on_bets();
        game.table.close_bets();
        QCOMPARE(game.wealth(), before);
        game.evaluate();
        const player_sums evaluated = game.wealth();
        game.table.set_back_jetons(game.rules);
        QCOMPARE(game.wealth(), evaluated);
        game.table.checks_replay();
        QCOMPARE(game.wealth(), evaluated);
    }
}

void tst_account_properties::open_bets_are_worth_what_is_seeded_data()
{
    add_game_rows();
}

void tst_account_properties::open_bets_are_worth_what_is_seeded()
{
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(quint32, seed);
    fixed_roles_game game(seed + 100, rules_of(form, stake_joins_win));
    for (int coup = 1; coup <= coups_per_game; ++coup) {
        for (int act = 0; act < 8; ++act)
            game.act_on_bets();
        game.table.close_bets();
        game.evaluate();
        game.table.set_back_jetons(game.rules);
        game.table.checks_replay();
        for (int i = 0; i < player_count; ++i) {
            const auto player = static_cast<player_names>(i);
            QCOMPARE(plain_table::worth(stacks_of(game.table, player)), game.table.seeded(player));
            const bool is_human = !game.table.account_of(player).is_system;
            QVERIFY(!is_human || game.table.credit(player) >= 0);
        }
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_account_properties>(argc, argv);
}

#include "tst_account_properties.moc"
