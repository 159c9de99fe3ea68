#ifndef PICTURES_H
#define PICTURES_H

#include <QPixmap>
#include <QSize>
#include <QString>

/// Makes the compiled-in pictures available under their ":/" paths. Every program and test that
/// shows pictures calls it once at its start; further calls do nothing.
void init_pictures();

/// A picture shrunk by the rule of scale: each side v becomes the integer part of
/// v - reduction * v. The size counts in logical pixels; on a dense screen the picture holds
/// more. Drawn from the double-size twin ("name@2x.png") where there is one, so that it stays
/// sharp at every step; a picture at full size is the file as it stands. Cached. A path without a
/// picture gives a null pixmap.
/// @param reduction  0.0 to 0.3
/// @param pixel_ratio  device pixels per logical pixel of the screen
QPixmap scaled_picture(const QString& path, double reduction, qreal pixel_ratio = 1.0);

/// The same for a wanted size in logical pixels.
QPixmap picture_of_size(const QString& path, const QSize& size, qreal pixel_ratio = 1.0);

#endif // PICTURES_H
