#include "statement_compiler.h"
#include "system_check.h"
#include "system_file_reader.h"
#include "system_pattern.h"
#include "system_sektor_check.h"
#include "system_sektoren.h"
#include "test_box.h"

#include <QDirIterator>
#include <QLoggingCategory>
#include <QSettings>

#include <random>

static constexpr int french = 0;
static constexpr int american = 1;

class tst_system_check : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void a_sound_system_has_no_finding();
    void every_error_is_found_data();
    void every_error_is_found();
    void the_table_is_that_of_the_patterns();
    void no_fault_hides_another();
    void a_statement_has_one_error();
    void each_part_of_a_line_tells_its_fault();
    void every_open_comment_is_told();
    void places_are_those_of_the_text_data();
    void places_are_those_of_the_text();
    void what_is_hardly_meant_is_told_data();
    void what_is_hardly_meant_is_told();
    void what_is_meant_is_not_told_data();
    void what_is_meant_is_not_told();
    void findings_are_sorted();
    void examples_have_no_finding_data();
    void examples_have_no_finding();
    void systems_that_run_have_no_error_data();
    void systems_that_run_have_no_error();
    void damaged_texts_have_the_errors_of_the_run();
    void long_texts_take_no_longer_per_character_data();
    void long_texts_take_no_longer_per_character();
};

namespace
{

using kind = system_finding::kind;

QVector<system_finding> checked(const QString& text, int table_type = french)
{
    const system_pattern patterns(table_type);
    return check_system_text(text, patterns);
}

/// "2:4+7 error TEXT": line, column and length.
QString told(const system_finding& finding)
{
    return QString("%1:%2+%3 %4 %5")
        .arg(finding.line)
        .arg(finding.column)
        .arg(finding.length)
        .arg(finding.severity == kind::error ? "error" : "warning", finding.text);
}

QStringList told(const QVector<system_finding>& findings)
{
    QStringList lines;
    for (const system_finding& finding : findings)
        lines.append(told(finding));
    return lines;
}

QString read_text(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll());
}

int table_of(const QString& settings_path)
{
    return QSettings(settings_path, QSettings::IniFormat)
        .value("option/s_table_form", french)
        .toInt();
}

/// The faults that the steps of a run meet, "LINE TEXT": all of the statements, or else the first
/// of what stands in front of them.
struct run_faults {
    QStringList of_reading;
    QStringList of_lines;
    QStringList of_statements;
};

QString fault_line(int line, const QString& text)
{
    return QString("%1 %2").arg(line).arg(text);
}

/// The steps that a run takes in front of its first coup.
class run_steps
{
public:
    explicit run_steps(const system_pattern& patterns)
        : table_type(patterns.get_table_type())
        , sections(patterns)
        , compiler(patterns)
    {
    }

    run_faults faults_of(const QString& text)
    {
        run_faults faults;
        QString copy = text;
        QTextStream stream(&copy, QIODevice::ReadOnly);
        const system_file_lines file = read_system_lines(stream);
        add_fault(faults.of_reading, file.result);
        add_fault(faults.of_lines, sections.split_system_file(file.lines, table_type));
        add_faults(faults.of_statements, sections.section_st(), true);
        add_faults(faults.of_statements, sections.section_al(), false);
        add_faults(faults.of_statements, sections.section_ve(), false);
        add_faults(faults.of_statements, sections.section_gw(), false);
        faults.of_statements.sort();
        return faults;
    }

private:
    static void add_fault(QStringList& faults, const sys_result_info& result)
    {
        if (result.status != 2) faults.append(fault_line(result.error_line, result.error_text));
    }

    void add_faults(QStringList& faults, const QList<section_line>& section, bool is_start)
    {
        for (const section_line& statement : section) {
            sys_result_info result;
            if (!is_start) result = system_sektor_check().check_section({statement});
            if (result.status == 2 && !statement.text.contains('|'))
                compiler.compile_statement(result, statement.text);
            result.error_line = statement.number;
            add_fault(faults, result);
        }
    }

    int table_type;
    system_sektoren sections;
    statement_compiler compiler;
};

} // namespace

// The sieve of the run tells the debug log what it refuses.
void tst_system_check::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_system_check::a_sound_system_has_no_finding()
{
    QCOMPARE(told(checked("// a system\n"
                          "ST:\n"
                          "SZ STMAX(I(12),C(500),V(300),G(200),S); /* limits */\n"
                          "SZ ST1(1,2,4);\n"
                          "VE: SZ EI1(ST1(+1));\n"
                          "AL:\n"
                          "IF V0 IN EC03 AND IF VZ NOT IN EC03\n"
                          "THEN SZ EI1+1 MAX 5 THEN SZ EI1(1),EC03;\n"
                          "IF UZ(12/H) IN DZ RESULT SZ DZ;\n"
                          "MESSAGE('all is well',GZ,AG(1..2));\n")),
             QStringList());
}

