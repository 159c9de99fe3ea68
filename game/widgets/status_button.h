#ifndef STATUS_BUTTON_H
#define STATUS_BUTTON_H

#include "game_types.h"

#include <QPushButton>
#include <QTimer>

class players_control;
class setting;

/**
 * The state of one player as a button: whose turn it is, and behind a coup the score, which
 * blinks and is then counted step by step into the player's credit. A click switches the replay
 * of the last bet.
 */
class status_button : public QPushButton
{
    Q_OBJECT

public:
    /// How a player takes part; the values are those of `players_control::player_status()`.
    enum class status { active = 0, system = 1, waiting = 2 };

    status_button(general_player::player_names player,
                  players_control& accounts,
                  const setting& settings,
                  QWidget* parent);

    /// Shows how the player takes part; while a score is counted, as soon as the count ends.
    void show_status(status new_status);

    /// Shows whether the replay of the player is on, in the same way.
    void refresh_replay_display();

    /// Blinks a score and counts it into the credit; in a super short game at once, also when it
    /// begins or ends in the middle of a count. Ends with `count_finished()`, for a score of 0
    /// too. Unit: worth, not negative.
    void display_score(qlonglong score);

    /// Breaks a count off: the status is shown again and nothing is sent.
    void stop_count();

    bool is_counting() const { return counting; }

public slots:
    /// One tick of the blinking.
    void blink_display_change();

    /// One step of the score into the credit.
    void move_credit_to_score();

signals:
    /// A step of the score, to be added to the credit of the player.
    void addCredit_to_player(general_player::player_names player, int amount);

    /// The whole score is counted. Nothing follows it, so the receiver may take this button away
    /// by `deleteLater()`.
    void count_finished(general_player::player_names player, qlonglong score);

    /// The user has switched a replay.
    void checkStatusReplay();

protected:
    void changeEvent(QEvent* event) override;

private:
    void switch_replay();
    void show_own_status();
    void tell_name(); ///< to a reader of the screen
    void end_count();
    int next_step() const;

    general_player::player_names player;
    players_control& players;
    const setting& game_setting;
    QTimer blink_timer{this};
    QTimer count_timer{this};
    status current_status = status::waiting;
    bool counting = false;
    bool at_once = false;     // this count moves the whole score in one tick
    qlonglong remaining = 0;  // of the score, not yet in the credit
    qlonglong full_score = 0; // as it was told
    int blink_ticks = 0;
};

#endif // STATUS_BUTTON_H
