#ifndef MUSTER_STATISTIC_SERIEN_H
#define MUSTER_STATISTIC_SERIEN_H

#include "statistic_data.h"

#include <QDialog>
#include <QStringList>
#include <QVector>

#include <array>
#include <memory>

class setting;

namespace Ui
{
class muster_statistic_serien;
}

/**
 * The window "Muster Figuren": how often each figure of two, three and four coups has occurred in
 * each pair of even chances. Read once, when it is opened.
 */
class muster_statistic_serien : public QDialog
{
    Q_OBJECT

public:
    /// The settings must outlive the window.
    /// @param scale_reduction  of the table. Range: 0.0 to 0.3
    muster_statistic_serien(const statistic_data& statistic,
                            double scale_reduction,
                            const setting& settings,
                            QWidget* parent = nullptr);
    ~muster_statistic_serien() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_PB_print_clicked();

private:
    QVector<QStringList> rows() const;

    std::unique_ptr<Ui::muster_statistic_serien> ui;
    const setting& print_setting;
    std::array<muster, statistic_data::pair_count> figures;
};

#endif // MUSTER_STATISTIC_SERIEN_H
