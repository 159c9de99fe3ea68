#include "multi_line_comment_highlighter.h"

static constexpr int inside_comment = 1;

MultiLineCommentHighlighter::MultiLineCommentHighlighter(QTextDocument* document)
    : Highlighter(document)
    , comment_start(QStringLiteral(R"(/\*)"))
    , comment_end(QStringLiteral(R"(\*/)"))
{
    comment_format.setForeground(Qt::darkGreen);
}

void MultiLineCommentHighlighter::highlightBlock(const QString& text)
{
    Highlighter::highlightBlock(text);
    const bool is_on_show = current_block_is_on_show();
    int start = previousBlockState() == inside_comment ? 0 : comment_start.indexIn(text);
    while (start >= 0) {
        const int end = comment_end.indexIn(text, start);
        const int behind = end < 0 ? text.size() : end + comment_end.matchedLength();
        if (is_on_show) setFormat(start, behind - start, comment_format);
        if (end < 0) {
            setCurrentBlockState(inside_comment);
            return;
        }
        start = comment_start.indexIn(text, behind);
    }
}
