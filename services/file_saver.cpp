#include "file_saver.h"

#include "file_dialog.h"
#include "message_box.h"
#include "whole_file.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace
{

/// Where the next dialog opens.
QString& last_folder()
{
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(folder).isDir()) folder = QDir::homePath();
    return folder;
}

/// A folder, device or pipe, which a file must not replace.
bool is_no_file(const QString& path)
{
    const QFileInfo target(path);
    return target.exists() && !target.isFile();
}

} // namespace

// The dialog of the platform does not add the ending, so it has not asked about that file.
QString file_saver::ask_for_path(QWidget* parent, const saved_file& file)
{
    const QString proposal = QDir(last_folder()).filePath(file.name + '.' + file.ending);
    QString path = file_dialog::save_file(parent, {file.title, proposal, file.filter});
    if (path.isEmpty()) return {};
    last_folder() = QFileInfo(path).absolutePath();
    if (!QFileInfo(path).suffix().isEmpty()) return path;
    path += '.' + file.ending;
    if (!QFileInfo::exists(path)) return path;
    const QString question =
        tr("Die Datei %1 ist schon da. Soll sie überschrieben werden?").arg(path);
    return message_box::ask(parent, tr("Zarvello Info"), question) ? path : QString();
}

QString file_saver::save_to(const QString& path, const saved_file& file)
{
    if (is_no_file(path)) return tr("Das ist keine gewöhnliche Datei.");
    const QByteArray content = file.content();
    return content.isEmpty() ? tr("Der Inhalt konnte nicht erzeugt werden.")
                             : write_whole_file(path, content);
}

bool file_saver::save(QWidget* parent, const saved_file& file)
{
    const QString path = ask_for_path(parent, file);
    if (path.isEmpty()) return false;
    const QString reason = save_to(path, file);
    if (reason.isEmpty()) return true;
    message_box::tell(parent,
                      tr("Zarvello Info"),
                      tr("Die Datei %1 konnte nicht gespeichert werden.\n%2").arg(path, reason),
                      QMessageBox::Warning);
    return false;
}
