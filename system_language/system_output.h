#ifndef SYSTEM_OUTPUT_H
#define SYSTEM_OUTPUT_H

#include "game_types.h"

#include <QByteArray>
#include <QFile>
#include <QObject>

struct player_status;
class numberStorage;
class setting;

/// When a protocol goes to the disk.
enum class protocol_flushing {
    line_by_line, ///< nothing is lost when the program is killed
    by_the_block  ///< fast; complete after `flush()` and `close()`
};

/**
 * The protocol of one player: a text file with one line a coup, written on at its end. It does
 * not depend on a running system. What can't be written is passed over in silence; `failed()`
 * tells.
 */
class system_output : public QObject
{
    Q_OBJECT

public:
    system_output(const numberStorage& numbers,
                  const setting& settings,
                  general_player::player_names player,
                  protocol_flushing flushing = protocol_flushing::line_by_line,
                  QObject* parent = nullptr);
    ~system_output() override;

    /// Opens the protocol that the settings name for the player and writes the header, behind an
    /// empty line when the file was there before. Returns whether it could be opened.
    /// @param coups_so_far  coups of the player that were counted before: they get no line
    bool open(qint64 coups_so_far = 0);

    /// Two lines: the columns with the system file of the player, and a rule.
    void write_header();

    /// The line of a coup; only when a coup has been counted since the last line.
    void write_coup_line(const player_status& status);

    /// Writes out what is buffered.
    void flush();
    void close();

    /// The figures of the players begin anew: the next counted coup is the first.
    void statistic_emptied() { counted_coups = 0; }

    /// The number of the coup of the next line was chosen by hand.
    void set_manual_number(bool is_manual) { manual_number = is_manual; }

    /// True once something could not be written; the reason is the file's error text.
    bool failed() const { return write_failed; }
    QString error_text() const { return file.errorString(); }

private:
    void write_load_file_marks();
    void write_end_mark();
    void write_remark(const QByteArray& remark);
    void end_line();
    void flush_when_due();

    const numberStorage& numbers;
    const setting& settings;
    general_player::player_names player;
    protocol_flushing flushing;
    QFile file;
    QByteArray buffer;
    QString last_load_file;   // load file of the last coup line
    QByteArray comment;       // at the end of the next coup lines
    qint64 counted_coups = 0; // of the status at the last line
    bool manual_number = false;
    bool write_failed = false;
};

#endif // SYSTEM_OUTPUT_H
