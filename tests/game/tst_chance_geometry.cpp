#include "chance_geometry.h"
#include "test_box.h"

#include <QHash>
#include <QRect>
#include <QSet>

#include <array>

class tst_chance_geometry : public QObject
{
    Q_OBJECT

private slots:
    void a_place_lies_where_the_table_shows_it_data();
    void a_place_lies_where_the_table_shows_it();
    void every_place_has_a_geometry_on_both_tables();
    void what_is_no_place_has_no_geometry();
    void a_picture_shows_the_fields_of_its_chance_data();
    void a_picture_shows_the_fields_of_its_chance();
    void pictures_of_a_single_field_are_centred_on_the_jeton();
    void the_hit_mark_lies_on_the_field_of_the_number_data();
    void the_hit_mark_lies_on_the_field_of_the_number();
    void scaling_cuts_to_the_integer_part();
    void negative_values_are_cut_towards_zero_data();
    void negative_values_are_cut_towards_zero();
    void jetons_of_a_player_lie_at_their_place_data();
    void jetons_of_a_player_lie_at_their_place();
    void players_share_the_places_of_the_net();
    void an_end_mark_has_no_jeton_position();
    void a_jeton_scales_like_its_click_band();
    void jeton_squares_lie_in_their_click_bands();
    void square_centres_stay_in_their_bands_at_every_scale();
    void squares_of_different_places_do_not_overlap();
};

namespace
{

using general_player::NO_PLAYER;
using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_names;

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;
constexpr int square = 31;
constexpr int menu_bar = 31;

constexpr std::array<player_names, 4> players = {PLAYER_1, PLAYER_2, PLAYER_3, PLAYER_4};

jetons::jeton_names place(int value)
{
    return static_cast<jetons::jeton_names>(value);
}

/// Places that only one form has.
bool is_missing(const QString& key, table_form form)
{
    static const QSet<QString> not_on_french = {"PL37", "CH61", "CH62", "CH63", "TP15", "TP16"};
    static const QSet<QString> not_on_american = {"TP02", "CH03"};
    return (form == french ? not_on_french : not_on_american).contains(key);
}

/// Where a click means a chance, both ends inclusive, on the central widget.
struct band {
    int left;
    int right;
    int top;
    int bottom;
};

void add_street_bands(QHash<QString, band>& bands, int street)
{
    constexpr std::array<int, 12> street_left = {
        792, 730, 668, 606, 542, 480, 418, 356, 292, 230, 168, 106};
    const int left = street_left[std::size_t(street)];
    const int right = left + 30;
    const int a = 3 * street + 1; // the three numbers of the street
    const int b = a + 1;
    const int c = a + 2;
    bands[QString("PL %1").arg(a)] = {left, right, 317, 381};
    bands[QString("CH %1/%2").arg(a).arg(b)] = {left, right, 382, 412};
    bands[QString("PL %1").arg(b)] = {left, right, 413, 477};
    bands[QString("CH %1/%2").arg(b).arg(c)] = {left, right, 478, 508};
    bands[QString("PL %1").arg(c)] = {left, right, 509, 573};
    bands[QString("TP %1/%2/%3").arg(a).arg(b).arg(c)] = {left, right, 574, 604};
    if (street == 0) return;
    bands[QString("CH %1/%2").arg(a - 3).arg(a)] = {left + 31, right + 31, 317, 381};
    bands[QString("CA %1-%2").arg(a - 3).arg(b)] = {left + 31, right + 31, 382, 412};
    bands[QString("CH %1/%2").arg(b - 3).arg(b)] = {left + 31, right + 31, 413, 477};
    bands[QString("CA %1-%2").arg(b - 3).arg(c)] = {left + 31, right + 31, 478, 508};
    bands[QString("CH %1/%2").arg(c - 3).arg(c)] = {left + 31, right + 31, 509, 573};
    bands[QString("TS %1/%2").arg(a - 3).arg(c)] = {left + 31, right + 31, 574, 604};
}

/// The click bands by display text.
QHash<QString, band> click_bands(table_form form)
{
    QHash<QString, band> bands;
    for (int street = 0; street < 12; ++street)
        add_street_bands(bands, street);
    // clang-format off
    bands["EC 1-18"]  = {728, 824, 676, 734};
    bands["EC EVEN"]  = {603, 700, 676, 734};
    bands["EC RED"]   = {478, 575, 676, 734};
    bands["EC BLACK"] = {353, 450, 676, 734};
    bands["EC ODD"]   = {228, 325, 676, 734};
    bands["EC 19-36"] = {104, 200, 676, 734};
    bands["DZ 1"]     = {603, 824, 605, 653};
    bands["DZ 2"]     = {353, 575, 605, 653};
    bands["DZ 3"]     = {104, 325, 605, 653};
    bands["KL 1"]     = { 56,  86, 305, 393};
    bands["KL 2"]     = { 56,  86, 401, 489};
    bands["KL 3"]     = { 56,  86, 497, 585};
    bands["CH 0/1"]   = {823, 853, 317, 381};
    bands["TP 0/1/2"] = {823, 853, 382, 412};
    bands["CA 0-3"]   = {823, 853, 574, 604};
    if (form == french) {
        bands["PL 0"]      = {854, 884, 374, 516};
        bands["CH 0/2"]    = {823, 853, 413, 477};
        bands["TP 0/2/3"]  = {823, 853, 478, 508};
        bands["CH 0/3"]    = {823, 853, 509, 573};
        return bands;
    }
    bands["PL 0"]      = {854, 884, 317, 429};
    bands["CH 0/00"]   = {854, 884, 430, 460};
    bands["PL 00"]     = {854, 884, 461, 573};
    bands["CH 0/2"]    = {823, 853, 413, 433};
    bands["TP 0/00/2"] = {823, 853, 434, 456};
    bands["CH 00/2"]   = {823, 853, 457, 477};
    bands["TP 00/2/3"] = {823, 853, 478, 508};
    bands["CH 00/3"]   = {823, 853, 509, 573};
    // clang-format on
    return bands;
}

/// The integer part of v reduced by so many tenths, without floating point.
int in_tenths(int v, int tenths)
{
    return v * (10 - tenths) / 10;
}

} // namespace

