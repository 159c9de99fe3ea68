#include "bar_chart_item.h"
#include "chart_statistic_widget.h"
#include "chart_zoomer.h"
#include "window_bench.h"

#include <QPainter>
#include <qwt_column_symbol.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <memory>

/// The bar chart by itself.
class tst_chart_statistic_widget : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void it_begins_empty();
    void bars_are_raised_in_fifteen_colours_in_turn_data();
    void bars_are_raised_in_fifteen_colours_in_turn();
    void one_colour_can_serve_all_bars();
    void a_bar_is_painted_in_its_colour();
    void a_bar_of_no_height_paints_nothing();
    void each_kind_of_labels_has_its_scale_data();
    void each_kind_of_labels_has_its_scale();
    void labels_can_be_given_before_and_after_the_bars();
    void an_empty_chart_has_blank_labels();
    void the_vertical_axis_is_set_at_once();
    void ticks_and_backbone_are_shown_on_request();
    void the_raster_is_horizontal_and_shown_on_request();
    void titles_have_font_and_colour();
    void fonts_shrink_with_the_table_data();
    void fonts_shrink_with_the_table();
    void labels_never_touch_each_other_data();
    void labels_never_touch_each_other();
    void labels_stand_below_their_bars_data();
    void labels_stand_below_their_bars();
    void it_is_black_on_light_on_a_dark_desktop();
    void the_ground_can_shine_through();
    void bars_can_be_read_off();
    void the_mouse_zooms_and_goes_back();
    void the_wheel_zooms_around_the_pointer();
    void new_bars_are_shown_as_a_whole();
    void without_zoom_the_mouse_does_nothing();
};

namespace
{

constexpr int x_axis = QwtPlot::xBottom;
constexpr int y_axis = QwtPlot::yLeft;

QVector<double> rising(int count)
{
    QVector<double> values;
    for (int i = 0; i < count; ++i)
        values.append(i + 1);
    return values;
}

QImage canvas_of(chart_statistic_widget& chart)
{
    return chart.canvas()->grab().toImage();
}

QPoint pixel_of(const chart_statistic_widget& chart, double x, double y)
{
    return {qRound(chart.transform(x_axis, x)), qRound(chart.transform(y_axis, y))};
}

/// Where a label stands, in pixels of the chart.
QRect label_place(const chart_statistic_widget& chart, double value)
{
    const QwtScaleWidget& axis = *chart.axisWidget(x_axis);
    return chart.axisScaleDraw(x_axis)
        ->boundingLabelRect(chart.axisFont(x_axis), value)
        .translated(axis.pos());
}

void drag(QWidget& canvas, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&canvas, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &move);
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, to);
}

void turn_wheel(QWidget& canvas, const QPoint& at, int angle)
{
    QWheelEvent event(at,
                      canvas.mapToGlobal(at),
                      QPoint(),
                      QPoint(0, angle),
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&canvas, &event);
}

} // namespace

void tst_chart_statistic_widget::cleanup()
{
    QApplication::setPalette(QPalette());
}

void tst_chart_statistic_widget::it_begins_empty()
{
    const chart_statistic_widget chart;
    QVERIFY(chart.values().isEmpty());
    QVERIFY(!chart.is_grid_shown());
    for (const int axis : {x_axis, y_axis}) {
        QCOMPARE(chart.axisInterval(axis).minValue(), 0.0);
        QCOMPARE(chart.axisInterval(axis).maxValue(), 10.0);
        QVERIFY(!chart.axisScaleDraw(axis)->hasComponent(QwtScaleDraw::Ticks));
        QVERIFY(!chart.axisScaleDraw(axis)->hasComponent(QwtScaleDraw::Backbone));
        QVERIFY(chart.axisScaleDraw(axis)->hasComponent(QwtScaleDraw::Labels));
    }
}

