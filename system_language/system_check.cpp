#include "system_check.h"

#include "line_sieve.h"
#include "source_text.h"
#include "statement_compiler.h"
#include "statement_split.h"
#include "statement_warnings.h"
#include "system_pattern.h"
#include "system_sektor_check.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>

static constexpr QChar keyword_end = u':';
static constexpr QChar statement_end = u';';
static constexpr QChar token_separator = u'|';

namespace
{

/// A statement as the parts that it was put together from.
struct placed_statement {
    QList<section_line> parts;
    int leading = 0; // blanks in front of it in the first part
};

/// One check of one text.
class system_check
{
    Q_DECLARE_TR_FUNCTIONS(system_check)

public:
    system_check(const QString& text, const system_pattern& patterns);

    QVector<system_finding> findings();

private:
    void check_reading();
    void check_lines();
    void check_parts_of(const section_line& line, const sys_result_info& line_fault);
    void check_messages();
    void check_message(const section_line& line, const message_shape& message);
    void check_keywords();
    void check_keyword(const section_line& part);
    void check_open_end();
    void check_start_section(const system_sections& sections);
    void check_section(const QList<section_line>& section, const number_supply& supply);
    QString compiled(const section_line& statement);
    void warn_about(const section_line& statement,
                    const QString& token_text,
                    const number_supply& supply);

    bool is_told_by_a_line(const section_line& statement) const;
    placed_statement placed(const section_line& statement) const;
    text_place place_in(const placed_statement& statement, const text_range& range) const;
    text_place place_of_fault(const section_line& statement, const sys_result_info& fault) const;
    void add(system_finding::kind severity, const text_place& place, const QString& text);
    void add_error(const text_place& place, const sys_result_info& fault);
    void add_warning(const text_place& place, const QString& text);