void tst_chance_geometry::a_place_lies_where_the_table_shows_it_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y"); // without the menu bar
    // clang-format off
    QTest::newRow("first number")            << "PL01" << french   << 792 << 334;
    QTest::newRow("second of a street")      << "PL02" << french   << 792 << 430;
    QTest::newRow("third of a street")       << "PL03" << french   << 792 << 526;
    QTest::newRow("next street")             << "PL04" << french   << 730 << 334;
    QTest::newRow("last of the first dozen") << "PL12" << american << 606 << 526;
    QTest::newRow("behind a dozen")          << "PL13" << american << 542 << 334;
    QTest::newRow("behind two dozens")       << "PL25" << french   << 292 << 334;
    QTest::newRow("last number")             << "PL36" << french   << 106 << 526;
    QTest::newRow("zero")                    << "PL00" << french   << 854 << 430;
    QTest::newRow("zero, A")                 << "PL00" << american << 854 << 358;
    QTest::newRow("double zero, A")          << "PL37" << american << 854 << 504;
    QTest::newRow("double zero, place of A") << "PL37" << french   << 854 << 504;
    QTest::newRow("1/4")                     << "CH04" << french   << 761 << 334;
    QTest::newRow("5/8")                     << "CH08" << french   << 699 << 430;
    QTest::newRow("10/13, wide gap")         << "CH13" << french   << 573 << 334;
    QTest::newRow("22/25, wide gap")         << "CH25" << french   << 323 << 334;
    QTest::newRow("33/36")                   << "CH36" << american << 137 << 526;
    QTest::newRow("1/2")                     << "CH37" << french   << 792 << 382;
    QTest::newRow("2/3")                     << "CH38" << french   << 792 << 478;
    QTest::newRow("13/14")                   << "CH45" << french   << 542 << 382;
    QTest::newRow("35/36")                   << "CH60" << french   << 106 << 478;
    QTest::newRow("street 1/2/3")            << "TP03" << french   << 792 << 574;
    QTest::newRow("street 34/35/36")         << "TP14" << american << 106 << 574;
    QTest::newRow("1-5")                     << "CA02" << french   << 761 << 382;
    QTest::newRow("2-6")                     << "CA03" << french   << 761 << 478;
    QTest::newRow("10-14, wide gap")         << "CA08" << french   << 573 << 382;
    QTest::newRow("23-27, wide gap")         << "CA17" << french   << 323 << 478;
    QTest::newRow("32-36")                   << "CA23" << french   << 137 << 478;
    QTest::newRow("1/6")                     << "TS01" << french   << 761 << 574;
    QTest::newRow("7/12")                    << "TS03" << french   << 637 << 574;
    QTest::newRow("10/15, one to the right") << "TS04" << french   << 574 << 574;
    QTest::newRow("22/27, one to the right") << "TS08" << american << 324 << 574;
    QTest::newRow("31/36, one to the right") << "TS11" << french   << 138 << 574;
    QTest::newRow("0/1")                     << "CH01" << french   << 823 << 334;
    QTest::newRow("0/1, A")                  << "CH01" << american << 823 << 334;
    QTest::newRow("0/1/2")                   << "TP01" << french   << 823 << 382;
    QTest::newRow("0/1/2, A")                << "TP01" << american << 823 << 382;
    QTest::newRow("0/2")                     << "CH02" << french   << 823 << 430;
    QTest::newRow("0/2, A")                  << "CH02" << american << 823 << 408;
    QTest::newRow("0/2/3")                   << "TP02" << french   << 823 << 478;
    QTest::newRow("0/2/3, place of F")       << "TP02" << american << 823 << 478;
    QTest::newRow("0/3")                     << "CH03" << french   << 823 << 526;
    QTest::newRow("0/3, place of F")         << "CH03" << american << 823 << 526;
    QTest::newRow("first numbers")           << "CA01" << french   << 823 << 574;
    QTest::newRow("first numbers, A")        << "CA01" << american << 823 << 574;
    QTest::newRow("0/00/2, A")               << "TP15" << american << 823 << 430;
    QTest::newRow("0/00/2, place of A")      << "TP15" << french   << 823 << 430;
    QTest::newRow("00/2/3, A")               << "TP16" << american << 823 << 478;
    QTest::newRow("00/2/3, place of A")      << "TP16" << french   << 823 << 478;
    QTest::newRow("0/00, A")                 << "CH61" << american << 854 << 430;
    QTest::newRow("0/00, place of A")        << "CH61" << french   << 854 << 430;
    QTest::newRow("00/2, A")                 << "CH62" << american << 823 << 452;
    QTest::newRow("00/2, place of A")        << "CH62" << french   << 823 << 452;
    QTest::newRow("00/3, A")                 << "CH63" << american << 823 << 526;
    QTest::newRow("00/3, place of A")        << "CH63" << french   << 823 << 526;
    QTest::newRow("first column")            << "KL01" << french   <<  56 << 334;
    QTest::newRow("second column")           << "KL02" << french   <<  56 << 430;
    QTest::newRow("third column")            << "KL03" << american <<  56 << 526;
    QTest::newRow("first dozen")             << "DZ01" << french   << 614 << 614;
    QTest::newRow("second dozen")            << "DZ02" << french   << 364 << 614;
    QTest::newRow("third dozen")             << "DZ03" << american << 115 << 614;
    QTest::newRow("low")                     << "EC01" << french   << 761 << 690;
    QTest::newRow("even")                    << "EC02" << french   << 636 << 690;
    QTest::newRow("red")                     << "EC03" << french   << 511 << 690;
    QTest::newRow("black")                   << "EC04" << french   << 386 << 690;
    QTest::newRow("odd")                     << "EC05" << french   << 261 << 690;
    QTest::newRow("high")                    << "EC06" << american << 137 << 690;
    QTest::newRow("low in prison")           << "PRIS_EC01"   << french   << 761 << 739;
    QTest::newRow("high in prison")          << "PRIS_EC06"   << american << 137 << 739;
    QTest::newRow("low in double prison")    << "D_PRIS_EC01" << french   << 761 << 649;
    QTest::newRow("red in double prison")    << "D_PRIS_EC03" << american << 511 << 649;
    // clang-format on
}

