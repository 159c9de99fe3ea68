#include "announcements.h"
#include "number_records.h"
#include "test_box.h"
#include "wheel_order.h"

#include <QSet>
#include <QStringList>

class tst_announcements : public QObject
{
    Q_OBJECT

private slots:
    void a_sector_lays_its_jetons_on_the_french_table_data();
    void a_sector_lays_its_jetons_on_the_french_table();
    void an_announcement_lays_its_jetons_in_order_data();
    void an_announcement_lays_its_jetons_in_order();
    void a_finale_lays_the_pleins_of_its_digit();
    void neighbours_lie_on_both_sides_of_their_number();
    void what_a_form_lacks_lays_nothing_data();
    void what_a_form_lacks_lays_nothing();
    void a_number_belongs_to_its_announcements_in_order_data();
    void a_number_belongs_to_its_announcements_in_order();
    void sectors_hold_the_numbers_their_jetons_cover();
    void sectors_hold_the_same_numbers_on_both_tables();
    void neighbour_bets_hold_the_pleins_they_lay();
    void what_is_no_number_belongs_to_nothing();
};

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;

static jetons::ext_jeton_names announcement(int value)
{
    return static_cast<jetons::ext_jeton_names>(value);
}

template <typename name_type>
static QString names_of(const QVector<name_type>& list)
{
    QStringList names;
    for (const name_type name : list)
        names.append(jetons::name(name));
    return names.join(' ');
}

void tst_announcements::a_sector_lays_its_jetons_on_the_french_table_data()
{
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("GS") << "CH07 CH15 CH21 CH22 CH35 TP02 TP02 CA18 CA18";
    QTest::newRow("KS") << "CH08 CH43 CH16 CH52 CH30 CH36";
    QTest::newRow("OR") << "PL01 CH09 CH17 CH20 CH34";
    QTest::newRow("OP") << "PL01 PL06 PL09 PL14 PL17 PL20 PL31 PL34";
    QTest::newRow("ZS") << "CH03 PL26 CH35 CH15";
    // clang-format on
}

void tst_announcements::a_sector_lays_its_jetons_on_the_french_table()
{
    QFETCH(QString, expected);
    const auto sector = jetons::ext_value_of(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(names_of(announcement_jetons(sector, french)), expected);
}

void tst_announcements::an_announcement_lays_its_jetons_in_order_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("finale")          << "FI00" << french   << "PL00 PL10 PL20 PL30";
    QTest::newRow("both zeros")      << "FI00" << american << "PL00 PL10 PL20 PL30 PL37";
    QTest::newRow("four pleins")     << "FI06" << french   << "PL06 PL16 PL26 PL36";
    QTest::newRow("three pleins")    << "FI07" << american << "PL07 PL17 PL27";
    QTest::newRow("across zero")     << "EN00" << french   << "PL26 PL00 PL32";
    QTest::newRow("over the end")    << "ZN26" << french   << "PL35 PL03 PL26 PL00 PL32";
    QTest::newRow("over the begin")  << "DN32" << french   << "PL03 PL26 PL00 PL32 PL15 PL19 PL04";
    QTest::newRow("in the middle")   << "DN05" << french   << "PL08 PL23 PL10 PL05 PL24 PL16 PL33";
    QTest::newRow("over the end, A") << "ZN02" << american << "PL35 PL14 PL02 PL00 PL28";
    QTest::newRow("zero, A")         << "DN00" << american << "PL35 PL14 PL02 PL00 PL28 PL09 PL26";
    QTest::newRow("around 00")       << "EN37" << american << "PL01 PL37 PL27";
    QTest::newRow("far from 00")     << "DN37" << american << "PL36 PL13 PL01 PL37 PL27 PL10 PL25";
    // clang-format on
}

void tst_announcements::an_announcement_lays_its_jetons_in_order()
{
    QFETCH(QString, name);
    QFETCH(table_form, form);
    QFETCH(QString, expected);
    QCOMPARE(names_of(announcement_jetons(jetons::ext_value_of(name), form)), expected);
}

