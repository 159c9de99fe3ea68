#ifndef VERSION_CHECK_H
#define VERSION_CHECK_H

#include <QString>

#include <array>
#include <optional>

/// Reads and compares versions such as "V4.2.0".
namespace version_check
{

/// What the program takes itself for when it looks for a newer one.
constexpr char own_version[] = "V4.2.0";

/// No version file is larger. Unit: bytes.
constexpr int largest_file = 64 * 1024;

/// The version text of a version file: what stands behind "ZvlHaupt =" behind "[V4]", to the end
/// of the file, trimmed. Empty if one of the marks is missing, or what follows is too long to be
/// shown as a version (more than 200 characters).
QString version_text(const QString& file);

/// The first three numbers of a version text, its first letter left out; a part that is no number
/// counts as 0. Nothing if there are fewer than three parts.
std::optional<std::array<int, 3>> version_numbers(const QString& text);

/// Whether a version stands above another one, the first number before the second and third.
/// False if one of them does not have three parts.
bool is_newer(const QString& remote, const QString& own = QString::fromLatin1(own_version));

} // namespace version_check

#endif // VERSION_CHECK_H
