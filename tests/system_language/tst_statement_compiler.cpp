#include "statement_compiler.h"
#include "system_pattern.h"
#include "test_box.h"

static constexpr int french = 0;
static constexpr int american = 1;
static constexpr int line = 1; // mark modes
static constexpr int token = 2;

class tst_statement_compiler : public QObject
{
    Q_OBJECT

private slots:
    void a_statement_becomes_its_tokens_data();
    void a_statement_becomes_its_tokens();
    void a_fault_is_told_with_its_place_data();
    void a_fault_is_told_with_its_place();
    void the_table_decides_the_jetons();
    void a_result_is_cleared_of_what_was_before();
    void what_is_not_the_compilers_stays();
    void the_text_may_be_a_field_of_the_result();
    void one_compiler_serves_many_statements();
    void chains_of_any_length_are_compiled();
    void a_fault_at_the_end_of_a_long_chain_is_found();
    void long_statements_take_no_longer_per_token_data();
    void long_statements_take_no_longer_per_token();
};

static sys_result_info compiled(const QString& statement, int table_type = french)
{
    const system_pattern patterns(table_type);
    sys_result_info result;
    statement_compiler(patterns).compile_statement(result, statement);
    return result;
}

static QString repeated(const QString& part, int length)
{
    return part.repeated(length / part.size());
}

