#ifndef DESIGN_GEOMETRY_H
#define DESIGN_GEOMETRY_H

#include "chance_geometry.h"

#include <QRect>

#include <array>

/// Where everything stands in the full-size design of the table's window, menu bar excluded.
/// Unit: pixels of the full-size design. The pictures are drawn from the same figures.
namespace design
{

constexpr int window_width = 1460;
constexpr int window_height = 793;
constexpr int menu_bar_height = base_y; ///< at every scale
constexpr int status_bar_height = 20;   ///< at every scale

// clang-format off
constexpr QRect player_panel    (  20,   8, 560, 282); ///< "WD_SpTable"
constexpr QRect statistic_panel ( 592,   8, 258, 172);
constexpr QRect clear_button    ( 592, 190, 125,  46);
constexpr QRect last_bet_button ( 725, 190, 125,  46);
constexpr QRect replay_button   ( 592, 244,  98,  46);
constexpr QRect short_button    ( 698, 244, 152,  46);
constexpr QRect last_numbers    ( 864,   8, 146, 282); ///< frame around the ten labels
constexpr QRect wheel           (1030,   6, 401, 401); ///< "GV_Wheel"
constexpr QRect table           (  51, 298, 960, 477); ///< "LA_Table"
constexpr QRect hot_cold        (1030, 416, 401, 262); ///< frame around both charts
constexpr QRect hot_chart       (1042, 428, 184, 238);
constexpr QRect cold_chart      (1235, 428, 184, 238);
constexpr QRect load_file       (1030, 686, 401,  32); ///< "LB_actual_load_file"
constexpr QRect selected_number (1030, 722, 401,  32); ///< "LB_selected_number"
constexpr QRect time_bar        ( 950, 763, 510,  30);
// clang-format on

/// The ball at rest over a zero that stands at the top, in pixels of the wheel, and the wheel's
/// centre seen from the ball.
constexpr QRect ball(192, 71, 18, 18);
constexpr QPoint ball_axis(9, 130);

/// The betting area, in which a click sets a jeton; the edges belong to it.
constexpr QRect betting_area(QPoint(51, 298), QPoint(1010, 774));

/// Rows of the last ten numbers in their frame, the newest at the bottom.
constexpr int last_number_count = 10;
constexpr int last_number_top = 6;     ///< of the first row, below the top of the frame
constexpr int last_number_height = 27; ///< of each row
constexpr int last_number_left = 8;    ///< of the black column, from the left of the frame
constexpr int last_number_width = 62;  ///< of each column
constexpr int last_number_gap = 6;     ///< between the columns

/// The player panel, in its own pixels: four columns, one per player.
constexpr std::array<int, 4> panel_left = {115, 225, 333, 441};
constexpr std::array<int, 4> panel_right = {214, 322, 430, 538}; ///< the last pixel inside
constexpr int panel_caption_left = 10; ///< captions of the rows stand left of the columns
constexpr int panel_caption_width = 100;
constexpr int panel_names_top = 7; ///< the name tabs
constexpr int panel_names_height = 38;
constexpr int panel_status_top = 56; ///< the status buttons
constexpr int panel_status_height = 62;
constexpr int panel_seeded_top = 132;
constexpr int panel_credit_top = 206;
constexpr int panel_figure_height = 62; ///< of the rows of seeded and credit

/// A rectangle by the rule of scale, each of its four figures by itself.
inline QRect scaled_rect(const QRect& rect, double reduction)
{
    return {scaled(rect.x(), reduction),
            scaled(rect.y(), reduction),
            scaled(rect.width(), reduction),
            scaled(rect.height(), reduction)};
}

} // namespace design

#endif // DESIGN_GEOMETRY_H
