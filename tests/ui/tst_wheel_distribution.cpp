#include "file_dialog.h"
#include "page_export.h"
#include "setting.h"
#include "statistic_bench.h"
#include "wheel_distribution.h"
#include "wheel_distribution_widget.h"
#include "window_bench.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPrinterInfo>
#include <QPushButton>
#include <QToolTip>
#include <QtMath>

#include <memory>

namespace
{

// The hits: 26 three times, all others once.
const QVector<int> french_coups = {26, 0, 26, 9, 17, 26, 10, 32};
// The hits: 00 twice, all others once.
const QVector<int> american_coups = {37, 2, 37, 18, 1, 17, 28, 0};

/// The window over a store of its own.
struct distribution_desk {
    explicit distribution_desk(const QVector<int>& coups, bool american = false)
    {
        settings.set_s_table_form(american ? 1 : 0);
        store.set_table_form(settings.form());
        throw_numbers(store, coups);
        window = std::make_unique<wheel_distribution>(store, 0.0, settings);
        window->show();
    }

    wheel_distribution_widget& chart() const
    {
        return *child_of<wheel_distribution_widget>(*window, "wheel_dist_widget");
    }
    QPushButton& start() const { return *child_of<QPushButton>(*window, "PB_wheel_dyn_start"); }
    QComboBox& delays() const { return *child_of<QComboBox>(*window, "CB_verzoegerung"); }
    QTimer* timer() const { return child_of<QTimer>(*window, "dyn_timer"); }
    QString field(const QString& name) const { return child_of<QLineEdit>(*window, name)->text(); }
    QString label(const QString& name) const { return child_of<QLabel>(*window, name)->text(); }
    QString total() const { return label("LB_total_value"); }
    QString remaining() const { return label("LB_remaining_value"); }

    /// Quadrants 1 to 4, zero, double zero.
    QString sums() const
    {
        QStringList texts;
        for (const char* name : {"LE_quadrant_1",
                                 "LE_quadrant_2",
                                 "LE_quadrant_3",
                                 "LE_quadrant_4",
                                 "LE_zero",
                                 "LE_double_zero"})
            texts.append(field(name));
        return texts.join(' ');
    }

    setting settings;
    statistic_data store;
    std::unique_ptr<wheel_distribution> window;
};

/// The colour in the picture of a chart of full size: pockets clockwise from zero at the top,
/// pixels from the centre.
QColor colour_in(const QImage& picture, double pocket, int pockets, double radius)
{
    const double angle = 2 * M_PI * pocket / pockets;
    const double middle = picture.width() / 2.0;
    return picture.pixelColor(qFloor(middle + radius * qSin(angle)),
                              qFloor(middle - radius * qCos(angle)));
}

QColor colour_at(wheel_distribution_widget& chart, double pocket, int pockets, double radius)
{
    return colour_in(chart.grab().toImage(), pocket, pockets, radius);
}

bool is_blue(wheel_distribution_widget& chart, double pocket, int pockets, double radius)
{
    return colour_at(chart, pocket, pockets, radius) == QColor(Qt::blue);
}

/// True if a segment ends between these two radii.
bool ends_between(
    wheel_distribution_widget& chart, int pocket, int pockets, double inside, double outside)
{
    // Near the centre there is more of the black outline than of the blue.
    return colour_at(chart, pocket, pockets, inside).lightness() < 140 &&
           colour_at(chart, pocket, pockets, outside).lightness() > 190;
}

bool has_blue(wheel_distribution_widget& chart)
{
    const QImage image = chart.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == QColor(Qt::blue)) return true;
    }
    return false;
}

} // namespace

class tst_wheel_distribution : public QObject
{
    Q_OBJECT

private slots:
    void the_fields_show_all_hits_data();
    void the_fields_show_all_hits();
    void texts_are_those_of_the_window();
    void tool_tips_list_the_quadrants_data();
    void tool_tips_list_the_quadrants();
    void the_double_zero_has_a_field_on_its_table_data();
    void the_double_zero_has_a_field_on_its_table();
    void hits_of_another_wheel_are_left_out();

