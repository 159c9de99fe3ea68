#include "load_files_option.h"
#include "mainwindow.h"
#include "numberstorage.h"
#include "ui_mainwindow.h"
#include "wheel_number_selection.h"

#include <QCoreApplication>

static constexpr qint64 read_slice = 30;     // ms of reading between two looks at the events
static constexpr int event_time_limit = 100; // ms

void MainWindow::on_actionLadedateien_triggered()
{
    if (load_dialog->isVisible()) return;
    const pause_scope pause(*this);
    load_dialog->exec();
}

/// Called before every line of a file that is read.
void MainWindow::keep_alive_while_reading()
{
    if (since_events.isValid() && since_events.elapsed() < read_slice) return;
    const QPointer<MainWindow> alive(this);
    QCoreApplication::processEvents(QEventLoop::AllEvents, event_time_limit);
    if (alive) since_events.start();
}

void MainWindow::display_load_file_info(bool is_loaded)
{
    display_actual_load_file_info(is_loaded && number_storage.load_active());
}

/// Takes the count of the file in play now: a later count of another file replaces what the
/// source tells.
void MainWindow::display_actual_load_file_info(bool is_active)
{
    numbers_in_play = is_active ? number_storage.load_info().numbers : 0;
    show_load_file_info();
}

void MainWindow::show_load_file_info()
{
    const bool is_active = number_storage.load_active();
    ui->LB_actual_load_file->setVisible(is_active);
    const QString text =
        tr("Ladedatei: %1 (%2 Coups)")
            .arg(number_storage.get_load_file_name(), QString::number(numbers_in_play));
    ui->LB_actual_load_file->setText(is_active ? text : QString());
    show_load_file_entries();
}

void MainWindow::display_wait_actual_load_file_info()
{
    ui->LB_actual_load_file->setText(tr("Datei wird geladen - Bitte warten!"));
    ui->LB_actual_load_file->show();
}

void MainWindow::select_number_by_user_is_triggerd()
{
    if (number_dialog->isVisible()) return;
    const pause_scope pause(*this);
    number_dialog->setModal(true);
    number_dialog->set_manual_is_set(number_storage.get_source_mode() == number_source::manual);
    number_dialog->exec();
    show_selected_number();
}

void MainWindow::show_selected_number()
{
    const bool is_set = number_storage.get_source_mode() == number_source::manual;
    const QString number = is_set ? number_storage.manual_number_text() : QString();
    if (is_set) {
        ui->LB_selected_number->setText(tr("Nächste gewählte Roulettezahl: ") + number);
    }
    ui->LB_selected_number->setVisible(is_set);
    emit distribute_selected_manual_number(number);
}
