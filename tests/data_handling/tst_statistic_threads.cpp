#include "number_records.h"
#include "statistic_data.h"
#include "test_box.h"

#include <QThread>

#include <algorithm>
#include <atomic>
#include <numeric>
#include <random>
#include <thread>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_count;
using general_player::player_names;

/// Sends what the game sends to the store.
class feeder : public QObject
{
    Q_OBJECT

signals:
    void start_credit(general_player::player_names player, qlonglong credit);
    void seeded(qlonglong player_1, qlonglong player_2, qlonglong player_3, qlonglong player_4);
    void score(general_player::player_names player, qlonglong score, int credit);
    void coup(const number_hit_property& property, bool update_display);
    void history_count(int entries);
    void form(table_form new_form);
    void reset();
};

/// The store in a thread of its own, written and read from others.
class tst_statistic_threads : public QObject
{
    Q_OBJECT

private slots:
    void behind_the_barrier_everything_sent_before_is_counted();
    void the_worker_tells_every_counted_score();
    void readers_never_see_a_torn_coup();
    void two_readers_never_contradict_the_worker();
    void a_reader_sees_a_store_before_or_behind_a_reset();
    void what_the_worker_tells_of_coups_arrives_in_order();
};

namespace
{

/// A store in a thread of its own, fed by queued signals.
class working_store
{
public:
    working_store()
        : store(new statistic_data)
    {
        store->moveToThread(&thread);
        QObject::connect(&thread, &QThread::finished, store, &QObject::deleteLater);
        connect(&feeder::start_credit, &statistic_data::addStartCreditToPlayerStat);
        connect(&feeder::seeded, &statistic_data::addSeededToPlayerStat);
        connect(&feeder::score, &statistic_data::addScoreToPlayerStat);
        connect(&feeder::coup, &statistic_data::addtoStat);
        connect(&feeder::history_count, &statistic_data::store_history_coup_count);
        connect(&feeder::form, &statistic_data::set_table_form);
        connect(&feeder::reset, &statistic_data::resetStatisticStorage);
        thread.start(QThread::InheritPriority);
    }

    ~working_store()
    {
        thread.quit();
        thread.wait();
    }

    /// One coup in which every player has the same figures.
    void send_coup(qint64 stake, qint64 score, int credit)
    {
        emit source.seeded(stake, stake, stake, stake);
        for (int i = 0; i < player_count; ++i)
            emit source.score(static_cast<player_names>(i), score, credit);
    }

    /// Returns when everything sent before is counted.
    bool wait_until_counted()
    {
        return QMetaObject::invokeMethod(
            store, &statistic_data::start, Qt::BlockingQueuedConnection);
    }

    feeder source;
    QThread thread;
    statistic_data* store;

private:
    template <typename signal_type, typename slot_type>
    void connect(signal_type signal, slot_type slot)
    {
        QObject::connect(&source, signal, store, slot, Qt::QueuedConnection);
    }
};

/// Reads all that the store tells, over and over, and remembers what did not fit together: figures
/// of one getter that belong to different coups.
class restless_reader
{
public:
    explicit restless_reader(const statistic_data& read_store)
        : store(read_store)
        , thread([this] { read_until_told(); })
    {
    }

    ~restless_reader() { stop(); }
    Q_DISABLE_COPY(restless_reader)

    /// Stops reading. Returns the first contradiction, empty for none.
    QString stop()
    {
        is_told_to_stop = true;
        if (thread.joinable()) thread.join();
        return contradiction;
    }

    int rounds() const { return finished_rounds; }

private:
    void read_until_told()
    {
        while (!is_told_to_stop) {
            read_counters();
            read_runs();
            read_courses();
            read_figures();
            read_players();
            ++finished_rounds;
        }
    }

    void demand(bool fits, const char* what)
    {
        if (!fits && contradiction.isEmpty()) contradiction = QString::fromLatin1(what);
    }

    static int sum_of(const QList<int>& values)
    {
        return std::accumulate(values.begin(), values.end(), 0);
    }

    void read_counters()
    {
        const int coups = store.coup_count();
        demand(coups >= coups_before, "coups go back");
        coups_before = coups;
        const int entries = store.history_coup_count();
        demand(entries >= entries_before, "entries of a load go back");
        entries_before = entries;
        const QList<int> simple = store.simple_chances(false);
        const int hits = simple.at(0) + simple.at(5);
        demand(simple.at(1) + simple.at(4) == hits, "even and odd differ from low and high");
        demand(simple.at(2) + simple.at(3) == hits, "red and black differ from low and high");
        const QList<int> thirds = store.columns_and_dozens(false);
        demand(sum_of(thirds.mid(0, 3)) == sum_of(thirds.mid(3)), "columns differ from dozens");
        const QList<int> sectors = store.sectors(true);
        demand(sectors.at(2) == sectors.at(3), "OR differs from OP");
        demand(sum_of(store.finals(false)) >= coups, "finals are missing");
        demand(sum_of(store.one_neighbour_bets(false)) % 3 == 0, "not three neighbours a coup");
        demand(sum_of(store.two_neighbour_bets(false)) % 5 == 0, "not five neighbours a coup");
        demand(sum_of(store.three_neighbour_bets(false)) % 7 == 0, "not seven neighbours a coup");
        demand(coups == 0 || store.numbers(true).count(0) <= 1, "two numbers in one coup");
        for (const QList<int>& values : {store.zero_numbers(false),
                                         store.splits(false),
                                         store.streets(false),
                                         store.six_lines(true),
                                         store.corners(true),
                                         store.follow_row(17)}) {
            demand(*std::min_element(values.begin(), values.end()) >= 0, "negative counts");
        }
        const hot_and_cold_numbers ends = store.hot_and_cold(37);
        demand(ends.hot.first().count == ends.cold.last().count, "hot is not the end of cold");
    }

