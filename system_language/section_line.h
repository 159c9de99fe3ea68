#ifndef SECTION_LINE_H
#define SECTION_LINE_H

#include <QList>
#include <QString>

/// A line, or after the split a statement, of a system file.
struct section_line {
    int number = 0; ///< line number in the file, from 1; that of the first line of a statement
    QString text;
    int column = 0; ///< where it, or its first part, begins in that line of code, from 0
};

/// Equal lines may stand in different columns.
inline bool operator==(const section_line& left, const section_line& right)
{
    return left.number == right.number && left.text == right.text;
}

#endif // SECTION_LINE_H
