#include "download_update_dialog.h"

#include "font_fit.h"
#include "legible_colour.h"
#include "ui_download_update_dialog.h"
#include "update_server.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QEvent>
#include <QNetworkAccessManager>
#include <QProcess>
#include <QPushButton>

static constexpr int width_of_dialog = 440;
static constexpr int height_of_dialog = 173;
static constexpr int raise_of_head = 6;    // points
static constexpr int time_to_read = 10000; // ms
static const char update_folder[] = "./update";

namespace
{

download_update_dialog::program_starter& stand_in_starter()
{
    static download_update_dialog::program_starter current;
    return current;
}

bool start_program(const QString& file)
{
    if (stand_in_starter()) return stand_in_starter()(file);
    return QProcess::startDetached(file, {});
}

} // namespace

download_update_dialog::download_update_dialog(const QString& new_version, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::download_update_dialog>())
    , version(new_version)
{
    ui->setupUi(this);
    setFixedSize(width_of_dialog, height_of_dialog);
    ui->LB_download_complete->hide();
    shutdown_timer.setObjectName(QStringLiteral("shutdown_timer"));
    shutdown_timer.setSingleShot(true);
    shutdown_timer.setInterval(time_to_read);
    connect(&shutdown_timer, &QTimer::timeout, this, &download_update_dialog::shutdownProgram);
    show_texts();
}

download_update_dialog::~download_update_dialog()
{
    break_off();
}

void download_update_dialog::set_program_starter(program_starter stand_in)
{
    stand_in_starter() = std::move(stand_in);
}

int download_update_dialog::exec()
{
    QDir().mkpath(QString::fromLatin1(update_folder));
    saveFileName(update_server::current().url(QString::fromLatin1(update_server::setup_program)));
    if (file.open(QIODevice::WriteOnly)) {
        request_setup_program();
    } else {
        show_failure();
    }
    return QDialog::exec();
}

void download_update_dialog::request_setup_program()
{
    access = new QNetworkAccessManager(this);
    reply = access->get(
        update_server::current().request(QString::fromLatin1(update_server::setup_program)));
    connect(reply, &QNetworkReply::readyRead, this, &download_update_dialog::update_ready_read);
    connect(
        reply, &QNetworkReply::downloadProgress, this, &download_update_dialog::downloadProgress);
    connect(reply, &QNetworkReply::finished, this, &download_update_dialog::downloadFinished);
    connect(reply, &QNetworkReply::errorOccurred, this, &download_update_dialog::downloadError);
    emit start_download();
}

void download_update_dialog::saveFileName(const QUrl& url)
{
    file.setFileName(QString::fromLatin1(update_folder) + QLatin1Char('/') + url.fileName());
}

void download_update_dialog::update_ready_read()
{
    if (!store_received()) reply->abort();
}

/// False when the disk takes no more.
bool download_update_dialog::store_received()
{
    if (!reply->isOpen() || !file.isOpen()) return true;
    const QByteArray bytes = reply->readAll();
    return file.write(bytes) == bytes.size() && file.flush();
}

void download_update_dialog::downloadProgress(qlonglong bytesReceived, qlonglong bytesTotal)
{
    if (bytesTotal < 1) return;
    const double percent =
        100.0 / static_cast<double>(bytesTotal) * static_cast<double>(bytesReceived);
    const int whole_percent = static_cast<int>(percent);
    if (whole_percent == last_percent) return;
    last_percent = whole_percent;
    ui->PB_download->setValue(whole_percent);
}

void download_update_dialog::downloadFinished()
{
    if (!store_received()) downloadError(QNetworkReply::UnknownContentError);
    ui->PB_download->setValue(ui->PB_download->maximum());
    file.close();
    if (current_phase == phase::loading) current_phase = phase::complete;
    ui->PB_download->hide();
    ui->LB_download_complete->show();
    shutdown_timer.start();
}

void download_update_dialog::downloadError(QNetworkReply::NetworkError)
{
    qWarning() << "download of the update:" << reply->errorString();
    show_failure();
}

void download_update_dialog::show_failure()
{
    current_phase = phase::failed;
    ui->PB_download->hide();
    const QColor colour = legible_colour(Qt::red, palette().color(QPalette::Window));
    const QString name = colour == Qt::red ? QStringLiteral("red") : colour.name();
    ui->LB_download_complete->setStyleSheet(QStringLiteral("QLabel { color : %1; }").arg(name));
    ui->buttonBox->setStandardButtons(QDialogButtonBox::Close);
    show_texts();
    ui->LB_download_complete->show();
}

void download_update_dialog::shutdownProgram()
{
    if (current_phase == phase::complete && !start_program(file.fileName()))
        qWarning() << "can't start" << file.fileName();
    QCoreApplication::quit();
}

void download_update_dialog::done(int result)
{
    break_off();
    QDialog::done(result);
}

void download_update_dialog::break_off()
{
    shutdown_timer.stop();
    if (reply) {
        reply->disconnect(this);
        reply->abort();
    }
    file.close();
}

void download_update_dialog::show_texts()
{
    ui->LB_head_download->setText(tr("Download Zarvello") + QLatin1Char(' ') + version);
    QFont font = this->font();
    font.setPointSize(font.pointSize() + raise_of_head);
    const QMargins margins = layout()->contentsMargins();
    ui->LB_head_download->setFont(font_for_width(
        font, ui->LB_head_download->text(), width() - margins.left() - margins.right()));
    if (current_phase != phase::failed) return;
    ui->LB_download_complete->setText(
        tr("Download wurde mit einem Fehler abgebrochen!\n"
           "Laden Sie bitte den Update direkt von der Homepage herunter!"));
}

void download_update_dialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    ui->retranslateUi(this);
    show_texts();
}
