#include "number_generator.h"
#include "test_box.h"

#include <array>
#include <limits>
#include <random>

/// The range reduction in wide arithmetic, without anything remembered between two draws.
static qint64 plain_draw(std::mt19937& twister, qint64 first, qint64 last)
{
    const qint64 range = last - first;
    if (range == 0) return first;
    const qint64 largest = 0xFFFFFFFF;
    qint64 scaling = largest / (range + 1);
    if (largest % (range + 1) == range) scaling += 1;
    for (;;) {
        const qint64 quotient = static_cast<qint64>(twister()) / scaling;
        if (quotient <= range) return first + quotient;
    }
}

class tst_number_generator : public QObject
{
    Q_OBJECT

private slots:
    void the_ten_thousandth_output_is_that_of_the_standard();
    void a_draw_equals_the_plain_computation_data();
    void a_draw_equals_the_plain_computation();
    void ranges_may_change_from_draw_to_draw();
    void seeding_throws_one_number_away();
    void a_range_of_one_number_uses_up_no_output();
    void the_double_zero_is_as_frequent_as_any_number();
};

// Over the full range of int a draw is the bare output of the twister.
void tst_number_generator::the_ten_thousandth_output_is_that_of_the_standard()
{
    number_generator generator;
    qint64 output = 0;
    for (int count = 0; count < 10'000; ++count) {
        const int drawn =
            generator.draw(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        output = qint64{drawn} - std::numeric_limits<int>::min();
    }
    QCOMPARE(output, Q_INT64_C(4123659995));
}

void tst_number_generator::a_draw_equals_the_plain_computation_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    // clang-format off
    QTest::newRow("French table")         <<  0 << 36;
    QTest::newRow("American table")       <<  0 << 37;
    QTest::newRow("outputs divide evenly") << 0 <<  1;
    QTest::newRow("negative numbers")     << -5 <<  3;
    QTest::newRow("as qrand()")           <<  0 << std::numeric_limits<int>::max();
    QTest::newRow("many drawn again")     << -1 << std::numeric_limits<int>::max();
    QTest::newRow("all numbers")          << std::numeric_limits<int>::min()
                                          << std::numeric_limits<int>::max();
    // clang-format on
}

void tst_number_generator::a_draw_equals_the_plain_computation()
{
    QFETCH(int, first);
    QFETCH(int, last);
    number_generator generator;
    std::mt19937 twister;
    for (int count = 0; count < 20'000; ++count) {
        QCOMPARE(qint64{generator.draw(first, last)}, plain_draw(twister, first, last));
    }
}

void tst_number_generator::ranges_may_change_from_draw_to_draw()
{
    number_generator generator;
    std::mt19937 twister;
    for (int count = 0; count < 1'000; ++count) {
        const int last = 36 + count % 2;
        QCOMPARE(qint64{generator.draw(0, last)}, plain_draw(twister, 0, last));
    }
}

void tst_number_generator::seeding_throws_one_number_away()
{
    number_generator generator;
    generator.seed(2018, 0, 36);
    std::mt19937 twister(2018);
    plain_draw(twister, 0, 36);
    QCOMPARE(qint64{generator.draw(0, 36)}, plain_draw(twister, 0, 36));
}

void tst_number_generator::a_range_of_one_number_uses_up_no_output()
{
    number_generator generator;
    QCOMPARE(generator.draw(7, 7), 7);
    QCOMPARE(generator.draw(7, 3), 7);
    std::mt19937 twister;
    QCOMPARE(qint64{generator.draw(0, 36)}, plain_draw(twister, 0, 36));
}

// A number is expected 100,000 / 38 = 2632 times with a deviation of 51; five of them are allowed.
void tst_number_generator::the_double_zero_is_as_frequent_as_any_number()
{
    number_generator generator;
    generator.seed(1, 0, 37);
    std::array<int, 39> hits = {};
    for (int count = 0; count < 100'000; ++count) {
        const int number = generator.draw(0, 37);
        QVERIFY(number >= 0 && number <= 37);
        ++hits[static_cast<size_t>(number)];
    }
    for (size_t number = 0; number <= 37; ++number)
        QVERIFY(qAbs(hits[number] - 2632) < 255);
    QCOMPARE(hits[38], 0);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_number_generator>(argc, argv);
}
#include "tst_number_generator.moc"
