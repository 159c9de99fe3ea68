#include "number_records.h"
#include "statistic_data.h"
#include "test_box.h"

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// What the store counts, tells and forgets, slot by slot.
class tst_statistic_data : public QObject
{
    Q_OBJECT

private slots:
    void the_stakes_go_to_their_players();
    void a_counted_coup_is_told_once_and_can_be_read_at_once();
    void a_start_credit_is_told();
    void a_score_without_a_stake_is_not_told();
    void a_reset_empties_the_store();
    void no_player_is_passed_over();

    void before_the_first_coup_all_counters_are_0();
    void the_first_coup_behind_a_reset_is_17();
    void a_zero_hits_no_even_chance_no_dozen_and_no_column();
    void a_zero_ends_the_runs_of_chances_but_not_of_announcements();
    void a_long_run_that_a_zero_ends_is_counted_data();
    void a_long_run_that_a_zero_ends_is_counted();
    void figures_go_on_across_a_zero();
    void numbers_follow_numbers();
    void a_mark_of_a_hand_change_is_no_coup();
    void a_property_that_is_not_valid_is_passed_over_data();
    void a_property_that_is_not_valid_is_passed_over();
    void the_double_zero_belongs_to_no_sector_data();
    void the_double_zero_belongs_to_no_sector();
    void runs_of_sectors_stand_still_on_the_american_table();
    void bets_without_runs_have_none();
    void what_is_no_number_has_no_follow_row();
    void a_course_can_be_read_from_any_entry();
    void a_reset_in_the_middle_forgets_what_was_going_on();
    void the_count_of_a_history_load_is_kept_until_the_reset();
    void signals_come_in_order_behind_a_coup_that_is_shown();
    void only_the_last_coup_of_a_load_is_told();
    void whoever_is_told_may_read_everything();
};

namespace
{

void play(statistic_data& store, const QList<int>& numbers)
{
    for (const int number : numbers)
        store.addtoStat(property_of(number), false);
}

/// The places of a list with a value, from 1 on.
QList<int> places_of(const QList<int>& values, int value)
{
    QList<int> places;
    for (int i = 0; i < values.size(); ++i) {
        if (values.at(i) == value) places.append(i + 1);
    }
    return places;
}

/// The counted runs of a chance, without the empty end: runs of 1, of 2 ...
template <typename chance_type>
QList<int> runs(const statistic_data& store, chance_type chance)
{
    QList<int> lengths = store.run_lengths(chance);
    while (!lengths.isEmpty() && lengths.last() == 0)
        lengths.removeLast();
    return lengths;
}

/// How often a figure of a pair has occurred.
int figure_count(const statistic_data& store, int pair, const QString& figure)
{
    for (const muster_figure_set& set : store.pattern_figures(pair).sets) {
        for (const muster_figure& each : set.all_figures()) {
            if (each.figure == figure) return each.count;
        }
    }
    return -1;
}

int figures_counted(const statistic_data& store, int pair)
{
    int sum = 0;
    for (const muster_figure_set& set : store.pattern_figures(pair).sets) {
        for (const muster_figure& figure : set.all_figures())
            sum += figure.count;
    }
    return sum;
}

QList<int> all_counters(const statistic_data& store, bool since)
{
    return store.zero_numbers(since) + store.numbers(since) + store.splits(since) +
           store.streets(since) + store.six_lines(since) + store.simple_chances(since) +
           store.corners(since) + store.columns_and_dozens(since) + store.finals(since) +
           store.sectors(since) + store.one_neighbour_bets(since) +
           store.two_neighbour_bets(since) + store.three_neighbour_bets(since);
}

// 2 + 36 + 63 + 16 + 11 + 6 + 23 + 6 chances, 10 + 5 + 3 * 38 announcements
constexpr int counter_count = 163 + 129;

/// The sum of all that the store tells: reads every getter.
int sum_of_everything(const statistic_data& store)
{
    int sum = store.coup_count() + store.history_coup_count();
    for (const bool since : {false, true}) {
        for (const int value : all_counters(store, since))
            sum += value;
    }
    for (const int value :
         store.follow_row(17) + store.run_lengths(jetons::EC01) + store.run_lengths(jetons::GS)) {
        sum += value;
    }
    sum += store.colour_course(colour_course_index::dozens).size();
    sum += store.colours_from(colour_course_index::columns, 0).size();
    sum += figures_counted(store, 0);
    sum += store.hot_and_cold(4).hot.size();
    sum += static_cast<int>(store.status_of(PLAYER_1).coups);
    sum += store.seeded_course(PLAYER_1).size() + store.score_course(PLAYER_1).size() +
           store.credit_course(PLAYER_1).size();
    return sum;
}

} // namespace

