#ifndef CHART_STATISTIC_PLAYER_H
#define CHART_STATISTIC_PLAYER_H

#include "chart_statistic_player_widget.h"
#include "player_accounting.h"

#include <QDialog>

#include <array>
#include <memory>

class QCheckBox;
class QPushButton;
class setting;
class statistic_data;

namespace Ui
{
class chart_statistic_player;
}

/**
 * The window "Spielerstatistik": what each player held, or set and got back, as curves over the
 * coups, and the figures of one player in a table. Opens with the curves of all who have bet, of
 * the first player if nobody has.
 *
 * The store is read when the window is built, when the view changes and at `refresh()`.
 */
class chart_statistic_player : public QDialog
{
    Q_OBJECT

public:
    /// Store and settings must outlive the window; the settings tell how it prints.
    /// @param scale_reduction  0.0 (full size) to 0.3
    chart_statistic_player(const statistic_data& store,
                           double scale_reduction,
                           const setting& settings,
                           QWidget* parent = nullptr);
    ~chart_statistic_player() override;

public slots:
    /// Reads the store and draws again.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();
    void on_CB_player_1_clicked(bool checked);
    void on_CB_player_2_clicked(bool checked);
    void on_CB_player_3_clicked(bool checked);
    void on_CB_player_4_clicked(bool checked);
    void on_RB_credit_data_line_toggled(bool checked);
    void on_RB_seeded_score_data_line_toggled(bool checked);
    void on_CB_display_Y_Grid_toggled(bool checked);
    void on_COB_player_tbl_sel_currentIndexChanged(int index);

private:
    struct player_figures {
        player_status status;
        QList<qint64> credit; // each is read only while its view is shown
        QList<qint64> score;
        QList<qint64> seeded;
    };

    void build_buttons();
    void build_table();
    void check_players_who_bet();
    void read_store();
    void draw_curves();
    QVector<player_curve> wanted_curves() const;
    void fill_table();
    void set_table_size();
    void set_texts();
    void set_titles();
    QVector<QStringList> exported_table() const;

    const std::unique_ptr<Ui::chart_statistic_player> ui;
    const statistic_data& statistic;
    const setting& print_setting;
    std::array<QCheckBox*, general_player::player_count> player_boxes;
    std::array<player_figures, general_player::player_count> players;
    curve_view view = curve_view::credit;
    QPushButton* print_button = nullptr;
};

#endif // CHART_STATISTIC_PLAYER_H
