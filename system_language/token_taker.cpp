#include "token_taker.h"

#include "system_pattern.h"

static constexpr QChar blank = u' ';
static constexpr QChar comma = u',';
static constexpr QChar quote = u'\'';

// A pattern that is bound to the beginning never searches the rest of a long statement.
static QVector<QRegExp> bound_to_begin(const QStringList& patterns)
{
    QVector<QRegExp> expressions;
    for (const QString& pattern : patterns)
        expressions.append(QRegExp(u'^' + pattern, Qt::CaseInsensitive, QRegExp::RegExp));
    return expressions;
}

// The text that the first matching expression found, empty when none did.
static QStringView take_first(const QVector<QRegExp>& expressions, QStringView& text)
{
    const QString subject = QString::fromRawData(text.data(), int(text.size()));
    for (const QRegExp& expression : expressions) {
        if (expression.indexIn(subject) != 0) continue;
        const QStringView token = text.left(expression.matchedLength());
        text = text.mid(token.size());
        return token;
    }
    return {};
}

static QString without_blanks(QStringView token)
{
    return token.toString().remove(blank);
}

static QString without_blanks_outside_quotes(QStringView token)
{
    QString result;
    while (true) {
        const qsizetype opening = token.indexOf(quote);
        const qsizetype closing = opening < 0 ? -1 : token.indexOf(quote, opening + 1);
        if (closing < 0) return result + without_blanks(token);
        result += without_blanks(token.left(opening));
        result += token.mid(opening, closing + 1 - opening);
        token = token.mid(closing + 1);
    }
}

static QStringList take_one(const QVector<QRegExp>& expressions, QStringView& text)
{
    const QStringView token = take_first(expressions, text);
    if (token.isEmpty()) return {};
    return {without_blanks(token)};
}

token_taker::token_taker(const system_pattern& patterns)
    : arguments(bound_to_begin(patterns.get_argument_patterns()))
    , keywords(bound_to_begin(patterns.get_keyword_patterns()))
    , jetons(bound_to_begin(patterns.get_jeton_patterns()))
    , argument_numbers(bound_to_begin(patterns.get_argument_number_patterns()))
{
}

QStringList token_taker::take_items(QStringView& text) const
{
    QStringList items;
    while (true) {
        QStringList item = take_argument(text);
        if (item.isEmpty())
            item = take_jeton(text);
        else
            text = text.trimmed();
        items += item;
        if (!text.startsWith(comma)) return items;
        text = text.mid(1);
    }
}

QStringList token_taker::take_argument(QStringView& text) const
{
    return take_one(arguments, text);
}

QStringList token_taker::take_keyword(QStringView& text) const
{
    const QStringView token = take_first(keywords, text);
    if (token.isEmpty()) return {};
    return {without_blanks_outside_quotes(token)};
}

QStringList token_taker::take_jeton(QStringView& text) const
{
    return take_one(jetons, text);
}

QStringList token_taker::take_argument_number(QStringView& text) const
{
    return take_one(argument_numbers, text);
}
