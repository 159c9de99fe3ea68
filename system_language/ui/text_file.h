#ifndef TEXT_FILE_H
#define TEXT_FILE_H

#include <QByteArray>
#include <QString>

/// How a text stands in its file.
struct text_form {
    QByteArray codec = "UTF-8";        ///< name for `QTextCodec`
    bool has_mark = false;             ///< a byte order mark stands in front
    QString line_end = own_line_end(); ///< "\n", "\r\n" or "\r"

    /// The line end of the platform.
    static QString own_line_end();
};

/// A text as it was read.
struct text_in_file {
    bool is_open = false; ///< false for a file that can't be opened
    QString text;         ///< its lines are divided by "\n"
    text_form form;
};

/// Reads a text in UTF-8 or, where its bytes are no UTF-8, in Latin-1; with a byte order mark in
/// UTF-16 and UTF-32 too. Where line ends are mixed, the most frequent one is the file's. Only
/// regular files are opened.
text_in_file read_text_file(const QString& path);

/// Writes a text as the form tells. A Latin-1 file that can't hold the text becomes a UTF-8 one:
/// the form is changed then. The old file stays as it is until the new one is complete.
/// @param text  its lines are divided by "\n"
/// @return empty, or why it failed
QString write_text_file(const QString& path, const QString& text, text_form& form);

#endif // TEXT_FILE_H
