#include "check_command.h"

#include "command_settings.h"
#include "console.h"
#include "exit_status.h"
#include "readable_file.h"
#include "setting.h"
#include "system_check.h"
#include "system_pattern.h"

#include <QCommandLineParser>
#include <QFile>
#include <QTextStream>

#include <algorithm>

static int refuse(const QString& fault)
{
    console::print_error(QStringLiteral("zarvello-cli: %1\n").arg(fault));
    return exit_status::usage;
}

/// Prints the findings of one file; returns whether there is an error among them.
static bool print_findings(const QString& path, const QVector<system_finding>& findings)
{
    QString lines;
    bool has_error = false;
    for (const system_finding& finding : findings) {
        const bool is_error = finding.severity == system_finding::kind::error;
        has_error = has_error || is_error;
        lines += QStringLiteral("%1:%2:%3: %4: %5\n")
                     .arg(path,
                          QString::number(finding.line),
                          QString::number(finding.column),
                          is_error ? QStringLiteral("error") : QStringLiteral("warning"),
                          finding.text);
    }
    console::print(lines);
    return has_error;
}

/// Reads the file as a run reads it, with the same codec.
static int check_file(const QString& path, const system_pattern& patterns)
{
    const QString fault = readable_file::fault_of(path);
    if (!fault.isEmpty()) return refuse(fault);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return refuse(QStringLiteral("%1: %2").arg(path, file.errorString()));
    QTextStream stream(&file);
    const bool has_error = print_findings(path, check_system_text(stream.readAll(), patterns));
    return has_error ? exit_status::system_error : exit_status::all_right;
}

int run_check_command(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Prints all faults of system files, and what is taken in silence but hardly meant, as\n"
        "FILE:LINE:COLUMN: error: TEXT (or warning: TEXT). The exit status is 1 with errors."));
    parser.addHelpOption();
    parser.addOptions({
        {"settings", "Settings file; without it all defaults hold.", "FILE.ini"},
        {"set", "Set one key over the settings file.", "KEY=VALUE"},
    });
    parser.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("System files (.syf)."), QStringLiteral("FILE ..."));
    if (!parser.parse(arguments)) return refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        console::print(parser.helpText());
        return exit_status::all_right;
    }
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty()) return refuse(QStringLiteral("check takes one or more system files"));
    setting settings;
    const QString fault = command_settings::apply(
        settings, parser.value(QStringLiteral("settings")), parser.values(QStringLiteral("set")));
    if (!fault.isEmpty()) return refuse(fault);

    const system_pattern patterns(settings.s_table_form());
    int status = exit_status::all_right;
    for (const QString& file : files)
        status = std::max(status, check_file(file, patterns));
    return status;
}
