#include "statement_reader.h"

#include "system_pattern.h"
#include "system_play_argument.h"

#include <QStringList>

static bool begins(const QString& token, const char* word)
{
    return token.startsWith(QLatin1String(word), Qt::CaseInsensitive);
}

/// The tokens of a statement and how far they are read. Past the end every token is empty.
class statement_reader::token_cursor
{
public:
    explicit token_cursor(const QString& token_text)
        : tokens(token_text.split(QLatin1Char('|')))
    {
    }

    bool at_end() const { return position >= tokens.size(); }
    int place() const { return position; }
    int count() const { return tokens.size(); }
    QString at(int index) const { return tokens.value(index); }
    QString take() { return tokens.value(position++); }
    QString rest() const { return tokens.mid(position).join(QLatin1Char('|')); }

    /// Where the target of the last signal test stands, and which test that is.
    int signal_place = -1;
    int signal_index = -1;

private:
    QStringList tokens;
    int position = 0;
};

statement_reader::statement_reader(const system_pattern& patterns)
{
    const QStringList texts = patterns.get_jeton_patterns();
    for (const QString& text : texts) {
        jeton_patterns.append(QRegExp(text, Qt::CaseInsensitive, QRegExp::RegExp));
    }
}

statement_program statement_reader::read(const QString& token_text) const
{
    statement_program program;
    token_cursor tokens(token_text);
    // A consequence is a statement of its own, so the conditions of all of them form one chain.
    while (tokens.at(tokens.place()) == QLatin1String("IF")) {
        tokens.take();
        read_tests(program, tokens);
        if (tokens.at_end()) return program;
    }
    if (tokens.at(tokens.place()) == QLatin1String("SZ")) {
        tokens.take();
        read_steps(program, tokens);
        return program;
    }
    read_words(program, tokens.rest());
    return program;
}

/// Reads the tests of one condition up to its consequence, or to the end of the tokens.
void statement_reader::read_tests(statement_program& program, token_cursor& tokens) const
{
    for (;;) {
        test_step test = read_test(tokens);
        if (std::holds_alternative<signal_test>(test)) {
            tokens.signal_index = static_cast<int>(program.tests.size());
        }
        program.tests.push_back(std::move(test));
        if (tokens.at_end()) return;
        const QString next = tokens.take();
        if (begins(next, "AND")) tokens.take();
        if (begins(next, "THEN") || begins(next, "RESULT")) return;
        if (tokens.at_end()) return;
    }
}

test_step statement_reader::read_test(token_cursor& tokens)
{
    const QString token = tokens.take();
    if (begins(token, "GZ") || begins(token, "V")) return read_throw_test(token, tokens);
    if (begins(token, "RZ")) return read_count_test(token, tokens);
    if (begins(token, "UZ")) return read_signal_test(token, tokens);
    if (begins(token, "CO")) return system_play_counter::read_test(token);
    if (begins(token, "ST")) return system_play_steigerungstabelle::read_test(token);
    return faulty_step{tr("S: Unbekannte IF Aktion!"), token};
}

test_step statement_reader::read_throw_test(const QString& test_token, token_cursor& tokens)
{
    const bool is_inverted = begins(tokens.take(), "NOTIN");
    const QString jeton = tokens.take();
    if (begins(jeton, "AG")) {
        return argument_test{past_throw(test_token), read_argument_number(jeton), is_inverted};
    }
    return throw_test{past_throw(test_token), read_bet_target(jeton), is_inverted};
}

test_step statement_reader::read_count_test(const QString& test_token, token_cursor& tokens)
{
    const QString keyword = tokens.take();
    const QString jeton = tokens.take();
    if (!begins(keyword, "IN")) {
        const bool is_negation = keyword.compare(QLatin1String("NOTIN"), Qt::CaseInsensitive) == 0;
        const QString shown = is_negation ? QString(keyword).insert(3, QLatin1Char(' ')) : keyword;
        return faulty_step{tr("Schlüsselwort IN erwartet!"), shown};
    }
    return system_play_throw_compare::read_count_test(test_token, jeton);
}

