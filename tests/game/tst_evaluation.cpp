#include "announcements.h"
#include "game_table.h"
#include "number_control.h"
#include "number_records.h"
#include "plain_table.h"
#include "test_box.h"

#include <limits>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// What one coup pays, and what prison and replay make of several.
class tst_evaluation : public QObject
{
    Q_OBJECT

private slots:
    void every_chance_pays_as_the_rules_tell_data();
    void every_chance_pays_as_the_rules_tell();
    void every_announcement_pays_the_sum_of_its_jetons_data();
    void every_announcement_pays_the_sum_of_its_jetons();
    void single_wins_are_those_of_the_house_data();
    void single_wins_are_those_of_the_house();
    void a_winning_jeton_stays_where_the_stake_does_not_join_the_win();
    void players_without_jetons_score_nothing();
    void all_winning_jetons_of_a_player_add_up();
    void large_stakes_are_paid_in_full();
    void a_number_without_a_record_changes_nothing();
    void the_even_chances_go_through_prison_data();
    void the_even_chances_go_through_prison();
    void every_even_chance_has_a_prison_of_its_own();
    void without_the_prison_rule_zero_takes_all();
    void without_the_prison_rule_prisoners_wait_for_another_number();
    void a_released_piece_has_the_value_of_the_rules_data();
    void a_released_piece_has_the_value_of_the_rules();
    void a_released_piece_joins_a_lying_jeton_at_its_value();
    void a_released_piece_needs_no_credit();
    void replay_pays_the_bet_again_data();
    void replay_pays_the_bet_again();
    void a_replay_that_is_switched_in_mid_coup_acts_from_the_next_one();
    void without_replay_the_last_bet_is_forgotten();
    void a_replay_that_does_not_fit_the_credit_ends_data();
    void a_replay_that_does_not_fit_the_credit_ends();
    void an_unpaid_replay_leaves_what_is_paid();
    void pieces_that_do_not_fit_are_not_repeated();
};

namespace
{

const QVector<int> french_wheel = {0,  32, 15, 19, 4,  21, 2,  25, 17, 34, 6, 27, 13,
                                   36, 11, 30, 8,  23, 10, 5,  24, 16, 33, 1, 20, 14,
                                   31, 9,  22, 18, 29, 7,  28, 12, 35, 3,  26};
const QVector<int> american_wheel = {0,  28, 9,  26, 30, 11, 7,  20, 32, 17, 5,  22, 34,
                                     15, 3,  24, 36, 13, 1,  37, 27, 10, 25, 29, 12, 8,
                                     19, 31, 18, 6,  21, 33, 16, 4,  23, 35, 14, 2};

jetons::jeton_names place(int value)
{
    return static_cast<jetons::jeton_names>(value);
}

std::string name_of(int jeton)
{
    return jetons::name(place(jeton)).toStdString();
}

table_rules rules_of(table_form form, bool stake_joins_win, int staff_piece, bool prison)
{
    table_rules rules;
    rules.form = form;
    rules.stake_joins_win = stake_joins_win;
    rules.staff_piece = staff_piece;
    rules.prison = prison;
    return rules;
}

plain_rules plain(const table_rules& rules)
{
    return {rules.form == table_form::american,
            rules.stake_joins_win,
            rules.staff_piece,
            rules.prison,
            rules.piece_value};
}

game_table table_with_credit(qint64 credit)
{
    game_table table;
    for (int i = 0; i < player_count; ++i)
        table.set_credit(static_cast<player_names>(i), credit);
    return table;
}

/// Evaluates a number and counts the scores into the credits.
player_sums evaluate_and_count(game_table& table, int number, const table_rules& rules)
{
    table.close_bets();
    const player_sums scores = table.evaluate(property_of(number), rules);
    for (std::size_t i = 0; i < scores.size(); ++i)
        table.add_credit(static_cast<player_names>(i), scores[i]);
    return scores;
}

void finish_coup(game_table& table, const table_rules& rules)
{
    table.clear_won_jetons(rules);
    table.set_back_jetons(rules);
    table.checks_replay();
}

player_sums play_coup(game_table& table, int number, const table_rules& rules)
{
    const player_sums scores = evaluate_and_count(table, number, rules);
    finish_coup(table, rules);
    return scores;
}

/// The even chance in prison: "P", in double prison "D", in both "PD", in none "-".
QString prison_text(const game_table& table, player_names player, int chance)
{
    const prison_record& prison = table.prison_of(player);
    QString text;
    if (prison.in_prison >> chance & 1U) text += "P";
    if (prison.in_double_prison >> chance & 1U) text += "D";
    return text.isEmpty() ? "-" : text;
}

QStringList pleins(const QVector<int>& numbers)
{
    QStringList names;
    for (const int number : numbers)
        names.append(QString("PL%1").arg(number, 2, 10, QLatin1Char('0')));
    return names;
}

QStringList finale(int digit, bool american)
{
    QVector<int> numbers;
    for (int number = 0; number <= 36; ++number) {
        if (number % 10 == digit) numbers.append(number);
    }
    if (digit == 0 && american) numbers.append(37);
    return pleins(numbers);
}

QStringList neighbours(int number, int reach, const QVector<int>& wheel)
{
    const int middle = wheel.indexOf(number);
    if (middle < 0) return {};
    QVector<int> numbers;
    for (int offset = -reach; offset <= reach; ++offset)
        numbers.append(wheel.at((middle + offset + wheel.size()) % wheel.size()));
    return pleins(numbers);
}

QStringList sector(const QString& name)
{
    static const QHash<QString, QString> sectors = {
        // clang-format off
        {"GS", "CH07 CH15 CH21 CH22 CH35 TP02 TP02 CA18 CA18"},
        {"KS", "CH08 CH43 CH16 CH52 CH30 CH36"},
        {"OR", "PL01 CH09 CH17 CH20 CH34"},
        {"OP", "PL01 PL06 PL09 PL14 PL17 PL20 PL31 PL34"},
        {"ZS", "CH03 PL26 CH35 CH15"},
        // clang-format on
    };
    return sectors.value(name).split(' ', Qt::SkipEmptyParts);
}

/// The jetons of an announcement, told again from its name.
QStringList jetons_of_announcement(const QString& name, bool american)
{
    const QVector<int>& wheel = american ? american_wheel : french_wheel;
    const int number = name.mid(2).toInt();
    if (name.startsWith("FI")) return finale(number, american);
    if (name.startsWith("EN"))
        return name == "ENZNDN" ? QStringList() : neighbours(number, 1, wheel);
    if (name.startsWith("ZN")) return neighbours(number, 2, wheel);
    if (name.startsWith("DN")) return neighbours(number, 3, wheel);
    return american ? QStringList() : sector(name);
}

} // namespace

