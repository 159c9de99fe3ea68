#include "statistic_cells.h"
#include "statistic_tables.h"
#include "table_statistic_base.h"

#include <QGroupBox>
#include <QScrollArea>
#include <QSignalSpy>

namespace
{

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;

// 17 lies on TP08, TS05, TS06, CA10 to CA13, CH17, CH20, CH47, CH48, is black, odd and low;
// 32 on TP13, TS10, TS11, CA20 to CA23, CH32, CH35, CH57, CH58, is red, even and high;
// 5 on TP04, TS01, TS02, CA02 to CA05, CH05, CH08, CH39, CH40, is red, odd and low;
// 0 on TP01, TP02, TP15, CA01, CH01 to CH03, CH61; 00 on TP15, TP16, CA01, CH61 to CH63.
const QVector<int> american_numbers = {17, 0, 32, 32, 5, 37};
const QVector<int> french_numbers = {17, 0, 32, 32, 5, 0};

const QStringList plein = {"TW_PL_1_18", "TW_PL_19_36"};
const QStringList carre = {"TW_CA_01_12", "TW_CA_13_23"};
const QStringList cheval = {"TW_CH_01_20", "TW_CH_21_40", "TW_CH_41_60"};
const QStringList all_tables = {"TW_General",
                                "TW_Zero",
                                "TW_EC",
                                "TW_PL_1_18",
                                "TW_PL_19_36",
                                "TW_KL",
                                "TW_DZ",
                                "TW_CA_01_12",
                                "TW_CA_13_23",
                                "TW_TS",
                                "TW_TP",
                                "TW_CH_01_20",
                                "TW_CH_21_40",
                                "TW_CH_41_60"};

struct base_desk : statistic_desk {
    explicit base_desk(int type,
                       table_form form = french,
                       const QVector<int>& numbers = {},
                       double reduction = 0.0)
        : statistic_desk(form, numbers)
        , window(type, store, reduction, settings)
        , read(window)
    {
    }

    table_statistic_base window;
    table_reader read;
};

QVector<int> places_with(const QStringList& texts, const QString& text)
{
    QVector<int> places;
    for (int place = 1; place <= texts.size(); ++place)
        if (texts.at(place - 1) == text) places.append(place);
    return places;
}

} // namespace

class tst_table_statistic_base : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void the_title_tells_the_type();
    void the_tables_have_their_heads_data();
    void the_tables_have_their_heads();
    void the_labels_follow_form_and_terms_data();
    void the_labels_follow_form_and_terms();
    void heads_and_values_have_their_look();
    void red_and_black_are_colours();

    void hits_stand_in_the_cells_data();
    void hits_stand_in_the_cells();
    void coups_since_the_last_hit_stand_in_the_cells_data();
    void coups_since_the_last_hit_stand_in_the_cells();
    void the_leader_of_a_set_is_bold_over_all_its_tables();
    void without_coups_nothing_is_bold();
    void after_three_coups_what_never_hit_is_bold();
    void it_is_a_snapshot();

    void a_value_is_written_as_told_data();
    void a_value_is_written_as_told();
    void large_numbers_have_their_room_data();
    void large_numbers_have_their_room();
    void a_large_font_is_scrolled();
    void nothing_is_clipped_data();
    void nothing_is_clipped();

    void the_button_prints_the_group();
    void the_table_is_copied();
    void the_language_changes_live();
    void it_dies_when_it_is_closed();
};

void tst_table_statistic_base::initTestCase()
{
    if (has_printer()) QFAIL("the test would print on real paper");
    take_font_of_design();
}

void tst_table_statistic_base::the_title_tells_the_type()
{
    QCOMPARE(base_desk(0).window.windowTitle(), QString("Standard - Wie oft?"));
    QCOMPARE(base_desk(1).window.windowTitle(), QString("Standard - Seit wann nicht?"));
}

void tst_table_statistic_base::the_tables_have_their_heads_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QStringList>("zeros");
    QTest::addColumn<int>("streets");
    QTest::addColumn<int>("splits_of_a_table");
    QTest::newRow("French") << french << QStringList{"0"} << 14 << 20;
    QTest::newRow("American") << american << QStringList{"0", "00"} << 16 << 21;
}

