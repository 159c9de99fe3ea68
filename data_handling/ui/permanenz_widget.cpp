#include "permanenz_widget.h"

#include "chance_geometry.h"
#include "game_types.h"
#include "number_records.h"
#include "number_table.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QPaintEvent>
#include <QTableWidget>

#include <algorithm>

namespace
{

constexpr int rows_per_block = 30;
constexpr int first_row = 3; // above it: gap, place of the first coup, gap
constexpr int row_count = first_row + rows_per_block;
constexpr int columns_per_block = 5; // gap, red, line, black, gap
constexpr int red_column = 1;
constexpr int black_column = 3;
constexpr int blocks_at_once = 100; // filled from the beginning

// Pixels at full size.
constexpr int cell_width = 26;
constexpr int cell_height = 18;
constexpr int gap_width = 9;
constexpr int line_width = 2;
constexpr int gap_height = 4;

int block_count(std::size_t numbers)
{
    return std::max(1, static_cast<int>((numbers + rows_per_block - 1) / rows_per_block));
}

int column_width(int column)
{
    switch (column % columns_per_block) {
    case red_column:
    case black_column:
        return cell_width;
    case red_column + 1:
        return line_width;
    default:
        return gap_width;
    }
}

} // namespace

permanenz_widget::permanenz_widget(std::vector<quint8> numbers,
                                   const number_table& colours,
                                   double reduction,
                                   QWidget* parent)
    : QWidget(parent)
    , list(std::move(numbers))
    , number_colours(colours)
    , blocks(block_count(list.size()))
    , table(new QTableWidget(row_count, columns_per_block * blocks, this))
    , is_filled(static_cast<std::size_t>(blocks), false)
{
    table->setObjectName(QStringLiteral("permanence_table"));
    table->setAccessibleName(tr("Gefallene Zahlen"));
    table->setFrameShape(QFrame::NoFrame);
    table->setShowGrid(false);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setFocusPolicy(Qt::NoFocus);
    table->setWordWrap(false);
    table->setTextElideMode(Qt::ElideNone);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPalette ground = table->palette();
    ground.setColor(QPalette::Base, ground.color(QPalette::Window));
    table->setPalette(ground);
    size_table(reduction);
    fill_blocks(0, std::min(blocks, blocks_at_once) - 1);
    table->viewport()->installEventFilter(this);
}

void permanenz_widget::size_table(double reduction)
{
    QFont font = table->font();
    font.setPixelSize(scaled(cell_height, reduction) * 3 / 4);
    table->setFont(font);
    int width = 0;
    int height = 0;
    for (QHeaderView* header : {table->horizontalHeader(), table->verticalHeader()}) {
        header->hide();
        header->setUpdatesEnabled(false); // or each column would lay out all others
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    table->horizontalHeader()->setDefaultSectionSize(scaled(cell_width, reduction));
    table->verticalHeader()->setDefaultSectionSize(scaled(cell_height, reduction));
    for (int column = 0; column < table->columnCount(); ++column) {
        const int own = std::max(1, scaled(column_width(column), reduction));
        table->setColumnWidth(column, own);
        width += own;
    }
    for (int row = 0; row < row_count; ++row) {
        const bool is_gap = row < first_row && row != first_row - 2;
        const int own = scaled(is_gap ? gap_height : cell_height, reduction);
        table->setRowHeight(row, own);
        height += own;
    }
    for (QHeaderView* header : {table->horizontalHeader(), table->verticalHeader()})
        header->setUpdatesEnabled(true);
    table->resize(width, height);
    setFixedSize(width, height);
}

bool permanenz_widget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == table->viewport() && event->type() == QEvent::Paint) {
        const QRect place = static_cast<QPaintEvent*>(event)->rect();
        const int last = table->columnAt(place.right());
        fill_blocks(table->columnAt(place.left()) / columns_per_block,
                    last < 0 ? blocks - 1 : last / columns_per_block);
    }
    return QWidget::eventFilter(watched, event);
}

void permanenz_widget::fill_blocks(int first, int last)
{
    for (int block = std::max(0, first); block <= last; ++block) {
        if (is_filled[static_cast<std::size_t>(block)]) continue;
        is_filled[static_cast<std::size_t>(block)] = true;
        fill_block(block);
    }
}

void permanenz_widget::fill_block(int block)
{
    const int column = columns_per_block * block;
    const QString first_coup = QString::number(rows_per_block * block + 1);
    table->setSpan(first_row - 2, column, 1, columns_per_block);
    put_cell(first_row - 2, column, first_coup, palette().color(QPalette::Window), QFont::Normal);
    for (int row = first_row; row < row_count; ++row)
        fill_row(block, row);
}

void permanenz_widget::fill_row(int block, int row)
{
    const auto place = static_cast<std::size_t>(rows_per_block * block + row - first_row);
    const int number = place < list.size() ? list[place] : number_code::no_number;
    const bool is_mark = number == number_code::hand_change;
    const bool is_entry = is_mark || number_code::is_number(number);
    const number_colour colour = number_colours.colour(number);
    const bool is_zero = is_entry && colour == number_colour::green;
    const QString text = is_mark ? QStringLiteral("--") : number_text(number);

    const auto put = [&](int column, number_colour own, Qt::GlobalColor own_ground) {
        const bool is_shown = is_entry && (is_zero || colour == own);
        put_cell(row,
                 columns_per_block * block + column,
                 is_shown ? text : QString(),
                 is_zero ? Qt::darkGreen : own_ground,
                 is_shown ? QFont::Bold : QFont::Normal);
    };
    put(red_column, number_colour::red, Qt::red);
    put(black_column, number_colour::black, Qt::black);
}

void permanenz_widget::put_cell(
    int row, int column, const QString& text, const QColor& background, int weight)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment(Qt::AlignCenter);
    cell->setFlags(Qt::ItemIsEnabled);
    cell->setBackground(background);
    const bool is_ground = background == palette().color(QPalette::Window);
    cell->setForeground(is_ground ? palette().color(QPalette::WindowText) : QColor(Qt::white));
    QFont font = table->font();
    font.setWeight(weight);
    cell->setFont(font);
    table->setItem(row, column, cell);
}
