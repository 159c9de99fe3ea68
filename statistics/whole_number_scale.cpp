#include "whole_number_scale.h"

#include <algorithm>
#include <cmath>

namespace
{

double labels_between(double from, double to, double step)
{
    return std::floor(to / step) - std::ceil(from / step) + 1;
}

/// The smallest of 1, 2, 5, 10, 20, 50 ... that leaves no more than so many labels.
double step_for(double from, double to, int most_labels)
{
    for (double decade = 1;; decade *= 10) {
        for (const double step : {decade, 2 * decade, 5 * decade}) {
            if (labels_between(from, to, step) <= std::max(most_labels, 1)) return step;
        }
    }
}

} // namespace

QwtScaleDiv whole_number_scale::divideScale(
    double from, double to, int most_labels, int /*most_between*/, double step) const
{
    const double lower = std::min(from, to);
    const double upper = std::max(from, to);
    const double width =
        step > 0 ? std::max(std::round(step), 1.0) : step_for(lower, upper, most_labels);
    QList<double> ticks;
    for (double tick = std::ceil(lower / width) * width; tick <= upper; tick += width)
        ticks.append(tick + 0.0); // without a negative zero, which would be written as "-0"
    return QwtScaleDiv(from, to, {}, {}, ticks);
}
