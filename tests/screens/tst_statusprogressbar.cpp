#include "statusprogressbar.h"
#include "window_bench.h"

#include <QSignalSpy>
#include <QTimer>
#include <QTranslator>

/// The clock of the coup.
class tst_statusprogressbar : public QObject
{
    Q_OBJECT

private slots:
    void a_new_bar_stands_at_zero();
    void every_state_has_its_text_data();
    void every_state_has_its_text();
    void texts_follow_the_language();
    void the_betting_time_counts_33_ticks_a_second_data();
    void the_betting_time_counts_33_ticks_a_second();
    void a_full_bar_closes_the_bets();
    void without_start_at_end_the_wheel_starts_at_the_alarm_mark();
    void start_at_end_can_not_be_taken_back();
    void pause_freezes_the_value();
    void pause_while_the_ball_runs_changes_nothing();
    void a_second_pause_keeps_the_state_before();
    void stop_puts_the_bar_back();
    void manual_time_waits_for_the_hand();
    void manual_time_pauses();
    void a_coup_that_opens_in_a_manual_pause_waits_afterwards();
    void a_throw_by_hand_closes_the_bets();
    void a_throw_by_hand_outside_of_the_betting_time_only_reports();
    void a_new_betting_time_data();
    void a_new_betting_time();
    void the_same_betting_time_leaves_the_bar_alone();
    void a_new_time_within_the_betting_time_goes_on();
    void manual_time_in_a_pause_lasts_behind_it();
    void timed_again_in_a_manual_pause();
    void the_time_changes_in_a_pause_while_the_ball_runs();
    void a_new_time_while_the_ball_runs_keeps_the_bar_full();
    void a_short_game_counts_its_coups_data();
    void a_short_game_counts_its_coups();
    void coups_are_counted_in_a_short_game_only();
    void a_short_game_begins_within_the_betting_time();
    void a_short_game_waits_for_the_end_of_the_pause();
    void a_short_game_begins_in_a_pause();
    void a_short_game_in_manual_time_waits_for_the_hand();
    void the_end_of_a_short_game_data();
    void the_end_of_a_short_game();
    void slots_may_call_back();
    void the_spare_timer_is_connected_to_nothing();
    void the_parts_have_their_colours_data();
    void the_parts_have_their_colours();
    void a_loading_history_fills_the_bar();
    void only_ticks_that_show_are_painted();
};

namespace
{

/// A bar of `seconds` with what it tells. The timers are fired by hand.
struct bar_desk {
    explicit bar_desk(int seconds = 10)
    {
        bar.set_start_at_end(true);
        bar.set_betting_time(seconds);
    }

    QTimer* timer(const char* name) const { return bar.findChild<QTimer*>(name); }
    bool clock_runs() const { return timer("update_timer")->isActive(); }
    bool polls() const { return timer("pause_poll_timer")->isActive(); }

    void tick(int times = 1)
    {
        for (int i = 0; i < times; ++i)
            fire("update_timer");
    }
    void poll()
    {
        timer("pause_poll_timer")->stop(); // it is a single shot
        fire("pause_poll_timer");
    }
    void fire(const char* name)
    {
        QMetaObject::invokeMethod(timer(name), "timeout", Qt::DirectConnection);
    }

    void run_betting_time()
    {
        while (clock_runs())
            tick();
    }

    StatusProgressBar bar;
    QSignalSpy throws{&bar, &StatusProgressBar::start_wheel_throw};
    QSignalSpy blocks{&bar, &StatusProgressBar::block_player_bets};
    QSignalSpy ends{&bar, &StatusProgressBar::deactivate_supershortgame};
};

/// Counts how often a widget is painted.
class paint_counter : public QObject
{
public:
    explicit paint_counter(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) ++paints;
        return false;
    }
    int paints = 0;
};

class bracket_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return '<' + QString::fromUtf8(text) + '>';
    }
};

} // namespace

void tst_statusprogressbar::a_new_bar_stands_at_zero()
{
    const StatusProgressBar bar;
    QCOMPARE(bar.value(), 0);
    QCOMPARE(bar.minimum(), 0);
    QCOMPARE(bar.maximum(), 1000);
    QCOMPARE(bar.get_state(), 0);
}

