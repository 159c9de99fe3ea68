#include "sieve_pattern.h"
#include "system_pattern.h"
#include "system_sektoren.h"
#include "test_box.h"

#include <QRegExp>
#include <QRegularExpression>

#include <random>

static constexpr int french = 0;
static constexpr int american = 1;

class tst_system_sektoren : public QObject
{
    Q_OBJECT

private slots:
    void a_first_line_without_a_section_is_refused_data();
    void a_first_line_without_a_section_is_refused();
    void a_first_line_may_hold_its_section_anywhere();
    void jetons_of_the_other_table_are_refused_data();
    void jetons_of_the_other_table_are_refused();
    void the_first_faulty_line_is_told();
    void what_no_token_takes_away_is_a_syntax_error_data();
    void what_no_token_takes_away_is_a_syntax_error();
    void lines_of_tokens_pass_data();
    void lines_of_tokens_pass();
    void a_syntax_error_goes_to_the_debug_log();
    void statements_are_sorted_into_their_sections_data();
    void statements_are_sorted_into_their_sections();
    void every_split_starts_anew();
    void random_lines_are_sieved_as_by_plain_replacement();
    void quick_test_passes_over_no_pattern_that_matches();
    void quick_test_asks_only_for_letters_of_every_match_data();
    void quick_test_asks_only_for_letters_of_every_match();
    void long_lines_take_no_longer_per_character_data();
    void long_lines_take_no_longer_per_character();
};

static QList<section_line> numbered(const QStringList& lines, int first_number = 1)
{
    QList<section_line> result;
    for (const QString& text : lines)
        result.append({first_number + result.size(), text});
    return result;
}

static sys_result_info
checked(const QStringList& lines, int table_type = french, int first_number = 1)
{
    const system_pattern patterns(table_type);
    return system_sektoren(patterns).split_system_file(numbered(lines, first_number), table_type);
}

static void expect_log_of_remainder()
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Not empty line found :"));
}

void tst_system_sektoren::a_first_line_without_a_section_is_refused_data()
{
    QTest::addColumn<int>("first_number");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("line_text");
    // clang-format off
    QTest::newRow("no line at all")         << 0 << QStringList{}                    << "";
    QTest::newRow("code in front")          << 4 << QStringList{"SZ EC01;", "AL:"}   << "SZ EC01;";
    QTest::newRow("lower case")             << 2 << QStringList{"al:", "SZ EC01;"}   << "al:";
    QTest::newRow("end of another word")    << 1 << QStringList{"XAL:"}              << "XAL:";
    QTest::newRow("no colon")               << 1 << QStringList{"AL"}                << "AL";
    QTest::newRow("before any other fault") << 1 << QStringList{"SZ PL37 x;"}        << "SZ PL37 x;";
    // clang-format on
}

void tst_system_sektoren::a_first_line_without_a_section_is_refused()
{
    QFETCH(int, first_number);
    QFETCH(QStringList, lines);
    QFETCH(QString, line_text);
    const sys_result_info result = checked(lines, french, first_number);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QString("Code ohne Sektion nicht zuflässig!"));
    QCOMPARE(result.error_line, 1);
    QCOMPARE(result.mark_mode, 1);
    QCOMPARE(result.mark_text, line_text);
    QCOMPARE(result.line_text, line_text);
}

void tst_system_sektoren::a_first_line_may_hold_its_section_anywhere()
{
    QCOMPARE(checked({"AL:"}).status, 2);
    QCOMPARE(checked({"SZ EC01; GW:"}).status, 2);
}