void tst_statement_compiler::a_statement_becomes_its_tokens_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("command_text");
    // clang-format off
    // set
    QTest::newRow("two jetons")             << "SZ EC01,EC02;"                       << "SZ|EC01|EC02";
    QTest::newRow("bound and items")        << "SZ EI1+1 MAX 100 THEN SZ EC01;"      << "SZ|EI1+1|MAX|100|THEN|SZ|EC01";
    QTest::newRow("bound alone")            << "SZ EI1*2 MAX 64;"                    << "SZ|EI1*2|MAX|64";
    QTest::newRow("lower bound")            << "SZ EI1/2 MIN 1;"                     << "SZ|EI1/2|MIN|1";
    QTest::newRow("bound of six digits")    << "SZ EI1+1 MAX 123456;"                << "SZ|EI1+1|MAX|123456";
    QTest::newRow("bound glued")            << "SZ EI1+1 MAX100THENSZEC01;"          << "SZ|EI1+1|MAX|100|THEN|SZ|EC01";
    QTest::newRow("bound, many items")      << "SZ EI1+1 MAX 8 THEN SZ EC01,EC02,CO01(0);" << "SZ|EI1+1|MAX|8|THEN|SZ|EC01|EC02|CO01(0)";
    QTest::newRow("bound behind a jeton")   << "SZ EC01 MAX 5;"                      << "SZ|EC01|MAX|5";
    QTest::newRow("bound behind unit value")<< "SZ EI1(5) MAX 3;"                    << "SZ|EI1(5)|MAX|3";
    QTest::newRow("blanks of a form")       << "SZ EI1 + 1 ;"                        << "SZ|EI1+1";
    QTest::newRow("blank before comma")     << "SZ EI1(5) ,EC02;"                    << "SZ|EI1(5)|EC02";
    QTest::newRow("comma and nothing")      << "SZ EC01, ;"                          << "SZ|EC01";
    QTest::newRow("comma first")            << "SZ ,EC01;"                           << "SZ|EC01";
    QTest::newRow("double comma")           << "SZ EC01,,EC02;"                      << "SZ|EC01|EC02";
    QTest::newRow("no blank at all")        << "SZEC01;"                             << "SZ|EC01";
    QTest::newRow("table")                  << "SZ ST1 (1 , 2,4 );"                  << "SZ|ST1(1,2,4)";
    QTest::newRow("options")                << "SZ STMAX(I(12), C(500), V(300), G(200), S);" << "SZ|STMAX(I(12),C(500),V(300),G(200),S)";
    QTest::newRow("options and a jeton")    << "SZ STMAX(A),EC01;"                   << "SZ|STMAX(A)|EC01";
    QTest::newRow("options are greedy")     << "SZ STMAX(S(ST1(CO05))),ST1(1,2);"    << "SZ|STMAX(S(ST1(CO05))),ST1(1,2)";
    QTest::newRow("signal in a set")        << "SZ UZ(5/2);"                         << "SZ|UZ(5/2)";
    QTest::newRow("rest is not read")       << "SZ EC01; SZ EC02"                    << "SZ|EC01";
    // single words
    QTest::newRow("stop")                   << "STOP;"                               << "STOP|";
    QTest::newRow("stop, lower case")       << "stop ;"                              << "STOP|";
    QTest::newRow("stop, rest is not read") << "STOP; x"                             << "STOP|";
    QTest::newRow("restart")                << "RESTART;"                            << "RESTART|";
    QTest::newRow("restart full")           << "RESTART(F);"                         << "RESTART(F)|";
    QTest::newRow("restart, lower case")    << "restart ( n );"                      << "restart(n)|";
    QTest::newRow("restart with a comma")   << "RESTART(,);"                         << "RESTART(,)|";
    QTest::newRow("message on")             << "MESSAGE ON;"                         << "MESSAGEON|";
    QTest::newRow("message off")            << "MESSAGE OFF;"                        << "MESSAGEOFF|";
    QTest::newRow("message")                << "MESSAGE ( 'a b' , V0 );"             << "MESSAGE('a b',V0)|";
    QTest::newRow("message, last bracket")  << "MESSAGE('a)b');"                     << "MESSAGE('a)b')|";
    QTest::newRow("two messages are one")   << "MESSAGE('a'); x MESSAGE('b');"       << "MESSAGE('a');xMESSAGE('b')|";
    // conditions
    QTest::newRow("counter")                << "IF CO01 ( >= 3 ) THEN SZ CO01(0);"   << "IF|CO01(>=3)|THEN|SZ|CO01(0)";
    QTest::newRow("counter, bare number")   << "IF CO01(3) THEN STOP;"               << "IF|CO01(3)|THEN|STOP";
    QTest::newRow("counter with a plus")    << "IF CO01(+5) THEN STOP;"              << "IF|CO01(+5)|THEN|STOP";
    QTest::newRow("counters unequal")       << "IF CO01(<>CO02) THEN STOP;"          << "IF|CO01(<>CO02)|THEN|STOP";
    QTest::newRow("table value")            << "IF ST1(4) THEN STOP;"                << "IF|ST1(4)|THEN|STOP";
    QTest::newRow("options as a test")      << "IF STMAX(A) THEN STOP;"              << "IF|STMAX(A)|THEN|STOP";
    QTest::newRow("a form that is no test") << "IF EI1(5) IN EC01 THEN STOP;"        << "IF|EI1(5)|IN|EC01|THEN|STOP";
    QTest::newRow("two tests")              << "IF V0 NOT IN EC03 AND IF GZ IN EC03 THEN STOP;" << "IF|V0|NOTIN|EC03|AND|IF|GZ|IN|EC03|THEN|STOP";
    QTest::newRow("three tests")            << "IF GZ IN EC01 AND IF CO01(1) AND IF VZ IN AG(3) THEN SZ EC01;" << "IF|GZ|IN|EC01|AND|IF|CO01(1)|AND|IF|VZ|IN|AG(3)|THEN|SZ|EC01";
    QTest::newRow("blanks in NOT IN, V3")   << "IF V 3 NOT   IN EC03 THEN STOP;"     << "IF|V3|NOTIN|EC03|THEN|STOP";
    QTest::newRow("bet of the round before")<< "IF GZ IN AG ( 3 ) THEN RESTART ( N );" << "IF|GZ|IN|AG(3)|THEN|RESTART(N)";
    QTest::newRow("restart behind THEN")    << "IF GZ IN EC01 THEN RESTART;"         << "IF|GZ|IN|EC01|THEN|RESTART";
    QTest::newRow("message behind THEN")    << "IF GZ IN EC01 THEN MESSAGE('x y');"  << "IF|GZ|IN|EC01|THEN|MESSAGE('x y')";
    QTest::newRow("bound behind THEN")      << "IF GZ IN EC01 THEN SZ EI1*2 MAX 8 THEN SZ STMAX(S);" << "IF|GZ|IN|EC01|THEN|SZ|EI1*2|MAX|8|THEN|SZ|STMAX(S)";
    QTest::newRow("case")                   << "if gz not in ec01 then sz ec01 max 5 then sz ec02;" << "IF|gz|notin|ec01|THEN|SZ|ec01|MAX|5|THEN|SZ|ec02";
    QTest::newRow("two lines joined")       << "IF V0 IN EC03 AND IF VZ NOT IN EC03 THEN SZ EI1+0,EC03;" << "IF|V0|IN|EC03|AND|IF|VZ|NOTIN|EC03|THEN|SZ|EI1+0|EC03";
    // repetitions and signals
    QTest::newRow("signal")                 << "IF UZ(30/H) IN EC RESULT SZ EC;"     << "IF|UZ(30/H)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("signal, no ;")           << "IF UZ(30/H) IN EC RESULT SZ EC"      << "IF|UZ(30/H)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("signal, rest not read")  << "IF UZ(30/H) IN EC RESULT SZ EC AND x" << "IF|UZ(30/H)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("signal as last link")    << "IF GZ IN EC01 AND IF UZ(9/N) IN DZ RESULT SZ DZ;" << "IF|GZ|IN|EC01|AND|IF|UZ(9/N)|IN|DZ|RESULT|SZ|DZ";
    QTest::newRow("signal, other target")   << "IF UZ(9/H) IN EC RESULT SZ GS;"      << "IF|UZ(9/H)|IN|EC|RESULT|SZ|GS";
    QTest::newRow("signal, no condition")   << "IF UZ(5/) IN EC RESULT SZ EC;"       << "IF|UZ(5/)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("signal, blanks")         << "IF UZ ( 12 / >= 3 ) IN EC RESULT SZ EC;" << "IF|UZ(12/>=3)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("signal, bare value")     << "IF UZ(5/2) IN EC RESULT SZ EC;"      << "IF|UZ(5/=2)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("signal, third part")     << "IF UZ(5/2/F) IN EC RESULT SZ EC;"    << "IF|UZ(5/=2/F)|IN|EC|RESULT|SZ|EC";
    QTest::newRow("repetitions")            << "IF RZ(5/>2) IN EC01 THEN STOP;"      << "IF|RZ(5/>2)|IN|EC01|THEN|STOP";
    QTest::newRow("repetitions, bare value")<< "IF RZ(5/2) IN EC01 THEN STOP;"       << "IF|RZ(5/=2)|IN|EC01|THEN|STOP";
    QTest::newRow("the same, lower case")   << "IF rz ( 5 / 2 ) IN EC01 THEN STOP;"  << "IF|rz(5/=2)|IN|EC01|THEN|STOP";
    QTest::newRow("the same, has its =")    << "IF RZ(5/=2) IN EC01 THEN STOP;"      << "IF|RZ(5/=2)|IN|EC01|THEN|STOP";
    QTest::newRow("the same, second link")  << "IF CO01(1) AND IF RZ(5/2) IN EC01 THEN STOP;" << "IF|CO01(1)|AND|IF|RZ(5/=2)|IN|EC01|THEN|STOP";
    QTest::newRow("repetitions, NOT IN")    << "IF RZ(5/<2) NOT IN EC01 THEN STOP;"  << "IF|RZ(5/<2)|NOTIN|EC01|THEN|STOP";
    // clang-format on
}

