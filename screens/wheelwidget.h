#ifndef WHEELWIDGET_H
#define WHEELWIDGET_H

#include <QGraphicsView>

class number_table;
class setting;
class QGraphicsProxyWidget;
class QGraphicsScene;
class QPropertyAnimation;

/**
 * The wheel and its ball. Lets the ball come to rest in the pocket of a number that the game has
 * already drawn; the number never comes from here. Built for one scale and one table form: when
 * either changes, a new widget takes its place. Nothing runs while the ball rests.
 */
class wheelWidget : public QGraphicsView
{
    Q_OBJECT

public:
    /// @param reduction  how much smaller than 401 pixels the wheel is drawn. Range: 0.0 to 0.3
    /// @param american   the wheel with double zero, 38 pockets instead of 37
    explicit wheelWidget(QWidget* parent = nullptr, double reduction = 0.0, bool american = false);

    /// Puts wheel and ball at once where the running throw would have ended, without
    /// `throw_finished()`, also if that was on its way already. Ready for the next throw then.
    /// Does nothing while no throw runs.
    void stop_throw();

    /// True from `start_throw()` until its `throw_finished()` or `stop_throw()`.
    bool is_throwing() const;

public slots:
    /// Throws the ball into the pocket of a number and reports by `throw_finished()`: after 17.4
    /// seconds, in super short mode with the next events. A throw that still runs is stopped.
    /// Range: 0 to 36, on the American wheel 37, the double zero, too; any other is taken as zero.
    void start_throw(int thrown_number);

    /// Lays the ball into the pocket of a number, without animation and without report.
    void set_throw(int shown_number);

    void animation_wheel_finish();
    void animation_ball_finish();

signals:
    void start_now_wheel();
    void start_now_ball();

    /// The ball of `start_throw()` rests.
    void throw_finished();

    /// The right button was pressed while the wheel stands.
    void doubleMouseEventTriggerd();

    /// The left button was pressed while the wheel stands.
    void select_number_by_user_trigger();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void set_up_view(int side);
    void add_wheel(QGraphicsScene* scene, double reduction, int side);
    void add_ball(QGraphicsScene* scene, double reduction);
    void connect_animations();
    void lay_cloth();
    void tell_number(); ///< in whose pocket the ball rests, to a reader of the screen
    void run_throw();
    int pocket_count() const;

    double wheel_angle_start = 0.0; ///< degrees, clockwise, as all angles
    double wheel_angle_end = 0.0;
    double ball_angle_start = 0.0;
    double ball_angle_end = 0.0;
    QPropertyAnimation* wheel_animation = nullptr;
    QPropertyAnimation* ball_animation = nullptr;
    int number = 0;         ///< of this throw
    int target_index = 0;   ///< pockets from the top to where the ball shall rest
    int wheel_steps = 0;    ///< pockets that the wheel turns in this throw, beside its full turns
    int wheel_position = 0; ///< pockets from the top to the wheel's zero
    int ball_turns = 0;     ///< full turns of the ball in this throw
    setting* game_setting;
    number_table* chance_table; ///< of this wheel's own form
    bool direct_set = false;    ///< this throw is only shown
    bool american;
    double pocket_angle;
    QGraphicsProxyWidget* wheel_item = nullptr;
    QGraphicsProxyWidget* ball_item = nullptr;
    bool shows_number = false;   ///< the ball has been laid into a pocket
    bool ball_under_way = false; ///< a throw has begun and its end isn't dealt with
};

#endif // WHEELWIDGET_H