void tst_chance_geometry::a_place_lies_where_the_table_shows_it()
{
    QFETCH(QString, key);
    QFETCH(table_form, form);
    QFETCH(int, x);
    QFETCH(int, y);
    const chance_geometry& geometry = geometry_of(jetons::value_of(key), form);
    QCOMPARE(geometry.jeton_x, x);
    QCOMPARE(geometry.jeton_y, y + 31);
}

void tst_chance_geometry::every_place_has_a_geometry_on_both_tables()
{
    for (const table_form form : {french, american}) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            const chance_geometry& geometry = geometry_of(place(value), form);
            QVERIFY(geometry.jeton_x > 0);
            QVERIFY(geometry.jeton_y > 31);
            QVERIFY(geometry.picture.startsWith(":/selection/grafik/selection/"));
            QVERIFY(geometry.picture.endsWith(".png"));
            QVERIFY(geometry.picture_x > 0);
            QVERIFY(geometry.picture_y > 0);
        }
        for (int value = jetons::PRIS_EC01; value <= jetons::D_PRIS_EC06; ++value) {
            QVERIFY(geometry_of(place(value), form).jeton_x > 0);
            QCOMPARE(geometry_of(place(value), form).picture, QString());
        }
    }
}

void tst_chance_geometry::what_is_no_place_has_no_geometry()
{
    for (const int value : {163, 164, 177}) {
        const chance_geometry& geometry = geometry_of(place(value), french);
        QCOMPARE(geometry.picture, QString());
        QCOMPARE(geometry.jeton_x, 0);
        QCOMPARE(geometry.jeton_y, 0);
    }
}

