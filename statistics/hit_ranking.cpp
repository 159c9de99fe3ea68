#include "hit_ranking.h"

#include "chance_geometry.h"
#include "statistic_cells.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace
{

constexpr int least_width = 72;      // px of a column at full size
constexpr int least_last_width = 28; // of the column of the star
constexpr int room_beside_text = 14; // px at full size, margins of the style included
constexpr int room_around_lines = 8; // the same above and below, together

bool hit_more_often(const ranked_bet& left, const ranked_bet& right)
{
    return left.hits > right.hits;
}

int widest_text(const QTableWidget& table, int column)
{
    const QFontMetrics metrics(table.font());
    int widest = 0;
    for (int row = 0; row < table.rowCount(); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(table.item(row, column)->text()));
    return widest;
}

void set_heads(QTableWidget& table, const QStringList& heads)
{
    for (int row = 0; row < heads.size(); ++row)
        table.setVerticalHeaderItem(row, statistic_cells::head_cell(table, heads.at(row)));
    for (int column = 0; column < hit_ranking::column_count; ++column) {
        const QString head = QStringLiteral("  %1").arg(column + 1);
        table.setHorizontalHeaderItem(column, statistic_cells::head_cell(table, head));
    }
}

void fix_size(QTableWidget& table, double reduction)
{
    const int room = std::max(10, scaled(room_beside_text, reduction));
    for (int column = 0; column < table.columnCount(); ++column) {
        const bool is_star = column == hit_ranking::shown_bets;
        const int least = scaled(is_star ? least_last_width : least_width, reduction);
        table.setColumnWidth(column, std::max(least, widest_text(table, column) + room));
    }
    const int height = QFontMetrics(table.font()).height() + scaled(room_around_lines, reduction);
    table.verticalHeader()->setDefaultSectionSize(height);
    const int frames = 2 * table.frameWidth();
    table.ensurePolished();
    table.setFixedSize(table.verticalHeader()->sizeHint().width() +
                           table.horizontalHeader()->length() + frames + 1,
                       table.horizontalHeader()->sizeHint().height() +
                           table.verticalHeader()->length() + frames + 1);
}

} // namespace

QStringList hit_ranking::cells(QVector<ranked_bet> bets)
{
    std::stable_sort(bets.begin(), bets.end(), hit_more_often);
    QStringList texts;
    for (const ranked_bet& bet : qAsConst(bets)) {
        if (bet.hits < 1 || texts.size() == shown_bets) break;
        texts.append(QStringLiteral("%1 (%2)").arg(bet.name).arg(bet.hits));
    }
    const bool goes_on = bets.size() > shown_bets && bets.at(shown_bets).hits > 0 &&
                         bets.at(shown_bets).hits == bets.at(shown_bets - 1).hits;
    while (texts.size() < column_count)
        texts.append(QString());
    if (goes_on) texts.last() = QStringLiteral("*");
    return texts;
}

void hit_ranking::show(QTableWidget& table,
                       const QStringList& heads,
                       const QVector<QStringList>& rows,
                       double reduction)
{
    statistic_cells::make_plain(table);
    table.setRowCount(rows.size());
    table.setColumnCount(column_count);
    table.horizontalHeader()->show();
    table.verticalHeader()->show();
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    set_heads(table, heads);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < column_count; ++column) {
            QTableWidgetItem* cell = statistic_cells::value_cell(table);
            cell->setText(rows.at(row).at(column));
            table.setItem(row, column, cell);
        }
    }
    fix_size(table, reduction);
}

QVector<QStringList> hit_ranking::rows_of(const QTableWidget& table)
{
    QStringList heads{QString()};
    for (int column = 0; column < table.columnCount(); ++column)
        heads.append(table.horizontalHeaderItem(column)->text().trimmed());
    QVector<QStringList> rows{heads};
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList texts{table.verticalHeaderItem(row)->text().trimmed()};
        for (int column = 0; column < table.columnCount(); ++column)
            texts.append(table.item(row, column)->text());
        rows.append(texts);
    }
    return rows;
}
