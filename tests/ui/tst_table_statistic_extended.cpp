#include "statistic_tables.h"
#include "table_statistic_extended.h"

#include <QGroupBox>

namespace
{

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;

const QVector<int> french_numbers = {17, 0, 32, 32, 5, 0};
const QVector<int> american_numbers = {17, 0, 32, 32, 5, 37};

const QStringList one = {"TW_EN_1_19", "TW_EN_20_36"};
const QStringList two = {"TW_ZN_1_19", "TW_ZN_20_36"};
const QStringList three = {"TW_DN_1_19", "TW_DN_20_36"};
const QStringList finals = {"TW_FI"};
const QStringList sectors = {"TW_AN"};

struct extended_desk : statistic_desk {
    explicit extended_desk(int type,
                           table_form form = french,
                           const QVector<int>& numbers = {},
                           double reduction = 0.0)
        : statistic_desk(form, numbers)
        , window(type, store, reduction, settings)
        , read(window)
    {
    }

    table_statistic_extended window;
    table_reader read;
};

/// The texts of the numbers from 0 on, all the same but for a few; 37 is the double zero.
QStringList texts_of_numbers(table_form form, int same, const QMap<int, int>& others)
{
    QStringList texts;
    for (int number = 0; number < (form == american ? 38 : 37); ++number)
        texts.append(QString::number(others.value(number, same)));
    return texts;
}

QVector<int> places_with(const QStringList& texts, const QString& text)
{
    QVector<int> places;
    for (int place = 1; place <= texts.size(); ++place)
        if (texts.at(place - 1) == text) places.append(place);
    return places;
}

/// Numbers with a common value.
void give(QMap<int, int>& values, int value, const QVector<int>& numbers)
{
    for (const int number : numbers)
        values[number] = value;
}

} // namespace

class tst_table_statistic_extended : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void the_title_tells_the_type();
    void the_tables_have_their_heads_data();
    void the_tables_have_their_heads();

    void hits_stand_in_the_cells_data();
    void hits_stand_in_the_cells();
    void coups_since_the_last_hit_stand_in_the_cells_data();
    void coups_since_the_last_hit_stand_in_the_cells();
    void without_coups_nothing_is_bold();

    void nothing_is_clipped_data();
    void nothing_is_clipped();
    void the_button_prints_the_group();
    void the_table_is_copied();
    void the_language_changes_live();

private:
    void look_into(int type);
};

void tst_table_statistic_extended::initTestCase()
{
    if (has_printer()) QFAIL("the test would print on real paper");
    take_font_of_design();
}

void tst_table_statistic_extended::the_title_tells_the_type()
{
    QCOMPARE(extended_desk(0).window.windowTitle(), QString("Annoncen - Wie oft?"));
    QCOMPARE(extended_desk(1).window.windowTitle(), QString("Annoncen - Seit wann nicht?"));
}

void tst_table_statistic_extended::the_tables_have_their_heads_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("columns"); // of the second tables
    QTest::addColumn<QString>("last");
    QTest::newRow("French") << french << 18 << "36";
    QTest::newRow("American") << american << 19 << "00";
}

