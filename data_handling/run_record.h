#ifndef RUN_RECORD_H
#define RUN_RECORD_H

#include <QDateTime>
#include <QString>

#include <vector>

/// The numbers of one game from its first number on, as the year permanence keeps them.
struct run_record {
    QDateTime run_start = QDateTime::fromMSecsSinceEpoch(0); ///< when the first number came
    QDateTime run_end = QDateTime::fromMSecsSinceEpoch(0);   ///< set when a block is made of it
    qint64 run_coups = 0;                                    ///< entries that are numbers
    qint64 run_hand_changes = 0;                             ///< entries that are hand changes
    std::vector<quint8> run_numbers; ///< 0 to 36, 37 for the double zero, 99 for a hand change

    bool is_empty() const { return run_numbers.empty(); }

    /// Takes the next number, or the mark 99; with the first one the run begins. Anything else is
    /// ignored.
    void add(int number, const QDateTime& moment);
};

/// The block of a run in its year file: a header with begin, end and count, up to 30 numbers a
/// line, an empty line. Empty for a run without numbers. The names of days and months are those of
/// the system's language, in which the reader of year files looks for them.
QString format_run_block(const run_record& run);

/// The year file of a year: "Stat2018.log".
QString year_file_name(int year);

/// Appends the block of a run to the year file of its begin, in the working directory. True if it
/// is in the file, or if the run is empty.
bool append_to_year_file(const run_record& run);

/// Whether its year file holds a block that began at the same moment with the same numbers: the
/// run, or the longer one that it was a part of. False for an empty run.
bool is_in_year_file(const run_record& run);

#endif // RUN_RECORD_H
