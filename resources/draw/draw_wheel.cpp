#include "design_geometry.h"
#include "number_records.h"
#include "paint_tools.h"
#include "picture_book.h"
#include "wheel_order.h"

#include <QtMath>

#include <cmath>

namespace
{

using paint::face;

// Radii of the wheel from the outside to the inside. The ball lies at 121 in its pocket.
constexpr double rim_radius = 200;
constexpr double track_radius = 183;
constexpr double number_radius = 163;
constexpr double pocket_radius = 135;
constexpr double cone_radius = 107;
constexpr double inlay_radius = 74;
constexpr double turret_radius = 27;

const QPointF middle(0, 0);

double degrees_of_pocket(int index, table_form form)
{
    return 360.0 * index / pocket_count(form);
}

/// A point at an angle clockwise from the top.
QPointF at_angle(double degrees, double radius)
{
    const double angle = qDegreesToRadians(degrees);
    return {radius * std::sin(angle), -radius * std::cos(angle)};
}

/// The part of a ring that belongs to one pocket.
QPainterPath sector(double degrees, double width, double outer, double inner)
{
    const double start = 90 - degrees - width / 2;
    QPainterPath path;
    path.arcMoveTo(QRectF(-outer, -outer, 2 * outer, 2 * outer), start);
    path.arcTo(QRectF(-outer, -outer, 2 * outer, 2 * outer), start, width);
    path.arcTo(QRectF(-inner, -inner, 2 * inner, 2 * inner), start + width, -width);
    path.closeSubpath();
    return path;
}

QColor pocket_colour(int number)
{
    switch (colour_of(number)) {
    case number_colour::red:
        return {182, 22, 30};
    case number_colour::black:
        return {22, 20, 23};
    case number_colour::green:
        break;
    }
    return {14, 124, 62};
}

/// Light and shadow of a turned form over what lies below it; stops by radius.
struct shade_stop {
    double radius;
    QColor colour;
};

void shade(QPainter& painter, const QPainterPath& area, std::initializer_list<shade_stop> stops)
{
    QRadialGradient gradient(middle, rim_radius);
    for (const shade_stop& stop : stops)
        gradient.setColorAt(stop.radius / rim_radius, stop.colour);
    painter.fillPath(area, gradient);
}

QColor dark(int alpha)
{
    return {12, 4, 0, alpha};
}

QColor bright(int alpha)
{
    return {255, 226, 178, alpha};
}

/// Reflections of the room on polished wood.
void gloss(QPainter& painter, const QPainterPath& area, int alpha, double first)
{
    QConicalGradient gradient(middle, first);
    for (int i = 0; i <= 8; ++i) {
        gradient.setColorAt(i / 8.0, i % 2 == 0 ? bright(alpha) : bright(0));
    }
    painter.fillPath(area, gradient);
}

void brass_ring(QPainter& painter, double outer, double inner, double first_reflection)
{
    const QPainterPath band = paint::ring(middle, outer, inner);
    painter.fillPath(band, paint::turned_brass(middle, first_reflection));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(60, 36, 8, 200), 0.6));
    painter.drawEllipse(middle, outer, outer);
    painter.drawEllipse(middle, inner, inner);
}

void draw_rim(QPainter& painter)
{
    const QPainterPath band = paint::ring(middle, rim_radius - 0.5, track_radius);
    const QRectF area(-rim_radius, -rim_radius, 2 * rim_radius, 2 * rim_radius);
    painter.fillPath(band, paint::pixel_brush(painter, area, [](double x, double y) {
                         return paint::bent_wood_at(std::atan2(x, -y), std::hypot(x, y), 31);
                     }));
    shade(painter,
          band,
          {{track_radius, dark(150)},
           {track_radius + 4, dark(40)},
           {190, bright(26)},
           {193, bright(74)},
           {195.5, bright(20)},
           {198, dark(90)},
           {rim_radius, dark(190)}});
    gloss(painter, band, 44, 20);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(30, 12, 4, 230), 1));
    painter.drawEllipse(middle, rim_radius - 0.7, rim_radius - 0.7);
}