void tst_chance_geometry::a_picture_shows_the_fields_of_its_chance_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    // clang-format off
    QTest::newRow("first column")     << "KL01" << french   << "kolonne"          << 90  << 301;
    QTest::newRow("second column")    << "KL02" << french   << "kolonne"          << 90  << 397;
    QTest::newRow("third column")     << "KL03" << american << "kolonne"          << 90  << 493;
    QTest::newRow("first dozen")      << "DZ01" << french   << "dutzend"          << 590 << 301;
    QTest::newRow("second dozen")     << "DZ02" << french   << "dutzend"          << 340 << 301;
    QTest::newRow("third dozen")      << "DZ03" << american << "dutzend"          << 90  << 301;
    QTest::newRow("first number")     << "PL01" << french   << "plein"            << 776 << 301;
    QTest::newRow("last number")      << "PL36" << american << "plein"            << 90  << 493;
    QTest::newRow("zero")             << "PL00" << french   << "zero"             << 838 << 397;
    QTest::newRow("zero, A")          << "PL00" << american << "zero_00_a"        << 838 << 325;
    QTest::newRow("double zero, A")   << "PL37" << american << "zero_00_a"        << 838 << 471;
    QTest::newRow("first numbers")    << "CA01" << french   << "carre_1"          << 807 << 541;
    QTest::newRow("first numbers, A") << "CA01" << american << "transSI_3_a"      << 807 << 541;
    QTest::newRow("carré")            << "CA02" << french   << "carre_2"          << 745 << 349;
    QTest::newRow("carré, wide gap")  << "CA08" << french   << "carre_3"          << 557 << 349;
    QTest::newRow("carré, wide 2")    << "CA17" << american << "carre_3"          << 307 << 445;
    QTest::newRow("carré behind it")  << "CA10" << french   << "carre_2"          << 495 << 349;
    QTest::newRow("last carré")       << "CA23" << french   << "carre_2"          << 121 << 445;
    QTest::newRow("six numbers")      << "TS01" << french   << "transSI_1"        << 745 << 541;
    QTest::newRow("six, wide gap")    << "TS04" << french   << "transSI_2"        << 558 << 541;
    QTest::newRow("six, wide gap 2")  << "TS08" << french   << "transSI_2"        << 308 << 541;
    QTest::newRow("last six")         << "TS11" << french   << "transSI_1"        << 122 << 541;
    QTest::newRow("1/4")              << "CH04" << french   << "cheval_1"         << 745 << 301;
    QTest::newRow("10/13, wide gap")  << "CH13" << french   << "cheval_2"         << 557 << 301;
    QTest::newRow("24/27, wide gap")  << "CH27" << french   << "cheval_2"         << 307 << 493;
    QTest::newRow("1/2")              << "CH37" << french   << "cheval_3"         << 776 << 349;
    QTest::newRow("street")           << "TP03" << french   << "transPL_1"        << 776 << 541;
    QTest::newRow("0/1")              << "CH01" << french   << "cheval_0_1"       << 807 << 301;
    QTest::newRow("0/1, A")           << "CH01" << american << "cheval_0_1_a"     << 807 << 301;
    QTest::newRow("0/2")              << "CH02" << french   << "cheval_0_2"       << 807 << 397;
    QTest::newRow("0/2, A")           << "CH02" << american << "cheval_0_2_a"     << 807 << 375;
    QTest::newRow("0/3")              << "CH03" << french   << "cheval_0_3"       << 807 << 493;
    QTest::newRow("0/00, A")          << "CH61" << american << "cheval_0_00_a"    << 838 << 397;
    QTest::newRow("00/2, A")          << "CH62" << american << "cheval_00_2_a"    << 807 << 419;
    QTest::newRow("00/3, A")          << "CH63" << american << "cheval_00_3_a"    << 807 << 493;
    QTest::newRow("0/1/2")            << "TP01" << french   << "transPL_0_1_2"    << 807 << 349;
    QTest::newRow("0/1/2, A")         << "TP01" << american << "transPL_0_1_2_a"  << 807 << 349;
    QTest::newRow("0/2/3")            << "TP02" << french   << "transPL_0_2_3"    << 807 << 445;
    QTest::newRow("0/00/2, A")        << "TP15" << american << "transPL_0_00_2_a" << 807 << 397;
    QTest::newRow("00/2/3, A")        << "TP16" << american << "transPL_00_2_3_a" << 807 << 445;
    QTest::newRow("low")              << "EC01" << french   << "einfache_1"       << 90  << 301;
    QTest::newRow("high")             << "EC06" << american << "einfache_6"       << 90  << 301;
    // clang-format on
}