void tst_table_statistic_extended::the_tables_have_their_heads()
{
    QFETCH(table_form, form);
    QFETCH(int, columns);
    QFETCH(QString, last);
    extended_desk desk(0, form);
    const auto* group = child_of<QGroupBox>(desk.window, "GB_extended");
    QCOMPARE(group->findChildren<QTableWidget*>().size(), 9);
    QCOMPARE(desk.read.heads({"TW_General"}), QStringList{"Coups"});
    QCOMPARE(desk.read.heads(finals),
             QStringList({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    QCOMPARE(desk.read.heads(sectors), QStringList({"GS", "KS", "OR", "OP", "ZS"}));
    QStringList numbers = QStringList{"0"} + two_digit_heads(36);
    if (form == american) numbers.append("00");
    for (const QStringList& tables : {one, two, three}) {
        QCOMPARE(desk.read.heads(tables), numbers);
        QCOMPARE(desk.read.table(tables.at(0)).columnCount(), 19);
        QCOMPARE(desk.read.table(tables.at(1)).columnCount(), columns);
        QCOMPARE(desk.read.heads({tables.at(1)}).last(), last);
    }
    QCOMPARE(desk.read.label("LB_one_neighbor"), QString("Ein Nachbar (EN00 - EN37)"));
    QCOMPARE(desk.read.label("LB_two_neighbor"), QString("Zwei Nachbarn (ZN00 - ZN37)"));
    QCOMPARE(desk.read.label("LB_three_neighbor"), QString("Drei Nachbarn (DN00 - DN37)"));
    QCOMPARE(desk.read.label("LB_finale"), QString("Finale (FI00 - FI09)"));
}

// French wheel round the numbers: 21 2 25 17 34 6 27, 8 23 10 5 24 16 33 and
// 35 3 26 0 32 15 19 4. American: 11 7 20 32 17 5 22 34 15, 35 14 2 0 28 9 26 and
// 36 13 1 00 27 10 25.
void tst_table_statistic_extended::hits_stand_in_the_cells_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QStringList>("tables");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QVector<int>>("bold");
    const auto row = [](const char* name,
                        table_form form,
                        const QStringList& tables,
                        const QStringList& values,
                        const QString& most) {
        QTest::newRow(name) << form << tables << values << places_with(values, most);
    };
    QMap<int, int> french_one; // 0 twice, 32 twice, 17 and 5 once
    give(french_one, 1, {25, 17, 34, 10, 5, 24});
    give(french_one, 2, {26, 15});
    give(french_one, 4, {0, 32});
    QMap<int, int> french_two;
    give(french_two, 1, {2, 25, 17, 34, 6, 23, 10, 5, 24, 16});
    give(french_two, 2, {3, 19});
    give(french_two, 4, {26, 0, 32, 15});
    QMap<int, int> french_three;
    give(french_three, 1, {21, 2, 25, 17, 34, 6, 27, 8, 23, 10, 5, 24, 16, 33});
    give(french_three, 2, {35, 4});
    give(french_three, 4, {3, 26, 0, 32, 15, 19});
    QMap<int, int> american_one; // 17, 32, 5 are neighbours: 32 twice, the others once
    give(american_one, 1, {2, 0, 28, 1, 37, 27, 22});
    give(american_one, 2, {20, 5});
    give(american_one, 3, {32});
    give(american_one, 4, {17});
    QMap<int, int> american_two;
    give(american_two, 1, {14, 2, 0, 28, 9, 13, 1, 37, 27, 10, 34});
    give(american_two, 2, {7, 22});
    give(american_two, 3, {20});
    give(american_two, 4, {32, 17, 5});
    QMap<int, int> american_three;
    give(american_three, 1, {35, 14, 2, 0, 28, 9, 26, 36, 13, 1, 37, 27, 10, 25, 15});
    give(american_three, 2, {11, 34});
    give(american_three, 3, {7});
    give(american_three, 4, {20, 32, 17, 5, 22});
    // clang-format off
    row("F coups", french,   {"TW_General"}, {"6"}, "6");
    row("A coups", american, {"TW_General"}, {"6"}, "6");
    // 00 belongs to the final 0
    row("F FI", french,   finals,  {"2", "0", "2", "0", "0", "1", "0", "1", "0", "0"}, "2");
    row("A FI", american, finals,  {"2", "0", "2", "0", "0", "1", "0", "1", "0", "0"}, "2");
    // 17 is an orphan, 5 lies in the small series, 0 and 32 in the big one and the zero game
    row("F AN", french,   sectors, {"4", "1", "1", "1", "4"}, "4");
    row("F EN", french,   one,   texts_of_numbers(french, 0, french_one), "4");
    row("F ZN", french,   two,   texts_of_numbers(french, 0, french_two), "4");
    row("F DN", french,   three, texts_of_numbers(french, 0, french_three), "4");
    row("A EN", american, one,   texts_of_numbers(american, 0, american_one), "4");
    row("A ZN", american, two,   texts_of_numbers(american, 0, american_two), "4");
    row("A DN", american, three, texts_of_numbers(american, 0, american_three), "4");
    // clang-format on
}

void tst_table_statistic_extended::hits_stand_in_the_cells()
{
    look_into(0);
}

// Of 6 coups: 17 was the first, 32 the fourth, 5 the fifth; zero was the last of the French ones
// and the second of the American ones, whose last was 00.
void tst_table_statistic_extended::coups_since_the_last_hit_stand_in_the_cells_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QStringList>("tables");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QVector<int>>("bold");
    const auto row = [](const char* name,
                        table_form form,
                        const QStringList& tables,
                        const QStringList& values,
                        const QString& most) {
        QTest::newRow(name) << form << tables << values << places_with(values, most);
    };
    QMap<int, int> french_one;
    give(french_one, 5, {25, 17, 34});
    give(french_one, 0, {26, 0, 32});
    give(french_one, 2, {15});
    give(french_one, 1, {10, 5, 24});
    QMap<int, int> french_two;
    give(french_two, 5, {2, 25, 17, 34, 6});
    give(french_two, 0, {3, 26, 0, 32, 15});
    give(french_two, 2, {19});
    give(french_two, 1, {23, 10, 5, 24, 16});
    QMap<int, int> french_three;
    give(french_three, 5, {21, 2, 25, 17, 34, 6, 27});
    give(french_three, 0, {35, 3, 26, 0, 32, 15, 19});
    give(french_three, 2, {4});
    give(french_three, 1, {8, 23, 10, 5, 24, 16, 33});
    QMap<int, int> american_one; // the later coup overwrites the earlier one
    give(american_one, 5, {32, 17, 5});
    give(american_one, 4, {2, 0, 28});
    give(american_one, 2, {20, 32, 17});
    give(american_one, 1, {17, 5, 22});
    give(american_one, 0, {1, 37, 27});
    QMap<int, int> american_two;
    give(american_two, 5, {20, 32, 17, 5, 22});
    give(american_two, 4, {14, 2, 0, 28, 9});
    give(american_two, 2, {7, 20, 32, 17, 5});
    give(american_two, 1, {32, 17, 5, 22, 34});
    give(american_two, 0, {13, 1, 37, 27, 10});
    QMap<int, int> american_three;
    give(american_three, 5, {7, 20, 32, 17, 5, 22, 34});
    give(american_three, 4, {35, 14, 2, 0, 28, 9, 26});
    give(american_three, 2, {11, 7, 20, 32, 17, 5, 22});
    give(american_three, 1, {20, 32, 17, 5, 22, 34, 15});
    give(american_three, 0, {36, 13, 1, 37, 27, 10, 25});
    // clang-format off
    row("F FI", french,   finals,  {"0", "6", "2", "6", "6", "1", "6", "5", "6", "6"}, "6");
    row("A FI", american, finals,  {"0", "6", "2", "6", "6", "1", "6", "5", "6", "6"}, "6");
    row("F AN", french,   sectors, {"0", "1", "5", "5", "0"}, "5");
    row("F EN", french,   one,   texts_of_numbers(french, 6, french_one), "6");
    row("F ZN", french,   two,   texts_of_numbers(french, 6, french_two), "6");
    row("F DN", french,   three, texts_of_numbers(french, 6, french_three), "6");
    row("A EN", american, one,   texts_of_numbers(american, 6, american_one), "6");
    row("A ZN", american, two,   texts_of_numbers(american, 6, american_two), "6");
    row("A DN", american, three, texts_of_numbers(american, 6, american_three), "6");
    // clang-format on
}

void tst_table_statistic_extended::coups_since_the_last_hit_stand_in_the_cells()
{
    look_into(1);
}

void tst_table_statistic_extended::look_into(int type)
{
    QFETCH(table_form, form);
    QFETCH(QStringList, tables);
    QFETCH(QStringList, values);
    QFETCH(QVector<int>, bold);
    extended_desk desk(type, form, form == french ? french_numbers : american_numbers);
    QCOMPARE(desk.read.values(tables), values);
    QCOMPARE(desk.read.bold(tables), bold);
}

void tst_table_statistic_extended::without_coups_nothing_is_bold()
{
    for (const int type : {0, 1}) {
        extended_desk desk(type, american);
        for (const QStringList& tables :
             {QStringList{"TW_General"}, finals, sectors, one, two, three}) {
            for (const QString& text : desk.read.values(tables))
                QCOMPARE(text, QString("0"));
            QCOMPARE(desk.read.bold(tables), QVector<int>());
        }
    }
}

void tst_table_statistic_extended::nothing_is_clipped_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<double>("reduction");
    QTest::newRow("French") << french << 0.0;
    QTest::newRow("American") << american << 0.0;
    QTest::newRow("French 0.2") << french << 0.2;
    QTest::newRow("American 0.3") << american << 0.3;
}

