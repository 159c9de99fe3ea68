#ifndef TABLE_STATISTIC_SERIE_H
#define TABLE_STATISTIC_SERIE_H

#include "statistic_cells.h"
#include "statistic_table_window.h"

#include <memory>

class statistic_data;

namespace Ui
{
class table_statistic_serie;
}

/**
 * The finished runs of the even chances, dozens and columns as a snapshot: how often there was a
 * run of 1, 2, ... coups. Runs longer than the table is wide are not shown.
 */
class table_statistic_serie : public statistic_table_window
{
    Q_OBJECT

public:
    static constexpr int run_columns = 35; ///< the longest run that is shown

    /// @param store  read here and not later
    /// @param scale_reduction  0.0 (full size) to 0.3
    /// @param settings  must outlive the window
    table_statistic_serie(const statistic_data& store,
                          double scale_reduction,
                          const setting& settings,
                          QWidget* parent = nullptr);
    ~table_statistic_serie() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();

private:
    void build_sections();
    void fill_tables(const statistic_data& store);
    void fill_table(QTableWidget& table, const QList<int>& runs);
    void set_texts();
    QWidget* current_page() const;
    QVector<QStringList> rows() const;

    const std::unique_ptr<Ui::table_statistic_serie> ui;
    QVector<statistic_cells::section> sections; // the even chances, then dozens and columns
    QPushButton* print_button = nullptr;
};

#endif // TABLE_STATISTIC_SERIE_H
