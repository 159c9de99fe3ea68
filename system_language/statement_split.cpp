#include "statement_split.h"

#include <QRegExp>
#include <QVector>

static constexpr QChar keyword_end = u':';
static constexpr QChar statement_end = u';';
static constexpr QChar blank = u' ';

// The lists by the index of their keyword in the section patterns.
static constexpr int section_count = 4;
static constexpr QList<section_line> system_sections::*section_by_index[section_count] = {
    &system_sections::section_st,
    &system_sections::section_gw,
    &system_sections::section_ve,
    &system_sections::section_al,
};
static constexpr int first_section = 3;

// A line with two or more ends is cut behind each of them, and its last part gets one too.
static QList<section_line> cut_behind(QChar end, const QList<section_line>& lines)
{
    QList<section_line> result;
    for (const section_line& line : lines) {
        if (line.text.count(end) < 2) {
            result.append(line);
            continue;
        }
        int column = line.column;
        const QStringList parts = line.text.split(end);
        for (const QString& part : parts) {
            if (!part.isEmpty()) result.append({line.number, part + end, column});
            column += part.size() + 1;
        }
    }
    return result;
}

// A line with both ends is cut at the one that comes first; the parts that lack the other one had
// the first and get it back.
static QList<section_line> cut_keywords_from_statements(const QList<section_line>& lines)
{
    QList<section_line> result;
    for (const section_line& line : lines) {
        const int keyword_length = line.text.indexOf(keyword_end);
        const int statement_length = line.text.indexOf(statement_end);
        if (keyword_length < 0 || statement_length < 0) {
            result.append(line);
            continue;
        }
        const bool keyword_first = keyword_length < statement_length;
        const QChar cut = keyword_first ? keyword_end : statement_end;
        const QChar other = keyword_first ? statement_end : keyword_end;
        int column = line.column;
        const QStringList parts = line.text.split(cut);
        for (const QString& part : parts) {
            const bool has_other = part.contains(other);
            result.append({line.number, has_other ? part : QString(part + cut), column});
            column += part.size() + 1;
        }
    }
    return result;
}

// Puts statements together that run over several lines; keywords between them do not matter.
static QList<section_line> join_statements(const QList<section_line>& lines)
{
    QList<section_line> result;
    QStringList pieces;
    section_line first;
    for (const section_line& line : lines) {
        if (line.text.contains(keyword_end)) {
            result.append(line);
            continue;
        }
        if (pieces.isEmpty()) first = line;
        pieces.append(line.text);
        if (!line.text.contains(statement_end)) continue;
        result.append({first.number, pieces.join(blank), first.column});
        pieces.clear();
    }
    return result;
}

static int section_index(const QString& line, const QVector<QRegExp>& sections)
{
    for (int index = 0; index < sections.size(); ++index)
        if (sections.at(index).indexIn(line) >= 0) return index;
    return -1;
}

static system_sections sort_statements(const QList<section_line>& lines,
                                       const QStringList& section_patterns)
{
    QVector<QRegExp> keywords;
    for (const QString& pattern : section_patterns.mid(0, section_count))
        keywords.append(QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp));

    system_sections sections;
    int current_section = first_section;
    for (const section_line& line : lines) {
        const QString text = line.text.trimmed();
        if (!text.contains(keyword_end)) {
            (sections.*section_by_index[current_section]).append({line.number, text, line.column});
            continue;
        }
        const int index = section_index(text, keywords);
        if (index >= 0) current_section = index;
    }
    return sections;
}

QList<section_line> cut_lines(const QList<section_line>& lines)
{
    const QList<section_line> keyword_lines = cut_behind(keyword_end, lines);
    const QList<section_line> statement_lines = cut_behind(statement_end, keyword_lines);
    return cut_keywords_from_statements(statement_lines);
}

system_sections split_statements(const QList<section_line>& lines,
                                 const QStringList& section_patterns)
{
    return sort_statements(join_statements(cut_lines(lines)), section_patterns);
}
