#ifndef HIGHLIGHTER_ICON_H
#define HIGHLIGHTER_ICON_H

#include <QAction>

/// The action that switches the colours of the editor, and shows by its picture whether they are
/// on. At first they are on.
class highlighter_icon : public QAction
{
    Q_OBJECT

public:
    explicit highlighter_icon(QObject* parent = nullptr);

    bool is_on() const { return colours_are_on; }

    /// Sets the text in the language of the program.
    void refresh_text();

public slots:
    /// Shows that colours are on.
    void highlighter_activ();

    /// Shows that colours are off.
    void highlighter_not_activ();

    /// Switches from one to the other and tells so.
    void change_icon();

signals:
    void disable_highlighter();
    void enable_highlighter();

private:
    void show_state(bool on);

    bool colours_are_on = true; // the check mark changes before the action is triggered
};

#endif // HIGHLIGHTER_ICON_H
