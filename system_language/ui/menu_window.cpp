#include "menu_window.h"

#include "setting.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QMenu>

/// A text with the name of a file behind it; an "&" of the name is no mnemonic.
static QString entry_text(const QString& text, const QString& path)
{
    if (path.isEmpty()) return text;
    QString name = QFileInfo(path).fileName();
    name.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return text + QStringLiteral(" (") + name + QLatin1Char(')');
}

menu_Window::menu_Window(QMenu& system_files,
                         const load_file_actions& load_files,
                         const setting& settings,
                         QWidget* parent)
    : QMainWindow(parent)
    , system_menu(system_files)
    , load_actions(load_files)
    , game_setting(settings)
{
    for (std::size_t place = 0; place < load_actions.size(); ++place) {
        const auto type = static_cast<general_loadfile::loadfile_type>(place);
        connect(load_actions[place], &QAction::triggered, this, [this, type] {
            emit open_load_file(type);
        });
    }
    create_system_actions();
    show_load_files({});
    show_system_files();
}

void menu_Window::create_system_actions()
{
    for (std::size_t i = 0; i < system_actions.size(); ++i) {
        const auto player = static_cast<general_player::player_names>(i);
        auto* const action = new QAction(this);
        action->setObjectName(QStringLiteral("actionSystemdatei_%1").arg(player + 1));
        connect(
            action, &QAction::triggered, this, [this, player] { emit open_system_file(player); });
        system_menu.addAction(action);
        system_actions[i] = action;
    }
}

void menu_Window::show_load_files(const QStringList& files)
{
    load_paths = files;
    for (std::size_t place = 0; place < load_actions.size(); ++place)
        load_actions[place]->setEnabled(!load_paths.value(static_cast<int>(place)).isEmpty());
    show_texts();
}

void menu_Window::show_system_files()
{
    bool has_file = false;
    for (std::size_t i = 0; i < system_actions.size(); ++i) {
        const auto player = static_cast<general_player::player_names>(i);
        const bool is_there = !game_setting.s_user_sys_file(player).isEmpty();
        system_actions[i]->setVisible(is_there);
        has_file = has_file || is_there;
    }
    system_menu.setEnabled(has_file);
    show_texts();
}

void menu_Window::show_texts()
{
    for (std::size_t place = 0; place < load_actions.size(); ++place) {
        const int number = static_cast<int>(place);
        const QString text = number == general_loadfile::MAIN_LOADFILE
                                 ? tr("Hauptladedatei")
                                 : tr("Folgeladedatei %1").arg(number);
        load_actions[place]->setText(entry_text(text, load_paths.value(number)));
    }
    for (std::size_t i = 0; i < system_actions.size(); ++i) {
        const auto player = static_cast<general_player::player_names>(i);
        system_actions[i]->setText(
            entry_text(tr("Spieler %1").arg(player + 1), game_setting.s_user_sys_file(player)));
    }
}

// Posted, since the form that owns the actions gives them its plain texts in the same round of
// events, before or after this one.
void menu_Window::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    QMetaObject::invokeMethod(this, &menu_Window::show_texts, Qt::QueuedConnection);
}