void tst_evaluation::every_chance_pays_as_the_rules_tell_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<int>("staff_piece");
    QTest::addColumn<bool>("prison");
    for (const table_form form : {table_form::french, table_form::american}) {
        for (const bool joins : {true, false}) {
            for (int staff = 0; staff <= 2; ++staff) {
                for (const bool prison : {true, false}) {
                    QTest::addRow("%s, stake %s, staff %d, %s",
                                  form == table_form::french ? "french" : "american",
                                  joins ? "joins" : "stays",
                                  staff,
                                  prison ? "prison" : "no prison")
                        << form << joins << staff << prison;
                }
            }
        }
    }
}

void tst_evaluation::every_chance_pays_as_the_rules_tell()
{
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(int, staff_piece);
    QFETCH(bool, prison);
    const table_rules rules = rules_of(form, stake_joins_win, staff_piece, prison);
    for (int jeton = 0; jeton < jetons::LAST_JN; ++jeton) {
        const std::string name = name_of(jeton);
        const std::set<int> numbers = plain_numbers(name, form == table_form::american);
        for (int number = 0; number < pocket_count(form); ++number) {
            game_table table = table_with_credit(100);
            table.set_jeton(PLAYER_3, place(jeton), 5, 3, debit::from_credit);
            const qint64 score = evaluate_and_count(table, number, rules)[PLAYER_3];

            const bool wins = numbers.count(number) == 1;
            const bool at_zero = number == 0 || number == 37;
            const bool goes_to_prison = prison && at_zero && name.substr(0, 2) == "EC";
            qint64 expected = goes_to_prison ? 5 : 0; // of three pieces one returns
            if (wins) expected = 15 * plain_payout(name, plain(rules));
            const auto bet = QString::fromStdString(name) + QString(" on %1").arg(number);
            QVERIFY2(score == expected, qPrintable(bet));
            QVERIFY2(table.lies(PLAYER_3, place(jeton)) == wins, qPrintable(bet));
            QCOMPARE(table.seeded(PLAYER_3), qint64{wins ? 15 : 0});
            QCOMPARE(table.imprisoned(PLAYER_3).size(), goes_to_prison ? 1 : 0);

            table.clear_won_jetons(rules);
            const bool stays = wins && !stake_joins_win;
            QCOMPARE(table.count(PLAYER_3, place(jeton)), stays ? 3 : 0);
            QCOMPARE(table.seeded(PLAYER_3), qint64{stays ? 15 : 0});
            QCOMPARE(table.credit(PLAYER_3), 100 - 15 + expected);
        }
    }
}

