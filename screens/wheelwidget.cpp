#include "wheelwidget.h"

#include "design_geometry.h"
#include "number_records.h"
#include "number_table.h"
#include "pictures.h"
#include "setting.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLabel>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QPropertyAnimation>
#include <QRandomGenerator>

namespace
{

constexpr int french_pockets = 37;
constexpr int american_pockets = 38;
constexpr int throw_duration = 17400; ///< ms
constexpr int turns_of_the_ball = 3;
constexpr double full_turn = 360.0;
constexpr double turns_of_the_wheel = 2 * full_turn;
constexpr double ball_offset = 1.0; ///< the ball lies this far behind the middle of its pocket
const QColor cloth_colour(0x0b, 0x4a, 0x2c);

/// True if the current context has no graphics card behind it.
bool is_drawn_by_the_processor(QOpenGLContext& context)
{
    const auto* name = reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
    const QString renderer = QString::fromLatin1(name);
    for (const char* in_software : {"llvmpipe",
                                    "softpipe",
                                    "swrast",
                                    "Software Rasterizer",
                                    "SwiftShader",
                                    "Microsoft Basic Render",
                                    "GDI Generic"}) {
        if (renderer.contains(QLatin1String(in_software), Qt::CaseInsensitive)) return true;
    }
    return false;
}

/// Tried once. A viewport of OpenGL without a context leaves the whole window black. Without a
/// graphics card it makes every repaint of the window, even of a jeton, twenty times as dear,
/// since all of the window is then put together by OpenGL; only who asks Qt for OpenGL in software
/// gets it.
bool open_gl_helps()
{
    static const bool helps = [] {
        QOpenGLContext context;
        if (!context.create()) return false;
        QOffscreenSurface surface;
        surface.setFormat(context.format());
        surface.create();
        if (!surface.isValid() || !context.makeCurrent(&surface)) return false;
        return qgetenv("QT_OPENGL") == "software" || !is_drawn_by_the_processor(context);
    }();
    return helps;
}

QLabel* picture_label(const QString& path, double reduction, qreal pixel_ratio, const QSize& size)
{
    auto* label = new QLabel;
    label->setStyleSheet(QStringLiteral("background: transparent"));
    label->setPixmap(scaled_picture(path, reduction, pixel_ratio));
    label->setFixedSize(size);
    return label;
}

QPropertyAnimation*
rotation_of(QGraphicsProxyWidget* item, QEasingCurve::Type curve, QObject* parent)
{
    auto* animation = new QPropertyAnimation(item, "rotation", parent);
    animation->setDuration(throw_duration);
    animation->setEasingCurve(curve);
    return animation;
}

bool is_running(const QPropertyAnimation* animation)
{
    return animation->state() == QAbstractAnimation::Running;
}

} // namespace

wheelWidget::wheelWidget(QWidget* parent, double reduction, bool american_wheel)
    : QGraphicsView(parent)
    , game_setting(&setting::instance())
    , chance_table(
          new number_table(american_wheel ? table_form::american : table_form::french, this))
    , american(american_wheel)
    , pocket_angle(full_turn / (american_wheel ? american_pockets : french_pockets))
{
    wheel_steps = QRandomGenerator::global()->bounded(pocket_count());
    const int side = scaled(design::wheel.width(), reduction);
    set_up_view(side);
    add_wheel(scene(), reduction, side);
    add_ball(scene(), reduction);
    connect_animations();
    lay_cloth();
    tell_number();
}

void wheelWidget::set_up_view(int side)
{
    if (open_gl_helps()) {
        auto* gl_viewport = new QOpenGLWidget;
        gl_viewport->setUpdateBehavior(QOpenGLWidget::PartialUpdate);
        setViewport(gl_viewport);
    }
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    setViewportUpdateMode(BoundingRectViewportUpdate);
    setCacheMode(CacheBackground);
    setAttribute(Qt::WA_NoSystemBackground);
    viewport()->setAutoFillBackground(false);
    viewport()->setFocusPolicy(Qt::NoFocus);

    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(side, side);
    setScene(new QGraphicsScene(0, 0, side, side, this));
}

void wheelWidget::add_wheel(QGraphicsScene* scene, double reduction, int side)
{
    const QString path = american ? QStringLiteral(":/wheel/grafik/wheel/wheel33_A.png")
                                  : QStringLiteral(":/wheel/grafik/wheel/wheel33_F.png");
    wheel_item =
        scene->addWidget(picture_label(path, reduction, devicePixelRatioF(), QSize(side, side)));
    wheel_item->setObjectName(QStringLiteral("wheel_item"));
    // Rendered once; a turn then only draws the finished picture.
    wheel_item->setCacheMode(QGraphicsItem::ItemCoordinateCache);
    wheel_item->setTransformOriginPoint(side / 2.0, side / 2.0);

    wheel_animation = rotation_of(wheel_item, QEasingCurve::InOutCubic, this);
    wheel_animation->setObjectName(QStringLiteral("wheel_animation"));
    wheel_animation->setStartValue(0.0);
    wheel_animation->setEndValue(turns_of_the_wheel);
}

