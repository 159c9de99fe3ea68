#include "table_regions.h"
#include "test_box.h"

#include <array>
#include <set>

/// What a point of the table picture means.
class tst_table_regions : public QObject
{
    Q_OBJECT

private slots:
    void a_field_is_hit_from_edge_to_edge_data();
    void a_field_is_hit_from_edge_to_edge();
    void every_chance_of_a_form_has_its_field();
    void every_point_means_what_the_plan_says_data();
    void every_point_means_what_the_plan_says();
    void a_shared_pixel_belongs_to_the_earlier_field_data();
    void a_shared_pixel_belongs_to_the_earlier_field();
    void the_dialog_rows_lie_below_the_announcements_data();
    void the_dialog_rows_lie_below_the_announcements();
    void the_betting_area_has_its_edges_data();
    void the_betting_area_has_its_edges();
};

namespace
{

constexpr std::array<double, 4> reductions = {0.0, 0.1, 0.2, 0.3};

/// The integer part of v reduced by so many tenths, without floating point.
int in_tenths(int v, int tenths)
{
    return v * (10 - tenths) / 10;
}

enum class on { french, american, both };

constexpr on french = on::french;
constexpr on american = on::american;
constexpr on both = on::both;

/// A field of the table and what lies in it, by the text that the user reads.
struct plan_row {
    const char* text;
    on forms;
    int left;
    int right;
    int top;
    int bottom;