void tst_statement_compiler::a_statement_becomes_its_tokens()
{
    QFETCH(QString, statement);
    const sys_result_info result = compiled(statement);
    QCOMPARE(result.error_text, QString());
    QCOMPARE(result.status, 2);
    QTEST(result.command_text, "command_text");
}

void tst_statement_compiler::a_fault_is_told_with_its_place_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("error_text");
    QTest::addColumn<int>("mark_mode");
    QTest::addColumn<QString>("mark_text");

    const QString no_action = "Keine gültige Aktion gefunden!";
    const QString no_end = "Strichpunkt erwartet!";
    const QString no_item = "SZ Überprüfungsaktion erwartet!";
    const QString no_test = "IF Überprüfungsaktion erwartet!";
    const QString no_in = "Schlüsselwörter IN oder NOT IN erwartet!";
    const QString no_jeton = "Jeton erwartet!";
    const QString no_consequence = "Schlüsselwort AND oder THEN erwartet!";
    const QString no_if = "Schlüsselwort IF erwartet!";
    const QString and_at_uz = "Schlüsselwort AND bei UZ nicht erlaubt!";
    const QString then_at_uz = "Schlüsselwort THEN bei UZ nicht erlaubt!";
    const QString result_not_at_uz = "Schlüsselwort RESULT nicht erlaubt!";
    const QString no_sz = "Schlüsselwort SZ erwartet!";
    const QString no_bound = "Schlüsselwörter MAX,MIN oder ; erwartet!";
    const QString no_number = "Zahl mit max. 6 Stellen erwartet!";
    const QString no_then = "Schlüsselwort THEN erwartet!";
    const QString no_bound_item = "Aktion erwartet!";
    const QString no_target_counter = "Counter Syntax falsch!";
    const QString no_direct_jeton =
        "Direkte Jeton Setzung nicht erlaubt (nur Jeton Typen (EC,PL) sind gültig)!";
    // clang-format off
    // the statement
    QTest::newRow("empty")                    << ""                                     << no_action        << line  << "";
    QTest::newRow("only its end")             << ";"                                    << no_action        << line  << ";";
    QTest::newRow("no keyword")               << "CO01(5);"                             << no_action        << line  << "CO01(5);";
    QTest::newRow("torn message")             << "b');"                                 << no_action        << line  << "b');";
    QTest::newRow("blank in front")           << " SZ EC01;"                            << no_action        << line  << " SZ EC01;";
    QTest::newRow("MESSAGE of no form")       << "MESSAGE;"                             << no_action        << line  << "MESSAGE;";
    QTest::newRow("MESSAGE, wrong word")      << "MESSAGE AN;"                          << no_action        << line  << "MESSAGE AN;";
    QTest::newRow("STOP and more")            << "STOP x;"                              << no_end           << token << "x;";
    QTest::newRow("RESTART, wrong letter")    << "RESTART (G);"                         << no_end           << token << "(G);";
    QTest::newRow("RESTART, longer word")     << "RESTARTX;"                            << no_end           << token << "X;";
    QTest::newRow("MESSAGE and more")         << "MESSAGE ON x;"                        << no_end           << token << "x;";
    QTest::newRow("no end at all")            << "STOP"                                 << no_end           << token << "";
    // set
    QTest::newRow("no item")                  << "SZ;"                                  << no_item          << token << ";";
    QTest::newRow("only a comma")             << "SZ ,;"                                << no_item          << token << ";";
    QTest::newRow("unknown item")             << "SZ OP;"                               << no_item          << token << "OP;";
    QTest::newRow("subtraction of a unit")    << "SZ EI1-5;"                            << no_item          << token << "EI1-5;";
    QTest::newRow("tab in an item")           << "SZ EI1\t(5);"                         << no_item          << token << "EI1\t(5);";
    QTest::newRow("jeton of the other table") << "SZ PL37;"                             << no_item          << token << "PL37;";
    QTest::newRow("no comma")                 << "SZ EC01 EC02;"                        << no_bound         << line  << "EC02;";
    QTest::newRow("blank behind a comma")     << "SZ EC01, EC02;"                       << no_bound         << line  << "EC02;";
    QTest::newRow("blank before a comma")     << "SZ EC01 ,EC02;"                       << no_bound         << line  << ",EC02;";
    QTest::newRow("greedy item")              << "SZ PT1(X);"                           << no_bound         << line  << "(X);";
    QTest::newRow("no end of a set")          << "SZ EC01"                              << no_bound         << line  << "";
    QTest::newRow("no number")                << "SZ EI1+1 MAX;"                        << no_number        << token << ";";
    QTest::newRow("word for a number")        << "SZ EI1+1 MIN x;"                      << no_number        << token << "x;";
    QTest::newRow("signed number")            << "SZ EI1+1 MAX +5;"                     << no_number        << token << "+5;";
    QTest::newRow("seven digits")             << "SZ EC01 MAX 1234567;"                 << no_number        << token << "1234567";
    QTest::newRow("text behind the bound")    << "SZ EI1+1 MAX 5 STOP;"                 << no_then          << token << "STOP;";
    QTest::newRow("THEN without SZ")          << "SZ EI1+1 MAX 5 THEN EC01;"            << no_sz            << token << "EC01;";
    QTest::newRow("THEN SZ without item")     << "SZ EI1+1 MAX 5 THEN SZ;"              << no_bound_item    << token << ";";
    QTest::newRow("THEN SZ RESTART")          << "SZ EI1*2 MAX 64 THEN SZ RESTART;"     << no_bound_item    << token << "RESTART;";
    QTest::newRow("text behind THEN SZ")      << "SZ EI1+1 MAX 5 THEN SZ EC01 EC02;"    << no_end           << line  << "EC02;";
    // the test
    QTest::newRow("no test")                  << "IF;"                                  << no_test          << token << ";";
    QTest::newRow("jeton as a test")          << "IF EC01 THEN STOP;"                   << no_test          << token << "EC01 THEN STOP;";
    QTest::newRow("no IN")                    << "IF GZ EC01 THEN STOP;"                << no_in            << token << "EC01 THEN STOP;";
    QTest::newRow("another word for IN")      << "IF GZ THEN SZ EC01;"                  << no_in            << token << "THEN";
    QTest::newRow("message for IN")           << "IF GZ MESSAGE ( 'a b' ) IN EC01;"     << no_in            << token << "MESSAGE('a b')";
    QTest::newRow("unit without IN")          << "IF EI1(5) THEN STOP;"                 << no_in            << token << "THEN";
    QTest::newRow("no jeton")                 << "IF GZ IN THEN STOP;"                  << no_jeton         << token << "THEN STOP;";
    QTest::newRow("no such jeton")            << "IF GZ IN OP THEN STOP;"               << no_jeton         << token << "OP THEN STOP;";
    QTest::newRow("no such bet")              << "IF GZ IN AG(1234) THEN STOP;"         << no_jeton         << token << "AG(1234) THEN STOP;";
    QTest::newRow("nothing behind IN")        << "IF GZ IN"                             << no_jeton         << token << "";
    // the chain
    QTest::newRow("no consequence")           << "IF GZ IN EC01;"                       << no_consequence   << token << ";";
    QTest::newRow("counter with IN")          << "IF CO01(>5) IN EC01 THEN STOP;"       << no_consequence   << token << "IN EC01 THEN STOP;";
    QTest::newRow("AND without IF")           << "IF GZ IN EC01 AND VZ IN EC02 THEN STOP;" << no_if         << token << "VZ IN EC02 THEN STOP;";
    QTest::newRow("AND SZ")                   << "IF GZ IN EC01 AND SZ EC02;"           << no_if            << token << "SZ EC02;";
    QTest::newRow("fault in the second link") << "IF GZ IN EC01 AND IF VZ EC02 THEN STOP;" << no_in         << token << "EC02 THEN STOP;";
    QTest::newRow("AND behind UZ")            << "IF UZ(9/H) IN DZ AND IF CO01(1) THEN STOP;" << and_at_uz  << token << "AND IF CO01(1) THEN STOP;";
    QTest::newRow("THEN behind UZ")           << "IF UZ(9/H) IN DZ THEN SZ DZ;"         << then_at_uz       << token << "THEN SZ DZ;";
    QTest::newRow("THEN behind uz")           << "IF uz(9/h) IN DZ THEN SZ DZ;"         << then_at_uz       << token << "THEN SZ DZ;";
    QTest::newRow("THEN behind UZ, link 2")   << "IF GZ IN EC01 AND IF UZ(9/H) IN DZ THEN STOP;" << then_at_uz << token << "THEN STOP;";
    QTest::newRow("RESULT without UZ")        << "IF GZ IN EC01 RESULT SZ EC;"          << result_not_at_uz << token << "RESULT SZ EC;";
    QTest::newRow("RESULT without UZ, link 2")<< "IF GZ IN EC01 AND IF CO01(1) RESULT SZ EC;" << result_not_at_uz << token << "RESULT SZ EC;";
    // the action
    QTest::newRow("no action")                << "IF GZ IN EC01 THEN GZ;"               << no_action        << line  << "GZ;";
    QTest::newRow("THEN IF")                  << "IF GZ IN EC01 THEN IF CO01(1) THEN STOP;" << no_action    << line  << "IF CO01(1) THEN STOP;";
    QTest::newRow("MESSAGE of no form, THEN") << "IF GZ IN EC01 THEN MESSAGE;"          << no_action        << line  << "MESSAGE;";
    QTest::newRow("nothing behind THEN")      << "IF GZ IN EC01 THEN"                   << no_action        << line  << "";
    QTest::newRow("THEN SZ without an item")  << "IF GZ IN EC01 THEN SZ;"               << no_item          << token << ";";
    QTest::newRow("THEN STOP and more")       << "IF GZ IN EC01 THEN STOP x;"           << no_end           << token << "x;";
    QTest::newRow("THEN RESTART and more")    << "IF GZ IN EC01 THEN RESTART(N) x;"     << no_end           << token << "x;";
    QTest::newRow("THEN MESSAGE and more")    << "IF GZ IN EC01 THEN MESSAGE OFF x;"    << no_end           << token << "x;";
    QTest::newRow("no end behind THEN")       << "IF GZ IN EC01 THEN STOP"              << no_end           << token << "";
    // the target of a signal
    QTest::newRow("RESULT without SZ")        << "IF UZ(9/H) IN DZ RESULT DZ;"          << no_sz            << token << "DZ;";
    QTest::newRow("full jeton name")          << "IF UZ(9/H) IN DZ RESULT SZ DZ01;"     << no_direct_jeton  << token << ";";
    QTest::newRow("bare counter")             << "IF UZ(9/H) IN DZ RESULT SZ CO01;"     << no_action        << line  << "CO01;";
    QTest::newRow("no target")                << "IF UZ(9/H) IN DZ RESULT SZ;"          << no_action        << line  << ";";
    QTest::newRow("counter form")             << "IF UZ(9/H) IN DZ RESULT SZ CO01(5);"  << no_target_counter << token << ";";
    QTest::newRow("another form")             << "IF UZ(9/H) IN DZ RESULT SZ EI1(5) x;" << no_target_counter << token << "x;";
    // clang-format on
}