void tst_evaluation::every_announcement_pays_the_sum_of_its_jetons_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::newRow("french, stake joins") << table_form::french << true;
    QTest::newRow("french, stake stays") << table_form::french << false;
    QTest::newRow("american, stake joins") << table_form::american << true;
    QTest::newRow("american, stake stays") << table_form::american << false;
}

void tst_evaluation::every_announcement_pays_the_sum_of_its_jetons()
{
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    const bool american = form == table_form::american;
    const table_rules rules = rules_of(form, stake_joins_win, 2, true);
    for (int ext = 0; ext < jetons::LAST_ext_JN; ++ext) {
        const auto ext_jeton = static_cast<jetons::ext_jeton_names>(ext);
        const QStringList laid = jetons_of_announcement(jetons::name(ext_jeton), american);
        for (int number = 0; number < pocket_count(form); ++number) {
            game_table table;
            table.make_system_player(PLAYER_2);
            lay_system_bet(table, form, PLAYER_2, jetons::NO_JETON, ext_jeton, 2);
            QCOMPARE(table.seeded(PLAYER_2), qint64{2} * laid.size());

            qint64 expected = 0;
            for (const QString& jeton : laid) {
                const std::string name = jeton.toStdString();
                if (plain_numbers(name, american).count(number) == 0) continue;
                expected += 2 * plain_payout(name, plain(rules));
            }
            const qint64 score = evaluate_and_count(table, number, rules)[PLAYER_2];
            const QString bet = jetons::name(ext_jeton) + QString(" on %1").arg(number);
            QVERIFY2(score == expected, qPrintable(bet));
        }
    }
}

void tst_evaluation::single_wins_are_those_of_the_house_data()
{
    QTest::addColumn<QString>("jeton");
    QTest::addColumn<int>("number");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<int>("staff_piece");
    QTest::addColumn<qint64>("score");
    constexpr table_form french = table_form::french;
    constexpr table_form american = table_form::american;
    // clang-format off
    QTest::newRow("plein, stake joins")   << "PL17" << 17 << french   << true  << 0 << qint64{36};
    QTest::newRow("plein, stake stays")   << "PL17" << 17 << french   << false << 0 << qint64{35};
    QTest::newRow("plein, staff piece")   << "PL17" << 17 << french   << true  << 1 << qint64{35};
    QTest::newRow("plein, both")          << "PL17" << 17 << french   << false << 2 << qint64{34};
    QTest::newRow("double zero")          << "PL37" << 37 << american << true  << 0 << qint64{36};
    QTest::newRow("cheval")               << "CH20" << 20 << french   << true  << 1 << qint64{18};
    QTest::newRow("cheval, staff piece")  << "CH20" << 17 << french   << true  << 2 << qint64{17};
    QTest::newRow("0/00/2 at double zero") << "TP15" << 37 << american << true << 0 << qint64{12};
    QTest::newRow("first four at zero")   << "CA01" << 0  << french   << true  << 0 << qint64{9};
    QTest::newRow("first five at zero")   << "CA01" << 37 << american << true  << 0 << qint64{7};
    QTest::newRow("first five, stays")    << "CA01" << 3  << american << false << 0 << qint64{6};
    QTest::newRow("other carré")          << "CA18" << 29 << american << true  << 0 << qint64{9};
    QTest::newRow("transversale simple")  << "TS11" << 36 << french   << true  << 2 << qint64{6};
    QTest::newRow("dozen")                << "DZ02" << 13 << french   << true  << 0 << qint64{3};
    QTest::newRow("column")               << "KL03" << 36 << french   << true  << 0 << qint64{3};
    QTest::newRow("even chance")          << "EC03" << 36 << french   << true  << 2 << qint64{2};
    QTest::newRow("missed")               << "EC03" << 35 << french   << true  << 0 << qint64{0};
    // clang-format on
}

void tst_evaluation::single_wins_are_those_of_the_house()
{
    QFETCH(QString, jeton);
    QFETCH(int, number);
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(int, staff_piece);
    QFETCH(qint64, score);
    game_table table = table_with_credit(1);
    table.set_jeton(PLAYER_1, jetons::value_of(jeton), 1, 1, debit::from_credit);
    const table_rules rules = rules_of(form, stake_joins_win, staff_piece, true);
    QCOMPARE(play_coup(table, number, rules), (player_sums{score, 0, 0, 0}));
    QCOMPARE(table.credit(PLAYER_1), score);
}