void tst_chart_statistic_widget::bars_are_raised_in_fifteen_colours_in_turn_data()
{
    QTest::addColumn<int>("bar");
    QTest::addColumn<QColor>("colour");
    // clang-format off
    QTest::newRow("first")          << 0  << QColor(Qt::darkGray);
    QTest::newRow("second")         << 1  << QColor(Qt::gray);
    QTest::newRow("fourth")         << 3  << QColor(Qt::red);
    QTest::newRow("ninth")          << 8  << QColor(Qt::yellow);
    QTest::newRow("fifteenth")      << 14 << QColor(Qt::darkYellow);
    QTest::newRow("sixteenth")      << 15 << QColor(Qt::darkGray);
    QTest::newRow("nineteenth")     << 18 << QColor(Qt::red);
    QTest::newRow("thirtieth")      << 29 << QColor(Qt::darkYellow);
    QTest::newRow("sixty-third")    << 62 << QColor(Qt::lightGray);
    // clang-format on
}

void tst_chart_statistic_widget::bars_are_raised_in_fifteen_colours_in_turn()
{
    QFETCH(int, bar);
    QFETCH(QColor, colour);
    const BarChartItem item;
    const std::unique_ptr<QwtColumnSymbol> symbol(item.specialSymbol(bar, {}));
    QCOMPARE(symbol->lineWidth(), 2);
    QCOMPARE(symbol->frameStyle(), QwtColumnSymbol::Raised);
    QCOMPARE(symbol->palette().color(QPalette::Button), colour);
    QCOMPARE(item.colour_of(bar), colour);
}

void tst_chart_statistic_widget::one_colour_can_serve_all_bars()
{
    chart_statistic_widget chart;
    chart.set_bar_colour(QColor(1, 2, 3));
    QCOMPARE(chart.bars().colour_of(0), QColor(1, 2, 3));
    QCOMPARE(chart.bars().colour_of(20), QColor(1, 2, 3));
    chart.set_bar_colour(QColor());
    QCOMPARE(chart.bars().colour_of(3), QColor(Qt::red));
}

void tst_chart_statistic_widget::a_bar_is_painted_in_its_colour()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.set_values({4, 4, 4, 4, 4}, bar_labels::list);
    chart.set_y_scale(0, 10);
    const QImage image = canvas_of(chart);
    QCOMPARE(image.pixelColor(pixel_of(chart, 3, 2)), QColor(Qt::red));
    QCOMPARE(image.pixelColor(pixel_of(chart, 4, 2)), QColor(Qt::green));
    QCOMPARE(image.pixelColor(pixel_of(chart, 4, 5)), QColor(Qt::white));   // above the bar
    QCOMPARE(image.pixelColor(pixel_of(chart, 3.5, 2)), QColor(Qt::white)); // between two
}

void tst_chart_statistic_widget::a_bar_of_no_height_paints_nothing()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    const QImage without_bars = canvas_of(chart);
    chart.set_values({0, 0, 0}, bar_labels::simple_chances);
    chart.set_y_scale(0, 10);
    QCOMPARE(chart.values(), QVector<double>({0, 0, 0}));
    const QImage image = canvas_of(chart);
    const QRect inside = chart.canvas()->contentsRect();
    for (int x = inside.left(); x <= inside.right(); ++x) {
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
    }
}

void tst_chart_statistic_widget::each_kind_of_labels_has_its_scale_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("labels");
    // clang-format off
    QTest::newRow("list")     << 0 << QStringList{"7", "00", "2", "3", "4", "5"};
    QTest::newRow("from one") << 1 << QStringList{"1", "2", "3", "4", "5", "6"};
    QTest::newRow("american") << 2 << QStringList{"0", "00", "1", "2", "3", "4"};
    QTest::newRow("chances")  << 3 << QStringList{"1-18", "EVEN", "RED", "BLACK", "ODD", "19-36"};
    QTest::newRow("thirds")   << 4 << QStringList{"K I", "K II", "K III", "D I", "D II", "D III"};
    QTest::newRow("sectors")  << 5 << QStringList{"GS", "KS", "OR", "OP", "ZS", "5"};
    // clang-format on
}

void tst_chart_statistic_widget::each_kind_of_labels_has_its_scale()
{
    QFETCH(int, kind);
    chart_statistic_widget chart;
    chart.set_labels({"7", "00"});
    chart.set_values(rising(6), static_cast<bar_labels>(kind));
    QStringList shown;
    for (int bar = 0; bar < 6; ++bar)
        shown.append(chart.label_of(bar));
    QTEST(shown, "labels");
    QVERIFY(!chart.axisScaleDraw(x_axis)->hasComponent(QwtScaleDraw::Ticks));
}

