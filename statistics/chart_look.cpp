#include "chart_look.h"

#include "chance_geometry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPen>
#include <QRadioButton>
#include <QRegularExpression>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace
{

// Points at full size, before the one point that keeps the smallest step readable.
constexpr int title_size = 13;
constexpr int axis_title_size = 10;
constexpr int axis_size = 9;

constexpr int indicator_size = 15; // of check boxes and radio buttons at full size
constexpr int label_gap = 4;       // pixels between two labels

QFont font_of_size(QFont font, int size, double reduction, QFont::Weight weight)
{
    font.setPointSize(scaled(size, reduction) + 1);
    font.setWeight(weight);
    return font;
}

QPalette light_palette()
{
    QPalette colours(QColor(232, 230, 224), QColor(246, 245, 240));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(role, Qt::black);
    colours.setColor(QPalette::Base, Qt::white);
    return colours;
}

QSize scaled_size(const QSize& size, double reduction)
{
    return {scaled(size.width(), reduction), scaled(size.height(), reduction)};
}

int point_size(const QFont& font)
{
    return font.pointSize() > 0 ? font.pointSize() : QFontInfo(font).pointSize();
}

void scale_combo_box(QComboBox& box, double reduction)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box.setMinimumSize(scaled_size(box.minimumSize(), reduction));
    box.setMaximumHeight(std::max(scaled(box.maximumHeight(), reduction), box.sizeHint().height()));
}

} // namespace

chart_fonts::chart_fonts(const QFont& family, double reduction)
    : title(font_of_size(family, title_size, reduction, QFont::Bold))
    , axis_title(font_of_size(family, axis_title_size, reduction, QFont::Normal))
    , axis(font_of_size(family, axis_size, reduction, QFont::Normal))
{
}

void give_chart_look(QwtPlot& plot)
{
    plot.setPalette(light_palette());
    plot.setAutoFillBackground(true);
    plot.setCanvasBackground(Qt::white);
    plot.setContentsMargins(6, 6, 10, 6);
    if (auto* canvas = qobject_cast<QwtPlotCanvas*>(plot.canvas())) {
        canvas->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
        canvas->setLineWidth(1);
        canvas->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
        canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false); // stays lines in a SVG
    }
}

QwtText chart_note(const QString& lines, const QFont& font)
{
    if (lines.isEmpty()) return QwtText();
    constexpr QChar space(QChar::Nbsp); // room beside the frame; plain ones count only inside
    QString spaced = space + lines + space;
    spaced.replace(QLatin1Char('\n'), space + QStringLiteral("\n") + space);
    QwtText note(spaced, QwtText::PlainText);
    note.setFont(font);
    note.setColor(Qt::black);
    note.setBackgroundBrush(QColor(255, 253, 228));
    note.setBorderPen(QPen(QColor(140, 130, 100)));
    note.setRenderFlags(Qt::AlignLeft | Qt::AlignVCenter);
    return note;
}

void replace_scale_draw(QwtPlot& plot, int axis, std::unique_ptr<QwtScaleDraw> draw)
{
    const QwtScaleDraw& former = *plot.axisScaleDraw(axis);
    draw->move(former.pos());
    draw->setLength(former.length());
    plot.setAxisScaleDraw(axis, draw.release());
}

void fit_axis_labels(QwtPlot& plot, int axis, int most_labels)
{
    const QwtScaleDraw* const draw = plot.axisScaleDraw(axis);
    const QwtScaleDiv& division = plot.axisScaleDiv(axis);
    const QFont font = plot.axisFont(axis);
    const bool is_horizontal = draw->orientation() == Qt::Horizontal;

    // The labels of all whole numbers if there are few, else of those that are longest.
    double label_size = QFontMetrics(font).height();
    if (is_horizontal) {
        const double first = std::ceil(division.lowerBound());
        const double last = std::floor(division.upperBound());
        const double step = std::max(1.0, (last - first) / 100);
        for (double value = first; value <= last; value += step)
            label_size = std::max(label_size, draw->label(value).textSize(font).width());
        label_size = std::max(label_size, draw->label(last).textSize(font).width());
    }
    const double gap = is_horizontal ? label_gap : label_size;
    const QRect canvas = plot.canvas()->contentsRect();
    const double room = is_horizontal ? canvas.width() : canvas.height();
    const int fitting = static_cast<int>(room / (label_size + gap));
    const int wanted = std::clamp(fitting, 2, most_labels);
    if (plot.axisMaxMajor(axis) != wanted) plot.setAxisMaxMajor(axis, wanted);
}

void scale_chart_dialog(QDialog& dialog, double reduction)
{
    if (reduction > 0.0) {
        QFont font = dialog.font();
        font.setPointSize(scaled(point_size(font), reduction) + 1);
        dialog.setFont(font);
    }
    const int indicator = scaled(indicator_size, reduction);
    const QString style = QStringLiteral("%1::indicator { width:%2px; height:%2px;}");
    const auto check_boxes = dialog.findChildren<QCheckBox*>();
    for (QCheckBox* box : check_boxes)
        box->setStyleSheet(style.arg(QStringLiteral("QCheckBox")).arg(indicator));
    const auto radio_buttons = dialog.findChildren<QRadioButton*>();
    for (QRadioButton* button : radio_buttons)
        button->setStyleSheet(style.arg(QStringLiteral("QRadioButton")).arg(indicator));
    const auto combo_boxes =
        dialog.findChildren<QComboBox*>(QRegularExpression(QStringLiteral("^COB_")));
    for (QComboBox* box : combo_boxes)
        scale_combo_box(*box, reduction);
    dialog.resize(scaled_size(dialog.size(), reduction).expandedTo(dialog.minimumSizeHint()));
}
