#ifndef READABLE_FILE_H
#define READABLE_FILE_H

#include <QString>

/// Files that the user names.
namespace readable_file
{

/// Why a file can't be read, "FILE: reason"; empty when it can.
QString fault_of(const QString& path);

} // namespace readable_file

#endif // READABLE_FILE_H
