#include "paint_tools.h"
#include "picture_book.h"

#include <array>

namespace
{

constexpr int jeton_size = 31;
constexpr double radius = 14.6;
const QPointF middle(15.3, 15.2);

/// What stands on the edge of a jeton. Players differ by it as well as by their colour.
enum class edge_pattern { blocks, double_stripes, dots, diamonds };

struct jeton_design {
    QColor colour;
    QColor mark;
    edge_pattern pattern;
    int count; ///< marks around the edge
};

void add_mark(QPainterPath& marks, edge_pattern pattern)
{
    constexpr double outer = 14.6;
    constexpr double inner = 10.4;
    switch (pattern) {
    case edge_pattern::blocks:
        marks.addRect(QRectF(-2.6, -outer, 5.2, outer - inner));
        break;
    case edge_pattern::double_stripes:
        marks.addRect(QRectF(-2.3, -outer, 1.5, outer - inner));
        marks.addRect(QRectF(0.8, -outer, 1.5, outer - inner));
        break;
    case edge_pattern::dots:
        marks.addEllipse(QPointF(0, -(outer + inner) / 2), 1.45, 1.45);
        break;
    case edge_pattern::diamonds:
        marks.moveTo(0, -outer + 0.1);
        marks.lineTo(2.9, -(outer + inner) / 2);
        marks.lineTo(0, -inner);
        marks.lineTo(-2.9, -(outer + inner) / 2);
        marks.closeSubpath();
        break;
    }
}

void draw_edge(QPainter& painter, const jeton_design& design)
{
    QPainterPath disc;
    disc.addEllipse(QPointF(0, 0), radius, radius);
    painter.fillPath(disc, design.colour);
    painter.save();
    painter.setClipPath(disc);
    for (int i = 0; i < design.count; ++i) {
        painter.save();
        painter.rotate(360.0 / design.count * i);
        QPainterPath mark;
        add_mark(mark, design.pattern);
        painter.fillPath(mark, design.mark);
        painter.restore();
    }
    painter.restore();
    QRadialGradient relief(QPointF(0, 0), radius);
    relief.setColorAt(0.66, QColor(0, 0, 0, 70));
    relief.setColorAt(0.74, QColor(255, 255, 255, 50));
    relief.setColorAt(0.90, QColor(255, 255, 255, 20));
    relief.setColorAt(1.00, QColor(0, 0, 0, 120));
    painter.fillPath(disc, relief);
    QLinearGradient lit(0, -radius, 0, radius);
    lit.setColorAt(0, QColor(255, 255, 255, 70));
    lit.setColorAt(0.5, QColor(255, 255, 255, 0));
    lit.setColorAt(1, QColor(0, 0, 0, 70));
    painter.fillPath(disc, lit);
    painter.strokePath(disc, QPen(design.colour.darker(260), 0.7));
}

/// The light middle on which the count is read.
void draw_face(QPainter& painter, const jeton_design& design)
{
    constexpr double face_radius = 9.9;
    QRadialGradient paper(QPointF(0, 0), face_radius, QPointF(-2.5, -3));
    paper.setColorAt(0.0, QColor(255, 253, 244));
    paper.setColorAt(0.8, QColor(246, 238, 216));
    paper.setColorAt(1.0, QColor(224, 212, 182));
    painter.setBrush(paper);
    painter.setPen(QPen(design.colour.darker(170), 0.9));
    painter.drawEllipse(QPointF(0, 0), face_radius, face_radius);
}

void draw_jeton(QPainter& painter, const jeton_design& design)
{
    QRadialGradient shadow(QPointF(15.9, 16.1), 15.2);
    shadow.setColorAt(0.86, QColor(0, 0, 0, 130));
    shadow.setColorAt(1.00, QColor(0, 0, 0, 0));
    painter.fillRect(QRectF(0, 0, jeton_size, jeton_size), shadow);
    painter.translate(middle);
    draw_edge(painter, design);
    draw_face(painter, design);
}

} // namespace

QVector<picture> jeton_pictures()
{
    const QColor white(250, 246, 234);
    // clang-format off
    const std::array<jeton_design, 4> designs = {{
        {QColor( 28,  84, 178), white,              edge_pattern::blocks,          6},
        {QColor(204,  54,  26), white,              edge_pattern::double_stripes,  8},
        {QColor(240, 184,  34), QColor(56, 38, 8),  edge_pattern::dots,           12},
        {QColor(118,  46, 150), white,              edge_pattern::diamonds,        8},
    }};
    // clang-format on
    QVector<picture> pictures;
    int player = 1;
    for (const jeton_design& design : designs) {
        pictures.append({QStringLiteral(":/jeton/grafik/jeton/jeton_%1_8.png").arg(player++),
                         QSize(jeton_size, jeton_size),
                         [design](QPainter& painter) { draw_jeton(painter, design); }});
    }
    return pictures;
}
