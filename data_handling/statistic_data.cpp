#include "statistic_data.h"

#include "announcements.h"
#include "number_records.h"

#include <algorithm>
#include <iterator>
#include <mutex>

using general_player::player_names;

namespace
{

using jeton_serie = serie<jetons::jeton_names>;
using ext_serie = serie<jetons::ext_jeton_names>;

/// The course of a pair, or of one chance beside the others of its kind.
struct simple_chance_place {
    int pair; // of the series, courses and figures
    Qt::GlobalColor colour;
};

// clang-format off
constexpr std::array<simple_chance_place, 6> simple_chance_places{{
    {0, Qt::darkYellow}, // EC01 low
    {1, Qt::darkYellow}, // EC02 even
    {2, Qt::red},        // EC03 red
    {2, Qt::black},      // EC04 black
    {1, Qt::cyan},       // EC05 odd
    {0, Qt::cyan},       // EC06 high
}};
// clang-format on

constexpr std::array<Qt::GlobalColor, 3> third_colours{Qt::darkYellow, Qt::cyan, Qt::darkRed};

template <typename value_type>
value_type& at(std::array<value_type, statistic_data::pair_count>& values, int pair)
{
    return values[static_cast<std::size_t>(pair)];
}

template <std::size_t size>
QList<int> range_of(const std::array<int, size>& values, int first, int last)
{
    QList<int> range;
    range.reserve(last - first + 1);
    std::copy(values.begin() + first, values.begin() + last + 1, std::back_inserter(range));
    return range;
}

/// The places of a histogram count from length 0, which no run has.
QList<int> without_length_0(QList<int> histogram)
{
    histogram.removeFirst();
    return histogram;
}

/// A list of the reader's own, to be made under the lock: Qt looks at the count of sharers without
/// a barrier, so the worker could write into a shared list that a reader has only just let go.
QList<qint64> unshared(QList<qint64> list)
{
    list.detach();
    return list;
}

bool is_player(player_names player)
{
    return player < general_player::NO_PLAYER;
}

} // namespace

bool operator<(const statistic_number_rank& left, const statistic_number_rank& right)
{
    if (left.count != right.count) return left.count < right.count;
    return left.negative_since < right.negative_since;
}

statistic_data::statistic_data(QObject* parent)
    : QObject(parent)
    , simple_series{jeton_serie({jetons::EC01, jetons::EC06}),
                    jeton_serie({jetons::EC02, jetons::EC05}),
                    jeton_serie({jetons::EC03, jetons::EC04})}
    , column_series({jetons::KL01, jetons::KL02, jetons::KL03})
    , dozen_series({jetons::DZ01, jetons::DZ02, jetons::DZ03})
    , final_series({jetons::FI00,
                    jetons::FI01,
                    jetons::FI02,
                    jetons::FI03,
                    jetons::FI04,
                    jetons::FI05,
                    jetons::FI06,
                    jetons::FI07,
                    jetons::FI08,
                    jetons::FI09})
    , sector_series({jetons::GS, jetons::KS, jetons::OR})
{
}

// ---- reading

QList<int> statistic_data::jeton_range(bool since, int first, int last) const
{
    const std::lock_guard locker(store);
    return range_of(since ? jeton_counters.since : jeton_counters.hits, first, last);
}

QList<int> statistic_data::ext_range(bool since, int first, int last) const
{
    const std::lock_guard locker(store);
    return range_of(since ? ext_counters.since : ext_counters.hits, first, last);
}

QList<int> statistic_data::zero_numbers(bool since) const
{
    const std::lock_guard locker(store);
    const auto& values = since ? jeton_counters.since : jeton_counters.hits;
    return {values[jetons::PL00], values[jetons::PL37]};
}

QList<int> statistic_data::numbers(bool since) const
{
    return jeton_range(since, jetons::PL01, jetons::PL36);
}

QList<int> statistic_data::splits(bool since) const
{
    return jeton_range(since, jetons::CH01, jetons::CH63);
}

QList<int> statistic_data::streets(bool since) const
{
    return jeton_range(since, jetons::TP01, jetons::TP16);
}

QList<int> statistic_data::six_lines(bool since) const
{
    return jeton_range(since, jetons::TS01, jetons::TS11);
}

QList<int> statistic_data::simple_chances(bool since) const
{
    return jeton_range(since, jetons::EC01, jetons::EC06);
}

QList<int> statistic_data::corners(bool since) const
{
    return jeton_range(since, jetons::CA01, jetons::CA23);
}

QList<int> statistic_data::columns_and_dozens(bool since) const
{
    return jeton_range(since, jetons::KL01, jetons::DZ03);
}

QList<int> statistic_data::finals(bool since) const
{
    return ext_range(since, jetons::FI00, jetons::FI09);
}

QList<int> statistic_data::sectors(bool since) const
{
    return ext_range(since, jetons::GS, jetons::ZS);
}

QList<int> statistic_data::one_neighbour_bets(bool since) const
{
    return ext_range(since, jetons::EN00, jetons::EN37);
}

