#include "file_dialog.h"

#include <QFileDialog>

namespace
{

file_dialog::chooser& stand_in_chooser()
{
    static file_dialog::chooser current;
    return current;
}

} // namespace

QString file_dialog::open_file(QWidget* parent, const request& what)
{
    if (stand_in_chooser()) return stand_in_chooser()(what);
    return QFileDialog::getOpenFileName(parent, what.title, what.folder, what.filter);
}

QString file_dialog::save_file(QWidget* parent, const request& what)
{
    if (stand_in_chooser()) return stand_in_chooser()(what);
    const QFileDialog::Options options =
        what.confirms_overwriting ? QFileDialog::Options() : QFileDialog::DontConfirmOverwrite;
    return QFileDialog::getSaveFileName(
        parent, what.title, what.folder, what.filter, nullptr, options);
}

void file_dialog::set_chooser(chooser stand_in)
{
    stand_in_chooser() = std::move(stand_in);
}