void tst_system_check::every_error_is_found_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const QString& text, const QString& expected) {
        QTest::newRow(name) << text << QStringList(expected);
    };
    // A single statement in the second line of the file.
    const auto statement = [&row](const char* name, const QString& text, const QString& expected) {
        row(name, "AL:\n" + text + "\n", "2:" + expected);
    };
    // clang-format off
    row("empty",               "",                            "1:1+0 error Code ohne Sektion nicht zuflässig!");
    row("only a comment",      "// nothing\n",                "1:1+10 error Code ohne Sektion nicht zuflässig!");
    row("no section",          "SZ EC01;\nAL:\n",             "1:1+8 error Code ohne Sektion nicht zuflässig!");
    row("no section, line 3",  "\n//\nSZ EC01;\nAL:\n",       "1:1+0 error Code ohne Sektion nicht zuflässig!");
    row("open comment",        "AL:\nSZ EC01; /* x\n\n",      "2:10+2 error Kommentar Ende Zeichen wurde nicht gefunden!");
    row("comment in comment",  "AL:\n  /* x\n/* */\nSZ EC01;", "2:3+2 error Kommentar Ende Zeichen wurde nicht gefunden!");
    row("wrong table",         "AL: SZ EC01,PL37;\n",         "1:13+4 error Französischer Tisch aktiv - Amerikanische Setzungen gefunden!");
    row("STMAX in AL:",        "AL:\nSZ STMAX(A);\n",         "2:1+12 error Bedingung STMAX in falscher Sektion gefunden!");
    row("STMAX in GW:",        "GW: SZ EC01; SZ STMAX(A);\n", "1:14+12 error Bedingung STMAX in falscher Sektion gefunden!");
    row("STMAX in VE:",        "VE: MESSAGE('stmax');\n",     "1:5+17 error Bedingung STMAX in falscher Sektion gefunden!");
    statement("syntax",        "SZ EC99;",                    "4+4 error Syntax Fehler!");
    statement("syntax, glued", "SZ EC01;SZ EC02;",            "1+16 error Syntax Fehler!");
    statement("no action",     "CO01(5);",                    "1+8 error Keine gültige Aktion gefunden!");
    statement("no action, THEN", "IF GZ IN EC01 THEN GZ;",    "1+22 error Keine gültige Aktion gefunden!");
    statement("only a target", "IF UZ(9/H) IN DZ RESULT SZ;", "1+27 error Keine gültige Aktion gefunden!");
    statement("no end",        "STOP EC01;",                  "6+5 error Strichpunkt erwartet!");
    statement("no end, bound", "SZ EI1+1 MAX 5 THEN SZ EC01 EC02;", "1+33 error Strichpunkt erwartet!");
    statement("no item",       "SZ;",                         "3+1 error SZ Überprüfungsaktion erwartet!");
    statement("no test",       "IF EC01 THEN STOP;",          "4+15 error IF Überprüfungsaktion erwartet!");
    statement("no IN",         "IF GZ EC01 THEN STOP;",       "7+15 error Schlüsselwörter IN oder NOT IN erwartet!");
    statement("another word",  "IF GZ THEN STOP;",            "7+4 error Schlüsselwörter IN oder NOT IN erwartet!");
    statement("no jeton",      "IF GZ IN THEN STOP;",         "10+10 error Jeton erwartet!");
    statement("no THEN",       "IF GZ IN EC01;",              "14+1 error Schlüsselwort AND oder THEN erwartet!");
    statement("no IF",         "IF GZ IN EC01 AND VZ IN EC02 THEN STOP;", "19+21 error Schlüsselwort IF erwartet!");
    statement("AND at UZ",     "IF UZ(9/H) IN DZ AND IF CO01(1) THEN STOP;", "18+25 error Schlüsselwort AND bei UZ nicht erlaubt!");
    statement("THEN at UZ",    "IF UZ(9/H) IN DZ THEN STOP;", "18+10 error Schlüsselwort THEN bei UZ nicht erlaubt!");
    statement("RESULT",        "IF GZ IN EC01 RESULT SZ EC;", "15+13 error Schlüsselwort RESULT nicht erlaubt!");
    statement("RESULT, no SZ", "IF UZ(9/H) IN DZ RESULT DZ;", "25+3 error Schlüsselwort SZ erwartet!");
    statement("bound, no SZ",  "SZ EI1+1 MAX 5 THEN EC01;",   "21+5 error Schlüsselwort SZ erwartet!");
    statement("no bound",      "SZ EC01 EC02;",               "1+13 error Schlüsselwörter MAX,MIN oder ; erwartet!");
    statement("blank in list", "SZ EC01, EC02;",              "1+14 error Schlüsselwörter MAX,MIN oder ; erwartet!");
    statement("no number",     "SZ EI1+1 MIN EC01;",          "14+5 error Zahl mit max. 6 Stellen erwartet!");
    statement("seven digits",  "SZ EI1+1 MAX 1234567;",       "14+7 error Zahl mit max. 6 Stellen erwartet!");
    statement("behind bound",  "SZ EI1+1 MAX 5 STOP;",        "16+5 error Schlüsselwort THEN erwartet!");
    statement("no bound item", "SZ EI1+1 MAX 5 THEN SZ;",     "23+1 error Aktion erwartet!");
    statement("counter",       "IF UZ(9/H) IN DZ RESULT SZ CO01(5);", "35+1 error Counter Syntax falsch!");
    statement("full jeton",    "IF UZ(9/H) IN DZ RESULT SZ DZ01;", "32+1 error Direkte Jeton Setzung nicht erlaubt (nur Jeton Typen (EC,PL) sind gültig)!");
    // clang-format on
}

