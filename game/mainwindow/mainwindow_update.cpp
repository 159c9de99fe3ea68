#include "download_update_dialog.h"
#include "historystorage.h"
#include "mainwindow.h"
#include "message_box.h"
#include "setting.h"
#include "ui_mainwindow.h"
#include "update_server.h"
#include "version_check.h"
#include "window_places.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <utility>

/// The start does not wait for an answer: it is asked for once the event loop runs.
void MainWindow::create_update_check()
{
    connect(this, &MainWindow::makeUpdateCheck, this, &MainWindow::execute_update_check);
    connect(
        this, &MainWindow::open_download_dialog, this, &MainWindow::open_download_progress_dialog);
    ui->actionUpdate->setEnabled(update_server::current().is_set());
    const auto check_by_itself = [this] {
        if (game_setting.s_auto_update_check()) emit makeUpdateCheck();
    };
    QMetaObject::invokeMethod(this, check_by_itself, Qt::QueuedConnection);
}

/// An answer that is still awaited comes to nobody.
void MainWindow::end_update_check()
{
    if (update_reply) disconnect(update_reply, nullptr, this, nullptr);
}

void MainWindow::on_actionUpdate_triggered()
{
    update_asked_by_user = true;
    emit makeUpdateCheck();
}

void MainWindow::execute_update_check()
{
    const update_server& server = update_server::current();
    if (!server.is_set() || update_reply) return;
    if (!update_access) update_access = new QNetworkAccessManager(this);
    update_reply =
        update_access->get(server.request(QString::fromLatin1(update_server::version_file)));
    connect(update_reply, &QNetworkReply::finished, this, &MainWindow::httpReady_update_check);
    connect(update_reply, &QIODevice::readyRead, this, [this] {
        if (update_reply->bytesAvailable() > version_check::largest_file) update_reply->abort();
    });
}

/// Whatever is wrong with the answer ends the search quietly, unless the user has asked for it.
void MainWindow::httpReady_update_check()
{
    QNetworkReply* reply = std::exchange(update_reply, nullptr);
    const bool is_told = std::exchange(update_asked_by_user, false);
    QString version;
    if (reply->error() == QNetworkReply::NoError)
        version = version_check::version_text(QString::fromUtf8(reply->readAll()));
    reply->deleteLater();
    if (version_check::is_newer(version)) {
        offer_update(version);
    } else if (is_told) {
        tell_no_update(version);
    }
}

void MainWindow::offer_update(const QString& version)
{
    const pause_scope pause(*this);
    QMessageBox box(QMessageBox::Question,
                    tr("Zarvello Info"),
                    tr("Es ist eine neue Zarvello Version (") + version +
                        tr(") verfügbar. Soll die neue Version heruntergeladen und installiert "
                           "werden?"),
                    QMessageBox::Yes | QMessageBox::No,
                    this);
    box.setDefaultButton(QMessageBox::Yes);
    box.setTextFormat(Qt::PlainText); // the version comes from outside
    if (message_box::show(box) == QMessageBox::Yes) emit open_download_dialog(version);
}

void MainWindow::tell_no_update(const QString& version)
{
    const pause_scope pause(*this);
    const bool is_answer = version_check::version_numbers(version).has_value();
    message_box::tell(this,
                      tr("Zarvello Info"),
                      is_answer ? tr("Es ist keine neuere Zarvello Version verfügbar.")
                                : tr("Vom Update-Server kam keine gültige Antwort."),
                      is_answer ? QMessageBox::Information : QMessageBox::Warning);
}

/// The download ends with the end of the program, so a changed text is asked for before it, and
/// the run is put where a disk that the download fills can't hurt it.
void MainWindow::open_download_progress_dialog(const QString& version)
{
    if (!may_close_editor()) return;
    const pause_scope pause(*this);
    history->write_draft();
    places->remember_all();
    auto* dialog = new download_update_dialog(version, this);
    dialog->exec();
    dialog->deleteLater();
}
