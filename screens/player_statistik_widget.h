#ifndef PLAYER_STATISTIK_WIDGET_H
#define PLAYER_STATISTIK_WIDGET_H

#include "player_accounting.h"

#include <QWidget>

#include <array>

class QLabel;

/**
 * The small panel with the count of coups and the figures of the player whose tab was pressed
 * last.
 */
class player_statistik_widget : public QWidget
{
    Q_OBJECT

public:
    /// Takes the size of the scale; the place is for the owner to give.
    /// @param scale_reduction  0.0 (full size) to 0.3
    player_statistik_widget(double scale_reduction, QWidget* parent);

    /// Shows the figures of a player, who becomes the selected one.
    void show_status(general_player::player_names player, const player_status& figures);

    /// The player whose figures are shown.
    general_player::player_names selected_player() const { return selected; }

public slots:
    /// Shows how many coups are counted.
    void update_cup_counter(int cup_counter);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    static constexpr std::size_t row_count = 5;

    /// A row of the panel: what is told, and the figure.
    struct row {
        QLabel* caption = nullptr;
        QLabel* figure = nullptr;
    };

    QLabel* new_label(const QString& name, Qt::Alignment alignment);
    void place_all();
    void set_texts();
    void fit_fonts();
    void write_figure(std::size_t index, const QString& text);
    void write_win(qint64 amount);

    QLabel* title = nullptr;
    std::array<row, row_count> rows;
    general_player::player_names selected = general_player::PLAYER_1;
    QFont figure_font;
    double reduction;
};

#endif // PLAYER_STATISTIK_WIDGET_H
