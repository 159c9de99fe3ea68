#include "wheel_number_selection.h"

#include "design_geometry.h"
#include "number_records.h"
#include "number_table.h"
#include "numberstorage.h"
#include "pictures.h"
#include "setting.h"
#include "wheel_order.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QtMath>

#include <cmath>

// The full-size dialog. Unit: pixels.
namespace
{

constexpr QSize dialog_size(500, 584);
constexpr QRect caption(12, 8, 476, 36);
constexpr QPoint centre(250, 286);  // of the wheel
constexpr int felt_radius = 238;    // of the cloth under wheel and buttons
constexpr int pocket_radius = 213;  // of the circle on which the buttons lie
constexpr int pocket_diameter = 33; // of a button
constexpr int wheel_diameter = 384; // of the picture
constexpr QRect clear_button(12, 538, 260, 34);
constexpr QRect cancel_button(348, 538, 140, 34);

QPointF scaled_centre(double reduction)
{
    return {double(scaled(centre.x(), reduction)), double(scaled(centre.y(), reduction))};
}

QColor colour_of_pocket(int number)
{
    switch (colour_of(number)) {
    case number_colour::red:
        return {0xb8, 0x18, 0x1e};
    case number_colour::black:
        return {0x24, 0x24, 0x26};
    case number_colour::green:
        break;
    }
    return {0x10, 0x82, 0x3c};
}

} // namespace

/// A round button in the colour of its number.
class pocket_button : public QPushButton
{
public:
    pocket_button(int pocket_number, QWidget* parent)
        : QPushButton(number_text(pocket_number), parent)
        , number(pocket_number)
    {
        setObjectName(QStringLiteral("PB_%1").arg(number));
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
    }

