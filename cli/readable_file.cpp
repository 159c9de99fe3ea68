#include "readable_file.h"

#include <QFile>
#include <QFileInfo>

QString readable_file::fault_of(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) return QStringLiteral("%1: file not found").arg(path);
    if (info.isDir()) return QStringLiteral("%1: is a directory").arg(path);
    if (!info.isFile()) return QStringLiteral("%1: is no regular file").arg(path);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) return {};
    return QStringLiteral("%1: %2").arg(path, file.errorString());
}
