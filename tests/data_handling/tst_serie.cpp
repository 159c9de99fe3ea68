#include "jetons.h"
#include "serie.h"
#include "test_box.h"

#include <random>

/// Run lengths, counted when a run ends.
class tst_serie : public QObject
{
    Q_OBJECT

private slots:
    void a_fresh_serie_counts_nothing();
    void values_give_the_runs_that_ended_data();
    void values_give_the_runs_that_ended();
    void a_run_that_ends_by_a_new_value_grows_the_histogram_data();
    void a_run_that_ends_by_a_new_value_grows_the_histogram();
    void a_run_that_ends_by_a_zero_grows_the_histogram_too_data();
    void a_run_that_ends_by_a_zero_grows_the_histogram_too();
    void only_the_histogram_of_the_run_grows();
    void an_unknown_value_neither_counts_nor_ends_a_run();
    void a_reset_forgets_the_run_in_progress_and_all_counts();
    void announcements_are_counted_the_same_way();
    void random_values_give_the_runs_of_a_plain_count();
};

namespace
{

using jeton_serie = serie<jetons::jeton_names>;

/// The histogram without its empty end.
QList<int> without_end(QList<int> histogram)
{
    while (!histogram.isEmpty() && histogram.last() == 0)
        histogram.removeLast();
    return histogram;
}

/// A pair serie fed with the values of a text: "A" low, "B" high, "0" a zero, "x" no value.
jeton_serie fed_with(const QString& values)
{
    jeton_serie runs({jetons::EC01, jetons::EC06});
    for (const QChar value : values) {
        if (value == 'A') runs.add(jetons::EC01);
        if (value == 'B') runs.add(jetons::EC06);
        if (value == 'x') runs.add(jetons::NO_JETON);
        if (value == '0') runs.close_run();
    }
    return runs;
}

void add_growth_rows()
{
    QTest::addColumn<int>("run");  // coups of one side before it ends
    QTest::addColumn<int>("size"); // entries of the histogram after it
    // clang-format off
    QTest::newRow("shortest")          <<  1 << 20;
    QTest::newRow("longest that fits") << 19 << 20;
    QTest::newRow("first that grows")  << 20 << 30;
    QTest::newRow("far beyond")        << 57 << 67;
    // clang-format on
}

/// True when exactly one run of this length is counted, in a histogram of this size.
bool counts_one_run(const QList<int>& histogram, int run, int size)
{
    return histogram.size() == size && histogram.at(run) == 1 && histogram.count(0) == size - 1;
}

} // namespace

void tst_serie::a_fresh_serie_counts_nothing()
{
    const jeton_serie runs({jetons::KL01, jetons::KL02, jetons::KL03});
    for (const auto key : {jetons::KL01, jetons::KL02, jetons::KL03}) {
        QCOMPARE(runs.get(key).size(), 20);
        QCOMPARE(runs.get(key).count(0), 20);
    }
}

void tst_serie::values_give_the_runs_that_ended_data()
{
    QTest::addColumn<QString>("values");
    QTest::addColumn<QList<int>>("runs_of_a"); // by length, from 0
    QTest::addColumn<QList<int>>("runs_of_b");
    using list = QList<int>;
    // clang-format off
    QTest::newRow("nothing")               << ""            << list{}        << list{};
    QTest::newRow("open run")              << "AAA"         << list{}        << list{};
    QTest::newRow("ended by the other")    << "AAB"         << list{0, 0, 1} << list{};
    QTest::newRow("ended by a zero")       << "AA0"         << list{0, 0, 1} << list{};
    QTest::newRow("zero without a run")    << "0"           << list{}        << list{};
    QTest::newRow("two zeros")             << "A00"         << list{0, 1}    << list{};
    QTest::newRow("a zero parts a run")    << "A0AA0"       << list{0, 1, 1} << list{};
    QTest::newRow("same value after zero") << "A0AB"        << list{0, 2}    << list{};
    QTest::newRow("both sides")            << "ABBAAAB"     << list{0, 1, 0, 1} << list{0, 0, 1};
    QTest::newRow("to and fro")            << "ABABAB0"     << list{0, 3}    << list{0, 3};
    QTest::newRow("all ended")             << "AABBB0"      << list{0, 0, 1} << list{0, 0, 0, 1};
    // clang-format on
}