void tst_table_statistic_extended::nothing_is_clipped()
{
    QFETCH(table_form, form);
    QFETCH(double, reduction);
    extended_desk desk(0, form, QVector<int>(1000, 17), reduction);
    desk.window.show();
    QCOMPARE(desk.read.clipped(), QStringList());
    QVERIFY(desk.read.is_of_good_size());
}

void tst_table_statistic_extended::the_button_prints_the_group()
{
    extended_desk desk(1, french, french_numbers);
    desk.window.show();
    auto* button = child_of<QPushButton>(desk.window, "PB_print");
    QCOMPARE(button->text(), QString("Print"));
    const auto* group = child_of<QGroupBox>(desk.window, "GB_extended");
    QCOMPARE(printed_picture(*button), group->size() * desk.window.devicePixelRatioF());
}

void tst_table_statistic_extended::the_table_is_copied()
{
    extended_desk desk(0, french, french_numbers);
    desk.window.show();
    QTest::keyClick(&desk.window, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 2 + 8 * 3); // the coups have no label
    QCOMPARE(lines.mid(0, 8),
             QStringList({"Coups",
                          "6",
                          "Finale (FI00 - FI09)",
                          "0\t1\t2\t3\t4\t5\t6\t7\t8\t9",
                          "2\t0\t2\t0\t0\t1\t0\t1\t0\t0",
                          "Annoncen (GS, KS, OR, OP, ZS)",
                          "GS\tKS\tOR\tOP\tZS",
                          "4\t1\t1\t1\t4"}));
}

void tst_table_statistic_extended::the_language_changes_live()
{
    extended_desk desk(1);
    desk.window.setWindowTitle({});
    child_of<QPushButton>(desk.window, "PB_print")->setText({});
    child_of<QLabel>(desk.window, "LB_one_neighbor")->clear();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.window.windowTitle(), QString("Annoncen - Seit wann nicht?"));
    QCOMPARE(child_of<QPushButton>(desk.window, "PB_print")->text(), QString("Print"));
    QCOMPARE(desk.read.label("LB_one_neighbor"), QString("Ein Nachbar (EN00 - EN37)"));
}

int main(int argc, char** argv)
{
    // No printer of the machine may print what a test draws.
    qputenv("CUPS_SERVER", "/no/such/server");
    return run_window_test<tst_table_statistic_extended>(argc, argv);
}

#include "tst_table_statistic_extended.moc"
