#include "announcements.h"
#include "number_records.h"
#include "paint_tools.h"
#include "payout.h"
#include "picture_book.h"
#include "table_layout.h"

#include <QSet>

namespace
{

const QColor light(255, 226, 130);
const QColor bright_light(255, 246, 205);
constexpr QSize field_size(62, 96);
constexpr QSize all_numbers_size(748, 288);
constexpr QSize all_fields_size(796, 288); ///< with zero
constexpr QPoint all_fields_place(90, 301);

using number_list = QVector<int>;

QString path_of(const QString& file)
{
    return QStringLiteral(":/selection/grafik/selection/") + file + QStringLiteral(".png");
}

/// Lifts one field: a glance of warm light that grows towards a bright edge.
void light_field(QPainter& painter, const QPainterPath& field)
{
    painter.fillPath(field, paint::with_alpha(light, 34));
    painter.save();
    painter.setClipPath(field);
    paint::soft_stroke(painter, field, paint::with_alpha(light, 210), 11);
    painter.restore();
    painter.strokePath(field, QPen(bright_light, 2));
}

QPainterPath inside_of(const QPainterPath& field)
{
    QPainterPathStroker edge;
    edge.setWidth(4);
    edge.setJoinStyle(Qt::MiterJoin);
    return field.subtracted(edge.createStroke(field));
}

void light_numbers(QPainter& painter, const number_list& numbers, table_form form)
{
    for (const int number : numbers) {
        const QPainterPath field = table_layout::number_field(number, form);
        if (!field.isEmpty()) light_field(painter, inside_of(field));
    }
}

/// Lets what is painted fade out from the middle of a single field's picture.
void fade_out(QPainter& painter)
{
    painter.resetTransform();
    const QSizeF pixels(painter.device()->width(), painter.device()->height());
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    QRadialGradient fade(QPointF(0, 0), 1);
    fade.setColorAt(0.00, QColor(0, 0, 0, 255));
    fade.setColorAt(0.60, QColor(0, 0, 0, 240));
    fade.setColorAt(0.85, QColor(0, 0, 0, 110));
    fade.setColorAt(1.00, QColor(0, 0, 0, 0));
    painter.translate(pixels.width() / 2, pixels.height() / 2);
    painter.scale(pixels.width() / 2, pixels.height() / 2);
    painter.fillRect(QRectF(-1, -1, 2, 2), fade);
}

number_list numbers_of(jetons::jeton_names jeton, table_form form)
{
    number_list numbers;
    for (int number = 0; number < number_code::number_count; ++number) {
        if (number == number_code::double_zero && form == table_form::french) continue;
        if (covers(jeton, number)) numbers.append(number);
    }
    return numbers;
}

void draw_whole_fields(QPainter& painter,
                       const QPoint& place,
                       const number_list& numbers,
                       table_form form)
{
    painter.translate(-place);
    light_numbers(painter, numbers, form);
}

/// A bet between fields: the light falls on the parts of them that lie around the jeton, and a
/// ring shows its place.
void draw_spot(QPainter& painter, const QPoint& place, const number_list& numbers, table_form form)
{
    painter.save();
    painter.translate(-place);
    for (const int number : numbers) {
        const QPainterPath field = table_layout::number_field(number, form);
        painter.fillPath(field, paint::with_alpha(light, 62));
        painter.save();
        painter.setClipPath(field);
        paint::soft_stroke(painter, field, paint::with_alpha(light, 230), 15);
        painter.restore();
        painter.strokePath(inside_of(field), QPen(bright_light, 2));
    }
    painter.restore();
    painter.save();
    fade_out(painter);
    painter.restore();

    QPainterPath place_of_jeton;
    place_of_jeton.addEllipse(QPointF(31.5, 48.5), 13, 13);
    paint::soft_stroke(painter, place_of_jeton, paint::with_alpha(light, 150), 6);
    painter.strokePath(place_of_jeton, QPen(bright_light, 1.6));
}

/// The middle of a zero field: a soft oval, the same on every field of a zero.
QPainterPath zero_oval()
{
    QPainterPath oval;
    oval.addRoundedRect(QRectF(3, 4, 45, 88), 22, 26);
    return oval;
}

bool is_between_fields(chance_kind kind)
{
    return kind == chance_kind::cheval || kind == chance_kind::transversale_pleine ||
           kind == chance_kind::transversale_simple || kind == chance_kind::carre;
}

QSize picture_size(chance_kind kind)
{
    if (kind == chance_kind::kolonne) return {748, 96};
    if (kind == chance_kind::dutzend) return {250, 288};
    if (kind == chance_kind::einfache_chance) return all_numbers_size;
    return field_size;
}

picture chance_picture(jetons::jeton_names jeton, table_form form)
{
    const chance_geometry& geometry = geometry_of(jeton, form);
    const QPoint place(geometry.picture_x, geometry.picture_y);
    const number_list numbers = numbers_of(jeton, form);
    const chance_kind kind = kind_of(jeton);
    picture drawing{geometry.picture, picture_size(kind), {}};
    if (jeton == jetons::PL00 || jeton == jetons::PL37) {
        drawing.draw = [](QPainter& painter) { light_field(painter, zero_oval()); };
    } else if (is_between_fields(kind)) {
        drawing.draw = [place, numbers, form](QPainter& painter) {
            draw_spot(painter, place, numbers, form);
        };
    } else {
        drawing.draw = [place, numbers, form](QPainter& painter) {
            draw_whole_fields(painter, place, numbers, form);
        };
    }
    return drawing;
}

/// A place that the form lacks shows the picture of the other form, which draws it.
bool is_on_table(jetons::jeton_names jeton, table_form form)
{
    const bool american = form == table_form::american;
    if (jeton == jetons::PL37 || (jeton >= jetons::CH61 && jeton <= jetons::CH63)) return american;
    if (jeton == jetons::TP15 || jeton == jetons::TP16) return american;
    if (jeton == jetons::TP02 || jeton == jetons::CH03) return !american;
    return true;
}

/// Every picture that a chance of one of the tables names, once.
QVector<picture> chance_pictures()
{
    QVector<picture> pictures;
    QSet<QString> known;
    for (const table_form form : {table_form::french, table_form::american}) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            const auto jeton = static_cast<jetons::jeton_names>(value);
            if (!is_on_table(jeton, form)) continue;
            const QString path = geometry_of(jeton, form).picture;
            if (known.contains(path)) continue;
            known.insert(path);
            pictures.append(chance_picture(jeton, form));
        }
    }
    return pictures;
}

