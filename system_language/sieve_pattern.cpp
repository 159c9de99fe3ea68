#include "sieve_pattern.h"

#include <QStringList>

static const QLatin1String word_boundary("\\b");
static const QLatin1String closing_token("[)]");
static constexpr QChar closing = u')';

static bool is_capital(QChar character)
{
    return character >= QLatin1Char('A') && character <= QLatin1Char('Z');
}

static bool is_quantifier(QChar character)
{
    return QStringLiteral("*+?{").contains(character);
}

// The letters that stand at the front of a part of a pattern and are matched one by one.
static QString leading_letters(const QString& part)
{
    int length = 0;
    while (length < part.size() && is_capital(part.at(length)))
        ++length;
    if (length > 0 && length < part.size() && is_quantifier(part.at(length))) --length;
    return part.left(length);
}

// The alternatives with which a match can begin: "\bIF\b" gives IF, "\b(GS|KS)\b" gives GS and KS.
// Empty when the pattern has another form.
static QVector<letter_pairs> beginnings_of(const QString& pattern)
{
    if (!pattern.startsWith(word_boundary)) return {};
    QString part = pattern.mid(word_boundary.size());
    if (part.startsWith(u'(')) part = part.mid(1, part.indexOf(closing) - 1);
    QVector<letter_pairs> beginnings;
    for (const QString& alternative : part.split(u'|')) {
        const QString letters = leading_letters(alternative);
        if (letters.isEmpty()) return {};
        beginnings.append(letter_pairs(letters));
    }
    return beginnings;
}

static QRegExp any_case(const QString& pattern)
{
    return QRegExp(pattern, Qt::CaseInsensitive, QRegExp::RegExp);
}

// An open pattern ends in a body that runs on to the last ')' that it can reach: ".*[)]" or a class
// that holds the ')' itself. Gives the start of that body, -1 for every other pattern.
static int open_body_begin(const QString& pattern)
{
    if (!pattern.endsWith(u'*' + closing_token)) return -1;
    const int body_end = pattern.size() - closing_token.size() - 1;
    if (pattern.at(body_end - 1) == u'.') return body_end - 1;
    const int body_begin = pattern.lastIndexOf(u'[', body_end - 1);
    const QStringRef body = pattern.midRef(body_begin, body_end - body_begin);
    return body.endsWith(u']') && body.contains(closing) ? body_begin : -1;
}

sieve_pattern::sieve_pattern(const QString& pattern)
    : beginnings(beginnings_of(pattern))
    , expression(any_case(pattern))
{
    const int body_begin = open_body_begin(pattern);
    if (body_begin < 0) return;
    expression = any_case(pattern.left(body_begin));
    body = any_case(u'^' + pattern.mid(body_begin).chopped(closing_token.size()));
}

bool sieve_pattern::may_occur_among(const letter_pairs& pairs) const
{
    if (beginnings.isEmpty()) return true;
    for (const letter_pairs& beginning : beginnings)
        if (pairs.hold(beginning)) return true;
    return false;
}

QString sieve_pattern::first_match(const QString& text) const
{
    const extent match = next_match(text, 0);
    return match.begin < 0 ? QString() : text.mid(match.begin, match.end - match.begin);
}

bool sieve_pattern::remove_from(QString& text) const
{
    QString rest;
    int kept_from = 0;
    for (extent match = next_match(text, 0); match.begin >= 0;
         match = next_match(text, match.end)) {
        rest += text.midRef(kept_from, match.begin - kept_from);
        kept_from = match.end;
    }
    if (kept_from == 0) return false;
    rest += text.midRef(kept_from);
    text = rest;
    return true;
}

sieve_pattern::extent sieve_pattern::next_match(const QString& text, int from) const
{
    if (!body.isEmpty()) return next_open_match(text, from);
    const int begin = expression.indexIn(text, from);
    return {begin, begin + expression.matchedLength()};
}

// As one expression an open pattern would read on to the end of the line behind every beginning.
// Here a body that holds no ')' is read once, since no later beginning within it can end either.
sieve_pattern::extent sieve_pattern::next_open_match(const QString& text, int from) const
{
    while (true) {
        const int begin = expression.indexIn(text, from);
        if (begin < 0) return {-1, -1};
        const int body_begin = begin + expression.matchedLength();
        body.indexIn(text, body_begin, QRegExp::CaretAtOffset);
        const QStringView read = QStringView(text).mid(body_begin, body.matchedLength());
        const int last = int(read.lastIndexOf(closing));
        if (last >= 0) return {begin, body_begin + last + 1};
        from = body_begin + body.matchedLength();
    }
}
