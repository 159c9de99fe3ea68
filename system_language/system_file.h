#ifndef SYSTEM_FILE_H
#define SYSTEM_FILE_H

#include "game_types.h"
#include "system_sektoren.h"

class setting;

/**
 * The system file of a player: from the file name in the settings to four lists of statements.
 */
class system_file : public system_sektoren
{
    Q_OBJECT

public:
    /// Keeps both references.
    system_file(const setting& settings, const system_pattern& patterns, QObject* parent = nullptr);

    /// Reads the file that the settings name for the player and fills the sections, for the table
    /// that is set at that moment. The result's `player` is the player.
    /// @return status `all_right`; `file_not_opened`; or `error` with everything that the error box
    ///         shows. The sections are empty on both failures.
    sys_result_info read_system_file(general_player::player_names player);

private:
    const setting& settings;
};

#endif // SYSTEM_FILE_H