void tst_system_check::every_error_is_found()
{
    QFETCH(QString, text);
    QTEST(told(checked(text)), "expected");
}

void tst_system_check::the_table_is_that_of_the_patterns()
{
    QCOMPARE(told(checked("AL:\nSZ PL37;\n", american)), QStringList());
    QCOMPARE(told(checked("AL:\nSZ GS;\n", french)), QStringList());
    QCOMPARE(
        told(checked("AL:\nSZ GS;\n", american)),
        QStringList("2:4+2 error Amerikanischer Tisch aktiv - Französische Setzungen gefunden!"));
}

void tst_system_check::no_fault_hides_another()
{
    QCOMPARE(told(checked("SZ EC01;\n"
                          "AL: SZ EC01 EC02; STOP; SZ;\n"
                          "SZ XX;\n"
                          "SZ STMAX(A); SZ EC01,EC02;\n"
                          "IF GZ\n"
                          "THEN STOP;\n"
                          "/* x\n")),
             QStringList({"1:1+8 error Code ohne Sektion nicht zuflässig!",
                          "2:5+13 error Schlüsselwörter MAX,MIN oder ; erwartet!",
                          "2:27+1 error SZ Überprüfungsaktion erwartet!",
                          "3:4+2 error Syntax Fehler!",
                          "4:1+12 error Bedingung STMAX in falscher Sektion gefunden!",
                          "5:1+5 error Schlüsselwörter IN oder NOT IN erwartet!",
                          "7:1+2 error Kommentar Ende Zeichen wurde nicht gefunden!"}));
}

void tst_system_check::a_statement_has_one_error()
{
    // What the sieve refuses can't compile either, also when it stands in a later line.
    QCOMPARE(told(checked("AL:\nIF GZ IN EC01\nTHEN FOO;\n")),
             QStringList("3:6+3 error Syntax Fehler!"));
    QCOMPARE(told(checked("AL:\nSZ STMAX(A) EC01;\n")),
             QStringList("2:1+17 error Bedingung STMAX in falscher Sektion gefunden!"));
    // Between two messages the sieve sees nothing, so the compiler tells it.
    QCOMPARE(told(checked("AL:\nMESSAGE('a'); FOO; MESSAGE('b');\n")),
             QStringList("2:15+4 error Keine gültige Aktion gefunden!"));
}

void tst_system_check::each_part_of_a_line_tells_its_fault()
{
    QCOMPARE(
        told(checked("AL:\nSZ EC99; SZ EC01; SZ EC01 PL37; SZ EC02 EC03; FOO;\n")),
        QStringList({"2:4+4 error Syntax Fehler!",
                     "2:27+4 error Französischer Tisch aktiv - Amerikanische Setzungen gefunden!",
                     "2:33+13 error Schlüsselwörter MAX,MIN oder ; erwartet!",
                     "2:47+3 error Syntax Fehler!"}));
}

void tst_system_check::every_open_comment_is_told()
{
    // The line of an inner opening is used up, so the third one opens anew.
    const QString text = "AL:\n/* a\n/* b\nSZ EC01;\nSZ EC02; /* c\n/* d\nSZ;\n/* e */\n";
    QCOMPARE(told(checked(text)),
             QStringList({"2:1+2 error Kommentar Ende Zeichen wurde nicht gefunden!",
                          "5:10+2 error Kommentar Ende Zeichen wurde nicht gefunden!",
                          "7:3+1 error SZ Überprüfungsaktion erwartet!"}));
}

