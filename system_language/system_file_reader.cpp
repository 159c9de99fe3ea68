#include "system_file_reader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

static const QLatin1String line_comment("//");
static const QLatin1String comment_begin("/*");
static const QLatin1String comment_end("*/");

namespace
{

class system_file_reader
{
    Q_DECLARE_TR_FUNCTIONS(system_file_reader)

public:
    explicit system_file_reader(QTextStream& source)
        : stream(source)
    {
    }

    system_file_lines read();
    static system_file_lines file_not_opened();

private:
    bool next_line(QString& line);
    QString without_comments(QString line);
    QString behind_open_comment(const section_line& opening);
    void append(const QString& line);

    QTextStream& stream;
    int line_number = 0; // of the line read last
    system_file_lines code;
};

system_file_lines system_file_reader::read()
{
    code.result.status = system_status::reading;
    QString line;
    while (next_line(line))
        append(without_comments(line));
    if (code.result.status == system_status::reading) code.result.status = system_status::all_right;
    return code;
}

system_file_lines system_file_reader::file_not_opened()
{
    system_file_lines nothing;
    nothing.result.status = system_status::file_not_opened;
    nothing.result.error_text = tr("Die Systemspieldatei konnte nicht geöffnet werden!");
    nothing.result.mark_mode = system_status::mark_line;
    return nothing;
}

bool system_file_reader::next_line(QString& line)
{
    if (!stream.readLineInto(&line)) return false;
    line = line.trimmed();
    ++line_number;
    return true;
}

static QString without_line_comment(const QString& line)
{
    return line.left(line.indexOf(line_comment));
}

// A line comment counts everywhere, also within the other kind. Only the first pair of a line is
// taken out; when the end stands in front of the beginning nothing is.
QString system_file_reader::without_comments(QString line)
{
    line = without_line_comment(line);
    const int begin = line.indexOf(comment_begin);
    if (begin < 0) return line;
    const int end = line.indexOf(comment_end);
    if (end >= 0) return line.remove(begin, end + comment_end.size() - begin);
    append(line.left(begin));
    return behind_open_comment({line_number, line});
}

// Reads on to the end of the comment and gives the code behind it.
QString system_file_reader::behind_open_comment(const section_line& opening)
{
    QString line;
    while (next_line(line) && !line.contains(comment_begin)) {
        const int end = line.indexOf(comment_end);
        if (end >= 0) return without_line_comment(line.mid(end + comment_end.size()));
    }
    sys_result_info& result = code.result;
    result.status = system_status::error;
    result.error_text = tr("Kommentar Ende Zeichen wurde nicht gefunden!");
    result.error_line = opening.number;
    result.mark_mode = system_status::mark_token;
    result.mark_text = comment_begin;
    result.line_text = opening.text;
    code.open_comments.append(result);
    return {};
}

void system_file_reader::append(const QString& line)
{
    const QString text = line.trimmed();
    if (!text.isEmpty()) code.lines.append({line_number, text});
}

} // namespace

system_file_lines read_system_lines(QTextStream& stream)
{
    return system_file_reader(stream).read();
}

system_file_lines read_system_lines(const QString& file_name)
{
    QFile file(file_name);
    const bool is_file = QFileInfo(file_name).isFile(); // a pipe or a device might never end
    if (!is_file || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return system_file_reader::file_not_opened();
    QTextStream stream(&file);
    return read_system_lines(stream);
}