void tst_statement_compiler::a_fault_is_told_with_its_place()
{
    QFETCH(QString, statement);
    const sys_result_info result = compiled(statement);
    QCOMPARE(result.status, 4);
    QTEST(result.error_text, "error_text");
    QTEST(result.mark_mode, "mark_mode");
    QTEST(result.mark_text, "mark_text");
}

void tst_statement_compiler::the_table_decides_the_jetons()
{
    QCOMPARE(compiled("SZ PL37,CH63,TP16,DN37;", french).status, 4);
    QCOMPARE(compiled("SZ PL37,CH63,TP16,DN37;", american).command_text,
             QString("SZ|PL37|CH63|TP16|DN37"));
}

void tst_statement_compiler::a_result_is_cleared_of_what_was_before()
{
    const system_pattern patterns(french);
    const statement_compiler compiler(patterns);
    sys_result_info result;
    compiler.compile_statement(result, "SZ EC01 EC02;");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.mark_mode, 1);

    compiler.compile_statement(result, "STOP;");
    QCOMPARE(result.status, 2);
    QCOMPARE(result.error_text, QString());
    QCOMPARE(result.mark_mode, 2);
    QCOMPARE(result.mark_text, QString());
    QCOMPARE(result.command_text, QString("STOP|"));
}

void tst_statement_compiler::what_is_not_the_compilers_stays()
{
    const system_pattern patterns(french);
    const statement_compiler compiler(patterns);
    sys_result_info result;
    result.player = 3;
    result.error_line = 12;
    result.line_text = "source";
    result.check_result = true;
    result.value = 7;
    for (const char* statement : {"SZ EC01;", "SZ;"}) {
        compiler.compile_statement(result, QLatin1String(statement));
        QCOMPARE(result.player, 3);
        QCOMPARE(result.error_line, 12);
        QCOMPARE(result.line_text, QString("source"));
        QCOMPARE(result.check_result, true);
        QCOMPARE(result.value, 7);
    }
}

