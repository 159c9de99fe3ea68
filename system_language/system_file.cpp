#include "system_file.h"

#include "setting.h"
#include "system_file_reader.h"

system_file::system_file(const setting& game_settings,
                         const system_pattern& patterns,
                         QObject* parent)
    : system_sektoren(patterns, parent)
    , settings(game_settings)
{
}

sys_result_info system_file::read_system_file(general_player::player_names player)
{
    clear_sections();
    const system_file_lines code = read_system_lines(settings.s_user_sys_file(player));
    sys_result_info result = code.result;
    if (result.status == system_status::all_right)
        result = split_system_file(code.lines, settings.s_table_form());
    result.player = player;
    return result;
}
