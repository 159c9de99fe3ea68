#include "editor_window.h"
#include "mainwindow.h"
#include "menu_window.h"
#include "numberstorage.h"
#include "players_control.h"
#include "setting.h"
#include "systemgame_monitor.h"
#include "systemspiel_dialog.h"
#include "ui_mainwindow.h"
#include "window_places.h"

#include <QFileInfo>

void MainWindow::create_monitors()
{
    const std::array<QAction*, general_player::player_count> actions = {
        ui->actionSysMonitor_1,
        ui->actionSysMonitor_2,
        ui->actionSysMonitor_3,
        ui->actionSysMonitor_4,
    };
    for (std::size_t i = 0; i < monitors.size(); ++i) {
        auto* monitor = new systemgame_monitor(
            static_cast<player_names>(i), players.table(), game_setting, this);
        monitors[i] = monitor;
        connect(this,
                &MainWindow::distribute_status_change_to_monitor,
                monitor,
                &systemgame_monitor::updatePlayerStatus);
        connect(monitor,
                &systemgame_monitor::select_number_by_user_trigger,
                this,
                &MainWindow::select_number_by_user_is_triggerd);
        connect(this,
                &MainWindow::distribute_selected_manual_number,
                monitor,
                &systemgame_monitor::display_selected_manual_number);
        connect(monitor,
                &systemgame_monitor::doubleMouseEventTriggerd,
                this,
                &MainWindow::wheel_right_clicked);
        connect(this,
                &MainWindow::display_set_on_monitor,
                monitor,
                &systemgame_monitor::addSet_to_display);
        connect(this, &MainWindow::start_throw, monitor, &systemgame_monitor::wheel_direct_started);
        connect(this,
                &MainWindow::system_monitor_action,
                monitor,
                &systemgame_monitor::addAction_to_display);
        connect(this,
                &MainWindow::dialog_to_scale,
                monitor,
                &systemgame_monitor::modify_window_based_on_scale);
        connect(actions[i], &QAction::triggered, monitor, &QWidget::setVisible);
        connect(monitor, &systemgame_monitor::visibility_changed, actions[i], &QAction::setChecked);
    }
}

void MainWindow::create_menus()
{
    const menu_Window::load_file_actions load_files = {
        ui->actionHauptladedatei,
        ui->actionFolgeladedatei_1,
        ui->actionFolgeladedatei_2,
        ui->actionFolgeladedatei_3,
        ui->actionFolgeladedatei_4,
        ui->actionFolgeladedatei_5,
        ui->actionFolgeladedatei_6,
        ui->actionFolgeladedatei_7,
        ui->actionFolgeladedatei_8,
    };
    menus = new menu_Window(*ui->menuSystemdateien, load_files, game_setting, this);
    connect(menus, &menu_Window::open_system_file, this, [this](player_names player) {
        open_editor(edit_mode::system_file, player);
    });
    connect(
        menus, &menu_Window::open_load_file, this, [this](general_loadfile::loadfile_type place) {
            const bool is_main = place == general_loadfile::MAIN_LOADFILE;
            open_editor(is_main ? edit_mode::main_load_file : edit_mode::follow_load_file,
                        general_player::PLAYER_1,
                        place);
        });
    connect(ui->menuSystemspiel, &QMenu::hovered, this, &MainWindow::build_systemfile_menu_entry);
    connect(ui->menuSystemspiel, &QMenu::aboutToShow, this, [this] {
        build_systemfile_menu_entry(nullptr);
    });
    connect(ui->menuDateien, &QMenu::aboutToShow, this, &MainWindow::show_load_file_entries);
    const std::array<QAction*, general_player::player_count> protocols = {
        ui->actionProtokoll_1, ui->actionProtokoll_2, ui->actionProtokoll_3, ui->actionProtokoll_4};
    for (std::size_t i = 0; i < protocols.size(); ++i) {
        const auto player = static_cast<player_names>(i);
        connect(protocols[i], &QAction::triggered, this, [this, player] {
            open_editor(edit_mode::protocol_file, player);
        });
    }
}

void MainWindow::show_load_file_entries()
{
    menus->show_load_files(number_storage.load_active() ? number_storage.load_files()
                                                        : QStringList());
}

