#include "setting.h"
#include "wheelwidget.h"
#include "window_bench.h"

#include <QGraphicsProxyWidget>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPropertyAnimation>
#include <QSignalSpy>

#include <algorithm>
#include <cmath>
#include <random>

/// Wheel and ball: the ball rests in the pocket of the number, and its rest is reported.
class tst_wheelwidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void the_ball_rests_in_its_pocket_data();
    void the_ball_rests_in_its_pocket();
    void throws_of_all_kinds_may_follow_each_other_data();
    void throws_of_all_kinds_may_follow_each_other();
    void a_throw_lasts_as_told_data();
    void a_throw_lasts_as_told();
    void the_wheel_turns_twice_and_by_whole_pockets();
    void the_ball_runs_three_turns_against_the_wheel();
    void a_short_throw_reports_with_the_next_events();
    void a_shown_number_is_never_reported();
    void a_stopped_throw_rests_without_report_data();
    void a_stopped_throw_rests_without_report();
    void a_report_on_its_way_is_stopped_too();
    void a_throw_in_mid_throw_reports_once();
    void the_next_throw_can_begin_within_the_report();
    void clicks_count_while_the_wheel_stands();
    void sizes_follow_the_scale_data();
    void sizes_follow_the_scale();
    void only_an_open_gl_of_a_graphics_card_is_used();
};

namespace
{

const QVector<int> french_wheel = {0,  32, 15, 19, 4,  21, 2,  25, 17, 34, 6, 27, 13,
                                   36, 11, 30, 8,  23, 10, 5,  24, 16, 33, 1, 20, 14,
                                   31, 9,  22, 18, 29, 7,  28, 12, 35, 3,  26};
const QVector<int> american_wheel = {0,  28, 9,  26, 30, 11, 7,  20, 32, 17, 5,  22, 34,
                                     15, 3,  24, 36, 13, 1,  37, 27, 10, 25, 29, 12, 8,
                                     19, 31, 18, 6,  21, 33, 16, 4,  23, 35, 14, 2};

/// A wheel with what a test looks at.
struct wheel_desk {
    explicit wheel_desk(bool is_american = false, double reduction = 0.0)
        : american(is_american)
        , wheel(nullptr, reduction, is_american)
    {
    }

    const QVector<int>& order() const { return american ? american_wheel : french_wheel; }
    double pocket() const { return 360.0 / order().size(); }

    QGraphicsProxyWidget* item(const char* name) const
    {
        for (QGraphicsItem* each : wheel.scene()->items()) {
            auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(each);
            if (proxy && proxy->objectName() == name) return proxy;
        }
        return nullptr;
    }

    QPropertyAnimation* ball_animation() const { return animation("ball_animation"); }
    QPropertyAnimation* wheel_animation() const { return animation("wheel_animation"); }
    QPropertyAnimation* animation(const char* name) const
    {
        return wheel.findChild<QPropertyAnimation*>(name);
    }

    bool runs() const
    {
        return wheel_animation()->state() == QAbstractAnimation::Running ||
               ball_animation()->state() == QAbstractAnimation::Running;
    }

    /// Lets running animations and what they have posted come to their end.
    void run_to_the_end()
    {
        for (QPropertyAnimation* each : {wheel_animation(), ball_animation()}) {
            if (each->state() == QAbstractAnimation::Running)
                each->setCurrentTime(each->duration());
        }
        deliver();
    }
    void deliver() { QCoreApplication::sendPostedEvents(&wheel, QEvent::MetaCall); }

    /// Where the ball lies on the turned wheel, measured on the scene. Unit: pockets clockwise
    /// from the middle of the zero. Range: 0 to below the number of pockets.
    double pocket_of_ball() const
    {
        const QGraphicsProxyWidget* disk = item("wheel_item");
        const QGraphicsProxyWidget* ball = item("ball_item");
        const QPointF centre = disk->mapToScene(disk->rect().center());
        const QPointF way = ball->mapToScene(ball->rect().center()) - centre;
        const double from_top = std::atan2(way.x(), -way.y()) * 180.0 / M_PI;
        const double on_wheel = std::fmod(from_top - disk->rotation(), 360.0);
        return std::fmod(on_wheel + 720.0, 360.0) / pocket();
    }

    bool ball_rests_at(int number) const
    {
        const double off = std::abs(pocket_of_ball() - order().indexOf(number));
        return std::min(off, order().size() - off) < 0.25;
    }

    QVector<int> shuffled_numbers(unsigned seed) const
    {
        QVector<int> numbers = order();
        std::shuffle(numbers.begin(), numbers.end(), std::mt19937(seed));
        return numbers;
    }

