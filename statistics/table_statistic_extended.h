#ifndef TABLE_STATISTIC_EXTENDED_H
#define TABLE_STATISTIC_EXTENDED_H

#include "statistic_cells.h"
#include "statistic_table_window.h"

#include <memory>

class statistic_data;

namespace Ui
{
class table_statistic_extended;
}

/**
 * The announced bets as a snapshot: finals, sectors and bets with neighbours, how often each has
 * hit, or since how many coups it has not. In each kind of bet the leader is bold.
 */
class table_statistic_extended : public statistic_table_window
{
    Q_OBJECT

public:
    /// @param type  0 "Wie oft?", 1 "Seit wann nicht?"
    /// @param store  read here and not later
    /// @param scale_reduction  0.0 (full size) to 0.3
    /// @param settings  must outlive the window
    table_statistic_extended(int type,
                             const statistic_data& store,
                             double scale_reduction,
                             const setting& settings,
                             QWidget* parent = nullptr);
    ~table_statistic_extended() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();

private:
    void build_sections();
    void fill_tables(const statistic_data& store);
    void set_texts();
    QStringList neighbour_heads() const;
    QVector<QStringList> rows() const;

    const int type;
    const std::unique_ptr<Ui::table_statistic_extended> ui;
    QVector<statistic_cells::section> sections; // as they stand in the window
    QPushButton* print_button = nullptr;
};

#endif // TABLE_STATISTIC_EXTENDED_H
