#ifndef PLAYER_STATUS_WIDGET_H
#define PLAYER_STATUS_WIDGET_H

#include "status_button.h"

#include <QWidget>

#include <array>

class QLabel;

/**
 * The table of the four players, "WD_SpTable": their names, what they do, the seeded sums and the
 * credits, one column per player. A press on a name tab reaches this widget itself.
 */
class player_status_widget : public QWidget
{
    Q_OBJECT

public:
    using player_names = general_player::player_names;

    /// Takes the size of the scale; the place is for the owner to give.
    /// @param scale_reduction  0.0 (full size) to 0.3
    player_status_widget(players_control& accounts,
                         const setting& settings,
                         double scale_reduction,
                         QWidget* parent);

    /// Shows how a player takes part: 0 active, 1 a system, 2 waiting. An active player's name
    /// stands out.
    void show_player_status(player_names player, int status);

    /// Counts the score of a coup into the credit of a player; ends with `count_finished()`.
    void show_score(player_names player, qlonglong score);

    /// Unit: worth. More than eight digits are written smaller.
    void show_credit(player_names player, qint64 amount);
    void show_seeded(player_names player, qint64 amount);

    /// Shows for every player whether the replay is on.
    void refresh_replay_display();

    /// Breaks off what is being counted; nothing is sent.
    void stop_count();

signals:
    void count_finished(general_player::player_names player, qlonglong score);
    void addCredit_to_player(general_player::player_names player, int amount);
    void checkStatusReplay();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    static constexpr std::size_t player_count = general_player::player_count;
    static constexpr std::size_t caption_count = 3;

    /// The column of one player.
    struct column {
        QLabel* name = nullptr;
        status_button* status = nullptr;
        QLabel* seeded = nullptr;
        QLabel* credit = nullptr;
        bool is_active = false;
    };

    void build_column(std::size_t i, players_control& accounts, const setting& settings);
    QLabel* new_label(const QString& name);
    QRect field(std::size_t i, int top, int height) const;
    void place_all();
    void set_texts();
    void fit_fonts();
    void style_name(const column& player) const;
    void write_amount(QLabel* label, qint64 amount) const;
    void paint_plain_background(QPainter& painter) const;
    column& of(player_names player) { return columns[static_cast<std::size_t>(player)]; }

    std::array<column, player_count> columns;
    std::array<QLabel*, caption_count> captions{};
    QFont figure_font;
    double reduction;
};

#endif // PLAYER_STATUS_WIDGET_H