void tst_statusprogressbar::every_state_has_its_text_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    QTest::newRow("stopped") << 0 << "Starten Sie Ihr Spiel!";
    QTest::newRow("manual, stopped") << 1 << "Manuell - Starten Sie Ihr Spiel!";
    QTest::newRow("manual") << 2 << "Manuell";
    QTest::newRow("betting") << 3 << "Machen Sie Ihr Spiel!";
    QTest::newRow("closed") << 4 << "Nichts geht mehr!";
    QTest::newRow("pause") << 5 << "Pause";
    QTest::newRow("super short") << 6 << "Superkurzspiel aktiv!";
    QTest::newRow("history") << 7 << "Historie wird geladen!";
    QTest::newRow("no such state") << 8 << "";
    QTest::newRow("manual, paused") << 9 << "Manuell / Pause";
}

void tst_statusprogressbar::every_state_has_its_text()
{
    QFETCH(int, state);
    QFETCH(QString, text);
    StatusProgressBar bar;
    bar.set_state(state);
    QCOMPARE(bar.get_state(), state);
    QCOMPARE(bar.text(), text);
}

void tst_statusprogressbar::texts_follow_the_language()
{
    const StatusProgressBar bar;
    bracket_translator brackets;
    QCoreApplication::installTranslator(&brackets);
    QCOMPARE(bar.text(), QString("<Starten Sie Ihr Spiel!>"));
    QCoreApplication::removeTranslator(&brackets);
    QCOMPARE(bar.text(), QString("Starten Sie Ihr Spiel!"));
}

void tst_statusprogressbar::the_betting_time_counts_33_ticks_a_second_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("ticks");
    QTest::newRow("one second") << 1 << 33;
    QTest::newRow("the default") << 60 << 1980;
    QTest::newRow("an hour") << 3600 << 118800;
}

void tst_statusprogressbar::the_betting_time_counts_33_ticks_a_second()
{
    QFETCH(int, seconds);
    QFETCH(int, ticks);
    const bar_desk desk(seconds);
    QCOMPARE(desk.bar.minimum(), 0);
    QCOMPARE(desk.bar.maximum(), ticks);
    QCOMPARE(desk.timer("update_timer")->interval(), 20);
}

void tst_statusprogressbar::a_full_bar_closes_the_bets()
{
    bar_desk desk(1);
    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.get_state(), 3);
    QVERIFY(desk.clock_runs());
    desk.tick(32);
    QCOMPARE(desk.bar.value(), 32);
    desk.tick();
    QCOMPARE(desk.bar.value(), 33);
    QCOMPARE(desk.bar.get_state(), 3);
    QVERIFY(desk.clock_runs());
    QCOMPARE(desk.throws.count(), 0);

    desk.tick();
    QCOMPARE(desk.bar.get_state(), 4);
    QCOMPARE(desk.bar.value(), 33);
    QVERIFY(!desk.clock_runs());
    QCOMPARE(desk.throws.count(), 1);
    QCOMPARE(desk.blocks.count(), 1);

    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.get_state(), 3);
    QCOMPARE(desk.bar.value(), 0);
    QVERIFY(desk.clock_runs());
}

void tst_statusprogressbar::without_start_at_end_the_wheel_starts_at_the_alarm_mark()
{
    StatusProgressBar bar;
    bar.set_betting_time(10); // 330 ticks, red from 313 (95 % are 313.5)
    const QSignalSpy throws(&bar, &StatusProgressBar::start_wheel_throw);
    const QSignalSpy blocks(&bar, &StatusProgressBar::block_player_bets);
    bar.start_status_bar();
    for (int tick = 1; tick <= 312; ++tick)
        bar.update_progress_bar();
    QCOMPARE(throws.count(), 0);
    bar.update_progress_bar();
    QCOMPARE(bar.value(), 313);
    QCOMPARE(throws.count(), 1);
    for (int tick = 314; tick <= 331; ++tick)
        bar.update_progress_bar();
    QCOMPARE(bar.get_state(), 4);
    QCOMPARE(throws.count(), 1);
    QCOMPARE(blocks.count(), 1);
}

