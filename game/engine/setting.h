#ifndef SETTING_H
#define SETTING_H

#include "game_types.h"

#include <QDate>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

/// All user settings with their defaults; the members are named as the keys of the file.
/// A piece is worth 2, 5, 10, 20, 25, 50, 100 or 500.
// clang-format off
struct setting_values {
    int s_balkenzeit = 60000;                         ///< betting time in ms; below 1000: 0, no bar
    int s_language = 0;                               ///< 0 auto, 1 German, else 2, English
    int s_language_term = 0;                          ///< words: 0 French, else 1, American
    int s_start_jetons = 2000;                        ///< start capital in pieces
    int s_setzart = 0;                                ///< 0 piece mode, 1 real mode, else 0
    int s_setzart_real_size = 2;                      ///< worth of a piece in real mode, see below
    bool s_wheel_disabled = false;                    ///< the wheel stands, only the ball turns
    bool s_su_shortthrow_activ = false;               ///< no ball, no counting animation
    bool s_jeton_to_win = true;                       ///< the stake joins the win
    int s_tip_def_index = 0;                          ///< staff piece: 1 PL, 2 PL and CH, else 0
    int s_table_form = 0;                             ///< 0 French, 1 American; else 0
    bool s_pr_color = false;                          ///< print in colour
    bool s_pr_landscape = true;                       ///< print in landscape format
    int s_hand_change_sign_index = 0;                 ///< mark of a hand change: 1 "--", else "-"
    int s_scr_res_factor = -1;                        ///< scale step 0 to 3; -1 no screen known
    bool s_year_statistic = true;                     ///< the year permanence is kept
    bool s_use_history_text_files = true;             ///< the year permanence is in text files
    bool s_use_history_throws_startup = false;        ///< load the year permanence at start
    int s_load_history_stat_type_index = 0;           ///< 0 year, 1 one day, 2 last days, 3 date
    int s_history_days_count = 0;                     ///< days for "last days"
    int s_history_year_index = 0;                     ///< place in the years, the newest is 0
    QDate s_history_fix_date = QDate(2000, 1, 1);     ///< day for "from a date"
    bool s_add_lofil_throw_to_year_stat = false;      ///< load file numbers go into it too
    bool s_single_color_timebar = false;              ///< the time bar keeps one colour
    QString s_editor_font;                            ///< editor font; empty: that of the desktop
    QString s_editor_font_size = QStringLiteral("8"); ///< font size of the editor
    QString s_user_sys_file_1;                        ///< system file of player 1
    QString s_user_sys_file_2;                        ///< system file of player 2
    QString s_user_sys_file_3;                        ///< system file of player 3
    QString s_user_sys_file_4;                        ///< system file of player 4
    QString s_user_out_file_1;                        ///< protocol file of player 1
    QString s_user_out_file_2;                        ///< protocol file of player 2
    QString s_user_out_file_3;                        ///< protocol file of player 3
    QString s_user_out_file_4;                        ///< protocol file of player 4
    bool s_zero_handling = true;                      ///< prison rule
    bool s_auto_update_check = true;                  ///< look for an update after start
    bool s_classic_dolly = false;                     ///< drawing of the dolly
    int s_activation_coldhot_display = 30;            ///< first coup of the hot and cold charts
};
// clang-format on

/// The scale step that fits a screen. Range: 0 (full size) to 3. Unit of the size: pixels.
int scale_factor_for_screen(int width, int height);

/**
 * The settings of the user, and the state of the game. Kept in the group "option" of an INI file.
 * A value out of its range is replaced when it is read and when it is set, as told beside
 * `setting_values`; so whoever asks finds only values with a meaning.
 */
class setting : public QObject
{
    Q_OBJECT

public:
    /// A set of settings with all defaults.
    explicit setting(QObject* parent = nullptr);

    /// The shared object of the program.
    static setting& instance();

    /// Reads all settings; a value that is missing or can't be understood gets its default. An
    /// undecided scale step is chosen by the size of the screen, unless that is unknown.
    /// Emits `ini_parameter_changend()`. False if the file is there but damaged or unreadable.
    bool read_settings(const QString& file = QStringLiteral("./zarvello.ini"),
                       const QSize& screen = QSize());

