#include "cpp_highlighter.h"

#include "system_pattern.h"

static QTextCharFormat format_of(Qt::GlobalColor colour, QFont::Weight weight = QFont::Normal)
{
    QTextCharFormat format;
    format.setForeground(colour);
    format.setFontWeight(weight);
    return format;
}

// Names are compared as text: without the zeros in front 10 would act before 2.
static QString numbered(const QString& name, int number)
{
    return name.arg(number, 3, 10, QLatin1Char('0'));
}

CppHighlighter::CppHighlighter(const system_pattern& patterns, QTextDocument* document)
    : MultiLineCommentHighlighter(document)
    , pattern(&patterns)
{
    add_keywords(pattern->get_section_patterns(), format_of(Qt::darkYellow, QFont::Bold));
    add_keywords(pattern->get_jeton_patterns(), format_of(Qt::darkMagenta, QFont::Bold));
    add_keywords(pattern->get_argument_patterns(), format_of(Qt::black, QFont::Bold));
    add_keywords(pattern->get_keyword_patterns(), format_of(Qt::blue));

    const QTextCharFormat green = format_of(Qt::darkGreen);
    set_rule(QStringLiteral("02_SingleLineComment"), QStringLiteral("//[^\n]*"), green);
    set_rule(QStringLiteral("03_Quotation"), QStringLiteral("\".*\""), green);
}

void CppHighlighter::add_keywords(const QStringList& patterns, const QTextCharFormat& format)
{
    for (const QString& expression : patterns)
        set_rule(numbered(QStringLiteral("00_KeyWord_%1"), keyword_counter++), expression, format);
}

void CppHighlighter::add_error_rule(const QString& text)
{
    QTextCharFormat format = format_of(Qt::black, QFont::Bold);
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(Qt::red);
    set_rule(numbered(QStringLiteral("01_Error_%1"), error_rule_counter++),
             QRegExp::escape(text),
             format);
    rehighlight();
}
