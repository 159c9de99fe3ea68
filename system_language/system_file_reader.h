#ifndef SYSTEM_FILE_READER_H
#define SYSTEM_FILE_READER_H

#include "section_line.h"
#include "sys_result_info.h"

#include <QTextStream>

/// The code of a system file and how its reading ended.
struct system_file_lines {
    QList<section_line> lines; ///< trimmed, without comments, none empty
    sys_result_info result;    ///< `all_right`, `file_not_opened` or `error`
    QList<sys_result_info>
        open_comments; ///< every `error` of the reading, in the order of the file
};

/// Reads the lines of a system file and takes the comments out.
/// A comment that is not closed, or that another one opens in, is an `error` at the line of its
/// opening. The reading goes on behind it, and of several such faults the last one is told.
system_file_lines read_system_lines(QTextStream& stream);

/// Opens the file and reads it as above. A file that can't be opened, or a name that belongs to no
/// file, gives `file_not_opened` and no lines.
system_file_lines read_system_lines(const QString& file_name);

#endif // SYSTEM_FILE_READER_H
