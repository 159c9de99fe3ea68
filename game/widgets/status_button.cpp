#include "status_button.h"

#include "players_control.h"
#include "setting.h"

#include <QEvent>

#include <algorithm>
#include <limits>

static constexpr int blink_interval = 200;   // ms
static constexpr int count_interval = 50;    // ms
static constexpr int ticks_without_end = 10; // the blinking ends with the next tick

status_button::status_button(general_player::player_names owner,
                             players_control& accounts,
                             const setting& settings,
                             QWidget* parent)
    : QPushButton(parent)
    , player(owner)
    , players(accounts)
    , game_setting(settings)
{
    setObjectName(QStringLiteral("PB_status_%1").arg(owner + 1));
    setFocusPolicy(Qt::NoFocus); // the space bar must not switch a replay
    blink_timer.setObjectName(QStringLiteral("blink_timer"));
    count_timer.setObjectName(QStringLiteral("count_timer"));
    blink_timer.setInterval(blink_interval);
    count_timer.setInterval(count_interval);
    connect(&blink_timer, &QTimer::timeout, this, &status_button::blink_display_change);
    connect(&count_timer, &QTimer::timeout, this, &status_button::move_credit_to_score);
    connect(this, &QPushButton::clicked, this, &status_button::switch_replay);
    show_own_status();
}

void status_button::show_status(status new_status)
{
    current_status = new_status;
    if (!counting) show_own_status();
}

void status_button::refresh_replay_display()
{
    if (!counting) show_own_status();
}

void status_button::show_own_status()
{
    QString style;
    QString status_text;
    if (current_status == status::active) {
        style = QStringLiteral("color: rgb(255, 0, 0);");
        status_text = tr("Aktiv");
    } else if (current_status == status::system) {
        style = QStringLiteral("color: rgb(0, 128, 0);");
        status_text = tr("System");
    }
    // A border image, and not a background image, since it follows the size of the button.
    if (players.table().account_of(player).replay)
        style += QStringLiteral("border-image: url(:/table/grafik/playertable/replay.png);");
    if (styleSheet() != style) setStyleSheet(style);
    if (text() != status_text) setText(status_text);
    tell_name();
    setToolTip(tr("Ein Klick schaltet die Wiederholung der letzten Setzung ein oder aus."));
}

void status_button::tell_name()
{
    QStringList parts = {tr("Spieler %1").arg(player + 1)};
    if (current_status == status::active) parts.append(tr("Aktiv"));
    if (current_status == status::system) parts.append(tr("System"));
    if (players.table().account_of(player).replay) parts.append(tr("Wiederholen"));
    const QString name = parts.join(QStringLiteral(", "));
    if (accessibleName() != name) setAccessibleName(name);
}

void status_button::display_score(qlonglong score)
{
    blink_timer.stop();
    remaining = score;
    full_score = score;
    blink_ticks = 0;
    counting = true;
    at_once = game_setting.s_su_shortthrow_activ();
    if (at_once) {
        count_timer.start();
        return;
    }
    count_timer.stop();
    setStyleSheet(QStringLiteral("color: rgb(0, 0, 0);"));
    setText(QString::number(score));
    blink_timer.start();
}

void status_button::stop_count()
{
    if (!counting) return;
    end_count();
}

void status_button::blink_display_change()
{
    setText(text().isEmpty() ? QString::number(remaining) : QString());
    ++blink_ticks;
    if (blink_ticks <= ticks_without_end) return;
    blink_timer.stop();
    count_timer.start();
}

int status_button::next_step() const
{
    if (at_once)
        return static_cast<int>(std::min<qlonglong>(remaining, std::numeric_limits<int>::max()));
    if (remaining > 1000) return 100;
    if (remaining > 20) return 10;
    return remaining > 0 ? 1 : 0;
}

void status_button::move_credit_to_score()
{
    if (!counting) return;
    at_once = at_once || game_setting.s_su_shortthrow_activ();
    do {
        const int step = next_step();
        remaining -= step;
        if (!at_once) setText(QString::number(remaining));
        emit addCredit_to_player(player, step);
    } while (at_once && counting && remaining > 0);
    if (!counting || remaining > 0) return;
    end_count();
    emit count_finished(player, full_score);
}

void status_button::end_count()
{
    blink_timer.stop();
    count_timer.stop();
    counting = false;
    show_own_status();
}

void status_button::switch_replay()
{
    players.toggle_replay(player);
    refresh_replay_display();
    emit checkStatusReplay();
}

void status_button::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && !counting) show_own_status();
}
