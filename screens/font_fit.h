#ifndef FONT_FIT_H
#define FONT_FIT_H

#include <QFont>
#include <QSize>
#include <QString>

class QWidget;

/// The font with its point size lowered, one point at a time, until a text fits into a room.
/// At least 1 point remains. Unit of the room: pixels.
QFont font_for_room(QFont font, const QString& text, const QSize& room);

/// The same where only the width matters.
QFont font_for_width(const QFont& font, const QString& text, int width);

/// Gives a widget a font unless it has its size and weight already: with a style sheet around, a
/// font that is set again costs as much as a new one.
void give_font(QWidget& widget, const QFont& font);

#endif // FONT_FIT_H
