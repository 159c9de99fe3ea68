#ifndef PROGRESS_BAR_H
#define PROGRESS_BAR_H

#include <QElapsedTimer>
#include <QString>

/**
 * One line on standard error that tells how far a run is: a bar, coups per second, time left.
 * Drawn at most ten times a second and wiped away at the end.
 */
class progress_bar
{
public:
    /// @param total  coups of the whole run; 0 when unknown: then there is no bar and no time left
    explicit progress_bar(qint64 total);
    ~progress_bar();

    void show(qint64 coups);

    /// The line for a moment of the run. @param milliseconds  since its start
    static QString line(qint64 coups, qint64 total, qint64 milliseconds);

private:
    qint64 total;
    qint64 last_drawn = 0; // milliseconds since the start
    bool is_drawn = false;
    QElapsedTimer timer;
};

#endif // PROGRESS_BAR_H
