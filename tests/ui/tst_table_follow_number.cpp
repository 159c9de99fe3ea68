#include "statistic_tables.h"
#include "table_follow_number.h"

#include <QGroupBox>

namespace
{

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;

const QString first_table = "TW_follow_number_0_18";
const QString second_table = "TW_follow_number_19_36";

struct follow_desk : statistic_desk {
    explicit follow_desk(table_form form, const QVector<int>& numbers = {}, double reduction = 0.0)
        : statistic_desk(form, numbers)
        , window(store, reduction, settings)
        , read(window)
    {
    }

    /// The cells of a number that are not empty; 37 is the double zero.
    QStringList followers(int number)
    {
        const bool is_in_first = number <= 18;
        const int row = is_in_first ? number : number - 19;
        QStringList cells = read.row({is_in_first ? first_table : second_table}, row);
        while (!cells.isEmpty() && cells.last().isEmpty())
            cells.removeLast();
        return cells;
    }
    QStringList row_heads(const QString& name)
    {
        QStringList heads;
        for (int row = 0; row < read.table(name).rowCount(); ++row)
            heads.append(read.table(name).verticalHeaderItem(row)->text());
        return heads;
    }

    table_follow_number window;
    table_reader read;
};

QStringList numbers_between(int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number)
        texts.append(QString::number(number));
    return texts;
}

} // namespace

class tst_table_follow_number : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void a_row_per_number_data();
    void a_row_per_number();
    void the_followers_of_each_number_are_shown_data();
    void the_followers_of_each_number_are_shown();
    void a_star_tells_that_the_row_goes_on();
    void the_first_coup_follows_nothing();

    void nothing_is_clipped_data();
    void nothing_is_clipped();
    void the_button_prints_the_group();
    void the_table_is_copied();
    void the_language_changes_live();
};

void tst_table_follow_number::initTestCase()
{
    if (has_printer()) QFAIL("the test would print on real paper");
    take_font_of_design();
}

void tst_table_follow_number::a_row_per_number_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QStringList>("second");
    QTest::newRow("French") << french << numbers_between(19, 36);
    QTest::newRow("American") << american << numbers_between(19, 36) + QStringList{"00"};
}

void tst_table_follow_number::a_row_per_number()
{
    QFETCH(table_form, form);
    QFETCH(QStringList, second);
    follow_desk desk(form);
    QCOMPARE(desk.window.windowTitle(), QString("Folgezahlen"));
    QCOMPARE(desk.row_heads(first_table), numbers_between(0, 18));
    QCOMPARE(desk.row_heads(second_table), second);
    for (const QString& name : {first_table, second_table}) {
        QStringList heads;
        for (int column = 0; column < desk.read.table(name).columnCount(); ++column)
            heads.append(desk.read.table(name).horizontalHeaderItem(column)->text());
        QCOMPARE(heads, QStringList({"  1", "  2", "  3", "  4", "  5", "  6", "  7", "  8"}));
    }
}

// Pairs of 17 0 32 32 5 37 17 0 32 17: 17-0 twice, 0-32 twice, 32-32, 32-5, 5-37, 37-17, 32-17.
void tst_table_follow_number::the_followers_of_each_number_are_shown_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("cells");
    QTest::newRow("17") << 17 << QStringList{"0 (2)"};
    QTest::newRow("0") << 0 << QStringList{"32 (2)"};
    QTest::newRow("32") << 32 << QStringList{"5 (1)", "17 (1)", "32 (1)"};
    QTest::newRow("5") << 5 << QStringList{"00 (1)"};
    QTest::newRow("00") << 37 << QStringList{"17 (1)"};
    QTest::newRow("1") << 1 << QStringList{};
    QTest::newRow("36") << 36 << QStringList{};
}

void tst_table_follow_number::the_followers_of_each_number_are_shown()
{
    QFETCH(int, number);
    QFETCH(QStringList, cells);
    follow_desk desk(american, {17, 0, 32, 32, 5, 37, 17, 0, 32, 17});
    QCOMPARE(desk.followers(number), cells);
}

void tst_table_follow_number::a_star_tells_that_the_row_goes_on()
{
    QVector<int> numbers;
    for (int follower = 1; follower <= 7; ++follower)
        numbers += {20, follower};
    follow_desk seven(french, numbers);
    QCOMPARE(seven.followers(20).size(), 7);
    QCOMPARE(seven.followers(20).first(), QString("1 (1)"));
    follow_desk eight(french, numbers + QVector<int>{20, 36});
    QCOMPARE(eight.followers(20).size(), 8);
    QCOMPARE(eight.followers(20).last(), QString("*"));
}

void tst_table_follow_number::the_first_coup_follows_nothing()
{
    follow_desk desk(french, {4});
    for (int number = 0; number <= 36; ++number)
        QCOMPARE(desk.followers(number), QStringList());
}

void tst_table_follow_number::nothing_is_clipped_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<double>("reduction");
    QTest::newRow("French") << french << 0.0;
    QTest::newRow("American 0.3") << american << 0.3;
}

void tst_table_follow_number::nothing_is_clipped()
{
    QFETCH(table_form, form);
    QFETCH(double, reduction);
    follow_desk desk(form, QVector<int>(10001, 36), reduction);
    desk.window.show();
    QCOMPARE(desk.followers(36), QStringList{"36 (10000)"});
    QCOMPARE(desk.read.clipped(), QStringList());
    QVERIFY(desk.read.is_of_good_size());
}

void tst_table_follow_number::the_button_prints_the_group()
{
    follow_desk desk(french, {1, 2});
    desk.window.show();
    auto* button = child_of<QPushButton>(desk.window, "PB_print");
    QCOMPARE(button->text(), QString("Drucken"));
    const auto* group = child_of<QGroupBox>(desk.window, "GB_follow_number");
    QCOMPARE(printed_picture(*button), group->size() * desk.window.devicePixelRatioF());
}

void tst_table_follow_number::the_table_is_copied()
{
    follow_desk desk(american, {17, 0, 37, 37});
    desk.window.show();
    QTest::keyClick(&desk.window, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 1 + 38);
    QCOMPARE(lines.at(0), QString("\t1\t2\t3\t4\t5\t6\t7\t8"));
    QCOMPARE(lines.at(1), QString("0\t00 (1)\t\t\t\t\t\t\t"));
    QCOMPARE(lines.at(18), QString("17\t0 (1)\t\t\t\t\t\t\t"));
    QCOMPARE(lines.at(38), QString("00\t00 (1)\t\t\t\t\t\t\t"));
}

void tst_table_follow_number::the_language_changes_live()
{
    follow_desk desk(french);
    desk.window.setWindowTitle({});
    child_of<QPushButton>(desk.window, "PB_print")->setText({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.window.windowTitle(), QString("Folgezahlen"));
    QCOMPARE(child_of<QPushButton>(desk.window, "PB_print")->text(), QString("Drucken"));
}

int main(int argc, char** argv)
{
    // No printer of the machine may print what a test draws.
    qputenv("CUPS_SERVER", "/no/such/server");
    return run_window_test<tst_table_follow_number>(argc, argv);
}

#include "tst_table_follow_number.moc"
