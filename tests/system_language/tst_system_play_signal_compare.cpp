#include "language_bench.h"
#include "naive_bets.h"
#include "system_play_signal_compare.h"
#include "test_box.h"

class tst_system_play_signal_compare : public QObject
{
    Q_OBJECT

private slots:
    void the_bet_that_was_found_is_set_data();
    void the_bet_that_was_found_is_set();
    void too_few_numbers_set_nothing_and_tell_nothing_data();
    void too_few_numbers_set_nothing_and_tell_nothing();
    void an_index_that_names_no_bet_is_told_data();
    void an_index_that_names_no_bet_is_told();
    void a_counter_takes_the_index();
    void a_faulty_signal_is_told_data();
    void a_faulty_signal_is_told();
    void a_faulty_selector_is_told_data();
    void a_faulty_selector_is_told();
    void bets_of_the_other_table_count_where_there_is_room();
    void random_signals_choose_as_by_hand_data();
    void random_signals_choose_as_by_hand();
};

void tst_system_play_signal_compare::the_bet_that_was_found_is_set_data()
{
    QTest::addColumn<QVector<int>>("thrown");
    QTest::addColumn<QString>("test");
    QTest::addColumn<QStringList>("bets");
    const QVector<int> five = {1, 3, 20, 36, 0}; // reds 1 3 36, a 20, a zero
    // clang-format off
    QTest::newRow("most hit")                << five              << "UZ(5/H) IN EC"     << QStringList{"EC03 x1"}; // 3 of red
    QTest::newRow("most hit, shorter")       << five              << "UZ(3/H) IN EC"     << QStringList{"EC02 x1"}; // 20 and 36 even
    QTest::newRow("most hit, tie")           << QVector<int>{1}   << "UZ(1/H) IN EC"     << QStringList{"EC01 x1"}; // EC01, EC03, EC05 once
    QTest::newRow("most hit of pleins")      << QVector<int>{9, 7, 7, 9} << "UZ(4/H) IN PL" << QStringList{"PL07 x1"};
    QTest::newRow("most hit of dozens")      << five              << "UZ(5/H) IN DZ"     << QStringList{"DZ01 x1"};
    QTest::newRow("most hit of columns")     << five              << "UZ(4/H) IN KL"     << QStringList{"KL03 x1"}; // 3 and 36
    QTest::newRow("most hit of streets")     << QVector<int>{4, 5, 36} << "UZ(3/H) IN TP" << QStringList{"TP04 x1"};
    QTest::newRow("most hit of two streets") << QVector<int>{4, 7} << "UZ(2/H) IN TS"    << QStringList{"TS02 x1"};
    QTest::newRow("most hit of corners")     << QVector<int>{5, 9} << "UZ(2/H) IN CA"    << QStringList{"CA05 x1"}; // 5 6 8 9
    QTest::newRow("most hit of chevaux")     << QVector<int>{33, 36} << "UZ(2/H) IN CH"  << QStringList{"CH36 x1"};
    QTest::newRow("most hit of finals")      << QVector<int>{7, 27, 8} << "UZ(3/H) IN FI" << QStringList{"FI07 x1"};
    QTest::newRow("finale of zero")          << QVector<int>{10, 0, 8} << "UZ(3/H) IN FI" << QStringList{"FI00 x1"};
    QTest::newRow("least hit of pleins")     << QVector<int>{0, 2} << "UZ(2/N) IN PL"    << QStringList{"PL01 x1"};
    QTest::newRow("least hit of finals")     << QVector<int>{10, 1, 2} << "UZ(3/N) IN FI" << QStringList{"FI03 x1"};
    QTest::newRow("the first that compares") << five              << "UZ(5/=2) IN EC"    << QStringList{"EC01 x1"}; // 1 and 3
    QTest::newRow("a bare number is equal")  << five              << "UZ(5/2) IN EC"     << QStringList{"EC01 x1"};
    QTest::newRow("more than")               << five              << "UZ(5/>2) IN EC"    << QStringList{"EC03 x1"};
    QTest::newRow("third part F")            << five              << "UZ(5/2/F) IN EC"   << QStringList{"EC01 x1"};
    QTest::newRow("third part A")            << five              << "UZ(5/>2/A) IN EC"  << QStringList{"EC03 x1"};
    QTest::newRow("none compares")           << five              << "UZ(5/>5) IN EC"    << QStringList{};
    QTest::newRow("NOT IN means the same")   << five              << "UZ(5/H) NOT IN DZ" << QStringList{"DZ01 x1"};
    QTest::newRow("lower case selector")     << five              << "UZ(5/h) IN EC"     << QStringList{"EC03 x1"};
    QTest::newRow("hand changes don't count")<< QVector<int>{20, 99, 1, 99} << "UZ(2/>1) IN EC" << QStringList{};
    // clang-format on
}