void tst_table_statistic_base::the_tables_have_their_heads()
{
    QFETCH(table_form, form);
    QFETCH(QStringList, zeros);
    QFETCH(int, streets);
    QFETCH(int, splits_of_a_table);
    base_desk desk(0, form);
    const auto* group = child_of<QGroupBox>(desk.window, "GB_since_statistic");
    for (const QString& name : all_tables) {
        const QTableWidget& table = desk.read.table(name);
        QVERIFY2(group->isAncestorOf(&table), qPrintable(name));
        QCOMPARE(table.rowCount(), 2);
        QVERIFY(table.horizontalHeader()->isHidden() && table.verticalHeader()->isHidden());
    }
    QCOMPARE(group->findChildren<QTableWidget*>().size(), all_tables.size());
    QCOMPARE(desk.read.heads({"TW_General"}), QStringList({"Coups"}));
    QCOMPARE(desk.read.heads({"TW_Zero"}), zeros);
    QCOMPARE(desk.read.heads({"TW_EC"}), QStringList({"1-18", "EVEN", "", "", "ODD", "19-36"}));
    QCOMPARE(desk.read.heads(plein), two_digit_heads(36));
    QCOMPARE(desk.read.table("TW_PL_1_18").columnCount(), 18);
    QCOMPARE(desk.read.heads({"TW_KL"}), QStringList({"K I", "K II", "K III"}));
    QCOMPARE(desk.read.heads({"TW_DZ"}), QStringList({"D I", "D II", "D III"}));
    QCOMPARE(desk.read.heads(carre), two_digit_heads(23));
    QCOMPARE(desk.read.table("TW_CA_01_12").columnCount(), 12);
    QCOMPARE(desk.read.heads({"TW_TS"}), two_digit_heads(11));
    QCOMPARE(desk.read.heads({"TW_TP"}), two_digit_heads(streets));
    QCOMPARE(desk.read.heads(cheval), two_digit_heads(3 * splits_of_a_table));
    for (const QString& name : cheval)
        QCOMPARE(desk.read.table(name).columnCount(), splits_of_a_table);
}

void tst_table_statistic_base::the_labels_follow_form_and_terms_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("term");
    QTest::addColumn<QStringList>("labels"); // PL, CA, TS, TP, CH
    // clang-format off
    QTest::newRow("French table")
        << french << 0
        << QStringList({"Plein (PL01 - PL36)", "Carre (CA01 - CA23)", "Transversale Simple (TS01 - TS11)",
                        "Transversale Plein (TP01 - TP14)", "Cheval (CH01 - CH60)"});
    QTest::newRow("American table")
        << american << 0
        << QStringList({"Plein (PL01 - PL36)", "Carre (CA01 - CA23)", "Transversale Simple (TS01 - TS11)",
                        "Transversale Plein (TP01 - TP16)", "Cheval (CH01 - CH63)"});
    QTest::newRow("French table, American terms")
        << french << 1
        << QStringList({"Straight Up (PL01 - PL36)", "Corner (CA01 - CA23)", "Six Line (TS01 - TS11)",
                        "Street (TP01 - TP14)", "Split (CH01 - CH60)"});
    QTest::newRow("American table, American terms")
        << american << 1
        << QStringList({"Straight Up (PL01 - PL36)", "Corner (CA01 - CA23)", "Six Line (TS01 - TS11)",
                        "Street (TP01 - TP16)", "Split (CH01 - CH63)"});
    // clang-format on
}

