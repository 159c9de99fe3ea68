#include "player_accounting.h"

player_accounting::player_accounting(course_keeping keeping)
    : keep(keeping)
{
}

void player_accounting::set_start_credit(player_names player, qint64 credit)
{
    block_of(player).status.start_credit = credit;
}

QList<qint64> player_accounting::seeded_course(player_names player) const
{
    return block_of(player).seeded;
}

QList<qint64> player_accounting::score_course(player_names player) const
{
    return block_of(player).score;
}

QList<qint64> player_accounting::credit_course(player_names player) const
{
    return block_of(player).credit;
}

void player_accounting::reset()
{
    blocks = {};
}
