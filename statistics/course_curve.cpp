#include "course_curve.h"

#include <QPainter>
#include <QVector>
#include <qwt_clipper.h>
#include <qwt_painter.h>

#include <algorithm>
#include <cmath>
#include <tuple>

course_series::course_series(qint64 start, const QList<qint64>& course)
    : start_amount(start)
    , amounts(course)
{
    qint64 lowest = start;
    qint64 highest = start;
    for (const qint64 amount : amounts) {
        lowest = std::min(lowest, amount);
        highest = std::max(highest, amount);
    }
    bounds = QRectF(QPointF(0, static_cast<double>(lowest)),
                    QPointF(amounts.size(), static_cast<double>(highest)));
}

namespace
{

constexpr double dense_coups_per_pixel = 0.25; // above that a line has no room for dashes
constexpr double dash_width = 8;               // pixels
constexpr double dash_and_gap = 13;
constexpr double halo = 2; // beside the dashes, both sides together

/// The coups that share a column of pixels.
struct column_of_coups {
    size_t first;
    size_t last;
    size_t lowest;
    size_t highest;
};

column_of_coups column_from(const course_series& course, size_t first, size_t end)
{
    column_of_coups column{first, end - 1, first, first};
    qint64 lowest = course.amount(first);
    qint64 highest = lowest;
    for (size_t coup = first + 1; coup < end; ++coup) {
        const qint64 amount = course.amount(coup);
        if (amount < lowest) {
            lowest = amount;
            column.lowest = coup;
        } else if (amount > highest) {
            highest = amount;
            column.highest = coup;
        }
    }
    return column;
}

/// Where a line rises and falls within few pixels, dashes along it would be dots without a
/// pattern, and costly ones: it is broken by the columns of pixels instead.
QVector<QPolygonF> upright_dashes(const QPolygonF& line)
{
    QVector<QPolygonF> dashes;
    bool is_drawn = false;
    for (const QPointF& point : line) {
        const bool is_in_dash = std::fmod(std::floor(point.x()), dash_and_gap) < dash_width;
        if (is_in_dash && !is_drawn) dashes.append(QPolygonF());
        if (is_in_dash) dashes.last().append(point);
        is_drawn = is_in_dash;
    }
    return dashes;
}

} // namespace

QPolygonF
thinned_course(const course_series& course, const QwtScaleMap& x_map, const QwtScaleMap& y_map)
{
    const double last_coup = static_cast<double>(course.size() - 1);
    const double left = std::min(x_map.s1(), x_map.s2());
    const double right = std::max(x_map.s1(), x_map.s2());
    const double begin = std::floor(left);
    const double final = std::ceil(right);
    if (begin > last_coup || final < 0) return {};
    const auto from = static_cast<size_t>(std::max(begin, 0.0));
    const auto to = static_cast<size_t>(std::min(final, last_coup));

    QPolygonF line;
    const auto add = [&](size_t coup) {
        const QPointF point = course.sample(coup);
        const QPointF pixel(x_map.transform(point.x()), y_map.transform(point.y()));
        if (line.isEmpty() || line.last() != pixel) line.append(pixel);
    };
    const double coups_per_pixel = std::abs(x_map.sDist() / x_map.pDist());
    for (size_t coup = from; coup <= to;) {
        const double pixel = std::floor(x_map.transform(static_cast<double>(coup)));
        const double next = std::ceil(x_map.invTransform(pixel + 1));
        size_t end = std::min(static_cast<size_t>(std::max(next, 0.0)), to + 1);
        if (coups_per_pixel < 1.0 || end <= coup) end = coup + 1;
        const column_of_coups column = column_from(course, coup, end);
        add(column.first);
        add(std::min(column.lowest, column.highest));
        add(std::max(column.lowest, column.highest));
        add(column.last);
        coup = end;
    }
    return line;
}

bool course_curve::view::operator==(const view& other) const
{
    const auto all = [](const view& of) {
        return std::tie(
            of.x_from, of.x_to, of.x_left, of.x_right, of.y_from, of.y_to, of.y_bottom, of.y_top);
    };
    return all(*this) == all(other);
}

course_curve::course_curve(const QString& title, qint64 start, const QList<qint64>& course)
    : QwtPlotCurve(title)
{
    setSamples(new course_series(start, course));
}

const course_series& course_curve::course() const
{
    return static_cast<const course_series&>(*data());
}

void course_curve::drawSeries(QPainter* painter,
                              const QwtScaleMap& x_map,
                              const QwtScaleMap& y_map,
                              const QRectF& canvas,
                              int /*from*/,
                              int /*to*/) const
{
    const view now{x_map.s1(),
                   x_map.s2(),
                   x_map.p1(),
                   x_map.p2(),
                   y_map.s1(),
                   y_map.s2(),
                   y_map.p1(),
                   y_map.p2()};
    if (!(now == drawn_view)) {
        drawn_line = thinned_course(course(), x_map, y_map);
        drawn_view = now;
    }
    const double margin = 1 + pen().widthF();
    const QRectF room = canvas.adjusted(-margin, -margin, margin, margin);
    const bool is_dense = std::abs(x_map.sDist() / x_map.pDist()) > dense_coups_per_pixel;
    painter->setPen(pen());
    if (!is_dense || pen().style() == Qt::SolidLine) {
        QwtPainter::drawPolyline(painter, QwtClipper::clipPolygonF(room, drawn_line));
        return;
    }
    QVector<QPolygonF> dashes = upright_dashes(drawn_line);
    for (QPolygonF& dash : dashes)
        dash = QwtClipper::clipPolygonF(room, dash);
    // The halo lets the dashes stand out before a curve that fills the ground.
    for (const QPen& dash_pen :
         {QPen(Qt::white, pen().widthF() + halo), QPen(pen().color(), pen().widthF())}) {
        painter->setPen(dash_pen);
        for (const QPolygonF& dash : qAsConst(dashes))
            QwtPainter::drawPolyline(painter, dash);
    }
}
