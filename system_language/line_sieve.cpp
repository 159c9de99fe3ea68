#include "line_sieve.h"

#include "system_pattern.h"

#include <QDebug>
#include <QTime>

#include <algorithm>

static constexpr int french_table = 0;

static QVector<sieve_pattern> sieve_patterns(const QStringList& patterns)
{
    QVector<sieve_pattern> result;
    for (const QString& pattern : patterns)
        result.append(sieve_pattern(pattern));
    return result;
}

static QVector<QRegExp> exact_case_patterns(const QStringList& patterns)
{
    QVector<QRegExp> result;
    for (const QString& pattern : patterns)
        result.append(QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp));
    return result;
}

static sys_result_info
error_in(const section_line& line, const QString& message, const QString& mark_text)
{
    sys_result_info result;
    result.status = system_status::error;
    result.error_text = message;
    result.error_line = line.number;
    result.mark_text = mark_text;
    result.line_text = line.text;
    return result;
}

static bool holds_letter(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar character) {
        return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
    });
}

static QString without_digits(QString text)
{
    const auto end = std::remove_if(
        text.begin(), text.end(), [](QChar character) { return character.isDigit(); });
    text.truncate(int(end - text.begin()));
    return text;
}

static void log_remainder(int position, const QString& remainder)
{
    qDebug().noquote() << QTime::currentTime().toString(QStringLiteral("h:mm:ss.zzz ")) +
                              QStringLiteral("Not empty line found :")
                       << position << remainder;
}

line_sieve::line_sieve(const system_pattern& patterns)
    : sections(exact_case_patterns(patterns.get_section_patterns()))
    , tokens(sieve_patterns(patterns.get_section_patterns() + patterns.get_keyword_patterns() +
                            patterns.get_argument_patterns() + patterns.get_jeton_patterns()))
    , american_jetons(sieve_patterns(patterns.get_american_patterns()))
    , french_jetons(sieve_patterns(patterns.get_french_patterns()))
{
}

static QString without_ends(QString text)
{
    return text.remove(u';');
}

sys_result_info line_sieve::check_lines(const QList<section_line>& lines, int table_type) const
{
    sys_result_info result = check_begin(lines);
    for (int index = 0; index < lines.size(); ++index) {
        if (result.status != system_status::all_right) break;
        result = check_jetons(lines.at(index), table_type);
        if (result.status != system_status::all_right) break;
        result = check_tokens(lines.at(index));
        if (result.status != system_status::all_right) log_remainder(index + 1, result.mark_text);
    }
    return result;
}

sys_result_info line_sieve::check_begin(const QList<section_line>& lines) const
{
    const QString first_line = lines.isEmpty() ? QString() : lines.first().text;
    if (holds_section(first_line)) return {};
    const section_line told{1, first_line};
    sys_result_info result = error_in(told, tr("Code ohne Sektion nicht zuflässig!"), first_line);
    result.mark_mode = system_status::mark_line;
    return result;
}

sys_result_info line_sieve::check_line(const section_line& line, int table_type) const
{
    const sys_result_info result = check_jetons(line, table_type);
    return result.status == system_status::all_right ? check_tokens(line) : result;
}

sys_result_info line_sieve::check_jetons(const section_line& line, int table_type) const
{
    const QString foreign_jeton = jeton_of_other_table(without_ends(line.text), table_type);
    if (foreign_jeton.isEmpty()) return {};
    const QString message =
        table_type == french_table
            ? tr("Französischer Tisch aktiv - Amerikanische Setzungen gefunden!")
            : tr("Amerikanischer Tisch aktiv - Französische Setzungen gefunden!");
    return error_in(line, message, foreign_jeton);
}

sys_result_info line_sieve::check_tokens(const section_line& line) const
{
    const QString rest = remainder(without_ends(line.text));
    return rest.isEmpty() ? sys_result_info() : error_in(line, tr("Syntax Fehler!"), rest);
}

bool line_sieve::holds_section(const QString& line) const
{
    for (const QRegExp& section : sections)
        if (section.indexIn(line) >= 0) return true;
    return false;
}

// The first jeton in the order of the patterns that the table does not have, empty without one.
QString line_sieve::jeton_of_other_table(const QString& text, int table_type) const
{
    const letter_pairs pairs(text);
    for (const sieve_pattern& jeton :
         table_type == french_table ? american_jetons : french_jetons) {
        const QString found = jeton.may_occur_among(pairs) ? jeton.first_match(text) : QString();
        if (!found.isEmpty()) return found;
    }
    return {};
}

// What no token takes away. Every match begins behind a character that is no letter, so taking it
// out joins no letters: the pairs of the whole text hold good to the end.
QString line_sieve::remainder(const QString& text) const
{
    const letter_pairs pairs(text);
    QString rest = text.trimmed();
    for (const sieve_pattern& token : tokens) {
        if (rest.isEmpty()) return rest;
        if (token.may_occur_among(pairs) && token.remove_from(rest)) rest = rest.trimmed();
    }
    rest = rest.remove(u',').trimmed();
    return holds_letter(rest) ? rest : without_digits(rest).trimmed();
}
