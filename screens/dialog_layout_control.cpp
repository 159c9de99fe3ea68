#include "dialog_layout_control.h"

#include "chance_geometry.h"
#include "setting.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFontInfo>
#include <QGridLayout>
#include <QLayout>
#include <QLineEdit>

namespace
{

constexpr int indicator_size = 15; // of radio buttons and check boxes at full size

QFont own_font(const QWidget& widget)
{
    return widget.testAttribute(Qt::WA_SetFont) ? widget.font() : QFont();
}

int point_size(const QFont& font)
{
    return font.pointSize() > 0 ? font.pointSize() : QFontInfo(font).pointSize();
}

QSize scaled_size(const QSize& size, double reduction)
{
    return {scaled(size.width(), reduction), scaled(size.height(), reduction)};
}

QMargins scaled_margins(const QMargins& margins, double reduction)
{
    return {scaled(margins.left(), reduction),
            scaled(margins.top(), reduction),
            scaled(margins.right(), reduction),
            scaled(margins.bottom(), reduction)};
}

QString indicator_style(const QWidget& child, double reduction)
{
    const QString style = QStringLiteral("%1::indicator { width: %2px; height: %2px;}");
    const int size = scaled(indicator_size, reduction);
    if (child.inherits("QRadioButton")) return style.arg("QRadioButton").arg(size);
    if (child.inherits("QCheckBox")) return style.arg("QCheckBox").arg(size);
    return {};
}

// The field inside of a spin box or combo box does not always follow the font of its owner.
void set_font_within(QWidget& child, const QFont& font)
{
    child.setFont(font);
    const auto parts = child.findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLineEdit* part : parts)
        part->setFont(font);
}

void set_gaps(QLayout& layout, int horizontal, int vertical)
{
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
        grid->setHorizontalSpacing(horizontal);
        grid->setVerticalSpacing(vertical);
    } else if (horizontal >= 0) {
        layout.setSpacing(horizontal);
    }
}

} // namespace

dialog_layout_control::dialog_layout_control(const setting& settings, QWidget* parent)
    : QDialog(parent)
    , scale_setting(settings)
    , scaled_classes({"QSlider",
                      "QDateEdit",
                      "QLabel",
                      "QComboBox",
                      "QTableWidget",
                      "QPushButton",
                      "QSpinBox",
                      "QLineEdit",
                      "QCheckBox",
                      "QRadioButton"})
{
}

void dialog_layout_control::remember_full_size()
{
    ensurePolished();
    full_rectangle = QRect(pos(), size().expandedTo(minimumSizeHint()));
    full_font = own_font(*this);
    full_text_font = font();
    const auto children = findChildren<QWidget*>();
    for (const QWidget* child : children) {
        const QString name = child->objectName();
        if (name.isEmpty() || name.startsWith(QLatin1String("qt_"))) continue;
        full_children.insert(
            name,
            {own_font(*child), child->minimumSize(), child->maximumSize(), child->styleSheet()});
    }
    const auto layouts = findChildren<QLayout*>();
    for (QLayout* layout : layouts) {
        const auto* grid = qobject_cast<QGridLayout*>(layout);
        full_layouts.push_back({layout,
                                layout->contentsMargins(),
                                grid ? grid->horizontalSpacing() : layout->spacing(),
                                grid ? grid->verticalSpacing() : layout->spacing()});
    }
    modify_window_based_on_scale();
}

void dialog_layout_control::modify_window_based_on_scale()
{
    if (full_rectangle.isEmpty()) return;
    current_reduction = scale_setting.scale_reduction();
    if (current_reduction > 0.0) {
        scale_down();
    } else {
        restore_full_size();
    }
    limit_button_boxes();
    scale_layouts();
    fix_size();
}

// Behind the event all children have their new texts too.
bool dialog_layout_control::event(QEvent* event)
{
    const bool is_handled = QDialog::event(event);
    const bool is_new_text = event->type() == QEvent::LanguageChange;
    if (is_new_text && !full_rectangle.isEmpty()) fix_size();
    return is_handled;
}

// Fonts shrink less than sizes. The rule decides, unless it left a text without its room, as it
// can by reason of a large desktop font.
void dialog_layout_control::fix_size()
{
    const QSize size = scaled_size(full_rectangle.size(), current_reduction);
    if (layout()) {
        layout()->invalidate();
        layout()->activate(); // reaches the layouts within
    }
    setFixedSize(size.expandedTo(minimumSizeHint()));
}

void dialog_layout_control::restore_full_size()
{
    setFont(full_font);
    for (auto full = full_children.cbegin(); full != full_children.cend(); ++full) {
        auto* child = findChild<QWidget*>(full.key());
        if (!child) continue;
        child->setStyleSheet(full->style_sheet);
        set_font_within(*child, full->font);
        child->setMinimumSize(full->minimum);
        child->setMaximumSize(full->maximum);
    }
}

void dialog_layout_control::scale_down()
{
    const QFont font = font_for_reduction();
    setFont(font);
    for (auto full = full_children.cbegin(); full != full_children.cend(); ++full) {
        auto* child = findChild<QWidget*>(full.key());
        if (child) scale_child(*child, *full, font);
    }
}

void dialog_layout_control::scale_child(QWidget& child,
                                        const full_size_child& full,
                                        const QFont& font)
{
    const QString style = indicator_style(child, current_reduction);
    if (!style.isEmpty()) child.setStyleSheet(full.style_sheet + style);
    set_font_within(child, font);
    if (!is_scaled_class(child)) return;
    child.setMinimumSize(scaled_size(full.minimum, current_reduction));
    child.setMaximumSize(scaled_size(full.maximum, current_reduction));
}

// The gaps between the children shrink as well; at full size the rule leaves them as they are.
void dialog_layout_control::scale_layouts()
{
    for (const full_size_layout& full : full_layouts) {
        if (!full.layout) continue;
        full.layout->setContentsMargins(scaled_margins(full.margins, current_reduction));
        set_gaps(*full.layout,
                 scaled(full.horizontal_gap, current_reduction),
                 scaled(full.vertical_gap, current_reduction));
    }
}

// The buttons of a box have no names, so the limit of the box is theirs too.
void dialog_layout_control::limit_button_boxes()
{
    const auto boxes = findChildren<QDialogButtonBox*>();
    for (QDialogButtonBox* box : boxes) {
        const auto full = full_children.constFind(box->objectName());
        if (full == full_children.cend()) continue;
        const int limit = scaled(full->maximum.height(), current_reduction);
        box->setMaximumHeight(limit);
        const auto buttons = box->buttons();
        for (QAbstractButton* button : buttons)
            button->setMaximumHeight(limit);
    }
}

// One point above the rule, so that the smallest step stays readable.
QFont dialog_layout_control::font_for_reduction() const
{
    QFont font = full_text_font;
    font.setPointSize(scaled(point_size(font), current_reduction) + 1);
    return font;
}

bool dialog_layout_control::is_scaled_class(const QWidget& child) const
{
    for (const QString& name : scaled_classes) {
        if (child.inherits(qPrintable(name))) return true;
    }
    return false;
}