void tst_system_check::places_are_those_of_the_text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const QString syntax = " error Syntax Fehler!";
    const QString no_bound = " error Schlüsselwörter MAX,MIN oder ; erwartet!";
    const QString no_item = " error SZ Überprüfungsaktion erwartet!";
    // clang-format off
    QTest::newRow("indented")               << "AL:\n \t SZ EC99; \n"                     << "2:7+4" + syntax;
    QTest::newRow("Windows line ends")      << "AL:\r\nSZ EC99;\r\nSZ EC01;\r\n"          << "2:4+4" + syntax;
    QTest::newRow("no line end")            << "AL: SZ;"                                  << "1:7+1" + no_item;
    QTest::newRow("line comment")           << "AL:\nSZ EC99; // EC99\n"                  << "2:4+4" + syntax;
    QTest::newRow("behind a comment")       << "AL:\n/* EC99 */ SZ EC99;\n"               << "2:15+4" + syntax;
    QTest::newRow("before a comment")       << "AL:\nSZ EC99; /* EC99 */\n"               << "2:4+4" + syntax;
    QTest::newRow("comment begins alike")   << "AL:\nSZ /* EC99 */ EC99;\n"               << "2:15+4" + syntax;
    QTest::newRow("comment in the middle")  << "AL:\nSZ EC01 /* x */ EC02;\n"             << "2:1+21" + no_bound;
    QTest::newRow("comment ends in line")   << "AL: /*\nSZ EC99 // */ SZ EC99;\n"         << "2:18+4" + syntax;
    QTest::newRow("the same beside it")     << "AL: /*\nS */ SZ;\n"                       << "2:8+1" + no_item;
    QTest::newRow("and a line comment")     << "AL: /*\n */ SZ EC99; // SZ\n"             << "2:8+4" + syntax;
    QTest::newRow("end without beginning")  << "AL:\nSZ EC01 */;\n"                       << "2:9+2" + syntax;
    QTest::newRow("second on its line")     << "AL:\nSZ EC01; SZ EC01 EC02;\n"            << "2:10+13" + no_bound;
    QTest::newRow("same text before it")    << "AL: SZ; VE: SZ;\n"                        << "1:7+1" + no_item + "\n1:15+1" + no_item;
    QTest::newRow("cut off at the end")     << "AL: STOP; STOP; SZ"                       << "1:17+2" + no_item;
    QTest::newRow("blanks are in the mark") << "AL:\nIF GZ MESSAGE ( 'a' ) IN EC01;\n"    << "2:1+30 error Schlüsselwörter IN oder NOT IN erwartet!";
    QTest::newRow("mark over two lines")    << "AL:\nIF GZ EC01\nTHEN STOP;\n"            << "2:7+4 error Schlüsselwörter IN oder NOT IN erwartet!";
    QTest::newRow("mark in a later line")   << "AL:\nIF GZ IN EC01 THEN\nSZ;\n"           << "2:1+18" + no_item;
    // clang-format on
}

void tst_system_check::places_are_those_of_the_text()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(told(checked(text)), expected.split('\n'));
}

