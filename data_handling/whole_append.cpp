#include "whole_append.h"

#include <QFile>
#include <QFileInfo>

bool append_whole(const QString& path, const QByteArray& bytes)
{
    const QFileInfo place(path);
    if (place.exists() && !place.isFile()) return false;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) return false;
    const qint64 size_before = file.size();
    const qint64 written = file.write(bytes);
    if (written == bytes.size()) return true;
    // What a full disk left of them goes away, unless somebody else has appended meanwhile.
    if (written > 0 && file.size() == size_before + written) file.resize(size_before);
    return false;
}
