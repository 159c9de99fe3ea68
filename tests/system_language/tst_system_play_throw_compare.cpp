#include "language_bench.h"
#include "naive_bets.h"
#include "system_play_throw_compare.h"
#include "test_box.h"

class tst_system_play_throw_compare : public QObject
{
    Q_OBJECT

private slots:
    void every_word_names_its_number_data();
    void every_word_names_its_number();
    void a_number_that_has_not_fallen_is_told_data();
    void a_number_that_has_not_fallen_is_told();
    void hand_changes_are_not_among_the_numbers();
    void a_bet_covers_a_number_or_not_data();
    void a_bet_covers_a_number_or_not();
    void every_bet_covers_what_its_text_says_data();
    void every_bet_covers_what_its_text_says();
    void a_wrong_word_is_told_data();
    void a_wrong_word_is_told();
    void an_unknown_number_word_is_told();
    void hits_among_the_last_numbers_are_counted_data();
    void hits_among_the_last_numbers_are_counted();
    void random_numbers_are_counted_as_by_hand_data();
    void random_numbers_are_counted_as_by_hand();
    void a_count_needs_a_condition_data();
    void a_count_needs_a_condition();
    void a_count_needs_a_bet();
};

static const QStringList number_words = {
    "GZ", "VZ", "V0", "V1", "V2", "V3", "V4", "V5", "V6", "V7", "V8", "V9"};

void tst_system_play_throw_compare::every_word_names_its_number_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("jeton");
    // Of the numbers 1 to 13, in this order.
    for (int back = 0; back < number_words.size(); ++back) {
        QTest::newRow(qPrintable(number_words.at(back)))
            << number_words.at(back) << naive_bets::numbered_name("PL", 13 - back);
    }
}

void tst_system_play_throw_compare::every_word_names_its_number()
{
    QFETCH(QString, word);
    QFETCH(QString, jeton);
    statement_bench bench;
    bench.throw_numbers(naive_bets::from_to(1, 13));
    for (int number = 1; number <= 13; ++number) {
        const QString other = naive_bets::numbered_name("PL", number);
        QCOMPARE(bench.holds(word + " IN " + other), other == jeton);
        QCOMPARE(bench.holds(word + " NOT IN " + other), other != jeton);
    }
}

void tst_system_play_throw_compare::a_number_that_has_not_fallen_is_told_data()
{
    QTest::addColumn<int>("needed"); // numbers that must have fallen
    QTest::addColumn<QString>("word");
    for (int back = 0; back < number_words.size(); ++back) {
        QTest::newRow(qPrintable(number_words.at(back))) << back + 1 << number_words.at(back);
    }
}

void tst_system_play_throw_compare::a_number_that_has_not_fallen_is_told()
{
    QFETCH(int, needed);
    QFETCH(QString, word);
    for (int fallen = 0; fallen <= 13; ++fallen) {
        for (const QString& keyword : {QStringLiteral(" IN "), QStringLiteral(" NOT IN ")}) {
            statement_bench bench;
            bench.throw_numbers(QVector<int>(fallen, 20));
            const sys_result_info result = bench.run("IF " + word + keyword + "DZ02 THEN STOP;");
            if (fallen >= needed) {
                QCOMPARE(result.status, keyword == " IN " ? 8 : 2);
                continue;
            }
            QCOMPARE(result.status, 4);
            QCOMPARE(result.error_text,
                     "Eine Überprüfung auf " + word +
                         QStringLiteral(" ist noch nicht möglich! Für eine Überprüfung sind mehr "
                                        "Coups notwendig (Tipp: siehe Verzögerungsbedingungen)!"));
            QCOMPARE(result.mark_mode, piece_of_line);
            QCOMPARE(result.mark_text, word);
        }
    }
}

void tst_system_play_throw_compare::hand_changes_are_not_among_the_numbers()
{
    statement_bench bench;
    bench.throw_numbers({5, 99, 6, 99, 99});
    QVERIFY(bench.holds("GZ IN PL06"));
    QVERIFY(bench.holds("VZ IN PL05"));
    QCOMPARE(bench.run("IF V0 IN PL05 THEN STOP;").status, 4);
    QVERIFY(bench.holds("RZ(2/=1) IN PL05"));
    QVERIFY(!bench.holds("RZ(3/<2) IN PL05")); // only two numbers have fallen
}