void tst_evaluation::a_winning_jeton_stays_where_the_stake_does_not_join_the_win()
{
    for (const bool joins : {true, false}) {
        const table_rules rules = rules_of(table_form::french, joins, 0, true);
        game_table table = table_with_credit(10);
        table.set_jeton(PLAYER_1, jetons::PL17, 1, 1, debit::from_credit);
        table.set_jeton(PLAYER_1, jetons::PL18, 1, 1, debit::from_credit);
        play_coup(table, 17, rules);
        QCOMPARE(table.lies(PLAYER_1, jetons::PL17), !joins);
        QVERIFY(!table.lies(PLAYER_1, jetons::PL18));
        QCOMPARE(table.seeded(PLAYER_1), qint64{joins ? 0 : 1});
        QCOMPARE(table.credit(PLAYER_1), qint64{joins ? 44 : 43});

        // What stays is a bet of the next coup.
        QCOMPARE(play_coup(table, 17, rules)[PLAYER_1], qint64{joins ? 0 : 35});
    }
}

void tst_evaluation::players_without_jetons_score_nothing()
{
    game_table table = table_with_credit(10);
    table.set_jeton(PLAYER_2, jetons::EC01, 1, 3, debit::from_credit);
    QCOMPARE(play_coup(table, 1, table_rules()), (player_sums{0, 6, 0, 0}));
    QCOMPARE(table.credits(), (player_sums{10, 13, 10, 10}));
}

void tst_evaluation::all_winning_jetons_of_a_player_add_up()
{
    // 8 is black, low and even, in the first dozen and the second column.
    game_table table = table_with_credit(100);
    const std::initializer_list<jetons::jeton_names> hit = {jetons::PL08,
                                                            jetons::CH08,
                                                            jetons::CH11,
                                                            jetons::CH41,
                                                            jetons::CH42,
                                                            jetons::TP05,
                                                            jetons::TS02,
                                                            jetons::TS03,
                                                            jetons::EC01,
                                                            jetons::EC02,
                                                            jetons::EC04,
                                                            jetons::CA04,
                                                            jetons::CA05,
                                                            jetons::CA06,
                                                            jetons::CA07,
                                                            jetons::KL02,
                                                            jetons::DZ01};
    for (const auto jeton : hit)
        table.set_jeton(PLAYER_4, jeton, 1, 1, debit::from_credit);
    for (const auto jeton : {jetons::PL07, jetons::EC06, jetons::CH07, jetons::DZ02})
        table.set_jeton(PLAYER_4, jeton, 1, 1, debit::from_credit);
    // 36 + 4 * 18 + 12 + 2 * 6 + 3 * 2 + 4 * 9 + 3 + 3
    QCOMPARE(play_coup(table, 8, table_rules())[PLAYER_4], qint64{180});
    QCOMPARE(table.credit(PLAYER_4), qint64{100 - 21 + 180});
}

void tst_evaluation::large_stakes_are_paid_in_full()
{
    game_table table;
    table.make_system_player(PLAYER_1);
    table.set_jeton(PLAYER_1, jetons::PL17, 1, 2000000000, debit::from_credit);
    table.set_jeton(PLAYER_1, jetons::DZ02, 1, 2000000000, debit::from_credit);
    QCOMPARE(play_coup(table, 17, table_rules())[PLAYER_1], qint64{78000000000});
    QCOMPARE(table.credit(PLAYER_1), qint64{74000000000});
}

void tst_evaluation::a_number_without_a_record_changes_nothing()
{
    for (const int number : {-1, 38, 99}) {
        game_table table = table_with_credit(10);
        table.set_jeton(PLAYER_1, jetons::EC03, 1, 1, debit::from_credit);
        QCOMPARE(table.evaluate(property_of(number), table_rules()), player_sums{});
        QCOMPARE(table.count(PLAYER_1, jetons::EC03), 1);
        QCOMPARE(table.seeded(PLAYER_1), qint64{1});
    }
}

