#include "statusprogressbar.h"

#include <QEvent>
#include <QMutexLocker>
#include <QPainter>
#include <QStyle>
#include <QTimer>

namespace
{

constexpr int ticks_per_second = 33; ///< of the setting
constexpr int tick_interval = 20;    ///< ms
constexpr int spare_interval = 10000;
constexpr int pause_poll_interval = 10;
constexpr int longest_time = 1000000; ///< seconds
constexpr int text_points = 10;
constexpr QMargins border(1, 1, 1, 1);

const QColor in_time(82, 190, 94);
const QColor warning(255, 127, 0);
const QColor alarm_colour(235, 64, 52);
const QColor empty_colour(236, 231, 216);
const QColor border_colour(24, 26, 24);

/// A colour with a hint of light from above.
QLinearGradient shaded(const QColor& colour, const QRect& area)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0.0, colour.lighter(122));
    gradient.setColorAt(0.4, colour);
    gradient.setColorAt(0.6, colour);
    gradient.setColorAt(1.0, colour.darker(114));
    return gradient;
}

} // namespace

StatusProgressBar::StatusProgressBar(QWidget* parent)
    : QProgressBar(parent)
    , update_timer(new QTimer(this))
    , spare_timer(new QTimer(this))
    , pause_poll_timer(new QTimer(this))
    , texts{
          {bar_state::stopped, QT_TR_NOOP("Starten Sie Ihr Spiel!")},
          {bar_state::manual_stopped, QT_TR_NOOP("Manuell - Starten Sie Ihr Spiel!")},
          {bar_state::manual, QT_TR_NOOP("Manuell")},
          {bar_state::betting, QT_TR_NOOP("Machen Sie Ihr Spiel!")},
          {bar_state::closed, QT_TR_NOOP("Nichts geht mehr!")},
          {bar_state::paused, QT_TR_NOOP("Pause")},
          {bar_state::super_short, QT_TR_NOOP("Superkurzspiel aktiv!")},
          {bar_state::history_loading, QT_TR_NOOP("Historie wird geladen!")},
          {bar_state::manual_paused, QT_TR_NOOP("Manuell / Pause")},
      }
{
    update_timer->setObjectName(QStringLiteral("update_timer"));
    update_timer->setInterval(tick_interval);
    connect(update_timer, &QTimer::timeout, this, &StatusProgressBar::update_progress_bar);

    spare_timer->setObjectName(QStringLiteral("spare_timer"));
    spare_timer->setInterval(spare_interval);

    pause_poll_timer->setObjectName(QStringLiteral("pause_poll_timer"));
    pause_poll_timer->setInterval(pause_poll_interval);
    pause_poll_timer->setSingleShot(true);
    connect(pause_poll_timer, &QTimer::timeout, this, &StatusProgressBar::start_status_bar);

    configure(0, 1000, warn_percent, alarm_percent);
    setValue(0);
    tell_phase();
}

void StatusProgressBar::configure(int minimum, int maximum, int warn, int alarm)
{
    warn_percent = warn;
    alarm_percent = alarm;
    warn_from = static_cast<int>(maximum / 100.0 * warn);
    alarm_from = static_cast<int>(maximum / 100.0 * alarm);
    setRange(minimum, maximum);
}

/// Takes one step under the lock, then shows and tells what came of it: whoever is told may call
/// back.
void StatusProgressBar::run(const std::function<bar_change()>& step)
{
    state_mutex.lock();
    const bar_change change = step();
    state_mutex.unlock();

    const int painted_width = width_of(value());
    set_value_unpainted(change.new_value);
    if (change.repaint) tell_phase();
    if (change.repaint || width_of(change.new_value) != painted_width) repaint();
    if (change.start_throw) emit start_wheel_throw();
    if (change.block_bets) emit block_player_bets();
    if (change.end_short_game) emit deactivate_supershortgame();
}

void StatusProgressBar::tell_phase()
{
    setAccessibleName(tr("Setzzeit"));
    setAccessibleDescription(text());
}

/// `setValue()` paints at every tick; most of them move no pixel of the bar.
void StatusProgressBar::set_value_unpainted(int new_value)
{
    const bool was_disabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled);
    setValue(new_value);
    setAttribute(Qt::WA_UpdatesDisabled, was_disabled);
}

/// While the game pauses, a new state is also what the end of the pause brings back.
void StatusProgressBar::enter(int new_state)
{
    state = new_state;
    if (!paused) return;
    state_before_pause = new_state;
    if (is_manual()) state = bar_state::manual_paused;
}