    void all_segments_are_drawn_at_once();
    void the_double_zero_lies_opposite_zero();
    void a_segment_ends_at_its_share_data();
    void a_segment_ends_at_its_share();
    void a_segment_keeps_inside_its_pocket();
    void the_numbers_stand_round_the_edge_data();
    void the_numbers_stand_round_the_edge();
    void the_mouse_reads_a_pocket();

    void the_animation_draws_hit_by_hit();
    void the_american_wheel_is_drawn_in_its_order();
    void the_segment_grows_with_its_hits();
    void each_delay_is_the_pace_data();
    void each_delay_is_the_pace();
    void stop_keeps_the_picture();
    void a_new_start_begins_anew();
    void no_coups_end_at_once();
    void without_a_highest_value_it_is_ten();
    void start_reads_the_store_anew();
    void a_reset_store_does_not_reach_a_running_animation();
    void another_table_does_not_reach_an_open_window();
    void closing_ends_the_animation();
    void it_may_die_in_the_middle();
    void the_sums_go_by_the_list_that_is_named();

    void figures_can_be_copied();
    void the_picture_is_printed();
    void the_language_changes_live();
    void everything_fits_at_each_scale_data();
    void everything_fits_at_each_scale();
};

void tst_wheel_distribution::the_fields_show_all_hits_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<QVector<int>>("coups");
    QTest::addColumn<QString>("sums");
    QTest::addColumn<QString>("total");
    QTest::newRow("french") << false << french_coups << "3 1 1 2 1 0"
                            << "8";
    QTest::newRow("american") << true << american_coups << "1 1 1 2 1 2"
                              << "8";
    QTest::newRow("nothing") << false << QVector<int>() << "0 0 0 0 0 0"
                             << "0";
    // 22 and 9 are neighbours in the quadrants 1 and 2, 5 and 10 in 2 and 3, 6 and 34 in 3 and 4.
    QTest::newRow("french edges") << false << QVector<int>{26, 22, 9, 5, 10, 6, 34, 32}
                                  << "2 2 2 2 0 0"
                                  << "8";
    QTest::newRow("american edges")
        << true << QVector<int>{2, 6, 18, 27, 1, 5, 17, 28} << "2 2 2 2 0 0"
        << "8";
}

void tst_wheel_distribution::the_fields_show_all_hits()
{
    QFETCH(bool, american);
    QFETCH(QVector<int>, coups);
    QFETCH(QString, sums);
    QFETCH(QString, total);
    const distribution_desk desk(coups, american);
    QCOMPARE(desk.sums(), sums);
    QCOMPARE(desk.total(), total);
    QCOMPARE(desk.remaining(), QString("0"));
    QVERIFY(!desk.timer()->isActive());
}

void tst_wheel_distribution::texts_are_those_of_the_window()
{
    const distribution_desk desk(french_coups);
    QCOMPARE(desk.window->windowTitle(), QString("Kesselverteilung"));
    for (int quadrant = 1; quadrant <= 4; ++quadrant) {
        QCOMPARE(desk.label(QString("LB_quadrant_%1").arg(quadrant)),
                 QString("Quadrant %1").arg(quadrant));
    }
    QCOMPARE(desk.label("LB_double_zero"), QString("00 ="));
    QCOMPARE(desk.label("LB_total"), QString("Gesamt:"));
    QCOMPARE(desk.label("LB_remaining"), QString("Verbleibend: "));
    QCOMPARE(desk.label("LB_delay"), QString("Verzögerung"));
    QCOMPARE(desk.start().text(), QString("Start"));
    QVERIFY(desk.start().isCheckable());
    QCOMPARE(child_of<QPushButton>(*desk.window, "PB_print")->text(), QString("Drucken"));
    QVERIFY(child_of<QWidget>(*desk.window, "GB_left")->isAncestorOf(&desk.chart()));
    auto* const right = child_of<QWidget>(*desk.window, "GB_right");
    QVERIFY(right->isAncestorOf(child_of<QWidget>(*desk.window, "GB_Quadrant")));
    QVERIFY(child_of<QWidget>(*desk.window, "buttonBox")->isVisible());
}