void tst_system_check::what_is_hardly_meant_is_told_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const QString& text, const QStringList& expected) {
        QTest::newRow(name) << text << expected;
    };
    const QString lost_end = " warning Ohne Strichpunkt am Ende geht diese Anweisung verloren!";
    const QString lost_beside =
        " warning Ohne Strichpunkt in derselben Zeile geht dieser Text verloren!";
    const QString unread = " warning Hinter dem Setz Jeton fehlt der Strichpunkt, dieser Text wird "
                           "nicht gelesen!";
    const QString swallowed = " warning Hinter der MESSAGE fehlt der Strichpunkt, dieser Text wird "
                              "ein Teil von ihr!";
    const QString second = " warning Hinter dem ersten Strichpunkt wird nichts gelesen, dieser "
                           "Text geht verloren!";
    const QString no_restart = " hat hier keine Wirkung, gemeint ist RESTART(N) oder RESTART(F)!";
    const QString no_bound =
        " hat hier keine Wirkung, es begrenzt nur eine Änderung der Einheit wie EI1+1!";
    const QString no_section = " beginnt keine Sektion, es muss groß geschrieben werden!";
    const QString torn = " in einer MESSAGE reißt die Anweisung auseinander!";
    const QString no_action = " error Keine gültige Aktion gefunden!";
    const QString comma =
        " warning Ein ',' im Text einer MESSAGE trennt Argumente, der Text endet hier!";
    const QString place_0 = " warning UZ wählt hier immer den Platz 0, den es beim Jeton Typ %1 "
                            "nicht gibt!";
    const QString no_option = " warning Die Option %1 hat keine Wirkung!";
    const QString last_comma = " warning Die Aufzählung endet mit einem Komma!";
    const QString supply = " warning Für %1 sind bei der ersten Ausführung zu wenige Coups "
                           "gefallen (%2, Tipp: siehe Verzögerungsbedingungen)!";
    // clang-format off
    row("no end in the file",       "AL:\nSZ EC01",                       {"2:1+7" + lost_end});
    row("no end over two lines",    "AL:\nSZ EC01; \n SZ EI1+1\nMAX 5",   {"3:2+8" + lost_end});
    row("no end before a section",  "AL:\nSZ EC01\nVE:\n",                {"2:1+7" + lost_end});
    row("beside a section",         "AL: SZ EC01\n",                      {"1:5+7" + lost_beside});
    row("before a section",         "AL:\nSZ EC01 VE:\n",                 {"2:1+7" + lost_beside});
    row("begun beside a section",   "AL: IF CO01(1)\nTHEN STOP;\n",       {"1:5+10" + lost_beside, "2:1+10" + no_action});
    row("beside the last section",  "AL: STOP; VE: SZ EC01",              {"1:15+7" + lost_beside});
    row("behind a target",          "ST: STOP;\nAL:\nIF UZ(9/H) IN DZ RESULT SZ DZ\nSZ EC01;\n", {"4:1+7" + unread});
    row("beside a target",          "ST: STOP;\nAL:\nIF UZ(9/H) IN DZ RESULT SZ DZ EC01;\n",     {"3:31+4" + unread});
    row("message and message",      "AL:\nMESSAGE('a')\nMESSAGE('b');\n", {"3:1+12" + swallowed});
    row("message and set",          "AL:\nMESSAGE(GZ)\nSZ CO01(+1);\n",   {"3:1+11" + swallowed});
    row("second statement",         "AL:\nSZ EC01; SZ EC02\n",            {"2:10+7" + second});
    row("second, other section",    "AL: SZ EC01; STOP\nSZ EC02;",        {"1:14+4" + second});
    row("restart",                  "AL:\nIF CO01(1) THEN RESTART;\n",    {"2:17+7 warning RESTART" + no_restart});
    row("restart, lower case",      "AL:\nIF CO01(1)\nthen restart ;\n",  {"3:6+7 warning restart" + no_restart});
    row("restart with a comma",     "AL:\nRESTART ( , );\n",              {"2:1+13 warning RESTART(,)" + no_restart});
    row("bound of a jeton",         "AL:\nSZ EI1+1,EC01 MAX 5;\n",        {"2:15+5 warning MAX" + no_bound});
    row("bound of a counter",       "AL:\nSZ CO01(+1) min  5 THEN SZ EC01;\n", {"2:13+6 warning MIN" + no_bound});
    row("bound of options",         "ST:\nSZ STMAX(A) MAX 3;\n",          {"2:13+5 warning MAX" + no_bound});
    row("bound behind THEN",        "AL:\nIF CO01(1) THEN SZ PT1\nMAX 3;\n", {"3:1+5 warning MAX" + no_bound});
    row("lower case section",       "AL:\nSZ EC01;\nve:\nSZ EC02;\n",     {"3:1+3 warning ve:" + no_section});
    row("mixed case, with code",    "AL: STOP; Gw: STOP;\n",              {"1:11+3 warning Gw:" + no_section});
    row("lower case in front",      "st: STOP;\n",                        {"1:1+9 error Code ohne Sektion nicht zuflässig!", "1:1+3 warning st:" + no_section});
    row("colon in a message",       "AL:\nMESSAGE('a:b');\n",             {"2:11+1 warning Ein ':'" + torn, "2:12+4" + no_action});
    row("semicolon in a message",   "AL:\nMESSAGE('a;b');\n",             {"2:1+11" + no_action, "2:11+1 warning Ein ';'" + torn, "2:12+4" + no_action});
    row("bar in a message",         "AL:\nMESSAGE('a|b');\n",             {"2:11+1 warning Mit einem '|' in der MESSAGE wird die Anweisung nicht übersetzt!"});
    row("comma in a message",       "AL:\nMESSAGE(GZ,'a, b, c','d,');\n", {"2:14+1" + comma, "2:24+1" + comma});
    row("least hit",                "ST: STOP;\nVE:\nIF UZ(5/N) IN EC RESULT SZ EC;\n",    {"3:4+7" + place_0.arg("EC")});
    row("least hit, blanks",        "ST: STOP;\nAL:\nIF UZ ( 5 / n ) IN ch RESULT SZ ch;\n", {"3:4+12" + place_0.arg("ch")});
    row("fewer than",               "ST: STOP;\nAL:\nIF UZ(5/<2) IN TP RESULT SZ TP;\n",   {"3:4+8" + place_0.arg("TP")});
    row("at most",                  "ST: STOP;\nAL:\nIF UZ(5/<=2/F) IN CA RESULT SZ CA;\n", {"3:4+11" + place_0.arg("CA")});
    row("option L",                 "ST:\nSZ STMAX(A, L ,C(5));\n",       {"2:13+1" + no_option.arg("L")});
    row("option of no meaning",     "ST:\nSZ STMAX(s,X(5));\n",           {"2:10+1" + no_option.arg("s"), "2:12+4" + no_option.arg("X(5)")});
    row("comma at the end",         "AL:\nSZ EC01,EC02,;\n",              {"2:13+1" + last_comma});
    row("comma and a blank",        "AL:\nSZ CO01(0) , ;\n",              {"2:12+1" + last_comma});
    row("comma before a bound",     "AL:\nSZ EI1+1,MAX 5 THEN SZ EC01,;\n", {"2:9+1" + last_comma, "2:28+1" + last_comma});
    row("last number, no start",    "AL:\nIF GZ IN EC01 THEN STOP;\n",    {"2:4+2" + supply.arg("GZ", "0 von 1")});
    row("last number, at the start","ST:\nIF GZ IN EC01 THEN STOP;\n",    {"2:4+2" + supply.arg("GZ", "0 von 1")});
    row("number before it",         "ST: STOP;\nAL:\nIF vz IN EC01 THEN STOP;\n", {"3:4+2" + supply.arg("vz", "1 von 2")});
    row("delay too short by one",   "ST: SZ STMAX(I(10));\nAL:\nIF V 9 IN EC01 THEN STOP;\n", {"3:4+3" + supply.arg("V9", "11 von 12")});
    row("behind the delay",         "ST: SZ STMAX(I(3)); IF V1 IN EC01 THEN STOP;\n", {"1:24+2" + supply.arg("V1", "3 von 4")});
    row("in front of the delay",    "ST: IF GZ IN EC01 THEN STOP; SZ STMAX(I(3));\n", {"1:8+2" + supply.arg("GZ", "0 von 1")});
    row("only the first delay",     "ST: SZ STMAX(I(0)); SZ STMAX(I(9));\nVE:\nIF VZ IN EC01 THEN STOP;\n", {"3:4+2" + supply.arg("VZ", "1 von 2")});
    row("greatest need of a chain", "ST: STOP;\nAL:\nIF VZ IN EC01 AND IF V2 IN EC01 AND IF V0 IN EC01 THEN STOP;\n", {"3:22+2" + supply.arg("V2", "1 von 5")});
    row("a guard too late",         "ST: STOP;\nAL:\nIF VZ IN EC01 AND IF CO01(>5) THEN STOP;\n", {"3:4+2" + supply.arg("VZ", "1 von 2")});
    row("count, delay too short",   "ST: SZ STMAX(I(5));\nAL:\nIF RZ(7/>2) IN EC01 THEN STOP;\n", {"3:4+8" + supply.arg("RZ(7/>2)", "6 von 7")});
    row("count holds with none",    "AL:\nIF RZ(7/<2) IN EC01 THEN STOP;\n", {"2:4+8" + supply.arg("RZ(7/<2)", "0 von 7")});
    row("signal with none",         "AL:\nIF UZ(7/H) IN PL RESULT SZ PL;\n", {"2:4+7" + supply.arg("UZ(7/H)", "0 von 7")});
    // clang-format on
}

