#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "coup_cycle.h"
#include "load_file_types.h"
#include "system_seats.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>

#include <array>
#include <memory>

class Dialog_Select_Number;
class QLabel;
class QMouseEvent;
class QThread;
class QTimer;
class StatusProgressBar;
class dialog_supershort_game_counter;
class editor_window;
class jeton_board;
class layout_Window;
class load_files_option;
class menu_Window;
class number_control;
class number_table;
class player_statistik_widget;
class player_status_widget;
class players_control;
class program_language;
class statistic_data;
class system_output;
class systemgame_monitor;
class systemspiel_dialog;
class wheelWidget;
class wheel_number_selection;

enum class edit_mode;

namespace Ui
{
class MainWindow;
}

/**
 * The conductor of the desktop: owns or fetches every object of the game, wires them, and puts
 * time bar, wheel and panels between the steps of a coup. What follows what in a coup is the
 * business of `coup_cycle`; the window asks it for the next step and answers its questions.
 *
 * Its rooms: mainwindow.cpp construction and wiring, mainwindow_coup.cpp the coup,
 * mainwindow_table.cpp mouse, bets and players, mainwindow_game.cpp start, pause, stop and the
 * super short game, mainwindow_systems.cpp the systems, mainwindow_editors.cpp their windows,
 * mainwindow_settings.cpp what a change of the settings does, mainwindow_load.cpp load files and
 * the manual number.
 */
class MainWindow : public QMainWindow, private coup_host, private seats_host
{
    Q_OBJECT

public:
    /// Reads the settings file of the working directory and shows nothing yet.
    explicit MainWindow(QWidget* parent = nullptr);
    /// Ends the game, writes the settings and waits for the worker thread.
    ~MainWindow() override;

signals:
    /// The ball is to be thrown for a number. Range: 0 to 37.
    void start_throw(int number) override;
    /// Show a number on the wheel without a coup.
    void set_throw(int number);
    /// A bet is set, removed or shown at a point of the table, menu bar left out.
    void user_set_jeton_by_mouse(general_setting::setting_jeton_action action, QPoint point);
    /// A press on the panels of the players, in their pixels.
    void user_player_selection(QPoint point);
    /// The bets of a coup are closed.
    void player_seeded_is_finish();
    /// A field of the load dialog was pressed.
    void select_load_file(general_loadfile::loadfile_type load_file_type);
    /// The capital with which a player starts. Unit: worth.
    void update_player_stat_credit(general_player::player_names player, qlonglong credit);
    /// A hand change mark has entered the permanence.
    void hand_change_throw_end();
    /// The fields of a chance are to be lit.
    void draw_selection_based_on_jeton_type(jetons::jeton_names jeton);
    /// An announcement is set or removed for a player.
    void special_combo_set_by_type(general_setting::setting_jeton_action action,
                                   jetons::ext_jeton_names ext_jeton,
                                   general_player::player_names player,
                                   int amount);
    /// The betting time begins, is ended by hand, is broken off.
    void start_progress_bar();
    void manual_start_wheel_throw();
    void stop_progress_bar();
    void setting_language_changend(general_setting::setting_language language);
    /// A number has fallen and is to be marked. Range: 0 to 37.
    void draw_dolly_based_on_jeton_type(int plein_number);
    /// The user was asked for a reset: it is done, or was not wanted.
    void statistik_reset_done(bool done);
    void sigShowWindowTile();
    /// A score is in the credit. Unit: worth; the credit is held within the range of int.
    void player_score_changend(general_player::player_names player, qlonglong score, int credit);
    /// A field of the system dialog was pressed.
    void select_system_game_file(general_player::player_names player);
    void select_system_output_file(general_player::player_names player);
    /// The systems play their turn.
    void play_system_file();
    /// A system came to its end by itself.
    void system_has_ended(general_player::player_names player);
    /// A system began or ended.
    void distribute_status_change_to_monitor();
    /// A system has set pieces on a place, which is named as it is shown.
    void display_set_on_monitor(general_player::player_names player, int amount, QString text);
    /// What a system did beside its bets.
    void system_monitor_action(general_player::player_names player, QString text);
    /// The number chosen for the next coup; empty for none.
    void distribute_selected_manual_number(QString number);
    /// The scale of the screen has changed.
    void dialog_to_scale();

public slots:
    /// Toggles the pause.
    void on_actionPause_triggered();
    void on_actionStart_triggered();
    /// Asks, and ends the game: everything back to its start.
    void on_actionStop_triggered();
    /// Asks, and sets statistic and permanence back.
    void on_actionReset_triggered();
    void on_actionSuperkurzspiel_triggered(bool checked);
    void on_actionOptionen_triggered();
    void on_actionLadedateien_triggered();
    void on_actionInfo_triggered();
    void on_actionSystemspiel_triggered();
    void on_actionNeue_Datei_triggered();
    void on_actionDatei_oeffnen_triggered();
    /// Writes the settings and ends the program.
    void on_actionBeenden_triggered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private slots:
    void on_PB_super_short_play_clicked(bool checked);
    void on_PB_clear_jetons_clicked();
    void on_PB_replay_clicked(bool checked);
    /// Has no task: the bets of the last coup come back through replay alone.
    void on_PB_last_bet_clicked() {}

