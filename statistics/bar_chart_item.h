#ifndef BAR_CHART_ITEM_H
#define BAR_CHART_ITEM_H

#include <QColor>
#include <QVector>
#include <qwt_plot_barchart.h>

/// The bars of a chart, each raised and in a colour of its own: fifteen colours in turn, or one
/// for all.
class BarChartItem : public QwtPlotBarChart
{
public:
    BarChartItem();

    /// Replaces the bars; they stand at 0, 1, 2, ...
    void set_values(const QVector<double>& values);
    QVector<double> values() const;

    /// One colour for all bars; an invalid one brings the fifteen back.
    void set_colour(const QColor& colour) { common_colour = colour; }

    /// The colour in which a bar is drawn.
    QColor colour_of(int sample_index) const;

    QwtColumnSymbol* specialSymbol(int sample_index, const QPointF& point) const override;

protected:
    /// A raised frame would show even where there is nothing to show.
    void drawBar(QPainter* painter,
                 int sample_index,
                 const QPointF& sample,
                 const QwtColumnRect& place) const override;

private:
    QColor common_colour;
};

#endif // BAR_CHART_ITEM_H
