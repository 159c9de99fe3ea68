#ifndef DOWNLOAD_UPDATE_DIALOG_H
#define DOWNLOAD_UPDATE_DIALOG_H

#include <QDialog>
#include <QFile>
#include <QNetworkReply>
#include <QTimer>

#include <functional>
#include <memory>

class QNetworkAccessManager;

namespace Ui
{
class download_update_dialog;
}

/**
 * Fetches the setup program of a newer version into the folder "./update", shows how far it is,
 * and ends the program for it.
 *
 * Behind a download that broke off the program ends too, but what came of the file is not started.
 * Closed before that, the dialog breaks the download off and the program goes on; the file stays
 * as it is.
 */
class download_update_dialog : public QDialog
{
    Q_OBJECT

public:
    /// @param version  of the program that is fetched, such as "V4.10.0"; it is only shown
    explicit download_update_dialog(const QString& version, QWidget* parent = nullptr);
    ~download_update_dialog() override;

    /// Starts a program that outlives this one; false if it can't be started.
    using program_starter = std::function<bool(const QString& file)>;
    /// Stands in for the platform in a test; an empty function takes it back.
    static void set_program_starter(program_starter stand_in);

public slots:
    /// Begins the download and shows the dialog until it is closed. With a file that can't be
    /// written nothing is fetched, and the dialog says so.
    int exec() override;

    /// Breaks off what is under way.
    void done(int result) override;

signals:
    /// The setup program has been asked for.
    void start_download();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void downloadFinished();
    /// Takes the name under which what an address gives is kept.
    void saveFileName(const QUrl& url);
    /// Unit: bytes. A total below 1 is not known and shows nothing.
    void downloadProgress(qlonglong bytesReceived, qlonglong bytesTotal);
    void update_ready_read();
    void downloadError(QNetworkReply::NetworkError);
    void shutdownProgram();

private:
    enum class phase { loading, complete, failed };

    void request_setup_program();
    bool store_received();
    void show_texts();
    void show_failure();
    void break_off();

    std::unique_ptr<Ui::download_update_dialog> ui;
    QString version;
    QFile file;
    QNetworkAccessManager* access = nullptr; // a child of the dialog
    QNetworkReply* reply = nullptr;          // a child of the access
    int last_percent = -1;
    QTimer shutdown_timer{this};
    phase current_phase = phase::loading;
};

#endif // DOWNLOAD_UPDATE_DIALOG_H
