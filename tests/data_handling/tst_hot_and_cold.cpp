#include "number_records.h"
#include "statistic_data.h"
#include "test_box.h"

/// The order of the numbers from cold to hot, and its two ends.
class tst_hot_and_cold : public QObject
{
    Q_OBJECT

private slots:
    void ranks_are_ordered_by_hits_then_by_freshness_data();
    void ranks_are_ordered_by_hits_then_by_freshness();
    void the_ends_tell_hits_and_absence();
    void among_equal_hits_the_last_to_hit_is_hotter_data();
    void among_equal_hits_the_last_to_hit_is_hotter();
    void each_number_once();
    void before_the_first_coup_all_are_equal();
    void only_the_american_table_has_a_double_zero();
    void the_lists_are_as_long_as_asked_data();
    void the_lists_are_as_long_as_asked();
    void a_reset_makes_all_equal_again();
};

namespace
{

void play(statistic_data& store, const QList<int>& numbers)
{
    for (const int number : numbers)
        store.addtoStat(property_of(number), false);
}

/// "text hits since" of each rank.
QStringList told(const QList<statistic_number_rank>& ranks)
{
    QStringList lines;
    for (const statistic_number_rank& rank : ranks)
        lines.append(QString("%1 %2 %3").arg(rank.text).arg(rank.count).arg(-rank.negative_since));
    return lines;
}

QStringList texts(const QList<statistic_number_rank>& ranks)
{
    QStringList list;
    for (const statistic_number_rank& rank : ranks)
        list.append(rank.text);
    return list;
}

} // namespace

void tst_hot_and_cold::ranks_are_ordered_by_hits_then_by_freshness_data()
{
    QTest::addColumn<int>("left_count");
    QTest::addColumn<int>("left_since");
    QTest::addColumn<int>("right_count");
    QTest::addColumn<int>("right_since");
    QTest::addColumn<bool>("colder");
    // clang-format off
    QTest::newRow("fewer hits")                    << 1 << 5 << 2 << 5 << true;
    QTest::newRow("more hits")                     << 2 << 5 << 1 << 5 << false;
    QTest::newRow("fewer hits, though fresher")    << 1 << 0 << 2 << 9 << true;
    QTest::newRow("more hits, though longer away") << 2 << 9 << 1 << 0 << false;
    QTest::newRow("longer away")                   << 2 << 9 << 2 << 3 << true;
    QTest::newRow("fresher")                       << 2 << 3 << 2 << 9 << false;
    QTest::newRow("equal")                         << 2 << 3 << 2 << 3 << false;
    // clang-format on
}

void tst_hot_and_cold::ranks_are_ordered_by_hits_then_by_freshness()
{
    QFETCH(int, left_count);
    QFETCH(int, left_since);
    QFETCH(int, right_count);
    QFETCH(int, right_since);
    QFETCH(bool, colder);
    // The text has no say, whichever way it would sort.
    for (const bool first_text_is_left : {true, false}) {
        const QString left_text = first_text_is_left ? "1" : "2";
        const QString right_text = first_text_is_left ? "2" : "1";
        const statistic_number_rank left{left_count, left_text, -left_since};
        const statistic_number_rank right{right_count, right_text, -right_since};
        QCOMPARE(left < right, colder);
    }
}

void tst_hot_and_cold::the_ends_tell_hits_and_absence()
{
    statistic_data store;
    play(store, {5, 9, 5, 7, 9, 5, 8});
    const hot_and_cold_numbers ends = store.hot_and_cold(4);
    QCOMPARE(told(ends.hot), (QStringList{"5 3 1", "9 2 2", "8 1 0", "7 1 3"}));
    QCOMPARE(told(ends.cold), (QStringList{"0 0 7", "1 0 7", "2 0 7", "3 0 7"}));
}

void tst_hot_and_cold::among_equal_hits_the_last_to_hit_is_hotter_data()
{
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QStringList>("hot");
    using list = QList<int>;
    // clang-format off
    QTest::newRow("once, higher last")  << list{4, 30}         << QStringList{"30", "4"};
    QTest::newRow("once, lower last")   << list{30, 4}         << QStringList{"4", "30"};
    QTest::newRow("twice, higher last") << list{30, 4, 4, 30}  << QStringList{"30", "4"};
    QTest::newRow("twice, lower last")  << list{4, 30, 30, 4}  << QStringList{"4", "30"};
    QTest::newRow("the zero last")      << list{36, 0}         << QStringList{"0", "36"};
    // clang-format on
}