void tst_statistic_data::the_stakes_go_to_their_players()
{
    statistic_data store;
    store.addSeededToPlayerStat(1, 20, 300, 4000000000);
    QCOMPARE(store.status_of(PLAYER_1).last_seeded, qint64{1});
    QCOMPARE(store.status_of(PLAYER_2).last_seeded, qint64{20});
    QCOMPARE(store.status_of(PLAYER_3).last_seeded, qint64{300});
    QCOMPARE(store.status_of(PLAYER_4).last_seeded, qint64{4000000000});
    QCOMPARE(store.seeded_course(PLAYER_2), QList<qint64>{20});
}

void tst_statistic_data::a_counted_coup_is_told_once_and_can_be_read_at_once()
{
    statistic_data store;
    QList<player_names> told;
    QList<qint64> credits_read;
    connect(&store, &statistic_data::player_statistic_updated, this, [&](player_names player) {
        told.append(player);
        credits_read.append(store.status_of(player).last_credit);
    });
    store.addSeededToPlayerStat(5, 0, 0, 7);
    QVERIFY(told.isEmpty());
    store.addScoreToPlayerStat(PLAYER_4, 0, 93);
    store.addScoreToPlayerStat(PLAYER_1, 10, 105);
    QCOMPARE(told, (QList<player_names>{PLAYER_4, PLAYER_1}));
    QCOMPARE(credits_read, (QList<qint64>{93, 105}));
    QCOMPARE(store.score_course(PLAYER_1), QList<qint64>{10});
    QCOMPARE(store.credit_course(PLAYER_1), QList<qint64>{105});
    QCOMPARE(store.status_of(PLAYER_4).minus_coups, 1);
}

void tst_statistic_data::a_start_credit_is_told()
{
    statistic_data store;
    QList<qint64> read;
    connect(&store, &statistic_data::player_statistic_updated, this, [&](player_names player) {
        read.append(store.status_of(player).start_credit);
    });
    store.addStartCreditToPlayerStat(PLAYER_2, 4000000000);
    QCOMPARE(read, QList<qint64>{4000000000});
    QCOMPARE(store.status_of(PLAYER_2).coups, qint64{0});
}

void tst_statistic_data::a_score_without_a_stake_is_not_told()
{
    statistic_data store;
    int told = 0;
    connect(&store, &statistic_data::player_statistic_updated, this, [&] { ++told; });
    store.addScoreToPlayerStat(PLAYER_1, 10, 105);
    QCOMPARE(told, 0);
    QVERIFY(store.credit_course(PLAYER_1).isEmpty());
}

void tst_statistic_data::a_reset_empties_the_store()
{
    statistic_data store;
    store.addStartCreditToPlayerStat(PLAYER_1, 100);
    store.addSeededToPlayerStat(5, 5, 5, 5);
    store.addScoreToPlayerStat(PLAYER_1, 10, 105);
    store.resetStatisticStorage();
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        QCOMPARE(store.status_of(player).coups, qint64{0});
        QCOMPARE(store.status_of(player).start_credit, qint64{0});
        QVERIFY(store.seeded_course(player).isEmpty());
        QVERIFY(store.credit_course(player).isEmpty());
    }
}