    bool is_on(table_form form) const
    {
        return forms == on::both || (forms == on::american) == (form == table_form::american);
    }
};

// clang-format off
constexpr std::array<plan_row, 170> plan = {{
    {"PL 1",       both,           792,  822, 317, 381},
    {"CH 1/2",     both,           792,  822, 382, 412},
    {"PL 2",       both,           792,  822, 413, 477},
    {"CH 2/3",     both,           792,  822, 478, 508},
    {"PL 3",       both,           792,  822, 509, 573},
    {"TP 1/2/3",   both,           792,  822, 574, 604},
    {"PL 4",       both,           730,  760, 317, 381},
    {"CH 4/5",     both,           730,  760, 382, 412},
    {"PL 5",       both,           730,  760, 413, 477},
    {"CH 5/6",     both,           730,  760, 478, 508},
    {"PL 6",       both,           730,  760, 509, 573},
    {"TP 4/5/6",   both,           730,  760, 574, 604},
    {"CH 1/4",     both,           761,  791, 317, 381},
    {"CA 1-5",     both,           761,  791, 382, 412},
    {"CH 2/5",     both,           761,  791, 413, 477},
    {"CA 2-6",     both,           761,  791, 478, 508},
    {"CH 3/6",     both,           761,  791, 509, 573},
    {"TS 1/6",     both,           761,  791, 574, 604},
    {"PL 7",       both,           668,  698, 317, 381},
    {"CH 7/8",     both,           668,  698, 382, 412},
    {"PL 8",       both,           668,  698, 413, 477},
    {"CH 8/9",     both,           668,  698, 478, 508},
    {"PL 9",       both,           668,  698, 509, 573},
    {"TP 7/8/9",   both,           668,  698, 574, 604},
    {"CH 4/7",     both,           699,  729, 317, 381},
    {"CA 4-8",     both,           699,  729, 382, 412},
    {"CH 5/8",     both,           699,  729, 413, 477},
    {"CA 5-9",     both,           699,  729, 478, 508},
    {"CH 6/9",     both,           699,  729, 509, 573},
    {"TS 4/9",     both,           699,  729, 574, 604},
    {"PL 10",      both,           606,  636, 317, 381},
    {"CH 10/11",   both,           606,  636, 382, 412},
    {"PL 11",      both,           606,  636, 413, 477},
    {"CH 11/12",   both,           606,  636, 478, 508},
    {"PL 12",      both,           606,  636, 509, 573},
    {"TP 10/11/12", both,           606,  636, 574, 604},
    {"CH 7/10",    both,           637,  667, 317, 381},
    {"CA 7-11",    both,           637,  667, 382, 412},
    {"CH 8/11",    both,           637,  667, 413, 477},
    {"CA 8-12",    both,           637,  667, 478, 508},
    {"CH 9/12",    both,           637,  667, 509, 573},
    {"TS 7/12",    both,           637,  667, 574, 604},
    {"PL 13",      both,           542,  572, 317, 381},
    {"CH 13/14",   both,           542,  572, 382, 412},
    {"PL 14",      both,           542,  572, 413, 477},
    {"CH 14/15",   both,           542,  572, 478, 508},
    {"PL 15",      both,           542,  572, 509, 573},
    {"TP 13/14/15", both,           542,  572, 574, 604},
    {"CH 10/13",   both,           573,  603, 317, 381},
    {"CA 10-14",   both,           573,  603, 382, 412},
    {"CH 11/14",   both,           573,  603, 413, 477},
    {"CA 11-15",   both,           573,  603, 478, 508},
    {"CH 12/15",   both,           573,  603, 509, 573},
    {"TS 10/15",   both,           573,  603, 574, 604},
    {"PL 16",      both,           480,  510, 317, 381},
    {"CH 16/17",   both,           480,  510, 382, 412},
    {"PL 17",      both,           480,  510, 413, 477},
    {"CH 17/18",   both,           480,  510, 478, 508},
    {"PL 18",      both,           480,  510, 509, 573},
    {"TP 16/17/18", both,           480,  510, 574, 604},
    {"CH 13/16",   both,           511,  541, 317, 381},
    {"CA 13-17",   both,           511,  541, 382, 412},
    {"CH 14/17",   both,           511,  541, 413, 477},
    {"CA 14-18",   both,           511,  541, 478, 508},
    {"CH 15/18",   both,           511,  541, 509, 573},
    {"TS 13/18",   both,           511,  541, 574, 604},
    {"PL 19",      both,           418,  448, 317, 381},
    {"CH 19/20",   both,           418,  448, 382, 412},
    {"PL 20",      both,           418,  448, 413, 477},
    {"CH 20/21",   both,           418,  448, 478, 508},
    {"PL 21",      both,           418,  448, 509, 573},
    {"TP 19/20/21", both,           418,  448, 574, 604},
    {"CH 16/19",   both,           449,  479, 317, 381},
    {"CA 16-20",   both,           449,  479, 382, 412},
    {"CH 17/20",   both,           449,  479, 413, 477},
    {"CA 17-21",   both,           449,  479, 478, 508},
    {"CH 18/21",   both,           449,  479, 509, 573},
    {"TS 16/21",   both,           449,  479, 574, 604},
    {"PL 22",      both,           356,  386, 317, 381},
    {"CH 22/23",   both,           356,  386, 382, 412},
    {"PL 23",      both,           356,  386, 413, 477},
    {"CH 23/24",   both,           356,  386, 478, 508},
    {"PL 24",      both,           356,  386, 509, 573},
    {"TP 22/23/24", both,           356,  386, 574, 604},
    {"CH 19/22",   both,           387,  417, 317, 381},
    {"CA 19-23",   both,           387,  417, 382, 412},
    {"CH 20/23",   both,           387,  417, 413, 477},
    {"CA 20-24",   both,           387,  417, 478, 508},
    {"CH 21/24",   both,           387,  417, 509, 573},
    {"TS 19/24",   both,           387,  417, 574, 604},
    {"PL 25",      both,           292,  322, 317, 381},
    {"CH 25/26",   both,           292,  322, 382, 412},
    {"PL 26",      both,           292,  322, 413, 477},
    {"CH 26/27",   both,           292,  322, 478, 508},
    {"PL 27",      both,           292,  322, 509, 573},
    {"TP 25/26/27", both,           292,  322, 574, 604},
    {"CH 22/25",   both,           323,  353, 317, 381},
    {"CA 22-26",   both,           323,  353, 382, 412},
    {"CH 23/26",   both,           323,  353, 413, 477},
    {"CA 23-27",   both,           323,  353, 478, 508},
    {"CH 24/27",   both,           323,  353, 509, 573},
    {"TS 22/27",   both,           323,  353, 574, 604},
    {"PL 28",      both,           230,  260, 317, 381},
    {"CH 28/29",   both,           230,  260, 382, 412},
    {"PL 29",      both,           230,  260, 413, 477},
    {"CH 29/30",   both,           230,  260, 478, 508},
    {"PL 30",      both,           230,  260, 509, 573},
    {"TP 28/29/30", both,           230,  260, 574, 604},
    {"CH 25/28",   both,           261,  291, 317, 381},
    {"CA 25-29",   both,           261,  291, 382, 412},
    {"CH 26/29",   both,           261,  291, 413, 477},
    {"CA 26-30",   both,           261,  291, 478, 508},
    {"CH 27/30",   both,           261,  291, 509, 573},
    {"TS 25/30",   both,           261,  291, 574, 604},
    {"PL 31",      both,           168,  198, 317, 381},
    {"CH 31/32",   both,           168,  198, 382, 412},
    {"PL 32",      both,           168,  198, 413, 477},
    {"CH 32/33",   both,           168,  198, 478, 508},
    {"PL 33",      both,           168,  198, 509, 573},
    {"TP 31/32/33", both,           168,  198, 574, 604},
    {"CH 28/31",   both,           199,  229, 317, 381},
    {"CA 28-32",   both,           199,  229, 382, 412},
    {"CH 29/32",   both,           199,  229, 413, 477},
    {"CA 29-33",   both,           199,  229, 478, 508},
    {"CH 30/33",   both,           199,  229, 509, 573},
    {"TS 28/33",   both,           199,  229, 574, 604},
    {"PL 34",      both,           106,  136, 317, 381},
    {"CH 34/35",   both,           106,  136, 382, 412},
    {"PL 35",      both,           106,  136, 413, 477},
    {"CH 35/36",   both,           106,  136, 478, 508},
    {"PL 36",      both,           106,  136, 509, 573},
    {"TP 34/35/36", both,           106,  136, 574, 604},
    {"CH 31/34",   both,           137,  167, 317, 381},
    {"CA 31-35",   both,           137,  167, 382, 412},
    {"CH 32/35",   both,           137,  167, 413, 477},
    {"CA 32-36",   both,           137,  167, 478, 508},
    {"CH 33/36",   both,           137,  167, 509, 573},
    {"TS 31/36",   both,           137,  167, 574, 604},
    {"CH 0/1",     both,           823,  853, 317, 381},
    {"TP 0/1/2",   both,           823,  853, 382, 412},
    {"CA 0-3",     both,           823,  853, 574, 604},
    {"CH 0/2",     french,         823,  853, 413, 477},
    {"TP 0/2/3",   french,         823,  853, 478, 508},
    {"CH 0/3",     french,         823,  853, 509, 573},
    {"PL 0",       french,         854,  884, 374, 516},
    {"CH 0/2",     american,       823,  853, 413, 433},
    {"TP 0/00/2",  american,       823,  853, 434, 456},
    {"CH 00/2",    american,       823,  853, 457, 477},
    {"TP 00/2/3",  american,       823,  853, 478, 508},
    {"CH 00/3",    american,       823,  853, 509, 573},
    {"PL 0",       american,       854,  884, 317, 429},
    {"CH 0/00",    american,       854,  884, 430, 460},
    {"PL 00",      american,       854,  884, 461, 573},
    {"EC 1-18",    both,           728,  824, 676, 734},
    {"EC EVEN",    both,           603,  700, 676, 734},
    {"EC RED",     both,           478,  575, 676, 734},
    {"EC BLACK",   both,           353,  450, 676, 734},
    {"EC ODD",     both,           228,  325, 676, 734},
    {"EC 19-36",   both,           104,  200, 676, 734},
    {"DZ 1",       both,           603,  824, 605, 653},
    {"DZ 2",       both,           353,  575, 605, 653},
    {"DZ 3",       both,           104,  325, 605, 653},
    {"KL 1",       both,            56,   86, 305, 393},
    {"KL 2",       both,            56,   86, 401, 489},
    {"KL 3",       both,            56,   86, 497, 585},
    {"GS",         french,         916, 1010, 373, 400},
    {"KS",         french,         916, 1010, 407, 434},
    {"OR",         french,         916, 1010, 441, 468},
    {"OP",         french,         916, 1010, 475, 502},
    {"ZS",         french,         916, 1010, 509, 536},
}};
// clang-format on

QString text_of(const table_hit& hit)
{
    const jetons& names = jetons::instance();
    if (hit.jeton != jetons::NO_JETON) return names.display_text(hit.jeton);
    return names.display_text(hit.announcement);
}

QString text_at(QPoint point, int tenths, table_form form)
{
    return text_of(chance_at(point, reductions[std::size_t(tenths)], form));
}

/// Between two limits of the full-size table, seen on the smaller one.
struct ruler {
    int tenths;