void tst_table_statistic_base::the_labels_follow_form_and_terms()
{
    QFETCH(table_form, form);
    QFETCH(int, term);
    QFETCH(QStringList, labels);
    statistic_desk desk(form);
    desk.settings.set_s_language_term(term);
    table_statistic_base window(0, desk.store, 0.0, desk.settings);
    const table_reader read(window);
    const auto shown = [&read] {
        return QStringList({read.label("LB_Plein"),
                            read.label("LB_Carre"),
                            read.label("LB_TS"),
                            read.label("LB_TP"),
                            read.label("LB_Cheval")});
    };
    QCOMPARE(shown(), labels);
    QCOMPARE(read.label("LB_EC"), QString("Einfache Chance (EC01 - EC06)"));
    QCOMPARE(read.label("LB_Kolonne"), QString("Kolonne (KL01 - KL03)"));
    QCOMPARE(read.label("LB_Dutzend"), QString("Dutzend (DZ01 - DZ03)"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&window, &change);
    QCOMPARE(shown(), labels);
}

void tst_table_statistic_base::heads_and_values_have_their_look()
{
    base_desk desk(0, american, american_numbers);
    for (const QString& name : all_tables) {
        const auto heads = desk.read.cells({name}, 0);
        const auto values = desk.read.cells({name}, 1);
        for (const QTableWidgetItem* cell : heads + values) {
            QCOMPARE(cell->flags(), Qt::NoItemFlags);
            QCOMPARE(cell->textAlignment(), int(Qt::AlignCenter));
            QCOMPARE(cell->foreground().color(), QColor(Qt::black));
        }
        for (const QTableWidgetItem* head : heads) {
            QCOMPARE(head->font().weight(), 75);
            if (!head->text().isEmpty())
                QCOMPARE(head->background().color(), QColor(227, 247, 255));
        }
        for (const QTableWidgetItem* value : values) {
            QCOMPARE(value->toolTip(), value->text());
            QCOMPARE(value->background().color(), QColor(Qt::white));
        }
    }
}

void tst_table_statistic_base::red_and_black_are_colours()
{
    base_desk desk(0);
    const auto heads = desk.read.cells({"TW_EC"}, 0);
    QCOMPARE(heads.at(2)->background().color(), QColor(255, 0, 0));
    QCOMPARE(heads.at(3)->background().color(), QColor(0, 0, 0));
    QCOMPARE(heads.at(2)->toolTip(), QString("ROT"));
    QCOMPARE(heads.at(3)->toolTip(), QString("SCHWARZ"));
}

void tst_table_statistic_base::hits_stand_in_the_cells_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QStringList>("tables");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QVector<int>>("bold");
    const QMap<int, int> corners = {{1, 2},
                                    {2, 1},
                                    {3, 1},
                                    {4, 1},
                                    {5, 1},
                                    {10, 1},
                                    {11, 1},
                                    {12, 1},
                                    {13, 1},
                                    {20, 2},
                                    {21, 2},
                                    {22, 2},
                                    {23, 2}};
    const QMap<int, int> six_lines = {{1, 1}, {2, 1}, {5, 1}, {6, 1}, {10, 2}, {11, 2}};
    // The splits of 17 and 5 once, those of 32 twice; those with zero follow.
    const QMap<int, int> inner = {{5, 1},
                                  {8, 1},
                                  {39, 1},
                                  {40, 1},
                                  {17, 1},
                                  {20, 1},
                                  {47, 1},
                                  {48, 1},
                                  {32, 2},
                                  {35, 2},
                                  {57, 2},
                                  {58, 2}};
    QMap<int, int> french_splits = inner;
    QMap<int, int> american_splits = inner;
    for (const int with_zero : {1, 2, 3}) {
        french_splits[with_zero] = 2;
        american_splits[with_zero] = 1;
    }
    american_splits[61] = 2; // 0 and 00
    american_splits[62] = 1;
    american_splits[63] = 1;
    using places = QVector<int>;
    // clang-format off
    QTest::newRow("F coups")  << french   << QStringList{"TW_General"} << QStringList{"6"} << places{1};
    QTest::newRow("F zero")   << french   << QStringList{"TW_Zero"} << QStringList{"2"} << places{1};
    QTest::newRow("A coups")  << american << QStringList{"TW_General"} << QStringList{"6"} << places{1};
    QTest::newRow("A zero")   << american << QStringList{"TW_Zero"} << QStringList{"1", "1"} << places{1, 2};
    // low and high 2:2, even and odd 2:2, red and black 3:1
    QTest::newRow("F EC")     << french   << QStringList{"TW_EC"} << QStringList{"2", "2", "3", "1", "2", "2"} << places{1, 2, 3, 5, 6};
    QTest::newRow("A EC")     << american << QStringList{"TW_EC"} << QStringList{"2", "2", "3", "1", "2", "2"} << places{1, 2, 3, 5, 6};
    QTest::newRow("F PL")     << french   << plein << texts_of(36, 0, {{17, 1}, {32, 2}, {5, 1}}) << places{32};
    QTest::newRow("A PL")     << american << plein << texts_of(36, 0, {{17, 1}, {32, 2}, {5, 1}}) << places{32};
    QTest::newRow("F KL")     << french   << QStringList{"TW_KL"} << QStringList{"0", "4", "0"} << places{2};
    QTest::newRow("F DZ")     << french   << QStringList{"TW_DZ"} << QStringList{"1", "1", "2"} << places{3};
    QTest::newRow("A KL")     << american << QStringList{"TW_KL"} << QStringList{"0", "4", "0"} << places{2};
    QTest::newRow("A DZ")     << american << QStringList{"TW_DZ"} << QStringList{"1", "1", "2"} << places{3};
    QTest::newRow("F CA")     << french   << carre << texts_of(23, 0, corners) << places{1, 20, 21, 22, 23};
    QTest::newRow("A CA")     << american << carre << texts_of(23, 0, corners) << places{1, 20, 21, 22, 23};
    QTest::newRow("F TS")     << french   << QStringList{"TW_TS"} << texts_of(11, 0, six_lines) << places{10, 11};
    QTest::newRow("A TS")     << american << QStringList{"TW_TS"} << texts_of(11, 0, six_lines) << places{10, 11};
    QTest::newRow("F TP")     << french   << QStringList{"TW_TP"} << texts_of(14, 0, {{1, 2}, {2, 2}, {4, 1}, {8, 1}, {13, 2}}) << places{1, 2, 13};
    QTest::newRow("A TP")     << american << QStringList{"TW_TP"} << texts_of(16, 0, {{1, 1}, {2, 1}, {4, 1}, {8, 1}, {13, 2}, {15, 2}, {16, 1}}) << places{13, 15};
    QTest::newRow("F CH")     << french   << cheval << texts_of(60, 0, french_splits) << places{1, 2, 3, 32, 35, 57, 58};
    QTest::newRow("A CH")     << american << cheval << texts_of(63, 0, american_splits) << places{32, 35, 57, 58, 61};
    // clang-format on
}

