#include "picture_book.h"

QVector<picture> all_pictures()
{
    return table_pictures() + selection_pictures() + wheel_pictures() + jeton_pictures() +
           panel_pictures() + icon_pictures() + splash_pictures();
}

/// The pixel without the last bits of its colours, at least as many as told: the fainter it is,
/// the more of them no eye sees. They would fill half of a file.
static QRgb without_unseen_bits(QRgb pixel, unsigned at_least)
{
    const unsigned alpha = pixel >> 24U;
    if (alpha == 0) return 0;
    unsigned bits = at_least;
    while (bits < 5 && (alpha << bits) < 256)
        ++bits;
    const unsigned kept = (0xffU << bits) & 0xffU;
    const unsigned middle = bits == 1 ? 0 : 1U << (bits - 1);
    const unsigned fewer_alphas = alpha < 240 ? alpha & 0xfcU : alpha;
    return fewer_alphas << 24U | (pixel & kept * 0x010101U) | middle * 0x010101U;
}

static void drop_unseen_bits(QImage& image, unsigned at_least)
{
    for (int row = 0; row < image.height(); ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
        for (int column = 0; column < image.width(); ++column) {
            line[column] = without_unseen_bits(line[column], at_least);
        }
    }
}

QImage drawn(const picture& which, int factor)
{
    QImage image(which.size * factor, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(factor, factor);
    which.draw(painter);
    painter.end();
    image = image.convertToFormat(QImage::Format_ARGB32);
    drop_unseen_bits(image, which.is_grainy ? 2 : 1);
    return image;
}

QString file_of(const QString& path)
{
    return path.mid(path.indexOf(QLatin1Char('/'), 2) + 1);
}

QString twin_of(const QString& path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return path.left(dot) + QStringLiteral("@2x") + path.mid(dot);
}
