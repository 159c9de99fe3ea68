#ifndef HISTORYSTORAGE_H
#define HISTORYSTORAGE_H

#include "load_file_types.h"
#include "run_draft.h"
#include "run_record.h"

#include <QDate>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

class numberStorage;
class setting;

/**
 * The year permanence: collects the numbers of the running game and appends them as one block to
 * the file of the year when the game ends, and reads such files back to fill the statistics
 * before a game.
 *
 * Every ten numbers the run in play is written to a draft, from which the next start of the
 * program saves it if this one is killed.
 */
class historystorage : public QObject
{
    Q_OBJECT

public:
    /// Source and settings must outlive the object.
    historystorage(numberStorage& numbers, const setting& settings, QObject* parent = nullptr);

    /// Replaces the clock of the computer.
    void set_clock(std::function<QDateTime()> present_moment) { now = std::move(present_moment); }

    /// Takes the number of a coup, or the mark 99. Ignored while no year permanence is kept, and
    /// for a number of the load files unless these are to be kept too.
    void add_run_number(int number);

    /// Appends the run to the year file of its begin and clears it. Nothing is done while no year
    /// permanence is kept. False if the file can't be written: the run stays for a later call.
    bool save_run();

    /// Forgets the run and its draft.
    void clear_run();

    const run_record& run() const { return current_run; }

    /// Writes down the whole run in its draft, in front of an end of the program at which nobody
    /// can be asked any more.
    void write_draft() { draft.keep(current_run, now()); }

    /// True if the whole run lies in its draft, from which a later program start can save it.
    bool run_is_in_draft() const { return draft.holds(current_run); }

    /// The block of the run as it would be saved now; empty without numbers.
    QString format_run_block() const;

    /// Saves the runs that killed programs have left in drafts. What can't be saved stays.
    void save_left_runs();

    /// The next history load counts its entries from 0 again.
    void forget_history_total() { history_total = 0; }

    /// True while `load_History_to_game()` runs.
    bool is_loading() const { return loading; }

    /// Lets a load that runs send nothing more.
    void break_off_load() { broken_off = true; }

    /// True if the last entry of the last history load was a hand change.
    bool ends_on_hand_change() const;

public slots:
    /// Reads year files and sends their numbers one by one, while events go on; returns what was
    /// read. A call while another one runs does nothing.
    /// @param from_this_date  blocks that began before this day are left out
    load_file_info load_History_to_game(const QStringList& FilesToLoad,
                                        const QDate& from_this_date);

signals:
    /// An entry of the files: 0 to 37, or 99. True with the last one.
    void load_hist_number(int number, bool update_display);

    // What the reader of load files tells.
    void load_file_warning_00_on_franz_table(bool display);
    void load_file_illegal_number_found(int number);

    /// The last entry of a load.
    void history_set_throw(int number);

    /// Nothing was found; after a load with numbers the statistic tells its end.
    void info_if_history_load_is_finish();

    /// All entries of this and of the loads before it, hand changes included.
    void dis_history_stat_counter(int entries);

private:
    bool send_history(const std::vector<quint8>& numbers);

    numberStorage& number_storage;
    const setting& settings;
    std::function<QDateTime()> now;
    run_record current_run;
    run_draft draft;
    std::vector<quint8> history_numbers; // of the last load
    int history_total = 0;
    bool loading = false;
    bool broken_off = false;
};

#endif // HISTORYSTORAGE_H
