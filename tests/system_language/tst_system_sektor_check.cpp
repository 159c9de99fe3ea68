#include "system_sektor_check.h"
#include "test_box.h"

class tst_system_sektor_check : public QObject
{
    Q_OBJECT

private slots:
    void a_section_without_options_is_clean();
    void options_are_found_in_every_form_data();
    void options_are_found_in_every_form();
    void the_first_statement_with_options_is_told();
    void a_check_leaves_nothing_behind();
};

void tst_system_sektor_check::a_section_without_options_is_clean()
{
    const system_sektor_check check;
    QCOMPARE(check.check_section({}).status, 2);

    const sys_result_info result = check.check_section(
        {{3, "SZ ST1(1,2);"}, {4, "SZ EI1+1 MAX 5;"}, {5, "MESSAGE('ST MAX');"}});
    QCOMPARE(result.status, 2);
    QCOMPARE(result.error_text, QString());
}

void tst_system_sektor_check::options_are_found_in_every_form_data()
{
    QTest::addColumn<QString>("statement");
    // clang-format off
    QTest::newRow("set statement")        << "SZ STMAX(S);";
    QTest::newRow("lower case")           << "sz stmax(s);";
    QTest::newRow("test")                 << "IF STMAX(A) THEN STOP;";
    QTest::newRow("message text")         << "MESSAGE('STMAX');";
    QTest::newRow("part of a word")       << "MESSAGE('ASTMAXIMUM');";
    QTest::newRow("nothing but the word") << "STMAX";
    // clang-format on
}

void tst_system_sektor_check::options_are_found_in_every_form()
{
    QFETCH(QString, statement);
    const sys_result_info result = system_sektor_check().check_section({{7, statement}});
    QCOMPARE(result.status, 4);
    QCOMPARE(result.error_text, QString("Bedingung STMAX in falscher Sektion gefunden!"));
    QCOMPARE(result.error_line, 7);
    QCOMPARE(result.mark_mode, 1);
    QCOMPARE(result.line_text, statement);
}

void tst_system_sektor_check::the_first_statement_with_options_is_told()
{
    const sys_result_info result = system_sektor_check().check_section(
        {{2, "SZ EC01;"}, {9, "SZ STMAX(A);"}, {4, "SZ STMAX(E);"}});
    QCOMPARE(result.error_line, 9);
    QCOMPARE(result.line_text, QString("SZ STMAX(A);"));
}

void tst_system_sektor_check::a_check_leaves_nothing_behind()
{
    const system_sektor_check check;
    QCOMPARE(check.check_section({{1, "SZ STMAX(A);"}}).status, 4);
    QCOMPARE(check.check_section({{1, "SZ EC01;"}}).status, 2);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_sektor_check>(argc, argv);
}

#include "tst_system_sektor_check.moc"
