#include "completion_words.h"

#include "game_types.h"
#include "jetons.h"
#include "system_pattern.h"

#include <QRegExp>
#include <QVector>

#include <algorithm>

static QStringList language_words()
{
    // clang-format off
    return {
        "AL:", "GW:", "ST:", "VE:",
        "AND", "IF", "IN", "MAX", "MESSAGE", "MESSAGE OFF", "MESSAGE ON", "MIN", "NOT IN",
        "RESTART", "RESULT", "STOP", "SZ", "THEN",
        "AG", "CO", "EI", "GZ", "PT", "RZ", "ST", "STMAX", "UZ", "VZ",
        "CA", "CH", "DN", "DZ", "EC", "EN", "FI", "KL", "PL", "TP", "TS", "ZN",
    };
    // clang-format on
}

static QVector<QRegExp> built(const QStringList& patterns)
{
    QVector<QRegExp> expressions;
    for (const QString& pattern : patterns)
        expressions.append(QRegExp(pattern));
    return expressions;
}

static bool is_any_of(const QVector<QRegExp>& expressions, const QString& word)
{
    return std::any_of(expressions.cbegin(),
                       expressions.cend(),
                       [&word](const QRegExp& expression) { return expression.exactMatch(word); });
}

static QStringList all_jeton_names()
{
    QStringList names;
    for (int jeton = 0; jeton < jetons::LAST_JN; ++jeton)
        names.append(jetons::name(static_cast<jetons::jeton_names>(jeton)));
    for (int jeton = 0; jeton < jetons::LAST_ext_JN; ++jeton)
        names.append(jetons::name(static_cast<jetons::ext_jeton_names>(jeton)));
    return names;
}

QStringList completion_words(const system_pattern& patterns, int form)
{
    const QVector<QRegExp> all = built(patterns.get_jeton_patterns());
    const QVector<QRegExp> of_other_table =
        built(form == int(table_form::american) ? patterns.get_french_patterns()
                                                : patterns.get_american_patterns());
    QStringList words = language_words();
    for (const QString& name : all_jeton_names())
        if (is_any_of(all, name) && !is_any_of(of_other_table, name)) words.append(name);
    words.sort();
    words.removeDuplicates();
    return words;
}
