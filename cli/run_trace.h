#ifndef RUN_TRACE_H
#define RUN_TRACE_H

#include "game_table.h"

#include <QFile>
#include <QJsonArray>

/// What one player's coup came to.
struct coup_figures {
    qint64 seeded = 0;
    qint64 score = 0;
    qint64 credit = 0;
    QVector<jetons::jeton_names> prison;
};

/**
 * Writes what a run did as one JSON object a line. What a system does between two coups is kept
 * until the coup that it is for.
 */
class run_trace
{
public:
    using player_names = general_player::player_names;

    /// Returns whether the file could be opened; `error_text()` tells why not.
    bool open(const QString& path);

    void add_bet(player_names player, const QString& jeton, int amount, int line);
    void add_action(player_names player, const QString& action);
    void add_message(player_names player, const QStringList& lines);
    /// The bets kept so far went back into the credit.
    void drop_bets(player_names player);

    void write_coup(qint64 coup, int number, player_names player, const coup_figures& figures);
    void write_hand_change(qint64 coup, player_names player);
    /// What the last turn of a player did.
    void write_closing(qint64 coup, player_names player);

    /// Writes out what is buffered. Returns false once something could not be written.
    bool close();
    QString error_text() const { return file.errorString(); }

private:
    /// What a system did for the coup to come.
    struct pending {
        QJsonArray bets;
        QJsonArray actions;
        QJsonArray messages;
    };

    pending& pending_of(player_names player) { return kept[static_cast<std::size_t>(player)]; }
    QJsonObject take_pending(qint64 coup, player_names player);
    void write_line(const QJsonObject& object);

    QFile file;
    std::array<pending, general_player::player_count> kept;
    bool write_failed = false;
};

#endif // RUN_TRACE_H
