#include "muster_figure_set.h"
#include "test_box.h"

/// Figures of two, three and four coups in a course of two colours.
class tst_muster_figure_set : public QObject
{
    Q_OBJECT

private slots:
    void the_table_of_figures_data();
    void the_table_of_figures();
    void each_figure_is_found_in_both_pairs_of_colours_data();
    void each_figure_is_found_in_both_pairs_of_colours();
    void fewer_coups_than_a_figure_count_nothing_data();
    void fewer_coups_than_a_figure_count_nothing();
    void figures_overlap();
    void red_black_black();
    void a_colour_of_no_figure_is_reported_and_not_counted();
    void colours_of_two_pairs_make_no_figure();
    void a_reset_forgets_the_window_and_keeps_the_table();
    void a_copy_stands_still();
};

namespace
{

constexpr int dark_yellow = 18;
constexpr int cyan = 10;
constexpr int red = 7;
constexpr int black = 2;

/// The counts above 0, by figure.
QMap<QString, int> counted(const muster_figure_set& set)
{
    QMap<QString, int> counts;
    for (const muster_figure& figure : set.all_figures()) {
        if (figure.count != 0) counts[figure.figure] = figure.count;
    }
    return counts;
}

using counts = QMap<QString, int>;

void add_lengths()
{
    QTest::addColumn<int>("length");
    QTest::newRow("two coups") << 2;
    QTest::newRow("three coups") << 3;
    QTest::newRow("four coups") << 4;
}

/// Feeds the symbols of a figure in the colours of a pair.
template <typename fed_type>
void feed(fed_type& fed, const QString& symbols, int symbol_0, int symbol_1)
{
    for (const QChar symbol : symbols) {
        if (symbol == '0') fed.add(symbol_0);
        if (symbol == '1') fed.add(symbol_1);
    }
}

} // namespace

void tst_muster_figure_set::the_table_of_figures_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("figure");
    QTest::addColumn<int>("code_of_places"); // dark yellow and cyan, weights 11, 13, 16, 20
    QTest::addColumn<int>("code_of_red_black");
    // A one in place of a zero takes 8 times the weight off the first code, 5 times off the second.
    // clang-format off
    QTest::newRow("2_1")  << 2 << 0  << "0,0"     <<  432 << 168;
    QTest::newRow("2_2")  << 2 << 1  << "0,1"     <<  328 << 103;
    QTest::newRow("2_3")  << 2 << 2  << "1,0"     <<  344 << 113;
    QTest::newRow("2_4")  << 2 << 3  << "1,1"     <<  240 <<  48;
    QTest::newRow("3_1")  << 3 << 0  << "0,0,0"   <<  720 << 280;
    QTest::newRow("3_2")  << 3 << 1  << "0,0,1"   <<  592 << 200;
    QTest::newRow("3_3")  << 3 << 2  << "0,1,1"   <<  488 << 135;
    QTest::newRow("3_4")  << 3 << 3  << "0,1,0"   <<  616 << 215;
    QTest::newRow("3_5")  << 3 << 4  << "1,0,1"   <<  504 << 145;
    QTest::newRow("3_6")  << 3 << 5  << "1,0,0"   <<  632 << 225;
    QTest::newRow("3_7")  << 3 << 6  << "1,1,0"   <<  528 << 160;
    QTest::newRow("3_8")  << 3 << 7  << "1,1,1"   <<  400 <<  80;
    QTest::newRow("4_1")  << 4 << 0  << "0,0,0,0" << 1080 << 420;
    QTest::newRow("4_2")  << 4 << 1  << "0,0,0,1" <<  920 << 320;
    QTest::newRow("4_3")  << 4 << 2  << "0,0,1,1" <<  792 << 240;
    QTest::newRow("4_4")  << 4 << 3  << "0,1,1,1" <<  688 << 175;
    QTest::newRow("4_5")  << 4 << 4  << "1,0,1,1" <<  704 << 185;
    QTest::newRow("4_6")  << 4 << 5  << "1,1,0,1" <<  728 << 200;
    QTest::newRow("4_7")  << 4 << 6  << "1,1,1,0" <<  760 << 220;
    QTest::newRow("4_8")  << 4 << 7  << "1,1,0,0" <<  888 << 300;
    QTest::newRow("4_9")  << 4 << 8  << "1,0,0,0" <<  992 << 365;
    QTest::newRow("4_10") << 4 << 9  << "0,1,0,1" <<  816 << 255;
    QTest::newRow("4_11") << 4 << 10 << "1,0,1,0" <<  864 << 285;
    QTest::newRow("4_12") << 4 << 11 << "0,1,1,0" <<  848 << 275;
    QTest::newRow("4_13") << 4 << 12 << "1,0,0,1" <<  832 << 265;
    QTest::newRow("4_14") << 4 << 13 << "0,0,1,0" <<  952 << 340;
    QTest::newRow("4_15") << 4 << 14 << "0,1,0,0" <<  976 << 355;
    QTest::newRow("4_16") << 4 << 15 << "1,1,1,1" <<  600 << 120;
    // clang-format on
}

void tst_muster_figure_set::the_table_of_figures()
{
    QFETCH(int, length);
    QFETCH(int, place);
    QFETCH(QString, figure);
    QFETCH(int, code_of_places);
    QFETCH(int, code_of_red_black);
    const muster_figure_set set(length);
    QCOMPARE(set.figure_length(), length);
    QCOMPARE(set.all_figures().size(), 1 << length);
    const muster_figure& found = set.all_figures().at(place);
    QCOMPARE(found.id, QString(QTest::currentDataTag()));
    QCOMPARE(found.figure, figure);
    QCOMPARE(found.codes, (QList<int>{code_of_places, code_of_red_black}));
    QCOMPARE(found.count, 0);
}