void tst_hot_and_cold::among_equal_hits_the_last_to_hit_is_hotter()
{
    QFETCH(QList<int>, numbers);
    QFETCH(QStringList, hot);
    statistic_data store;
    play(store, numbers);
    QCOMPARE(texts(store.hot_and_cold(2).hot), hot);
}

void tst_hot_and_cold::each_number_once()
{
    statistic_data upwards;
    statistic_data downwards;
    for (int number = 0; number <= 36; ++number) {
        play(upwards, {number});
        play(downwards, {36 - number});
    }
    const QStringList low = {"0 1 36", "1 1 35", "2 1 34", "3 1 33"};
    const QStringList high = {"36 1 0", "35 1 1", "34 1 2", "33 1 3"};
    QCOMPARE(told(upwards.hot_and_cold(4).hot), high);
    QCOMPARE(told(upwards.hot_and_cold(4).cold), low);
    QCOMPARE(texts(downwards.hot_and_cold(4).hot), (QStringList{"0", "1", "2", "3"}));
    QCOMPARE(texts(downwards.hot_and_cold(4).cold), (QStringList{"36", "35", "34", "33"}));
}

void tst_hot_and_cold::before_the_first_coup_all_are_equal()
{
    const statistic_data store;
    const hot_and_cold_numbers ends = store.hot_and_cold(4);
    QCOMPARE(told(ends.cold), (QStringList{"0 0 0", "1 0 0", "2 0 0", "3 0 0"}));
    QCOMPARE(told(ends.hot), (QStringList{"36 0 0", "35 0 0", "34 0 0", "33 0 0"}));
}

void tst_hot_and_cold::only_the_american_table_has_a_double_zero()
{
    statistic_data store;
    QVERIFY(!texts(store.hot_and_cold(38).cold).contains("00"));
    store.set_table_form(table_form::american);
    play(store, {37, 0, 37, 12, 37, 0});
    const hot_and_cold_numbers ends = store.hot_and_cold(4);
    QCOMPARE(told(ends.hot), (QStringList{"00 3 1", "0 2 0", "12 1 2", "36 0 6"}));
    QCOMPARE(texts(ends.cold), (QStringList{"1", "2", "3", "4"}));
    QCOMPARE(texts(store.hot_and_cold(38).cold).last(), QString("00"));
}

void tst_hot_and_cold::the_lists_are_as_long_as_asked_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("given");
    // clang-format off
    QTest::newRow("none")                << table_form::french   <<   0 <<  0;
    QTest::newRow("below none")          << table_form::french   <<  -1 <<  0;
    QTest::newRow("four")                << table_form::french   <<   4 <<  4;
    QTest::newRow("all, French")         << table_form::french   <<  37 << 37;
    QTest::newRow("too many, French")    << table_form::french   <<  38 << 37;
    QTest::newRow("all, American")       << table_form::american <<  38 << 38;
    QTest::newRow("too many, American")  << table_form::american << 100 << 38;
    // clang-format on
}

void tst_hot_and_cold::the_lists_are_as_long_as_asked()
{
    QFETCH(table_form, form);
    QFETCH(int, asked);
    QFETCH(int, given);
    statistic_data store;
    store.set_table_form(form);
    play(store, {17});
    QCOMPARE(store.hot_and_cold(asked).hot.size(), given);
    QCOMPARE(store.hot_and_cold(asked).cold.size(), given);
}

void tst_hot_and_cold::a_reset_makes_all_equal_again()
{
    statistic_data store;
    store.set_table_form(table_form::american);
    play(store, {17, 17, 5});
    store.resetStatisticStorage();
    QCOMPARE(told(store.hot_and_cold(2).hot), (QStringList{"00 0 0", "36 0 0"}));
    play(store, {5});
    QCOMPARE(told(store.hot_and_cold(2).hot), (QStringList{"5 1 0", "00 0 1"}));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_hot_and_cold>(argc, argv);
}

#include "tst_hot_and_cold.moc"