    bool lies(int v, int from, int to) const
    {
        return v >= in_tenths(from, tenths) && v <= in_tenths(to, tenths);
    }
};

/// The row of the number net at a height, from 0; -1 for none.
int net_row_at(int y, const ruler& by)
{
    if (by.lies(y, 317, 381)) return 0;
    if (by.lies(y, 382, 412)) return 1;
    if (by.lies(y, 413, 477)) return 2;
    if (by.lies(y, 478, 508)) return 3;
    if (by.lies(y, 509, 573)) return 4;
    if (by.lies(y, 574, 604)) return 5;
    return -1;
}

QString number_bet(int a, int row)
{
    switch (row) {
    case 0:
        return QString("PL %1").arg(a);
    case 1:
        return QString("CH %1/%2").arg(a).arg(a + 1);
    case 2:
        return QString("PL %1").arg(a + 1);
    case 3:
        return QString("CH %1/%2").arg(a + 1).arg(a + 2);
    case 4:
        return QString("PL %1").arg(a + 2);
    case 5:
        return QString("TP %1/%2/%3").arg(a).arg(a + 1).arg(a + 2);
    default:
        return {};
    }
}

QString joining_bet(int a, int row)
{
    switch (row) {
    case 0:
        return QString("CH %1/%2").arg(a - 3).arg(a);
    case 1:
        return QString("CA %1-%2").arg(a - 3).arg(a + 1);
    case 2:
        return QString("CH %1/%2").arg(a - 2).arg(a + 1);
    case 3:
        return QString("CA %1-%2").arg(a - 2).arg(a + 2);
    case 4:
        return QString("CH %1/%2").arg(a - 1).arg(a + 2);
    case 5:
        return QString("TS %1/%2").arg(a - 3).arg(a + 2);
    default:
        return {};
    }
}

QString zero_bet(int y, const ruler& by, table_form form)
{
    if (by.lies(y, 317, 381)) return "CH 0/1";
    if (by.lies(y, 382, 412)) return "TP 0/1/2";
    if (form == table_form::french) {
        if (by.lies(y, 413, 477)) return "CH 0/2";
        if (by.lies(y, 478, 508)) return "TP 0/2/3";
        if (by.lies(y, 509, 573)) return "CH 0/3";
    } else {
        if (by.lies(y, 413, 433)) return "CH 0/2";
        if (by.lies(y, 434, 456)) return "TP 0/00/2";
        if (by.lies(y, 457, 477)) return "CH 00/2";
        if (by.lies(y, 478, 508)) return "TP 00/2/3";
        if (by.lies(y, 509, 573)) return "CH 00/3";
    }
    if (by.lies(y, 574, 604)) return "CA 0-3";
    return {};
}

QString net_bet(int x, int y, const ruler& by, table_form form)
{
    int street_left = 792;
    for (int street = 0; street < 12; ++street) {
        const int a = 3 * street + 1;
        const int row = net_row_at(y, by);
        if (by.lies(x, street_left, street_left + 30)) return number_bet(a, row);
        if (by.lies(x, street_left + 31, street_left + 61))
            return street == 0 ? zero_bet(y, by, form) : joining_bet(a, row);
        street_left -= street % 4 == 3 ? 64 : 62;
    }
    return {};
}

QString zero_field(int y, const ruler& by, table_form form)
{
    if (form == table_form::french) return by.lies(y, 374, 516) ? "PL 0" : "";
    if (by.lies(y, 317, 429)) return "PL 0";
    if (by.lies(y, 430, 460)) return "CH 0/00";
    return by.lies(y, 461, 573) ? "PL 00" : "";
}

QString announcement(int y, const ruler& by)
{
    if (by.lies(y, 373, 400)) return "GS";
    if (by.lies(y, 407, 434)) return "KS";
    if (by.lies(y, 441, 468)) return "OR";
    if (by.lies(y, 475, 502)) return "OP";
    return by.lies(y, 509, 536) ? "ZS" : "";
}

/// The table once more, asked like a croupier would: which part, then which field in it.
QString plain_text_at(int x, int y, int tenths, table_form form)
{
    const ruler by{tenths};
    if (by.lies(y, 676, 734) && by.lies(x, 104, 824)) {
        if (by.lies(x, 728, 824)) return "EC 1-18";
        if (by.lies(x, 603, 700)) return "EC EVEN";
        if (by.lies(x, 478, 575)) return "EC RED";
        if (by.lies(x, 353, 450)) return "EC BLACK";
        if (by.lies(x, 228, 325)) return "EC ODD";
        return by.lies(x, 104, 200) ? "EC 19-36" : "";
    }
    if (by.lies(y, 605, 653) && by.lies(x, 104, 824)) {
        if (by.lies(x, 603, 824)) return "DZ 1";
        if (by.lies(x, 353, 575)) return "DZ 2";
        return by.lies(x, 104, 325) ? "DZ 3" : "";
    }
    if (by.lies(y, 317, 604) && by.lies(x, 106, 853)) return net_bet(x, y, by, form);
    if (by.lies(x, 56, 86)) {
        if (by.lies(y, 305, 393)) return "KL 1";
        if (by.lies(y, 401, 489)) return "KL 2";
        return by.lies(y, 497, 585) ? "KL 3" : "";
    }
    if (by.lies(x, 854, 884)) return zero_field(y, by, form);
    if (form == table_form::french && by.lies(x, 916, 1010)) return announcement(y, by);
    return {};
}

} // namespace

