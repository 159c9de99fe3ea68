#include "jetons.h"
#include "setting.h"
#include "system_pattern.h"
#include "test_box.h"

#include <QMetaEnum>
#include <QRegExp>
#include <QSet>

static constexpr int french = 0;
static constexpr int american = 1;

class tst_system_pattern : public QObject
{
    Q_OBJECT

private slots:
    void the_table_type_decides_the_jeton_patterns_data();
    void the_table_type_decides_the_jeton_patterns();
    void the_lists_are_complete();
    void the_order_of_the_sections_is_their_number();
    void exactly_the_names_of_the_table_are_jetons_data();
    void exactly_the_names_of_the_table_are_jetons();
    void every_chance_of_the_game_is_a_word_of_one_table_at_least();
    void jetons_are_found_by_the_entry_of_their_type_data();
    void jetons_are_found_by_the_entry_of_their_type();
    void the_class_of_unit_operators_holds_star_plus_and_slash();
    void the_first_matching_argument_pattern_is_data();
    void the_first_matching_argument_pattern_is();
    void the_first_matching_keyword_pattern_is_data();
    void the_first_matching_keyword_pattern_is();
    void jetons_of_the_other_table_are_told_apart();
    void message_arguments_have_their_forms_data();
    void message_arguments_have_their_forms();
    void the_shared_object_keeps_the_table_of_its_first_use();
};

static QString two_digits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

static bool is_one_of(const QString& text, const QStringList& patterns)
{
    for (const QString& pattern : patterns)
        if (QRegExp(pattern, Qt::CaseInsensitive).exactMatch(text)) return true;
    return false;
}

// Index of the first pattern that matches at the beginning, and what it takes; (-1, "") for none.
static QPair<int, QString> first_match(const QString& text, const QStringList& patterns)
{
    for (int index = 0; index < patterns.size(); ++index) {
        QRegExp expression(patterns.at(index), Qt::CaseInsensitive);
        if (text.indexOf(expression, 0) == 0) return {index, expression.cap(0)};
    }
    return {-1, QString()};
}

struct numbered_type {
    const char* type;
    int first;
    int last_french;
    int last_american;
};

// clang-format off
static const numbered_type numbered_types[] = {
    {"PL", 0, 36, 37},
    {"CA", 1, 23, 23},
    {"TP", 1, 14, 16},
    {"TS", 1, 11, 11},
    {"CH", 1, 60, 63},
    {"KL", 1,  3,  3},
    {"DZ", 1,  3,  3},
    {"EC", 1,  6,  6},
    {"FI", 0,  9,  9},
    {"EN", 0, 36, 37},
    {"ZN", 0, 36, 37},
    {"DN", 0, 36, 37},
};
// clang-format on

// The words that can be jetons, listed one by one.
static QSet<QString> words_of_table(int table_type)
{
    QSet<QString> words{"GS", "KS", "OR", "ZS"};
    for (const numbered_type& row : numbered_types) {
        const int last = table_type == american ? row.last_american : row.last_french;
        for (int number = row.first; number <= last; ++number)
            words.insert(QLatin1String(row.type) + two_digits(number));
        words.insert(QLatin1String(row.type));
    }
    return words;
}

void tst_system_pattern::the_table_type_decides_the_jeton_patterns_data()
{
    QTest::addColumn<int>("table_type");
    QTest::addColumn<int>("size");
    // clang-format off
    QTest::newRow("French")   <<  0 << 12;
    QTest::newRow("American") <<  1 << 12;
    QTest::newRow("unknown")  <<  2 <<  0;
    QTest::newRow("negative") << -1 <<  0;
    // clang-format on
}

void tst_system_pattern::the_table_type_decides_the_jeton_patterns()
{
    QFETCH(int, table_type);
    QTEST(system_pattern(table_type).get_jeton_patterns().size(), "size");
}

