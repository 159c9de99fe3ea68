#ifndef SYS_RESULT_INFO_H
#define SYS_RESULT_INFO_H

#include <QMetaType>
#include <QString>

namespace system_status
{

/// Values of `sys_result_info::status`. Every step of the language goes on only on `all_right`.
enum status_value {
    reading = 1,                ///< reading under way
    all_right = 2,              ///< step done
    file_not_opened = 3,        ///< the file can't be opened
    error = 4,                  ///< error in the system
    delay_begun = 5,            ///< `I(n)` waits from here on
    restart = 6,                ///< restart, the delay stays off
    restart_full = 7,           ///< restart, the delay acts again
    stop = 8,                   ///< the system ends
    pause = 9,                  ///< the game goes to pause
    error_marked = 10,          ///< error, shown with the code line marked
    error_table_undefined = 11, ///< progression table not yet defined
    bound_reached = 12          ///< bound of a unit touched; internal to a set statement
};

/// Values of `sys_result_info::mark_mode`.
enum mark_value {
    mark_line = 1, ///< the whole line is shown marked
    mark_token = 2 ///< `mark_text` is underlined in the line
};

/// The part of a result that locates an error, as the editor takes it.
struct sys_error_infos {
    QString error_text;
    int error_line = 0;
    int mark_mode = 0;
    QString mark_text;
};

} // namespace system_status

/// The outcome of every step of the system language, from reading the file to a single test.
struct sys_result_info {
    int status = system_status::all_right;     ///< one of `system_status::status_value`
    int player = 0;                            ///< `general_player::player_names`
    QString error_text;                        ///< message for the user
    int error_line = 0;                        ///< line number in the file, from 1; 0 for none
    int mark_mode = system_status::mark_token; ///< one of `system_status::mark_value`
    QString mark_text;                         ///< the piece of the line that is underlined
    QString line_text;                         ///< source text of the line
    QString command_text;                      ///< the statement as token text
    bool check_result = false;                 ///< outcome of the last test of a condition
    int value = 0;                             ///< value handed back by a read
};

Q_DECLARE_METATYPE(sys_result_info)
Q_DECLARE_METATYPE(system_status::sys_error_infos)

#endif // SYS_RESULT_INFO_H
