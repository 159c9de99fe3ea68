#include "help_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

help_keys::help_keys(const help_table& table, QObject* parent)
    : QObject(parent)
    , pages(table)
{
    qApp->installEventFilter(this);
}

help_keys::~help_keys()
{
    qApp->removeEventFilter(this);
}

QString help_keys::page_for(const QObject* place) const
{
    for (; place; place = place->parent()) {
        const QString page = page_of_one(*place);
        if (!page.isEmpty()) return page;
    }
    return {};
}

QString help_keys::page_of_one(const QObject& place) const
{
    const QStringList offered = place.property("help_keys").toStringList();
    for (const QString& key : offered) {
        const QString page = pages.page_of(key);
        if (!page.isEmpty()) return page;
    }
    const QString page = pages.page_of(place.objectName());
    if (!page.isEmpty()) return page;
    for (const QMetaObject* type = place.metaObject(); type; type = type->superClass()) {
        const QString page_of_type = pages.page_of(QLatin1String(type->className()));
        if (!page_of_type.isEmpty()) return page_of_type;
    }
    return {};
}

// The shortcut of a menu must not take the key away first, since a menu does not know the place.
bool help_keys::eventFilter(QObject* watched, QEvent* event)
{
    const bool is_press = event->type() == QEvent::KeyPress;
    if (!is_press && event->type() != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
    if (!qobject_cast<QWidget*>(watched)) return false;
    event->accept();
    if (is_press && !key->isAutoRepeat()) emit help_wanted(page_for(watched));
    return true;
}
