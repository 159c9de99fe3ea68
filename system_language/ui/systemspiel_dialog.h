#ifndef SYSTEMSPIEL_DIALOG_H
#define SYSTEMSPIEL_DIALOG_H

#include "dialog_layout_control.h"
#include "game_types.h"

#include <array>
#include <memory>

class QCheckBox;
class QLineEdit;
class QPushButton;
class game_table;

namespace Ui
{
class systemspiel_dialog;
}

/**
 * The dialog in which the user gives players to systems: a system file and a protocol file for
 * each of them, both switched on and off.
 *
 * What the user chooses stays in the dialog until it is accepted. Then the marks of the players
 * and the paths of the settings change, and signals tell what is to be started and stopped;
 * the dialog itself runs nothing.
 */
class systemspiel_dialog : public dialog_layout_control
{
    Q_OBJECT

public:
    /// Shows the marks of the players and the files of the settings, both of which must outlive
    /// the dialog.
    systemspiel_dialog(game_table& players, setting& settings, QWidget* parent = nullptr);
    ~systemspiel_dialog() override;

public slots:
    /// Lets the user choose the system file of a player and switches the system on. It is refused
    /// with a box, and the file kept, while a human's jetons lie on the table.
    void set_system_game_file(general_player::player_names player);

    /// Takes a system file in as if the user had chosen it.
    void offer_system(general_player::player_names player, const QString& path);

    /// Lets the user choose the protocol file of a player, an existing one too, which is written
    /// on at its end. The protocol is switched on if the system is.
    void set_system_output_file(general_player::player_names player);

    /// Forget the file and switch off; without a system there is no protocol.
    /// @param player  0 to 3
    void PB_reset_sys_clicked(int player);
    void PB_reset_sys_out_clicked(int player);

    /// Act on a check box that was switched: back off with a box where that is not possible.
    /// @param player  0 to 3
    void CB_system_game_activ_clicked(int player);
    void CB_system_output_activ_clicked(int player);

    /// A system has come to its end while the dialog is open: its check box goes off, so that
    /// accepting does not start it anew.
    void system_game_ended(general_player::player_names player);

signals:
    /// The system of the player is to be taken out of play. The mark of the player still stands.
    void system_game_stop(general_player::player_names player);

    /// The system file of the settings is to be played. The mark of the player stands already.
    void system_game_start(general_player::player_names player);

    /// All players are done.
    void display_player_status();

    /// The protocol of the player is to be closed. The mark of the player still stands.
    void system_out_stop(general_player::player_names player);

    /// The protocol file of the settings is to be opened. The mark of the player stands already.
    void system_out_start(general_player::player_names player);

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_buttonBox_accepted();

private:
    using player_names = general_player::player_names;

    /// One file of a player.
    struct file_row {
        QCheckBox* box = nullptr;
        QLineEdit* edit = nullptr;
        QString path; ///< empty for none
    };
    using file_rows = std::array<file_row, general_player::player_count>;

    void find_rows();
    void show_path(const file_row& row) const;
    void take_path(file_row& row, const QString& path) const;
    bool plays_by_hand(player_names player) const;
    void tell(const QString& text);
    bool change_is_wanted(player_names player);

    void apply_system(player_names player);
    void apply_protocol(player_names player);
    void start_system(player_names player);
    void stop_system(player_names player);
    void start_protocol(player_names player);
    void stop_protocol(player_names player);

    game_table& table;
    setting& game_setting;
    const std::unique_ptr<Ui::systemspiel_dialog> ui;
    file_rows systems;
    file_rows protocols;
    bool is_busy = false; // a box or file dialog is open, or the choice is being applied
};

#endif // SYSTEMSPIEL_DIALOG_H
