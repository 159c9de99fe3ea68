#include "chart_statistic.h"
#include "chart_statistic_widget.h"
#include "chart_zoomer.h"
#include "file_dialog.h"
#include "number_table.h"
#include "page_export.h"
#include "setting.h"
#include "statistic_data.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTranslator>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

/// The window of the bar charts, over permanences whose counters were worked out by hand.
class tst_chart_statistic : public QObject
{
    Q_OBJECT

private slots:
    void it_opens_on_the_numbers_and_the_type_given_data();
    void it_opens_on_the_numbers_and_the_type_given();
    void without_coups_the_axis_stays_at_0_to_10();
    void every_kind_has_its_bars_and_labels_data();
    void every_kind_has_its_bars_and_labels();
    void a_french_permanence_is_counted_data();
    void a_french_permanence_is_counted();
    void an_american_permanence_is_counted_data();
    void an_american_permanence_is_counted();
    void the_axis_leaves_the_margin_of_the_digits();
    void entries_and_titles_data();
    void entries_and_titles();
    void the_raster_follows_its_box();
    void a_new_choice_is_shown_as_a_whole();
    void labels_stand_below_their_bars_in_turn_data();
    void labels_stand_below_their_bars_in_turn();
    void it_can_be_refreshed();
    void a_reset_leaves_no_bar();
    void fonts_boxes_and_indicators_shrink_data();
    void fonts_boxes_and_indicators_shrink();
    void the_pointer_tells_bet_and_value();
    void the_table_can_be_copied();
    void the_copy_tells_what_is_shown();
    void the_proposed_name_follows_the_kind();
    void the_picture_can_be_saved_in_lines();
    void the_chart_can_be_printed();
    void texts_follow_the_language();
};

namespace
{

using counters = QVector<double>;

/// A store that has counted a permanence, and the window over it.
struct chart_desk {
    explicit chart_desk(table_form form,
                        const QList<int>& permanence = {},
                        int type = 0,
                        double reduction = 0.0,
                        bool american_terms = false)
    {
        settings.set_s_table_form(static_cast<int>(form));
        settings.set_s_language_term(american_terms ? 1 : 0);
        store.set_table_form(form);
        play(permanence);
        window = std::make_unique<chart_statistic>(type, store, reduction, settings);
    }

    void play(const QList<int>& permanence)
    {
        const number_table table(settings.form());
        for (const int number : permanence)
            store.addtoStat(table.hit_property(number), false);
    }

    QComboBox& box(const char* name) { return *child_of<QComboBox>(*window, name); }
    void show_kind(int kind) { box("COB_jetontype").setCurrentIndex(kind); }
    chart_statistic_widget& chart()
    {
        return *child_of<chart_statistic_widget>(*window, "chart_stat_display");
    }
    double axis_end() { return chart().axisInterval(QwtPlot::yLeft).maxValue(); }

    setting settings;
    statistic_data store;
    std::unique_ptr<chart_statistic> window;
};

/// A row of counters: `rest` everywhere but at some places.
counters row(int count, double rest, const QVector<QPair<int, double>>& others)
{
    counters values(count, rest);
    for (const auto& other : others)
        values[other.first] = other.second;
    return values;
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

const QList<int> french_coups = {17, 17, 0, 5};
const QList<int> american_coups = {37, 37, 0, 3};

} // namespace

void tst_chart_statistic::it_opens_on_the_numbers_and_the_type_given_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("occurrence");
    QTest::addColumn<double>("first_bar");
    QTest::newRow("hits") << 0 << "Wie oft?" << 2.0;
    QTest::newRow("since") << 1 << "Seit wann nicht?" << 1.0;
}

void tst_chart_statistic::it_opens_on_the_numbers_and_the_type_given()
{
    QFETCH(int, type);
    QFETCH(QString, occurrence);
    chart_desk desk(table_form::french, {0, 0, 8}, type);
    QCOMPARE(desk.box("COB_jetontype").currentIndex(), 0);
    QCOMPARE(desk.box("COB_occurrence").currentIndex(), type);
    QCOMPARE(desk.box("COB_occurrence").currentText(), occurrence);
    QCOMPARE(desk.chart().axisTitle(QwtPlot::yLeft).text(), occurrence);
    QTEST(desk.chart().values().first(), "first_bar");
    QCOMPARE(desk.window->windowTitle(), QString("Plein"));
}

