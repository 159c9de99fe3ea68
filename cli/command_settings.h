#ifndef COMMAND_SETTINGS_H
#define COMMAND_SETTINGS_H

#include <QStringList>

class setting;

/// The settings of a command: a file, and single keys over it.
namespace command_settings
{

/// Reads the file, if one is named, and sets each "KEY=VALUE" over it. Returns what is wrong, or
/// an empty text.
QString apply(setting& settings, const QString& file, const QStringList& changes);

} // namespace command_settings

#endif // COMMAND_SETTINGS_H
