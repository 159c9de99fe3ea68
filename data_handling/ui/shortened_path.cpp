#include "shortened_path.h"

#include <QFileInfo>
#include <QStringList>

QString shortened_path(const QString& path, int limit)
{
    if (path.isEmpty()) return {};
    const QFileInfo file(path);
    const QStringList folders = file.absolutePath().split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (folders.isEmpty()) return file.absoluteFilePath();

    const QString begin = folders.first() + QLatin1String("/.../");
    const QString text = begin + folders.last() + QLatin1Char('/') + file.fileName();
    return text.size() > limit ? begin + file.fileName() : text;
}
