#include "player_accounting.h"
#include "test_box.h"

#include <limits>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_names;

/// The figures of the players, coup by coup.
class tst_player_accounting : public QObject
{
    Q_OBJECT

private slots:
    void fresh_figures_are_empty();
    void a_coup_is_plus_minus_or_neither_data();
    void a_coup_is_plus_minus_or_neither();
    void coups_add_up_in_order();
    void a_stake_without_its_score_has_no_credit();
    void a_score_without_a_stake_is_dropped();
    void a_second_score_of_a_coup_is_dropped();
    void a_score_behind_the_stakes_is_not_judged();
    void the_credit_is_held_within_int_data();
    void the_credit_is_held_within_int();
    void amounts_beyond_32_bits_are_kept();
    void players_do_not_mix();
    void the_last_coup_alone_gives_the_same_status();
    void a_reset_empties_everything();
    void a_reset_in_mid_coup_drops_the_late_score();
};

namespace
{

void add_coup(
    player_accounting& figures, player_names player, qint64 seeded, qint64 score, qint64 credit)
{
    figures.add_seeded(player, seeded);
    QVERIFY(figures.add_score(player, score, credit));
}

} // namespace

void tst_player_accounting::fresh_figures_are_empty()
{
    const player_accounting figures;
    const player_status status = figures.status_of(PLAYER_3);
    QCOMPARE(status.coups, qint64{0});
    QCOMPARE(status.start_credit, qint64{0});
    QCOMPARE(status.last_seeded, qint64{0});
    QCOMPARE(status.last_score, qint64{0});
    QCOMPARE(status.last_credit, qint64{0});
    QCOMPARE(status.plus_coups, 0);
    QCOMPARE(status.minus_coups, 0);
    QVERIFY(!status.has_credit);
    QVERIFY(figures.credit_course(PLAYER_3).isEmpty());
}

void tst_player_accounting::a_coup_is_plus_minus_or_neither_data()
{
    QTest::addColumn<qint64>("seeded");
    QTest::addColumn<qint64>("score");
    QTest::addColumn<int>("plus");
    QTest::addColumn<int>("minus");
    // clang-format off
    QTest::newRow("more back than set")     << qint64{5} << qint64{6} << 1 << 0;
    QTest::newRow("less back than set")     << qint64{5} << qint64{4} << 0 << 1;
    QTest::newRow("all lost")               << qint64{5} << qint64{0} << 0 << 1;
    QTest::newRow("as much back as set")    << qint64{5} << qint64{5} << 1 << 0;
    QTest::newRow("nothing set")            << qint64{0} << qint64{0} << 0 << 0;
    QTest::newRow("score without a stake")  << qint64{0} << qint64{1} << 1 << 0;
    // clang-format on
}

void tst_player_accounting::a_coup_is_plus_minus_or_neither()
{
    QFETCH(qint64, seeded);
    QFETCH(qint64, score);
    QFETCH(int, plus);
    QFETCH(int, minus);
    player_accounting figures;
    add_coup(figures, PLAYER_2, seeded, score, 100);
    QCOMPARE(figures.status_of(PLAYER_2).plus_coups, plus);
    QCOMPARE(figures.status_of(PLAYER_2).minus_coups, minus);
}

void tst_player_accounting::coups_add_up_in_order()
{
    player_accounting figures;
    figures.set_start_credit(PLAYER_1, 100);
    add_coup(figures, PLAYER_1, 10, 20, 110);
    add_coup(figures, PLAYER_1, 5, 0, 105);
    add_coup(figures, PLAYER_1, 0, 0, 105);
    add_coup(figures, PLAYER_1, 7, 7, 105);
    const player_status status = figures.status_of(PLAYER_1);
    QCOMPARE(status.coups, qint64{4});
    QCOMPARE(status.start_credit, qint64{100});
    QCOMPARE(status.last_seeded, qint64{7});
    QCOMPARE(status.last_score, qint64{7});
    QCOMPARE(status.last_credit, qint64{105});
    QCOMPARE(status.plus_coups, 2);
    QCOMPARE(status.minus_coups, 1);
    QVERIFY(status.has_credit);
    QCOMPARE(figures.seeded_course(PLAYER_1), (QList<qint64>{10, 5, 0, 7}));
    QCOMPARE(figures.score_course(PLAYER_1), (QList<qint64>{20, 0, 0, 7}));
    QCOMPARE(figures.credit_course(PLAYER_1), (QList<qint64>{110, 105, 105, 105}));
}

