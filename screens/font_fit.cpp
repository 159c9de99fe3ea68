#include "font_fit.h"

#include <QFontMetrics>
#include <QWidget>

#include <limits>

QFont font_for_room(QFont font, const QString& text, const QSize& room)
{
    while (font.pointSize() > 1) {
        const QFontMetrics metrics(font);
        const bool fits =
            metrics.horizontalAdvance(text) <= room.width() && metrics.height() <= room.height();
        if (fits) break;
        font.setPointSize(font.pointSize() - 1);
    }
    return font;
}

QFont font_for_width(const QFont& font, const QString& text, int width)
{
    return font_for_room(font, text, {width, std::numeric_limits<int>::max()});
}

void give_font(QWidget& widget, const QFont& font)
{
    const QFont current = widget.font();
    if (current.pointSize() == font.pointSize() && current.weight() == font.weight()) return;
    widget.setFont(font);
}
