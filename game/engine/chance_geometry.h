#ifndef CHANCE_GEOMETRY_H
#define CHANCE_GEOMETRY_H

#include "game_types.h"
#include "jetons.h"

#include <QPoint>
#include <QString>

/// Height of the menu bar. Jetons lie on the window, so their y holds it; pictures and marks lie
/// below the menu bar.
constexpr int base_y = 31;

/**
 * Where a chance lies on the table picture and what shows its selection. Unit: pixels of the
 * full-size design. Jetons are squares of 31 pixels.
 */
struct chance_geometry {
    int jeton_x = 0; ///< top left of the first player's jeton, from the left of the window
    int jeton_y = 0; ///< the same from the top of the window, `base_y` included
    int hit_x = 0;   ///< top left of the hit mark, which lies where the picture lies
    int hit_y = 0;
    QString picture; ///< resource path of the selection picture, empty for none
    int picture_x = 0;
    int picture_y = 0;
};

/// The geometry of a place on the table of a form. A place that only the other form has gets the
/// geometry of that form; the prison places have no picture; an end mark has neither picture nor
/// position.
const chance_geometry& geometry_of(jetons::jeton_names jeton, table_form form);

/// The one rule of scale: the integer part of v - reduction * v.
/// Range of the reduction: 0.0 (full size) to below 1.0.
constexpr int scaled(int v, double reduction)
{
    return static_cast<int>(v - reduction * v);
}

/// Top left of a player's jeton in window pixels of the scaled table. On even chances and prison
/// places the players lie side by side around the place, on dozens from the place to the right;
/// everywhere else, and for `NO_PLAYER`, on the place itself. An end mark gives (0, 0).
QPoint jeton_position(jetons::jeton_names jeton,
                      general_player::player_names player,
                      table_form form,
                      double reduction);

#endif // CHANCE_GEOMETRY_H
