#include "statement_compiler.h"

#include "system_pattern.h"

#include <QCoreApplication>

#include <utility>

static const QLatin1String token_separator("|");
static constexpr QChar statement_end = u';';
static constexpr int longest_bound = 6; // digits behind MAX and MIN
static constexpr int jeton_type_length = 2;
static constexpr int counter_target_length = 4;

namespace
{

// One pass over one statement. Every rule eats the text from the left and answers whether it held;
// a rule that failed has written the error.
class statement_scan
{
    Q_DECLARE_TR_FUNCTIONS(statement_compiler)

public:
    statement_scan(const token_taker& tokens_taker, QString statement, sys_result_info& outcome)
        : taker(tokens_taker)
        , source(std::move(statement))
        , text(source)
        , result(outcome)
    {
    }

    void compile();

private:
    bool statement();
    bool restart_statement();
    bool stop_statement();
    bool message_statement();
    bool end();

    bool set();
    bool bound();
    bool bound_value();
    bool bound_items();

    bool condition();
    bool test();
    bool next_link();
    bool consequence();
    bool action();
    bool signal_target();
    bool counter_target();

    bool starts_with(const char* word) const;
    void cut(qsizetype length);
    void append_word(const char* word);
    bool append_taken(const QStringList& taken);
    void close_single_word();
    bool test_is(const char* word) const;
    bool fail(const QString& message, int mark_mode = system_status::mark_token);
    bool fail_at(const QString& token, const QString& message);

