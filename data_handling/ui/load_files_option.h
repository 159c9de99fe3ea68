#ifndef LOAD_FILES_OPTION_H
#define LOAD_FILES_OPTION_H

#include "dialog_layout_control.h"
#include "load_file_types.h"

#include <array>
#include <memory>

class numberStorage;
class QLabel;
class QLineEdit;
class QTimer;

namespace Ui
{
class load_files_option;
}

/**
 * The dialog in which the user chooses the load files and where play begins in them.
 *
 * It keeps its own choice as long as the program runs, whatever becomes of the load run; only
 * the count of files left follows the run. Files are counted while events go on: what would
 * begin a second count meanwhile is ignored, and a dialog that is closed meanwhile closes behind
 * the count.
 */
class load_files_option : public dialog_layout_control
{
    Q_OBJECT

public:
    /// The choice goes to the source; source and settings must outlive the dialog.
    load_files_option(numberStorage& numbers, const setting& settings, QWidget* parent = nullptr);
    ~load_files_option() override;

public slots:
    /// Lets the user choose the load file of a kind in a file dialog and counts its numbers.
    /// True if the choice was taken over; false without a file dialog if the field of the kind
    /// is disabled or the dialog is busy.
    bool select_load_file(general_loadfile::loadfile_type load_file_type);

    /// Takes a load file or, by its ending ".snp", a collection in as if the user had chosen it,
    /// and switches the load files on. False as for `select_load_file()`.
    bool offer_file(const QString& path);

    /// Shows or clears the warning of a double zero on the French table.
    void display_loadfile_00_warning_on_franz_table(bool display);

    void modify_window_based_on_scale() override;

    /// Closes without applying anything; while files are counted, as soon as that is done.
    void reject() override;

signals:
    /// What is told of the file in play has changed: true when a load run begins, false when it
    /// was switched off.
    void display_actual_load_file_info(bool display);

    /// A first load run is about to be read, which can take a while.
    void display_wait_actual_load_file_info();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private slots:
    void on_CB_loadfile_activ_toggled(bool checked);
    void on_PB_main_loadfile_reset_clicked();
    void on_buttonBox_accepted();
    void on_PB_group_loadfile_reset_clicked();
    void on_SB_fix_start_valueChanged(int value);
    void on_SB_random_1_begin_valueChanged(int value);
    void on_SB_random_1_end_valueChanged(int value);
    void on_SB_random_2_length_valueChanged(int value);
    void on_SB_random_2_max_attack_valueChanged(int value);
    void display_blink_wait_load_label();

private:
    enum class led { red, yellow, green };
    struct led_place {
        QLabel* label = nullptr;
        led light = led::red;
    };
    using file_counts = std::array<int, general_loadfile::file_place_count>;

    bool take_choice(general_loadfile::loadfile_type load_file_type, const QString& path);
    QString ask_for_file(general_loadfile::loadfile_type load_file_type);
    bool ask_user(const QString& title, const QString& text);
    void show_disabled_texts_legibly();
    void show_warning_legibly();
    void take_file(int wanted_place, const QString& path);
    void put_file(int place, const QString& path);
    bool take_collection(const QString& path);
    bool rest_is_wanted(const QStringList& not_found);
    void forget_files();

    void refresh();
    bool is_busy() const;
    void begin_wait();
    void end_wait();
    void enable_widgets();
    void set_start_limits(const file_counts& counts);
    void set_spin_ranges(int limit);
    void check_attacks();
    void set_led(led_place& place, led light);
    void show_led(const led_place& place);
    void show_collection();
    void show_files_left();
    void show_changing_texts();

    void switch_off();
    void take_start_mode();
    bool apply_is_wanted();
    void apply();

    numberStorage& number_storage;
    const std::unique_ptr<Ui::load_files_option> ui;
    QTimer* const wait_timer; // runs while files are read
    std::array<QLineEdit*, general_loadfile::file_place_count> path_edits{};
    std::array<QLineEdit*, general_loadfile::file_place_count> count_edits{};
    led_place fix_start_led;
    led_place random_1_led;
    led_place random_2_led;

    load_file_settings choice;
    QString last_folder = QStringLiteral("./sysin");
    int start_limit = 0;           // numbers of the smallest file, 0 for none
    bool new_file = false;         // an empty place was filled, ever
    bool changed_file = false;     // a filled place got another path, ever
    bool choice_is_played = false; // the load run was begun with this choice
    bool main_is_open = true;      // which groups can take a file
    bool follow_is_open = false;
    bool group_is_open = true;
    bool is_asking = false;    // a box or file dialog of this dialog is open
    bool close_is_due = false; // the user closed the dialog during a read
    bool warns_of_double_zero = false;
};

#endif // LOAD_FILES_OPTION_H
