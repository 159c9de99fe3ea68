#include "editor_window.h"
#include "load_files_option.h"
#include "mainwindow.h"
#include "message_box.h"
#include "numberstorage.h"
#include "players_control.h"
#include "recent_files.h"
#include "setting.h"
#include "systemgame_monitor.h"
#include "ui_mainwindow.h"
#include "window_places.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

#include <utility>

// Beside the settings: these are habits of the desktop, not rules of the game.
static const char* const desktop_file = "./zarvello_desktop.ini";

// ---- files

void MainWindow::create_recent_files()
{
    setAcceptDrops(true);
    using kind = recent_files::kind;
    recent = new recent_files(QString::fromLatin1(desktop_file), this);
    recent->fill(*ui->menuZuletzt_Systeme, kind::systems);
    recent->fill(*ui->menuZuletzt_Ladedateien, kind::load_files);
    recent->fill(*ui->menuZuletzt_Protokolle, kind::protocols);
    connect(recent, &recent_files::chosen, this, [this](kind of, const QString& path) {
        switch (of) {
        case kind::systems:
            offer_system(path);
            break;
        case kind::load_files:
            offer_load_file(path);
            break;
        case kind::protocols:
            show_protocol(path);
            break;
        }
    });
    connect(load_dialog, &load_files_option::display_actual_load_file_info, this, [this](bool on) {
        const load_file_settings played = number_storage.load_settings();
        if (!on || !played.active) return;
        const bool is_collection = !played.group_file.isEmpty();
        recent->add(kind::load_files, is_collection ? played.group_file : played.files.value(0));
    });
}

/// The first file of a drag that the table can do something with; empty without one.
static QString playable_file(const QMimeData& data)
{
    const auto urls = data.urls();
    for (const QUrl& url : urls) {
        const QString path = url.toLocalFile();
        const QString ending = QFileInfo(path).suffix().toLower();
        if (ending == QLatin1String("syf") || ending == QLatin1String("inp") ||
            ending == QLatin1String("snp"))
            return path;
    }
    return {};
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!playable_file(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

/// Posted: the program from which the file comes waits for the end of the drop.
void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = playable_file(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this, [this, path] { open_file_by_ending(path); }, Qt::QueuedConnection);
}

void MainWindow::open_file_by_ending(const QString& path)
{
    if (QApplication::activeModalWidget()) return;
    if (path.endsWith(QLatin1String(".syf"), Qt::CaseInsensitive)) {
        offer_system(path);
    } else {
        offer_load_file(path);
    }
}

void MainWindow::offer_system(const QString& path)
{
    show_system_dialog(path);
}

/// Load files are chosen before a game, or between the coups of a load run.
void MainWindow::offer_load_file(const QString& path)
{
    if (load_dialog->isVisible()) return;
    if (!ui->actionLadedateien->isEnabled()) {
        message_box::tell(this,
                          tr("Zarvello Info"),
                          tr("Eine Ladedatei kann nur gewählt werden, solange kein Spiel läuft."));
        return;
    }
    QMetaObject::invokeMethod(
        load_dialog, [this, path] { load_dialog->offer_file(path); }, Qt::QueuedConnection);
    on_actionLadedateien_triggered();
}

void MainWindow::show_protocol(const QString& path)
{
    const pause_scope pause(*this);
    if (!may_close_editor()) return;
    auto* const window = new editor_window(
        edit_mode::protocol_file, general_player::PLAYER_1, game_setting, players, number_storage);
    window->open_file(path);
    show_editor(window);
}

// ---- keys

void MainWindow::set_standard_keys()
{
    ui->actionNeue_Datei->setShortcuts(QKeySequence::New);
    ui->actionDatei_oeffnen->setShortcuts(QKeySequence::Open);
    ui->actionOptionen->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+,")), QKeySequence(QKeySequence::Preferences)});
    ui->actionBeenden->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
}

/// What the mouse does on table, wheel and panels.
void MainWindow::connect_game_keys()
{
    connect(ui->actionWurf, &QAction::triggered, this, &MainWindow::wheel_right_clicked);
    connect(ui->actionZahl_waehlen,
            &QAction::triggered,
            this,
            &MainWindow::select_number_by_user_is_triggerd);
    connect(ui->actionJetons_abraeumen,
            &QAction::triggered,
            ui->PB_clear_jetons,
            &QAbstractButton::click);
    connect(ui->actionWiederholen, &QAction::triggered, ui->PB_replay, &QAbstractButton::click);
    const std::array<QAction*, general_player::player_count> selections = {
        ui->actionSpieler_1, ui->actionSpieler_2, ui->actionSpieler_3, ui->actionSpieler_4};
    for (std::size_t i = 0; i < selections.size(); ++i) {
        const auto player = static_cast<player_names>(i);
        connect(selections[i], &QAction::triggered, this, [this, player] {
            players.select_player(player);
        });
    }
}

// ---- windows

/// The table, and the monitors that were open at the last end of the program.
void MainWindow::restore_windows()
{
    places = new window_places(QString::fromLatin1(desktop_file), this);
    places->watch(*this);
    for (systemgame_monitor* monitor : monitors) {
        places->watch(*monitor);
        if (places->was_open(monitor->objectName())) open_again.append(monitor);
    }
}

/// With the table and not before it.
void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    const auto windows = std::exchange(open_again, {});
    for (QWidget* window : windows)
        window->show();
}
