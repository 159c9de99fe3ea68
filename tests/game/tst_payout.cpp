#include "number_records.h"
#include "payout.h"
#include "test_box.h"

#include <QSet>
#include <QStringList>

/// Payouts against a second opinion: what a chance holds, read from its display text alone.
class tst_payout : public QObject
{
    Q_OBJECT

private slots:
    void every_bet_pays_as_its_text_tells_data();
    void every_bet_pays_as_its_text_tells();
    void covered_numbers_times_multiplier_are_36();
    void every_place_has_its_kind_data();
    void every_place_has_its_kind();
    void single_payouts_are_those_of_the_house_data();
    void single_payouts_are_those_of_the_house();
    void an_unknown_staff_setting_takes_nothing_data();
    void an_unknown_staff_setting_takes_nothing();
    void what_is_no_place_covers_and_pays_nothing();
};

Q_DECLARE_METATYPE(chance_kind)

static jetons::jeton_names place(int value)
{
    return static_cast<jetons::jeton_names>(value);
}

static table_rules rules_of(table_form form, bool stake_joins_win, int staff_piece)
{
    table_rules rules;
    rules.form = form;
    rules.stake_joins_win = stake_joins_win;
    rules.staff_piece = staff_piece;
    return rules;
}

static QSet<int> numbers_from_to(int first, int last, int step = 1)
{
    QSet<int> numbers;
    for (int number = first; number <= last; number += step)
        numbers.insert(number);
    return numbers;
}

static QSet<int> even_chance_numbers(const QString& word)
{
    const QSet<int> red = {1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};
    if (word == "1-18") return numbers_from_to(1, 18);
    if (word == "19-36") return numbers_from_to(19, 36);
    if (word == "EVEN") return numbers_from_to(2, 36, 2);
    if (word == "ODD") return numbers_from_to(1, 35, 2);
    if (word == "RED") return red;
    if (word == "BLACK") return numbers_from_to(1, 36) - red;
    return {};
}

/// "CH 1/4", "TP 0/00/2", "TS 1/6", "CA 2-6", "KL 3" and so on to the numbers of the chance.
static QSet<int> numbers_of_text(const QString& text, table_form form)
{
    const QString kind = text.left(2);
    const QString rest = text.mid(3);
    if (kind == "EC") return even_chance_numbers(rest);
    if (kind == "DZ") return numbers_from_to(12 * rest.toInt() - 11, 12 * rest.toInt());
    if (kind == "KL") return numbers_from_to(rest.toInt(), 36, 3);
    if (kind == "TS") {
        const QStringList ends = rest.split('/');
        return numbers_from_to(ends.at(0).toInt(), ends.at(1).toInt());
    }
    if (kind == "CA" && rest == "0-3") {
        QSet<int> numbers = {0, 1, 2, 3};
        if (form == table_form::american) numbers.insert(37);
        return numbers;
    }
    if (kind == "CA") {
        const QStringList corners = rest.split('-');
        const int first = corners.at(0).toInt();
        const int last = corners.at(1).toInt();
        return {first, first + 1, last - 1, last};
    }
    QSet<int> numbers;
    for (const QString& part : rest.split('/'))
        numbers.insert(part == "00" ? 37 : part.toInt());
    return numbers;
}

/// Stakes paid for a bet that holds so many numbers.
static int naive_multiplier(int covered, bool stake_joins_win, int staff_piece)
{
    int stakes = covered == 5 ? 7 : 36 / covered;
    if (covered == 1 && staff_piece >= 1) stakes -= 1;
    if (covered == 2 && staff_piece == 2) stakes -= 1;
    return stake_joins_win ? stakes : stakes - 1;
}

void tst_payout::every_bet_pays_as_its_text_tells_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<int>("staff_piece");
    for (const table_form form : {table_form::french, table_form::american}) {
        for (const bool joins : {true, false}) {
            for (int staff = 0; staff <= 2; ++staff) {
                QTest::addRow("%s, stake %s, staff %d",
                              form == table_form::french ? "french" : "american",
                              joins ? "joins" : "stays",
                              staff)
                    << form << joins << staff;
            }
        }
    }
}

void tst_payout::every_bet_pays_as_its_text_tells()
{
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(int, staff_piece);
    const table_rules rules = rules_of(form, stake_joins_win, staff_piece);
    int compared = 0;
    for (int value = 0; value < jetons::LAST_JN; ++value) {
        const QString text = jetons::instance().display_text(place(value));
        const QSet<int> numbers = numbers_of_text(text, form);
        const int stakes = naive_multiplier(numbers.size(), stake_joins_win, staff_piece);
        for (int number = 0; number <= 37; ++number) {
            if (number == 37 && form == table_form::french) continue; // never thrown there
            const int won = covers(place(value), number) ? multiplier(place(value), rules) : 0;
            const int expected = numbers.contains(number) ? stakes : 0;
            const QString bet = QString("%1 on %2").arg(text).arg(number);
            QVERIFY2(won == expected,
                     qPrintable(QString("%1: %2, not %3").arg(bet).arg(won).arg(expected)));
            ++compared;
        }
    }
    QCOMPARE(compared, 163 * pocket_count(form));
}