void tst_table_statistic_base::hits_stand_in_the_cells()
{
    QFETCH(table_form, form);
    QFETCH(QStringList, tables);
    QFETCH(QStringList, values);
    QFETCH(QVector<int>, bold);
    base_desk desk(0, form, form == french ? french_numbers : american_numbers);
    QCOMPARE(desk.read.values(tables), values);
    QCOMPARE(desk.read.bold(tables), bold);
}

void tst_table_statistic_base::coups_since_the_last_hit_stand_in_the_cells_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QStringList>("tables");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QVector<int>>("bold");
    // Of 6 coups: 17 was the first, 32 the fourth, 5 the fifth; what never hit has 6.
    const QMap<int, int> corners = {{1, 0},
                                    {2, 1},
                                    {3, 1},
                                    {4, 1},
                                    {5, 1},
                                    {10, 5},
                                    {11, 5},
                                    {12, 5},
                                    {13, 5},
                                    {20, 2},
                                    {21, 2},
                                    {22, 2},
                                    {23, 2}};
    const QMap<int, int> six_lines = {{1, 1}, {2, 1}, {5, 5}, {6, 5}, {10, 2}, {11, 2}};
    const QMap<int, int> inner = {{5, 1},
                                  {8, 1},
                                  {39, 1},
                                  {40, 1},
                                  {17, 5},
                                  {20, 5},
                                  {47, 5},
                                  {48, 5},
                                  {32, 2},
                                  {35, 2},
                                  {57, 2},
                                  {58, 2}};
    QMap<int, int> french_splits = inner;
    QMap<int, int> american_splits = inner;
    for (const int with_zero : {1, 2, 3}) {
        french_splits[with_zero] = 0;   // zero was the last
        american_splits[with_zero] = 4; // zero was the second
    }
    for (const int with_double_zero : {61, 62, 63})
        american_splits[with_double_zero] = 0;
    const auto row = [](const char* name,
                        table_form form,
                        const QStringList& tables,
                        const QStringList& values) {
        QTest::newRow(name) << form << tables << values << places_with(values, "6");
    };
    using places = QVector<int>;
    // clang-format off
    row("F coups",  french,   {"TW_General"}, {"6"});
    row("F PL",     french,   plein,     texts_of(36, 6, {{17, 5}, {32, 2}, {5, 1}}));
    row("A PL",     american, plein,     texts_of(36, 6, {{17, 5}, {32, 2}, {5, 1}}));
    row("F KL",     french,   {"TW_KL"}, {"6", "1", "6"});
    row("F CA",     french,   carre,     texts_of(23, 6, corners));
    row("A CA",     american, carre,     texts_of(23, 6, corners));
    row("F TS",     french,   {"TW_TS"}, texts_of(11, 6, six_lines));
    row("F TP",     french,   {"TW_TP"}, texts_of(14, 6, {{1, 0}, {2, 0}, {4, 1}, {8, 5}, {13, 2}}));
    row("A TP",     american, {"TW_TP"}, texts_of(16, 6, {{1, 4}, {2, 4}, {4, 1}, {8, 5}, {13, 2}, {15, 0}, {16, 0}}));
    row("F CH",     french,   cheval,    texts_of(60, 6, french_splits));
    row("A CH",     american, cheval,    texts_of(63, 6, american_splits));
    // the longest absence need not be that of a bet that never hit
    QTest::newRow("F zero") << french   << QStringList{"TW_Zero"} << QStringList{"0"} << places{};
    QTest::newRow("A zero") << american << QStringList{"TW_Zero"} << QStringList{"4", "0"} << places{1};
    QTest::newRow("A EC")   << american << QStringList{"TW_EC"} << QStringList{"1", "2", "1", "5", "1", "2"} << places{2, 4, 6};
    QTest::newRow("A DZ")   << american << QStringList{"TW_DZ"} << QStringList{"1", "5", "2"} << places{2};
    // clang-format on
}

