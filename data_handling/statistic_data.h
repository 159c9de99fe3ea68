#ifndef STATISTIC_DATA_H
#define STATISTIC_DATA_H

#include "game_types.h"
#include "jetons.h"
#include "muster_figure_set.h"
#include "number_hit_property.h"
#include "player_accounting.h"
#include "serie.h"
#include "store_lock.h"

#include <QObject>
#include <QVector>

#include <array>
#include <vector>

/// A number in the order of hot and cold.
struct statistic_number_rank {
    int count = 0;          ///< hits
    QString text;           ///< the number, "00" for the double zero
    int negative_since = 0; ///< the coups since its last hit, negated: the freshest is greatest
};

/// Colder first: fewer hits, among equal ones the longer absence.
bool operator<(const statistic_number_rank& left, const statistic_number_rank& right);

/// The two ends of the order of hot and cold.
struct hot_and_cold_numbers {
    QList<statistic_number_rank> hot;  ///< hottest first
    QList<statistic_number_rank> cold; ///< coldest first
};

/// The courses of colours that the store keeps.
enum class colour_course_index { low_high = 0, even_odd, red_black, dozens, columns };

/**
 * The store of what is counted about the game, fed by signals and read by value: how often each
 * bet has hit, since when it has not, which number followed which, runs, courses and figures, and
 * what each player set, won and held. It may live in a worker thread: every reader and writer
 * takes the store's lock, and no signal is sent while it is held.
 *
 * Whoever decides something from its figures first waits at `start()` through a blocking queued
 * call: then all that was sent before is counted.
 */
class statistic_data : public QObject, public player_status_reader
{
    Q_OBJECT

public:
    static constexpr int course_count = 5; ///< entries of `colour_course_index`
    static constexpr int pair_count = 3;   ///< pairs of even chances

    explicit statistic_data(QObject* parent = nullptr);

    // Counters. `since` false: hits; true: coups since the last hit, which for a bet that never
    // hit is the count of coups.

    QList<int> zero_numbers(bool since) const;         ///< 0, 00
    QList<int> numbers(bool since) const;              ///< 1 to 36
    QList<int> splits(bool since) const;               ///< `CH01` to `CH63`
    QList<int> streets(bool since) const;              ///< `TP01` to `TP16`
    QList<int> six_lines(bool since) const;            ///< `TS01` to `TS11`
    QList<int> simple_chances(bool since) const;       ///< `EC01` to `EC06`
    QList<int> corners(bool since) const;              ///< `CA01` to `CA23`
    QList<int> columns_and_dozens(bool since) const;   ///< `KL01` to `KL03`, `DZ01` to `DZ03`
    QList<int> finals(bool since) const;               ///< `FI00` to `FI09`
    QList<int> sectors(bool since) const;              ///< `GS`, `KS`, `OR`, `OP`, `ZS`
    QList<int> one_neighbour_bets(bool since) const;   ///< `EN00` to `EN37`
    QList<int> two_neighbour_bets(bool since) const;   ///< `ZN00` to `ZN37`
    QList<int> three_neighbour_bets(bool since) const; ///< `DN00` to `DN37`

    /// Coups since the last reset, hand changes left out.
    int coup_count() const;
    /// Entries of the history load in hand.
    int history_coup_count() const;

    /// How often each of the numbers 0 to 37 came directly behind `number`; empty for what is no
    /// number.
    QList<int> follow_row(int number) const;

    /// One colour per coup that hit a chance of the course, oldest first.
    QList<Qt::GlobalColor> colour_course(colour_course_index index) const;

    /// The same from the entry `first` on, for a view that has drawn those before it. Also the
    /// quick way to a whole course: a QList allocates each colour.
    QVector<Qt::GlobalColor> colours_from(colour_course_index index, int first) const;

    /// The figures of a pair of even chances. Range: 0 (low, high), 1 (even, odd), 2 (red, black).
    muster pattern_figures(int pair) const;

    /// Entry i counts finished runs of i + 1 coups. Empty for a bet that is neither an even chance
    /// nor a column nor a dozen.
    QList<int> run_lengths(jetons::jeton_names chance) const;

