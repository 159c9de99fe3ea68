#include "actual_permanence.h"
#include "determine_history_files_and_date.h"
#include "history_dialog.h"
#include "historystorage.h"
#include "mainwindow.h"
#include "message_box.h"
#include "number_records.h"
#include "number_table.h"
#include "numberstorage.h"
#include "player_statistik_widget.h"
#include "setting.h"
#include "statistic_data.h"
#include "statusprogressbar.h"
#include "ui_mainwindow.h"
#include "year_file_permanenz.h"

#include <QPushButton>

#include <optional>

static constexpr int numbers_per_drain = 1000; // what may wait for the statistic at a time

void MainWindow::create_history()
{
    history = new historystorage(number_storage, game_setting, this);
    connect(history, &historystorage::load_hist_number, this, &MainWindow::load_history_number);
    connect(history, &historystorage::history_set_throw, this, &MainWindow::history_set_throw);
    // Queued, so that a load at the start finds the window on the screen.
    connect(this,
            &MainWindow::load_history_files_to_game,
            history,
            &historystorage::load_History_to_game,
            Qt::QueuedConnection);
    connect(history,
            &historystorage::dis_history_stat_counter,
            statistic,
            &statistic_data::store_history_coup_count);
    history->save_left_runs();
    if (game_setting.s_use_history_throws_startup()) load_history_at_start();
}

// ---- the load at the start

void MainWindow::load_history_at_start()
{
    start_history_open = true;
    ui->actionStart->setEnabled(false);
    enable_reading(false);
    for (QWidget* button : std::initializer_list<QWidget*>{
             ui->PB_clear_jetons, ui->PB_replay, ui->PB_super_short_play, ui->PB_last_bet}) {
        resting_buttons.push_back({button, button->isEnabled()});
        button->setEnabled(false);
    }
    bar_state_before_history = time_bar->get_state();
    time_bar->set_state(bar_state::history_loading);
    connect(statistic,
            &statistic_data::info_if_history_load_is_finish,
            this,
            &MainWindow::history_load_complete);
    connect(history,
            &historystorage::info_if_history_load_is_finish,
            this,
            &MainWindow::history_load_complete);

    history_choice choice;
    choice.rule = game_setting.s_load_history_stat_type_index();
    choice.year_index = game_setting.s_history_year_index();
    choice.days = game_setting.s_history_days_count();
    choice.fix_date = game_setting.s_history_fix_date();
    const history_files found = determine_history_files_and_date().determine(choice);
    emit load_history_files_to_game(found.files, found.first_date);
}

/// The end of a load that goes on behind a hand change as its last entry comes with a later load.
void MainWindow::history_load_complete()
{
    if (!start_history_open) return;
    start_history_open = false;
    disconnect(statistic,
               &statistic_data::info_if_history_load_is_finish,
               this,
               &MainWindow::history_load_complete);
    disconnect(history,
               &historystorage::info_if_history_load_is_finish,
               this,
               &MainWindow::history_load_complete);
    if (statistik_widget) statistik_widget->update_cup_counter(statistic->coup_count());
    time_bar->set_state(bar_state_before_history);
    take_over_time_bar(); // the options may have changed it meanwhile
    enable_reading(true);
    for (const resting_button& resting : resting_buttons)
        resting.button->setEnabled(resting.was_enabled);
    resting_buttons.clear();
    ui->actionStart->setEnabled(true);
}

// ---- the numbers of a load

void MainWindow::load_history_number(int hist_throw_number, bool update_display)
{
    number_storage.add_to_permanence(hist_throw_number);
    if (update_display) show_last_numbers();
    if (hist_throw_number == number_code::hand_change) return;
    emit update_statistic_data(property_of(hist_throw_number), update_display);
    // Signals that wait for the other thread cost more memory than what they tell.
    if (++history_numbers_sent % numbers_per_drain == 0) drain_statistic();
}

