#include "pictures.h"

#include "chance_geometry.h"

#include <QPixmapCache>

// A resource can only be named outside of any namespace.
static void init_resource_file()
{
    Q_INIT_RESOURCE(zarvello);
}

void init_pictures()
{
    static const bool done = (init_resource_file(), true);
    Q_UNUSED(done);
}

static QString twin_path(const QString& path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return path.left(dot) + QStringLiteral("@2x") + path.mid(dot);
}

/// The size in which the picture stands in the full-size design.
static QSize design_size(const QString& path)
{
    return QPixmap(path).size();
}

QPixmap scaled_picture(const QString& path, double reduction, qreal pixel_ratio)
{
    init_pictures();
    const QSize full = design_size(path);
    if (full.isEmpty()) return {};
    const QSize size(scaled(full.width(), reduction), scaled(full.height(), reduction));
    return picture_of_size(path, size, pixel_ratio);
}

QPixmap picture_of_size(const QString& path, const QSize& size, qreal pixel_ratio)
{
    init_pictures();
    const QString key = QStringLiteral("%1|%2|%3|%4")
                            .arg(path)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(pixel_ratio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;

    QImage image(path);
    if (image.isNull()) return {};
    const QSize pixels = size * pixel_ratio;
    if (image.size() != pixels) {
        QImage twin(twin_path(path));
        if (!twin.isNull()) image = twin;
        image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    image.setDevicePixelRatio(pixel_ratio);
    picture = QPixmap::fromImage(image);
    QPixmapCache::insert(key, picture);
    return picture;
}
