#include "chart_scale_draws.h"
#include "whole_number_scale.h"
#include "window_bench.h"

#include <qwt_text.h>

#include <memory>

using draw_pointer = std::shared_ptr<QwtScaleDraw>;
Q_DECLARE_METATYPE(draw_pointer)

/// The labels of the charts' axes, and where they stand.
class tst_chart_scale_draws : public QObject
{
    Q_OBJECT

private slots:
    void a_value_has_its_label_data();
    void a_value_has_its_label();
    void amounts_have_their_colours();
    void coloured_amounts_have_the_font_of_the_axis();
    void labels_stand_at_whole_numbers_data();
    void labels_stand_at_whole_numbers();
};

void tst_chart_scale_draws::a_value_has_its_label_data()
{
    QTest::addColumn<draw_pointer>("draw");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("label");
    const QFont font;
    const draw_pointer list = std::make_shared<ChartStatisticXLDefault>(QStringList{"17", "00"});
    const draw_pointer no_list = std::make_shared<ChartStatisticXLDefault>();
    const draw_pointer from_one = std::make_shared<ChartStatisticXLDefaultP1>();
    const draw_pointer american = std::make_shared<ChartStatisticXLPleinA>();
    const draw_pointer thirds = std::make_shared<ChartStatisticXLKlDZ>();
    const draw_pointer chances = std::make_shared<ChartStatisticXLSimpleChance>();
    const draw_pointer sectors = std::make_shared<ChartStatisticXLAnnoncen>();
    const draw_pointer black = std::make_shared<ChartStatisticNoYColor>();
    const draw_pointer red = std::make_shared<ChartStatisticRedYColor>(font);
    const draw_pointer blue = std::make_shared<ChartStatisticBlueYColor>(font);
    // clang-format off
    QTest::newRow("first of a list")       << list     << 0.0        << "17";
    QTest::newRow("last of a list")        << list     << 1.0        << "00";
    QTest::newRow("behind a list")         << list     << 2.0        << "2";
    QTest::newRow("in front of a list")    << list     << -1.0       << "-1";
    QTest::newRow("truncated")             << list     << 1.9        << "00";
    QTest::newRow("without a list")        << no_list  << 36.0       << "36";
    QTest::newRow("from one, first")       << from_one << 0.0        << "1";
    QTest::newRow("from one, last")        << from_one << 62.0       << "63";
    QTest::newRow("from one, truncated")   << from_one << 4.99       << "5";
    QTest::newRow("american zero")         << american << 0.0        << "0";
    QTest::newRow("american double zero")  << american << 1.0        << "00";
    QTest::newRow("american one")          << american << 2.0        << "1";
    QTest::newRow("american last")         << american << 37.0       << "36";
    QTest::newRow("first column")          << thirds   << 0.0        << "K I";
    QTest::newRow("second column")         << thirds   << 1.0        << "K II";
    QTest::newRow("third column")          << thirds   << 2.0        << "K III";
    QTest::newRow("first dozen")           << thirds   << 3.0        << "D I";
    QTest::newRow("second dozen")          << thirds   << 4.0        << "D II";
    QTest::newRow("third dozen")           << thirds   << 5.0        << "D III";
    QTest::newRow("no third")              << thirds   << 6.0        << "6";
    QTest::newRow("low")                   << chances  << 0.0        << "1-18";
    QTest::newRow("even")                  << chances  << 1.0        << "EVEN";
    QTest::newRow("red")                   << chances  << 2.0        << "RED";
    QTest::newRow("black")                 << chances  << 3.0        << "BLACK";
    QTest::newRow("odd")                   << chances  << 4.0        << "ODD";
    QTest::newRow("high")                  << chances  << 5.0        << "19-36";
    QTest::newRow("big series")            << sectors  << 0.0        << "GS";
    QTest::newRow("small series")          << sectors  << 1.0        << "KS";
    QTest::newRow("orphans")               << sectors  << 2.0        << "OR";
    QTest::newRow("orphans en plein")      << sectors  << 3.0        << "OP";
    QTest::newRow("zero game")             << sectors  << 4.0        << "ZS";
    QTest::newRow("no sector")             << sectors  << 5.0        << "5";
    QTest::newRow("whole amount")          << black    << 2000.0     << "2000";
    QTest::newRow("debt")                  << black    << -35.0      << "-35";
    QTest::newRow("six digits at most")    << black    << 1234567.0  << "1.23457e+06";
    QTest::newRow("red amount")            << red      << 0.5        << "0.5";
    QTest::newRow("blue amount")           << blue     << 999999.0   << "999999";
    // clang-format on
}

