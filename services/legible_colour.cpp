#include "legible_colour.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr double least_contrast = 4.5;
constexpr int steps_to_white = 20;

/// The share of a colour value in the light that the eye sees.
double linear(double value)
{
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

int towards_white(int value, int step)
{
    return value + (255 - value) * step / steps_to_white;
}

} // namespace

double contrast_of(const QColor& one, const QColor& other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor legible_colour(const QColor& wanted, const QColor& ground)
{
    if (contrast_of(ground, Qt::white) < contrast_of(ground, Qt::black)) return wanted;
    QColor tone = wanted;
    for (int step = 1; step <= steps_to_white && contrast_of(tone, ground) < least_contrast; ++step)
        tone = QColor(towards_white(wanted.red(), step),
                      towards_white(wanted.green(), step),
                      towards_white(wanted.blue(), step));
    return tone;
}
