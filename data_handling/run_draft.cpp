#include "run_draft.h"

#include "game_types.h"
#include "whole_append.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>

// A draft is text: the begin of the run, then a line for each time that it was written, with the
// moment and the numbers since the line before. A line counts with its line feed only.

static constexpr int most_drafts = 16; // of programs that play in one folder

static QString draft_name(int place)
{
    return QStringLiteral("Stat_run_%1.draft").arg(place);
}

static QByteArray moment_text(const QDateTime& moment)
{
    return moment.toString(Qt::ISODate).toLatin1();
}

/// Removes the lock of a dead program that had the process number of this one, which looks alive.
static bool remove_own_stale_lock(QLockFile& lock, const QString& lock_path)
{
    qint64 process = 0;
    if (!lock.getLockInfo(&process, nullptr, nullptr)) return false;
    if (process != QCoreApplication::applicationPid()) return false;
    QLockFile removing(lock_path + QStringLiteral(".rmlock"));
    return removing.tryLock(0) && lock.removeStaleLockFile(); // fails on a file that is in use
}

static std::unique_ptr<QLockFile> locked(const QString& draft_path)
{
    const QString lock_path = draft_path + QStringLiteral(".lock");
    auto lock = std::make_unique<QLockFile>(lock_path);
    lock->setStaleLockTime(0); // a program may run for days
    if (lock->tryLock(0)) return lock;
    if (remove_own_stale_lock(*lock, lock_path) && lock->tryLock(0)) return lock;
    return nullptr;
}

/// False for a line that is damaged; what stands in front of the damage is taken.
static bool take_draft_line(const QByteArray& line, run_record& run)
{
    const QList<QByteArray> parts = line.split(' ');
    const QDateTime moment = QDateTime::fromString(QString::fromLatin1(parts.first()), Qt::ISODate);
    if (!moment.isValid()) return false;
    for (int i = 1; i < parts.size(); ++i) {
        bool is_read = false;
        const int number = parts[i].toInt(&is_read);
        const bool is_entry = number_code::is_number(number) || number == number_code::hand_change;
        if (!is_read || !is_entry) return false;
        run.add(number, run.run_start);
    }
    run.run_end = moment;
    return true;
}

static run_record read_draft(const QString& path)
{
    run_record run;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return run;
    const auto next_line = [&file](QByteArray& line) {
        line = file.readLine();
        const bool is_whole = line.endsWith('\n');
        if (is_whole) line.chop(1);
        return is_whole;
    };
    QByteArray line;
    if (!next_line(line)) return run;
    run.run_start = QDateTime::fromString(QString::fromLatin1(line), Qt::ISODate);
    if (!run.run_start.isValid()) return {};
    run.run_end = run.run_start;
    while (next_line(line) && take_draft_line(line, run)) {
    }
    return run;
}

run_draft::run_draft() = default;
run_draft::~run_draft() = default;

/// Takes the first place that no living program has and in which no draft waits.
bool run_draft::claim()
{
    if (lock) return true;
    for (int place = 1; place <= most_drafts; ++place) {
        const QString name = draft_name(place);
        if (QFile::exists(name)) continue;
        lock = locked(name);
        if (!lock) continue;
        if (QFile::exists(name)) { // left there by a program that has just ended
            lock.reset();
            continue;
        }
        path = QDir::current().absoluteFilePath(name);
        return true;
    }
    return false;
}

void run_draft::keep(const run_record& run, const QDateTime& moment)
{
    if (run.run_numbers.size() <= numbers_kept || !claim()) return;
    QByteArray text;
    if (numbers_kept == 0) text = moment_text(run.run_start) + '\n';
    text += moment_text(moment);
    for (std::size_t i = numbers_kept; i < run.run_numbers.size(); ++i)
        text += ' ' + QByteArray::number(run.run_numbers[i]);
    text += '\n';
    if (append_whole(path, text)) numbers_kept = run.run_numbers.size();
}

bool run_draft::holds(const run_record& run) const
{
    return numbers_kept == run.run_numbers.size();
}

void run_draft::remove()
{
    if (!lock) return;
    QFile::remove(path);
    lock.reset();
    path.clear();
    numbers_kept = 0;
}

void run_draft::take_left_drafts(const std::function<bool(const run_record&)>& take)
{
    const QStringList names =
        QDir().entryList({QStringLiteral("Stat_run_*.draft")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        const std::unique_ptr<QLockFile> lock = locked(name);
        if (!lock) continue;
        const run_record run = read_draft(name);
        if (run.is_empty() || take(run)) QFile::remove(name);
    }
}
