#ifndef CHART_LOOK_H
#define CHART_LOOK_H

#include <QFont>

#include <memory>

class QDialog;
class QwtPlot;
class QwtScaleDraw;
class QwtText;

/// The fonts of a chart, made smaller with the table.
struct chart_fonts {
    /// @param family  what the sizes are taken from
    /// @param reduction  0.0 (full size) to 0.3
    explicit chart_fonts(const QFont& family = QFont(), double reduction = 0.0);

    QFont title;
    QFont axis_title;
    QFont axis;
};

/// Black on a light ground, whatever the colours of the desktop are.
void give_chart_look(QwtPlot& plot);

/// A note upon a chart, black on light yellow; lines divided by line feeds. An empty text stays
/// empty.
QwtText chart_note(const QString& lines, const QFont& font);

/// Gives an axis other labels. The new scale takes the place of the old one at once, so that the
/// axis stays in line with the canvas.
void replace_scale_draw(QwtPlot& plot, int axis, std::unique_ptr<QwtScaleDraw> draw);

/// No more labels at an axis than fit side by side, and never more than told; to be called
/// whenever the layout has changed.
void fit_axis_labels(QwtPlot& plot, int axis, int most_labels);

constexpr int usual_label_count = 11; ///< of an axis of amounts

/// Shrinks a dialog around a chart: its size, its text, the indicators of its buttons and all
/// combo boxes whose names begin with "COB_". Called once, at full size.
void scale_chart_dialog(QDialog& dialog, double reduction);

#endif // CHART_LOOK_H
