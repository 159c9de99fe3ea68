#include "desktop_bench.h"

using general_player::PLAYER_1;

/// Every chance of both tables is hit by the mouse, in the real window at every scale step.
class tst_all_chances : public QObject
{
    Q_OBJECT

private slots:
    void every_chance_takes_a_click_data();
    void every_chance_takes_a_click();
};

namespace
{

/// A chance and the bands in which a click means it; edges included, menu bar left out.
struct band {
    QString chance;
    int left, right, top, bottom;
};

/// The bands, written down from the layout of the table street by street.
QVector<band> bands_of(bool american)
{
    QVector<band> bands;
    const auto add = [&](const QString& kind, int number, int l, int r, int t, int b) {
        bands.append(
            {kind + QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')), l, r, t, b});
    };
    const QString PL = QStringLiteral("PL"), CH = QStringLiteral("CH"), TP = QStringLiteral("TP");
    const QString CA = QStringLiteral("CA"), TS = QStringLiteral("TS"), EC = QStringLiteral("EC");
    const QString DZ = QStringLiteral("DZ"), KL = QStringLiteral("KL");
    const int street_left[12] = {792, 730, 668, 606, 542, 480, 418, 356, 292, 230, 168, 106};
    const int number_top[3] = {317, 413, 509}, number_bottom[3] = {381, 477, 573};
    const int line_top[2] = {382, 478}, line_bottom[2] = {412, 508};
    for (int street = 0; street < 12; ++street) {
        const int left = street_left[street];
        const int gap = left + 31; // towards the street before
        for (int row = 0; row < 3; ++row) {
            const int number = 3 * street + row + 1;
            add(PL, number, left, left + 30, number_top[row], number_bottom[row]);
            if (street > 0) add(CH, number, gap, gap + 30, number_top[row], number_bottom[row]);
        }
        for (int line = 0; line < 2; ++line) {
            add(CH, 37 + 2 * street + line, left, left + 30, line_top[line], line_bottom[line]);
            if (street == 0) continue;
            add(CA, 2 * street + line, gap, gap + 30, line_top[line], line_bottom[line]);
        }
        add(TP, street + 3, left, left + 30, 574, 604);
        if (street > 0) add(TS, street, gap, gap + 30, 574, 604);
    }
    add(CH, 1, 823, 853, 317, 381);
    add(TP, 1, 823, 853, 382, 412);
    add(CA, 1, 823, 853, 574, 604);
    if (american) {
        add(CH, 2, 823, 853, 413, 433);
        add(TP, 15, 823, 853, 434, 456);
        add(CH, 62, 823, 853, 457, 477);
        add(TP, 16, 823, 853, 478, 508);
        add(CH, 63, 823, 853, 509, 573);
        add(PL, 0, 854, 884, 317, 429);
        add(CH, 61, 854, 884, 430, 460);
        add(PL, 37, 854, 884, 461, 573);
    } else {
        add(CH, 2, 823, 853, 413, 477);
        add(TP, 2, 823, 853, 478, 508);
        add(CH, 3, 823, 853, 509, 573);
        add(PL, 0, 854, 884, 374, 516);
    }
    const int even_left[6] = {728, 603, 478, 353, 228, 104};
    const int even_right[6] = {824, 700, 575, 450, 325, 200};
    for (int i = 0; i < 6; ++i)
        add(EC, i + 1, even_left[i], even_right[i], 676, 734);
    add(DZ, 1, 603, 824, 605, 653);
    add(DZ, 2, 353, 575, 605, 653);
    add(DZ, 3, 104, 325, 605, 653);
    add(KL, 1, 56, 86, 305, 393);
    add(KL, 2, 56, 86, 401, 489);
    add(KL, 3, 56, 86, 497, 585);
    return bands;
}

/// A figure of the full-size design on the screen, counted in whole tenths.
int on_screen(int value, int factor)
{
    return value * (10 - factor) / 10;
}

} // namespace

void tst_all_chances::every_chance_takes_a_click_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("factor");
    for (int form = 0; form < 2; ++form)
        for (int factor = 0; factor < 4; ++factor)
            QTest::addRow("table %d, scale step %d", form, factor) << form << factor;
}

void tst_all_chances::every_chance_takes_a_click()
{
    QFETCH(int, form);
    QFETCH(int, factor);
    desktop_bench bench({QStringLiteral("s_table_form=%1").arg(form),
                         QStringLiteral("s_scr_res_factor=%1").arg(factor)});
    bench.trigger("actionStart");
    const QVector<band> bands = bands_of(form == 1);
    QCOMPARE(bands.size(), form == 1 ? 161 : 157);
    for (const band& each : bands) {
        const int left = on_screen(each.left, factor);
        const int right = on_screen(each.right, factor);
        const int top = on_screen(each.top, factor);
        const int bottom = on_screen(each.bottom, factor);
        // On a scaled table neighbouring bands can share an edge pixel, which belongs to one of
        // them; a pixel further inside it is free of doubt.
        const int inset = factor == 0 ? 0 : 1;
        const QVector<QPoint> points = {{(left + right) / 2, (top + bottom) / 2},
                                        {left + inset, top + inset},
                                        {right - inset, top + inset},
                                        {left + inset, bottom - inset},
                                        {right - inset, bottom - inset}};
        for (const QPoint& point : points) {
            bench.press_table(point);
            const auto jetons_there = bench.table().jetons_of(PLAYER_1);
            const QByteArray where = QStringLiteral("%1 at %2, %3")
                                         .arg(each.chance)
                                         .arg(point.x())
                                         .arg(point.y())
                                         .toUtf8();
            QVERIFY2(jetons_there.size() == 1, where);
            QCOMPARE(jetons::name(jetons_there.first().jeton), each.chance);
            QCOMPARE(jetons_there.first().count, 1);
            bench.table().clear_jetons(PLAYER_1);
        }
    }
}

int main(int argc, char** argv)
{
    return run_window_test<tst_all_chances>(argc, argv);
}
#include "tst_all_chances.moc"