    bool american;
    wheelWidget wheel;
};

/// Every number in an order of its own, three times over.
QVector<int> many_numbers(const wheel_desk& desk)
{
    return desk.shuffled_numbers(1) + desk.shuffled_numbers(2) + desk.shuffled_numbers(3);
}

} // namespace

void tst_wheelwidget::init()
{
    setting::instance().set_s_su_shortthrow_activ(false);
    setting::instance().set_s_wheel_disabled(false);
}

void tst_wheelwidget::the_ball_rests_in_its_pocket_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<double>("reduction");
    QTest::addColumn<bool>("short_throw");
    QTest::addColumn<bool>("wheel_disabled");
    QTest::newRow("French, full animation") << false << 0.0 << false << false;
    QTest::newRow("American, full animation") << true << 0.0 << false << false;
    QTest::newRow("French, small") << false << 0.3 << false << false;
    QTest::newRow("American, small") << true << 0.1 << false << false;
    QTest::newRow("French, super short") << false << 0.0 << true << false;
    QTest::newRow("American, super short") << true << 0.0 << true << false;
    QTest::newRow("French, wheel stands") << false << 0.0 << false << true;
    QTest::newRow("American, wheel stands") << true << 0.0 << false << true;
    QTest::newRow("French, both") << false << 0.2 << true << true;
}

void tst_wheelwidget::the_ball_rests_in_its_pocket()
{
    QFETCH(bool, american);
    QFETCH(double, reduction);
    QFETCH(bool, short_throw);
    QFETCH(bool, wheel_disabled);
    setting::instance().set_s_su_shortthrow_activ(short_throw);
    setting::instance().set_s_wheel_disabled(wheel_disabled);
    wheel_desk desk(american, reduction);
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    int throws = 0;
    for (const int number : many_numbers(desk)) {
        desk.wheel.start_throw(number);
        QVERIFY(desk.wheel.is_throwing());
        desk.run_to_the_end();
        QVERIFY2(desk.ball_rests_at(number), qPrintable(QString::number(number)));
        QCOMPARE(finished.count(), ++throws);
        QVERIFY(!desk.wheel.is_throwing());
        QVERIFY(!desk.runs());
    }
}

void tst_wheelwidget::throws_of_all_kinds_may_follow_each_other_data()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("French") << false;
    QTest::newRow("American") << true;
}

void tst_wheelwidget::throws_of_all_kinds_may_follow_each_other()
{
    QFETCH(bool, american);
    wheel_desk desk(american);
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    std::mt19937 random(7);
    int reports = 0;
    for (const int number : many_numbers(desk)) {
        setting::instance().set_s_su_shortthrow_activ(random() % 3 == 0);
        setting::instance().set_s_wheel_disabled(random() % 3 == 0);
        switch (random() % 4) {
        case 0:
            desk.wheel.set_throw(number);
            desk.deliver();
            break;
        case 1:
            desk.wheel.start_throw(number);
            desk.wheel.stop_throw();
            break;
        case 2: // in the middle of another one
            desk.wheel.start_throw(desk.order().at(5));
            desk.wheel.set_throw(number);
            desk.deliver();
            break;
        default:
            desk.wheel.start_throw(number);
            desk.run_to_the_end();
            ++reports;
        }
        QVERIFY2(desk.ball_rests_at(number), qPrintable(QString::number(number)));
        QCOMPARE(finished.count(), reports);
        QVERIFY(!desk.runs());
    }
}

void tst_wheelwidget::a_throw_lasts_as_told_data()
{
    QTest::addColumn<bool>("short_throw");
    QTest::addColumn<bool>("wheel_disabled");
    QTest::addColumn<bool>("wheel_runs");
    QTest::addColumn<bool>("ball_runs");
    QTest::newRow("animated") << false << false << true << true;
    QTest::newRow("the ball alone") << false << true << false << true;
    QTest::newRow("super short") << true << false << false << false;
}

void tst_wheelwidget::a_throw_lasts_as_told()
{
    QFETCH(bool, short_throw);
    QFETCH(bool, wheel_disabled);
    QFETCH(bool, wheel_runs);
    QFETCH(bool, ball_runs);
    setting::instance().set_s_su_shortthrow_activ(short_throw);
    setting::instance().set_s_wheel_disabled(wheel_disabled);
    wheel_desk desk;
    desk.wheel.start_throw(17);
    QCOMPARE(desk.wheel_animation()->state() == QAbstractAnimation::Running, wheel_runs);
    QCOMPARE(desk.ball_animation()->state() == QAbstractAnimation::Running, ball_runs);
    QCOMPARE(desk.wheel_animation()->duration(), 17400);
    QCOMPARE(desk.ball_animation()->duration(), ball_runs ? 17400 : 0);
    if (!wheel_runs) QCOMPARE(desk.item("wheel_item")->rotation(), 0.0);
}

