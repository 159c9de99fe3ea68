#include "manual_html.h"

#include <QRegularExpression>

namespace
{

QString plain_text(QString html)
{
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    html.remove(tag);
    html.replace(QLatin1String("&lt;"), QLatin1String("<"));
    html.replace(QLatin1String("&gt;"), QLatin1String(">"));
    html.replace(QLatin1String("&quot;"), QLatin1String("\""));
    html.replace(QLatin1String("&amp;"), QLatin1String("&"));
    return html;
}

QString link_to(const manual::page& target, const QString& text)
{
    return QStringLiteral("<a href=\"%1.html\">%2</a>").arg(target.name, text.toHtmlEscaped());
}

/// The headings of the page that is read, under its entry in the contents.
QString places_of(const manual::set_page& read)
{
    QString list;
    for (const manual::heading& place : read.headings) {
        list += QStringLiteral("<li><a href=\"#%1\">%2</a></li>\n")
                    .arg(place.anchor, place.text.toHtmlEscaped());
    }
    return list.isEmpty() ? list : QStringLiteral("<ul class=\"places\">\n%1</ul>\n").arg(list);
}

QString contents_column(const QVector<manual::set_page>& pages, int index)
{
    QString list;
    for (int i = 0; i < pages.size(); ++i) {
        const manual::page& entry = pages[i].source;
        const bool is_read = i == index;
        list += QStringLiteral("<li class=\"level%1%2\">%3%4</li>\n")
                    .arg(entry.level)
                    .arg(is_read ? QStringLiteral(" here") : QString())
                    .arg(link_to(entry, entry.title), is_read ? places_of(pages[i]) : QString());
    }
    return QStringLiteral("<ul>\n%1</ul>\n").arg(list);
}

QString neighbour_links(const QVector<manual::set_page>& pages, int index)
{
    QString links;
    if (index > 0) {
        const manual::page& before = pages[index - 1].source;
        links += QStringLiteral("<span class=\"before\">") +
                 link_to(before, QStringLiteral("\u2190 ") + before.title) +
                 QStringLiteral("</span>\n");
    }
    if (index + 1 < pages.size()) {
        const manual::page& next = pages[index + 1].source;
        links += QStringLiteral("<span class=\"next\">") +
                 link_to(next, next.title + QStringLiteral(" \u2192")) +
                 QStringLiteral("</span>\n");
    }
    return links;
}

} // namespace

manual::set_page manual::finish_page(const page& source, const QString& body)
{
    static const QRegularExpression head(
        QStringLiteral("(?:<p><a id=\"([^\"]+)\"></a></p>\\s*)?<h([1-6])>(.*?)</h\\2>"));
    set_page finished;
    finished.source = source;
    int end = 0;
    int without_anchor = 0;
    for (auto match = head.globalMatch(body); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        QString id = found.captured(1);
        if (id.isEmpty()) id = QStringLiteral("s%1").arg(++without_anchor);
        const int level = found.captured(2).toInt();
        finished.body += body.mid(end, found.capturedStart() - end);
        finished.body += QStringLiteral("<h%1 id=\"%2\">").arg(level).arg(id) + found.captured(3) +
                         QStringLiteral("</h%1>").arg(level);
        end = found.capturedEnd();
        if (level == 2) finished.headings.append({level, plain_text(found.captured(3)), id});
    }
    finished.body += body.mid(end);
    return finished;
}

QString manual::browser_page(const QString& frame,
                             const QVector<set_page>& pages,
                             int index,
                             language spoken)
{
    const set_page& read = pages[index];
    QString html = frame;
    html.replace(QLatin1String("@language@"), folder_of(spoken));
    html.replace(QLatin1String("@title@"), read.source.title.toHtmlEscaped());
    html.replace(QLatin1String("@contents@"), contents_column(pages, index));
    html.replace(QLatin1String("@neighbours@"), neighbour_links(pages, index));
    return html.replace(QLatin1String("@body@"), read.body); // last: its text may hold a place
}

QString manual::leading_page(const QString& target)
{
    return QStringLiteral("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
                          "<meta http-equiv=\"refresh\" content=\"0; url=%1\">\n"
                          "<title>Zarvello</title>\n</head>\n"
                          "<body><p><a href=\"%1\">%1</a></p></body>\n</html>\n")
        .arg(target);
}

QString manual::name_of_leading_page(const QString& target)
{
    QString name = target;
    name.replace(QLatin1String(".html#"), QLatin1String("-"));
    return QStringLiteral("at-") + name + QStringLiteral(".html");
}