void tst_system_sektoren::jetons_of_the_other_table_are_refused_data()
{
    QTest::addColumn<int>("table_type");
    QTest::addColumn<QString>("line_text");
    QTest::addColumn<QString>("mark_text");
    // clang-format off
    QTest::newRow("F PL37")               << french   << "SZ PL37;"           << "PL37";
    QTest::newRow("F CH61")               << french   << "SZ CH61;"           << "CH61";
    QTest::newRow("F CH62")               << french   << "SZ CH62;"           << "CH62";
    QTest::newRow("F CH63")               << french   << "SZ CH63;"           << "CH63";
    QTest::newRow("F TP15")               << french   << "SZ TP15;"           << "TP15";
    QTest::newRow("F TP16")               << french   << "SZ TP16;"           << "TP16";
    QTest::newRow("F EN37")               << french   << "SZ EN37;"           << "EN37";
    QTest::newRow("F ZN37")               << french   << "SZ ZN37;"           << "ZN37";
    QTest::newRow("F DN37")               << french   << "SZ DN37;"           << "DN37";
    QTest::newRow("F lower case")         << french   << "sz pl37;"           << "pl37";
    QTest::newRow("F in a play table")    << french   << "SZ PT1(PL37);"      << "PL37";
    QTest::newRow("F in a message")       << french   << "MESSAGE('a PL37');" << "PL37";
    QTest::newRow("F before the syntax")  << french   << "x PL37 y;"          << "PL37";
    QTest::newRow("F order of the list")  << french   << "SZ TP15,CH61,PL37;" << "PL37";
    QTest::newRow("A CH03")               << american << "SZ CH03;"           << "CH03";
    QTest::newRow("A TP02")               << american << "SZ TP02;"           << "TP02";
    QTest::newRow("A GS")                 << american << "SZ GS;"             << "GS";
    QTest::newRow("A KS")                 << american << "SZ KS;"             << "KS";
    QTest::newRow("A OR")                 << american << "SZ OR;"             << "OR";
    QTest::newRow("A ZS")                 << american << "SZ ZS;"             << "ZS";
    QTest::newRow("A lower case")         << american << "if GZ in zs;"       << "zs";
    // clang-format on
}

void tst_system_sektoren::jetons_of_the_other_table_are_refused()
{
    QFETCH(int, table_type);
    QFETCH(QString, line_text);
    const sys_result_info result = checked({"AL:", "SZ EC01;", line_text}, table_type);
    QCOMPARE(result.status, 4);
    const QString message = table_type == french
                                ? "Französischer Tisch aktiv - Amerikanische Setzungen gefunden!"
                                : "Amerikanischer Tisch aktiv - Französische Setzungen gefunden!";
    QCOMPARE(result.error_text, message);
    QCOMPARE(result.error_line, 3);
    QCOMPARE(result.mark_mode, 2);
    QTEST(result.mark_text, "mark_text");
    QCOMPARE(result.line_text, line_text);
}

void tst_system_sektoren::the_first_faulty_line_is_told()
{
    expect_log_of_remainder();
    QCOMPARE(checked({"AL:", "x", "SZ PL37;"}).error_line, 2);
    QCOMPARE(checked({"AL:", "SZ PL37;", "x"}).error_line, 2);
}

void tst_system_sektoren::what_no_token_takes_away_is_a_syntax_error_data()
{
    QTest::addColumn<QString>("line_text");
    QTest::addColumn<QString>("mark_text");
    // clang-format off
    QTest::newRow("unknown word")              << "SZ rot;"                    << "rot";
    QTest::newRow("commas go")                 << "SZ rot,gelb, x;"            << "rotgelb x";
    QTest::newRow("tokens of the middle go")   << "a SZ EC01 b"                << "a   b";
    QTest::newRow("no token of the language")  << "SZ OP;"                     << "OP";
    QTest::newRow("number beyond the wheel")   << "SZ PL39;"                   << "PL39";
    QTest::newRow("even chance zero")          << "SZ EC00;"                   << "EC00";
    QTest::newRow("subtraction of a unit")     << "SZ EI1-5;"                  << "EI1-5";
    QTest::newRow("seven digits in a counter") << "SZ CO01(1234567);"          << "CO01(1234567)";
    QTest::newRow("bare counter")              << "IF UZ(3/H) IN EC RESULT SZ CO01;" << "CO01";
    QTest::newRow("glued by the removed ;")    << "SZ EC01;SZ EC02;"           << "EC01SZ";
    QTest::newRow("glued by a comment")        << "SZEC01;"                    << "SZEC01";
    QTest::newRow("tab within a form")         << "SZ EI1\t(5);"               << "EI1\t(5)";
    QTest::newRow("full stop")                 << "SZ EC01 . ;"                << ".";
    QTest::newRow("digits go, signs stay")     << "SZ 12 + 1234567;"           << "+";
    QTest::newRow("digits stay with letters")  << "SZ 12 x 34;"                << "12 x 34";
    QTest::newRow("message not closed")        << "MESSAGE('a';"               << "MESSAGE('a'";
    QTest::newRow("behind the last bracket")   << "MESSAGE('a') x"             << "x";
    // clang-format on
}

