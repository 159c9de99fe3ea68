#ifndef CHART_ZOOMER_H
#define CHART_ZOOMER_H

#include <qwt_plot_zoomer.h>

#include <functional>

/**
 * Lets the user look closer at a chart and read it off: a rectangle drawn with the left button
 * zooms in, the right button goes one step back, with Ctrl all the way; the wheel does both around
 * the pointer. Beside the pointer stands what lies under it. A right vertical axis, if shown,
 * follows the left one.
 */
class chart_zoomer : public QwtPlotZoomer
{
    Q_OBJECT

public:
    /// Gives the text for a point of the chart; an empty one shows nothing.
    using text_source = std::function<QString(const QPointF&)>;

    chart_zoomer(QwtPlot& chart, text_source text_at);

    /// What the axes show now becomes the view that all steps back lead to.
    void begin_anew();

protected:
    void rescale() override;
    QSizeF minZoomSize() const override;
    QwtText trackerTextF(const QPointF& point) const override;
    void widgetWheelEvent(QWheelEvent* event) override;

private:
    text_source text_of_point;
};

#endif // CHART_ZOOMER_H
