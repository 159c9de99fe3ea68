#include "desktop_bench.h"
#include "known_draws.h"
#include "naive_bets.h"
#include "plain_table.h"
#include "wheelwidget.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGraphicsObject>
#include <QProgressBar>
#include <QPropertyAnimation>
#include <QSpinBox>

#include <cmath>

using general_player::PLAYER_1;

/// Coups that follow each other without betting time, begun and ended in every state of the game.
class tst_super_short_game : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void five_coups_and_no_more_data() { add_switches(); }
    void five_coups_and_no_more();
    void an_endless_game_is_switched_off_data() { add_switches(); }
    void an_endless_game_is_switched_off();
    void button_and_action_are_one_switch();
    void a_cancelled_dialog_changes_nothing_data();
    void a_cancelled_dialog_changes_nothing();
    void a_right_click_behind_the_start_adds_no_coup();
    void begun_in_pause_it_waits();
    void begun_in_pause_and_ended_in_pause();
    void in_manual_time_each_coup_waits_for_a_click();
    void begun_while_the_ball_runs_it_counts_that_coup();
    void begun_while_the_panels_count_it_begins_with_the_next_coup();
    void pause_holds_the_next_coup();
    void ended_in_pause_the_betting_time_comes_back();
    void a_reset_leaves_the_count_alone();
    void a_reset_between_two_coups_loses_none();
    void begun_again_it_counts_anew_and_keeps_the_saved_flag();
    void stopped_and_started_again_it_is_off();
    void the_settings_file_keeps_the_users_own_flag_data();
    void the_settings_file_keeps_the_users_own_flag();
    void options_during_the_game_write_the_users_own_flag_data();
    void options_during_the_game_write_the_users_own_flag();
    void many_coups_pay_as_a_plain_table_does_data();
    void many_coups_pay_as_a_plain_table_does();
    void quit_by_the_menu_keeps_the_users_own_flag();

private:
    static void add_switches();
    void begin(const desktop_bench& bench, int coups, bool by_action = false);
    void cancel(const desktop_bench& bench);

    box_user user;
};

namespace
{

const QString slow_game = QStringLiteral("s_su_shortthrow_activ=false");
const QString timed_game = QStringLiteral("s_balkenzeit=10000"); // 330 ticks

/// The numbers that are thrown, and where the ball comes to rest.
struct throw_log {
    explicit throw_log(const desktop_bench& bench)
    {
        auto* wheel = bench.child<wheelWidget>("GV_Wheel");
        const bool american = bench.settings().form() == table_form::american;
        const QVector<int> order = naive_bets::wheel(american);
        QObject::connect(
            bench.window.get(), &MainWindow::start_throw, &guard, [this, wheel](int number) {
                numbers.append(number);
                durations.append(
                    child_of<QPropertyAnimation>(*wheel, "ball_animation")->duration());
            });
        QObject::connect(wheel, &wheelWidget::throw_finished, &guard, [this, wheel, order] {
            ++rested;
            const double pocket = pocket_of_ball(*wheel, order.size());
            const double distance = std::remainder(pocket - order.indexOf(numbers.last()),
                                                   static_cast<double>(order.size()));
            if (std::abs(distance) > 1e-6) ++wrong_pockets;
        });
    }

    int count() const { return numbers.size(); }

    QObject guard;
    QVector<int> numbers;
    QVector<int> durations; ///< ms
    int rested = 0;
    int wrong_pockets = 0;

private:
    static double rotation(const wheelWidget& wheel, const QString& name)
    {
        const auto items = wheel.scene()->items();
        for (QGraphicsItem* item : items) {
            const QGraphicsObject* object = item->toGraphicsObject();
            if (object && object->objectName() == name) return object->rotation();
        }
        qFatal("no item \"%s\" on the wheel", qPrintable(name));
        return 0.0;
    }

