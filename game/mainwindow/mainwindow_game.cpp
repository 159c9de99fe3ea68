#include "dialog_supershort_game_counter.h"
#include "historystorage.h"
#include "jeton_board.h"
#include "layout_window.h"
#include "mainwindow.h"
#include "message_box.h"
#include "numberstorage.h"
#include "player_statistik_widget.h"
#include "player_status_widget.h"
#include "players_control.h"
#include "setting.h"
#include "statistic_data.h"
#include "statusprogressbar.h"
#include "system_output.h"
#include "ui_mainwindow.h"
#include "wheelwidget.h"
#include "window_places.h"

void MainWindow::on_actionStart_triggered()
{
    if (game_setting.state() != game_state::stopped || !may_begin_run()) return;
    for (int i = 0; i < general_player::player_count; ++i)
        board->create_prison_jetons(static_cast<player_names>(i));
    game_setting.set_state(game_state::running);
    enable_actions_of_state();
    enableGameTimer();
}

void MainWindow::enable_actions_of_state()
{
    const bool is_stopped = game_setting.state() == game_state::stopped;
    ui->actionStart->setEnabled(is_stopped);
    ui->actionStop->setEnabled(!is_stopped);
    ui->actionPause->setEnabled(!is_stopped);
    ui->actionSuperkurzspiel->setEnabled(!is_stopped);
    ui->PB_super_short_play->setEnabled(!is_stopped);
    ui->actionHistory_laden->setEnabled(is_stopped);
}

MainWindow::pause_scope::pause_scope(MainWindow& owner)
    : window(owner)
    , earlier_forced_pauses(owner.forced_pauses)
{
    if (window.game_setting.state() != game_state::running) return;
    is_own = true;
    window.begin_pause();
}

MainWindow::pause_scope::~pause_scope()
{
    if (is_own && window.forced_pauses == earlier_forced_pauses) window.end_pause();
}

void MainWindow::on_actionPause_triggered()
{
    if (game_setting.state() == game_state::running) {
        begin_pause();
    } else {
        end_pause();
    }
}

void MainWindow::begin_pause()
{
    if (game_setting.state() != game_state::running) return;
    game_setting.set_state(game_state::paused);
    show_pause_text();
    time_bar->set_pause(true);
}

void MainWindow::end_pause()
{
    if (game_setting.state() != game_state::paused) return;
    game_setting.set_state(game_state::running);
    show_pause_text();
    time_bar->set_pause(false);
    // A coup that fell due meanwhile begins behind whatever ended the pause.
    QMetaObject::invokeMethod(
        this, [this] { cycle.pause_ended(); }, Qt::QueuedConnection);
}

/// A pause that a dialog around it does not end.
void MainWindow::force_pause()
{
    ++forced_pauses;
    begin_pause();
}

void MainWindow::show_pause_text()
{
    const bool is_paused = game_setting.state() == game_state::paused;
    ui->actionPause->setText(is_paused ? tr("Weiter") : tr("Pause"));
}

void MainWindow::on_actionStop_triggered()
{
    if (game_setting.state() == game_state::stopped) return;
    const bool wanted = message_box::ask(
        this, tr("Zarvello Info"), tr("Soll das aktuelle Spiel wirklich beendet werden?"));
    if (wanted) stop_game();
}

void MainWindow::stop_game()
{
    if (game_setting.state() == game_state::stopped) return;
    game_setting.set_state(game_state::stopped);
    cycle.stop();
    emit stop_progress_bar();
    deactivate_supershort_game();
    wheel_widget->stop_throw();
    status_widget->stop_count();
    table_layout->hide_marks();
    stop_all_systems();
    players.table().stop(game_setting.start_capital());
    board->remove_prison_jetons();
    reset_statistic_and_numbers();
    if (reset_postponed) { // it has just been done
        reset_postponed = false;
        emit statistik_reset_done(true);
    }
    show_pause_text();
    show_selected_number();
    enable_actions_of_state();
    ui->actionLadedateien->setEnabled(true);
    ui->actionReset->setEnabled(true);
    run_postponed();
    save_run();
}