    void set_chosen(bool on)
    {
        is_chosen = on;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool is_lit = underMouse() || hasFocus() || is_chosen;
        const double rim = is_lit ? width() / 11.0 : width() / 22.0;
        const double inset = rim / 2 + 0.5;
        const QRectF disc = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        painter.setBrush(body(disc));
        painter.setPen(QPen(is_lit ? QColor(0xff, 0xd2, 0x4a) : QColor(0xe9, 0xdf, 0xc6), rim));
        painter.drawEllipse(disc);
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(QColor(0xff, 0xfb, 0xef));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

    bool hitButton(const QPoint& point) const override
    {
        const QPointF from_centre = QPointF(point) - QRectF(rect()).center();
        return std::hypot(from_centre.x(), from_centre.y()) <= width() / 2.0;
    }

private:
    QRadialGradient body(const QRectF& disc) const
    {
        const QColor base =
            isDown() ? colour_of_pocket(number).darker(130) : colour_of_pocket(number);
        const QPointF light(disc.left() + disc.width() * 0.35, disc.top() + disc.height() * 0.28);
        QRadialGradient gradient(light, disc.width() * 0.8);
        gradient.setColorAt(0.0, base.lighter(underMouse() ? 170 : 145));
        gradient.setColorAt(0.55, base);
        gradient.setColorAt(1.0, base.darker(140));
        return gradient;
    }

    const int number;
    bool is_chosen = false;
};

wheel_number_selection::wheel_number_selection(numberStorage& numbers,
                                               const setting& settings,
                                               QWidget* parent)
    : dialog_layout_control(settings, parent)
    , number_storage(numbers)
    , game_setting(settings)
    , LB_manual_number(new QLabel(this))
    , PB_clear_selection_number(new QPushButton(this))
    , PB_cancel(new QPushButton(this))
{
    LB_manual_number->setObjectName(QStringLiteral("LB_manual_number"));
    LB_manual_number->setAlignment(Qt::AlignCenter);
    PB_clear_selection_number->setObjectName(QStringLiteral("PB_clear_selection_number"));
    PB_cancel->setObjectName(QStringLiteral("PB_cancel"));
    PB_cancel->setDefault(true);
    connect(PB_clear_selection_number,
            &QPushButton::clicked,
            this,
            &wheel_number_selection::clear_number);
    connect(PB_cancel, &QPushButton::clicked, this, &QDialog::reject);

    resize(dialog_size);
    build_pockets();
    set_manual_is_set(false);
    remember_full_size();
}

// Buttons are not deleted at once: the table form can change while one of them is on the stack.
void wheel_number_selection::build_pockets()
{
    for (pocket_button* old : pockets) {
        old->hide();
        old->setObjectName(QString());
        old->deleteLater();
    }
    pockets.clear();
    built_form = game_setting.form();
    QWidget* before = PB_cancel;
    for (int index = 0; index < pocket_count(built_form); ++index) {
        auto* pocket = new pocket_button(wheel_number(index, built_form), this);
        connect(
            pocket, &QPushButton::clicked, this, [this, pocket] { choose(pocket->objectName()); });
        if (isVisible()) pocket->show();
        setTabOrder(before, pocket);
        before = pocket;
        pockets.push_back(pocket);
    }
    mark_manual_number();
}

void wheel_number_selection::match_table_form()
{
    if (built_form != game_setting.form()) build_pockets();
}

void wheel_number_selection::set_manual_is_set(bool is_set)
{
    manual_is_set = is_set;
    PB_clear_selection_number->setEnabled(is_set);
    mark_manual_number();
    show_texts();
}

void wheel_number_selection::mark_manual_number()
{
    const QString text = manual_is_set ? number_storage.manual_number_text() : QString();
    for (pocket_button* pocket : pockets)
        pocket->set_chosen(pocket->text() == text);
}

void wheel_number_selection::show_texts()
{
    setWindowTitle(tr("Nächste Roulettezahl wählen"));
    PB_clear_selection_number->setText(tr("Gewählte Zahl löschen"));
    PB_cancel->setText(tr("Abbrechen"));
    LB_manual_number->setText(manual_is_set ? tr("Nächste gewählte Roulettezahl: ") +
                                                  number_storage.manual_number_text()
                                            : tr("Keine Roulettezahl gewählt"));
}

void wheel_number_selection::modify_window_based_on_scale()
{
    match_table_form();
    dialog_layout_control::modify_window_based_on_scale();
    arrange();
}

void wheel_number_selection::arrange()
{
    const double scale = reduction();
    LB_manual_number->setGeometry(design::scaled_rect(caption, scale));
    PB_clear_selection_number->setGeometry(design::scaled_rect(clear_button, scale));
    PB_cancel->setGeometry(design::scaled_rect(cancel_button, scale));

    const QPointF middle = scaled_centre(scale);
    const int radius = scaled(pocket_radius, scale);
    const int diameter = scaled(pocket_diameter, scale);
    const double step = 2 * M_PI / static_cast<double>(pockets.size());
    double angle = 0.0; // clockwise from the top
    for (pocket_button* pocket : pockets) {
        const double x = middle.x() + radius * qSin(angle);
        const double y = middle.y() - radius * qCos(angle);
        pocket->setGeometry(
            qRound(x - diameter / 2.0), qRound(y - diameter / 2.0), diameter, diameter);
        angle += step;
    }
    update();
}

void wheel_number_selection::choose(const QString& button_name)
{
    number_storage.set_manual_number(button_name.split(QLatin1Char('_')).last().toInt());
    accept();
}

void wheel_number_selection::clear_number()
{
    number_storage.cancel_manual_number();
    accept();
}

void wheel_number_selection::paintEvent(QPaintEvent* event)
{
    dialog_layout_control::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle = scaled_centre(reduction());
    const int radius = scaled(felt_radius, reduction());
    QRadialGradient felt(middle, radius);
    felt.setColorAt(0.0, QColor(0x2a, 0x7d, 0x52));
    felt.setColorAt(1.0, QColor(0x12, 0x4a, 0x30));
    painter.setBrush(felt);
    painter.setPen(QPen(QColor(0x9a, 0x7a, 0x3c), 2));
    painter.drawEllipse(middle, radius, radius);

    const bool is_american = built_form == table_form::american;
    const QString picture = is_american ? QStringLiteral(":/wheel/grafik/wheel/wheel33_A.png")
                                        : QStringLiteral(":/wheel/grafik/wheel/wheel33_F.png");
    const int diameter = scaled(wheel_diameter, reduction());
    const QPointF corner = middle - QPointF(diameter / 2.0, diameter / 2.0);
    painter.drawPixmap(corner,
                       picture_of_size(picture, QSize(diameter, diameter), devicePixelRatioF()));
}

void wheel_number_selection::showEvent(QShowEvent* event)
{
    modify_window_based_on_scale();
    PB_cancel->setFocus();
    dialog_layout_control::showEvent(event);
}

void wheel_number_selection::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) show_texts();
    dialog_layout_control::changeEvent(event);
}
