#ifndef TABLE_FOLLOW_NUMBER_H
#define TABLE_FOLLOW_NUMBER_H

#include "statistic_table_window.h"

#include <memory>

class QTableWidget;
class statistic_data;

namespace Ui
{
class table_follow_number;
}

/// Which numbers came most often directly behind each number, as a snapshot.
class table_follow_number : public statistic_table_window
{
    Q_OBJECT

public:
    /// @param store  read here and not later
    /// @param scale_reduction  0.0 (full size) to 0.3
    /// @param settings  must outlive the window
    table_follow_number(const statistic_data& store,
                        double scale_reduction,
                        const setting& settings,
                        QWidget* parent = nullptr);
    ~table_follow_number() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void print_chart();

private:
    void fill_table(QTableWidget& table, const statistic_data& store, int first, int last);
    void set_texts();
    QVector<QStringList> rows() const;
    int last_number() const;

    const std::unique_ptr<Ui::table_follow_number> ui;
    QPushButton* print_button = nullptr;
};

#endif // TABLE_FOLLOW_NUMBER_H
