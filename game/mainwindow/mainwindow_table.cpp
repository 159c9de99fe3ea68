#include "dialog_select_number.h"
#include "mainwindow.h"
#include "message_box.h"
#include "number_control.h"
#include "player_statistik_widget.h"
#include "player_status_widget.h"
#include "players_control.h"
#include "setting.h"
#include "settings_rules.h"
#include "statistic_data.h"
#include "table_regions.h"
#include "ui_mainwindow.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QWindow>

#include <functional>

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        // The window itself gets every move over it, whatever child lies under the pointer.
        if (watched == windowHandle() && players.table().all_may_set()) {
            emit user_set_jeton_by_mouse(general_setting::SELECT_JETON,
                                         table_point(*static_cast<QMouseEvent*>(event)));
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto& press = *static_cast<QMouseEvent*>(event);
        if (watched == ui->LA_Table) {
            table_pressed(press);
        } else if (watched == status_widget) {
            emit user_player_selection(status_widget->mapFromGlobal(press.globalPos()));
        } else if (press.button() == Qt::LeftButton) {
            press_line_edit(*watched);
        }
        break;
    }
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

/// A point in the window without its menu bar.
QPoint MainWindow::table_point(const QMouseEvent& event) const
{
    return mapFromGlobal(event.globalPos()) - QPoint(0, ui->menubar->height());
}

void MainWindow::table_pressed(const QMouseEvent& event)
{
    const QPoint point = table_point(event);
    const bool is_left = event.button() == Qt::LeftButton;
    if (!is_left && event.button() != Qt::RightButton) return;
    if (!is_in_betting_area(point, scale_reduction)) return;
    if (game_setting.state() == game_state::stopped) {
        tell_to_start();
        return;
    }
    if (!players.table().all_may_set()) return;
    const auto action = is_left ? general_setting::SET_JETON : general_setting::REMOVE_JETON;
    const jetons::ext_jeton_names range = announcement_dialog_at(point, scale_reduction);
    if (range != jetons::NO_EXT_JETON) {
        QMetaObject::invokeMethod(
            this, [=] { select_announcement(action, range); }, Qt::QueuedConnection);
        return;
    }
    emit user_set_jeton_by_mouse(action, point);
}

/// Opens the file dialog of a line edit, behind the event, and never a second one meanwhile.
void MainWindow::press_line_edit(const QObject& widget)
{
    using general_loadfile::loadfile_type;
    static const QHash<QString, std::function<void(MainWindow&)>> fields = [] {
        QHash<QString, std::function<void(MainWindow&)>> edits;
        const auto add_load_file = [&](const QString& name, loadfile_type type) {
            edits.insert(name, [type](MainWindow& window) { emit window.select_load_file(type); });
        };
        add_load_file(QStringLiteral("LE_loadfile_main"), general_loadfile::MAIN_LOADFILE);
        add_load_file(QStringLiteral("LE_loadfile_group"), general_loadfile::GROUP_LOADFILE);
        for (int i = 1; i < general_loadfile::file_place_count; ++i) {
            add_load_file(QStringLiteral("LE_loadfile_follow_%1").arg(i),
                          static_cast<loadfile_type>(i));
        }
        for (int i = 0; i < general_player::player_count; ++i) {
            const auto player = static_cast<general_player::player_names>(i);
            edits.insert(
                QStringLiteral("LE_system_game_file_%1").arg(i + 1),
                [player](MainWindow& window) { emit window.select_system_game_file(player); });
            edits.insert(
                QStringLiteral("LE_system_output_file_%1").arg(i + 1),
                [player](MainWindow& window) { emit window.select_system_output_file(player); });
        }
        edits.insert(QStringLiteral("LE_history_loadfile"),
                     [](MainWindow& window) { emit window.select_history_loadfile(); });
        return edits;
    }();
    if (!qobject_cast<const QLineEdit*>(&widget)) return;
    const auto field = fields.constFind(widget.objectName());
    if (field == fields.constEnd() || line_edit_pressed) return;
    line_edit_pressed = true;
    const auto choose = *field;
    QMetaObject::invokeMethod(
        this,
        [this, choose] {
            choose(*this);
            line_edit_pressed = false;
        },
        Qt::QueuedConnection);
}

