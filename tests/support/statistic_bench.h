#ifndef STATISTIC_BENCH_H
#define STATISTIC_BENCH_H

#include "number_records.h"
#include "statistic_data.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTranslator>
#include <QVariant>
#include <QVector>
#include <QWidget>

/// Lets a store count a permanence.
inline void throw_numbers(statistic_data& store, const QVector<int>& numbers)
{
    for (const int number : numbers)
        store.addtoStat(property_of(number), true);
}

/// Puts every text between angle brackets.
class bracket_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return '<' + QString::fromUtf8(text) + '>';
    }
};

/// The name of a shown child that leaves its parent or has no room for its text; empty when all
/// of them fit.
inline QString clipped_child(const QWidget& window)
{
    const auto children = window.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        const QString name = child->objectName();
        if (!child->isVisible() || name.isEmpty() || name.startsWith("qt_")) continue;
        if (!child->parentWidget()->rect().contains(child->geometry())) return name;
        const bool has_text =
            qobject_cast<const QLabel*>(child) || qobject_cast<const QAbstractButton*>(child);
        const QString text = child->property("text").toString();
        if (!has_text || text.isEmpty()) continue;
        const QSize needed = child->fontMetrics().size(Qt::TextSingleLine, text);
        if (child->width() < needed.width() || child->height() + 1 < needed.height()) return name;
    }
    return {};
}

#endif // STATISTIC_BENCH_H
