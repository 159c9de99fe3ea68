#include "source_text.h"

#include <algorithm>

static const QLatin1String line_comment("//");
static const QLatin1String comment_begin("/*");
static const QLatin1String comment_end("*/");

static int leading_blanks(const QString& line)
{
    const auto first = std::find_if_not(
        line.cbegin(), line.cend(), [](QChar character) { return character.isSpace(); });
    return int(first - line.cbegin());
}

static int without_trailing_blanks(const QString& line, int length)
{
    while (length > 0 && line.at(length - 1).isSpace())
        --length;
    return length;
}

source_text::code_columns::code_columns(const QString& source, const QString& code)
    : head_begin(leading_blanks(source))
    , code_length(code.size())
{
    const int closing = source.indexOf(comment_end);
    const auto end_of_code = [&source](int from) {
        const int comment = source.indexOf(line_comment, from);
        return without_trailing_blanks(source, comment < 0 ? source.size() : comment);
    };
    tail_end = end_of_code(0);
    int head_end = source.indexOf(comment_begin);
    if (head_end < 0) head_end = source.size();
    const bool has_comment = head_end < source.size();
    if (closing >= 0 && !has_comment && tail_end - head_begin != code_length) {
        head_end = 0; // the line begins within a comment
        tail_end = end_of_code(closing + comment_end.size());
    }
    while (head_length < code_length && head_begin + head_length < head_end &&
           source.at(head_begin + head_length) == code.at(head_length))
        ++head_length;
}

source_text::source_text(const QString& text)
    : lines(text.split(u'\n'))
{
    QString copy = text;
    QTextStream stream(&copy, QIODevice::ReadOnly);
    file = read_system_lines(stream);
    code_index.fill(-1, lines.size() + 1);
    for (int index = 0; index < file.lines.size(); ++index)
        code_index[file.lines.at(index).number] = index;
}

QString source_text::code_of(int number) const
{
    const int index = code_index.value(number, -1);
    return index < 0 ? QString() : file.lines.at(index).text;
}

text_place source_text::line_place(int number) const
{
    const QString line = lines.value(number - 1);
    const int end = without_trailing_blanks(line, line.size());
    const int begin = std::min(leading_blanks(line), end);
    return {number, begin + 1, end - begin};
}

text_place source_text::place_of(int number, const QString& piece) const
{
    const int begin = lines.value(number - 1).indexOf(piece);
    return begin < 0 ? line_place(number) : text_place{number, begin + 1, piece.size()};
}

text_place source_text::code_place(int number, int begin, int end) const
{
    const QString code = code_of(number);
    end = qBound(0, end, code.size());
    begin = qBound(0, begin, end);
    if (columns_line != number) columns = code_columns(lines.value(number - 1), code);
    columns_line = number;
    const int first = columns.column_of(begin);
    const int behind = end > begin ? columns.column_of(end - 1) + 1 : first;
    return {number, first + 1, behind - first};
}
