#include "desktop_bench.h"

#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QProgressBar>
#include <QPropertyAnimation>
#include <QSpinBox>

using general_player::PLAYER_1;

/// Start, pause, stop and reset in every state of the game, also while the ball runs.
class tst_game_states : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void nothing_moves_before_the_start();
    void the_time_bar_starts_the_coup();
    void pause_freezes_the_betting_time();
    void a_coup_that_falls_due_in_pause_waits();
    void the_wheel_does_nothing_in_pause();
    void two_right_clicks_are_one_coup();
    void a_dialog_does_not_end_the_pause_of_the_user();
    void stop_asks_first();
    void stop_in_the_betting_time();
    void stop_in_pause();
    void stop_behind_the_right_click();
    void stop_while_the_ball_runs();
    void stop_while_the_panels_count();
    void stop_question_is_answered_when_the_coup_is_over();
    void stop_in_a_super_short_game();
    void reset_takes_statistic_and_numbers_back();
    void reset_in_the_middle_of_a_coup_waits_for_its_end();
    void start_again_behind_a_stop();
    void a_click_storm_changes_no_account();
    void the_settings_are_written_at_quit();
    void quit_with_a_dialog_open();

private:
    static QString bar_text(const desktop_bench& bench);
    static QVector<QPropertyAnimation*> animations(const desktop_bench& bench);

    box_user user;
};

namespace
{

const QString slow_game = QStringLiteral("s_su_shortthrow_activ=false");
const QString timed_game = QStringLiteral("s_balkenzeit=10000"); // 330 ticks

const QString stop_question = QStringLiteral("Soll das aktuelle Spiel wirklich beendet werden?");

int bar_value(const desktop_bench& bench)
{
    return bench.child<QProgressBar>("time_bar")->value();
}

void tick(const desktop_bench& bench, int count)
{
    auto* timer = bench.child<QTimer>("update_timer");
    for (int i = 0; i < count; ++i)
        fire(timer);
    bench.settle();
}

} // namespace

void tst_game_states::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

QVector<QPropertyAnimation*> tst_game_states::animations(const desktop_bench& bench)
{
    return bench.child<QGraphicsView>("GV_Wheel")->findChildren<QPropertyAnimation*>().toVector();
}

void tst_game_states::nothing_moves_before_the_start()
{
    desktop_bench bench;
    const QString start_text =
        QStringLiteral("Bitte zuerst das Spiel über den Menüpunkt \"Start\" oder F2 starten!");
    user.answer(QMessageBox::Ok);
    bench.click(jetons::PL05);
    user.answer(QMessageBox::Ok);
    bench.right_click_wheel();
    user.answer(QMessageBox::Ok);
    bench.press_table({960, 590}); // neighbours
    QCOMPARE(user.boxes().size(), 3);
    for (const shown_box& box : user.boxes()) {
        QCOMPARE(box.title, QStringLiteral("Zarvello Info"));
        QCOMPARE(box.text, start_text);
    }
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    QVERIFY(!bench.child<QAction>("actionPause")->isEnabled());
    QVERIFY(!bench.child<QAction>("actionStop")->isEnabled());
    QVERIFY(!bench.child<QPushButton>("PB_super_short_play")->isEnabled());
    QVERIFY(bench.child<QAction>("actionLadedateien")->isEnabled());
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
}

void tst_game_states::the_time_bar_starts_the_coup()
{
    desktop_bench bench({timed_game});
    bench.trigger("actionStart");
    bench.click(jetons::PL09);
    bench.numbers().set_manual_number(9);
    tick(bench, 330);
    QVERIFY(bench.table().all_may_set());
    tick(bench, 1); // the tick at the full bar
    bench.finish_coup();
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QCOMPARE(bar_value(bench), 0); // the next betting time has begun
    QVERIFY(bench.child<QTimer>("update_timer")->isActive());
}