void tst_payout::covered_numbers_times_multiplier_are_36()
{
    for (const table_form form : {table_form::french, table_form::american}) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            int covered = 0;
            for (int number = 0; number <= 37; ++number) {
                const bool on_wheel = number < 37 || form == table_form::american;
                // The five bets with the double zero hold one number less on the French wheel,
                // where no jeton can lie on them.
                const bool american_bet = value == jetons::PL37 || value == jetons::TP15 ||
                                          value == jetons::TP16 ||
                                          (value >= jetons::CH61 && value <= jetons::CH63);
                if ((on_wheel || american_bet) && covers(place(value), number)) ++covered;
            }
            // The one exception of the house: five numbers at seven for one.
            const bool five_numbers = value == jetons::CA01 && form == table_form::american;
            QCOMPARE(covered * multiplier(place(value), rules_of(form, true, 0)),
                     five_numbers ? 35 : 36);
        }
    }
}

void tst_payout::every_place_has_its_kind_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<chance_kind>("kind");
    // clang-format off
    QTest::newRow("plein")       << "PL00"    << "PL37"        << chance_kind::plein;
    QTest::newRow("cheval")      << "CH01"    << "CH63"        << chance_kind::cheval;
    QTest::newRow("street")      << "TP01"    << "TP16"        << chance_kind::transversale_pleine;
    QTest::newRow("six numbers") << "TS01"    << "TS11"        << chance_kind::transversale_simple;
    QTest::newRow("even chance") << "EC01"    << "EC06"        << chance_kind::einfache_chance;
    QTest::newRow("carré")       << "CA01"    << "CA23"        << chance_kind::carre;
    QTest::newRow("column")      << "KL01"    << "KL03"        << chance_kind::kolonne;
    QTest::newRow("dozen")       << "DZ01"    << "DZ03"        << chance_kind::dutzend;
    QTest::newRow("no place")    << "LAST_JN" << "D_PRIS_EC06" << chance_kind::none;
    // clang-format on
}

void tst_payout::every_place_has_its_kind()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(chance_kind, kind);
    for (int value = jetons::value_of(first); value <= jetons::value_of(last); ++value) {
        QCOMPARE(kind_of(place(value)), kind);
    }
}

void tst_payout::single_payouts_are_those_of_the_house_data()
{
    QTest::addColumn<QString>("jeton");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<bool>("stake_joins_win");
    QTest::addColumn<int>("staff_piece");
    QTest::addColumn<int>("stakes");
    constexpr table_form french = table_form::french;
    constexpr table_form american = table_form::american;
    // clang-format off
    QTest::newRow("plein, stake joins")       << "PL17" << french   << true  << 0 << 36;
    QTest::newRow("plein, stake stays")       << "PL17" << french   << false << 0 << 35;
    QTest::newRow("plein, staff piece")       << "PL17" << french   << true  << 1 << 35;
    QTest::newRow("plein, both")              << "PL17" << french   << false << 2 << 34;
    QTest::newRow("double zero")              << "PL37" << american << true  << 0 << 36;
    QTest::newRow("cheval, plein's staff")    << "CH15" << french   << true  << 1 << 18;
    QTest::newRow("cheval, staff piece")      << "CH15" << french   << true  << 2 << 17;
    QTest::newRow("cheval, both")             << "CH15" << french   << false << 2 << 16;
    QTest::newRow("no staff for a street")    << "TP03" << french   << true  << 2 << 12;
    QTest::newRow("carré")                    << "CA02" << american << true  << 2 << 9;
    QTest::newRow("first four numbers")       << "CA01" << french   << true  << 0 << 9;
    QTest::newRow("first five numbers")       << "CA01" << american << true  << 0 << 7;
    QTest::newRow("first five, stake stays")  << "CA01" << american << false << 0 << 6;
    QTest::newRow("transversale simple")      << "TS01" << french   << true  << 0 << 6;
    QTest::newRow("dozen")                    << "DZ02" << french   << true  << 0 << 3;
    QTest::newRow("column, stake stays")      << "KL02" << french   << false << 0 << 2;
    QTest::newRow("even chance")              << "EC03" << french   << true  << 2 << 2;
    QTest::newRow("even chance, stake stays") << "EC03" << french   << false << 2 << 1;
    // clang-format on
}

void tst_payout::single_payouts_are_those_of_the_house()
{
    QFETCH(QString, jeton);
    QFETCH(table_form, form);
    QFETCH(bool, stake_joins_win);
    QFETCH(int, staff_piece);
    QFETCH(int, stakes);
    const table_rules rules = rules_of(form, stake_joins_win, staff_piece);
    QCOMPARE(multiplier(jetons::value_of(jeton), rules), stakes);
}

void tst_payout::an_unknown_staff_setting_takes_nothing_data()
{
    QTest::addColumn<int>("staff_piece");
    QTest::newRow("below") << -1;
    QTest::newRow("above") << 3;
}

void tst_payout::an_unknown_staff_setting_takes_nothing()
{
    QFETCH(int, staff_piece);
    const table_rules rules = rules_of(table_form::french, true, staff_piece);
    QCOMPARE(multiplier(jetons::PL17, rules), 36);
    QCOMPARE(multiplier(jetons::CH15, rules), 18);
}

void tst_payout::what_is_no_place_covers_and_pays_nothing()
{
    for (int value = jetons::LAST_JN; value <= jetons::D_PRIS_EC06; ++value) {
        for (int number = -1; number <= 38; ++number)
            QVERIFY(!covers(place(value), number));
        QCOMPARE(multiplier(place(value), rules_of(table_form::french, false, 2)), 0);
    }
    for (const int no_number : {-1, 38, 99, 2147483647, -2147483647}) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            QVERIFY(!covers(place(value), no_number));
        }
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_payout>(argc, argv);
}

#include "tst_payout.moc"
