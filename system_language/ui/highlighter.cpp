#include "highlighter.h"

#include <QTextBlock>
#include <QTextDocument>

namespace
{

// A longer line is no code that someone reads, and would keep the window waiting.
constexpr int longest_coloured_line = 4000;

/// Tells of a line that it has its colours.
class coloured_mark : public QTextBlockUserData
{
};

} // namespace

Highlighter::Highlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
{
}

void Highlighter::set_rule(const QString& name,
                           const QString& expression,
                           const QTextCharFormat& format)
{
    rules.insert(name, {QRegExp(expression, Qt::CaseInsensitive, QRegExp::RegExp), format});
}

void Highlighter::set_blocks_on_show(int first, int last)
{
    first_on_show = first;
    last_on_show = last;
    if (!document()) return;
    QTextBlock block = document()->findBlockByNumber(first);
    while (block.isValid() && block.blockNumber() <= last) {
        if (!block.userData()) rehighlightBlock(block);
        block = block.next();
    }
}

bool Highlighter::current_block_is_on_show() const
{
    const int number = currentBlock().blockNumber();
    return number >= first_on_show && number <= last_on_show;
}

void Highlighter::highlightBlock(const QString& text)
{
    setCurrentBlockState(0);
    if (!current_block_is_on_show()) {
        if (currentBlockUserData()) setCurrentBlockUserData(nullptr);
        return;
    }
    setCurrentBlockUserData(new coloured_mark); // the document owns it
    if (text.size() > longest_coloured_line) return;
    for (const rule& what : qAsConst(rules))
        apply(what, text);
}

void Highlighter::apply(const rule& what, const QString& text)
{
    int index = what.expression.indexIn(text);
    while (index >= 0) {
        const int length = what.expression.matchedLength();
        if (length == 0) return;
        setFormat(index, length, what.format);
        index = what.expression.indexIn(text, index + length);
    }
}