void tst_system_sektoren::what_no_token_takes_away_is_a_syntax_error()
{
    QFETCH(QString, line_text);
    expect_log_of_remainder();
    const sys_result_info result = checked({"AL:", line_text});
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QString("Syntax Fehler!"));
    QCOMPARE(result.error_line, 2);
    QCOMPARE(result.mark_mode, 2);
    QTEST(result.mark_text, "mark_text");
    QCOMPARE(result.line_text, line_text);
}

void tst_system_sektoren::lines_of_tokens_pass_data()
{
    QTest::addColumn<QString>("line_text");
    // clang-format off
    QTest::newRow("set")                       << "SZ EC01,EC02;";
    QTest::newRow("lower case")                << "sz ec01;";
    QTest::newRow("order does not matter")     << "EC01 SZ IN THEN IF;";
    QTest::newRow("section in lower case")     << "al:";
    QTest::newRow("only separators")           << "; , ;";
    QTest::newRow("seven digits")              << "SZ EC01 MAX 1234567;";
    QTest::newRow("two numbers")               << "SZ EI1+1 MAX 5 12 34;";
    QTest::newRow("options")                   << "SZ STMAX(I(12), C(500), V(300), G(200), S);";
    QTest::newRow("counters go back")          << "SZ STMAX(S(ST1(CO05),ST2(CO06)),A);";
    QTest::newRow("signal of nothing")         << "IF UZ(5/) IN EC RESULT SZ EC;";
    QTest::newRow("restart with a comma")      << "RESTART(,);";
    QTest::newRow("message of anything")       << "MESSAGE('%$ x / 7', GZ);";
    QTest::newRow("bracket in a message")      << "MESSAGE('a)b');";
    QTest::newRow("anything between messages") << "MESSAGE('a'); x + y MESSAGE('b');";
    QTest::newRow("colon in a message")        << "MESSAGE('a:b');";
    // clang-format on
}

void tst_system_sektoren::lines_of_tokens_pass()
{
    QFETCH(QString, line_text);
    const sys_result_info result = checked({"AL:", line_text});
    QCOMPARE(result.error_text, QString());
    QCOMPARE(result.status, 2);
}

void tst_system_sektoren::a_syntax_error_goes_to_the_debug_log()
{
    QTest::ignoreMessage(
        QtDebugMsg,
        QRegularExpression("^\\d{1,2}:\\d\\d:\\d\\d\\.\\d{3} Not empty line found : 3 rot$"));
    QCOMPARE(checked({"AL:", "SZ EC01;", "SZ rot;"}).status, 4);
}

