#ifndef WINDOW_FONT_H
#define WINDOW_FONT_H

#include "chance_geometry.h"

#include <QFont>
#include <QFontInfo>

/// The font of a window beside the table that is drawn with a reduction: one point above the rule
/// of scale, so that the smallest step stays readable. At full size the font as it is.
/// Range: 0.0 to 0.3.
inline QFont window_font(QFont font, double reduction)
{
    if (reduction <= 0.0) return font;
    const int full_size = QFontInfo(font).pointSize();
    font.setPointSize(scaled(full_size, reduction) + 1);
    return font;
}

#endif // WINDOW_FONT_H
