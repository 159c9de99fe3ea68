#include "legible_colour.h"
#include "mainwindow.h"
#include "message_box.h"
#include "numberstorage.h"
#include "players_control.h"
#include "recent_files.h"
#include "setting.h"
#include "statistic_data.h"
#include "system_output.h"
#include "system_pattern.h"
#include "system_seats.h"

#include <QApplication>
#include <QGridLayout>
#include <QIcon>
#include <QSpacerItem>
#include <QThread>

namespace
{

constexpr int box_width = 300; // pixels
constexpr int stop_box_spacer = 500;
constexpr int error_box_spacer = 900;

/// Makes a box at least as wide as a line of the file; a minimum size of its own is ignored.
void widen(QMessageBox& box, int spacer_width)
{
    box.setMinimumWidth(box_width);
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid) return;
    auto* spacer = new QSpacerItem(spacer_width, 0, QSizePolicy::Minimum, QSizePolicy::Expanding);
    grid->addItem(spacer, grid->rowCount(), 0, 1, grid->columnCount());
}

/// The line of an error as rich text, with what is wrong in it marked. A mark that isn't found in
/// the line becomes a mark of the whole line.
QString marked_line(sys_result_info& info)
{
    const QColor ground = QApplication::palette("QMessageBox").color(QPalette::Window);
    const QString whole_begin = QStringLiteral("<b><FONT COLOR='%1'>")
                                    .arg(legible_colour(QColor(128, 0, 0), ground).name());
    const QString whole_end = QStringLiteral("</FONT></b>");
    const QString& line = info.line_text;
    const int place = info.mark_text.isEmpty() ? -1 : line.indexOf(info.mark_text);
    if (info.mark_mode != system_status::mark_token || place < 0) {
        info.mark_mode = system_status::mark_line;
        return whole_begin + line.toHtmlEscaped() + whole_end;
    }
    return line.left(place).toHtmlEscaped() + whole_begin + QStringLiteral("<u>") +
           info.mark_text.toHtmlEscaped() + QStringLiteral("</u>") + whole_end +
           line.mid(place + info.mark_text.size()).toHtmlEscaped();
}

} // namespace

void MainWindow::create_seats()
{
    const play_environment environment = {
        players.table(), number_storage, *statistic, system_pattern::instance(), game_setting};
    seats = std::make_unique<system_seats>(environment, cycle, static_cast<seats_host&>(*this));
}

void MainWindow::dia_system_start(player_names player)
{
    recent->add(recent_files::kind::systems, game_setting.s_user_sys_file(player));
    seats->start(player);
    player_changed();
    emit distribute_status_change_to_monitor();
}

void MainWindow::dia_system_stop(player_names player)
{
    seats->stop(player);
    player_changed();
    emit distribute_status_change_to_monitor();
}

void MainWindow::dia_output_start(player_names player)
{
    std::unique_ptr<system_output>& output = system_outputs[static_cast<std::size_t>(player)];
    if (!output) output = std::make_unique<system_output>(number_storage, game_setting, player);
    drain_statistic();
    output->open(statistic->status_of(player).counted_coups);
    players.table().set_protocol_flag(player, true);
    recent->add(recent_files::kind::protocols, game_setting.s_user_out_file(player));
}

void MainWindow::dia_output_stop(player_names player)
{
    players.table().set_protocol_flag(player, false);
    std::unique_ptr<system_output>& output = system_outputs[static_cast<std::size_t>(player)];
    if (!output) return;
    output.reset();
}

void MainWindow::stop_all_systems()
{
    for (int i = 0; i < general_player::player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        seats->stop(player);
        dia_output_stop(player);
    }
    player_changed();
    emit distribute_status_change_to_monitor();
}

/// Waits until the store has counted everything that was sent to it: what is decided from its
/// figures must not depend on how busy the other thread is.
void MainWindow::drain_statistic()
{
    if (!statistic_thread->isRunning()) return;
    QMetaObject::invokeMethod(statistic, &statistic_data::start, Qt::BlockingQueuedConnection);
}

bool MainWindow::any_output() const
{
    for (const auto& output : system_outputs) {
        if (output) return true;
    }
    return false;
}