void tst_chance_geometry::a_picture_shows_the_fields_of_its_chance()
{
    QFETCH(QString, key);
    QFETCH(table_form, form);
    QFETCH(QString, file);
    QFETCH(int, x);
    QFETCH(int, y);
    const chance_geometry& geometry = geometry_of(jetons::value_of(key), form);
    QCOMPARE(geometry.picture, QString(":/selection/grafik/selection/" + file + ".png"));
    QCOMPARE(geometry.picture_x, x);
    QCOMPARE(geometry.picture_y, y);
}

void tst_chance_geometry::pictures_of_a_single_field_are_centred_on_the_jeton()
{
    for (const table_form form : {french, american}) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            const QString kind = jetons::name(place(value)).left(2);
            if (kind == "KL" || kind == "DZ" || kind == "EC") continue;
            const chance_geometry& geometry = geometry_of(place(value), form);
            QCOMPARE(geometry.picture_x, geometry.jeton_x - 16);
            QCOMPARE(geometry.picture_y, geometry.jeton_y - 31 - 33);
        }
    }
}

void tst_chance_geometry::the_hit_mark_lies_on_the_field_of_the_number_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    // clang-format off
    QTest::newRow("first number")   << "PL01" << french   << 776 << 301;
    QTest::newRow("in the middle")  << "PL17" << french   << 464 << 397;
    QTest::newRow("last number")    << "PL36" << american <<  90 << 493;
    QTest::newRow("zero")           << "PL00" << french   << 838 << 397;
    QTest::newRow("zero, A")        << "PL00" << american << 838 << 325;
    QTest::newRow("double zero, A") << "PL37" << american << 838 << 471;
    // clang-format on
}

