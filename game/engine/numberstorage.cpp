#include "numberstorage.h"

#include "number_records.h"
#include "setting.h"
#include "start_modes.h"

#include <QDebug>
#include <QFileInfo>

#include <ctime>
#include <limits>

static quint32 seconds_now()
{
    return static_cast<quint32>(time(nullptr));
}

/// Fills up with empty texts; so there always is a first file to look at and to take away.
static void fill_file_places(QStringList& files)
{
    while (files.size() < general_loadfile::file_place_count) {
        files.append(QString());
    }
}

static int last_number_of(table_form form)
{
    return pocket_count(form) - 1;
}

numberStorage::numberStorage(const setting& game_settings, QObject* parent)
    : QObject(parent)
    , settings(game_settings)
{
    generator.seed(seconds_now(), 0, last_number_of(settings.form()));
    connect(
        &settings, &setting::table_form_changend, this, &numberStorage::cancel_number_not_on_table);
}

numberStorage& numberStorage::instance()
{
    static numberStorage shared(setting::instance());
    return shared;
}

int numberStorage::next_number()
{
    is_from_load_file = false;
    last_number = number_code::no_number;
    switch (source_mode) {
    case number_source::random:
        last_number = draw();
        break;
    case number_source::load_file:
        last_number = take_load_number();
        break;
    case number_source::zero:
        last_number = 0;
        break;
    case number_source::manual:
        source_mode = mode_before_manual;
        last_number = manual_number;
        break;
    }
    return last_number;
}

int numberStorage::draw()
{
    return generator.draw(0, last_number_of(settings.form()));
}

// A double zero that was read for the American table is a zero on the French one.
int numberStorage::take_load_number()
{
    if (load_position == load_numbers.size()) {
        is_last_number_out = true;
        return number_code::no_number;
    }
    int number = load_numbers[load_position++];
    if (number == number_code::double_zero && settings.form() == table_form::french) number = 0;
    is_from_load_file = true;
    if (next_file_pending) show_file_in_play();
    ++load_throw_counter;
    ++current_info.played;
    if (load_position == load_numbers.size()) open_next_load_file();
    return number;
}

void numberStorage::show_file_in_play()
{
    next_file_pending = false;
    current_info = next_info;
    load_throw_counter = 0;
    load_file_name = QFileInfo(load_choice.files.first()).fileName();
    emit next_load_file_is_loaded(true);
}

/// True if the next file has a number; else the load run is over.
bool numberStorage::open_next_load_file()
{
    load_choice.files.removeFirst();
    fill_file_places(load_choice.files);
    next_info = read_first_file();
    next_file_pending = !load_numbers.empty();
    if (!next_file_pending) end_load_run();
    return next_file_pending;
}

load_file_info numberStorage::read_first_file()
{
    drop_load_numbers();
    const QString path = load_choice.files.first();
    if (path.isEmpty()) return {};
    std::vector<quint8> numbers;
    const load_file_info info =
        read_number_files({path}, numbers, reading_mode::play, QDate::currentDate());
    load_numbers = std::move(numbers);
    return info;
}

void numberStorage::end_load_run()
{
    is_last_number_out = true;
    emit last_number_from_file_loaded();
}

void numberStorage::drop_load_numbers()
{
    load_numbers.clear();
    load_position = 0;
}

void numberStorage::set_seed(quint32 seed)
{
    const int last = last_number_of(settings.form());
    generator.seed(seed, 0, last);
    start_generator.seed(seed, 0, last);
    is_seeded = true;
}

void numberStorage::set_source_mode(number_source mode)
{
    if (mode != number_source::manual) set_mode_behind_manual(mode);
}

void numberStorage::set_mode_behind_manual(number_source mode)
{
    (source_mode == number_source::manual ? mode_before_manual : source_mode) = mode;
}

void numberStorage::set_manual_number(int number)
{
    if (number < 0 || number > last_number_of(settings.form())) return;
    if (source_mode != number_source::manual) mode_before_manual = source_mode;
    source_mode = number_source::manual;
    manual_number = number;
}

void numberStorage::cancel_manual_number()
{
    if (source_mode == number_source::manual) source_mode = mode_before_manual;
}

void numberStorage::cancel_number_not_on_table()
{
    if (manual_number > last_number_of(settings.form())) cancel_manual_number();
}

QString numberStorage::manual_number_text() const
{
    return number_text(manual_number);
}

QString numberStorage::hand_change_text() const
{
    const bool is_double = settings.s_hand_change_sign_index() == 1;
    return is_double ? QStringLiteral("--") : QStringLiteral("-");
}

