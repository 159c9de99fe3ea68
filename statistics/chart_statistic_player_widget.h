#ifndef CHART_STATISTIC_PLAYER_WIDGET_H
#define CHART_STATISTIC_PLAYER_WIDGET_H

#include "chart_look.h"

#include <QColor>
#include <QList>
#include <QVector>
#include <qwt_plot.h>

class chart_zoomer;
class course_curve;
class QwtPlotGrid;
class QwtPlotMarker;

/// A curve to be drawn.
struct player_curve {
    QString title;         ///< in the legend and where values are shown
    QColor colour;         ///< of the player
    qint64 start = 0;      ///< amount at coup 0
    QList<qint64> course;  ///< amounts from coup 1 on
    bool is_stake = false; ///< drawn dashed, read off on the right axis
};

/// What the vertical axes count.
enum class curve_view {
    credit,          ///< one axis
    score_and_stake, ///< returns in red on the left, stakes in blue on the right, equally scaled
};

/// Titles of the axes; the right one is not shown for credits.
struct curve_titles {
    QString bottom;
    QString left;
    QString right;
};

/**
 * Curves of amounts over the coups, from coup 0 on, with a legend. The vertical axis reaches from
 * the least to the greatest amount with a margin around; below 0 only where there is a debt. The
 * user can zoom, read the amounts off at the pointer, and have them stay by a click.
 */
class chart_statistic_player_widget : public QwtPlot
{
    Q_OBJECT

public:
    explicit chart_statistic_player_widget(QWidget* parent = nullptr);
    ~chart_statistic_player_widget() override;

    /// Detaches all curves and builds new ones; the whole course is in view.
    void show_curves(curve_view view, const QVector<player_curve>& curves);
    void set_titles(const curve_titles& titles);
    void set_fonts(const chart_fonts& fonts);
    void show_grid(bool is_shown);
    bool is_grid_shown() const;

    const QVector<course_curve*>& curves() const { return shown_curves; }

    /// The coup next to a point and the amounts of all curves there; empty without a curve.
    QString read_off(const QPointF& point) const;
    /// The text at the coup that was clicked; empty if there is none.
    QString picked_text() const;

    void updateLayout() override;

private slots:
    /// Shows the values at the coup next to the point, until the curves change.
    void onSelcted(QPointF f_value);

private:
    void build_pickers();
    void set_scales();
    void set_scale_draws();
    int last_coup() const;
    int coup_at(const QPointF& point) const;

    QVector<course_curve*> shown_curves; // attached, so they belong to the plot
    QwtPlotGrid* grid;
    QwtPlotMarker* marker; // belongs to the plot while attached
    chart_zoomer* zoomer = nullptr;
    chart_fonts used_fonts;
    curve_view shown_view = curve_view::credit;
    curve_titles axis_titles;
    QString picked; // text of the marker
};

#endif // CHART_STATISTIC_PLAYER_WIDGET_H
