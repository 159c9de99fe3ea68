#include "chart_bet_kinds.h"

#include "jetons.h"
#include "statistic_data.h"

namespace
{

constexpr int place_of_double_zero = 1; // among the bars of the American table
constexpr int french_only_split = jetons::CH03 - jetons::CH01;
constexpr int french_only_street = jetons::TP02 - jetons::TP01;

template <typename list_type>
list_type bars_of_pockets(list_type by_number, table_form form)
{
    const auto double_zero = by_number.takeLast();
    if (form == table_form::american) by_number.insert(place_of_double_zero, double_zero);
    return by_number;
}

QList<int> without(QList<int> counters, int french_only, table_form form)
{
    if (form == table_form::american) counters[french_only] = 0;
    return counters;
}

QList<int> pleins(const statistic_data& store, bool since, table_form form)
{
    QList<int> counters = store.zero_numbers(since);
    if (form == table_form::french) counters.removeLast();
    return counters + store.numbers(since);
}

QList<int>
counters_of(chart_bet_kind kind, const statistic_data& store, bool since, table_form form)
{
    // clang-format off
    switch (kind) {
    case chart_bet_kind::plein:               return pleins(store, since, form);
    case chart_bet_kind::cheval:              return without(store.splits(since), french_only_split, form);
    case chart_bet_kind::carre:               return store.corners(since);
    case chart_bet_kind::transversale_plein:  return without(store.streets(since), french_only_street, form);
    case chart_bet_kind::transversale_simple: return store.six_lines(since);
    case chart_bet_kind::columns_and_dozens:  return store.columns_and_dozens(since);
    case chart_bet_kind::simple_chances:      return store.simple_chances(since);
    case chart_bet_kind::finals:              return store.finals(since);
    case chart_bet_kind::sectors:             return store.sectors(since);
    case chart_bet_kind::one_neighbour:       return bars_of_pockets(store.one_neighbour_bets(since), form);
    case chart_bet_kind::two_neighbours:      return bars_of_pockets(store.two_neighbour_bets(since), form);
    case chart_bet_kind::three_neighbours:    return bars_of_pockets(store.three_neighbour_bets(since), form);
    }
    // clang-format on
    return {};
}

template <typename name_type>
QStringList names(name_type first, name_type last)
{
    QStringList texts;
    for (int place = first; place <= last; ++place)
        texts.append(jetons::instance().display_text(static_cast<name_type>(place)));
    return texts;
}

} // namespace

QVector<double>
chart_values(chart_bet_kind kind, const statistic_data& store, bool since, table_form form)
{
    QVector<double> values;
    const QList<int> counters = counters_of(kind, store, since, form);
    values.reserve(counters.size());
    for (const int counter : counters)
        values.append(counter);
    return values;
}

QStringList chart_bar_names(chart_bet_kind kind, table_form form)
{
    // clang-format off
    switch (kind) {
    case chart_bet_kind::plein:               return bars_of_pockets(names(jetons::PL00, jetons::PL37), form);
    case chart_bet_kind::cheval:              return names(jetons::CH01, jetons::CH63);
    case chart_bet_kind::carre:               return names(jetons::CA01, jetons::CA23);
    case chart_bet_kind::transversale_plein:  return names(jetons::TP01, jetons::TP16);
    case chart_bet_kind::transversale_simple: return names(jetons::TS01, jetons::TS11);
    case chart_bet_kind::columns_and_dozens:  return names(jetons::KL01, jetons::DZ03);
    case chart_bet_kind::simple_chances:      return names(jetons::EC01, jetons::EC06);
    case chart_bet_kind::finals:              return names(jetons::FI00, jetons::FI09);
    case chart_bet_kind::sectors:             return names(jetons::GS, jetons::ZS);
    case chart_bet_kind::one_neighbour:       return bars_of_pockets(names(jetons::EN00, jetons::EN37), form);
    case chart_bet_kind::two_neighbours:      return bars_of_pockets(names(jetons::ZN00, jetons::ZN37), form);
    case chart_bet_kind::three_neighbours:    return bars_of_pockets(names(jetons::DN00, jetons::DN37), form);
    }
    // clang-format on
    return {};
}

bar_labels chart_labels(chart_bet_kind kind, table_form form)
{
    switch (kind) {
    case chart_bet_kind::cheval:
    case chart_bet_kind::carre:
    case chart_bet_kind::transversale_plein:
    case chart_bet_kind::transversale_simple:
        return bar_labels::from_one;
    case chart_bet_kind::columns_and_dozens:
        return bar_labels::columns_and_dozens;
    case chart_bet_kind::simple_chances:
        return bar_labels::simple_chances;
    case chart_bet_kind::sectors:
        return bar_labels::sectors;
    case chart_bet_kind::finals:
        return bar_labels::list;
    case chart_bet_kind::plein:
    case chart_bet_kind::one_neighbour:
    case chart_bet_kind::two_neighbours:
    case chart_bet_kind::three_neighbours:
        break;
    }
    return form == table_form::american ? bar_labels::american_numbers : bar_labels::list;
}