load_file_info numberStorage::read_number_files(const QStringList& files,
                                                std::vector<quint8>& numbers,
                                                reading_mode mode,
                                                const QDate& first_date)
{
    numbers.clear();
    if (is_reading) return {};

    reading_rules rules;
    rules.mode = mode;
    rules.hand_change_mark = hand_change_text();
    rules.form = settings.form();
    rules.first_date = first_date;
    rules.skip_by_date = skip_by_date;
    is_reading = true;
    load_file_result file = read_load_files(files, rules, line_hook);
    skip_by_date = file.skip_by_date;
    if (mode == reading_mode::play) cut_to_start_mode(file);
    tell_of_oddities(file);
    is_reading = false;
    numbers = std::move(file.numbers);
    return file.info;
}

// The generator of the start modes is seeded with the time before each file, unless the game is
// to be repeatable.
void numberStorage::cut_to_start_mode(load_file_result& file)
{
    if (!is_seeded) start_generator.seed(seconds_now(), 0, last_number_of(settings.form()));
    const auto random = [this] { return start_generator.draw(0, std::numeric_limits<int>::max()); };
    start_numbers cut =
        apply_start_mode({std::move(file.numbers), file.info.hand_changes}, load_choice, random);
    file.numbers = std::move(cut.numbers);
    file.info.hand_changes = cut.hand_changes;
    file.info.numbers = static_cast<int>(file.numbers.size()) - cut.hand_changes;
}

/// There may be millions of them.
void numberStorage::tell_of_oddities(const load_file_result& file)
{
    const std::function<void()> keep_alive = line_hook; // it may be taken away meanwhile
    for (int warning = 0; warning < file.double_zero_warnings; ++warning) {
        if (keep_alive) keep_alive();
        emit load_file_warning_00_on_franz_table(true);
    }
    for (const int value : file.illegal_values) {
        if (keep_alive) keep_alive();
        qDebug() << "illegal number found" << value;
        emit load_file_illegal_number_found(value);
    }
}

int numberStorage::count_load_file_numbers(const QString& path)
{
    if (is_reading || path.isEmpty()) return 0;
    std::vector<quint8> load_preview;
    current_info =
        read_number_files({path}, load_preview, reading_mode::count, QDate::currentDate());
    return current_info.numbers;
}

void numberStorage::set_load_files(const load_file_settings& choice)
{
    if (is_reading) return;
    load_choice = choice;
    fill_file_places(load_choice.files);
    load_throw_counter = 0;
    next_file_pending = false;
    is_last_number_out = false;
    if (!load_choice.active) {
        drop_load_numbers();
        load_file_name.clear();
        set_mode_behind_manual(number_source::random);
        return;
    }
    set_mode_behind_manual(number_source::load_file);
    load_file_name = QFileInfo(load_choice.files.first()).fileName();
    current_info = read_first_file();
}

void numberStorage::reset_load_files()
{
    if (is_reading) return;
    const bool was_active = load_choice.active;
    load_choice = load_file_settings();
    load_file_name.clear();
    load_throw_counter = 0;
    next_file_pending = false;
    is_last_number_out = false;
    drop_load_numbers();
    current_info = load_file_info();
    set_mode_behind_manual(number_source::random);
    if (was_active) emit load_file_modus_ended();
}

load_file_state numberStorage::load_state() const
{
    return {load_choice, load_file_name, load_throw_counter};
}

void numberStorage::set_load_state(const load_file_state& state)
{
    if (is_reading) return;
    load_choice = state.settings;
    fill_file_places(load_choice.files);
    load_file_name = state.load_file_name;
    load_throw_counter = state.load_throw_counter;
}

bool numberStorage::in_load_mode() const
{
    const bool is_manual = source_mode == number_source::manual;
    return (is_manual ? mode_before_manual : source_mode) == number_source::load_file;
}

int numberStorage::follow_files_left() const
{
    const int file_in_play_count = next_file_pending ? 0 : 1;
    int left = 0;
    for (int place = file_in_play_count; place < load_choice.files.size(); ++place) {
        if (!load_choice.files.at(place).isEmpty()) ++left;
    }
    return left;
}

bool numberStorage::step_to_next_load_file()
{
    if (!in_load_mode() || is_reading) return false;
    if (next_file_pending) return true;
    const bool is_run_over = load_position == load_numbers.size();
    if (is_run_over || follow_files_left() == 0) return false;
    return open_next_load_file();
}
