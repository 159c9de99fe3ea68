#include "chart_scale_draws.h"
#include "chart_statistic_player.h"
#include "chart_zoomer.h"
#include "course_curve.h"
#include "file_dialog.h"
#include "page_export.h"
#include "setting.h"
#include "statistic_data.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTranslator>
#include <qwt_abstract_legend.h>
#include <qwt_legend_label.h>
#include <qwt_scale_widget.h>

using general_player::player_names;

/// The window of the players' curves and figures.
class tst_chart_statistic_player : public QObject
{
    Q_OBJECT

private slots:
    void before_the_first_coup_the_first_player_holds_the_start_credit();
    void those_who_have_bet_are_shown();
    void credits_are_drawn_from_the_start();
    void each_player_has_a_colour();
    void returns_and_stakes_are_told_apart();
    void the_axis_leaves_a_margin_data();
    void the_axis_leaves_a_margin();
    void boxes_show_and_hide_their_players();
    void without_players_the_axes_stay_at_0_to_10();
    void the_table_shows_the_figures_of_a_player();
    void the_last_credit_may_be_a_debt();
    void the_raster_follows_its_box();
    void a_picked_coup_shows_its_values();
    void a_click_picks_and_a_drag_zooms();
    void both_axes_are_zoomed_alike();
    void labels_stand_at_their_amounts();
    void coups_are_written_in_full();
    void it_can_be_refreshed();
    void a_million_coups_are_thinned();
    void it_is_black_on_light_on_a_dark_desktop();
    void texts_fit_at_every_scale_data();
    void texts_fit_at_every_scale();
    void the_table_can_be_copied();
    void the_chart_can_be_printed();
    void texts_follow_the_language();
};

namespace
{

constexpr int x_axis = QwtPlot::xBottom;
constexpr int y_axis = QwtPlot::yLeft;
constexpr int right_axis = QwtPlot::yRight;

/// Stake and return of each player in a coup.
struct coup {
    QList<qint64> stakes;
    QList<qint64> returns;
};

/// A store with four players of 1000 and the window over it.
struct player_desk {
    explicit player_desk(const QList<coup>& coups = {}, double reduction = 0.0)
    {
        for (int i = 0; i < 4; ++i)
            store.addStartCreditToPlayerStat(static_cast<player_names>(i), 1000);
        play(coups);
        window = std::make_unique<chart_statistic_player>(store, reduction, settings);
    }

    void play(const QList<coup>& coups)
    {
        for (const coup& one : coups) {
            store.addSeededToPlayerStat(one.stakes[0], one.stakes[1], one.stakes[2], one.stakes[3]);
            for (int i = 0; i < 4; ++i) {
                credits[i] += one.returns[i] - one.stakes[i];
                store.addScoreToPlayerStat(
                    static_cast<player_names>(i), one.returns[i], static_cast<int>(credits[i]));
            }
        }
    }

    chart_statistic_player_widget& plot()
    {
        return *child_of<chart_statistic_player_widget>(*window, "chart_stat_player_display");
    }
    course_curve& curve(int place) { return *plot().curves().at(place); }
    QCheckBox& box(const char* name) { return *child_of<QCheckBox>(*window, name); }
    void show_stakes() { child_of<QRadioButton>(*window, "RB_seeded_score_data_line")->click(); }
    void show_credits() { child_of<QRadioButton>(*window, "RB_credit_data_line")->click(); }
    QString cell(int row, int column)
    {
        return child_of<QTableWidget>(*window, "TW_player_stat")->item(row, column)->text();
    }
    QStringList column(int number)
    {
        QStringList texts;
        for (int row = 0; row < 7; ++row)
            texts.append(cell(row, number));
        return texts;
    }
    QStringList titles()
    {
        QStringList texts;
        for (const course_curve* shown : plot().curves())
            texts.append(shown->title().text());
        return texts;
    }

    setting settings;
    statistic_data store;
    QList<qint64> credits = {1000, 1000, 1000, 1000};
    std::unique_ptr<chart_statistic_player> window;
};

QVector<QPointF> points_of(const course_curve& curve)
{
    QVector<QPointF> points;
    for (int i = 0; i < static_cast<int>(curve.dataSize()); ++i)
        points.append(curve.sample(i));
    return points;
}

QPointF ends_of(const QwtPlot& plot, int axis)
{
    return {plot.axisInterval(axis).minValue(), plot.axisInterval(axis).maxValue()};
}

QPoint pixel_of(const QwtPlot& plot, double x, double y)
{
    return {qRound(plot.transform(x_axis, x)), qRound(plot.transform(y_axis, y))};
}

/// Puts every text between angle brackets.
class bracket_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return '<' + QString::fromUtf8(text) + '>';
    }
};

