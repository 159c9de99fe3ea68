#include "desktop_bench.h"

using general_player::PLAYER_1;
using general_player::PLAYER_2;

/// Jetons as buttons: pressed, held, of another player; replay and prison over several coups.
class tst_jetons_on_the_table : public QObject
{
    Q_OBJECT

private slots:
    void left_adds_and_right_takes();
    void a_held_button_repeats();
    void another_players_jeton_adds_to_ones_own();
    void jetons_move_with_the_scale();
    void replay_with_the_stake_taken();
    void replay_with_the_stake_left();
    void replay_beyond_the_credit_ends();
    void prison_over_five_coups();
    void a_prison_picture_takes_no_click();
};

static QPushButton* jeton(const desktop_bench& bench, const char* name)
{
    return bench.window->findChild<QPushButton*>(QString::fromLatin1(name));
}

void tst_jetons_on_the_table::left_adds_and_right_takes()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::EC04);
    auto* button = jeton(bench, "jeton_1_EC04");
    QVERIFY(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC04), 3);
    QTest::mouseClick(button, Qt::RightButton);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC04), 2);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QTest::mouseClick(button, Qt::RightButton);
    QTest::mouseClick(button, Qt::RightButton); // the last piece
    bench.settle();
    QVERIFY(!bench.table().lies(PLAYER_1, jetons::EC04));
    QVERIFY(!jeton(bench, "jeton_1_EC04"));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
}

void tst_jetons_on_the_table::a_held_button_repeats()
{
    desktop_bench bench({QStringLiteral("s_start_jetons=4")});
    bench.trigger("actionStart");
    bench.click(jetons::PL10);
    auto* button = jeton(bench, "jeton_1_PL10");
    auto* timer = child_of<QTimer>(*button, QStringLiteral("increase_timer"));
    QCOMPARE(timer->interval(), 200);
    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL10), 2);
    for (int tick = 0; tick < 5; ++tick)
        fire(timer);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL10), 4); // the credit suffices for no more
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(0));
    QTest::mouseRelease(button, Qt::LeftButton);
    QVERIFY(!timer->isActive());

    auto* down = child_of<QTimer>(*button, QStringLiteral("decrease_timer"));
    QTest::mousePress(button, Qt::RightButton);
    fire(down);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL10), 2);
    fire(down);
    fire(down); // held beyond the last piece
    bench.settle();
    QVERIFY(!bench.table().lies(PLAYER_1, jetons::PL10));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(4));
}

void tst_jetons_on_the_table::another_players_jeton_adds_to_ones_own()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.table().make_active(PLAYER_2);
    bench.click(jetons::PL20);
    bench.table().make_active(PLAYER_1);
    QTest::mouseClick(jeton(bench, "jeton_2_PL20"), Qt::LeftButton);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL20), 1);
    QCOMPARE(bench.table().count(PLAYER_2, jetons::PL20), 1);
    QTest::mouseClick(jeton(bench, "jeton_2_PL20"), Qt::RightButton);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL20), 0);
    QCOMPARE(bench.table().count(PLAYER_2, jetons::PL20), 1);
}

void tst_jetons_on_the_table::jetons_move_with_the_scale()
{
    box_user user;
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL07);
    auto* button = jeton(bench, "jeton_1_PL07");
    QCOMPARE(button->pos(), QPoint(668, 31 + 334));
    QCOMPARE(button->size(), QSize(31, 31));
    // What the options do with a new scale; the credit is not what it was at the start.
    user.answer(QMessageBox::No);
    bench.settings().set_s_scr_res_factor(3);
    emit bench.settings().ini_parameter_changend();
    bench.settle();
    button = jeton(bench, "jeton_1_PL07");
    // 668 * 7 / 10; (365 - 30) * 7 / 10 + 30; 31 * 7 / 10
    QCOMPARE(button->pos(), QPoint(467, 264));
    QCOMPARE(button->size(), QSize(21, 21));
    QCOMPARE(user.unexpected(), 0);
}

void tst_jetons_on_the_table::replay_with_the_stake_taken()
{
    desktop_bench bench; // the stake joins the win, so the jeton must be paid anew
    bench.trigger("actionStart");
    bench.click(jetons::EC03);
    QTest::mouseClick(bench.child<QPushButton>("PB_replay"), Qt::LeftButton);
    QVERIFY(bench.table().account_of(PLAYER_1).replay);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
    bench.play(1); // red: 2 back, 1 set again
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1);
    bench.play(2); // black: lost, 1 set again
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1);
    bench.play(3); // red
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(1));
    QVERIFY(jeton(bench, "jeton_1_EC03"));
}

void tst_jetons_on_the_table::replay_with_the_stake_left()
{
    desktop_bench bench({QStringLiteral("s_jeton_to_win=false")});
    bench.trigger("actionStart");
    bench.click(jetons::EC03);
    QTest::mouseClick(bench.child<QPushButton>("PB_status_1"), Qt::LeftButton);
    QVERIFY(bench.child<QPushButton>("PB_replay")->isChecked());
    bench.play(1); // red: 1 won, the stake stays, and the bet of the coup lies on top of it
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 2);
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(2));
    bench.play(3); // red again: 2 won, 2 set on top
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 4);
    bench.play(2); // black: all lost, the bet of the coup is set again
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1995));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 4);
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(4));
}

void tst_jetons_on_the_table::replay_beyond_the_credit_ends()
{
    desktop_bench bench({QStringLiteral("s_start_jetons=3")});
    bench.trigger("actionStart");
    bench.click(jetons::PL01);
    bench.click(jetons::PL01);
    auto* replay = bench.child<QPushButton>("PB_replay");
    QTest::mouseClick(bench.child<QPushButton>("PB_status_1"), Qt::LeftButton);
    QVERIFY(replay->isChecked());
    bench.play(2); // lost: 1 left for a bet of 2
    QVERIFY(!replay->isChecked());
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1));
    QVERIFY(!jeton(bench, "jeton_1_PL01"));
}

void tst_jetons_on_the_table::prison_over_five_coups()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    const auto prison = [&] { return jeton(bench, "jeton_1_PRIS_EC03")->isVisible(); };
    const auto double_prison = [&] { return jeton(bench, "jeton_1_D_PRIS_EC03")->isVisible(); };
    for (int i = 0; i < 3; ++i)
        bench.click(jetons::EC03);
    bench.play(0); // one piece returns, one goes to prison, one is lost
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QVERIFY(prison());
    QVERIFY(!double_prison());
    bench.play(0);
    QVERIFY(!prison());
    QVERIFY(double_prison());
    bench.play(1); // red: back to prison
    QVERIFY(prison());
    QVERIFY(!double_prison());
    bench.play(3); // red: free, lies on red again without a win
    QVERIFY(!prison());
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QVERIFY(jeton(bench, "jeton_1_EC03"));
    bench.play(5); // red: it wins
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
}

void tst_jetons_on_the_table::a_prison_picture_takes_no_click()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::EC01);
    bench.play(0); // a single piece goes to prison
    auto* picture = jeton(bench, "jeton_1_PRIS_EC01");
    QVERIFY(picture->isVisible());
    QVERIFY(picture->testAttribute(Qt::WA_TransparentForMouseEvents));
    const QPoint middle = picture->geometry().center();
    QVERIFY(bench.window->childAt(middle) != picture);
    bench.press_table(middle - QPoint(0, base_y));
    QVERIFY(bench.table().prison_of(PLAYER_1).in_prison != 0);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_jetons_on_the_table>(argc, argv);
}
#include "tst_jetons_on_the_table.moc"
