#ifndef WHOLE_FILE_H
#define WHOLE_FILE_H

#include <QByteArray>
#include <QString>

/// Writes a file as a whole: the old one stays as it is until the new one is complete. Empty, or
/// why it failed.
QString write_whole_file(const QString& path, const QByteArray& content);

#endif // WHOLE_FILE_H
