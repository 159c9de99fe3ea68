#include "message_shape.h"

#include <QRegularExpression>

static constexpr QChar quote = u'\'';

static message_shape read_message(const QString& text, int begin, int opening)
{
    message_shape message;
    message.begin = begin;
    message.opening = opening;
    int depth = 0;
    bool quotes_are_paired = true;
    for (int index = opening; index < text.size(); ++index) {
        const QChar character = text.at(index);
        if (character == quote && quotes_are_paired) {
            const int closing = text.indexOf(quote, index + 1);
            quotes_are_paired = closing >= 0;
            if (!quotes_are_paired) continue;
            message.texts.append({index + 1, closing});
            index = closing;
        } else if (character == u'(') {
            ++depth;
        } else if (character == u')' && --depth == 0) {
            message.is_closed = true;
            message.end = index + 1;
            return message;
        }
    }
    return {};
}

message_shape find_message(const QString& text, int from)
{
    static const QRegularExpression beginning(QStringLiteral("\\bMESSAGE *\\("),
                                              QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = beginning.match(text, from);
    if (!match.hasMatch()) return {};
    return read_message(text, match.capturedStart(), match.capturedEnd() - 1);
}
