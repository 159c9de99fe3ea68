#include "number_places.h"

#include "number_records.h"

static constexpr std::array<place_set, number_code::number_count> make_hit_places()
{
    std::array<place_set, number_code::number_count> hit{};
    for (int number = 0; number < number_code::number_count; ++number) {
        for (int place = 0; place < jetons::LAST_JN; ++place) {
            if (!covers(static_cast<jetons::jeton_names>(place), number)) continue;
            hit[static_cast<std::size_t>(number)].insert(place);
        }
    }
    return hit;
}

constexpr std::array<place_set, number_code::number_count> hit_places = make_hit_places();