void tst_chart_statistic_widget::labels_can_be_given_before_and_after_the_bars()
{
    chart_statistic_widget chart;
    chart.set_labels({"17", "4", "00"});
    chart.set_values({9, 8, 7}, bar_labels::list);
    QCOMPARE(chart.label_of(2), QString("00"));
    chart.set_labels({"5", "6", "7"});
    QCOMPARE(chart.label_of(2), QString("7"));
}

void tst_chart_statistic_widget::an_empty_chart_has_blank_labels()
{
    chart_statistic_widget chart;
    chart.set_labels({"17", "4", "00"});
    chart.set_values({90, 80, 70}, bar_labels::list);
    chart.set_y_scale(60, 100);
    chart.show_empty(3);
    QCOMPARE(chart.values(), QVector<double>({0, 0, 0}));
    for (int bar = 0; bar < 3; ++bar)
        QCOMPARE(chart.label_of(bar), QString(" "));
    QCOMPARE(chart.axisInterval(y_axis).minValue(), 0.0);
    QCOMPARE(chart.axisInterval(y_axis).maxValue(), 10.0);
}

void tst_chart_statistic_widget::the_vertical_axis_is_set_at_once()
{
    chart_statistic_widget chart;
    chart.set_y_scale(20, 50, 15);
    QCOMPARE(chart.axisScaleDiv(y_axis).lowerBound(), 20.0);
    QCOMPARE(chart.axisScaleDiv(y_axis).upperBound(), 50.0);
    QCOMPARE(chart.axisScaleDiv(y_axis).ticks(QwtScaleDiv::MajorTick), (QList<double>{30, 45}));
}

void tst_chart_statistic_widget::ticks_and_backbone_are_shown_on_request()
{
    chart_statistic_widget chart;
    chart.enable_ticks(y_axis, true);
    QVERIFY(chart.axisScaleDraw(y_axis)->hasComponent(QwtScaleDraw::Ticks));
    QVERIFY(chart.axisScaleDraw(y_axis)->hasComponent(QwtScaleDraw::Backbone));
    QVERIFY(!chart.axisScaleDraw(x_axis)->hasComponent(QwtScaleDraw::Ticks));
    chart.enable_ticks(x_axis, true);
    chart.set_values({1, 2}, bar_labels::from_one); // brings a new scale
    QVERIFY(chart.axisScaleDraw(x_axis)->hasComponent(QwtScaleDraw::Ticks));
    chart.enable_ticks(y_axis, false);
    QVERIFY(!chart.axisScaleDraw(y_axis)->hasComponent(QwtScaleDraw::Backbone));
}

void tst_chart_statistic_widget::the_raster_is_horizontal_and_shown_on_request()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.set_y_scale(0, 10, 5);
    chart.show();
    const QPoint on_line = pixel_of(chart, 3.3, 5);
    const auto is_line_near = [&] {
        const QImage image = canvas_of(chart).copy(QRect(on_line - QPoint(0, 1), QSize(1, 3)));
        return image.pixelColor(0, 0) != QColor(Qt::white) ||
               image.pixelColor(0, 1) != QColor(Qt::white) ||
               image.pixelColor(0, 2) != QColor(Qt::white);
    };
    QVERIFY(!is_line_near());
    chart.show_grid(true);
    QVERIFY(chart.is_grid_shown());
    QVERIFY(is_line_near());
    const QImage image = canvas_of(chart);
    const int white_row = pixel_of(chart, 0, 7.5).y();
    const QRect inside = chart.canvas()->contentsRect();
    for (int x = inside.left(); x <= inside.right(); ++x)
        QCOMPARE(image.pixelColor(x, white_row), QColor(Qt::white));
}

