#include "start_modes.h"

#include "game_types.h"

#include <algorithm>

static bool is_mark(quint8 entry)
{
    return entry == number_code::hand_change;
}

/// Takes the first entries away, and their marks out of the count.
static void drop_front(start_numbers& file, size_t count)
{
    const auto end = file.numbers.begin() + static_cast<std::ptrdiff_t>(count);
    file.hand_changes -= static_cast<int>(std::count_if(file.numbers.begin(), end, is_mark));
    file.numbers.erase(file.numbers.begin(), end);
}

/// The cut also ends where the entries dropped meet the entries left.
static void start_behind(start_numbers& file, int number_count)
{
    size_t dropped = 0;
    int numbers = 0;
    do {
        const bool is_number = !is_mark(file.numbers[dropped++]);
        if (is_number && ++numbers == number_count) break;
    } while (dropped < file.numbers.size() - dropped);
    drop_front(file, dropped);
}

/// The count of dropped numbers begins at 1, so a place below 2 is never met.
static void start_at(start_numbers& file, qint64 place)
{
    size_t dropped = 0;
    qint64 counter = 1;
    while (dropped < file.numbers.size()) {
        const bool is_number = !is_mark(file.numbers[dropped++]);
        if (is_number && ++counter == place) break;
    }
    drop_front(file, dropped);
}

static qint64 random_place(const load_file_settings& settings, const std::function<int()>& random)
{
    const qint64 width = qint64{settings.random_1_end} + 1 - settings.random_1_begin;
    if (width < 1) return settings.random_1_begin;
    return random() % width + settings.random_1_begin;
}

/// Where every number stands among the entries; marks are left out.
static std::vector<size_t> places_of_numbers(const std::vector<quint8>& entries)
{
    std::vector<size_t> places;
    places.reserve(entries.size());
    for (size_t place = 0; place < entries.size(); ++place) {
        if (!is_mark(entries[place])) places.push_back(place);
    }
    return places;
}

/// One past the last entry of an attack. An attack without a usable length runs to the end.
static size_t
attack_end(const std::vector<size_t>& places, size_t first_number, int length, size_t entry_count)
{
    if (length < 1) return entry_count;
    const size_t last_number = first_number + static_cast<size_t>(length) - 1;
    return last_number < places.size() ? places[last_number] + 1 : entry_count;
}

static void cut_into_attacks(start_numbers& file,
                             const load_file_settings& settings,
                             const std::function<int()>& random)
{
    const std::vector<size_t> places = places_of_numbers(file.numbers);
    const qint64 number_count = static_cast<qint64>(places.size());
    const size_t limit = std::max(file.numbers.size(), longest_attack_list);
    const int attacks = settings.random_2_max_attack;
    if (attacks < 1) return;

    const qint64 segment = number_count / attacks;
    const qint64 divisor = segment - settings.random_2_length - 1;
    start_numbers result;
    for (qint64 attack = 0; attack < attacks && attack < static_cast<qint64>(limit); ++attack) {
        const qint64 first = attack * segment + (divisor == 0 ? 0 : random() % divisor);
        if (first >= number_count) continue;
        const size_t first_number = static_cast<size_t>(first);
        const size_t begin = places[first_number];
        const size_t end =
            attack_end(places, first_number, settings.random_2_length, file.numbers.size());
        if (result.numbers.size() + (end - begin) > limit) break;

        const auto from = file.numbers.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto to = file.numbers.begin() + static_cast<std::ptrdiff_t>(end);
        result.numbers.insert(result.numbers.end(), from, to);
        result.hand_changes = static_cast<int>(std::count_if(from, to, is_mark));
    }
    if (!result.numbers.empty()) file = std::move(result);
}

start_numbers apply_start_mode(start_numbers file,
                               const load_file_settings& settings,
                               const std::function<int()>& random)
{
    if (file.numbers.empty()) return file;
    switch (settings.start_mode) {
    case general_loadfile::FIX_START:
        start_behind(file, settings.fix_start);
        break;
    case general_loadfile::RANDOM_START_1:
        start_at(file, random_place(settings, random));
        break;
    case general_loadfile::RANDOM_START_2:
        cut_into_attacks(file, settings, random);
        break;
    default:
        break;
    }
    return file;
}
