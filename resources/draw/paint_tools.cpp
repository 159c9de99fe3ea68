#include "paint_tools.h"

#include <QFont>
#include <QImage>
#include <QLinearGradient>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace paint
{

namespace
{

constexpr int outline_size = 200; // pixels in which letters are measured, before they are scaled

QFont font_of(face type)
{
    QFont font(type == face::sans_bold ? QStringLiteral("DejaVu Sans")
                                       : QStringLiteral("DejaVu Serif"));
    font.setPixelSize(outline_size);
    font.setBold(type != face::serif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(true);
    return font;
}

/// Letters one after the other: the spacing is ours, the same on every system.
QPainterPath spaced_text(const QString& text, const QFont& font, double spacing)
{
    QPainterPath path;
    if (spacing <= 0) {
        path.addText(0, 0, font, text);
        return path;
    }
    double x = 0;
    for (const QChar letter : text) {
        QPainterPath outline;
        outline.addText(0, 0, font, QString(letter));
        const QRectF box = outline.boundingRect();
        if (outline.isEmpty()) {
            x += 0.35 * outline_size;
            continue;
        }
        path.addPath(outline.translated(x - box.left(), 0));
        x += box.width() + spacing;
    }
    return path;
}

unsigned hashed(unsigned x, unsigned y, unsigned seed)
{
    unsigned h = x * 374761393U + y * 668265263U + seed * 2246822519U;
    h = (h ^ (h >> 13U)) * 1274126177U;
    h = (h ^ (h >> 15U)) * 2654435761U;
    return h ^ (h >> 16U);
}

double grain(int x, int y, int period_x, int period_y, unsigned seed)
{
    const int column = ((x % period_x) + period_x) % period_x;
    const int row = ((y % period_y) + period_y) % period_y;
    return hashed(static_cast<unsigned>(column), static_cast<unsigned>(row), seed) / 4294967295.0;
}

double eased(double t)
{
    return t * t * (3 - 2 * t);
}

double between(double a, double b, double t)
{
    return a + (b - a) * t;
}

/// Tone of the wood, 0 dark to 1 light, as a colour.
QRgb wood_colour(double tone)
{
    tone = std::clamp(tone, 0.0, 1.0);
    // Steps that the eye does not tell apart keep the files small.
    tone = std::round(tone * 40) / 40;
    const int red = qRound(between(44, 134, tone));
    const int green = qRound(between(16, 62, tone));
    const int blue = qRound(between(9, 28, tone));
    return qRgb(red, green, blue);
}

} // namespace

QColor with_alpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

QColor mixed(const QColor& first, const QColor& second, double share)
{
    return QColor::fromRgbF(between(first.redF(), second.redF(), share),
                            between(first.greenF(), second.greenF(), share),
                            between(first.blueF(), second.blueF(), share),
                            between(first.alphaF(), second.alphaF(), share));
}

double pixel_scale(const QPainter& painter)
{
    const QTransform& transform = painter.worldTransform();
    return std::hypot(transform.m11(), transform.m12());
}

QPainterPath text_path(const QString& text, const lettering& letters)
{
    const QFont font = font_of(letters.type);
    QPainterPath capital;
    capital.addText(0, 0, font, QStringLiteral("H"));
    const double capital_height = capital.boundingRect().height();
    const double scale = letters.height / capital_height;

    const QPainterPath path = spaced_text(text, font, capital_height * letters.spacing / 100);
    const QRectF box = path.boundingRect();
    double width_scale = scale * letters.stretch;
    if (letters.max_width > 0) {
        width_scale = std::min(width_scale, letters.max_width / box.width());
    }
    QTransform placed;
    placed.scale(width_scale, scale);
    placed.translate(-box.center().x(), capital_height / 2);
    return placed.map(path);
}

void draw_text(QPainter& painter,
               const QPointF& centre,
               const QString& text,
               const lettering& letters,
               const QBrush& brush,
               double degrees)
{
    painter.save();
    painter.translate(centre);
    painter.rotate(degrees);
    painter.fillPath(text_path(text, letters), brush);
    painter.restore();
}

double noise(double x, double y, int period_x, int period_y, unsigned seed)
{
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const double right_share = eased(x - left);
    const double bottom_share = eased(y - top);
    const double above = between(grain(left, top, period_x, period_y, seed),
                                 grain(left + 1, top, period_x, period_y, seed),
                                 right_share);
    const double below = between(grain(left, top + 1, period_x, period_y, seed),
                                 grain(left + 1, top + 1, period_x, period_y, seed),
                                 right_share);
    return between(above, below, bottom_share);
}

double layered_noise(double x, double y, int period_x, int period_y, unsigned seed)
{
    const double coarse = noise(x, y, period_x, period_y, seed);
    const double middle = noise(2 * x, 2 * y, 2 * period_x, 2 * period_y, seed + 1);
    const double fine = noise(4 * x, 4 * y, 4 * period_x, 4 * period_y, seed + 2);
    return (4 * coarse + 2 * middle + fine) / 7;
}

QBrush pixel_brush(const QPainter& painter,
                   const QRectF& area,
                   const std::function<QRgb(double x, double y)>& colour_at)
{
    const double scale = pixel_scale(painter);
    const int width = qCeil(area.width() * scale);
    const int height = qCeil(area.height() * scale);
    QImage image(width, height, QImage::Format_RGB32);
    for (int row = 0; row < height; ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
        const double y = area.top() + (row + 0.5) / scale;
        for (int column = 0; column < width; ++column) {
            line[column] = colour_at(area.left() + (column + 0.5) / scale, y);
        }
    }
    QBrush brush(image);
    QTransform placed;
    placed.translate(area.left(), area.top());
    placed.scale(1 / scale, 1 / scale);
    brush.setTransform(placed);
    return brush;
}

QRgb wood_at(double x, double y, unsigned seed)
{
    constexpr int endless = 4096;
    const double sway = 5 * layered_noise(x / 130, y / 60, endless, endless, seed);
    const double veins = 0.5 + 0.5 * std::sin(1.1 * (y / 3.4 + 3.2 * sway));
    const double fibres = layered_noise(x / 34, y / 1.3, endless, endless, seed + 5);
    const double cloud = noise(x / 90, y / 40, endless, endless, seed + 9);
    return wood_colour(0.10 + 0.20 * veins + 0.26 * fibres + 0.28 * cloud);
}

QRgb bent_wood_at(double angle, double radius, unsigned seed)
{
    constexpr int steps = 40;
    const double turn = (angle / (2 * M_PI) + 1) * steps; // whole turns repeat
    constexpr int endless = 4096;
    const double sway = 4 * noise(turn / 4, radius / 40, steps / 4, endless, seed);
    const double veins = 0.5 + 0.5 * std::sin(radius / 2.2 + 3 * sway);
    const double fibres = layered_noise(turn, radius / 1.2, steps, endless, seed + 5);
    const double cloud = noise(turn / 2, radius / 30, steps / 2, endless, seed + 9);
    return wood_colour(0.16 + 0.20 * veins + 0.28 * fibres + 0.30 * cloud);
}

QRgb cloth_at(double x, double y)
{
    constexpr int tile = 256;
    // Threads of a twill run up to the right, each eight pixels crossed by the next.
    const double threads = std::sin((x + y) * M_PI / 2) * std::sin((x - y) * M_PI / 4);
    const double fibres = noise(x, y, tile, tile, 11);
    const double wisps = noise((x + y) / 4, (x - y) / 2, tile / 2, tile, 12);
    const double cloud = noise(x / 16, y / 16, tile / 16, tile / 16, 13);
    double tone = 0.35 * threads + 1.9 * (fibres - 0.5) + 1.1 * (wisps - 0.5) + 0.7 * (cloud - 0.5);
    tone = std::round(tone * 2) / 2;
    return qRgb(qRound(9 + 2.2 * tone), qRound(80 + 7.0 * tone), qRound(50 + 4.6 * tone));
}

QBrush brass_plate(const QRectF& area)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0.00, QColor(252, 236, 184));
    gradient.setColorAt(0.22, QColor(232, 196, 116));
    gradient.setColorAt(0.50, QColor(206, 162, 82));
    gradient.setColorAt(0.58, QColor(178, 132, 58));
    gradient.setColorAt(0.85, QColor(222, 184, 104));
    gradient.setColorAt(1.00, QColor(150, 106, 44));
    return gradient;
}

QBrush turned_brass(const QPointF& centre, double first_reflection)
{
    QConicalGradient gradient(centre, first_reflection);
    constexpr int reflections = 4;
    for (int i = 0; i <= 2 * reflections; ++i) {
        const double place = static_cast<double>(i) / (2 * reflections);
        gradient.setColorAt(place, i % 2 == 0 ? brass_light : QColor(140, 98, 38));
    }
    for (int i = 0; i < 4 * reflections; ++i) {
        if (i % 2 == 0) continue;
        gradient.setColorAt(static_cast<double>(i) / (4 * reflections), brass);
    }
    return gradient;
}

QPainterPath ring(const QPointF& centre, double outer, double inner)
{
    QPainterPath path;
    path.addEllipse(centre, outer, outer);
    path.addEllipse(centre, inner, inner);
    return path;
}

void soft_stroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width)
{
    constexpr int layers = 9;
    painter.save();
    painter.setBrush(Qt::NoBrush);
    const QColor layer = with_alpha(colour, colour.alpha() / layers);
    for (int i = 1; i <= layers; ++i) {
        painter.setPen(QPen(layer, width * i / layers, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    }
    painter.restore();
}

} // namespace paint
