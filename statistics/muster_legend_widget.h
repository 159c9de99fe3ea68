#ifndef MUSTER_LEGEND_WIDGET_H
#define MUSTER_LEGEND_WIDGET_H

#include "statistic_data.h"

#include <QVector>
#include <QWidget>

/**
 * The key of a colour course: a square of each colour and the chance that it stands for, in one
 * line at the right edge.
 */
class muster_legend_widget : public QWidget
{
    Q_OBJECT

public:
    /// What a colour of a course means.
    struct entry {
        Qt::GlobalColor colour;
        QString colour_name; ///< "Rot"
        QString chance;      ///< "19-36"
    };

    explicit muster_legend_widget(QWidget* parent = nullptr);

    /// The course whose key is shown.
    void set_course(colour_course_index new_course);

    /// The key of a course in the language of the program, in the order of its chances.
    static QVector<entry> entries_of(colour_course_index course);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int square_side() const;
    int width_of(colour_course_index shown) const;

    colour_course_index course = colour_course_index::low_high;
};

#endif // MUSTER_LEGEND_WIDGET_H