void tst_chance_geometry::the_hit_mark_lies_on_the_field_of_the_number()
{
    QFETCH(QString, key);
    QFETCH(table_form, form);
    QFETCH(int, x);
    QFETCH(int, y);
    const chance_geometry& geometry = geometry_of(jetons::value_of(key), form);
    QCOMPARE(geometry.hit_x, x);
    QCOMPARE(geometry.hit_y, y);
}

void tst_chance_geometry::scaling_cuts_to_the_integer_part()
{
    constexpr std::array<double, 4> reductions = {0.0, 0.1, 0.2, 0.3};
    for (int tenths = 0; tenths <= 3; ++tenths) {
        for (int v = 0; v <= 1460; ++v) {
            QCOMPARE(scaled(v, reductions[std::size_t(tenths)]), in_tenths(v, tenths));
        }
    }
}

void tst_chance_geometry::negative_values_are_cut_towards_zero_data()
{
    QTest::addColumn<int>("v");
    QTest::addColumn<double>("reduction");
    QTest::addColumn<int>("expected");
    // clang-format off
    QTest::newRow("full size")  << -46 << 0.0 << -46;
    QTest::newRow("from -13.5") << -15 << 0.1 << -13;
    QTest::newRow("from -41.4") << -46 << 0.1 << -41;
    QTest::newRow("from -36.8") << -46 << 0.2 << -36;
    QTest::newRow("from -10.5") << -15 << 0.3 << -10;
    QTest::newRow("from -0.9")  <<  -1 << 0.1 <<   0;
    // clang-format on
}

void tst_chance_geometry::negative_values_are_cut_towards_zero()
{
    QFETCH(int, v);
    QFETCH(double, reduction);
    QFETCH(int, expected);
    QCOMPARE(scaled(v, reduction), expected);
}

void tst_chance_geometry::jetons_of_a_player_lie_at_their_place_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("player");
    QTest::addColumn<double>("reduction");
    QTest::addColumn<QPoint>("position");
    // clang-format off
    QTest::newRow("even chance, far left")      << "EC01"        << 0 << 0.0 << QPoint(715, 721);
    QTest::newRow("even chance, left")          << "EC01"        << 1 << 0.0 << QPoint(746, 721);
    QTest::newRow("even chance, right")         << "EC01"        << 2 << 0.0 << QPoint(776, 721);
    QTest::newRow("even chance, far right")     << "EC01"        << 3 << 0.0 << QPoint(807, 721);
    QTest::newRow("even chance, 684 - 41")      << "EC01"        << 0 << 0.1 << QPoint(643, 651);
    QTest::newRow("even chance, 684 - 13")      << "EC01"        << 1 << 0.1 << QPoint(671, 651);
    QTest::newRow("even chance, 95 + 32")       << "EC06"        << 3 << 0.3 << QPoint(127, 513);
    QTest::newRow("even chance, nobody")        << "EC01"        << 4 << 0.0 << QPoint(761, 721);
    QTest::newRow("prison")                     << "PRIS_EC06"   << 3 << 0.0 << QPoint(183, 770);
    QTest::newRow("prison, 608 - 36")           << "PRIS_EC01"   << 0 << 0.2 << QPoint(572, 622);
    QTest::newRow("double prison")              << "D_PRIS_EC03" << 1 << 0.0 << QPoint(496, 680);
    QTest::newRow("dozen, at its place")        << "DZ01"        << 0 << 0.0 << QPoint(614, 645);
    QTest::newRow("dozen, second player")       << "DZ01"        << 1 << 0.0 << QPoint(655, 645);
    QTest::newRow("dozen, third player")        << "DZ01"        << 2 << 0.0 << QPoint(742, 645);
    QTest::newRow("dozen, fourth player")       << "DZ01"        << 3 << 0.0 << QPoint(783, 645);
    QTest::newRow("dozen, 491 + 102")           << "DZ01"        << 2 << 0.2 << QPoint(593, 522);
    QTest::newRow("plein, any player")          << "PL05"        << 3 << 0.0 << QPoint(730, 461);
    QTest::newRow("plein, scaled")              << "PL07"        << 0 << 0.3 << QPoint(467, 264);
    QTest::newRow("column, scaled")             << "KL03"        << 2 << 0.1 << QPoint( 50, 504);
    // clang-format on
}

