#include "editor_window.h"
#include "ui_editor_window.h"

#include <QRegularExpression>
#include <QTextBlock>

namespace
{

constexpr int lines_of_a_statement = 20; // that are looked through at most

QString without_comment(const QString& line)
{
    const int comment = line.indexOf(QLatin1String("//"));
    return comment < 0 ? line : line.left(comment);
}

bool belongs_to_word(QChar letter)
{
    return letter.isLetterOrNumber() || letter == QLatin1Char(':') || letter == QLatin1Char(';');
}

/// The text before the cursor, the word under it included, as far as its statement can reach.
QString text_before(const QTextCursor& cursor)
{
    const QString line = cursor.block().text();
    int end = cursor.positionInBlock();
    while (end < line.size() && belongs_to_word(line.at(end)))
        ++end;
    QString text = without_comment(line.left(end));
    QTextBlock block = cursor.block().previous();
    for (int i = 0; i < lines_of_a_statement && block.isValid(); ++i, block = block.previous())
        text.prepend(without_comment(block.text()) + QLatin1Char(' '));
    return text;
}

/// The last statement of a text, or the name of the section with its colon.
QString last_statement(QString text)
{
    static const QRegularExpression long_comment(QStringLiteral("/\\*.*?(?:\\*/|$)"));
    static const QRegularExpression section(QStringLiteral("\\b(?:ST|GW|VE|AL):$"),
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression begin(QStringLiteral("^.*(?:;|\\b(?:ST|GW|VE|AL):)"),
                                          QRegularExpression::CaseInsensitiveOption);
    text = text.remove(long_comment).trimmed();
    if (const auto match = section.match(text); match.hasMatch()) return match.captured();
    while (text.endsWith(QLatin1Char(';')))
        text.chop(1);
    return text.remove(begin);
}

/// A word of the language as keys of the help: "STMAX", or "CO01" and "CO".
void add_keys_of(const QString& word, QStringList& keys)
{
    static const QRegularExpression letters(QStringLiteral("^[A-Z]+"));
    const QString upper = word.toUpper();
    for (const QString& name : {upper, letters.match(upper).captured()})
        keys.append(QStringLiteral("statement:") + name);
}

} // namespace

QStringList editor_window::help_keys() const
{
    if (!is_system_text()) return {};
    static const QRegularExpression word(QStringLiteral("[A-Za-z]\\w*:?"));
    const QString statement = last_statement(text_before(ui->editor->textCursor()));
    QStringList words;
    for (auto match = word.globalMatch(statement); match.hasNext();)
        words.prepend(match.next().captured());
    QStringList keys;
    for (const QString& one : qAsConst(words))
        add_keys_of(one, keys);
    keys.removeDuplicates();
    return keys;
}
