#include "statistic_tables.h"
#include "table_statistic_serie.h"

#include <QScrollArea>
#include <QTabWidget>

namespace
{

constexpr table_form french = table_form::french;

struct serie_desk : statistic_desk {
    explicit serie_desk(const QVector<int>& numbers = {}, double reduction = 0.0)
        : statistic_desk(french, numbers)
        , window(store, reduction, settings)
        , read(window)
    {
    }

    QTabWidget& tabs() { return *child_of<QTabWidget>(window, "tab_Widget"); }

    table_statistic_serie window;
    table_reader read;
};

const QStringList simple_tables = {
    "TW_EC01", "TW_EC02", "TW_EC03", "TW_EC04", "TW_EC05", "TW_EC06"};
const QStringList third_tables = {"TW_DZ01", "TW_DZ02", "TW_DZ03", "TW_KL01", "TW_KL02", "TW_KL03"};

/// `count` coups of one number, then another one.
QVector<int> run_of(int count, int number, int then)
{
    return QVector<int>(count, number) + QVector<int>{then};
}

} // namespace

class tst_table_statistic_serie : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void two_tabs_hold_twelve_tables();
    void the_heads_are_the_lengths();
    void runs_stand_in_the_cells_data();
    void runs_stand_in_the_cells();
    void the_most_frequent_length_is_bold_data();
    void the_most_frequent_length_is_bold();
    void without_coups_nothing_is_bold();
    void a_run_beyond_the_last_column_is_not_shown();
    void a_long_run_that_leads_leaves_the_others_plain();
    void a_count_above_99_widens_its_column_data();
    void a_count_above_99_widens_its_column();
    void each_table_has_the_size_of_its_cells();

    void nothing_is_clipped_data();
    void nothing_is_clipped();
    void the_button_prints_the_tab_in_front();
    void the_tables_are_copied();
    void the_language_changes_live();
};

void tst_table_statistic_serie::initTestCase()
{
    if (has_printer()) QFAIL("the test would print on real paper");
    take_font_of_design();
}

void tst_table_statistic_serie::two_tabs_hold_twelve_tables()
{
    serie_desk desk;
    QCOMPARE(desk.window.windowTitle(), QString("Serien"));
    QCOMPARE(desk.tabs().count(), 2);
    QCOMPARE(desk.tabs().tabText(0), QString("EC01-EC06"));
    QCOMPARE(desk.tabs().tabText(1), QString("DZ01-DZ03,KL01-KL03"));
    const QVector<QStringList> tables = {simple_tables, third_tables};
    for (int tab = 0; tab < 2; ++tab) {
        const auto areas = desk.tabs().widget(tab)->findChildren<QScrollArea*>();
        QCOMPARE(areas.size(), 1);
        for (const QString& name : tables.at(tab))
            QVERIFY(areas.first()->isAncestorOf(&desk.read.table(name)));
    }
    QCOMPARE(desk.read.label("LB_serien_EC01"), QString("Serien EC01 (1-18)"));
    QCOMPARE(desk.read.label("LB_serien_EC02"), QString("Serien EC02 (EVEN)"));
    QCOMPARE(desk.read.label("LB_serien_EC03"), QString("Serien EC03 (ROT)"));
    QCOMPARE(desk.read.label("LB_serien_EC04"), QString("Serien EC04 (SCHWARZ)"));
    QCOMPARE(desk.read.label("LB_serien_EC05"), QString("Serien EC05 (ODD)"));
    QCOMPARE(desk.read.label("LB_serien_EC06"), QString("Serien EC06 (19-36)"));
    for (const QString chance : {"DZ01", "DZ02", "DZ03", "KL01", "KL02", "KL03"})
        QCOMPARE(desk.read.label("LB_serien_" + chance), "Serien " + chance);
}

void tst_table_statistic_serie::the_heads_are_the_lengths()
{
    serie_desk desk;
    for (const QString& name : simple_tables + third_tables)
        QCOMPARE(desk.read.heads({name}), two_digit_heads(35));
}

