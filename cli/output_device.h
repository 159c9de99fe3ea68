#ifndef OUTPUT_DEVICE_H
#define OUTPUT_DEVICE_H

#include <QFileInfo>
#include <QIODevice>

/// True for what is written to and never replaced or emptied: a device, a pipe, or a name such as
/// /dev/stdout, behind which a file may stand that others write to.
inline bool is_output_device(const QString& path)
{
    const QFileInfo target(path);
    const bool is_in_devices = target.absoluteFilePath().startsWith(QLatin1String("/dev/"));
    return target.exists() && (!target.isFile() || is_in_devices);
}

/// How a device is opened: behind what stands there already, where it has an end to go to.
inline QIODevice::OpenMode device_mode(const QString& path)
{
    return QFileInfo(path).isFile() ? QIODevice::WriteOnly | QIODevice::Append
                                    : QIODevice::OpenMode(QIODevice::WriteOnly);
}

#endif // OUTPUT_DEVICE_H
