#include "determine_history_files_and_date.h"
#include "jeton_board.h"
#include "layout_window.h"
#include "mainwindow.h"
#include "message_box.h"
#include "number_control.h"
#include "number_table.h"
#include "options.h"
#include "players_control.h"
#include "setting.h"
#include "statusprogressbar.h"

static constexpr int ms_per_second = 1000;

void MainWindow::on_actionOptionen_triggered()
{
    if (findChild<Options*>()) return;
    const auto kept_short_throw = [this] {
        return short_game_on ? &short_game_saved_flag : nullptr;
    };
    Options dialog(game_setting, permanence_years(), kept_short_throw, this);
    connect(
        &dialog, &Options::setting_language_changend, this, &MainWindow::setting_language_changend);
    connect(&dialog, &Options::ini_value_changend, this, &MainWindow::initializes_base_parameter);
    dialog.exec();
}

void MainWindow::initializes_base_parameter()
{
    emit setting_language_changend(game_setting.language());
    take_over_time_bar();
    // Wheel, panels and store must not change under a coup.
    settings_postponed = cycle.is_running();
    if (settings_postponed) return;
    take_over_scale_and_form();
    ask_for_start_capital();
}

void MainWindow::run_postponed()
{
    if (reset_postponed) {
        reset_postponed = false;
        reset_statistic_and_numbers();
        emit statistik_reset_done(true);
    }
    if (settings_postponed) {
        settings_postponed = false;
        take_over_scale_and_form();
        ask_for_start_capital();
    }
}

void MainWindow::take_over_scale_and_form()
{
    const double reduction = game_setting.scale_reduction();
    const table_form form = game_setting.form();
    if (reduction == scale_reduction && form == shown_form) return;
    const bool is_rescaled = reduction != scale_reduction;
    scale_reduction = reduction;
    shown_form = form;
    chance_table.set_table_form(form);
    chance_table.set_reduction(reduction);
    players.table().keep_only_chances_of(form);
    players.set_reduction(reduction);
    bets.set_reduction(reduction);
    board->set_reduction(reduction);
    emit table_form_taken(form);
    table_layout->rebuild(reduction);
    place_hot_cold_charts();
    if (is_rescaled) emit dialog_to_scale();
}

void MainWindow::take_over_time_bar()
{
    time_bar->set_betting_time(game_setting.s_balkenzeit() / ms_per_second);
    time_bar->set_single_colour(game_setting.s_single_color_timebar());
    time_bar->set_start_at_end(true);
}

/// The game waits for the answers: money must not change under a coup.
void MainWindow::ask_for_start_capital()
{
    const pause_scope pause(*this);
    const qint64 capital = game_setting.start_capital();
    game_table& table = players.table();
    for (int i = 0; i < general_player::player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        const qint64 credit = table.credit(player);
        if (credit == capital) continue;
        const QString name = tr("Player %1").arg(i + 1);
        const QString question =
            tr("Soll das Startkaptital für ") + name + tr(" übernommen werden?");
        const bool wanted = credit == 0 || message_box::ask(this, tr("Zarvello Info"), question);
        if (!wanted) continue;
        reset_store();
        table.set_credit(player, capital);
    }
    send_start_credits();
}