void tst_wheel_distribution::tool_tips_list_the_quadrants_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<int>("quadrant");
    QTest::addColumn<QString>("list");
    QTest::newRow("french 1") << false << 1 << "26,3,35,12,28,7,29,18,22";
    QTest::newRow("french 2") << false << 2 << "9,31,14,20,1,33,16,24,5";
    QTest::newRow("french 3") << false << 3 << "10,23,8,30,11,36,13,27,6";
    QTest::newRow("french 4") << false << 4 << "34,17,25,2,21,4,19,15,32";
    QTest::newRow("american 1") << true << 1 << "2,14,35,23,4,16,33,21,6";
    QTest::newRow("american 2") << true << 2 << "18,31,19,8,12,29,25,10,27";
    QTest::newRow("american 3") << true << 3 << "1,13,36,24,3,15,34,22,5";
    QTest::newRow("american 4") << true << 4 << "17,32,20,7,11,30,26,9,28";
}

/// The list of the tool tip, and a hit of each of its numbers is summed there.
void tst_wheel_distribution::tool_tips_list_the_quadrants()
{
    QFETCH(bool, american);
    QFETCH(int, quadrant);
    QFETCH(QString, list);
    QVector<int> coups;
    const QStringList numbers = list.split(',');
    for (const QString& number : numbers)
        coups.append(number.toInt());
    const distribution_desk desk(coups, american);
    const QString field = QString("LE_quadrant_%1").arg(quadrant);
    QCOMPARE(child_of<QLineEdit>(*desk.window, field)->toolTip(), list);
    QCOMPARE(desk.field(field), QString("9"));
    QCOMPARE(desk.total(), QString("9"));
}

void tst_wheel_distribution::the_double_zero_has_a_field_on_its_table_data()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("french") << false;
    QTest::newRow("american") << true;
}

void tst_wheel_distribution::the_double_zero_has_a_field_on_its_table()
{
    QFETCH(bool, american);
    const distribution_desk desk({}, american);
    QCOMPARE(child_of<QLabel>(*desk.window, "LB_double_zero")->isVisible(), american);
    QCOMPARE(child_of<QLineEdit>(*desk.window, "LE_double_zero")->isVisible(), american);
    QVERIFY(child_of<QLineEdit>(*desk.window, "LE_zero")->isVisible());
}

void tst_wheel_distribution::hits_of_another_wheel_are_left_out()
{
    const distribution_desk desk({37, 26, 37, 37}); // the first coups fell on an American table
    QCOMPARE(desk.sums(), QString("1 0 0 0 0 0"));
    QCOMPARE(desk.total(), QString("1"));
    QVERIFY(ends_between(desk.chart(), 36, 37, 195, 202)); // 26 has the most
    desk.start().click();
    QCOMPARE(desk.remaining(), QString("1"));
}

// The picture

void tst_wheel_distribution::all_segments_are_drawn_at_once()
{
    const distribution_desk desk(french_coups);
    // Three hits are the most: 200 / 3 = 66.7 pixels for each.
    const QVector<int> single = {0, 1, 8, 18, 27}; // 0, 32, 17, 10, 9
    for (int pocket = 0; pocket < 36; ++pocket) {
        const bool is_hit = single.contains(pocket);
        QCOMPARE(is_blue(desk.chart(), pocket, 37, 62), is_hit);
        QVERIFY(!is_blue(desk.chart(), pocket, 37, 72));
    }
    QVERIFY(ends_between(desk.chart(), 36, 37, 195, 202));
}

void tst_wheel_distribution::the_double_zero_lies_opposite_zero()
{
    const distribution_desk desk(american_coups, true);
    QVERIFY(ends_between(desk.chart(), 19, 38, 195, 202)); // two hits
    QVERIFY(ends_between(desk.chart(), 0, 38, 95, 106));
    QVERIFY(ends_between(desk.chart(), 37, 38, 95, 106)); // 2, left of zero
    QVERIFY(!is_blue(desk.chart(), 20, 38, 50));
}