void StatusProgressBar::stop_timers()
{
    update_timer->stop();
    pause_poll_timer->stop();
}

bool StatusProgressBar::is_stopped() const
{
    return state == bar_state::stopped || state == bar_state::manual_stopped;
}

bool StatusProgressBar::is_manual() const
{
    return update_timer->interval() == 0;
}

bool StatusProgressBar::bets_are_open() const
{
    return update_timer->isActive() || pause_poll_timer->isActive() || waits_for_user();
}

bool StatusProgressBar::waits_for_user() const
{
    const bool in_pause = state == bar_state::manual_paused;
    return (in_pause ? state_before_pause : state) == bar_state::manual;
}

void StatusProgressBar::set_betting_time(int seconds)
{
    run([this, wanted = qBound(0, seconds, longest_time)] {
        if (wanted == betting_seconds && !is_stopped()) return change_nothing();
        betting_seconds = wanted;
        return wanted == 0 ? change_to_manual() : change_to_time(wanted);
    });
}

StatusProgressBar::bar_change StatusProgressBar::change_to_manual()
{
    const bool was_open = bets_are_open();
    stop_timers();
    update_timer->setInterval(0);

    if (was_open) return wait_for_user();
    bar_change change = change_nothing();
    enter(is_stopped() ? bar_state::manual_stopped : state);
    change.repaint = true;
    return change;
}

StatusProgressBar::bar_change StatusProgressBar::change_to_time(int seconds)
{
    const bool was_waiting = waits_for_user();
    const bool was_full = value() >= maximum();
    update_timer->setInterval(tick_interval);
    configure(0, seconds * ticks_per_second, warn_percent, alarm_percent);

    if (was_waiting) return open_bets();
    bar_change change = change_nothing();
    change.new_value = was_full ? maximum() : 0;
    if (update_timer->isActive()) change.new_value = qMin(last_value, maximum());
    if (is_stopped()) state = bar_state::stopped;
    if (state == bar_state::manual_paused) state = state_before_pause;
    change.repaint = true;
    return change;
}

void StatusProgressBar::set_single_colour(bool on)
{
    single_colour = on;
    update();
}

void StatusProgressBar::set_start_at_end(bool)
{
    start_at_end = true;
}

void StatusProgressBar::set_pause(bool on)
{
    run([this, on] {
        if (on == paused) return change_nothing();
        return on ? begin_pause() : end_pause();
    });
}

StatusProgressBar::bar_change StatusProgressBar::begin_pause()
{
    bar_change change = change_nothing();
    paused = true;
    state_before_pause = state;
    if (!is_manual()) return change;
    state = bar_state::manual_paused;
    change.repaint = true;
    return change;
}

StatusProgressBar::bar_change StatusProgressBar::end_pause()
{
    bar_change change = change_nothing();
    paused = false;
    state = state_before_pause;
    change.repaint = true;
    return change;
}

void StatusProgressBar::set_super_short(bool on, int coups)
{
    run([this, on, coups] { return on ? begin_short_game(coups) : end_short_game(); });
}

StatusProgressBar::bar_change StatusProgressBar::begin_short_game(int coups)
{
    super_short = true;
    short_coups_left = qMax(0, coups);
    return update_timer->isActive() ? open_short_coup() : change_nothing();
}

StatusProgressBar::bar_change StatusProgressBar::end_short_game()
{
    bar_change change = change_nothing();
    if (!super_short) return change;
    super_short = false;
    short_coups_left = 0;
    if (bets_are_open()) return change;
    enter(bar_state::closed);
    change.repaint = true;
    return change;
}

void StatusProgressBar::count_coup()
{
    run([this] { return count_short_coup(); });
}

StatusProgressBar::bar_change StatusProgressBar::count_short_coup()
{
    bar_change change = change_nothing();
    if (!super_short) return change;
    change.end_short_game = short_coups_left == 1;
    if (short_coups_left > 1) --short_coups_left;
    return change;
}

void StatusProgressBar::set_state(int new_state)
{
    run([this, new_state] {
        bar_change change = change_nothing();
        state = new_state;
        change.repaint = true;
        return change;
    });
}

void StatusProgressBar::start_status_bar()
{
    run([this] { return open_bets(); });
}