// Player 1: 1000, 1010, 1000, 995. Player 3: 1000, 970, 1010, 1010.
const QList<coup> three_coups = {{{10, 0, 30, 0}, {20, 0, 0, 0}},
                                 {{10, 0, 20, 0}, {0, 0, 60, 0}},
                                 {{10, 0, 0, 0}, {5, 0, 0, 0}}};

} // namespace

void tst_chart_statistic_player::before_the_first_coup_the_first_player_holds_the_start_credit()
{
    player_desk desk;
    QCOMPARE(desk.window->windowTitle(), QString("Spielerstatistik"));
    QCOMPARE(desk.titles(), QStringList{"Spieler 1"});
    QCOMPARE(points_of(desk.curve(0)), (QVector<QPointF>{{0, 1000}}));
    QVERIFY(desk.box("CB_player_1").isChecked());
    QVERIFY(!desk.box("CB_player_2").isChecked());
    QCOMPARE(ends_of(desk.plot(), x_axis), QPointF(0, 10));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(900, 1100)); // four digits: a margin of 100
    QCOMPARE(desk.column(1), (QStringList{"1000", "0", "0", "0", "0", "0", "1000"}));
}

void tst_chart_statistic_player::those_who_have_bet_are_shown()
{
    player_desk desk(three_coups);
    QVERIFY(desk.box("CB_player_1").isChecked());
    QVERIFY(!desk.box("CB_player_2").isChecked());
    QVERIFY(desk.box("CB_player_3").isChecked());
    QVERIFY(!desk.box("CB_player_4").isChecked());
    QCOMPARE(desk.titles(), (QStringList{"Spieler 1", "Spieler 3"}));
}

void tst_chart_statistic_player::credits_are_drawn_from_the_start()
{
    player_desk desk(three_coups);
    QVERIFY(child_of<QRadioButton>(*desk.window, "RB_credit_data_line")->isChecked());
    QCOMPARE(points_of(desk.curve(0)),
             (QVector<QPointF>{{0, 1000}, {1, 1010}, {2, 1000}, {3, 995}}));
    QCOMPARE(points_of(desk.curve(1)),
             (QVector<QPointF>{{0, 1000}, {1, 970}, {2, 1010}, {3, 1010}}));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(870, 1110));
    QVERIFY(!desk.plot().axisEnabled(right_axis));
    QVERIFY(dynamic_cast<const ChartStatisticNoYColor*>(desk.plot().axisScaleDraw(y_axis)));
    QCOMPARE(desk.plot().axisTitle(x_axis).text(), QString("Coups"));
    QCOMPARE(desk.plot().axisTitle(y_axis).text(), QString("Guthaben"));
}

void tst_chart_statistic_player::each_player_has_a_colour()
{
    player_desk desk({{{1, 1, 1, 1}, {0, 0, 0, 0}}});
    const QList<QColor> colours = {Qt::red, Qt::blue, Qt::darkGreen, Qt::black};
    QCOMPARE(desk.plot().curves().size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(desk.curve(i).pen().color(), colours[i]);
        QCOMPARE(desk.curve(i).pen().style(), Qt::SolidLine);
    }
}