    const token_taker& taker;
    const QString source; // kept here: what is compiled may be a field of the result
    QStringView text;     // what is left of the statement
    sys_result_info& result;
    QStringList earlier_links; // token texts of the links in front of the last AND
    QStringList tokens;        // of the link being compiled: IF, test, ...
};

void statement_scan::compile()
{
    result.status = system_status::all_right;
    result.error_text.clear();
    result.mark_mode = system_status::mark_token;
    result.mark_text.clear();
    statement();
    result.command_text = (earlier_links + tokens).join(token_separator);
}

bool statement_scan::statement()
{
    if (starts_with("SZ")) return set();
    if (starts_with("IF")) return condition();
    if (starts_with("RESTART")) return restart_statement();
    if (starts_with("STOP")) return stop_statement();
    if (starts_with("MESSAGE")) return message_statement();
    return fail(tr("Keine gültige Aktion gefunden!"), system_status::mark_line);
}

bool statement_scan::restart_statement()
{
    if (!append_taken(taker.take_keyword(text)))
        return fail(tr("S: Keine gültige Aktion gefunden!"), system_status::mark_line);
    close_single_word();
    return end();
}

bool statement_scan::stop_statement()
{
    append_word("STOP");
    close_single_word();
    return end();
}

bool statement_scan::message_statement()
{
    if (!append_taken(taker.take_keyword(text)))
        return fail(tr("Keine gültige Aktion gefunden!"), system_status::mark_line);
    close_single_word();
    return end();
}

bool statement_scan::end()
{
    if (text.startsWith(statement_end)) return true;
    return fail(tr("Strichpunkt erwartet!"));
}

bool statement_scan::set()
{
    append_word("SZ");
    if (!append_taken(taker.take_items(text))) return fail(tr("SZ Überprüfungsaktion erwartet!"));
    if (text.startsWith(statement_end)) return true;
    return bound();
}

bool statement_scan::bound()
{
    if (starts_with("MAX"))
        append_word("MAX");
    else if (starts_with("MIN"))
        append_word("MIN");
    else
        return fail(tr("Schlüsselwörter MAX,MIN oder ; erwartet!"), system_status::mark_line);
    if (!bound_value()) return false;
    if (text.startsWith(statement_end)) return true;
    return bound_items();
}

bool statement_scan::bound_value()
{
    int length = 0;
    while (length < text.size() && text.at(length).isDigit())
        ++length;
    const QString digits = text.left(length).toString();
    if (length < 1) return fail(tr("Zahl mit max. 6 Stellen erwartet!"));
    if (length > longest_bound) return fail_at(digits, tr("Zahl mit max. 6 Stellen erwartet!"));
    tokens.append(digits);
    cut(length);
    return true;
}

bool statement_scan::bound_items()
{
    if (!starts_with("THEN")) return fail(tr("Schlüsselwort THEN erwartet!"));
    append_word("THEN");
    if (!starts_with("SZ")) return fail(tr("Schlüsselwort SZ erwartet!"));
    append_word("SZ");
    if (!append_taken(taker.take_items(text))) return fail(tr("Aktion erwartet!"));
    if (text.startsWith(statement_end)) return true;
    return fail(tr("Strichpunkt erwartet!"), system_status::mark_line);
}

// A chain of tests is a loop: its length must not cost stack.
bool statement_scan::condition()
{
    while (true) {
        append_word("IF");
        if (!test()) return false;
        if (!starts_with("AND")) return consequence();
        if (!next_link()) return false;
    }
}

// The run compares with operators only: a bare compare value means '='.
static QString with_operator(QString test_token)
{
    const int second_part = test_token.indexOf(u'/') + 1;
    if (second_part > 0 && second_part < test_token.size() && test_token.at(second_part).isDigit())
        test_token.insert(second_part, u'=');
    return test_token;
}

bool statement_scan::test()
{
    QStringList taken = taker.take_argument(text);
    if (!append_taken(taken)) return fail(tr("IF Überprüfungsaktion erwartet!"));
    if (test_is("CO") || test_is("ST")) return true;
    if (test_is("RZ") || test_is("UZ")) tokens.last() = with_operator(tokens.last());

    taken = taker.take_keyword(text);
    if (taken.isEmpty()) return fail(tr("Schlüsselwörter IN oder NOT IN erwartet!"));
    cut(0);
    if (!taken.first().startsWith(QLatin1String("IN"), Qt::CaseInsensitive) &&
        !taken.first().startsWith(QLatin1String("NOTIN"), Qt::CaseInsensitive))
        return fail_at(taken.first(), tr("Schlüsselwörter IN oder NOT IN erwartet!"));
    append_taken(taken);

    taken = starts_with("AG") ? taker.take_argument_number(text) : taker.take_jeton(text);
    return append_taken(taken) || fail(tr("Jeton erwartet!"));
}

bool statement_scan::next_link()
{
    if (test_is("UZ")) return fail(tr("Schlüsselwort AND bei UZ nicht erlaubt!"));
    append_word("AND");
    if (!starts_with("IF")) return fail(tr("Schlüsselwort IF erwartet!"));
    earlier_links += tokens;
    tokens.clear();
    return true;
}

bool statement_scan::consequence()
{
    if (starts_with("THEN")) {
        if (test_is("UZ")) return fail(tr("Schlüsselwort THEN bei UZ nicht erlaubt!"));
        append_word("THEN");
        return action();
    }
    if (starts_with("RESULT")) {
        if (!test_is("UZ")) return fail(tr("Schlüsselwort RESULT nicht erlaubt!"));
        append_word("RESULT");
        return signal_target();
    }
    return fail(tr("Schlüsselwort AND oder THEN erwartet!"));
}

bool statement_scan::action()
{
    if (starts_with("SZ")) return set();
    if (starts_with("STOP")) {
        append_word("STOP");
        return end();
    }
    if ((starts_with("RESTART") || starts_with("MESSAGE")) &&
        append_taken(taker.take_keyword(text)))
        return end();
    return fail(tr("Keine gültige Aktion gefunden!"), system_status::mark_line);
}

// Nothing behind the target is looked at, not even its ';'.
bool statement_scan::signal_target()
{
    if (!starts_with("SZ")) return fail(tr("Schlüsselwort SZ erwartet!"));
    append_word("SZ");
    const QStringList jeton = taker.take_jeton(text);
    if (jeton.isEmpty()) return counter_target();
    cut(0);
    if (jeton.first().size() == jeton_type_length) return append_taken(jeton);
    return fail(tr("Direkte Jeton Setzung nicht erlaubt (nur Jeton Typen (EC,PL) sind gültig)!"));
}

// A counter without parentheses would be a target, but no pattern takes one.
bool statement_scan::counter_target()
{
    const QStringList counter = taker.take_argument(text);
    if (counter.isEmpty())
        return fail(tr("Keine gültige Aktion gefunden!"), system_status::mark_line);
    cut(0);
    if (counter.first().size() != counter_target_length ||
        !counter.first().startsWith(QLatin1String("CO"), Qt::CaseInsensitive))
        return fail(tr("Counter Syntax falsch!"));
    tokens += counter;
    cut(counter_target_length);
    return true;
}

bool statement_scan::starts_with(const char* word) const
{
    return text.startsWith(QLatin1String(word), Qt::CaseInsensitive);
}

// Drops what was read and the white space round the rest.
void statement_scan::cut(qsizetype length)
{
    text = text.mid(qMin(length, text.size())).trimmed();
}

// The word that was just seen, in upper case whatever the source has.
void statement_scan::append_word(const char* word)
{
    tokens.append(QLatin1String(word));
    cut(tokens.last().size());
}

// Tokens that are cut off already; false when there are none.
bool statement_scan::append_taken(const QStringList& taken)
{
    tokens += taken;
    cut(0);
    return !taken.isEmpty();
}

// A separator behind a statement of a single word lets the run tell it from the same word behind
// THEN. Joined with an empty token the word gets one.
void statement_scan::close_single_word()
{
    tokens.append(QString());
}

bool statement_scan::test_is(const char* word) const
{
    return tokens.value(1).startsWith(QLatin1String(word), Qt::CaseInsensitive);
}

bool statement_scan::fail(const QString& message, int mark_mode)
{
    result.status = system_status::error;
    result.error_text = message;
    result.mark_mode = mark_mode;
    result.mark_text = text.toString();
    return false;
}

bool statement_scan::fail_at(const QString& token, const QString& message)
{
    fail(message);
    result.mark_text = token;
    return false;
}

} // namespace

statement_compiler::statement_compiler(const system_pattern& patterns)
    : taker(patterns)
{
}

void statement_compiler::compile_statement(sys_result_info& result, const QString& text) const
{
    statement_scan(taker, text, result).compile();
}