void tst_system_pattern::the_lists_are_complete()
{
    const system_pattern patterns(french);
    QCOMPARE(patterns.get_section_patterns().size(), 4);
    QCOMPARE(patterns.get_argument_patterns().size(), 21);
    QCOMPARE(patterns.get_keyword_patterns().size(), 14);
    QCOMPARE(patterns.get_argument_number_patterns().size(), 1);
    QCOMPARE(patterns.get_american_patterns().size(), 7);
    QCOMPARE(patterns.get_french_patterns().size(), 3);
    QCOMPARE(patterns.get_message_patterns().size(), 7);
}

void tst_system_pattern::the_order_of_the_sections_is_their_number()
{
    const QStringList sections = system_pattern(french).get_section_patterns();
    QCOMPARE(first_match("ST:", sections).first, 0);
    QCOMPARE(first_match("GW:", sections).first, 1);
    QCOMPARE(first_match("VE:", sections).first, 2);
    QCOMPARE(first_match("AL:", sections).first, 3);
}

void tst_system_pattern::exactly_the_names_of_the_table_are_jetons_data()
{
    QTest::addColumn<int>("table_type");
    QTest::newRow("French") << french;
    QTest::newRow("American") << american;
}

void tst_system_pattern::exactly_the_names_of_the_table_are_jetons()
{
    QFETCH(int, table_type);
    QVector<QRegExp> expressions;
    for (const QString& pattern : system_pattern(table_type).get_jeton_patterns())
        expressions.append(QRegExp(pattern));
    const auto is_jeton = [&expressions](const QString& word) {
        for (const QRegExp& expression : expressions)
            if (expression.exactMatch(word)) return true;
        return false;
    };

    const QSet<QString> words = words_of_table(table_type);
    int found = 0;
    for (char first = 'A'; first <= 'Z'; ++first) {
        for (char second = 'A'; second <= 'Z'; ++second) {
            const QString type = QString(QLatin1Char(first)) + QLatin1Char(second);
            for (int number = -1; number < 100; ++number) {
                const QString word = number < 0 ? type : QString(type + two_digits(number));
                const bool expected = words.contains(word);
                if (is_jeton(word) != expected) QFAIL(qPrintable(word));
                if (expected) ++found;
            }
        }
    }
    QCOMPARE(found, words.size());
}

void tst_system_pattern::every_chance_of_the_game_is_a_word_of_one_table_at_least()
{
    const QStringList french_jetons = system_pattern(french).get_jeton_patterns();
    const QStringList american_jetons = system_pattern(american).get_jeton_patterns();
    for (int place = 0; place < jetons::LAST_JN; ++place) {
        const QString word = jetons::name(static_cast<jetons::jeton_names>(place));
        QVERIFY2(is_one_of(word, american_jetons), qPrintable(word));
    }
    for (int place = 0; place < jetons::LAST_ext_JN; ++place) {
        if (place == jetons::OP || place == jetons::ENZNDN) continue;
        const QString word = jetons::name(static_cast<jetons::ext_jeton_names>(place));
        QVERIFY2(is_one_of(word, american_jetons), qPrintable(word));
    }
    QVERIFY(!is_one_of("OP", french_jetons));
    QVERIFY(!is_one_of("OP", american_jetons));
}

