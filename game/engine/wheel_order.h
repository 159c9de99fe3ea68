#ifndef WHEEL_ORDER_H
#define WHEEL_ORDER_H

#include "game_types.h"

#include <array>
#include <cstddef>

/// One pocket of a wheel and its place on the wheel picture.
struct wheel_pocket {
    int number;                  ///< 0 to 36, 37 the double zero
    int clockwise_index;         ///< pockets from zero, clockwise
    int counter_clockwise_index; ///< pockets from zero, counter-clockwise
    int colour;                  ///< 0 red, 1 green, 2 black: not the codes of `number_colour`
    int x;                       ///< pixels on the wheel picture
    int y;
};

// clang-format off

/// The pockets clockwise, beginning at zero.
inline constexpr std::array<int, 37> french_wheel_order = {
     0, 32, 15, 19,  4, 21,  2, 25, 17, 34,  6, 27, 13,
    36, 11, 30,  8, 23, 10,  5, 24, 16, 33,  1, 20, 14,
    31,  9, 22, 18, 29,  7, 28, 12, 35,  3, 26,
};
inline constexpr std::array<int, 38> american_wheel_order = {
     0, 28,  9, 26, 30, 11,  7, 20, 32, 17,  5, 22, 34,
    15,  3, 24, 36, 13,  1, 37, 27, 10, 25, 29, 12,  8,
    19, 31, 18,  6, 21, 33, 16,  4, 23, 35, 14,  2,
};

// The pockets counter-clockwise, beginning at zero. The pixels next to zero and of the American
// double zero are measured on the picture. All others lie evenly on the circle that fits the
// nine measured ones best: the least squares of x = cx - r * sin(a), y = cy - r * cos(a), a being
// the counter-clockwise index in pockets of the full turn, give the centre (244.04, 256.66) and
// the radius 231.95.

/// Number, clockwise, counter-clockwise, colour, x, y.
inline constexpr std::array<wheel_pocket, 37> french_wheel_pockets = {{
    { 0,  0,  0, 1, 246,  25},
    {26, 36,  1, 2, 204,  28},
    { 3, 35,  2, 0, 169,  38},
    {35, 34,  3, 2, 129,  54},
    {12, 33,  4, 0,  98,  76},
    {28, 32,  5, 2,  70, 103},
    { 7, 31,  6, 0,  47, 135},
    {29, 30,  7, 2,  29, 170},
    {18, 29,  8, 0,  17, 208},
    {22, 28,  9, 2,  12, 247},
    { 9, 27, 10, 0,  14, 286},
    {31, 26, 11, 2,  22, 325},
    {14, 25, 12, 0,  37, 361},
    {20, 24, 13, 2,  58, 395},
    { 1, 23, 14, 0,  84, 424},
    {33, 22, 15, 2, 114, 449},
    {16, 21, 16, 0, 149, 468},
    {24, 20, 17, 2, 186, 481},
    { 5, 19, 18, 0, 224, 488},
    {10, 18, 19, 2, 264, 488},
    {23, 17, 20, 0, 302, 481},
    { 8, 16, 21, 2, 340, 468},
    {30, 15, 22, 0, 374, 449},
    {11, 14, 23, 2, 405, 424},
    {36, 13, 24, 0, 431, 395},
    {13, 12, 25, 2, 451, 361},
    {27, 11, 26, 0, 466, 325},
    { 6, 10, 27, 2, 474, 286},
    {34,  9, 28, 0, 476, 247},
    {17,  8, 29, 2, 471, 208},
    {25,  7, 30, 0, 459, 170},
    { 2,  6, 31, 2, 442, 135},
    {21,  5, 32, 0, 418, 103},
    { 4,  4, 33, 2, 390,  76},
    {19,  3, 34, 0, 357,  54},
    {15,  2, 35, 2, 321,  38},
    {32,  1, 36, 0, 281,  28},
}};
inline constexpr std::array<wheel_pocket, 38> american_wheel_pockets = {{
    { 0,  0,  0, 1, 246,  25},
    { 2, 37,  1, 2, 208,  28},
    {14, 36,  2, 0, 169,  37},
    {35, 35,  3, 2, 134,  53},
    {23, 34,  4, 0, 102,  74},
    { 4, 33,  5, 2,  73, 100},
    {16, 32,  6, 0,  50, 130},
    {33, 31,  7, 2,  32, 163},
    {21, 30,  8, 0,  19, 200},
    { 6, 29,  9, 2,  13, 238},
    {18, 28, 10, 0,  13, 276},
    {31, 27, 11, 2,  19, 314},
    {19, 26, 12, 0,  32, 350},
    { 8, 25, 13, 2,  50, 384},
    {12, 24, 14, 0,  73, 414},
    {29, 23, 15, 2, 102, 440},
    {25, 22, 16, 0, 134, 461},
    {10, 21, 17, 2, 169, 476},
    {27, 20, 18, 0, 206, 485},
    {37, 19, 19, 1, 243, 489},
    { 1, 18, 20, 0, 282, 485},
    {13, 17, 21, 2, 319, 476},
    {36, 16, 22, 0, 354, 461},
    {24, 15, 23, 2, 387, 440},
    { 3, 14, 24, 0, 415, 414},
    {15, 13, 25, 2, 438, 384},
    {34, 12, 26, 0, 456, 350},
    {22, 11, 27, 2, 469, 314},
    { 5, 10, 28, 0, 475, 276},
    {17,  9, 29, 2, 475, 238},
    {32,  8, 30, 0, 469, 200},
    {20,  7, 31, 2, 456, 163},
    { 7,  6, 32, 0, 438, 130},
    {11,  5, 33, 2, 415, 100},
    {30,  4, 34, 0, 387,  74},
    {26,  3, 35, 2, 354,  53},
    { 9,  2, 36, 0, 319,  37},
    {28,  1, 37, 2, 280,  27},
}};

// clang-format on

/// Indices by number, -1 for a number that the wheel doesn't have.
template <std::size_t size>
constexpr std::array<int, number_code::number_count>
index_by_number(const std::array<int, size>& order)
{
    std::array<int, number_code::number_count> indices{};
    for (int& index : indices)
        index = -1;
    for (std::size_t i = 0; i < size; ++i) {
        indices[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
    }
    return indices;
}

inline constexpr auto french_wheel_indices = index_by_number(french_wheel_order);
inline constexpr auto american_wheel_indices = index_by_number(american_wheel_order);

/// Clockwise index of a number, 0 for zero; -1 for a number that the wheel of the form lacks.
constexpr int wheel_index(int number, table_form form)
{
    if (!number_code::is_number(number)) return -1;
    const auto place = static_cast<std::size_t>(number);
    return form == table_form::american ? american_wheel_indices[place]
                                        : french_wheel_indices[place];
}

/// The number at a clockwise index. Any index is good: it is wrapped around the wheel.
constexpr int wheel_number(int index, table_form form)
{
    const int count = pocket_count(form);
    const int inside = index % count;
    const auto place = static_cast<std::size_t>(inside < 0 ? inside + count : inside);
    return form == table_form::american ? american_wheel_order[place] : french_wheel_order[place];
}

#endif // WHEEL_ORDER_H
