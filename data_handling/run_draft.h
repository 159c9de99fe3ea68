#ifndef RUN_DRAFT_H
#define RUN_DRAFT_H

#include "run_record.h"

#include <QString>

#include <functional>
#include <memory>

class QLockFile;

/**
 * The run in play as it lies beside the year file until its block is saved, so that a program that
 * is killed loses a few coups of it and no more. A draft belongs to its program as long as that
 * lives, which a lock file tells; programs in one folder have drafts of their own.
 *
 * A draft that cannot be written is no error: the run is in memory.
 */
class run_draft
{
public:
    run_draft();
    /// Leaves a draft that is there to the next program.
    ~run_draft();
    Q_DISABLE_COPY(run_draft)

    /// Writes down what the draft lacks of the run. A run that was begun anew needs a `remove()`
    /// before. Nothing is read back, so the costs do not grow with the run.
    void keep(const run_record& run, const QDateTime& moment);

    /// True if the whole run lies in the draft.
    bool holds(const run_record& run) const;

    /// The run is saved or no longer wanted.
    void remove();

    /// The drafts in the working directory that ended programs have left are offered one by one; a
    /// draft that is taken (true) goes away. The end of such a run is when its draft was written
    /// last.
    static void take_left_drafts(const std::function<bool(const run_record&)>& take);

private:
    bool claim();

    QString path; // empty as long as none is claimed
    std::unique_ptr<QLockFile> lock;
    std::size_t numbers_kept = 0;
};

#endif // RUN_DRAFT_H