// 1, 3 and 5 are red, odd, low; 2 black, even, low; 20 black, even, high; 36 red, even, high.
// A zero ends all runs; the run in hand is not counted.
void tst_table_statistic_serie::runs_stand_in_the_cells_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("values");
    using runs = QMap<int, int>;
    // clang-format off
    QTest::newRow("low")      << "TW_EC01" << texts_of(35, 0, runs{{4, 1}});         // 1 3 5 2
    QTest::newRow("even")     << "TW_EC02" << texts_of(35, 0, runs{{2, 2}});         // 2 20, 36 36
    QTest::newRow("red")      << "TW_EC03" << texts_of(35, 0, runs{{2, 1}, {3, 1}}); // 1 3 5, 36 36
    QTest::newRow("black")    << "TW_EC04" << texts_of(35, 0, runs{{2, 1}});         // 2 20
    QTest::newRow("odd")      << "TW_EC05" << texts_of(35, 0, runs{{3, 1}});         // 1 3 5
    QTest::newRow("high")     << "TW_EC06" << texts_of(35, 0, runs{{1, 1}, {2, 1}}); // 20, 36 36
    QTest::newRow("dozen 1")  << "TW_DZ01" << texts_of(35, 0, runs{{4, 1}});
    QTest::newRow("dozen 2")  << "TW_DZ02" << texts_of(35, 0, runs{{1, 1}});
    QTest::newRow("dozen 3")  << "TW_DZ03" << texts_of(35, 0, runs{{2, 1}});
    QTest::newRow("column 1") << "TW_KL01" << texts_of(35, 0, runs{{1, 1}});         // 1
    QTest::newRow("column 2") << "TW_KL02" << texts_of(35, 0, runs{{3, 1}});         // 5 2 20
    QTest::newRow("column 3") << "TW_KL03" << texts_of(35, 0, runs{{1, 1}, {2, 1}}); // 3, 36 36
    // clang-format on
}

void tst_table_statistic_serie::runs_stand_in_the_cells()
{
    QFETCH(QString, table);
    QFETCH(QStringList, values);
    serie_desk desk({1, 3, 5, 2, 20, 0, 36, 36, 0, 1});
    QCOMPARE(desk.read.values({table}), values);
}

void tst_table_statistic_serie::the_most_frequent_length_is_bold_data()
{
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<QVector<int>>("bold"); // lengths of low
    using places = QVector<int>;
    // clang-format off
    QTest::newRow("one leader") << QVector<int>{1, 0, 1, 0, 1, 1, 0} << places{1};
    QTest::newRow("two tie")    << QVector<int>{1, 0, 1, 1, 0}       << places{1, 2};
    // clang-format on
}

void tst_table_statistic_serie::the_most_frequent_length_is_bold()
{
    QFETCH(QVector<int>, numbers);
    QFETCH(QVector<int>, bold);
    serie_desk desk(numbers);
    QCOMPARE(desk.read.bold({"TW_EC01"}), bold);
}

void tst_table_statistic_serie::without_coups_nothing_is_bold()
{
    serie_desk desk;
    for (const QString& name : simple_tables + third_tables) {
        QCOMPARE(desk.read.values({name}), texts_of(35, 0));
        QCOMPARE(desk.read.bold({name}), QVector<int>());
    }
}

void tst_table_statistic_serie::a_run_beyond_the_last_column_is_not_shown()
{
    serie_desk last_shown(run_of(35, 1, 0));
    QCOMPARE(last_shown.read.values({"TW_EC01"}), texts_of(35, 0, {{35, 1}}));
    serie_desk beyond(run_of(36, 1, 0));
    QCOMPARE(beyond.read.values({"TW_EC01"}), texts_of(35, 0));
    QCOMPARE(beyond.read.bold({"TW_EC01"}), QVector<int>());
    QCOMPARE(beyond.store.run_lengths(jetons::EC01).value(35), 1);
}

// Two runs of 36, one of 1: the greatest count stands in no column.
void tst_table_statistic_serie::a_long_run_that_leads_leaves_the_others_plain()
{
    serie_desk desk(run_of(36, 1, 0) + run_of(36, 1, 0) + run_of(1, 1, 0));
    QCOMPARE(desk.read.values({"TW_EC01"}), texts_of(35, 0, {{1, 1}}));
    QCOMPARE(desk.read.bold({"TW_EC01"}), QVector<int>());
}

void tst_table_statistic_serie::a_count_above_99_widens_its_column_data()
{
    QTest::addColumn<int>("runs");
    QTest::addColumn<bool>("is_wider");
    QTest::newRow("99") << 99 << false;
    QTest::newRow("100") << 100 << true;
}

