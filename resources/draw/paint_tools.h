#ifndef PAINT_TOOLS_H
#define PAINT_TOOLS_H

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>

#include <functional>

/// What all pictures are painted with: colours, lettering, grain and metal. Unit of all lengths:
/// pixels of the full size; a painter that is scaled draws the same finer.
namespace paint
{

const QColor ivory(240, 231, 205);
const QColor table_red(172, 22, 32);
const QColor table_black(24, 22, 24);
const QColor table_green(12, 122, 66);
const QColor brass_light(250, 226, 156);
const QColor brass(198, 152, 74);
const QColor brass_dark(104, 70, 24);

QColor with_alpha(QColor colour, int alpha);

/// Between two colours: 0 gives the first, 1 the second.
QColor mixed(const QColor& first, const QColor& second, double share);

/// Pixels of the picture per pixel of the full size.
double pixel_scale(const QPainter& painter);

enum class face { serif, serif_bold, sans_bold };

/// How a line of text is set.
struct lettering {
    face type = face::serif_bold;
    double height = 12;   ///< of a capital letter
    double stretch = 1;   ///< width against the natural one
    double spacing = 0;   ///< between letters, in percent of the height
    double max_width = 0; ///< a wider text is squeezed to it; 0: as wide as it comes
};

/// Outline of a text, the middle of its capitals at (0, 0).
QPainterPath text_path(const QString& text, const lettering& letters);

/// Fills a text around a point, turned by degrees clockwise.
void draw_text(QPainter& painter,
               const QPointF& centre,
               const QString& text,
               const lettering& letters,
               const QBrush& brush,
               double degrees = 0);

/// Noise of a fixed seed, 0 to 1, smooth between whole coordinates; repeats after the periods.
double noise(double x, double y, int period_x, int period_y, unsigned seed);

/// Three layers of noise, each twice as fine and half as strong as the one before; 0 to 1.
double layered_noise(double x, double y, int period_x, int period_y, unsigned seed);

/// A brush that asks for the colour of every pixel of an area.
QBrush pixel_brush(const QPainter& painter,
                   const QRectF& area,
                   const std::function<QRgb(double x, double y)>& colour_at);

/// Dark polished wood, the grain along x. x and y in pixels.
QRgb wood_at(double x, double y, unsigned seed);

/// The same bent around a middle: grain along the circumference.
QRgb bent_wood_at(double angle, double radius, unsigned seed);

/// The cloth of the table; repeats after 256 pixels.
QRgb cloth_at(double x, double y);

/// Polished metal, lit from above, for a horizontal bar or plate.
QBrush brass_plate(const QRectF& area);

/// Polished metal turned on a lathe, with reflections around the middle.
QBrush turned_brass(const QPointF& centre, double first_reflection = 0);

/// Area between two circles.
QPainterPath ring(const QPointF& centre, double outer, double inner);

/// Strokes a path several times, each wider and fainter, so that it seems to shine or to throw
/// a shadow.
void soft_stroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width);

} // namespace paint

#endif // PAINT_TOOLS_H
