#include "number_table.h"
#include "test_box.h"
#include "wheel_order.h"

#include <QMetaType>
#include <QSet>
#include <QStringList>

#include <cmath>
#include <limits>

class tst_number_table : public QObject
{
    Q_OBJECT

private slots:
    void a_number_hits_its_outside_bets_data();
    void a_number_hits_its_outside_bets();
    void a_number_hits_its_transversales_data();
    void a_number_hits_its_transversales();
    void a_number_hits_its_carres_and_chevaux_data();
    void a_number_hits_its_carres_and_chevaux();
    void unused_places_of_a_record_are_end_marks();
    void bets_of_a_record_ascend();
    void chevaux_run_up_down_left_right();
    void both_zeros_lose_every_outside_bet();
    void the_first_five_holds_the_double_zero();
    void american_bets_are_recorded_on_the_french_table();
    void a_value_without_a_record_is_not_valid_data();
    void a_value_without_a_record_is_not_valid();
    void a_record_travels_as_a_registered_value();
    void red_and_black_are_those_of_the_cloth();
    void values_beyond_the_numbers_have_a_colour_too_data();
    void values_beyond_the_numbers_have_a_colour_too();
    void a_number_has_its_place_on_the_wheel_data();
    void a_number_has_its_place_on_the_wheel();
    void a_number_off_the_wheel_has_index_zero_data();
    void a_number_off_the_wheel_has_index_zero();
    void an_index_off_the_wheel_has_no_number_data();
    void an_index_off_the_wheel_has_no_number();
    void both_directions_of_the_wheel_agree();
    void the_pocket_rows_agree_with_the_order();
    void measured_pockets_stand_as_measured_data();
    void measured_pockets_stand_as_measured();
    void pockets_lie_evenly_on_a_circle();
    void wheel_numbers_wrap_around();
    void geometry_is_found_by_key_and_by_value();
    void an_unknown_chance_has_no_picture_data();
    void an_unknown_chance_has_no_picture();
    void the_form_selects_wheel_and_places();
    void the_reduction_moves_the_jetons();
    void a_reduction_out_of_range_is_ignored();
    void the_shared_object_is_one();
};

Q_DECLARE_METATYPE(number_colour)

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;

template <std::size_t size>
static QString names_of(const int (&list)[size])
{
    QStringList names;
    for (const int bet : list) {
        if (bet == jetons::NO_JETON) continue;
        names.append(jetons::name(static_cast<jetons::jeton_names>(bet)));
    }
    return names.join(' ');
}

static QString name_of(int bet)
{
    const int one[1] = {bet};
    return names_of(one);
}

void tst_number_table::a_number_hits_its_outside_bets_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("ec");
    QTest::addColumn<QString>("dz");
    QTest::addColumn<QString>("kl");
    // clang-format off
    QTest::newRow("zero")             <<  0 << ""               << ""     << "";
    QTest::newRow("double zero")      << 37 << ""               << ""     << "";
    QTest::newRow("1")                <<  1 << "EC01 EC03 EC05" << "DZ01" << "KL01";
    QTest::newRow("2")                <<  2 << "EC01 EC02 EC04" << "DZ01" << "KL02";
    QTest::newRow("3")                <<  3 << "EC01 EC03 EC05" << "DZ01" << "KL03";
    QTest::newRow("5")                <<  5 << "EC01 EC03 EC05" << "DZ01" << "KL02";
    QTest::newRow("12, dozen's end")  << 12 << "EC01 EC02 EC03" << "DZ01" << "KL03";
    QTest::newRow("13, dozen begins") << 13 << "EC01 EC04 EC05" << "DZ02" << "KL01";
    QTest::newRow("18, last low")     << 18 << "EC01 EC02 EC03" << "DZ02" << "KL03";
    QTest::newRow("19, first high")   << 19 << "EC03 EC05 EC06" << "DZ02" << "KL01";
    QTest::newRow("33, above 36")     << 33 << "EC04 EC05 EC06" << "DZ03" << "KL03";
    QTest::newRow("34")               << 34 << "EC02 EC03 EC06" << "DZ03" << "KL01";
    QTest::newRow("35")               << 35 << "EC04 EC05 EC06" << "DZ03" << "KL02";
    QTest::newRow("36")               << 36 << "EC02 EC03 EC06" << "DZ03" << "KL03";
    // clang-format on
}

