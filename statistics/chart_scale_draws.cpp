#include "chart_scale_draws.h"

#include <QColor>

namespace
{

/// The entry at the truncated value, else the number.
QwtText entry_or_number(const QStringList& entries, double value)
{
    const int place = static_cast<int>(value);
    if (place >= 0 && place < entries.size()) return QwtText(entries.at(place));
    return QwtText(QString::number(place));
}

QwtText amount(double value, const QColor& colour)
{
    QwtText text(QString::number(value, 'g', 6));
    text.setColor(colour);
    return text;
}

QwtText amount(double value, const QColor& colour, const QFont& font)
{
    QwtText text = amount(value, colour);
    text.setFont(font);
    return text;
}

} // namespace

ChartStatisticXLDefault::ChartStatisticXLDefault(const QStringList& labels)
    : entries(labels)
{
}

QwtText ChartStatisticXLDefault::label(double value) const
{
    return entry_or_number(entries, value);
}

QwtText ChartStatisticXLDefaultP1::label(double value) const
{
    return QwtText(QString::number(static_cast<int>(value) + 1));
}

QwtText ChartStatisticXLPleinA::label(double value) const
{
    const int place = static_cast<int>(value);
    if (place == 0) return QwtText(QStringLiteral("0"));
    if (place == 1) return QwtText(QStringLiteral("00"));
    return QwtText(QString::number(place - 1));
}

QwtText ChartStatisticXLKlDZ::label(double value) const
{
    static const QStringList names = {"K I", "K II", "K III", "D I", "D II", "D III"};
    return entry_or_number(names, value);
}

QwtText ChartStatisticXLSimpleChance::label(double value) const
{
    static const QStringList names = {"1-18", "EVEN", "RED", "BLACK", "ODD", "19-36"};
    return entry_or_number(names, value);
}

QwtText ChartStatisticXLAnnoncen::label(double value) const
{
    static const QStringList names = {"GS", "KS", "OR", "OP", "ZS"};
    return entry_or_number(names, value);
}

QwtText ChartStatisticNoYColor::label(double value) const
{
    return amount(value, Qt::black);
}

ChartStatisticRedYColor::ChartStatisticRedYColor(const QFont& axis_font)
    : font(axis_font)
{
}

QwtText ChartStatisticRedYColor::label(double value) const
{
    return amount(value, QColor(255, 0, 0), font);
}

ChartStatisticBlueYColor::ChartStatisticBlueYColor(const QFont& axis_font)
    : font(axis_font)
{
}

QwtText ChartStatisticBlueYColor::label(double value) const
{
    return amount(value, QColor(0, 0, 255), font);
}