void tst_system_play_signal_compare::the_bet_that_was_found_is_set()
{
    QFETCH(QVector<int>, thrown);
    QFETCH(QString, test);
    QFETCH(QStringList, bets);
    statement_bench bench;
    bench.throw_numbers(thrown);
    const sys_result_info result = bench.run("IF " + test + " RESULT SZ " + test.right(2) + ";");
    QCOMPARE(result.status, 2);
    QCOMPARE(bench.notes.bets, bets);
}

void tst_system_play_signal_compare::too_few_numbers_set_nothing_and_tell_nothing_data()
{
    QTest::addColumn<int>("fallen");
    QTest::addColumn<QString>("selector");
    QTest::newRow("four of five") << 4 << "H";
    QTest::newRow("one of five") << 1 << "N";
    QTest::newRow("a comparison") << 4 << "<1";
}

void tst_system_play_signal_compare::too_few_numbers_set_nothing_and_tell_nothing()
{
    QFETCH(int, fallen);
    QFETCH(QString, selector);
    statement_bench bench;
    bench.throw_numbers(QVector<int>(fallen, 1));
    const sys_result_info result = bench.run("IF UZ(5/" + selector + ") IN EC RESULT SZ EC;");
    QCOMPARE(result.status, 2);
    QVERIFY(!result.check_result);
    QCOMPARE(bench.notes.bets, QStringList());
}

void tst_system_play_signal_compare::an_index_that_names_no_bet_is_told_data()
{
    QTest::addColumn<QVector<int>>("thrown");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("type");
    // clang-format off
    QTest::newRow("most hit, no number")     << QVector<int>{}     << "H"  << "EC";
    QTest::newRow("least hit, no number")    << QVector<int>{}     << "N"  << "EC";
    QTest::newRow("less than, no number")    << QVector<int>{}     << "<1" << "CH";
    QTest::newRow("most hit, never hit")     << QVector<int>{0, 0} << "H"  << "EC";
    QTest::newRow("least hit")               << QVector<int>{1, 2} << "N"  << "DZ";
    QTest::newRow("not hit")                 << QVector<int>{1, 2} << "<1" << "TS";
    // clang-format on
}

void tst_system_play_signal_compare::an_index_that_names_no_bet_is_told()
{
    QFETCH(QVector<int>, thrown);
    QFETCH(QString, selector);
    QFETCH(QString, type);
    statement_bench bench;
    bench.throw_numbers(thrown);
    const QString test = "UZ(2/" + selector + ") IN " + type;
    const sys_result_info result = bench.run("IF " + test + " RESULT SZ " + type + ";");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, "Jeton Setzung " + type + QStringLiteral("00 nicht möglich!"));
    QCOMPARE(result.mark_text, type + "00");
    QCOMPARE(bench.notes.bets, QStringList());
}

void tst_system_play_signal_compare::a_counter_takes_the_index()
{
    statement_bench bench;
    bench.throw_numbers({17, 17, 3});
    bench.run("SZ CO05(88);");
    QCOMPARE(bench.run("IF|UZ(3/H)|IN|PL|RESULT|SZ|CO05").status, 2);
    QCOMPARE(bench.told("CO05"), QStringLiteral("Spieler: 1<br>CO05: 17<br>"));
    QCOMPARE(bench.notes.bets, QStringList());
    bench.run("IF|UZ(4/H)|IN|PL|RESULT|SZ|CO05"); // too few numbers
    QCOMPARE(bench.told("CO05"), QStringLiteral("Spieler: 1<br>CO05: 17<br>"));
}