void tst_chance_geometry::jetons_of_a_player_lie_at_their_place()
{
    QFETCH(QString, key);
    QFETCH(int, player);
    QFETCH(double, reduction);
    QFETCH(QPoint, position);
    QCOMPARE(
        jeton_position(jetons::value_of(key), static_cast<player_names>(player), french, reduction),
        position);
}

void tst_chance_geometry::players_share_the_places_of_the_net()
{
    for (int value = 0; value < jetons::LAST_JN; ++value) {
        const QString kind = jetons::name(place(value)).left(2);
        QSet<int> left;
        QSet<int> top;
        for (const player_names player : players) {
            const QPoint position = jeton_position(place(value), player, american, 0.2);
            left.insert(position.x());
            top.insert(position.y());
        }
        QCOMPARE(left.size(), kind == "EC" || kind == "DZ" ? 4 : 1);
        QCOMPARE(top.size(), 1);
    }
}

void tst_chance_geometry::an_end_mark_has_no_jeton_position()
{
    QCOMPARE(jeton_position(jetons::NO_JETON, PLAYER_1, french, 0.2), QPoint(0, 0));
    QCOMPARE(jeton_position(jetons::LAST_JN, NO_PLAYER, american, 0.0), QPoint(0, 0));
}

void tst_chance_geometry::a_jeton_scales_like_its_click_band()
{
    // At 0.3 the band of the 7 runs from x 467 (668 scaled) and from y 221 to 266.
    const QPoint position = jeton_position(jetons::PL07, PLAYER_1, french, 0.3);
    QCOMPARE(position.x(), scaled(668, 0.3));
    const int top = position.y() - menu_bar;
    QVERIFY(top >= scaled(317, 0.3));
    QVERIFY(top + scaled(square, 0.3) <= scaled(381, 0.3));
    QCOMPARE(scaled(668, 0.3), 467);
    QCOMPARE(scaled(317, 0.3), 221);
    QCOMPARE(scaled(381, 0.3), 266);
}

void tst_chance_geometry::jeton_squares_lie_in_their_click_bands()
{
    for (const table_form form : {french, american}) {
        const QHash<QString, band> bands = click_bands(form);
        QCOMPARE(bands.size(), form == french ? 157 : 161);
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            const QString key = jetons::name(place(value));
            if (is_missing(key, form)) continue;
            const QString text = jetons::instance().display_text(place(value));
            QVERIFY2(bands.contains(text), qPrintable(text));
            const band inside = bands.value(text);
            const QPoint left_top(inside.left, inside.top);
            const QRect clickable(left_top, QPoint(inside.right, inside.bottom));
            // Two squares of an even chance are beyond its ends; the bands around 0/00/2 are
            // lower than a square; six numbers stand one pixel right from the fourth street on.
            const bool even = key.startsWith("EC");
            const bool lower =
                form == american && (key == "CH02" || key == "TP15" || key == "CH62");
            const bool beside = value >= jetons::TS04 && value <= jetons::TS11;
            for (const player_names player : players) {
                if (even && (player == PLAYER_1 || player == PLAYER_4)) continue;
                const QPoint corner =
                    jeton_position(place(value), player, form, 0.0) - QPoint(0, menu_bar);
                const QRect lies(corner, QSize(square, square));
                QVERIFY2(clickable.contains(lies) != (lower || beside), qPrintable(text));
                QVERIFY2(clickable.adjusted(0, -5, 1, 5).contains(lies), qPrintable(text));
            }
        }
    }
}