    /// Writes all settings; keys of the file that are none of ours stay. False if it failed.
    bool write_settings(const QString& file = QStringLiteral("./zarvello.ini")) const;

    /// Sets one value by the text of its key. A bool is true, false, 1 or 0, a date is written as
    /// 2000-01-31. Returns an empty text, or on failure a message that names the key; nothing is
    /// changed then.
    QString set_value(const QString& key, const QString& text);

    /// All keys, in the order of `setting_values`.
    static QStringList keys();

    /// All values at once.
    const setting_values& values() const { return current; }

    /// The table that is played.
    table_form form() const { return static_cast<table_form>(current.s_table_form); }

    /// The language of the program's texts.
    general_setting::setting_language language() const
    {
        return static_cast<general_setting::setting_language>(current.s_language);
    }

    /// What every player has at the start. Unit: pieces, in real mode their worth.
    qint64 start_capital() const;

    /// How much smaller than its full size the table is drawn. Range: 0.0 to 0.3.
    double scale_reduction() const;

    /// System file of a player; empty for `NO_PLAYER`, for whom nothing can be set.
    QString s_user_sys_file(general_player::player_names player) const;
    void set_s_user_sys_file(general_player::player_names player, const QString& path);

    /// Protocol file of a player; empty for `NO_PLAYER`, for whom nothing can be set.
    QString s_user_out_file(general_player::player_names player) const;
    void set_s_user_out_file(general_player::player_names player, const QString& path);

    /// The state of the game; it is not saved.
    game_state state() const { return current_state; }
    void set_state(game_state state) { current_state = state; }

    int s_balkenzeit() const { return current.s_balkenzeit; }
    int s_language() const { return current.s_language; }
    int s_language_term() const { return current.s_language_term; }
    int s_start_jetons() const { return current.s_start_jetons; }
    int s_setzart() const { return current.s_setzart; }
    int s_setzart_real_size() const { return current.s_setzart_real_size; }
    bool s_wheel_disabled() const { return current.s_wheel_disabled; }
    bool s_su_shortthrow_activ() const { return current.s_su_shortthrow_activ; }
    bool s_jeton_to_win() const { return current.s_jeton_to_win; }
    int s_tip_def_index() const { return current.s_tip_def_index; }
    int s_table_form() const { return current.s_table_form; }
    bool s_pr_color() const { return current.s_pr_color; }
    bool s_pr_landscape() const { return current.s_pr_landscape; }
    int s_hand_change_sign_index() const { return current.s_hand_change_sign_index; }
    int s_scr_res_factor() const { return current.s_scr_res_factor; }
    bool s_year_statistic() const { return current.s_year_statistic; }
    bool s_use_history_text_files() const { return current.s_use_history_text_files; }
    bool s_use_history_throws_startup() const { return current.s_use_history_throws_startup; }
    int s_load_history_stat_type_index() const { return current.s_load_history_stat_type_index; }
    int s_history_days_count() const { return current.s_history_days_count; }
    int s_history_year_index() const { return current.s_history_year_index; }
    QDate s_history_fix_date() const { return current.s_history_fix_date; }
    bool s_add_lofil_throw_to_year_stat() const { return current.s_add_lofil_throw_to_year_stat; }
    bool s_single_color_timebar() const { return current.s_single_color_timebar; }
    QString s_editor_font() const { return current.s_editor_font; }
    QString s_editor_font_size() const { return current.s_editor_font_size; }
    QString s_user_sys_file_1() const { return current.s_user_sys_file_1; }
    QString s_user_sys_file_2() const { return current.s_user_sys_file_2; }
    QString s_user_sys_file_3() const { return current.s_user_sys_file_3; }
    QString s_user_sys_file_4() const { return current.s_user_sys_file_4; }
    QString s_user_out_file_1() const { return current.s_user_out_file_1; }
    QString s_user_out_file_2() const { return current.s_user_out_file_2; }
    QString s_user_out_file_3() const { return current.s_user_out_file_3; }
    QString s_user_out_file_4() const { return current.s_user_out_file_4; }
    bool s_zero_handling() const { return current.s_zero_handling; }
    bool s_auto_update_check() const { return current.s_auto_update_check; }
    bool s_classic_dolly() const { return current.s_classic_dolly; }
    int s_activation_coldhot_display() const { return current.s_activation_coldhot_display; }

