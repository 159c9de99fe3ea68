#ifndef SIEVE_PATTERN_H
#define SIEVE_PATTERN_H

#include "letter_pairs.h"

#include <QRegExp>
#include <QString>
#include <QVector>

/**
 * One token pattern as the line sieve needs it: found anywhere in a line, without regard to case.
 * Built once and kept, for building a regular expression costs more than many searches. It keeps
 * the state of a search: one object per thread.
 */
class sieve_pattern
{
public:
    /// @param pattern  an entry of `system_pattern`; it must not match the empty text
    explicit sieve_pattern(const QString& pattern);

    /// False when a text with these letter pairs can't hold a match.
    bool may_occur_among(const letter_pairs& pairs) const;

    /// The first match as it stands in the text, empty without one.
    QString first_match(const QString& text) const;

    /// Takes every match out of the text. True when there was one. The time is linear in the
    /// length of the text.
    bool remove_from(QString& text) const;

private:
    struct extent {
        int begin; // -1 for none
        int end;   // behind the last character
    };

    extent next_match(const QString& text, int from) const;
    extent next_open_match(const QString& text, int from) const;

    QVector<letter_pairs> beginnings; // a match begins with one of them; empty: unknown
    QRegExp expression;               // of an open pattern the part in front of its body
    QRegExp body;                     // of an open pattern, empty otherwise
};

#endif // SIEVE_PATTERN_H
