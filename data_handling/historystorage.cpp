#include "historystorage.h"

#include "numberstorage.h"
#include "setting.h"

#include <QCoreApplication>
#include <QPointer>

static constexpr std::size_t numbers_per_draft = 10;
static constexpr std::size_t numbers_between_events = 1000;

historystorage::historystorage(numberStorage& numbers,
                               const setting& game_settings,
                               QObject* parent)
    : QObject(parent)
    , number_storage(numbers)
    , settings(game_settings)
    , now(&QDateTime::currentDateTime)
{
    connect(&number_storage,
            &numberStorage::load_file_warning_00_on_franz_table,
            this,
            &historystorage::load_file_warning_00_on_franz_table);
    connect(&number_storage,
            &numberStorage::load_file_illegal_number_found,
            this,
            &historystorage::load_file_illegal_number_found);
}

// ---- the run in play

void historystorage::add_run_number(int number)
{
    if (!settings.s_year_statistic()) return;
    const bool is_recorded_number = number_storage.number_is_from_load_file();
    if (is_recorded_number && !settings.s_add_lofil_throw_to_year_stat()) return;
    const QDateTime moment = now();
    current_run.add(number, moment);
    if (current_run.run_numbers.size() % numbers_per_draft == 0) draft.keep(current_run, moment);
}

bool historystorage::save_run()
{
    if (current_run.is_empty()) return true;
    if (!settings.s_year_statistic()) {
        draft.remove();
        return true;
    }
    run_record finished = current_run;
    finished.run_end = now();
    if (!append_to_year_file(finished)) {
        draft.keep(current_run, finished.run_end);
        return false;
    }
    clear_run();
    return true;
}

void historystorage::clear_run()
{
    current_run = run_record();
    draft.remove();
}

QString historystorage::format_run_block() const
{
    run_record copy = current_run;
    copy.run_end = now();
    return ::format_run_block(copy);
}

/// A program that was killed behind the save of its run had no time to remove the draft.
static bool save_left_run(const run_record& run)
{
    return is_in_year_file(run) || append_to_year_file(run);
}

void historystorage::save_left_runs()
{
    if (settings.s_year_statistic()) run_draft::take_left_drafts(&save_left_run);
}

// ---- history

bool historystorage::ends_on_hand_change() const
{
    return !history_numbers.empty() && history_numbers.back() == number_code::hand_change;
}

// The user can act in the middle of it; even this object can be gone behind a look at the events.
load_file_info historystorage::load_History_to_game(const QStringList& FilesToLoad,
                                                    const QDate& from_this_date)
{
    if (loading) return {};
    loading = true;
    broken_off = false;
    const QPointer<historystorage> alive(this);
    std::vector<quint8> numbers;
    const load_file_info info = number_storage.read_number_files(
        FilesToLoad, numbers, reading_mode::history, from_this_date);
    if (!alive || !send_history(numbers)) return info;
    history_numbers = std::move(numbers);
    loading = false;
    return info;
}

/// False if this object has died meanwhile.
bool historystorage::send_history(const std::vector<quint8>& numbers)
{
    const QPointer<historystorage> alive(this);
    history_total += static_cast<int>(numbers.size());
    if (numbers.empty()) emit info_if_history_load_is_finish();
    emit dis_history_stat_counter(history_total);
    for (std::size_t left = numbers.size(); left > 0; --left) {
        if (left % numbers_between_events == 0) QCoreApplication::processEvents();
        if (!alive) return false;
        if (broken_off) return true;
        emit load_hist_number(numbers[numbers.size() - left], left == 1);
    }
    if (!numbers.empty()) emit history_set_throw(numbers.back());
    return true;
}