void tst_system_pattern::jetons_are_found_by_the_entry_of_their_type_data()
{
    QTest::addColumn<int>("table_type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    // clang-format off
    QTest::newRow("plein, first alternative")      << french   << "PL06"  <<  0;
    QTest::newRow("plein, second alternative")     << french   << "PL29"  <<  0;
    QTest::newRow("plein beyond the wheel")        << french   << "PL39"  << -1;
    QTest::newRow("double zero, French")           << french   << "PL37"  << -1;
    QTest::newRow("double zero, American")         << american << "PL37"  <<  0;
    QTest::newRow("carre of both alternatives")    << french   << "CA11"  <<  1;
    QTest::newRow("carre beyond")                  << french   << "CA30"  << -1;
    QTest::newRow("last transversale, French")     << french   << "TP14"  <<  2;
    QTest::newRow("last transversale, American")   << american << "TP16"  <<  2;
    QTest::newRow("transversale simple")           << french   << "TS11"  <<  3;
    QTest::newRow("last cheval, French")           << french   << "CH60"  <<  4;
    QTest::newRow("cheval beyond, French")         << french   << "CH61"  << -1;
    QTest::newRow("last cheval, American")         << american << "CH63"  <<  4;
    QTest::newRow("column")                        << french   << "KL03"  <<  5;
    QTest::newRow("dozen")                         << french   << "DZ01"  <<  6;
    QTest::newRow("even chance")                   << french   << "EC06"  <<  7;
    QTest::newRow("even chance zero")              << french   << "EC00"  << -1;
    QTest::newRow("series")                        << french   << "GS"    <<  8;
    QTest::newRow("series, American")              << american << "ZS"    <<  8;
    QTest::newRow("finale")                        << french   << "FI09"  <<  9;
    QTest::newRow("neighbours of both tables, F")  << french   << "EN36"  << 10;
    QTest::newRow("neighbours of both tables, A")  << american << "EN36"  << 10;
    QTest::newRow("neighbours of 00, French")      << french   << "EN37"  << -1;
    QTest::newRow("neighbours of 00, American")    << american << "EN37"  << 10;
    QTest::newRow("bare type")                     << french   << "EC"    << 11;
    QTest::newRow("bare series is no type")        << french   << "OP"    << -1;
    QTest::newRow("lower case")                    << french   << "ec01"  <<  7;
    QTest::newRow("a longer word")                 << french   << "EC011" << -1;
    // clang-format on
}

void tst_system_pattern::jetons_are_found_by_the_entry_of_their_type()
{
    QFETCH(int, table_type);
    QFETCH(QString, text);
    QTEST(first_match(text, system_pattern(table_type).get_jeton_patterns()).first, "index");
}

// '+' to '*' runs backward: it is turned round and leaves no hyphen in the class.
void tst_system_pattern::the_class_of_unit_operators_holds_star_plus_and_slash()
{
    const QRegExp operators("[+-*/]");
    const QRegExp unit_change(system_pattern(french).get_argument_patterns().at(1));
    QVERIFY(unit_change.pattern().contains("[+-*/]?"));
    for (ushort code = 1; code < 0x180; ++code) {
        const QChar character(code);
        const bool is_operator = character == '*' || character == '+' || character == '/';
        QCOMPARE(operators.exactMatch(character), is_operator);
        const bool may_stand = is_operator || character == ' ' || character.isDigit();
        QCOMPARE(unit_change.exactMatch(QStringLiteral("EI1") + character + '5'), may_stand);
    }
}

void tst_system_pattern::the_first_matching_argument_pattern_is_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("token");
    // clang-format off
    QTest::newRow("unit")                    << "EI1(5);"                  <<  0 << "EI1(5)";
    QTest::newRow("unit, blanks")            << "EI0 ( 123456 );"          <<  0 << "EI0 ( 123456 )";
    QTest::newRow("unit, seven digits")      << "EI0(1234567);"            << -1 << "";
    QTest::newRow("unit, tab")               << "EI1\t(5);"                << -1 << "";
    QTest::newRow("unit change")             << "EI1+1;"                   <<  1 << "EI1+1";
    QTest::newRow("unit alone")              << "EI12;"                    <<  1 << "EI12";
    QTest::newRow("no subtraction")          << "EI1-5;"                   << -1 << "";
    QTest::newRow("counter")                 << "CO01(5);"                 <<  2 << "CO01(5)";
    QTest::newRow("counter plus")            << "CO99(+5);"                <<  2 << "CO99(+5)";
    QTest::newRow("counter at least")        << "CO01 ( >= 3 );"           <<  2 << "CO01 ( >= 3 )";
    QTest::newRow("counter and counter")     << "CO01(-CO02);"             <<  3 << "CO01(-CO02)";
    QTest::newRow("counter unequal")         << "CO01(<>5);"               <<  4 << "CO01(<>5)";
    QTest::newRow("counters unequal")        << "CO01(<>CO02);"            <<  5 << "CO01(<>CO02)";
    QTest::newRow("counter of one digit")    << "CO1(5);"                  << -1 << "";
    QTest::newRow("bare counter")            << "CO01;"                    << -1 << "";
    QTest::newRow("place of a table")        << "EI1(ST1(12));"            <<  6 << "EI1(ST1(12))";
    QTest::newRow("step in a table")         << "EI1(ST1(+1));"            <<  6 << "EI1(ST1(+1))";
    QTest::newRow("place by counter")        << "EI1(ST1(CO05));"          <<  7 << "EI1(ST1(CO05))";
    QTest::newRow("blank between closings")  << "EI1(ST1(1) );"            << -1 << "";
    QTest::newRow("table")                   << "ST1(1,2 , 4);"            <<  8 << "ST1(1,2 , 4)";
    QTest::newRow("table, blank in front")   << "ST1( 1,2);"               << -1 << "";
    QTest::newRow("play table takes jeton")  << "PT1(EC01);"               <<  9 << "PT1(EC01)";
    QTest::newRow("play table last number")  << "PT1(GZ);"                 <<  9 << "PT1(GZ)";
    QTest::newRow("play table clear")        << "PT1(C);"                  <<  9 << "PT1(C)";
    QTest::newRow("play table place")        << "PT9(123456);"             <<  9 << "PT9(123456)";
    QTest::newRow("play table")              << "PT1(X);"                  << 10 << "PT1";
    QTest::newRow("no play table 0")         << "PT0;"                     << -1 << "";
    QTest::newRow("options")                 << "STMAX(I(12), V(3) ,S);"   << 11 << "STMAX(I(12), V(3) ,S)";
    QTest::newRow("option L")                << "STMAX(L);"                << 11 << "STMAX(L)";
    QTest::newRow("limit without a number")  << "STMAX(V);"                << 12 << "STMAX(V)";
    QTest::newRow("counters go back")        << "STMAX(S(ST1(CO05)));"     << 12 << "STMAX(S(ST1(CO05)))";
    QTest::newRow("options, greedy")         << "STMAX(V),CO01(5);"        << 12 << "STMAX(V),CO01(5)";
    QTest::newRow("last number")             << "GZ IN"                    << 13 << "GZ";
    QTest::newRow("front of a longer word")  << "GZX"                      << 13 << "GZ";
    QTest::newRow("number before")           << "VZ IN"                    << 14 << "VZ";
    QTest::newRow("number further back")     << "V 3 IN"                   << 15 << "V 3";
    QTest::newRow("repetitions")             << "RZ(5/>=2) IN"             << 16 << "RZ(5/>=2)";
    QTest::newRow("repetitions, unequal")    << "RZ(5/<>2) IN"             << -1 << "";
    QTest::newRow("signal, third part")      << "UZ(5/=2/F) IN"            << 17 << "UZ(5/=2/F)";
    QTest::newRow("signal, compare")         << "UZ ( 12 / >= 3 ) IN"      << 18 << "UZ ( 12 / >= 3 )";
    QTest::newRow("signal, most")            << "UZ(30/H) IN"              << 19 << "UZ(30/H)";
    QTest::newRow("signal, nothing")         << "UZ(5/) IN"                << 19 << "UZ(5/)";
    QTest::newRow("bet of the round before") << "AG(999);"                 << 20 << "AG(999)";
    QTest::newRow("bet, four digits")        << "AG(1000);"                << -1 << "";
    QTest::newRow("not at the beginning")    << " EI1(5);"                 << -1 << "";
    // clang-format on
}

