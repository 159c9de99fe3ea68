#include "statistic_table_window.h"

#include "chance_geometry.h"
#include "full_view_area.h"
#include "pictures.h"
#include "printer_c.h"
#include "setting.h"

#include <QDialogButtonBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

static constexpr int window_frame = 40; // px of a screen that frame and title take

// Form and terms are kept: a table is filled once and must not change its meaning later.
statistic_table_window::statistic_table_window(double scale_reduction,
                                               const setting& settings,
                                               QWidget* parent)
    : QDialog(parent)
    , window_reduction(scale_reduction)
    , print_setting(settings)
    , form(settings.form())
    , is_american_term(settings.s_language_term() != 0)
{
    init_pictures();
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    if (scale_reduction <= 0.0) return;
    // One point above the rule, so that the smallest step stays readable.
    QFont scaled_font = font();
    scaled_font.setPointSize(scaled(QFontInfo(scaled_font).pointSize(), scale_reduction) + 1);
    setFont(scaled_font);
}

QPushButton* statistic_table_window::add_print_button(QDialogButtonBox& box)
{
    auto* const button = new QPushButton(&box);
    button->setObjectName(QStringLiteral("PB_print"));
    button->setAutoDefault(false);
    box.addButton(button, QDialogButtonBox::ActionRole);
    return button;
}

void statistic_table_window::print_page(QWidget& page)
{
    const QPixmap picture = page.grab();
    printer_c(print_setting, this).print_pixmap(picture, picture.width(), picture.height());
}

void statistic_table_window::open_at_full_view()
{
    scale_gaps();
    forget_size_hints();
    const QSize full_view = sizeHint();
    const QSize limit = room();
    const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QSize size = full_view;
    if (full_view.height() > limit.height()) size.rwidth() += scroll_bar;
    if (full_view.width() > limit.width()) size.rheight() += scroll_bar;
    resize(size.boundedTo(limit));
}

// A scroll area does not tell the layouts around it that its contents have grown.
void statistic_table_window::forget_size_hints()
{
    const auto areas = findChildren<full_view_area*>();
    for (QWidget* widget : areas) {
        for (; widget != this; widget = widget->parentWidget())
            widget->updateGeometry();
    }
}

void statistic_table_window::scale_gaps()
{
    const auto layouts = findChildren<QLayout*>();
    for (QLayout* layout : layouts) {
        const QMargins full = layout->contentsMargins();
        layout->setContentsMargins(scaled(full.left(), window_reduction),
                                   scaled(full.top(), window_reduction),
                                   scaled(full.right(), window_reduction),
                                   scaled(full.bottom(), window_reduction));
        if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
            grid->setHorizontalSpacing(scaled(grid->horizontalSpacing(), window_reduction));
            grid->setVerticalSpacing(scaled(grid->verticalSpacing(), window_reduction));
        } else {
            layout->setSpacing(scaled(layout->spacing(), window_reduction));
        }
    }
}

QSize statistic_table_window::room() const
{
    const QSize largest(largest_width, largest_height);
    const QScreen* shown_on = screen();
    if (!shown_on) return largest;
    return largest.boundedTo(shown_on->availableSize() - QSize(0, window_frame));
}
