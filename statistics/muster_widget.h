#ifndef MUSTER_WIDGET_H
#define MUSTER_WIDGET_H

#include <QAbstractScrollArea>
#include <QVector>

#include <functional>

class QHelpEvent;

/**
 * A course of colours as a grid: one filled square per coup, oldest first, in rows as wide as the
 * area, or in columns as high as the area. What does not fit is reached by the scroll bar, the
 * wheel of the mouse and the keys; Home and End lead to the first and the last coup. Only the
 * squares that are seen are painted, so a course may be of any length.
 */
class muster_widget : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit muster_widget(QWidget* parent = nullptr);

    /// Shows a course from its beginning.
    void set_course(const QVector<Qt::GlobalColor>& colours);

    /// Columns instead of rows.
    void set_vertical(bool on);

    /// Side of a square. Unit: pixels; at least 2.
    void set_grid_size(int pixels);

    /// What is told of a coup under the mouse, asked by its index when needed.
    void set_tool_tips(std::function<QString(int)> text_of);

    /// The place of a coup's square in the viewport, inside or outside of what is seen.
    /// @param index  from 0
    QRect square(int index) const;

    /// The coup whose square lies at a point of the viewport; -1 where there is none.
    int index_at(const QPoint& point) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QScrollBar& bar() const;
    int first_seen() const;
    void arrange(int first);
    void show_tool_tip(const QHelpEvent& help) const;

    QVector<Qt::GlobalColor> course;
    std::function<QString(int)> tool_tip;
    bool is_vertical = false;
    int grid_size = 16;
    int per_line = 1; // squares of a row, or of a column
};

#endif // MUSTER_WIDGET_H