void tst_chart_statistic_player::returns_and_stakes_are_told_apart()
{
    player_desk desk(three_coups);
    desk.show_stakes();
    QCOMPARE(
        desk.titles(),
        (QStringList{
            "Spieler 1, Gewinn", "Spieler 1, Gesetzt", "Spieler 3, Gewinn", "Spieler 3, Gesetzt"}));
    QCOMPARE(points_of(desk.curve(0)), (QVector<QPointF>{{0, 0}, {1, 20}, {2, 0}, {3, 5}}));
    QCOMPARE(points_of(desk.curve(1)), (QVector<QPointF>{{0, 0}, {1, 10}, {2, 10}, {3, 10}}));
    QCOMPARE(points_of(desk.curve(2)), (QVector<QPointF>{{0, 0}, {1, 0}, {2, 60}, {3, 0}}));
    QCOMPARE(points_of(desk.curve(3)), (QVector<QPointF>{{0, 0}, {1, 30}, {2, 20}, {3, 0}}));
    for (int i = 0; i < 4; ++i) {
        const bool is_stake = i % 2 == 1;
        QCOMPARE(desk.curve(i).pen().style(), is_stake ? Qt::DashLine : Qt::SolidLine);
        QCOMPARE(desk.curve(i).yAxis(), is_stake ? right_axis : y_axis);
        QCOMPARE(desk.curve(i).pen().color(), QColor(i < 2 ? Qt::red : Qt::darkGreen));
    }
    QVERIFY(desk.plot().axisEnabled(right_axis));
    QVERIFY(dynamic_cast<const ChartStatisticRedYColor*>(desk.plot().axisScaleDraw(y_axis)));
    QVERIFY(dynamic_cast<const ChartStatisticBlueYColor*>(desk.plot().axisScaleDraw(right_axis)));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(0, 70));
    QCOMPARE(ends_of(desk.plot(), right_axis), QPointF(0, 70));

    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // entries of the last view
    QStringList entries;
    const auto labels = desk.plot().legend()->findChildren<QwtLegendLabel*>();
    for (const QwtLegendLabel* label : labels)
        entries.append(label->text().text());
    QCOMPARE(entries, desk.titles());

    desk.show_credits();
    QCOMPARE(desk.titles(), (QStringList{"Spieler 1", "Spieler 3"}));
    QVERIFY(!desk.plot().axisEnabled(right_axis));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(870, 1110));
}

void tst_chart_statistic_player::the_axis_leaves_a_margin_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<QList<qint64>>("course");
    QTest::addColumn<QPointF>("ends");
    // clang-format off
    QTest::newRow("nothing")            << qint64{0}    << QList<qint64>{}            << QPointF(0, 10);
    QTest::newRow("three digits")       << qint64{100}  << QList<qint64>{110, 90}     << QPointF(80, 120);
    QTest::newRow("not below 0")        << qint64{5}    << QList<qint64>{0, 7}        << QPointF(0, 17);
    QTest::newRow("four digits")        << qint64{1000} << QList<qint64>{50}          << QPointF(0, 1100);
    QTest::newRow("five digits")        << qint64{9000} << QList<qint64>{12000}       << QPointF(8000, 13000);
    QTest::newRow("debt")               << qint64{20}   << QList<qint64>{-5}          << QPointF(-15, 30);
    QTest::newRow("large debt")         << qint64{20}   << QList<qint64>{-5000}       << QPointF(-5100, 120);
    QTest::newRow("beyond int")         << qint64{0}    << QList<qint64>{30000000000} << QPointF(0, 31000000000);
    // clang-format on
}

void tst_chart_statistic_player::the_axis_leaves_a_margin()
{
    QFETCH(qint64, start);
    QFETCH(QList<qint64>, course);
    chart_statistic_player_widget plot;
    plot.show_curves(curve_view::credit, {{"Spieler 1", Qt::red, start, course, false}});
    QTEST(ends_of(plot, y_axis), "ends");
}

void tst_chart_statistic_player::boxes_show_and_hide_their_players()
{
    player_desk desk(three_coups);
    desk.box("CB_player_2").click();
    QCOMPARE(desk.titles(), (QStringList{"Spieler 1", "Spieler 2", "Spieler 3"}));
    desk.box("CB_player_1").click();
    desk.box("CB_player_4").click();
    QCOMPARE(desk.titles(), (QStringList{"Spieler 2", "Spieler 3", "Spieler 4"}));
    desk.box("CB_player_3").click();
    QCOMPARE(desk.titles(), (QStringList{"Spieler 2", "Spieler 4"}));
    QCOMPARE(desk.plot().itemList(QwtPlotItem::Rtti_PlotCurve).size(), 2);
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(900, 1100)); // both have always held 1000
}

void tst_chart_statistic_player::without_players_the_axes_stay_at_0_to_10()
{
    player_desk desk;
    desk.box("CB_player_1").click();
    QVERIFY(desk.plot().curves().isEmpty());
    QCOMPARE(ends_of(desk.plot(), x_axis), QPointF(0, 10));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(0, 10));
    QCOMPARE(desk.plot().read_off({3, 3}), QString());
    QMetaObject::invokeMethod(&desk.plot(), "onSelcted", Q_ARG(QPointF, QPointF(3, 3)));
    QCOMPARE(desk.plot().picked_text(), QString());
}