void tst_system_play_throw_compare::a_bet_covers_a_number_or_not_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("test");
    QTest::addColumn<bool>("holds");
    // clang-format off
    QTest::newRow("zero is not manque")      << 0  << "GZ IN EC01"     << false;
    QTest::newRow("nor is it passe")         << 0  << "GZ NOT IN EC06" << true;
    QTest::newRow("zero is a number")        << 0  << "GZ IN PL00"     << true;
    QTest::newRow("zero has a finale")       << 0  << "GZ IN FI00"     << true;
    QTest::newRow("zero has a sector")       << 0  << "GZ IN ZS"       << true;
    QTest::newRow("23 ends on 3")            << 23 << "GZ IN FI03"     << true;
    QTest::newRow("23 does not end on 2")    << 23 << "GZ IN FI02"     << false;
    QTest::newRow("12 of the small zero")    << 12 << "GZ IN ZS"       << true;
    QTest::newRow("neighbour beside")        << 32 << "GZ IN EN00"     << true;
    QTest::newRow("neighbour one further")   << 15 << "GZ IN EN00"     << false;
    QTest::newRow("two neighbours")          << 15 << "GZ IN ZN00"     << true;
    QTest::newRow("three neighbours")        << 19 << "GZ IN DN00"     << true;
    QTest::newRow("not four neighbours")     << 4  << "GZ IN DN00"     << false;
    QTest::newRow("orphans")                 << 34 << "GZ IN OR"       << true;
    // clang-format on
}

void tst_system_play_throw_compare::a_bet_covers_a_number_or_not()
{
    QFETCH(int, number);
    QFETCH(QString, test);
    QFETCH(bool, holds);
    statement_bench bench;
    bench.throw_numbers({number});
    QCOMPARE(bench.holds(test), holds);
}

static void add_tables()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("French table") << false;
    QTest::newRow("American table") << true;
}

/// All names of bets that a table has; with `all` also those of the other table.
static QStringList bet_names(bool american)
{
    struct name_row {
        const char* type;
        int first;
        int french_last;
        int american_last;
    };
    // clang-format off
    static const name_row rows[] = {
        {"PL", 0, 36, 37}, {"CH", 1, 60, 63}, {"TP", 1, 14, 16}, {"TS", 1, 11, 11},
        {"EC", 1,  6,  6}, {"CA", 1, 23, 23}, {"KL", 1,  3,  3}, {"DZ", 1,  3,  3},
        {"FI", 0,  9,  9}, {"EN", 0, 36, 37}, {"ZN", 0, 36, 37}, {"DN", 0, 36, 37},
    };
    // clang-format on
    QStringList names;
    for (const name_row& row : rows) {
        for (int i = row.first; i <= (american ? row.american_last : row.french_last); ++i)
            names.append(naive_bets::numbered_name(row.type, i));
    }
    if (!american) names += QStringList{"GS", "KS", "OR", "ZS"};
    return names;
}

void tst_system_play_throw_compare::every_bet_covers_what_its_text_says_data()
{
    add_tables();
}

void tst_system_play_throw_compare::every_bet_covers_what_its_text_says()
{
    QFETCH(bool, american);
    language_bench bench(american ? table_form::american : table_form::french);
    const system_play_throw_compare compare(bench.environment);
    const past_throw last(QStringLiteral("GZ"));
    for (int number = 0; number < (american ? 38 : 37); ++number) {
        bench.throw_numbers({number});
        for (const QString& name : bet_names(american)) {
            sys_result_info result;
            compare.check_throw(result, last, read_bet_target(name));
            QCOMPARE(result.status, 2);
            const bool covers = naive_bets::covered_by(name, american).contains(number);
            if (result.check_result != covers)
                QFAIL(qPrintable(name + " and " + QString::number(number)));
        }
    }
}