void tst_chart_statistic::without_coups_the_axis_stays_at_0_to_10()
{
    for (const int type : {0, 1}) {
        chart_desk desk(table_form::french, {}, type);
        for (int kind = 0; kind < 12; ++kind) {
            desk.show_kind(kind);
            QCOMPARE(desk.chart().values(), counters(desk.chart().values().size(), 0.0));
            QCOMPARE(desk.chart().axisInterval(QwtPlot::yLeft).minValue(), 0.0);
            QCOMPARE(desk.axis_end(), 10.0);
        }
    }
}

void tst_chart_statistic::every_kind_has_its_bars_and_labels_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("is_american");
    QTest::addColumn<int>("bars");
    QTest::addColumn<QString>("labels"); // first, second and last
    // clang-format off
    QTest::newRow("plein")             << 0  << false << 37 << "0 1 36";
    QTest::newRow("plein, A")          << 0  << true  << 38 << "0 00 36";
    QTest::newRow("cheval")            << 1  << false << 63 << "1 2 63";
    QTest::newRow("cheval, A")         << 1  << true  << 63 << "1 2 63";
    QTest::newRow("carre")             << 2  << false << 23 << "1 2 23";
    QTest::newRow("street")            << 3  << false << 16 << "1 2 16";
    QTest::newRow("street, A")         << 3  << true  << 16 << "1 2 16";
    QTest::newRow("six line")          << 4  << false << 11 << "1 2 11";
    QTest::newRow("thirds")            << 5  << false << 6  << "K I K II D III";
    QTest::newRow("even chances")      << 6  << false << 6  << "1-18 EVEN 19-36";
    QTest::newRow("finals")            << 7  << true  << 10 << "0 1 9";
    QTest::newRow("sectors")           << 8  << false << 5  << "GS KS ZS";
    QTest::newRow("one neighbour")     << 9  << false << 37 << "0 1 36";
    QTest::newRow("one neighbour, A")  << 9  << true  << 38 << "0 00 36";
    QTest::newRow("two neighbours")    << 10 << false << 37 << "0 1 36";
    QTest::newRow("two, A")            << 10 << true  << 38 << "0 00 36";
    QTest::newRow("three neighbours")  << 11 << false << 37 << "0 1 36";
    QTest::newRow("three, A")          << 11 << true  << 38 << "0 00 36";
    // clang-format on
}

void tst_chart_statistic::every_kind_has_its_bars_and_labels()
{
    QFETCH(int, kind);
    QFETCH(bool, is_american);
    QFETCH(int, bars);
    chart_desk desk(is_american ? table_form::american : table_form::french);
    desk.show_kind(kind);
    QCOMPARE(desk.chart().values().size(), bars);
    const QStringList labels = {
        desk.chart().label_of(0), desk.chart().label_of(1), desk.chart().label_of(bars - 1)};
    QTEST(labels.join(' '), "labels");
}

