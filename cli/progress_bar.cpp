#include "progress_bar.h"

#include "console.h"

#include <algorithm>

static constexpr int bar_width = 30;
static constexpr qint64 milliseconds_apart = 100;

progress_bar::progress_bar(qint64 total_coups)
    : total(total_coups)
{
    timer.start();
}

progress_bar::~progress_bar()
{
    if (is_drawn) console::print_error(QStringLiteral("\r\x1b[K"));
}

void progress_bar::show(qint64 coups)
{
    const qint64 now = timer.elapsed();
    if (is_drawn && now - last_drawn < milliseconds_apart) return;
    last_drawn = now;
    is_drawn = true;
    console::print_error(QLatin1Char('\r') + line(coups, total, now) + QLatin1String("\x1b[K"));
}

QString progress_bar::line(qint64 coups, qint64 total, qint64 milliseconds)
{
    const qint64 per_second = milliseconds > 0 ? coups * 1000 / milliseconds : 0;
    const QString speed = QStringLiteral("%1 coups, %2 coups/s").arg(coups).arg(per_second);
    if (total < 1 || per_second < 1) return speed;
    const qint64 played = std::min(coups, total);
    const auto filled = static_cast<int>(played * bar_width / total);
    const qint64 seconds = (total - played) / per_second;
    return QStringLiteral("[%1%2] %3 %, %4, %5 s left")
        .arg(QString(filled, QLatin1Char('=')))
        .arg(QString(bar_width - filled, QLatin1Char(' ')))
        .arg(played * 100 / total)
        .arg(speed)
        .arg(seconds);
}