QList<int> statistic_data::two_neighbour_bets(bool since) const
{
    return ext_range(since, jetons::ZN00, jetons::ZN37);
}

QList<int> statistic_data::three_neighbour_bets(bool since) const
{
    return ext_range(since, jetons::DN00, jetons::DN37);
}

int statistic_data::coup_count() const
{
    const std::lock_guard locker(store);
    return coups;
}

int statistic_data::history_coup_count() const
{
    const std::lock_guard locker(store);
    return history_coups;
}

QList<int> statistic_data::follow_row(int number) const
{
    if (!number_code::is_number(number)) return {};
    const std::lock_guard locker(store);
    const auto& row = follow_matrix[static_cast<std::size_t>(number)];
    return range_of(row, 0, number_code::number_count - 1);
}

QList<Qt::GlobalColor> statistic_data::colour_course(colour_course_index index) const
{
    return colours_from(index, 0).toList(); // made without the lock: the game goes on
}

QVector<Qt::GlobalColor> statistic_data::colours_from(colour_course_index index, int first) const
{
    const std::lock_guard locker(store);
    const std::vector<colour_code>& codes = courses[static_cast<std::size_t>(index)];
    const int count = static_cast<int>(codes.size());
    const int begin = std::clamp(first, 0, count);
    QVector<Qt::GlobalColor> colours(count - begin);
    std::transform(codes.begin() + begin, codes.end(), colours.begin(), [](colour_code code) {
        return static_cast<Qt::GlobalColor>(code);
    });
    return colours;
}

muster statistic_data::pattern_figures(int pair) const
{
    if (pair < 0 || pair >= pair_count) {
        Q_ASSERT(false);
        return {};
    }
    const std::lock_guard locker(store);
    muster own = patterns[static_cast<std::size_t>(pair)];
    own.detach(); // as for unshared()
    return own;
}

const jeton_serie* statistic_data::serie_of(jetons::jeton_names chance) const
{
    if (chance >= jetons::EC01 && chance <= jetons::EC06) {
        const auto place = static_cast<std::size_t>(chance - jetons::EC01);
        return &simple_series[static_cast<std::size_t>(simple_chance_places[place].pair)];
    }
    if (chance >= jetons::KL01 && chance <= jetons::KL03) return &column_series;
    if (chance >= jetons::DZ01 && chance <= jetons::DZ03) return &dozen_series;
    return nullptr;
}

QList<int> statistic_data::run_lengths(jetons::jeton_names chance) const
{
    const std::lock_guard locker(store);
    const jeton_serie* runs = serie_of(chance);
    return runs ? without_length_0(runs->get(chance)) : QList<int>();
}

QList<int> statistic_data::run_lengths(jetons::ext_jeton_names announcement) const
{
    const std::lock_guard locker(store);
    if (announcement <= jetons::FI09) return without_length_0(final_series.get(announcement));
    if (announcement <= jetons::OR) return without_length_0(sector_series.get(announcement));
    return {};
}

hot_and_cold_numbers statistic_data::hot_and_cold(int count) const
{
    QList<statistic_number_rank> ranks;
    {
        const std::lock_guard locker(store);
        const int pockets = form == table_form::american ? number_code::number_count
                                                         : number_code::number_count - 1;
        for (int number = 0; number < pockets; ++number) {
            const auto place = static_cast<std::size_t>(number);
            ranks.append(
                {jeton_counters.hits[place], number_text(number), -jeton_counters.since[place]});
        }
    }
    std::stable_sort(ranks.begin(), ranks.end());
    count = std::clamp(count, 0, ranks.size());
    hot_and_cold_numbers ends;
    ends.cold = ranks.mid(0, count);
    std::copy_n(ranks.crbegin(), count, std::back_inserter(ends.hot));
    return ends;
}

player_status statistic_data::status_of(player_names player) const
{
    if (!is_player(player)) return {};
    const std::lock_guard locker(store);
    return players.status_of(player);
}

QList<qint64> statistic_data::seeded_course(player_names player) const
{
    if (!is_player(player)) return {};
    const std::lock_guard locker(store);
    return unshared(players.seeded_course(player));
}

QList<qint64> statistic_data::score_course(player_names player) const
{
    if (!is_player(player)) return {};
    const std::lock_guard locker(store);
    return unshared(players.score_course(player));
}

QList<qint64> statistic_data::credit_course(player_names player) const
{
    if (!is_player(player)) return {};
    const std::lock_guard locker(store);
    return unshared(players.credit_course(player));
}

// ---- one coup

void statistic_data::start() {}

void statistic_data::set_table_form(table_form new_form)
{
    const std::lock_guard locker(store);
    form = new_form;
}

void statistic_data::addtoStat(const number_hit_property& property, bool update_display)
{
    if (!property.valid || !number_code::is_number(property.number)) return;
    int count = 0;
    {
        const std::lock_guard locker(store);
        count = ++coups;
        count_jetons(property);
        count_announcements(property.number);
        count_succession(property.number);
        count_simple_chances(property);
        count_thirds(property);
        if (property.dz == jetons::NO_JETON) close_runs();
    }
    if (!update_display) return;
    emit cup_counter_update(count);
    emit statistic_update_done();
    emit info_if_history_load_is_finish();
}

