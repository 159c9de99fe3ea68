#include "chance_geometry.h"

#include "payout.h"

#include <QVector>

#include <array>
#include <cstddef>

namespace
{

constexpr int place_count = jetons::D_PRIS_EC06 + 1;
constexpr int number_pitch = 96; // from a number to the next one of its street
constexpr int street_pitch = 62; // from a street to the next one
constexpr int dozen_gap = 2;     // more behind every fourth street
constexpr int number_top = 334;
constexpr int net_bottom = 574;   // the line below the third numbers
constexpr int betting_shift = 15; // half a jeton, between two players on an even chance

using geometry_list = QVector<chance_geometry>;

/// A place of a table that doesn't follow the net of the streets.
struct single_place {
    jetons::jeton_names jeton;
    int x;
    int y; ///< without `base_y`
    const char* picture;
};

// The fields around zero. Names that tell numbers are pictures of exactly these fields.
// clang-format off
constexpr std::array<single_place, 7> french_zero_places = {{
    {jetons::PL00, 854, 430, "zero.png"},
    {jetons::CH01, 823, 334, "cheval_0_1.png"},
    {jetons::TP01, 823, 382, "transPL_0_1_2.png"},
    {jetons::CH02, 823, 430, "cheval_0_2.png"},
    {jetons::TP02, 823, 478, "transPL_0_2_3.png"},
    {jetons::CH03, 823, 526, "cheval_0_3.png"},
    {jetons::CA01, 823, 574, "carre_1.png"},
}};

// Between 0/1/2 and 00/2/3 three squares share the room of two: they overlap by up to 9 pixels.
constexpr std::array<single_place, 11> american_zero_places = {{
    {jetons::PL00, 854, 358, "zero_00_a.png"},
    {jetons::CH61, 854, 430, "cheval_0_00_a.png"},
    {jetons::PL37, 854, 504, "zero_00_a.png"},
    {jetons::CH01, 823, 334, "cheval_0_1_a.png"},
    {jetons::TP01, 823, 382, "transPL_0_1_2_a.png"},
    {jetons::CH02, 823, 408, "cheval_0_2_a.png"},
    {jetons::TP15, 823, 430, "transPL_0_00_2_a.png"},
    {jetons::CH62, 823, 452, "cheval_00_2_a.png"},
    {jetons::TP16, 823, 478, "transPL_00_2_3_a.png"},
    {jetons::CH63, 823, 526, "cheval_00_3_a.png"},
    {jetons::CA01, 823, 574, "transSI_3_a.png"},
}};

/// x of `TS01` to `TS11`: from the fourth street on one right of the other bets of the gap.
constexpr std::array<int, 11> transversale_simple_x = {
    761, 699, 637, 574, 512, 450, 388, 324, 262, 200, 138};

/// x of `EC01` to `EC06` and of their prison places.
constexpr std::array<int, 6> even_chance_x = {761, 636, 511, 386, 261, 137};

constexpr std::array<int, 3> dozen_x  = {614, 364, 115};
constexpr std::array<int, 3> column_y = {334, 430, 526};
// clang-format on

QString picture_path(const QString& file)
{
    return QStringLiteral(":/selection/grafik/selection/") + file;
}

/// A picture of its own size at its own place.
chance_geometry placed(int x, int y, const QString& file, int picture_x, int picture_y)
{
    return {x, base_y + y, picture_x, picture_y, picture_path(file), picture_x, picture_y};
}

/// A picture of one field, 62 x 96, with the jeton in its middle.
chance_geometry centred(int x, int y, const QString& file)
{
    return placed(x, y, file, x - 16, y - 33);
}

/// x of the numbers of a street.
int street_x(int street)
{
    return 792 - street_pitch * street - dozen_gap * (street / 4);
}

/// x of the bets between a street, from the second on, and the one before.
int gap_x(int street)
{
    return street_x(street) + 31;
}

/// True where the gap in front of a street is wider, so that its bets need a wider picture.
bool behind_dozen(int street)
{
    return street % 4 == 0;
}

/// y of the line between two numbers of a street, from 0.
int line_y(int line)
{
    return number_top + number_pitch / 2 + number_pitch * line;
}

void add_numbers_of_street(geometry_list& places, int street)
{
    const QString cheval =
        behind_dozen(street) ? QStringLiteral("cheval_2.png") : QStringLiteral("cheval_1.png");
    for (int column = 0; column < 3; ++column) {
        const int number = 1 + 3 * street + column;
        const int y = number_top + number_pitch * column;
        places[jetons::PL00 + number] = centred(street_x(street), y, QStringLiteral("plein.png"));
        if (street == 0) continue;
        places[jetons::CH01 + number - 1] = centred(gap_x(street), y, cheval);
    }
}

void add_lines_of_street(geometry_list& places, int street)
{
    const QString carre =
        behind_dozen(street) ? QStringLiteral("carre_3.png") : QStringLiteral("carre_2.png");
    for (int line = 0; line < 2; ++line) {
        places[jetons::CH37 + 2 * street + line] =
            centred(street_x(street), line_y(line), QStringLiteral("cheval_3.png"));
        if (street == 0) continue;
        places[jetons::CA02 + 2 * (street - 1) + line] =
            centred(gap_x(street), line_y(line), carre);
    }
}

void add_transversales_of_street(geometry_list& places, int street)
{
    places[jetons::TP03 + street] =
        centred(street_x(street), net_bottom, QStringLiteral("transPL_1.png"));
    if (street == 0) return;
    const int gap = street - 1;
    const QString simple =
        behind_dozen(street) ? QStringLiteral("transSI_2.png") : QStringLiteral("transSI_1.png");
    places[jetons::TS01 + gap] =
        centred(transversale_simple_x[static_cast<std::size_t>(gap)], net_bottom, simple);
}

void add_columns_and_dozens(geometry_list& places)
{
    constexpr std::array<int, 3> dozen_picture_x = {590, 340, 90};
    constexpr std::array<int, 3> column_picture_y = {301, 397, 493};
    for (int i = 0; i < 3; ++i) {
        const auto third = static_cast<std::size_t>(i);
        places[jetons::KL01 + i] =
            placed(56, column_y[third], QStringLiteral("kolonne.png"), 90, column_picture_y[third]);
        places[jetons::DZ01 + i] =
            placed(dozen_x[third], 614, QStringLiteral("dutzend.png"), dozen_picture_x[third], 301);
    }
}

/// The even chances, each with one picture over all its numbers; single prison in the row below
/// them, double prison between them and the dozens, both without a picture.
void add_even_chances(geometry_list& places)
{
    for (int i = 0; i < 6; ++i) {
        const int x = even_chance_x[static_cast<std::size_t>(i)];
        places[jetons::EC01 + i] =
            placed(x, 690, QStringLiteral("einfache_%1.png").arg(i + 1), 90, 301);
        places[jetons::PRIS_EC01 + i].jeton_x = x;
        places[jetons::PRIS_EC01 + i].jeton_y = base_y + 739;
        places[jetons::D_PRIS_EC01 + i].jeton_x = x;
        places[jetons::D_PRIS_EC01 + i].jeton_y = base_y + 649;
    }
}

template <std::size_t size>
void add_zero_places(geometry_list& places, const std::array<single_place, size>& zero_places)
{
    for (const single_place& place : zero_places) {
        places[place.jeton] = centred(place.x, place.y, QString::fromLatin1(place.picture));
    }
}

geometry_list make_places(table_form form)
{
    geometry_list places(place_count);
    for (int street = 0; street < 12; ++street) {
        add_numbers_of_street(places, street);
        add_lines_of_street(places, street);
        add_transversales_of_street(places, street);
    }
    add_columns_and_dozens(places);
    add_even_chances(places);
    // The form's own places come last, over what both forms have.
    if (form == table_form::american) {
        add_zero_places(places, french_zero_places);
        add_zero_places(places, american_zero_places);
    } else {
        add_zero_places(places, american_zero_places);
        add_zero_places(places, french_zero_places);
    }
    return places;
}

bool has_place(jetons::jeton_names jeton)
{
    return jeton <= jetons::D_PRIS_EC06 && jeton != jetons::LAST_JN && jeton != jetons::NO_JETON;
}

/// How far the jeton of a player lies right of the place. Unit: unscaled pixels.
int player_offset(jetons::jeton_names jeton, general_player::player_names player)
{
    if (player < general_player::PLAYER_1 || player >= general_player::NO_PLAYER) return 0;
    constexpr std::array<int, general_player::player_count> side_by_side = {
        -(base_y + betting_shift), -betting_shift, betting_shift, base_y + betting_shift};
    constexpr std::array<int, general_player::player_count> along_dozen = {0, 41, 128, 169};

    const auto index = static_cast<std::size_t>(player);
    const chance_kind kind = kind_of(jeton);
    const bool in_prison = jeton >= jetons::PRIS_EC01 && jeton <= jetons::D_PRIS_EC06;
    if (kind == chance_kind::einfache_chance || in_prison) return side_by_side[index];
    if (kind == chance_kind::dutzend) return along_dozen[index];
    return 0;
}

} // namespace

const chance_geometry& geometry_of(jetons::jeton_names jeton, table_form form)
{
    static const geometry_list french = make_places(table_form::french);
    static const geometry_list american = make_places(table_form::american);
    static const chance_geometry nowhere;
    if (!has_place(jeton)) return nowhere;
    return (form == table_form::american ? american : french).at(jeton);
}

QPoint jeton_position(jetons::jeton_names jeton,
                      general_player::player_names player,
                      table_form form,
                      double reduction)
{
    if (!has_place(jeton)) return {};
    constexpr int fixed_top = 30; // pixels above the table that keep their height
    const chance_geometry& place = geometry_of(jeton, form);
    return {scaled(place.jeton_x, reduction) + scaled(player_offset(jeton, player), reduction),
            scaled(place.jeton_y - fixed_top, reduction) + fixed_top};
}
