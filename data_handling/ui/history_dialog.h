#ifndef HISTORY_DIALOG_H
#define HISTORY_DIALOG_H

#include "determine_history_files_and_date.h"
#include "dialog_layout_control.h"
#include "load_file_types.h"

#include <QDate>
#include <QStringList>

#include <functional>
#include <memory>

class QTimer;
class historystorage;

namespace Ui
{
class history_dialog;
}

/**
 * The dialog in which the user loads year files or a single file into the statistics, and which
 * keeps a protocol of that.
 *
 * A load goes through two phases: the files are read and their numbers sent, and then the
 * statistic works them in and tells its end. Until then the dialog can't be closed.
 */
class history_dialog : public dialog_layout_control
{
    Q_OBJECT

public:
    /// Storage and settings must outlive the dialog.
    /// @param wait_for_statistic  returns when the statistic has counted all that was sent to it
    history_dialog(historystorage& storage,
                   const setting& settings,
                   std::function<void()> wait_for_statistic,
                   QWidget* parent = nullptr);
    ~history_dialog() override;

    /// Closes, unless a load is under way; asks first when a choice has not been loaded yet.
    void done(int result) override;

public slots:
    /// Lets the user choose the single file; whoever cancels chooses none.
    void select_single_history_file();

    void info_from_load_file_illegal_number(int number);
    void info_from_load_file_warning_00_on_french_table(bool display);

    /// The answer to `statistik_clear_request()`: loads the files, or tells that the load was
    /// broken off.
    void load_file(bool reset_status);

    /// The statistic has worked in the last number of the load.
    void load_incorporation_complete();

signals:
    /// The statistic is to be cleared; answered by `load_file()`.
    void statistik_clear_request();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_PB_reset_load_file_clicked();
    void on_PB_load_file_clicked();
    void endisable_red_border_load_button();
    void on_RB_history_year_clicked(bool checked);
    void on_RB_history_last_day_clicked(bool checked);
    void on_RB_history_more_days_clicked(bool checked);
    void on_RB_history_fix_date_clicked(bool checked);
    void on_RB_history_permanenz_file_clicked(bool checked);
    void on_CB_year_storage_activated(int index);
    void on_SP_more_days_valueChanged(int days);
    void on_DE_fix_date_dateChanged(QDate date);
    void on_LE_history_loadfile_textChanged(const QString& text);

private:
    enum class load_phase { none, clearing, reading, incorporating };

    void take_light_paper();
    void list_years();
    void choose_rule(int rule, bool checked);
    void check_load_button();
    void start_blink();
    void stop_blink();
    void forget_single_file();
    history_choice choice() const;
    void read_files();
    void tell_result(const load_file_info& info);
    void end_load(const QString& text, const QColor& colour);
    void enable_widgets(bool on);
    void add_line(const QString& text, const QColor& colour);
    void add_note(const QString& text, const QColor& colour, const QString& consequence);

    historystorage& history;
    const std::function<void()> wait_for_store;
    const std::unique_ptr<Ui::history_dialog> ui;
    QTimer* const blink_timer;
    load_phase phase = load_phase::none;
    bool reset_blink = false; // the border is off in this phase of the blink
    int load_rule = history_rule::from_year;
    QString load_file_path;
    QDate first_date;
    QStringList files_to_load;
    QString last_folder = QStringLiteral("./sysin");
    bool is_asking = false; // a box or file dialog of this dialog is open
    int notes = 0;          // about the numbers of the load
};

#endif // HISTORY_DIALOG_H