void tst_serie::values_give_the_runs_that_ended()
{
    QFETCH(QString, values);
    QFETCH(QList<int>, runs_of_a);
    QFETCH(QList<int>, runs_of_b);
    const jeton_serie runs = fed_with(values);
    QCOMPARE(without_end(runs.get(jetons::EC01)), runs_of_a);
    QCOMPARE(without_end(runs.get(jetons::EC06)), runs_of_b);
}

void tst_serie::a_run_that_ends_by_a_new_value_grows_the_histogram_data()
{
    add_growth_rows();
}

void tst_serie::a_run_that_ends_by_a_new_value_grows_the_histogram()
{
    QFETCH(int, run);
    QFETCH(int, size);
    const jeton_serie runs = fed_with(QString(run, 'A') + 'B');
    QVERIFY(counts_one_run(runs.get(jetons::EC01), run, size));
}

void tst_serie::a_run_that_ends_by_a_zero_grows_the_histogram_too_data()
{
    add_growth_rows();
}

void tst_serie::a_run_that_ends_by_a_zero_grows_the_histogram_too()
{
    QFETCH(int, run);
    QFETCH(int, size);
    const jeton_serie runs = fed_with(QString(run, 'A') + '0');
    QVERIFY(counts_one_run(runs.get(jetons::EC01), run, size));
}

void tst_serie::only_the_histogram_of_the_run_grows()
{
    const jeton_serie runs = fed_with(QString(25, 'A') + 'B' + QString(20, 'A') + '0');
    const QList<int> of_a = runs.get(jetons::EC01);
    QCOMPARE(of_a.size(), 35);
    QCOMPARE(of_a.at(20), 1);
    QCOMPARE(of_a.at(25), 1);
    QCOMPARE(of_a.count(0), 33);
    QVERIFY(counts_one_run(runs.get(jetons::EC06), 1, 20));
}

void tst_serie::an_unknown_value_neither_counts_nor_ends_a_run()
{
    const jeton_serie runs = fed_with("xAxAxxBx0x");
    QCOMPARE(without_end(runs.get(jetons::EC01)), (QList<int>{0, 0, 1}));
    QCOMPARE(without_end(runs.get(jetons::EC06)), (QList<int>{0, 1}));
}

void tst_serie::a_reset_forgets_the_run_in_progress_and_all_counts()
{
    jeton_serie runs = fed_with(QString(25, 'A') + "BBB");
    runs.reset();
    for (const auto key : {jetons::EC01, jetons::EC06}) {
        QCOMPARE(runs.get(key).size(), 20);
        QCOMPARE(runs.get(key).count(0), 20);
    }
    runs.add(jetons::EC06);
    runs.close_run();
    QCOMPARE(without_end(runs.get(jetons::EC06)), (QList<int>{0, 1}));
}

void tst_serie::announcements_are_counted_the_same_way()
{
    serie<jetons::ext_jeton_names> sectors({jetons::GS, jetons::KS, jetons::OR});
    for (const auto sector : {jetons::GS, jetons::GS, jetons::OR, jetons::OP, jetons::KS}) {
        sectors.add(sector);
    }
    QCOMPARE(without_end(sectors.get(jetons::GS)), (QList<int>{0, 0, 1}));
    QCOMPARE(without_end(sectors.get(jetons::OR)), (QList<int>{0, 1}));
    QCOMPARE(without_end(sectors.get(jetons::KS)), QList<int>{});
}

void tst_serie::random_values_give_the_runs_of_a_plain_count()
{
    std::mt19937 twister(7);
    QString values;
    for (int coup = 0; coup < 3000; ++coup)
        values += "AAAAAAAAABBBB0x"[twister() % 15];
    values += '0';

    // The second way: cut the text at every change and measure the pieces.
    QMap<QChar, QMap<int, int>> runs_by_length;
    QString played = values;
    played.remove('x');
    for (int begin = 0; begin < played.size();) {
        int end = begin;
        while (end < played.size() && played.at(end) == played.at(begin))
            ++end;
        ++runs_by_length[played.at(begin)][end - begin];
        begin = end;
    }
    const jeton_serie runs = fed_with(values);
    const QList<int> of_a = runs.get(jetons::EC01);
    const QList<int> of_b = runs.get(jetons::EC06);
    QVERIFY(runs_by_length['A'].lastKey() < of_a.size());
    for (int length = 0; length < of_a.size(); ++length)
        QCOMPARE(of_a.at(length), runs_by_length['A'].value(length));
    for (int length = 0; length < of_b.size(); ++length)
        QCOMPARE(of_b.at(length), runs_by_length['B'].value(length));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_serie>(argc, argv);
}

#include "tst_serie.moc"
