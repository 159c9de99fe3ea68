#include "paint_tools.h"
#include "picture_book.h"

#include <algorithm>
#include <cmath>

namespace
{

using paint::face;

constexpr QSize splash_size(620, 360);

picture picture_named(const QString& end)
{
    for (const picture& candidate : wheel_pictures()) {
        if (candidate.path.endsWith(end)) return candidate;
    }
    return {};
}

/// The cloth under a lamp. Few tones: they look the same and keep the file small.
QRgb lit_cloth_at(double x, double y)
{
    const QRgb cloth = paint::cloth_at(x, y);
    const double distance = std::hypot(x - 200, y - 140) / 430;
    const double light = std::max(0.22, 1.28 - 1.0 * distance);
    const double green = std::round(qGreen(cloth) * light / 4) * 4;
    return qRgb(qRound(green * 0.16), qRound(green), qRound(green * 0.62));
}

void draw_ground(QPainter& painter, const QRectF& area)
{
    painter.fillRect(area, paint::pixel_brush(painter, area, lit_cloth_at));
}

/// The wheel looks into the picture from the right, larger than on the table.
void draw_wheel_part(QPainter& painter)
{
    constexpr double enlarged = 1.22;
    const QPointF centre(562, 206);
    const double radius = 200 * enlarged;
    QRadialGradient shadow(centre + QPointF(-6, 10), radius * 1.14);
    shadow.setColorAt(0.80, QColor(0, 0, 0, 200));
    shadow.setColorAt(1.00, QColor(0, 0, 0, 0));
    painter.fillRect(QRectF(QPointF(0, 0), splash_size), shadow);
    painter.save();
    painter.translate(centre);
    painter.rotate(-24);
    painter.scale(enlarged, enlarged);
    painter.translate(-200.5, -200.5);
    painter.save();
    picture_named(QStringLiteral("wheel33_F.png")).draw(painter);
    painter.restore();
    painter.translate(200.5, 200.5);
    painter.rotate(-360.0 / 37 * 7);
    painter.translate(-9, -130);
    picture_named(QStringLiteral("ball2.png")).draw(painter);
    painter.restore();
}

void draw_name(QPainter& painter)
{
    const QPointF centre(166, 152);
    const QPainterPath name =
        paint::text_path(QStringLiteral("Zarvello"), {face::serif_bold, 50, 0.94, 0, 262});
    painter.save();
    painter.translate(centre);
    paint::soft_stroke(painter, name.translated(2, 4), QColor(0, 0, 0, 190), 12);
    painter.strokePath(name,
                       QPen(QColor(58, 34, 6), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(name, paint::brass_plate(QRectF(-170, -29, 340, 58)));
    painter.strokePath(name, QPen(QColor(255, 244, 206, 150), 0.8));
    painter.restore();

    paint::draw_text(painter,
                     centre + QPointF(0, 62),
                     QStringLiteral("Roulette und Systemspiel"),
                     {face::serif, 12, 1, 10, 244},
                     paint::ivory);
    painter.setPen(QPen(QColor(222, 184, 108, 200), 1));
    for (const double side : {-1.0, 1.0}) {
        painter.drawLine(centre + QPointF(side * 14, 96), centre + QPointF(side * 122, 96));
    }
    QPainterPath diamond(centre + QPointF(-7, 96));
    diamond.lineTo(centre + QPointF(0, 91));
    diamond.lineTo(centre + QPointF(7, 96));
    diamond.lineTo(centre + QPointF(0, 101));
    diamond.closeSubpath();
    painter.fillPath(diamond, QColor(222, 184, 108, 220));
}

void draw_splash(QPainter& painter)
{
    const QRectF area(QPointF(0, 0), splash_size);
    draw_ground(painter, area);
    draw_wheel_part(painter);
    draw_name(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(30, 16, 4), 6));
    painter.drawRect(area);
    painter.setPen(QPen(paint::brass_plate(area), 2));
    painter.drawRect(area.adjusted(4, 4, -4, -4));
}

} // namespace

QVector<picture> splash_pictures()
{
    return {{QStringLiteral(":/splash/grafik/splash/explo-3.png"),
             splash_size,
             draw_splash,
             true,
             true}};
}