void tst_statement_compiler::the_text_may_be_a_field_of_the_result()
{
    const system_pattern patterns(french);
    sys_result_info result;
    result.mark_text = QString("SZ EC01") + ',' + "EC02 x;";
    statement_compiler(patterns).compile_statement(result, result.mark_text);
    QCOMPARE(result.status, 4);
    QCOMPARE(result.mark_text, QString("x;"));
}

void tst_statement_compiler::one_compiler_serves_many_statements()
{
    const system_pattern patterns(french);
    const statement_compiler compiler(patterns);
    sys_result_info first;
    sys_result_info second;
    compiler.compile_statement(first, "IF GZ IN EC01 AND IF VZ IN EC02 THEN SZ EC03;");
    compiler.compile_statement(second, "SZ EC04;");
    compiler.compile_statement(first, "IF GZ IN EC01 AND IF VZ IN EC02 THEN SZ EC03;");
    QCOMPARE(first.command_text, QString("IF|GZ|IN|EC01|AND|IF|VZ|IN|EC02|THEN|SZ|EC03"));
    QCOMPARE(second.command_text, QString("SZ|EC04"));
}

void tst_statement_compiler::chains_of_any_length_are_compiled()
{
    const int links = 60000;
    const QString statement =
        "IF CO01(1) " + QString("AND IF V0 IN EC01 ").repeated(links) + "THEN STOP;";
    const sys_result_info result = compiled(statement);
    QCOMPARE(result.status, 2);
    const QString expected =
        "IF|CO01(1)" + QString("|AND|IF|V0|IN|EC01").repeated(links) + "|THEN|STOP";
    QVERIFY(result.command_text == expected);
}

