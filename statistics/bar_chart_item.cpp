#include "bar_chart_item.h"

#include <QPalette>
#include <qwt_column_symbol.h>

static constexpr double bar_width = 0.8; // of the room between two bars
static constexpr int colour_count = 15;
static constexpr int first_colour = Qt::darkGray; // the colours run to Qt::darkYellow

BarChartItem::BarChartItem()
{
    setLayoutPolicy(ScaleSamplesToAxes); // bars keep their places when the chart is zoomed
    setLayoutHint(bar_width);
    setSpacing(0);
    setMargin(0);
}

void BarChartItem::set_values(const QVector<double>& values)
{
    setSamples(values);
}

QVector<double> BarChartItem::values() const
{
    QVector<double> heights;
    heights.reserve(static_cast<int>(dataSize()));
    for (size_t i = 0; i < dataSize(); ++i)
        heights.append(sample(static_cast<int>(i)).y());
    return heights;
}

QColor BarChartItem::colour_of(int sample_index) const
{
    if (common_colour.isValid()) return common_colour;
    return static_cast<Qt::GlobalColor>(sample_index % colour_count + first_colour);
}

QwtColumnSymbol* BarChartItem::specialSymbol(int sample_index, const QPointF& /*point*/) const
{
    auto* const symbol = new QwtColumnSymbol(QwtColumnSymbol::Box);
    symbol->setLineWidth(2);
    symbol->setFrameStyle(QwtColumnSymbol::Raised);
    symbol->setPalette(QPalette(colour_of(sample_index)));
    return symbol;
}

void BarChartItem::drawBar(QPainter* painter,
                           int sample_index,
                           const QPointF& sample,
                           const QwtColumnRect& place) const
{
    if (sample.y() > baseline()) QwtPlotBarChart::drawBar(painter, sample_index, sample, place);
}