void tst_chart_statistic_player::the_table_shows_the_figures_of_a_player()
{
    player_desk desk(three_coups);
    QCOMPARE(desk.column(0),
             (QStringList{"Startkapital",
                          "Coups",
                          "Gewinncoups",
                          "Verlustcoups",
                          "Gesetzt",
                          "Gewinn",
                          "Guthaben"}));
    QCOMPARE(desk.column(1), (QStringList{"1000", "3", "1", "2", "10", "5", "995"}));
    auto& choice = *child_of<QComboBox>(*desk.window, "COB_player_tbl_sel");
    QCOMPARE(choice.count(), 4);
    choice.setCurrentIndex(2); // the coup without a bet is neither won nor lost
    QCOMPARE(desk.column(1), (QStringList{"1000", "3", "1", "1", "0", "0", "1010"}));
    choice.setCurrentIndex(1);
    QCOMPARE(desk.column(1), (QStringList{"1000", "3", "0", "0", "0", "0", "1000"}));

    const auto& table = *child_of<QTableWidget>(*desk.window, "TW_player_stat");
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 2; ++column) {
            const QTableWidgetItem& cell = *table.item(row, column);
            QCOMPARE(cell.textAlignment(), int(Qt::AlignCenter));
            QVERIFY(!(cell.flags() & Qt::ItemIsEditable));
            QCOMPARE(cell.font().weight(), column == 0 ? 75 : 50);
            QCOMPARE(cell.background().color(),
                     column == 0 ? QColor(227, 247, 255) : QColor(Qt::white));
            QCOMPARE(cell.foreground().color(), QColor(Qt::black));
        }
    }
}

void tst_chart_statistic_player::the_last_credit_may_be_a_debt()
{
    player_desk desk({{{1200, 0, 0, 0}, {0, 0, 0, 0}}});
    QCOMPARE(desk.cell(6, 1), QString("-200"));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(-300, 1100));
}

void tst_chart_statistic_player::the_raster_follows_its_box()
{
    player_desk desk(three_coups);
    QCheckBox& box = desk.box("CB_display_Y_Grid");
    QCOMPARE(desk.plot().is_grid_shown(), box.isChecked());
    const bool was_shown = box.isChecked();
    box.click();
    QCOMPARE(desk.plot().is_grid_shown(), !was_shown);
    box.click();
    QCOMPARE(desk.plot().is_grid_shown(), was_shown);
}

void tst_chart_statistic_player::a_picked_coup_shows_its_values()
{
    player_desk desk(three_coups);
    QCOMPARE(desk.plot().picked_text(), QString());
    const auto pick = [&](double x) {
        QMetaObject::invokeMethod(&desk.plot(), "onSelcted", Q_ARG(QPointF, QPointF(x, 900)));
    };
    pick(1.4);
    QCOMPARE(desk.plot().picked_text(), QString("Coup 1\nSpieler 1: 1010\nSpieler 3: 970"));
    pick(99); // the last coup there is
    QCOMPARE(desk.plot().picked_text(), QString("Coup 3\nSpieler 1: 995\nSpieler 3: 1010"));
    desk.show_stakes();
    QCOMPARE(desk.plot().picked_text(), QString());
    QCOMPARE(desk.plot().read_off({1.6, 3}),
             QString("Coup 2\nSpieler 1, Gewinn: 0\nSpieler 1, Gesetzt: 10\n"
                     "Spieler 3, Gewinn: 60\nSpieler 3, Gesetzt: 20"));
}

void tst_chart_statistic_player::a_click_picks_and_a_drag_zooms()
{
    player_desk desk(three_coups);
    desk.window->show();
    QWidget& canvas = *desk.plot().canvas();
    const QPoint at = pixel_of(desk.plot(), 2, 1000);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, at);
    QVERIFY(desk.plot().picked_text().startsWith("Coup 2\n"));
    QCOMPARE(ends_of(desk.plot(), x_axis), QPointF(0, 10));

    const QPoint to = pixel_of(desk.plot(), 5, 900);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, at);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &move);
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, to);
    QVERIFY(desk.plot().picked_text().startsWith("Coup 2\n")); // no other coup was picked
    QVERIFY(qAbs(ends_of(desk.plot(), x_axis).x() - 2) < 0.1);
    QVERIFY(qAbs(ends_of(desk.plot(), x_axis).y() - 5) < 0.1);
    QTest::mouseClick(&canvas, Qt::RightButton, {}, at);
    QCOMPARE(ends_of(desk.plot(), x_axis), QPointF(0, 10));
}