number_list numbers_of_announcement(jetons::ext_jeton_names name, table_form form)
{
    QSet<int> numbers;
    for (const jetons::jeton_names jeton : announcement_jetons(name, form)) {
        for (const int number : numbers_of(jeton, form))
            numbers.insert(number);
    }
    number_list list = numbers.values().toVector();
    std::sort(list.begin(), list.end());
    return list;
}

picture announcement_picture(jetons::ext_jeton_names name, table_form form, const QString& file)
{
    const number_list numbers = numbers_of_announcement(name, form);
    return {path_of(file), all_fields_size, [numbers, form](QPainter& painter) {
                draw_whole_fields(painter, all_fields_place, numbers, form);
            }};
}

QVector<picture> announcement_pictures()
{
    QVector<picture> pictures;
    for (const auto sector : {jetons::GS, jetons::KS, jetons::OR, jetons::OP, jetons::ZS}) {
        const QString file = QStringLiteral("annonce_") + jetons::name(sector);
        pictures.append(announcement_picture(sector, table_form::french, file));
    }
    for (int digit = 0; digit <= 9; ++digit) {
        const auto finale = static_cast<jetons::ext_jeton_names>(jetons::FI00 + digit);
        const QString file = QStringLiteral("finale_%1").arg(digit);
        pictures.append(announcement_picture(finale, table_form::french, file));
    }
    // Two zeros end on 0 there, and they lie elsewhere.
    pictures.append(
        announcement_picture(jetons::FI00, table_form::american, QStringLiteral("finale_0_a")));
    return pictures;
}

/// The mark on the number that was thrown.
void draw_hit(QPainter& painter, const QPainterPath& frame)
{
    painter.fillPath(frame, QColor(255, 240, 180, 58));
    paint::soft_stroke(painter, frame, QColor(255, 214, 92, 200), 13);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 226, 110), 4));
    painter.drawPath(frame);
    painter.setPen(QPen(QColor(255, 252, 235), 1.6));
    painter.drawPath(frame);
}

