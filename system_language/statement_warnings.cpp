#include "statement_warnings.h"

#include "token_argument.h"

#include <QRegularExpression>

static constexpr QChar statement_end = u';';
static constexpr QChar comma = u',';

static bool same_letter(QChar left, QChar right)
{
    return left == right || left.toLower() == right.toLower();
}

// How far a token reaches in its source, where blanks may stand within it and the compiler may
// have put an '=' into it.
static int end_of_token(const QString& source, int begin, const QString& token)
{
    int position = begin;
    for (int index = 0; index < token.size() && position < source.size();) {
        if (same_letter(token.at(index), source.at(position))) {
            ++index;
            ++position;
        } else if (source.at(position).isSpace()) {
            ++position;
        } else if (token.at(index) == u'=') {
            ++index;
        } else {
            break;
        }
    }
    return position;
}

static QStringList options_of(const QString& token)
{
    return token_argument(token).split(comma);
}

static bool is_delay(const QString& option)
{
    return option.startsWith(u'I', Qt::CaseInsensitive);
}

// As the options read it: whatever parentheses stand round it.
static int delay_of(QString option)
{
    return option.remove(0, 1).remove(u'(').remove(u')').toInt();
}

static bool option_acts(const QString& option)
{
    const QString letter = option.left(1).toUpper();
    if (letter == QLatin1String("S")) {
        return option == QLatin1String("S") ||
               option.startsWith(QLatin1String("S(ST"), Qt::CaseInsensitive) ||
               option.startsWith(QLatin1String("ST"), Qt::CaseInsensitive);
    }
    return QStringLiteral("IAHEVGCPRN").contains(letter);
}

// True when a place that was never hit passes: "<3" and "<=3" do.
static bool holds_without_hits(const QString& condition)
{
    if (!condition.startsWith(u'<')) return false;
    const int sign_length = condition.startsWith(QLatin1String("<=")) ? 2 : 1;
    return condition.mid(sign_length).toInt() > 0;
}

static bool is_least_hit(const QString& condition)
{
    return condition.compare(QLatin1String("N"), Qt::CaseInsensitive) == 0;
}

static bool is_most_hit(const QString& condition)
{
    return condition.compare(QLatin1String("H"), Qt::CaseInsensitive) == 0;
}

// The types whose names begin with 01, although the signal counts from 0.
static bool lacks_place_0(const QString& type)
{
    static const QStringList types = {"EC", "DZ", "KL", "TP", "TS", "CA", "CH"};
    return types.contains(type, Qt::CaseInsensitive);
}

// The numbers that GZ, VZ or V0 to V9 look back.
static int numbers_looked_back(const QString& token)
{
    if (token.startsWith(u'G', Qt::CaseInsensitive)) return 1;
    if (token.startsWith(QLatin1String("VZ"), Qt::CaseInsensitive)) return 2;
    return 3 + token.mid(1).toInt();
}

statement_warnings::statement_warnings(const QString& statement, const QString& token_text)
    : source(statement)
    , tokens(token_text.split(u'|', Qt::SkipEmptyParts))
{
    int position = 0;
    for (const QString& token : tokens) {
        const int begin = behind_blanks_and_commas(position);
        position = end_of_token(source, begin, token);
        ranges.append({begin, position});
    }
}

QVector<statement_warning> statement_warnings::all(const number_supply& supply)
{
    warnings.clear();
    look_at_end();
    look_at_message();
    look_at_restart();
    look_at_bound();
    look_at_item_lists();
    look_at_options();
    look_at_signals();
    look_at_numbers(supply);
    return warnings;
}

int statement_warnings::delay() const
{
    for (int index = 0; index < tokens.size(); ++index) {
        if (!token_begins(index, "STMAX(")) continue;
        const QStringList options = options_of(tokens.at(index));
        for (const QString& option : options)
            if (is_delay(option)) return qMax(delay_of(option), 0);
    }
    return -1;
}

// A statement is read up to its first ';', one with RESULT only up to its target.
void statement_warnings::look_at_end()
{
    const int end = behind_blanks_and_commas(ranges.isEmpty() ? 0 : ranges.last().end);
    if (end >= source.size()) return;
    if (source.at(end) != statement_end) {
        warn({end, source.lastIndexOf(statement_end)},
             tr("Hinter dem Setz Jeton fehlt der Strichpunkt, dieser Text wird nicht gelesen!"));
        return;
    }
    const int rest = behind_blanks_and_commas(end + 1);
    if (rest < source.size())
        warn({rest, source.size()},
             tr("Hinter dem ersten Strichpunkt wird nichts gelesen, dieser Text geht verloren!"));
}

// A message reaches to the last ')' of the statement, even when that belongs to a next statement.
void statement_warnings::look_at_message()
{
    static const QRegularExpression statement(QStringLiteral("^(SZ|IF|RESTART|STOP|MESSAGE)"),
                                              QRegularExpression::CaseInsensitiveOption);
    if (tokens.isEmpty() || !token_begins(tokens.size() - 1, "MESSAGE(")) return;
    const text_range token = ranges.last();
    const message_shape message = find_message(source, token.begin);
    if (!message.is_closed || message.begin != token.begin) return;
    const int rest = behind_blanks_and_commas(message.end);
    if (rest < token.end && statement.match(source.midRef(rest)).hasMatch())
        warn({rest, token.end},
             tr("Hinter der MESSAGE fehlt der Strichpunkt, dieser Text wird ein Teil von ihr!"));
}