void tst_chart_statistic_player::both_axes_are_zoomed_alike()
{
    player_desk desk(three_coups);
    desk.show_stakes();
    auto& zoomer = *child_of<chart_zoomer>(*desk.window, "zoomer");
    QCOMPARE(zoomer.zoomBase(), QRectF(0, 0, 10, 70));
    zoomer.zoom(QRectF(1, 10, 2, 30));
    QCOMPARE(ends_of(desk.plot(), y_axis), QPointF(10, 40));
    QCOMPARE(ends_of(desk.plot(), right_axis), QPointF(10, 40));
    zoomer.zoom(-1);
    QCOMPARE(ends_of(desk.plot(), right_axis), QPointF(0, 70));
    zoomer.zoom(QRectF(1, 10, 2, 30));
    desk.box("CB_player_1").click(); // redrawn: the whole view again
    QCOMPARE(ends_of(desk.plot(), x_axis), QPointF(0, 10));
    QCOMPARE(zoomer.zoomRect(), zoomer.zoomBase());
}

void tst_chart_statistic_player::labels_stand_at_their_amounts()
{
    player_desk desk(three_coups);
    desk.window->show();
    for (int turn = 0; turn < 6; ++turn) {
        if (turn % 2 == 1) desk.show_stakes();
        if (turn % 2 == 0) desk.show_credits();
        desk.box(turn < 3 ? "CB_player_1" : "CB_player_2").click();
        QApplication::processEvents();
        const chart_statistic_player_widget& plot = desk.plot();
        for (const int axis : {y_axis, right_axis}) {
            if (!plot.axisEnabled(axis)) continue;
            const auto amounts = plot.axisScaleDiv(axis).ticks(QwtScaleDiv::MajorTick);
            QVERIFY(amounts.size() >= 3);
            for (const double amount : amounts) {
                const double in_canvas = plot.transform(axis, amount) + plot.canvas()->y();
                const double at_axis = plot.axisScaleDraw(axis)->labelPosition(amount).y() +
                                       plot.axisWidget(axis)->y();
                QVERIFY2(qAbs(in_canvas - at_axis) <= 1.5, qPrintable(QString::number(amount)));
            }
        }
    }
}

void tst_chart_statistic_player::coups_are_written_in_full()
{
    player_desk desk;
    QCOMPARE(desk.plot().axisScaleDraw(x_axis)->label(1000000).text(), QString("1000000"));
}

void tst_chart_statistic_player::it_can_be_refreshed()
{
    player_desk desk(three_coups);
    desk.play({{{0, 0, 0, 0}, {7, 0, 0, 0}}});
    QCOMPARE(points_of(desk.curve(0)).size(), 4); // as it was opened
    desk.window->refresh();
    QCOMPARE(points_of(desk.curve(0)).last(), QPointF(4, 1002));
    QCOMPARE(desk.cell(6, 1), QString("1002"));
}

void tst_chart_statistic_player::a_million_coups_are_thinned()
{
    QList<qint64> course;
    course.reserve(1000000);
    for (int i = 0; i < 1000000; ++i)
        course.append(i % 1000);
    chart_statistic_player_widget plot;
    plot.resize(900, 500);
    plot.show_curves(curve_view::credit, {{"Spieler 1", Qt::red, 0, course, false}});
    plot.show();
    QCOMPARE(ends_of(plot, x_axis), QPointF(0, 1000000));
    const QPolygonF line = thinned_course(
        plot.curves().first()->course(), plot.canvasMap(x_axis), plot.canvasMap(y_axis));
    QVERIFY(line.size() > plot.canvas()->width());
    QVERIFY(line.size() <= 4 * (plot.canvas()->width() + 2));
    // Every column of pixels spans more than a thousand coups: the curve fills all between 0
    // and 999.
    const QImage image = plot.canvas()->grab().toImage();
    for (const double coup : {1000.0, 300000.0, 999000.0}) {
        QCOMPARE(image.pixelColor(pixel_of(plot, coup, 500)), QColor(Qt::red));
    }
}

