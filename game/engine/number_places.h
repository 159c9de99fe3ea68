#ifndef NUMBER_PLACES_H
#define NUMBER_PLACES_H

#include "game_types.h"
#include "jeton_layout.h"

/// All single places that win with each number.
extern const std::array<place_set, number_code::number_count> hit_places;

/// All single places that win with a number. @param number  0 to 37
inline const place_set& places_hit_by(int number)
{
    return hit_places[static_cast<std::size_t>(number)];
}

#endif // NUMBER_PLACES_H