void tst_system_pattern::the_first_matching_argument_pattern_is()
{
    QFETCH(QString, text);
    const auto match = first_match(text, system_pattern(french).get_argument_patterns());
    QTEST(match.first, "index");
    QTEST(match.second, "token");
}

void tst_system_pattern::the_first_matching_keyword_pattern_is_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("token");
    // clang-format off
    QTest::newRow("SZ")                   << "SZ EC01"            <<  0 << "SZ";
    QTest::newRow("glued")                << "SZEC01"             << -1 << "";
    QTest::newRow("IF")                   << "if GZ"              <<  1 << "if";
    QTest::newRow("THEN")                 << "THEN SZ"            <<  2 << "THEN";
    QTest::newRow("RESULT")               << "RESULT SZ"          <<  3 << "RESULT";
    QTest::newRow("AND")                  << "AND IF"             <<  4 << "AND";
    QTest::newRow("MAX")                  << "MAX 5"              <<  5 << "MAX";
    QTest::newRow("MIN")                  << "MIN 5"              <<  6 << "MIN";
    QTest::newRow("NOT IN")               << "NOT   IN EC01"      <<  7 << "NOT   IN";
    QTest::newRow("NOTIN")                << "NOTIN EC01"         <<  7 << "NOTIN";
    QTest::newRow("IN")                   << "IN EC01"            <<  8 << "IN";
    QTest::newRow("STOP")                 << "STOP;"              <<  9 << "STOP";
    QTest::newRow("RESTART")              << "RESTART;"           << 10 << "RESTART";
    QTest::newRow("RESTART full")         << "RESTART ( F );"     << 10 << "RESTART ( F )";
    QTest::newRow("RESTART comma")        << "RESTART(,);"        << 10 << "RESTART(,)";
    QTest::newRow("RESTART otherwise")    << "RESTART(G);"        << 10 << "RESTART";
    QTest::newRow("RESTART, longer word") << "RESTARTX;"          << 10 << "RESTART";
    QTest::newRow("MESSAGE ON")           << "MESSAGE ON;"        << 11 << "MESSAGE ON";
    QTest::newRow("MESSAGE OFF")          << "MESSAGE OFF;"       << 12 << "MESSAGE OFF";
    QTest::newRow("MESSAGE, last bracket")<< "MESSAGE('a)b');"    << 13 << "MESSAGE('a)b')";
    QTest::newRow("MESSAGE alone")        << "MESSAGE;"           << -1 << "";
    // clang-format on
}

