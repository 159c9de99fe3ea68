#include "desktop_bench.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QPropertyAnimation>

using general_player::PLAYER_1;
using general_player::PLAYER_2;

/// What the user asked for arrives when the game has gone on meanwhile: under a box the bets close,
/// under a dialog the ball rests.
class tst_answers_that_come_late : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void the_capital_question_holds_the_betting_time();
    void the_capital_question_holds_a_ball_that_is_due();
    void the_table_form_of_a_coup_holds_to_its_end();
    void an_announcement_behind_the_last_tick_is_dropped();
    void a_manual_number_lost_by_a_stop_is_not_shown();
    void a_manual_number_chosen_for_later_outlives_a_stop();
    void a_double_zero_lost_with_its_table_is_not_shown();
    void a_jeton_of_another_player_takes_the_worth_of_ones_own();
    void the_wheel_is_rebuilt_under_the_dialog_it_opened();
    void a_second_window_begins_from_nothing();

private:
    static void land(const desktop_bench& bench);
    static void change_settings(const desktop_bench& bench)
    {
        emit bench.settings().ini_parameter_changend();
        bench.settle();
    }

    box_user user;
};

void tst_answers_that_come_late::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

/// Brings a running ball to its pocket.
void tst_answers_that_come_late::land(const desktop_bench& bench)
{
    const auto animations =
        bench.child<QGraphicsView>("GV_Wheel")->findChildren<QPropertyAnimation*>();
    for (QPropertyAnimation* animation : animations)
        animation->setCurrentTime(animation->duration());
    bench.settle();
}

void tst_answers_that_come_late::the_capital_question_holds_the_betting_time()
{
    desktop_bench bench({QStringLiteral("s_balkenzeit=10000")});
    bench.trigger("actionStart");
    bench.click(jetons::PL04);
    game_state under_the_box = game_state::stopped;
    user.answer(QMessageBox::Yes);
    QMetaObject::invokeMethod(
        bench.window.get(),
        [&] {
            under_the_box = bench.settings().state();
            for (int i = 0; i < 400; ++i)
                fire(bench.child<QTimer>("update_timer"));
        },
        Qt::QueuedConnection);
    change_settings(bench);
    QCOMPARE(under_the_box, game_state::paused);
    QCOMPARE(bench.settings().state(), game_state::running);
    QVERIFY(bench.table().all_may_set());
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
}

void tst_answers_that_come_late::the_capital_question_holds_a_ball_that_is_due()
{
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    bench.click(jetons::PL04);
    bench.numbers().set_manual_number(4);
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::RightButton);
    user.answer(QMessageBox::Yes);
    emit bench.settings().ini_parameter_changend(); // the throw is delivered under the question
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    bench.settle();
    land(bench);
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({4}));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2036));
}

void tst_answers_that_come_late::the_table_form_of_a_coup_holds_to_its_end()
{
    desktop_bench bench(
        {QStringLiteral("s_table_form=1"), QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    bench.click(jetons::CA01);
    bench.numbers().set_manual_number(0);
    bench.right_click_wheel();
    bench.settings().set_s_table_form(0);
    change_settings(bench);
    land(bench);
    // The mark lies on the American zero: x 854 - 16, y 358 - 31 - 33 + 31 of the full design.
    QCOMPARE(bench.child<QLabel>("LB_hit_label")->pos(), QPoint(838, 358 - 33));
    user.answer(QMessageBox::No); // the capital, asked behind the coup
    bench.finish_coup();
    // The first five pay 6 to 1 and the stake on the American table; 8 to 1 on the French one.
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999 + 7));
    QCOMPARE(bench.settings().form(), table_form::french);
}

void tst_answers_that_come_late::an_announcement_behind_the_last_tick_is_dropped()
{
    desktop_bench bench(
        {QStringLiteral("s_balkenzeit=10000"), QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    auto* timer = bench.child<QTimer>("update_timer");
    for (int i = 0; i < 330; ++i)
        fire(timer);
    const QPoint row(960, 590);
    auto* picture = bench.child<QLabel>("LA_Table");
    QTest::mouseClick(picture, Qt::LeftButton, {}, row - picture->pos());
    fire(timer); // nothing goes any more, before the dialog could open
    bench.settle();
    QVERIFY(!bench.table().all_may_set());
    QVERIFY(!bench.child<QDialog>("Dialog_Select_Number")->isVisible());
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
}

void tst_answers_that_come_late::a_manual_number_lost_by_a_stop_is_not_shown()
{
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        child_of<QPushButton>(*dialog, QStringLiteral("PB_12"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    auto* label = bench.child<QLabel>("LB_selected_number");
    QVERIFY(label->isVisible());
    bench.right_click_wheel();
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QVERIFY(!label->isVisible());
}

void tst_answers_that_come_late::a_manual_number_chosen_for_later_outlives_a_stop()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        child_of<QPushButton>(*dialog, QStringLiteral("PB_12"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QVERIFY(bench.child<QLabel>("LB_selected_number")->isVisible());
    bench.trigger("actionStart");
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({12}));
    QVERIFY(!bench.child<QLabel>("LB_selected_number")->isVisible());
}

void tst_answers_that_come_late::a_double_zero_lost_with_its_table_is_not_shown()
{
    desktop_bench bench({QStringLiteral("s_table_form=1")});
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        child_of<QPushButton>(*dialog, QStringLiteral("PB_37"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    auto* label = bench.child<QLabel>("LB_selected_number");
    QCOMPARE(label->text(), QStringLiteral("Nächste gewählte Roulettezahl: 00"));
    bench.settings().set_s_table_form(0);
    change_settings(bench);
    QVERIFY(!label->isVisible());
}

void tst_answers_that_come_late::a_jeton_of_another_player_takes_the_worth_of_ones_own()
{
    desktop_bench bench({QStringLiteral("s_setzart=1"), QStringLiteral("s_setzart_real_size=10")});
    bench.trigger("actionStart");
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(20000));
    // A piece of a system is worth 1.
    bench.table().set_jeton(PLAYER_2, jetons::PL20, 1, 1, debit::from_credit);
    QTest::mouseClick(bench.child<QPushButton>("jeton_2_PL20"), Qt::LeftButton);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL20), 1);
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(10));
}

void tst_answers_that_come_late::the_wheel_is_rebuilt_under_the_dialog_it_opened()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.right_click_wheel(); // the panels are about to count
    bench.settings().set_s_scr_res_factor(2);
    change_settings(bench); // postponed
    user.with_dialog("wheel_number_selection", [&](QWidget* dialog) {
        bench.finish_coup(); // the rescale comes under the dialog
        child_of<QPushButton>(*dialog, QStringLiteral("PB_7"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    QCOMPARE(bench.child<QAbstractScrollArea>("GV_Wheel")->width(), 401 * 8 / 10);
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({7}));
}

void tst_answers_that_come_late::a_second_window_begins_from_nothing()
{
    {
        desktop_bench first;
        first.trigger("actionStart");
        first.click(jetons::PL12);
        first.play(12);
        first.numbers().set_manual_number(30);
    }
    desktop_bench second;
    QVERIFY(second.numbers().last_numbers(1, true).isEmpty());
    QCOMPARE(second.numbers().get_source_mode(), number_source::random);
    QVERIFY(!second.child<QLabel>("LB_selected_number")->isVisible());
    QCOMPARE(second.child<QLabel>("LB_credit_1")->text(), QStringLiteral("2000"));
    QCOMPARE(second.child<QLabel>("LB_ND_DA_R_10")->text(), QString());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_answers_that_come_late>(argc, argv);
}
#include "tst_answers_that_come_late.moc"