void tst_game_states::pause_freezes_the_betting_time()
{
    desktop_bench bench({timed_game});
    auto* pause = bench.child<QAction>("actionPause");
    bench.trigger("actionStart");
    const QString pause_text = pause->text();
    tick(bench, 40);
    QCOMPARE(bar_value(bench), 40);
    bench.trigger("actionPause");
    QVERIFY(pause->text() != pause_text);
    tick(bench, 400);
    QCOMPARE(bar_value(bench), 40);
    bench.trigger("actionPause");
    QCOMPARE(pause->text(), pause_text);
    tick(bench, 2);
    QCOMPARE(bar_value(bench), 42);
}

void tst_game_states::a_coup_that_falls_due_in_pause_waits()
{
    desktop_bench bench({timed_game});
    bench.trigger("actionStart");
    bench.click(jetons::PL04);
    bench.numbers().set_manual_number(4);
    auto* timer = bench.child<QTimer>("update_timer");
    for (int i = 0; i < 331; ++i)
        fire(timer);
    bench.trigger("actionPause"); // before the posted start of the wheel is delivered
    bench.settle();
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    QCOMPARE(bench.numbers().get_source_mode(), number_source::manual);
    bench.trigger("actionPause");
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({4}));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
}

void tst_game_states::the_wheel_does_nothing_in_pause()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.trigger("actionPause");
    bench.right_click_wheel();
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    bench.click(jetons::PL30); // bets stay open
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 1);
    bench.trigger("actionPause");
    bench.settle();
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
}

void tst_game_states::two_right_clicks_are_one_coup()
{
    desktop_bench bench({slow_game});
    bench.trigger("actionStart");
    auto* wheel = bench.child<QAbstractScrollArea>("GV_Wheel");
    QTest::mouseClick(wheel->viewport(), Qt::RightButton);
    QTest::mouseClick(wheel->viewport(), Qt::RightButton);
    QTest::mouseDClick(wheel->viewport(), Qt::RightButton);
    bench.settle();
    for (QPropertyAnimation* animation : animations(bench))
        animation->setCurrentTime(animation->duration());
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(2, true).first(), -1); // one number only
    QVERIFY(bench.table().all_may_set());
}

void tst_game_states::a_dialog_does_not_end_the_pause_of_the_user()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.trigger("actionPause");
    user.answer(QMessageBox::No);
    bench.trigger("actionReset");
    QCOMPARE(bench.settings().state(), game_state::paused);
    bench.trigger("actionPause");
    user.answer(QMessageBox::No);
    bench.trigger("actionReset");
    QCOMPARE(bench.settings().state(), game_state::running);
}

void tst_game_states::stop_asks_first()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL30);
    user.answer(QMessageBox::No);
    bench.trigger("actionStop");
    QCOMPARE(user.boxes().last().text, stop_question);
    QCOMPARE(bench.settings().state(), game_state::running);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 1);
}

void tst_game_states::stop_in_the_betting_time()
{
    desktop_bench bench({timed_game});
    bench.trigger("actionStart");
    bench.click(jetons::PL30);
    bench.play(30);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    bench.click(jetons::PL31);
    tick(bench, 7);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    bench.settle();
    QCOMPARE(bar_value(bench), 0);
    QVERIFY(!bench.child<QTimer>("update_timer")->isActive());
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    QVERIFY(!bench.window->findChild<QPushButton*>(QStringLiteral("jeton_1_PL31")));
    QVERIFY(!bench.window->findChild<QPushButton*>(QStringLiteral("jeton_1_PRIS_EC01")));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QCOMPARE(bench.child<QLabel>("LB_credit_1")->text(), QStringLiteral("2000"));
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_R_10")->text(), QString());
    QVERIFY(!bench.table().all_may_set());
    QVERIFY(bench.child<QAction>("actionStart")->isEnabled());
    QVERIFY(bench.child<QAction>("actionLadedateien")->isEnabled());
    QVERIFY(!bench.child<QAction>("actionStop")->isEnabled());
    QVERIFY(!bench.child<QAction>("actionPause")->isEnabled());
    QVERIFY(!bench.child<QPushButton>("PB_super_short_play")->isEnabled());
}