void tst_system_pattern::the_first_matching_keyword_pattern_is()
{
    QFETCH(QString, text);
    const auto match = first_match(text, system_pattern(french).get_keyword_patterns());
    QTEST(match.first, "index");
    QTEST(match.second, "token");
}

void tst_system_pattern::jetons_of_the_other_table_are_told_apart()
{
    const QSet<QString> american_only{
        "PL37", "CH61", "CH62", "CH63", "TP15", "TP16", "EN37", "ZN37", "DN37"};
    const QSet<QString> french_only{"CH03", "TP02", "GS", "KS", "OR", "ZS"};
    const system_pattern patterns(american);
    for (const QString& word : words_of_table(american)) {
        QCOMPARE(is_one_of(word, patterns.get_american_patterns()), american_only.contains(word));
        QCOMPARE(is_one_of(word, patterns.get_french_patterns()), french_only.contains(word));
    }
}

void tst_system_pattern::message_arguments_have_their_forms_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("is_argument");
    // clang-format off
    QTest::newRow("last number")     << "GZ"          << true;
    QTest::newRow("number before")   << "VZ"          << true;
    QTest::newRow("further back")    << "V 9"         << true;
    QTest::newRow("counter")         << "CO12"        << true;
    QTest::newRow("table")           << "ST9"         << true;
    QTest::newRow("no table 0")      << "ST0"         << false;
    QTest::newRow("bet")             << "AG(1)"       << true;
    QTest::newRow("bets")            << "AG( 1..123 )"<< true;
    QTest::newRow("bets, one dot")   << "AG(1.2)"     << false;
    QTest::newRow("unit")            << "EI1"         << false;
    // clang-format on
}

void tst_system_pattern::message_arguments_have_their_forms()
{
    QFETCH(QString, text);
    QTEST(is_one_of(text, system_pattern(french).get_message_patterns()), "is_argument");
}

void tst_system_pattern::the_shared_object_keeps_the_table_of_its_first_use()
{
    setting::instance().set_s_table_form(american);
    const system_pattern& patterns = system_pattern::instance();
    QVERIFY(is_one_of("PL37", patterns.get_jeton_patterns()));

    setting::instance().set_s_table_form(french);
    QCOMPARE(&system_pattern::instance(), &patterns);
    QVERIFY(is_one_of("PL37", patterns.get_jeton_patterns()));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_pattern>(argc, argv);
}

#include "tst_system_pattern.moc"
