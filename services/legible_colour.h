#ifndef LEGIBLE_COLOUR_H
#define LEGIBLE_COLOUR_H

#include <QColor>

/// How well two colours stand out against each other: from 1, the same, to 21, black and white.
/// Text is easy to read from 4.5 on.
double contrast_of(const QColor& one, const QColor& other);

/// A fixed colour of a text that stands on a ground of the desktop. On a light ground it is the
/// wanted one; on a dark one as light a tone of it as can be read.
QColor legible_colour(const QColor& wanted, const QColor& ground);

#endif // LEGIBLE_COLOUR_H
