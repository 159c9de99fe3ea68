#include "system_play_section.h"

#include "language_fault.h"

system_play_section::system_play_section(const play_environment& environment,
                                         general_player::player_names own_player,
                                         QObject* parent)
    : QObject(parent)
    , game(environment)
    , player(own_player)
    , listener(this)
    , command_line(game, own_player, listener, *this)
    , compiler(environment.patterns)
    , reader(environment.patterns)
{
}

void system_play_section::set_listener(play_listener* direct)
{
    listener = direct ? direct : this;
}

system_play_section::section system_play_section::section_of(const QList<section_line>& lines)
{
    section result;
    result.reserve(static_cast<std::size_t>(lines.size()));
    for (const section_line& line : lines)
        result.push_back({line, {}, {}});
    return result;
}

section_outcome system_play_section::play_section_lines(section& lines, bool start_section)
{
    delay_begun = false;
    result.player = player;
    for (play_line& line : lines) {
        if (out_of_play) return section_outcome::stop;
        line_number = line.source.number;
        const bool was_compiled = line.program.has_value();
        begin_statement(result);
        if (!was_compiled && !compile(line)) {
            report(line);
            return section_outcome::error;
        }
        command_line.run_command(result, *line.program, start_section);
        if (result.status == system_status::all_right) continue;
        return act_on_status(line, start_section, was_compiled);
    }
    return end_of_lines(start_section);
}

section_outcome system_play_section::end_of_lines(bool start_section)
{
    if (start_section) command_line.save_counter_start_values();
    return section_outcome::go_on;
}

section_outcome
system_play_section::act_on_status(const play_line& line, bool start_section, bool was_compiled)
{
    switch (result.status) {
    case system_status::delay_begun:
        delay_begun = true;
        listener->system_monitor_action(player, tr("Verzögerung aktiv"));
        return was_compiled ? end_of_lines(start_section) : section_outcome::go_on;
    case system_status::restart:
        command_line.rebuild_command_line(true);
        return section_outcome::restart;
    case system_status::restart_full:
        command_line.rebuild_command_line(false);
        return section_outcome::restart;
    case system_status::stop:
        report(line);
        return section_outcome::stop;
    default:
        report(line);
        return section_outcome::error;
    }
}

/// A text that holds a '|' is token text already.
bool system_play_section::compile(play_line& line)
{
    line.token_text = line.source.text;
    if (!line.source.text.contains(QLatin1Char('|'))) {
        compiler.compile_statement(result, line.source.text);
        if (result.status != system_status::all_right) return false;
        line.token_text = result.command_text;
    }
    line.program = reader.read(line.token_text);
    return true;
}

void system_play_section::report(const play_line& line)
{
    result.error_line = line.source.number;
    result.line_text = line.source.text;
    result.command_text = line.token_text;
    listener->system_status_to_main_thread(player, result);
}