void tst_chart_statistic_widget::titles_have_font_and_colour()
{
    chart_statistic_widget chart;
    chart.set_titles("Hot", "below", "beside", Qt::red);
    chart.set_fonts(chart_fonts(QFont(), 0.3)); // keeps the texts
    QCOMPARE(chart.title().text(), QString("Hot"));
    QCOMPARE(chart.title().color(), QColor(Qt::red));
    QCOMPARE(chart.title().font().pointSize(), 10);
    QCOMPARE(chart.axisTitle(x_axis).text(), QString("below"));
    QCOMPARE(chart.axisTitle(y_axis).text(), QString("beside"));
    for (const int axis : {x_axis, y_axis}) {
        QCOMPARE(chart.axisTitle(axis).color(), QColor(Qt::black));
        QCOMPARE(chart.axisTitle(axis).font().pointSize(), 8);
        QCOMPARE(chart.axisFont(axis).pointSize(), 7);
    }
    chart.set_titles("Plein", {}, {});
    QCOMPARE(chart.title().color(), QColor(Qt::black));
}

void tst_chart_statistic_widget::fonts_shrink_with_the_table_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<int>("title");
    QTest::addColumn<int>("axis_title");
    QTest::addColumn<int>("axis");
    // 13, 10 and 9 points, less the reduction, cut to whole points, plus 1.
    // clang-format off
    QTest::newRow("full size") << 0.0 << 14 << 11 << 10;
    QTest::newRow("0.1")       << 0.1 << 12 << 10 << 9;  // 11.7  9  8.1
    QTest::newRow("0.2")       << 0.2 << 11 << 9  << 8;  // 10.4  8  7.2
    QTest::newRow("0.3")       << 0.3 << 10 << 8  << 7;  //  9.1  7  6.3
    // clang-format on
}

void tst_chart_statistic_widget::fonts_shrink_with_the_table()
{
    QFETCH(double, reduction);
    const chart_fonts fonts(QFont(), reduction);
    QTEST(fonts.title.pointSize(), "title");
    QTEST(fonts.axis_title.pointSize(), "axis_title");
    QTEST(fonts.axis.pointSize(), "axis");
}

void tst_chart_statistic_widget::labels_never_touch_each_other_data()
{
    QTest::addColumn<int>("bars");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("reduction");
    QTest::addColumn<int>("least");
    // clang-format off
    QTest::newRow("63, full size")    << 63 << 1 << QSize(1036, 540) << 0.0 << 30;
    QTest::newRow("63, reduced")      << 63 << 1 << QSize(718, 360)  << 0.3 << 30;
    QTest::newRow("63, tiny")         << 63 << 1 << QSize(320, 200)  << 0.0 << 6;
    QTest::newRow("38, full size")    << 38 << 2 << QSize(1036, 540) << 0.0 << 38;
    QTest::newRow("38, reduced")      << 38 << 2 << QSize(718, 360)  << 0.3 << 38;
    QTest::newRow("chances, reduced") << 6  << 3 << QSize(718, 360)  << 0.3 << 6;
    QTest::newRow("hot and cold")     << 3  << 0 << QSize(184, 238)  << 0.0 << 3;
    QTest::newRow("hot, reduced")     << 3  << 0 << QSize(128, 166)  << 0.3 << 3;
    // clang-format on
}

void tst_chart_statistic_widget::labels_never_touch_each_other()
{
    QFETCH(int, bars);
    QFETCH(int, kind);
    QFETCH(QSize, size);
    QFETCH(double, reduction);
    QFETCH(int, least);
    chart_statistic_widget chart;
    chart.resize(size);
    chart.set_fonts(chart_fonts(QFont(), reduction));
    chart.set_labels({"36", "00", "17"});
    chart.set_values(rising(bars), static_cast<bar_labels>(kind));
    chart.set_y_scale(0, 2000);
    chart.show();
    QApplication::processEvents();
    const auto ticks = chart.axisScaleDiv(x_axis).ticks(QwtScaleDiv::MajorTick);
    QVERIFY2(ticks.size() >= least, qPrintable(QString::number(ticks.size())));
    for (int i = 1; i < ticks.size(); ++i) {
        const QRect before = label_place(chart, ticks.at(i - 1));
        const QRect after = label_place(chart, ticks.at(i));
        QVERIFY2(before.right() < after.left(), qPrintable(QString::number(ticks.at(i))));
    }
    QVERIFY(label_place(chart, ticks.first()).left() >= 0);
    QVERIFY(label_place(chart, ticks.last()).right() < chart.width());
}

