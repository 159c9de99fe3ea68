#ifndef COURSE_CURVE_H
#define COURSE_CURVE_H

#include <QList>
#include <QPolygonF>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

/// A player's amounts coup by coup, read where they lie: a million of them are not copied.
class course_series : public QwtSeriesData<QPointF>
{
public:
    /// @param start  the amount at coup 0
    /// @param course  the amounts from coup 1 on
    course_series(qint64 start, const QList<qint64>& course);

    size_t size() const override { return static_cast<size_t>(amounts.size()) + 1; }
    QPointF sample(size_t coup) const override
    {
        return {static_cast<double>(coup), static_cast<double>(amount(coup))};
    }
    QRectF boundingRect() const override { return bounds; }

    qint64 amount(size_t coup) const
    {
        return coup == 0 ? start_amount : amounts.at(static_cast<int>(coup) - 1);
    }

private:
    qint64 start_amount;
    QList<qint64> amounts;
    QRectF bounds;
};

/**
 * The points of a course that make its picture: where many coups share a column of pixels, the
 * first and the last of them, the lowest and the highest. The line through them covers the
 * pixels of the line through all, or their neighbours. Given in pixels, from one coup left of the
 * view to one right.
 */
QPolygonF
thinned_course(const course_series& course, const QwtScaleMap& x_map, const QwtScaleMap& y_map);

/// The curve of a course, drawn as quickly after a million coups as after a thousand, at any zoom.
class course_curve : public QwtPlotCurve
{
public:
    course_curve(const QString& title, qint64 start, const QList<qint64>& course);

    const course_series& course() const;

    void drawSeries(QPainter* painter,
                    const QwtScaleMap& x_map,
                    const QwtScaleMap& y_map,
                    const QRectF& canvas,
                    int from,
                    int to) const override;

private:
    struct view {
        double x_from, x_to, x_left, x_right;
        double y_from, y_to, y_bottom, y_top;
        bool operator==(const view& other) const;
    };

    mutable view drawn_view = {}; // the pointer moves over an unchanged chart
    mutable QPolygonF drawn_line;
};

#endif // COURSE_CURVE_H