    // The steps between the chain of a coup and what the desktop puts between them.
    void enableGameTimer() { cycle.open_bets(); }
    void set_proBar_value() { cycle.close_bets(); }
    void throw_finished() { cycle.throw_finished(); }
    void collect_evaluation_finish(general_player::player_names player, qlonglong score);
    void check_jeton(general_setting::setting_jeton_action action,
                     jetons::jeton_names jeton,
                     general_player::player_names player,
                     int amount);
    void message_set_not_possible(int amount);
    void player_credit_seeded_update_l(general_player::player_names player);
    void player_changed();
    void checkStatusReplay();
    void update_player_statistic_table(general_player::player_names player);
    void update_dis_player_statistic(general_player::player_names player);
    void activate_supershort_game(int count);
    void deactivate_supershort_game();
    void initializes_base_parameter();
    void display_load_file_info(bool is_loaded);
    void display_actual_load_file_info(bool is_active);
    void display_wait_actual_load_file_info();
    void select_number_by_user_is_triggerd();
    void set_window_title();
    void dia_system_start(general_player::player_names player);
    void dia_system_stop(general_player::player_names player);
    void dia_output_start(general_player::player_names player);
    void dia_output_stop(general_player::player_names player);
    void sys_message_display(const QStringList& lines);
    void restart_system(general_player::player_names player);
    void read_main_load_file_again();
    void build_systemfile_menu_entry(QAction* entry);

private:
    using player_names = general_player::player_names;

    /// While one lives, the game is paused; it goes on with the end of it if it ran before and
    /// nothing else has paused it meanwhile.
    class pause_scope
    {
    public:
        explicit pause_scope(MainWindow& window);
        ~pause_scope();
        Q_DISABLE_COPY(pause_scope)

    private:
        MainWindow& window;
        bool is_own = false;
        int earlier_forced_pauses; // a pause that came meanwhile for good is not ended here
    };

    // construction and wiring
    void create_time_bar();
    void create_dialogs();
    void connect_players();
    void connect_numbers();
    void create_statistic();
    void connect_statistic();
    void connect_table();
    void create_layout();
    void find_number_labels();
    void create_blink_timer();
    void create_wheel(QRect place, double reduction);
    void create_player_status_table(QRect place, double reduction);
    void create_player_statistik_table(QRect place, double reduction);

    // the coup
    void bets_closed(const player_sums& seeded) override;
    void hand_change_thrown() override;
    void number_stored(int number) override;
    void count_scores(const number_hit_property& property, const player_sums& scores) override;
    void score_entered(player_names player, qint64 score) override;
    void check_system_borders() override;
    player_flags playing_systems() const override;
    void play_systems() override;
    void bets_opened() override;
    void load_file_ended() override;
    void show_last_numbers();
    void show_last_number(std::size_t row, int number);
    void blink_last_number();
    void end_blink();

    // mouse, bets and players
    void table_pressed(const QMouseEvent& event);
    void press_line_edit(const QObject& widget);
    QPoint table_point(const QMouseEvent& event) const;
    void tell_to_start();
    void select_announcement(general_setting::setting_jeton_action action,
                             jetons::ext_jeton_names first_name);
    void wheel_right_clicked();
    void block_player_bets();
    void show_all_accounts();
    void update_clear_button();

