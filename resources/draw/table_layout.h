#ifndef TABLE_LAYOUT_H
#define TABLE_LAYOUT_H

#include "chance_geometry.h"

#include <QPainterPath>
#include <QPoint>
#include <QRectF>

/// The fields that are printed on the cloth, in pixels of the central widget. They follow from
/// the places of the jetons: a line runs wherever a jeton between two fields lies.
namespace table_layout
{

constexpr QRectF numbers(90, 301, 748, 288); ///< the numbers 1 to 36
constexpr double zero_right = 888;           ///< how far the field of the zero bulges
constexpr double dozens_bottom = 653;
constexpr double even_chances_top = 676;
constexpr double even_chances_bottom = 735;
constexpr double prison_bottom = 771;
constexpr double columns_left = 53;

/// Field of a number, 0 to 37; zero and double zero by the form, the double zero of the French
/// table is empty.
QPainterPath number_field(int number, table_form form);

/// Middle of the digits of a number.
QPointF number_middle(int number, table_form form);

/// Fields of the outer chances, index from 0 in the order of their names.
QRectF column_field(int index);
QRectF dozen_field(int index);
QRectF even_chance_field(int index);

/// Rows beside the table, from the top: `GS`, `KS`, `OR`, `OP`, `ZS` (French table only), finals,
/// one, two and three neighbours.
constexpr int announcement_rows = 9;
constexpr int first_common_row = 5; ///< from here on the rows stand on both tables
QRectF announcement_field(int row);

} // namespace table_layout

#endif // TABLE_LAYOUT_H
