#include "check_command.h"
#include "console.h"
#include "exit_status.h"
#include "play_command.h"
#include "tokens_command.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <new>

static const char usage_text[] =
    "Usage: zarvello-cli COMMAND [OPTIONS]\n"
    "\n"
    "Plays betting systems without a window.\n"
    "\n"
    "  play    let up to four systems play recorded or random numbers\n"
    "  tokens  print what every statement of a system file compiles to\n"
    "  check   print all faults of system files, and what is hardly meant\n"
    "\n"
    "'zarvello-cli COMMAND --help' tells the options of a command.\n";

static int run_command(QStringList arguments)
{
    const QString command = arguments.value(1);
    if (arguments.size() > 1) arguments.removeAt(1);
    if (command == QLatin1String("play")) return run_play_command(arguments);
    if (command == QLatin1String("tokens")) return run_tokens_command(arguments);
    if (command == QLatin1String("check")) return run_check_command(arguments);

    const bool is_help = command == QLatin1String("--help") || command == QLatin1String("-h");
    if (is_help) {
        console::print(QLatin1String(usage_text));
        return exit_status::all_right;
    }
    if (!command.isEmpty()) {
        console::print_error(QStringLiteral("zarvello-cli: unknown command: %1\n").arg(command));
    }
    console::print_error(QLatin1String(usage_text));
    return exit_status::usage;
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zarvello-cli"));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    try {
        return run_command(QCoreApplication::arguments());
    } catch (const std::bad_alloc&) {
        console::print_error(QStringLiteral("zarvello-cli: a file is too large for the memory\n"));
        return exit_status::usage;
    }
}