void draw_hit_plein(QPainter& painter)
{
    QPainterPath frame;
    frame.addRoundedRect(QRectF(4, 4, 54, 88), 7, 7);
    draw_hit(painter, frame);
}

void draw_hit_zero(QPainter& painter)
{
    QPainterPath frame;
    frame.addRoundedRect(QRectF(4, 4, 43, 88), 20, 22);
    draw_hit(painter, frame);
}

QPainterPath dolly_body()
{
    QPainterPath body(QPointF(17, 75));
    body.cubicTo(20, 62, 26, 58, 26.5, 44);
    body.lineTo(35.5, 44);
    body.cubicTo(36, 58, 42, 62, 45, 75);
    body.cubicTo(42, 82, 20, 82, 17, 75);
    return body;
}

/// A turned brass pawn with a body of crystal, seen from where the players sit.
void draw_dolly(QPainter& painter)
{
    QRadialGradient shadow(QPointF(0, 0), 1);
    shadow.setColorAt(0.3, QColor(0, 0, 0, 150));
    shadow.setColorAt(1.0, QColor(0, 0, 0, 0));
    painter.save();
    painter.translate(35, 80);
    painter.scale(25, 10);
    painter.fillRect(QRectF(-1, -1, 2, 2), shadow);
    painter.restore();

    QLinearGradient metal(13, 0, 49, 0);
    metal.setColorAt(0.00, QColor(92, 60, 18));
    metal.setColorAt(0.22, QColor(246, 220, 146));
    metal.setColorAt(0.45, QColor(206, 158, 74));
    metal.setColorAt(0.70, QColor(150, 104, 40));
    metal.setColorAt(0.88, QColor(226, 186, 104));
    metal.setColorAt(1.00, QColor(86, 56, 16));
    const QPen edge(QColor(70, 44, 12), 0.8);

    painter.setPen(edge);
    painter.setBrush(metal);
    painter.drawEllipse(QPointF(31, 78), 17, 7);
    painter.drawEllipse(QPointF(31, 75), 15.5, 6);

    QLinearGradient crystal(18, 0, 44, 0);
    crystal.setColorAt(0.00, QColor(150, 190, 204, 235));
    crystal.setColorAt(0.25, QColor(255, 255, 255, 235));
    crystal.setColorAt(0.50, QColor(196, 224, 232, 205));
    crystal.setColorAt(0.75, QColor(128, 172, 190, 215));
    crystal.setColorAt(1.00, QColor(226, 242, 246, 235));
    painter.setPen(QPen(QColor(52, 84, 98, 200), 0.9));
    painter.setBrush(crystal);
    painter.drawPath(dolly_body());
    painter.setPen(QPen(QColor(255, 255, 255, 220), 1.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(29, 48), QPointF(25.5, 66));
    painter.setPen(QPen(QColor(70, 110, 126, 110), 0.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(33.5, 47), QPointF(37.5, 73));

    painter.setPen(edge);
    painter.setBrush(metal);
    painter.drawRoundedRect(QRectF(23, 39, 16, 6), 2.6, 2.6);
    QRadialGradient ball(QPointF(28, 24), 14);
    ball.setColorAt(0.00, QColor(255, 250, 226));
    ball.setColorAt(0.25, QColor(246, 218, 142));
    ball.setColorAt(0.65, QColor(190, 142, 62));
    ball.setColorAt(1.00, QColor(96, 62, 18));
    painter.setBrush(ball);
    painter.drawEllipse(QPointF(31, 29), 10, 10);
}

QVector<picture> mark_pictures()
{
    return {
        {path_of(QStringLiteral("hit_plein")), field_size, draw_hit_plein},
        {path_of(QStringLiteral("hit_zero")), field_size, draw_hit_zero},
        {path_of(QStringLiteral("hit_zero_a")), field_size, draw_hit_zero},
        {path_of(QStringLiteral("dolly_plein")), field_size, draw_dolly},
    };
}

} // namespace

QVector<picture> selection_pictures()
{
    return chance_pictures() + announcement_pictures() + mark_pictures();
}
