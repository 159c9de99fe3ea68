#ifndef JETON_BOARD_H
#define JETON_BOARD_H

#include "jeton_button.h"

#include <QObject>
#include <QPointer>

#include <array>

class players_control;
class setting;

/**
 * All jetons that the user sees on the table: mirrors what lies in the accounts, and the pieces
 * that sit in prison. Follows the signals of the accounts by itself.
 *
 * A jeton that is gone is hidden at once and deleted later, since it may be the one whose press
 * took it off the table. The table form is taken over in `set_reduction()` and `refresh_all()`.
 */
class jeton_board : public QObject
{
    Q_OBJECT

public:
    using player_names = general_player::player_names;

    /// @param table_window  the window on which jetons lie, with the menu bar in their y; owns the
    ///                      board
    jeton_board(QWidget* table_window, players_control& accounts, const setting& settings);
    ~jeton_board() override;

    /// The jeton of a player on a place or in prison; null when there is none.
    jeton_button* jeton(player_names player, jetons::jeton_names place) const;

    /// Moves and resizes everything to a scale. Range: 0.0 (full size) to 0.3.
    void set_reduction(double new_reduction);

    /// Builds the twelve prison pictures of a player, in place of those that are there; each is
    /// hidden until a piece sits there.
    void create_prison_jetons(player_names player);

    /// Takes the prison pictures of all players away.
    void remove_prison_jetons();

public slots:
    /// Makes the jetons of a player match the accounts. Cheap when nothing has changed.
    void refresh(general_player::player_names player);

    /// The same for all players, and every jeton is moved to its place on the current table form.
    void refresh_all();

    /// Lays the jetons of a player over those of the others; nothing happens for `NO_PLAYER`.
    void raise_jetons_of(general_player::player_names player);

private slots:
    void raise_active_player();
    void recreate_prison_jetons(general_player::player_names player);

private:
    static constexpr int prison_count = 12;
    static constexpr std::size_t player_count = general_player::player_count;

    /// What the board shows of one player.
    struct player_jetons {
        place_set lying;
        std::array<QPointer<jeton_button>, jetons::LAST_JN> on_table;
        std::array<QPointer<jeton_button>, prison_count> in_prison; // single, then double prison
    };

    player_jetons& of(player_names player) { return shown[static_cast<std::size_t>(player)]; }
    const player_jetons& of(player_names player) const
    {
        return shown[static_cast<std::size_t>(player)];
    }

    void show_jeton(const jeton_info& info);
    jeton_button* lay_jeton(const jeton_info& info);
    void refresh_prison(player_names player);
    void increase(jeton_button* pressed, const jeton_info& info);
    void decrease(jeton_button* pressed, const jeton_info& info);
    void stop_foreign_jeton(jeton_button* pressed) const;
    int prison_piece_value(player_names player) const;

    template <typename visitor>
    void for_each_jeton(visitor visit) const;

    QWidget* window;
    players_control& players;
    const setting& game_setting;
    table_form form;
    double reduction = 0.0;
    std::array<player_jetons, player_count> shown;
};

#endif // JETON_BOARD_H