void tst_system_check::what_is_hardly_meant_is_told()
{
    QFETCH(QString, text);
    QTEST(told(checked(text)), "expected");
}

void tst_system_check::what_is_meant_is_not_told_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QString& text) { QTest::newRow(name) << text; };
    // clang-format off
    row("end in a later line",          "AL:\nSZ EC01\n;\n");
    row("end got by the cut",           "AL: STOP; STOP; SZ EC01\n");
    row("comment behind the end",       "AL:\nSZ EC01; // SZ EC02\n");
    row("only a section",               "AL:");
    row("sections on one line",         "ST: VE: GW: AL: STOP;\n");
    row("statement beside a section",   "AL: SZ EC01; VE: SZ EC02;\n");
    row("blank behind a target",        "ST: STOP;\nAL:\nIF UZ(9/H) IN DZ RESULT SZ DZ\n ;\nSZ EC01;\n");
    row("two messages on a line",       "AL: MESSAGE('a'); MESSAGE('b');\n");
    row("bracket in a message",         "AL:\nMESSAGE('a) SZ (b');\n");
    row("apostrophe in a message",      "AL:\nMESSAGE('it's (well) done');\n");
    row("many arguments",               "AL:\nMESSAGE('a b',GZ, CO01 ,AG(1..3),'c');\n");
    row("word MESSAGE in a message",    "AL:\nMESSAGE('no MESSAGE (a)');\n");
    row("restart of its own",           "AL:\nRESTART;\n");
    row("restart with a letter",        "AL:\nIF CO01(1) THEN RESTART(N);\nIF CO01(2) THEN RESTART ( F );\n");
    row("bound of a unit",              "AL:\nSZ EC01,EI1*2 MAX 8 THEN SZ EC02;\nSZ ei1/2 MIN 1;\n");
    row("bound of a selected unit",     "AL:\nSZ EI12 MAX 8;\n");
    row("upper case section",           "AL:\nSZ EC01;\nVE:\nSZ EC02;\n");
    row("least hit with place 0",       "ST: STOP;\nAL:\nIF UZ(5/N) IN PL RESULT SZ PL;\nIF UZ(5/<2) IN FI RESULT SZ FI;\n");
    row("most hit",                     "ST: STOP;\nAL:\nIF UZ(5/H) IN EC RESULT SZ EC;\n");
    row("at least",                     "ST: STOP;\nAL:\nIF UZ(5/>=2) IN EC RESULT SZ EC;\nIF UZ(5/2) IN DZ RESULT SZ DZ;\n");
    row("every option",                 "ST:\nSZ STMAX(A,S,H,E,P,R,N,I(1),V(1),G(1),C(1));\n");
    row("reset of counters",            "ST:\nSZ STMAX(S(ST1(CO05),ST2(CO06)));\n");
    row("comma within a list",          "AL:\nSZ EC01,,EC02;\nSZ ,EC01;\nSZ CO01(0) ,EC01;\n");
    row("comma in a message's list",    "AL:\nMESSAGE(GZ,);\n");
    row("last number behind a start",   "ST: STOP;\nAL:\nIF GZ IN EC01 THEN STOP;\n");
    row("loss section needs no start",  "VE:\nIF GZ IN EC01 THEN STOP;\n");
    row("delay long enough",            "ST: SZ STMAX(I(11));\nAL:\nIF V9 IN EC01 THEN STOP;\n");
    row("behind the delay, enough",     "ST: SZ STMAX(I(3)); IF V0 IN EC01 THEN STOP;\n");
    row("delay under a condition",      "ST: IF CO01(0) THEN SZ STMAX(A,I(3));\nAL:\nIF V1 IN EC01 THEN STOP;\n");
    row("guarded by a counter",         "AL:\nIF CO01(>5) AND IF V1 IN EC01 THEN STOP;\n");
    row("guarded by a table",           "ST: STOP;\nAL:\nIF ST1(5) AND IF V1 IN EC01 THEN STOP;\n");
    row("bet of the round before",      "AL:\nIF V5 IN AG(1) THEN STOP;\n");
    row("count waits",                  "ST: STOP;\nAL:\nIF RZ(9/<2) IN EC01 THEN STOP;\nIF UZ(9/H) IN PL RESULT SZ PL;\n");
    row("count fails with none",        "AL:\nIF RZ(9/>2) IN EC01 THEN STOP;\n");
    row("count, delay long enough",     "ST: SZ STMAX(I(5));\nAL:\nIF RZ(6/2) IN EC01 THEN STOP;\n");
    // clang-format on
}

