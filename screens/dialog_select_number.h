#ifndef DIALOG_SELECT_NUMBER_H
#define DIALOG_SELECT_NUMBER_H

#include "dialog_layout_control.h"
#include "game_types.h"
#include "jetons.h"

#include <memory>

class game_table;

namespace Ui
{
class Dialog_Select_Number;
}

/**
 * Asks for the number of a finale or of a neighbour bet, which is then set or removed for the
 * active player.
 */
class Dialog_Select_Number : public dialog_layout_control
{
    Q_OBJECT

public:
    /// The table tells the active player, the settings the table form; both must outlive the
    /// dialog.
    Dialog_Select_Number(const game_table& table,
                         const setting& settings,
                         QWidget* parent = nullptr);
    ~Dialog_Select_Number() override;

    /// Prepares the dialog for a range of announcements; the caller then shows it.
    /// @param action  set or remove
    /// @param first_name  `FI00`, `EN00`, `ZN00` or `DN00`; anything else is ignored
    void open_for(general_setting::setting_jeton_action action, jetons::ext_jeton_names first_name);

signals:
    /// The announcement that was chosen, one piece of it. Not sent while no player is active.
    void special_combo_set_by_type(general_setting::setting_jeton_action action,
                                   jetons::ext_jeton_names ext_jeton,
                                   general_player::player_names player,
                                   int amount);

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_buttonBox_accepted();

private:
    void show_texts();
    void fill_numbers();
    int selected_number() const;

    const game_table& accounts;
    const setting& game_setting;
    const std::unique_ptr<Ui::Dialog_Select_Number> ui;
    general_setting::setting_jeton_action action = general_setting::SET_JETON;
    jetons::ext_jeton_names first_name = jetons::FI00;
};

#endif // DIALOG_SELECT_NUMBER_H
