#include "historystorage.h"
#include "mainwindow.h"
#include "message_box.h"
#include "number_records.h"
#include "numberstorage.h"
#include "player_status_widget.h"
#include "players_control.h"
#include "setting.h"
#include "statusprogressbar.h"
#include "ui_mainwindow.h"

#include <QLabel>
#include <QTimer>

#include <algorithm>
#include <limits>

static constexpr int blink_ticks = 10;

static QString text_of_last_number(int number)
{
    if (number == number_code::no_number) return {};
    return number == number_code::hand_change ? QStringLiteral("--") : number_text(number);
}

static int within_int(qint64 value)
{
    using limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<qint64>(value, limits::min(), limits::max()));
}

void MainWindow::bets_closed(const player_sums& seeded)
{
    emit player_seeded_is_finish();
    players.tell_seeded(seeded);
}

void MainWindow::number_stored(int number)
{
    if (number != number_code::hand_change) {
        time_bar->count_coup();
        emit draw_dolly_based_on_jeton_type(number);
    }
    history->add_run_number(number);
    show_last_numbers();
}

void MainWindow::count_scores(const number_hit_property& property, const player_sums& scores)
{
    emit update_statistic_data(property, true);
    blink_count = 0;
    blink_timer->start();
    for (int i = 0; i < general_player::player_count; ++i) {
        status_widget->show_score(static_cast<player_names>(i),
                                  scores[static_cast<std::size_t>(i)]);
    }
    show_selected_number();
}

void MainWindow::collect_evaluation_finish(player_names player, qlonglong score)
{
    cycle.score_counted(player, score);
}

void MainWindow::score_entered(player_names player, qint64 score)
{
    emit player_score_changend(player, score, within_int(players.table().credit(player)));
}

void MainWindow::bets_opened()
{
    run_postponed();
    if (game_setting.state() == game_state::stopped) return;
    ui->actionLadedateien->setEnabled(false);
    emit start_progress_bar();
}

void MainWindow::load_file_ended()
{
    const load_file_settings played = number_storage.load_settings();
    number_storage.reset_load_files();
    display_actual_load_file_info(false);
    if (!played.active || !played.pause_at_end) return;
    deactivate_supershort_game();
    force_pause();
    message_box::tell(
        this,
        tr("Die Ladedatei Funktion wurde beendet!"),
        tr("Alle Dateien wurden fertig gespielt und der Pause Modus wurde aktiviert!"));
}

void MainWindow::show_last_numbers()
{
    QList<int> numbers = number_storage.last_numbers(last_number_labels, true);
    while (numbers.size() < last_number_labels)
        numbers.prepend(number_code::no_number);
    QStringList texts;
    for (int i = 0; i < last_number_labels; ++i) {
        show_last_number(static_cast<std::size_t>(i), numbers[i]);
        const QString text = text_of_last_number(numbers[i]);
        if (!text.isEmpty()) texts.prepend(text);
    }
    ui->LB_last_numbers_png->setAccessibleDescription(texts.join(QStringLiteral(", ")));
    end_blink();
}

/// A black number stands left, a red one right, a zero and a hand change on both sides.
void MainWindow::show_last_number(std::size_t row, int number)
{
    const bool is_mark = number == number_code::hand_change;
    const bool is_number = number_code::is_number(number);
    const number_colour colour = colour_of(number);
    const bool is_zero = is_number && colour == number_colour::green;
    const QString text = text_of_last_number(number);

    const auto show = [&](QLabel* label, bool is_shown, const QString& own_style) {
        const QString style = is_zero ? QStringLiteral("color: rgb(0, 128, 0);") : own_style;
        if (label->styleSheet() != style) label->setStyleSheet(style);
        label->setText(is_shown ? text : QString());
    };
    const bool on_both = is_zero || is_mark;
    show(black_labels[row],
         on_both || (is_number && colour == number_colour::black),
         QStringLiteral("color: rgb(0, 0, 0);"));
    show(red_labels[row],
         on_both || (is_number && colour == number_colour::red),
         QStringLiteral("color: rgb(255, 0, 0);"));
}

void MainWindow::blink_last_number()
{
    if (++blink_count >= blink_ticks) {
        end_blink();
        return;
    }
    const bool is_shown = blink_count % 2 == 0;
    black_labels.back()->setVisible(is_shown);
    red_labels.back()->setVisible(is_shown);
}

void MainWindow::end_blink()
{
    blink_timer->stop();
    black_labels.back()->setVisible(true);
    red_labels.back()->setVisible(true);
}
