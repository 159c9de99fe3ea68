#include "full_view_area.h"

full_view_area::full_view_area(QWidget* parent)
    : QScrollArea(parent)
{
}

QSize full_view_area::sizeHint() const
{
    if (!widget()) return QScrollArea::sizeHint();
    const int frames = 2 * frameWidth();
    return widget()->sizeHint() + QSize(frames, frames);
}