// The coups 17, 17, 0, 5 on the French table. Since: 5 has just come, 0 one coup ago, 17 two.
void tst_chart_statistic::a_french_permanence_is_counted_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<counters>("hits");
    QTest::addColumn<counters>("since");
    // clang-format off
    QTest::newRow("plein") << 0
        << row(37, 0, {{17, 2}, {0, 1}, {5, 1}})
        << row(37, 4, {{17, 2}, {0, 1}, {5, 0}});
    // 17: 14/17, 17/20, 16/17, 17/18; 0: 0/1, 0/2, 0/3 and 0/00; 5: 2/5, 5/8, 4/5, 5/6
    QTest::newRow("cheval") << 1
        << row(63, 0, {{16, 2}, {19, 2}, {46, 2}, {47, 2}, {0, 1}, {1, 1}, {2, 1}, {60, 1},
                       {4, 1}, {7, 1}, {38, 1}, {39, 1}})
        << row(63, 4, {{16, 2}, {19, 2}, {46, 2}, {47, 2}, {0, 1}, {1, 1}, {2, 1}, {60, 1},
                       {4, 0}, {7, 0}, {38, 0}, {39, 0}});
    // 17: 13-17, 14-18, 16-20, 17-21; 0: 0-3; 5: 1-5, 2-6, 4-8, 5-9
    QTest::newRow("carre") << 2
        << row(23, 0, {{9, 2}, {10, 2}, {11, 2}, {12, 2}, {0, 1}, {1, 1}, {2, 1}, {3, 1}, {4, 1}})
        << row(23, 4, {{9, 2}, {10, 2}, {11, 2}, {12, 2}, {0, 1}, {1, 0}, {2, 0}, {3, 0}, {4, 0}});
    // 17: 13/18, 16/21; 5: 1/6, 4/9
    QTest::newRow("six line") << 4
        << row(11, 0, {{4, 2}, {5, 2}, {0, 1}, {1, 1}})
        << row(11, 4, {{4, 2}, {5, 2}, {0, 0}, {1, 0}});
    // 17 and 5 stand in the second column, 17 in the second dozen, 5 in the first
    QTest::newRow("thirds") << 5
        << counters{0, 3, 0, 1, 2, 0}
        << counters{4, 0, 4, 0, 2, 4};
    // 17 is low, black and odd; 5 is low, red and odd
    QTest::newRow("even chances") << 6
        << counters{3, 0, 1, 2, 3, 0}
        << counters{0, 4, 0, 2, 0, 4};
    QTest::newRow("finals") << 7
        << row(10, 0, {{7, 2}, {0, 1}, {5, 1}})
        << row(10, 4, {{7, 2}, {0, 1}, {5, 0}});
    // 17 is an orphan, 0 belongs to the big series and to the zero game, 5 to the small series
    QTest::newRow("sectors") << 8
        << counters{1, 1, 2, 2, 1}
        << counters{1, 0, 2, 2, 1};
    // beside 17: 25, 34; beside 0: 26, 32; beside 5: 10, 24
    QTest::newRow("one neighbour") << 9
        << row(37, 0, {{25, 2}, {17, 2}, {34, 2}, {26, 1}, {0, 1}, {32, 1}, {10, 1}, {5, 1}, {24, 1}})
        << row(37, 4, {{25, 2}, {17, 2}, {34, 2}, {26, 1}, {0, 1}, {32, 1}, {10, 0}, {5, 0}, {24, 0}});
    // 17: 2, 25, 34, 6; 0: 3, 26, 32, 15; 5: 23, 10, 24, 16
    QTest::newRow("two neighbours") << 10
        << row(37, 0, {{2, 2}, {25, 2}, {17, 2}, {34, 2}, {6, 2}, {3, 1}, {26, 1}, {0, 1}, {32, 1},
                       {15, 1}, {23, 1}, {10, 1}, {5, 1}, {24, 1}, {16, 1}})
        << row(37, 4, {{2, 2}, {25, 2}, {17, 2}, {34, 2}, {6, 2}, {3, 1}, {26, 1}, {0, 1}, {32, 1},
                       {15, 1}, {23, 0}, {10, 0}, {5, 0}, {24, 0}, {16, 0}});
    // one more on each side: 21 and 27; 35 and 19; 8 and 33
    QTest::newRow("three neighbours") << 11
        << row(37, 0, {{21, 2}, {2, 2}, {25, 2}, {17, 2}, {34, 2}, {6, 2}, {27, 2}, {35, 1}, {3, 1},
                       {26, 1}, {0, 1}, {32, 1}, {15, 1}, {19, 1}, {8, 1}, {23, 1}, {10, 1}, {5, 1},
                       {24, 1}, {16, 1}, {33, 1}})
        << row(37, 4, {{21, 2}, {2, 2}, {25, 2}, {17, 2}, {34, 2}, {6, 2}, {27, 2}, {35, 1}, {3, 1},
                       {26, 1}, {0, 1}, {32, 1}, {15, 1}, {19, 1}, {8, 0}, {23, 0}, {10, 0}, {5, 0},
                       {24, 0}, {16, 0}, {33, 0}});
    // clang-format on
}

