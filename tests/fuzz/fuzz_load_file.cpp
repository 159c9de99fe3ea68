// Load files, year files and collections, in every reading mode and with every start mode.

#include "fuzz_target.h"
#include "load_file_reader.h"
#include "start_modes.h"

#include <QBuffer>
#include <QDate>

#include <cstdlib>

namespace
{

void check(const load_file_result& result)
{
    int marks = 0;
    for (const quint8 number : result.numbers) {
        if (number > 37 && number != 99) std::abort();
        if (number == 99) ++marks;
    }
    if (result.info.hand_changes != marks) std::abort();
    if (result.info.numbers != static_cast<int>(result.numbers.size()) - marks) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1) return 0;
    const int choice = data[0];
    QByteArray text(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);

    reading_rules rules;
    rules.mode = static_cast<reading_mode>(choice % 3);
    rules.form = choice % 2 == 0 ? table_form::french : table_form::american;
    rules.hand_change_mark = choice % 5 == 0 ? "--" : "-";
    rules.first_date = QDate(2020, 3, 2);
    rules.skip_by_date = choice % 7 == 0;
    QBuffer buffer(&text);
    if (!buffer.open(QIODevice::ReadOnly)) return 0;
    load_file_reader reader(rules);
    reader.read_device(buffer);
    const load_file_result result = reader.result();
    check(result);

    load_file_settings start;
    start.start_mode = choice / 4 % 4;
    start.fix_start = choice;
    start.random_1_begin = 1 + choice % 9;
    start.random_1_end = choice % 30;
    start.random_2_max_attack = choice % 11;
    start.random_2_length = choice % 6;
    int state = choice;
    const auto random = [&state] { return state = (state * 1103 + 12345) % 65521; };
    if (!result.numbers.empty()) {
        apply_start_mode({result.numbers, result.info.hand_changes}, start, random);
    }
    collect_load_files(QString::fromUtf8(text).split('\n'), "folder", [](const QString& path) {
        return path.size() % 2 == 0;
    });
    return 0;
}
