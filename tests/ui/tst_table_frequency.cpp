#include "hit_ranking.h"
#include "statistic_tables.h"
#include "table_frequency.h"

#include <QGroupBox>

namespace
{

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;

struct frequency_desk : statistic_desk {
    explicit frequency_desk(table_form form,
                            const QVector<int>& numbers = {},
                            double reduction = 0.0)
        : statistic_desk(form, numbers)
        , window(store, reduction, settings)
        , read(window)
    {
    }

    QTableWidget& table() { return read.table("TW_frequency"); }
    QStringList row(int place) { return read.row({"TW_frequency"}, place); }

    table_frequency window;
    table_reader read;
};

enum kind { PL, CH, CA, TP, TS, KL, DZ, EC };

/// The cells of a row; those behind the given ones are empty.
QStringList filled_up(QStringList cells)
{
    while (cells.size() < 8)
        cells.append(QString());
    return cells;
}

} // namespace

class tst_table_frequency : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void the_first_seven_are_shown_data();
    void the_first_seven_are_shown();

    void a_row_per_kind_of_bet();
    void the_kinds_show_their_most_frequent_bets_data();
    void the_kinds_show_their_most_frequent_bets();
    void a_star_tells_that_the_row_goes_on();
    void bets_of_the_other_form_take_no_part();
    void without_coups_the_cells_are_empty();

    void nothing_is_clipped_data();
    void nothing_is_clipped();
    void large_numbers_have_their_room();
    void the_button_prints_the_group();
    void the_table_is_copied();
    void the_language_changes_live();
};

void tst_table_frequency::initTestCase()
{
    if (has_printer()) QFAIL("the test would print on real paper");
    take_font_of_design();
}

void tst_table_frequency::the_first_seven_are_shown_data()
{
    QTest::addColumn<QVector<int>>("hits");
    QTest::addColumn<QStringList>("cells");
    using numbers = QVector<int>;
    // clang-format off
    QTest::newRow("nothing")         << numbers{}        << filled_up({});
    QTest::newRow("no hit")          << numbers{0, 0, 0} << filled_up({});
    QTest::newRow("most first")      << numbers{1, 3, 2} << filled_up({"2 (3)", "3 (2)", "1 (1)"});
    QTest::newRow("ties keep order") << numbers{2, 3, 2} << filled_up({"2 (3)", "1 (2)", "3 (2)"});
    QTest::newRow("zeros end it")    << numbers{0, 1, 0} << filled_up({"2 (1)"});
    QTest::newRow("seven")           << numbers{1, 1, 1, 1, 1, 1, 1}
        << filled_up({"1 (1)", "2 (1)", "3 (1)", "4 (1)", "5 (1)", "6 (1)", "7 (1)"});
    QTest::newRow("eighth is equal") << numbers{1, 1, 1, 1, 1, 1, 1, 1}
        << QStringList{"1 (1)", "2 (1)", "3 (1)", "4 (1)", "5 (1)", "6 (1)", "7 (1)", "*"};
    QTest::newRow("eighth is less")  << numbers{2, 2, 2, 2, 2, 2, 2, 1}
        << filled_up({"1 (2)", "2 (2)", "3 (2)", "4 (2)", "5 (2)", "6 (2)", "7 (2)"});
    QTest::newRow("both never hit")  << numbers{1, 1, 1, 1, 1, 1, 0, 0}
        << filled_up({"1 (1)", "2 (1)", "3 (1)", "4 (1)", "5 (1)", "6 (1)"});
    // clang-format on
}

void tst_table_frequency::the_first_seven_are_shown()
{
    QFETCH(QVector<int>, hits);
    QFETCH(QStringList, cells);
    QVector<ranked_bet> bets;
    for (const int count : hits)
        bets.append({QString::number(bets.size() + 1), count});
    QCOMPARE(hit_ranking::cells(bets), cells);
}

