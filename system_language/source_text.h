#ifndef SOURCE_TEXT_H
#define SOURCE_TEXT_H

#include "system_file_reader.h"

#include <QStringList>
#include <QVector>

/// A stretch of one line.
struct text_place {
    int line = 1;   ///< from 1
    int column = 1; ///< from 1
    int length = 0;
};

/**
 * The text of a system file together with its code, to find where a piece of code stands in the
 * text: trimming and comments shift the columns.
 */
class source_text
{
public:
    explicit source_text(const QString& text);

    /// The code and how its reading ended.
    const system_file_lines& code() const { return file; }

    /// The code of a line; empty for a line that has none.
    QString code_of(int number) const;

    /// A line without the white space round it. A line that there is not has length 0.
    text_place line_place(int number) const;

    /// The first place of a piece in a line; the whole line when it is not found.
    text_place place_of(int number, const QString& piece) const;

    /// Characters `begin` to `end`, the latter not included, of the code of a line.
    text_place code_place(int number, int begin, int end) const;

private:
    /// Where the characters of a line of code stand in its source line. The reader cuts the code
    /// out of the line in at most two pieces: one in front of a comment, and one that ends the
    /// code.
    class code_columns
    {
    public:
        code_columns() = default;
        code_columns(const QString& source, const QString& code);

        int column_of(int index) const
        {
            return index < head_length ? head_begin + index : tail_end - code_length + index;
        }

    private:
        int head_begin = 0;
        int head_length = 0;
        int code_length = 0;
        int tail_end = 0;
    };

    QStringList lines;
    system_file_lines file;
    QVector<int> code_index;      // by line number, -1 for a line without code
    mutable int columns_line = 0; // a long line may be asked for often
    mutable code_columns columns; // of that line
};

#endif // SOURCE_TEXT_H