void tst_table_statistic_base::coups_since_the_last_hit_stand_in_the_cells()
{
    QFETCH(table_form, form);
    QFETCH(QStringList, tables);
    QFETCH(QStringList, values);
    QFETCH(QVector<int>, bold);
    base_desk desk(1, form, form == french ? french_numbers : american_numbers);
    QCOMPARE(desk.read.values(tables), values);
    QCOMPARE(desk.read.bold(tables), bold);
}

// 1 twice and 36 three times: the leader of the numbers stands in the second table alone, that of
// the splits (CH36, CH60) in two tables.
void tst_table_statistic_base::the_leader_of_a_set_is_bold_over_all_its_tables()
{
    base_desk desk(0, french, {1, 1, 36, 36, 36});
    QCOMPARE(desk.read.bold(plein), QVector<int>{36});
    QCOMPARE(desk.read.bold(carre), QVector<int>{23});
    QCOMPARE(desk.read.bold(cheval), (QVector<int>{36, 60}));
}

void tst_table_statistic_base::without_coups_nothing_is_bold()
{
    for (const int type : {0, 1}) {
        base_desk desk(type, american);
        for (const QString& name : all_tables) {
            for (const QString& text : desk.read.values({name}))
                QCOMPARE(text, QString("0"));
            QCOMPARE(desk.read.bold({name}), QVector<int>());
        }
    }
}

void tst_table_statistic_base::after_three_coups_what_never_hit_is_bold()
{
    statistic_desk desk(french, {5, 9, 11, 36, 0});
    desk.store.resetStatisticStorage();
    desk.play({1, 1, 2});
    table_statistic_base window(1, desk.store, 0.0, desk.settings);
    const table_reader read(window);
    const QStringList numbers = texts_of(36, 3, {{1, 1}, {2, 0}});
    QCOMPARE(read.values(plein), numbers);
    QCOMPARE(read.bold(plein), places_with(numbers, "3"));
    QCOMPARE(read.values({"TW_DZ"}), QStringList({"0", "3", "3"}));
    QCOMPARE(read.bold({"TW_DZ"}), (QVector<int>{2, 3}));
}

