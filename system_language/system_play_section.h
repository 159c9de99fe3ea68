#ifndef SYSTEM_PLAY_SECTION_H
#define SYSTEM_PLAY_SECTION_H

#include "play_environment.h"
#include "section_line.h"
#include "statement_compiler.h"
#include "statement_reader.h"
#include "system_play_command_line.h"

#include <QObject>

#include <optional>
#include <vector>

/// How a section ended.
enum class section_outcome { go_on = 0, error = 1, restart = 2, stop = 3 };

/// A statement of a system and what became of it.
struct play_line {
    section_line source;                      ///< as the file has it
    QString token_text;                       ///< empty until the line is first reached
    std::optional<statement_program> program; ///< the meaning of the token text
};

/**
 * Runs the statements of one section, compiling each when the run first reaches it. A line that
 * is never reached is never compiled and can hold errors that nobody sees.
 *
 * The signals go to whoever listens; a listener that is set takes their place and is called
 * directly, which is a hundred times cheaper.
 */
class system_play_section : public QObject, protected play_listener, protected option_receiver
{
    Q_OBJECT

public:
    using section = std::vector<play_line>;

    system_play_section(const play_environment& environment,
                        general_player::player_names player,
                        QObject* parent = nullptr);

    /// Who hears of bets, messages and the end instead of the signals; null for the signals.
    void set_listener(play_listener* direct);

    /// Line in the file of the statement that runs or ran last, 0 before the first.
    int current_line() const { return line_number; }

    static section section_of(const QList<section_line>& lines);

signals:
    void sys_ignore_counter(int ignore_counter) override;
    void set_system_jeton(general_player::player_names player,
                          jetons::jeton_names jeton,
                          jetons::ext_jeton_names ext_jeton,
                          int jeton_amount) override;
    void system_status_to_main_thread(general_player::player_names player,
                                      sys_result_info info) override;
    void set_rescan_option(system_play_options::sg_rescan_options rescan_opt,
                           qlonglong rescan_opt_value) override;
    void sys_message_display(QStringList lines) override;
    void system_monitor_action(general_player::player_names player, QString action) override;
    void system_play_round_complete() override;

protected:
    /// Runs the lines of a section. @param start_section  true only for `ST:`
    section_outcome play_section_lines(section& lines, bool start_section);

    /// True once the system has ended: whatever still runs of it comes to nothing.
    bool out_of_play = false;

    /// True when a delay began in the section that was run last.
    bool delay_began() const { return delay_begun; }

    play_environment game;
    general_player::player_names player;
    play_listener* listener; // never null: this object stands in for a missing one
    system_play_command_line command_line;

private:
    section_outcome end_of_lines(bool start_section);
    section_outcome act_on_status(const play_line& line, bool start_section, bool was_compiled);
    bool compile(play_line& line);
    void report(const play_line& line);

    statement_compiler compiler;
    statement_reader reader;
    sys_result_info result;
    int line_number = 0;
    bool delay_begun = false;
};

#endif // SYSTEM_PLAY_SECTION_H
