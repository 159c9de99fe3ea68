#ifndef SYSTEM_PLAY_MESSAGE_H
#define SYSTEM_PLAY_MESSAGE_H

#include "play_environment.h"

#include <QCoreApplication>

class system_play_argument;
class system_play_counter;
class system_play_einheiten;
class system_play_playtable;
class system_play_steigerungstabelle;

/// The stores of a system that a message can show.
struct message_sources {
    const system_play_counter& counters;
    const system_play_steigerungstabelle& tables;
    const system_play_argument& arguments;
    const system_play_einheiten& units;
    const system_play_playtable& playtables;
};

/**
 * The statement `MESSAGE`: shows values of the system, once `MESSAGE ON` has been run.
 */
class system_play_message
{
    Q_DECLARE_TR_FUNCTIONS(system_play_message)

public:
    system_play_message(const message_sources& sources,
                        const play_environment& environment,
                        play_listener*& listener,
                        general_player::player_names player);

    /// Runs the token text "MESSAGE...". Status 4, and no message, when an argument is wrong; the
    /// first fault is told.
    void run(sys_result_info& result, const QString& text);

private:
    void add_argument(sys_result_info& result, QStringList& lines, const QString& argument) const;
    void add_throw(sys_result_info& result, QStringList& lines, const QString& argument) const;
    void add_counter(sys_result_info& result, QStringList& lines, const QString& argument) const;
    void add_unit(sys_result_info& result, QStringList& lines, const QString& argument) const;
    void add_table(sys_result_info& result, QStringList& lines, const QString& argument) const;
    void
    add_previous_bets(sys_result_info& result, QStringList& lines, const QString& argument) const;
    void add_playtable(sys_result_info& result, QStringList& lines, const QString& argument) const;
    QString throw_text(const QString& token) const;
    static void refuse(sys_result_info& result, const QString& text, const QString& argument);
    static void refuse_form(sys_result_info& result, const QString& argument);

    message_sources shown;
    const play_environment& game;
    play_listener*& listener;
    general_player::player_names player;
    bool enabled = false; // MESSAGE ON has been run
};

#endif // SYSTEM_PLAY_MESSAGE_H
