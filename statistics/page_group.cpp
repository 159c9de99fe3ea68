#include "page_group.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

static constexpr int corner_radius = 4;
static constexpr int title_gap = 2; // px between the title and the frame

page_group::page_group(QWidget* parent)
    : QGroupBox(parent)
{
}

QRect page_group::part_of(const QStyleOptionGroupBox& option, QStyle::SubControl part) const
{
    return style()->subControlRect(QStyle::CC_GroupBox, &option, part, this);
}

void page_group::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    QRect frame = part_of(option, QStyle::SC_GroupBoxFrame);
    frame.setTop(part_of(option, QStyle::SC_GroupBoxLabel).bottom() + title_gap);
    option.subControls &= ~QStyle::SubControls(QStyle::SC_GroupBoxFrame);
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRoundedRect(
        QRectF(frame).adjusted(0.5, 0.5, -0.5, -0.5), corner_radius, corner_radius);
}
