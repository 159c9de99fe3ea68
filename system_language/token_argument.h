#ifndef TOKEN_ARGUMENT_H
#define TOKEN_ARGUMENT_H

#include <QString>
#include <QStringList>

/// What stands in the parentheses of a token: from the first "(" to a ")" at the end. Empty for a
/// token without "(".
inline QString token_argument(const QString& token)
{
    const int opening = token.indexOf(QLatin1Char('('));
    if (opening < 0) return {};
    QString argument = token.mid(opening + 1);
    if (argument.endsWith(QLatin1Char(')'))) argument.chop(1);
    return argument;
}

/// The pieces of a test over a window of numbers, such as "12" and ">=3" of "RZ(12/>=3)".
inline QStringList window_pieces(const QString& token)
{
    QString argument = token_argument(token);
    argument.remove(QLatin1Char(' '));
    argument.remove(QLatin1Char(')'));
    return argument.split(QLatin1Char('/'));
}

#endif // TOKEN_ARGUMENT_H