void tst_wheel_distribution::a_segment_ends_at_its_share_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("radius");
    QTest::newRow("all") << 7 << 7 << 200;
    QTest::newRow("half") << 2 << 4 << 100;
    QTest::newRow("2/3, rounded up") << 1 << 3 << 67;
    QTest::newRow("less than a pixel a hit") << 250 << 500 << 100;
    QTest::newRow("a million") << 250000 << 1000000 << 50;
    QTest::newRow("nothing has hits: ten is the most") << 1 << 0 << 20;
}

void tst_wheel_distribution::a_segment_ends_at_its_share()
{
    QFETCH(int, count);
    QFETCH(int, highest);
    QFETCH(int, radius);
    wheel_distribution_widget chart;
    chart.show_hits({count}, highest);
    QVERIFY(ends_between(chart, 0, 37, radius - 3, radius + 3));
}

void tst_wheel_distribution::a_segment_keeps_inside_its_pocket()
{
    wheel_distribution_widget chart;
    QList<int> hits;
    for (int pocket = 0; pocket < 38; ++pocket)
        hits.append(pocket == 9 ? 1 : 0);
    chart.show_hits(hits, 1);
    for (const double side : {-0.4, 0.0, 0.4})
        QVERIFY(is_blue(chart, 9 + side, 37, 180));
    for (const double side : {-0.6, 0.6, 18.0})
        QVERIFY(!is_blue(chart, 9 + side, 37, 180));
}

void tst_wheel_distribution::the_numbers_stand_round_the_edge_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<QString>("colours"); // g, r, b of the pockets, clockwise
    QTest::newRow("french") << false << "g" + QString("rb").repeated(18);
    // Beside each zero of the American wheel black faces black and red faces red.
    QTest::newRow("american") << true
                              << "g" + QString("br").repeated(9) + "g" + QString("rb").repeated(9);
}

void tst_wheel_distribution::the_numbers_stand_round_the_edge()
{
    QFETCH(bool, american);
    QFETCH(QString, colours);
    const distribution_desk desk({}, american);
    const QImage picture = desk.chart().grab().toImage();
    QString seen;
    for (int pocket = 0; pocket < colours.size(); ++pocket) {
        const QColor colour = colour_in(picture, pocket, colours.size(), 209);
        QChar sign = colour.lightness() < 60 ? 'b' : '?';
        if (colour.red() > 2 * std::max(colour.green(), colour.blue())) sign = 'r';
        if (colour.green() > 1.5 * std::max(colour.red(), colour.blue())) sign = 'g';
        seen += sign;
        int bright = 0; // pixels of the digits across the pocket
        for (double side = -0.4; side <= 0.4; side += 0.02) {
            const QColor digit = colour_in(picture, pocket + side, colours.size(), 221);
            if (digit.lightness() > 180) ++bright;
        }
        QVERIFY2(bright > 0, qPrintable(QString::number(pocket)));
    }
    QCOMPARE(seen, colours);
}

void tst_wheel_distribution::the_mouse_reads_a_pocket()
{
    const distribution_desk desk(french_coups);
    const auto read = [&desk](int x, int y) {
        QHelpEvent help(QEvent::ToolTip, {x, y}, desk.chart().mapToGlobal({x, y}));
        QCoreApplication::sendEvent(&desk.chart(), &help);
        return QToolTip::text();
    };
    QCOMPARE(read(242, 242 - 150), QString("Zahl 0: 1 Treffer"));
    QCOMPARE(read(242 - 25, 242 - 148), QString("Zahl 26: 3 Treffer")); // 9.6 degrees to the left
    QCOMPARE(read(242 + 25, 242 - 148), QString("Zahl 32: 1 Treffer"));
    QToolTip::hideText();
    QCOMPARE(desk.chart().size(), QSize(484, 484));
}

// The animation

