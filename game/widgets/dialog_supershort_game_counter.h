#ifndef DIALOG_SUPERSHORT_GAME_COUNTER_H
#define DIALOG_SUPERSHORT_GAME_COUNTER_H

#include "dialog_layout_control.h"

#include <memory>

namespace Ui
{
class dialog_supershort_game_counter;
}

/// Asks how many coups a super short game lasts.
class dialog_supershort_game_counter : public dialog_layout_control
{
    Q_OBJECT

public:
    /// The settings tell the scale and must outlive the dialog.
    explicit dialog_supershort_game_counter(const setting& settings, QWidget* parent = nullptr);
    ~dialog_supershort_game_counter() override;

signals:
    /// The user wants a game of so many coups. Range: 0, an endless one, to 999999.
    void dia_activate_supershort_game(int coups);

    /// The user has cancelled or closed the dialog.
    void dia_deactivate_supershort_game();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::dialog_supershort_game_counter> ui;
};

#endif // DIALOG_SUPERSHORT_GAME_COUNTER_H
