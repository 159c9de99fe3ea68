#include "statistic_cells.h"

#include "chance_geometry.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QPalette>
#include <QTableWidget>

#include <algorithm>
#include <numeric>

namespace
{

constexpr int head_row = 0;
constexpr int value_row = 1;
constexpr int room_beside_text = 6;  // px at full size, beyond the margins of the style
constexpr int room_around_lines = 6; // the same above and below, together

QFont with_weight(QFont font, int weight)
{
    font.setWeight(weight);
    return font;
}

QTableWidgetItem* fixed_cell(const QTableWidget& table, const QString& text, int weight)
{
    auto* const cell = new QTableWidgetItem(text);
    cell->setFlags(Qt::NoItemFlags);
    cell->setTextAlignment(Qt::AlignCenter);
    cell->setFont(with_weight(table.font(), weight));
    cell->setForeground(Qt::black);
    return cell;
}

int columns_of_first_table(const statistic_cells::section& what)
{
    const int count = what.tables.size();
    return (what.heads.size() + count - 1) / count;
}

QTableWidgetItem& value_at(const statistic_cells::section& what, int place)
{
    const int columns = columns_of_first_table(what);
    return *what.tables.at(place / columns)->item(value_row, place % columns);
}

QVector<QVector<int>> comparison_sets(const statistic_cells::section& what)
{
    if (!what.compared.isEmpty()) return what.compared;
    QVector<int> all(what.heads.size());
    std::iota(all.begin(), all.end(), 0);
    return {all};
}

/// Left and right of a text, as the view draws it, with the line of the grid.
int style_margins(const QTableWidget& table)
{
    return 2 * (table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 1) + 1;
}

int widest_text(const QTableWidget& table)
{
    const QFontMetrics bold(with_weight(table.font(), QFont::Bold));
    int widest = 0;
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            widest = std::max(widest, bold.horizontalAdvance(table.item(row, column)->text()));
    }
    return widest;
}

int row_height(const QTableWidget& table, double reduction)
{
    const QFontMetrics bold(with_weight(table.font(), QFont::Bold));
    return bold.height() + scaled(room_around_lines, reduction) + 1;
}

QStringList texts_of_row(const QTableWidget& table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QTableWidgetItem* cell = table.item(row, column);
        texts.append(cell->text().isEmpty() ? cell->toolTip() : cell->text());
    }
    return texts;
}

QString name_of(const statistic_cells::section& what, const QTableWidget& table)
{
    const QStringList heads = texts_of_row(table, head_row);
    if (what.label && what.tables.size() == 1) return what.label->text();
    const QString range =
        heads.size() > 1 ? heads.first() + QStringLiteral(" - ") + heads.last() : heads.value(0);
    return what.label ? what.label->text() + QStringLiteral(": ") + range : range;
}

} // namespace

QTableWidgetItem*
statistic_cells::head_cell(const QTableWidget& table, const QString& text, const QColor& background)
{
    QTableWidgetItem* cell = fixed_cell(table, text, QFont::Bold);
    cell->setBackground(background);
    return cell;
}

QTableWidgetItem* statistic_cells::value_cell(const QTableWidget& table)
{
    QTableWidgetItem* cell = fixed_cell(table, QStringLiteral("0"), QFont::Normal);
    cell->setBackground(Qt::white);
    return cell;
}

void statistic_cells::write_value(QTableWidgetItem& cell, int value, int maximum)
{
    if (value == -1) {
        cell.setText(QStringLiteral("-"));
        cell.setFont(with_weight(cell.font(), QFont::Normal));
        return;
    }
    const QString text = QString::number(value);
    cell.setText(text);
    cell.setToolTip(text);
    const bool is_leader = value == maximum && maximum != 0;
    cell.setFont(with_weight(cell.font(), is_leader ? QFont::Bold : QFont::Normal));
}

void statistic_cells::make_plain(QTableWidget& table)
{
    table.horizontalHeader()->hide();
    table.verticalHeader()->hide();
    table.horizontalHeader()->setMinimumSectionSize(1);
    table.verticalHeader()->setMinimumSectionSize(1);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionMode(QAbstractItemView::NoSelection);
    table.setFocusPolicy(Qt::NoFocus);
    table.setPalette(QPalette(QColor(239, 239, 239))); // frame, grid and headers as the cells
}

void statistic_cells::build(const section& what)
{
    const int columns = columns_of_first_table(what);
    for (int part = 0; part < what.tables.size(); ++part) {
        QTableWidget& table = *what.tables.at(part);
        const QStringList heads = what.heads.mid(part * columns, columns);
        make_plain(table);
        table.setRowCount(2);
        table.setColumnCount(heads.size());
        for (int column = 0; column < heads.size(); ++column) {
            table.setItem(head_row, column, head_cell(table, heads.at(column)));
            table.setItem(value_row, column, value_cell(table));
        }
    }
}

void statistic_cells::name_tables(const QVector<section>& sections)
{
    for (const section& what : sections) {
        for (QTableWidget* table : what.tables)
            table->setAccessibleName(name_of(what, *table));
    }
}

void statistic_cells::fill(const section& what, const QList<int>& values)
{
    const QVector<QVector<int>> sets = comparison_sets(what);
    for (const QVector<int>& set : sets) {
        int maximum = 0;
        for (const int place : set)
            maximum = std::max(maximum, values.at(place));
        for (const int place : set)
            write_value(value_at(what, place), values.at(place), maximum);
    }
}

void statistic_cells::fit(const section& what, int least_width, double reduction)
{
    int width = scaled(least_width, reduction);
    for (const QTableWidget* table : what.tables) {
        const int room = style_margins(*table) + scaled(room_beside_text, reduction);
        width = std::max(width, widest_text(*table) + room);
    }
    for (QTableWidget* table : what.tables) {
        table->horizontalHeader()->setDefaultSectionSize(width);
        table->verticalHeader()->setDefaultSectionSize(row_height(*table, reduction));
        fix_size(*table);
    }
}

void statistic_cells::fix_size(QTableWidget& table)
{
    const int frames = 2 * table.frameWidth();
    table.setFixedSize(table.horizontalHeader()->length() + frames + 1,
                       table.verticalHeader()->length() + frames + 1);
}

QVector<QStringList> statistic_cells::rows_of(const section& what)
{
    QVector<QStringList> rows;
    for (const QTableWidget* table : what.tables) {
        if (what.label) rows.append(QStringList(what.label->text()));
        rows.append(texts_of_row(*table, head_row));
        rows.append(texts_of_row(*table, value_row));
    }
    return rows;
}

QStringList statistic_cells::two_digits(int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number)
        texts.append(QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')));
    return texts;
}