    /// As `run_lengths()`, for the finals and for the sectors `GS`, `KS` and `OR`.
    QList<int> run_lengths(jetons::ext_jeton_names announcement) const;

    /// Numbers that never hit are equal; among them the lower number is the colder.
    /// @param count  entries of each list; not more than the table has numbers
    hot_and_cold_numbers hot_and_cold(int count) const;

    // The players. `NO_PLAYER` has no figures: read, they are empty, and what is sent for it is
    // passed over.

    player_status status_of(general_player::player_names player) const override;

    /// One entry per coup. Unit: worth.
    QList<qint64> seeded_course(general_player::player_names player) const;
    QList<qint64> score_course(general_player::player_names player) const;
    QList<qint64> credit_course(general_player::player_names player) const;

public slots:
    /// Does nothing: the barrier behind which everything sent before is counted.
    void start();

    /// The form of the table on which the coups that follow are played; runs of sectors are
    /// counted on the French table alone.
    void set_table_form(table_form new_form);

    /// Counts one coup. A number without a record is passed over.
    /// @param update_display  false for all coups of a load but the last: nothing is told then
    void addtoStat(const number_hit_property& property, bool update_display);

    /// Everything back to empty.
    void resetStatisticStorage();

    void addStartCreditToPlayerStat(general_player::player_names s_player, qlonglong PlayerCredit);

    /// The stakes of one coup, once per coup.
    void addSeededToPlayerStat(qlonglong seeded_P1,
                               qlonglong seeded_P2,
                               qlonglong seeded_P3,
                               qlonglong seeded_P4);

    /// The return of one coup and the credit behind it.
    void addScoreToPlayerStat(general_player::player_names s_player,
                              qlonglong PlayerScore,
                              int PlayerCredit);

    /// Entries of the history load in hand, hand changes included.
    void store_history_coup_count(int value);

signals:
    void finished();
    void player_statistic_updated(general_player::player_names player);
    /// The count of coups has gone up.
    void cup_counter_update(int coups);
    /// A coup is counted that is to be shown.
    void statistic_update_done();
    void info_if_history_load_is_finish();

private:
    /// Hits and coups since the last hit, one entry per place of an enumeration.
    template <std::size_t size>
    struct counters {
        std::array<int, size> hits{};
        std::array<int, size> since{};
    };
    using colour_code = unsigned char; // a Qt::GlobalColor; a QList takes 40 bytes for it
    static constexpr std::size_t jeton_places = jetons::NO_JETON + 1; // unused slots hit the last
    static constexpr std::size_t ext_places = jetons::LAST_ext_JN;
    static constexpr std::size_t number_places = number_code::number_count;

    void count_jetons(const number_hit_property& property);
    void count_announcements(int number);
    void count_succession(int number);
    void count_simple_chances(const number_hit_property& property);
    void count_thirds(const number_hit_property& property);
    void close_runs();
    QList<int> jeton_range(bool since, int first, int last) const;
    QList<int> ext_range(bool since, int first, int last) const;
    void add_to_course(colour_course_index index, Qt::GlobalColor colour);
    const serie<jetons::jeton_names>* serie_of(jetons::jeton_names chance) const;

    mutable store_lock store;
    table_form form = table_form::french;
    int coups = 0;
    int history_coups = 0;
    counters<jeton_places> jeton_counters;
    counters<ext_places> ext_counters;
    int last_number = jetons::NO_JETON; // of the previous coup
    std::array<std::array<int, number_places>, number_places> follow_matrix{};
    player_accounting players;
    std::array<serie<jetons::jeton_names>, pair_count>
        simple_series; // low/high, even/odd, red/black
    serie<jetons::jeton_names> column_series;
    serie<jetons::jeton_names> dozen_series;
    serie<jetons::ext_jeton_names> final_series;
    serie<jetons::ext_jeton_names> sector_series;
    std::array<std::vector<colour_code>, course_count> courses;
    std::array<muster, pair_count> patterns;
};

#endif // STATISTIC_DATA_H