    // start, pause, stop
    void begin_pause();
    void end_pause();
    void force_pause();
    void show_pause_text();
    void enable_actions_of_state();
    void stop_game();
    void reset_statistic_and_numbers();
    void warn_running_systems();
    void reset_store();
    void send_start_credits();
    void ask_for_supershort_game(bool on);
    void show_supershort_game();
    void write_settings();
    void end_program();

    // systems
    void create_seats();
    void drain_statistic();
    bool any_output() const;
    void write_protocols();
    void stop_all_systems();
    void show_system_stop(player_names player, const sys_result_info& info);
    void show_system_error(player_names player, sys_result_info info);
    void jeton_set(player_names player,
                   jetons::jeton_names jeton,
                   jetons::ext_jeton_names ext_jeton,
                   int amount,
                   int line) override;
    void monitor_action(player_names player, const QString& action) override;
    void bets_returned(player_names) override {}
    void message_shown(player_names player, const QStringList& lines) override;
    void pause_wanted(player_names player) override;
    void system_ended(player_names player, const sys_result_info& info) override;
    void round_complete(player_names player) override;

    // monitors, file menus, editors
    void create_monitors();
    void create_menus();
    void open_editor(edit_mode mode,
                     player_names player,
                     general_loadfile::loadfile_type place = general_loadfile::MAIN_LOADFILE);
    void open_system_at_error(player_names player, const system_status::sys_error_infos& error);
    void show_editor(editor_window* new_editor);
    bool may_close_editor();
    void close_side_windows();

    // settings
    void take_over_scale_and_form();
    void take_over_time_bar();
    void ask_for_start_capital();
    void run_postponed();

    // load files and the manual number
    void keep_alive_while_reading();
    void show_load_file_info();
    void show_load_file_entries();
    void show_selected_number();

    std::unique_ptr<Ui::MainWindow> ui;
    setting& game_setting;
    numberStorage& number_storage;
    number_table& chance_table;
    players_control& players;
    number_control& bets;
    coup_cycle cycle;

    std::unique_ptr<program_language> language;

    // children of the window
    StatusProgressBar* time_bar = nullptr;
    jeton_board* board = nullptr;
    layout_Window* table_layout = nullptr;
    player_status_widget* status_widget = nullptr;       // rebuilt on every rescale
    player_statistik_widget* statistik_widget = nullptr; // rebuilt on every rescale
    wheelWidget* wheel_widget = nullptr;                 // rebuilt on every rescale
    wheel_number_selection* number_dialog = nullptr;
    Dialog_Select_Number* announcement_dialog = nullptr;
    dialog_supershort_game_counter* short_game_dialog = nullptr;
    load_files_option* load_dialog = nullptr;
    menu_Window* menus = nullptr;
    std::array<systemgame_monitor*, general_player::player_count> monitors{};
    QPointer<editor_window> editor; // a window of its own
    QThread* statistic_thread = nullptr;
    statistic_data* statistic = nullptr; // lives and dies in its thread
    std::unique_ptr<system_seats> seats;
    std::array<std::unique_ptr<system_output>, general_player::player_count> system_outputs;
    QTimer* blink_timer = nullptr;

    static constexpr int last_number_labels = 10;
    using number_labels = std::array<QLabel*, last_number_labels>;
    number_labels black_labels{}; // of the form, the newest number last
    number_labels red_labels{};

    int blink_count = 0;
    double scale_reduction = -1.0; // so that the first setting always differs
    table_form shown_form = table_form::french;
    player_names statistic_player = general_player::PLAYER_1;
    bool short_game_on = false;
    bool short_game_saved_flag = false; // `s_su_shortthrow_activ` before a super short game
    int forced_pauses = 0;
    int numbers_in_play = 0;         // of the load file, hand changes left out
    QElapsedTimer since_events;      // while a file is read
    bool line_edit_pressed = false;  // its file dialog is on the way
    bool settings_postponed = false; // changed in the middle of a coup
    bool reset_postponed = false;    // asked for in the middle of a coup
};

#endif // MAINWINDOW_H
