#ifndef STATEMENT_SPLIT_H
#define STATEMENT_SPLIT_H

#include "section_line.h"

#include <QStringList>

/// The statements of a system file, sorted by section, each in the order of the file.
struct system_sections {
    QList<section_line> section_st;
    QList<section_line> section_gw;
    QList<section_line> section_ve;
    QList<section_line> section_al;
};

/// Cuts lines into parts, in the order of the file: a part with a ':' counts as a section keyword,
/// one with a ';' ends a statement, and one with neither goes on in the next part that is no
/// keyword. A part may have got its last character, ':' or ';', by the cut.
QList<section_line> cut_lines(const QList<section_line>& lines);

/// Cuts lines into statements and sorts them into sections.
/// Statements keep their final ';' and have the number of the line on which they begin. Code in
/// front of the first keyword belongs to the general section. A ':' or ';' within a message text
/// counts like any other. Never fails: what ends with no ';' is dropped, and so is a line with a
/// ':' that holds no section keyword.
/// @param lines             lines without comments, trimmed
/// @param section_patterns  those of `system_pattern`; case counts
system_sections split_statements(const QList<section_line>& lines,
                                 const QStringList& section_patterns);

#endif // STATEMENT_SPLIT_H
