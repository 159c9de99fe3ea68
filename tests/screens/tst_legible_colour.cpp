#include "legible_colour.h"

#include <QtTest>

/// Fixed colours of texts on light and dark desktops.
class tst_legible_colour : public QObject
{
    Q_OBJECT

private slots:
    void contrast_by_the_formula_data();
    void contrast_by_the_formula();
    void a_light_ground_keeps_the_colour();
    void a_dark_ground_lightens_it_data();
    void a_dark_ground_lightens_it();
};

void tst_legible_colour::contrast_by_the_formula_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("contrast");
    QTest::newRow("the same") << QColor(9, 8, 7) << QColor(9, 8, 7) << 1.0;
    QTest::newRow("black and white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    // The light of the pure colours is 0.2126, 0.7152 and 0.0722 of white.
    QTest::newRow("red on white") << QColor(Qt::red) << QColor(Qt::white) << 1.05 / 0.2626;
    QTest::newRow("black on green") << QColor(Qt::black) << QColor(Qt::green) << 0.7652 / 0.05;
    QTest::newRow("blue on white") << QColor(Qt::blue) << QColor(Qt::white) << 1.05 / 0.1222;
    // ((51 / 255 + 0.055) / 1.055) to the power of 2.4 = 0.0331
    QTest::newRow("dark grey") << QColor(51, 51, 51) << QColor(Qt::white) << 1.05 / 0.0831;
}

void tst_legible_colour::contrast_by_the_formula()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    QFETCH(double, contrast);
    QVERIFY(qAbs(contrast_of(one, other) - contrast) < 0.01);
    QCOMPARE(contrast_of(one, other), contrast_of(other, one));
}

void tst_legible_colour::a_light_ground_keeps_the_colour()
{
    for (const QColor& ground : {QColor(Qt::white), QColor(239, 239, 239), QColor(200, 220, 255)}) {
        QCOMPARE(legible_colour(Qt::red, ground), QColor(Qt::red));
        QCOMPARE(legible_colour(QColor(128, 0, 0), ground), QColor(128, 0, 0));
    }
}

void tst_legible_colour::a_dark_ground_lightens_it_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("dark grey") << QColor(53, 53, 53);
    QTest::newRow("dark blue") << QColor(20, 24, 60);
    QTest::newRow("grey") << QColor(90, 90, 90);
}

void tst_legible_colour::a_dark_ground_lightens_it()
{
    QFETCH(QColor, ground);
    const QColor tone = legible_colour(QColor(128, 0, 0), ground);
    QVERIFY(contrast_of(tone, ground) >= 4.5);
    QVERIFY(tone.red() > tone.green()); // a red still
    QCOMPARE(tone.green(), tone.blue());
    QCOMPARE(legible_colour(Qt::white, ground), QColor(Qt::white)); // can be read as it is
}

QTEST_GUILESS_MAIN(tst_legible_colour)

#include "tst_legible_colour.moc"