void tst_chart_statistic::a_french_permanence_is_counted()
{
    QFETCH(int, kind);
    chart_desk desk(table_form::french, french_coups);
    desk.show_kind(kind);
    QTEST(desk.chart().values(), "hits");
    QFETCH(counters, hits);
    QCOMPARE(desk.axis_end(), *std::max_element(hits.cbegin(), hits.cend()) + 10);
    desk.box("COB_occurrence").setCurrentIndex(1);
    QTEST(desk.chart().values(), "since");
    QCOMPARE(desk.axis_end(), kind == 8 ? 12.0 : 14.0);
}

// The coups 00, 00, 0, 3 on the American table. Bars of numbers: 0, 00, 1, 2, ...
void tst_chart_statistic::an_american_permanence_is_counted_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<counters>("hits");
    QTest::addColumn<counters>("since");
    // clang-format off
    QTest::newRow("plein") << 0
        << row(38, 0, {{1, 2}, {0, 1}, {4, 1}})
        << row(38, 4, {{1, 2}, {0, 1}, {4, 0}});
    // 00: 0/00, 00/2, 00/3; 0: 0/1, 0/2, 0/00; 3: 3/6, 2/3, 00/3. The third, 0/3, is French.
    QTest::newRow("cheval") << 1
        << row(63, 0, {{60, 3}, {61, 2}, {62, 3}, {0, 1}, {1, 1}, {5, 1}, {37, 1}})
        << row(63, 4, {{60, 1}, {61, 2}, {62, 0}, {0, 1}, {1, 1}, {2, 0}, {5, 0}, {37, 0}});
    // 00: 0/00/2, 00/2/3; 0: 0/1/2, 0/00/2; 3: 1/2/3, 00/2/3. The second, 0/2/3, is French.
    QTest::newRow("street") << 3
        << row(16, 0, {{0, 1}, {2, 1}, {14, 3}, {15, 3}})
        << row(16, 4, {{0, 1}, {1, 0}, {2, 0}, {14, 1}, {15, 0}});
    QTest::newRow("finals") << 7
        << row(10, 0, {{0, 3}, {3, 1}})
        << row(10, 4, {{0, 1}, {3, 0}});
    // beside 00: 1, 27; beside 0: 2, 28; beside 3: 15, 24
    QTest::newRow("one neighbour") << 9
        << row(38, 0, {{1, 2}, {2, 2}, {28, 2}, {0, 1}, {3, 1}, {29, 1}, {4, 1}, {16, 1}, {25, 1}})
        << row(38, 4, {{1, 2}, {2, 2}, {28, 2}, {0, 1}, {3, 1}, {29, 1}, {4, 0}, {16, 0}, {25, 0}});
    // clang-format on
}

void tst_chart_statistic::an_american_permanence_is_counted()
{
    QFETCH(int, kind);
    chart_desk desk(table_form::american, american_coups);
    desk.show_kind(kind);
    QTEST(desk.chart().values(), "hits");
    desk.box("COB_occurrence").setCurrentIndex(1);
    QTEST(desk.chart().values(), "since");
}

void tst_chart_statistic::the_axis_leaves_the_margin_of_the_digits()
{
    QList<int> coups;
    for (int i = 0; i < 999; ++i)
        coups.append(17);
    chart_desk desk(table_form::french, coups);
    QCOMPARE(desk.axis_end(), 1009.0);
    desk.play({17});
    desk.window->refresh();
    QCOMPARE(desk.axis_end(), 1100.0);
    desk.show_kind(1); // 14/17 has as many hits
    QCOMPARE(desk.axis_end(), 1100.0);
    desk.show_kind(6);
    desk.box("COB_occurrence").setCurrentIndex(1); // even has not come for 1000 coups
    QCOMPARE(desk.axis_end(), 1100.0);
}