void MainWindow::on_actionReset_triggered()
{
    const pause_scope pause(*this);
    const bool wanted = message_box::ask(
        this,
        tr("Zarvello Info"),
        tr("Sollen alle Werte (Statistik, Würfe) für alle Spieler zurückgesetzt werden?"),
        QMessageBox::Warning);
    if (!wanted) {
        emit statistik_reset_done(false);
        return;
    }
    reset_postponed = cycle.is_running();
    if (reset_postponed) {
        warn_running_systems();
        return;
    }
    reset_statistic_and_numbers();
    emit statistik_reset_done(true);
    warn_running_systems();
}

/// What a system remembers of the coups is gone with them.
void MainWindow::warn_running_systems()
{
    if (!seats->any_plays()) return;
    message_box::tell(this,
                      tr("Zarvello Warnung"),
                      tr("Es ist mindestens ein Systemspiel aktiv - aufgrund der Zurücksetzung "
                         "wird ein Neustart des Systemspiels empfohlen!"),
                      QMessageBox::Warning);
}

void MainWindow::reset_statistic_and_numbers()
{
    reset_store();
    history->forget_history_total();
    number_storage.clear_permanence();
    show_last_numbers();
    send_start_credits();
}

void MainWindow::reset_store()
{
    QMetaObject::invokeMethod(
        statistic, &statistic_data::resetStatisticStorage, Qt::QueuedConnection);
    drain_statistic(); // what is told of earlier coups then finds the store empty
    statistik_widget->update_cup_counter(0);
    reset_hot_cold_charts();
    for (const auto& output : system_outputs)
        if (output) output->statistic_emptied();
}

void MainWindow::send_start_credits()
{
    for (int i = 0; i < general_player::player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        emit update_player_stat_credit(player, players.table().credit(player));
    }
}

void MainWindow::on_actionSuperkurzspiel_triggered(bool checked)
{
    ask_for_supershort_game(checked);
}

void MainWindow::on_PB_super_short_play_clicked(bool checked)
{
    ask_for_supershort_game(checked);
}

void MainWindow::ask_for_supershort_game(bool on)
{
    if (!on) {
        deactivate_supershort_game();
        return;
    }
    if (short_game_dialog->isVisible()) return;
    short_game_dialog->exec();
}

void MainWindow::activate_supershort_game(int count)
{
    if (game_setting.state() == game_state::stopped) { // stopped while the dialog was open
        show_supershort_game();
        return;
    }
    if (!short_game_on) short_game_saved_flag = game_setting.s_su_shortthrow_activ();
    short_game_on = true;
    game_setting.set_s_su_shortthrow_activ(true);
    show_supershort_game();
    time_bar->set_super_short(true, count);
}

void MainWindow::deactivate_supershort_game()
{
    if (short_game_on) game_setting.set_s_su_shortthrow_activ(short_game_saved_flag);
    short_game_on = false;
    show_supershort_game();
    time_bar->set_super_short(false, 0);
}

void MainWindow::show_supershort_game()
{
    ui->actionSuperkurzspiel->setChecked(short_game_on);
    ui->PB_super_short_play->setChecked(short_game_on);
    ui->PB_super_short_play->setText(short_game_on ? tr("Superkurzspiel aktiv")
                                                   : tr("Superkurzspiel"));
}

void MainWindow::on_actionInfo_triggered()
{
    const pause_scope pause(*this);
    message_box::tell(this,
                      tr("Zarvello Info"),
                      tr("Zarvello %1\n\nRoulette und Systemspiel am französischen und am "
                         "amerikanischen Tisch.")
                          .arg(QCoreApplication::applicationVersion()));
}

void MainWindow::on_actionBeenden_triggered()
{
    if (may_close_editor() && may_end_run()) end_program();
}

/// What a super short game has borrowed stays out of the file.
void MainWindow::write_settings()
{
    const bool borrowed = game_setting.s_su_shortthrow_activ();
    if (short_game_on) game_setting.set_s_su_shortthrow_activ(short_game_saved_flag);
    game_setting.write_settings();
    game_setting.set_s_su_shortthrow_activ(borrowed);
}

void MainWindow::end_program()
{
    history->break_off_load();
    deactivate_supershort_game();
    places->remember_all();
    close_side_windows(); // the editor leaves its font in the settings
    write_settings();
    QCoreApplication::quit();
}
