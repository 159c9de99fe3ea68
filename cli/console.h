#ifndef CONSOLE_H
#define CONSOLE_H

#include <QString>

/// Text to the terminal, in UTF-8 whatever the locale.
namespace console
{

void print(const QString& text);
void print_error(const QString& text);

/// True when somebody may be looking at standard error.
bool error_is_terminal();

} // namespace console

#endif // CONSOLE_H
