#ifndef SHORTENED_PATH_H
#define SHORTENED_PATH_H

#include <QString>

/// A path for a narrow field: first folder, "/.../", last folder, "/" and file name. If that is
/// longer than the limit the last folder is left out as well; nothing else is cut. Empty for an
/// empty path. Unit of the limit: characters.
QString shortened_path(const QString& path, int limit);

#endif // SHORTENED_PATH_H
