#include "mainwindow.h"

#include "dialog_select_number.h"
#include "dialog_supershort_game_counter.h"
#include "editor_window.h"
#include "help_keys.h"
#include "historystorage.h"
#include "jeton_board.h"
#include "layout_window.h"
#include "load_files_option.h"
#include "number_control.h"
#include "number_table.h"
#include "numberstorage.h"
#include "pictures.h"
#include "player_statistik_widget.h"
#include "player_status_widget.h"
#include "players_control.h"
#include "program_language.h"
#include "setting.h"
#include "statistic_data.h"
#include "statusprogressbar.h"
#include "system_output.h"
#include "ui_mainwindow.h"
#include "wheel_number_selection.h"
#include "wheelwidget.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QThread>
#include <QTimer>

static constexpr int blink_interval = 200; // ms

static void register_meta_types()
{
    qRegisterMetaType<jetons::jeton_names>("jetons::jeton_names");
    qRegisterMetaType<jetons::ext_jeton_names>("jetons::ext_jeton_names");
    qRegisterMetaType<general_player::player_names>("general_player::player_names");
    qRegisterMetaType<general_setting::setting_jeton_action>(
        "general_setting::setting_jeton_action");
    qRegisterMetaType<number_hit_property>("number_hit_property");
    qRegisterMetaType<table_form>("table_form");
}

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
    , game_setting(setting::instance())
    , number_storage(numberStorage::instance())
    , chance_table(number_table::instance())
    , players(players_control::instance())
    , bets(number_control::instance())
    , cycle(players.table(), number_storage, game_setting, *this)
    , language(std::make_unique<program_language>())
{
    register_meta_types();
    init_pictures();
    ui->setupUi(this);
    ui->statusbar->setSizeGripEnabled(false);
    qApp->installEventFilter(this);
    connect(this, &MainWindow::sigShowWindowTile, this, &MainWindow::set_window_title);
    create_update_check();

    create_dialogs();
    create_time_bar();
    connect_players();
    connect_numbers();
    create_statistic();
    connect_table();
    connect(this,
            &MainWindow::setting_language_changend,
            language.get(),
            &program_language::set_game_language);
    connect(&game_setting,
            &setting::ini_parameter_changend,
            this,
            &MainWindow::initializes_base_parameter);
    connect(&game_setting,
            &setting::table_form_changend,
            this,
            &MainWindow::show_selected_number,
            Qt::QueuedConnection); // behind the source, which drops a double zero
    create_monitors();
    find_number_labels();
    create_layout();
    create_menus();
    create_blink_timer();
    create_hot_cold_charts();
    create_help();
    show_pause_text();
    game_setting.read_settings(QStringLiteral("./zarvello.ini"),
                               QGuiApplication::primaryScreen()->geometry().size());
    create_seats(); // its patterns are those of the table form at the start
    create_recent_files();
    set_standard_keys();
    connect_game_keys();
    restore_windows();
    create_history();
    emit sigShowWindowTile();
}

MainWindow::~MainWindow()
{
    qApp->removeEventFilter(this);
    delete editor.data();
    close_side_windows();
    number_storage.set_line_hook({});
    end_update_check();
    disconnect(&game_setting, nullptr, this, nullptr);
    disconnect(&players, nullptr, this, nullptr);
    disconnect(&number_storage, nullptr, this, nullptr);
    deactivate_supershort_game();
    game_setting.set_state(game_state::stopped);
    cycle.stop();
    stop_all_systems();
    seats.reset();
    history->save_run();
    players.reset();
    number_storage.reset_load_files();
    number_storage.cancel_manual_number();
    number_storage.clear_permanence();
    game_setting.write_settings();
    statistic_thread->quit();
    statistic_thread->wait();
}

void MainWindow::create_dialogs()
{
    announcement_dialog = new Dialog_Select_Number(players.table(), game_setting, this);
    number_dialog = new wheel_number_selection(number_storage, game_setting, this);
    short_game_dialog = new dialog_supershort_game_counter(game_setting, this);
    load_dialog = new load_files_option(number_storage, game_setting, this);

    connect(short_game_dialog,
            &dialog_supershort_game_counter::dia_activate_supershort_game,
            this,
            &MainWindow::activate_supershort_game);
    connect(short_game_dialog,
            &dialog_supershort_game_counter::dia_deactivate_supershort_game,
            this,
            &MainWindow::deactivate_supershort_game);
    for (dialog_layout_control* dialog : std::initializer_list<dialog_layout_control*>{
             announcement_dialog, number_dialog, short_game_dialog, load_dialog}) {
        connect(this,
                &MainWindow::dialog_to_scale,
                dialog,
                &dialog_layout_control::modify_window_based_on_scale);
    }
    connect(this, &MainWindow::select_load_file, load_dialog, &load_files_option::select_load_file);
    connect(load_dialog,
            &load_files_option::display_actual_load_file_info,
            this,
            &MainWindow::display_actual_load_file_info);
    connect(load_dialog,
            &load_files_option::display_wait_actual_load_file_info,
            this,
            &MainWindow::display_wait_actual_load_file_info);
}