void tst_game_states::stop_in_pause()
{
    desktop_bench bench({timed_game});
    auto* pause = bench.child<QAction>("actionPause");
    bench.trigger("actionStart");
    const QString pause_text = pause->text();
    tick(bench, 5);
    bench.trigger("actionPause");
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(bench.settings().state(), game_state::stopped);
    QCOMPARE(pause->text(), pause_text);
    QCOMPARE(bar_value(bench), 0);
    bench.trigger("actionStart");
    tick(bench, 5);
    QCOMPARE(bar_value(bench), 5); // no pause is left over
}

void tst_game_states::stop_behind_the_right_click()
{
    desktop_bench bench({slow_game});
    bench.trigger("actionStart");
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::RightButton);
    user.answer(QMessageBox::Yes);
    // The box runs the loop that delivers the throw; the ball starts and is stopped by the answer.
    bench.trigger("actionStop");
    bench.settle();
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    for (QPropertyAnimation* animation : animations(bench))
        QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
}

void tst_game_states::stop_while_the_ball_runs()
{
    desktop_bench bench({slow_game});
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    for (QPropertyAnimation* animation : animations(bench))
        animation->setCurrentTime(5000);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    bench.finish_coup();
    for (QPropertyAnimation* animation : animations(bench))
        QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty()); // the number is lost
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));

    bench.trigger("actionStart"); // and the next game finds a wheel that works
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    for (QPropertyAnimation* animation : animations(bench))
        animation->setCurrentTime(animation->duration());
    bench.finish_coup();
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
}

void tst_game_states::stop_while_the_panels_count()
{
    desktop_bench bench({slow_game});
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    for (QPropertyAnimation* animation : animations(bench))
        animation->setCurrentTime(animation->duration());
    bench.settle();
    for (int i = 0; i < 13; ++i) // blinked, and some of it counted
        bench.fire_all({QStringLiteral("blink_timer"), QStringLiteral("count_timer")});
    QVERIFY(bench.table().credit(PLAYER_1) > 1999);
    QVERIFY(bench.table().credit(PLAYER_1) < 2035);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QVERIFY(!bench.fire_all({QStringLiteral("blink_timer"), QStringLiteral("count_timer")}));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QCOMPARE(bench.child<QPushButton>("PB_status_1")->text(), QStringLiteral("Aktiv"));
}

void tst_game_states::stop_question_is_answered_when_the_coup_is_over()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    bench.settle(); // the panels are about to count
    bool was_open_again = false;
    user.answer(QMessageBox::Yes);
    // While the question is open the coup runs to its end; the answer comes behind it.
    QMetaObject::invokeMethod(
        bench.window.get(),
        [&] {
            bench.fire_all({QStringLiteral("count_timer")});
            bench.fire_all({QStringLiteral("count_timer")});
            was_open_again = bench.table().all_may_set();
        },
        Qt::QueuedConnection);
    bench.trigger("actionStop");
    QVERIFY(was_open_again);
    QCOMPARE(bench.settings().state(), game_state::stopped);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
}

void tst_game_states::stop_in_a_super_short_game()
{
    desktop_bench bench({slow_game, timed_game});
    bench.trigger("actionStart");
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QSpinBox>(*dialog, QStringLiteral("SB_coups"))->setValue(0);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSuperkurzspiel");
    QVERIFY(bench.settings().s_su_shortthrow_activ());
    bench.settle();
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    bench.finish_coup();
    QVERIFY(!bench.settings().s_su_shortthrow_activ());
    QVERIFY(!bench.child<QAction>("actionSuperkurzspiel")->isChecked());
    QCOMPARE(bench.child<QPushButton>("PB_super_short_play")->text(),
             QStringLiteral("Superkurzspiel"));
    QVERIFY(!bench.child<QTimer>("pause_poll_timer")->isActive());
    QCOMPARE(bench.settings().state(), game_state::stopped);
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
}