void tst_wheel_distribution::the_animation_draws_hit_by_hit()
{
    const distribution_desk desk(french_coups);
    QSignalSpy finished(&desk.chart(), &wheel_distribution_widget::dyn_draw_finished);
    desk.start().click();
    QCOMPARE(desk.start().text(), QString("Stop"));
    QVERIFY(!desk.delays().isEnabled());
    QCOMPARE(desk.sums(), QString("0 0 0 0 0 0"));
    QCOMPARE(desk.total(), QString("8"));
    QCOMPARE(desk.remaining(), QString("8"));
    QVERIFY(!has_blue(desk.chart()));

    // Rounds over the wheel are 0 32 17 10 9 26, 26, 26; the end comes first.
    const QStringList sums = {"1 0 0 0 0 0",
                              "2 0 0 0 0 0",
                              "3 0 0 0 0 0",
                              "3 1 0 0 0 0",
                              "3 1 1 0 0 0",
                              "3 1 1 1 0 0",
                              "3 1 1 2 0 0",
                              "3 1 1 2 1 0"};
    const QVector<int> pockets = {36, 36, 36, 27, 18, 8, 1, 0};
    for (int tick = 0; tick < sums.size(); ++tick) {
        const bool is_first = pockets.indexOf(pockets.at(tick)) == tick;
        if (is_first) QVERIFY(!is_blue(desk.chart(), pockets.at(tick), 37, 55));
        QVERIFY(fire(desk.timer()));
        QCOMPARE(desk.sums(), sums.at(tick));
        QCOMPARE(desk.remaining(), QString::number(7 - tick));
        QVERIFY(is_blue(desk.chart(), pockets.at(tick), 37, 55));
    }
    QCOMPARE(finished.size(), 0);
    QVERIFY(desk.start().isChecked());
    QVERIFY(fire(desk.timer()));
    QCOMPARE(finished.size(), 1);
    QVERIFY(!desk.timer()->isActive());
    QVERIFY(!desk.start().isChecked());
    QCOMPARE(desk.start().text(), QString("Start"));
    QVERIFY(desk.delays().isEnabled());
    QCOMPARE(desk.sums(), QString("3 1 1 2 1 0"));
    const distribution_desk at_once(french_coups);
    QCOMPARE(desk.chart().grab().toImage(), at_once.chart().grab().toImage());
}

void tst_wheel_distribution::the_american_wheel_is_drawn_in_its_order()
{
    const distribution_desk desk(american_coups, true);
    QVector<int> drawn;
    QVector<int> types;
    connect(&desk.chart(),
            &wheel_distribution_widget::count_number_to_quadrant,
            this,
            [&](wheel_distribution::setting_wheel_list_type type, QList<int>* hits, int number) {
                types.append(type);
                drawn.append(number);
                int sum = 0;
                for (const int count : qAsConst(*hits))
                    sum += count;
                QCOMPARE(sum, drawn.size());
            });
    desk.start().click();
    while (fire(desk.timer())) {
    }
    // Rounds over the wheel are 0 28 17 1 00 18 2, 00.
    QCOMPARE(drawn, QVector<int>({37, 2, 18, 37, 1, 17, 28, 0}));
    QCOMPARE(types, QVector<int>(8, wheel_distribution::AMERICAN_WHEEL_LIST));
    QCOMPARE(desk.sums(), QString("1 1 1 2 1 2"));
    QCOMPARE(desk.remaining(), QString("0"));
}

void tst_wheel_distribution::the_segment_grows_with_its_hits()
{
    const distribution_desk desk({7, 7, 7});
    const QVector<int> radii = {67, 133, 200};
    desk.start().click();
    for (const int radius : radii) {
        fire(desk.timer());
        QVERIFY(ends_between(desk.chart(), 31, 37, radius - 4, radius + 3)); // 7
    }
}

void tst_wheel_distribution::each_delay_is_the_pace_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("delay");
    const QVector<int> delays = {100, 250, 500, 1000, 2000, 5000};
    for (int entry = 0; entry < delays.size(); ++entry)
        QTest::addRow("%d ms", delays.at(entry)) << entry << delays.at(entry);
}