void tst_system_sektoren::statements_are_sorted_into_their_sections_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("statements"); // "section number:statement"
    using list = QStringList;
    // clang-format off
    QTest::newRow("a keyword alone")
        << list{"AL:"} << list{};
    QTest::newRow("one line")
        << list{"AL: SZ EC01;"} << list{"al 1:SZ EC01;"};
    QTest::newRow("two lines")
        << list{"AL:", "SZ EC01;"} << list{"al 2:SZ EC01;"};
    QTest::newRow("all sections, any order")
        << list{"GW:", "SZ EC01;", "ST:", "SZ EC02;", "AL:", "SZ EC03;", "VE:", "SZ EC04;"}
        << list{"st 4:SZ EC02;", "gw 2:SZ EC01;", "ve 8:SZ EC04;", "al 6:SZ EC03;"};
    QTest::newRow("a section in two parts")
        << list{"AL: SZ EC01;", "GW: SZ EC02;", "AL: SZ EC03;"}
        << list{"gw 2:SZ EC02;", "al 1:SZ EC01;", "al 3:SZ EC03;"};
    QTest::newRow("three statements on a line")
        << list{"AL:", "SZ EC01; SZ EC02; SZ EC03;"}
        << list{"al 2:SZ EC01;", "al 2:SZ EC02;", "al 2:SZ EC03;"};
    QTest::newRow("three, no ; at the end")
        << list{"AL:", "SZ EC01; SZ EC02; SZ EC03"}
        << list{"al 2:SZ EC01;", "al 2:SZ EC02;", "al 2:SZ EC03;"};
    QTest::newRow("two, no ; at the end")
        << list{"AL:", "SZ EC01; SZ EC02"} << list{"al 2:SZ EC01; SZ EC02"};
    QTest::newRow("keyword and three statements")
        << list{"ST: SZ EC01; SZ EC02; SZ EC03;"}
        << list{"st 1:SZ EC01;", "st 1:SZ EC02;", "st 1:SZ EC03;"};
    QTest::newRow("keyword, statement without ;")
        << list{"GW:", "AL: SZ EC01", "SZ EC02;"} << list{"al 3:SZ EC02;"};
    QTest::newRow("two sections on a line")
        << list{"AL: SZ EC01; GW: SZ EC02;"} << list{"gw 1:SZ EC02;", "al 1:SZ EC01;"};
    QTest::newRow("statement in front of the first keyword")
        << list{"SZ EC01; AL:"} << list{"al 1:SZ EC01;"};
    QTest::newRow("the same, another keyword")
        << list{"SZ EC01; GW:", "SZ EC02;"} << list{"gw 2:SZ EC02;", "al 1:SZ EC01;"};
    QTest::newRow("keyword behind two statements")
        << list{"ST: SZ EC01; SZ EC02; AL:"}
        << list{"st 1:SZ EC01;", "st 1:SZ EC02;", "al 1:;"};
    QTest::newRow("statement over three lines")
        << list{"AL:", "IF GZ IN EC01", "THEN SZ EC02", ";"}
        << list{"al 2:IF GZ IN EC01 THEN SZ EC02 ;"};
    QTest::newRow("; in front of a keyword ends it")
        << list{"GW:", "SZ EC01", ";AL:", "SZ EC02;"}
        << list{"gw 2:SZ EC01 ;", "al 4:SZ EC02;"};
    QTest::newRow("keyword within a statement")
        << list{"AL:", "SZ", "GW:", "EC01;"} << list{"gw 2:SZ EC01;"};
    QTest::newRow("begun on the line of the keyword")
        << list{"AL: SZ", "EC01;"} << list{"al 2:EC01;"};
    QTest::newRow("begun behind a statement")
        << list{"AL:", "SZ EC01; SZ", "EC02;"} << list{"al 2:SZ EC01; SZ", "al 3:EC02;"};
    QTest::newRow("no ; before the end of the file")
        << list{"AL:", "SZ EC01;", "IF GZ IN EC01 THEN SZ EC02"} << list{"al 2:SZ EC01;"};
    QTest::newRow("a ; alone is a statement")
        << list{"AL:", ";"} << list{"al 2:;"};
    QTest::newRow("many ; are none")
        << list{"AL:", ";;;"} << list{};
    QTest::newRow("keyword in lower case")
        << list{"GW:", "al:", "SZ EC01;"} << list{"gw 3:SZ EC01;"};
    QTest::newRow("colon in a message")
        << list{"AL:", "MESSAGE('a:b');"} << list{"al 2:b');"};
    QTest::newRow("semicolon in a message")
        << list{"AL:", "MESSAGE('a;b');"} << list{"al 2:MESSAGE('a;", "al 2:b');"};
    QTest::newRow("section in a message")
        << list{"GW:", "MESSAGE('ST: x');"} << list{"st 2:x');"};
    // clang-format on
}

