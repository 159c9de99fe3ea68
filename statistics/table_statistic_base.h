#ifndef TABLE_STATISTIC_BASE_H
#define TABLE_STATISTIC_BASE_H

#include "statistic_cells.h"
#include "statistic_table_window.h"

#include <memory>

class statistic_data;

namespace Ui
{
class table_statistic_base;
}

/**
 * The bets of the table as a snapshot: how often each has hit, or since how many coups it has
 * not. In each kind of bet the leader is bold.
 */
class table_statistic_base : public statistic_table_window
{
    Q_OBJECT

public:
    /// @param type  0 "Wie oft?", 1 "Seit wann nicht?"
    /// @param store  read here and not later
    /// @param scale_reduction  0.0 (full size) to 0.3
    /// @param settings  must outlive the window
    table_statistic_base(int type,
                         const statistic_data& store,
                         double scale_reduction,
                         const setting& settings,
                         QWidget* parent = nullptr);
    ~table_statistic_base() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();

private:
    void build_sections();
    void fill_tables(const statistic_data& store);
    void set_texts();
    void set_terms();
    QVector<QStringList> rows() const;

    const int type;
    const std::unique_ptr<Ui::table_statistic_base> ui;
    QVector<statistic_cells::section> sections; // as they stand in the window
    QPushButton* print_button = nullptr;
};

#endif // TABLE_STATISTIC_BASE_H
