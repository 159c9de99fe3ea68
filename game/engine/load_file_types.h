#ifndef LOAD_FILE_TYPES_H
#define LOAD_FILE_TYPES_H

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>

/// Which load file is meant.
namespace general_loadfile
{
Q_NAMESPACE

/// The value is the place in `load_file_settings::files`; the collection stands behind them.
enum loadfile_type {
    MAIN_LOADFILE = 0,
    FOLLOW_LOADFILE_1 = 1,
    FOLLOW_LOADFILE_2 = 2,
    FOLLOW_LOADFILE_3 = 3,
    FOLLOW_LOADFILE_4 = 4,
    FOLLOW_LOADFILE_5 = 5,
    FOLLOW_LOADFILE_6 = 6,
    FOLLOW_LOADFILE_7 = 7,
    FOLLOW_LOADFILE_8 = 8,
    GROUP_LOADFILE = 9 ///< the collection load file
};
Q_ENUM_NS(loadfile_type)

/// Places of the main load file and its follow load files.
constexpr int file_place_count = 9;

/// Where play begins in a load file; the values of `load_file_settings::start_mode`.
enum start_mode_type {
    NORMAL_START = 0,   ///< at the first number
    FIX_START = 1,      ///< behind a fixed count of numbers
    RANDOM_START_1 = 2, ///< at a random number of a range
    RANDOM_START_2 = 3  ///< several pieces of the file, each from a random number on
};
Q_ENUM_NS(start_mode_type)

/// Nine free places.
inline QStringList empty_file_places()
{
    QStringList places;
    for (int place = 0; place < file_place_count; ++place)
        places.append(QString());
    return places;
}

} // namespace general_loadfile

/// The user's choice of load files and of where to begin in them.
struct load_file_settings {
    bool active = false; ///< load mode is on; at least a main load file is set
    /// The file in play, then the follow load files; empty texts fill up to nine places. From a
    /// collection it holds every file found, also more than nine.
    QStringList files = general_loadfile::empty_file_places();
    QString group_file;          ///< path of the collection, empty if none
    int group_file_count = 0;    ///< files found in the collection
    int start_mode = 0;          ///< `general_loadfile::start_mode_type`
    int fix_start = 0;           ///< numbers dropped by the fix start
    int random_1_begin = 0;      ///< first place of the random start 1, from 1
    int random_1_end = 0;        ///< last place of the random start 1
    int random_2_max_attack = 0; ///< attacks of the random start 2
    int random_2_length = 0;     ///< numbers of one attack
    bool pause_at_end = false;   ///< the game pauses behind the last number of the last file
    QString description;         ///< comment of the collection in play, empty without one
};

inline bool operator==(const load_file_settings& left, const load_file_settings& right)
{
    return left.active == right.active && left.files == right.files &&
           left.group_file == right.group_file && left.group_file_count == right.group_file_count &&
           left.start_mode == right.start_mode && left.fix_start == right.fix_start &&
           left.random_1_begin == right.random_1_begin && left.random_1_end == right.random_1_end &&
           left.random_2_max_attack == right.random_2_max_attack &&
           left.random_2_length == right.random_2_length &&
           left.pause_at_end == right.pause_at_end && left.description == right.description;
}

/// What one read of load files reports.
struct load_file_info {
    QString file_name;    ///< path of the file read; empty if it did not exist
    QString description;  ///< last text line met, empty if none
    int numbers = 0;      ///< entries that are no hand change mark
    int hand_changes = 0; ///< hand change marks
    int played = 0;       ///< numbers taken by the game since the read
};

/// The state of a load run in one value, to be saved and put back.
struct load_file_state {
    load_file_settings settings;
    QString load_file_name;     ///< name shown for the file in play
    int load_throw_counter = 0; ///< numbers taken from the file in play
};

Q_DECLARE_METATYPE(load_file_settings)
Q_DECLARE_METATYPE(load_file_info)
Q_DECLARE_METATYPE(load_file_state)

#endif // LOAD_FILE_TYPES_H
