#include "hot_cold_axis.h"
#include "test_box.h"

/// The margin above the bars, and the axis that only grows.
class tst_hot_cold_axis : public QObject
{
    Q_OBJECT

private slots:
    void the_margin_follows_the_digits_data();
    void the_margin_follows_the_digits();
    void it_begins_with_0_to_10();
    void the_limits_leave_a_margin_data();
    void the_limits_leave_a_margin();
    void it_never_shrinks();
    void the_lower_limit_never_falls();
    void a_reset_begins_anew();
};

void tst_hot_cold_axis::the_margin_follows_the_digits_data()
{
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("margin");
    // clang-format off
    QTest::newRow("nothing")          << qint64{0}          << qint64{10};
    QTest::newRow("one digit")        << qint64{9}          << qint64{10};
    QTest::newRow("two digits")       << qint64{10}         << qint64{10};
    QTest::newRow("three digits")     << qint64{999}        << qint64{10};
    QTest::newRow("four digits")      << qint64{1000}       << qint64{100};
    QTest::newRow("four, the last")   << qint64{9999}       << qint64{100};
    QTest::newRow("five digits")      << qint64{10000}      << qint64{1000};
    QTest::newRow("five, the last")   << qint64{99999}      << qint64{1000};
    QTest::newRow("six digits")       << qint64{100000}     << qint64{10000};
    QTest::newRow("ten digits")       << qint64{2147483647} << qint64{100000000};
    QTest::newRow("below 0")          << qint64{-1000}      << qint64{100};
    // clang-format on
}

void tst_hot_cold_axis::the_margin_follows_the_digits()
{
    QFETCH(qint64, maximum);
    QTEST(axis_margin(maximum), "margin");
}

void tst_hot_cold_axis::it_begins_with_0_to_10()
{
    const hot_cold_axis axis;
    QCOMPARE(axis.lower(), qint64{0});
    QCOMPARE(axis.upper(), qint64{10});
}

void tst_hot_cold_axis::the_limits_leave_a_margin_data()
{
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("upper");
    QTest::addColumn<qint64>("lower");
    // clang-format off
    QTest::newRow("no hits")              << qint64{0}     << qint64{0}     << qint64{10}    << qint64{0};
    QTest::newRow("minimum below margin") << qint64{12}    << qint64{9}     << qint64{22}    << qint64{0};
    QTest::newRow("minimum at margin")    << qint64{12}    << qint64{10}    << qint64{22}    << qint64{0};
    QTest::newRow("three digits")         << qint64{999}   << qint64{950}   << qint64{1009}  << qint64{940};
    QTest::newRow("four digits")          << qint64{1000}  << qint64{950}   << qint64{1100}  << qint64{850};
    QTest::newRow("five digits")          << qint64{27500} << qint64{27100} << qint64{28500} << qint64{26100};
    // clang-format on
}

void tst_hot_cold_axis::the_limits_leave_a_margin()
{
    QFETCH(qint64, maximum);
    QFETCH(qint64, minimum);
    hot_cold_axis axis;
    QVERIFY(axis.update(maximum, minimum));
    QTEST(axis.upper(), "upper");
    QTEST(axis.lower(), "lower");
}

void tst_hot_cold_axis::it_never_shrinks()
{
    hot_cold_axis axis;
    QVERIFY(axis.update(40, 30));  // 50 and 20
    QVERIFY(!axis.update(39, 35)); // would be 49 and 25
    QCOMPARE(axis.upper(), qint64{50});
    QCOMPARE(axis.lower(), qint64{20});
    QVERIFY(axis.update(40, 35)); // the same upper limit counts, and the lower one rises
    QCOMPARE(axis.upper(), qint64{50});
    QCOMPARE(axis.lower(), qint64{25});
}

void tst_hot_cold_axis::the_lower_limit_never_falls()
{
    hot_cold_axis axis;
    QVERIFY(axis.update(40, 30));
    QVERIFY(axis.update(60, 12)); // 70 and 2
    QCOMPARE(axis.upper(), qint64{70});
    QCOMPARE(axis.lower(), qint64{20});
    QVERIFY(axis.update(1000, 900)); // 1100 and 800
    QCOMPARE(axis.upper(), qint64{1100});
    QCOMPARE(axis.lower(), qint64{800});
}

void tst_hot_cold_axis::a_reset_begins_anew()
{
    hot_cold_axis axis;
    QVERIFY(axis.update(400, 300));
    axis.reset();
    QCOMPARE(axis.upper(), qint64{10});
    QCOMPARE(axis.lower(), qint64{0});
    QVERIFY(axis.update(3, 1)); // 13 and 0
    QCOMPARE(axis.upper(), qint64{13});
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_hot_cold_axis>(argc, argv);
}

#include "tst_hot_cold_axis.moc"
