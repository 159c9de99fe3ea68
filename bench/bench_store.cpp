// The store of the statistic: what a coup of a load costs, and what reading costs behind a million.

#include "number_records.h"
#include "statistic_data.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <random>
#include <vector>

namespace
{

constexpr int coup_count = 1000000;

std::vector<number_hit_property> random_coups(table_form form)
{
    std::mt19937 generator(1);
    const unsigned pockets = static_cast<unsigned>(pocket_count(form));
    std::vector<number_hit_property> coups;
    coups.reserve(coup_count);
    for (int i = 0; i < coup_count; ++i)
        coups.push_back(property_of(static_cast<int>(generator() % pockets)));
    return coups;
}

void feed(statistic_data& store, const std::vector<number_hit_property>& coups)
{
    for (const number_hit_property& coup : coups)
        store.addtoStat(coup, false);
}

void coups_of_a_load(benchmark::State& state, table_form form)
{
    const std::vector<number_hit_property> coups = random_coups(form);
    for (auto _ : state) {
        statistic_data store;
        store.set_table_form(form);
        feed(store, coups);
        benchmark::DoNotOptimize(store.coup_count());
    }
    state.SetItemsProcessed(state.iterations() * coup_count);
}

void stakes_and_scores(benchmark::State& state)
{
    for (auto _ : state) {
        statistic_data store;
        for (int coup = 0; coup < coup_count; ++coup) {
            store.addSeededToPlayerStat(1, 2, 3, 4);
            for (int i = 0; i < general_player::player_count; ++i)
                store.addScoreToPlayerStat(static_cast<general_player::player_names>(i), 2, 1000);
        }
    }
    state.SetItemsProcessed(state.iterations() * coup_count);
}

/// A store behind a million coups, filled once.
const statistic_data& full_store()
{
    static const std::unique_ptr<statistic_data> shared = [] {
        auto store = std::make_unique<statistic_data>();
        feed(*store, random_coups(table_form::french));
        for (int coup = 0; coup < coup_count; ++coup) {
            store->addSeededToPlayerStat(1, 2, 3, 4);
            store->addScoreToPlayerStat(general_player::PLAYER_1, 2, 1000);
        }
        return store;
    }();
    return *shared;
}

template <typename reader>
void read(benchmark::State& state, reader read_value)
{
    const statistic_data& store = full_store();
    for (auto _ : state) {
        const auto value = read_value(store);
        benchmark::DoNotOptimize(&value);
    }
}

void read_numbers(benchmark::State& state)
{
    read(state, [](const statistic_data& store) { return store.numbers(true); });
}

void read_splits(benchmark::State& state)
{
    read(state, [](const statistic_data& store) { return store.splits(false); });
}

void read_follow_row(benchmark::State& state)
{
    read(state, [](const statistic_data& store) { return store.follow_row(17); });
}

void read_run_lengths(benchmark::State& state)
{
    read(state, [](const statistic_data& store) { return store.run_lengths(jetons::EC03); });
}

void read_colour_course(benchmark::State& state)
{
    read(state, [](const statistic_data& store) {
        return store.colour_course(colour_course_index::red_black);
    });
}

void read_whole_colours(benchmark::State& state)
{
    read(state, [](const statistic_data& store) {
        return store.colours_from(colour_course_index::red_black, 0);
    });
}

void read_last_colours(benchmark::State& state)
{
    read(state, [](const statistic_data& store) {
        return store.colours_from(colour_course_index::red_black, coup_count - 50000);
    });
}

void read_pattern_figures(benchmark::State& state)
{
    read(state, [](const statistic_data& store) { return store.pattern_figures(2); });
}

void read_hot_and_cold(benchmark::State& state)
{
    read(state, [](const statistic_data& store) { return store.hot_and_cold(4).hot; });
}

void read_credit_course(benchmark::State& state)
{
    read(state,
         [](const statistic_data& store) { return store.credit_course(general_player::PLAYER_1); });
}

BENCHMARK_CAPTURE(coups_of_a_load, french, table_form::french)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(coups_of_a_load, american, table_form::american)->Unit(benchmark::kMillisecond);
BENCHMARK(stakes_and_scores)->Unit(benchmark::kMillisecond);
BENCHMARK(read_numbers);
BENCHMARK(read_splits);
BENCHMARK(read_follow_row);
BENCHMARK(read_run_lengths);
BENCHMARK(read_colour_course);
BENCHMARK(read_whole_colours);
BENCHMARK(read_last_colours);
BENCHMARK(read_pattern_figures);
BENCHMARK(read_hot_and_cold);
BENCHMARK(read_credit_course);

} // namespace

BENCHMARK_MAIN();