void tst_chance_geometry::square_centres_stay_in_their_bands_at_every_scale()
{
    constexpr std::array<double, 4> reductions = {0.0, 0.1, 0.2, 0.3};
    for (const table_form form : {french, american}) {
        const QHash<QString, band> bands = click_bands(form);
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            if (is_missing(jetons::name(place(value)), form)) continue;
            const QString text = jetons::instance().display_text(place(value));
            const band inside = bands.value(text);
            for (int tenths = 0; tenths <= 3; ++tenths) {
                const double reduction = reductions[std::size_t(tenths)];
                const int half = in_tenths(square, tenths) / 2;
                for (const player_names player : players) {
                    const QPoint centre = jeton_position(place(value), player, form, reduction) +
                                          QPoint(half, half - menu_bar);
                    QVERIFY2(centre.x() >= in_tenths(inside.left, tenths), qPrintable(text));
                    QVERIFY2(centre.x() <= in_tenths(inside.right, tenths), qPrintable(text));
                    QVERIFY2(centre.y() >= in_tenths(inside.top, tenths), qPrintable(text));
                    QVERIFY2(centre.y() <= in_tenths(inside.bottom, tenths), qPrintable(text));
                }
            }
        }
    }
}

/// Where jetons may touch their neighbours at full size, by key and with the larger key last.
static QHash<QString, QSize> known_overlaps(table_form form)
{
    // The six numbers stand one pixel right, so they touch the street there; no more where the
    // dozens end, since the net is two pixels wider.
    const QSize edge(1, square);
    QHash<QString, QSize> overlaps = {{"TP07 TS05", edge},
                                      {"TP08 TS06", edge},
                                      {"TP09 TS07", edge},
                                      {"TP11 TS09", edge},
                                      {"TP12 TS10", edge},
                                      {"TP13 TS11", edge}};
    if (form == french) return overlaps;
    // Three bets share the room of two on the American zero line.
    overlaps["CH02 TP01"] = QSize(square, 5);
    overlaps["CH02 TP15"] = QSize(square, 9);
    overlaps["CH62 TP15"] = QSize(square, 9);
    overlaps["CH62 TP16"] = QSize(square, 5);
    return overlaps;
}

void tst_chance_geometry::squares_of_different_places_do_not_overlap()
{
    for (const table_form form : {french, american}) {
        QHash<QString, QRect> areas; // all players of a place
        for (int value = 0; value <= jetons::D_PRIS_EC06; ++value) {
            const QString key = jetons::name(place(value));
            if (value == jetons::LAST_JN || value == jetons::NO_JETON) continue;
            if (is_missing(key, form)) continue;
            for (const player_names player : players) {
                const QPoint corner = jeton_position(place(value), player, form, 0.0);
                areas[key] |= QRect(corner, QSize(square, square));
            }
        }
        const QHash<QString, QSize> known = known_overlaps(form);
        int overlaps = 0;
        for (auto one = areas.cbegin(); one != areas.cend(); ++one) {
            for (auto other = areas.cbegin(); other != areas.cend(); ++other) {
                if (one.key() >= other.key() || !one->intersects(*other)) continue;
                ++overlaps;
                const QString pair = one.key() + ' ' + other.key();
                QVERIFY2(known.contains(pair), qPrintable(pair));
                QCOMPARE(one->intersected(*other).size(), known.value(pair));
            }
        }
        QCOMPARE(overlaps, known.size());
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_chance_geometry>(argc, argv);
}

#include "tst_chance_geometry.moc"
