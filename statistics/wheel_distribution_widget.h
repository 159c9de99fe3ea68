#ifndef WHEEL_DISTRIBUTION_WIDGET_H
#define WHEEL_DISTRIBUTION_WIDGET_H

#include "game_types.h"
#include "wheel_distribution.h"

#include <QList>
#include <QWidget>

class QTimer;

/**
 * A circular bar chart with one segment per pocket of a wheel, zero at the top, surrounded by the
 * numbers in their colours. A segment reaches out as far as its hits; the highest value reaches
 * the numbers.
 *
 * Lists go by wheel position: pockets from zero, clockwise.
 */
class wheel_distribution_widget : public QWidget
{
    Q_OBJECT

public:
    using setting_wheel_list_type = wheel_distribution::setting_wheel_list_type;

    explicit wheel_distribution_widget(QWidget* parent = nullptr);

    /// Which wheel is shown, and its size. Clears the picture.
    /// @param reduction  0.0 (full size) to 0.3
    void set_wheel(table_form wheel_form, double reduction);

    /// Time between two hits of the animation that starts next. Unit: milliseconds.
    void set_delay(int milliseconds);

    /// Draws all hits at once.
    /// @param hits_in_wheel_pos  hits by wheel position, 38 entries
    /// @param highest_value  of the list
    void show_hits(const QList<int>& hits_in_wheel_pos, int highest_value);

    /// The hits drawn so far. Range: 0 to 37.
    int hits_at(int wheel_position) const { return counters.at(wheel_position); }

    QSize sizeHint() const override;

public slots:
    /// Clears the picture and begins to draw one hit after the other, from the end of the list.
    /// @param single_stat_data_in_wheel_pos  one wheel position per hit. Range: 0 to 37
    /// @param highest_value  hits of the position that has the most
    void start_dyn_wheel_distribution(QList<int> single_stat_data_in_wheel_pos, int highest_value);

    /// Ends the animation at its next step; the picture stays as far as it has come.
    void stop_dyn_wheel_distribution();

    /// The next hit, or the end.
    void draw_dyn_one_segement();

signals:
    /// The list is used up, or the animation was stopped.
    void dyn_draw_finished();

    /// A hit has been drawn.
    /// @param hits  drawn so far, by wheel position
    /// @param number  that was hit
    void count_number_to_quadrant(setting_wheel_list_type list_type, QList<int>* hits, int number);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void set_highest(int highest_value);
    void paint_face(QPainter& painter) const;
    void paint_numbers(QPainter& painter) const;
    void paint_segment(QPainter& painter, int position) const;
    int position_at(const QPoint& point) const;

    table_form form = table_form::french;
    double scale_reduction = 0.0;
    int delay;
    bool stop_flag = false;
    QList<int> work_list; // wheel positions to draw, the next at the end
    QList<int> counters;  // hits drawn, by wheel position
    double radial_step;   // pixels per hit at full size
    double diameter_step;
    QTimer* const dyn_timer;
};

#endif // WHEEL_DISTRIBUTION_WIDGET_H