void tst_chart_statistic::entries_and_titles_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("american_terms");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("title");
    // clang-format off
    QTest::newRow("0")     << 0  << false << "Plein"               << "Plein";
    QTest::newRow("0, A")  << 0  << true  << "Straight Up"         << "Straight Up";
    QTest::newRow("1")     << 1  << false << "Cheval"              << "Cheval";
    QTest::newRow("1, A")  << 1  << true  << "Split"               << "Split";
    QTest::newRow("2")     << 2  << false << "Carre"               << "Carre";
    QTest::newRow("2, A")  << 2  << true  << "Corner"              << "Corner";
    QTest::newRow("3")     << 3  << false << "Transversale Plein"  << "Transversale Plein";
    QTest::newRow("3, A")  << 3  << true  << "Street"              << "Street";
    QTest::newRow("4")     << 4  << false << "Transversale Simple" << "Transversale Simple";
    QTest::newRow("4, A")  << 4  << true  << "Six Line"            << "Six Line";
    QTest::newRow("5")     << 5  << false << "Kolonne/Dutzend"     << "Kolonne / Dutzend";
    QTest::newRow("5, A")  << 5  << true  << "Kolonne/Dutzend"     << "Kolonne / Dutzend";
    QTest::newRow("6")     << 6  << false << "Einfache Chancen"    << "Einfache Chancen";
    QTest::newRow("7")     << 7  << true  << "Finale"              << "Finale";
    QTest::newRow("8")     << 8  << false << "GS,KS,OR,OP,ZS"      << "GS,KS,OR,OP,ZS";
    QTest::newRow("9")     << 9  << false << "Ein Nachbar"         << "Ein Nachbar";
    QTest::newRow("10")    << 10 << false << "Zwei Nachbaren"      << "Zwei Nachbarn";
    QTest::newRow("11, A") << 11 << true  << "Drei Nachbaren"      << "Drei Nachbarn";
    // clang-format on
}

void tst_chart_statistic::entries_and_titles()
{
    QFETCH(int, kind);
    QFETCH(bool, american_terms);
    chart_desk desk(table_form::french, {}, 0, 0.0, american_terms);
    QCOMPARE(desk.box("COB_jetontype").count(), 12);
    QTEST(desk.box("COB_jetontype").itemText(kind), "entry");
    desk.show_kind(kind);
    QTEST(desk.window->windowTitle(), "title");
    QTEST(desk.chart().title().text(), "title");
    QCOMPARE(desk.chart().title().color(), QColor(Qt::black));
}

void tst_chart_statistic::the_raster_follows_its_box()
{
    chart_desk desk(table_form::french, french_coups);
    auto& box = *child_of<QCheckBox>(*desk.window, "CB_grid_display");
    QCOMPARE(box.text(), QString("Horiz. Raster anzeigen"));
    QCOMPARE(desk.chart().is_grid_shown(), box.isChecked());
    box.click();
    QCOMPARE(desk.chart().is_grid_shown(), box.isChecked());
    const bool is_shown = box.isChecked();
    desk.show_kind(4);
    QCOMPARE(desk.chart().is_grid_shown(), is_shown);
    box.click();
    QCOMPARE(desk.chart().is_grid_shown(), !is_shown);
}

void tst_chart_statistic::a_new_choice_is_shown_as_a_whole()
{
    chart_desk desk(table_form::french, french_coups);
    auto& zoomer = *child_of<chart_zoomer>(*desk.window, "zoomer");
    zoomer.zoom(QRectF(3, 2, 6, 4));
    QCOMPARE(desk.axis_end(), 6.0);
    desk.box("COB_occurrence").setCurrentIndex(1);
    QCOMPARE(desk.axis_end(), 14.0);
    QCOMPARE(zoomer.zoomBase(), QRectF(-0.5, 0, 37, 14));
    zoomer.zoom(QRectF(3, 2, 6, 4));
    desk.show_kind(5);
    QCOMPARE(zoomer.zoomBase(), QRectF(-0.5, 0, 6, 14));
    QCOMPARE(zoomer.zoomRect(), zoomer.zoomBase());
    zoomer.zoom(QRectF(1, 2, 2, 4));
    child_of<QCheckBox>(*desk.window, "CB_grid_display")->click();
    QCOMPARE(zoomer.zoomRect(), QRectF(-0.5, 0, 6, 14));
}

void tst_chart_statistic::labels_stand_below_their_bars_in_turn_data()
{
    QTest::addColumn<double>("reduction");
    QTest::newRow("full size") << 0.0;
    QTest::newRow("0.3") << 0.3;
}

