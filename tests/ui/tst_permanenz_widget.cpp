#include "actual_permanence.h"
#include "number_table.h"
#include "numberstorage.h"
#include "permanenz_widget.h"
#include "setting.h"
#include "window_bench.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>

/// The numbers of the game as a table of blocks, and the window around it.
class tst_permanenz_widget : public QObject
{
    Q_OBJECT

private slots:
    void an_entry_data();
    void an_entry();
    void the_oldest_number_stands_first();
    void thirty_numbers_fill_a_block();
    void cells_cannot_be_edited();
    void the_cells_follow_the_scale_data();
    void the_cells_follow_the_scale();
    void a_long_permanence_is_filled_as_it_is_seen();

    void an_empty_list_shows_the_label();
    void a_list_shows_the_table();
    void ok_lets_the_game_go_on();
};

namespace
{

constexpr int first_row = 3;
constexpr int red_column = 1;
constexpr int black_column = 3;

const QTableWidget& table_of(const QObject& widget)
{
    return *child_of<QTableWidget>(widget, "permanence_table");
}

QString text(const QTableWidget& table, int row, int column)
{
    const QTableWidgetItem* cell = table.item(row, column);
    return cell ? cell->text() : QString("no cell");
}

QColor ground(const QTableWidget& table, int row, int column)
{
    const QTableWidgetItem* cell = table.item(row, column);
    return cell ? cell->background().color() : QColor();
}

} // namespace

void tst_permanenz_widget::an_entry_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("red_text");
    QTest::addColumn<QColor>("red_ground");
    QTest::addColumn<QString>("black_text");
    QTest::addColumn<QColor>("black_ground");
    const auto row = [](const char* name,
                        int entry,
                        const QString& red_text,
                        const QString& black_text,
                        bool is_green) {
        QTest::newRow(name) << entry << red_text << QColor(is_green ? Qt::darkGreen : Qt::red)
                            << black_text << QColor(is_green ? Qt::darkGreen : Qt::black);
    };
    // clang-format off
    row("red 1",        1, "1",  "",   false);
    row("red 36",      36, "36", "",   false);
    row("black 2",      2, "",   "2",  false);
    row("black 17",    17, "",   "17", false);
    row("zero",         0, "0",  "0",  true);
    row("double zero", 37, "00", "00", true);
    row("hand change", 99, "",   "--", false);
    row("none",        -1, "",   "",   false);
    // clang-format on
}

void tst_permanenz_widget::an_entry()
{
    QFETCH(int, entry);
    QFETCH(QString, red_text);
    QFETCH(QString, black_text);
    std::vector<quint8> numbers;
    if (entry >= 0) numbers.push_back(static_cast<quint8>(entry));
    const number_table colours(table_form::american);
    const permanenz_widget widget(numbers, colours, 0.0);
    const QTableWidget& table = table_of(widget);
    QCOMPARE(text(table, first_row, red_column), red_text);
    QCOMPARE(text(table, first_row, black_column), black_text);
    QTEST(ground(table, first_row, red_column), "red_ground");
    QTEST(ground(table, first_row, black_column), "black_ground");
    for (const int column : {red_column, black_column}) {
        const QTableWidgetItem& cell = *table.item(first_row, column);
        QCOMPARE(cell.textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(cell.font().weight(), cell.text().isEmpty() ? 50 : 75);
    }
    // Behind the last entry the columns go on.
    QCOMPARE(text(table, first_row + 1, red_column), QString());
    QCOMPARE(ground(table, first_row + 1, red_column), QColor(Qt::red));
    QCOMPARE(ground(table, 32, black_column), QColor(Qt::black));
}

void tst_permanenz_widget::the_oldest_number_stands_first()
{
    const number_table colours;
    const permanenz_widget widget({1, 2, 99, 3}, colours, 0.0);
    const QTableWidget& table = table_of(widget);
    QStringList column;
    for (int row = first_row; row < first_row + 5; ++row)
        column.append(text(table, row, red_column) + '/' + text(table, row, black_column));
    QCOMPARE(column, QStringList({"1/", "/2", "/--", "3/", "/"}));
}

void tst_permanenz_widget::thirty_numbers_fill_a_block()
{
    std::vector<quint8> numbers(61, 4);
    numbers[29] = 6;
    numbers[30] = 8;
    numbers[59] = 10;
    numbers[60] = 11;
    const number_table colours;
    const permanenz_widget widget(numbers, colours, 0.0);
    const QTableWidget& table = table_of(widget);
    QCOMPARE(table.rowCount(), 33);
    QCOMPARE(table.columnCount(), 15);
    QCOMPARE(text(table, 32, 3), QString("6"));
    QCOMPARE(text(table, 3, 8), QString("8"));
    QCOMPARE(text(table, 32, 8), QString("10"));
    QCOMPARE(text(table, 3, 13), QString("11"));
    QCOMPARE(text(table, 4, 13), QString());
    QCOMPARE(ground(table, 4, 11), QColor(Qt::red));

    const permanenz_widget full(std::vector<quint8>(60, 4), colours, 0.0);
    QCOMPARE(table_of(full).columnCount(), 10);
}

void tst_permanenz_widget::cells_cannot_be_edited()
{
    const number_table colours;
    const permanenz_widget widget({1}, colours, 0.0);
    const QTableWidget& table = table_of(widget);
    for (int row = first_row; row < 33; ++row) {
        QVERIFY(!(table.item(row, red_column)->flags() & Qt::ItemIsEditable));
        QVERIFY(!(table.item(row, black_column)->flags() & Qt::ItemIsEditable));
    }
}

void tst_permanenz_widget::the_cells_follow_the_scale_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<QSize>("cell");
    QTest::newRow("0.0") << 0.0 << QSize(26, 18);
    QTest::newRow("0.1") << 0.1 << QSize(23, 16); // 23.4, 16.2
    QTest::newRow("0.2") << 0.2 << QSize(20, 14); // 20.8, 14.4
    QTest::newRow("0.3") << 0.3 << QSize(18, 12); // 18.2, 12.6
}