void tst_table_statistic_base::it_is_a_snapshot()
{
    base_desk desk(0, french, {5});
    desk.play({5, 5});
    QCOMPARE(desk.read.values({"TW_General"}), QStringList{"1"});
    desk.settings.set_s_table_form(1);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.read.label("LB_Cheval"), QString("Cheval (CH01 - CH60)"));
}

void tst_table_statistic_base::a_value_is_written_as_told_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("weight");
    // clang-format off
    QTest::newRow("below")    << 3  << 4 << "3" << 50;
    QTest::newRow("leader")   << 4  << 4 << "4" << 75;
    QTest::newRow("all zero") << 0  << 0 << "0" << 50;
    QTest::newRow("none")     << -1 << 4 << "-" << 50;
    // clang-format on
}

void tst_table_statistic_base::a_value_is_written_as_told()
{
    QFETCH(int, value);
    QFETCH(int, maximum);
    QFETCH(QString, text);
    QFETCH(int, weight);
    const QTableWidget table;
    for (const int before : {7, 8}) { // a leader, and not one
        const std::unique_ptr<QTableWidgetItem> cell(statistic_cells::value_cell(table));
        statistic_cells::write_value(*cell, before, 8);
        statistic_cells::write_value(*cell, value, maximum);
        QCOMPARE(cell->text(), text);
        QCOMPARE(cell->font().weight(), weight);
        if (value >= 0) QCOMPARE(cell->toolTip(), text);
    }
}

void tst_table_statistic_base::large_numbers_have_their_room_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<double>("reduction");
    QTest::newRow("full") << 888888 << 0.0;
    QTest::newRow("full, seven digits") << 8888888 << 0.0;
    QTest::newRow("0.3, seven digits") << 8888888 << 0.3;
}

void tst_table_statistic_base::large_numbers_have_their_room()
{
    QFETCH(int, value);
    QFETCH(double, reduction);
    QDialog window;
    QVector<QTableWidget*> tables;
    while (tables.size() < 3)
        tables.append(new QTableWidget(&window));
    QList<int> values;
    for (int place = 0; place < 63; ++place)
        values.append(place % 2 ? value : value - 1);
    const statistic_cells::section splits = {nullptr, tables, two_digit_heads(63)};
    statistic_cells::build(splits);
    statistic_cells::fill(splits, values);
    statistic_cells::fit(splits, 44, reduction);
    window.show();
    QCOMPARE(table_reader(window).clipped(), QStringList());
    for (const QTableWidget* table : tables) {
        QCOMPARE(table->columnCount(), 21);
        // Up to 999999 the widest table needs no scroll bar.
        if (value < 1000000) QVERIFY(table->width() < statistic_table_window::largest_width - 80);
    }
}

// With the large font of a desktop the window stays on its screen and is scrolled.
void tst_table_statistic_base::a_large_font_is_scrolled()
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(3 * QFontInfo(usual).pointSize());
    QApplication::setFont(large);
    base_desk desk(0, american, american_numbers);
    desk.window.show();
    QCoreApplication::processEvents();
    const auto* area = child_of<QScrollArea>(desk.window, "SA_tables");
    QVERIFY(area->widget()->width() > 1600);
    QVERIFY(desk.window.width() <= desk.window.screen()->availableSize().width());
    QVERIFY(desk.window.height() <= desk.window.screen()->availableSize().height());
    QCOMPARE(desk.read.clipped(), QStringList());
    QApplication::setFont(usual);
}

void tst_table_statistic_base::nothing_is_clipped_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<double>("reduction");
    QTest::addColumn<int>("point_size"); // of 10 at full size: the integer part, and one more
    QTest::newRow("French") << french << 0.0 << 10;
    QTest::newRow("American") << american << 0.0 << 10;
    QTest::newRow("American 0.1") << american << 0.1 << 10;
    QTest::newRow("American 0.3") << american << 0.3 << 8;
}