void tst_wheelwidget::the_wheel_turns_twice_and_by_whole_pockets()
{
    wheel_desk desk;
    QSet<int> seen;
    for (int coup = 0; coup < 60; ++coup) {
        desk.wheel.start_throw(coup % 37);
        const QPropertyAnimation* animation = desk.wheel_animation();
        const double way =
            animation->endValue().toDouble() - animation->startValue().toDouble() - 720.0;
        const int pockets = qRound(way / desk.pocket());
        QVERIFY(std::abs(way - pockets * desk.pocket()) < 1e-6);
        QVERIFY(pockets >= 0 && pockets < 37);
        QVERIFY(animation->startValue().toDouble() <= 360.0);
        seen.insert(pockets);
        desk.run_to_the_end();
    }
    // 60 draws out of 37 meet about 30 of them; ten would mean that they are not random.
    QVERIFY(seen.size() > 10);
}

void tst_wheelwidget::the_ball_runs_three_turns_against_the_wheel()
{
    setting::instance().set_s_wheel_disabled(true);
    wheel_desk desk;
    // The first throw begins at the top: number 0 lies one full turn back, and three turns more.
    desk.wheel.start_throw(0);
    QCOMPARE(desk.ball_animation()->startValue().toDouble(), 0.0);
    QCOMPARE(desk.ball_animation()->endValue().toDouble(), -4 * 360.0 + 1.0);
    desk.ball_animation()->setCurrentTime(8700);
    // Half of the time with a curve that slows down as a square: three quarters of the way.
    QCOMPARE(desk.item("ball_item")->rotation(), 0.75 * (-4 * 360.0 + 1.0));
    desk.run_to_the_end();
    // From now on the ball begins between one and two turns up.
    desk.wheel.start_throw(32);
    QCOMPARE(desk.ball_animation()->startValue().toDouble(), 360.0);
    QCOMPARE(desk.ball_animation()->endValue().toDouble(), -36 * 360.0 / 37 - 3 * 360.0 + 1.0);
}

void tst_wheelwidget::a_short_throw_reports_with_the_next_events()
{
    setting::instance().set_s_su_shortthrow_activ(true);
    wheel_desk desk;
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    desk.wheel.start_throw(26);
    QCOMPARE(finished.count(), 0);
    QVERIFY(desk.ball_rests_at(26));
    QCoreApplication::processEvents();
    QCOMPARE(finished.count(), 1);
}

void tst_wheelwidget::a_shown_number_is_never_reported()
{
    wheel_desk desk;
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    desk.wheel.set_throw(8);
    QVERIFY(!desk.wheel.is_throwing());
    desk.deliver();
    QVERIFY(desk.ball_rests_at(8));
    QCOMPARE(finished.count(), 0);
    // The next throw reports again, also when it follows before any event.
    desk.wheel.set_throw(9);
    desk.wheel.start_throw(10);
    desk.deliver();
    QCOMPARE(finished.count(), 0);
    QVERIFY(desk.wheel.is_throwing());
    desk.run_to_the_end();
    QCOMPARE(finished.count(), 1);
    QVERIFY(desk.ball_rests_at(10));
}

void tst_wheelwidget::a_stopped_throw_rests_without_report_data()
{
    QTest::addColumn<int>("time");
    QTest::newRow("at the start") << 0;
    QTest::newRow("in the middle") << 8000;
    QTest::newRow("just before the end") << 17399;
}

void tst_wheelwidget::a_stopped_throw_rests_without_report()
{
    QFETCH(int, time);
    wheel_desk desk;
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    desk.wheel.start_throw(35);
    desk.wheel_animation()->setCurrentTime(time);
    desk.ball_animation()->setCurrentTime(time);
    QVERIFY(desk.runs());
    desk.wheel.stop_throw();
    QVERIFY(!desk.runs());
    QVERIFY(!desk.wheel.is_throwing());
    QVERIFY(desk.ball_rests_at(35));
    desk.deliver();
    QCOMPARE(finished.count(), 0);

    desk.wheel.start_throw(3);
    desk.run_to_the_end();
    QCOMPARE(finished.count(), 1);
    QVERIFY(desk.ball_rests_at(3));
}

void tst_wheelwidget::a_report_on_its_way_is_stopped_too()
{
    setting::instance().set_s_su_shortthrow_activ(true);
    wheel_desk desk;
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    desk.wheel.start_throw(1);
    desk.wheel.stop_throw();
    desk.deliver();
    QCOMPARE(finished.count(), 0);
    // Nor does it end the throw that follows.
    desk.wheel.start_throw(1);
    desk.wheel.stop_throw();
    setting::instance().set_s_su_shortthrow_activ(false);
    desk.wheel.start_throw(2);
    desk.deliver();
    QCOMPARE(finished.count(), 0);
    QVERIFY(desk.wheel.is_throwing());
}

