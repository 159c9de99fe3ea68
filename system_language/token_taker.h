#ifndef TOKEN_TAKER_H
#define TOKEN_TAKER_H

#include <QRegExp>
#include <QStringList>
#include <QVector>

class system_pattern;

/**
 * Cuts tokens off the front of a statement.
 * Every operation takes the text by reference, moves it behind what it took, and returns the tokens
 * without their blanks. An empty list means that nothing stood at the very beginning of the text;
 * the text is then as it was, save for commas that `take_items` had passed.
 * The regular expressions are built once. They keep the state of a match: one object per thread.
 */
class token_taker
{
public:
    explicit token_taker(const system_pattern& patterns);

    /// The items of a set statement. The list ends at the first thing that does not stand directly
    /// behind its comma; a blank in front of the comma is allowed behind an action form only.
    QStringList take_items(QStringView& text) const;

    /// One action or test form.
    QStringList take_argument(QStringView& text) const;

    /// One keyword. The blanks between a pair of quotes stay.
    QStringList take_keyword(QStringView& text) const;

    /// One jeton or jeton type.
    QStringList take_jeton(QStringView& text) const;

    /// One `AG(n)`.
    QStringList take_argument_number(QStringView& text) const;

private:
    QVector<QRegExp> arguments;
    QVector<QRegExp> keywords;
    QVector<QRegExp> jetons;
    QVector<QRegExp> argument_numbers;
};

#endif // TOKEN_TAKER_H
