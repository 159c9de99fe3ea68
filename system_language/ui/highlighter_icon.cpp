#include "highlighter_icon.h"

#include "pictures.h"

#include <QIcon>

static QIcon picture_of(bool on)
{
    const QString path = on ? QStringLiteral(":/editoricon/grafik/editoricon/edit-icon.png")
                            : QStringLiteral(":/editoricon/grafik/editoricon/no-edit-icon.png");
    QIcon icon(scaled_picture(path, 0.0));
    icon.addPixmap(scaled_picture(path, 0.0, 2.0));
    return icon;
}

highlighter_icon::highlighter_icon(QObject* parent)
    : QAction(parent)
{
    init_pictures();
    setCheckable(true);
    refresh_text();
    show_state(true);
}

void highlighter_icon::refresh_text()
{
    setText(tr("Syntax Highligther"));
}

void highlighter_icon::highlighter_activ()
{
    show_state(true);
}

void highlighter_icon::highlighter_not_activ()
{
    show_state(false);
}

void highlighter_icon::change_icon()
{
    show_state(!colours_are_on);
    if (colours_are_on) {
        emit enable_highlighter();
    } else {
        emit disable_highlighter();
    }
}

void highlighter_icon::show_state(bool on)
{
    colours_are_on = on;
    setChecked(on);
    setIcon(picture_of(on));
}
