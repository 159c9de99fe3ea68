#include "chart_zoomer.h"

#include "chart_look.h"

#include <QPen>
#include <QWheelEvent>
#include <qwt_plot.h>
#include <qwt_text.h>

#include <utility>

static constexpr double wheel_step = 0.7; // of the sides of the view, inwards

chart_zoomer::chart_zoomer(QwtPlot& chart, text_source text_at)
    : QwtPlotZoomer(chart.canvas())
    , text_of_point(std::move(text_at))
{
    setObjectName(QStringLiteral("zoomer"));
    setMousePattern(QwtEventPattern::MouseSelect2, Qt::RightButton, Qt::ControlModifier);
    setMousePattern(QwtEventPattern::MouseSelect3, Qt::RightButton);
    setTrackerMode(AlwaysOn);
    setTrackerPen(QPen(Qt::black));
    setRubberBandPen(QPen(QColor(60, 60, 60), 1, Qt::DashLine));
}

void chart_zoomer::begin_anew()
{
    plot()->updateAxes();
    setZoomBase(false);
}

void chart_zoomer::rescale()
{
    if (plot()->axisEnabled(QwtPlot::yRight)) {
        const QRectF view = zoomRect();
        plot()->setAxisScale(QwtPlot::yRight, view.top(), view.bottom());
    }
    QwtPlotZoomer::rescale();
}

/// Between two whole numbers there is nothing to be seen.
QSizeF chart_zoomer::minZoomSize() const
{
    return {1.0, 1.0};
}

QwtText chart_zoomer::trackerTextF(const QPointF& point) const
{
    return chart_note(text_of_point(point), plot()->axisFont(xAxis()));
}

void chart_zoomer::widgetWheelEvent(QWheelEvent* event)
{
    const int turn = event->angleDelta().y();
    if (turn < 0) zoom(-1);
    if (turn > 0) {
        const QRectF view = zoomRect();
        const QPointF centre = invTransform(event->position().toPoint());
        const QPointF corner = centre + wheel_step * (view.topLeft() - centre);
        const QRectF closer(corner, wheel_step * view.size());
        if (closer.width() >= minZoomSize().width() && closer.height() >= minZoomSize().height())
            zoom(closer);
    }
    event->accept();
}