void statistic_data::count_jetons(const number_hit_property& property)
{
    auto& since = jeton_counters.since;
    for (std::size_t place = 0; place < jetons::LAST_JN; ++place)
        ++since[place];
    const auto hit = [&](int jeton) {
        const auto place = static_cast<std::size_t>(jeton);
        ++jeton_counters.hits[place];
        since[place] = 0;
    };
    hit(property.number);
    for (const int jeton : property.ec)
        hit(jeton);
    hit(property.dz);
    hit(property.kl);
    for (const int jeton : property.tp)
        hit(jeton);
    for (const int jeton : property.ts)
        hit(jeton);
    for (const int jeton : property.ca)
        hit(jeton);
    for (const int jeton : property.ch)
        hit(jeton);
}

void statistic_data::count_announcements(int number)
{
    const QVector<jetons::ext_jeton_names>& hit_list = hit_announcements(number, form);
    for (int& since : ext_counters.since)
        ++since;
    for (const jetons::ext_jeton_names announcement : hit_list) {
        const auto place = static_cast<std::size_t>(announcement);
        ++ext_counters.hits[place];
        ext_counters.since[place] = 0;
    }
    final_series.add(hit_list.at(0));
    if (form == table_form::french && hit_list.size() > 1) sector_series.add(hit_list.at(1));
}

void statistic_data::count_succession(int number)
{
    if (last_number != jetons::NO_JETON) {
        ++follow_matrix[static_cast<std::size_t>(last_number)][static_cast<std::size_t>(number)];
    }
    last_number = number;
}

void statistic_data::count_simple_chances(const number_hit_property& property)
{
    for (const int chance : property.ec) {
        if (chance == jetons::NO_JETON) continue;
        const auto name = static_cast<jetons::jeton_names>(chance);
        const simple_chance_place& place =
            simple_chance_places[static_cast<std::size_t>(chance - jetons::EC01)];
        at(simple_series, place.pair).add(name);
        add_to_course(static_cast<colour_course_index>(place.pair), place.colour);
        at(patterns, place.pair).add(place.colour);
    }
}

void statistic_data::count_thirds(const number_hit_property& property)
{
    if (property.dz == jetons::NO_JETON) return;
    column_series.add(static_cast<jetons::jeton_names>(property.kl));
    dozen_series.add(static_cast<jetons::jeton_names>(property.dz));
    const auto colour = [](int chance, int first) {
        return third_colours[static_cast<std::size_t>(chance - first)];
    };
    add_to_course(colour_course_index::columns, colour(property.kl, jetons::KL01));
    add_to_course(colour_course_index::dozens, colour(property.dz, jetons::DZ01));
}

void statistic_data::close_runs()
{
    for (jeton_serie& runs : simple_series)
        runs.close_run();
    column_series.close_run();
    dozen_series.close_run();
}

void statistic_data::add_to_course(colour_course_index index, Qt::GlobalColor colour)
{
    courses[static_cast<std::size_t>(index)].push_back(static_cast<colour_code>(colour));
}

// ---- reset

void statistic_data::resetStatisticStorage()
{
    const std::lock_guard locker(store);
    coups = 0;
    history_coups = 0;
    jeton_counters = {};
    ext_counters = {};
    last_number = jetons::NO_JETON;
    follow_matrix = {};
    players.reset();
    for (jeton_serie& runs : simple_series)
        runs.reset();
    column_series.reset();
    dozen_series.reset();
    final_series.reset();
    sector_series.reset();
    courses = {};
    for (muster& figures : patterns)
        figures.reset();
}

void statistic_data::store_history_coup_count(int value)
{
    const std::lock_guard locker(store);
    history_coups = value;
}

// ---- the players

void statistic_data::addStartCreditToPlayerStat(player_names s_player, qlonglong PlayerCredit)
{
    if (!is_player(s_player)) return;
    {
        const std::lock_guard locker(store);
        players.set_start_credit(s_player, PlayerCredit);
    }
    emit player_statistic_updated(s_player);
}

void statistic_data::addSeededToPlayerStat(qlonglong seeded_P1,
                                           qlonglong seeded_P2,
                                           qlonglong seeded_P3,
                                           qlonglong seeded_P4)
{
    const std::lock_guard locker(store);
    players.add_seeded(general_player::PLAYER_1, seeded_P1);
    players.add_seeded(general_player::PLAYER_2, seeded_P2);
    players.add_seeded(general_player::PLAYER_3, seeded_P3);
    players.add_seeded(general_player::PLAYER_4, seeded_P4);
}

void statistic_data::addScoreToPlayerStat(player_names s_player,
                                          qlonglong PlayerScore,
                                          int PlayerCredit)
{
    if (!is_player(s_player)) return;
    bool counted = false;
    {
        const std::lock_guard locker(store);
        counted = players.add_score(s_player, PlayerScore, PlayerCredit);
    }
    if (counted) emit player_statistic_updated(s_player);
}
