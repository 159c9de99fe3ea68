#include "wheel_distribution_widget.h"

#include "chance_geometry.h"
#include "number_records.h"
#include "wheel_order.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QToolTip>
#include <QtMath>

#include <cmath>

namespace
{

constexpr int default_delay = 1000; // ms
constexpr int highest_of_nothing = 10;

// Full size, in pixels from the centre.
constexpr int chart_size = 484;
constexpr int segment_limit = 200; // radius of the highest value
constexpr int face_radius = 205;
constexpr int rim_radius = 238;
constexpr int ring_distance = 50;
constexpr int number_size = 15;

// The colours stand beside blue and black, whatever the desktop looks like.
constexpr QRgb face_colour = qRgb(252, 250, 243);
constexpr QRgb line_colour = qRgb(208, 204, 194);
constexpr QRgb rim_colour = qRgb(201, 168, 92);

QColor colour_of_pocket(int number)
{
    switch (colour_of(number)) {
    case number_colour::red:
        return {0xb8, 0x18, 0x1e};
    case number_colour::black:
        return {0x24, 0x24, 0x26};
    case number_colour::green:
        break;
    }
    return {0x10, 0x82, 0x3c};
}

// Edges between two pockets, in sixteenths of a degree, clockwise from the left edge of zero.
int edge(int position, int pockets)
{
    constexpr int full_turn = 360 * 16;
    return qRound(double(full_turn) * position / pockets);
}

// The left edge of zero, counter-clockwise from three o'clock.
int first_edge(int pockets)
{
    constexpr int quarter_turn = 90 * 16;
    return quarter_turn + qRound(180.0 * 16 / pockets);
}

QRectF circle(int radius)
{
    return {double(-radius), double(-radius), 2.0 * radius, 2.0 * radius};
}

} // namespace

wheel_distribution_widget::wheel_distribution_widget(QWidget* parent)
    : QWidget(parent)
    , delay(default_delay)
    , dyn_timer(new QTimer(this))
{
    dyn_timer->setObjectName(QStringLiteral("dyn_timer"));
    connect(dyn_timer, &QTimer::timeout, this, &wheel_distribution_widget::draw_dyn_one_segement);
    set_wheel(table_form::french, 0.0);
}

void wheel_distribution_widget::set_wheel(table_form wheel_form, double reduction)
{
    form = wheel_form;
    scale_reduction = reduction;
    setFixedSize(sizeHint());
    show_hits({}, 0);
}

QSize wheel_distribution_widget::sizeHint() const
{
    const int side = scaled(chart_size, scale_reduction);
    return {side, side};
}

void wheel_distribution_widget::set_delay(int milliseconds)
{
    delay = milliseconds;
}

void wheel_distribution_widget::set_highest(int highest_value)
{
    const int scale_end = highest_value < 1 ? highest_of_nothing : highest_value;
    radial_step = double(segment_limit) / scale_end;
    diameter_step = 2 * radial_step;
}

void wheel_distribution_widget::show_hits(const QList<int>& hits_in_wheel_pos, int highest_value)
{
    counters = hits_in_wheel_pos;
    while (counters.size() < number_code::number_count)
        counters.append(0);
    set_highest(highest_value);
    update();
}

void wheel_distribution_widget::start_dyn_wheel_distribution(
    QList<int> single_stat_data_in_wheel_pos, int highest_value)
{
    work_list = std::move(single_stat_data_in_wheel_pos);
    stop_flag = false;
    show_hits({}, highest_value);
    dyn_timer->start(delay);
}

void wheel_distribution_widget::stop_dyn_wheel_distribution()
{
    stop_flag = true;
}

void wheel_distribution_widget::draw_dyn_one_segement()
{
    if (work_list.isEmpty() || stop_flag) {
        dyn_timer->stop();
        work_list.clear();
        emit dyn_draw_finished();
        return;
    }
    const int position = work_list.takeLast();
    ++counters[position];
    update();
    const bool is_american = form == table_form::american;
    emit count_number_to_quadrant(is_american ? wheel_distribution::AMERICAN_WHEEL_LIST
                                              : wheel_distribution::FRENCH_WHEEL_LIST,
                                  &counters,
                                  wheel_number(position, form));
}

// A later hit covers the earlier ones of its pocket: what counts is how many there are.
void wheel_distribution_widget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const double scale = double(width()) / chart_size;
    painter.scale(scale, scale);
    paint_face(painter);
    paint_numbers(painter);
    QPen outline(Qt::black, 1);
    outline.setCosmetic(true);
    painter.setPen(outline);
    painter.setBrush(Qt::blue);
    for (int position = 0; position < pocket_count(form); ++position)
        paint_segment(painter, position);
}

void wheel_distribution_widget::paint_face(QPainter& painter) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(face_colour));
    painter.drawEllipse(circle(face_radius));
    painter.setPen(QColor(line_colour));
    painter.setBrush(Qt::NoBrush);
    for (int radius = ring_distance; radius <= segment_limit; radius += ring_distance)
        painter.drawEllipse(circle(radius));
}

void wheel_distribution_widget::paint_numbers(QPainter& painter) const
{
    QFont bold = font();
    bold.setPixelSize(number_size);
    bold.setBold(true);
    painter.setFont(bold);
    const double step = 360.0 / pocket_count(form);
    const double half_width = rim_radius * qTan(qDegreesToRadians(step / 2));
    const QRectF text_place(-half_width, -rim_radius, 2 * half_width, rim_radius - face_radius);
    for (int position = 0; position < pocket_count(form); ++position) {
        const int number = wheel_number(position, form);
        painter.save();
        painter.rotate(step * position);
        QPainterPath field;
        field.arcMoveTo(circle(rim_radius), 90 + step / 2);
        field.arcTo(circle(rim_radius), 90 + step / 2, -step);
        field.arcTo(circle(face_radius), 90 - step / 2, step);
        field.closeSubpath();
        painter.setPen(QColor(rim_colour));
        painter.setBrush(colour_of_pocket(number));
        painter.drawPath(field);
        painter.setPen(Qt::white);
        painter.drawText(text_place, Qt::AlignCenter, number_text(number));
        painter.restore();
    }
}

void wheel_distribution_widget::paint_segment(QPainter& painter, int position) const
{
    const int count = counters.at(position);
    const int radius = qRound(count * radial_step);
    if (radius == 0) return;
    const int diameter = qRound(count * diameter_step);
    const int pockets = pocket_count(form);
    const int start = first_edge(pockets) - edge(position, pockets);
    const int end = first_edge(pockets) - edge(position + 1, pockets);
    painter.drawPie(-radius, -radius, diameter, diameter, start, end - start);
}

// The pocket under a point, -1 beside the wheel.
int wheel_distribution_widget::position_at(const QPoint& point) const
{
    const double x = point.x() - width() / 2.0;
    const double y = point.y() - height() / 2.0;
    if (std::hypot(x, y) > rim_radius * double(width()) / chart_size) return -1;
    const double turns = std::atan2(x, -y) / (2 * M_PI); // clockwise from the top
    const int pockets = pocket_count(form);
    return (qRound(turns * pockets) + pockets) % pockets;
}

bool wheel_distribution_widget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int position = position_at(help->pos());
    if (position < 0) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    QToolTip::showText(help->globalPos(),
                       tr("Zahl %1: %2 Treffer")
                           .arg(number_text(wheel_number(position, form)))
                           .arg(counters.at(position)),
                       this);
    return true;
}