    /// Pockets from the wheel's zero, clockwise; the ball lies one degree behind their middle.
    static double pocket_of_ball(const wheelWidget& wheel, int pocket_count)
    {
        const double angle = rotation(wheel, "ball_item") - 1.0 - rotation(wheel, "wheel_item");
        return angle / (360.0 / pocket_count);
    }
};

void tick(const desktop_bench& bench, int count)
{
    auto* timer = bench.child<QTimer>("update_timer");
    for (int i = 0; i < count; ++i)
        fire(timer);
    bench.settle();
}

int bar_value(const desktop_bench& bench)
{
    return bench.child<QProgressBar>("time_bar")->value();
}
QString bar_text(const desktop_bench& bench)
{
    return bench.child<QProgressBar>("time_bar")->text();
}

/// Counts the scores of the coup that stands before it; the next one runs up to there then.
void step(const desktop_bench& bench)
{
    bench.fire_all({QStringLiteral("count_timer")});
}

/// As `step()`, but nothing that is posted is delivered behind the last score.
void count_scores_only(const desktop_bench& bench)
{
    for (int player = 1; player <= 4; ++player) {
        auto* panel = bench.child<QPushButton>(QStringLiteral("PB_status_%1").arg(player));
        fire(child_of<QTimer>(*panel, QStringLiteral("count_timer")));
    }
}

void end_animations(const desktop_bench& bench)
{
    const auto animations =
        bench.child<wheelWidget>("GV_Wheel")->findChildren<QPropertyAnimation*>();
    for (QPropertyAnimation* animation : animations)
        animation->setCurrentTime(animation->duration());
    bench.settle();
}

void switch_game(const desktop_bench& bench, bool by_action)
{
    if (by_action) {
        bench.trigger("actionSuperkurzspiel");
    } else {
        QTest::mouseClick(bench.child<QPushButton>("PB_super_short_play"), Qt::LeftButton);
    }
}

/// What says that the game is on: both switches, the button's text and the borrowed setting.
bool is_on(const desktop_bench& bench)
{
    auto* button = bench.child<QPushButton>("PB_super_short_play");
    return button->isChecked() && bench.child<QAction>("actionSuperkurzspiel")->isChecked() &&
           button->text() == QStringLiteral("Superkurzspiel aktiv") &&
           bench.settings().s_su_shortthrow_activ();
}

/// What says that it is off, and the setting as it was before.
bool is_off(const desktop_bench& bench, bool own_flag)
{
    auto* button = bench.child<QPushButton>("PB_super_short_play");
    return !button->isChecked() && !bench.child<QAction>("actionSuperkurzspiel")->isChecked() &&
           button->text() == QStringLiteral("Superkurzspiel") &&
           bench.settings().s_su_shortthrow_activ() == own_flag;
}

QByteArray flag_in_file()
{
    QFile file(QStringLiteral("zarvello.ini"));
    if (!file.open(QIODevice::ReadOnly)) return "no file";
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines)
        if (line.startsWith("s_su_shortthrow_activ=")) return line.trimmed().split('=').last();
    return "no line";
}

} // namespace

void tst_super_short_game::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_super_short_game::add_switches()
{
    QTest::addColumn<bool>("by_action");
    QTest::newRow("button") << false;
    QTest::newRow("action") << true;
}

void tst_super_short_game::begin(const desktop_bench& bench, int coups, bool by_action)
{
    user.with_dialog("dialog_supershort_game_counter", [coups](QWidget* dialog) {
        child_of<QSpinBox>(*dialog, QStringLiteral("SB_coups"))->setValue(coups);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    switch_game(bench, by_action);
}

void tst_super_short_game::cancel(const desktop_bench& bench)
{
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Cancel)
            ->click();
    });
    switch_game(bench, false);
    bench.settle();
}

void tst_super_short_game::five_coups_and_no_more()
{
    QFETCH(bool, by_action);
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    tick(bench, 7);
    QVERIFY(is_off(bench, false));
    begin(bench, 5, by_action);
    bench.settle();
    for (int coup = 1; coup <= 4; ++coup) {
        QCOMPARE(log.count(), coup);
        QVERIFY(is_on(bench));
        QCOMPARE(bar_text(bench), QStringLiteral("Superkurzspiel aktiv!"));
        QCOMPARE(bar_value(bench), bench.child<QProgressBar>("time_bar")->maximum());
        step(bench);
    }
    QCOMPARE(log.count(), 5); // its number has come: the game is over, the scores are not counted
    QVERIFY(is_off(bench, false));
    QCOMPARE(bar_text(bench), QStringLiteral("Nichts geht mehr!"));
    bench.finish_coup();
    QCOMPARE(log.count(), 5);
    QCOMPARE(log.rested, 5);
    QCOMPARE(log.wrong_pockets, 0);
    QVERIFY(is_off(bench, false));
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    QCOMPARE(bar_value(bench), 0);
    QVERIFY(bench.table().all_may_set());

    tick(bench, 331); // the sixth coup has its betting time and its animation again
    QCOMPARE(log.count(), 6);
    QCOMPARE(log.rested, 5);
    end_animations(bench);
    bench.finish_coup();
    QCOMPARE(log.rested, 6);
    QCOMPARE(log.wrong_pockets, 0);
}

