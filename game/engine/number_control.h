#ifndef NUMBER_CONTROL_H
#define NUMBER_CONTROL_H

#include "game_table.h"

#include <QMutex>
#include <QObject>
#include <QPoint>

class setting;

/// Lays the bet of a system on the table: a single jeton, or with `NO_JETON` every jeton of the
/// announcement, `amount` pieces of value 1 each.
/// @param form  the table form, which decides what an announcement consists of
void lay_system_bet(game_table& table,
                    table_form form,
                    general_player::player_names player,
                    jetons::jeton_names jeton,
                    jetons::ext_jeton_names ext_jeton,
                    int amount);

/**
 * Turns a point of the table or the name of an announcement into single jetons and sends them to
 * whoever sets them.
 */
class number_control : public QObject
{
    Q_OBJECT

public:
    /// The shared object of the program.
    static number_control& instance();

    number_control(const game_table& table, const setting& settings, QObject* parent = nullptr);

    /// The announcements that a number hits, on the table that is played.
    const QVector<jetons::ext_jeton_names>& hit_list(int number) const;

    /// Scale reduction of the table on the screen, 0.0 to 0.3.
    void set_reduction(double new_reduction) { reduction = new_reduction; }

public slots:
    /// Sends the chance or the announcement that lies at a point of the table, one piece for the
    /// active player. Nothing happens without an active player, at a point without a bet, and
    /// while an earlier click is still worked on.
    /// @param point  pixels of the scaled window, menu bar excluded
    void set_remove_jeton_via_table_point(general_setting::setting_jeton_action action,
                                          QPoint point);

    /// Sends every jeton of an announcement, or shows it. A human whose credit does not suffice
    /// for `amount` pieces on each place is told so, and nothing is set.
    void set_remove_ext_jeton_via_ext_jeton_name(general_setting::setting_jeton_action action,
                                                 jetons::ext_jeton_names ext_jeton,
                                                 general_player::player_names player,
                                                 int amount);

signals:
    void jeton_type_on_pos(general_setting::setting_jeton_action action,
                           jetons::jeton_names jeton,
                           general_player::player_names player,
                           int amount);
    void finished();
    void draw_selection_for_special_jetons(jetons::ext_jeton_names ext_jeton);
    void set_not_possible_to_less_credit(int jeton_count);

private:
    const game_table& accounts;
    const setting& game_setting;
    double reduction = 0.0;
    QMutex click_guard; // held while a click on the table is worked on
};

#endif // NUMBER_CONTROL_H
