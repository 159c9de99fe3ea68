#include "design_geometry.h"
#include "paint_tools.h"
#include "picture_book.h"

#include <cstddef>

namespace
{

/// A plate of dark wood in a brass edge, lying on the cloth; the corners are round and show it.
void draw_plate(QPainter& painter, const QSize& size, unsigned seed)
{
    constexpr double corner = 9;
    const QRectF area(QPointF(0, 0), size);
    QPainterPath plate;
    plate.addRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.fillPath(plate, paint::pixel_brush(painter, area, [seed](double x, double y) {
                         return paint::wood_at(x, y, seed);
                     }));
    QLinearGradient lit(area.topLeft(), area.bottomLeft());
    lit.setColorAt(0.0, QColor(255, 220, 170, 34));
    lit.setColorAt(0.3, QColor(0, 0, 0, 30));
    lit.setColorAt(1.0, QColor(0, 0, 0, 120));
    painter.fillPath(plate, lit);

    QPainterPath edge;
    edge.addRoundedRect(area.adjusted(2, 2, -2, -2), corner - 1, corner - 1);
    painter.strokePath(edge.translated(0, 0.8), QPen(QColor(0, 0, 0, 150), 2.4));
    painter.strokePath(edge, QPen(paint::brass_plate(area), 2));
    painter.strokePath(plate, QPen(QColor(18, 8, 3, 230), 1));
}

/// A field of ivory let into the plate, on which figures are read.
void draw_inlay(QPainter& painter, const QRectF& field, double corner = 3.5)
{
    QPainterPath inlay;
    inlay.addRoundedRect(field, corner, corner);
    QLinearGradient paper(field.topLeft(), field.bottomLeft());
    paper.setColorAt(0.0, QColor(232, 224, 200));
    paper.setColorAt(0.2, QColor(248, 243, 227));
    paper.setColorAt(1.0, QColor(252, 249, 238));
    painter.fillPath(inlay, paper);
    painter.save();
    painter.setClipPath(inlay);
    paint::soft_stroke(painter, inlay.translated(0, 1.2), QColor(60, 40, 14, 96), 7);
    painter.restore();
    QLinearGradient bevel(field.topLeft(), field.bottomLeft());
    bevel.setColorAt(0, QColor(40, 20, 6, 220));
    bevel.setColorAt(1, QColor(222, 180, 104, 220));
    painter.strokePath(inlay, QPen(bevel, 1.2));
}

/// A tab of black lacquer in a brass edge, for the name of a player: dark, so that the name of
/// the active one can be lit.
void draw_name_tab(QPainter& painter, const QRectF& field)
{
    QPainterPath tab;
    tab.addRoundedRect(field.adjusted(0.5, 0.5, -0.5, -0.5), 4.5, 4.5);
    QLinearGradient lacquer(field.topLeft(), field.bottomLeft());
    lacquer.setColorAt(0.00, QColor(30, 22, 18));
    lacquer.setColorAt(0.45, QColor(58, 44, 36));
    lacquer.setColorAt(0.52, QColor(36, 26, 20));
    lacquer.setColorAt(1.00, QColor(22, 15, 11));
    painter.fillPath(tab, lacquer);
    painter.strokePath(tab.translated(0, 1), QPen(QColor(0, 0, 0, 120), 1.6));
    painter.strokePath(tab, QPen(paint::brass_plate(field), 1.3));
}

/// A recess for the caption of a row, in the wood.
void draw_groove(QPainter& painter, double y, double left, double right)
{
    painter.setPen(QPen(QColor(0, 0, 0, 140), 1));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
    painter.setPen(QPen(QColor(230, 180, 110, 46), 1));
    painter.drawLine(QPointF(left, y + 1), QPointF(right, y + 1));
}

void draw_player_panel(QPainter& painter)
{
    const QSize size = design::player_panel.size();
    draw_plate(painter, size, 3);
    struct row {
        int top;
        int height;
    };
    constexpr std::array<row, 3> rows = {{
        {design::panel_status_top, design::panel_status_height},
        {design::panel_seeded_top, design::panel_figure_height},
        {design::panel_credit_top, design::panel_figure_height},
    }};
    for (std::size_t player = 0; player < design::panel_left.size(); ++player) {
        const int left = design::panel_left[player];
        const int width = design::panel_right[player] + 1 - left;
        draw_name_tab(painter,
                      QRectF(left, design::panel_names_top, width, design::panel_names_height));
        for (const row& line : rows)
            draw_inlay(painter, QRectF(left, line.top, width, line.height));
    }
    for (std::size_t line = 1; line < rows.size(); ++line) {
        const row& above = rows[line - 1];
        const double y = (above.top + above.height + rows[line].top) / 2.0;
        draw_groove(painter, y, design::panel_caption_left, design::panel_right.back());
    }
}

void draw_statistic_panel(QPainter& painter)
{
    const QSize size = design::statistic_panel.size();
    draw_plate(painter, size, 8);
    constexpr double title_bottom = 42; // the name of the player stands on the wood above
    draw_inlay(painter, QRectF(10, title_bottom, size.width() - 20, size.height() - 52), 4);
}

void draw_last_numbers(QPainter& painter)
{
    draw_plate(painter, design::last_numbers.size(), 14);
    const int height = design::last_number_height;
    for (int row = 0; row < design::last_number_count; ++row) {
        for (int column = 0; column < 2; ++column) {
            const int left = design::last_number_left +
                             column * (design::last_number_width + design::last_number_gap);
            const int top = design::last_number_top + row * height;
            draw_inlay(painter, QRectF(left, top + 1, design::last_number_width, height - 2), 3);
        }
    }
}

void draw_hot_cold(QPainter& painter)
{
    draw_plate(painter, design::hot_cold.size(), 21);
    for (const QRect& chart : {design::hot_chart, design::cold_chart}) {
        const QRect field = chart.translated(-design::hot_cold.topLeft());
        draw_inlay(painter, QRectF(field).adjusted(-2, -2, 2, 2), 4);
    }
}

/// Ground of a status field while the last bets are set again: an arrow that turns back.
void draw_replay(QPainter& painter)
{
    const QRectF area(0, 0, 100, 62);
    draw_inlay(painter, area.adjusted(0.5, 0.5, -0.5, -0.5));
    const QPointF centre = area.center();
    constexpr double radius = 20;
    const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    const QColor colour(186, 142, 66, 92);
    QPainterPath arc;
    arc.arcMoveTo(circle, 62);
    arc.arcTo(circle, 62, 292);
    QPainterPathStroker stroker;
    stroker.setWidth(5.5);
    stroker.setCapStyle(Qt::FlatCap);

    QTransform at_end;
    at_end.translate(arc.currentPosition().x(), arc.currentPosition().y());
    at_end.rotate(-93);
    QPainterPath head(QPointF(12, 0));
    head.lineTo(-3, -9);
    head.lineTo(-3, 9);
    head.closeSubpath();
    painter.fillPath(stroker.createStroke(arc).united(at_end.map(head)), colour);
}

} // namespace

QVector<picture> panel_pictures()
{
    const QString folder = QStringLiteral(":/table/grafik/playertable/");
    return {
        {folder + QStringLiteral("player_panel.png"),
         design::player_panel.size(),
         draw_player_panel},
        {folder + QStringLiteral("replay.png"), QSize(100, 62), draw_replay},
        {folder + QStringLiteral("statistic_panel.png"),
         design::statistic_panel.size(),
         draw_statistic_panel},
        {folder + QStringLiteral("last_numbers.png"),
         design::last_numbers.size(),
         draw_last_numbers},
        {folder + QStringLiteral("hot_cold_stat3.png"), design::hot_cold.size(), draw_hot_cold},
    };
}