/// The entries carry the names of the files that the settings hold now.
void MainWindow::build_systemfile_menu_entry(QAction*)
{
    menus->show_system_files();
    const std::array<QAction*, general_player::player_count> protocols = {
        ui->actionProtokoll_1, ui->actionProtokoll_2, ui->actionProtokoll_3, ui->actionProtokoll_4};
    for (std::size_t i = 0; i < protocols.size(); ++i) {
        const QString path = game_setting.s_user_out_file(static_cast<player_names>(i));
        protocols[i]->setEnabled(!path.isEmpty() && QFileInfo::exists(path));
    }
}

void MainWindow::on_actionSystemspiel_triggered()
{
    show_system_dialog({});
}

/// @param offered_path  a system for the active player, if not empty
void MainWindow::show_system_dialog(const QString& offered_path)
{
    if (findChild<systemspiel_dialog*>()) return;
    const pause_scope pause(*this);
    systemspiel_dialog dialog(players.table(), game_setting, this);
    connect(&dialog, &systemspiel_dialog::system_game_stop, this, &MainWindow::dia_system_stop);
    connect(&dialog, &systemspiel_dialog::system_game_start, this, &MainWindow::dia_system_start);
    connect(&dialog, &systemspiel_dialog::display_player_status, this, &MainWindow::player_changed);
    connect(&dialog, &systemspiel_dialog::system_out_stop, this, &MainWindow::dia_output_stop);
    connect(&dialog, &systemspiel_dialog::system_out_start, this, &MainWindow::dia_output_start);
    connect(this,
            &MainWindow::select_system_game_file,
            &dialog,
            &systemspiel_dialog::set_system_game_file);
    connect(this,
            &MainWindow::select_system_output_file,
            &dialog,
            &systemspiel_dialog::set_system_output_file);
    connect(this, &MainWindow::system_has_ended, &dialog, &systemspiel_dialog::system_game_ended);
    if (!offered_path.isEmpty()) {
        const player_names active = players.table().active_player();
        const player_names player =
            active == general_player::NO_PLAYER ? general_player::PLAYER_1 : active;
        // Behind the opening: the dialog may have to ask.
        QMetaObject::invokeMethod(
            &dialog,
            [&dialog, player, offered_path] { dialog.offer_system(player, offered_path); },
            Qt::QueuedConnection);
    }
    if (dialog.exec() != QDialog::Accepted) return;
    menus->show_system_files();
    write_settings();
}

void MainWindow::on_actionNeue_Datei_triggered()
{
    open_editor(edit_mode::new_file, general_player::PLAYER_1);
}

void MainWindow::on_actionDatei_oeffnen_triggered()
{
    open_editor(edit_mode::open_file, general_player::PLAYER_1);
}

void MainWindow::open_editor(edit_mode mode,
                             player_names player,
                             general_loadfile::loadfile_type place)
{
    const pause_scope pause(*this);
    if (!may_close_editor()) return;
    show_editor(
        new editor_window(mode, player, game_setting, players, number_storage, nullptr, place));
}

void MainWindow::open_system_at_error(player_names player,
                                      const system_status::sys_error_infos& error)
{
    const pause_scope pause(*this);
    if (!may_close_editor()) return;
    show_editor(new editor_window(error, player, game_setting, players, number_storage));
}

/// The editor stands beside the table, not above it. There is one: a file is never open twice.
void MainWindow::show_editor(editor_window* new_editor)
{
    if (editor) editor->close();
    editor = new_editor;
    // Behind the saving of the editor, whose window may go with what follows.
    connect(editor,
            &editor_window::restart_systemplay,
            this,
            &MainWindow::restart_system,
            Qt::QueuedConnection);
    connect(editor,
            &editor_window::restart_mainloadfile,
            this,
            &MainWindow::read_main_load_file_again,
            Qt::QueuedConnection);
    connect(editor, &editor_window::editor_window_close, editor, &QObject::deleteLater);
    places->watch(*editor);
    editor->show();
}

/// The system may have come to its end under the question of the editor; then it stays out.
void MainWindow::restart_system(player_names player)
{
    if (!seats->plays(player)) return;
    const pause_scope pause(*this);
    dia_system_start(player);
}

void MainWindow::read_main_load_file_again()
{
    if (!number_storage.load_active()) return;
    const pause_scope pause(*this);
    display_wait_actual_load_file_info();
    number_storage.set_load_files(number_storage.load_settings());
    display_actual_load_file_info(number_storage.load_active());
}

/// Asks for a changed text. False if the user wants to go on with it.
bool MainWindow::may_close_editor()
{
    return !editor || editor->ask_to_save();
}

void MainWindow::close_side_windows()
{
    if (editor) editor->close();
    for (systemgame_monitor* monitor : monitors)
        if (monitor) monitor->close();
}