void wheelWidget::add_ball(QGraphicsScene* scene, double reduction)
{
    const QRect place = design::scaled_rect(design::ball, reduction);
    ball_item = scene->addWidget(picture_label(QStringLiteral(":/general/grafik/ball/ball2.png"),
                                               reduction,
                                               devicePixelRatioF(),
                                               place.size()));
    ball_item->setObjectName(QStringLiteral("ball_item"));
    ball_item->setCacheMode(QGraphicsItem::ItemCoordinateCache);
    ball_item->setPos(place.topLeft());
    ball_item->setTransformOriginPoint(scaled(design::ball_axis.x(), reduction),
                                       scaled(design::ball_axis.y(), reduction));

    ball_animation = rotation_of(ball_item, QEasingCurve::OutQuad, this);
    ball_animation->setObjectName(QStringLiteral("ball_animation"));
    ball_animation->setStartValue(0.0);
    ball_animation->setEndValue(-pocket_angle);
}

void wheelWidget::connect_animations()
{
    connect(this, &wheelWidget::start_now_wheel, this, [this] { wheel_animation->start(); });
    connect(this, &wheelWidget::start_now_ball, this, [this] { ball_animation->start(); });
    connect(
        wheel_animation, &QPropertyAnimation::finished, this, &wheelWidget::animation_wheel_finish);
    // A throw without duration finishes inside of its start; its report comes with the next
    // events nevertheless.
    connect(ball_animation,
            &QPropertyAnimation::finished,
            this,
            &wheelWidget::animation_ball_finish,
            Qt::QueuedConnection);
}

/// The cloth of the window goes on under the wheel without a seam.
void wheelWidget::lay_cloth()
{
    const QPixmap cloth = scaled_picture(QStringLiteral(":/table/grafik/table/cloth.png"), 0.0);
    QBrush brush = cloth.isNull() ? QBrush(cloth_colour) : QBrush(cloth);
    brush.setTransform(QTransform::fromTranslate(-x(), -y()));
    scene()->setBackgroundBrush(brush);
}

int wheelWidget::pocket_count() const
{
    return american ? american_pockets : french_pockets;
}

bool wheelWidget::is_throwing() const
{
    return ball_under_way && !direct_set;
}

void wheelWidget::start_throw(int thrown_number)
{
    stop_throw();
    number = thrown_number;
    run_throw();
}

void wheelWidget::set_throw(int shown_number)
{
    stop_throw();
    direct_set = true;
    number = shown_number;
    run_throw();
}

void wheelWidget::run_throw()
{
    const bool at_once = direct_set || game_setting->s_su_shortthrow_activ();
    const bool wheel_stands = at_once || game_setting->s_wheel_disabled();
    ball_animation->setDuration(at_once ? 0 : throw_duration);
    ball_turns = at_once ? 0 : turns_of_the_ball;

    wheel_steps = wheel_stands ? 0 : QRandomGenerator::global()->bounded(pocket_count());
    wheel_position += wheel_steps;
    if (wheel_position > pocket_count()) wheel_position -= pocket_count();
    wheel_angle_end = wheel_angle_start + turns_of_the_wheel + wheel_steps * pocket_angle;

    // The ball runs against the wheel.
    target_index = chance_table->clockwise_index(number) + wheel_position;
    ball_angle_end = (target_index - pocket_count()) * pocket_angle - ball_turns * full_turn;

    wheel_animation->setStartValue(wheel_angle_start);
    wheel_animation->setEndValue(wheel_angle_end);
    ball_animation->setStartValue(ball_angle_start);
    ball_animation->setEndValue(ball_angle_end + ball_offset);

    ball_under_way = true;
    if (!wheel_stands) emit start_now_wheel();
    emit start_now_ball();
}

void wheelWidget::stop_throw()
{
    if (is_running(wheel_animation)) {
        wheel_animation->stop();
        wheel_item->setRotation(wheel_angle_end);
        animation_wheel_finish();
    }
    if (!ball_under_way) return;
    ball_animation->stop();
    ball_item->setRotation(ball_angle_end + ball_offset);
    direct_set = true; // no report
    animation_ball_finish();
}

void wheelWidget::animation_wheel_finish()
{
    wheel_angle_start = wheel_angle_end;
    while (wheel_angle_start > full_turn)
        wheel_angle_start -= full_turn;
}

void wheelWidget::animation_ball_finish()
{
    // The queued end of a throw that was stopped can arrive when the next one is under way.
    if (!ball_under_way || is_running(ball_animation)) return;
    ball_under_way = false;
    shows_number = true;
    tell_number();

    ball_angle_start = ball_angle_end;
    while (ball_angle_start < full_turn)
        ball_angle_start += full_turn;

    if (direct_set) {
        direct_set = false;
        return;
    }
    emit throw_finished();
}

void wheelWidget::tell_number()
{
    setAccessibleName(tr("Kessel"));
    setAccessibleDescription(shows_number ? tr("Kugel auf %1").arg(number_text(number))
                                          : QString());
}

void wheelWidget::changeEvent(QEvent* event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) tell_number();
}

void wheelWidget::mousePressEvent(QMouseEvent* event)
{
    if (is_running(wheel_animation)) return;
    if (event->button() == Qt::RightButton) emit doubleMouseEventTriggerd();
    if (event->button() == Qt::LeftButton) emit select_number_by_user_trigger();
}

void wheelWidget::moveEvent(QMoveEvent* event)
{
    QGraphicsView::moveEvent(event);
    lay_cloth();
}
