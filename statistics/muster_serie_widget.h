#ifndef MUSTER_SERIE_WIDGET_H
#define MUSTER_SERIE_WIDGET_H

#include "muster_figure_set.h"

#include <QWidget>

#include <array>

/**
 * The figures of one length with their counts: each a row of small squares in the colours of its
 * pair, oldest coup first, and the count behind it. More than eight rows stand in columns.
 */
class muster_serie_widget : public QWidget
{
    Q_OBJECT

public:
    /// The colours of the symbols 0 and 1 of a pair of even chances.
    using pair_colours = std::array<Qt::GlobalColor, 2>;

    explicit muster_serie_widget(QWidget* parent = nullptr);

    /// @param reduction  0.0 (full size) to 0.3
    void set_figures(const QList<muster_figure>& shown, pair_colours new_colours, double reduction);

    /// The square of a coup of a figure, both from 0.
    QRect square(int figure, int coup) const;

    /// Where the count of a figure is written.
    QRect count_place(int figure) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int coups() const;
    int count_width() const;
    int column_width() const;
    int row_height() const;
    void paint_figure(QPainter& painter, int figure) const;

    QList<muster_figure> figures;
    pair_colours colours{Qt::darkYellow, Qt::cyan};
    int side; // of a square, in pixels
};

#endif // MUSTER_SERIE_WIDGET_H