void MainWindow::create_time_bar()
{
    time_bar = new StatusProgressBar(this);
    time_bar->setObjectName(QStringLiteral("time_bar"));
    time_bar->configure(0, 1000, 75, 95);
    // Queued, so that the tick of the bar ends before the coup begins.
    connect(time_bar,
            &StatusProgressBar::start_wheel_throw,
            this,
            &MainWindow::set_proBar_value,
            Qt::QueuedConnection);
    connect(time_bar,
            &StatusProgressBar::deactivate_supershortgame,
            this,
            &MainWindow::deactivate_supershort_game,
            Qt::QueuedConnection);
    connect(time_bar,
            &StatusProgressBar::block_player_bets,
            this,
            &MainWindow::block_player_bets,
            Qt::DirectConnection);
    connect(this,
            &MainWindow::manual_start_wheel_throw,
            time_bar,
            &StatusProgressBar::start_wheel_throw_by_hand);
    connect(this, &MainWindow::start_progress_bar, time_bar, &StatusProgressBar::start_status_bar);
    connect(this, &MainWindow::stop_progress_bar, time_bar, &StatusProgressBar::stop_status_bar);
}

void MainWindow::connect_players()
{
    board = new jeton_board(this, players, game_setting);
    connect(&players,
            &players_control::player_credit_seeded_update,
            this,
            &MainWindow::player_credit_seeded_update_l,
            Qt::DirectConnection);
    connect(&players, &players_control::player_changed, this, &MainWindow::player_changed);
    connect(this, &MainWindow::user_player_selection, &players, &players_control::player_selection);
    connect(&players,
            &players_control::change_play_statistic_view,
            this,
            &MainWindow::update_dis_player_statistic);
    connect(&players, &players_control::checkStatusReplay, this, &MainWindow::checkStatusReplay);
}

void MainWindow::connect_numbers()
{
    connect(&number_storage,
            &numberStorage::next_load_file_is_loaded,
            this,
            &MainWindow::display_load_file_info);
    // A read may outlive the window that was closed in the middle of it.
    number_storage.set_line_hook([window = QPointer<MainWindow>(this)] {
        if (window) window->keep_alive_while_reading();
    });
    number_storage.reset_load_files();
}

void MainWindow::create_statistic()
{
    statistic = new statistic_data;
    statistic_thread = new QThread(this);
    statistic_thread->setObjectName(QStringLiteral("statistic_thread"));
    statistic->moveToThread(statistic_thread);
    connect(statistic_thread, &QThread::started, statistic, &statistic_data::start);
    connect(statistic, &statistic_data::finished, statistic_thread, &QThread::quit);
    connect(statistic_thread, &QThread::finished, statistic, &QObject::deleteLater);
    connect(
        statistic, &statistic_data::statistic_update_done, this, &MainWindow::update_cold_hot_data);
    statistic_thread->start(QThread::InheritPriority);
    connect_statistic();
}

void MainWindow::connect_statistic()
{
    connect(this, &MainWindow::table_form_taken, statistic, &statistic_data::set_table_form);
    connect(this, &MainWindow::update_statistic_data, statistic, &statistic_data::addtoStat);
    connect(this,
            &MainWindow::update_player_stat_credit,
            statistic,
            &statistic_data::addStartCreditToPlayerStat);
    connect(&players,
            &players_control::players_seeded_to_storage,
            statistic,
            &statistic_data::addSeededToPlayerStat);
    connect(
        this, &MainWindow::player_score_changend, statistic, &statistic_data::addScoreToPlayerStat);
    connect(statistic,
            &statistic_data::player_statistic_updated,
            this,
            &MainWindow::update_player_statistic_table);
    // Asked anew: what was told on the other side of a reset is no longer true.
    connect(statistic, &statistic_data::cup_counter_update, this, [this] {
        if (statistik_widget) statistik_widget->update_cup_counter(statistic->coup_count());
    });
}

void MainWindow::connect_table()
{
    connect(announcement_dialog,
            &Dialog_Select_Number::special_combo_set_by_type,
            &bets,
            &number_control::set_remove_ext_jeton_via_ext_jeton_name);
    connect(this,
            &MainWindow::special_combo_set_by_type,
            &bets,
            &number_control::set_remove_ext_jeton_via_ext_jeton_name);
    // Queued: a box must not open while the table point is being worked out.
    connect(&bets,
            &number_control::set_not_possible_to_less_credit,
            this,
            &MainWindow::message_set_not_possible,
            Qt::QueuedConnection);
    connect(this,
            &MainWindow::user_set_jeton_by_mouse,
            &bets,
            &number_control::set_remove_jeton_via_table_point);
    connect(&bets, &number_control::jeton_type_on_pos, this, &MainWindow::check_jeton);
}