void tst_statistic_data::no_player_is_passed_over()
{
    statistic_data store;
    int told = 0;
    connect(&store, &statistic_data::player_statistic_updated, this, [&] { ++told; });
    store.addStartCreditToPlayerStat(general_player::NO_PLAYER, 100);
    store.addSeededToPlayerStat(1, 1, 1, 1);
    store.addScoreToPlayerStat(general_player::NO_PLAYER, 10, 105);
    QCOMPARE(told, 0);
    const player_status status = store.status_of(general_player::NO_PLAYER);
    QCOMPARE(status.coups, qint64{0});
    QCOMPARE(status.start_credit, qint64{0});
    QVERIFY(store.seeded_course(general_player::NO_PLAYER).isEmpty());
    QVERIFY(store.score_course(general_player::NO_PLAYER).isEmpty());
    QVERIFY(store.credit_course(general_player::NO_PLAYER).isEmpty());
    QVERIFY(store.score_course(PLAYER_4).isEmpty());
}

void tst_statistic_data::before_the_first_coup_all_counters_are_0()
{
    const statistic_data store;
    QCOMPARE(store.coup_count(), 0);
    for (const bool since : {false, true}) {
        const QList<int> values = all_counters(store, since);
        QCOMPARE(values.size(), counter_count);
        QCOMPARE(values.count(0), counter_count);
    }
}

void tst_statistic_data::the_first_coup_behind_a_reset_is_17()
{
    statistic_data store;
    play(store, {17, 4, 0});
    store.resetStatisticStorage();
    play(store, {17}); // low, black, odd; second dozen, second column; in the street 16 to 18

    QCOMPARE(store.coup_count(), 1);
    QCOMPARE(store.zero_numbers(false), (QList<int>{0, 0}));
    QCOMPARE(store.zero_numbers(true), (QList<int>{1, 1}));
    struct expected_hits {
        QList<int> (statistic_data::*read)(bool) const;
        QList<int> places; // of the bets that hit, from 1 on
    };
    const QList<expected_hits> all_expected = {
        // clang-format off
        {&statistic_data::numbers,              {17}},
        {&statistic_data::splits,               {17, 20, 47, 48}}, // 14/17 17/20 16/17 17/18
        {&statistic_data::streets,              {8}},
        {&statistic_data::six_lines,            {5, 6}},           // 13 to 18, 16 to 21
        {&statistic_data::simple_chances,       {1, 4, 5}},
        {&statistic_data::corners,              {10, 11, 12, 13}}, // 13-17 14-18 16-20 17-21
        {&statistic_data::columns_and_dozens,   {2, 5}},
        {&statistic_data::finals,               {8}},              // finale 7
        {&statistic_data::sectors,              {3, 4}},           // OR and OP
        {&statistic_data::one_neighbour_bets,   {18, 26, 35}},     // around 17 25 34
        {&statistic_data::two_neighbour_bets,   {3, 7, 18, 26, 35}},         // and 2 6
        {&statistic_data::three_neighbour_bets, {3, 7, 18, 22, 26, 28, 35}}, // and 21 27
        // clang-format on
    };
    for (const expected_hits& expected : all_expected) {
        const QList<int> hits = (store.*expected.read)(false);
        QCOMPARE(places_of(hits, 1), expected.places);
        QCOMPARE(hits.count(0), hits.size() - expected.places.size());
        const QList<int> since = (store.*expected.read)(true);
        QCOMPARE(places_of(since, 0), expected.places);
        QCOMPARE(since.count(1), since.size() - expected.places.size());
    }
}

void tst_statistic_data::a_zero_hits_no_even_chance_no_dozen_and_no_column()
{
    statistic_data store;
    play(store, {17, 0, 0});
    QCOMPARE(store.zero_numbers(false), (QList<int>{2, 0}));
    QCOMPARE(store.zero_numbers(true), (QList<int>{0, 3}));
    QCOMPARE(store.simple_chances(false), (QList<int>{1, 0, 0, 1, 1, 0}));
    QCOMPARE(store.simple_chances(true), (QList<int>{2, 3, 3, 2, 2, 3}));
    QCOMPARE(store.columns_and_dozens(false), (QList<int>{0, 1, 0, 0, 1, 0}));
    QCOMPARE(store.columns_and_dozens(true), (QList<int>{3, 2, 3, 3, 2, 3}));
    QCOMPARE(store.colour_course(colour_course_index::low_high),
             QList<Qt::GlobalColor>{Qt::darkYellow});
    QCOMPARE(store.colour_course(colour_course_index::even_odd), QList<Qt::GlobalColor>{Qt::cyan});
    QCOMPARE(store.colour_course(colour_course_index::red_black),
             QList<Qt::GlobalColor>{Qt::black});
    QCOMPARE(store.colour_course(colour_course_index::dozens), QList<Qt::GlobalColor>{Qt::cyan});
    QCOMPARE(store.colour_course(colour_course_index::columns), QList<Qt::GlobalColor>{Qt::cyan});
}