void tst_system_check::what_is_meant_is_not_told()
{
    QFETCH(QString, text);
    QCOMPARE(told(checked(text)), QStringList());
}

void tst_system_check::findings_are_sorted()
{
    const QVector<system_finding> findings = checked("AL: SZ EC01,; SZ XX;\n"
                                                     "VE:\n"
                                                     "IF CO01(1) THEN RESTART; SZ;\n"
                                                     "ST: SZ EC01 EC02; SZ EC01,;\n"
                                                     "GW: SZ EC01 EC02;\n");
    QCOMPARE(findings.size(), 7);
    for (int i = 1; i < findings.size(); ++i) {
        const system_finding& before = findings.at(i - 1);
        const system_finding& behind = findings.at(i);
        QVERIFY(before.line < behind.line ||
                (before.line == behind.line && before.column <= behind.column));
    }
}

void tst_system_check::examples_have_no_finding_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(ZARVELLO_SOURCE_DIR "/examples/system");
    const QStringList systems = folder.entryList({"*.syf"});
    QVERIFY(systems.size() >= 8);
    for (const QString& system : systems)
        QTest::newRow(qPrintable(system)) << folder.filePath(system);
}

void tst_system_check::examples_have_no_finding()
{
    QFETCH(QString, path);
    const int table = path.contains("american") ? american : french;
    QCOMPARE(told(checked(read_text(path), table)), QStringList());
}

void tst_system_check::systems_that_run_have_no_error_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(ZARVELLO_SOURCE_DIR "/tests/runs");
    QDirIterator systems(folder.path(), {"*.syf"}, QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    for (; systems.hasNext(); ++count) {
        const QString path = systems.next();
        QTest::newRow(qPrintable(folder.relativeFilePath(path))) << path;
    }
    QVERIFY(count > 40);
}

void tst_system_check::systems_that_run_have_no_error()
{
    QFETCH(QString, path);
    const system_pattern patterns(table_of(QFileInfo(path).dir().filePath("settings.ini")));
    const QString text = read_text(path);
    QVERIFY(!text.isEmpty());
    const run_faults faults = run_steps(patterns).faults_of(text);
    QStringList expected = faults.of_reading + faults.of_lines + faults.of_statements;
    QStringList errors;
    for (const system_finding& finding : check_system_text(text, patterns))
        if (finding.severity == kind::error) errors.append(fault_line(finding.line, finding.text));
    QCOMPARE(errors, expected);
    const bool is_meant_to_fail =
        path.contains("message_torn_at_its_colon") || path.endsWith("four_systems/system_4.syf");
    QCOMPARE(errors.isEmpty(), !is_meant_to_fail);
}

