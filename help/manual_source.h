#ifndef MANUAL_SOURCE_H
#define MANUAL_SOURCE_H

#include <QDir>
#include <QString>
#include <QStringList>
#include <QVector>

/// The manual as it is written: help/contents.txt names its pages, help/de/ and help/en/ hold the
/// text of each in Markdown.
namespace manual
{

enum class language { german, english };

/// "de" or "en": the folder of a language.
QString folder_of(language spoken);

/// A page in the order of reading.
struct page {
    int level = 0; ///< 0 stands by itself, 1 belongs to the page of level 0 before it
    QString name;  ///< of its file, without ".md"
    QString title;
};

struct contents {
    QVector<page> pages;
    QString fault; ///< empty if every page could be read
};

/// Reads the list of pages and the title of each, which is its first line.
contents read_contents(const QDir& sources, language spoken);

/// A heading with the anchor that stands before it, if one does.
struct heading {
    int level = 1;
    QString text;
    QString anchor;
};

/// A block of code between fences.
struct block {
    int line = 0;    ///< of its first fence, from 1
    QString kind;    ///< first word behind the fence: "syf", "text", "protocol"
    QString options; ///< what stands behind the kind
    QString text;    ///< with a line feed at the end of each line

    /// The text of NAME="text"; empty if the option is not there.
    QString option(const QString& name) const;
    /// True if the option is there, with a text or without.
    bool has_option(const QString& name) const;
};

struct link {
    int line = 0;
    QString target; ///< as it is written
};

/// What is found in a page without setting it.
struct page_parts {
    QVector<heading> headings;
    QStringList anchors;
    QVector<link> links; ///< pictures too
    QVector<block> blocks;
};

page_parts parts_of(const QString& markdown);

/// A text file in UTF-8; a null text if it can't be read.
QString read_text(const QString& path);

} // namespace manual

#endif // MANUAL_SOURCE_H
