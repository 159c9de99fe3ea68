#include "chart_statistic_player_widget.h"

#include "chart_scale_draws.h"
#include "chart_zoomer.h"
#include "course_curve.h"
#include "hot_cold_axis.h"
#include "whole_number_scale.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPen>
#include <qwt_legend.h>
#include <qwt_picker_machine.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_picker.h>

#include <algorithm>
#include <cmath>

static constexpr int first_limit = 10; // upper end of the axes while nothing is shown
static constexpr double curve_width = 1.6;

namespace
{

/// A click, as told from the beginning of a drag, which zooms.
class click_machine : public QwtPickerMachine
{
public:
    click_machine()
        : QwtPickerMachine(PointSelection)
    {
    }

    QList<Command> transition(const QwtEventPattern& pattern, const QEvent* event) override
    {
        const bool is_press = event->type() == QEvent::MouseButtonPress;
        if (!is_press && event->type() != QEvent::MouseButtonRelease) return {};
        const auto* mouse = static_cast<const QMouseEvent*>(event);
        if (!pattern.mouseMatch(QwtEventPattern::MouseSelect1, mouse)) return {};
        if (is_press) {
            pressed_at = mouse->pos();
            return {};
        }
        const int way = (mouse->pos() - pressed_at).manhattanLength();
        if (way >= QApplication::startDragDistance()) return {};
        return {Begin, Append, End};
    }

private:
    QPoint pressed_at;
};

QwtText axis_title(const QString& text, const QFont& font, const QColor& colour)
{
    QwtText title(text, QwtText::PlainText);
    title.setFont(font);
    title.setColor(colour);
    return title;
}

} // namespace

chart_statistic_player_widget::chart_statistic_player_widget(QWidget* parent)
    : QwtPlot(parent)
    , grid(new QwtPlotGrid)
    , marker(new QwtPlotMarker)
{
    give_chart_look(*this);
    for (const int axis : {xBottom, yLeft, yRight}) {
        setAxisScaleEngine(axis, new whole_number_scale);
        setAxisScale(axis, 0, first_limit);
    }
    setAxisScaleDraw(xBottom, new ChartStatisticXLDefault); // coups in full, never as 1e+06
    insertLegend(new QwtLegend, BottomLegend);

    grid->enableX(false);
    grid->setMajorPen(QPen(QColor(200, 200, 200), 1, Qt::SolidLine));
    grid->setVisible(false);
    grid->attach(this);

    marker->setLineStyle(QwtPlotMarker::VLine);
    marker->setLinePen(QPen(QColor(120, 120, 120), 1, Qt::DashLine));
    marker->setSpacing(6);
    marker->setVisible(false);
    marker->attach(this);

    set_fonts(chart_fonts());
    build_pickers();
}

chart_statistic_player_widget::~chart_statistic_player_widget() = default;

void chart_statistic_player_widget::build_pickers()
{
    zoomer = new chart_zoomer(*this, [this](const QPointF& point) { return read_off(point); });
    auto* const picker = new QwtPlotPicker(canvas());
    picker->setObjectName(QStringLiteral("picker"));
    picker->setStateMachine(new click_machine);
    connect(picker,
            qOverload<const QPointF&>(&QwtPlotPicker::selected),
            this,
            &chart_statistic_player_widget::onSelcted);
}

void chart_statistic_player_widget::show_curves(curve_view view,
                                                const QVector<player_curve>& curves)
{
    for (course_curve* curve : qAsConst(shown_curves)) {
        curve->detach();
        delete curve;
    }
    shown_curves.clear();
    marker->setVisible(false);
    picked.clear();
    shown_view = view;
    enableAxis(yRight, view == curve_view::score_and_stake);

    for (const player_curve& wanted : curves) {
        auto* const curve = new course_curve(wanted.title, wanted.start, wanted.course);
        curve->setPen(wanted.colour, curve_width, wanted.is_stake ? Qt::DashLine : Qt::SolidLine);
        curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
        curve->setLegendIconSize(QSize(28, 10));
        curve->setYAxis(wanted.is_stake ? yRight : yLeft);
        if (wanted.is_stake) curve->setZ(curve->z() + 1); // dashes cover less
        curve->attach(this);
        shown_curves.append(curve);
    }
    set_scale_draws();
    set_titles(axis_titles);
    set_scales();
    zoomer->begin_anew();
    replot();
}