StatusProgressBar::bar_change StatusProgressBar::open_bets()
{
    pause_poll_timer->stop();
    if (is_manual()) return wait_for_user();
    if (super_short) return open_short_coup();

    bar_change change = change_nothing();
    enter(bar_state::betting);
    update_timer->start();
    last_value = 0;
    change.new_value = 0;
    change.repaint = true;
    return change;
}

StatusProgressBar::bar_change StatusProgressBar::wait_for_user()
{
    bar_change change = change_nothing();
    enter(bar_state::manual);
    change.new_value = 0;
    change.repaint = true;
    return change;
}

/// A coup of a super short game throws at once; in pause it asks until the pause is over.
StatusProgressBar::bar_change StatusProgressBar::open_short_coup()
{
    bar_change change = change_nothing();
    const bool is_polling = paused && state == bar_state::paused && value() == maximum();
    update_timer->stop();
    enter(bar_state::super_short);
    change.new_value = maximum();
    change.repaint = !is_polling;
    change.start_throw = !paused;
    if (paused) {
        state = bar_state::paused;
        pause_poll_timer->start();
    }
    return change;
}

void StatusProgressBar::stop_status_bar()
{
    run([this] { return stop_game(); });
}

StatusProgressBar::bar_change StatusProgressBar::stop_game()
{
    bar_change change = change_nothing();
    stop_timers();
    super_short = false;
    short_coups_left = 0;
    paused = false;
    last_value = 0;
    enter(bar_state::stopped);
    change.new_value = 0;
    change.repaint = true;
    return change;
}

void StatusProgressBar::start_wheel_throw_by_hand()
{
    run([this] { return close_bets_by_hand(); });
}

StatusProgressBar::bar_change StatusProgressBar::close_bets_by_hand()
{
    bar_change change = change_nothing();
    change.start_throw = true;
    change.block_bets = true;
    if (!bets_are_open()) return change;
    stop_timers();
    enter(bar_state::closed);
    change.new_value = maximum();
    change.repaint = true;
    return change;
}

void StatusProgressBar::update_progress_bar()
{
    run([this] { return tick(); });
}

StatusProgressBar::bar_change StatusProgressBar::tick()
{
    bar_change change = change_nothing();
    if (paused) {
        change.repaint = state != bar_state::paused;
        state = bar_state::paused;
        return change;
    }
    if (value() >= maximum()) {
        update_timer->stop();
        if (!super_short) enter(bar_state::closed);
        change.repaint = true;
        change.start_throw = super_short || start_at_end;
        change.block_bets = true;
        return change;
    }
    const int next = value() + 1;
    change.repaint = state != bar_state::betting;
    enter(bar_state::betting);
    change.start_throw = next == alarm_from && !start_at_end;
    last_value = next;
    change.new_value = next;
    return change;
}

QString StatusProgressBar::text() const
{
    return tr(texts.value(state).toUtf8().constData());
}

void StatusProgressBar::paintEvent(QPaintEvent*)
{
    const QMutexLocker lock(&paint_mutex);
    QPainter painter(this);
    const QRect inside = rect().marginsRemoved(border);
    painter.fillRect(rect(), border_colour);
    painter.fillRect(inside, shaded(empty_colour, inside));
    if (state == bar_state::history_loading) {
        painter.fillRect(inside, shaded(alarm_colour, inside));
    } else {
        paint_time(painter, inside);
    }

    QFont text_font = font();
    text_font.setBold(true);
    text_font.setPointSize(text_points);
    painter.setFont(text_font);
    painter.setPen(Qt::black);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

/// How far a value reaches into the bar, in pixels.
int StatusProgressBar::width_of(int tick) const
{
    const int whole = rect().marginsRemoved(border).width();
    return QStyle::sliderPositionFromValue(minimum(), maximum(), tick, whole);
}

/// The part of the bar that is used up, in up to three colours.
void StatusProgressBar::paint_time(QPainter& painter, const QRect& area) const
{
    const auto part = [&](int from, int to, const QColor& colour) {
        const int left = width_of(from);
        const int width = width_of(qMin(to, value())) - left;
        if (width <= 0) return;
        painter.fillRect(area.x() + left, area.y(), width, area.height(), shaded(colour, area));
    };
    part(minimum(), warn_from, in_time);
    part(warn_from, alarm_from, single_colour ? in_time : warning);
    part(alarm_from, maximum(), single_colour ? in_time : alarm_colour);
}

void StatusProgressBar::changeEvent(QEvent* event)
{
    QProgressBar::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    tell_phase();
    update();
}