/// Brass diamonds that turn the falling ball aside, standing and lying in turn.
void draw_deflectors(QPainter& painter)
{
    constexpr int deflectors = 8;
    for (int i = 0; i < deflectors; ++i) {
        const bool standing = i % 2 == 0;
        const double length = standing ? 7.5 : 8.5;
        const double breadth = standing ? 3.0 : 2.6;
        painter.save();
        painter.rotate(360.0 / deflectors * (i + 0.5));
        painter.translate(0, -(number_radius + track_radius) / 2);
        if (!standing) painter.rotate(90);
        QPainterPath diamond(QPointF(0, -length));
        diamond.quadTo(breadth * 0.8, -length * 0.2, breadth, 0);
        diamond.quadTo(breadth * 0.8, length * 0.2, 0, length);
        diamond.quadTo(-breadth * 0.8, length * 0.2, -breadth, 0);
        diamond.quadTo(-breadth * 0.8, -length * 0.2, 0, -length);
        paint::soft_stroke(painter, diamond, QColor(0, 0, 0, 150), 4);
        QLinearGradient metal(-breadth, 0, breadth, 0);
        metal.setColorAt(0.0, QColor(255, 240, 190));
        metal.setColorAt(0.48, QColor(226, 184, 104));
        metal.setColorAt(0.52, QColor(150, 104, 42));
        metal.setColorAt(1.0, QColor(206, 160, 80));
        painter.fillPath(diamond, metal);
        painter.strokePath(diamond, QPen(QColor(70, 44, 12), 0.5));
        painter.restore();
    }
}

void draw_track(QPainter& painter)
{
    const QPainterPath band = paint::ring(middle, track_radius, number_radius);
    const QRectF area(-track_radius, -track_radius, 2 * track_radius, 2 * track_radius);
    painter.fillPath(band, paint::pixel_brush(painter, area, [](double x, double y) {
                         return paint::bent_wood_at(std::atan2(x, -y), std::hypot(x, y), 77);
                     }));
    shade(painter,
          band,
          {{number_radius, dark(60)},
           {number_radius + 5, bright(34)},
           {number_radius + 9, dark(40)},
           {track_radius - 6, dark(120)},
           {track_radius, dark(215)}});
    gloss(painter, band, 30, 65);
    draw_deflectors(painter);
}

void draw_number_ring(QPainter& painter, table_form form)
{
    const double width = 360.0 / pocket_count(form);
    for (int index = 0; index < pocket_count(form); ++index) {
        const double degrees = degrees_of_pocket(index, form);
        const QColor colour = pocket_colour(wheel_number(index, form));
        painter.fillPath(sector(degrees, width + 0.3, number_radius, pocket_radius), colour);
    }
    const QPainterPath band = paint::ring(middle, number_radius, pocket_radius);
    shade(painter,
          band,
          {{pocket_radius, dark(70)},
           {pocket_radius + 6, dark(0)},
           {number_radius - 7, bright(0)},
           {number_radius - 3, bright(30)},
           {number_radius, dark(100)}});
    painter.setPen(QPen(QColor(228, 190, 112, 235), 0.9));
    for (int index = 0; index < pocket_count(form); ++index) {
        const double degrees = degrees_of_pocket(index, form) + width / 2;
        painter.drawLine(at_angle(degrees, pocket_radius), at_angle(degrees, number_radius));
    }
    for (int index = 0; index < pocket_count(form); ++index) {
        const int number = wheel_number(index, form);
        const QString text =
            number == number_code::double_zero ? QStringLiteral("00") : QString::number(number);
        const double degrees = degrees_of_pocket(index, form);
        paint::draw_text(painter,
                         at_angle(degrees, (number_radius + pocket_radius) / 2 + 0.6),
                         text,
                         {face::serif_bold, 12.4, 0.9, 0, 18.6},
                         QColor(250, 243, 222),
                         degrees);
    }
}

/// Brass walls between the pockets, lit from one side.
void draw_frets(QPainter& painter, table_form form)
{
    const double width = 360.0 / pocket_count(form);
    for (int index = 0; index < pocket_count(form); ++index) {
        painter.save();
        painter.rotate(degrees_of_pocket(index, form) + width / 2);
        QPainterPath fret(QPointF(-0.8, -cone_radius));
        fret.lineTo(-1.2, -pocket_radius);
        fret.lineTo(1.2, -pocket_radius);
        fret.lineTo(0.8, -cone_radius);
        fret.closeSubpath();
        painter.fillPath(fret.translated(1.6, 0), QColor(0, 0, 0, 90));
        QLinearGradient metal(-1.2, 0, 1.2, 0);
        metal.setColorAt(0.0, QColor(255, 238, 186));
        metal.setColorAt(0.5, QColor(218, 174, 94));
        metal.setColorAt(1.0, QColor(128, 88, 34));
        painter.fillPath(fret, metal);
        painter.restore();
    }
}