void tst_system_play_signal_compare::a_faulty_signal_is_told_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<int>("mark_mode");
    QTest::addColumn<QString>("mark_text"); // "*": none is told
    const QString different = QStringLiteral("Signal Jeton unterschiedlich zum Setz Jeton!");
    const QString range = QStringLiteral("Der Überprüfungsbereich muss größer als 0 sein!");
    const QString type = QStringLiteral("Der Signal Jeton Typ %1 ist nicht erlaubt!");
    const QString names = QStringLiteral("S: Signal Jeton wurde nicht gefunden!");
    const QString target = QStringLiteral("Signal Jeton/Aktion wurde nicht gefunden!");
    // clang-format off
    QTest::newRow("another target")         << "IF UZ(1/H) IN EC RESULT SZ DZ;"   << 10 << different      << whole_line    << "*";
    QTest::newRow("an announcement")        << "IF UZ(1/H) IN EC RESULT SZ GS;"   << 10 << different      << whole_line    << "*";
    QTest::newRow("no target")              << "IF|UZ(1/H)|IN|EC|RESULT"          << 10 << different      << whole_line    << "*";
    QTest::newRow("before anything else")   << "IF UZ(0/H) IN EN RESULT SZ EC;"   << 10 << different      << whole_line    << "*";
    QTest::newRow("range zero")             << "IF UZ(0/H) IN EC RESULT SZ EC;"   << 4  << range          << whole_line    << "*";
    QTest::newRow("range before type")      << "IF UZ(00/H) IN EN RESULT SZ EN;"  << 4  << range          << whole_line    << "*";
    QTest::newRow("one neighbour")          << "IF UZ(1/H) IN EN RESULT SZ EN;"   << 4  << type.arg("EN") << piece_of_line << "EN";
    QTest::newRow("two neighbours")         << "IF UZ(9/H) IN ZN RESULT SZ ZN;"   << 4  << type.arg("ZN") << piece_of_line << "ZN";
    QTest::newRow("three neighbours")       << "IF UZ(1/=0) IN DN RESULT SZ DN;"  << 4  << type.arg("DN") << piece_of_line << "DN";
    QTest::newRow("a sector")               << "IF UZ(1/H) IN GS RESULT SZ GS;"   << 4  << type.arg("GS") << piece_of_line << "GS";
    QTest::newRow("a single bet")           << "IF|UZ(1/H)|IN|EC01|RESULT|SZ|EC01" << 4 << type.arg("EC01") << piece_of_line << "EC01";
    QTest::newRow("lower case")             << "IF UZ(1/H) IN ec RESULT SZ ec;"   << 4  << names          << piece_of_line << "ec";
    QTest::newRow("lower case, mixed")      << "IF UZ(1/H) IN ec RESULT SZ EC;"   << 4  << names          << piece_of_line << "ec";
    QTest::newRow("a counter cut short")    << "IF|UZ(1/H)|IN|EC|RESULT|SZ|CO5"   << 4  << target         << piece_of_line << "CO5";
    QTest::newRow("a counter with brackets")<< "IF|UZ(1/H)|IN|EC|RESULT|SZ|CO05(1)" << 4 << target        << piece_of_line << "CO05(1)";
    // clang-format on
}

void tst_system_play_signal_compare::a_faulty_signal_is_told()
{
    QFETCH(QString, statement);
    QFETCH(int, status);
    QFETCH(QString, error_text);
    QFETCH(int, mark_mode);
    QFETCH(QString, mark_text);
    statement_bench bench;
    bench.throw_numbers({1});
    const sys_result_info result = bench.run(statement);
    QCOMPARE(result.status, status);
    QCOMPARE(result.error_text, error_text);
    QCOMPARE(result.mark_mode, mark_mode);
    if (mark_text != "*") QCOMPARE(result.mark_text, mark_text);
    QCOMPARE(bench.notes.bets, QStringList());
}

void tst_system_play_signal_compare::a_faulty_selector_is_told_data()
{
    QTest::addColumn<QString>("test");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<QString>("mark_text");
    const QString value = QStringLiteral("Der Vergleichswert muss größer als 0 sein!");
    const QString none = QStringLiteral("S: Operator '' ist nicht gültig!");
    // clang-format off
    QTest::newRow("equal to zero")  << "UZ(1/=0)"  << value << "=0";
    QTest::newRow("a bare zero")    << "UZ(1/0)"   << value << "=0";
    QTest::newRow("at least zero")  << "UZ(1/>=0)" << value << ">=0";
    QTest::newRow("no selector")    << "UZ(1/)"    << none  << "";
    // clang-format on
}

void tst_system_play_signal_compare::a_faulty_selector_is_told()
{
    QFETCH(QString, test);
    QFETCH(QString, error_text);
    QFETCH(QString, mark_text);
    for (const QVector<int>& thrown : {QVector<int>{}, QVector<int>{1}}) {
        statement_bench bench;
        bench.throw_numbers(thrown);
        const sys_result_info result = bench.run("IF " + test + " IN EC RESULT SZ EC;");
        QCOMPARE(result.status, 4);
        QCOMPARE(result.error_text, error_text);
        QCOMPARE(result.mark_mode, piece_of_line);
        QCOMPARE(result.mark_text, mark_text);
    }
}

