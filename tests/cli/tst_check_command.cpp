// `zarvello-cli check` as a user meets it: its lines and its exit status.

#include "runner_process.h"
#include "test_box.h"

#include <QDir>

class tst_check_command : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void a_sound_file_is_silent();
    void warnings_are_no_errors();
    void findings_have_their_place();
    void the_order_of_files_is_kept();
    void the_table_comes_from_the_settings();
    void an_unreadable_file_does_not_hide_the_others();
    void wrong_use_is_told_with_status_2_data();
    void wrong_use_is_told_with_status_2();
    void help_is_no_error();
    void text_of_any_kind_is_checked_data();
    void text_of_any_kind_is_checked();
};

void tst_check_command::init()
{
    write_file("sound.syf", "AL: SZ EC03;\n");
    write_file("doubtful.syf", "AL:\nSZ EC03,;\n");
    write_file("faulty.syf", "AL:\nSZ EC03,;\n  SZ EC01 EC02;\nSZ FOO;\n");
}

void tst_check_command::a_sound_file_is_silent()
{
    const runner_answer answer = run_runner({"check", "sound.syf"});
    QCOMPARE(answer.status, 0);
    QCOMPARE(answer.output, QString());
    QCOMPARE(answer.errors, QString());
}

void tst_check_command::warnings_are_no_errors()
{
    const runner_answer answer = run_runner({"check", "doubtful.syf"});
    QCOMPARE(answer.status, 0);
    QCOMPARE(answer.output,
             QString("doubtful.syf:2:8: warning: Die Aufzählung endet mit einem Komma!\n"));
    QCOMPARE(answer.errors, QString());
}

void tst_check_command::findings_have_their_place()
{
    const runner_answer answer = run_runner({"check", "faulty.syf"});
    QCOMPARE(answer.status, 1);
    QCOMPARE(answer.output,
             QString("faulty.syf:2:8: warning: Die Aufzählung endet mit einem Komma!\n"
                     "faulty.syf:3:3: error: Schlüsselwörter MAX,MIN oder ; erwartet!\n"
                     "faulty.syf:4:4: error: Syntax Fehler!\n"));
    QCOMPARE(answer.errors, QString());
}

void tst_check_command::the_order_of_files_is_kept()
{
    QVERIFY(QDir().mkpath("folder"));
    write_file("folder/a.syf", "AL: SZ;\n");
    const runner_answer answer =
        run_runner({"check", "folder/a.syf", "sound.syf", "doubtful.syf", "./folder/a.syf"});
    QCOMPARE(answer.status, 1);
    QCOMPARE(answer.output,
             QString("folder/a.syf:1:7: error: SZ Überprüfungsaktion erwartet!\n"
                     "doubtful.syf:2:8: warning: Die Aufzählung endet mit einem Komma!\n"
                     "./folder/a.syf:1:7: error: SZ Überprüfungsaktion erwartet!\n"));
}

void tst_check_command::the_table_comes_from_the_settings()
{
    write_file("american.syf", "AL: SZ PL37;\n");
    const runner_answer french = run_runner({"check", "american.syf"});
    QCOMPARE(french.status, 1);
    QCOMPARE(french.output,
             QString("american.syf:1:8: error: Französischer Tisch aktiv - Amerikanische "
                     "Setzungen gefunden!\n"));
    const runner_answer american = run_runner({"check", "american.syf", "--set", "s_table_form=1"});
    QCOMPARE(american.status, 0);
    QCOMPARE(american.output, QString());
}

void tst_check_command::an_unreadable_file_does_not_hide_the_others()
{
    const runner_answer answer = run_runner({"check", "missing.syf", ".", "faulty.syf"});
    QCOMPARE(answer.status, 2);
    QCOMPARE(answer.output.count('\n'), 3);
    QVERIFY2(answer.errors.contains("missing.syf: file not found"), qPrintable(answer.errors));
    QVERIFY2(answer.errors.contains(".: is a directory"), qPrintable(answer.errors));
}

void tst_check_command::wrong_use_is_told_with_status_2_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("fault");
    // clang-format off
    QTest::newRow("no file")        << QStringList{}                                      << "check takes one or more system files";
    QTest::newRow("unknown option") << QStringList{"--strict", "sound.syf"}               << "strict";
    QTest::newRow("unknown key")    << QStringList{"sound.syf", "--set", "s_nothing=1"}   << "s_nothing";
    QTest::newRow("no settings")    << QStringList{"sound.syf", "--settings", "none.ini"} << "none.ini";
    // clang-format on
}

void tst_check_command::wrong_use_is_told_with_status_2()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, fault);
    const runner_answer answer = run_runner(QStringList("check") + arguments);
    QCOMPARE(answer.status, 2);
    QCOMPARE(answer.output, QString());
    QVERIFY2(answer.errors.contains(fault), qPrintable(answer.errors));
}

void tst_check_command::help_is_no_error()
{
    const runner_answer own = run_runner({"check", "--help"});
    QCOMPARE(own.status, 0);
    QVERIFY2(own.output.contains("FILE:LINE:COLUMN"), qPrintable(own.output));
    const runner_answer all = run_runner({"--help"});
    QVERIFY2(all.output.contains("  check "), qPrintable(all.output));
}

void tst_check_command::text_of_any_kind_is_checked_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("status");
    QByteArray binary;
    for (int i = 0; i < 5000; ++i)
        binary.append(static_cast<char>(i * 7919 >> 3));
    // clang-format off
    QTest::newRow("empty")             << QByteArray()                                  << 1;
    QTest::newRow("binary")            << binary                                        << 1;
    QTest::newRow("Latin-1 comment")   << QByteArray("// \xe4\xf6\xfc\nAL: SZ EC03;\n") << 0;
    QTest::newRow("Windows line ends") << QByteArray("AL:\r\nSZ EC03;\r\n")             << 0;
    // clang-format on
}

void tst_check_command::text_of_any_kind_is_checked()
{
    QFETCH(QByteArray, content);
    write_file("any.syf", content);
    QTEST(run_runner({"check", "any.syf"}).status, "status");
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_check_command>(argc, argv);
}

#include "tst_check_command.moc"
