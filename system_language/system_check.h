#ifndef SYSTEM_CHECK_H
#define SYSTEM_CHECK_H

#include <QString>
#include <QVector>

class system_pattern;

/// Something that is wrong, or hardly meant, in the text of a system.
struct system_finding {
    enum class kind {
        error,  ///< the system would end with it
        warning ///< the language takes it without a word
    };

    kind severity = kind::error;
    int line = 1;   ///< from 1
    int column = 1; ///< from 1
    int length = 0; ///< characters from `column` on, all in this line; 0 where there is nothing
    QString text;   ///< for the user
};

/// Finds all faults of a system file at once, and what its author hardly means. Nothing is run.
///
/// Errors are what the reading, the split or the compiler refuse, in the words of the run: each
/// open comment, each line, or each part of a line between its ':' and ';', that holds something
/// that is no token, each `STMAX` outside of `ST:`, and each statement that doesn't compile, one
/// error for a statement. The line is the one that the run tells, so that a statement over several
/// lines has the first of them. Marked is the piece that the run underlines, as far as it stands
/// in that line; otherwise the statement, or the line.
///
/// Warnings name what is taken in silence:
/// - a statement that lost its ';': at the end of the file, beside a section keyword, behind the
///   target of a `UZ`, where nothing is read any more, or between two `MESSAGE`, which become one
/// - text behind a single ';' within a line, which is never read
/// - `RESTART` behind `THEN`, and `RESTART(,)`, which do nothing
/// - `MAX` or `MIN` behind anything but a unit change, where they bind nothing
/// - a section keyword that is not in upper case, which begins no section
/// - a message that holds a character of the grammar: a ',' within its quotes parts it, a ':' or
///   ';' tears the statement, and with a '|' the statement counts as compiled
/// - a `UZ` for the fewest hits (`N`, `<`, `<=`) of a type that has no place 0: that place is
///   counted, is never hit, and so always wins
/// - an option of `STMAX` that is none, such as `L`
/// - a list of items that ends in a comma
/// - a test that needs more numbers than have fallen when it is first run. With no delay the start
///   section has none, and so has `AL:` where there is no start section; else it has one, and
///   `I(n)` adds n to what is behind it. `GZ`, `VZ` and `Vd` end the
///   system then. `RZ` and `UZ` wait for their numbers and are named only where a delay is too
///   short for them, or where they hold with no number at all. A test behind a test of
///   a counter or a table counts as guarded by it, and a delay under a condition as given.
///
/// @param text      the file; lines end with "\n" or "\r\n"
/// @param patterns  decide the table too
/// @return the findings in the order of line and column. The time is linear in the text.
QVector<system_finding> check_system_text(const QString& text, const system_pattern& patterns);

#endif // SYSTEM_CHECK_H
