#include "muster_widget.h"
#include "window_bench.h"

#include <QHelpEvent>
#include <QImage>
#include <QScrollBar>
#include <QToolTip>

namespace
{

const QVector<Qt::GlobalColor> seven = {
    Qt::red, Qt::black, Qt::black, Qt::red, Qt::black, Qt::red, Qt::red};

/// A grid whose viewport has a known size.
struct grid_desk {
    explicit grid_desk(const QSize& room, int grid_size = 10, bool vertical = false)
    {
        grid.set_vertical(vertical);
        grid.set_grid_size(grid_size);
        grid.resize(400, 400);
        grid.show();
        const QSize around = grid.size() - grid.viewport()->size();
        grid.resize(room + around);
        QCoreApplication::processEvents();
    }

    QColor pixel(const QPoint& point)
    {
        return grid.viewport()->grab().toImage().pixelColor(point);
    }

    /// The squares from the corner of the viewport, row by row: r, k (black), . (nothing).
    QStringList seen(int columns, int rows, int grid_size = 10)
    {
        const QImage picture = grid.viewport()->grab().toImage();
        QStringList lines;
        for (int row = 0; row < rows; ++row) {
            QString line;
            for (int column = 0; column < columns; ++column) {
                const QColor colour =
                    picture.pixelColor(column * grid_size + grid_size / 2, row * grid_size + 5);
                QChar sign = '.';
                if (colour == QColor(Qt::red)) sign = 'r';
                if (colour == QColor(Qt::black)) sign = 'k';
                line += sign;
            }
            lines.append(line);
        }
        return lines;
    }

    muster_widget grid;
};

/// A course of a length, in which no two neighbours have the same colour.
QVector<Qt::GlobalColor> long_course(int length)
{
    const QVector<Qt::GlobalColor> colours = {Qt::darkYellow, Qt::cyan, Qt::darkRed};
    QVector<Qt::GlobalColor> course;
    course.reserve(length);
    for (int index = 0; index < length; ++index)
        course.append(colours.at(index % 3));
    return course;
}

} // namespace

class tst_muster_widget : public QObject
{
    Q_OBJECT

private slots:
    void coups_go_on_in_rows();
    void coups_go_on_in_columns();
    void the_grid_size_sets_the_squares();
    void squares_are_framed();
    void nothing_is_shown_of_an_empty_course();
    void a_line_holds_at_least_one_square();
    void it_scrolls_to_the_last_of_a_million_data();
    void it_scrolls_to_the_last_of_a_million();
    void the_line_at_the_edge_stays();
    void a_new_course_begins_at_its_beginning();
    void points_and_squares_agree();
    void the_mouse_reads_a_square();
    void wheel_and_keys_scroll_data();
    void wheel_and_keys_scroll();
};

void tst_muster_widget::coups_go_on_in_rows()
{
    grid_desk desk({41, 50}); // four squares and the last frame
    desk.grid.set_course(seven);
    QCOMPARE(desk.seen(4, 4), QStringList({"rkkr", "krr.", "....", "...."}));
}

void tst_muster_widget::coups_go_on_in_columns()
{
    grid_desk desk({50, 31}, 10, true); // three squares in a column
    desk.grid.set_course(seven);
    QCOMPARE(desk.seen(4, 3), QStringList({"rrr.", "kk..", "kr.."}));
    desk.grid.set_vertical(false);
    desk.grid.set_vertical(true);
    QCoreApplication::processEvents();
    QCOMPARE(desk.seen(4, 3), QStringList({"rrr.", "kk..", "kr.."}));
}

void tst_muster_widget::the_grid_size_sets_the_squares()
{
    grid_desk desk({41, 50});
    desk.grid.set_course(seven);
    desk.grid.set_grid_size(20);
    QCOMPARE(desk.grid.square(0), QRect(0, 0, 20, 20));
    QCOMPARE(desk.grid.square(1), QRect(20, 0, 20, 20));
    QCOMPARE(desk.grid.square(2), QRect(0, 20, 20, 20));
    // Each square of 20 pixels is seen as two of 10.
    QCOMPARE(desk.seen(4, 5), QStringList({"rrkk", "rrkk", "kkrr", "kkrr", "kkrr"}));
}

