#ifndef WHOLE_APPEND_H
#define WHOLE_APPEND_H

#include <QByteArray>
#include <QString>

/// Appends bytes to a file in one write, whole or not at all: a program that is killed, and
/// another one that appends to the same file, never leave a part of them. The file is made if it
/// is missing. False if the bytes are not in the file, or if the path leads to a pipe or device:
/// one would hold the program up, the other may swallow them.
bool append_whole(const QString& path, const QByteArray& bytes);

#endif // WHOLE_APPEND_H