void tst_statistic_data::a_zero_ends_the_runs_of_chances_but_not_of_announcements()
{
    statistic_data store;
    play(store, {20, 10, 10}); // even, black; a run of finale 0
    for (const auto chance : {jetons::EC02, jetons::EC04, jetons::DZ01, jetons::KL01})
        QCOMPARE(runs(store, chance), QList<int>{});
    play(store, {0}); // finale 0 too
    QCOMPARE(runs(store, jetons::EC06), QList<int>{1});
    QCOMPARE(runs(store, jetons::EC01), (QList<int>{0, 1}));
    QCOMPARE(runs(store, jetons::EC02), (QList<int>{0, 0, 1}));
    QCOMPARE(runs(store, jetons::EC04), (QList<int>{0, 0, 1}));
    QCOMPARE(runs(store, jetons::DZ02), QList<int>{1});
    QCOMPARE(runs(store, jetons::DZ01), (QList<int>{0, 1}));
    QCOMPARE(runs(store, jetons::KL02), QList<int>{1});
    QCOMPARE(runs(store, jetons::KL01), (QList<int>{0, 1}));

    // Sectors: 20 orphans, 10 10 small series, 0 and 4 big series, 8 small series again.
    QCOMPARE(runs(store, jetons::FI00), QList<int>{});
    play(store, {4, 8});
    QCOMPARE(runs(store, jetons::FI00), (QList<int>{0, 0, 0, 1}));
    QCOMPARE(runs(store, jetons::OR), QList<int>{1});
    QCOMPARE(runs(store, jetons::KS), (QList<int>{0, 1}));
    QCOMPARE(runs(store, jetons::GS), (QList<int>{0, 1}));
}

void tst_statistic_data::a_long_run_that_a_zero_ends_is_counted_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("entries"); // of the histogram of the run, from length 1 on
    // clang-format off
    QTest::newRow("longest that fits")   << 19 << 19;
    QTest::newRow("first that does not") << 20 << 29;
    QTest::newRow("one more")            << 21 << 30;
    QTest::newRow("far beyond")          << 45 << 54;
    // clang-format on
}

void tst_statistic_data::a_long_run_that_a_zero_ends_is_counted()
{
    QFETCH(int, length);
    QFETCH(int, entries);
    statistic_data store;
    for (int coup = 0; coup < length; ++coup)
        play(store, {1});
    play(store, {0});
    for (const auto chance :
         {jetons::EC01, jetons::EC03, jetons::EC05, jetons::DZ01, jetons::KL01}) {
        const QList<int> histogram = store.run_lengths(chance);
        QCOMPARE(histogram.size(), entries);
        QCOMPARE(places_of(histogram, 1), QList<int>{length});
        QCOMPARE(histogram.count(0), entries - 1);
    }
    QCOMPARE(store.run_lengths(jetons::EC06).size(), 19);
    QCOMPARE(store.run_lengths(jetons::EC06).count(0), 19);
}

void tst_statistic_data::figures_go_on_across_a_zero()
{
    statistic_data store;
    play(store, {1, 0, 3}); // red, zero, red: low and odd both times
    for (int pair = 0; pair < statistic_data::pair_count; ++pair)
        QCOMPARE(figures_counted(store, pair), 1);
    QCOMPARE(figure_count(store, 0, "0,0"), 1);
    QCOMPARE(figure_count(store, 1, "1,1"), 1);
    QCOMPARE(figure_count(store, 2, "0,0"), 1);

    play(store, {20, 0, 8}); // high, then low; even; black
    QCOMPARE(figure_count(store, 0, "0,0,1,0"), 1);
    QCOMPARE(figure_count(store, 1, "1,1,0,0"), 1);
    QCOMPARE(figure_count(store, 2, "0,0,1,1"), 1);
    for (int pair = 0; pair < statistic_data::pair_count; ++pair)
        QCOMPARE(figures_counted(store, pair), 3 + 2 + 1);
}

