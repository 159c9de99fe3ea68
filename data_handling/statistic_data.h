#ifndef STATISTIC_DATA_H
#define STATISTIC_DATA_H

#include "player_accounting.h"
#include "store_lock.h"

#include <QObject>

/**
 * The store of what is counted about the game, fed by signals and read by value. It may live in
 * a worker thread: every reader and writer takes the store's lock, and no signal is sent while
 * it is held.
 *
 * Whoever decides something from its figures first waits at `start()` through a blocking queued
 * call: then all that was sent before is counted.
 */
class statistic_data : public QObject, public player_status_reader
{
    Q_OBJECT

public:
    explicit statistic_data(QObject* parent = nullptr);

    player_status status_of(general_player::player_names player) const override;

    /// One entry per coup. Unit: worth.
    QList<qint64> seeded_course(general_player::player_names player) const;
    QList<qint64> score_course(general_player::player_names player) const;
    QList<qint64> credit_course(general_player::player_names player) const;

public slots:
    /// Does nothing: the barrier behind which everything sent before is counted.
    void start();

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

signals:
    void finished();
    void player_statistic_updated(general_player::player_names player);

private:
    mutable store_lock store;
    player_accounting players;
};

#endif // STATISTIC_DATA_H