void tst_statusprogressbar::start_at_end_can_not_be_taken_back()
{
    bar_desk desk(10);
    desk.bar.set_start_at_end(false);
    desk.bar.start_status_bar();
    desk.tick(330);
    QCOMPARE(desk.throws.count(), 0);
    desk.tick();
    QCOMPARE(desk.throws.count(), 1);
}

void tst_statusprogressbar::pause_freezes_the_value()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(100);
    desk.bar.set_pause(true);
    QCOMPARE(desk.bar.get_state(), 3); // until the next tick
    desk.tick(50);
    QCOMPARE(desk.bar.get_state(), 5);
    QCOMPARE(desk.bar.value(), 100);
    QVERIFY(desk.clock_runs());
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 3);
    QCOMPARE(desk.bar.value(), 100);
    desk.tick();
    QCOMPARE(desk.bar.value(), 101);
}

void tst_statusprogressbar::pause_while_the_ball_runs_changes_nothing()
{
    bar_desk desk(1);
    desk.bar.start_status_bar();
    desk.run_betting_time();
    desk.bar.set_pause(true);
    QCOMPARE(desk.bar.get_state(), 4);
    // The coup ends within the pause and the next betting time stands from its first tick on.
    desk.bar.start_status_bar();
    desk.tick(3);
    QCOMPARE(desk.bar.get_state(), 5);
    QCOMPARE(desk.bar.value(), 0);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 3);
}

void tst_statusprogressbar::a_second_pause_keeps_the_state_before()
{
    bar_desk desk(0);
    desk.bar.start_status_bar();
    desk.bar.set_pause(true);
    desk.bar.set_pause(true);
    QCOMPARE(desk.bar.get_state(), 9);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 2);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 2);
}

void tst_statusprogressbar::stop_puts_the_bar_back()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(100);
    desk.bar.set_pause(true);
    desk.bar.set_super_short(true, 5);
    QVERIFY(desk.polls());
    desk.bar.stop_status_bar();
    QCOMPARE(desk.bar.text(), QString("Starten Sie Ihr Spiel!"));
    QCOMPARE(desk.bar.value(), 0);
    QVERIFY(!desk.clock_runs());
    QVERIFY(!desk.polls());
    // Neither pause nor super short game are left.
    desk.bar.set_pause(false);
    desk.bar.set_super_short(false, 0);
    QCOMPARE(desk.bar.get_state(), 0);
    desk.bar.start_status_bar();
    desk.tick();
    QCOMPARE(desk.bar.get_state(), 3);
    QCOMPARE(desk.bar.value(), 1);
    QCOMPARE(desk.throws.count(), 0);
}

void tst_statusprogressbar::manual_time_waits_for_the_hand()
{
    bar_desk desk(0);
    QCOMPARE(desk.bar.get_state(), 1);
    QCOMPARE(desk.timer("update_timer")->interval(), 0);
    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.text(), QString("Manuell"));
    QVERIFY(!desk.clock_runs());
    QCOMPARE(desk.throws.count(), 0);

    desk.bar.start_wheel_throw_by_hand();
    QCOMPARE(desk.throws.count(), 1);
    QCOMPARE(desk.blocks.count(), 1);
    QCOMPARE(desk.bar.get_state(), 4);
    QCOMPARE(desk.bar.value(), desk.bar.maximum());

    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.get_state(), 2);
    QCOMPARE(desk.bar.value(), 0);
    desk.bar.stop_status_bar();
    QCOMPARE(desk.bar.get_state(), 0);
}

void tst_statusprogressbar::manual_time_pauses()
{
    bar_desk desk(0);
    desk.bar.start_status_bar();
    desk.bar.set_pause(true);
    QCOMPARE(desk.bar.text(), QString("Manuell / Pause"));
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.text(), QString("Manuell"));

    desk.bar.start_wheel_throw_by_hand();
    desk.bar.set_pause(true);
    QCOMPARE(desk.bar.get_state(), 9);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 4);
}