void tst_statistic_data::numbers_follow_numbers()
{
    statistic_data store;
    play(store, {17, 0, 17, 17, 36, 17, 0});
    QList<int> behind_17 = QVector<int>(38, 0).toList();
    behind_17[0] = 2;
    behind_17[17] = 1;
    behind_17[36] = 1;
    QList<int> behind_0_and_36 = QVector<int>(38, 0).toList();
    behind_0_and_36[17] = 1;
    QCOMPARE(store.follow_row(17), behind_17);
    QCOMPARE(store.follow_row(0), behind_0_and_36);
    QCOMPARE(store.follow_row(36), behind_0_and_36);
    QCOMPARE(store.follow_row(37).count(0), 38);
    QCOMPARE(store.follow_row(1).count(0), 38);
}

void tst_statistic_data::a_mark_of_a_hand_change_is_no_coup()
{
    statistic_data store;
    play(store, {17, number_code::hand_change, 5, number_code::no_number, 5});
    QCOMPARE(store.coup_count(), 3);
    QCOMPARE(store.follow_row(17).at(5), 1);
    QCOMPARE(store.follow_row(5).at(5), 1);
    play(store, {0});
    QCOMPARE(runs(store, jetons::EC05), (QList<int>{0, 0, 1})); // 17 5 5, unbroken
}

void tst_statistic_data::a_property_that_is_not_valid_is_passed_over_data()
{
    QTest::addColumn<number_hit_property>("property");
    number_hit_property not_valid = property_of(17);
    not_valid.valid = 0;
    QTest::newRow("number without validity") << not_valid;
    constexpr int far_off = 1000000;
    QTest::newRow("fields of no meaning")
        << number_hit_property{far_off,
                               {far_off, -far_off, far_off},
                               far_off,
                               -1,
                               {far_off, far_off, far_off, far_off, -far_off},
                               {far_off, far_off},
                               {far_off, far_off, far_off, far_off},
                               {far_off, far_off, far_off, far_off, far_off},
                               0};
    for (const int number : {-1, 38, 99, far_off}) {
        number_hit_property no_number = property_of(17);
        no_number.number = number;
        QTest::addRow("valid, but number %d", number) << no_number;
    }
}

void tst_statistic_data::a_property_that_is_not_valid_is_passed_over()
{
    QFETCH(number_hit_property, property);
    statistic_data store;
    int told = 0;
    connect(&store, &statistic_data::cup_counter_update, this, [&] { ++told; });
    connect(&store, &statistic_data::statistic_update_done, this, [&] { ++told; });
    connect(&store, &statistic_data::info_if_history_load_is_finish, this, [&] { ++told; });
    play(store, {17});
    store.addtoStat(property, true);
    QCOMPARE(told, 0);
    QCOMPARE(store.coup_count(), 1);
    QCOMPARE(store.numbers(false).count(0), 35);
    QCOMPARE(store.numbers(true).count(1), 35);
    QCOMPARE(store.follow_row(17).count(0), 38);
    QCOMPARE(store.colours_from(colour_course_index::dozens, 0).size(), 1);
}

void tst_statistic_data::the_double_zero_belongs_to_no_sector_data()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("French table, which has no such pocket") << false;
    QTest::newRow("American table") << true;
}

void tst_statistic_data::the_double_zero_belongs_to_no_sector()
{
    QFETCH(bool, american);
    statistic_data store;
    store.set_table_form(american ? table_form::american : table_form::french);
    play(store, {10, 37, 20, 5});
    QCOMPARE(store.zero_numbers(false), (QList<int>{0, 1}));
    QCOMPARE(store.zero_numbers(true), (QList<int>{4, 2}));
    QCOMPARE(runs(store, jetons::FI00), (QList<int>{0, 0, 1}));
    // Small series, nothing, orphans, small series: the run of the first ends at the orphans.
    QCOMPARE(store.sectors(false), (QList<int>{0, 2, 1, 1, 0}));
    QCOMPARE(runs(store, jetons::KS), american ? QList<int>{} : QList<int>{1});
    QCOMPARE(runs(store, jetons::OR), american ? QList<int>{} : QList<int>{1});
    QCOMPARE(runs(store, jetons::EC01), QList<int>{1}); // 10, ended by the double zero
    // Around the double zero lie 36 13 1 and 27 10 25; on the French wheel it is not at all.
    QCOMPARE(store.three_neighbour_bets(false).at(37), american ? 2 : 0);
}

