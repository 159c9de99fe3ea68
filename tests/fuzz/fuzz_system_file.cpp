// System files: read, checked, split, compiled, and played for some coups.

#include "coup_cycle.h"
#include "fuzz_target.h"
#include "game_table.h"
#include "numberstorage.h"
#include "player_accounting.h"
#include "setting.h"
#include "system_file_reader.h"
#include "system_pattern.h"
#include "system_play.h"
#include "system_sektor_check.h"
#include "system_sektoren.h"

#include <QTextStream>

namespace
{

constexpr int coup_count = 25;
constexpr auto player = general_player::PLAYER_1;
constexpr int longest_system = 1 << 14; // longer ones only take longer

/// Everything that stays from input to input.
struct fuzz_place {
    explicit fuzz_place(int table_form)
        : patterns(table_form)
    {
        settings.set_s_table_form(table_form);
    }

    setting settings;
    system_pattern patterns;
};

/// Takes whatever the system does.
class fuzz_listener : public play_listener
{
public:
    void set_system_jeton(general_player::player_names,
                          jetons::jeton_names,
                          jetons::ext_jeton_names,
                          int) override
    {
    }
    void system_status_to_main_thread(general_player::player_names, sys_result_info info) override
    {
        ended = ended || info.status != system_status::pause;
    }
    void sys_message_display(QStringList) override {}
    void system_monitor_action(general_player::player_names, QString) override {}
    void system_play_round_complete() override {}

    bool ended = false;
};

void play(const system_sektoren& sections, const fuzz_place& place)
{
    game_table table;
    numberStorage numbers(place.settings);
    numbers.set_seed(1);
    player_accounting accounting(course_keeping::last_coup);
    fuzz_listener listener;
    system_play run({table, numbers, accounting, place.patterns, place.settings}, player);
    run.set_listener(&listener);
    run.init(
        sections.section_st(), sections.section_al(), sections.section_ve(), sections.section_gw());
    for (int coup = 0; coup < coup_count && !listener.ended; ++coup) {
        run.play();
        if (coup % 7 == 6) run.hand_change_sign_throw();
        numbers.add_to_permanence(numbers.next_number());
        accounting.add_seeded(player, coup % 3);
        accounting.add_score(player, coup % 5, 1000 - 10 * coup);
        run.check_special_system_game_borders();
    }
}

void read_and_play(const QByteArray& input, const fuzz_place& place)
{
    QTextStream stream(input);
    const system_file_lines file = read_system_lines(stream);
    if (file.result.status != system_status::all_right) return;
    system_sektoren sections(place.patterns);
    const sys_result_info split =
        sections.split_system_file(file.lines, place.settings.s_table_form());
    if (split.status != system_status::all_right) return;
    if (system_sektor_check().check_section(sections.section_al()).status !=
        system_status::all_right) {
        return;
    }
    play(sections, place);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz_place french(0);
    static const fuzz_place american(1);
    if (size == 0 || size > longest_system) return 0;
    const QByteArray input(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);
    read_and_play(input, data[0] % 2 == 0 ? french : american);
    return 0;
}