void tst_wheelwidget::a_throw_in_mid_throw_reports_once()
{
    wheel_desk desk;
    const QSignalSpy finished(&desk.wheel, &wheelWidget::throw_finished);
    desk.wheel.start_throw(1);
    desk.wheel_animation()->setCurrentTime(5000);
    desk.wheel.start_throw(2);
    desk.run_to_the_end();
    QVERIFY(desk.ball_rests_at(2));
    QCOMPARE(finished.count(), 1);
}

void tst_wheelwidget::the_next_throw_can_begin_within_the_report()
{
    setting::instance().set_s_su_shortthrow_activ(true);
    wheel_desk desk;
    int reports = 0;
    connect(&desk.wheel, &wheelWidget::throw_finished, &desk.wheel, [&] {
        if (++reports < 5) desk.wheel.start_throw(reports);
    });
    desk.wheel.start_throw(0);
    for (int turn = 0; turn < 5; ++turn)
        desk.deliver();
    QCOMPARE(reports, 5);
    QVERIFY(desk.ball_rests_at(4));
}

void tst_wheelwidget::clicks_count_while_the_wheel_stands()
{
    wheel_desk desk;
    const QSignalSpy right(&desk.wheel, &wheelWidget::doubleMouseEventTriggerd);
    const QSignalSpy left(&desk.wheel, &wheelWidget::select_number_by_user_trigger);
    QTest::mousePress(desk.wheel.viewport(), Qt::RightButton);
    QCOMPARE(right.count(), 1);
    QCOMPARE(left.count(), 0);
    QTest::mousePress(desk.wheel.viewport(), Qt::LeftButton);
    QTest::mousePress(desk.wheel.viewport(), Qt::MiddleButton);
    QCOMPARE(right.count(), 1);
    QCOMPARE(left.count(), 1);

    desk.wheel.start_throw(5);
    QTest::mousePress(desk.wheel.viewport(), Qt::RightButton);
    QTest::mousePress(desk.wheel.viewport(), Qt::LeftButton);
    QCOMPARE(right.count(), 1);
    QCOMPARE(left.count(), 1);

    desk.run_to_the_end();
    QTest::mousePress(desk.wheel.viewport(), Qt::RightButton);
    QTest::mousePress(desk.wheel.viewport(), Qt::LeftButton);
    QCOMPARE(right.count(), 2);
    QCOMPARE(left.count(), 2);
}

void tst_wheelwidget::sizes_follow_the_scale_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("ball");
    QTest::addColumn<QPointF>("axis");
    QTest::newRow("full size") << 0.0 << 401 << QRect(192, 71, 18, 18) << QPointF(201, 201);
    QTest::newRow("step 1") << 0.1 << 360 << QRect(172, 63, 16, 16) << QPointF(180, 180);
    QTest::newRow("step 2") << 0.2 << 320 << QRect(153, 56, 14, 14) << QPointF(160, 160);
    QTest::newRow("step 3") << 0.3 << 280 << QRect(134, 49, 12, 12) << QPointF(140, 140);
}

void tst_wheelwidget::sizes_follow_the_scale()
{
    QFETCH(double, reduction);
    QFETCH(int, side);
    QFETCH(QRect, ball);
    QFETCH(QPointF, axis);
    wheel_desk desk(false, reduction);
    desk.wheel.show();
    QCOMPARE(desk.wheel.size(), QSize(side, side));
    QCOMPARE(desk.wheel.viewport()->size(), QSize(side, side));
    QCOMPARE(desk.wheel.sceneRect(), QRectF(0, 0, side, side));
    QCOMPARE(desk.item("wheel_item")->geometry(), QRectF(0, 0, side, side));
    QCOMPARE(desk.item("wheel_item")->transformOriginPoint(), QPointF(side / 2.0, side / 2.0));
    const QGraphicsProxyWidget* item = desk.item("ball_item");
    QCOMPARE(item->geometry(), QRectF(ball));
    QCOMPARE(item->pos() + item->transformOriginPoint(), axis);
}

void tst_wheelwidget::only_an_open_gl_of_a_graphics_card_is_used()
{
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    bool has_card = context.create() && context.makeCurrent(&surface);
    if (has_card) {
        const auto* name = context.functions()->glGetString(GL_RENDERER);
        has_card = !QByteArray(reinterpret_cast<const char*>(name)).startsWith("llvmpipe");
    }
    const wheel_desk desk;
    QCOMPARE(desk.wheel.viewport()->inherits("QOpenGLWidget"), has_card);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_wheelwidget>(argc, argv);
}

#include "tst_wheelwidget.moc"