void tst_statistic_data::runs_of_sectors_stand_still_on_the_american_table()
{
    statistic_data store;
    play(store, {19}); // big series
    store.set_table_form(table_form::american);
    play(store, {5, 17}); // small series, orphans
    QCOMPARE(store.sectors(false), (QList<int>{1, 1, 1, 1, 0}));
    for (const auto sector : {jetons::GS, jetons::KS, jetons::OR})
        QCOMPARE(runs(store, sector), QList<int>{});
    store.set_table_form(table_form::french);
    play(store, {4, 5}); // big series, small series
    QCOMPARE(runs(store, jetons::GS), (QList<int>{0, 1}));
    QCOMPARE(runs(store, jetons::KS), QList<int>{});
}

void tst_statistic_data::bets_without_runs_have_none()
{
    statistic_data store;
    play(store, {17, 0, 17, 0});
    for (const auto chance : {jetons::PL17,
                              jetons::CH17,
                              jetons::TP08,
                              jetons::TS11,
                              jetons::CA01,
                              jetons::CA23,
                              jetons::LAST_JN,
                              jetons::NO_JETON,
                              jetons::PRIS_EC01}) {
        QCOMPARE(store.run_lengths(chance), QList<int>{});
    }
    for (const auto announcement : {jetons::OP,
                                    jetons::ZS,
                                    jetons::ENZNDN,
                                    jetons::EN17,
                                    jetons::DN37,
                                    jetons::NO_EXT_JETON}) {
        QCOMPARE(store.run_lengths(announcement), QList<int>{});
    }
}

void tst_statistic_data::what_is_no_number_has_no_follow_row()
{
    statistic_data store;
    play(store, {17, 17});
    for (const int number : {-1, 38, 99, 164})
        QCOMPARE(store.follow_row(number), QList<int>{});
}

void tst_statistic_data::a_course_can_be_read_from_any_entry()
{
    statistic_data store;
    play(store, {1, 2, 0, 3}); // red, black, nothing, red
    using colours = QVector<Qt::GlobalColor>;
    const auto from = [&](int first) {
        return store.colours_from(colour_course_index::red_black, first);
    };
    const colours all = {Qt::red, Qt::black, Qt::red};
    QCOMPARE(from(0), all);
    QCOMPARE(from(-5), all);
    QCOMPARE(from(1), (colours{Qt::black, Qt::red}));
    QCOMPARE(from(2), colours{Qt::red});
    QCOMPARE(from(3), colours{});
    QCOMPARE(from(1000000), colours{});
    QCOMPARE(store.colour_course(colour_course_index::red_black), all.toList());
}

void tst_statistic_data::a_reset_in_the_middle_forgets_what_was_going_on()
{
    statistic_data store;
    play(store, {1, 3}); // a run of red, odd, low, first dozen, open figures and finale 3
    store.resetStatisticStorage();
    QCOMPARE(store.coup_count(), 0);
    for (const bool since : {false, true})
        QCOMPARE(all_counters(store, since).count(0), counter_count);
    QCOMPARE(store.follow_row(1).count(0), 38);

    play(store, {2, 36, 13}); // black, red, black; even, even, odd
    QCOMPARE(store.coup_count(), 3);
    QCOMPARE(runs(store, jetons::EC03), QList<int>{1});
    QCOMPARE(runs(store, jetons::EC04), QList<int>{1});
    QCOMPARE(runs(store, jetons::EC05), QList<int>{});
    QCOMPARE(runs(store, jetons::EC02), (QList<int>{0, 1}));
    QCOMPARE(store.follow_row(3).count(0), 38);
    QCOMPARE(store.follow_row(2).at(36), 1);
    QCOMPARE(figures_counted(store, 2), 2 + 1);
    QCOMPARE(figure_count(store, 2, "1,0,1"), 1);
    QCOMPARE(store.colours_from(colour_course_index::red_black, 0).size(), 3);
    QCOMPARE(runs(store, jetons::DZ01), QList<int>{1}); // the 2 alone
    QCOMPARE(runs(store, jetons::KL01), QList<int>{});
    QCOMPARE(runs(store, jetons::KL03), QList<int>{1}); // the 36 alone
    QCOMPARE(runs(store, jetons::FI03), QList<int>{});
    QCOMPARE(runs(store, jetons::GS), QList<int>{1}); // the 2, not the 3 in front of it
    QCOMPARE(runs(store, jetons::OR), QList<int>{});
}

