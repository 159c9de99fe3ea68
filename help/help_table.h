#ifndef HELP_TABLE_H
#define HELP_TABLE_H

#include <QHash>
#include <QString>
#include <QStringList>

/**
 * What F1 opens: a page of the manual for each key. A key is the class name or the object name of
 * a window or a part of it, or "statement:CO" for a word of the betting language. The table is
 * compiled in from the files keys*.txt beside the pages; a line is `KEY PAGE` or
 * `KEY PAGE#ANCHOR`, an empty line and one that begins with '#' say nothing.
 */
class help_table
{
public:
    /// The table of the program.
    static help_table of_the_program();

    /// Reads lines; a key that comes again takes its later page.
    /// @return false if a line has another form; the lines before it are taken
    bool read(const QString& lines);

    /// "page.html" or "page.html#anchor", empty for a key that is not in the table.
    QString page_of(const QString& key) const;

    /// All keys, sorted.
    QStringList keys() const;

private:
    QHash<QString, QString> pages;
};

#endif // HELP_TABLE_H
