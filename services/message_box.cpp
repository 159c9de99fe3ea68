#include "message_box.h"

#include <QPointer>
#include <QVector>

namespace
{

QVector<QPointer<QMessageBox>> open_boxes;

bool is_shown(const QString& title, const QString& text)
{
    for (const QPointer<QMessageBox>& box : qAsConst(open_boxes)) {
        if (box && box->windowTitle() == title && box->text() == text) return true;
    }
    return false;
}

} // namespace

QMessageBox::StandardButton message_box::show(QMessageBox& box)
{
    if (is_shown(box.windowTitle(), box.text())) return QMessageBox::NoButton;
    open_boxes.append(&box);
    const int button = box.exec();
    open_boxes.removeAll(&box);
    return static_cast<QMessageBox::StandardButton>(button);
}

void message_box::tell(QWidget* parent,
                       const QString& title,
                       const QString& text,
                       QMessageBox::Icon icon)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    show(box);
}

bool message_box::ask(QWidget* parent,
                      const QString& title,
                      const QString& text,
                      QMessageBox::Icon icon)
{
    QMessageBox box(icon, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return show(box) == QMessageBox::Yes;
}
