#include "number_table.h"

#include "wheel_order.h"

number_table::number_table(table_form form, QObject* parent)
    : QObject(parent)
    , current_form(form)
{
    qRegisterMetaType<number_hit_property>("number_hit_property");
}

number_table& number_table::instance()
{
    static number_table shared;
    return shared;
}

void number_table::set_table_form(table_form form)
{
    current_form = form;
}

void number_table::set_reduction(double reduction)
{
    if (reduction >= 0.0 && reduction < 1.0) current_reduction = reduction;
}

number_colour number_table::colour(int number) const
{
    return colour_of(number);
}

number_hit_property number_table::hit_property(int number) const
{
    return property_of(number);
}

int number_table::clockwise_index(int number) const
{
    const int index = wheel_index(number, current_form);
    return index < 0 ? 0 : index;
}

int number_table::counter_clockwise_index(int number) const
{
    const int index = clockwise_index(number);
    return index == 0 ? 0 : pocket_count(current_form) - index;
}

int number_table::number_at(int clockwise_index) const
{
    if (clockwise_index < 0 || clockwise_index >= pocket_count(current_form)) {
        return number_code::no_number;
    }
    return wheel_number(clockwise_index, current_form);
}

chance_geometry number_table::geometry(jetons::jeton_names jeton) const
{
    return geometry_of(jeton, current_form);
}

chance_geometry number_table::geometry(const QString& chance) const
{
    return geometry(jetons::value_of(chance));
}

QPoint number_table::jeton_position(jetons::jeton_names jeton,
                                    general_player::player_names player) const
{
    return ::jeton_position(jeton, player, current_form, current_reduction);
}