void tst_player_accounting::a_stake_without_its_score_has_no_credit()
{
    player_accounting figures;
    add_coup(figures, PLAYER_1, 10, 20, 110);
    figures.add_seeded(PLAYER_1, 4);
    const player_status status = figures.status_of(PLAYER_1);
    QCOMPARE(status.coups, qint64{2});
    QCOMPARE(status.last_seeded, qint64{4});
    QCOMPARE(status.last_score, qint64{20});
    QCOMPARE(status.last_credit, qint64{110});
    QCOMPARE(status.plus_coups + status.minus_coups, 1);
}

void tst_player_accounting::a_score_without_a_stake_is_dropped()
{
    player_accounting figures;
    QVERIFY(!figures.add_score(PLAYER_1, 5, 105));
    QVERIFY(!figures.status_of(PLAYER_1).has_credit);
    QCOMPARE(figures.status_of(PLAYER_1).last_score, qint64{0});
    QVERIFY(figures.score_course(PLAYER_1).isEmpty());
    QVERIFY(figures.credit_course(PLAYER_1).isEmpty());
}

void tst_player_accounting::a_second_score_of_a_coup_is_dropped()
{
    player_accounting figures;
    add_coup(figures, PLAYER_1, 10, 20, 110);
    QVERIFY(!figures.add_score(PLAYER_1, 99, 999));
    QCOMPARE(figures.status_of(PLAYER_1).last_score, qint64{20});
    QCOMPARE(figures.status_of(PLAYER_1).last_credit, qint64{110});

    // The next coup is counted as if nothing had been.
    add_coup(figures, PLAYER_1, 10, 0, 100);
    QCOMPARE(figures.score_course(PLAYER_1), (QList<qint64>{20, 0}));
    QCOMPARE(figures.credit_course(PLAYER_1), (QList<qint64>{110, 100}));
    QCOMPARE(figures.status_of(PLAYER_1).minus_coups, 1);
}

void tst_player_accounting::a_score_behind_the_stakes_is_not_judged()
{
    player_accounting figures;
    figures.add_seeded(PLAYER_1, 10);
    figures.add_seeded(PLAYER_1, 20);
    QVERIFY(!figures.add_score(PLAYER_1, 15, 105));
    const player_status behind = figures.status_of(PLAYER_1);
    QCOMPARE(behind.last_score, qint64{15});
    QCOMPARE(behind.plus_coups + behind.minus_coups, 0);
    QVERIFY(figures.credit_course(PLAYER_1).isEmpty());

    // With the second score both courses are equally long: judged on the last values.
    QVERIFY(figures.add_score(PLAYER_1, 19, 104));
    QCOMPARE(figures.status_of(PLAYER_1).minus_coups, 1);
    QCOMPARE(figures.credit_course(PLAYER_1), QList<qint64>{104});
    QCOMPARE(figures.score_course(PLAYER_1), (QList<qint64>{15, 19}));
}

void tst_player_accounting::the_credit_is_held_within_int_data()
{
    QTest::addColumn<qint64>("credit");
    QTest::addColumn<qint64>("kept");
    constexpr qint64 highest = std::numeric_limits<int>::max();
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    // clang-format off
    QTest::newRow("highest")       << highest        << highest;
    QTest::newRow("above")         << highest + 1    << highest;
    QTest::newRow("far above")     << highest * 1000 << highest;
    QTest::newRow("debts")         << qint64{-7}     << qint64{-7};
    QTest::newRow("lowest")        << lowest         << lowest;
    QTest::newRow("below")         << lowest - 1     << lowest;
    // clang-format on
}