void tst_system_play_throw_compare::a_wrong_word_is_told_data()
{
    QTest::addColumn<QString>("jeton");
    QTest::newRow("lower case") << "ec01";
    QTest::newRow("bare type") << "EC";
}

void tst_system_play_throw_compare::a_wrong_word_is_told()
{
    QFETCH(QString, jeton);
    statement_bench bench;
    bench.throw_numbers({1});
    const sys_result_info result = bench.run("IF GZ NOT IN " + jeton + " THEN STOP;");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QStringLiteral("S: Ungültige Überprüfung: ") + jeton + " !");
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, jeton);
}

void tst_system_play_throw_compare::an_unknown_number_word_is_told()
{
    language_bench bench;
    const system_play_throw_compare compare(bench.environment);
    sys_result_info result;
    compare.check_throw(result, past_throw(QStringLiteral("XZ")), read_bet_target("EC01"));
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QStringLiteral("S: Ungültige Überprüfung (kein V): XZ !"));
    QCOMPARE(result.mark_text, QStringLiteral("XZ"));
    result = {};
    compare.check_throw(result, past_throw(QStringLiteral("VX")), read_bet_target("EC01"));
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QStringLiteral("S: Ungültige Überprüfung (keine Nummer): VX !"));
    QCOMPARE(result.mark_text, QStringLiteral("VX"));
}

void tst_system_play_throw_compare::hits_among_the_last_numbers_are_counted_data()
{
    QTest::addColumn<QVector<int>>("thrown");
    QTest::addColumn<QString>("test");
    QTest::addColumn<bool>("holds");
    const QVector<int> six = {1, 3, 2, 0, 12, 23}; // red, red, black, zero, red, red
    // clang-format off
    QTest::newRow("at least, and there are")    << six             << "RZ(6/>=4) IN EC03" << true;
    QTest::newRow("at least, but there aren't") << six             << "RZ(6/>=5) IN EC03" << false;
    QTest::newRow("exactly")                    << six             << "RZ(6/=4) IN EC03"  << true;
    QTest::newRow("a bare number is exactly")   << six             << "RZ(6/4) IN EC03"   << true;
    QTest::newRow("exactly, but more")          << six             << "RZ(6/3) IN EC03"   << false;
    QTest::newRow("less")                       << six             << "RZ(6/<2) IN EC04"  << true;
    QTest::newRow("at most")                    << six             << "RZ(6/<=3) IN EC03" << false;
    QTest::newRow("greater")                    << six             << "RZ(6/>4) IN EC03"  << false;
    QTest::newRow("only the last two")          << six             << "RZ(2/2) IN EC03"   << true;
    QTest::newRow("only the last")              << six             << "RZ(1/1) IN PL23"   << true;
    QTest::newRow("never hit")                  << six             << "RZ(6/<1) IN PL36"  << true;
    QTest::newRow("a finale")                   << six             << "RZ(6/2) IN FI03"   << true;
    QTest::newRow("a sector")                   << six             << "RZ(6/=3) IN ZS"    << true;
    QTest::newRow("two digits")                 << six + six       << "RZ(12/8) IN EC03"  << true;
    QTest::newRow("three of five")              << six.mid(0, 3)   << "RZ(5/>=2) IN EC03" << false;
    QTest::newRow("the same for no hit")        << six.mid(0, 3)   << "RZ(5/<1) IN PL36"  << false;
    QTest::newRow("no number, some hits")       << QVector<int>{}  << "RZ(5/>=1) IN EC03" << false;
    QTest::newRow("no number, no hit")          << QVector<int>{}  << "RZ(5/<1) IN EC03"  << true;
    QTest::newRow("range zero, some hits")      << six             << "RZ(0/>=1) IN EC03" << false;
    QTest::newRow("range zero, no hit")         << six             << "RZ(0/<1) IN EC03"  << true;
    // clang-format on
}

void tst_system_play_throw_compare::hits_among_the_last_numbers_are_counted()
{
    QFETCH(QVector<int>, thrown);
    QFETCH(QString, test);
    QFETCH(bool, holds);
    statement_bench bench;
    bench.throw_numbers(thrown);
    const sys_result_info result = bench.run("IF " + test + " THEN SZ CO01(1);");
    QCOMPARE(result.status, 2);
    QCOMPARE(result.check_result, holds);
}