void tst_permanenz_widget::the_cells_follow_the_scale()
{
    QFETCH(double, reduction);
    const number_table colours;
    const permanenz_widget widget({36, 37}, colours, reduction);
    const QTableWidget& table = table_of(widget);
    for (const int column : {red_column, black_column})
        QTEST(QSize(table.columnWidth(column), table.rowHeight(first_row)), "cell");
    const QFontMetrics metrics(table.item(first_row, red_column)->font());
    QVERIFY(metrics.horizontalAdvance("36") <= table.columnWidth(red_column));
    QVERIFY(metrics.boundingRect("36").height() <= table.rowHeight(first_row));
    QCOMPARE(widget.size(), table.size());
}

// A block far away has no cells until it is painted.
void tst_permanenz_widget::a_long_permanence_is_filled_as_it_is_seen()
{
    setting settings;
    numberStorage numbers(settings);
    for (int i = 0; i < 300'000; ++i)
        numbers.add_to_permanence(i % 37);
    const number_table colours;
    actual_permanence window(numbers, colours, 0.0);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QTableWidget& table = table_of(window);
    QCOMPARE(table.columnCount(), 50'000);
    QVERIFY(!table.item(first_row, 5 * 5000 + red_column));
    auto* bar = child_of<QScrollArea>(window, "scrollArea")->horizontalScrollBar();
    QCOMPARE(bar->value(), bar->maximum()); // the newest are seen first
    QVERIFY(table.item(first_row, 5 * 9999 + red_column));
    bar->setValue(bar->maximum() / 2);
    window.grab();
    // Entry 150,000 = 30 * 5000 is 150,000 modulo 37 = 2, which is black.
    QCOMPARE(text(table, first_row, 5 * 5000 + black_column), QString("2"));
    QCOMPARE(text(table, 1, 5 * 5000), QString("150001"));
}

void tst_permanenz_widget::an_empty_list_shows_the_label()
{
    setting settings;
    const numberStorage numbers(settings);
    const number_table colours;
    actual_permanence window(numbers, colours, 0.0);
    window.show();
    QCOMPARE(window.windowTitle(), QString("Aktuelle Permanenz"));
    QCOMPARE(child_of<QLabel>(window, "LB_no_throw_display")->text(),
             QString("Keine Würfe zur Anzeige vorhanden!"));
    QVERIFY(child_of<QLabel>(window, "LB_no_throw_display")->isVisible());
    QVERIFY(!child_of<QScrollArea>(window, "scrollArea")->isVisible());
}

void tst_permanenz_widget::a_list_shows_the_table()
{
    setting settings;
    numberStorage numbers(settings);
    numbers.add_to_permanence(99);
    const number_table colours;
    actual_permanence window(numbers, colours, 0.3);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(!child_of<QLabel>(window, "LB_no_throw_display")->isVisible());
    QVERIFY(child_of<QScrollArea>(window, "scrollArea")->isVisible());
    QCOMPARE(text(table_of(window), first_row, black_column), QString("--"));
    // All rows are seen without scrolling.
    QVERIFY(!child_of<QScrollArea>(window, "scrollArea")->verticalScrollBar()->isVisible());
}

void tst_permanenz_widget::ok_lets_the_game_go_on()
{
    setting settings;
    const numberStorage numbers(settings);
    const number_table colours;
    actual_permanence window(numbers, colours, 0.0);
    QSignalSpy continued(&window, &actual_permanence::later_display_continue);
    window.show();
    child_of<QDialogButtonBox>(window, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(continued.count(), 1);
    QVERIFY(!window.isVisible());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_permanenz_widget>(argc, argv);
}

#include "tst_permanenz_widget.moc"