void tst_muster_figure_set::each_figure_is_found_in_both_pairs_of_colours_data()
{
    add_lengths();
}

void tst_muster_figure_set::each_figure_is_found_in_both_pairs_of_colours()
{
    QFETCH(int, length);
    for (int bits = 0; bits < 1 << length; ++bits) {
        QStringList symbols;
        for (int place = length - 1; place >= 0; --place)
            symbols.append(QString::number(bits >> place & 1));
        const QString figure = symbols.join(',');
        muster_figure_set of_places(length);
        feed(of_places, figure, dark_yellow, cyan);
        QCOMPARE(counted(of_places), (counts{{figure, 1}}));
        muster_figure_set of_red_black(length);
        feed(of_red_black, figure, red, black);
        QCOMPARE(counted(of_red_black), (counts{{figure, 1}}));
    }
}

void tst_muster_figure_set::fewer_coups_than_a_figure_count_nothing_data()
{
    add_lengths();
}

void tst_muster_figure_set::fewer_coups_than_a_figure_count_nothing()
{
    QFETCH(int, length);
    muster_figure_set set(length);
    for (int coup = 1; coup < length; ++coup) {
        set.add(red);
        QCOMPARE(counted(set), counts{});
    }
    set.add(red);
    QCOMPARE(counted(set).size(), 1);
}

void tst_muster_figure_set::figures_overlap()
{
    // 0 0 1 0 0 1: pairs 00 01 10 00 01, triples 001 010 100 001, fours 0010 0100 1001.
    muster figures;
    feed(figures, "001001", dark_yellow, cyan);
    QCOMPARE(counted(figures.sets[0]), (counts{{"0,0", 2}, {"0,1", 2}, {"1,0", 1}}));
    QCOMPARE(counted(figures.sets[1]), (counts{{"0,0,1", 2}, {"0,1,0", 1}, {"1,0,0", 1}}));
    QCOMPARE(counted(figures.sets[2]), (counts{{"0,0,1,0", 1}, {"0,1,0,0", 1}, {"1,0,0,1", 1}}));
}

void tst_muster_figure_set::red_black_black()
{
    muster figures;
    for (const int colour : {red, black, black})
        figures.add(colour);
    QCOMPARE(counted(figures.sets[0]), (counts{{"0,1", 1}, {"1,1", 1}}));
    QCOMPARE(counted(figures.sets[1]), (counts{{"0,1,1", 1}}));
    QCOMPARE(counted(figures.sets[2]), counts{});
}

void tst_muster_figure_set::a_colour_of_no_figure_is_reported_and_not_counted()
{
    constexpr int blue = 9;
    constexpr char report[] = "ERROR - model not found";
    muster_figure_set set(2);
    set.add(dark_yellow);
    QTest::ignoreMessage(QtDebugMsg, report);
    set.add(blue);
    QTest::ignoreMessage(QtDebugMsg, report);
    set.add(dark_yellow); // blue still stands in front of it
    QCOMPARE(counted(set), counts{});
    set.add(cyan);
    QCOMPARE(counted(set), (counts{{"0,1", 1}}));

    // Beyond the codes on both sides.
    for (const int far_off : {-1000, 1000000}) {
        QTest::ignoreMessage(QtDebugMsg, report);
        set.add(far_off);
    }
    QCOMPARE(counted(set), (counts{{"0,1", 1}}));
}

void tst_muster_figure_set::colours_of_two_pairs_make_no_figure()
{
    muster_figure_set set(2);
    set.add(dark_yellow);
    QTest::ignoreMessage(QtDebugMsg, "ERROR - model not found");
    set.add(black); // 18 * 11 + 2 * 13 = 224
    QCOMPARE(counted(set), counts{});
}

void tst_muster_figure_set::a_reset_forgets_the_window_and_keeps_the_table()
{
    muster figures;
    feed(figures, "0101", red, black);
    figures.reset();
    for (const muster_figure_set& set : figures.sets)
        QCOMPARE(counted(set), counts{});
    figures.add(black);
    QCOMPARE(counted(figures.sets[0]), counts{}); // no "1,1" with the black in front of the reset
    figures.add(black);
    QCOMPARE(counted(figures.sets[0]), (counts{{"1,1", 1}}));
    const muster_figure& last = figures.sets[2].all_figures().last();
    QCOMPARE(last.id, QString("4_16"));
    QCOMPARE(last.figure, QString("1,1,1,1"));
    QCOMPARE(last.codes, (QList<int>{600, 120}));
}

void tst_muster_figure_set::a_copy_stands_still()
{
    muster figures;
    feed(figures, "01", red, black);
    const muster copy = figures;
    muster detached = figures;
    detached.detach();
    feed(figures, "01", red, black);
    QCOMPARE(counted(copy.sets[0]), (counts{{"0,1", 1}}));
    QCOMPARE(counted(copy.sets[1]), counts{});
    QCOMPARE(counted(detached.sets[0]), (counts{{"0,1", 1}}));
    detached.add(black); // its window still ends with the black
    QCOMPARE(counted(detached.sets[0]), (counts{{"0,1", 1}, {"1,1", 1}}));
    QCOMPARE(counted(figures.sets[0]), (counts{{"0,1", 2}, {"1,0", 1}}));
    QCOMPARE(counted(figures.sets[1]), (counts{{"0,1,0", 1}, {"1,0,1", 1}}));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_muster_figure_set>(argc, argv);
}

#include "tst_muster_figure_set.moc"
