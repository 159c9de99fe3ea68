#ifndef WHEEL_QUADRANTS_H
#define WHEEL_QUADRANTS_H

#include "game_types.h"

#include <QString>

#include <array>

/**
 * The four quadrants of a wheel: nine neighbours each, counter-clockwise from zero. The zeros
 * stand outside.
 */
namespace wheel_quadrants
{

constexpr int quadrant_count = 4;

using quadrant = std::array<int, 9>;
using quadrants = std::array<quadrant, quadrant_count>;

// clang-format off
inline constexpr quadrants french = {{
    {26,  3, 35, 12, 28,  7, 29, 18, 22},
    { 9, 31, 14, 20,  1, 33, 16, 24,  5},
    {10, 23,  8, 30, 11, 36, 13, 27,  6},
    {34, 17, 25,  2, 21,  4, 19, 15, 32},
}};
inline constexpr quadrants american = {{
    { 2, 14, 35, 23,  4, 16, 33, 21,  6},
    {18, 31, 19,  8, 12, 29, 25, 10, 27},
    { 1, 13, 36, 24,  3, 15, 34, 22,  5},
    {17, 32, 20,  7, 11, 30, 26,  9, 28},
}};
// clang-format on

constexpr const quadrants& of_form(table_form form)
{
    return form == table_form::american ? american : french;
}

/// The quadrant of a number. Range: 0 to 3; -1 for the zeros and for what is no number.
int quadrant_of(int number, table_form form);

/// The numbers of a quadrant, divided by commas.
/// @param index  0 to 3
QString number_list(int index, table_form form);

} // namespace wheel_quadrants

#endif // WHEEL_QUADRANTS_H