void tst_announcements::a_finale_lays_the_pleins_of_its_digit()
{
    for (const table_form form : {french, american}) {
        QVector<int> sizes;
        for (int digit = 0; digit <= 9; ++digit) {
            const auto& list = announcement_jetons(announcement(jetons::FI00 + digit), form);
            for (const auto jeton : list) {
                const QString text = jetons::instance().display_text(jeton);
                QVERIFY(text.startsWith("PL ") && text.endsWith(QString::number(digit)));
            }
            sizes.append(list.size());
        }
        QCOMPARE(sizes, (QVector<int>{form == american ? 5 : 4, 4, 4, 4, 4, 4, 4, 3, 3, 3}));
    }
}

/// The pleins around a number, found by walking the counter-clockwise table backwards.
template <std::size_t size>
static QString
naive_neighbours(const std::array<wheel_pocket, size>& pockets, int number, int reach)
{
    constexpr int count = int(size);
    QStringList names;
    for (const wheel_pocket& pocket : pockets) {
        if (pocket.number != number) continue;
        for (int step = reach; step >= -reach; --step) {
            const int index = (pocket.counter_clockwise_index + step + count) % count;
            const int plein = pockets[std::size_t(index)].number;
            names.append(QString("PL%1").arg(plein, 2, 10, QLatin1Char('0')));
        }
    }
    return names.join(' ');
}

void tst_announcements::neighbours_lie_on_both_sides_of_their_number()
{
    for (int number = 0; number <= 37; ++number) {
        const auto one = announcement(jetons::EN00 + number);
        const auto two = announcement(jetons::ZN00 + number);
        const auto three = announcement(jetons::DN00 + number);

        QCOMPARE(names_of(announcement_jetons(one, american)),
                 naive_neighbours(american_wheel_pockets, number, 1));
        QCOMPARE(names_of(announcement_jetons(two, american)),
                 naive_neighbours(american_wheel_pockets, number, 2));
        QCOMPARE(names_of(announcement_jetons(three, american)),
                 naive_neighbours(american_wheel_pockets, number, 3));
        QCOMPARE(announcement_jetons(three, american).size(), 7);

        QCOMPARE(names_of(announcement_jetons(one, french)),
                 naive_neighbours(french_wheel_pockets, number, 1));
        QCOMPARE(names_of(announcement_jetons(two, french)),
                 naive_neighbours(french_wheel_pockets, number, 2));
        QCOMPARE(names_of(announcement_jetons(three, french)),
                 naive_neighbours(french_wheel_pockets, number, 3));
        QCOMPARE(announcement_jetons(three, french).size(), number == 37 ? 0 : 7);
    }
}

void tst_announcements::what_a_form_lacks_lays_nothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<table_form>("form");
    // clang-format off
    QTest::newRow("big series")         << "GS"           << american;
    QTest::newRow("small series")       << "KS"           << american;
    QTest::newRow("orphans")            << "OR"           << american;
    QTest::newRow("orphans PL")   << "OP"           << american;
    QTest::newRow("zero game")          << "ZS"           << american;
    QTest::newRow("one neighbour, 00")  << "EN37"         << french;
    QTest::newRow("two neighbours, 00") << "ZN37"         << french;
    QTest::newRow("three, 00")          << "DN37"         << french;
    QTest::newRow("separator")          << "ENZNDN"       << french;
    QTest::newRow("separator, A")       << "ENZNDN"       << american;
    QTest::newRow("end of the list")    << "LAST_ext_JN"  << french;
    QTest::newRow("no announcement")    << "NO_EXT_JETON" << american;
    // clang-format on
}

void tst_announcements::what_a_form_lacks_lays_nothing()
{
    QFETCH(QString, name);
    QFETCH(table_form, form);
    QCOMPARE(names_of(announcement_jetons(jetons::ext_value_of(name), form)), QString());
}

