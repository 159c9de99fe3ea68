#ifndef NUMBER_RECORDS_H
#define NUMBER_RECORDS_H

#include "game_types.h"
#include "jetons.h"
#include "number_hit_property.h"

#include <QString>

#include <array>
#include <cstddef>
#include <initializer_list>

/// The colour of a number on the table; tables and windows rely on the values.
enum class number_colour { red = 0, black = 1, green = 2 };

/// Everything that is known of one number: the bets that it hits and its colour.
struct number_record {
    number_hit_property hits;
    number_colour colour;
};

/**
 * The constant table of the 38 numbers, worked out at compile time from the net of the table:
 * twelve streets of three numbers, and the zero field at the first of them.
 */
namespace number_records
{

constexpr std::array<int, 18> red_numbers = {
    1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};

constexpr bool is_red(int number)
{
    for (const int red : red_numbers) {
        if (red == number) return true;
    }
    return false;
}

constexpr number_hit_property without_bets(int number, int valid)
{
    constexpr int none = jetons::NO_JETON;
    return {number,
            {none, none, none},
            none,
            none,
            {none, none, none, none, none},
            {none, none},
            {none, none, none, none},
            {none, none, none, none, none},
            valid};
}

/// Puts jetons on the first unused places of a list.
template <std::size_t size>
constexpr void append(int (&list)[size], std::initializer_list<int> bets)
{
    std::size_t place = 0;
    while (place < size && list[place] != jetons::NO_JETON)
        ++place;
    for (const int bet : bets)
        list[place++] = bet;
}

/// Index of the street 1/2/3 to 34/35/36, from 0.
constexpr int street_of(int number)
{
    return (number - 1) / 3;
}

/// Place of a number in its street, from 0.
constexpr int column_of(int number)
{
    return (number - 1) % 3;
}

constexpr void add_even_chances(number_hit_property& hits)
{
    const bool red = is_red(hits.number);
    const bool even = hits.number % 2 == 0;
    if (hits.number <= 18) append(hits.ec, {jetons::EC01});
    if (even) append(hits.ec, {jetons::EC02});
    append(hits.ec, {red ? jetons::EC03 : jetons::EC04});
    if (!even) append(hits.ec, {jetons::EC05});
    if (hits.number > 18) append(hits.ec, {jetons::EC06});
}

constexpr void add_transversales(number_hit_property& hits)
{
    const int street = street_of(hits.number);
    if (hits.number == 1) append(hits.tp, {jetons::TP01});
    if (hits.number == 2) append(hits.tp, {jetons::TP01, jetons::TP02});
    if (hits.number == 3) append(hits.tp, {jetons::TP02});
    append(hits.tp, {jetons::TP03 + street});
    if (hits.number == 2) append(hits.tp, {jetons::TP15, jetons::TP16});
    if (hits.number == 3) append(hits.tp, {jetons::TP16});

    if (street > 0) append(hits.ts, {jetons::TS01 + street - 1});
    if (street < 11) append(hits.ts, {jetons::TS01 + street});
}

constexpr void add_carres(number_hit_property& hits)
{
    const int street = street_of(hits.number);
    const int column = column_of(hits.number);
    if (street == 0) append(hits.ca, {jetons::CA01});
    for (int gap = street - 1; gap <= street; ++gap) { // gap g: between the streets g and g + 1
        if (gap < 0 || gap > 10) continue;
        for (int side = column - 1; side <= column; ++side) { // side s: columns s and s + 1
            if (side < 0 || side > 1) continue;
            append(hits.ca, {jetons::CA02 + 2 * gap + side});
        }
    }
}

constexpr void add_chevaux(number_hit_property& hits)
{
    // The 2 touches five, and its row keeps the cheval 1/2 in front of 2/5.
    if (hits.number == 2) {
        append(hits.ch, {jetons::CH02, jetons::CH37, jetons::CH05, jetons::CH38, jetons::CH62});
        return;
    }
    append(hits.ch, {jetons::CH01 + hits.number - 1});
    if (hits.number <= 33) append(hits.ch, {jetons::CH04 + hits.number - 1});
    for (int side = column_of(hits.number) - 1; side <= column_of(hits.number); ++side) {
        if (side < 0 || side > 1) continue;
        append(hits.ch, {jetons::CH37 + 2 * street_of(hits.number) + side});
    }
    if (hits.number == 3) append(hits.ch, {jetons::CH63});
}

constexpr number_hit_property zero_bets()
{
    number_hit_property hits = without_bets(0, 1);
    append(hits.tp, {jetons::TP01, jetons::TP02, jetons::TP15});
    append(hits.ca, {jetons::CA01});
    append(hits.ch, {jetons::CH01, jetons::CH02, jetons::CH03, jetons::CH61});
    return hits;
}

constexpr number_hit_property double_zero_bets()
{
    number_hit_property hits = without_bets(number_code::double_zero, 1);
    append(hits.tp, {jetons::TP15, jetons::TP16});
    append(hits.ca, {jetons::CA01});
    append(hits.ch, {jetons::CH61, jetons::CH62, jetons::CH63});
    return hits;
}

constexpr number_record make_record(int number)
{
    if (number == 0) return {zero_bets(), number_colour::green};
    if (number == number_code::double_zero) return {double_zero_bets(), number_colour::green};
    number_hit_property hits = without_bets(number, 1);
    hits.dz = jetons::DZ01 + (number - 1) / 12;
    hits.kl = jetons::KL01 + column_of(number);
    add_even_chances(hits);
    add_transversales(hits);
    add_carres(hits);
    add_chevaux(hits);
    return {hits, is_red(number) ? number_colour::red : number_colour::black};
}

constexpr std::array<number_record, number_code::number_count> make_table()
{
    std::array<number_record, number_code::number_count> records{};
    for (int number = 0; number < number_code::number_count; ++number) {
        records[static_cast<std::size_t>(number)] = make_record(number);
    }
    return records;
}

/// The records by number; index 37 is the double zero.
inline constexpr std::array<number_record, number_code::number_count> table = make_table();

/// What a value that is no number gets.
inline constexpr number_hit_property no_record = without_bets(number_code::no_number, 0);

template <std::size_t size>
constexpr bool contains(const int (&list)[size], int jeton)
{
    for (const int bet : list) {
        if (bet == jeton) return true;
    }
    return false;
}

} // namespace number_records