void tst_number_table::a_number_hits_its_outside_bets()
{
    QFETCH(int, number);
    QFETCH(QString, ec);
    QFETCH(QString, dz);
    QFETCH(QString, kl);
    const number_hit_property hits = number_table().hit_property(number);
    QCOMPARE(hits.number, number);
    QCOMPARE(hits.valid, 1);
    QCOMPARE(names_of(hits.ec), ec);
    QCOMPARE(name_of(hits.dz), dz);
    QCOMPARE(name_of(hits.kl), kl);
}

void tst_number_table::a_number_hits_its_transversales_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("tp");
    QTest::addColumn<QString>("ts");
    // clang-format off
    QTest::newRow("zero")             <<  0 << "TP01 TP02 TP15"           << "";
    QTest::newRow("double zero")      << 37 << "TP15 TP16"                << "";
    QTest::newRow("1")                <<  1 << "TP01 TP03"                << "TS01";
    QTest::newRow("2")                <<  2 << "TP01 TP02 TP03 TP15 TP16" << "TS01";
    QTest::newRow("3")                <<  3 << "TP02 TP03 TP16"           << "TS01";
    QTest::newRow("5")                <<  5 << "TP04"                     << "TS01 TS02";
    QTest::newRow("12, dozen's end")  << 12 << "TP06"                     << "TS03 TS04";
    QTest::newRow("13, dozen begins") << 13 << "TP07"                     << "TS04 TS05";
    QTest::newRow("18, last low")     << 18 << "TP08"                     << "TS05 TS06";
    QTest::newRow("19, first high")   << 19 << "TP09"                     << "TS06 TS07";
    QTest::newRow("33, above 36")     << 33 << "TP13"                     << "TS10 TS11";
    QTest::newRow("34")               << 34 << "TP14"                     << "TS11";
    QTest::newRow("35")               << 35 << "TP14"                     << "TS11";
    QTest::newRow("36")               << 36 << "TP14"                     << "TS11";
    // clang-format on
}

void tst_number_table::a_number_hits_its_transversales()
{
    QFETCH(int, number);
    QFETCH(QString, tp);
    QFETCH(QString, ts);
    const number_hit_property hits = number_table().hit_property(number);
    QCOMPARE(names_of(hits.tp), tp);
    QCOMPARE(names_of(hits.ts), ts);
}

void tst_number_table::a_number_hits_its_carres_and_chevaux_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("ca");
    QTest::addColumn<QString>("ch");
    // clang-format off
    QTest::newRow("zero")             <<  0 << "CA01"                << "CH01 CH02 CH03 CH61";
    QTest::newRow("double zero")      << 37 << "CA01"                << "CH61 CH62 CH63";
    QTest::newRow("1")                <<  1 << "CA01 CA02"           << "CH01 CH04 CH37";
    QTest::newRow("2")                <<  2 << "CA01 CA02 CA03"      << "CH02 CH37 CH05 CH38 CH62";
    QTest::newRow("3")                <<  3 << "CA01 CA03"           << "CH03 CH06 CH38 CH63";
    QTest::newRow("5")                <<  5 << "CA02 CA03 CA04 CA05" << "CH05 CH08 CH39 CH40";
    QTest::newRow("12, dozen's end")  << 12 << "CA07 CA09"           << "CH12 CH15 CH44";
    QTest::newRow("13, dozen begins") << 13 << "CA08 CA10"           << "CH13 CH16 CH45";
    QTest::newRow("18, last low")     << 18 << "CA11 CA13"           << "CH18 CH21 CH48";
    QTest::newRow("19, first high")   << 19 << "CA12 CA14"           << "CH19 CH22 CH49";
    QTest::newRow("33, above 36")     << 33 << "CA21 CA23"           << "CH33 CH36 CH58";
    QTest::newRow("34")               << 34 << "CA22"                << "CH34 CH59";
    QTest::newRow("35")               << 35 << "CA22 CA23"           << "CH35 CH59 CH60";
    QTest::newRow("36")               << 36 << "CA23"                << "CH36 CH60";
    // clang-format on
}