void tst_evaluation::the_even_chances_go_through_prison_data()
{
    // Pieces set on red before each coup, the numbers, and what each coup leaves behind: score,
    // pieces on red, prison. 36 is red, 35 is black, 37 the double zero.
    QTest::addColumn<QList<int>>("bets");
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QStringList>("outcomes");
    using list = QList<int>;
    using texts = QStringList;
    // clang-format off
    QTest::newRow("three pieces")         << list{3}          << list{0}
        << texts{"1 0 P"};
    QTest::newRow("two pieces")           << list{2}          << list{0}
        << texts{"1 0 -"};
    QTest::newRow("one piece")            << list{1}          << list{0}
        << texts{"0 0 P"};
    QTest::newRow("seven pieces")         << list{7}          << list{0}
        << texts{"3 0 P"};
    QTest::newRow("released")             << list{1, 0}       << list{0, 36}
        << texts{"0 0 P", "0 1 -"};
    QTest::newRow("released and wins")    << list{1, 0, 0}    << list{0, 36, 36}
        << texts{"0 0 P", "0 1 -", "2 0 -"};
    QTest::newRow("released and lost")    << list{1, 0, 0}    << list{0, 36, 35}
        << texts{"0 0 P", "0 1 -", "0 0 -"};
    QTest::newRow("released, zero again") << list{1, 0, 0}    << list{0, 36, 0}
        << texts{"0 0 P", "0 1 -", "0 0 P"};
    QTest::newRow("lost in prison")       << list{1, 0}       << list{0, 35}
        << texts{"0 0 P", "0 0 -"};
    QTest::newRow("double prison")        << list{1, 0}       << list{0, 0}
        << texts{"0 0 P", "0 0 D"};
    QTest::newRow("third zero")           << list{1, 0, 0}    << list{0, 0, 0}
        << texts{"0 0 P", "0 0 D", "0 0 -"};
    QTest::newRow("back to prison")       << list{1, 0, 0}    << list{0, 0, 36}
        << texts{"0 0 P", "0 0 D", "0 0 P"};
    QTest::newRow("all the way back")     << list{1, 0, 0, 0} << list{0, 0, 36, 36}
        << texts{"0 0 P", "0 0 D", "0 0 P", "0 1 -"};
    QTest::newRow("lost in double")       << list{1, 0, 0}    << list{0, 0, 35}
        << texts{"0 0 P", "0 0 D", "0 0 -"};
    QTest::newRow("down and up again")    << list{1, 0, 0, 0} << list{0, 0, 36, 0}
        << texts{"0 0 P", "0 0 D", "0 0 P", "0 0 D"};
    QTest::newRow("double zero")          << list{3, 0, 0}    << list{37, 37, 37}
        << texts{"1 0 P", "0 0 D", "0 0 -"};
    QTest::newRow("both zeros")           << list{1, 0, 0}    << list{37, 0, 36}
        << texts{"0 0 P", "0 0 D", "0 0 P"};
    QTest::newRow("two prisoners")        << list{1, 1, 0, 0} << list{0, 0, 36, 35}
        << texts{"0 0 P", "0 0 PD", "0 1 P", "0 0 -"};
    QTest::newRow("two prisoners, zero")  << list{1, 1, 0}    << list{0, 0, 0}
        << texts{"0 0 P", "0 0 PD", "0 0 D"};
    QTest::newRow("two prisoners, black") << list{1, 1, 0}    << list{0, 0, 35}
        << texts{"0 0 P", "0 0 PD", "0 0 -"};
    QTest::newRow("bet beside prisoner")  << list{1, 2}       << list{0, 36}
        << texts{"0 0 P", "4 1 -"};
    QTest::newRow("even bet at zero")     << list{1, 2}       << list{0, 0}
        << texts{"0 0 P", "1 0 D"};
    QTest::newRow("bet joins the freed")  << list{1, 0, 2}    << list{0, 36, 36}
        << texts{"0 0 P", "0 1 -", "6 0 -"};
    // clang-format on
}

void tst_evaluation::the_even_chances_go_through_prison()
{
    QFETCH(QList<int>, bets);
    QFETCH(QList<int>, numbers);
    QFETCH(QStringList, outcomes);
    const table_rules rules = rules_of(table_form::american, true, 0, true);
    game_table table = table_with_credit(100);
    QStringList met;
    for (int coup = 0; coup < numbers.size(); ++coup) {
        table.set_jeton(PLAYER_1, jetons::EC03, 1, bets.at(coup), debit::from_credit);
        const qint64 score = play_coup(table, numbers.at(coup), rules)[PLAYER_1];
        met.append(QString("%1 %2 %3")
                       .arg(score)
                       .arg(table.count(PLAYER_1, jetons::EC03))
                       .arg(prison_text(table, PLAYER_1, 2)));
        QCOMPARE(table.seeded(PLAYER_1), qint64{table.count(PLAYER_1, jetons::EC03)});
    }
    QCOMPARE(met, outcomes);
}

