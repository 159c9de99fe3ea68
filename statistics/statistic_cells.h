#ifndef STATISTIC_CELLS_H
#define STATISTIC_CELLS_H

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

class QLabel;
class QTableWidget;
class QTableWidgetItem;

/**
 * The cells of the statistic tables: tables of two rows, heads above values, in which the leader
 * of each comparison set stands out. Colours are fixed, so the cells are the same on every
 * palette.
 */
namespace statistic_cells
{

/// Bets of one kind, in one table or in several that continue each other.
struct section {
    QLabel* label = nullptr; ///< above its first table; may be missing
    QVector<QTableWidget*> tables;
    QStringList heads;                   ///< of all tables, in order
    QVector<QVector<int>> compared = {}; ///< places that are compared; empty: all with each other
};

/// Sets the look that all tables have, and makes the cells. The heads are divided evenly; where
/// they don't divide, the last table is shorter. All values are "0".
void build(const section& what);

/// Tells a reader of the screen the names of all tables, by their labels as they are now.
void name_tables(const QVector<section>& sections);

/// Writes the values, each against the greatest of its comparison set.
/// @param values  one per head
void fill(const section& what, const QList<int>& values);

/// All columns of a section get the same width and each table its fixed size, in which every text
/// has its room, be it bold or not.
/// @param least_width  of a column at full size. Unit: pixels
void fit(const section& what, int least_width, double reduction);

/// A fixed size that shows all cells of a table at the present width of its columns.
void fix_size(QTableWidget& table);

/// For every table a row with its label if it has one, a row with the heads and one with the
/// values.
QVector<QStringList> rows_of(const section& what);

/// A head: bold black on the background.
QTableWidgetItem* head_cell(const QTableWidget& table,
                            const QString& text,
                            const QColor& background = QColor(227, 247, 255));

/// A value: "0", not bold.
QTableWidgetItem* value_cell(const QTableWidget& table);

/// Shows a value in a cell and as its tool tip: bold if it equals the maximum of its comparison
/// set, unless that is 0. The value -1 shows "-".
void write_value(QTableWidgetItem& cell, int value, int maximum);

/// Takes the headers, selection and scroll bars off a table.
void make_plain(QTableWidget& table);

/// Texts of a range of numbers, with two digits.
QStringList two_digits(int first, int last);

} // namespace statistic_cells

#endif // STATISTIC_CELLS_H