void tst_table_frequency::a_row_per_kind_of_bet()
{
    frequency_desk desk(french);
    QCOMPARE(desk.window.windowTitle(), QString("Häufigkeit"));
    QCOMPARE(desk.table().columnCount(), 8);
    QStringList heads;
    for (int row = 0; row < desk.table().rowCount(); ++row)
        heads.append(desk.table().verticalHeaderItem(row)->text());
    QCOMPARE(heads,
             QStringList({" H-PL", " H-CH", " H-CA", " H-TP", " H-TS", " H-KL", " H-DZ", " H-EC"}));
    for (int row = 0; row < 8; ++row) {
        for (int column = 0; column < 8; ++column)
            QCOMPARE(desk.table().item(row, column)->flags(), Qt::NoItemFlags);
    }
}

// 17, 32, 32, 5: the bets of these numbers are listed in the test of the standard tables; 37 adds
// the places of the double zero.
void tst_table_frequency::the_kinds_show_their_most_frequent_bets_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("cells");
    const QVector<int> plain = {17, 32, 32, 5};
    const QVector<int> with_zeros = {37, 37, 37, 0, 32, 32};
    // clang-format off
    QTest::newRow("PL") << french << plain << int(PL) << filled_up({"32 (2)", "5 (1)", "17 (1)"});
    QTest::newRow("CH") << french << plain << int(CH)
        << QStringList{"32 (2)", "35 (2)", "57 (2)", "58 (2)", "5 (1)", "8 (1)", "17 (1)", "*"};
    QTest::newRow("CA") << french << plain << int(CA)
        << QStringList{"20 (2)", "21 (2)", "22 (2)", "23 (2)", "2 (1)", "3 (1)", "4 (1)", "*"};
    QTest::newRow("TP") << french << plain << int(TP) << filled_up({"13 (2)", "4 (1)", "8 (1)"});
    QTest::newRow("TS") << french << plain << int(TS)
        << filled_up({"10 (2)", "11 (2)", "1 (1)", "2 (1)", "5 (1)", "6 (1)"});
    QTest::newRow("KL") << french << plain << int(KL) << filled_up({"2 (4)"});
    QTest::newRow("DZ") << french << plain << int(DZ) << filled_up({"3 (2)", "1 (1)", "2 (1)"});
    // low 17 5, even 32 32, red 32 32 5, black 17, odd 17 5, high 32 32
    QTest::newRow("EC") << french << plain << int(EC)
        << filled_up({"3 (3)", "1 (2)", "2 (2)", "5 (2)", "6 (2)", "4 (1)"});
    QTest::newRow("A PL") << american << with_zeros << int(PL) << filled_up({"00 (3)", "32 (2)", "0 (1)"});
    // 0/00 holds both zeros; 0/1, 0/2 the zero
    QTest::newRow("A CH") << american << with_zeros << int(CH)
        << QStringList{"61 (4)", "62 (3)", "63 (3)", "32 (2)", "35 (2)", "57 (2)", "58 (2)", ""};
    QTest::newRow("A TP") << american << with_zeros << int(TP)
        << filled_up({"15 (4)", "16 (3)", "13 (2)", "1 (1)"});
    QTest::newRow("A CA") << american << with_zeros << int(CA)
        << filled_up({"1 (4)", "20 (2)", "21 (2)", "22 (2)", "23 (2)"});
    QTest::newRow("F zero") << french << QVector<int>{0, 0} << int(PL) << filled_up({"0 (2)"});
    // clang-format on
}

void tst_table_frequency::the_kinds_show_their_most_frequent_bets()
{
    QFETCH(table_form, form);
    QFETCH(QVector<int>, numbers);
    QFETCH(int, row);
    QFETCH(QStringList, cells);
    frequency_desk desk(form, numbers);
    QCOMPARE(desk.row(row), cells);
}

void tst_table_frequency::a_star_tells_that_the_row_goes_on()
{
    frequency_desk seven(french, {1, 2, 3, 4, 5, 6, 7});
    QCOMPARE(seven.row(PL).last(), QString());
    frequency_desk eight(french, {8, 1, 2, 3, 4, 5, 6, 7});
    QCOMPARE(eight.row(PL).first(), QString("1 (1)"));
    QCOMPARE(eight.row(PL).last(), QString("*"));
    frequency_desk leader(french, {8, 8, 1, 2, 3, 4, 5, 6, 7});
    QCOMPARE(leader.row(PL).first(), QString("8 (2)"));
    QCOMPARE(leader.row(PL).last(), QString("*"));
}