void statement_warnings::look_at_restart()
{
    if (tokens.isEmpty()) return;
    const int last = tokens.size() - 1;
    const bool is_bare = last > 0 && token_is(last, "RESTART");
    if (is_bare || token_is(last, "RESTART(,)"))
        warn(ranges.last(),
             tr("%1 hat hier keine Wirkung, gemeint ist RESTART(N) oder RESTART(F)!")
                 .arg(tokens.last()));
}

void statement_warnings::look_at_bound()
{
    for (int index = 1; index + 1 < tokens.size(); ++index) {
        if (!token_is(index, "MAX") && !token_is(index, "MIN")) continue;
        if (token_begins(index - 1, "EI")) continue;
        warn({ranges.at(index).begin, ranges.at(index + 1).end},
             tr("%1 hat hier keine Wirkung, es begrenzt nur eine Änderung der Einheit wie EI1+1!")
                 .arg(tokens.at(index)));
    }
}

void statement_warnings::look_at_item_lists()
{
    if (tokens.contains(QLatin1String("RESULT")) || !tokens.contains(QLatin1String("SZ"))) return;
    for (int index = 1; index < tokens.size(); ++index) {
        const bool ends_list =
            index + 1 == tokens.size() || token_is(index + 1, "MAX") || token_is(index + 1, "MIN");
        if (!ends_list || token_is(index - 1, "MAX") || token_is(index - 1, "MIN")) continue;
        int place = ranges.at(index).end;
        while (place < source.size() && source.at(place).isSpace())
            ++place;
        if (place < source.size() && source.at(place) == comma)
            warn({place, place + 1}, tr("Die Aufzählung endet mit einem Komma!"));
    }
}

void statement_warnings::look_at_options()
{
    for (int index = 0; index < tokens.size(); ++index) {
        if (!token_begins(index, "STMAX(")) continue;
        const text_range token = ranges.at(index);
        int position = source.indexOf(u'(', token.begin) + 1;
        const QStringList options = options_of(tokens.at(index));
        for (const QString& option : options) {
            const int begin = behind_blanks_and_commas(position);
            if (option.isEmpty()) continue;
            position = end_of_token(source, begin, option);
            if (!option_acts(option))
                warn({begin, position}, tr("Die Option %1 hat keine Wirkung!").arg(option));
        }
    }
}

void statement_warnings::look_at_signals()
{
    for (int index = 0; index + 2 < tokens.size(); ++index) {
        if (!is_test(index) || !token_begins(index, "UZ")) continue;
        const QString condition = window_pieces(tokens.at(index)).value(1);
        const QString type = tokens.at(index + 2);
        if (!lacks_place_0(type)) continue;
        if (is_least_hit(condition) || holds_without_hits(condition))
            warn(ranges.at(index),
                 tr("UZ wählt hier immer den Platz 0, den es beim Jeton Typ %1 nicht gibt!")
                     .arg(type));
    }
}

// Of the tests of a chain the one is told that needs most.
void statement_warnings::look_at_numbers(const number_supply& supply)
{
    int most_needed = supply.fallen;
    int test = -1;
    for (int index = 1; index < tokens.size(); ++index) {
        if (!is_test(index)) continue;
        if (token_begins(index, "CO") || token_begins(index, "ST")) break;
        int needed = 0;
        if (token_begins(index, "GZ") || token_begins(index, "V")) {
            if (!token_begins(index + 2, "AG")) needed = numbers_looked_back(tokens.at(index));
        } else if (token_begins(index, "RZ") || token_begins(index, "UZ")) {
            const QStringList pieces = window_pieces(tokens.at(index));
            const QString condition = pieces.value(1);
            const bool holds_with_none =
                is_most_hit(condition) || is_least_hit(condition) || holds_without_hits(condition);
            if (supply.is_delayed || (supply.fallen == 0 && holds_with_none))
                needed = pieces.value(0).toInt();
        }
        if (needed <= most_needed) continue;
        most_needed = needed;
        test = index;
    }
    if (test < 0) return;
    warn(
        ranges.at(test),
        tr("Für %1 sind bei der ersten Ausführung zu wenige Coups gefallen (%2 von %3, Tipp: siehe "
           "Verzögerungsbedingungen)!")
            .arg(tokens.at(test))
            .arg(supply.fallen)
            .arg(most_needed));
}

bool statement_warnings::token_is(int index, const char* word) const
{
    return tokens.value(index).compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

bool statement_warnings::token_begins(int index, const char* word) const
{
    return tokens.value(index).startsWith(QLatin1String(word), Qt::CaseInsensitive);
}

bool statement_warnings::is_test(int index) const
{
    return index > 0 && token_is(index - 1, "IF");
}

int statement_warnings::behind_blanks_and_commas(int position) const
{
    while (position < source.size() &&
           (source.at(position).isSpace() || source.at(position) == comma))
        ++position;
    return position;
}

void statement_warnings::warn(const text_range& range, const QString& text)
{
    warnings.append({range, text});
}