test_step statement_reader::read_signal_test(const QString& test_token, token_cursor& tokens)
{
    constexpr int words_before_target = 2; // RESULT and SZ

    tokens.take(); // IN and NOT IN mean the same here
    const QString type = tokens.take();
    tokens.signal_place = tokens.place() + words_before_target;
    return system_play_signal_compare::read_test(test_token, type, tokens.at(tokens.signal_place));
}

void statement_reader::read_steps(statement_program& program, token_cursor& tokens) const
{
    program.end = statement_end::set;
    const int first = tokens.place();
    for (int position = first; position < tokens.count(); ++position) {
        set_step step;
        step.next = position + 1 - first;
        if (position == tokens.signal_place) {
            step.action = signal_action{tokens.signal_index};
        } else if (begins(tokens.at(position), "EI")) {
            bounded_unit_action unit = read_unit(tokens, position, step.next);
            unit.next_when_touched -= first;
            step.next -= first;
            step.action = std::move(unit);
        } else {
            step.action = read_action(tokens, position);
        }
        program.steps.push_back(std::move(step));
    }
}

/// A unit change with the bound behind it. When the bound was touched the action behind THEN SZ
/// follows, else the one behind that; `next` gets the latter.
bounded_unit_action statement_reader::read_unit(const token_cursor& tokens, int position, int& next)
{
    bounded_unit_action action;
    action.unit = system_play_einheiten::read_action(tokens.at(position));
    const QString keyword = tokens.at(position + 1);
    next = position + 1;
    if (keyword == QLatin1String("MAX")) action.bound = unit_bound::maximum;
    if (keyword == QLatin1String("MIN")) action.bound = unit_bound::minimum;
    if (action.bound == unit_bound::none) {
        action.next_when_touched = next;
        return action;
    }
    action.limit_token = tokens.at(position + 2);
    action.limit = action.limit_token.toInt(&action.limit_is_readable);
    next = position + 3;

    const bool has_then = tokens.at(next) == QLatin1String("THEN");
    const bool has_set = has_then && tokens.at(next + 1) == QLatin1String("SZ");
    action.next_when_touched = next + (has_then ? 1 : 0) + (has_set ? 1 : 0);
    next = action.next_when_touched + (has_set ? 1 : 0);
    return action;
}

set_action statement_reader::read_action(const token_cursor& tokens, int position) const
{
    const QString token = tokens.at(position);
    if (begins(token, "STMAX")) return options_action{token};
    if (begins(token, "CO")) return system_play_counter::read_action(token);
    if (begins(token, "ST")) return fill_action{token};
    if (begins(token, "PT")) return system_play_playtable::read_action(token);
    if (is_jeton_word(token)) return read_bet_target(token);
    return unknown_action{token};
}

/// True for what the vocabulary knows as a jeton, and for every word of its form, so that a place
/// that there is not ("EC00") draws its error.
bool statement_reader::is_jeton_word(const QString& token) const
{
    const auto is_letter = [](QChar character) {
        return character.toLatin1() != 0 && character.isLetter();
    };
    const auto is_digit = [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    };
    if (token.size() == 4 && is_letter(token.at(0)) && is_letter(token.at(1)) &&
        is_digit(token.at(2)) && is_digit(token.at(3))) {
        return true;
    }
    for (const QRegExp& pattern : jeton_patterns) {
        if (pattern.indexIn(token) == 0) return true;
    }
    return false;
}

/// The words that stand alone. Behind THEN a bare RESTART has no '|' and means nothing.
void statement_reader::read_words(statement_program& program, const QString& text)
{
    if (begins(text, "RESTART|") || begins(text, "RESTART(N)")) {
        program.end = statement_end::restart;
    } else if (begins(text, "RESTART(F)")) {
        program.end = statement_end::restart_full;
    } else if (begins(text, "STOP")) {
        program.end = statement_end::stop;
    } else if (begins(text, "MESSAGE")) {
        program.end = statement_end::message;
        program.message = text;
    }
}
