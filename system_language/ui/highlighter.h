#ifndef HIGHLIGHTER_H
#define HIGHLIGHTER_H

#include <QMap>
#include <QRegExp>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <limits>

/**
 * Colours the lines of a document by rules. Every rule colours all its matches, without regard to
 * case; rules act in the order of their names, and a later one overwrites an earlier one.
 *
 * Rules cost time, so in a long text only the lines on show need to be coloured: see
 * `set_blocks_on_show()`. The state that goes from line to line is always kept for all of them.
 */
class Highlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// Belongs to the document and colours all its lines.
    explicit Highlighter(QTextDocument* document);

    /// Adds a rule, or replaces the one of that name. Acts on lines that are coloured from now on.
    /// @param expression  for `QRegExp`, in `QRegExp::RegExp` syntax
    void set_rule(const QString& name, const QString& expression, const QTextCharFormat& format);

    /// In the order in which they act.
    QStringList rule_names() const { return rules.keys(); }

    /// From now on only these lines are coloured, which is done at once where it wasn't yet.
    /// Unit: block numbers, both included. Without a document nothing is coloured.
    void set_blocks_on_show(int first, int last);

protected:
    void highlightBlock(const QString& text) override;

    /// Whether the line at hand is one of those that get colours.
    bool current_block_is_on_show() const;

private:
    struct rule {
        QRegExp expression;
        QTextCharFormat format;
    };

    void apply(const rule& what, const QString& text);

    QMap<QString, rule> rules;
    int first_on_show = 0;
    int last_on_show = std::numeric_limits<int>::max();
};

#endif // HIGHLIGHTER_H