void tst_system_play_throw_compare::random_numbers_are_counted_as_by_hand_data()
{
    add_tables();
}

void tst_system_play_throw_compare::random_numbers_are_counted_as_by_hand()
{
    QFETCH(bool, american);
    std::mt19937 generator(20240607);
    const QStringList names = bet_names(american);
    for (int history = 0; history < 40; ++history) {
        const int count = 1 + static_cast<int>(generator() % 60);
        const QVector<int> thrown = naive_bets::random_numbers(generator, count, american);
        language_bench bench(american ? table_form::american : table_form::french);
        bench.throw_numbers(thrown);
        const system_play_throw_compare compare(bench.environment);
        for (const QString& name : names) {
            const int range = 1 + static_cast<int>(generator() % 64);
            const bool enough = range <= count;
            const int hits = enough ? naive_bets::hits_among(thrown, range, name, american) : range;
            const QString token = QStringLiteral("RZ(%1/>=%2)").arg(range);
            // One hit less is reached, one hit more is not.
            for (int wanted = qMax(hits, 1); wanted <= hits + 1; ++wanted) {
                sys_result_info result;
                const count_test test =
                    system_play_throw_compare::read_count_test(token.arg(wanted), name);
                compare.count_check(result, test);
                QCOMPARE(result.status, 2);
                QCOMPARE(result.check_result, enough && hits >= wanted);
            }
        }
    }
}

void tst_system_play_throw_compare::a_count_needs_a_condition_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<QString>("mark_text");
    const QString value = QStringLiteral("Der Vergleichswert muss größer als 0 sein!");
    // clang-format off
    QTest::newRow("zero")             << "RZ(1/=0)"   << value << "=0";
    QTest::newRow("at least zero")    << "RZ(1/>=0)"  << value << ">=0";
    QTest::newRow("double zero")      << "RZ(1/<00)"  << value << "<00";
    QTest::newRow("negative")         << "RZ(1/>-1)"  << value << ">-1";
    QTest::newRow("no number")        << "RZ(1/>x)"   << value << ">x";
    QTest::newRow("operator alone")   << "RZ(1/<>)"   << value << "<>";
    QTest::newRow("bare number")      << "RZ(1/2)"    << QStringLiteral("S: Operator '2' ist nicht gültig!") << "2";
    QTest::newRow("another sign")     << "RZ(1/!=2)"  << QStringLiteral("S: Operator '!' ist nicht gültig!") << "!=2";
    QTest::newRow("nothing")          << "RZ(1/)"     << QStringLiteral("S: Operator '' ist nicht gültig!")  << "";
    QTest::newRow("no second part")   << "RZ(1)"      << QStringLiteral("S: Operator '' ist nicht gültig!")  << "";
    // clang-format on
}

void tst_system_play_throw_compare::a_count_needs_a_condition()
{
    QFETCH(QString, token);
    QFETCH(QString, error_text);
    QFETCH(QString, mark_text);
    statement_bench bench;
    bench.throw_numbers({1});
    const sys_result_info result = bench.run("IF|" + token + "|IN|EC01|THEN|STOP");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, piece_of_line);
    QCOMPARE(result.mark_text, mark_text);
}

void tst_system_play_throw_compare::a_count_needs_a_bet()
{
    for (const QString& word : {QStringLiteral("ec01"), QStringLiteral("EC")}) {
        statement_bench bench;
        bench.throw_numbers({1});
        const sys_result_info result = bench.run("IF RZ(1/<5) IN " + word + " THEN STOP;");
        QCOMPARE(result.status, 4);
        QCOMPARE(result.error_text, QStringLiteral("Cheton Typ wurde nicht gefunden!"));
        QCOMPARE(result.mark_mode, piece_of_line);
        QCOMPARE(result.mark_text, word);
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_throw_compare>(argc, argv);
}

#include "tst_system_play_throw_compare.moc"