void tst_wheel_distribution::each_delay_is_the_pace()
{
    QFETCH(int, entry);
    QFETCH(int, delay);
    const distribution_desk desk(french_coups);
    QCOMPARE(desk.delays().count(), 6);
    QCOMPARE(desk.delays().currentText(), QString("1000"));
    QCOMPARE(desk.delays().itemText(entry), QString::number(delay));
    desk.start().click();
    QCOMPARE(desk.timer()->interval(), 1000);
    desk.start().click();
    desk.delays().setCurrentIndex(entry);
    desk.start().click();
    QCOMPARE(desk.timer()->interval(), delay);
    QVERIFY(!desk.timer()->isSingleShot());
}

void tst_wheel_distribution::stop_keeps_the_picture()
{
    const distribution_desk desk(french_coups);
    desk.start().click();
    for (int tick = 0; tick < 5; ++tick)
        fire(desk.timer());
    const QImage picture = desk.chart().grab().toImage();
    desk.start().click();
    QCOMPARE(desk.start().text(), QString("Start"));
    QVERIFY(desk.delays().isEnabled());
    QSignalSpy finished(&desk.chart(), &wheel_distribution_widget::dyn_draw_finished);
    QVERIFY(fire(desk.timer()));
    QCOMPARE(finished.size(), 1);
    QVERIFY(!desk.timer()->isActive());
    QVERIFY(!desk.start().isChecked());
    QVERIFY(is_blue(desk.chart(), 18, 37, 55));
    QVERIFY(!is_blue(desk.chart(), 0, 37, 55));
    QCOMPARE(desk.chart().grab().toImage(), picture);
    QCOMPARE(desk.sums(), QString("3 1 1 0 0 0"));
    QCOMPARE(desk.remaining(), QString("3"));
}

void tst_wheel_distribution::a_new_start_begins_anew()
{
    const distribution_desk desk(french_coups);
    desk.start().click();
    for (int tick = 0; tick < 6; ++tick)
        fire(desk.timer());
    desk.start().click(); // stop, and on again before the next hit is due
    desk.start().click();
    QVERIFY(!has_blue(desk.chart()));
    QCOMPARE(desk.remaining(), QString("8"));
    QVERIFY(fire(desk.timer()));
    QCOMPARE(desk.sums(), QString("1 0 0 0 0 0"));
    QVERIFY(desk.timer()->isActive());
}

void tst_wheel_distribution::no_coups_end_at_once()
{
    const distribution_desk desk({});
    QVERIFY(!has_blue(desk.chart()));
    desk.start().click();
    QCOMPARE(desk.remaining(), QString("0"));
    QVERIFY(desk.start().isChecked());
    QVERIFY(fire(desk.timer()));
    QVERIFY(!desk.start().isChecked());
    QVERIFY(!desk.timer()->isActive());
    QVERIFY(!has_blue(desk.chart()));
    QCOMPARE(desk.sums(), QString("0 0 0 0 0 0"));
}

void tst_wheel_distribution::without_a_highest_value_it_is_ten()
{
    wheel_distribution_widget chart;
    chart.start_dyn_wheel_distribution({5, 5}, 0);
    QVERIFY(fire(child_of<QTimer>(chart, "dyn_timer")));
    QVERIFY(ends_between(chart, 5, 37, 17, 23));
    QVERIFY(fire(child_of<QTimer>(chart, "dyn_timer")));
    QVERIFY(ends_between(chart, 5, 37, 37, 43));
}

void tst_wheel_distribution::start_reads_the_store_anew()
{
    distribution_desk desk(french_coups);
    throw_numbers(desk.store, {10, 0});
    QCOMPARE(desk.sums(), QString("3 1 1 2 1 0"));
    QCOMPARE(desk.total(), QString("8"));
    desk.start().click();
    QCOMPARE(desk.total(), QString("10"));
    while (fire(desk.timer())) {
    }
    QCOMPARE(desk.sums(), QString("3 1 2 2 2 0"));
}