void tst_evaluation::every_even_chance_has_a_prison_of_its_own()
{
    game_table table = table_with_credit(100);
    for (int chance = 0; chance < 6; ++chance) {
        table.set_jeton(PLAYER_2, place(jetons::EC01 + chance), 1, chance + 1, debit::from_credit);
    }
    // 1 to 6 pieces: 0 + 1 + 1 + 2 + 2 + 3 return, the odd ones leave a piece in prison.
    QCOMPARE(play_coup(table, 0, table_rules())[PLAYER_2], qint64{9});
    const QVector<jetons::jeton_names> odd = {jetons::EC01, jetons::EC03, jetons::EC05};
    QCOMPARE(table.imprisoned(PLAYER_2), odd);
    QVERIFY(table.imprisoned(PLAYER_1).isEmpty());

    // 19 is red, odd and high: the pieces on red and odd come back, the one on low is lost.
    QCOMPARE(play_coup(table, 19, table_rules())[PLAYER_2], qint64{0});
    QVERIFY(table.imprisoned(PLAYER_2).isEmpty());
    const QVector<jeton_info> back = table.jetons_of(PLAYER_2);
    QCOMPARE(back.size(), 2);
    QCOMPARE(back.at(0).jeton, jetons::EC03);
    QCOMPARE(back.at(1).jeton, jetons::EC05);
    QCOMPARE(table.seeded(PLAYER_2), qint64{2});
    QCOMPARE(table.credit(PLAYER_2), qint64{100 - 21 + 9});
}

void tst_evaluation::without_the_prison_rule_zero_takes_all()
{
    const table_rules rules = rules_of(table_form::french, true, 0, false);
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 3, debit::from_credit);
    QCOMPARE(play_coup(table, 0, rules)[PLAYER_1], qint64{0});
    QVERIFY(table.imprisoned(PLAYER_1).isEmpty());
    QVERIFY(!table.has_jetons(PLAYER_1));
    QCOMPARE(table.credit(PLAYER_1), qint64{97});
}

void tst_evaluation::without_the_prison_rule_prisoners_wait_for_another_number()
{
    table_rules rules;
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 1, debit::from_credit);
    play_coup(table, 0, rules);
    rules.prison = false;
    play_coup(table, 0, rules);
    QCOMPARE(prison_text(table, PLAYER_1, 2), QString("P"));
    play_coup(table, 36, rules);
    QCOMPARE(prison_text(table, PLAYER_1, 2), QString("-"));
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), 1);
}

void tst_evaluation::a_released_piece_has_the_value_of_the_rules_data()
{
    QTest::addColumn<int>("piece_value");
    QTest::addColumn<bool>("becomes_system");
    QTest::addColumn<qint64>("seeded");
    // The piece went to prison with a value of 5.
    // clang-format off
    QTest::newRow("unchanged")      << 5  << false << qint64{5};
    QTest::newRow("piece mode")     << 1  << false << qint64{1};
    QTest::newRow("larger pieces")  << 20 << false << qint64{20};
    QTest::newRow("a system plays") << 5  << true  << qint64{1};
    // clang-format on
}

void tst_evaluation::a_released_piece_has_the_value_of_the_rules()
{
    QFETCH(int, piece_value);
    QFETCH(bool, becomes_system);
    QFETCH(qint64, seeded);
    table_rules rules;
    rules.piece_value = 5;
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC03, 5, 3, debit::from_credit);
    QCOMPARE(play_coup(table, 0, rules)[PLAYER_1], qint64{5}); // one whole piece returns
    QCOMPARE(table.prison_of(PLAYER_1).value[2], 5);

    rules.piece_value = piece_value;
    if (becomes_system) table.make_system_player(PLAYER_1);
    evaluate_and_count(table, 36, rules);
    QCOMPARE(table.back_jetons().size(), std::size_t{1});
    QCOMPARE(table.back_jetons().front().player, PLAYER_1);
    QCOMPARE(table.back_jetons().front().jeton, jetons::EC03);
    QCOMPARE(table.back_jetons().front().count, 1);
    finish_coup(table, rules);
    QCOMPARE(table.seeded(PLAYER_1), seeded);
    QCOMPARE(table.credit(PLAYER_1), qint64{90});
    QVERIFY(table.back_jetons().empty());
}

void tst_evaluation::a_released_piece_joins_a_lying_jeton_at_its_value()
{
    const table_rules rules = rules_of(table_form::french, false, 0, true);
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 1, debit::from_credit);
    play_coup(table, 0, rules);
    table.set_jeton(PLAYER_1, jetons::EC03, 5, 2, debit::from_credit);
    QCOMPARE(play_coup(table, 36, rules)[PLAYER_1], qint64{10});
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), 3);
    QCOMPARE(table.seeded(PLAYER_1), qint64{15});
}