void tst_table_regions::a_field_is_hit_from_edge_to_edge_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("tenths");
    for (int tenths = 0; tenths < 4; ++tenths) {
        QTest::addRow("french, 0.%d", tenths) << table_form::french << tenths;
        QTest::addRow("american, 0.%d", tenths) << table_form::american << tenths;
    }
}

void tst_table_regions::a_field_is_hit_from_edge_to_edge()
{
    QFETCH(table_form, form);
    QFETCH(int, tenths);
    int shared = 0;
    for (const plan_row& row : plan) {
        if (!row.is_on(form)) continue;
        const int left = in_tenths(row.left, tenths);
        const int right = in_tenths(row.right, tenths);
        const int top = in_tenths(row.top, tenths);
        const int bottom = in_tenths(row.bottom, tenths);
        const QPoint centre((left + right) / 2, (top + bottom) / 2);
        QCOMPARE(text_at(centre, tenths, form), QString(row.text));
        for (const QPoint corner :
             {QPoint(left, top), QPoint(right, top), QPoint(left, bottom), QPoint(right, bottom)}) {
            // A left or upper edge of a smaller table may belong to the neighbour before.
            const QString told = text_at(corner, tenths, form);
            if (told == row.text) continue;
            ++shared;
            QVERIFY2(corner.x() == left || corner.y() == top, row.text);
            QCOMPARE(told, plain_text_at(corner.x(), corner.y(), tenths, form));
        }
    }
    if (tenths == 0) QCOMPARE(shared, 0);
}

