#include "manual_source.h"

#include <QFile>
#include <QRegularExpression>

namespace
{

const QRegularExpression& option_form()
{
    static const QRegularExpression form(QStringLiteral("(\\w+)(?:=\"([^\"]*)\")?"));
    return form;
}

QString first_heading(const QString& markdown)
{
    const QString first_line = markdown.section(QLatin1Char('\n'), 0, 0);
    return first_line.startsWith(QLatin1String("# ")) ? first_line.mid(2).trimmed() : QString();
}

/// Goes through a page line by line and fills its parts.
class page_scanner
{
public:
    manual::page_parts scan(const QString& markdown)
    {
        const QStringList lines = markdown.split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            ++number;
            if (is_in_block) {
                take_block_line(line);
            } else if (line.startsWith(QLatin1String("```"))) {
                begin_block(line.mid(3).trimmed());
            } else {
                take_text_line(line);
            }
        }
        return parts;
    }

private:
    void begin_block(const QString& info)
    {
        is_in_block = true;
        manual::block begun;
        begun.line = number;
        begun.kind = info.section(QLatin1Char(' '), 0, 0);
        begun.options = info.section(QLatin1Char(' '), 1);
        parts.blocks.append(begun);
    }

    void take_block_line(const QString& line)
    {
        if (line.startsWith(QLatin1String("```"))) {
            is_in_block = false;
        } else {
            parts.blocks.last().text += line + QLatin1Char('\n');
        }
    }

    void take_text_line(const QString& line)
    {
        static const QRegularExpression anchor(QStringLiteral("<a id=\"([^\"]+)\"></a>"));
        static const QRegularExpression head(QStringLiteral("^(#{1,6}) +(.*)$"));
        static const QRegularExpression link(QStringLiteral("\\]\\(([^)\\s]+)\\)"));
        static const QRegularExpression code(QStringLiteral("`[^`]*`"));

        QString line_anchor;
        for (auto match = anchor.globalMatch(line); match.hasNext();) {
            const QRegularExpressionMatch found = match.next();
            parts.anchors.append(found.captured(1));
            if (found.captured() == line.trimmed()) line_anchor = found.captured(1);
        }
        if (const auto match = head.match(line); match.hasMatch()) {
            parts.headings.append(
                {match.captured(1).size(), match.captured(2).trimmed(), waiting_anchor});
        }
        if (!line_anchor.isEmpty() || !line.trimmed().isEmpty()) waiting_anchor = line_anchor;
        QString text = line;
        text.remove(code);
        for (auto match = link.globalMatch(text); match.hasNext();)
            parts.links.append({number, match.next().captured(1)});
    }

    manual::page_parts parts;
    QString waiting_anchor;
    int number = 0;
    bool is_in_block = false;
};

} // namespace

QString manual::folder_of(language spoken)
{
    return spoken == language::german ? QStringLiteral("de") : QStringLiteral("en");
}

manual::contents manual::read_contents(const QDir& sources, language spoken)
{
    static const QRegularExpression form(QStringLiteral("^([01]) ([a-z0-9_]+)$"));
    contents read;
    const QString list = read_text(sources.filePath(QStringLiteral("contents.txt")));
    for (const QString& text : list.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = form.match(text.trimmed());
        if (!match.hasMatch()) {
            read.fault = QStringLiteral("contents.txt: not a page: ") + text;
            return read;
        }
        const QString file =
            folder_of(spoken) + QLatin1Char('/') + match.captured(2) + QStringLiteral(".md");
        const QString title = first_heading(read_text(sources.filePath(file)));
        if (title.isEmpty()) {
            read.fault = file + QStringLiteral(": no page with a title in its first line");
            return read;
        }
        read.pages.append({match.captured(1).toInt(), match.captured(2), title});
    }
    if (read.pages.isEmpty()) read.fault = QStringLiteral("contents.txt: names no page");
    return read;
}

QString manual::block::option(const QString& name) const
{
    for (auto match = option_form().globalMatch(options); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        if (found.captured(1) == name) return found.captured(2);
    }
    return {};
}

bool manual::block::has_option(const QString& name) const
{
    for (auto match = option_form().globalMatch(options); match.hasNext();) {
        if (match.next().captured(1) == name) return true;
    }
    return false;
}

manual::page_parts manual::parts_of(const QString& markdown)
{
    return page_scanner().scan(markdown);
}

QString manual::read_text(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll());
}
