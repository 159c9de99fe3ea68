#include "manual_chm.h"

#include <QCollator>
#include <QLocale>
#include <QTextCodec>

#include <algorithm>

namespace
{

struct index_word {
    QString text;
    QString target;
};

QString sitemap_entry(const QString& name, const QString& target)
{
    return QStringLiteral("<LI><OBJECT type=\"text/sitemap\">\n"
                          "<param name=\"Name\" value=\"%1\">\n"
                          "<param name=\"Local\" value=\"%2\">\n</OBJECT>\n")
        .arg(name.toHtmlEscaped(), target);
}

QByteArray sitemap(const QString& entries)
{
    return manual::in_code_page(
        QStringLiteral("<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML>\n<HEAD></HEAD>\n"
                       "<BODY>\n<UL>\n%1</UL>\n</BODY>\n</HTML>\n")
            .arg(entries));
}

QString file_of(const manual::page& source)
{
    return source.name + QStringLiteral(".html");
}

} // namespace

QByteArray manual::in_code_page(const QString& text)
{
    const QTextCodec* codec = QTextCodec::codecForName("windows-1252");
    QByteArray bytes;
    for (const uint letter : text.toUcs4()) {
        const QString one = QString::fromUcs4(&letter, 1);
        if (codec->canEncode(one)) {
            bytes += codec->fromUnicode(one);
        } else {
            bytes += "&#" + QByteArray::number(letter) + ';';
        }
    }
    return bytes;
}

QByteArray manual::chm_page(const set_page& read, language spoken)
{
    return in_code_page(
        QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n"
                       "<meta http-equiv=\"Content-Type\" content=\"text/html; "
                       "charset=windows-1252\">\n"
                       "<title>%2</title>\n"
                       "<link rel=\"stylesheet\" href=\"style_chm.css\">\n</head>\n<body>\n")
            .arg(folder_of(spoken), read.source.title.toHtmlEscaped()) +
        read.body + QStringLiteral("</body>\n</html>\n"));
}

QByteArray manual::chm_project(const QString& target,
                               const QStringList& files,
                               const page& first,
                               language spoken)
{
    const QString language_line = spoken == language::german
                                      ? QStringLiteral("0x407 German (Germany)")
                                      : QStringLiteral("0x809 English (United Kingdom)");
    return in_code_page(QStringLiteral("[OPTIONS]\n"
                                       "Compatibility=1.1 or later\n"
                                       "Compiled file=%1\n"
                                       "Contents file=zarvello.hhc\n"
                                       "Index file=zarvello.hhk\n"
                                       "Default topic=%2\n"
                                       "Full-text search=Yes\n"
                                       "Language=%3\n"
                                       "Title=Zarvello\n"
                                       "\n[FILES]\n%4\n")
                            .arg(target, file_of(first), language_line, files.join('\n')));
}

QByteArray manual::chm_contents(const QVector<set_page>& pages)
{
    QString entries;
    int level = 0;
    for (const set_page& read : pages) {
        if (read.source.level > level) entries += QStringLiteral("<UL>\n");
        if (read.source.level < level) entries += QStringLiteral("</UL>\n");
        level = read.source.level;
        entries += sitemap_entry(read.source.title, file_of(read.source));
    }
    if (level > 0) entries += QStringLiteral("</UL>\n");
    return sitemap(entries);
}

QByteArray manual::chm_index(const QVector<set_page>& pages)
{
    QVector<index_word> words;
    for (const set_page& read : pages) {
        words.append({read.source.title, file_of(read.source)});
        for (const heading& place : read.headings)
            words.append({place.text, file_of(read.source) + QLatin1Char('#') + place.anchor});
    }
    const QCollator order{QLocale(QLocale::German)};
    std::stable_sort(
        words.begin(), words.end(), [&order](const index_word& one, const index_word& other) {
            return order.compare(one.text, other.text) < 0;
        });
    QString entries;
    for (const index_word& word : qAsConst(words))
        entries += sitemap_entry(word.text, word.target);
    return sitemap(entries);
}
