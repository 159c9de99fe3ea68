#ifndef TABLE_REGIONS_H
#define TABLE_REGIONS_H

#include "game_types.h"
#include "jetons.h"

#include <QPoint>

/// What a click on the table picture means: a single chance, an announcement, or neither.
struct table_hit {
    jetons::jeton_names jeton = jetons::NO_JETON;
    jetons::ext_jeton_names announcement = jetons::NO_EXT_JETON;

    bool is_nothing() const
    {
        return jeton == jetons::NO_JETON && announcement == jetons::NO_EXT_JETON;
    }
    bool operator==(const table_hit& other) const
    {
        return jeton == other.jeton && announcement == other.announcement;
    }
};

// Points are pixels of the scaled window, menu bar excluded. The edges of every field belong to
// it; where two fields share a pixel of a smaller table, the number column wins over the column
// of the chevaux, and the upper field over the lower one.

/// The bet whose field holds a point of the table.
/// @param reduction  0.0 (full size) to 0.3
table_hit chance_at(QPoint point, double reduction, table_form form);

/// The rows below the announcements, for which a number must be asked: the first name of the range
/// whose row holds a point, that is `FI00`, `EN00`, `ZN00` or `DN00`, else `NO_EXT_JETON`. Both
/// table forms have these rows.
jetons::ext_jeton_names announcement_dialog_at(QPoint point, double reduction);

/// True where a click on the table picture is a click on the betting area.
bool is_in_betting_area(QPoint point, double reduction);

#endif // TABLE_REGIONS_H