void tst_game_states::reset_takes_statistic_and_numbers_back()
{
    desktop_bench bench;
    QSignalSpy done(bench.window.get(), &MainWindow::statistik_reset_done);
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.play(12);
    bench.click(jetons::PL13);
    user.answer(QMessageBox::No);
    bench.trigger("actionReset");
    QCOMPARE(done.size(), 1);
    QCOMPARE(done.takeFirst().first().toBool(), false);
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({12}));
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    QCOMPARE(user.boxes().last().title, QStringLiteral("Zarvello Info"));
    QCOMPARE(user.boxes().last().icon, QMessageBox::Warning);
    QCOMPARE(user.boxes().last().text,
             QStringLiteral("Sollen alle Werte (Statistik, Würfe) für alle Spieler "
                            "zurückgesetzt werden?"));
    QCOMPARE(done.size(), 1);
    QCOMPARE(done.takeFirst().first().toBool(), true);
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_R_10")->text(), QString());
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2034)); // money and bets stay
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL13), 1);
    QCOMPARE(bench.settings().state(), game_state::running);
}

void tst_game_states::reset_in_the_middle_of_a_coup_waits_for_its_end()
{
    desktop_bench bench({slow_game});
    QSignalSpy done(bench.window.get(), &MainWindow::statistik_reset_done);
    bench.trigger("actionStart");
    bench.right_click_wheel();
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    QCOMPARE(done.size(), 0);
    for (QPropertyAnimation* animation : animations(bench))
        animation->setCurrentTime(animation->duration());
    bench.settle();
    QCOMPARE(bench.numbers().last_numbers(1, true).size(), 1);
    bench.finish_coup();
    QCOMPARE(done.size(), 1);
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    QVERIFY(bench.table().all_may_set());
}

void tst_game_states::start_again_behind_a_stop()
{
    desktop_bench bench;
    for (int game = 0; game < 3; ++game) {
        bench.trigger("actionStart");
        bench.click(jetons::PL01);
        bench.play(1);
        QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
        user.answer(QMessageBox::Yes);
        bench.trigger("actionStop");
    }
}

void tst_game_states::a_click_storm_changes_no_account()
{
    desktop_bench bench({slow_game});
    bench.trigger("actionStart");
    bench.click(jetons::PL01);
    bench.click(jetons::EC03);
    bench.numbers().set_manual_number(2);
    bench.right_click_wheel();
    for (int i = 0; i < 40; ++i) {
        bench.press_table({60 + 20 * i, 330 + 10 * i}, i % 3 ? Qt::LeftButton : Qt::RightButton);
        bench.right_click_wheel();
        QTest::mouseClick(bench.child<QPushButton>("PB_clear_jetons"), Qt::LeftButton);
        QTest::mouseClick(bench.child<QPushButton>("PB_last_bet"), Qt::LeftButton);
        QTest::mouseClick(bench.child<QPushButton>("PB_replay"), Qt::LeftButton);
    }
    QVERIFY(!bench.table().any_replay()); // clicked an even number of times
    for (QPropertyAnimation* animation : animations(bench))
        animation->setCurrentTime(animation->duration());
    bench.finish_coup();
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(0));
    QCOMPARE(bench.numbers().last_numbers(2, true), QList<int>({-1, 2}));
}

void tst_game_states::the_settings_are_written_at_quit()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.settings().set_s_start_jetons(4711);
    bench.window.reset();
    QFile file(QStringLiteral("zarvello.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("s_start_jetons=4711"));
}

/// The last test: behind a quit no dialog runs in this program any more.
void tst_game_states::quit_with_a_dialog_open()
{
    auto bench = std::make_unique<desktop_bench>(QStringList{slow_game});
    bench->trigger("actionStart");
    bench->right_click_wheel();
    user.with_dialog("Options", [&](QWidget*) { bench->trigger("actionBeenden"); });
    bench->child<QAction>("actionOptionen")->trigger(); // returns, since the program ends
    bench.reset();
    QCOMPARE(setting::instance().state(), game_state::stopped);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_game_states>(argc, argv);
}
#include "tst_game_states.moc"