void tst_chart_statistic_widget::labels_stand_below_their_bars_data()
{
    QTest::addColumn<int>("bars");
    QTest::addColumn<int>("kind");
    QTest::newRow("numbers") << 38 << 2;
    QTest::newRow("chances") << 6 << 3;
    QTest::newRow("sectors") << 5 << 5;
}

void tst_chart_statistic_widget::labels_stand_below_their_bars()
{
    QFETCH(int, bars);
    QFETCH(int, kind);
    chart_statistic_widget chart;
    chart.resize(718, 360);
    chart.set_fonts(chart_fonts(QFont(), 0.3));
    chart.set_titles("title", "below", "beside");
    chart.set_values(rising(6), bar_labels::columns_and_dozens); // what was shown before
    chart.set_y_scale(0, 10);
    chart.show();
    chart.set_values(rising(bars), static_cast<bar_labels>(kind));
    chart.set_y_scale(0, 1600);
    QApplication::processEvents();
    for (int bar = 0; bar < bars; ++bar) {
        const int bar_centre = pixel_of(chart, bar, 0).x() + chart.canvas()->x();
        const int label_centre = label_place(chart, bar).center().x();
        QVERIFY2(qAbs(bar_centre - label_centre) <= 2, qPrintable(QString::number(bar)));
    }
    const QwtScaleWidget& axis = *chart.axisWidget(x_axis);
    QVERIFY(axis.height() >= axis.dimForLength(axis.width(), axis.font())); // title not cut
}

void tst_chart_statistic_widget::it_is_black_on_light_on_a_dark_desktop()
{
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        dark.setColor(role, Qt::white);
    QApplication::setPalette(dark);
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.set_values({5, 6}, bar_labels::from_one);
    chart.show();
    for (const int axis : {x_axis, y_axis}) {
        const QPalette colours = chart.axisWidget(axis)->palette();
        QCOMPARE(colours.color(QPalette::Text), QColor(Qt::black));
        QCOMPARE(colours.color(QPalette::WindowText), QColor(Qt::black));
    }
    const QImage image = chart.grab().toImage();
    QVERIFY(image.pixelColor(2, 2).lightness() > 220);
    QCOMPARE(chart.canvasBackground().color(), QColor(Qt::white));
}

void tst_chart_statistic_widget::the_ground_can_shine_through()
{
    QWidget ground;
    QPalette colours;
    colours.setColor(QPalette::Window, QColor(10, 200, 30));
    ground.setPalette(colours);
    ground.resize(184, 238);
    chart_statistic_widget chart(&ground);
    chart.resize(184, 238);
    chart.set_transparent();
    chart.set_values({5, 6, 7}, bar_labels::from_one);
    chart.set_y_scale(0, 20);
    ground.show();
    const QImage image = ground.grab().toImage();
    QCOMPARE(image.pixelColor(100, 2), QColor(10, 200, 30));
    const QPoint above_bars = pixel_of(chart, 1, 15.5) + chart.canvas()->pos();
    QCOMPARE(image.pixelColor(above_bars), QColor(10, 200, 30));
    const QPoint in_bar = pixel_of(chart, 1, 3) + chart.canvas()->pos();
    QCOMPARE(image.pixelColor(in_bar), QColor(Qt::gray));
}

void tst_chart_statistic_widget::bars_can_be_read_off()
{
    chart_statistic_widget chart;
    chart.set_values({12, 0, 1234567}, bar_labels::from_one);
    QCOMPARE(chart.read_off({0.4, 3}), QString("1: 12"));
    chart.set_bar_names({"CH 0/1", "CH 0/2", "CH 0/3"});
    QCOMPARE(chart.read_off({-0.4, 3}), QString("CH 0/1: 12"));
    QCOMPARE(chart.read_off({1.2, 900}), QString("CH 0/2: 0"));
    QCOMPARE(chart.read_off({1.6, 0}), QString("CH 0/3: 1234567"));
    QCOMPARE(chart.read_off({-0.6, 3}), QString());
    QCOMPARE(chart.read_off({2.6, 3}), QString());
}

