#include "setting.h"
#include "system_file.h"
#include "system_file_reader.h"
#include "system_pattern.h"
#include "test_box.h"

#include <QFile>
#include <QTextStream>

static constexpr int french = 0;
static constexpr int american = 1;

class tst_system_file_reader : public QObject
{
    Q_OBJECT

private slots:
    void code_is_read_without_comments_data();
    void code_is_read_without_comments();
    void an_open_comment_is_told_at_its_opening_data();
    void an_open_comment_is_told_at_its_opening();
    void a_name_that_is_no_file_can_not_be_opened_data();
    void a_name_that_is_no_file_can_not_be_opened();
    void bytes_of_any_kind_are_read();
    void the_file_of_the_player_fills_the_sections();
    void the_table_is_that_of_the_settings();
    void a_failure_leaves_the_sections_empty_data();
    void a_failure_leaves_the_sections_empty();
};

// "number:text" of each line.
static QStringList as_text(const QList<section_line>& lines)
{
    QStringList result;
    for (const section_line& line : lines)
        result.append(QString::number(line.number) + ':' + line.text);
    return result;
}

static system_file_lines read(QString text)
{
    QTextStream stream(&text);
    return read_system_lines(stream);
}

static void write_file(const QString& name, const QByteArray& content)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_system_file_reader::code_is_read_without_comments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    // clang-format off
    QTest::newRow("empty file")                << ""                            << QStringList{};
    QTest::newRow("comments only")             << "// a\n/* b */\n"             << QStringList{};
    QTest::newRow("a keyword alone")           << "AL:"                         << QStringList{"1:AL:"};
    QTest::newRow("white space round a line")  << "\n \t AL: \t\n\n  STOP;  "   << QStringList{"2:AL:", "4:STOP;"};
    QTest::newRow("line ends of two bytes")    << "AL:\r\nSTOP;\r\n"            << QStringList{"1:AL:", "2:STOP;"};
    QTest::newRow("rest of the line")          << "AL: // a\n//b\nSTOP; // //"  << QStringList{"1:AL:", "3:STOP;"};
    QTest::newRow("// in a message text")      << "MESSAGE('http://x');"        << QStringList{"1:MESSAGE('http:"};
    QTest::newRow("within a line")             << "SZ /* a */ EC01;"            << QStringList{"1:SZ  EC01;"};
    QTest::newRow("neighbours are glued")      << "SZ/* a */EC01;"              << QStringList{"1:SZEC01;"};
    QTest::newRow("only the first of a line")  << "a /* b */ c /* d */"         << QStringList{"1:a  c /* d */"};
    QTest::newRow("end in front of beginning") << "*/ a /* b"                   << QStringList{"1:*/ a /* b"};
    QTest::newRow("end within the beginning")  << "a /*/ b"                     << QStringList{"1:a  b"};
    QTest::newRow("over three lines")          << "a /* b\nc\nd */ e"           << QStringList{"1:a", "3:e"};
    QTest::newRow("nothing in front of it")    << " /* b\n*/ e"                 << QStringList{"2:e"};
    QTest::newRow("nothing behind it")         << "a\n/* b\n*/\nc"              << QStringList{"1:a", "4:c"};
    QTest::newRow("// behind the end")         << "/*\nx */ a // b\nc"          << QStringList{"2:a", "3:c"};
    QTest::newRow("// hides the end")          << "AL: /* x // y */\nSZ\n*/ STOP;" << QStringList{"1:AL:", "3:STOP;"};
    QTest::newRow("// within does not matter") << "/* a\n// b */ c"             << QStringList{"2:c"};
    QTest::newRow("two in a row")              << "/* a\n*/\n/* b\n*/\nc"       << QStringList{"5:c"};
    // clang-format on
}

void tst_system_file_reader::code_is_read_without_comments()
{
    QFETCH(QString, text);
    const system_file_lines code = read(text);
    QCOMPARE(code.result.status, 2);
    QCOMPARE(code.result.error_text, QString());
    QTEST(as_text(code.lines), "lines");
}

void tst_system_file_reader::an_open_comment_is_told_at_its_opening_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("error_line");
    QTest::addColumn<QString>("line_text");
    QTest::addColumn<QStringList>("lines");
    // clang-format off
    QTest::newRow("never closed")             << "AL:\n\nSZ /* x\nEC01;\nSTOP;"     << 3 << "SZ /* x" << QStringList{"1:AL:", "3:SZ"};
    QTest::newRow("on the last line")         << "AL:\n/*"                          << 2 << "/*"      << QStringList{"1:AL:"};
    QTest::newRow("another one opens in it")  << "AL:\n/* a\n/* b */\nSTOP;"        << 2 << "/* a"    << QStringList{"1:AL:", "4:STOP;"};
    QTest::newRow("opens behind the end")     << "AL:\n/* a\nb */ /* c\nSTOP;"      << 2 << "/* a"    << QStringList{"1:AL:", "4:STOP;"};
    QTest::newRow("beginning and end share")  << "AL:\n/* a\n/*/\nSTOP;"            << 2 << "/* a"    << QStringList{"1:AL:", "4:STOP;"};
    QTest::newRow("two: the first is told")   << "AL:\n/* a\n/* b\nSTOP;"           << 2 << "/* a"    << QStringList{"1:AL:", "4:STOP;"};
    QTest::newRow("three: the third is told") << "AL:\n/* a\n/* b\n/* c\nSTOP;"     << 4 << "/* c"    << QStringList{"1:AL:"};
    QTest::newRow("a good one behind it")     << "AL:\n/* a\n/* b\n/* c\n*/ STOP;"  << 2 << "/* a"    << QStringList{"1:AL:", "5:STOP;"};
    QTest::newRow("a good one in front")      << "/* a\n*/ AL:\n/* b"               << 3 << "/* b"    << QStringList{"2:AL:"};
    QTest::newRow("// hides the only end")    << "AL: /* x // y */\nSTOP;"          << 1 << "AL: /* x " << QStringList{"1:AL:"};
    // clang-format on
}