void tst_chart_scale_draws::a_value_has_its_label()
{
    QFETCH(draw_pointer, draw);
    QFETCH(double, value);
    QTEST(draw->label(value).text(), "label");
}

void tst_chart_scale_draws::amounts_have_their_colours()
{
    const QFont font;
    QCOMPARE(ChartStatisticNoYColor().label(7).color(), QColor(0, 0, 0));
    QCOMPARE(ChartStatisticRedYColor(font).label(7).color(), QColor(255, 0, 0));
    QCOMPARE(ChartStatisticBlueYColor(font).label(7).color(), QColor(0, 0, 255));
    for (const QwtText& text : {ChartStatisticNoYColor().label(7),
                                ChartStatisticRedYColor(font).label(7),
                                ChartStatisticBlueYColor(font).label(7)})
        QVERIFY(text.testPaintAttribute(QwtText::PaintUsingTextColor));
}

void tst_chart_scale_draws::coloured_amounts_have_the_font_of_the_axis()
{
    QFont font;
    font.setPointSize(23);
    QCOMPARE(ChartStatisticRedYColor(font).label(7).font().pointSize(), 23);
    QCOMPARE(ChartStatisticBlueYColor(font).label(7).font().pointSize(), 23);
}

void tst_chart_scale_draws::labels_stand_at_whole_numbers_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<int>("most");
    QTest::addColumn<double>("step");
    QTest::addColumn<QList<double>>("ticks");
    // clang-format off
    QTest::newRow("all fit")        << -0.5  << 3.5    << 11 << 0.0  << QList<double>{0, 1, 2, 3};
    QTest::newRow("just fit")       << 0.0   << 4.0    << 5  << 0.0  << QList<double>{0, 1, 2, 3, 4};
    QTest::newRow("one too many")   << 0.0   << 4.0    << 4  << 0.0  << QList<double>{0, 2, 4};
    QTest::newRow("every fifth")    << 0.0   << 22.0   << 5  << 0.0  << QList<double>{0, 5, 10, 15, 20};
    QTest::newRow("limits stay")    << 88.0  << 122.0  << 4  << 0.0  << QList<double>{90, 100, 110, 120};
    QTest::newRow("below 0")        << -25.0 << 15.0   << 5  << 0.0  << QList<double>{-20, -10, 0, 10};
    QTest::newRow("no fractions")   << 0.2   << 1.4    << 9  << 0.0  << QList<double>{1};
    QTest::newRow("a step told")    << 0.0   << 10.0   << 99 << 4.0  << QList<double>{0, 4, 8};
    QTest::newRow("a small step")   << 0.0   << 2.0    << 99 << 0.25 << QList<double>{0, 1, 2};
    QTest::newRow("a million")      << 0.0   << 1e6    << 3  << 0.0  << QList<double>{0, 500000, 1e6};
    // clang-format on
}

void tst_chart_scale_draws::labels_stand_at_whole_numbers()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(int, most);
    QFETCH(double, step);
    const QwtScaleDiv division = whole_number_scale().divideScale(from, to, most, 5, step);
    QTEST(division.ticks(QwtScaleDiv::MajorTick), "ticks");
    QVERIFY(division.ticks(QwtScaleDiv::MinorTick).isEmpty());
    QVERIFY(division.ticks(QwtScaleDiv::MediumTick).isEmpty());
    QCOMPARE(division.lowerBound(), from);
    QCOMPARE(division.upperBound(), to);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_chart_scale_draws>(argc, argv);
}

#include "tst_chart_scale_draws.moc"
