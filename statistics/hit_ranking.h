#ifndef HIT_RANKING_H
#define HIT_RANKING_H

#include <QString>
#include <QStringList>
#include <QVector>

class QTableWidget;

/// A bet and how often it hit.
struct ranked_bet {
    QString name;
    int hits = 0;
};

/// The tables of the most frequent bets: a row per kind of bet or per number, the most frequent
/// one first.
namespace hit_ranking
{

constexpr int shown_bets = 7;
constexpr int column_count = 8; ///< the last tells that the row would go on

/// The cells of a row: the name, " (", the hits and ")" of the first seven bets that have hit,
/// most hits first, equal ones in their order; then "*" if the eighth has as many hits as the
/// seventh. Shape: `column_count` texts.
QStringList cells(QVector<ranked_bet> bets);

/// Fills a table with its rows, read-only, and gives it a fixed size in which every text has its
/// room.
/// @param heads  one per row, at the left
/// @param reduction  0.0 (full size) to 0.3
void show(QTableWidget& table,
          const QStringList& heads,
          const QVector<QStringList>& rows,
          double reduction);

/// The table as it stands, with its heads.
QVector<QStringList> rows_of(const QTableWidget& table);

} // namespace hit_ranking

#endif // HIT_RANKING_H
