#ifndef PLAY_COMMAND_H
#define PLAY_COMMAND_H

#include <QStringList>

/// `zarvello-cli play`: systems play recorded or random numbers.
/// @param arguments  the program name and what stands behind the command
/// @return the exit status
int run_play_command(const QStringList& arguments);

#endif // PLAY_COMMAND_H
