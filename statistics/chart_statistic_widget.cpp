#include "chart_statistic_widget.h"

#include "bar_chart_item.h"
#include "chart_scale_draws.h"
#include "chart_zoomer.h"
#include "whole_number_scale.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>

#include <cmath>
#include <limits>
#include <memory>

static constexpr double first_limit = 10; // upper end of the axes while nothing is shown
static constexpr double half_place = 0.5; // of a bar on the horizontal axis

namespace
{

std::unique_ptr<QwtScaleDraw> scale_draw_for(bar_labels kind, const QStringList& labels)
{
    switch (kind) {
    case bar_labels::from_one:
        return std::make_unique<ChartStatisticXLDefaultP1>();
    case bar_labels::american_numbers:
        return std::make_unique<ChartStatisticXLPleinA>();
    case bar_labels::simple_chances:
        return std::make_unique<ChartStatisticXLSimpleChance>();
    case bar_labels::columns_and_dozens:
        return std::make_unique<ChartStatisticXLKlDZ>();
    case bar_labels::sectors:
        return std::make_unique<ChartStatisticXLAnnoncen>();
    case bar_labels::list:
        break;
    }
    return std::make_unique<ChartStatisticXLDefault>(labels);
}

} // namespace

chart_statistic_widget::chart_statistic_widget(QWidget* parent)
    : QwtPlot(parent)
    , bar_item(new BarChartItem)
    , grid(new QwtPlotGrid)
{
    give_chart_look(*this);
    setAxisScaleEngine(xBottom, new whole_number_scale);
    setAxisScaleEngine(yLeft, new whole_number_scale);
    setAxisScale(xBottom, 0, first_limit);
    setAxisScale(yLeft, 0, first_limit);

    grid->enableX(false);
    grid->setMajorPen(QPen(QColor(200, 200, 200), 1, Qt::SolidLine));
    grid->setVisible(false);
    grid->attach(this);
    bar_item->attach(this);

    set_fonts(chart_fonts());
    give_scale_draw(xBottom);
    give_scale_draw(yLeft);
}

chart_statistic_widget::~chart_statistic_widget() = default;

void chart_statistic_widget::set_values(const QVector<double>& values, bar_labels kind)
{
    bar_item->set_values(values);
    label_kind = kind;
    give_scale_draw(xBottom);
    set_x_scale();
    if (zoomer) zoomer->begin_anew();
    replot();
}

void chart_statistic_widget::set_labels(const QStringList& labels)
{
    label_list = labels;
    if (label_kind == bar_labels::list) give_scale_draw(xBottom);
    replot();
}

void chart_statistic_widget::set_x_scale()
{
    const auto count = static_cast<double>(bar_item->dataSize());
    if (count > 0) {
        setAxisScale(xBottom, -half_place, count - half_place);
    } else {
        setAxisScale(xBottom, 0, first_limit);
    }
}

void chart_statistic_widget::set_y_scale(double minimum, double maximum, double step)
{
    setAxisScale(yLeft, minimum, maximum, step);
    set_x_scale();
    if (zoomer) zoomer->begin_anew();
    replot();
}

void chart_statistic_widget::show_empty(int bar_count)
{
    QStringList blanks;
    for (int bar = 0; bar < bar_count; ++bar)
        blanks.append(QStringLiteral(" "));
    label_list = blanks;
    set_values(QVector<double>(bar_count, 0.0), bar_labels::list);
    set_y_scale(0, first_limit);
}

/// A scale is finished before its axis gets it: the axis measures it only then.
void chart_statistic_widget::give_scale_draw(int axis)
{
    std::unique_ptr<QwtScaleDraw> draw = std::make_unique<ChartStatisticNoYColor>();
    if (axis == xBottom) draw = scale_draw_for(label_kind, label_list);
    draw->enableComponent(QwtScaleDraw::Ticks, has_ticks[axis]);
    draw->enableComponent(QwtScaleDraw::Backbone, has_ticks[axis]);
    replace_scale_draw(*this, axis, std::move(draw));
    updateLayout();
}

void chart_statistic_widget::enable_ticks(int axis, bool is_shown)
{
    has_ticks[axis] = is_shown;
    give_scale_draw(axis);
}

void chart_statistic_widget::set_fonts(const chart_fonts& fonts)
{
    used_fonts = fonts;
    setAxisFont(xBottom, fonts.axis);
    setAxisFont(yLeft, fonts.axis);
    set_titles(title().text(),
               axisTitle(xBottom).text(),
               axisTitle(yLeft).text(),
               title().isEmpty() ? QColor(Qt::black) : title().color());
    updateLayout();
}

void chart_statistic_widget::set_titles(const QString& title,
                                        const QString& x_title,
                                        const QString& y_title,
                                        const QColor& title_colour)
{
    setTitle(title_text(title, used_fonts.title, title_colour));
    setAxisTitle(xBottom, title_text(x_title, used_fonts.axis_title, Qt::black));
    setAxisTitle(yLeft, title_text(y_title, used_fonts.axis_title, Qt::black));
}

QwtText chart_statistic_widget::title_text(const QString& text,
                                           const QFont& font,
                                           const QColor& colour) const
{
    QwtText titled(text, QwtText::PlainText);
    titled.setFont(font);
    titled.setColor(colour);
    return titled;
}

void chart_statistic_widget::show_grid(bool is_shown)
{
    grid->setVisible(is_shown);
    replot();
}

bool chart_statistic_widget::is_grid_shown() const
{
    return grid->isVisible();
}

void chart_statistic_widget::set_bar_colour(const QColor& colour)
{
    bar_item->set_colour(colour);
    replot();
}

void chart_statistic_widget::set_transparent()
{
    setAutoFillBackground(false);
    setContentsMargins(0, 0, 0, 0);
    setCanvasBackground(Qt::NoBrush);
    auto* const shown_canvas = qobject_cast<QwtPlotCanvas*>(canvas());
    shown_canvas->setFrameStyle(QFrame::NoFrame);
    shown_canvas->setPaintAttribute(QwtPlotCanvas::Opaque, false);
    shown_canvas->setAutoFillBackground(false);
    shown_canvas->setAttribute(Qt::WA_OpaquePaintEvent, false);
    shown_canvas->setAttribute(Qt::WA_NoSystemBackground);
    shown_canvas->setCursor(Qt::ArrowCursor);
}

void chart_statistic_widget::enable_zoom()
{
    if (zoomer) return;
    zoomer = new chart_zoomer(*this, [this](const QPointF& point) { return read_off(point); });
    zoomer->begin_anew();
}

QVector<double> chart_statistic_widget::values() const
{
    return bar_item->values();
}

QString chart_statistic_widget::label_of(int bar) const
{
    return axisScaleDraw(xBottom)->label(bar).text();
}

QString chart_statistic_widget::read_off(const QPointF& point) const
{
    const double bar = std::round(point.x());
    if (bar < 0 || bar >= static_cast<double>(bar_item->dataSize())) return {};
    const int place = static_cast<int>(bar);
    const QString name = place < bar_names.size() ? bar_names.at(place) : label_of(place);
    return QStringLiteral("%1: %2").arg(name).arg(bar_item->sample(place).y(), 0, 'f', 0);
}

/// Whatever changes the room for the labels ends here.
void chart_statistic_widget::updateLayout()
{
    QwtPlot::updateLayout();
    fit_axis_labels(*this, xBottom, std::numeric_limits<int>::max());
    fit_axis_labels(*this, yLeft, usual_label_count);
    updateAxes();
}