/// All single bets that a number hits. Range: 0 to 37; anything else gives a record with
/// `valid` 0, `number` -1 and no bets. The record is the same on both tables, so it also names
/// bets that can only lie on the other one.
constexpr const number_hit_property& property_of(int number)
{
    if (!number_code::is_number(number)) return number_records::no_record;
    return number_records::table[static_cast<std::size_t>(number)].hits;
}

/// How a number is written: "00" for the double zero, else its digits.
inline QString number_text(int number)
{
    return number == number_code::double_zero ? QStringLiteral("00") : QString::number(number);
}

/// The colour of a number. A hand change mark is black, so that its line stands in the black
/// column; a value that is no number is green.
constexpr number_colour colour_of(int number)
{
    if (number == number_code::hand_change) return number_colour::black;
    if (!number_code::is_number(number)) return number_colour::green;
    return number_records::table[static_cast<std::size_t>(number)].colour;
}

/// True when a jeton on this place wins with this number. Prison places, end marks and values
/// that are no number: false.
constexpr bool covers(jetons::jeton_names jeton, int number)
{
    if (jeton >= jetons::LAST_JN || !number_code::is_number(number)) return false;
    if (jeton <= jetons::PL37) return jeton == number;
    const number_hit_property& hits = property_of(number);
    return hits.dz == jeton || hits.kl == jeton || number_records::contains(hits.ec, jeton) ||
           number_records::contains(hits.tp, jeton) || number_records::contains(hits.ts, jeton) ||
           number_records::contains(hits.ca, jeton) || number_records::contains(hits.ch, jeton);
}

#endif // NUMBER_RECORDS_H
