#include "course_curve.h"
#include "window_bench.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <map>
#include <random>

/// Curves over the coups, and how they are thinned to what can be seen.
class tst_chart_course_curve : public QObject
{
    Q_OBJECT

private slots:
    void coup_0_holds_the_start();
    void the_bounds_reach_from_the_least_to_the_greatest();
    void a_short_course_keeps_all_points();
    void no_column_of_pixels_loses_its_reach_data();
    void no_column_of_pixels_loses_its_reach();
    void the_picture_is_that_of_all_points();
    void outside_of_the_course_nothing_is_drawn();
    void dashes_are_broken_where_coups_crowd();
};

namespace
{

/// Both ends of an axis, in amounts and in pixels.
QwtScaleMap map_of(double from, double to, double first_pixel, double last_pixel)
{
    QwtScaleMap map;
    map.setScaleInterval(from, to);
    map.setPaintInterval(first_pixel, last_pixel);
    return map;
}

/// A walk up and down by up to 50.
QList<qint64> walk(int coups)
{
    std::mt19937 numbers(11);
    QList<qint64> course;
    qint64 amount = 1000;
    for (int coup = 0; coup < coups; ++coup) {
        amount += static_cast<qint64>(numbers() % 101) - 50;
        course.append(amount);
    }
    return course;
}

/// What is drawn in a column of pixels: the highest and lowest pixel, the first and last point.
struct reach {
    double highest = 0;
    double lowest = 0;
    double first = 0;
    double last = 0;
    bool operator==(const reach& other) const
    {
        return highest == other.highest && lowest == other.lowest && first == other.first &&
               last == other.last;
    }
};

std::map<int, reach> reaches(const QPolygonF& line)
{
    std::map<int, reach> columns;
    for (const QPointF& point : line) {
        const int pixel = static_cast<int>(std::floor(point.x()));
        const auto place = columns.find(pixel);
        if (place == columns.end()) {
            columns[pixel] = {point.y(), point.y(), point.y(), point.y()};
            continue;
        }
        reach& column = place->second;
        column.highest = std::min(column.highest, point.y());
        column.lowest = std::max(column.lowest, point.y());
        column.last = point.y();
    }
    return columns;
}

QPolygonF all_points(const course_series& course, const QwtScaleMap& x, const QwtScaleMap& y)
{
    QPolygonF line;
    for (size_t coup = 0; coup < course.size(); ++coup) {
        const QPointF point = course.sample(coup);
        line.append({x.transform(point.x()), y.transform(point.y())});
    }
    return line;
}

int painted_pixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) ++count;
        }
    }
    return count;
}

/// Painted pixels of a picture that have none painted at the place or beside it in another.
int pixels_without_neighbour(const QImage& image, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::white)) continue;
            if (painted_pixels(other.copy(QRect(x - 1, y - 1, 3, 3).intersected(other.rect()))) ==
                0)
                ++count;
        }
    }
    return count;
}

QImage picture(const QwtPlotCurve& curve, const QwtScaleMap& x, const QwtScaleMap& y)
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    curve.drawSeries(&painter, x, y, QRectF(image.rect()), 0, -1);
    return image;
}

} // namespace

void tst_chart_course_curve::coup_0_holds_the_start()
{
    const course_series course(100, {110, 90});
    QCOMPARE(course.size(), size_t{3});
    QCOMPARE(course.sample(0), QPointF(0, 100));
    QCOMPARE(course.sample(1), QPointF(1, 110));
    QCOMPARE(course.sample(2), QPointF(2, 90));
    QCOMPARE(course_series(100, {}).size(), size_t{1});
}

void tst_chart_course_curve::the_bounds_reach_from_the_least_to_the_greatest()
{
    const course_series course(100, {110, 90, -7});
    QCOMPARE(course.boundingRect(), QRectF(QPointF(0, -7), QPointF(3, 110)));
    const course_series high_start(5000000000, {110});
    QCOMPARE(high_start.boundingRect().bottom(), 5e9);
}

