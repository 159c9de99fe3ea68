#ifndef MENU_WINDOW_H
#define MENU_WINDOW_H

#include "game_types.h"
#include "load_file_types.h"

#include <QMainWindow>

#include <array>

class QAction;
class QMenu;
class setting;

/**
 * The menu entries that open a file in the editor: the load files in play and the system files
 * of the players. An entry with a file carries its name and can be chosen; a load file entry
 * without one is disabled, a system file entry without one is not there.
 *
 * It is a window only to hear of a change of language; it is never shown.
 */
class menu_Window : public QMainWindow
{
    Q_OBJECT

public:
    /// The actions of the load files, in the order of `general_loadfile::loadfile_type`.
    using load_file_actions = std::array<QAction*, general_loadfile::file_place_count>;

    /// Adds the entries of the players to the menu, as actions of the names "actionSystemdatei_1"
    /// to "actionSystemdatei_4". Menu, actions and settings must outlive the object.
    menu_Window(QMenu& system_files,
                const load_file_actions& load_files,
                const setting& settings,
                QWidget* parent = nullptr);

    /// The load files in play; what is beyond the nine places has no entry.
    void show_load_files(const QStringList& files);

    /// Takes the system files of the settings over. The entries live as long as the object, so
    /// this may be called while the menu is open.
    void show_system_files();

signals:
    void open_load_file(general_loadfile::loadfile_type load_file_type);
    void open_system_file(general_player::player_names player);

protected:
    void changeEvent(QEvent* event) override;

private:
    void create_system_actions();
    void show_texts();

    QMenu& system_menu;
    load_file_actions load_actions;
    std::array<QAction*, general_player::player_count> system_actions{};
    const setting& game_setting;
    QStringList load_paths;
};

#endif // MENU_WINDOW_H
