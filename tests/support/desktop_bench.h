#ifndef DESKTOP_BENCH_H
#define DESKTOP_BENCH_H

#include "chance_geometry.h"
#include "mainwindow.h"
#include "numberstorage.h"
#include "players_control.h"
#include "setting.h"
#include "window_bench.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QThread>

/**
 * The real program in a test: a shown main window in a box of its own, driven by the names of its
 * objects. No timer is waited for: the bench fires those that run.
 */
class desktop_bench : public QObject
{
public:
    /// @param settings  lines of the settings file, "key=value" each; the betting time is manual
    ///                  and balls and panels are quick unless they say otherwise
    explicit desktop_bench(const QStringList& settings = {})
    {
        write_settings(settings);
        qApp->installEventFilter(this);
        numberStorage::instance().set_seed(1);
        window = std::make_unique<MainWindow>();
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get())) qFatal("the window did not come up");
    }

    template <typename widget>
    widget* child(const QString& name) const
    {
        return child_of<widget>(*window, name);
    }
    template <typename widget>
    widget* child(const char* name) const
    {
        return child<widget>(QString::fromLatin1(name));
    }

    game_table& table() const { return players_control::instance().table(); }
    numberStorage& numbers() const { return numberStorage::instance(); }
    setting& settings() const { return setting::instance(); }
    double reduction() const { return settings().scale_reduction(); }

    /// Triggers an action that must be there and enabled.
    void trigger(const char* name) const
    {
        auto* action = child<QAction>(name);
        if (!action->isEnabled()) qFatal("the action \"%s\" is disabled", name);
        action->trigger();
    }

    /// Presses a mouse button on the table at a point of the scaled table, menu bar left out.
    void press_table(QPoint point, Qt::MouseButton button = Qt::LeftButton) const
    {
        const QPoint in_window = point + QPoint(0, base_y);
        QWidget* target = window->childAt(in_window);
        if (!target) target = window.get();
        QTest::mouseClick(target, button, {}, target->mapFrom(window.get(), in_window));
        settle();
    }

    /// The middle of the first player's jeton square of a chance, scaled, menu bar left out.
    QPoint middle_of(jetons::jeton_names jeton) const
    {
        const QPoint corner =
            jeton_position(jeton, general_player::NO_PLAYER, settings().form(), reduction());
        const int half = scaled(31, reduction()) / 2;
        return corner + QPoint(half, half - base_y);
    }
    void click(jetons::jeton_names jeton, Qt::MouseButton button = Qt::LeftButton) const
    {
        press_table(middle_of(jeton), button);
    }

    /// Delivers everything that is posted.
    static void settle()
    {
        for (int i = 0; i < 8; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    /// Waits until the statistic has counted what was sent to it; what it tells is on its way then.
    void wait_for_count() const
    {
        auto* const worker = child<QThread>("statistic_thread");
        auto* const last_in_line = new QObject;
        last_in_line->moveToThread(worker);
        // By name: the thread sanitizer would not see how a function object comes across.
        QMetaObject::invokeMethod(last_in_line, "deleteLater", Qt::BlockingQueuedConnection);
    }

    /// The same, and delivers what the statistic tells.
    void wait_for_statistic() const
    {
        wait_for_count();
        settle();
    }

    /// Throws the ball by a right click on the wheel.
    void right_click_wheel() const
    {
        auto* wheel = child<QAbstractScrollArea>("GV_Wheel");
        QTest::mouseClick(wheel->viewport(), Qt::RightButton);
        settle();
    }

    /// Fires the timers with these names that run, once each; true if one ran. They come by the
    /// event loop as by the clock: what one of them lets die lives until its slot has returned.
    bool fire_all(const QStringList& names) const
    {
        bool any = false;
        const auto timers = window->findChildren<QTimer*>();
        for (QTimer* timer : timers) {
            if (!names.contains(timer->objectName()) || timer->parent() == window.get()) continue;
            any = any || timer->isActive();
            QMetaObject::invokeMethod(
                timer, [timer] { fire(timer); }, Qt::QueuedConnection);
        }
        settle();
        return any;
    }

    /// Lets the ball rest and the panels count to the end; the next bets are open then, or the
    /// game stands still.
    void finish_coup() const
    {
        for (int i = 0; i < 5000; ++i) {
            settle();
            if (!fire_all({QStringLiteral("count_timer"), QStringLiteral("blink_timer")})) return;
        }
        qFatal("the coup does not end");
    }

    /// One coup of a number, thrown by the mouse.
    void play(int number) const
    {
        numbers().set_manual_number(number);
        right_click_wheel();
        finish_coup();
    }

    std::unique_ptr<MainWindow> window;

protected:
    /// The timers of the program do not run by the clock, or a slow machine would change a test.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        return event->type() == QEvent::Timer && qobject_cast<QTimer*>(watched) &&
               !watched->objectName().isEmpty();
    }

private:
    static void write_settings(const QStringList& own)
    {
        QFile ini(QStringLiteral("zarvello.ini"));
        if (!ini.open(QIODevice::WriteOnly | QIODevice::Truncate)) qFatal("no settings file");
        QStringList lines = {QStringLiteral("s_balkenzeit=0"),
                             QStringLiteral("s_su_shortthrow_activ=true"),
                             QStringLiteral("s_scr_res_factor=0"),
                             QStringLiteral("s_language=1")};
        for (const QString& line : own) {
            const QString key = line.section(QLatin1Char('='), 0, 0) + QLatin1Char('=');
            for (int i = lines.size() - 1; i >= 0; --i)
                if (lines[i].startsWith(key)) lines.removeAt(i);
            lines.append(line);
        }
        ini.write("[option]\n" + lines.join(QLatin1Char('\n')).toUtf8() + "\n");
    }
};

#endif // DESKTOP_BENCH_H