void MainWindow::create_layout()
{
    table_layout = new layout_Window(*this, *ui, *time_bar, game_setting, this);
    connect(table_layout, &layout_Window::recreate_wheel, this, &MainWindow::create_wheel);
    connect(table_layout,
            &layout_Window::recreate_player_status_table,
            this,
            &MainWindow::create_player_status_table);
    connect(table_layout,
            &layout_Window::recreate_player_statistik_table,
            this,
            &MainWindow::create_player_statistik_table);
    connect(table_layout,
            &layout_Window::set_main_window_size,
            this,
            [this](int width, int height) { setFixedSize(width, height); });
    connect(this,
            &MainWindow::draw_selection_based_on_jeton_type,
            table_layout,
            &layout_Window::draw_selection_based_on_jeton_type);
    connect(&bets,
            &number_control::draw_selection_for_special_jetons,
            table_layout,
            &layout_Window::draw_selection_for_special_jetons);
    connect(this,
            &MainWindow::draw_dolly_based_on_jeton_type,
            table_layout,
            &layout_Window::draw_dolly_based_on_jeton_type);
}

void MainWindow::find_number_labels()
{
    for (std::size_t i = 0; i < last_number_labels; ++i) {
        const QString row = QString::number(i + 1);
        black_labels[i] = ui->centralwidget->findChild<QLabel*>(QLatin1String("LB_ND_DA_N_") + row);
        red_labels[i] = ui->centralwidget->findChild<QLabel*>(QLatin1String("LB_ND_DA_R_") + row);
    }
}

void MainWindow::create_blink_timer()
{
    blink_timer = new QTimer(this);
    blink_timer->setObjectName(QStringLiteral("blink_timer"));
    blink_timer->setInterval(blink_interval);
    connect(blink_timer, &QTimer::timeout, this, &MainWindow::blink_last_number);
}

void MainWindow::create_wheel(QRect place, double reduction)
{
    if (wheel_widget) {
        disconnect(wheel_widget, nullptr, this, nullptr);
        disconnect(this, nullptr, wheel_widget, nullptr);
        wheel_widget->hide();
        wheel_widget->setObjectName(QString());
        wheel_widget->deleteLater();
    }
    const bool american = game_setting.form() == table_form::american;
    wheel_widget = new wheelWidget(ui->centralwidget, reduction, american);
    wheel_widget->setObjectName(QStringLiteral("GV_Wheel"));
    wheel_widget->setGeometry(place);
    connect(this, &MainWindow::start_throw, wheel_widget, &wheelWidget::start_throw);
    connect(this, &MainWindow::set_throw, wheel_widget, &wheelWidget::set_throw);
    connect(wheel_widget, &wheelWidget::throw_finished, this, &MainWindow::throw_finished);
    connect(wheel_widget,
            &wheelWidget::doubleMouseEventTriggerd,
            this,
            &MainWindow::wheel_right_clicked);
    connect(wheel_widget,
            &wheelWidget::select_number_by_user_trigger,
            this,
            &MainWindow::select_number_by_user_is_triggerd,
            Qt::QueuedConnection); // a rescale under its dialog replaces the wheel
    wheel_widget->show();
    const QList<int> last = number_storage.last_numbers(1, false);
    if (!last.isEmpty() && number_code::is_number(last.last())) emit set_throw(last.last());
}

void MainWindow::create_player_status_table(QRect place, double reduction)
{
    if (status_widget) {
        disconnect(status_widget, nullptr, nullptr, nullptr);
        status_widget->stop_count();
        status_widget->hide();
        status_widget->setObjectName(QString());
        status_widget->deleteLater();
    }
    status_widget = new player_status_widget(players, game_setting, reduction, ui->centralwidget);
    status_widget->setGeometry(place);
    connect(status_widget,
            &player_status_widget::count_finished,
            this,
            &MainWindow::collect_evaluation_finish);
    connect(status_widget,
            &player_status_widget::addCredit_to_player,
            &players,
            &players_control::player_add_score_to_credit);
    connect(status_widget,
            &player_status_widget::checkStatusReplay,
            this,
            &MainWindow::checkStatusReplay);
    show_all_accounts();
    player_changed();
    status_widget->show();
}

void MainWindow::create_player_statistik_table(QRect place, double reduction)
{
    if (statistik_widget) {
        statistik_widget->hide();
        statistik_widget->setObjectName(QString());
        statistik_widget->deleteLater();
    }
    statistik_widget = new player_statistik_widget(reduction, ui->centralwidget);
    statistik_widget->setGeometry(place);
    update_dis_player_statistic(statistic_player);
    statistik_widget->update_cup_counter(statistic->coup_count());
    statistik_widget->show();
}

void MainWindow::set_window_title()
{
    setWindowTitle(QStringLiteral("Zarvello"));
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    ui->retranslateUi(this);
    set_window_title();
    show_pause_text();
    show_supershort_game();
    show_selected_number();
    show_load_file_info();
    set_hot_cold_titles();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!may_close_editor() || !may_end_run()) {
        event->ignore();
        return;
    }
    event->accept();
    end_program();
}
