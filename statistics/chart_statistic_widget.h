#ifndef CHART_STATISTIC_WIDGET_H
#define CHART_STATISTIC_WIDGET_H

#include "chart_look.h"

#include <QColor>
#include <QStringList>
#include <QVector>
#include <qwt_plot.h>

class BarChartItem;
class chart_zoomer;
class QwtPlotGrid;

/// What stands below the bars.
enum class bar_labels {
    list = 0,           ///< the labels given by `set_labels()`, numbers from 0 behind their end
    from_one,           ///< numbers from 1
    american_numbers,   ///< 0, 00, 1 to 36
    simple_chances,     ///< the six even chances
    columns_and_dozens, ///< the columns, then the dozens
    sectors             ///< the announced sectors
};

/**
 * A bar chart. Begins without bars, both axes at 0 to 10, no ticks, no raster, black on a light
 * ground. As many labels stand below the bars as fit side by side.
 */
class chart_statistic_widget : public QwtPlot
{
    Q_OBJECT

public:
    explicit chart_statistic_widget(QWidget* parent = nullptr);
    ~chart_statistic_widget() override;

    /// Replaces all bars and the kind of their labels.
    void set_values(const QVector<double>& values, bar_labels kind);
    /// The labels of the kind `list`.
    void set_labels(const QStringList& labels);
    /// Draws at once. A step of 0 chooses the labels by the room there is.
    void set_y_scale(double minimum, double maximum, double step = 0.0);
    /// The axes at 0 to 10 and as many bars of no height, with blank labels.
    void show_empty(int bar_count);

    void set_fonts(const chart_fonts& fonts);
    /// Empty titles take no room. The titles of the axes are always black.
    void set_titles(const QString& title,
                    const QString& x_title,
                    const QString& y_title,
                    const QColor& title_colour = Qt::black);

    void show_grid(bool is_shown);
    /// Ticks and backbone of an axis. Range: `xBottom`, `yLeft`.
    void enable_ticks(int axis, bool is_shown);
    /// One colour for all bars; an invalid one brings the fifteen in turn back.
    void set_bar_colour(const QColor& colour);
    /// Lets the ground of the parent shine through, and turns canvas frame and margins off.
    void set_transparent();

    /// Lets the user zoom and read off; names of the bars for that, which may change later.
    void enable_zoom();
    void set_bar_names(const QStringList& names) { bar_names = names; }

    QVector<double> values() const;
    /// The label below a bar.
    QString label_of(int bar) const;
    /// Name and value of the bar at a point of the chart; empty beside the bars.
    QString read_off(const QPointF& point) const;
    const BarChartItem& bars() const { return *bar_item; }
    bool is_grid_shown() const;

    void updateLayout() override;

private:
    void set_x_scale();
    void give_scale_draw(int axis);
    QwtText title_text(const QString& text, const QFont& font, const QColor& colour) const;

    BarChartItem* bar_item;
    QwtPlotGrid* grid;
    chart_zoomer* zoomer = nullptr;
    chart_fonts used_fonts;
    bar_labels label_kind = bar_labels::list;
    QStringList label_list;
    QStringList bar_names;
    bool has_ticks[axisCnt] = {};
};

#endif // CHART_STATISTIC_WIDGET_H
