#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "coup_cycle.h"
#include "help_viewer.h"
#include "hot_cold_axis.h"
#include "load_file_types.h"
#include "system_seats.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class Dialog_Select_Number;
class QDialog;
class QLabel;
class QMouseEvent;
class QNetworkAccessManager;
class QNetworkReply;
class QThread;
class QTimer;
class StatusProgressBar;
class chart_statistic_widget;
class dialog_supershort_game_counter;
class editor_window;
class help_keys;
class historystorage;
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
class recent_files;
class statistic_data;
struct statistic_number_rank;
class system_output;
class systemgame_monitor;
class systemspiel_dialog;
class wheelWidget;
class wheel_number_selection;
class window_places;

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
 * mainwindow_statistics.cpp hot and cold numbers and the windows of the statistic,
 * mainwindow_files.cpp recent and dropped files, keys and places of windows,
 * mainwindow_settings.cpp what a change of the settings does, mainwindow_load.cpp load files and
 * the manual number, mainwindow_history.cpp year permanence, history load and permanence windows,
 * mainwindow_update.cpp the search for a newer version, mainwindow_help.cpp the manual.
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
    /// A coup enters the statistic.
    /// @param update_display  false for all coups of a load but the last
    void update_statistic_data(number_hit_property property, bool update_display);
    /// The next coups are played on this form of the table.
    void table_form_taken(table_form form);
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
    /// A newer version is to be looked for.
    void makeUpdateCheck();
    /// The user wants the version that was offered.
    void open_download_dialog(QString version);
    /// What a system did beside its bets.
    void system_monitor_action(general_player::player_names player, QString text);
    /// The number chosen for the next coup; empty for none.
    void distribute_selected_manual_number(QString number);
    /// The scale of the screen has changed.
    void dialog_to_scale();
    /// The field of the single file in the history dialog was pressed.
    void select_history_loadfile();
    /// Year files are to be loaded into the statistic.
    void load_history_files_to_game(QStringList files, QDate first_date);

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
    void on_actionHistory_laden_triggered();
    void on_actionAktuelle_Permanenz_triggered();
    void on_actionJahrespermanenz_triggered();
    void on_actionInfo_triggered();
    // The windows of the statistic show the figures of the moment in which they open.
    void on_actionWie_oft_triggered();
    void on_actionSeit_wann_triggered();
    void on_actionAnnoncen_wie_oft_triggered();
    void on_actionAnnoncen_seit_wann_triggered();
    void on_actionSerien_triggered();
    void on_actionHaeufigkeit_triggered();
    void on_actionFolgezahlen_triggered();
    void on_actionBalken_wie_oft_triggered();
    void on_actionBalken_seit_wann_triggered();
    void on_actionSpielerstatistik_triggered();
    void on_actionKesselverteilung_triggered();
    void on_actionFigurenverlauf_triggered();
    void on_actionFigurenstatistik_triggered();
    /// Looks for a newer version and tells the user what came of it.
    void on_actionUpdate_triggered();
    /// Opens the manual in the language of the settings.
    void on_actionHilfe_triggered();
    void on_actionSystemspiel_triggered();
    void on_actionNeue_Datei_triggered();
    void on_actionDatei_oeffnen_triggered();
    /// Writes the settings and ends the program.
    void on_actionBeenden_triggered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

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
    void update_cold_hot_data();
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
    void execute_update_check();
    void httpReady_update_check();
    void open_download_progress_dialog(const QString& version);
    void show_help(const QString& page);
    void delete_help_process_object(int exit_code);
    void load_history_number(int hist_throw_number, bool update_display);
    void history_set_throw(int number);
    void history_load_complete();

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
    void create_help();
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

    // hot and cold numbers, windows of the statistic
    struct ranked_chart {
        chart_statistic_widget* chart = nullptr;
        hot_cold_axis axis;
    };
    void create_hot_cold_charts();
    void place_hot_cold_charts();
    void set_hot_cold_titles();
    void reset_hot_cold_charts();
    void empty_hot_cold_charts();
    void show_ranks(ranked_chart& place, const QList<statistic_number_rank>& ranks);
    void show_statistic_window(const QString& name, const std::function<QDialog*()>& create);

    // files of the user, keys, places of windows
    void create_recent_files();
    void set_standard_keys();
    void connect_game_keys();
    void open_file_by_ending(const QString& path);
    void offer_load_file(const QString& path);
    void offer_system(const QString& path);
    void show_protocol(const QString& path);
    void show_system_dialog(const QString& offered_path);
    void restore_windows();

    // settings
    void take_over_scale_and_form();
    void take_over_time_bar();
    void ask_for_start_capital();
    void run_postponed();

    // the search for a newer version
    void create_update_check();
    void end_update_check();
    void offer_update(const QString& version);
    void tell_no_update(const QString& version);

    // load files and the manual number
    void keep_alive_while_reading();
    void show_load_file_info();
    void show_load_file_entries();
    void show_selected_number();

    // year permanence and history
    void create_history();
    void load_history_at_start();
    void enable_reading(bool on);
    bool may_begin_run();
    void save_run();
    bool may_end_run();

    std::unique_ptr<Ui::MainWindow> ui;
    setting& game_setting;
    numberStorage& number_storage;
    number_table& chance_table;
    players_control& players;
    number_control& bets;
    coup_cycle cycle;

    std::unique_ptr<program_language> language;
    help_viewer help;
    std::unique_ptr<help_keys> f1;

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
    historystorage* history = nullptr;
    std::array<systemgame_monitor*, general_player::player_count> monitors{};
    QPointer<editor_window> editor; // a window of its own
    QNetworkAccessManager* update_access = nullptr;
    QNetworkReply* update_reply = nullptr; // while an answer is waited for
    QThread* statistic_thread = nullptr;
    statistic_data* statistic = nullptr; // lives and dies in its thread
    std::unique_ptr<system_seats> seats;
    std::array<std::unique_ptr<system_output>, general_player::player_count> system_outputs;
    recent_files* recent = nullptr;
    window_places* places = nullptr;
    QList<QWidget*> open_again; // with the table
    QTimer* blink_timer = nullptr;
    ranked_chart hot_place;
    ranked_chart cold_place;
    bool has_ranks = false; // the charts show numbers

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
    bool update_asked_by_user = false;  // who is told what came of the search
    int forced_pauses = 0;
    int numbers_in_play = 0;         // of the load file, hand changes left out
    QElapsedTimer since_events;      // while a file is read
    bool line_edit_pressed = false;  // its file dialog is on the way
    bool settings_postponed = false; // changed in the middle of a coup
    bool reset_postponed = false;    // asked for in the middle of a coup

    /// A button of the table that rests while a history is loaded at the start.
    struct resting_button {
        QWidget* button;
        bool was_enabled;
    };
    std::vector<resting_button> resting_buttons;
    int bar_state_before_history = 0;
    bool start_history_open = false; // the statistic has not told the end of that load
    int history_numbers_sent = 0;
};

#endif // MAINWINDOW_H
