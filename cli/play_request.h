#ifndef PLAY_REQUEST_H
#define PLAY_REQUEST_H

#include "game_types.h"
#include "load_file_types.h"

#include <QStringList>

#include <array>
#include <optional>

/// Everything that a run needs to know, as the command line gives it.
struct play_request {
    template <typename value_type>
    using per_player = std::array<value_type, general_player::player_count>;

    per_player<QString> systems;   ///< system file, empty for a player who does not play
    per_player<QString> protocols; ///< protocol file, empty for none
    load_file_settings numbers;    ///< files with numbers and where to begin; inactive for none
    qint64 random_count = 0;       ///< coups of the generator, where no files are played
    std::optional<quint32> seed;   ///< makes generator and random starts repeatable
    QString settings_file;         ///< empty: all defaults
    QStringList changed_settings;  ///< "KEY=VALUE", over the settings file
    QString trace_file;            ///< empty for none
    QString summary_file;          ///< empty for none
    bool is_quiet = false;         ///< nothing on standard output, no progress
};

#endif // PLAY_REQUEST_H