    void read_runs()
    {
        const int chance_runs = sum_of(store.run_lengths(jetons::EC03));
        const int sector_runs = sum_of(store.run_lengths(jetons::GS));
        demand(chance_runs >= chance_runs_before, "runs of red go back");
        demand(sector_runs >= sector_runs_before, "runs of sectors go back");
        chance_runs_before = chance_runs;
        sector_runs_before = sector_runs;
    }

    void read_courses()
    {
        const QList<Qt::GlobalColor> red_black =
            store.colour_course(colour_course_index::red_black);
        for (const Qt::GlobalColor colour : red_black)
            demand(colour == Qt::red || colour == Qt::black, "neither red nor black");
        const QVector<Qt::GlobalColor> later =
            store.colours_from(colour_course_index::red_black, red_black.size());
        demand(later.size() + red_black.size() >= length_before, "a course loses colours");
        length_before = later.size() + red_black.size();
    }

    void read_figures()
    {
        std::array<int, 3> sums{};
        const muster figures = store.pattern_figures(0);
        for (std::size_t i = 0; i < sums.size(); ++i) {
            for (const muster_figure& figure : figures.sets[i].all_figures())
                sums[i] += figure.count;
        }
        demand(sums[2] == 0 || (sums[0] == sums[2] + 2 && sums[1] == sums[2] + 1),
               "figures of different coups");
    }

    void read_players()
    {
        const player_status status = store.status_of(PLAYER_2);
        demand(status.start_credit >= credit_before, "start credit goes back");
        credit_before = status.start_credit;
        demand(status.last_seeded == status.coups, "stake and coups differ");
        demand(status.last_score == status.last_credit, "score and credit differ");
        const QList<qint64> seeded = store.seeded_course(PLAYER_2);
        demand(seeded.size() >= status.coups, "stakes are missing");
        const QList<qint64> scores = store.score_course(PLAYER_2);
        const QList<qint64> credits = store.credit_course(PLAYER_2);
        demand(credits.size() >= scores.size(), "credits are missing");
    }

    const statistic_data& store;
    std::atomic<bool> is_told_to_stop{false};
    std::atomic<int> finished_rounds{0};
    int coups_before = 0;
    int entries_before = 0;
    int chance_runs_before = 0;
    int sector_runs_before = 0;
    int length_before = 0;
    qint64 credit_before = 0;
    QString contradiction;
    // Last: it uses all of the above. Not a QThread, whose end the thread sanitizer can't see.
    std::thread thread;
};

} // namespace

void tst_statistic_threads::behind_the_barrier_everything_sent_before_is_counted()
{
    working_store worker;
    emit worker.source.start_credit(PLAYER_1, 1000);
    for (int coup = 1; coup <= 300; ++coup) {
        worker.send_coup(coup, 2 * coup, 1000 + coup);
        QVERIFY(worker.wait_until_counted());
        const player_status status = worker.store->status_of(PLAYER_4);
        QCOMPARE(status.coups, qint64{coup});
        QCOMPARE(status.last_seeded, qint64{coup});
        QCOMPARE(status.last_score, qint64{2} * coup);
        QCOMPARE(status.last_credit, qint64{1000} + coup);
    }
    QCOMPARE(worker.store->status_of(PLAYER_1).start_credit, qint64{1000});
    QCOMPARE(worker.store->status_of(PLAYER_1).plus_coups, 300);

    emit worker.source.reset();
    worker.send_coup(1, 0, 7);
    QVERIFY(worker.wait_until_counted());
    QCOMPARE(worker.store->status_of(PLAYER_2).coups, qint64{1});
    QCOMPARE(worker.store->status_of(PLAYER_2).last_credit, qint64{7});
}

void tst_statistic_threads::the_worker_tells_every_counted_score()
{
    working_store worker;
    QList<player_names> told;
    connect(worker.store,
            &statistic_data::player_statistic_updated,
            this,
            [&](player_names player) { told.append(player); });
    worker.send_coup(1, 2, 3);
    emit worker.source.score(PLAYER_1, 5, 5); // no stake: not told
    worker.send_coup(1, 2, 3);
    QVERIFY(worker.wait_until_counted());
    QVERIFY(told.isEmpty()); // they wait in the queue of this thread
    QCoreApplication::sendPostedEvents(this);
    const QList<player_names> once = {PLAYER_1, PLAYER_2, PLAYER_3, PLAYER_4};
    QCOMPARE(told, once + once);
}