void tst_chart_statistic::labels_stand_below_their_bars_in_turn()
{
    QFETCH(double, reduction);
    chart_desk desk(table_form::american, american_coups, 0, reduction);
    desk.window->show();
    for (const int kind : {0, 1, 5, 6, 8, 6, 9}) {
        desk.show_kind(kind);
        if (kind == 8) desk.window->resize(1500, 900);
        QApplication::processEvents();
        const chart_statistic_widget& chart = desk.chart();
        const QwtScaleDraw& labels = *chart.axisScaleDraw(QwtPlot::xBottom);
        const auto bars = chart.axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick);
        for (const double bar : bars) {
            const double bar_centre = chart.transform(QwtPlot::xBottom, bar) + chart.canvas()->x();
            const double label_centre =
                labels.labelPosition(bar).x() + chart.axisWidget(QwtPlot::xBottom)->x();
            QVERIFY2(qAbs(bar_centre - label_centre) <= 1.5,
                     qPrintable(QString("%1: %2").arg(kind).arg(bar_centre - label_centre)));
        }
    }
}

void tst_chart_statistic::it_can_be_refreshed()
{
    chart_desk desk(table_form::french, {8});
    desk.play({8, 8});
    QCOMPARE(desk.chart().values().at(8), 1.0); // as it was opened
    desk.window->refresh();
    QCOMPARE(desk.chart().values().at(8), 3.0);
}

void tst_chart_statistic::a_reset_leaves_no_bar()
{
    chart_desk desk(table_form::french, french_coups);
    desk.store.resetStatisticStorage();
    desk.show_kind(5);
    QCOMPARE(desk.chart().values(), counters(6, 0.0));
    QCOMPARE(desk.axis_end(), 10.0);
    desk.box("COB_occurrence").setCurrentIndex(1);
    QCOMPARE(desk.chart().values(), counters(6, 0.0));
}

void tst_chart_statistic::fonts_boxes_and_indicators_shrink_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<int>("title_points");
    QTest::addColumn<QString>("style");
    QTest::addColumn<int>("box_width");
    // clang-format off
    QTest::newRow("full size") << 0.0 << 14 << "QCheckBox::indicator { width:15px; height:15px;}" << 240;
    QTest::newRow("0.2")       << 0.2 << 11 << "QCheckBox::indicator { width:12px; height:12px;}" << 192;
    QTest::newRow("0.3")       << 0.3 << 10 << "QCheckBox::indicator { width:10px; height:10px;}" << 168;
    // clang-format on
}

void tst_chart_statistic::fonts_boxes_and_indicators_shrink()
{
    QFETCH(double, reduction);
    chart_desk desk(table_form::french, french_coups, 0, reduction);
    desk.window->show();
    QTEST(desk.chart().title().font().pointSize(), "title_points");
    QTEST(child_of<QCheckBox>(*desk.window, "CB_grid_display")->styleSheet(), "style");
    QTEST(desk.box("COB_jetontype").minimumWidth(), "box_width");
    for (const char* name : {"COB_occurrence", "COB_jetontype"}) {
        const QComboBox& box = desk.box(name);
        QVERIFY(box.width() >= box.sizeHint().width());
        QVERIFY(box.height() >= box.fontMetrics().height());
    }
    QCOMPARE(desk.window->width(), scaled(1060, reduction));
}

void tst_chart_statistic::the_pointer_tells_bet_and_value()
{
    chart_desk desk(table_form::american, american_coups);
    QCOMPARE(desk.chart().read_off({1, 1}), QString("PL 00: 2"));
    desk.show_kind(1);
    QCOMPARE(desk.chart().read_off({2, 1}), QString("CH 0/3: 0"));
    QCOMPARE(desk.chart().read_off({62, 1}), QString("CH 00/3: 3"));
    desk.show_kind(9);
    QCOMPARE(desk.chart().read_off({1, 1}), QString("EN 00: 2"));
    QCOMPARE(desk.chart().read_off({28, 1}), QString("EN 27: 2"));
    desk.show_kind(6);
    QCOMPARE(desk.chart().read_off({2, 1}), QString("EC RED: 1"));
}

void tst_chart_statistic::the_table_can_be_copied()
{
    chart_desk desk(table_form::french, french_coups);
    desk.show_kind(8);
    desk.window->findChild<page_export*>()->copy();
    QCOMPARE(QApplication::clipboard()->text(),
             QString("GS,KS,OR,OP,ZS\tWie oft?\nGS\t1\nKS\t1\nOR\t2\nOP\t2\nZS\t1"));
}

