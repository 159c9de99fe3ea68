#ifndef SYSTEMGAME_MONITOR_H
#define SYSTEMGAME_MONITOR_H

#include "dialog_layout_control.h"
#include "game_types.h"

#include <memory>

class game_table;

namespace Ui
{
class systemgame_monitor;
}

/**
 * A small window beside the table that shows what the system of one player does for the coup
 * about to be thrown. Its object name is "systemgame_monitor_" with 1 to 4.
 *
 * It holds the rows of one coup only, and of those the newest `row_limit`, so it costs the same
 * in the first coup of a long game as in the last; its rows are right while it is hidden, too.
 */
class systemgame_monitor : public dialog_layout_control
{
    Q_OBJECT

public:
    /// Rows that are kept, should a coup be very long in coming.
    static constexpr int row_limit = 10000;

    /// A hidden monitor. The marks of the players and the settings must outlive it.
    /// @param player  the monitored one, never `NO_PLAYER`
    systemgame_monitor(general_player::player_names player,
                       const game_table& players,
                       const setting& settings,
                       QWidget* parent = nullptr);
    ~systemgame_monitor() override;

public slots:
    /// Lamp and button "Manuell" tell whether a system plays the player.
    void updatePlayerStatus();

    /// Shows the number that was chosen for the next coup; empty for none. Only a chosen number
    /// can be thrown from here.
    void display_selected_manual_number(const QString& number);

    /// A row for a bet, if it is one of the monitored player. Unit of the einheiten: pieces.
    void addSet_to_display(general_player::player_names p_name, int einheiten, const QString& set);

    /// The ball is on its way: the rows of this coup go, the chosen number becomes the last one.
    void wheel_direct_started(int number);

    /// A row for anything else that the system of the monitored player did.
    void addAction_to_display(general_player::player_names p_name, const QString& action);

    void modify_window_based_on_scale() override;

signals:
    /// The number of the next coup is to be chosen.
    void select_number_by_user_trigger();

    /// The ball is to be thrown now.
    void doubleMouseEventTriggerd();

    /// The monitor was opened, or closed in whatever way.
    void visibility_changed(bool is_visible);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void on_PB_number_selection_clicked();
    void on_PB_play_number_clicked();

private:
    void show_player_name();
    void append_row(const QString& text);
    void place_beside_parent();

    const general_player::player_names player;
    const game_table& table;
    const std::unique_ptr<Ui::systemgame_monitor> ui;
    bool is_placed = false; // later it stays where the user has put it
};

#endif // SYSTEMGAME_MONITOR_H