void tst_system_file_reader::an_open_comment_is_told_at_its_opening()
{
    QFETCH(QString, text);
    const system_file_lines code = read(text);
    QCOMPARE(code.result.status, 4);
    QCOMPARE(code.result.error_text, QString("Kommentar Ende Zeichen wurde nicht gefunden!"));
    QTEST(code.result.error_line, "error_line");
    QTEST(code.result.line_text, "line_text");
    QCOMPARE(code.result.mark_mode, 2);
    QCOMPARE(code.result.mark_text, QString("/*"));
    QTEST(as_text(code.lines), "lines");
}

void tst_system_file_reader::a_name_that_is_no_file_can_not_be_opened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such file") << "missing.syf";
    QTest::newRow("a folder") << ".";
    QTest::newRow("no name") << "";
}

void tst_system_file_reader::a_name_that_is_no_file_can_not_be_opened()
{
    QFETCH(QString, name);
    const system_file_lines code = read_system_lines(name);
    QCOMPARE(code.result.status, 3);
    QCOMPARE(code.result.error_text, QString("Die Systemspieldatei konnte nicht geöffnet werden!"));
    QCOMPARE(code.result.error_line, 0);
    QCOMPARE(code.result.mark_mode, 1);
    QVERIFY(code.lines.isEmpty());
}

void tst_system_file_reader::bytes_of_any_kind_are_read()
{
    QByteArray content("AL:\n");
    for (int round = 0; round < 3; ++round)
        for (int byte = 0; byte < 256; ++byte)
            content.append(char(byte));
    content.append(QByteArray(1000000, '\0'));
    write_file("binary.syf", content);

    const system_file_lines code = read_system_lines(QString("binary.syf"));
    QCOMPARE(code.result.status, 2);
    QCOMPARE(code.lines.first(), (section_line{1, "AL:"}));
    QVERIFY(code.lines.size() > 1);
}

void tst_system_file_reader::the_file_of_the_player_fills_the_sections()
{
    write_file("one.syf", "ST: SZ EC01; // start\nVE:\nSZ EC02;\nGW:\nSZ EC03;\nAL:\nSZ EC04;\n");
    write_file("two.syf", "AL: STOP;");
    setting settings;
    settings.set_s_user_sys_file_1("one.syf");
    settings.set_s_user_sys_file_4("two.syf");

    const system_pattern patterns(french);
    system_file file(settings, patterns);
    sys_result_info result = file.read_system_file(general_player::PLAYER_1);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.player, 0);
    QCOMPARE(as_text(file.section_st()), QStringList{"1:SZ EC01;"});
    QCOMPARE(as_text(file.section_ve()), QStringList{"3:SZ EC02;"});
    QCOMPARE(as_text(file.section_gw()), QStringList{"5:SZ EC03;"});
    QCOMPARE(as_text(file.section_al()), QStringList{"7:SZ EC04;"});

    result = file.read_system_file(general_player::PLAYER_4);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.player, 3);
    QVERIFY(file.section_st().isEmpty());
    QCOMPARE(as_text(file.section_al()), QStringList{"1:STOP;"});
}

void tst_system_file_reader::the_table_is_that_of_the_settings()
{
    write_file("double_zero.syf", "AL:\nSZ PL37;\n");
    setting settings;
    settings.set_s_user_sys_file_2("double_zero.syf");

    const system_pattern french_patterns(french);
    const sys_result_info refused =
        system_file(settings, french_patterns).read_system_file(general_player::PLAYER_2);
    QCOMPARE(refused.status, 4);
    QCOMPARE(refused.error_line, 2);
    QCOMPARE(refused.mark_text, QString("PL37"));
    QCOMPARE(refused.player, 1);

    settings.set_s_table_form(american);
    const system_pattern american_patterns(american);
    const sys_result_info taken =
        system_file(settings, american_patterns).read_system_file(general_player::PLAYER_2);
    QCOMPARE(taken.status, 2);
}

void tst_system_file_reader::a_failure_leaves_the_sections_empty_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("status");
    QTest::newRow("no file") << QByteArray() << 3;
    QTest::newRow("open comment") << QByteArray("AL: SZ EC01;\n/*") << 4;
    QTest::newRow("faulty line") << QByteArray("AL: SZ EC01;\nx;") << 4;
    QTest::newRow("empty file") << QByteArray("\n") << 4;
}

void tst_system_file_reader::a_failure_leaves_the_sections_empty()
{
    QFETCH(QByteArray, content);
    write_file("good.syf", "AL: STOP;");
    if (!content.isEmpty()) write_file("faulty.syf", content);
    setting settings;
    settings.set_s_user_sys_file_1("good.syf");
    settings.set_s_user_sys_file_2("faulty.syf");

    const system_pattern patterns(french);
    system_file file(settings, patterns);
    QCOMPARE(file.read_system_file(general_player::PLAYER_1).status, 2);
    QCOMPARE(file.section_al().size(), 1);
    QTEST(file.read_system_file(general_player::PLAYER_2).status, "status");
    QVERIFY(file.section_al().isEmpty());
    QFile::remove("faulty.syf");
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_file_reader>(argc, argv);
}

#include "tst_system_file_reader.moc"