// "section number:statement" for all sections.
static QStringList as_text(const system_sektoren& sections)
{
    QStringList result;
    const auto add = [&result](const char* name, const QList<section_line>& section) {
        for (const section_line& statement : section)
            result.append(QStringLiteral("%1 %2:%3")
                              .arg(QLatin1String(name))
                              .arg(statement.number)
                              .arg(statement.text));
    };
    add("st", sections.section_st());
    add("gw", sections.section_gw());
    add("ve", sections.section_ve());
    add("al", sections.section_al());
    return result;
}

void tst_system_sektoren::statements_are_sorted_into_their_sections()
{
    QFETCH(QStringList, lines);
    const system_pattern patterns(french);
    system_sektoren sections(patterns);
    const sys_result_info result = sections.split_system_file(numbered(lines), french);
    QCOMPARE(result.status, 2);
    QTEST(as_text(sections), "statements");
}

void tst_system_sektoren::every_split_starts_anew()
{
    const system_pattern patterns(french);
    system_sektoren sections(patterns);
    QCOMPARE(sections.split_system_file({{1, "GW:"}, {2, "SZ"}}, french).status, 2);
    QCOMPARE(sections.split_system_file({{1, "EC01; AL:"}}, french).status, 2);
    QCOMPARE(as_text(sections), QStringList{"al 1:EC01;"});
    QCOMPARE(sections.split_system_file({{1, "EC01;"}}, french).status, 4);
    QCOMPARE(as_text(sections), QStringList{});
}

// What is left of a line, the plain way: each pattern is built and replaced by nothing.
static QString plain_remainder(const system_pattern& patterns, QString text)
{
    text.remove(';');
    const QStringList tokens = patterns.get_section_patterns() + patterns.get_keyword_patterns() +
                               patterns.get_argument_patterns() + patterns.get_jeton_patterns();
    for (const QString& token : tokens) {
        text.replace(QRegExp(token, Qt::CaseInsensitive, QRegExp::RegExp), "");
        text = text.trimmed();
        if (text.isEmpty()) return text;
    }
    text = text.remove(',').trimmed();
    if (!text.contains(QRegExp("[a-zA-Z]"))) text.replace(QRegExp("\\d{1,6}"), "");
    return text.trimmed();
}

// clang-format off
static const QStringList line_pieces{
    "EI1(5)", "EI1+1", "EI2(ST1(+1))", "CO01(5)", "CO02(<>CO03)", "ST1(1,2)", "PT1", "PT2(EC01)",
    "STMAX(", "STMAX(A)", "STMAX(V),", "GZ", "VZ", "V", "RZ(5/2)", "UZ(3/H)", "AG(1)", "EC01", "PL36",
    "EC", "GS", "IN", "NOT ", "RESTART", "MESSAGE(", "MESSAGE ON", "SZ", "IF", "THEN", "AND", "STOP",
    "AL:", "st:", "(", ")", ")", ",", "/", "+", "*", "1", "12", "1234567", " ", " ", " ", ";", "'",
    "x", "_", "\t", "\u0130", "\u017f", "\u212a", "\u00e4", "\u0661",
};
// clang-format on

class random_text
{
public:
    QString next(int most_pieces)
    {
        QString text;
        for (int count = below(most_pieces); count > 0; --count)
            text += line_pieces.at(below(line_pieces.size()));
        return text;
    }

private:
    int below(int limit) { return int(generator() % std::mt19937::result_type(limit)); }

    std::mt19937 generator{20210406};
};

void tst_system_sektoren::random_lines_are_sieved_as_by_plain_replacement()
{
    const system_pattern patterns(american);
    system_sektoren sections(patterns);
    random_text texts;
    int passed = 0;
    for (int round = 0; round < 800; ++round) {
        const QString text = texts.next(10);
        const QString remainder = plain_remainder(patterns, text);
        if (!remainder.isEmpty()) expect_log_of_remainder();
        const sys_result_info result = sections.split_system_file({{1, "AL:"}, {2, text}}, french);
        QVERIFY2(result.mark_text == remainder, qPrintable(text));
        QCOMPARE(result.status, remainder.isEmpty() ? 2 : 4);
        if (remainder.isEmpty()) ++passed;
    }
    QVERIFY(passed > 50);
}

