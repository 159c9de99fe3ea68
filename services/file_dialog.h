#ifndef FILE_DIALOG_H
#define FILE_DIALOG_H

#include <QString>

#include <functional>

class QWidget;

/// The one door to the file dialogs of the platform.
namespace file_dialog
{

/// What a file dialog is asked with.
struct request {
    QString title;
    QString folder; ///< where it opens; with a file name behind it, that name is proposed
    QString filter; ///< entries divided by ";;"
    bool confirms_overwriting = true; ///< `save_file()` asks before an existing file is taken
};

/// Asks for an existing file; empty when the user cancels.
QString open_file(QWidget* parent, const request& what);

/// Asks for a file to write; empty when the user cancels.
QString save_file(QWidget* parent, const request& what);

/// Stands in for the user: while set, no dialog opens and the function answers with the path.
/// An empty function takes it back.
using chooser = std::function<QString(const request&)>;
void set_chooser(chooser stand_in);

} // namespace file_dialog

#endif // FILE_DIALOG_H
