#include "statistic_data.h"
#include "test_box.h"

#include <QThread>

#include <memory>

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
    void reset();
};

/// The store of the players' figures, in one thread and across two.
class tst_statistic_data : public QObject
{
    Q_OBJECT

private slots:
    void the_stakes_go_to_their_players();
    void a_counted_coup_is_told_once_and_can_be_read_at_once();
    void a_start_credit_is_told();
    void a_score_without_a_stake_is_not_told();
    void a_reset_empties_the_store();
    void behind_the_barrier_everything_sent_before_is_counted();
    void the_worker_tells_every_counted_score();
    void readers_never_see_a_torn_coup();
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

} // namespace

void tst_statistic_data::the_stakes_go_to_their_players()
{
    statistic_data store;
    store.addSeededToPlayerStat(1, 20, 300, 4000000000);
    QCOMPARE(store.status_of(PLAYER_1).last_seeded, qint64{1});
    QCOMPARE(store.status_of(PLAYER_2).last_seeded, qint64{20});
    QCOMPARE(store.status_of(PLAYER_3).last_seeded, qint64{300});
    QCOMPARE(store.status_of(PLAYER_4).last_seeded, qint64{4000000000});
    QCOMPARE(store.seeded_course(PLAYER_2), QList<qint64>{20});
}

void tst_statistic_data::a_counted_coup_is_told_once_and_can_be_read_at_once()
{
    statistic_data store;
    QList<player_names> told;
    QList<qint64> credits_read;
    connect(&store, &statistic_data::player_statistic_updated, this, [&](player_names player) {
        told.append(player);
        credits_read.append(store.status_of(player).last_credit);
    });
    store.addSeededToPlayerStat(5, 0, 0, 7);
    QVERIFY(told.isEmpty());
    store.addScoreToPlayerStat(PLAYER_4, 0, 93);
    store.addScoreToPlayerStat(PLAYER_1, 10, 105);
    QCOMPARE(told, (QList<player_names>{PLAYER_4, PLAYER_1}));
    QCOMPARE(credits_read, (QList<qint64>{93, 105}));
    QCOMPARE(store.score_course(PLAYER_1), QList<qint64>{10});
    QCOMPARE(store.credit_course(PLAYER_1), QList<qint64>{105});
    QCOMPARE(store.status_of(PLAYER_4).minus_coups, 1);
}

void tst_statistic_data::a_start_credit_is_told()
{
    statistic_data store;
    QList<qint64> read;
    connect(&store, &statistic_data::player_statistic_updated, this, [&](player_names player) {
        read.append(store.status_of(player).start_credit);
    });
    store.addStartCreditToPlayerStat(PLAYER_2, 4000000000);
    QCOMPARE(read, QList<qint64>{4000000000});
    QCOMPARE(store.status_of(PLAYER_2).coups, qint64{0});
}

void tst_statistic_data::a_score_without_a_stake_is_not_told()
{
    statistic_data store;
    int told = 0;
    connect(&store, &statistic_data::player_statistic_updated, this, [&] { ++told; });
    store.addScoreToPlayerStat(PLAYER_1, 10, 105);
    QCOMPARE(told, 0);
    QVERIFY(store.credit_course(PLAYER_1).isEmpty());
}

void tst_statistic_data::a_reset_empties_the_store()
{
    statistic_data store;
    store.addStartCreditToPlayerStat(PLAYER_1, 100);
    store.addSeededToPlayerStat(5, 5, 5, 5);
    store.addScoreToPlayerStat(PLAYER_1, 10, 105);
    store.resetStatisticStorage();
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        QCOMPARE(store.status_of(player).coups, qint64{0});
        QCOMPARE(store.status_of(player).start_credit, qint64{0});
        QVERIFY(store.seeded_course(player).isEmpty());
        QVERIFY(store.credit_course(player).isEmpty());
    }
}

void tst_statistic_data::behind_the_barrier_everything_sent_before_is_counted()
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

void tst_statistic_data::the_worker_tells_every_counted_score()
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

void tst_statistic_data::readers_never_see_a_torn_coup()
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

int main(int argc, char** argv)
{
    return run_in_own_box<tst_statistic_data>(argc, argv);
}

#include "tst_statistic_data.moc"
