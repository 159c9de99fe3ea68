#ifndef TOKENS_COMMAND_H
#define TOKENS_COMMAND_H

#include <QStringList>

/// `zarvello-cli tokens`: prints what every statement of a system file compiles to.
/// @param arguments  the program name and what stands behind the command
/// @return the exit status
int run_tokens_command(const QStringList& arguments);

#endif // TOKENS_COMMAND_H
