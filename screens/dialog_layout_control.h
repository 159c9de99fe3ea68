#ifndef DIALOG_LAYOUT_CONTROL_H
#define DIALOG_LAYOUT_CONTROL_H

#include <QDialog>
#include <QFont>
#include <QHash>
#include <QMargins>
#include <QPointer>
#include <QRect>
#include <QStringList>

#include <vector>

class QLayout;
class setting;

/**
 * A dialog that follows the scale of the table: designed once at full size, it shrinks and grows
 * with its fonts, its children and the gaps between them.
 *
 * A derived dialog builds its children, gives them object names, sets its full size and calls
 * `remember_full_size()` as the last act of its constructor.
 */
class dialog_layout_control : public QDialog
{
    Q_OBJECT

public:
    /// The settings tell the scale and must outlive the dialog.
    explicit dialog_layout_control(const setting& settings, QWidget* parent = nullptr);

    /// The reduction in which the dialog is laid out. Range: 0.0 (full size) to 0.3.
    double reduction() const { return current_reduction; }

public slots:
    /// Lays the dialog out for the reduction of the settings and fixes its size: the scaled full
    /// size, or more if the texts need more with the fonts of this desktop.
    virtual void modify_window_based_on_scale();

protected:
    /// Keeps size and font of the dialog and of all children that have an object name, as they
    /// are now, as those of the full size. Called once, while the dialog is at full size. A size
    /// that is too small for its contents grows.
    void remember_full_size();

    /// Texts of another language may need more room.
    bool event(QEvent* event) override;

private:
    struct full_size_child {
        QFont font; ///< empty if the child takes the font of its parent
        QSize minimum;
        QSize maximum;
        QString style_sheet;
    };
    struct full_size_layout {
        QPointer<QLayout> layout;
        QMargins margins;
        int horizontal_gap = 0;
        int vertical_gap = 0;
    };

    void fix_size();
    void restore_full_size();
    void scale_down();
    void scale_child(QWidget& child, const full_size_child& full, const QFont& font);
    void scale_layouts();
    void limit_button_boxes();
    QFont font_for_reduction() const;
    bool is_scaled_class(const QWidget& child) const;

    const setting& scale_setting;
    double current_reduction = 0.0;
    QRect full_rectangle;
    QFont full_font;      // empty if the dialog takes the font of the program
    QFont full_text_font; // what it writes with
    QStringList scaled_classes;
    QHash<QString, full_size_child> full_children;
    std::vector<full_size_layout> full_layouts;
};

#endif // DIALOG_LAYOUT_CONTROL_H
