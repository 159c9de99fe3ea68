#include "help_keys.h"
#include "mainwindow.h"
#include "program_language.h"
#include "setting.h"

#include <QProcess>

void MainWindow::create_help()
{
    f1 = std::make_unique<help_keys>();
    connect(f1.get(), &help_keys::help_wanted, this, &MainWindow::show_help);
}

void MainWindow::on_actionHilfe_triggered()
{
    show_help(QString());
}

void MainWindow::show_help(const QString& page)
{
    const general_setting::setting_language spoken = language->resolved(game_setting.language());
    if (!help.needs_help_program()) {
        help.open(spoken, page);
        return;
    }
    auto* process = new QProcess(this);
    connect(process,
            QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
            this,
            &MainWindow::delete_help_process_object);
    // A program that is not there never finishes.
    connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
    process->start(
        QStringLiteral("hh.exe"), help.help_program_arguments(spoken, page), QIODevice::ReadWrite);
}

void MainWindow::delete_help_process_object(int /*exit_code*/)
{
    if (sender()) sender()->deleteLater();
}
