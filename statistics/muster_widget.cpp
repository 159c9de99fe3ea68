#include "muster_widget.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace
{

constexpr int least_grid_size = 2;

// Paper and frame suit all colours of the courses, whatever the desktop looks like.
constexpr QRgb paper_colour = qRgb(252, 250, 243);
constexpr QRgb frame_colour = qRgb(168, 168, 168);

} // namespace

muster_widget::muster_widget(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    set_vertical(false);
}

void muster_widget::set_course(const QVector<Qt::GlobalColor>& colours)
{
    course = colours;
    arrange(0);
}

void muster_widget::set_vertical(bool on)
{
    const int first = first_seen();
    is_vertical = on;
    setHorizontalScrollBarPolicy(on ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(on ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
    arrange(first);
}

void muster_widget::set_grid_size(int pixels)
{
    const int first = first_seen();
    grid_size = std::max(pixels, least_grid_size);
    arrange(first);
}

void muster_widget::set_tool_tips(std::function<QString(int)> text_of)
{
    tool_tip = std::move(text_of);
}

/// The bar that scrolls over the lines.
QScrollBar& muster_widget::bar() const
{
    return is_vertical ? *horizontalScrollBar() : *verticalScrollBar();
}

int muster_widget::first_seen() const
{
    return bar().value() / grid_size * per_line;
}

/// Breaks the course into lines of the room there is, with the line of one coup at the edge.
void muster_widget::arrange(int first)
{
    const QSize room = viewport()->size();
    const int line_room = is_vertical ? room.height() : room.width();
    const int page = is_vertical ? room.width() : room.height();
    per_line = std::max((line_room - 1) / grid_size, 1); // the last frame closes behind its square
    const int lines = (course.size() + per_line - 1) / per_line;
    const int length = lines * grid_size + 1;
    bar().setRange(0, std::max(length - page, 0));
    bar().setPageStep(page);
    bar().setSingleStep(grid_size);
    bar().setValue(first / per_line * grid_size);
    viewport()->update();
}

QRect muster_widget::square(int index) const
{
    const int along = index / per_line * grid_size - bar().value();
    const int across = index % per_line * grid_size;
    return is_vertical ? QRect(along, across, grid_size, grid_size)
                       : QRect(across, along, grid_size, grid_size);
}

int muster_widget::index_at(const QPoint& point) const
{
    const int along = (is_vertical ? point.x() : point.y()) + bar().value();
    const int across = is_vertical ? point.y() : point.x();
    const bool is_in_line = across >= 0 && across < per_line * grid_size;
    if (along < 0 || !is_in_line) return -1;
    const int index = along / grid_size * per_line + across / grid_size;
    return index < course.size() ? index : -1;
}

void muster_widget::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), QColor(paper_colour));

    const int begin = first_seen();
    const int page = is_vertical ? viewport()->width() : viewport()->height();
    const int lines = page / grid_size + 2; // the first and the last may be cut
    const int end = std::min(begin + lines * per_line, course.size());
    QVector<QRect> frames;
    for (int index = begin; index < end; ++index) {
        const QRect place = square(index);
        painter.fillRect(place, course.at(index));
        frames.append(place);
    }
    painter.setPen(QColor(frame_colour));
    painter.drawRects(frames);
}

void muster_widget::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    arrange(first_seen());
}

void muster_widget::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
}

bool muster_widget::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    show_tool_tip(*static_cast<QHelpEvent*>(event));
    return true;
}

// There is one direction to scroll in, and the wheel knows it.
void muster_widget::wheelEvent(QWheelEvent* event)
{
    QCoreApplication::sendEvent(&bar(), event);
}

void muster_widget::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Home:
        bar().setValue(bar().minimum());
        return;
    case Qt::Key_End:
        bar().setValue(bar().maximum());
        return;
    case Qt::Key_PageUp:
        bar().triggerAction(QScrollBar::SliderPageStepSub);
        return;
    case Qt::Key_PageDown:
        bar().triggerAction(QScrollBar::SliderPageStepAdd);
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void muster_widget::show_tool_tip(const QHelpEvent& help) const
{
    const int index = index_at(help.pos());
    const QString text = index >= 0 && tool_tip ? tool_tip(index) : QString();
    QToolTip::showText(help.globalPos(), text, viewport(), index >= 0 ? square(index) : QRect());
}
