#ifndef MESSAGE_BOX_H
#define MESSAGE_BOX_H

#include <QMessageBox>

/// The boxes in which the program speaks to its user: modal, and never twice on the screen with
/// the same title and text.
namespace message_box
{

/// Tells something; returns when the user has closed the box.
void tell(QWidget* parent,
          const QString& title,
          const QString& text,
          QMessageBox::Icon icon = QMessageBox::Information);

/// Asks a question to be answered by Yes or No; No is the default and what Escape answers. True
/// for Yes. False too while the same question is open already.
bool ask(QWidget* parent,
         const QString& title,
         const QString& text,
         QMessageBox::Icon icon = QMessageBox::Question);

/// Shows a box that the caller has built, if no box of the same title and text is open; returns
/// the button, `NoButton` if it was not shown.
QMessageBox::StandardButton show(QMessageBox& box);

} // namespace message_box

#endif // MESSAGE_BOX_H