void MainWindow::write_protocols()
{
    for (int i = 0; i < general_player::player_count; ++i) {
        const auto& output = system_outputs[static_cast<std::size_t>(i)];
        if (!output) continue;
        output->set_manual_number(cycle.number_was_chosen());
        output->write_coup_line(statistic->status_of(static_cast<player_names>(i)));
    }
}

void MainWindow::check_system_borders()
{
    if (!seats->any_plays() && !any_output()) return;
    drain_statistic();
    write_protocols();
    seats->check_borders();
}

player_flags MainWindow::playing_systems() const
{
    return seats->playing();
}

void MainWindow::play_systems()
{
    emit play_system_file();
    seats->play();
}

void MainWindow::hand_change_thrown()
{
    emit hand_change_throw_end();
    seats->hand_change();
}

void MainWindow::round_complete(player_names player)
{
    cycle.system_round_complete(player);
}

void MainWindow::jeton_set(player_names player,
                           jetons::jeton_names jeton,
                           jetons::ext_jeton_names ext_jeton,
                           int amount,
                           int)
{
    const jetons& names = jetons::instance();
    const QString text =
        jeton == jetons::NO_JETON ? names.display_text(ext_jeton) : names.display_text(jeton);
    emit display_set_on_monitor(player, amount, text);
}

void MainWindow::monitor_action(player_names player, const QString& action)
{
    emit system_monitor_action(player, action);
}

void MainWindow::message_shown(player_names, const QStringList& lines)
{
    sys_message_display(lines);
}

void MainWindow::sys_message_display(const QStringList& lines)
{
    QMessageBox box(QMessageBox::Information,
                    tr("Zarvello Systemspiel Nachricht"),
                    lines.join(QString()),
                    QMessageBox::Ok,
                    this);
    box.setTextFormat(Qt::RichText);
    widen(box, stop_box_spacer);
    message_box::show(box);
}

void MainWindow::pause_wanted(player_names)
{
    force_pause();
}

/// The system is out of play already, so nothing half alive stands behind the box.
void MainWindow::system_ended(player_names player, const sys_result_info& info)
{
    player_changed();
    emit distribute_status_change_to_monitor();
    emit system_has_ended(player);
    if (info.status == system_status::stop) {
        show_system_stop(player, info);
    } else {
        show_system_error(player, info);
    }
}

void MainWindow::show_system_stop(player_names player, const sys_result_info& info)
{
    QMessageBox box(QMessageBox::Information,
                    tr("Zarvello Info"),
                    tr("Systemspiel für Spieler ") + QString::number(player + 1) +
                        tr(" wurde gestoppt!\n") + info.error_text,
                    QMessageBox::Ok,
                    this);
    box.setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    widen(box, stop_box_spacer);
    message_box::show(box);
}

/// The title names player 1 whoever played; the question of the box is whether to mend the file.
void MainWindow::show_system_error(player_names player, sys_result_info info)
{
    const QString line = marked_line(info);
    QMessageBox box(QMessageBox::Critical,
                    tr("Systemspiel für Spieler ") + QStringLiteral("1") + tr(" wurde beendet!"),
                    tr("Fehler: ") + info.error_text.toHtmlEscaped() + QStringLiteral("<br>") +
                        tr("Zeilennummer: ") + QString::number(info.error_line) +
                        QStringLiteral("<br>") + tr("Zeile: ") + line + QStringLiteral("<br>"),
                    QMessageBox::Yes | QMessageBox::No,
                    this);
    box.setTextFormat(Qt::RichText);
    box.setInformativeText(tr("Soll die Systemspieldatei geöffnet werden?"));
    box.setDefaultButton(QMessageBox::Yes);
    widen(box, error_box_spacer);
    if (message_box::show(box) != QMessageBox::Yes) return;
    // Behind the dialog in which the system may have been started.
    const system_status::sys_error_infos error = {
        info.error_text, info.error_line, info.mark_mode, info.mark_text};
    QMetaObject::invokeMethod(
        this, [=] { open_system_at_error(player, error); }, Qt::QueuedConnection);
}