void tst_number_table::a_number_hits_its_carres_and_chevaux()
{
    QFETCH(int, number);
    QFETCH(QString, ca);
    QFETCH(QString, ch);
    const number_hit_property hits = number_table().hit_property(number);
    QCOMPARE(names_of(hits.ca), ca);
    QCOMPARE(names_of(hits.ch), ch);
}

template <std::size_t size>
static bool is_filled_from_the_front(const int (&list)[size])
{
    for (std::size_t i = 1; i < size; ++i) {
        if (list[i - 1] == 164 && list[i] != 164) return false;
    }
    return true;
}

void tst_number_table::unused_places_of_a_record_are_end_marks()
{
    for (int number = 0; number <= 37; ++number) {
        const number_hit_property& hits = property_of(number);
        QVERIFY(is_filled_from_the_front(hits.ec));
        QVERIFY(is_filled_from_the_front(hits.tp));
        QVERIFY(is_filled_from_the_front(hits.ts));
        QVERIFY(is_filled_from_the_front(hits.ca));
        QVERIFY(is_filled_from_the_front(hits.ch));
    }
}

template <std::size_t size>
static bool ascends(const int (&list)[size])
{
    for (std::size_t i = 1; i < size; ++i) {
        if (list[i] != 164 && list[i] <= list[i - 1]) return false;
    }
    return true;
}

void tst_number_table::bets_of_a_record_ascend()
{
    for (int number = 0; number <= 37; ++number) {
        const number_hit_property& hits = property_of(number);
        QVERIFY(ascends(hits.ec));
        QVERIFY(ascends(hits.tp));
        QVERIFY(ascends(hits.ts));
        QVERIFY(ascends(hits.ca));
    }
}

void tst_number_table::chevaux_run_up_down_left_right()
{
    for (int number = 4; number <= 36; ++number) {
        const bool first = number % 3 == 1;
        const bool last = number % 3 == 0;
        QStringList expected;
        expected << QString("CH %1/%2").arg(number - 3).arg(number);
        if (number + 3 <= 36) expected << QString("CH %1/%2").arg(number).arg(number + 3);
        if (!first) expected << QString("CH %1/%2").arg(number - 1).arg(number);
        if (!last) expected << QString("CH %1/%2").arg(number).arg(number + 1);
        QStringList texts;
        for (const int bet : property_of(number).ch) {
            if (bet == jetons::NO_JETON) continue;
            texts << jetons::instance().display_text(static_cast<jetons::jeton_names>(bet));
        }
        QCOMPARE(texts, expected);
    }
}

void tst_number_table::both_zeros_lose_every_outside_bet()
{
    for (const int zero : {0, 37}) {
        const number_hit_property hits = number_table(american).hit_property(zero);
        for (const int bet : hits.ec)
            QCOMPARE(bet, 164);
        QCOMPARE(hits.dz, 164);
        QCOMPARE(hits.kl, 164);
        for (int value = jetons::EC01; value <= jetons::EC06; ++value) {
            QVERIFY(!covers(static_cast<jetons::jeton_names>(value), zero));
        }
        for (int value = jetons::KL01; value <= jetons::DZ03; ++value) {
            QVERIFY(!covers(static_cast<jetons::jeton_names>(value), zero));
        }
    }
}

void tst_number_table::the_first_five_holds_the_double_zero()
{
    QCOMPARE(jetons::instance().display_text(jetons::CA01), QString("CA 0-3"));
    for (const int number : {0, 1, 2, 3, 37})
        QVERIFY(covers(jetons::CA01, number));
    for (int number = 4; number <= 36; ++number)
        QVERIFY(!covers(jetons::CA01, number));
}

void tst_number_table::american_bets_are_recorded_on_the_french_table()
{
    const number_table table(french);
    QCOMPARE(names_of(table.hit_property(0).tp), QString("TP01 TP02 TP15"));
    QCOMPARE(names_of(table.hit_property(0).ch), QString("CH01 CH02 CH03 CH61"));
    QVERIFY(names_of(table.hit_property(2).tp).endsWith("TP15 TP16"));
    QVERIFY(names_of(table.hit_property(2).ch).endsWith("CH62"));
    QVERIFY(names_of(table.hit_property(3).tp).endsWith("TP16"));
    QVERIFY(names_of(table.hit_property(3).ch).endsWith("CH63"));
}

