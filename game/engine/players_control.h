#ifndef PLAYERS_CONTROL_H
#define PLAYERS_CONTROL_H

#include "game_table.h"
#include "setting.h"

#include <QObject>
#include <QPoint>

Q_DECLARE_METATYPE(jeton_info)

/**
 * The shared surface of the accounts and the jetons: carries what the table panels and the
 * mouse ask for to the `game_table`, and what changes there outward as signals.
 */
class players_control : public QObject, private table_listener
{
    Q_OBJECT

public:
    /// The shared object of the program.
    static players_control& instance();

    /// A table of four humans without money. The settings tell the worth of a piece and must
    /// outlive the object.
    explicit players_control(const setting& settings = setting::instance(),
                             QObject* parent = nullptr);

    game_table& table() { return accounts; }
    const game_table& table() const { return accounts; }

    /// Everything as at the start of the program: four humans without money, nothing on the table.
    void reset();

    /// Scale reduction of the screen, 0.0 to 0.3.
    void set_reduction(double new_reduction) { reduction = new_reduction; }

    /// 1 for a system player, 0 for the active player, 2 for a waiting one.
    int player_status(general_player::player_names player) const;

    /// Replay of one player, over and over; stays off for a system player.
    void toggle_replay(general_player::player_names player);

    /// Sends the sums that were seeded when the bets closed.
    void tell_seeded(const player_sums& seeded);

    /// Replay on for every human, or off for all.
    void set_replay_for_all(bool on);

public slots:
    /// Makes a player active and shows the figures.
    void select_player(general_player::player_names player);

    /// Makes the player active whose name tab lies at the point of the status table.
    void player_selection(QPoint point);

    /// Takes a step of the counted score into the credit.
    void player_add_score_to_credit(general_player::player_names player, int amount);

    /// Closes the bets: tells the seeded sums and remembers the bets. Who plays by `coup_cycle`
    /// has it done there.
    void players_finished_with_set();

    /// Sets the replay bets again. Who plays by `coup_cycle` has it done there.
    void checksReplay();

    /// One more piece on the jeton for its owner, or for the active player at the same place.
    void increase_jeton_value(jeton_info info);

    /// One piece less, by the same rule.
    void decrease_jeton_value(jeton_info info);

signals:
    void player_credit_seeded_update(general_player::player_names player) override;
    void player_changed() override;
    void player_score_changend(general_player::player_names player, qlonglong score) override;
    void players_seeded_to_storage(qlonglong seeded_P1,
                                   qlonglong seeded_P2,
                                   qlonglong seeded_P3,
                                   qlonglong seeded_P4);
    void replay_setting_finish();
    void change_play_statistic_view(general_player::player_names player);
    void save_zero_back_jeton(general_player::player_names player,
                              jetons::jeton_names jeton,
                              int amount) override;
    void recreate_prison_jetons(general_player::player_names player) override;
    void checkStatusReplay();

private:
    void check_status_replay() override { emit checkStatusReplay(); }

    const setting& game_setting;
    game_table accounts;
    double reduction = 0.0;
};

#endif // PLAYERS_CONTROL_H
