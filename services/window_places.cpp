#include "window_places.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

#include <algorithm>

// Pixels.
static constexpr int reachable = 40;       // of a window's head, that must lie on a screen
static constexpr int farthest = 1'000'000; // beyond it a place is none that was written here

static QString place_key(const QString& name)
{
    return QStringLiteral("windows/%1_place").arg(name);
}

static QString open_key(const QString& name)
{
    return QStringLiteral("windows/%1_open").arg(name);
}

static bool is_sound(const QRect& place)
{
    const auto edges = {place.left(), place.top(), place.right(), place.bottom()};
    return !place.isEmpty() && std::all_of(edges.begin(), edges.end(), [](int edge) {
        return -farthest < edge && edge < farthest;
    });
}

static bool is_reachable(const QRect& place)
{
    const QRect head(place.x(), place.y(), place.width(), reachable);
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = screen->availableGeometry() & head;
        return seen.width() >= reachable && seen.height() >= reachable / 2;
    });
}

static bool has_fixed_size(const QWidget& window)
{
    return window.minimumSize() == window.maximumSize();
}

window_places::window_places(QString ini_file, QObject* parent)
    : QObject(parent)
    , store(std::move(ini_file))
{
}

void window_places::watch(QWidget& window)
{
    windows.insert(window.objectName(), &window);
    window.installEventFilter(this);
    restore(window);
}

bool window_places::was_open(const QString& object_name) const
{
    const QSettings settings(store, QSettings::IniFormat);
    return settings.value(open_key(object_name), false).toBool();
}

void window_places::remember_all()
{
    QSettings settings(store, QSettings::IniFormat);
    for (auto window = windows.cbegin(); window != windows.cend(); ++window) {
        const bool is_open = window.value() && window.value()->isVisible();
        settings.setValue(open_key(window.key()), is_open);
        if (is_open) remember(*window.value());
    }
}

bool window_places::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        remember(*static_cast<QWidget*>(watched));
    }
    return QObject::eventFilter(watched, event);
}

void window_places::restore(QWidget& window) const
{
    const QSettings settings(store, QSettings::IniFormat);
    const QRect place = settings.value(place_key(window.objectName())).toRect();
    if (!is_sound(place) || !is_reachable(place)) return;
    window.move(place.topLeft());
    if (has_fixed_size(window)) return;
    window.resize(place.size().boundedTo(QGuiApplication::primaryScreen()->virtualSize()));
}

/// The place is that of the frame, the size that of the contents, as they are set.
void window_places::remember(const QWidget& window)
{
    if (window.isMinimized() || window.isMaximized() || window.isFullScreen()) return;
    QSettings settings(store, QSettings::IniFormat);
    settings.setValue(place_key(window.objectName()), QRect(window.pos(), window.size()));
}
