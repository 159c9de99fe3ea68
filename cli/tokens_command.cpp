#include "tokens_command.h"

#include "command_settings.h"
#include "console.h"
#include "exit_status.h"
#include "readable_file.h"
#include "setting.h"
#include "statement_compiler.h"
#include "system_file.h"
#include "system_pattern.h"
#include "system_sektor_check.h"

#include <QCommandLineParser>

static int refuse(const QString& fault)
{
    console::print_error(QStringLiteral("zarvello-cli: %1\n").arg(fault));
    return exit_status::usage;
}

static QString error_line(int line, const QString& section, const sys_result_info& result)
{
    return QStringLiteral("%1\t%2\terror: %3\t%4\t%5\n")
        .arg(QString::number(line),
             section,
             result.error_text,
             QString::number(result.mark_mode),
             result.mark_text);
}

/// Prints one section; returns whether every statement of it compiles.
static bool print_section(const QString& name,
                          const QList<section_line>& section,
                          const statement_compiler& compiler)
{
    bool all_compile = true;
    for (const section_line& line : section) {
        sys_result_info result;
        result.command_text = line.text;
        if (!line.text.contains(QLatin1Char('|'))) compiler.compile_statement(result, line.text);
        if (result.status == system_status::all_right) {
            console::print(QStringLiteral("%1\t%2\t%3\n")
                               .arg(QString::number(line.number), name, result.command_text));
        } else {
            console::print(error_line(line.number, name, result));
            all_compile = false;
        }
    }
    return all_compile;
}

static int print_tokens(const QString& path, setting& settings)
{
    settings.set_s_user_sys_file(general_player::PLAYER_1, path);
    const system_pattern patterns(settings.s_table_form());
    system_file file(settings, patterns);
    sys_result_info result = file.read_system_file(general_player::PLAYER_1);
    for (const auto* section : {&file.section_al(), &file.section_gw(), &file.section_ve()}) {
        if (result.status != system_status::all_right) break;
        result = system_sektor_check().check_section(*section);
    }
    if (result.status != system_status::all_right) {
        console::print(error_line(result.error_line, QStringLiteral("-"), result));
        return exit_status::system_error;
    }
    const statement_compiler compiler(patterns);
    bool all_compile = print_section(QStringLiteral("ST"), file.section_st(), compiler);
    all_compile = print_section(QStringLiteral("AL"), file.section_al(), compiler) && all_compile;
    all_compile = print_section(QStringLiteral("VE"), file.section_ve(), compiler) && all_compile;
    all_compile = print_section(QStringLiteral("GW"), file.section_gw(), compiler) && all_compile;
    return all_compile ? exit_status::all_right : exit_status::system_error;
}

int run_tokens_command(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints every statement of a system file as token text."));
    parser.addHelpOption();
    parser.addOptions({
        {"settings", "Settings file; without it all defaults hold.", "FILE.ini"},
        {"set", "Set one key over the settings file.", "KEY=VALUE"},
    });
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("System file (.syf)."));
    if (!parser.parse(arguments)) return refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        console::print(parser.helpText());
        return exit_status::all_right;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1) return refuse(QStringLiteral("tokens takes one system file"));
    setting settings;
    QString fault = command_settings::apply(
        settings, parser.value(QStringLiteral("settings")), parser.values(QStringLiteral("set")));
    if (fault.isEmpty()) fault = readable_file::fault_of(files.first());
    return fault.isEmpty() ? print_tokens(files.first(), settings) : refuse(fault);
}
