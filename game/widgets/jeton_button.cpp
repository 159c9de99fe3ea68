#include "jeton_button.h"

#include "chance_geometry.h"
#include "font_fit.h"
#include "jetons.h"
#include "pictures.h"

#include <QMouseEvent>
#include <QPainter>

static constexpr int repeat_interval = 200; // ms

/// The largest bold font in which a count fits on a jeton: up to three digits into its light
/// middle, more of them narrow and up to the rim.
static QFont font_for_count(int digits, int side)
{
    constexpr int largest_point_size = 14;
    QFont largest(QStringLiteral("Garamond"), largest_point_size, QFont::Bold);
    largest.setStyleHint(QFont::Serif);
    if (digits > 3) largest.setStretch(QFont::Condensed);
    const int width = digits < 3 ? side * 7 / 10 : digits == 3 ? side * 9 / 10 : side - 2;
    return font_for_room(largest, QString(digits, QLatin1Char('8')), {width, side * 9 / 10});
}

jeton_button::jeton_button(const jeton_info& info, QWidget* parent)
    : QPushButton(parent)
    , shown(info)
{
    setObjectName(QStringLiteral("jeton_%1_%2").arg(info.player + 1).arg(jetons::name(info.jeton)));
    setFocusPolicy(Qt::NoFocus);
    increase_timer.setObjectName(QStringLiteral("increase_timer"));
    decrease_timer.setObjectName(QStringLiteral("decrease_timer"));
    increase_timer.setInterval(repeat_interval);
    decrease_timer.setInterval(repeat_interval);
    tell_long_count();
    tell_name();
    connect(&increase_timer, &QTimer::timeout, this, &jeton_button::ask_for_more);
    connect(&decrease_timer, &QTimer::timeout, this, &jeton_button::ask_for_less);
}

void jeton_button::set_stack(int value, int count)
{
    shown.value = value;
    if (shown.count == count) return;
    shown.count = count;
    tell_long_count();
    tell_name();
    update();
}

/// A count that can only be written small is told under the mouse too.
void jeton_button::tell_long_count()
{
    constexpr int first_long_count = 1000;
    if (shown.count >= first_long_count) {
        setToolTip(QString::number(shown.count));
    } else if (!toolTip().isEmpty()) {
        setToolTip({});
    }
}

void jeton_button::tell_name()
{
    const jetons& names = jetons::instance();
    const QString place = names.display_text(shown.jeton);
    setAccessibleName(tr("Spieler %1, %2: %3 Stück")
                          .arg(shown.player + 1)
                          .arg(place.isEmpty() ? jetons::name(shown.jeton) : place)
                          .arg(shown.count));
}

void jeton_button::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) tell_name();
}

void jeton_button::place_on(table_form form, double reduction)
{
    const int side = scaled(full_size, reduction);
    setGeometry(
        QRect(jeton_position(shown.jeton, shown.player, form, reduction), QSize(side, side)));
}

void jeton_button::stop_repeat()
{
    increase_timer.stop();
    decrease_timer.stop();
}

jeton_info jeton_button::one_piece() const
{
    jeton_info piece = shown;
    piece.count = 1;
    return piece;
}

bool jeton_button::event(QEvent* event)
{
    // The release of a held button does not come when another window takes the mouse over.
    if (event->type() == QEvent::WindowDeactivate) stop_repeat();
    return QPushButton::event(event);
}

void jeton_button::mousePressEvent(QMouseEvent* event)
{
    // The request may take this jeton off the table and hide it: nothing may follow it.
    if (event->button() == Qt::LeftButton) {
        increase_timer.start();
        ask_for_more();
    } else if (event->button() == Qt::RightButton) {
        decrease_timer.start();
        ask_for_less();
    }
}

void jeton_button::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) increase_timer.stop();
    if (event->button() == Qt::RightButton) decrease_timer.stop();
}

void jeton_button::hideEvent(QHideEvent* event)
{
    stop_repeat();
    QPushButton::hideEvent(event);
}

void jeton_button::paintEvent(QPaintEvent*)
{
    const QString picture =
        QStringLiteral(":/jeton/grafik/jeton/jeton_%1_8.png").arg(shown.player + 1);
    const QString count = QString::number(shown.count);
    if (fitted_digits != count.size() || fitted_side != width()) {
        fitted_digits = count.size();
        fitted_side = width();
        count_font = font_for_count(fitted_digits, fitted_side);
    }
    QPainter painter(this);
    painter.drawPixmap(rect(), picture_of_size(picture, size(), devicePixelRatioF()));
    painter.setFont(count_font);
    painter.setPen(Qt::black);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextDontClip, count);
}