void tst_statement_compiler::a_fault_at_the_end_of_a_long_chain_is_found()
{
    const QString chain = "IF CO01(1) " + QString("AND IF V0 IN EC01 ").repeated(60000);
    sys_result_info result = compiled(chain + "AND IF GZ EC02 THEN STOP;");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QString("Schlüsselwörter IN oder NOT IN erwartet!"));
    QCOMPARE(result.mark_text, QString("EC02 THEN STOP;"));

    result = compiled(chain + "AND IF UZ(9/H) IN EC RESULT SZ EC01;");
    QCOMPARE(result.status, 4);
    QCOMPARE(result.mark_text, QString(";"));
}

// Work that grows with the square of the length would run into the time limit of the test.
void tst_statement_compiler::long_statements_take_no_longer_per_token_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("status");
    const int length = 1000000;
    // clang-format off
    QTest::newRow("items")             << "SZ " + repeated("EC01,", length / 2) + ";"              << 2;
    QTest::newRow("unit changes")      << "SZ " + repeated("EI1+1 ,", length) + ";"            << 2;
    QTest::newRow("commas")            << "SZ " + repeated(",", length / 10) + ";"                  << 4;
    QTest::newRow("open options")      << "SZ " + repeated("STMAX(", length) + ";"             << 4;
    QTest::newRow("table values")      << "SZ ST1(1" + repeated(",1", length) + ");"           << 2;
    QTest::newRow("open table")        << "SZ ST1(1" + repeated(",1", length) + ";"            << 4;
    QTest::newRow("blanks")            << "SZ EI1" + repeated(" ", length) + "(5);"            << 2;
    QTest::newRow("quotes")            << "MESSAGE(" + repeated("' a ' , ", length) + ");"     << 2;
    QTest::newRow("open message")      << repeated("MESSAGE(", length) + ";"                   << 4;
    QTest::newRow("digits")            << "SZ EI1+1 MAX " + repeated("1", length) + ";"        << 4;
    QTest::newRow("zero characters")   << "SZ EC01" + QString(length, QChar(0)) + ";"          << 4;
    // clang-format on
}

void tst_statement_compiler::long_statements_take_no_longer_per_token()
{
    QFETCH(QString, statement);
    QTEST(compiled(statement).status, "status");
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_statement_compiler>(argc, argv);
}

#include "tst_statement_compiler.moc"
