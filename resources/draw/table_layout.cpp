#include "table_layout.h"

#include <cmath>

namespace table_layout
{

namespace
{

constexpr double field_width = 62;
constexpr double field_height = 96;

/// The bulging field right of the numbers, flat where it meets them.
QPainterPath zero_outline()
{
    constexpr double exponent = 3.6;
    constexpr int steps = 96;
    const double width = zero_right - numbers.right();
    const double half = numbers.height() / 2;
    const QPointF middle(numbers.right(), numbers.center().y());
    QPainterPath path(QPointF(numbers.right(), numbers.top()));
    for (int i = 1; i < steps; ++i) {
        const double angle = M_PI * i / steps;
        const double sine = std::sin(angle);
        const double cosine = std::cos(angle);
        const double x = width * std::pow(sine, 2 / exponent);
        const double y = std::copysign(half * std::pow(std::abs(cosine), 2 / exponent), cosine);
        path.lineTo(middle.x() + x, middle.y() - y);
    }
    path.lineTo(numbers.right(), numbers.bottom());
    path.closeSubpath();
    return path;
}

QPainterPath zero_half(bool upper)
{
    QPainterPath half;
    const double middle = numbers.center().y();
    half.addRect(numbers.right() - 10, upper ? middle - 400 : middle, 200, 400);
    return zero_outline().intersected(half);
}

QPointF jeton_middle(jetons::jeton_names jeton, table_form form)
{
    constexpr double half_jeton = 15.5;
    const chance_geometry& place = geometry_of(jeton, form);
    return {place.jeton_x + half_jeton, place.jeton_y - base_y + half_jeton};
}

} // namespace

QPainterPath number_field(int number, table_form form)
{
    if (number == 0) return form == table_form::french ? zero_outline() : zero_half(true);
    if (number == 37) return form == table_form::french ? QPainterPath() : zero_half(false);
    const chance_geometry& place =
        geometry_of(static_cast<jetons::jeton_names>(jetons::PL00 + number), form);
    QPainterPath field;
    field.addRect(place.picture_x, place.picture_y, field_width, field_height);
    return field;
}

QPointF number_middle(int number, table_form form)
{
    if (number > 0 && number < 37) return number_field(number, form).boundingRect().center();
    const auto jeton = static_cast<jetons::jeton_names>(jetons::PL00 + number);
    return {(numbers.right() + zero_right) / 2 + 1, jeton_middle(jeton, form).y()};
}

QRectF column_field(int index)
{
    const auto jeton = static_cast<jetons::jeton_names>(jetons::KL01 + index);
    const double top = geometry_of(jeton, table_form::french).picture_y;
    return {columns_left, top, numbers.left() - columns_left, field_height};
}

QRectF dozen_field(int index)
{
    const auto first = static_cast<jetons::jeton_names>(jetons::PL01 + 12 * index);
    const double right = geometry_of(first, table_form::french).picture_x + field_width;
    constexpr double width = 4 * field_width;
    return {right - width, numbers.bottom(), width, dozens_bottom - numbers.bottom()};
}

QRectF even_chance_field(int index)
{
    const QRectF dozen = dozen_field(index / 2);
    const double width = dozen.width() / 2;
    const double left = index % 2 == 0 ? dozen.left() + width : dozen.left();
    return {left, even_chances_top, width, even_chances_bottom - even_chances_top};
}

QRectF announcement_field(int row)
{
    constexpr double row_pitch = 34;
    return {917, 373 + row_pitch * row, 93, 28};
}

} // namespace table_layout
