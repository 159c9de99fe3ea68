#ifndef RUN_SUMMARY_H
#define RUN_SUMMARY_H

#include <QJsonObject>
#include <QString>

class headless_game;

/// What a run came to, for programs and for people.
namespace run_summary
{

/// One object for the whole run: "coups" and, in "players", one object per playing player.
QJsonObject to_json(const headless_game& game);

/// A table with a column per playing player.
QString to_table(const headless_game& game);

} // namespace run_summary

#endif // RUN_SUMMARY_H