void tst_super_short_game::an_endless_game_is_switched_off()
{
    QFETCH(bool, by_action);
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 0, by_action);
    bench.settle();
    for (int coup = 1; coup <= 40; ++coup) {
        QCOMPARE(log.count(), coup);
        QVERIFY(is_on(bench));
        step(bench);
    }
    switch_game(bench, by_action);
    QVERIFY(is_off(bench, false));
    QCOMPARE(bar_text(bench), QStringLiteral("Nichts geht mehr!"));
    bench.finish_coup();
    QCOMPARE(log.count(), 41);
    QCOMPARE(log.wrong_pockets, 0);
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    QCOMPARE(bar_value(bench), 0);
}

void tst_super_short_game::button_and_action_are_one_switch()
{
    desktop_bench bench({slow_game, timed_game});
    bench.trigger("actionStart");
    begin(bench, 0, false);
    QVERIFY(is_on(bench));
    switch_game(bench, true);
    QVERIFY(is_off(bench, false));
    bench.finish_coup();
    begin(bench, 0, true);
    QVERIFY(is_on(bench));
    switch_game(bench, false);
    QVERIFY(is_off(bench, false));
    bench.finish_coup();
}

void tst_super_short_game::a_cancelled_dialog_changes_nothing_data()
{
    QTest::addColumn<bool>("own_flag");
    QTest::newRow("slow throws") << false;
    QTest::newRow("quick throws") << true;
}

void tst_super_short_game::a_cancelled_dialog_changes_nothing()
{
    QFETCH(bool, own_flag);
    const QString flag = own_flag ? QStringLiteral("true") : QStringLiteral("false");
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=") + flag, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    tick(bench, 12);
    cancel(bench);
    QVERIFY(is_off(bench, own_flag));
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    QCOMPARE(bar_value(bench), 12);
    QCOMPARE(bench.settings().state(), game_state::running);
    tick(bench, 1);
    QCOMPARE(bar_value(bench), 13);
    QCOMPARE(log.count(), 0);
}

void tst_super_short_game::a_right_click_behind_the_start_adds_no_coup()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 3); // the first throw is posted
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(log.count(), 3);
    QVERIFY(is_off(bench, false));
    QVERIFY(bench.table().all_may_set());
}

void tst_super_short_game::begun_in_pause_it_waits()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    auto* poll = bench.child<QTimer>("pause_poll_timer");
    bench.trigger("actionStart");
    tick(bench, 5);
    bench.trigger("actionPause");
    begin(bench, 2);
    bench.settle();
    QVERIFY(is_on(bench));
    QCOMPARE(bar_text(bench), QStringLiteral("Pause"));
    QCOMPARE(bar_value(bench), bench.child<QProgressBar>("time_bar")->maximum());
    QVERIFY(!bench.child<QTimer>("update_timer")->isActive());
    for (int i = 0; i < 5; ++i) {
        QVERIFY(fire(poll));
        bench.settle();
        QCOMPARE(log.count(), 0);
        QCOMPARE(bar_text(bench), QStringLiteral("Pause"));
    }
    bench.trigger("actionPause");
    bench.settle();
    QVERIFY(fire(poll)); // it goes on by itself
    bench.finish_coup();
    QVERIFY(!poll->isActive());
    QCOMPARE(log.count(), 2);
    QVERIFY(is_off(bench, false));
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
}

void tst_super_short_game::begun_in_pause_and_ended_in_pause()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    auto* poll = bench.child<QTimer>("pause_poll_timer");
    bench.trigger("actionStart");
    tick(bench, 5);
    bench.trigger("actionPause");
    begin(bench, 0);
    switch_game(bench, false);
    QVERIFY(is_off(bench, false));
    fire(poll);
    bench.trigger("actionPause");
    bench.settle();
    QCOMPARE(log.count(), 0);
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    tick(bench, 331);
    QCOMPARE(log.count(), 1);
}