void tst_wheel_distribution::a_reset_store_does_not_reach_a_running_animation()
{
    distribution_desk desk(french_coups);
    desk.start().click();
    for (int tick = 0; tick < 3; ++tick)
        fire(desk.timer());
    desk.store.resetStatisticStorage();
    while (fire(desk.timer())) {
    }
    QCOMPARE(desk.sums(), QString("3 1 1 2 1 0"));
    QCOMPARE(desk.total(), QString("8"));
    desk.start().click();
    QCOMPARE(desk.total(), QString("0"));
    QVERIFY(!has_blue(desk.chart()));
}

void tst_wheel_distribution::another_table_does_not_reach_an_open_window()
{
    distribution_desk desk(french_coups);
    desk.start().click();
    fire(desk.timer());
    desk.settings.set_s_table_form(1);
    desk.store.set_table_form(table_form::american);
    throw_numbers(desk.store, {37});
    while (fire(desk.timer())) {
    }
    QCOMPARE(desk.sums(), QString("3 1 1 2 1 0"));
    desk.start().click();
    QCOMPARE(desk.total(), QString("8"));
    while (fire(desk.timer())) {
    }
    QCOMPARE(desk.sums(), QString("3 1 1 2 1 0"));
    QVERIFY(!child_of<QLineEdit>(*desk.window, "LE_double_zero")->isVisible());
    const wheel_distribution next(desk.store, 0.0, desk.settings);
    QVERIFY(!child_of<QLineEdit>(next, "LE_double_zero")->isHidden());
}

void tst_wheel_distribution::closing_ends_the_animation()
{
    const distribution_desk desk(french_coups);
    desk.start().click();
    fire(desk.timer());
    desk.window->close();
    QVERIFY(!desk.start().isChecked());
    fire(desk.timer());
    QVERIFY(!desk.timer()->isActive());
    QCOMPARE(desk.sums(), QString("1 0 0 0 0 0"));
}

void tst_wheel_distribution::it_may_die_in_the_middle()
{
    statistic_data store;
    throw_numbers(store, french_coups);
    const setting settings;
    QPointer<wheel_distribution> window = new wheel_distribution(store, 0.0, settings);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    child_of<QPushButton>(*window, "PB_wheel_dyn_start")->click();
    fire(child_of<QTimer>(*window, "dyn_timer"));
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
}

/// Position 19 is the 5 of the French wheel and the 00 of the American one.
void tst_wheel_distribution::the_sums_go_by_the_list_that_is_named()
{
    using list_type = wheel_distribution::setting_wheel_list_type;
    const distribution_desk desk({}, true);
    QList<int> hits;
    for (int position = 0; position < 38; ++position)
        hits.append(position == 19 ? 4 : 0);
    QList<int>* const list = &hits;
    const auto sum = [&](const list_type type) {
        const QArgument<list_type> type_argument("setting_wheel_list_type", type);
        const QArgument<QList<int>*> list_argument("QList<int>*", list);
        return QMetaObject::invokeMethod(
            desk.window.get(), "calculate_quadranten", type_argument, list_argument);
    };
    QVERIFY(sum(wheel_distribution::FRENCH_WHEEL_LIST));
    QCOMPARE(desk.sums(), QString("0 4 0 0 0 0"));
    QVERIFY(sum(wheel_distribution::AMERICAN_WHEEL_LIST));
    QCOMPARE(desk.sums(), QString("0 0 0 0 0 4"));
    const list_type french = wheel_distribution::FRENCH_WHEEL_LIST;
    const QArgument<list_type> type("setting_wheel_list_type", french);
    const QArgument<QList<int>*> list_argument("QList<int>*", list);
    QVERIFY(QMetaObject::invokeMethod(
        desk.window.get(), "calculate_quadranten", type, list_argument, Q_ARG(int, 26)));
    QCOMPARE(desk.sums(), QString("1 0 0 0 0 4"));
    QVERIFY(QMetaObject::invokeMethod(desk.window.get(), "calculate_quadranten", type));
    QCOMPARE(desk.sums(), QString("0 0 0 0 0 0"));
}

