#ifndef STATUSPROGRESSBAR_H
#define STATUSPROGRESSBAR_H

#include <QHash>
#include <QMutex>
#include <QProgressBar>
#include <QString>

#include <functional>

class QTimer;

/// What the time bar can show; the numbers are those of `StatusProgressBar::get_state()`.
namespace bar_state
{

constexpr int stopped = 0;         ///< no game runs
constexpr int manual_stopped = 1;  ///< no game runs, the next one has no betting time
constexpr int manual = 2;          ///< bets are open until the ball is thrown by hand
constexpr int betting = 3;         ///< bets are open, the time runs
constexpr int closed = 4;          ///< the ball runs, wins are counted
constexpr int paused = 5;          ///< the time stands
constexpr int super_short = 6;     ///< coups follow each other without betting time
constexpr int history_loading = 7; ///< the numbers of a year are being read
constexpr int manual_paused = 9;   ///< as `manual`, with the game in pause

} // namespace bar_state

/**
 * The clock of the coup: runs the betting time, shows the phase of the coup, closes the bets and
 * carries the super short game, in which coups follow without betting time. A tick of 20 ms adds
 * 1 to the value, and a second of the setting counts 33 ticks. Whether bets are open it knows by
 * its own state, see `bar_state`. Signals are emitted with no lock held.
 */
class StatusProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit StatusProgressBar(QWidget* parent = nullptr);

    /// Range of the value, and from which percent of the maximum on the bar is orange and red.
    void configure(int minimum, int maximum, int warn, int alarm);

    /// The betting time; 0 is manual time, in which every throw waits for the user. Bets that are
    /// open stay open: a running time goes on from its present tick, or waits for the user from
    /// now on; a wait for the user becomes a full betting time. While the ball runs the new time
    /// counts from the next coup. The same seconds as before leave a running bar alone. Range: 0
    /// to 1 million; less is taken as 0.
    void set_betting_time(int seconds);

    /// The orange and the red part are green too.
    void set_single_colour(bool on);

    /// From the first call on the wheel starts when the bar is full, and never before, whatever
    /// the argument. Until then it starts where the red part begins.
    void set_start_at_end(bool on);

    /// Halts the betting time, or the coups of a super short game; without pause they go on from
    /// the same value. A ball that runs is not held.
    void set_pause(bool on);

    /// Begins or ends a super short game of so many coups, 0 for an endless one. Begun within the
    /// betting time it throws at once, in pause as soon as the pause is over. Manual time goes on
    /// in it. Ending one that isn't there changes nothing.
    void set_super_short(bool on, int coups);

    /// Call it when the number of a coup has come: counts down a super short game and tells when
    /// this was its last coup.
    void count_coup();

    /// Shows one of `bar_state`.
    void set_state(int new_state);
    int get_state() const { return state; }

    /// The text of the state in the present language.
    QString text() const override;

public slots:
    /// Opens a betting phase: by time, by hand, or in a super short game by an immediate throw.
    void start_status_bar();

    /// The game has ended: no time, no pause, no super short game.
    void stop_status_bar();

    /// Closes the bets now.
    void start_wheel_throw_by_hand();

    /// One tick of the betting time.
    void update_progress_bar();

signals:
    void start_wheel_throw();
    void block_player_bets();
    void deactivate_supershortgame();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// What a change of state leaves to do when the lock is free again.
    struct bar_change {
        int new_value;
        bool repaint = false;
        bool start_throw = false;
        bool block_bets = false;
        bool end_short_game = false;
    };

    void run(const std::function<bar_change()>& step);
    void set_value_unpainted(int new_value);
    void tell_phase(); ///< to a reader of the screen

    // With the lock held.
    bar_change change_nothing() const { return {value()}; }
    bar_change change_to_manual();
    bar_change change_to_time(int seconds);
    bar_change begin_pause();
    bar_change end_pause();
    bar_change begin_short_game(int coups);
    bar_change end_short_game();
    bar_change count_short_coup();
    bar_change open_bets();
    bar_change open_short_coup();
    bar_change wait_for_user();
    bar_change stop_game();
    bar_change close_bets_by_hand();
    bar_change tick();

    void enter(int new_state);
    void stop_timers();
    bool is_stopped() const;
    bool is_manual() const;
    bool bets_are_open() const;
    bool waits_for_user() const;

    int width_of(int tick) const;
    void paint_time(QPainter& painter, const QRect& area) const;

    QTimer* update_timer;
    QTimer* spare_timer; ///< connected to nothing
    QTimer* pause_poll_timer;
    int last_value = 0;
    int short_coups_left = 0; ///< 0 for an endless super short game
    QHash<int, QString> texts;
    int state = bar_state::stopped;
    int state_before_pause = bar_state::stopped;
    int warn_from = 0;  ///< where the orange part begins
    int alarm_from = 0; ///< where the red part begins
    bool paused = false;
    bool super_short = false;
    bool start_at_end = false;
    bool single_colour = false;
    QMutex state_mutex;
    QMutex paint_mutex;
    int warn_percent = 75;
    int alarm_percent = 95;
    int betting_seconds = -1; ///< not told yet
};

#endif // STATUSPROGRESSBAR_H