void tst_super_short_game::in_manual_time_each_coup_waits_for_a_click()
{
    desktop_bench bench({slow_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 3);
    bench.settle();
    for (int coup = 0; coup < 3; ++coup) {
        QCOMPARE(log.count(), coup);
        QVERIFY(is_on(bench));
        QCOMPARE(bar_text(bench), QStringLiteral("Manuell"));
        QVERIFY(bench.table().all_may_set());
        bench.right_click_wheel();
        bench.finish_coup();
    }
    QCOMPARE(log.count(), 3);
    QCOMPARE(log.durations, QVector<int>({0, 0, 0}));
    QCOMPARE(log.rested, 3);
    QVERIFY(is_off(bench, false));
    QCOMPARE(bar_text(bench), QStringLiteral("Manuell"));
}

void tst_super_short_game::begun_while_the_ball_runs_it_counts_that_coup()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    tick(bench, 331);
    QCOMPARE(log.count(), 1);
    begin(bench, 3);
    bench.settle();
    QVERIFY(is_on(bench));
    QCOMPARE(log.count(), 1);
    QCOMPARE(log.rested, 0);
    end_animations(bench);
    QCOMPARE(log.rested, 1);
    bench.finish_coup();
    QCOMPARE(log.count(), 3); // the coup whose ball ran is the first of the three
    QCOMPARE(log.durations, QVector<int>({17400, 0, 0}));
    QCOMPARE(log.rested, 3);
    QCOMPARE(log.wrong_pockets, 0);
    QVERIFY(is_off(bench, false));
}

void tst_super_short_game::begun_while_the_panels_count_it_begins_with_the_next_coup()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    tick(bench, 331);
    end_animations(bench);
    for (int i = 0; i < 13; ++i)
        bench.fire_all({QStringLiteral("blink_timer"), QStringLiteral("count_timer")});
    QVERIFY(bench.table().credit(PLAYER_1) < 2035); // the slow count goes on as it began
    begin(bench, 2);
    bench.settle();
    QCOMPARE(log.count(), 1);
    bench.finish_coup();
    QCOMPARE(log.count(), 3);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QVERIFY(is_off(bench, false));
}

void tst_super_short_game::pause_holds_the_next_coup()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    auto* poll = bench.child<QTimer>("pause_poll_timer");
    bench.trigger("actionStart");
    begin(bench, 6);
    bench.settle();
    step(bench);
    QCOMPARE(log.count(), 2);
    bench.trigger("actionPause");
    QVERIFY(!poll->isActive());
    step(bench); // the coup under way ends
    QCOMPARE(log.count(), 2);
    QCOMPARE(bar_text(bench), QStringLiteral("Pause"));
    QVERIFY(is_on(bench));
    QVERIFY(bench.table().all_may_set());
    bench.click(jetons::PL30); // bets are open in the pause
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 1);
    for (int i = 0; i < 5; ++i) {
        QVERIFY(fire(poll));
        bench.settle();
        QCOMPARE(log.count(), 2);
    }
    bench.numbers().set_manual_number(30);
    bench.trigger("actionPause");
    bench.settle();
    QVERIFY(fire(poll));
    bench.settle();
    QCOMPARE(log.count(), 3);
    QCOMPARE(log.numbers.last(), 30);
    QCOMPARE(bar_text(bench), QStringLiteral("Superkurzspiel aktiv!"));
    bench.finish_coup();
    QCOMPARE(log.count(), 6);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QVERIFY(is_off(bench, false));
}

void tst_super_short_game::ended_in_pause_the_betting_time_comes_back()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 0);
    bench.settle();
    bench.trigger("actionPause");
    step(bench);
    switch_game(bench, true);
    QVERIFY(is_off(bench, false));
    fire(bench.child<QTimer>("pause_poll_timer"));
    tick(bench, 20);
    QCOMPARE(bar_text(bench), QStringLiteral("Pause"));
    QCOMPARE(bar_value(bench), 0);
    bench.trigger("actionPause");
    tick(bench, 20);
    QCOMPARE(bar_value(bench), 20);
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    QCOMPARE(log.count(), 1);
}

void tst_super_short_game::a_reset_leaves_the_count_alone()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    QSignalSpy done(bench.window.get(), &MainWindow::statistik_reset_done);
    bench.trigger("actionStart");
    begin(bench, 5);
    bench.settle();
    step(bench);
    QCOMPARE(log.count(), 2);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    QCOMPARE(done.size(), 0); // the coup is under way
    bench.finish_coup();
    QCOMPARE(done.size(), 1);
    QCOMPARE(log.count(), 5);
    QVERIFY(is_off(bench, false));
    const QVector<int> later = log.numbers.mid(2); // the first two were forgotten
    QCOMPARE(bench.numbers().last_numbers(4, true), QList<int>({-1, later[0], later[1], later[2]}));
}