// The window

void tst_wheel_distribution::figures_can_be_copied()
{
    const distribution_desk desk(french_coups);
    desk.window->findChild<page_export*>()->copy();
    const QStringList rows = QApplication::clipboard()->text().split('\n');
    QCOMPARE(rows.size(), 1 + 37 + 4);
    QCOMPARE(rows.mid(0, 4), QStringList({"Zahl\tTreffer", "0\t1", "32\t1", "15\t0"}));
    QCOMPARE(rows.at(37), QString("26\t3"));
    QCOMPARE(rows.mid(38),
             QStringList({"Quadrant 1\t3", "Quadrant 2\t1", "Quadrant 3\t1", "Quadrant 4\t2"}));

    const distribution_desk american(american_coups, true);
    american.window->findChild<page_export*>()->copy();
    const QStringList more = QApplication::clipboard()->text().split('\n');
    QCOMPARE(more.size(), 1 + 38 + 4);
    QCOMPARE(more.at(20), QString("00\t2"));
}

void tst_wheel_distribution::the_picture_is_printed()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("would print on a real printer");
    const distribution_desk desk(french_coups);
    box_user user;
    user.answer(QMessageBox::Yes);
    file_dialog::set_chooser([](const file_dialog::request&) { return "page.pdf"; });
    child_of<QPushButton>(*desk.window, "PB_print")->click();
    file_dialog::set_chooser({});
    QCOMPARE(user.boxes().size(), 1);
    QFile page("page.pdf");
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().startsWith("%PDF"));
}

void tst_wheel_distribution::the_language_changes_live()
{
    const distribution_desk desk(french_coups);
    desk.start().click();
    fire(desk.timer());
    bracket_translator brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(desk.window->windowTitle(), QString("<Kesselverteilung>"));
    QCOMPARE(desk.start().text(), QString("<Stop>"));
    QCOMPARE(desk.label("LB_remaining"), QString("<Verbleibend: >"));
    QCOMPARE(desk.sums(), QString("1 0 0 0 0 0"));
    QCOMPARE(desk.remaining(), QString("7"));
    QCOMPARE(desk.delays().currentText(), QString("1000"));
    desk.start().click();
    QCOMPARE(desk.start().text(), QString("<Start>"));
    QCoreApplication::removeTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(desk.start().text(), QString("Start"));
    QCOMPARE(desk.label("LB_remaining"), QString("Verbleibend: "));
}

void tst_wheel_distribution::everything_fits_at_each_scale_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("side"); // of the chart: 484 less its tenths
    const QVector<int> sides = {484, 435, 387, 338};
    for (int step = 0; step < sides.size(); ++step) {
        QTest::addRow("french, step %d", step) << false << step << sides.at(step);
        QTest::addRow("american, step %d", step) << true << step << sides.at(step);
    }
}

void tst_wheel_distribution::everything_fits_at_each_scale()
{
    QFETCH(bool, american);
    QFETCH(int, step);
    QFETCH(int, side);
    setting settings;
    settings.set_s_table_form(american ? 1 : 0);
    statistic_data store;
    throw_numbers(store, {0, 0});
    wheel_distribution window(store, step / 10.0, settings);
    window.show();
    QCoreApplication::processEvents();
    QCOMPARE(clipped_child(window), QString());
    auto* const chart = child_of<wheel_distribution_widget>(window, "wheel_dist_widget");
    QCOMPARE(chart->size(), QSize(side, side));
    const double reach = 200.0 * side / 484;
    QVERIFY(ends_between(*chart, 0, american ? 38 : 37, reach - 4, reach + 2));
    QVERIFY(window.width() <= 1600 && window.height() <= 900);
    auto* const field = child_of<QLineEdit>(window, "LE_quadrant_1");
    QVERIFY(field->width() > field->fontMetrics().horizontalAdvance("1000000") + 10);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_wheel_distribution>(argc, argv);
}

#include "tst_wheel_distribution.moc"
