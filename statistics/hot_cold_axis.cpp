#include "hot_cold_axis.h"

#include <algorithm>

qint64 axis_margin(qint64 maximum)
{
    qint64 margin = 10;
    for (qint64 rest = maximum / 1000; rest != 0; rest /= 10)
        margin *= 10;
    return margin;
}

bool hot_cold_axis::update(qint64 maximum, qint64 minimum)
{
    const qint64 margin = axis_margin(maximum);
    const qint64 upper = maximum + margin;
    const qint64 lower = std::max<qint64>(minimum - margin, 0);
    if (upper_limit > upper) return false;
    upper_limit = upper;
    if (lower_limit <= lower) lower_limit = lower;
    return true;
}