void tst_statusprogressbar::a_coup_that_opens_in_a_manual_pause_waits_afterwards()
{
    bar_desk desk(0);
    desk.bar.start_status_bar();
    desk.bar.start_wheel_throw_by_hand();
    desk.bar.set_pause(true);
    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.get_state(), 9);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 2);
}

void tst_statusprogressbar::a_throw_by_hand_closes_the_bets()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(100);
    desk.bar.start_wheel_throw_by_hand();
    QVERIFY(!desk.clock_runs());
    QCOMPARE(desk.bar.value(), 330);
    QCOMPARE(desk.bar.get_state(), 4);
    QCOMPARE(desk.throws.count(), 1);
    QCOMPARE(desk.blocks.count(), 1);
}

void tst_statusprogressbar::a_throw_by_hand_outside_of_the_betting_time_only_reports()
{
    bar_desk desk;
    desk.bar.start_wheel_throw_by_hand();
    QCOMPARE(desk.bar.get_state(), 0);
    QCOMPARE(desk.bar.value(), 0);
    QCOMPARE(desk.throws.count(), 1);
}

void tst_statusprogressbar::a_new_betting_time_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("phase");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("clock_runs");
    QTest::newRow("stopped, to manual") << 10 << "stopped" << 0 << 1 << false;
    QTest::newRow("stopped, less than nothing") << 10 << "stopped" << -5 << 1 << false;
    QTest::newRow("stopped, to timed") << 0 << "stopped" << 10 << 0 << false;
    QTest::newRow("stopped, still manual") << 0 << "stopped" << 0 << 1 << false;
    QTest::newRow("open, to manual") << 10 << "open" << 0 << 2 << false;
    QTest::newRow("open, to timed") << 0 << "open" << 10 << 3 << true;
    QTest::newRow("open, other time") << 10 << "open" << 20 << 3 << true;
    QTest::newRow("pause, to manual") << 10 << "pause" << 0 << 9 << false;
    QTest::newRow("pause, to timed") << 0 << "pause" << 10 << 5 << true;
    QTest::newRow("ball, to manual") << 10 << "ball" << 0 << 4 << false;
    QTest::newRow("ball, to timed") << 0 << "ball" << 10 << 4 << false;
}

void tst_statusprogressbar::a_new_betting_time()
{
    QFETCH(int, before);
    QFETCH(QString, phase);
    QFETCH(int, after);
    QFETCH(int, state);
    QFETCH(bool, clock_runs);
    bar_desk desk(before);
    if (phase != "stopped") desk.bar.start_status_bar();
    if (phase == "pause") desk.bar.set_pause(true);
    if (phase == "ball") desk.bar.start_wheel_throw_by_hand();
    desk.bar.set_betting_time(after);
    if (phase == "pause" && desk.clock_runs()) desk.tick();
    QCOMPARE(desk.bar.get_state(), state);
    QCOMPARE(desk.clock_runs(), clock_runs);
    QCOMPARE(desk.throws.count(), phase == "ball" ? 1 : 0);
}

void tst_statusprogressbar::the_same_betting_time_leaves_the_bar_alone()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(100);
    desk.bar.set_betting_time(10);
    QCOMPARE(desk.bar.value(), 100);
    QCOMPARE(desk.bar.get_state(), 3);
    QVERIFY(desk.clock_runs());

    desk.bar.stop_status_bar();
    desk.bar.set_betting_time(0);
    desk.bar.start_status_bar();
    desk.bar.set_betting_time(0);
    QCOMPARE(desk.bar.get_state(), 2);
}

void tst_statusprogressbar::a_new_time_within_the_betting_time_goes_on()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(100);
    desk.bar.set_betting_time(20);
    QCOMPARE(desk.bar.maximum(), 660);
    QCOMPARE(desk.bar.value(), 100);
    desk.bar.set_betting_time(2); // shorter than what has gone by: over with the next tick
    QCOMPARE(desk.bar.value(), 66);
    desk.tick();
    QCOMPARE(desk.bar.get_state(), 4);
    QCOMPARE(desk.throws.count(), 1);
}