void tst_table_statistic_base::nothing_is_clipped()
{
    QFETCH(table_form, form);
    QFETCH(double, reduction);
    QFETCH(int, point_size);
    base_desk desk(0, form, QVector<int>(1000, 17), reduction);
    desk.window.show();
    QCOMPARE(desk.read.clipped(), QStringList());
    QVERIFY(desk.read.is_of_good_size());
    QCOMPARE(desk.window.font().pointSize(), point_size);
    base_desk full(0, form, QVector<int>(1000, 17), 0.0);
    if (reduction > 0.0) {
        QVERIFY(desk.window.sizeHint().width() < full.window.sizeHint().width());
        QVERIFY(desk.read.table("TW_TS").width() < full.read.table("TW_TS").width());
    }
}

void tst_table_statistic_base::the_button_prints_the_group()
{
    base_desk desk(0, french, french_numbers);
    desk.window.show();
    auto* button = child_of<QPushButton>(desk.window, "PB_print");
    auto* box = child_of<QDialogButtonBox>(desk.window, "buttonBox");
    QCOMPARE(button->text(), QString("Print"));
    QCOMPARE(box->buttonRole(button), QDialogButtonBox::ActionRole);
    QVERIFY(box->buttons().contains(child_of<QPushButton>(desk.window, "PB_export")));
    const auto* group = child_of<QGroupBox>(desk.window, "GB_since_statistic");
    QCOMPARE(printed_picture(*button), group->size() * desk.window.devicePixelRatioF());
}

void tst_table_statistic_base::the_table_is_copied()
{
    base_desk desk(0, french, french_numbers);
    desk.window.show();
    QTest::keyClick(&desk.window, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    // Two tables without a label and twelve with one.
    QCOMPARE(lines.size(), 2 * 2 + 12 * 3);
    QCOMPARE(lines.mid(0, 7),
             QStringList({"Coups",
                          "6",
                          "0",
                          "2",
                          "Einfache Chance (EC01 - EC06)",
                          "1-18\tEVEN\tROT\tSCHWARZ\tODD\t19-36",
                          "2\t2\t3\t1\t2\t2"}));
    QCOMPARE(lines.at(7), QString("Plein (PL01 - PL36)"));
    QCOMPARE(lines.at(8), two_digit_heads(18).join('\t'));
    QCOMPARE(lines.at(9), texts_of(18, 0, {{5, 1}, {17, 1}}).join('\t'));
}

void tst_table_statistic_base::the_language_changes_live()
{
    base_desk desk(1);
    desk.window.setWindowTitle({});
    child_of<QPushButton>(desk.window, "PB_print")->setText({});
    child_of<QLabel>(desk.window, "LB_EC")->clear();
    desk.read.table("TW_EC").item(0, 2)->setToolTip({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.window.windowTitle(), QString("Standard - Seit wann nicht?"));
    QCOMPARE(child_of<QPushButton>(desk.window, "PB_print")->text(), QString("Print"));
    QCOMPARE(desk.read.label("LB_EC"), QString("Einfache Chance (EC01 - EC06)"));
    QCOMPARE(desk.read.table("TW_EC").item(0, 2)->toolTip(), QString("ROT"));
    QCOMPARE(desk.read.values({"TW_General"}), QStringList{"0"});
}

void tst_table_statistic_base::it_dies_when_it_is_closed()
{
    statistic_desk desk(french);
    auto* window = new table_statistic_base(0, desk.store, 0.0, desk.settings);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    const QSignalSpy deaths(window, &QObject::destroyed);
    child_of<QDialogButtonBox>(*window, "buttonBox")->button(QDialogButtonBox::Close)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(deaths.size(), 1);
}

int main(int argc, char** argv)
{
    // No printer of the machine may print what a test draws.
    qputenv("CUPS_SERVER", "/no/such/server");
    return run_window_test<tst_table_statistic_base>(argc, argv);
}

#include "tst_table_statistic_base.moc"
