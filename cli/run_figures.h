#ifndef RUN_FIGURES_H
#define RUN_FIGURES_H

#include "sys_result_info.h"

#include <QtGlobal>

#include <algorithm>

/// How a run ended for a player's system.
enum class run_end { numbers, limit, stop, error };

/**
 * What a run was worth for one player, gathered coup by coup in constant memory.
 * Unit of all amounts: worth, as credit and stake.
 */
class run_figures
{
public:
    void begin(qint64 credit)
    {
        start_credit = credit;
        end_credit = credit;
        highest_credit = credit;
        lowest_credit = credit;
    }

    /// A coup is counted: what was set, what came back, and the credit behind it.
    void add_coup(qint64 seeded, qint64 score, qint64 credit)
    {
        ++coups;
        sum_set += seeded;
        sum_returned += score;
        end_credit = credit;
        highest_credit = std::max(highest_credit, credit);
        lowest_credit = std::min(lowest_credit, credit);
        largest_drawdown = std::max(largest_drawdown, highest_credit - credit);
        if (seeded == 0 && score == 0) return;
        if (score < seeded) {
            won_run = 0;
            longest_lost = std::max(longest_lost, ++lost_run);
        } else {
            lost_run = 0;
            longest_won = std::max(longest_won, ++won_run);
        }
    }

    qint64 coups = 0;
    qint64 start_credit = 0;
    qint64 end_credit = 0;
    qint64 highest_credit = 0; ///< behind a coup or at the start
    qint64 lowest_credit = 0;
    qint64 largest_drawdown = 0; ///< deepest fall below the highest credit so far
    qint64 longest_lost = 0;     ///< lost coups in a row; coups without a bet do not count
    qint64 longest_won = 0;      ///< won or even coups in a row
    qint64 sum_set = 0;
    qint64 sum_returned = 0;
    qint64 pauses = 0; ///< pauses that the system asked for

    run_end end = run_end::numbers;
    qint64 end_coup = 0;      ///< coups played when the system ended
    sys_result_info end_info; ///< reason, or the error with line and mark

private:
    qint64 lost_run = 0;
    qint64 won_run = 0;
};

#endif // RUN_FIGURES_H