// The table in play and the terms may have changed since the bars were drawn.
void tst_chart_statistic::the_copy_tells_what_is_shown()
{
    chart_desk desk(table_form::french, {8, 8});
    const QString plein_8 = "\nPL 8\t2\n";
    desk.settings.set_s_table_form(static_cast<int>(table_form::american));
    desk.settings.set_s_language_term(1);
    desk.window->findChild<page_export*>()->copy();
    const QString copied = QApplication::clipboard()->text();
    QVERIFY2(copied.startsWith("Plein\tWie oft?\nPL 0\t0\nPL 1\t0\n"), qPrintable(copied));
    QVERIFY2(copied.contains(plein_8), qPrintable(copied));
    QCOMPARE(copied.count('\n'), 37); // the heads and 37 numbers
}

void tst_chart_statistic::the_proposed_name_follows_the_kind()
{
    chart_desk desk(table_form::french, french_coups);
    desk.show_kind(4);
    QString proposal;
    file_dialog::set_chooser([&proposal](const file_dialog::request& what) {
        proposal = what.folder;
        return QString();
    });
    desk.window->findChild<page_export*>()->save_csv();
    file_dialog::set_chooser({});
    QVERIFY2(proposal.endsWith("/Transversale Simple.csv"), qPrintable(proposal));
}

void tst_chart_statistic::the_picture_can_be_saved_in_lines()
{
    chart_desk desk(table_form::french, french_coups);
    desk.window->show();
    const QString path = QDir::currentPath() + "/chart.svg";
    file_dialog::set_chooser([&path](const file_dialog::request&) { return path; });
    desk.window->findChild<page_export*>()->save_svg();
    file_dialog::set_chooser({});
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray svg = file.readAll();
    QVERIFY(svg.contains(">Plein<")); // letters
    QVERIFY(!svg.contains("<image")); // no pixels
}

void tst_chart_statistic::the_chart_can_be_printed()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("would use paper");
    chart_desk desk(table_form::french, french_coups);
    desk.window->show();
    auto& button = *child_of<QPushButton>(*desk.window, "PB_print");
    QCOMPARE(button.text(), QString("Drucken"));
    QCOMPARE(child_of<QDialogButtonBox>(*desk.window, "buttonBox")->buttonRole(&button),
             QDialogButtonBox::ActionRole);
    const QString path = QDir::currentPath() + "/chart.pdf";
    file_dialog::set_chooser([&path](const file_dialog::request&) { return path; });
    box_user user;
    user.answer(QMessageBox::Yes); // no printer: save the page instead
    button.click();
    file_dialog::set_chooser({});
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.unexpected(), 0);
    QVERIFY(QFileInfo(path).size() > 5000); // a picture, not a blank page
}

void tst_chart_statistic::texts_follow_the_language()
{
    chart_desk desk(table_form::french, french_coups, 1);
    desk.show_kind(10);
    bracket_translator translator;
    QApplication::installTranslator(&translator);
    QApplication::processEvents();
    QCOMPARE(desk.window->windowTitle(), QString("<Zwei Nachbarn>"));
    QCOMPARE(desk.chart().title().text(), QString("<Zwei Nachbarn>"));
    QCOMPARE(desk.box("COB_jetontype").currentText(), QString("<Zwei Nachbaren>"));
    QCOMPARE(desk.box("COB_jetontype").currentIndex(), 10);
    QCOMPARE(desk.box("COB_occurrence").itemText(0), QString("<Wie oft?>"));
    QCOMPARE(desk.box("COB_occurrence").currentIndex(), 1);
    QCOMPARE(desk.chart().axisTitle(QwtPlot::yLeft).text(), QString("<Seit wann nicht?>"));
    QCOMPARE(desk.chart().axisTitle(QwtPlot::xBottom).text(), QString("<Zahl>"));
    QCOMPARE(child_of<QPushButton>(*desk.window, "PB_print")->text(), QString("<Drucken>"));
    QCOMPARE(child_of<QCheckBox>(*desk.window, "CB_grid_display")->text(),
             QString("<Horiz. Raster anzeigen>"));
    QApplication::removeTranslator(&translator);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_chart_statistic>(argc, argv);
}

#include "tst_chart_statistic.moc"