void tst_statistic_threads::readers_never_see_a_torn_coup()
{
    working_store worker;
    constexpr int coups = 2000;
    for (int coup = 1; coup <= coups; ++coup)
        worker.send_coup(coup, coup, coup);

    // While the worker counts, what is read must be some whole number of steps.
    player_status status;
    do {
        status = worker.store->status_of(PLAYER_3);
        QCOMPARE(status.last_seeded, status.coups);
        QCOMPARE(status.last_score, status.last_credit);
        QCOMPARE(qint64{status.plus_coups}, status.last_credit);
        QVERIFY(status.coups - status.last_score <= 1);
        const QList<qint64> course = worker.store->credit_course(PLAYER_3);
        QVERIFY(course.size() >= status.last_credit);
    } while (status.last_credit < coups);
    QCOMPARE(worker.store->seeded_course(PLAYER_3).size(), coups);
}

void tst_statistic_threads::two_readers_never_contradict_the_worker()
{
    constexpr int coups = 3000;
    std::mt19937 generator(5);
    working_store worker;
    restless_reader first(*worker.store);
    restless_reader second(*worker.store);
    for (int coup = 1; coup <= coups; ++coup) {
        const int number = static_cast<int>(generator() % 37);
        emit worker.source.coup(property_of(number), coup % 100 == 0);
        worker.send_coup(coup, coup, coup);
        emit worker.source.history_count(coup);
        emit worker.source.start_credit(PLAYER_2, coup);
        emit worker.source.form(table_form::french);
        // The queue stays short: the readers see the store on its way, not only at its end.
        if (coup % 50 == 0) QVERIFY(worker.wait_until_counted());
    }
    QVERIFY(worker.wait_until_counted());
    QCOMPARE(first.stop(), QString());
    QCOMPARE(second.stop(), QString());
    QVERIFY(first.rounds() > 0);
    QVERIFY(second.rounds() > 0);
    QCOMPARE(worker.store->coup_count(), coups);
    QCOMPARE(worker.store->status_of(PLAYER_1).last_credit, qint64{coups});
}

void tst_statistic_threads::a_reader_sees_a_store_before_or_behind_a_reset()
{
    working_store worker;
    std::atomic<bool> is_done{false};
    std::atomic<int> torn{0};
    std::atomic<int> rounds{0};
    std::thread reader([&] {
        while (!is_done) {
            // One coup at most is ever counted: 17 hits three even chances, or nothing has.
            const QList<int> hits = worker.store->simple_chances(false);
            const bool is_whole = hits == QList<int>{1, 0, 0, 1, 1, 0} || hits.count(0) == 6;
            const QList<int> sectors = worker.store->sectors(false);
            if (!is_whole || sectors.at(2) != sectors.at(3)) ++torn;
            if (worker.store->coup_count() > 1) ++torn;
            if (worker.store->seeded_course(PLAYER_1).size() > 1) ++torn;
            if (worker.store->score_course(PLAYER_1).size() > 1) ++torn;
            if (worker.store->credit_course(PLAYER_1).size() > 1) ++torn;
            ++rounds;
        }
    });
    bool all_counted = true;
    for (int round = 1; round <= 1000; ++round) {
        emit worker.source.coup(property_of(17), false);
        worker.send_coup(1, 2, 3);
        emit worker.source.reset();
        if (round % 20 == 0) all_counted = worker.wait_until_counted() && all_counted;
    }
    is_done = true;
    reader.join();
    QVERIFY(all_counted);
    QVERIFY(rounds > 0);
    QCOMPARE(torn.load(), 0);
    QCOMPARE(worker.store->coup_count(), 0);
}

void tst_statistic_threads::what_the_worker_tells_of_coups_arrives_in_order()
{
    working_store worker;
    QStringList told;
    const QThread* told_in = nullptr;
    connect(worker.store, &statistic_data::cup_counter_update, this, [&](int coups) {
        told.append(QString::number(coups));
        told_in = QThread::currentThread();
    });
    connect(
        worker.store, &statistic_data::statistic_update_done, this, [&] { told.append("done"); });
    connect(worker.store, &statistic_data::info_if_history_load_is_finish, this, [&] {
        told.append("load");
    });
    for (const bool update_display : {false, false, true, true})
        emit worker.source.coup(property_of(17), update_display);
    QVERIFY(worker.wait_until_counted());
    QVERIFY(told.isEmpty());
    QCoreApplication::sendPostedEvents(this);
    QCOMPARE(told, (QStringList{"3", "done", "load", "4", "done", "load"}));
    QCOMPARE(told_in, thread());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_statistic_threads>(argc, argv);
}

#include "tst_statistic_threads.moc"