void tst_statusprogressbar::manual_time_in_a_pause_lasts_behind_it()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(100);
    desk.bar.set_pause(true);
    desk.tick();
    desk.bar.set_betting_time(0);
    QCOMPARE(desk.bar.get_state(), 9);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 2);
    QVERIFY(!desk.clock_runs());
    QCOMPARE(desk.bar.value(), 0);
}

void tst_statusprogressbar::timed_again_in_a_manual_pause()
{
    bar_desk desk(0);
    desk.bar.start_status_bar();
    desk.bar.set_pause(true);
    desk.bar.set_betting_time(10);
    desk.tick(5);
    QCOMPARE(desk.bar.get_state(), 5);
    QCOMPARE(desk.bar.value(), 0);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 3);
    desk.tick();
    QCOMPARE(desk.bar.value(), 1);
}

void tst_statusprogressbar::the_time_changes_in_a_pause_while_the_ball_runs()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.bar.start_wheel_throw_by_hand();
    desk.bar.set_pause(true);
    desk.bar.set_betting_time(0);
    QCOMPARE(desk.bar.get_state(), 9);
    desk.bar.set_betting_time(5);
    QCOMPARE(desk.bar.get_state(), 4);
    desk.bar.set_pause(false);
    QCOMPARE(desk.bar.get_state(), 4);
    QVERIFY(!desk.clock_runs());
}

void tst_statusprogressbar::a_new_time_while_the_ball_runs_keeps_the_bar_full()
{
    bar_desk desk(1);
    desk.bar.start_status_bar();
    desk.run_betting_time();
    desk.bar.set_betting_time(20);
    QCOMPARE(desk.bar.value(), 660);
    desk.bar.set_betting_time(2);
    QCOMPARE(desk.bar.value(), 66);
    QCOMPARE(desk.bar.get_state(), 4);
}

void tst_statusprogressbar::a_short_game_counts_its_coups_data()
{
    QTest::addColumn<int>("coups");
    QTest::newRow("one") << 1;
    QTest::newRow("five") << 5;
}

void tst_statusprogressbar::a_short_game_counts_its_coups()
{
    QFETCH(int, coups);
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.bar.set_super_short(true, coups);
    for (int coup = 1; coup <= coups; ++coup) {
        QCOMPARE(desk.bar.get_state(), 6);
        QCOMPARE(desk.bar.value(), 330);
        QCOMPARE(desk.throws.count(), coup);
        QCOMPARE(desk.ends.count(), 0);
        desk.bar.count_coup();
        if (coup < coups) desk.bar.start_status_bar();
    }
    QCOMPARE(desk.ends.count(), 1);
    desk.bar.set_super_short(false, 0);
    QCOMPARE(desk.bar.get_state(), 4);
    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.get_state(), 3);
    QCOMPARE(desk.throws.count(), coups);
}

void tst_statusprogressbar::coups_are_counted_in_a_short_game_only()
{
    bar_desk desk;
    desk.bar.count_coup();
    desk.bar.start_status_bar();
    desk.bar.set_super_short(true, 0);
    for (int coup = 0; coup < 1000; ++coup)
        desk.bar.count_coup();
    QCOMPARE(desk.ends.count(), 0);
    desk.bar.set_super_short(false, 0);
    desk.bar.count_coup();
    QCOMPARE(desk.ends.count(), 0);
}

void tst_statusprogressbar::a_short_game_begins_within_the_betting_time()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(10);
    desk.bar.set_super_short(true, 3);
    QCOMPARE(desk.bar.text(), QString("Superkurzspiel aktiv!"));
    QVERIFY(!desk.clock_runs());
    QCOMPARE(desk.bar.value(), 330);
    QCOMPARE(desk.throws.count(), 1);

    // While the ball of a coup runs it only waits for the next one.
    bar_desk other;
    other.bar.start_status_bar();
    other.bar.start_wheel_throw_by_hand();
    other.bar.set_super_short(true, 3);
    QCOMPARE(other.bar.get_state(), 4);
    QCOMPARE(other.throws.count(), 1);
    other.bar.start_status_bar();
    QCOMPARE(other.bar.get_state(), 6);
    QCOMPARE(other.throws.count(), 2);
}

