#ifndef CHECK_COMMAND_H
#define CHECK_COMMAND_H

#include <QStringList>

/// `zarvello-cli check`: prints all faults of system files, and what their author hardly means, as
/// "FILE:LINE:COLUMN: error: TEXT" or "... warning: TEXT".
/// @param arguments  the program name and what stands behind the command
/// @return the exit status
int run_check_command(const QStringList& arguments);

#endif // CHECK_COMMAND_H
