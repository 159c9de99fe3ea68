#ifndef STATEMENT_WARNINGS_H
#define STATEMENT_WARNINGS_H

#include "message_shape.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

/// What an author hardly means, and where in the statement it stands.
struct statement_warning {
    text_range range;
    QString text;
};

/**
 * The numbers that have fallen when a statement is run for the first time.
 */
struct number_supply {
    int fallen = 0;
    bool is_delayed = false; ///< by the option `I` of `STMAX`
};

/**
 * Looks through a statement that compiles for what the language takes in silence.
 */
class statement_warnings
{
    Q_DECLARE_TR_FUNCTIONS(statement_warnings)

public:
    /// @param statement   its source, with the final ';'
    /// @param token_text  what it compiled to
    statement_warnings(const QString& statement, const QString& token_text);

    /// All warnings, for a statement that first runs with this supply of numbers.
    QVector<statement_warning> all(const number_supply& supply);

    /// The coups that the first `I` of the statement's options waits, 0 for `I(0)`; -1 without one.
    int delay() const;

private:
    void look_at_end();
    void look_at_message();
    void look_at_restart();
    void look_at_bound();
    void look_at_item_lists();
    void look_at_options();
    void look_at_signals();
    void look_at_numbers(const number_supply& supply);

    bool token_is(int index, const char* word) const;
    bool token_begins(int index, const char* word) const;
    bool is_test(int index) const;
    int behind_blanks_and_commas(int position) const;
    void warn(const text_range& range, const QString& text);

    const QString source;
    const QStringList tokens;
    QVector<text_range> ranges; // of the tokens in the source
    QVector<statement_warning> warnings;
};

#endif // STATEMENT_WARNINGS_H
