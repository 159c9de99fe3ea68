#ifndef FILE_SAVER_H
#define FILE_SAVER_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>

class QWidget;

/// What is to be saved, and how the user is asked for the place.
struct saved_file {
    QString title;                       ///< of the file dialog
    QString name;                        ///< proposed file name, without ending
    QString ending;                      ///< as "csv"; added to a name that has none
    QString filter;                      ///< entries divided by ";;"
    std::function<QByteArray()> content; ///< asked when the place is known; empty: it failed
};

/**
 * Asks where a file is to be saved and writes it; the old file stays as it is until the new one
 * is complete. The dialog opens where the last file was saved in this run of the program, at
 * first in the documents of the user.
 */
class file_saver
{
    Q_DECLARE_TR_FUNCTIONS(file_saver)

public:
    /// A file that can't be written is told, as is a path that leads to a folder, device or pipe.
    /// False then, and when the user cancels.
    static bool save(QWidget* parent, const saved_file& file);

private:
    static QString ask_for_path(QWidget* parent, const saved_file& file);
    static QString save_to(const QString& path, const saved_file& file); // empty, or why it failed
};

#endif // FILE_SAVER_H
