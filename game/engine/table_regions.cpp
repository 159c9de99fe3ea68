#include "table_regions.h"

#include "chance_geometry.h"

#include <array>
#include <vector>

namespace
{

/// A rectangle of the full-size design, menu bar excluded; its edges belong to it.
struct area {
    int left;
    int right;
    int top;
    int bottom;
};

struct jeton_field {
    jetons::jeton_names jeton;
    area place;
};

struct announcement_field {
    jetons::ext_jeton_names announcement;
    area place;
};

/// A part of the table, with its fields in the order in which they are asked.
struct region {
    area place;
    std::vector<jeton_field> fields;
};

// clang-format off
constexpr area betting_area         = { 51, 1010, 298, 774};
constexpr area even_chance_area     = {104,  824, 676, 734};
constexpr area dozen_area           = {104,  824, 605, 653};
constexpr area column_area          = { 56,   86, 305, 585};
constexpr area zero_area            = {854,  884, 317, 573};
constexpr area announcement_area    = {916, 1010, 373, 672};

/// Two streets each, from the numbers 1 to 6 on.
constexpr std::array<area, 6> number_areas = {{
    {730, 853, 317, 604},
    {606, 729, 317, 604},
    {480, 605, 317, 604},
    {356, 479, 317, 604},
    {230, 355, 317, 604},
    {106, 229, 317, 604},
}};

constexpr std::array<jeton_field, 6> even_chances = {{
    {jetons::EC01, {728, 824, 676, 734}},
    {jetons::EC02, {603, 700, 676, 734}},
    {jetons::EC03, {478, 575, 676, 734}},
    {jetons::EC04, {353, 450, 676, 734}},
    {jetons::EC05, {228, 325, 676, 734}},
    {jetons::EC06, {104, 200, 676, 734}},
}};

constexpr std::array<jeton_field, 3> dozens = {{
    {jetons::DZ01, {603, 824, 605, 653}},
    {jetons::DZ02, {353, 575, 605, 653}},
    {jetons::DZ03, {104, 325, 605, 653}},
}};

constexpr std::array<jeton_field, 3> columns = {{
    {jetons::KL01, { 56,  86, 305, 393}},
    {jetons::KL02, { 56,  86, 401, 489}},
    {jetons::KL03, { 56,  86, 497, 585}},
}};

/// The zero field and the bets between zero and the numbers 1, 2 and 3.
constexpr std::array<jeton_field, 1> french_zero = {{
    {jetons::PL00, {854, 884, 374, 516}},
}};
constexpr std::array<jeton_field, 6> french_zero_bets = {{
    {jetons::CH01, {823, 853, 317, 381}},
    {jetons::TP01, {823, 853, 382, 412}},
    {jetons::CH02, {823, 853, 413, 477}},
    {jetons::TP02, {823, 853, 478, 508}},
    {jetons::CH03, {823, 853, 509, 573}},
    {jetons::CA01, {823, 853, 574, 604}},
}};
constexpr std::array<jeton_field, 3> american_zero = {{
    {jetons::PL00, {854, 884, 317, 429}},
    {jetons::CH61, {854, 884, 430, 460}},
    {jetons::PL37, {854, 884, 461, 573}},
}};
constexpr std::array<jeton_field, 8> american_zero_bets = {{
    {jetons::CH01, {823, 853, 317, 381}},
    {jetons::TP01, {823, 853, 382, 412}},
    {jetons::CH02, {823, 853, 413, 433}},
    {jetons::TP15, {823, 853, 434, 456}},
    {jetons::CH62, {823, 853, 457, 477}},
    {jetons::TP16, {823, 853, 478, 508}},
    {jetons::CH63, {823, 853, 509, 573}},
    {jetons::CA01, {823, 853, 574, 604}},
}};

constexpr std::array<announcement_field, 5> announcements = {{
    {jetons::GS, {916, 1010, 373, 400}},
    {jetons::KS, {916, 1010, 407, 434}},
    {jetons::OR, {916, 1010, 441, 468}},
    {jetons::OP, {916, 1010, 475, 502}},
    {jetons::ZS, {916, 1010, 509, 536}},
}};

/// Below them: a number is asked for, from this name on.
constexpr std::array<announcement_field, 4> dialog_rows = {{
    {jetons::FI00, {916, 1010, 543, 570}},
    {jetons::EN00, {916, 1010, 577, 604}},
    {jetons::ZN00, {916, 1010, 611, 638}},
    {jetons::DN00, {916, 1010, 645, 672}},
}};

/// x of the numbers of each street; the bets in front of the street follow to the right.
constexpr std::array<int, 12> street_x = {
    792, 730, 668, 606, 542, 480, 418, 356, 292, 230, 168, 106};
constexpr int street_width = 31;

/// The rows of the number net: a number, the line below it, and so on.
struct net_row {
    int top;
    int bottom;
};
constexpr std::array<net_row, 6> net_rows = {{
    {317, 381},
    {382, 412},
    {413, 477},
    {478, 508},
    {509, 573},
    {574, 604},
}};
// clang-format on

bool holds(const area& place, QPoint point, double reduction)
{
    return point.x() >= scaled(place.left, reduction) &&
           point.x() <= scaled(place.right, reduction) &&
           point.y() >= scaled(place.top, reduction) &&
           point.y() <= scaled(place.bottom, reduction);
}

template <std::size_t size>
region make_region(const area& place, const std::array<jeton_field, size>& fields)
{
    return {place, {fields.begin(), fields.end()}};
}

/// Six bets from top to bottom, in the rows of the net.
void add_net_column(std::vector<jeton_field>& fields, int left, const std::array<int, 6>& bets)
{
    for (std::size_t row = 0; row < bets.size(); ++row) {
        fields.push_back(
            {static_cast<jetons::jeton_names>(bets[row]),
             {left, left + street_width - 1, net_rows[row].top, net_rows[row].bottom}});
    }
}

void add_numbers(std::vector<jeton_field>& fields, int street)
{
    const int number = jetons::PL01 + 3 * street;
    const int line = jetons::CH37 + 2 * street;
    add_net_column(fields,
                   street_x[static_cast<std::size_t>(street)],
                   {number, line, number + 1, line + 1, number + 2, jetons::TP03 + street});
}

/// The bets that join a street, from the second on, with the one before.
void add_joining_bets(std::vector<jeton_field>& fields, int street)
{
    const int cheval = jetons::CH01 + 3 * street;
    const int carre = jetons::CA02 + 2 * (street - 1);
    const int transversale = jetons::TS01 + street - 1;
    add_net_column(fields,
                   street_x[static_cast<std::size_t>(street)] + street_width,
                   {cheval, carre, cheval + 1, carre + 1, cheval + 2, transversale});
}

region make_numbers_region(int group, table_form form)
{
    region numbers{number_areas[static_cast<std::size_t>(group)], {}};
    const int first = 2 * group;
    add_numbers(numbers.fields, first);
    add_numbers(numbers.fields, first + 1);
    if (first > 0) {
        add_joining_bets(numbers.fields, first);
    } else if (form == table_form::french) {
        const auto& bets = french_zero_bets;
        numbers.fields.insert(numbers.fields.end(), bets.begin(), bets.end());
    } else {
        const auto& bets = american_zero_bets;
        numbers.fields.insert(numbers.fields.end(), bets.begin(), bets.end());
    }
    add_joining_bets(numbers.fields, first + 1);
    return numbers;
}

/// The parts of the table in the order in which they are asked.
std::vector<region> make_regions(table_form form)
{
    std::vector<region> regions;
    regions.push_back(make_region(even_chance_area, even_chances));
    regions.push_back(make_region(dozen_area, dozens));
    for (int group = 0; group < static_cast<int>(number_areas.size()); ++group)
        regions.push_back(make_numbers_region(group, form));
    regions.push_back(make_region(column_area, columns));
    regions.push_back(form == table_form::french ? make_region(zero_area, french_zero)
                                                 : make_region(zero_area, american_zero));
    return regions;
}

const std::vector<region>& regions_of(table_form form)
{
    static const std::vector<region> french = make_regions(table_form::french);
    static const std::vector<region> american = make_regions(table_form::american);
    return form == table_form::american ? american : french;
}

jetons::jeton_names jeton_in(const region& part, QPoint point, double reduction)
{
    for (const jeton_field& field : part.fields) {
        if (holds(field.place, point, reduction)) return field.jeton;
    }
    return jetons::NO_JETON;
}

template <std::size_t size>
jetons::ext_jeton_names
announcement_in(const std::array<announcement_field, size>& fields, QPoint point, double reduction)
{
    for (const announcement_field& field : fields) {
        if (holds(field.place, point, reduction)) return field.announcement;
    }
    return jetons::NO_EXT_JETON;
}

} // namespace

table_hit chance_at(QPoint point, double reduction, table_form form)
{
    for (const region& part : regions_of(form)) {
        if (!holds(part.place, point, reduction)) continue;
        return {jeton_in(part, point, reduction), jetons::NO_EXT_JETON};
    }
    if (form != table_form::french || !holds(announcement_area, point, reduction)) return {};
    return {jetons::NO_JETON, announcement_in(announcements, point, reduction)};
}

jetons::ext_jeton_names announcement_dialog_at(QPoint point, double reduction)
{
    return announcement_in(dialog_rows, point, reduction);
}

bool is_in_betting_area(QPoint point, double reduction)
{
    return holds(betting_area, point, reduction);
}