    void set_s_balkenzeit(int value) { set_number(&setting_values::s_balkenzeit, value); }
    void set_s_language(int value) { set_number(&setting_values::s_language, value); }
    void set_s_language_term(int value) { set_number(&setting_values::s_language_term, value); }
    void set_s_start_jetons(int value) { set_number(&setting_values::s_start_jetons, value); }
    void set_s_setzart(int value) { set_number(&setting_values::s_setzart, value); }
    void set_s_setzart_real_size(int value)
    {
        set_number(&setting_values::s_setzart_real_size, value);
    }
    void set_s_wheel_disabled(bool value) { current.s_wheel_disabled = value; }
    void set_s_su_shortthrow_activ(bool value) { current.s_su_shortthrow_activ = value; }
    void set_s_jeton_to_win(bool value) { current.s_jeton_to_win = value; }
    void set_s_tip_def_index(int value) { set_number(&setting_values::s_tip_def_index, value); }
    void set_s_table_form(int value) { set_number(&setting_values::s_table_form, value); }
    void set_s_pr_color(bool value) { current.s_pr_color = value; }
    void set_s_pr_landscape(bool value) { current.s_pr_landscape = value; }
    void set_s_hand_change_sign_index(int value)
    {
        set_number(&setting_values::s_hand_change_sign_index, value);
    }
    void set_s_scr_res_factor(int value) { set_number(&setting_values::s_scr_res_factor, value); }
    void set_s_year_statistic(bool value) { current.s_year_statistic = value; }
    void set_s_use_history_text_files(bool value) { current.s_use_history_text_files = value; }
    void set_s_use_history_throws_startup(bool value)
    {
        current.s_use_history_throws_startup = value;
    }
    void set_s_load_history_stat_type_index(int value)
    {
        set_number(&setting_values::s_load_history_stat_type_index, value);
    }
    void set_s_history_days_count(int value)
    {
        set_number(&setting_values::s_history_days_count, value);
    }
    void set_s_history_year_index(int value)
    {
        set_number(&setting_values::s_history_year_index, value);
    }
    void set_s_history_fix_date(const QDate& value);
    void set_s_add_lofil_throw_to_year_stat(bool value)
    {
        current.s_add_lofil_throw_to_year_stat = value;
    }
    void set_s_single_color_timebar(bool value) { current.s_single_color_timebar = value; }
    void set_s_editor_font(const QString& value) { current.s_editor_font = value; }
    void set_s_editor_font_size(const QString& value) { current.s_editor_font_size = value; }
    void set_s_user_sys_file_1(const QString& value) { current.s_user_sys_file_1 = value; }
    void set_s_user_sys_file_2(const QString& value) { current.s_user_sys_file_2 = value; }
    void set_s_user_sys_file_3(const QString& value) { current.s_user_sys_file_3 = value; }
    void set_s_user_sys_file_4(const QString& value) { current.s_user_sys_file_4 = value; }
    void set_s_user_out_file_1(const QString& value) { current.s_user_out_file_1 = value; }
    void set_s_user_out_file_2(const QString& value) { current.s_user_out_file_2 = value; }
    void set_s_user_out_file_3(const QString& value) { current.s_user_out_file_3 = value; }
    void set_s_user_out_file_4(const QString& value) { current.s_user_out_file_4 = value; }
    void set_s_zero_handling(bool value) { current.s_zero_handling = value; }
    void set_s_auto_update_check(bool value) { current.s_auto_update_check = value; }
    void set_s_classic_dolly(bool value) { current.s_classic_dolly = value; }
    void set_s_activation_coldhot_display(int value)
    {
        set_number(&setting_values::s_activation_coldhot_display, value);
    }

signals:
    void ini_parameter_changend();

    /// The table changed from one form to the other.
    void table_form_changend();

private:
    void set_number(int setting_values::*place, int value);
    void take_over(const setting_values& values);

    setting_values current;
    game_state current_state = game_state::stopped;
};

#endif // SETTING_H