void tst_system_sektoren::quick_test_passes_over_no_pattern_that_matches()
{
    const system_pattern patterns(french);
    const QStringList all = patterns.get_section_patterns() + patterns.get_keyword_patterns() +
                            patterns.get_argument_patterns() + patterns.get_jeton_patterns() +
                            patterns.get_american_patterns() + patterns.get_french_patterns();
    QVector<sieve_pattern> sieves;
    QVector<QRegExp> expressions;
    for (const QString& pattern : all) {
        sieves.append(sieve_pattern(pattern));
        expressions.append(QRegExp(pattern, Qt::CaseInsensitive, QRegExp::RegExp));
    }
    random_text texts;
    int skipped = 0;
    for (int round = 0; round < 2000; ++round) {
        const QString text = texts.next(6);
        const letter_pairs pairs(text);
        for (int index = 0; index < all.size(); ++index) {
            if (sieves.at(index).may_occur_among(pairs)) continue;
            QVERIFY2(expressions.at(index).indexIn(text) < 0, qPrintable(text));
            ++skipped;
        }
    }
    QVERIFY(skipped > 2000 * all.size() / 2);
}

void tst_system_sektoren::quick_test_asks_only_for_letters_of_every_match_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("may_occur");
    // clang-format off
    QTest::newRow("all letters")           << "\\bABC"         << "xabcx" << true;
    QTest::newRow("a letter is missing")   << "\\bABC"         << "ab c"  << false;
    QTest::newRow("letter may be missing") << "\\bABC*"        << "ab"    << true;
    QTest::newRow("letter may be counted") << "\\bABC{0,1}"    << "ab"    << true;
    QTest::newRow("second alternative")    << "\\b(AB|CD)\\b"  << "cd"    << true;
    QTest::newRow("no alternative")        << "\\b(AB|CD)\\b"  << "bc"    << false;
    QTest::newRow("beginning unknown")     << "[A-Z]B"         << "cb"    << true;
    QTest::newRow("one letter")            << "\\bV[ ]*[0-9]"  << "1"     << true;
    // clang-format on
}

void tst_system_sektoren::quick_test_asks_only_for_letters_of_every_match()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QTEST(sieve_pattern(pattern).may_occur_among(letter_pairs(text)), "may_occur");
}

// Work that grows with the square of the length would run into the time limit of the test.
void tst_system_sektoren::long_lines_take_no_longer_per_character_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("status");
    // clang-format off
    QTest::newRow("open messages")         << "MESSAGE("  << 4;
    QTest::newRow("open messages, blanks")<< "MESSAGE( " << 4;
    QTest::newRow("open options")          << "STMAX("    << 4;
    QTest::newRow("broken options")        << "STMAX(*"   << 4;
    QTest::newRow("open tables")           << "ST1(1,"    << 4;
    QTest::newRow("tokens")                << "SZ EC01 "  << 2;
    QTest::newRow("statements")            << "SZ EC01; " << 2;
    QTest::newRow("numbers further back")  << "V"         << 4;
    QTest::newRow("separators")            << ",;"        << 2;
    QTest::newRow("digits")                << "1"         << 2;
    QTest::newRow("colons")                << "::"        << 4;
    QTest::newRow("foreign letters")       << "\u0130"    << 4;
    // clang-format on
}

void tst_system_sektoren::long_lines_take_no_longer_per_character()
{
    QFETCH(QString, piece);
    QFETCH(int, status);
    if (status == 4) expect_log_of_remainder();
    const QString text = ')' + piece.repeated(1000000 / piece.size());
    const QString begin = status == 4 ? text : text.mid(1);
    QCOMPARE(checked({"AL:", begin}).status, status);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_sektoren>(argc, argv);
}

#include "tst_system_sektoren.moc"