void tst_chart_statistic_player::it_is_black_on_light_on_a_dark_desktop()
{
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        dark.setColor(role, Qt::white);
    QApplication::setPalette(dark);
    player_desk desk(three_coups);
    desk.window->show();
    QApplication::processEvents();
    const auto labels = desk.plot().legend()->findChildren<QwtLegendLabel*>();
    QCOMPARE(labels.size(), 2);
    for (const QwtLegendLabel* label : labels)
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::black));
    QVERIFY(desk.plot().grab().toImage().pixelColor(2, 2).lightness() > 220);
    QApplication::setPalette(QPalette());
}

void tst_chart_statistic_player::texts_fit_at_every_scale_data()
{
    QTest::addColumn<double>("reduction");
    QTest::newRow("full size") << 0.0;
    QTest::newRow("0.1") << 0.1;
    QTest::newRow("0.2") << 0.2;
    QTest::newRow("0.3") << 0.3;
}

void tst_chart_statistic_player::texts_fit_at_every_scale()
{
    QFETCH(double, reduction);
    player_desk desk(three_coups, reduction);
    desk.window->show();
    const auto buttons = desk.window->findChildren<QAbstractButton*>();
    int compared = 0;
    for (const QAbstractButton* button : buttons) {
        if (button->text().isEmpty()) continue;
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        ++compared;
    }
    QVERIFY(compared >= 8);
    const auto& table = *child_of<QTableWidget>(*desk.window, "TW_player_stat");
    for (int column = 0; column < 2; ++column) {
        for (int row = 0; row < 7; ++row) {
            const QTableWidgetItem& cell = *table.item(row, column);
            const QRect place = table.visualItemRect(&cell);
            QVERIFY(QFontMetrics(cell.font()).horizontalAdvance(cell.text()) < place.width());
            QVERIFY(table.viewport()->rect().contains(place));
        }
    }
    const QString style = desk.box("CB_player_1").styleSheet();
    const int indicator = 15 - qRound(15 * reduction + 0.49); // 15, 13, 12, 10
    QCOMPARE(style, QString("QCheckBox::indicator { width:%1px; height:%1px;}").arg(indicator));
}

void tst_chart_statistic_player::the_table_can_be_copied()
{
    player_desk desk(three_coups);
    desk.window->findChild<page_export*>()->copy();
    QCOMPARE(QApplication::clipboard()->text(),
             QString("Coup\tSpieler 1\tSpieler 3\n0\t1000\t1000\n1\t1010\t970\n"
                     "2\t1000\t1010\n3\t995\t1010"));
}

void tst_chart_statistic_player::the_chart_can_be_printed()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("would use paper");
    player_desk desk(three_coups);
    desk.window->show();
    const QString path = QDir::currentPath() + "/curves.pdf";
    file_dialog::set_chooser([&path](const file_dialog::request&) { return path; });
    box_user user;
    user.answer(QMessageBox::Yes); // no printer: save the page instead
    auto& button = *child_of<QPushButton>(*desk.window, "PB_print");
    QCOMPARE(button.text(), QString("Drucken"));
    button.click();
    file_dialog::set_chooser({});
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.unexpected(), 0);
    QVERIFY(QFileInfo(path).size() > 5000);
}

void tst_chart_statistic_player::texts_follow_the_language()
{
    player_desk desk(three_coups);
    desk.show_stakes();
    bracket_translator translator;
    QApplication::installTranslator(&translator);
    QApplication::processEvents();
    QCOMPARE(desk.window->windowTitle(), QString("<Spielerstatistik>"));
    QCOMPARE(desk.titles().first(), QString("<Spieler 1>, <Gewinn>"));
    QCOMPARE(desk.cell(0, 0), QString("<Startkapital>"));
    QCOMPARE(desk.plot().axisTitle(x_axis).text(), QString("<Coups>"));
    QCOMPARE(desk.plot().axisTitle(y_axis).text(), QString("<Gewinn (durchgezogen)>"));
    QCOMPARE(desk.plot().axisTitle(right_axis).text(), QString("<Gesetzt (gestrichelt)>"));
    QCOMPARE(desk.plot().read_off({0, 0}).section('\n', 0, 0), QString("<Coup 0>"));
    QCOMPARE(child_of<QPushButton>(*desk.window, "PB_print")->text(), QString("<Drucken>"));
    QApplication::removeTranslator(&translator);
    QApplication::processEvents();
    QCOMPARE(desk.titles().first(), QString("Spieler 1, Gewinn"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_chart_statistic_player>(argc, argv);
}

#include "tst_chart_statistic_player.moc"