void tst_table_regions::every_chance_of_a_form_has_its_field()
{
    // 163 places: the French table lacks six of them, the American one two.
    for (const table_form form : {table_form::french, table_form::american}) {
        std::set<int> found;
        for (const plan_row& row : plan) {
            if (!row.is_on(form)) continue;
            const table_hit hit = chance_at(QPoint(row.left, row.top), 0.0, form);
            if (hit.jeton == jetons::NO_JETON) continue;
            found.insert(hit.jeton);
            QCOMPARE(int(hit.announcement), int(jetons::NO_EXT_JETON));
        }
        QCOMPARE(int(found.size()), form == table_form::french ? 157 : 161);
        QVERIFY(*found.rbegin() < jetons::LAST_JN);
    }
}

void tst_table_regions::every_point_means_what_the_plan_says_data()
{
    a_field_is_hit_from_edge_to_edge_data();
}

void tst_table_regions::every_point_means_what_the_plan_says()
{
    QFETCH(table_form, form);
    QFETCH(int, tenths);
    constexpr int outside = 3; // pixels around the betting area that are looked at too
    const int right = in_tenths(1010, tenths) + outside;
    const int bottom = in_tenths(774, tenths) + outside;
    table_hit last;
    QString last_text;
    for (int y = in_tenths(298, tenths) - outside; y <= bottom; ++y) {
        for (int x = in_tenths(51, tenths) - outside; x <= right; ++x) {
            const table_hit hit = chance_at({x, y}, reductions[std::size_t(tenths)], form);
            if (!(hit == last)) {
                last = hit;
                last_text = text_of(hit);
            }
            const QString expected = plain_text_at(x, y, tenths, form);
            if (last_text == expected) continue;
            QFAIL(qPrintable(QString("%1, %2: %3 for %4").arg(x).arg(y).arg(last_text, expected)));
        }
    }
    for (const QPoint far_away : {QPoint(0, 0), QPoint(-50, -300), QPoint(5000, 400)})
        QVERIFY(chance_at(far_away, reductions[std::size_t(tenths)], form).is_nothing());
}

