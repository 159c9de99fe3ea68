#ifndef WINDOW_PLACES_H
#define WINDOW_PLACES_H

#include <QHash>
#include <QObject>
#include <QPointer>

class QWidget;

/**
 * Keeps over the end of the program where windows stood and which were open, in an ini file.
 * Windows go by their object names. A place that lies on no screen any more is not taken.
 */
class window_places : public QObject
{
    Q_OBJECT

public:
    /// @param ini_file  one that can't be written keeps nothing
    explicit window_places(QString ini_file, QObject* parent = nullptr);

    /// Puts the window where it stood, and remembers its place whenever it is hidden or closed.
    /// A window of fixed size keeps its size, no window becomes larger than all screens together.
    void watch(QWidget& window);

    /// True if the window was open when the open ones were last written down.
    bool was_open(const QString& object_name) const;

    /// Writes down the places of all watched windows and which of them are open now.
    void remember_all();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restore(QWidget& window) const;
    void remember(const QWidget& window);

    QString store;
    QHash<QString, QPointer<QWidget>> windows;
};

#endif // WINDOW_PLACES_H