static void add_values_that_are_no_number()
{
    QTest::addColumn<int>("number");
    // clang-format off
    QTest::newRow("empty place")      << -1;
    QTest::newRow("behind the last")  << 38;
    QTest::newRow("hand change mark") << 99;
    QTest::newRow("largest int")      << std::numeric_limits<int>::max();
    QTest::newRow("smallest int")     << std::numeric_limits<int>::min();
    // clang-format on
}

void tst_number_table::a_value_without_a_record_is_not_valid_data()
{
    add_values_that_are_no_number();
}

void tst_number_table::a_value_without_a_record_is_not_valid()
{
    QFETCH(int, number);
    const number_hit_property hits = number_table().hit_property(number);
    QCOMPARE(hits.valid, 0);
    QCOMPARE(hits.dz, 164);
    QCOMPARE(hits.kl, 164);
    for (const int bet : hits.ec)
        QCOMPARE(bet, 164);
    for (const int bet : hits.tp)
        QCOMPARE(bet, 164);
    for (const int bet : hits.ts)
        QCOMPARE(bet, 164);
    for (const int bet : hits.ca)
        QCOMPARE(bet, 164);
    for (const int bet : hits.ch)
        QCOMPARE(bet, 164);
}

void tst_number_table::a_record_travels_as_a_registered_value()
{
    const number_table table;
    QVERIFY(QMetaType::type("number_hit_property") != QMetaType::UnknownType);
    QCOMPARE(sizeof(number_hit_property), 23 * sizeof(int));
    const QVariant packed = QVariant::fromValue(table.hit_property(17));
    QCOMPARE(packed.value<number_hit_property>().number, 17);
}

void tst_number_table::red_and_black_are_those_of_the_cloth()
{
    const QSet<int> red = {1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};
    const number_table table;
    for (int number = 1; number <= 36; ++number) {
        QCOMPARE(int(table.colour(number)), red.contains(number) ? 0 : 1);
    }
    QCOMPARE(int(table.colour(0)), 2);
    QCOMPARE(int(table.colour(37)), 2);
}

void tst_number_table::values_beyond_the_numbers_have_a_colour_too_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<number_colour>("colour");
    // clang-format off
    QTest::newRow("hand change mark stands in black") << 99 << number_colour::black;
    QTest::newRow("empty place")                      << -1 << number_colour::green;
    QTest::newRow("behind the last")                  << 38 << number_colour::green;
    QTest::newRow("beside the hand change")           << 98 << number_colour::green;
    // clang-format on
}

void tst_number_table::values_beyond_the_numbers_have_a_colour_too()
{
    QFETCH(int, number);
    QFETCH(number_colour, colour);
    QCOMPARE(number_table().colour(number), colour);
}

void tst_number_table::a_number_has_its_place_on_the_wheel_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("clockwise");
    QTest::addColumn<int>("counter_clockwise");
    // clang-format off
    QTest::newRow("zero")               << french   <<  0 <<  0 <<  0;
    QTest::newRow("first")              << french   << 32 <<  1 << 36;
    QTest::newRow("tenth")              << french   <<  6 << 10 << 27;
    QTest::newRow("last")               << french   << 26 << 36 <<  1;
    QTest::newRow("second to last")     << french   <<  3 << 35 <<  2;
    QTest::newRow("zero, A")            << american <<  0 <<  0 <<  0;
    QTest::newRow("first, A")           << american << 28 <<  1 << 37;
    QTest::newRow("opposite of zero, A")<< american << 37 << 19 << 19;
    QTest::newRow("last, A")            << american <<  2 << 37 <<  1;
    // clang-format on
}

void tst_number_table::a_number_has_its_place_on_the_wheel()
{
    QFETCH(table_form, form);
    QFETCH(int, number);
    QFETCH(int, clockwise);
    QFETCH(int, counter_clockwise);
    const number_table table(form);
    QCOMPARE(table.clockwise_index(number), clockwise);
    QCOMPARE(table.counter_clockwise_index(number), counter_clockwise);
    QCOMPARE(table.number_at(clockwise), number);
}

void tst_number_table::a_number_off_the_wheel_has_index_zero_data()
{
    add_values_that_are_no_number();
    QTest::newRow("double zero on the french wheel") << 37;
}

void tst_number_table::a_number_off_the_wheel_has_index_zero()
{
    QFETCH(int, number);
    QCOMPARE(number_table(french).clockwise_index(number), 0);
    QCOMPARE(number_table(french).counter_clockwise_index(number), 0);
}

