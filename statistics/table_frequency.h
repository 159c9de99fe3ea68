#ifndef TABLE_FREQUENCY_H
#define TABLE_FREQUENCY_H

#include "statistic_table_window.h"

#include <memory>

class statistic_data;

namespace Ui
{
class table_frequency;
}

/// The most frequent bets of each kind as a snapshot, a row per kind.
class table_frequency : public statistic_table_window
{
    Q_OBJECT

public:
    /// @param store  read here and not later
    /// @param scale_reduction  0.0 (full size) to 0.3
    /// @param settings  must outlive the window
    table_frequency(const statistic_data& store,
                    double scale_reduction,
                    const setting& settings,
                    QWidget* parent = nullptr);
    ~table_frequency() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();

private:
    void fill_table(const statistic_data& store);
    void set_texts();

    const std::unique_ptr<Ui::table_frequency> ui;
    QPushButton* print_button = nullptr;
};

#endif // TABLE_FREQUENCY_H
