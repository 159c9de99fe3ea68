#ifndef CHART_SCALE_DRAWS_H
#define CHART_SCALE_DRAWS_H

#include <QFont>
#include <QStringList>
#include <qwt_scale_draw.h>

// The scales of the charts: each turns the value of an axis into its label. Values of the
// horizontal axis are truncated to whole numbers.

/// The entry of a list; the number itself where the list ends.
class ChartStatisticXLDefault : public QwtScaleDraw
{
public:
    explicit ChartStatisticXLDefault(const QStringList& labels = {});
    QwtText label(double value) const override;

private:
    QStringList entries;
};

/// Counts the bars from 1.
class ChartStatisticXLDefaultP1 : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

/// The numbers of the American table in the order 0, 00, 1 to 36.
class ChartStatisticXLPleinA : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

/// The columns, then the dozens.
class ChartStatisticXLKlDZ : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

/// The six even chances.
class ChartStatisticXLSimpleChance : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

/// The announced sectors.
class ChartStatisticXLAnnoncen : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

/// Amounts in black.
class ChartStatisticNoYColor : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

/// Amounts in red.
class ChartStatisticRedYColor : public QwtScaleDraw
{
public:
    explicit ChartStatisticRedYColor(const QFont& axis_font);
    QwtText label(double value) const override;

private:
    QFont font;
};

/// Amounts in blue.
class ChartStatisticBlueYColor : public QwtScaleDraw
{
public:
    explicit ChartStatisticBlueYColor(const QFont& axis_font);
    QwtText label(double value) const override;

private:
    QFont font;
};

#endif // CHART_SCALE_DRAWS_H