void tst_player_accounting::the_credit_is_held_within_int()
{
    QFETCH(qint64, credit);
    QFETCH(qint64, kept);
    player_accounting figures;
    add_coup(figures, PLAYER_1, 1, 0, credit);
    QCOMPARE(figures.status_of(PLAYER_1).last_credit, kept);
    QCOMPARE(figures.credit_course(PLAYER_1), QList<qint64>{kept});
}

void tst_player_accounting::amounts_beyond_32_bits_are_kept()
{
    player_accounting figures;
    figures.set_start_credit(PLAYER_1, 9000000000);
    add_coup(figures, PLAYER_1, 5000000000, 5000000001, 1);
    const player_status status = figures.status_of(PLAYER_1);
    QCOMPARE(status.start_credit, qint64{9000000000});
    QCOMPARE(status.last_seeded, qint64{5000000000});
    QCOMPARE(status.last_score, qint64{5000000001});
    QCOMPARE(status.plus_coups, 1);
}

void tst_player_accounting::players_do_not_mix()
{
    player_accounting figures;
    for (const player_names player : {PLAYER_1, PLAYER_2, PLAYER_3, PLAYER_4})
        figures.add_seeded(player, 10 * (player + 1));
    QVERIFY(figures.add_score(PLAYER_4, 4, 104)); // the panels finish in any order
    QVERIFY(figures.add_score(PLAYER_2, 2, 102));
    QCOMPARE(figures.status_of(PLAYER_1).last_seeded, qint64{10});
    QVERIFY(!figures.status_of(PLAYER_1).has_credit);
    QCOMPARE(figures.status_of(PLAYER_2).last_score, qint64{2});
    QCOMPARE(figures.status_of(PLAYER_4).last_credit, qint64{104});
    QCOMPARE(figures.status_of(PLAYER_4).last_seeded, qint64{40});
}

void tst_player_accounting::the_last_coup_alone_gives_the_same_status()
{
    player_accounting figures(course_keeping::last_coup);
    figures.set_start_credit(PLAYER_1, 100);
    add_coup(figures, PLAYER_1, 10, 20, 110);
    add_coup(figures, PLAYER_1, 5, 0, 105);
    QVERIFY(!figures.add_score(PLAYER_1, 1, 1));
    const player_status status = figures.status_of(PLAYER_1);
    QCOMPARE(status.coups, qint64{2});
    QCOMPARE(status.last_seeded, qint64{5});
    QCOMPARE(status.last_score, qint64{0});
    QCOMPARE(status.last_credit, qint64{105});
    QCOMPARE(status.plus_coups, 1);
    QCOMPARE(status.minus_coups, 1);
    QVERIFY(figures.seeded_course(PLAYER_1).isEmpty());
    QVERIFY(figures.score_course(PLAYER_1).isEmpty());
    QVERIFY(figures.credit_course(PLAYER_1).isEmpty());
}

void tst_player_accounting::a_reset_empties_everything()
{
    player_accounting figures;
    figures.set_start_credit(PLAYER_1, 100);
    add_coup(figures, PLAYER_1, 10, 20, 110);
    figures.reset();
    const player_status status = figures.status_of(PLAYER_1);
    QCOMPARE(status.coups, qint64{0});
    QCOMPARE(status.start_credit, qint64{0});
    QCOMPARE(status.plus_coups, 0);
    QVERIFY(!status.has_credit);
    QVERIFY(figures.seeded_course(PLAYER_1).isEmpty());
}

void tst_player_accounting::a_reset_in_mid_coup_drops_the_late_score()
{
    player_accounting figures;
    figures.add_seeded(PLAYER_1, 10);
    figures.reset();
    QVERIFY(!figures.add_score(PLAYER_1, 20, 110));
    add_coup(figures, PLAYER_1, 3, 0, 97);
    QCOMPARE(figures.seeded_course(PLAYER_1), QList<qint64>{3});
    QCOMPARE(figures.score_course(PLAYER_1), QList<qint64>{0});
    QCOMPARE(figures.credit_course(PLAYER_1), QList<qint64>{97});
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_player_accounting>(argc, argv);
}

#include "tst_player_accounting.moc"
