#ifndef MESSAGE_SHAPE_H
#define MESSAGE_SHAPE_H

#include <QString>
#include <QVector>

/// A stretch of a text, the end not included.
struct text_range {
    int begin = 0;
    int end = 0;
};

/// Where a `MESSAGE(...)` and the texts in its quotes stand.
struct message_shape {
    bool is_closed = false;    ///< false also when there is no message
    int begin = 0;             ///< of the word
    int opening = 0;           ///< the '('
    int end = 0;               ///< behind the ')' that closes it
    QVector<text_range> texts; ///< without their quotes; a quote without a partner opens no text
};

/// Looks for the first `MESSAGE(...)` from a place on. Behind one that is not closed there is none.
message_shape find_message(const QString& text, int from = 0);

#endif // MESSAGE_SHAPE_H
