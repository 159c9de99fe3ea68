#include "statistic_data.h"

#include <mutex>

using general_player::player_names;

statistic_data::statistic_data(QObject* parent)
    : QObject(parent)
{
}

player_status statistic_data::status_of(player_names player) const
{
    const std::lock_guard locker(store);
    return players.status_of(player);
}

QList<qint64> statistic_data::seeded_course(player_names player) const
{
    const std::lock_guard locker(store);
    return players.seeded_course(player);
}

QList<qint64> statistic_data::score_course(player_names player) const
{
    const std::lock_guard locker(store);
    return players.score_course(player);
}

QList<qint64> statistic_data::credit_course(player_names player) const
{
    const std::lock_guard locker(store);
    return players.credit_course(player);
}

void statistic_data::start() {}

void statistic_data::resetStatisticStorage()
{
    const std::lock_guard locker(store);
    players.reset();
}

void statistic_data::addStartCreditToPlayerStat(player_names s_player, qlonglong PlayerCredit)
{
    {
        const std::lock_guard locker(store);
        players.set_start_credit(s_player, PlayerCredit);
    }
    emit player_statistic_updated(s_player);
}

void statistic_data::addSeededToPlayerStat(qlonglong seeded_P1,
                                           qlonglong seeded_P2,
                                           qlonglong seeded_P3,
                                           qlonglong seeded_P4)
{
    const std::lock_guard locker(store);
    players.add_seeded(general_player::PLAYER_1, seeded_P1);
    players.add_seeded(general_player::PLAYER_2, seeded_P2);
    players.add_seeded(general_player::PLAYER_3, seeded_P3);
    players.add_seeded(general_player::PLAYER_4, seeded_P4);
}

void statistic_data::addScoreToPlayerStat(player_names s_player,
                                          qlonglong PlayerScore,
                                          int PlayerCredit)
{
    bool counted = false;
    {
        const std::lock_guard locker(store);
        counted = players.add_score(s_player, PlayerScore, PlayerCredit);
    }
    if (counted) emit player_statistic_updated(s_player);
}
