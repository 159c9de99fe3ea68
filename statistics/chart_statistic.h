#ifndef CHART_STATISTIC_H
#define CHART_STATISTIC_H

#include "chart_bet_kinds.h"

#include <QDialog>

#include <memory>

class QPushButton;
class setting;

namespace Ui
{
class chart_statistic_base;
}

/// The window that shows the counters of all bets of a kind as bars. The words follow the setting
/// for American terms, the bars the table in play.
class chart_statistic : public QDialog
{
    Q_OBJECT

public:
    /// Store and settings must outlive the window.
    /// @param type  0: how often each bet has hit; 1: since how many coups it has not
    /// @param scale_reduction  0.0 (full size) to 0.3
    chart_statistic(int type,
                    const statistic_data& store,
                    double scale_reduction,
                    const setting& settings,
                    QWidget* parent = nullptr);
    ~chart_statistic() override;

public slots:
    /// Reads the store and draws again; the whole chart is in view.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();
    void on_COB_occurrence_currentIndexChanged(int index);
    void on_COB_jetontype_currentIndexChanged(int index);
    void on_CB_grid_display_toggled(bool checked);

private:
    void build_buttons();
    void set_texts();
    QString entry_text(chart_bet_kind shown_kind) const;
    QString title_text() const;
    QString x_title() const;
    bool has_american_terms() const;
    QVector<QStringList> exported_table() const;

    const std::unique_ptr<Ui::chart_statistic_base> ui;
    const setting& game_setting;
    const statistic_data& statistic;
    QPushButton* print_button = nullptr;
    int kind = 0;                               // index of COB_jetontype
    int type;                                   // index of COB_occurrence
    table_form shown_form = table_form::french; // of the bars; the table may have changed since
    bool has_grid = true;
};

#endif // CHART_STATISTIC_H
