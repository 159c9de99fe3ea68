#include "whole_file.h"

#include <QSaveFile>

/// A disk with a little room left takes a part; only the next attempt tells what is wrong.
static bool write_all(QSaveFile& file, const QByteArray& content)
{
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 part = file.write(content.constData() + written, content.size() - written);
        if (part < 1) return false;
        written += part;
    }
    return true;
}

/// Unbuffered, because commit() does not notice that the last buffer found no room on the disk.
QString write_whole_file(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return file.errorString();
    if (!write_all(file, content) || !file.commit()) return file.errorString();
    return {};
}