/// Posted, so that the click has ended before the box opens.
void MainWindow::tell_to_start()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            message_box::tell(this,
                              tr("Zarvello Info"),
                              tr("Bitte zuerst das Spiel über den Menüpunkt \"Start\" oder F2 "
                                 "starten!"));
        },
        Qt::QueuedConnection);
}

void MainWindow::select_announcement(general_setting::setting_jeton_action action,
                                     jetons::ext_jeton_names first_name)
{
    if (announcement_dialog->isVisible()) return;
    if (!players.table().all_may_set()) return; // the bets closed behind the click
    const pause_scope pause(*this);
    announcement_dialog->open_for(action, first_name);
    announcement_dialog->exec();
}

void MainWindow::wheel_right_clicked()
{
    switch (game_setting.state()) {
    case game_state::stopped:
        tell_to_start();
        break;
    case game_state::running:
        if (players.table().all_may_set()) emit manual_start_wheel_throw();
        break;
    case game_state::paused:
        break;
    }
}

void MainWindow::block_player_bets()
{
    players.table().set_may_set_for_all(false);
}

void MainWindow::check_jeton(general_setting::setting_jeton_action action,
                             jetons::jeton_names jeton,
                             player_names player,
                             int amount)
{
    if (player == general_player::NO_PLAYER) return;
    game_table& table = players.table();
    const account& owner = table.account_of(player);
    const bool is_bet = action != general_setting::SELECT_JETON;
    if (is_bet && !owner.may_set && !owner.is_system) return;
    switch (action) {
    case general_setting::SELECT_JETON:
        emit draw_selection_based_on_jeton_type(jeton);
        break;
    case general_setting::SET_JETON:
        table.set_jeton(
            player, jeton, piece_value(game_setting, owner.is_system), amount, debit::from_credit);
        break;
    case general_setting::REMOVE_JETON:
        table.take_piece(player, jeton);
        break;
    }
}

void MainWindow::message_set_not_possible(int amount)
{
    message_box::tell(this,
                      tr("Zarvello Nachricht"),
                      tr("Setzung konnte auf Grund Kaptialmangel nicht durchgeführt werden! "
                         "Notwendiges Kapital wären %1 Einheiten!")
                          .arg(amount));
}

void MainWindow::player_credit_seeded_update_l(player_names player)
{
    if (!status_widget) return;
    const account& own = players.table().account_of(player);
    status_widget->show_credit(player, own.credit);
    status_widget->show_seeded(player, own.seeded);
    if (player == players.table().active_player()) update_clear_button();
}

void MainWindow::player_changed()
{
    if (!status_widget) return;
    for (int i = 0; i < general_player::player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        status_widget->show_player_status(player, players.player_status(player));
    }
    update_clear_button();
}

void MainWindow::show_all_accounts()
{
    for (int i = 0; i < general_player::player_count; ++i)
        player_credit_seeded_update_l(static_cast<player_names>(i));
}

void MainWindow::update_clear_button()
{
    const player_names active = players.table().active_player();
    const bool has_bets =
        active != general_player::NO_PLAYER && players.table().seeded(active) >= 1;
    ui->PB_clear_jetons->setEnabled(has_bets);
}

void MainWindow::on_PB_clear_jetons_clicked()
{
    const player_names active = players.table().active_player();
    if (active == general_player::NO_PLAYER) return;
    if (!players.table().account_of(active).may_set) return;
    players.table().clear_jetons(active);
}

void MainWindow::on_PB_replay_clicked(bool checked)
{
    players.set_replay_for_all(checked);
    checkStatusReplay();
}

void MainWindow::checkStatusReplay()
{
    ui->PB_replay->setChecked(players.table().any_replay());
    if (status_widget) status_widget->refresh_replay_display();
}

void MainWindow::update_player_statistic_table(player_names player)
{
    if (player == statistic_player) update_dis_player_statistic(player);
}

void MainWindow::update_dis_player_statistic(player_names player)
{
    statistic_player = player;
    if (!statistik_widget) return;
    statistik_widget->show_status(player, statistic->status_of(player));
}
