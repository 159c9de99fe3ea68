#ifndef NUMBER_TABLE_H
#define NUMBER_TABLE_H

#include "chance_geometry.h"
#include "game_types.h"
#include "jetons.h"
#include "number_hit_property.h"
#include "number_records.h"

#include <QObject>
#include <QPoint>
#include <QString>

/**
 * What is known of the numbers and chances of the table in play: the bets of a number, its
 * colour, its place on the wheel, and the geometry of a chance. Form and scale reduction follow
 * the settings and are all that the object remembers. Not thread-safe: ask it from the thread
 * that sets form and reduction; colour and bets depend on neither and may be asked anywhere.
 */
class number_table : public QObject
{
    Q_OBJECT

public:
    explicit number_table(table_form form = table_form::french, QObject* parent = nullptr);

    /// The shared object of the program: French and at full size until told otherwise.
    static number_table& instance();

    void set_table_form(table_form form);
    table_form form() const { return current_form; }

    /// Range: 0.0 (full size) to below 1.0; anything else is ignored.
    void set_reduction(double reduction);
    double reduction() const { return current_reduction; }

    /// The colour of a number; a hand change mark is black, an unknown number green.
    number_colour colour(int number) const;

    /// The bets that a number hits; `valid` 0 for a number without a record.
    number_hit_property hit_property(int number) const;

    /// Pockets from zero to the number on the wheel of the form; 0 when the number isn't there.
    int clockwise_index(int number) const;
    int counter_clockwise_index(int number) const;

    /// The number at a clockwise index of the wheel. Range: 0 to 36, on the American wheel to 37;
    /// -1 beyond it.
    int number_at(int clockwise_index) const;

    /// The geometry of a chance; no picture and position 0 for what is no place of the table.
    chance_geometry geometry(jetons::jeton_names jeton) const;

    /// The same by the key of the chance ("PL01", "KL02"). Case counts.
    chance_geometry geometry(const QString& chance) const;

    /// Top left of a player's jeton in pixels of the scaled window.
    QPoint jeton_position(jetons::jeton_names jeton, general_player::player_names player) const;

private:
    table_form current_form;
    double current_reduction = 0.0;
};

#endif // NUMBER_TABLE_H