    const system_pattern& patterns;
    const source_text source;
    const line_sieve sieve;
    const statement_compiler compiler;
    const QRegExp section_keyword;
    const QRegExp section_keyword_any_case;
    const QList<section_line> parts;
    QHash<quint64, int> part_by_place; // line number and column -> index in parts
    QSet<int> faulty_lines;            // refused by the sieve
    QSet<int> torn_lines;              // a message is torn apart there
    int delay = -1;                    // of the start section; -1 for none
    QVector<system_finding> found;
};

int blanks_at(const QString& text, int begin)
{
    int end = begin;
    while (end < text.size() && text.at(end).isSpace())
        ++end;
    return end - begin;
}

QRegExp any_of(const QStringList& expressions, Qt::CaseSensitivity case_rule)
{
    return QRegExp(expressions.join(u'|'), case_rule, QRegExp::RegExp);
}

quint64 place_key(const section_line& line)
{
    return quint64(quint32(line.number)) << 32 | quint32(line.column);
}

system_check::system_check(const QString& text, const system_pattern& own_patterns)
    : patterns(own_patterns)
    , source(text)
    , sieve(own_patterns)
    , compiler(own_patterns)
    , section_keyword(any_of(own_patterns.get_section_patterns(), Qt::CaseSensitive))
    , section_keyword_any_case(any_of(own_patterns.get_section_patterns(), Qt::CaseInsensitive))
    , parts(cut_lines(source.code().lines))
{
    for (int index = 0; index < parts.size(); ++index)
        part_by_place.insert(place_key(parts.at(index)), index);
}

QVector<system_finding> system_check::findings()
{
    check_reading();
    check_messages();
    check_lines();
    check_keywords();
    check_open_end();

    const system_sections sections =
        split_statements(source.code().lines, patterns.get_section_patterns());
    check_start_section(sections);
    // The start section takes the first turn; without one the general section plays in it.
    const bool has_start = !sections.section_st.isEmpty();
    const int waited = qMax(delay, 0);
    const number_supply later{waited + 1, waited > 0};
    check_section(sections.section_gw, later);
    check_section(sections.section_ve, later);
    check_section(sections.section_al, has_start ? later : number_supply{});

    std::stable_sort(found.begin(), found.end(), [](const auto& left, const auto& right) {
        return left.line != right.line ? left.line < right.line : left.column < right.column;
    });
    return found;
}

void system_check::check_reading()
{
    for (const sys_result_info& fault : source.code().open_comments)
        add_error(source.place_of(fault.error_line, fault.mark_text), fault);
}

void system_check::check_messages()
{
    for (const section_line& line : source.code().lines) {
        message_shape message = find_message(line.text);
        while (message.is_closed) {
            check_message(line, message);
            message = find_message(line.text, message.end);
        }
    }
}

// A comma parts arguments, so it is out of place within the quotes only.
void system_check::check_message(const section_line& line, const message_shape& message)
{
    const QStringRef inside = line.text.midRef(message.opening, message.end - message.opening);
    const auto warn_at = [&](int index, const QString& text) {
        if (index >= 0) add_warning(source.code_place(line.number, index, index + 1), text);
    };
    for (const QChar character : {keyword_end, statement_end}) {
        const int index = inside.indexOf(character);
        if (index < 0) continue;
        torn_lines.insert(line.number);
        warn_at(message.opening + index,
                tr("Ein '%1' in einer MESSAGE reißt die Anweisung auseinander!").arg(character));
    }
    const int separator = inside.indexOf(token_separator);
    if (separator >= 0)
        warn_at(message.opening + separator,
                tr("Mit einem '|' in der MESSAGE wird die Anweisung nicht übersetzt!"));
    for (const text_range& text : message.texts) {
        const int comma = line.text.midRef(text.begin, text.end - text.begin).indexOf(u',');
        if (comma >= 0)
            warn_at(text.begin + comma,
                    tr("Ein ',' im Text einer MESSAGE trennt Argumente, der Text endet hier!"));
    }
}

void system_check::check_lines()
{
    const sys_result_info begin = sieve.check_begin(source.code().lines);
    if (begin.status != system_status::all_right)
        add_error(source.line_place(begin.error_line), begin);
    for (const section_line& line : source.code().lines) {
        const sys_result_info fault = sieve.check_line(line, patterns.get_table_type());
        if (fault.status == system_status::all_right) continue;
        faulty_lines.insert(line.number);
        check_parts_of(line, fault);
    }
}

// The run tells the first fault of a line, or all that is left of it. Each part alone gives its own
// fault, unless only the whole line has one.
void system_check::check_parts_of(const section_line& line, const sys_result_info& line_fault)
{
    bool is_told = false;
    const QList<section_line> line_parts =
        torn_lines.contains(line.number) ? QList<section_line>() : cut_lines({line});
    for (const section_line& part : line_parts) {
        const sys_result_info fault = sieve.check_line(part, patterns.get_table_type());
        if (fault.status == system_status::all_right) continue;
        add_error(place_of_fault({part.number, part.text.trimmed(), part.column}, fault), fault);
        is_told = true;
    }
    if (!is_told) add_error(place_of_fault(line, line_fault), line_fault);
}

void system_check::check_keywords()
{
    for (const section_line& part : parts)
        if (part.text.contains(keyword_end) && !faulty_lines.contains(part.number) &&
            !torn_lines.contains(part.number))
            check_keyword(part);
}

// What stands beside the keyword is dropped with it.
void system_check::check_keyword(const section_line& part)
{
    QString beside = part.text;
    const int begin = section_keyword_any_case.indexIn(beside);
    if (begin >= 0) {
        const int length = section_keyword_any_case.matchedLength();
        if (section_keyword.indexIn(beside) < 0)
            add_warning(
                source.code_place(part.number, part.column + begin, part.column + begin + length),
                tr("%1 beginnt keine Sektion, es muss groß geschrieben werden!")
                    .arg(beside.mid(begin, length)));
        beside.replace(begin, length, QString(length, u' '));
    }
    beside.replace(keyword_end, u' ');
    const QString lost = beside.trimmed();
    if (lost.isEmpty()) return;
    const int column = part.column + beside.indexOf(lost);
    add_warning(source.code_place(part.number, column, column + lost.size()),
                tr("Ohne Strichpunkt in derselben Zeile geht dieser Text verloren!"));
}

// Behind an open comment nobody knows what the end of the file would have been.
void system_check::check_open_end()
{
    if (!source.code().open_comments.isEmpty()) return;
    const section_line* first = nullptr;
    for (const section_line& part : parts) {
        if (part.text.contains(keyword_end)) continue;
        if (first == nullptr) first = &part;
        if (part.text.contains(statement_end)) first = nullptr;
    }
    if (first == nullptr) return;
    add_warning(source.code_place(first->number, first->column, first->column + first->text.size()),
                tr("Ohne Strichpunkt am Ende geht diese Anweisung verloren!"));
}

// Behind the delay the section runs again, from its top but with the numbers that have fallen.
void system_check::check_start_section(const system_sections& sections)
{
    for (const section_line& statement : sections.section_st) {
        const QString token_text = compiled(statement);
        if (token_text.isEmpty()) continue;
        const int waited = qMax(delay, 0);
        warn_about(statement, token_text, {waited, waited > 0});
        if (delay < 0) delay = statement_warnings(statement.text, token_text).delay();
    }
}

void system_check::check_section(const QList<section_line>& section, const number_supply& supply)
{
    const system_sektor_check section_check;
    for (const section_line& statement : section) {
        const sys_result_info misplaced = section_check.check_section({statement});
        if (misplaced.status != system_status::all_right) {
            add_error(place_of_fault(statement, misplaced), misplaced);
            continue;
        }
        const QString token_text = compiled(statement);
        if (!token_text.isEmpty()) warn_about(statement, token_text, supply);
    }
}

/// The token text; empty when the statement has a fault, or is none of the compiler's.
QString system_check::compiled(const section_line& statement)
{
    if (statement.text.contains(token_separator)) return {};
    sys_result_info result;
    compiler.compile_statement(result, statement.text);
    if (result.status == system_status::all_right) return result.command_text;
    if (!is_told_by_a_line(statement)) add_error(place_of_fault(statement, result), result);
    return {};
}

/// True when the statement can't compile for something that the sieve has told.
bool system_check::is_told_by_a_line(const section_line& statement) const
{
    if (faulty_lines.isEmpty()) return false;
    const QList<section_line> own_parts = placed(statement).parts;
    const bool has_faulty_line =
        std::any_of(own_parts.cbegin(), own_parts.cend(), [this](const section_line& part) {
            return faulty_lines.contains(part.number);
        });
    return has_faulty_line && sieve.check_line(statement, patterns.get_table_type()).status !=
                                  system_status::all_right;
}

void system_check::warn_about(const section_line& statement,
                              const QString& token_text,
                              const number_supply& supply)
{
    const QVector<statement_warning> warnings =
        statement_warnings(statement.text, token_text).all(supply);
    if (warnings.isEmpty()) return;
    const placed_statement place = placed(statement);
    for (const statement_warning& warning : warnings)
        add_warning(place_in(place, warning.range), warning.text);
}

/// The parts of a statement that the split has put together.
placed_statement system_check::placed(const section_line& statement) const
{
    placed_statement result;
    int index = part_by_place.value(place_key(statement), parts.size());
    for (; index < parts.size(); ++index) {
        const section_line& part = parts.at(index);
        if (part.text.contains(keyword_end)) continue;
        result.parts.append(part);
        if (part.text.contains(statement_end)) break;
    }
    if (!result.parts.isEmpty()) result.leading = blanks_at(result.parts.first().text, 0);
    return result;
}

/// A range that runs over several lines is told as far as its first line holds it.
text_place system_check::place_in(const placed_statement& statement, const text_range& range) const
{
    const int length = qMax(range.end - range.begin, 0);
    int begin = statement.leading + range.begin;
    for (const section_line& part : statement.parts) {
        const int size = part.text.size();
        if (begin < size) {
            const int end = part.column + qMin(begin + length, size);
            return source.code_place(part.number, part.column + begin, end);
        }
        begin -= size + 1; // the blank between two parts
    }
    return source.line_place(statement.parts.isEmpty() ? 1 : statement.parts.last().number);
}

/// The mark in the first line of what is at fault; all of it in that line where there is no mark.
text_place system_check::place_of_fault(const section_line& statement,
                                        const sys_result_info& fault) const
{
    const QString line = source.code_of(statement.number);
    const int begin = statement.column + blanks_at(line, statement.column);
    const int end = qMin(begin + statement.text.size(), line.size());
    const bool has_mark =
        fault.mark_mode == system_status::mark_token && !fault.mark_text.isEmpty();
    const int mark = has_mark ? statement.text.indexOf(fault.mark_text) : -1;
    if (mark < 0 || begin + mark >= end) return source.code_place(statement.number, begin, end);
    return source.code_place(
        statement.number, begin + mark, qMin(begin + mark + fault.mark_text.size(), end));
}

void system_check::add(system_finding::kind severity, const text_place& place, const QString& text)
{
    found.append({severity, place.line, place.column, place.length, text});
}

void system_check::add_error(const text_place& place, const sys_result_info& fault)
{
    add(system_finding::kind::error, place, fault.error_text);
}

void system_check::add_warning(const text_place& place, const QString& text)
{
    add(system_finding::kind::warning, place, text);
}

} // namespace

QVector<system_finding> check_system_text(const QString& text, const system_pattern& patterns)
{
    return system_check(text, patterns).findings();
}
