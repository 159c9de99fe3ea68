#ifndef HOT_COLD_AXIS_H
#define HOT_COLD_AXIS_H

#include <QtGlobal>

/// What a chart leaves free beyond its largest value: 10 for up to three digits, 100 for four,
/// 1000 for five and so on. The sign does not count.
qint64 axis_margin(qint64 maximum);

/**
 * The vertical axis of the hot or of the cold chart. It only grows while a game runs, so that the
 * bars of one coup can be compared with those of the next.
 */
class hot_cold_axis
{
public:
    /// Takes the greatest and the smallest of the counts to be shown. True if the axis is to be
    /// set to `lower()` and `upper()`; false if it stays as it is.
    bool update(qint64 maximum, qint64 minimum);

    /// Begins anew with 0 to 10.
    void reset() { *this = hot_cold_axis(); }

    qint64 upper() const { return upper_limit; }
    qint64 lower() const { return lower_limit; }

private:
    qint64 upper_limit = 10;
    qint64 lower_limit = 0;
};

#endif // HOT_COLD_AXIS_H
