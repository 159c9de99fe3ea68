#ifndef GAME_TYPES_H
#define GAME_TYPES_H

#include <QObject>

/// The four players of the table.
namespace general_player
{
Q_NAMESPACE

/// A player; the value is the index of the player in every array of four.
enum player_names {
    PLAYER_1 = 0,
    PLAYER_2 = 1,
    PLAYER_3 = 2,
    PLAYER_4 = 3,
    NO_PLAYER = 4 ///< no player can be active
};
Q_ENUM_NS(player_names)

/// Players at a table.
constexpr int player_count = 4;

} // namespace general_player

/// What is done with a jeton, and the languages of the program.
namespace general_setting
{
Q_NAMESPACE

enum setting_jeton_action {
    SET_JETON = 0,
    REMOVE_JETON = 1,
    SELECT_JETON = 2 ///< show the numbers of the chance instead of betting
};
Q_ENUM_NS(setting_jeton_action)

enum setting_language { LANG_AUTO = 0, LANG_GERMAN = 1, LANG_ENGLISH = 2 };
Q_ENUM_NS(setting_language)

} // namespace general_setting

/// Values of a number beyond the pockets 0 to 36.
namespace number_code
{

constexpr int double_zero = 37;  ///< the 00 of the American table
constexpr int hand_change = 99;  ///< a hand change mark: no number, never evaluated
constexpr int no_number = -1;    ///< an empty place in a list of last numbers
constexpr int number_count = 38; ///< numbers with a record: 0 to 36 and 37

/// True for 0 to 37.
constexpr bool is_number(int number)
{
    return number >= 0 && number < number_count;
}

} // namespace number_code

/// The state of the game that all objects ask for.
enum class game_state {
    stopped = 0, ///< nothing runs
    running = 1, ///< coups follow each other
    paused = 2   ///< no new coup begins
};

/// The table that is played; the values are those of the setting `s_table_form`.
enum class table_form { french = 0, american = 1 };
Q_DECLARE_METATYPE(table_form)

/// Pockets of the wheel of a table form.
constexpr int pocket_count(table_form form)
{
    return form == table_form::american ? 38 : 37;
}

#endif // GAME_TYPES_H