/// Zero hits TP01, TP02 and TP15; the French list has no room for TP15, the American one has
/// room for TP02.
void tst_system_play_signal_compare::bets_of_the_other_table_count_where_there_is_room()
{
    for (const table_form form : {table_form::french, table_form::american}) {
        statement_bench bench(form);
        bench.throw_numbers({1, 0, 3});
        QCOMPARE(bench.bets_of("IF UZ(2/>1) IN TP RESULT SZ TP;"), QStringList{"TP02 x1"});
        QCOMPARE(bench.bets_of("IF UZ(2/>1) IN CH RESULT SZ CH;"), QStringList{"CH03 x1"});
    }
    statement_bench french;
    french.throw_numbers({37});
    QCOMPARE(french.bets_of("IF UZ(1/=1) IN TP RESULT SZ TP;"), QStringList());
    statement_bench american(table_form::american);
    american.throw_numbers({37});
    QCOMPARE(american.bets_of("IF UZ(1/=1) IN TP RESULT SZ TP;"), QStringList{"TP15 x1"});
}

namespace
{

struct type_row {
    const char* type;
    int first; ///< number in the first name
    int french_size;
    int american_size;
};

// clang-format off
const type_row type_rows[] = {
    {"PL", 0, 37, 38}, {"EC", 1,  7,  7}, {"DZ", 1,  4,  4}, {"KL", 1,  4,  4}, {"TP", 1, 15, 17},
    {"TS", 1, 12, 12}, {"CA", 1, 24, 24}, {"CH", 1, 61, 64}, {"FI", 0, 10, 10},
};
// clang-format on

/// What a signal ought to find; -1 for nothing.
int chosen_by_hand(const QVector<int>& hits, const QString& selector)
{
    const auto first_with = [&](auto holds) {
        for (int index = 0; index < hits.size(); ++index) {
            if (holds(hits.at(index))) return index;
        }
        return -1;
    };
    if (selector == "H") {
        const int most = *std::max_element(hits.begin(), hits.end());
        return first_with([&](int count) { return count == most; });
    }
    if (selector == "N") {
        const int least = *std::min_element(hits.begin(), hits.end());
        return first_with([&](int count) { return count == least; });
    }
    const int value = selector.right(1).toInt();
    const QString sign = selector.chopped(1);
    if (sign == "=") return first_with([&](int count) { return count == value; });
    if (sign == "<") return first_with([&](int count) { return count < value; });
    if (sign == "<=") return first_with([&](int count) { return count <= value; });
    if (sign == ">") return first_with([&](int count) { return count > value; });
    return first_with([&](int count) { return count >= value; });
}

} // namespace

void tst_system_play_signal_compare::random_signals_choose_as_by_hand_data()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("French table") << false;
    QTest::newRow("American table") << true;
}

void tst_system_play_signal_compare::random_signals_choose_as_by_hand()
{
    QFETCH(bool, american);
    static const QStringList selectors = {"H", "N", "=1", "=2", "<1", "<3", "<=2", ">1", ">=3"};
    std::mt19937 generator(19510512);
    for (int history = 0; history < 60; ++history) {
        const int count = 1 + static_cast<int>(generator() % 99);
        const QVector<int> thrown = naive_bets::random_numbers(generator, count, american);
        language_bench bench(american ? table_form::american : table_form::french);
        bench.throw_numbers(thrown);
        system_play_signal_compare compare(bench.environment);
        for (const type_row& row : type_rows) {
            const int range = 1 + static_cast<int>(generator() % 99);
            QVector<int> hits(american ? row.american_size : row.french_size, 0);
            for (int index = row.first; index < hits.size() && range <= count; ++index) {
                const QString name = naive_bets::numbered_name(row.type, index);
                hits[index] = naive_bets::hits_among(thrown, range, name, american);
            }
            for (const QString& selector : selectors) {
                sys_result_info result;
                const QString token = QStringLiteral("UZ(%1/%2)").arg(range).arg(selector);
                compare.signal_check(
                    result, system_play_signal_compare::read_test(token, row.type, row.type));
                const int chosen = range <= count ? chosen_by_hand(hits, selector) : -1;
                QCOMPARE(result.status, 2);
                QCOMPARE(result.check_result, chosen >= 0);
                if (chosen >= 0) QCOMPARE(result.value, chosen);
            }
        }
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_play_signal_compare>(argc, argv);
}

#include "tst_system_play_signal_compare.moc"
