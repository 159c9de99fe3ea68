#ifndef SYSTEM_PATTERN_H
#define SYSTEM_PATTERN_H

#include <QObject>
#include <QStringList>

/**
 * The vocabulary of the system language: every token, once, as a regular expression.
 * The same lists sieve the lines of a file, cut a statement into tokens and colour the editor.
 * The patterns are text for `QRegExp` in `QRegExp::RegExp` syntax, to be matched without regard
 * to case unless a user of a list says otherwise. A tokenizer takes the first pattern of a list
 * that matches, so a longer form stands in front of the shorter one that it begins with.
 */
class system_pattern : public QObject
{
    Q_OBJECT

public:
    /// @param table_form  0 French, 1 American; with any other value there are no jeton patterns
    explicit system_pattern(int table_form);

    /// The shared object of the program, for the table that is set when it is first asked for; a
    /// later change of the table reaches it with the next start of the program. Thread-safe.
    static const system_pattern& instance();

    /// The table of these patterns, as it was given.
    int get_table_type() const { return table_type; }

    /// The four section keywords; the index is the section: 0 start, 1 win, 2 loss, 3 general.
    QStringList get_section_patterns() const { return section_patterns; }

    /// The jetons of the table and, last, the bare jeton types. 12 patterns.
    QStringList get_jeton_patterns() const { return jeton_patterns; }

    /// The forms that act and the forms that test. 21 patterns.
    QStringList get_argument_patterns() const { return argument_patterns; }

    /// The keywords, `RESTART` and `MESSAGE` with their forms. 14 patterns.
    QStringList get_keyword_patterns() const { return keyword_patterns; }

    /// A bet of the round before, `AG(n)`. 1 pattern.
    QStringList get_argument_number_patterns() const { return argument_number_patterns; }

    /// What only an American table has. 7 patterns.
    QStringList get_american_patterns() const { return american_patterns; }

    /// What only a French table has. 3 patterns.
    QStringList get_french_patterns() const { return french_patterns; }

    /// The arguments of `MESSAGE`. 7 patterns.
    QStringList get_message_patterns() const { return message_patterns; }

private:
    int table_type;
    QStringList section_patterns;
    QStringList jeton_patterns;
    QStringList argument_patterns;
    QStringList keyword_patterns;
    QStringList argument_number_patterns;
    QStringList american_patterns;
    QStringList french_patterns;
    QStringList message_patterns;
};

#endif // SYSTEM_PATTERN_H
