#include "recent_files.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

static QString key_of(recent_files::kind of)
{
    switch (of) {
    case recent_files::kind::systems:
        return QStringLiteral("recent/systems");
    case recent_files::kind::load_files:
        return QStringLiteral("recent/load_files");
    case recent_files::kind::protocols:
        return QStringLiteral("recent/protocols");
    }
    return {};
}

static constexpr int longest_name = 60; // characters of a menu entry

/// A name may hold a tab, which begins the column of the keys, or a line feed.
static QString on_one_line(QString text)
{
    for (QChar& character : text) {
        if (!character.isPrint()) character = QLatin1Char(' ');
    }
    return text;
}

/// What is too long for a menu loses its middle; the ending tells the kind of the file.
static QString shortened(const QString& name)
{
    if (name.size() <= longest_name) return name;
    const int half = longest_name / 2;
    return name.left(half - 1) + QChar(0x2026) + name.right(half);
}

/// An ampersand would be taken for the mark of a key.
static QString menu_text(int place, const QString& path)
{
    QString name = shortened(on_one_line(QFileInfo(path).fileName()));
    name.replace('&', QLatin1String("&&"));
    return QStringLiteral("&") + QString::number(place) + QLatin1String("  ") + name;
}

recent_files::recent_files(QString ini_file, QObject* parent)
    : QObject(parent)
    , store(std::move(ini_file))
{
}

void recent_files::add(kind of, const QString& path)
{
    if (path.isEmpty()) return;
    const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QSettings settings(store, QSettings::IniFormat);
    QStringList list = settings.value(key_of(of)).toStringList();
    list.removeAll(file);
    list.prepend(file);
    settings.setValue(key_of(of), QStringList(list.mid(0, limit)));
}

QStringList recent_files::files(kind of) const
{
    const QSettings settings(store, QSettings::IniFormat);
    QStringList existing;
    const QStringList list = settings.value(key_of(of)).toStringList();
    for (const QString& file : list) {
        if (existing.size() < limit && QFileInfo(file).isFile()) existing.append(file);
    }
    return existing;
}

void recent_files::fill(QMenu& menu, kind of)
{
    // The menu above shows whether there is anything in this one.
    auto* const above = qobject_cast<QMenu*>(menu.parentWidget());
    connect(above ? above : &menu, &QMenu::aboutToShow, this, [this, &menu, of] {
        show_entries(menu, of);
    });
    show_entries(menu, of);
}

void recent_files::show_entries(QMenu& menu, kind of)
{
    menu.clear();
    const QStringList list = files(of);
    menu.menuAction()->setEnabled(!list.isEmpty());
    for (int i = 0; i < list.size(); ++i) {
        const QString& file = list.at(i);
        QAction* const entry = menu.addAction(menu_text(i + 1, file));
        entry->setToolTip(on_one_line(QDir::toNativeSeparators(file)));
        entry->setStatusTip(entry->toolTip());
        connect(entry, &QAction::triggered, this, [this, of, file] { emit chosen(of, file); });
    }
}
