#ifndef CHART_BET_KINDS_H
#define CHART_BET_KINDS_H

#include "chart_statistic_widget.h"
#include "game_types.h"

class statistic_data;

/// The kinds of bet that a chart can show, in the order of its list.
enum class chart_bet_kind {
    plein = 0,
    cheval,
    carre,
    transversale_plein,
    transversale_simple,
    columns_and_dozens,
    simple_chances,
    finals,
    sectors,
    one_neighbour,
    two_neighbours,
    three_neighbours
};
constexpr int chart_bet_kind_count = 12;

/// The counters of all bets of a kind, one per bar. Numbers of the American table stand in the
/// order 0, 00, 1 to 36. A bet that only the French table has counts 0 on the American one.
/// @param since  false: hits; true: coups since the last hit
QVector<double>
chart_values(chart_bet_kind kind, const statistic_data& store, bool since, table_form form);

/// The names of the same bars, as the user reads them ("CH 12/15").
QStringList chart_bar_names(chart_bet_kind kind, table_form form);

/// What stands below the bars of a kind.
bar_labels chart_labels(chart_bet_kind kind, table_form form);

#endif // CHART_BET_KINDS_H