void tst_table_regions::a_shared_pixel_belongs_to_the_earlier_field_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("tenths");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QString>("text");
    // Where the last pixel of one field and the first of the next are cut to the same value.
    // clang-format off
    QTest::newRow("760 and 761 are both 684")      << QPoint(684, 320) << 1 << table_form::french   << "PL 4";
    QTest::newRow("760 and 761 are both 608")      << QPoint(608, 300) << 2 << table_form::french   << "PL 4";
    QTest::newRow("760 and 761 are both 532")      << QPoint(532, 250) << 3 << table_form::french   << "PL 4";
    QTest::newRow("853 and 854 are both 597")      << QPoint(597, 320) << 3 << table_form::american << "CH 00/2";
    QTest::newRow("573 and 574 are both 401")      << QPoint(560, 401) << 3 << table_form::french   << "PL 3";
    QTest::newRow("433 and 434 are both 303")      << QPoint(580, 303) << 3 << table_form::american << "CH 0/2";
    QTest::newRow("456 and 457 are both 319")      << QPoint(580, 319) << 3 << table_form::american << "TP 0/00/2";
    QTest::newRow("460 and 461 are both 368")      << QPoint(690, 368) << 2 << table_form::american << "CH 0/00";
    QTest::newRow("460 and 461 are both 414")      << QPoint(780, 414) << 1 << table_form::american << "CH 0/00";
    // clang-format on
}

void tst_table_regions::a_shared_pixel_belongs_to_the_earlier_field()
{
    QFETCH(QPoint, point);
    QFETCH(int, tenths);
    QFETCH(table_form, form);
    QFETCH(QString, text);
    QCOMPARE(text_at(point, tenths, form), text);
}