/// Texts that were once systems: pieces of them cut out, doubled and mixed with signs of the
/// grammar.
class damaged_texts
{
public:
    damaged_texts()
    {
        for (const char* folder :
             {"/examples/system", "/tests/runs", "/tests/fuzz/corpus/system_file"}) {
            QDirIterator systems(ZARVELLO_SOURCE_DIR + QString(folder),
                                 {"*.syf"},
                                 QDir::Files,
                                 QDirIterator::Subdirectories);
            while (systems.hasNext())
                sound.append(read_text(systems.next()));
        }
        std::sort(sound.begin(), sound.end());
    }

    int count() const { return sound.size(); }

    QString next()
    {
        static const QStringList signs = {
            ";",      ":",      ",",    "|",       "'",      "(",
            ")",      "\n",     "/*",   "*/",      "//",     " ",
            "\r\n",   "AL:",    "ve:",  "SZ ",     "THEN ",  "IF ",
            "EC01",   "RESULT", "PL37", "MESSAGE", " MAX 5", "RESTART",
            "STMAX(", "I(3)",   "\t",   "1234567", "ß",      QString(QChar(0)),
            "AND ",   "UZ(5/N)"};
        QString text = sound.at(below(sound.size())).left(600);
        for (int damages = 1 + below(6); damages > 0; --damages) {
            const int place = below(text.size() + 1);
            const int length = below(12);
            switch (below(4)) {
            case 0:
                text.remove(place, length);
                break;
            case 1:
                text.insert(place, text.mid(below(text.size() + 1), 4 * length));
                break;
            default:
                text.insert(place, signs.at(below(signs.size())));
                break;
            }
        }
        return text;
    }

private:
    int below(int end) { return int(random() % unsigned(end)); }

    QStringList sound;
    std::mt19937 random{20240607};
};

void tst_system_check::damaged_texts_have_the_errors_of_the_run()
{
    const system_pattern patterns(french);
    run_steps steps(patterns);
    damaged_texts texts;
    QVERIFY(texts.count() > 60);
    int compared_whole = 0;
    for (int round = 0; round < 1000; ++round) {
        const QString text = texts.next();
        const QVector<system_finding> findings = check_system_text(text, patterns);
        const QStringList lines = text.split('\n');
        QStringList errors;
        for (const system_finding& finding : findings) {
            QVERIFY2(finding.line >= 1 && finding.line <= lines.size(), qPrintable(text));
            QVERIFY2(finding.column >= 1 && finding.length >= 0, qPrintable(text));
            QVERIFY2(finding.column - 1 + finding.length <= lines.at(finding.line - 1).size(),
                     qPrintable(text));
            QVERIFY2(!finding.text.isEmpty(), qPrintable(text));
            if (finding.severity == kind::error)
                errors.append(fault_line(finding.line, finding.text));
        }
        const run_faults faults = steps.faults_of(text);
        for (const QString& fault : faults.of_reading + faults.of_lines)
            QVERIFY2(errors.removeAll(fault) > 0, qPrintable(fault + '\n' + text));
        if (!faults.of_lines.isEmpty()) continue;
        ++compared_whole;
        // Comments that were opened earlier than the one told by the run are told as well.
        if (!faults.of_reading.isEmpty()) {
            const QString message = faults.of_reading.first().section(' ', 1);
            errors = errors.filter(QRegularExpression("^\\d+ (?!" + message + ")"));
        }
        errors.sort();
        QVERIFY2(errors == faults.of_statements,
                 qPrintable(errors.join('\n') + "\n--\n" + faults.of_statements.join('\n') +
                            "\n--\n" + text));
    }
    QVERIFY(compared_whole > 100);
}

void tst_system_check::long_texts_take_no_longer_per_character_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QString& begin, const QString& part) {
        QTest::newRow(name) << begin + part.repeated(300000 / part.size());
    };
    row("faulty lines", "AL:\n", "SZ EC99;\n");
    row("faulty parts of a line", "AL: ", "SZ EC99; ");
    row("faulty statements of a line", "AL: ", "SZ EC01 EC02; ");
    row("open comments", "AL:\n", "/*\n");
    row("open messages", "AL:\n", "MESSAGE(");
    row("messages", "AL: ", "MESSAGE('a:b;c'); ");
    row("quotes", "AL: MESSAGE(", "'a,");
    row("sections", "AL:\n", "al: ");
    row("a chain of many lines", "AL:\nIF VZ IN EC01\n", "AND IF V9 IN EC01\n");
    row("items of many lines", "AL:\nSZ EC01", ",\nEC01");
    row("an open end", "AL:\n", "SZ EC01\n");
    row("options", "ST: SZ STMAX(L", ",L");
    row("colons", "AL:\n", ":");
    row("zero characters", "AL:\n", QString(QChar(0)));
}

void tst_system_check::long_texts_take_no_longer_per_character()
{
    QFETCH(QString, text);
    QVERIFY(!checked(text).isEmpty());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_check>(argc, argv);
}

#include "tst_system_check.moc"