void tst_evaluation::a_released_piece_needs_no_credit()
{
    game_table table = table_with_credit(1);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 1, debit::from_credit);
    play_coup(table, 0, table_rules());
    QCOMPARE(table.credit(PLAYER_1), qint64{0});
    play_coup(table, 36, table_rules());
    QCOMPARE(table.credit(PLAYER_1), qint64{0});
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), 1);
    QCOMPARE(table.seeded(PLAYER_1), qint64{1});
}

void tst_evaluation::replay_pays_the_bet_again_data()
{
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<int>("pieces");
    QTest::addColumn<qint64>("seeded");
    QTest::addColumn<qint64>("credit");
    using list = QList<int>;
    // Two pieces of 5 lie on red, 90 are left.
    // clang-format off
    QTest::newRow("won, joins")         << true  << list{36}         << 2 << qint64{10} << qint64{100};
    QTest::newRow("lost, joins")        << true  << list{35}         << 2 << qint64{10} << qint64{80};
    QTest::newRow("won twice, joins")   << true  << list{36, 36}     << 2 << qint64{10} << qint64{110};
    // The paid jeton stays and the repeated bet joins it.
    QTest::newRow("won, stays")         << false << list{36}         << 4 << qint64{20} << qint64{90};
    QTest::newRow("lost, stays")        << false << list{35}         << 2 << qint64{10} << qint64{80};
    QTest::newRow("won twice, stays")   << false << list{36, 36}     << 8 << qint64{40} << qint64{90};
    QTest::newRow("won and lost, stays") << false << list{36, 35}    << 4 << qint64{20} << qint64{70};
    // An even bet at zero: one piece returns.
    QTest::newRow("zero, joins")        << true  << list{0}          << 2 << qint64{10} << qint64{85};
    // clang-format on
}

void tst_evaluation::replay_pays_the_bet_again()
{
    QFETCH(bool, stake_joins_win);
    QFETCH(QList<int>, numbers);
    QFETCH(int, pieces);
    QFETCH(qint64, seeded);
    QFETCH(qint64, credit);
    const table_rules rules = rules_of(table_form::french, stake_joins_win, 0, true);
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC03, 5, 2, debit::from_credit);
    table.set_replay(PLAYER_1, true);
    for (const int number : numbers)
        play_coup(table, number, rules);
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), pieces);
    QCOMPARE(table.seeded(PLAYER_1), seeded);
    QCOMPARE(table.credit(PLAYER_1), credit);
    QVERIFY(table.account_of(PLAYER_1).replay);
}

void tst_evaluation::a_replay_that_is_switched_in_mid_coup_acts_from_the_next_one()
{
    const table_rules rules;
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC04, 1, 2, debit::from_credit);
    table.set_jeton(PLAYER_2, jetons::EC04, 1, 2, debit::from_credit);
    table.set_replay(PLAYER_2, true);
    evaluate_and_count(table, 36, rules); // black is lost
    table.set_replay(PLAYER_1, true);
    table.set_replay(PLAYER_2, false);
    finish_coup(table, rules);
    QVERIFY(!table.has_jetons(PLAYER_1));
    QCOMPARE(table.credit(PLAYER_1), qint64{98}); // nothing is debited for jetons that are gone
    QCOMPARE(table.seeded(PLAYER_1), qint64{0});
    QCOMPARE(table.count(PLAYER_2, jetons::EC04), 2);
    QCOMPARE(table.credit(PLAYER_2), qint64{96}); // what lies is paid
    QCOMPARE(table.seeded(PLAYER_2), qint64{2});

    table.set_jeton(PLAYER_1, jetons::EC04, 1, 3, debit::from_credit);
    play_coup(table, 36, rules);
    QCOMPARE(table.count(PLAYER_1, jetons::EC04), 3);
    QCOMPARE(table.credit(PLAYER_1), qint64{92});
    QVERIFY(!table.has_jetons(PLAYER_2));
    QCOMPARE(table.credit(PLAYER_2), qint64{96});
}

void tst_evaluation::without_replay_the_last_bet_is_forgotten()
{
    game_table table = table_with_credit(100);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 2, debit::from_credit);
    play_coup(table, 35, table_rules());
    table.set_replay(PLAYER_1, true);
    table.evaluate(property_of(35), table_rules()); // a number without closed bets before it
    finish_coup(table, table_rules());
    QCOMPARE(table.credit(PLAYER_1), qint64{98});
    QCOMPARE(table.seeded(PLAYER_1), qint64{0});
}

