#include "muster_legend_widget.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace
{

constexpr int text_gap = 6;   // px between a square and its text
constexpr int entry_gap = 16; // px between two entries

} // namespace

muster_legend_widget::muster_legend_widget(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QVector<muster_legend_widget::entry> muster_legend_widget::entries_of(colour_course_index course)
{
    switch (course) {
    case colour_course_index::low_high:
        return {{Qt::darkYellow, tr("Dunkelgelb"), tr("1-18")},
                {Qt::cyan, tr("Cyan"), tr("19-36")}};
    case colour_course_index::even_odd:
        return {{Qt::darkYellow, tr("Dunkelgelb"), tr("EVEN")}, {Qt::cyan, tr("Cyan"), tr("ODD")}};
    case colour_course_index::red_black:
        return {{Qt::red, tr("Rot"), tr("Rot")}, {Qt::black, tr("Schwarz"), tr("Schwarz")}};
    case colour_course_index::dozens:
        return {{Qt::darkYellow, tr("Dunkelgelb"), tr("1-12")},
                {Qt::cyan, tr("Cyan"), tr("13-24")},
                {Qt::darkRed, tr("Dunkelrot"), tr("25-36")}};
    case colour_course_index::columns:
        return {{Qt::darkYellow, tr("Dunkelgelb"), tr("1. Kolonne")},
                {Qt::cyan, tr("Cyan"), tr("2. Kolonne")},
                {Qt::darkRed, tr("Dunkelrot"), tr("3. Kolonne")}};
    }
    return {};
}

void muster_legend_widget::set_course(colour_course_index new_course)
{
    course = new_course;
    update();
}

int muster_legend_widget::square_side() const
{
    return fontMetrics().ascent();
}

int muster_legend_widget::width_of(colour_course_index shown) const
{
    int width = -entry_gap;
    const auto entries = entries_of(shown);
    for (const entry& key : entries) {
        width += square_side() + text_gap + fontMetrics().horizontalAdvance(key.chance) + entry_gap;
    }
    return width + 1;
}

// Room for every course, so that a choice moves nothing around it.
QSize muster_legend_widget::sizeHint() const
{
    int width = 0;
    for (int index = 0; index < statistic_data::course_count; ++index)
        width = std::max(width, width_of(static_cast<colour_course_index>(index)));
    return {width, fontMetrics().height()};
}

void muster_legend_widget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const int side = square_side();
    int left = width() - width_of(course);
    const auto entries = entries_of(course);
    for (const entry& key : entries) {
        const QRect square(left, (height() - side) / 2, side, side);
        painter.fillRect(square, key.colour);
        painter.setPen(Qt::gray); // seen beside black, on light and on dark
        painter.drawRect(square.adjusted(0, 0, -1, -1));
        left += side + text_gap;
        const int text_width = fontMetrics().horizontalAdvance(key.chance);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(left, 0, text_width + 1, height()), Qt::AlignVCenter, key.chance);
        left += text_width + entry_gap;
    }
}

void muster_legend_widget::changeEvent(QEvent* event)
{
    const bool is_new_size =
        event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange;
    if (is_new_size) {
        updateGeometry();
        update();
    }
    QWidget::changeEvent(event);
}