void tst_super_short_game::a_reset_between_two_coups_loses_none()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 3);
    bench.settle();
    count_scores_only(bench); // the second throw is posted and arrives while the question is open
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    QCOMPARE(log.count(), 1);
    QVERIFY(bench.numbers().last_numbers(1, true).isEmpty());
    bench.finish_coup();
    QCOMPARE(log.count(), 3);
    QCOMPARE(bench.settings().state(), game_state::running);
    QVERIFY(is_off(bench, false));
}

void tst_super_short_game::begun_again_it_counts_anew_and_keeps_the_saved_flag()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 0);
    bench.settle();
    step(bench);
    QCOMPARE(log.count(), 2);
    auto* dialog = bench.child<QDialog>("dialog_supershort_game_counter");
    QVERIFY(QMetaObject::invokeMethod(dialog, "dia_activate_supershort_game", Q_ARG(int, 4)));
    bench.finish_coup();
    QCOMPARE(log.count(), 6);
    QVERIFY(is_off(bench, false));
}

void tst_super_short_game::stopped_and_started_again_it_is_off()
{
    desktop_bench bench({slow_game, timed_game});
    const throw_log log(bench);
    bench.trigger("actionStart");
    begin(bench, 0);
    bench.settle();
    step(bench);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    bench.finish_coup();
    QVERIFY(is_off(bench, false));
    QCOMPARE(bar_text(bench), QStringLiteral("Starten Sie Ihr Spiel!"));
    const int thrown = log.count();
    bench.trigger("actionStart");
    bench.settle();
    QCOMPARE(log.count(), thrown);
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    begin(bench, 2);
    bench.finish_coup();
    QCOMPARE(log.count(), thrown + 2);
}

void tst_super_short_game::the_settings_file_keeps_the_users_own_flag_data()
{
    QTest::addColumn<QByteArray>("own_flag");
    QTest::newRow("slow throws") << QByteArray("false");
    QTest::newRow("quick throws") << QByteArray("true");
}

void tst_super_short_game::the_settings_file_keeps_the_users_own_flag()
{
    QFETCH(QByteArray, own_flag);
    desktop_bench bench(
        {QStringLiteral("s_su_shortthrow_activ=") + QString::fromLatin1(own_flag), timed_game});
    bench.trigger("actionStart");
    begin(bench, 0);
    bench.settle();
    QVERIFY(is_on(bench));
    QVERIFY(QFile::remove(QStringLiteral("zarvello.ini")));
    bench.window.reset();
    QCOMPARE(flag_in_file(), own_flag);
}

void tst_super_short_game::options_during_the_game_write_the_users_own_flag_data()
{
    QTest::addColumn<bool>("is_checked");
    QTest::addColumn<QByteArray>("own_flag");
    QTest::newRow("slow throws") << false << QByteArray("false");
    QTest::newRow("quick throws") << true << QByteArray("true");
}