void tst_statistic_data::the_count_of_a_history_load_is_kept_until_the_reset()
{
    statistic_data store;
    QCOMPARE(store.history_coup_count(), 0);
    store.store_history_coup_count(1234);
    play(store, {1, 2});
    QCOMPARE(store.history_coup_count(), 1234);
    store.resetStatisticStorage();
    QCOMPARE(store.history_coup_count(), 0);
}

void tst_statistic_data::signals_come_in_order_behind_a_coup_that_is_shown()
{
    statistic_data store;
    QStringList told;
    connect(&store, &statistic_data::cup_counter_update, this, [&](int coups) {
        told.append(QString("coups %1").arg(coups));
    });
    connect(&store, &statistic_data::statistic_update_done, this, [&] { told.append("done"); });
    connect(&store, &statistic_data::info_if_history_load_is_finish, this, [&] {
        told.append("load");
    });
    store.addtoStat(property_of(17), true);
    store.addtoStat(property_of(0), true);
    QCOMPARE(told, (QStringList{"coups 1", "done", "load", "coups 2", "done", "load"}));
    store.resetStatisticStorage();
    QCOMPARE(told.size(), 6);
    store.addtoStat(property_of(0), true);
    QCOMPARE(told.mid(6), (QStringList{"coups 1", "done", "load"}));
}

void tst_statistic_data::only_the_last_coup_of_a_load_is_told()
{
    statistic_data store;
    QSignalSpy counter(&store, &statistic_data::cup_counter_update);
    QSignalSpy done(&store, &statistic_data::statistic_update_done);
    QSignalSpy load(&store, &statistic_data::info_if_history_load_is_finish);
    play(store, {1, 2, 3, 0});
    QCOMPARE(counter.count() + done.count() + load.count(), 0);
    store.addtoStat(property_of(5), true);
    QCOMPARE(counter.count(), 1);
    QCOMPARE(counter.first().first().toInt(), 5);
    QCOMPARE(done.count(), 1);
    QCOMPARE(load.count(), 1);
}

void tst_statistic_data::whoever_is_told_may_read_everything()
{
    statistic_data store;
    QList<int> sums;
    const auto read = [&] { sums.append(sum_of_everything(store)); };
    connect(&store, &statistic_data::cup_counter_update, this, read);
    connect(&store, &statistic_data::statistic_update_done, this, read);
    connect(&store, &statistic_data::info_if_history_load_is_finish, this, read);
    connect(&store, &statistic_data::player_statistic_updated, this, read);
    store.addtoStat(property_of(17), true);
    // The coup is counted to its end when the first is told.
    QCOMPARE(sums.size(), 3);
    QVERIFY(sums.first() > 0);
    QCOMPARE(sums.at(1), sums.first());
    QCOMPARE(sums.at(2), sums.first());
    store.addStartCreditToPlayerStat(PLAYER_1, 100);
    QCOMPARE(sums.at(3), sums.first());
    store.addSeededToPlayerStat(1, 1, 1, 1);
    store.addScoreToPlayerStat(PLAYER_1, 2, 101);
    QCOMPARE(sums.last(), sums.first() + 4); // one coup, one entry in each of three courses
    QCOMPARE(sums.last(), sum_of_everything(store));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_statistic_data>(argc, argv);
}

#include "tst_statistic_data.moc"
