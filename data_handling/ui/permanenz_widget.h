#ifndef PERMANENZ_WIDGET_H
#define PERMANENZ_WIDGET_H

#include <QWidget>

#include <vector>

class QColor;
class QTableWidget;
class number_table;

/**
 * The numbers of the game as a casino shows them: blocks of 30 rows, the oldest number first, each
 * with a red column and a black one; a zero stands in both on green, a hand change in the black
 * one. Its size is that of all blocks.
 *
 * The cells of a long permanence are made when they come into sight.
 */
class permanenz_widget : public QWidget
{
    Q_OBJECT

public:
    /// @param numbers    the permanence with hand changes (99), the oldest first
    /// @param reduction  scale of the cells. Range: 0.0 (full size) to 0.3
    permanenz_widget(std::vector<quint8> numbers,
                     const number_table& colours,
                     double reduction,
                     QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void size_table(double reduction);
    void fill_blocks(int first, int last);
    void fill_block(int block);
    void fill_row(int block, int row);
    void put_cell(int row, int column, const QString& text, const QColor& background, int weight);

    const std::vector<quint8> list;
    const number_table& number_colours;
    int blocks;
    QTableWidget* table;
    std::vector<bool> is_filled; // one per block
};

#endif // PERMANENZ_WIDGET_H
