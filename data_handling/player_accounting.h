#ifndef PLAYER_ACCOUNTING_H
#define PLAYER_ACCOUNTING_H

#include "game_types.h"

#include <QList>

#include <algorithm>
#include <array>
#include <limits>

/// What a system and a protocol may know of a player's coups, by value.
struct player_status {
    qint64 coups = 0;         ///< coups whose stake is known
    qint64 counted_coups = 0; ///< coups whose return is known too
    qint64 start_credit = 0;  ///< capital at the start
    qint64 last_seeded = 0;   ///< amount set in the last coup, 0 without one
    qint64 last_score = 0;    ///< amount returned in the last coup, 0 without one
    qint64 last_credit = 0;   ///< capital after the last coup, 0 without one
    int plus_coups = 0;       ///< coups with at least the stake back
    int minus_coups = 0;      ///< coups with less back than set
    bool has_credit = false;  ///< false until a coup is counted to its end
};

/// Read-only view of the players' figures.
class player_status_reader
{
public:
    virtual ~player_status_reader() = default;

    virtual player_status status_of(general_player::player_names player) const = 0;
};

/// Whether a course of all coups is kept, or the last coup alone.
enum class course_keeping {
    whole_course, ///< three values per coup, for curves
    last_coup     ///< memory does not grow with the coups
};

/**
 * The figures of the four players, coup by coup: set, returned, held. A plain value; whoever
 * shares it between threads locks.
 */
class player_accounting : public player_status_reader
{
public:
    using player_names = general_player::player_names;

    explicit player_accounting(course_keeping keeping = course_keeping::whole_course);

    void set_start_credit(player_names player, qint64 credit);

    /// Takes the stake of one coup, once per coup and player, when the bets are closed.
    void add_seeded(player_names player, qint64 seeded)
    {
        block& own = block_of(player);
        if (keep == course_keeping::whole_course) own.seeded.append(seeded);
        own.status.last_seeded = seeded;
        ++own.status.coups;
    }

    /// Takes what a coup returned and the credit behind it, held within the range of int, as the
    /// figures travel. A score without a stake of its own (the store was emptied in the middle of
    /// the coup) is dropped; returns false then.
    bool add_score(player_names player, qint64 score, qint64 credit)
    {
        block& own = block_of(player);
        player_status& state = own.status;
        if (state.counted_coups >= state.coups) return false;
        ++state.counted_coups;
        if (keep == course_keeping::whole_course) own.score.append(score);
        state.last_score = score;
        if (state.counted_coups != state.coups) return false;
        if (score < state.last_seeded) {
            ++state.minus_coups;
        } else if (score > state.last_seeded || state.last_seeded > 0) {
            ++state.plus_coups;
        }
        state.last_credit = within_int(credit);
        if (keep == course_keeping::whole_course) own.credit.append(state.last_credit);
        state.has_credit = true;
        return true;
    }

    player_status status_of(player_names player) const override
    {
        return blocks[static_cast<std::size_t>(player)].status;
    }

    /// The courses, one entry per coup; empty where only the last coup is kept. Unit: worth.
    QList<qint64> seeded_course(player_names player) const;
    QList<qint64> score_course(player_names player) const;
    QList<qint64> credit_course(player_names player) const;

    void reset();

private:
    struct block {
        player_status status;
        QList<qint64> seeded;
        QList<qint64> score;
        QList<qint64> credit;
    };

    static qint64 within_int(qint64 credit)
    {
        return std::clamp<qint64>(
            credit, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }

    block& block_of(player_names player) { return blocks[static_cast<std::size_t>(player)]; }
    const block& block_of(player_names player) const
    {
        return blocks[static_cast<std::size_t>(player)];
    }

    course_keeping keep;
    std::array<block, general_player::player_count> blocks;
};

#endif // PLAYER_ACCOUNTING_H
