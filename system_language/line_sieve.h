#ifndef LINE_SIEVE_H
#define LINE_SIEVE_H

#include "section_line.h"
#include "sieve_pattern.h"
#include "sys_result_info.h"

#include <QCoreApplication>
#include <QVector>

class system_pattern;

/**
 * The check of a system file at reading time: takes every token out of each line, and what is left
 * is a fault. It looks at lines, not at statements, and knows no order of tokens.
 */
class line_sieve
{
    Q_DECLARE_TR_FUNCTIONS(line_sieve)

public:
    explicit line_sieve(const system_pattern& patterns);

    /// Looks at the lines in their order up to the first fault.
    /// @param lines       lines of a file, without comments, trimmed, none empty
    /// @param table_type  0 French, any other value American
    /// Status `all_right`, or `error` with message, mark, line number and line. A first line
    /// without a section keyword is told with line 1, whatever its number; so are no lines at all.
    sys_result_info check_lines(const QList<section_line>& lines, int table_type) const;

    /// Whether the first line holds a section keyword. Status as above.
    sys_result_info check_begin(const QList<section_line>& lines) const;

    /// Looks at a single line, or a part of one, wherever it stands. Status as above.
    sys_result_info check_line(const section_line& line, int table_type) const;

private:
    sys_result_info check_jetons(const section_line& line, int table_type) const;
    sys_result_info check_tokens(const section_line& line) const;
    bool holds_section(const QString& line) const;
    QString jeton_of_other_table(const QString& text, int table_type) const;
    QString remainder(const QString& text) const;

    QVector<QRegExp> sections; // case counts
    QVector<sieve_pattern> tokens;
    QVector<sieve_pattern> american_jetons;
    QVector<sieve_pattern> french_jetons;
};

#endif // LINE_SIEVE_H
