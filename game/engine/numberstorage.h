#ifndef NUMBERSTORAGE_H
#define NUMBERSTORAGE_H

#include "load_file_reader.h"
#include "load_file_types.h"
#include "number_generator.h"
#include "number_history.h"

#include <QDate>
#include <QObject>

#include <functional>
#include <vector>

class setting;

/// Where the number of the next coup comes from.
enum class number_source {
    random = 0,    ///< the random generator
    load_file = 1, ///< the load files
    zero = 2,      ///< always 0; nothing in the program sets it
    manual = 3     ///< the manual number, for one coup
};

/**
 * The source of numbers: decides the number of every coup and keeps the numbers of the game so
 * far. Numbers are 0 to 36, 37 for the double zero and 99 for a hand change mark.
 *
 * A load run plays a main load file and its follow load files, one number after the other. The
 * file behind is opened when the last number of a file is taken, but counts as the file in play
 * only when its own first number is taken.
 *
 * Reads may run a hook before each line, in which the user can act. Whatever would read a file or
 * change the load run is ignored as long as a read is under way.
 */
class numberStorage : public QObject
{
    Q_OBJECT

public:
    /// A source in random mode, seeded with the time. The settings must outlive it.
    explicit numberStorage(const setting& settings, QObject* parent = nullptr);

    /// The shared object of the program, which plays by the shared settings.
    static numberStorage& instance();

    /// Takes the number of the next coup: 0 to 37, or 99 for a hand change. -1 if load files are
    /// played and none of their numbers is left: that is no coup, and the load run is over.
    int next_number();

    /// What `next_number()` returned last; -1 before the first draw.
    int get_last_number() const { return last_number; }

    /// True if the last number came from a load file, as it was drawn.
    bool number_is_from_load_file() const { return is_from_load_file; }

    /// Starts the generator and the random start modes anew, so that a game can be repeated.
    void set_seed(quint32 seed);

    /// Changes where numbers come from. While a manual number waits, the change acts behind it.
    /// The manual mode is entered by `set_manual_number` only.
    void set_source_mode(number_source mode);
    number_source get_source_mode() const { return source_mode; }

    /// Sets the number of the next coup; a later call overrides an earlier one. A number that the
    /// table doesn't have is ignored.
    void set_manual_number(int number);

    /// Takes the manual number back. Without one: no effect.
    void cancel_manual_number();

    /// "00" for the double zero, else the decimal number.
    QString manual_number_text() const;

    /// "--" or "-", by the setting of the hand change sign.
    QString hand_change_text() const;

    /// Takes the number of a coup, hand change marks included, as the newest of the permanence.
    void add_to_permanence(int number) { permanence.add(number); }

    /// Forgets the permanence; the generator goes on where it stands.
    void clear_permanence() { permanence.clear(); }

    /// The newest numbers, see `number_history::last_numbers`.
    QList<int> last_numbers(int count, bool with_marks) const
    {
        return permanence.last_numbers(count, with_marks);
    }
    const number_history& history() const { return permanence; }

    /// Reads files into the list, which is cleared first. In play mode the start mode of the load
    /// run cuts the list. The date counts in history mode only. Emits the two signals of the
    /// values that were met, behind the read.
    load_file_info read_number_files(const QStringList& files,
                                     std::vector<quint8>& numbers,
                                     reading_mode mode,
                                     const QDate& first_date);

    /// How many numbers a file holds, hand change marks left out; 0 for an empty path. What the
    /// read reports replaces the stored report.
    int count_load_file_numbers(const QString& path);

    /// Takes over the user's choice and begins the load run, or ends it if the choice is inactive.
    void set_load_files(const load_file_settings& settings);

    /// Ends the load run and forgets its files; numbers come from the generator again. If a load
    /// run was active, `load_file_modus_ended()` follows.
    void reset_load_files();

    /// The state of the load run, and putting it back; numbers that wait are not part of it.
    load_file_state load_state() const;
    void set_load_state(const load_file_state& state);

    bool load_active() const { return load_choice.active; }
    const QStringList& load_files() const { return load_choice.files; }
    const load_file_settings& load_settings() const { return load_choice; }

    /// Name without folder of the file in play, empty without one.
    QString get_load_file_name() const { return load_file_name; }

    /// Numbers taken from the file in play.
    int get_load_throw_counter() const { return load_throw_counter; }

    /// What the last read reported, and how many of its numbers have been taken.
    const load_file_info& load_info() const { return current_info; }

    /// True while load files are played, also if a manual number comes first.
    bool in_load_mode() const;

    /// Files that wait behind the one in play.
    int follow_files_left() const;

    /// Leaves the file in play for the next one. A next file that was opened already is not
    /// skipped; one without numbers ends the load run. True if a file's first number waits now.
    bool step_to_next_load_file();

    /// True since the last number of the load run was taken or none was left.
    bool last_number_is_out() const { return is_last_number_out; }
    void clear_last_number_is_out() { is_last_number_out = false; }

    /// A function that is called before each line of a file that is read.
    void set_line_hook(std::function<void()> hook) { line_hook = std::move(hook); }

signals:
    /// The last number of the load run was taken; it still plays.
    void last_number_from_file_loaded();

    /// A text "00" was read that counts as 0 on the French table. Only true is emitted.
    void load_file_warning_00_on_franz_table(bool display);

    /// A value above 36 was left out.
    void load_file_illegal_number_found(int value);

    /// The first number of a follow load file is taken. Only true is emitted.
    void next_load_file_is_loaded(bool is_loaded);

    /// The load run is over and cleared away.
    void load_file_modus_ended();

private:
    int draw();
    int take_load_number();
    bool open_next_load_file();
    load_file_info read_first_file();
    void show_file_in_play();
    void end_load_run();
    void drop_load_numbers();
    void set_mode_behind_manual(number_source mode);
    void cancel_number_not_on_table();
    void cut_to_start_mode(load_file_result& file);
    void tell_of_oddities(const load_file_result& file);

    const setting& settings;
    number_source source_mode = number_source::random;
    int last_number = number_code::no_number;
    std::vector<quint8> load_numbers; // of the file in play, or of the next one when pending
    size_t load_position = 0;         // the next one of them
    number_history permanence;
    load_file_settings load_choice;
    QString load_file_name;
    int load_throw_counter = 0;
    bool next_file_pending = false; // the next file is open, none of its numbers is taken
    number_generator generator;
    number_generator start_generator; // for the random start modes
    bool is_seeded = false;           // by the user, not by the time
    int manual_number = 0;
    number_source mode_before_manual = number_source::random;
    bool is_from_load_file = false;
    bool is_last_number_out = false;
    bool is_reading = false;
    bool skip_by_date = false; // outlives a read
    load_file_info current_info;
    load_file_info next_info; // of the next file while it is pending
    std::function<void()> line_hook;
};

#endif // NUMBERSTORAGE_H