void tst_statusprogressbar::a_short_game_waits_for_the_end_of_the_pause()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.bar.set_super_short(true, 3);
    desk.bar.set_pause(true);
    desk.bar.start_status_bar();
    for (int polls = 0; polls < 3; ++polls) {
        QCOMPARE(desk.bar.get_state(), 5);
        QVERIFY(desk.polls());
        QCOMPARE(desk.timer("pause_poll_timer")->interval(), 10);
        QVERIFY(desk.timer("pause_poll_timer")->isSingleShot());
        QCOMPARE(desk.throws.count(), 1);
        desk.poll();
    }
    desk.bar.set_pause(false);
    QCOMPARE(desk.throws.count(), 1);
    desk.poll();
    QCOMPARE(desk.bar.get_state(), 6);
    QVERIFY(!desk.polls());
    QCOMPARE(desk.throws.count(), 2);
}

void tst_statusprogressbar::a_short_game_begins_in_a_pause()
{
    bar_desk desk;
    desk.bar.start_status_bar();
    desk.tick(10);
    desk.bar.set_pause(true);
    desk.bar.set_super_short(true, 3);
    QCOMPARE(desk.bar.get_state(), 5);
    QCOMPARE(desk.bar.value(), 330);
    QVERIFY(!desk.clock_runs());
    QVERIFY(desk.polls());
    QCOMPARE(desk.throws.count(), 0);
    desk.bar.set_pause(false);
    desk.poll();
    QCOMPARE(desk.bar.get_state(), 6);
    QCOMPARE(desk.throws.count(), 1);
}

void tst_statusprogressbar::a_short_game_in_manual_time_waits_for_the_hand()
{
    bar_desk desk(0);
    desk.bar.start_status_bar();
    desk.bar.set_super_short(true, 2);
    QCOMPARE(desk.bar.get_state(), 2);
    QCOMPARE(desk.throws.count(), 0);
    desk.bar.start_wheel_throw_by_hand();
    desk.bar.count_coup();
    desk.bar.start_status_bar();
    QCOMPARE(desk.bar.get_state(), 2);
    QCOMPARE(desk.throws.count(), 1);
    QCOMPARE(desk.ends.count(), 0);
    desk.bar.start_wheel_throw_by_hand();
    desk.bar.count_coup();
    QCOMPARE(desk.ends.count(), 1);
}

void tst_statusprogressbar::the_end_of_a_short_game_data()
{
    QTest::addColumn<QString>("phase");
    QTest::addColumn<int>("state");
    QTest::newRow("there was none: stopped") << "stopped" << 0;
    QTest::newRow("there was none: betting") << "betting" << 3;
    QTest::newRow("the ball runs") << "ball" << 4;
    QTest::newRow("the user is waited for") << "manual" << 2;
}

void tst_statusprogressbar::the_end_of_a_short_game()
{
    QFETCH(QString, phase);
    QFETCH(int, state);
    bar_desk desk(phase == "manual" ? 0 : 10);
    if (phase != "stopped") desk.bar.start_status_bar();
    if (phase == "ball" || phase == "manual") desk.bar.set_super_short(true, 0);
    desk.bar.set_super_short(false, 0);
    QCOMPARE(desk.bar.get_state(), state);
}

void tst_statusprogressbar::slots_may_call_back()
{
    bar_desk desk(1);
    // Whoever is told stops the game at once, as a box over the table may.
    connect(&desk.bar,
            &StatusProgressBar::start_wheel_throw,
            &desk.bar,
            &StatusProgressBar::stop_status_bar);
    connect(&desk.bar, &StatusProgressBar::deactivate_supershortgame, &desk.bar, [&] {
        desk.bar.set_super_short(false, 0);
    });
    desk.bar.start_status_bar();
    desk.run_betting_time();
    QCOMPARE(desk.bar.get_state(), 0);
    desk.bar.start_status_bar();
    desk.bar.set_super_short(true, 1);
    QCOMPARE(desk.bar.get_state(), 0);
    desk.bar.set_super_short(true, 1);
    desk.bar.count_coup();
    QCOMPARE(desk.ends.count(), 1);
    QCOMPARE(desk.bar.get_state(), 4);
}

