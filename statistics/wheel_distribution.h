#ifndef WHEEL_DISTRIBUTION_H
#define WHEEL_DISTRIBUTION_H

#include "game_types.h"

#include <QDialog>
#include <QList>
#include <QStringList>
#include <QVector>

#include <array>
#include <memory>

class QLineEdit;
class setting;
class statistic_data;

namespace Ui
{
class wheel_distribution;
}

/**
 * The window "Kesselverteilung": how the hits of the numbers spread around the wheel, as a
 * circular bar chart and as sums of the four quadrants. At opening all hits stand in the chart;
 * "Start" reads them anew and builds the chart up hit by hit.
 *
 * The window keeps the wheel and the hits it was opened or started with, whatever happens to the
 * game meanwhile. Hits of a number that this wheel lacks are left out.
 */
class wheel_distribution : public QDialog
{
    Q_OBJECT

public:
    /// The order by which a list of hits goes, and whose quadrants are summed.
    enum setting_wheel_list_type { FRENCH_WHEEL_LIST = 0, AMERICAN_WHEEL_LIST = 1 };
    Q_ENUM(setting_wheel_list_type)

    /// Reads the hits from the store and the table form from the settings; both must outlive the
    /// window.
    /// @param scale_reduction  of the table. Range: 0.0 to 0.3
    wheel_distribution(const statistic_data& statistic,
                       double scale_reduction,
                       const setting& settings,
                       QWidget* parent = nullptr);
    ~wheel_distribution() override;

protected:
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_PB_wheel_dyn_start_toggled(bool checked);

    /// The last hit is drawn, or the animation was stopped.
    void widget_dyn_finished();

    /// Counts one more hit.
    /// @param stat_data_list  the hits drawn so far, by wheel position; not looked at
    /// @param stat_data_single  the number that is hit
    void calculate_quadranten(setting_wheel_list_type list_type,
                              QList<int>* stat_data_list,
                              int stat_data_single);

    /// Sums a list of hits by wheel position, clockwise from zero.
    void calculate_quadranten(setting_wheel_list_type list_type, QList<int>* stat_data_list);

    /// Back to no hits.
    void calculate_quadranten(setting_wheel_list_type list_type);

    void on_CB_verzoegerung_currentIndexChanged(int index);
    void on_PB_print_clicked();

private:
    void build_buttons();
    setting_wheel_list_type list_type() const;
    QList<int> hits_in_wheel_order() const;
    void show_all_hits();
    void take_snapshot();
    void show_texts();
    void show_sums();
    int& sum_of(int number, table_form summed_form);
    QVector<QStringList> rows() const;

    static constexpr std::size_t zero_place = 4; // behind the quadrants
    static constexpr std::size_t double_zero_place = 5;

    std::unique_ptr<Ui::wheel_distribution> ui;
    const statistic_data& store;
    const setting& print_setting;
    const table_form form;
    QList<int> hits;           // by wheel position, as last read
    int total = 0;             // of the hits
    int remaining = 0;         // hits not drawn yet
    std::array<int, 6> sums{}; // of the hits drawn: quadrants, zero, double zero
    std::array<QLineEdit*, 6> sum_fields{};
};

#endif // WHEEL_DISTRIBUTION_H