void tst_chart_course_curve::a_short_course_keeps_all_points()
{
    const course_series course(10, {20, 0, 30});
    const QwtScaleMap x = map_of(0, 3, 0, 300);
    const QwtScaleMap y = map_of(0, 30, 300, 0);
    const QPolygonF line = thinned_course(course, x, y);
    QCOMPARE(line, QPolygonF({{0, 200}, {100, 100}, {200, 300}, {300, 0}}));
}

void tst_chart_course_curve::no_column_of_pixels_loses_its_reach_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    // clang-format off
    QTest::newRow("whole")            << 0.0     << 50000.0;
    QTest::newRow("zoomed")           << 12000.0 << 19000.0;
    QTest::newRow("between coups")    << 700.3   << 2400.7;
    QTest::newRow("beyond the end")   << 45000.0 << 60000.0;
    // clang-format on
}

void tst_chart_course_curve::no_column_of_pixels_loses_its_reach()
{
    QFETCH(double, from);
    QFETCH(double, to);
    const course_series course(1000, walk(50000));
    const QwtScaleMap x = map_of(from, to, 0, 299);
    const QwtScaleMap y = map_of(-20000, 20000, 199, 0);
    const QPolygonF line = thinned_course(course, x, y);
    QVERIFY2(line.size() <= 4 * 302, qPrintable(QString::number(line.size())));

    std::map<int, reach> wanted = reaches(all_points(course, x, y));
    const std::map<int, reach> got = reaches(line);
    int compared = 0;
    for (int pixel = 0; pixel < 299; ++pixel) {
        if (wanted.count(pixel) == 0) continue;
        QVERIFY2(got.count(pixel) == 1, qPrintable(QString::number(pixel)));
        QVERIFY2(got.at(pixel) == wanted.at(pixel), qPrintable(QString::number(pixel)));
        ++compared;
    }
    QVERIFY(compared > 90);
}

void tst_chart_course_curve::the_picture_is_that_of_all_points()
{
    const QList<qint64> course = walk(20000);
    const course_curve curve("thinned", 1000, course);
    const QwtScaleMap x = map_of(0, 20000, 0, 299);
    const QwtScaleMap y = map_of(-10000, 10000, 199, 0);
    const QImage drawn = picture(curve, x, y);
    QImage wanted(drawn.size(), drawn.format());
    wanted.fill(Qt::white);
    QPainter painter(&wanted);
    painter.setPen(curve.pen());
    painter.drawPolyline(all_points(course_series(1000, course), x, y));
    painter.end();
    QVERIFY(painted_pixels(wanted) > 300);
    QCOMPARE(pixels_without_neighbour(wanted, drawn), 0);
    QCOMPARE(pixels_without_neighbour(drawn, wanted), 0);
}

void tst_chart_course_curve::outside_of_the_course_nothing_is_drawn()
{
    const course_series course(10, {20, 30});
    const QwtScaleMap y = map_of(0, 30, 300, 0);
    QVERIFY(thinned_course(course, map_of(5, 9, 0, 300), y).isEmpty());
    QVERIFY(thinned_course(course, map_of(-9, -5, 0, 300), y).isEmpty());
    QCOMPARE(thinned_course(course, map_of(0.5, 0.75, 0, 300), y).size(), 2); // the line through
}

void tst_chart_course_curve::dashes_are_broken_where_coups_crowd()
{
    QList<qint64> flat;
    for (int coup = 0; coup < 5000; ++coup)
        flat.append(50);
    course_curve curve("stake", 50, flat);
    curve.setPen(Qt::blue, 1, Qt::DashLine);
    const QImage drawn = picture(curve, map_of(0, 5000, 0, 299), map_of(0, 100, 200, 0));
    int blue_columns = 0;
    int changes = 0;
    bool was_blue = false;
    for (int column = 0; column < drawn.width(); ++column) {
        const bool is_blue = drawn.pixelColor(column, 100) == QColor(Qt::blue);
        if (is_blue) ++blue_columns;
        if (is_blue != was_blue) ++changes;
        was_blue = is_blue;
    }
    QVERIFY(blue_columns > 100 && blue_columns < 250);
    QVERIFY(changes >= 40); // twenty dashes and more
}

int main(int argc, char** argv)
{
    return run_window_test<tst_chart_course_curve>(argc, argv);
}

#include "tst_chart_course_curve.moc"