void tst_statusprogressbar::the_spare_timer_is_connected_to_nothing()
{
    bar_desk desk;
    QCOMPARE(desk.timer("spare_timer")->interval(), 10000);
    QVERIFY(!desk.timer("spare_timer")->isActive());
    desk.bar.start_status_bar();
    desk.tick(10);
    desk.fire("spare_timer");
    QCOMPARE(desk.bar.value(), 10);
    QCOMPARE(desk.bar.get_state(), 3);
}

void tst_statusprogressbar::the_parts_have_their_colours_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<bool>("single_colour");
    QTest::addColumn<QString>("at_10");
    QTest::addColumn<QString>("at_80");
    QTest::addColumn<QString>("at_98");
    QTest::newRow("empty") << 0 << false << "none"
                           << "none"
                           << "none";
    QTest::newRow("in time") << 50 << false << "green"
                             << "none"
                             << "none";
    QTest::newRow("warning") << 90 << false << "green"
                             << "orange"
                             << "none";
    QTest::newRow("full") << 100 << false << "green"
                          << "orange"
                          << "red";
    QTest::newRow("one colour") << 100 << true << "green"
                                << "green"
                                << "green";
    QTest::newRow("one colour, part") << 90 << true << "green"
                                      << "green"
                                      << "none";
}

void tst_statusprogressbar::the_parts_have_their_colours()
{
    QFETCH(int, percent);
    QFETCH(bool, single_colour);
    QFETCH(QString, at_10);
    QFETCH(QString, at_80);
    QFETCH(QString, at_98);
    StatusProgressBar bar;
    bar.resize(1000, 30);
    bar.set_state(8); // no text over the colours
    bar.set_single_colour(single_colour);
    bar.setValue(percent * 10);
    const QImage picture = bar.grab().toImage();
    const auto colour_at = [&](int x) -> QString {
        const QColor colour = picture.pixelColor(x, 15);
        if (colour.saturation() < 60) return "none";
        const int hue = colour.hue();
        if (hue < 15 || hue > 345) return "red";
        if (colour == QColor(255, 127, 0)) return "orange";
        return hue > 90 && hue < 150 ? "green" : colour.name();
    };
    QCOMPARE(colour_at(100), at_10);
    QCOMPARE(colour_at(800), at_80);
    QCOMPARE(colour_at(980), at_98);
}

void tst_statusprogressbar::a_loading_history_fills_the_bar()
{
    StatusProgressBar bar;
    bar.resize(1000, 30);
    bar.set_state(7);
    const QImage picture = bar.grab().toImage();
    for (const int x : {5, 300, 700, 995}) {
        const QColor colour = picture.pixelColor(x, 15);
        QVERIFY(colour.red() > 2 * colour.green() && colour.red() > 2 * colour.blue());
    }
}

void tst_statusprogressbar::only_ticks_that_show_are_painted()
{
    bar_desk desk(100); // 3300 ticks on 100 pixels
    desk.bar.setFixedSize(102, 30);
    desk.bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.bar));
    desk.bar.start_status_bar();
    paint_counter counter(&desk.bar);
    desk.tick(3300);
    QVERIFY2(counter.paints >= 100 && counter.paints <= 110,
             qPrintable(QString::number(counter.paints)));
    // A new text is painted at once.
    counter.paints = 0;
    desk.tick();
    QCOMPARE(counter.paints, 1);
    desk.bar.start_status_bar();
    desk.bar.set_pause(true);
    counter.paints = 0;
    desk.tick(10);
    QCOMPARE(counter.paints, 1);
    desk.bar.set_pause(false);
    counter.paints = 0;
    desk.tick(10);
    QCOMPARE(counter.paints, 0);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_statusprogressbar>(argc, argv);
}

#include "tst_statusprogressbar.moc"