void tst_muster_widget::squares_are_framed()
{
    grid_desk desk({41, 50});
    desk.grid.set_course(seven);
    const QColor frame = desk.pixel({0, 5});
    QVERIFY(frame != QColor(Qt::red) && frame != QColor(Qt::black));
    QVERIFY(frame.lightness() > 100 && frame.lightness() < 220);
    for (const QPoint& edge : {QPoint(10, 5), QPoint(40, 5), QPoint(15, 0), QPoint(15, 10)})
        QCOMPARE(desk.pixel(edge), frame);
    for (const QPoint& inside : {QPoint(1, 1), QPoint(9, 9)})
        QCOMPARE(desk.pixel(inside), QColor(Qt::red));
    const QColor paper = desk.pixel({35, 25});
    QVERIFY(paper.lightness() > 230);
}

void tst_muster_widget::nothing_is_shown_of_an_empty_course()
{
    grid_desk desk({41, 50});
    desk.grid.set_course(seven);
    desk.grid.set_course({});
    QCOMPARE(desk.seen(4, 2), QStringList({"....", "...."}));
    QCOMPARE(desk.grid.index_at({5, 5}), -1);
    QCOMPARE(desk.grid.verticalScrollBar()->maximum(), 0);
}

void tst_muster_widget::a_line_holds_at_least_one_square()
{
    grid_desk desk({41, 50});
    desk.grid.set_course(seven);
    desk.grid.set_grid_size(300);
    QCOMPARE(desk.grid.square(1), QRect(0, 300, 300, 300));
    desk.grid.set_grid_size(0); // no grid at all
    QVERIFY(desk.grid.square(0).width() > 0);
}

void tst_muster_widget::it_scrolls_to_the_last_of_a_million_data()
{
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<int>("grid_size");
    for (const int size : {4, 18, 48}) {
        QTest::addRow("rows of %d", size) << false << size;
        QTest::addRow("columns of %d", size) << true << size;
    }
}

void tst_muster_widget::it_scrolls_to_the_last_of_a_million()
{
    QFETCH(bool, vertical);
    QFETCH(int, grid_size);
    grid_desk desk({300, 200}, grid_size, vertical);
    desk.grid.set_course(long_course(1000000));
    QVERIFY(desk.grid.square(0).topLeft().isNull());
    QScrollBar* bar = vertical ? desk.grid.horizontalScrollBar() : desk.grid.verticalScrollBar();
    QScrollBar* other = vertical ? desk.grid.verticalScrollBar() : desk.grid.horizontalScrollBar();
    QCOMPARE(other->maximum(), 0);
    bar->setValue(bar->maximum());
    for (const int index : {999999, 999998}) {
        const QRect place = desk.grid.square(index);
        QVERIFY(desk.grid.viewport()->rect().contains(place));
        QCOMPARE(desk.grid.index_at(place.center()), index);
        const Qt::GlobalColor colour = index % 3 == 0 ? Qt::darkYellow : Qt::cyan;
        const QColor expected = index == 999998 ? QColor(Qt::darkRed) : QColor(colour);
        QCOMPARE(desk.pixel(place.center()), expected); // 999998 = 3 * 333332 + 2
    }
}

void tst_muster_widget::the_line_at_the_edge_stays()
{
    grid_desk desk({101, 101}); // ten squares in a line, ten lines
    desk.grid.set_course(long_course(5000));
    desk.grid.verticalScrollBar()->setValue(1000); // line 100: coup 1000
    QCOMPARE(desk.grid.square(1000), QRect(0, 0, 10, 10));
    desk.grid.set_grid_size(20); // five in a line: coup 1000 is line 200
    QCOMPARE(desk.grid.square(1000), QRect(0, 0, 20, 20));
    desk.grid.set_grid_size(10);
    QCOMPARE(desk.grid.square(1000), QRect(0, 0, 10, 10));
}