void tst_number_table::an_index_off_the_wheel_has_no_number_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("index");
    // clang-format off
    QTest::newRow("before the first")    << french   << -1;
    QTest::newRow("behind the last")     << french   << 37;
    QTest::newRow("behind the last, A")  << american << 38;
    QTest::newRow("smallest int")        << american << std::numeric_limits<int>::min();
    QTest::newRow("largest int")         << american << std::numeric_limits<int>::max();
    // clang-format on
}

void tst_number_table::an_index_off_the_wheel_has_no_number()
{
    QFETCH(table_form, form);
    QFETCH(int, index);
    QCOMPARE(number_table(form).number_at(index), -1);
}

void tst_number_table::both_directions_of_the_wheel_agree()
{
    for (const table_form form : {french, american}) {
        const number_table table(form);
        QSet<int> seen;
        for (int index = 0; index < pocket_count(form); ++index) {
            const int number = table.number_at(index);
            seen.insert(number);
            QCOMPARE(table.clockwise_index(number), index);
            const int sum = index == 0 ? 0 : pocket_count(form);
            QCOMPARE(index + table.counter_clockwise_index(number), sum);
        }
        QCOMPARE(seen.size(), pocket_count(form));
    }
}

template <std::size_t size>
static void compare_rows_with_order(const std::array<wheel_pocket, size>& pockets, table_form form)
{
    constexpr std::array<int, 3> wheel_codes = {0, 2, 1}; // of red, black and green
    const number_table table(form);
    for (std::size_t i = 0; i < size; ++i) {
        const wheel_pocket& pocket = pockets[i];
        QCOMPARE(pocket.counter_clockwise_index, int(i));
        QCOMPARE(pocket.clockwise_index, i == 0 ? 0 : int(size - i));
        QCOMPARE(pocket.number, table.number_at(pocket.clockwise_index));
        QCOMPARE(pocket.colour, wheel_codes[std::size_t(table.colour(pocket.number))]);
    }
}

void tst_number_table::the_pocket_rows_agree_with_the_order()
{
    compare_rows_with_order(french_wheel_pockets, french);
    compare_rows_with_order(american_wheel_pockets, american);
}

void tst_number_table::measured_pockets_stand_as_measured_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QVector<int>>("row"); // number, both indices, colour, x, y
    // clang-format off
    QTest::newRow("french zero")       << french   << QVector<int>{ 0,  0,  0, 1, 246,  25};
    QTest::newRow("french 26")         << french   << QVector<int>{26, 36,  1, 2, 204,  28};
    QTest::newRow("french 3")          << french   << QVector<int>{ 3, 35,  2, 0, 169,  38};
    QTest::newRow("french 35")         << french   << QVector<int>{35, 34,  3, 2, 129,  54};
    QTest::newRow("french 32, last")   << french   << QVector<int>{32,  1, 36, 0, 281,  28};
    QTest::newRow("american zero")     << american << QVector<int>{ 0,  0,  0, 1, 246,  25};
    QTest::newRow("american 2")        << american << QVector<int>{ 2, 37,  1, 2, 208,  28};
    QTest::newRow("double zero")       << american << QVector<int>{37, 19, 19, 1, 243, 489};
    QTest::newRow("american 28, last") << american << QVector<int>{28,  1, 37, 2, 280,  27};
    // clang-format on
}

void tst_number_table::measured_pockets_stand_as_measured()
{
    QFETCH(table_form, form);
    QFETCH(QVector<int>, row);
    const auto index = std::size_t(row.at(2));
    const wheel_pocket& pocket =
        form == american ? american_wheel_pockets[index] : french_wheel_pockets[index];
    QCOMPARE((QVector<int>{pocket.number,
                           pocket.clockwise_index,
                           pocket.counter_clockwise_index,
                           pocket.colour,
                           pocket.x,
                           pocket.y}),
             row);
}

