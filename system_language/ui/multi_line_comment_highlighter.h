#ifndef MULTI_LINE_COMMENT_HIGHLIGHTER_H
#define MULTI_LINE_COMMENT_HIGHLIGHTER_H

#include "highlighter.h"

/**
 * Colours comments that may run over several lines, over whatever the rules coloured. A line that
 * ends inside a comment has the block state 1, any other 0.
 */
class MultiLineCommentHighlighter : public Highlighter
{
    Q_OBJECT

public:
    explicit MultiLineCommentHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;

private:
    QRegExp comment_start;
    QRegExp comment_end;
    QTextCharFormat comment_format;
};

#endif // MULTI_LINE_COMMENT_HIGHLIGHTER_H
