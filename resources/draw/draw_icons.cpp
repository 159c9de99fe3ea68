#include "number_records.h"
#include "paint_tools.h"
#include "picture_book.h"
#include "wheel_order.h"

#include <QBuffer>
#include <QDataStream>
#include <QImageWriter>
#include <QtMath>

#include <array>
#include <cmath>

namespace
{

const QColor go(34, 138, 62);
const QColor halt(186, 30, 34);
const QColor steel(72, 84, 104);
const QColor amber(226, 150, 30);

/// Fills a shape of an icon: lit from above, with a dark edge.
void fill_shape(QPainter& painter, const QPainterPath& shape, const QColor& colour)
{
    const QRectF box = shape.boundingRect();
    QLinearGradient lit(box.topLeft(), box.bottomLeft());
    lit.setColorAt(0.0, colour.lighter(150));
    lit.setColorAt(0.5, colour);
    lit.setColorAt(1.0, colour.darker(125));
    painter.fillPath(shape, lit);
    painter.strokePath(shape,
                       QPen(colour.darker(190), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

QPainterPath polygon(std::initializer_list<QPointF> corners)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QVector<QPointF>(corners)));
    path.closeSubpath();
    return path;
}

QPainterPath outline_of(const QPainterPath& line, double width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(line).simplified();
}

void draw_start(QPainter& painter)
{
    fill_shape(painter, polygon({{6, 3.5}, {20.5, 12}, {6, 20.5}}), go);
}

void draw_pause(QPainter& painter)
{
    QPainterPath bars;
    bars.addRoundedRect(QRectF(5.5, 4, 4.6, 16), 1.2, 1.2);
    bars.addRoundedRect(QRectF(13.9, 4, 4.6, 16), 1.2, 1.2);
    fill_shape(painter, bars, amber);
}

void draw_stop(QPainter& painter)
{
    QPainterPath square;
    square.addRoundedRect(QRectF(4.5, 4.5, 15, 15), 2, 2);
    fill_shape(painter, square, halt);
}

void draw_reset(QPainter& painter)
{
    const QRectF circle(4.5, 4.5, 15, 15);
    QPainterPath arc;
    arc.arcMoveTo(circle, 10);
    arc.arcTo(circle, 10, -290);
    QPainterPath shape = outline_of(arc, 3);
    shape.addPath(polygon({{8.8, 1.2}, {17.6, 5.0}, {10.0, 10.4}}));
    shape.setFillRule(Qt::WindingFill);
    fill_shape(painter, shape.simplified(), steel);
}

void draw_options(QPainter& painter)
{
    constexpr int teeth = 8;
    QPainterPath gear;
    gear.addEllipse(QPointF(12, 12), 7.2, 7.2);
    for (int i = 0; i < teeth; ++i) {
        QTransform turned;
        turned.translate(12, 12);
        turned.rotate(360.0 / teeth * i);
        gear =
            gear.united(turned.map(polygon({{-2.1, -6.4}, {-1.5, -10}, {1.5, -10}, {2.1, -6.4}})));
    }
    QPainterPath hole;
    hole.addEllipse(QPointF(12, 12), 3, 3);
    fill_shape(painter, gear.subtracted(hole), steel);
}

void draw_load_file(QPainter& painter)
{
    fill_shape(painter,
               polygon({{2.5, 5.5}, {9, 5.5}, {11, 8}, {21.5, 8}, {21.5, 19.5}, {2.5, 19.5}}),
               QColor(222, 176, 84));
    fill_shape(painter,
               polygon({{12, 10}, {12, 13}, {7, 13}, {7, 16}, {12, 16}, {12, 19}, {18, 14.5}}),
               go);
}

void draw_short_game(QPainter& painter)
{
    fill_shape(
        painter,
        polygon({{13.5, 1.8}, {4.5, 13.6}, {10.6, 13.6}, {8.6, 22.2}, {19, 9.6}, {12.6, 9.6}}),
        QColor(240, 180, 28));
}

void draw_quit(QPainter& painter)
{
    const QRectF circle(4.2, 5.2, 15.6, 15.6);
    QPainterPath arc;
    arc.arcMoveTo(circle, 55);
    arc.arcTo(circle, 55, -290);
    fill_shape(painter, outline_of(arc, 3), halt);
    QPainterPath bar;
    bar.addRoundedRect(QRectF(10.5, 2.2, 3, 10.4), 1.2, 1.2);
    fill_shape(painter, bar, halt);
}

/// A line of letters as a bar: what the colours of a language look like from afar.
void draw_code_bar(QPainter& painter, const QRectF& bar, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(bar, 1, 1);
}

/// A sheet of code and a pencil; the bars take the colours in their order.
void draw_edited_sheet(QPainter& painter, const std::array<QColor, 5>& colours)
{
    painter.setPen(QPen(QColor(96, 102, 114), 1));
    painter.setBrush(QColor(252, 252, 250));
    painter.drawRoundedRect(QRectF(3.5, 2.5, 15, 19), 1.5, 1.5);
    draw_code_bar(painter, QRectF(6, 5.5, 4, 2), colours[0]);
    draw_code_bar(painter, QRectF(6, 9.5, 3, 2), colours[1]);
    draw_code_bar(painter, QRectF(10, 9.5, 5.5, 2), colours[2]);
    draw_code_bar(painter, QRectF(6, 13.5, 5, 2), colours[3]);
    draw_code_bar(painter, QRectF(6, 17.5, 4, 2), colours[4]);
    fill_shape(painter, polygon({{19.4, 6.2}, {22.4, 9.2}, {14.2, 17.4}, {11.2, 14.4}}), amber);
    fill_shape(painter, polygon({{11.2, 14.4}, {14.2, 17.4}, {9.8, 18.8}}), QColor(84, 66, 48));
}

void draw_edit_icon(QPainter& painter)
{
    draw_edited_sheet(painter,
                      {QColor(128, 128, 0),
                       QColor(0, 0, 235),
                       QColor(150, 0, 150),
                       QColor(0, 0, 235),
                       QColor(0, 128, 0)});
}

void draw_no_edit_icon(QPainter& painter)
{
    const QColor grey(150, 152, 158);
    draw_edited_sheet(painter, {grey, grey, grey, grey, grey});
    QPainterPath stroke(QPointF(3, 21));
    stroke.lineTo(21, 3);
    fill_shape(painter, outline_of(stroke, 2.6), halt);
}

void draw_lamp(QPainter& painter, const QColor& colour)
{
    const QPointF centre(8, 8);
    QLinearGradient socket(0, 0, 0, 16);
    socket.setColorAt(0, QColor(90, 90, 94));
    socket.setColorAt(1, QColor(222, 222, 226));
    painter.setPen(Qt::NoPen);
    painter.setBrush(socket);
    painter.drawEllipse(centre, 7.7, 7.7);
    QRadialGradient glass(centre + QPointF(0, 2.2), 7);
    glass.setColorAt(0.0, colour.lighter(165));
    glass.setColorAt(0.5, colour);
    glass.setColorAt(1.0, colour.darker(190));
    painter.setBrush(glass);
    painter.setPen(QPen(colour.darker(300), 0.7));
    painter.drawEllipse(centre, 6.2, 6.2);
    QLinearGradient shine(0, 2.4, 0, 8);
    shine.setColorAt(0, QColor(255, 255, 255, 225));
    shine.setColorAt(1, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(QPointF(8, 5.2), 3.9, 2.7);
}

/// The wheel in few strokes: what a window's corner can show.
void draw_program_icon(QPainter& painter)
{
    const QPointF centre(32, 32);
    painter.setPen(QPen(QColor(40, 18, 6), 1.5));
    QRadialGradient rim(centre, 31);
    rim.setColorAt(0.78, QColor(70, 28, 12));
    rim.setColorAt(0.88, QColor(158, 82, 38));
    rim.setColorAt(1.00, QColor(62, 26, 10));
    painter.setBrush(rim);
    painter.drawEllipse(centre, 31, 31);
    painter.setBrush(paint::turned_brass(centre));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(centre, 25.5, 25.5);

    constexpr int pockets = 17;
    constexpr QRectF circle(8.5, 8.5, 47, 47);
    for (int i = 0; i < pockets; ++i) {
        QColor colour = i % 2 == 0 ? QColor(24, 22, 26) : QColor(200, 26, 34);
        if (i == 0) colour = QColor(20, 150, 72);
        painter.setBrush(colour);
        const double width = 360.0 / pockets;
        painter.drawPie(circle, qRound(16 * (90 - width * (i + 0.5))), qRound(16 * (width + 0.2)));
    }
    painter.setBrush(paint::turned_brass(centre, 30));
    painter.drawEllipse(centre, 14.5, 14.5);
    QRadialGradient cone(centre, 13.5, centre - QPointF(3, 4));
    cone.setColorAt(0, QColor(176, 96, 46));
    cone.setColorAt(1, QColor(78, 32, 14));
    painter.setBrush(cone);
    painter.drawEllipse(centre, 13, 13);
    painter.setPen(QPen(paint::brass_light, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre - QPointF(7, 7), centre + QPointF(7, 7));
    painter.drawLine(centre - QPointF(7, -7), centre + QPointF(7, -7));
    painter.setPen(QPen(paint::brass_dark, 0.8));
    painter.setBrush(paint::brass_light);
    painter.drawEllipse(centre, 4.4, 4.4);
    QRadialGradient ball(QPointF(44.5, 14.5), 4.6, QPointF(43, 13));
    ball.setColorAt(0, Qt::white);
    ball.setColorAt(1, QColor(190, 180, 156));
    painter.setBrush(ball);
    painter.setPen(QPen(QColor(60, 50, 30), 0.7));
    painter.drawEllipse(QPointF(44.5, 14.5), 4.2, 4.2);
}

QByteArray as_png(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setQuality(0); // smallest
    writer.write(image);
    return bytes;
}

} // namespace

QVector<picture> icon_pictures()
{
    const QString folder = QStringLiteral(":/general/grafik/icon/");
    const QSize size(24, 24);
    QVector<picture> pictures = {
        {folder + QStringLiteral("start.png"), size, draw_start},
        {folder + QStringLiteral("pause.png"), size, draw_pause},
        {folder + QStringLiteral("stop.png"), size, draw_stop},
        {folder + QStringLiteral("reset.png"), size, draw_reset},
        {folder + QStringLiteral("options.png"), size, draw_options},
        {folder + QStringLiteral("load_file.png"), size, draw_load_file},
        {folder + QStringLiteral("short_game.png"), size, draw_short_game},
        {folder + QStringLiteral("quit.png"), size, draw_quit},
        {QStringLiteral(":/editoricon/grafik/editoricon/edit-icon.png"), size, draw_edit_icon},
        {QStringLiteral(":/editoricon/grafik/editoricon/no-edit-icon.png"),
         size,
         draw_no_edit_icon},
    };
    struct lamp {
        const char* name;
        QColor colour;
    };
    for (const lamp& led : {lamp{"red", QColor(222, 26, 26)},
                            lamp{"green", QColor(34, 178, 48)},
                            lamp{"yellow", QColor(244, 196, 20)}}) {
        const QColor colour = led.colour;
        pictures.append({QStringLiteral(":/led/grafik/led/led_%1.png").arg(led.name),
                         QSize(16, 16),
                         [colour](QPainter& painter) { draw_lamp(painter, colour); }});
    }
    return pictures;
}

QVector<int> icon_sizes()
{
    return {16, 24, 32, 48, 64};
}

QString program_icon_path()
{
    return QStringLiteral(":/general/grafik/icon/Roul10.ico");
}

QImage program_icon_of_size(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 64.0, side / 64.0);
    draw_program_icon(painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QVector<int> desktop_icon_sizes()
{
    return {16, 22, 24, 32, 48, 64, 128, 256};
}

QString desktop_icon_file(int side)
{
    return QStringLiteral("desktop/zarvello_%1.png").arg(side);
}

QByteArray program_icon()
{
    QVector<QByteArray> images;
    for (const int size : icon_sizes()) {
        images.append(as_png(program_icon_of_size(size)));
    }

    // The head of an icon file: its kind and count, then place and length of every image.
    constexpr int file_head = 6;
    constexpr int entry_head = 16;
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(1) << quint16(images.size());
    int place = file_head + entry_head * images.size();
    for (int i = 0; i < images.size(); ++i) {
        const auto side = static_cast<quint8>(icon_sizes().at(i));
        stream << side << side << quint8(0) << quint8(0) << quint16(1) << quint16(32)
               << quint32(images.at(i).size()) << quint32(place);
        place += images.at(i).size();
    }
    for (const QByteArray& image : images)
        stream.writeRawData(image.constData(), image.size());
    return file;
}