void draw_pockets(QPainter& painter, table_form form)
{
    const double width = 360.0 / pocket_count(form);
    for (int index = 0; index < pocket_count(form); ++index) {
        const double degrees = degrees_of_pocket(index, form);
        const QColor floor = pocket_colour(wheel_number(index, form)).darker(128);
        painter.fillPath(sector(degrees, width + 0.3, pocket_radius, cone_radius), floor);
    }
    const QPainterPath band = paint::ring(middle, pocket_radius, cone_radius);
    shade(painter,
          band,
          {{cone_radius, dark(170)},
           {cone_radius + 7, dark(60)},
           {121, bright(26)},
           {pocket_radius - 7, dark(30)},
           {pocket_radius, dark(200)}});
    draw_frets(painter, form);
}

/// Sunburst of veneer: eight wedges, the grain running outwards, light and dark in turn.
void draw_cone_veneer(QPainter& painter)
{
    constexpr int wedges = 8;
    const QRectF area(-cone_radius, -cone_radius, 2 * cone_radius, 2 * cone_radius);
    const QBrush veneer = paint::pixel_brush(painter, area, [](double x, double y) {
        constexpr double wedge_width = 2 * M_PI / wedges;
        const double angle = std::atan2(x, -y) + 2 * M_PI;
        const double radius = std::hypot(x, y);
        const int wedge = static_cast<int>(angle / wedge_width) % wedges;
        const double aside = std::fmod(angle, wedge_width) - wedge_width / 2;
        // Within a wedge the grain runs straight along its middle.
        return paint::wood_at(radius * std::cos(aside) + 300 * wedge,
                              radius * std::sin(aside) * 1.3 + 170 * wedge,
                              51);
    });
    QPainterPath disc;
    disc.addEllipse(middle, cone_radius, cone_radius);
    painter.fillPath(disc, veneer);
    for (int wedge = 0; wedge < wedges; ++wedge) {
        const double degrees = 360.0 / wedges * (wedge + 0.5);
        const QPainterPath part = sector(degrees, 360.0 / wedges, cone_radius, inlay_radius);
        painter.fillPath(part, wedge % 2 == 0 ? bright(16) : dark(50));
    }
    painter.setPen(QPen(QColor(222, 180, 100, 150), 0.8));
    for (int wedge = 0; wedge < wedges; ++wedge) {
        const double degrees = 360.0 / wedges * wedge;
        painter.drawLine(at_angle(degrees, turret_radius), at_angle(degrees, cone_radius));
    }
}

void draw_cone(QPainter& painter)
{
    draw_cone_veneer(painter);
    QPainterPath disc;
    disc.addEllipse(middle, cone_radius, cone_radius);
    shade(painter,
          disc,
          {{turret_radius, dark(110)},
           {turret_radius + 14, dark(10)},
           {58, bright(46)},
           {inlay_radius, bright(10)},
           {inlay_radius + 12, dark(30)},
           {cone_radius - 8, dark(80)},
           {cone_radius, dark(200)}});
    gloss(painter, disc, 40, 10);
    brass_ring(painter, inlay_radius + 1, inlay_radius - 1, 30);
    brass_ring(painter, cone_radius + 1.2, cone_radius - 2.4, 0);
}

QRadialGradient brass_ball(const QPointF& centre, double radius)
{
    QRadialGradient ball(centre, radius, centre - QPointF(radius, radius) * 0.3);
    ball.setColorAt(0.00, QColor(255, 253, 236));
    ball.setColorAt(0.25, QColor(250, 224, 150));
    ball.setColorAt(0.65, QColor(196, 148, 68));
    ball.setColorAt(0.92, QColor(116, 78, 28));
    ball.setColorAt(1.00, QColor(92, 60, 18));
    return ball;
}