void tst_muster_widget::a_new_course_begins_at_its_beginning()
{
    grid_desk desk({101, 101});
    desk.grid.set_course(long_course(5000));
    desk.grid.verticalScrollBar()->setValue(1000);
    desk.grid.set_course(long_course(4000));
    QCOMPARE(desk.grid.square(0), QRect(0, 0, 10, 10));
}

void tst_muster_widget::points_and_squares_agree()
{
    grid_desk desk({45, 50}); // four squares, and a strip where none fits
    desk.grid.set_course(seven);
    QCOMPARE(desk.grid.index_at({0, 0}), 0);
    QCOMPARE(desk.grid.index_at({39, 9}), 3);
    QCOMPARE(desk.grid.index_at({40, 9}), -1);
    QCOMPARE(desk.grid.index_at({0, 10}), 4);
    QCOMPARE(desk.grid.index_at({29, 19}), 6);
    QCOMPARE(desk.grid.index_at({30, 19}), -1); // behind the last coup
    QCOMPARE(desk.grid.index_at({5, 25}), -1);
    QCOMPARE(desk.grid.index_at({-1, 5}), -1);
    desk.grid.set_vertical(true);
    QCoreApplication::processEvents();
    const int line = (desk.grid.viewport()->height() - 1) / 10;
    QCOMPARE(desk.grid.index_at({5, 15}), 1);
    QCOMPARE(desk.grid.index_at({15, 5}), line);
}

void tst_muster_widget::the_mouse_reads_a_square()
{
    grid_desk desk({41, 50});
    desk.grid.set_course(seven);
    desk.grid.set_tool_tips([](int index) { return QString("coup %1").arg(index); });
    const auto read = [&desk](const QPoint& point) {
        QHelpEvent help(QEvent::ToolTip, point, desk.grid.viewport()->mapToGlobal(point));
        QCoreApplication::sendEvent(desk.grid.viewport(), &help);
        return QToolTip::text();
    };
    QCOMPARE(read({15, 5}), QString("coup 1"));
    QCOMPARE(read({25, 15}), QString("coup 6"));
    QToolTip::hideText();
}

void tst_muster_widget::wheel_and_keys_scroll_data()
{
    QTest::addColumn<bool>("vertical");
    QTest::newRow("rows") << false;
    QTest::newRow("columns") << true;
}

/// Ten squares in each of ten lines are seen; the last of 5000 is the end of line 500.
void tst_muster_widget::wheel_and_keys_scroll()
{
    QFETCH(bool, vertical);
    grid_desk desk({101, 101}, 10, vertical);
    desk.grid.set_course(long_course(5000));
    const QRect page = desk.grid.viewport()->rect();
    QTest::keyClick(&desk.grid, Qt::Key_End);
    QVERIFY(page.contains(desk.grid.square(4999)));
    QTest::keyClick(&desk.grid, Qt::Key_PageUp);
    QVERIFY(!page.intersects(desk.grid.square(4999)));
    QVERIFY(page.intersects(desk.grid.square(4850)));
    QTest::keyClick(&desk.grid, Qt::Key_Home);
    QCOMPARE(desk.grid.square(0).topLeft(), QPoint(0, 0));
    QTest::keyClick(&desk.grid, Qt::Key_PageDown);
    QVERIFY(!page.intersects(desk.grid.square(0)));
    QTest::keyClick(&desk.grid, Qt::Key_Home);

    const QPoint middle(50, 50);
    QWheelEvent turn(middle,
                     desk.grid.viewport()->mapToGlobal(middle),
                     {},
                     {0, -120},
                     Qt::NoButton,
                     Qt::NoModifier,
                     Qt::NoScrollPhase,
                     false);
    QCoreApplication::sendEvent(desk.grid.viewport(), &turn);
    const QPoint moved = desk.grid.square(0).topLeft();
    QVERIFY(vertical ? moved.x() < 0 && moved.y() == 0 : moved.y() < 0 && moved.x() == 0);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_muster_widget>(argc, argv);
}

#include "tst_muster_widget.moc"
