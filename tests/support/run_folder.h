#ifndef RUN_FOLDER_H
#define RUN_FOLDER_H

#include "game_types.h"

#include <QDir>
#include <QList>
#include <QString>
#include <QStringList>

/// The folders of tests/runs/: what lies in them is told in tst_runs.cpp.
namespace run_folder
{

/// What belongs to one player of a run.
struct run_seat {
    int player = 0; // from 1
    QString system;
    QString expected;
    QString played; // the protocol that the program writes
};

/// Enters a folder; leaves it for the one before at the end.
class entered_folder
{
public:
    explicit entered_folder(const QString& path) { QDir::setCurrent(path); }
    ~entered_folder() { QDir::setCurrent(before); }
    entered_folder(const entered_folder&) = delete;
    entered_folder& operator=(const entered_folder&) = delete;

private:
    const QString before = QDir::currentPath();
};

inline QDir all_runs()
{
    return QDir(QStringLiteral(ZARVELLO_SOURCE_DIR "/tests/runs"));
}

inline QDir folder_of(const QString& run)
{
    return QDir(all_runs().filePath(run));
}

inline QStringList run_names()
{
    return all_runs().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

/// Seats in player order; empty if the folder holds no system.
inline QList<run_seat> seats_of(const QDir& folder)
{
    if (folder.exists(QStringLiteral("system.syf")))
        return {{1, "system.syf", "expected.out", "played_1.out"}};
    QList<run_seat> seats;
    for (int player = 1; player <= general_player::player_count; ++player) {
        const QString system = QStringLiteral("system_%1.syf").arg(player);
        if (!folder.exists(system)) continue;
        seats.append({player,
                      system,
                      QStringLiteral("expected_%1.out").arg(player),
                      QStringLiteral("played_%1.out").arg(player)});
    }
    return seats;
}

/// The files with numbers in order of play; a collection stands for the files that it names.
inline QStringList number_files_of(const QDir& folder)
{
    for (const char* alone : {"numbers.snp", "numbers.inp"}) {
        if (folder.exists(alone)) return {alone};
    }
    QStringList files;
    for (int place = 1;; ++place) {
        const QString file = QStringLiteral("numbers_%1.inp").arg(place);
        if (!folder.exists(file)) return files;
        files.append(file);
    }
}

} // namespace run_folder

#endif // RUN_FOLDER_H
