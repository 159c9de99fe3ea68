#include "design_geometry.h"
#include "number_records.h"
#include "paint_tools.h"
#include "picture_book.h"
#include "table_layout.h"

#include <QStringList>

#include <array>

namespace
{

using namespace table_layout;
using paint::face;

const QColor line_colour = paint::with_alpha(paint::ivory, 225);
const QColor faint_colour = paint::with_alpha(paint::ivory, 105);
constexpr double line_width = 2;

QColor print_colour(int number)
{
    switch (colour_of(number)) {
    case number_colour::red:
        return paint::table_red;
    case number_colour::black:
        return paint::table_black;
    case number_colour::green:
        break;
    }
    return paint::table_green;
}

QString digits(int number)
{
    return number == number_code::double_zero ? QStringLiteral("00") : QString::number(number);
}

QPen fine_pen(const QColor& colour, double width)
{
    QPen pen(colour, width);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

void draw_number(QPainter& painter, int number, table_form form)
{
    const QPointF middle = number_middle(number, form);
    constexpr double oval_width = 23;
    constexpr double oval_height = 37;
    QPainterPath oval;
    oval.addEllipse(middle, oval_width, oval_height);
    painter.fillPath(oval, paint::with_alpha(print_colour(number), 244));
    painter.strokePath(oval, fine_pen(paint::with_alpha(paint::ivory, 150), 1));
    paint::draw_text(
        painter, middle, digits(number), {face::serif_bold, 20, 0.92, 0, 0}, paint::ivory);
}

void draw_zero(QPainter& painter, int number, table_form form)
{
    const QPainterPath field = number_field(number, form);
    if (field.isEmpty()) return;
    painter.fillPath(field, paint::with_alpha(paint::table_green, 150));
    painter.strokePath(field, fine_pen(line_colour, line_width));
    paint::draw_text(painter,
                     number_middle(number, form),
                     digits(number),
                     {face::serif_bold, 22, 0.92, 0, 36},
                     paint::ivory);
}

void draw_numbers(QPainter& painter, table_form form)
{
    for (int number = 1; number <= 36; ++number) {
        painter.strokePath(number_field(number, form), fine_pen(line_colour, line_width));
        draw_number(painter, number, form);
    }
    draw_zero(painter, 0, form);
    draw_zero(painter, number_code::double_zero, form);
}

void draw_columns(QPainter& painter, table_form form)
{
    const QString text =
        form == table_form::french ? QStringLiteral("COLONNE") : QStringLiteral("2 TO 1");
    const paint::lettering letters = form == table_form::french
                                         ? paint::lettering{face::serif_bold, 9, 0.95, 22, 82}
                                         : paint::lettering{face::serif_bold, 13, 1, 18, 82};
    for (int i = 0; i < 3; ++i) {
        const QRectF field = column_field(i);
        painter.setPen(fine_pen(line_colour, line_width));
        painter.drawRect(field);
        paint::draw_text(painter, field.center(), text, letters, paint::ivory, -90);
    }
}

void draw_dozens(QPainter& painter, table_form form)
{
    static const QStringList french = {"12 P", "12 M", "12 D"};
    static const QStringList american = {"1st 12", "2nd 12", "3rd 12"};
    for (int i = 0; i < 3; ++i) {
        const QRectF field = dozen_field(i);
        painter.setPen(fine_pen(line_colour, line_width));
        painter.drawRect(field);
        const bool is_french = form == table_form::french;
        paint::draw_text(painter,
                         field.center() + QPointF(0, 4),
                         (is_french ? french : american).at(i),
                         {face::serif_bold, 18, 0.95, 0, 96},
                         paint::ivory);
    }
}

void draw_diamond(QPainter& painter, const QRectF& field, const QColor& colour)
{
    const QPointF middle = field.center();
    const double half_width = field.width() / 2 - 14;
    const double half_height = field.height() / 2 - 8;
    QPainterPath diamond(middle - QPointF(half_width, 0));
    diamond.lineTo(middle - QPointF(0, half_height));
    diamond.lineTo(middle + QPointF(half_width, 0));
    diamond.lineTo(middle + QPointF(0, half_height));
    diamond.closeSubpath();
    painter.fillPath(diamond, paint::with_alpha(colour, 244));
    painter.strokePath(diamond, fine_pen(paint::with_alpha(paint::ivory, 190), 1.5));
}

/// An even chance that is told by a word, with its numbers below when the word doesn't tell them.
void draw_word(QPainter& painter, const QRectF& field, const QString& word, const QString& range)
{
    const double lift = range.isEmpty() ? 0 : -8;
    paint::draw_text(painter,
                     field.center() + QPointF(0, lift),
                     word,
                     {face::serif_bold, 16, 0.92, 10, field.width() - 20},
                     paint::ivory);
    if (range.isEmpty()) return;
    paint::draw_text(painter,
                     field.center() + QPointF(0, 17),
                     range,
                     {face::serif, 9, 1, 10, 0},
                     paint::with_alpha(paint::ivory, 220));
}

void draw_even_chances(QPainter& painter, table_form form)
{
    struct label {
        const char* french;
        const char* french_range;
        const char* american;
    };
    // clang-format off
    static constexpr std::array<label, 6> labels = {{
        {"MANQUE", "1 – 18",  "1 – 18"},
        {"PAIR",   "",        "EVEN"},
        {"",       "",        ""},
        {"",       "",        ""},
        {"IMPAIR", "",        "ODD"},
        {"PASSE",  "19 – 36", "19 – 36"},
    }};
    // clang-format on
    for (int i = 0; i < 6; ++i) {
        const QRectF field = even_chance_field(i);
        painter.setPen(fine_pen(line_colour, line_width));
        painter.drawRect(field);
        const jetons::jeton_names jeton = static_cast<jetons::jeton_names>(jetons::EC01 + i);
        if (jeton == jetons::EC03) draw_diamond(painter, field, paint::table_red);
        if (jeton == jetons::EC04) draw_diamond(painter, field, paint::table_black);
        const label& texts = labels[static_cast<std::size_t>(i)];
        if (*texts.french == '\0') continue;
        if (form == table_form::french) {
            draw_word(painter,
                      field,
                      QString::fromUtf8(texts.french),
                      QString::fromUtf8(texts.french_range));
        } else {
            draw_word(painter, field, QString::fromUtf8(texts.american), {});
        }
    }
}

/// The lanes in which imprisoned jetons wait: hints that leave the cloth to the game.
void draw_prisons(QPainter& painter, table_form form)
{
    const QString prison =
        form == table_form::french ? QStringLiteral("EN PRISON") : QStringLiteral("IN PRISON");
    for (int i = 0; i < 6; ++i) {
        const QRectF field = even_chance_field(i);
        const QRectF single(
            field.left(), even_chances_bottom, field.width(), prison_bottom - even_chances_bottom);
        const QRectF twice(
            field.left(), dozens_bottom, field.width(), even_chances_top - dozens_bottom);
        painter.setPen(fine_pen(faint_colour, 1));
        painter.drawLine(single.topLeft(), single.bottomLeft());
        painter.drawLine(single.topRight(), single.bottomRight());
        painter.drawLine(single.bottomLeft(), single.bottomRight());
        painter.drawLine(twice.topLeft(), twice.bottomLeft());
        painter.drawLine(twice.topRight(), twice.bottomRight());
        const paint::lettering letters = {face::serif, 8.5, 1, 40, 0};
        paint::draw_text(painter, single.center(), prison, letters, faint_colour);
        paint::draw_text(
            painter, twice.center(), prison + QStringLiteral(" II"), letters, faint_colour);
    }
}

void draw_outer_frame(QPainter& painter)
{
    const QRectF lower(
        numbers.left(), numbers.bottom(), numbers.width(), even_chances_bottom - numbers.bottom());
    painter.setPen(fine_pen(line_colour, 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(numbers);
    painter.drawRect(lower);
}

void draw_announcements(QPainter& painter, table_form form)
{
    static const QStringList french = {"GR. SÉRIE",
                                       "P. SÉRIE",
                                       "ORPHELINS",
                                       "ORPH. PL.",
                                       "JEU ZÉRO",
                                       "FINALES",
                                       "VOISINS 1",
                                       "VOISINS 2",
                                       "VOISINS 3"};
    static const QStringList american = {"FINALS", "NEIGHB. 1", "NEIGHB. 2", "NEIGHB. 3"};
    const bool is_french = form == table_form::french;
    const int first = is_french ? 0 : first_common_row;
    for (int row = first; row < announcement_rows; ++row) {
        const QRectF field = announcement_field(row).adjusted(1, 1, -1.5, -1);
        QPainterPath pill;
        pill.addRoundedRect(field, field.height() / 2, field.height() / 2);
        const bool common = row >= first_common_row;
        painter.fillPath(pill, common ? QColor(6, 48, 30, 150) : QColor(4, 34, 22, 190));
        painter.strokePath(pill, fine_pen(line_colour, 1.5));
        const QString text = is_french ? french.at(row) : american.at(row - first);
        paint::draw_text(painter,
                         field.center(),
                         text,
                         {face::serif_bold, 8.4, 0.92, 8, field.width() - 14},
                         paint::ivory);
    }
    const double heading = announcement_field(first).top() - 14;
    const double middle = announcement_field(first).center().x();
    paint::draw_text(painter,
                     QPointF(middle, heading),
                     is_french ? QStringLiteral("ANNONCES") : QStringLiteral("CALL BETS"),
                     {face::serif, 8, 1, 24, 0},
                     paint::with_alpha(paint::ivory, 200));
}

/// The name of the house on the free corner of the cloth.
void draw_house_mark(QPainter& painter)
{
    const QPointF middle(927, 716);
    const QColor colour = paint::with_alpha(paint::ivory, 92);
    paint::draw_text(
        painter, middle, QStringLiteral("ZARVELLO"), {face::serif, 15, 0.95, 26, 150}, colour);
    painter.setPen(fine_pen(colour, 1));
    for (const double y : {middle.y() - 18, middle.y() + 18}) {
        painter.drawLine(QPointF(middle.x() - 74, y), QPointF(middle.x() - 10, y));
        painter.drawLine(QPointF(middle.x() + 10, y), QPointF(middle.x() + 74, y));
        QPainterPath diamond(QPointF(middle.x() - 5, y));
        diamond.lineTo(middle.x(), y - 4);
        diamond.lineTo(middle.x() + 5, y);
        diamond.lineTo(middle.x(), y + 4);
        diamond.closeSubpath();
        painter.fillPath(diamond, colour);
    }
}

void draw_table(QPainter& painter, table_form form)
{
    painter.translate(-design::table.topLeft());
    painter.setBrush(Qt::NoBrush);
    draw_prisons(painter, form);
    draw_numbers(painter, form);
    draw_columns(painter, form);
    draw_dozens(painter, form);
    draw_even_chances(painter, form);
    draw_outer_frame(painter);
    draw_announcements(painter, form);
    draw_house_mark(painter);
}

void draw_cloth(QPainter& painter)
{
    const QRectF tile(0, 0, 256, 256);
    painter.fillRect(tile, paint::pixel_brush(painter, tile, paint::cloth_at));
}

} // namespace

QVector<picture> table_pictures()
{
    const QString folder = QStringLiteral(":/table/grafik/table/");
    const QSize size = design::table.size();
    return {
        {folder + QStringLiteral("cloth.png"), QSize(256, 256), draw_cloth},
        {folder + QStringLiteral("f44.png"),
         size,
         [](QPainter& painter) { draw_table(painter, table_form::french); }},
        {folder + QStringLiteral("f44a.png"),
         size,
         [](QPainter& painter) { draw_table(painter, table_form::american); }},
    };
}
