#ifndef ANNOUNCEMENTS_H
#define ANNOUNCEMENTS_H

#include "game_types.h"
#include "jetons.h"

#include <QVector>

/// The single jetons that an announcement lays, in the order in which they are laid; a place that
/// stands twice takes two jetons. Neighbour bets run along the wheel, clockwise, with the named
/// number in the middle. Empty for what the table form lacks: the sectors `GS` to `ZS` on the
/// American table, neighbours of the double zero on the French one, separators and end marks.
const QVector<jetons::jeton_names>& announcement_jetons(jetons::ext_jeton_names announcement,
                                                        table_form form);

/// The announcements to which a number belongs: its finale, the sectors, then the neighbour bets
/// of the pockets around it, `DN`, `ZN`, `EN`, each clockwise. Sectors are told on both tables.
/// A number that is not on the wheel of the form belongs to no neighbour bet; what is no number
/// belongs to nothing.
const QVector<jetons::ext_jeton_names>& hit_announcements(int number, table_form form);

/// True when the number belongs to the announcement.
bool hits(jetons::ext_jeton_names announcement, int number, table_form form);

#endif // ANNOUNCEMENTS_H