void tst_announcements::a_number_belongs_to_its_announcements_in_order_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("zero")                  <<  0 << french
        << "FI00 GS ZS DN35 DN03 DN26 DN00 DN32 DN15 DN19 ZN03 ZN26 ZN00 ZN32 ZN15 EN26 EN00 EN32";
    QTest::newRow("orphan")                << 17 << french
        << "FI07 OR OP DN21 DN02 DN25 DN17 DN34 DN06 DN27 ZN02 ZN25 ZN17 ZN34 ZN06 EN25 EN17 EN34";
    QTest::newRow("small series")          << 36 << french
        << "FI06 KS DN06 DN27 DN13 DN36 DN11 DN30 DN08 ZN27 ZN13 ZN36 ZN11 ZN30 EN13 EN36 EN11";
    QTest::newRow("american zero")         <<  0 << american
        << "FI00 GS ZS DN35 DN14 DN02 DN00 DN28 DN09 DN26 ZN14 ZN02 ZN00 ZN28 ZN09 EN02 EN00 EN28";
    QTest::newRow("double zero")           << 37 << american
        << "FI00 DN36 DN13 DN01 DN37 DN27 DN10 DN25 ZN13 ZN01 ZN37 ZN27 ZN10 EN01 EN37 EN27";
    QTest::newRow("double zero, no wheel") << 37 << french << "FI00";
    // clang-format on
}

void tst_announcements::a_number_belongs_to_its_announcements_in_order()
{
    QFETCH(int, number);
    QFETCH(table_form, form);
    QFETCH(QString, expected);
    QCOMPARE(names_of(hit_announcements(number, form)), expected);
}

void tst_announcements::sectors_hold_the_numbers_their_jetons_cover()
{
    for (const auto sector : {jetons::GS, jetons::KS, jetons::OR, jetons::OP, jetons::ZS}) {
        for (int number = 0; number <= 36; ++number) {
            bool covered = false;
            for (const auto jeton : announcement_jetons(sector, french)) {
                covered = covered || covers(jeton, number);
            }
            QCOMPARE(hits(sector, number, french), covered);
        }
    }
}

void tst_announcements::sectors_hold_the_same_numbers_on_both_tables()
{
    QHash<int, int> counts;
    for (const auto sector : {jetons::GS, jetons::KS, jetons::OR, jetons::OP, jetons::ZS}) {
        for (int number = 0; number <= 37; ++number) {
            QCOMPARE(hits(sector, number, american), hits(sector, number, french));
            if (hits(sector, number, american)) ++counts[sector];
        }
    }
    QCOMPARE(counts.value(jetons::GS), 17);
    QCOMPARE(counts.value(jetons::KS), 12);
    QCOMPARE(counts.value(jetons::OR), 8);
    QCOMPARE(counts.value(jetons::OP), 8);
    QCOMPARE(counts.value(jetons::ZS), 7);
}

void tst_announcements::neighbour_bets_hold_the_pleins_they_lay()
{
    for (const table_form form : {french, american}) {
        for (int value = jetons::EN00; value < jetons::LAST_ext_JN; ++value) {
            const auto& list = announcement_jetons(announcement(value), form);
            for (int number = 0; number <= 37; ++number) {
                const auto plein = static_cast<jetons::jeton_names>(number);
                QCOMPARE(hits(announcement(value), number, form), list.contains(plein));
            }
        }
    }
}

void tst_announcements::what_is_no_number_belongs_to_nothing()
{
    for (const int number : {-1, 38, 99, 2147483647, -2147483647}) {
        QVERIFY(hit_announcements(number, french).isEmpty());
        QVERIFY(hit_announcements(number, american).isEmpty());
        QVERIFY(!hits(jetons::FI00, number, american));
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_announcements>(argc, argv);
}

#include "tst_announcements.moc"
