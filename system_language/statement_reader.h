#ifndef STATEMENT_READER_H
#define STATEMENT_READER_H

#include "statement_program.h"

#include <QCoreApplication>
#include <QRegExp>
#include <QVector>

class system_pattern;

/**
 * Works out what a token text means. Any text is taken: a missing token is an empty one, and the
 * rule that wants it reports its own error when it runs.
 */
class statement_reader
{
    Q_DECLARE_TR_FUNCTIONS(statement_reader)

public:
    explicit statement_reader(const system_pattern& patterns);

    statement_program read(const QString& token_text) const;

private:
    class token_cursor;

    void read_tests(statement_program& program, token_cursor& tokens) const;
    void read_steps(statement_program& program, token_cursor& tokens) const;
    static void read_words(statement_program& program, const QString& text);
    static test_step read_test(token_cursor& tokens);
    static test_step read_throw_test(const QString& test_token, token_cursor& tokens);
    static test_step read_count_test(const QString& test_token, token_cursor& tokens);
    static test_step read_signal_test(const QString& test_token, token_cursor& tokens);
    set_action read_action(const token_cursor& tokens, int position) const;
    static bounded_unit_action read_unit(const token_cursor& tokens, int position, int& next);
    bool is_jeton_word(const QString& token) const;

    QVector<QRegExp> jeton_patterns;
};

#endif // STATEMENT_READER_H