// The zero lies on CH01 to CH03, CH61, TP01, TP02 and TP15. The French table has no CH61 and TP15,
// the American one no CH03 and TP02.
void tst_table_frequency::bets_of_the_other_form_take_no_part()
{
    frequency_desk desk(french, {0, 0});
    QCOMPARE(desk.row(CH), filled_up({"1 (2)", "2 (2)", "3 (2)"}));
    QCOMPARE(desk.row(TP), filled_up({"1 (2)", "2 (2)"}));
    frequency_desk other(american, {0, 0});
    QCOMPARE(other.row(CH), filled_up({"1 (2)", "2 (2)", "61 (2)"}));
    QCOMPARE(other.row(TP), filled_up({"1 (2)", "15 (2)"}));
}

void tst_table_frequency::without_coups_the_cells_are_empty()
{
    frequency_desk desk(american);
    for (int row = 0; row < 8; ++row)
        QCOMPARE(desk.row(row), filled_up({}));
}

void tst_table_frequency::nothing_is_clipped_data()
{
    QTest::addColumn<double>("reduction");
    QTest::newRow("full") << 0.0;
    QTest::newRow("0.3") << 0.3;
}

void tst_table_frequency::nothing_is_clipped()
{
    QFETCH(double, reduction);
    QVector<int> numbers(1000, 17);
    for (int number = 1; number <= 36; ++number)
        numbers += QVector<int>(40, number);
    frequency_desk desk(american, numbers, reduction);
    desk.window.show();
    QCOMPARE(desk.read.clipped(), QStringList());
    QVERIFY(desk.read.is_of_good_size());
    // Behind the seventh number comes an equal one.
    QCOMPARE(desk.row(PL).last(), QString("*"));
}

void tst_table_frequency::large_numbers_have_their_room()
{
    for (const QString cell : {"63 (99999)", "63 (9999999)"}) {
        QTableWidget table;
        const QStringList cells = {cell, cell, cell, cell, cell, cell, cell, "*"};
        hit_ranking::show(table, {" H-PL"}, {cells}, 0.0);
        for (int column = 0; column < 7; ++column)
            QVERIFY(table.columnWidth(column) > table.fontMetrics().horizontalAdvance(cell) + 6);
        // Two tables beside each other need no scroll bar with up to five digits.
        if (cell == "63 (99999)") QVERIFY(table.maximumWidth() < 760);
    }
}

void tst_table_frequency::the_button_prints_the_group()
{
    frequency_desk desk(french, {1, 2});
    desk.window.show();
    auto* button = child_of<QPushButton>(desk.window, "PB_print");
    QCOMPARE(button->text(), QString("Drucken"));
    const auto* group = child_of<QGroupBox>(desk.window, "GB_frequency");
    QCOMPARE(printed_picture(*button), group->size() * desk.window.devicePixelRatioF());
}

void tst_table_frequency::the_table_is_copied()
{
    frequency_desk desk(french, {17, 17, 5});
    desk.window.show();
    QTest::keyClick(&desk.window, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 9);
    QCOMPARE(lines.at(0), QString("\t1\t2\t3\t4\t5\t6\t7\t8"));
    QCOMPARE(lines.at(1), QString("H-PL\t17 (2)\t5 (1)\t\t\t\t\t\t"));
    QCOMPARE(lines.at(6), QString("H-KL\t2 (3)\t\t\t\t\t\t\t"));
}

void tst_table_frequency::the_language_changes_live()
{
    frequency_desk desk(french);
    desk.window.setWindowTitle({});
    child_of<QPushButton>(desk.window, "PB_print")->setText({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.window.windowTitle(), QString("Häufigkeit"));
    QCOMPARE(child_of<QPushButton>(desk.window, "PB_print")->text(), QString("Drucken"));
}

int main(int argc, char** argv)
{
    // No printer of the machine may print what a test draws.
    qputenv("CUPS_SERVER", "/no/such/server");
    return run_window_test<tst_table_frequency>(argc, argv);
}

#include "tst_table_frequency.moc"
