#include "help_table.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

// Outside of any class and namespace, as the macro wants it.
static void init_resource_file()
{
    Q_INIT_RESOURCE(help_keys);
}

help_table help_table::of_the_program()
{
    init_resource_file();
    help_table table;
    const QDir folder(QStringLiteral(":/help_keys"));
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) table.read(QString::fromUtf8(file.readAll()));
    }
    return table;
}

bool help_table::read(const QString& lines)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\S+)\\s+([a-z0-9_]+)(#[A-Za-z0-9_-]+)?$"));
    for (const QString& text : lines.split(QLatin1Char('\n'))) {
        const QString line = text.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        const QRegularExpressionMatch match = form.match(line);
        if (!match.hasMatch()) return false;
        pages[match.captured(1)] = match.captured(2) + QStringLiteral(".html") + match.captured(3);
    }
    return true;
}

QString help_table::page_of(const QString& key) const
{
    return pages.value(key);
}

QStringList help_table::keys() const
{
    QStringList all = pages.keys();
    std::sort(all.begin(), all.end());
    return all;
}