void tst_super_short_game::options_during_the_game_write_the_users_own_flag()
{
    QFETCH(bool, is_checked);
    QFETCH(QByteArray, own_flag);
    desktop_bench bench({slow_game, timed_game});
    bench.trigger("actionStart");
    begin(bench, 0);
    bench.settle();
    bool was_checked = true;
    user.with_dialog("Options", [&](QWidget* dialog) {
        auto* box = child_of<QCheckBox>(*dialog, QStringLiteral("CB_su_shortthrow_activ"));
        was_checked = box->isChecked();
        box->setChecked(is_checked);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionOptionen");
    QVERIFY(!was_checked);
    QVERIFY(is_on(bench));
    QCOMPARE(flag_in_file(), own_flag);
    switch_game(bench, false);
    QVERIFY(is_off(bench, is_checked));
    bench.finish_coup();
}

void tst_super_short_game::many_coups_pay_as_a_plain_table_does_data()
{
    QTest::addColumn<int>("coups");
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<bool>("american");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<int>("staff_piece");
    QTest::addColumn<bool>("prison");
    QTest::addColumn<int>("capital");
    using list = QStringList;
    QTest::newRow("French table") << 200 << list() << false << true << 0 << true << 2000;
    QTest::newRow("American table")
        << 60 << list({"s_table_form=1"}) << true << true << 0 << true << 2000;
    QTest::newRow("the stake stays")
        << 60 << list({"s_jeton_to_win=false"}) << false << false << 0 << true << 3000;
    QTest::newRow("pieces for the staff, no prison")
        << 60 << list({"s_tip_def_index=2", "s_zero_handling=false"}) << false << true << 2 << false
        << 2000;
    QTest::newRow("the capital runs out") << 60 << list() << false << true << 0 << true << 30;
}

void tst_super_short_game::many_coups_pay_as_a_plain_table_does()
{
    QFETCH(int, coups);
    QFETCH(QStringList, settings);
    QFETCH(bool, american);
    QFETCH(bool, stake_joins_win);
    QFETCH(int, staff_piece);
    QFETCH(bool, prison);
    QFETCH(int, capital);
    constexpr quint32 seed = 20031;
    constexpr int first_player = 0;
    constexpr int third_player = 2;
    const QVector<QPair<int, jetons::jeton_names>> bets = {
        {first_player, jetons::PL17},
        {first_player, jetons::PL00},
        {first_player, jetons::CH05},
        {first_player, jetons::EC03},
        {first_player, jetons::EC06},
        {first_player, jetons::EC06},
        {first_player, jetons::DZ02},
        {third_player, jetons::CA07},
        {third_player, jetons::TP05},
        {third_player, jetons::TS02},
        {third_player, jetons::KL01},
        {third_player, jetons::EC01},
        {third_player, jetons::EC01},
        {third_player, jetons::EC01},
    };

    desktop_bench bench(
        QStringList({slow_game, timed_game, QStringLiteral("s_start_jetons=%1").arg(capital)}) +
        settings);
    const throw_log log(bench);
    bench.numbers().set_seed(seed);
    bench.trigger("actionStart");
    plain_table plain;
    for (plain_player& player : plain.players) {
        player.credit = capital;
        player.replay = true;
    }
    auto* panel = bench.child<QWidget>("WD_SpTable");
    for (const auto& [player, jeton] : bets) {
        const int name_tab = player == first_player ? 140 : 380;
        QTest::mouseClick(panel, Qt::LeftButton, {}, QPoint(name_tab, 25));
        bench.click(jeton);
        plain.set(player, jetons::name(jeton).toStdString(), 1, 1, true);
    }
    QTest::mouseClick(bench.child<QPushButton>("PB_replay"), Qt::LeftButton);
    begin(bench, coups);
    bench.finish_coup();

    const plain_rules rules = {american, stake_joins_win, staff_piece, prison, 1};
    known_draws draws(seed, american ? 38 : 37);
    QVector<int> numbers;
    for (int coup = 0; coup < coups; ++coup) {
        numbers.append(draws.next());
        plain.close();
        const std::array<long long, 4> scores = plain.evaluate(numbers.last(), rules);
        for (std::size_t i = 0; i < scores.size(); ++i)
            plain.players[i].credit += scores[i];
        plain.clear_won(rules);
        plain.set_back(rules);
        plain.check_replay();
    }
    QCOMPARE(log.numbers, numbers);
    QCOMPARE(log.wrong_pockets, 0);
    for (std::size_t i = 0; i < plain.players.size(); ++i) {
        const auto player = static_cast<general_player::player_names>(i);
        QCOMPARE(bench.table().credit(player), qint64(plain.players[i].credit));
        QCOMPARE(bench.table().seeded(player), qint64(plain.players[i].seeded));
        QCOMPARE(bench.table().account_of(player).replay, plain.players[i].replay);
        QCOMPARE(bench.child<QLabel>(QStringLiteral("LB_credit_%1").arg(i + 1))->text(),
                 QString::number(plain.players[i].credit));
        QCOMPARE(bench.child<QLabel>(QStringLiteral("LB_seeded_%1").arg(i + 1))->text(),
                 QString::number(plain.players[i].seeded));
    }
}

/// The last test: behind a quit no dialog runs in this program any more.
void tst_super_short_game::quit_by_the_menu_keeps_the_users_own_flag()
{
    desktop_bench bench({slow_game, timed_game});
    bench.trigger("actionStart");
    begin(bench, 0);
    bench.settle();
    QVERIFY(QFile::remove(QStringLiteral("zarvello.ini")));
    bench.trigger("actionBeenden");
    QCOMPARE(flag_in_file(), QByteArray("false"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_super_short_game>(argc, argv);
}
#include "tst_super_short_game.moc"
