#include "wheel_quadrants.h"

#include <QStringList>

#include <algorithm>

int wheel_quadrants::quadrant_of(int number, table_form form)
{
    const quadrants& all = of_form(form);
    for (std::size_t index = 0; index < all.size(); ++index) {
        const quadrant& numbers = all[index];
        const bool is_inside = std::find(numbers.begin(), numbers.end(), number) != numbers.end();
        if (is_inside) return static_cast<int>(index);
    }
    return -1;
}

QString wheel_quadrants::number_list(int index, table_form form)
{
    QStringList texts;
    for (const int number : of_form(form)[static_cast<std::size_t>(index)])
        texts.append(QString::number(number));
    return texts.join(QLatin1Char(','));
}