void tst_chart_statistic_widget::the_mouse_zooms_and_goes_back()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.enable_zoom();
    chart.set_values(rising(20), bar_labels::from_one);
    chart.set_y_scale(0, 30);
    chart.show();
    drag(*chart.canvas(), pixel_of(chart, 4, 20), pixel_of(chart, 10, 5));
    const auto is_near = [](double value, double wanted) { return qAbs(value - wanted) < 0.2; };
    QVERIFY(is_near(chart.axisInterval(x_axis).minValue(), 4));
    QVERIFY(is_near(chart.axisInterval(x_axis).maxValue(), 10));
    QVERIFY(is_near(chart.axisInterval(y_axis).minValue(), 5));
    QVERIFY(is_near(chart.axisInterval(y_axis).maxValue(), 20));

    QTest::mouseClick(chart.canvas(), Qt::RightButton, {}, QPoint(50, 50));
    QCOMPARE(chart.axisInterval(x_axis).minValue(), -0.5);
    QCOMPARE(chart.axisInterval(x_axis).maxValue(), 19.5);
    QCOMPARE(chart.axisInterval(y_axis).minValue(), 0.0);
    QCOMPARE(chart.axisInterval(y_axis).maxValue(), 30.0);
}

void tst_chart_statistic_widget::the_wheel_zooms_around_the_pointer()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.enable_zoom();
    chart.set_values(rising(21), bar_labels::from_one);
    chart.set_y_scale(0, 40);
    chart.show();
    turn_wheel(*chart.canvas(), pixel_of(chart, 10, 20), 120);
    // The middle of -0.5 to 20.5 and of 0 to 40 was pointed at; sides of 0.7 are 14.7 and 28.
    QVERIFY(qAbs(chart.axisInterval(x_axis).width() - 14.7) < 0.001);
    QVERIFY(qAbs(chart.axisInterval(y_axis).width() - 28) < 0.001);
    QVERIFY(qAbs(chart.axisInterval(x_axis).minValue() - 2.65) < 0.1);
    QVERIFY(qAbs(chart.axisInterval(y_axis).minValue() - 6) < 0.1);
    turn_wheel(*chart.canvas(), QPoint(50, 50), -120);
    QCOMPARE(chart.axisInterval(x_axis).width(), 21.0);
    turn_wheel(*chart.canvas(), QPoint(50, 50), -120); // there is no step further back
    QCOMPARE(chart.axisInterval(x_axis).width(), 21.0);
    for (int i = 0; i < 50; ++i) // never closer than one bar
        turn_wheel(*chart.canvas(), pixel_of(chart, 10, 20), 120);
    QVERIFY(chart.axisInterval(x_axis).width() >= 1.0);
    QVERIFY(chart.axisInterval(x_axis).width() < 2.0);
}

void tst_chart_statistic_widget::new_bars_are_shown_as_a_whole()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.enable_zoom();
    chart.set_values(rising(20), bar_labels::from_one);
    chart.set_y_scale(0, 30);
    chart.show();
    drag(*chart.canvas(), pixel_of(chart, 4, 20), pixel_of(chart, 10, 5));
    QVERIFY(chart.axisInterval(x_axis).width() < 7);
    chart.set_values(rising(6), bar_labels::simple_chances);
    chart.set_y_scale(0, 16);
    QCOMPARE(chart.axisInterval(x_axis).minValue(), -0.5);
    QCOMPARE(chart.axisInterval(x_axis).maxValue(), 5.5);
    QCOMPARE(chart.axisInterval(y_axis).maxValue(), 16.0);
    QTest::mouseClick(chart.canvas(), Qt::RightButton, {}, QPoint(50, 50)); // nothing to go back to
    QCOMPARE(chart.axisInterval(x_axis).maxValue(), 5.5);
    QCOMPARE(chart.axisInterval(y_axis).maxValue(), 16.0);
}

void tst_chart_statistic_widget::without_zoom_the_mouse_does_nothing()
{
    chart_statistic_widget chart;
    chart.resize(600, 400);
    chart.set_values(rising(20), bar_labels::from_one);
    chart.show();
    drag(*chart.canvas(), QPoint(100, 100), QPoint(300, 200));
    QCOMPARE(chart.axisInterval(x_axis).minValue(), -0.5);
    QCOMPARE(chart.axisInterval(x_axis).maxValue(), 19.5);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_chart_statistic_widget>(argc, argv);
}

#include "tst_chart_statistic_widget.moc"
