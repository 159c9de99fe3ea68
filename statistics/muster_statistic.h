#ifndef MUSTER_STATISTIC_H
#define MUSTER_STATISTIC_H

#include "dialog_layout_control.h"
#include "statistic_data.h"

#include <QStringList>
#include <QVector>

#include <memory>

namespace Ui
{
class muster_statistic;
}

/**
 * The window "Muster Verlauf": the colour course of a chance as a grid of squares, with its key.
 * A course is read when it is chosen. A zero has no square, so the squares are numbered by
 * themselves and not by the coups.
 */
class muster_statistic : public dialog_layout_control
{
    Q_OBJECT

public:
    /// Store and settings must outlive the window.
    /// @param scale_reduction  of the table, for the first size of the grid. Range: 0.0 to 0.3
    muster_statistic(const statistic_data& statistic,
                     double scale_reduction,
                     const setting& settings,
                     QWidget* parent = nullptr);
    ~muster_statistic() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_CB_course_currentIndexChanged(int index);
    void on_CB_vertical_toggled(bool checked);
    void on_SB_grid_size_valueChanged(int pixels);
    void on_PB_print_clicked();

private:
    QString description(int index) const;
    QVector<QStringList> rows() const;

    std::unique_ptr<Ui::muster_statistic> ui;
    const statistic_data& store;
    const setting& print_setting;
    colour_course_index shown_course = colour_course_index::low_high;
    QVector<Qt::GlobalColor> colours; // of the course that is shown
};

#endif // MUSTER_STATISTIC_H