void tst_table_statistic_serie::a_count_above_99_widens_its_column()
{
    QFETCH(int, runs);
    QFETCH(bool, is_wider);
    QVector<int> numbers;
    for (int run = 0; run < runs; ++run)
        numbers += {1, 0};
    serie_desk desk(numbers);
    const QTableWidget& table = desk.read.table("TW_EC01");
    QCOMPARE(table.item(1, 0)->text(), QString::number(runs));
    QCOMPARE(table.columnWidth(0) > table.columnWidth(1), is_wider);
    desk.window.show();
    QCOMPARE(desk.read.clipped(), QStringList());
}

void tst_table_statistic_serie::each_table_has_the_size_of_its_cells()
{
    serie_desk desk({1, 0, 1});
    for (const QString& name : simple_tables + third_tables) {
        const QTableWidget& table = desk.read.table(name);
        const int frames = 2 * table.frameWidth();
        QCOMPARE(table.width(), table.horizontalHeader()->length() + frames + 1);
        QCOMPARE(table.height(), table.verticalHeader()->length() + frames + 1);
        QCOMPARE(table.minimumSize(), table.maximumSize());
    }
}

void tst_table_statistic_serie::nothing_is_clipped_data()
{
    QTest::addColumn<double>("reduction");
    QTest::newRow("full") << 0.0;
    QTest::newRow("0.3") << 0.3;
}

void tst_table_statistic_serie::nothing_is_clipped()
{
    QFETCH(double, reduction);
    QVector<int> numbers;
    for (int run = 0; run < 1200; ++run)
        numbers += {1, 1, 0, 36, 0};
    serie_desk desk(numbers, reduction);
    desk.window.show();
    desk.tabs().setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(desk.read.values({"TW_DZ03"}).first(), QString("1200"));
    QCOMPARE(desk.read.clipped(), QStringList());
    QVERIFY(desk.read.is_of_good_size());
}

void tst_table_statistic_serie::the_button_prints_the_tab_in_front()
{
    serie_desk desk({1, 3, 0});
    desk.window.show();
    auto* button = child_of<QPushButton>(desk.window, "PB_print");
    QCOMPARE(button->text(), QString("Print"));
    const qreal ratio = desk.window.devicePixelRatioF();
    for (const QString area : {"SA_simple", "SA_thirds"}) {
        const QWidget* page = child_of<QScrollArea>(desk.window, area)->widget();
        desk.tabs().setCurrentIndex(area == "SA_simple" ? 0 : 1);
        QCoreApplication::processEvents();
        const QSize picture = printed_picture(*button);
        QCOMPARE(picture, page->size() * ratio);
        QVERIFY(page->height() >= 6 * desk.read.table("TW_EC01").height());
    }
}

void tst_table_statistic_serie::the_tables_are_copied()
{
    serie_desk desk({1, 3, 0});
    desk.window.show();
    QTest::keyClick(&desk.window, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 12 * 3);
    QCOMPARE(lines.at(0), QString("Serien EC01 (1-18)"));
    QCOMPARE(lines.at(1), two_digit_heads(35).join('\t'));
    QCOMPARE(lines.at(2), texts_of(35, 0, {{2, 1}}).join('\t'));
    QCOMPARE(lines.at(18), QString("Serien DZ01"));
    QCOMPARE(lines.at(20), texts_of(35, 0, {{2, 1}}).join('\t'));
}

void tst_table_statistic_serie::the_language_changes_live()
{
    serie_desk desk;
    desk.window.setWindowTitle({});
    child_of<QPushButton>(desk.window, "PB_print")->setText({});
    child_of<QLabel>(desk.window, "LB_serien_EC03")->clear();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.window.windowTitle(), QString("Serien"));
    QCOMPARE(child_of<QPushButton>(desk.window, "PB_print")->text(), QString("Print"));
    QCOMPARE(desk.read.label("LB_serien_EC03"), QString("Serien EC03 (ROT)"));
    QCOMPARE(desk.tabs().tabText(0), QString("EC01-EC06"));
}

int main(int argc, char** argv)
{
    // No printer of the machine may print what a test draws.
    qputenv("CUPS_SERVER", "/no/such/server");
    return run_window_test<tst_table_statistic_serie>(argc, argv);
}

#include "tst_table_statistic_serie.moc"