void tst_table_regions::the_dialog_rows_lie_below_the_announcements_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("tenths");
    QTest::addColumn<QString>("first_name");
    // clang-format off
    QTest::newRow("finals, first")            << QPoint( 916, 543) << 0 << "FI00";
    QTest::newRow("finals, last")             << QPoint(1010, 570) << 0 << "FI00";
    QTest::newRow("above")                    << QPoint( 950, 542) << 0 << "NO_EXT_JETON";
    QTest::newRow("left")                     << QPoint( 915, 550) << 0 << "NO_EXT_JETON";
    QTest::newRow("right")                    << QPoint(1011, 550) << 0 << "NO_EXT_JETON";
    QTest::newRow("between two rows")         << QPoint( 950, 571) << 0 << "NO_EXT_JETON";
    QTest::newRow("before the second row")    << QPoint( 950, 576) << 0 << "NO_EXT_JETON";
    QTest::newRow("one neighbour, first")     << QPoint( 916, 577) << 0 << "EN00";
    QTest::newRow("one neighbour, last")      << QPoint(1010, 604) << 0 << "EN00";
    QTest::newRow("two neighbours, first")    << QPoint( 916, 611) << 0 << "ZN00";
    QTest::newRow("two neighbours, last")     << QPoint(1010, 638) << 0 << "ZN00";
    QTest::newRow("three neighbours, first")  << QPoint( 916, 645) << 0 << "DN00";
    QTest::newRow("three neighbours, last")   << QPoint(1010, 672) << 0 << "DN00";
    QTest::newRow("below")                    << QPoint( 950, 673) << 0 << "NO_EXT_JETON";
    QTest::newRow("announcement")             << QPoint( 950, 520) << 0 << "NO_EXT_JETON";
    // 0.3: x 641.2 to 707, y 380.1 to 399, 403.9 to 422.8, 427.7 to 446.6, 451.5 to 470.4.
    QTest::newRow("smaller, first")           << QPoint( 641, 380) << 3 << "FI00";
    QTest::newRow("smaller, above")           << QPoint( 641, 379) << 3 << "NO_EXT_JETON";
    QTest::newRow("smaller, left")            << QPoint( 640, 380) << 3 << "NO_EXT_JETON";
    QTest::newRow("smaller, end of finals")   << QPoint( 707, 399) << 3 << "FI00";
    QTest::newRow("smaller, right")           << QPoint( 708, 399) << 3 << "NO_EXT_JETON";
    QTest::newRow("smaller, one neighbour")   << QPoint( 650, 403) << 3 << "EN00";
    QTest::newRow("smaller, two neighbours")  << QPoint( 650, 446) << 3 << "ZN00";
    QTest::newRow("smaller, last")            << QPoint( 707, 470) << 3 << "DN00";
    QTest::newRow("smaller, below")           << QPoint( 707, 471) << 3 << "NO_EXT_JETON";
    // clang-format on
}

void tst_table_regions::the_dialog_rows_lie_below_the_announcements()
{
    QFETCH(QPoint, point);
    QFETCH(int, tenths);
    QFETCH(QString, first_name);
    const jetons::ext_jeton_names told =
        announcement_dialog_at(point, reductions[std::size_t(tenths)]);
    QCOMPARE(jetons::name(told), first_name);
}

void tst_table_regions::the_betting_area_has_its_edges_data()
{
    QTest::addColumn<int>("tenths");
    QTest::addColumn<QPoint>("first");
    QTest::addColumn<QPoint>("last");
    // clang-format off
    QTest::newRow("full size") << 0 << QPoint(51, 298) << QPoint(1010, 774);
    QTest::newRow("0.1")       << 1 << QPoint(45, 268) << QPoint( 909, 696); // 45.9, 268.2; 909, 696.6
    QTest::newRow("0.2")       << 2 << QPoint(40, 238) << QPoint( 808, 619); // 40.8, 238.4; 808, 619.2
    QTest::newRow("0.3")       << 3 << QPoint(35, 208) << QPoint( 707, 541); // 35.7, 208.6; 707, 541.8
    // clang-format on
}

void tst_table_regions::the_betting_area_has_its_edges()
{
    QFETCH(int, tenths);
    QFETCH(QPoint, first);
    QFETCH(QPoint, last);
    const double reduction = reductions[std::size_t(tenths)];
    QVERIFY(is_in_betting_area(first, reduction));
    QVERIFY(is_in_betting_area(last, reduction));
    QVERIFY(!is_in_betting_area(first - QPoint(1, 0), reduction));
    QVERIFY(!is_in_betting_area(first - QPoint(0, 1), reduction));
    QVERIFY(!is_in_betting_area(last + QPoint(1, 0), reduction));
    QVERIFY(!is_in_betting_area(last + QPoint(0, 1), reduction));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_table_regions>(argc, argv);
}

#include "tst_table_regions.moc"
