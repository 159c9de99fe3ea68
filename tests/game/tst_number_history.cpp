#include "number_history.h"
#include "test_box.h"

using numbers = QList<int>;

class tst_number_history : public QObject
{
    Q_OBJECT

private slots:
    void last_numbers_stand_behind_empty_places_data();
    void last_numbers_stand_behind_empty_places();
    void a_million_coups_keep_their_order();
    void clearing_forgets_both_views();
    void only_numbers_and_marks_are_taken();
};

void tst_number_history::last_numbers_stand_behind_empty_places_data()
{
    QTest::addColumn<numbers>("fallen"); // the oldest first
    QTest::addColumn<int>("count");
    QTest::addColumn<numbers>("without_marks");
    QTest::addColumn<numbers>("with_marks");
    // clang-format off
    QTest::newRow("nothing fallen")    << numbers{} << 10 << numbers{} << numbers{};
    QTest::newRow("three of ten")      << numbers{5, 0, 37} << 10
                                       << numbers{-1, -1, -1, -1, -1, -1, -1, 5, 0, 37}
                                       << numbers{-1, -1, -1, -1, -1, -1, -1, 5, 0, 37};
    QTest::newRow("exactly enough")    << numbers{1, 2, 3} << 3
                                       << numbers{1, 2, 3} << numbers{1, 2, 3};
    QTest::newRow("newest of many")    << numbers{1, 2, 3} << 1 << numbers{3} << numbers{3};
    QTest::newRow("more than ten")     << numbers{1, 2} << 12
                                       << numbers{-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 1, 2}
                                       << numbers{-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 1, 2};
    QTest::newRow("a mark in between") << numbers{1, 99, 2} << 2 << numbers{1, 2} << numbers{99, 2};
    QTest::newRow("padded after marks left out")
                                       << numbers{99, 7, 99} << 3
                                       << numbers{-1, -1, 7} << numbers{99, 7, 99};
    QTest::newRow("marks alone")       << numbers{99, 99} << 3 << numbers{} << numbers{-1, 99, 99};
    QTest::newRow("none asked for")    << numbers{1, 2} << 0 << numbers{} << numbers{};
    QTest::newRow("fewer than none")   << numbers{1, 2} << -4 << numbers{} << numbers{};
    // clang-format on
}

void tst_number_history::last_numbers_stand_behind_empty_places()
{
    QFETCH(numbers, fallen);
    QFETCH(int, count);
    QFETCH(numbers, without_marks);
    QFETCH(numbers, with_marks);
    number_history history;
    for (const int number : fallen)
        history.add(number);
    QCOMPARE(history.last_numbers(count, false), without_marks);
    QCOMPARE(history.last_numbers(count, true), with_marks);
}

void tst_number_history::a_million_coups_keep_their_order()
{
    number_history history;
    for (int coup = 0; coup < 1'000'000; ++coup) {
        if (coup % 1000 == 0) history.add(99);
        history.add(coup % 37);
    }
    QCOMPARE(history.thrown().size(), size_t{1'000'000});
    QCOMPARE(history.all().size(), size_t{1'001'000});
    QCOMPARE(int{history.thrown()[123'456]}, 123'456 % 37);
    QCOMPARE(int{history.all()[1001]}, 99); // in front of coup 1000
    QCOMPARE(history.last_numbers(2, false), (numbers{999'998 % 37, 999'999 % 37}));
}

void tst_number_history::clearing_forgets_both_views()
{
    number_history history;
    history.add(3);
    history.add(99);
    history.clear();
    QVERIFY(history.thrown().empty());
    QVERIFY(history.all().empty());
    QCOMPARE(history.last_numbers(10, true), numbers{});
}

void tst_number_history::only_numbers_and_marks_are_taken()
{
    number_history history;
    for (const int value : {-1, 38, 98, 100, 255, 256, 355})
        history.add(value);
    QVERIFY(history.all().empty());
    QVERIFY(history.thrown().empty());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_number_history>(argc, argv);
}
#include "tst_number_history.moc"