void chart_statistic_player_widget::set_scale_draws()
{
    if (shown_view == curve_view::credit) {
        replace_scale_draw(*this, yLeft, std::make_unique<ChartStatisticNoYColor>());
        return;
    }
    const QFont& font = used_fonts.axis;
    replace_scale_draw(*this, yLeft, std::make_unique<ChartStatisticRedYColor>(font));
    replace_scale_draw(*this, yRight, std::make_unique<ChartStatisticBlueYColor>(font));
}

void chart_statistic_player_widget::set_scales()
{
    setAxisScale(xBottom, 0, std::max(last_coup(), first_limit));
    double lower = 0;
    double upper = first_limit;
    if (!shown_curves.isEmpty()) {
        QRectF bounds = shown_curves.first()->boundingRect();
        double least = bounds.top();
        double greatest = bounds.bottom();
        for (const course_curve* curve : qAsConst(shown_curves)) {
            bounds = curve->boundingRect();
            least = std::min(least, bounds.top());
            greatest = std::max(greatest, bounds.bottom());
        }
        const double widest = std::max(std::abs(least), std::abs(greatest));
        const auto margin = static_cast<double>(axis_margin(static_cast<qint64>(widest)));
        lower = least < 0 ? least - margin : std::max(least - margin, 0.0);
        upper = greatest + margin;
    }
    setAxisScale(yLeft, lower, upper);
    setAxisScale(yRight, lower, upper);
}

int chart_statistic_player_widget::last_coup() const
{
    int last = 0;
    for (const course_curve* curve : shown_curves)
        last = std::max(last, static_cast<int>(curve->dataSize()) - 1);
    return last;
}

void chart_statistic_player_widget::set_titles(const curve_titles& titles)
{
    axis_titles = titles;
    const bool is_credit = shown_view == curve_view::credit;
    const QFont& font = used_fonts.axis_title;
    setAxisTitle(xBottom, axis_title(titles.bottom, font, Qt::black));
    setAxisTitle(yLeft, axis_title(titles.left, font, is_credit ? Qt::black : Qt::red));
    setAxisTitle(yRight, axis_title(titles.right, font, Qt::blue));
}

void chart_statistic_player_widget::set_fonts(const chart_fonts& fonts)
{
    used_fonts = fonts;
    for (const int axis : {xBottom, yLeft, yRight})
        setAxisFont(axis, fonts.axis);
    legend()->setFont(fonts.axis);
    set_scale_draws();
    set_titles(axis_titles);
    updateLayout();
}

void chart_statistic_player_widget::show_grid(bool is_shown)
{
    grid->setVisible(is_shown);
    replot();
}

bool chart_statistic_player_widget::is_grid_shown() const
{
    return grid->isVisible();
}

int chart_statistic_player_widget::coup_at(const QPointF& point) const
{
    return static_cast<int>(
        std::clamp(std::round(point.x()), 0.0, static_cast<double>(last_coup())));
}

QString chart_statistic_player_widget::read_off(const QPointF& point) const
{
    if (shown_curves.isEmpty()) return {};
    const int coup = coup_at(point);
    QStringList lines(tr("Coup %1").arg(coup));
    for (const course_curve* curve : shown_curves) {
        if (coup >= static_cast<int>(curve->dataSize())) continue;
        const qint64 amount = curve->course().amount(static_cast<size_t>(coup));
        lines.append(QStringLiteral("%1: %2").arg(curve->title().text()).arg(amount));
    }
    return lines.join(QLatin1Char('\n'));
}

QString chart_statistic_player_widget::picked_text() const
{
    return picked;
}

void chart_statistic_player_widget::onSelcted(QPointF f_value)
{
    if (shown_curves.isEmpty()) return;
    const int coup = coup_at(f_value);
    const QwtInterval view = axisInterval(xBottom);
    const bool is_left = coup < (view.minValue() + view.maxValue()) / 2;
    picked = read_off(f_value);
    marker->setLabel(chart_note(picked, used_fonts.axis));
    marker->setLabelAlignment((is_left ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop);
    marker->setXValue(coup);
    marker->setVisible(true);
    replot();
}

/// Whatever changes the room for the labels ends here.
void chart_statistic_player_widget::updateLayout()
{
    QwtPlot::updateLayout();
    for (const int axis : {xBottom, yLeft, yRight})
        fit_axis_labels(*this, axis, usual_label_count);
    updateAxes();
}