void tst_evaluation::a_replay_that_does_not_fit_the_credit_ends_data()
{
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<qint64>("credit");
    QTest::addColumn<bool>("goes_on");
    // Two pieces are lost: as many must be left.
    // clang-format off
    QTest::newRow("just enough, joins")    << true  << qint64{4} << true;
    QTest::newRow("one too little, joins") << true  << qint64{3} << false;
    QTest::newRow("just enough, stays")    << false << qint64{4} << true;
    QTest::newRow("one too little, stays") << false << qint64{3} << false;
    // clang-format on
}

void tst_evaluation::a_replay_that_does_not_fit_the_credit_ends()
{
    QFETCH(bool, stake_joins_win);
    QFETCH(qint64, credit);
    QFETCH(bool, goes_on);
    const table_rules rules = rules_of(table_form::french, stake_joins_win, 0, true);
    game_table table = table_with_credit(credit);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 2, debit::from_credit);
    table.set_replay(PLAYER_1, true);
    play_coup(table, 35, rules);
    QCOMPARE(table.account_of(PLAYER_1).replay, goes_on);
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), goes_on ? 2 : 0);
    QCOMPARE(table.seeded(PLAYER_1), qint64{goes_on ? 2 : 0});
    QCOMPARE(table.credit(PLAYER_1), goes_on ? credit - 4 : credit - 2);

    // The bet is forgotten: with money again nothing comes back by itself.
    if (goes_on) return;
    table.add_credit(PLAYER_1, 100);
    table.set_replay(PLAYER_1, true);
    table.checks_replay();
    play_coup(table, 35, rules);
    QVERIFY(!table.has_jetons(PLAYER_1));
    QCOMPARE(table.credit(PLAYER_1), credit - 2 + 100);
}

void tst_evaluation::an_unpaid_replay_leaves_what_is_paid()
{
    // A winner that stays is paid, its repetition and the lost jeton are not.
    const table_rules stays = rules_of(table_form::french, false, 0, true);
    game_table table = table_with_credit(4);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, 2, debit::from_credit);
    table.set_jeton(PLAYER_1, jetons::EC01, 1, 2, debit::from_credit);
    table.set_replay(PLAYER_1, true);
    play_coup(table, 19, stays);
    QVERIFY(!table.account_of(PLAYER_1).replay);
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), 2);
    QVERIFY(!table.lies(PLAYER_1, jetons::EC01));
    QCOMPARE(table.seeded(PLAYER_1), qint64{2});
    QCOMPARE(table.credit(PLAYER_1), qint64{2});

    // So is a piece that comes out of prison. Credit: 10 - 1, 0 at zero, - 1 for the repeated
    // piece, - 7, + 2 for red: 3, which does not pay 8.
    game_table prison_table = table_with_credit(10);
    prison_table.set_jeton(PLAYER_1, jetons::EC03, 1, 1, debit::from_credit);
    prison_table.set_replay(PLAYER_1, true);
    play_coup(prison_table, 0, table_rules());
    prison_table.set_jeton(PLAYER_1, jetons::PL01, 1, 7, debit::from_credit);
    play_coup(prison_table, 36, table_rules());
    QVERIFY(!prison_table.account_of(PLAYER_1).replay);
    QCOMPARE(prison_table.count(PLAYER_1, jetons::EC03), 1);
    QVERIFY(!prison_table.lies(PLAYER_1, jetons::PL01));
    QCOMPARE(prison_table.seeded(PLAYER_1), qint64{1});
    QCOMPARE(prison_table.credit(PLAYER_1), qint64{3});
}

void tst_evaluation::pieces_that_do_not_fit_are_not_repeated()
{
    constexpr int largest_count = std::numeric_limits<int>::max();
    const table_rules stays = rules_of(table_form::french, false, 0, true);
    game_table table = table_with_credit(3LL * largest_count);
    table.set_jeton(PLAYER_1, jetons::EC03, 1, largest_count - 4, debit::from_credit);
    table.set_replay(PLAYER_1, true);
    play_coup(table, 36, stays); // the stake is won once and four more pieces fit
    QCOMPARE(table.count(PLAYER_1, jetons::EC03), largest_count);
    QCOMPARE(table.seeded(PLAYER_1), qint64{largest_count});
    QCOMPARE(table.credit(PLAYER_1), 3LL * largest_count - 4);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_evaluation>(argc, argv);
}

#include "tst_evaluation.moc"
