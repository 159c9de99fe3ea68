#ifndef CPP_HIGHLIGHTER_H
#define CPP_HIGHLIGHTER_H

#include "multi_line_comment_highlighter.h"

class system_pattern;

/// Colours the system language: sections, jetons, arguments, keywords, comments and quotations.
class CppHighlighter : public MultiLineCommentHighlighter
{
    Q_OBJECT

public:
    /// The patterns must outlive the object.
    CppHighlighter(const system_pattern& patterns, QTextDocument* document);

    /// Underlines a text in red wherever it stands, from now on.
    void add_error_rule(const QString& text);

private:
    void add_keywords(const QStringList& patterns, const QTextCharFormat& format);

    const system_pattern* pattern;
    int keyword_counter = 0;
    int error_rule_counter = 0;
};

#endif // CPP_HIGHLIGHTER_H