void MainWindow::history_set_throw(int number)
{
    enable_reading(true);
    if (number_code::is_number(number)) emit set_throw(number);
}

/// One file is read at a time.
void MainWindow::enable_reading(bool on)
{
    ui->actionLadedateien->setEnabled(on);
    ui->actionHistory_laden->setEnabled(on);
}

void MainWindow::on_actionHistory_laden_triggered()
{
    if (game_setting.state() != game_state::stopped || history->is_loading()) return;
    if (findChild<history_dialog*>()) return;
    history_dialog dialog(
        *history, game_setting, [this] { drain_statistic(); }, this);
    connect(this,
            &MainWindow::select_history_loadfile,
            &dialog,
            &history_dialog::select_single_history_file);
    connect(&dialog,
            &history_dialog::statistik_clear_request,
            this,
            &MainWindow::on_actionReset_triggered);
    connect(this, &MainWindow::statistik_reset_done, &dialog, &history_dialog::load_file);
    connect(statistic,
            &statistic_data::info_if_history_load_is_finish,
            &dialog,
            &history_dialog::load_incorporation_complete);
    dialog.exec();
}

// ---- the permanence windows

void MainWindow::on_actionAktuelle_Permanenz_triggered()
{
    if (findChild<actual_permanence*>()) return;
    std::optional<pause_scope> pause(std::in_place, *this);
    actual_permanence window(number_storage, chance_table, scale_reduction, this);
    connect(&window, &actual_permanence::later_display_continue, this, [&pause] { pause.reset(); });
    window.exec();
}

void MainWindow::on_actionJahrespermanenz_triggered()
{
    if (findChild<year_file_permanenz*>()) return;
    const pause_scope pause(*this);
    year_file_permanenz window(QDate::currentDate().year(), history->format_run_block(), this);
    window.exec();
}

// ---- the run in play

/// A run that could not be saved is not thrown away without a word.
bool MainWindow::may_begin_run()
{
    if (start_history_open) return false;
    if (!history->save_run()) {
        const bool is_dropped = message_box::ask(
            this,
            tr("Zarvello Info"),
            tr("Die Jahrespermanenz \"%1\" konnte wieder nicht geschrieben werden!\nSoll trotzdem "
               "ein neues Spiel beginnen? Der letzte Lauf (%2 Coups) geht dabei verloren.")
                .arg(year_file_name(history->run().run_start.date().year()))
                .arg(history->run().run_coups),
            QMessageBox::Warning);
        if (!is_dropped || game_setting.state() != game_state::stopped) return false;
    }
    history->clear_run();
    return true;
}

void MainWindow::save_run()
{
    if (history->save_run()) return;
    message_box::tell(
        this,
        tr("Zarvello Info"),
        tr("Die Jahrespermanenz \"%1\" konnte nicht geschrieben werden!\nDer Lauf (%2 Coups) "
           "bleibt "
           "erhalten und wird beim nächsten Start und beim Programmende noch einmal geschrieben.")
            .arg(year_file_name(history->run().run_start.date().year()))
            .arg(history->run().run_coups),
        QMessageBox::Warning);
}

/// False if the user does not want to end the program with a run that can't be saved.
bool MainWindow::may_end_run()
{
    if (history->save_run()) return true;
    const QString outlook =
        history->run_is_in_draft()
            ? tr("Der letzte Lauf (%1 Coups) wird beim nächsten Programmstart noch einmal "
                 "geschrieben.")
            : tr("Der letzte Lauf (%1 Coups) geht dabei verloren.");
    return message_box::ask(this,
                            tr("Zarvello Info"),
                            tr("Die Jahrespermanenz \"%1\" konnte nicht geschrieben werden!\nSoll "
                               "das Programm trotzdem "
                               "beendet werden?")
                                    .arg(year_file_name(history->run().run_start.date().year())) +
                                QLatin1Char(' ') + outlook.arg(history->run().run_coups),
                            QMessageBox::Warning);
}
