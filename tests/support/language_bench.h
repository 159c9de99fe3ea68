#ifndef LANGUAGE_BENCH_H
#define LANGUAGE_BENCH_H

#include "game_table.h"
#include "numberstorage.h"
#include "play_environment.h"
#include "player_accounting.h"
#include "setting.h"
#include "statement_compiler.h"
#include "statement_reader.h"
#include "system_pattern.h"
#include "system_play_command_line.h"

#include <QFile>
#include <QStringList>
#include <QVector>

// Two mark modes and the statuses as an author of systems knows them, by their numbers.
constexpr int whole_line = 1;
constexpr int piece_of_line = 2;

/// Writes a text file into the box of the test.
inline bool write_file(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// A bet as the tests write it: "EC01 x5".
inline QString bet_text(jetons::jeton_names jeton, jetons::ext_jeton_names ext_jeton, int amount)
{
    const bool is_jeton = jeton != jetons::NO_JETON;
    const QString name = is_jeton ? jetons::name(jeton) : jetons::name(ext_jeton);
    return name + " x" + QString::number(amount);
}

/// A game that a system can play in: nobody at the table, no number thrown, 1000 in each credit.
class language_bench
{
public:
    explicit language_bench(table_form form = table_form::french)
        : patterns(static_cast<int>(form))
    {
        settings.set_s_table_form(static_cast<int>(form));
        for (int i = 0; i < general_player::player_count; ++i)
            table.set_credit(static_cast<general_player::player_names>(i), 1000);
    }

    /// Numbers that fell before, oldest first; 99 is a hand change.
    void throw_numbers(const QVector<int>& thrown)
    {
        for (const int number : thrown)
            numbers.add_to_permanence(number);
    }

    setting settings;
    game_table table;
    numberStorage numbers{settings};
    player_accounting statistic;
    system_pattern patterns;
    play_environment environment{table, numbers, statistic, patterns, settings};
};

/// Keeps what a system tells.
class noting_listener : public play_listener
{
public:
    QStringList bets;
    QVector<sys_result_info> results;
    QStringList messages; // each joined to one text
    QStringList actions;
    int rounds = 0;

    void set_system_jeton(general_player::player_names,
                          jetons::jeton_names jeton,
                          jetons::ext_jeton_names ext_jeton,
                          int jeton_amount) override
    {
        bets.append(bet_text(jeton, ext_jeton, jeton_amount));
    }
    void system_status_to_main_thread(general_player::player_names, sys_result_info info) override
    {
        results.append(info);
    }
    void sys_message_display(QStringList lines) override { messages.append(lines.join(QString())); }
    void system_monitor_action(general_player::player_names, QString action) override
    {
        actions.append(action);
    }
    void system_play_round_complete() override { ++rounds; }
};

/// Keeps the options of `STMAX` that go to the run: "6=300", and "ignore 11" for a delay.
class noting_receiver : public option_receiver
{
public:
    QStringList options;

    void sys_ignore_counter(int ignore_counter) override
    {
        options.append("ignore " + QString::number(ignore_counter));
    }
    void set_rescan_option(system_play_options::sg_rescan_options rescan_opt,
                           qlonglong rescan_opt_value) override
    {
        options.append(QString::number(rescan_opt) + '=' + QString::number(rescan_opt_value));
    }
};

/// The state of one system, on which single statements run.
class statement_bench : public language_bench
{
public:
    explicit statement_bench(table_form form = table_form::french)
        : language_bench(form)
        , compiler(patterns)
        , reader(patterns)
    {
    }

    /// Runs a statement as it stands in a file, or a token text, which holds a '|'.
    sys_result_info run(const QString& statement, bool start_section = true)
    {
        sys_result_info result;
        QString token_text = statement;
        if (!statement.contains('|')) {
            compiler.compile_statement(result, statement);
            if (result.status != system_status::all_right) return result;
            token_text = result.command_text;
        }
        command_line.run_command(result, reader.read(token_text), start_section);
        return result;
    }

    /// Runs statements in their order; gives the outcome of the last one.
    sys_result_info run_all(const QStringList& statements, bool start_section = true)
    {
        sys_result_info result;
        for (const QString& statement : statements)
            result = run(statement, start_section);
        return result;
    }

    /// Runs a statement and returns the bets that it puts out.
    QStringList bets_of(const QString& statement)
    {
        notes.bets.clear();
        run(statement);
        return notes.bets;
    }

    /// Whether a test holds; the statement must end well.
    bool holds(const QString& test) { return !bets_of("IF " + test + " THEN SZ PL00;").isEmpty(); }

    /// The value of a counter, unit or table as a message tells it, such as "CO05" or "EIC".
    QString told(const QString& argument)
    {
        notes.messages.clear();
        run("MESSAGE ON;");
        run("MESSAGE(" + argument + ");");
        return notes.messages.isEmpty() ? QString() : notes.messages.last();
    }

    noting_listener notes;
    noting_receiver receiver;
    play_listener* outward = &notes;
    statement_compiler compiler;
    statement_reader reader;
    system_play_command_line command_line{environment, general_player::PLAYER_1, outward, receiver};
};

#endif // LANGUAGE_BENCH_H