template <std::size_t size>
static void check_circle(const std::array<wheel_pocket, size>& pockets)
{
    // The middle between the zero at the top and the double zero at the bottom of the picture.
    constexpr double centre_x = 244.5;
    constexpr double centre_y = 257.0;
    constexpr double radius = 232.0;
    constexpr double tolerance = 3.0; // the measured pockets lie off by as much
    const double full_turn = 2.0 * std::acos(-1.0);
    for (const wheel_pocket& pocket : pockets) {
        const double angle = full_turn * pocket.counter_clockwise_index / double(size);
        QVERIFY(std::abs(pocket.x - (centre_x - radius * std::sin(angle))) < tolerance);
        QVERIFY(std::abs(pocket.y - (centre_y - radius * std::cos(angle))) < tolerance);
    }
}

void tst_number_table::pockets_lie_evenly_on_a_circle()
{
    check_circle(french_wheel_pockets);
    check_circle(american_wheel_pockets);
}

void tst_number_table::wheel_numbers_wrap_around()
{
    QCOMPARE(wheel_number(-1, french), 26);
    QCOMPARE(wheel_number(37, french), 0);
    QCOMPARE(wheel_number(-37, french), 0);
    QCOMPARE(wheel_number(-1, american), 2);
    QCOMPARE(wheel_number(38 + 19, american), 37);
    QCOMPARE(wheel_index(37, french), -1);
    QCOMPARE(wheel_index(99, american), -1);
}

void tst_number_table::geometry_is_found_by_key_and_by_value()
{
    const number_table table(american);
    for (int value = 0; value < jetons::LAST_JN; ++value) {
        const auto jeton = static_cast<jetons::jeton_names>(value);
        const chance_geometry by_key = table.geometry(jetons::name(jeton));
        const chance_geometry by_value = table.geometry(jeton);
        QVERIFY(!by_key.picture.isEmpty());
        QCOMPARE(by_key.picture, by_value.picture);
        QCOMPARE(by_key.jeton_x, by_value.jeton_x);
        QCOMPARE(by_key.jeton_y, by_value.jeton_y);
    }
    QCOMPARE(table.geometry(QStringLiteral("KL02")).jeton_y, 31 + 430);
    QCOMPARE(table.geometry(QStringLiteral("PRIS_EC01")).jeton_y, 31 + 739);
}

void tst_number_table::an_unknown_chance_has_no_picture_data()
{
    QTest::addColumn<QString>("chance");
    // clang-format off
    QTest::newRow("one digit")    << "PL7";
    QTest::newRow("no such")      << "EC07";
    QTest::newRow("lower case")   << "pl07";
    QTest::newRow("announcement") << "GS";
    QTest::newRow("end mark")     << "NO_JETON";
    QTest::newRow("empty")        << "";
    // clang-format on
}

void tst_number_table::an_unknown_chance_has_no_picture()
{
    QFETCH(QString, chance);
    QCOMPARE(number_table().geometry(chance).picture, QString());
}

void tst_number_table::the_form_selects_wheel_and_places()
{
    number_table table(french);
    QCOMPARE(table.clockwise_index(32), 1);
    QCOMPARE(table.geometry(jetons::PL00).jeton_y, 31 + 430);
    table.set_table_form(american);
    QCOMPARE(table.form(), american);
    QCOMPARE(table.clockwise_index(32), 8);
    QCOMPARE(table.geometry(jetons::PL00).jeton_y, 31 + 358);
    table.set_table_form(french);
    QCOMPARE(table.clockwise_index(32), 1);
}

void tst_number_table::the_reduction_moves_the_jetons()
{
    number_table table(french);
    QCOMPARE(table.jeton_position(jetons::PL07, general_player::PLAYER_2), QPoint(668, 365));
    table.set_reduction(0.3);
    QCOMPARE(table.reduction(), 0.3);
    QCOMPARE(table.jeton_position(jetons::PL07, general_player::PLAYER_2), QPoint(467, 264));
}

void tst_number_table::a_reduction_out_of_range_is_ignored()
{
    number_table table(french);
    table.set_reduction(0.2);
    for (const double wrong : {-0.1, 1.0, 5.0, std::nan(""), HUGE_VAL}) {
        table.set_reduction(wrong);
        QCOMPARE(table.reduction(), 0.2);
    }
}

void tst_number_table::the_shared_object_is_one()
{
    QCOMPARE(&number_table::instance(), &number_table::instance());
    QCOMPARE(number_table::instance().form(), french);
    QCOMPARE(number_table::instance().reduction(), 0.0);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_number_table>(argc, argv);
}

#include "tst_number_table.moc"
