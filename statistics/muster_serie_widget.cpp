#include "muster_serie_widget.h"

#include "chance_geometry.h"

#include <QEvent>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace
{

constexpr int rows_per_column = 8;
constexpr int full_side = 18; // of a square at full size
constexpr int count_gap = 12; // px between the squares and the count
constexpr int column_gap = 28;
constexpr int row_gap = 10;
constexpr int least_digits = 7;

} // namespace

muster_serie_widget::muster_serie_widget(QWidget* parent)
    : QWidget(parent)
    , side(full_side)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
}

void muster_serie_widget::set_figures(const QList<muster_figure>& shown,
                                      pair_colours new_colours,
                                      double reduction)
{
    figures = shown;
    colours = new_colours;
    side = scaled(full_side, reduction);
    updateGeometry();
    update();
}

int muster_serie_widget::coups() const
{
    return figures.isEmpty() ? 0 : figures.first().figure.count(QLatin1Char(',')) + 1;
}

// All counts are right-aligned in the room of the longest.
int muster_serie_widget::count_width() const
{
    int digits = least_digits;
    for (const muster_figure& figure : figures)
        digits = std::max(digits, QString::number(figure.count).size());
    return fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))) + 1;
}

int muster_serie_widget::column_width() const
{
    return coups() * side + 1 + count_gap + count_width();
}

int muster_serie_widget::row_height() const
{
    return std::max(side + 1, fontMetrics().height()) + row_gap;
}

QSize muster_serie_widget::sizeHint() const
{
    const int rows = std::min(figures.size(), rows_per_column);
    const int columns = (figures.size() + rows_per_column - 1) / rows_per_column;
    return {columns * (column_width() + column_gap) - column_gap, rows * row_height()};
}

QRect muster_serie_widget::square(int figure, int coup) const
{
    const int left = figure / rows_per_column * (column_width() + column_gap) + coup * side;
    const int top = figure % rows_per_column * row_height() + (row_height() - side) / 2;
    return {left, top, side, side};
}

QRect muster_serie_widget::count_place(int figure) const
{
    const QRect behind = square(figure, coups());
    const int top = figure % rows_per_column * row_height();
    return {behind.left() + 1 + count_gap, top, count_width(), row_height()};
}

void muster_serie_widget::paint_figure(QPainter& painter, int figure) const
{
    const muster_figure& shown = figures.at(figure);
    const QStringList symbols = shown.figure.split(QLatin1Char(','));
    QVector<QRect> frames;
    for (int coup = 0; coup < symbols.size(); ++coup) {
        const std::size_t symbol = symbols.at(coup) == QLatin1String("0") ? 0 : 1;
        frames.append(square(figure, coup));
        painter.fillRect(frames.last(), colours.at(symbol));
    }
    painter.setPen(Qt::gray); // seen beside black, on light and on dark
    painter.drawRects(frames);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        count_place(figure), Qt::AlignRight | Qt::AlignVCenter, QString::number(shown.count));
}

void muster_serie_widget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (int figure = 0; figure < figures.size(); ++figure)
        paint_figure(painter, figure);
}

void muster_serie_widget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) updateGeometry();
    QWidget::changeEvent(event);
}