void draw_arm(QPainter& painter)
{
    constexpr double reach = 58;
    constexpr double knob = 6.4;
    QPainterPath arm(QPointF(-4.4, -12));
    arm.cubicTo(-4.4, -28, -2.0, -30, -1.9, -reach);
    arm.lineTo(1.9, -reach);
    arm.cubicTo(2.0, -30, 4.4, -28, 4.4, -12);
    arm.closeSubpath();
    QPainterPath whole = arm;
    whole.addEllipse(QPointF(0, -reach), knob, knob);
    paint::soft_stroke(painter, whole, QColor(0, 0, 0, 120), 7);
    QLinearGradient metal(-4.4, 0, 4.4, 0);
    metal.setColorAt(0.00, QColor(128, 88, 34));
    metal.setColorAt(0.30, QColor(255, 242, 200));
    metal.setColorAt(0.55, QColor(214, 168, 86));
    metal.setColorAt(1.00, QColor(104, 68, 22));
    painter.fillPath(arm, metal);
    painter.strokePath(arm, QPen(QColor(66, 40, 10), 0.6));
    painter.setPen(QPen(QColor(66, 40, 10), 0.6));
    painter.setBrush(brass_ball(QPointF(0, -reach), knob));
    painter.drawEllipse(QPointF(0, -reach), knob, knob);
    painter.setBrush(metal);
    painter.drawRoundedRect(QRectF(-3.4, -reach + knob - 0.6, 6.8, 2.6), 1.2, 1.2);
}

void draw_turret(QPainter& painter)
{
    QPainterPath foot;
    foot.addEllipse(middle, turret_radius, turret_radius);
    paint::soft_stroke(painter, foot, QColor(0, 0, 0, 150), 14);
    painter.fillPath(foot, paint::turned_brass(middle, 20));
    painter.setPen(QPen(QColor(66, 40, 10), 0.7));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(middle, turret_radius, turret_radius);
    painter.drawEllipse(middle, turret_radius - 4, turret_radius - 4);
    for (int i = 0; i < 4; ++i) {
        painter.save();
        painter.rotate(45 + 90 * i);
        draw_arm(painter);
        painter.restore();
    }
    QPainterPath dome;
    dome.addEllipse(middle, 17, 17);
    paint::soft_stroke(painter, dome, QColor(0, 0, 0, 130), 6);
    painter.fillPath(dome, paint::turned_brass(middle, 60));
    painter.setPen(QPen(QColor(66, 40, 10), 0.7));
    painter.drawEllipse(middle, 17, 17);
    painter.setBrush(brass_ball(middle, 11));
    painter.drawEllipse(middle, 11, 11);
}

void draw_wheel(QPainter& painter, table_form form)
{
    painter.translate(design::wheel.width() / 2.0, design::wheel.height() / 2.0);
    draw_rim(painter);
    draw_track(painter);
    draw_number_ring(painter, form);
    draw_pockets(painter, form);
    draw_cone(painter);
    brass_ring(painter, track_radius + 1.4, track_radius - 1.2, 45);
    brass_ring(painter, number_radius + 1.2, number_radius - 0.8, 10);
    brass_ring(painter, pocket_radius + 0.9, pocket_radius - 0.7, 0);
    draw_turret(painter);
}

void draw_ball(QPainter& painter)
{
    const QPointF centre(9, 9);
    constexpr double radius = 6.8;
    QRadialGradient shadow(centre, 9);
    shadow.setColorAt(0.60, QColor(0, 0, 0, 170));
    shadow.setColorAt(0.78, QColor(0, 0, 0, 90));
    shadow.setColorAt(1.00, QColor(0, 0, 0, 0));
    painter.fillRect(QRectF(0, 0, 18, 18), shadow);
    QRadialGradient ball(centre, radius * 1.15, centre - QPointF(2.2, 2.6));
    ball.setColorAt(0.00, QColor(255, 255, 255));
    ball.setColorAt(0.30, QColor(253, 249, 236));
    ball.setColorAt(0.65, QColor(228, 218, 192));
    ball.setColorAt(0.90, QColor(158, 144, 114));
    ball.setColorAt(1.00, QColor(120, 106, 80));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ball);
    painter.drawEllipse(centre, radius, radius);
}

} // namespace

QVector<picture> wheel_pictures()
{
    const QString folder = QStringLiteral(":/wheel/grafik/wheel/");
    const QSize size = design::wheel.size();
    return {
        {folder + QStringLiteral("wheel33_F.png"),
         size,
         [](QPainter& painter) { draw_wheel(painter, table_form::french); },
         true,
         true},
        {folder + QStringLiteral("wheel33_A.png"),
         size,
         [](QPainter& painter) { draw_wheel(painter, table_form::american); },
         true,
         true},
        {QStringLiteral(":/general/grafik/ball/ball2.png"), QSize(18, 18), draw_ball},
    };
}
