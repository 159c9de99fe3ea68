#include "load_file_reader.h"
#include "test_box.h"

#include <QBuffer>
#include <QRegExp>
#include <QTextCodec>
#include <QTextStream>

#include <limits>
#include <random>

using numbers = QList<int>;

static numbers list_of(const std::vector<quint8>& entries)
{
    numbers list;
    for (const quint8 entry : entries)
        list.append(entry);
    return list;
}

static numbers list_of(const std::vector<int>& values)
{
    return numbers(values.begin(), values.end());
}

/// The numbers of a text, parted by blanks.
static numbers numbers_in(const QString& text)
{
    numbers list;
    for (const QString& part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        list.append(part.toInt());
    }
    return list;
}

static reading_rules rules_of(const QString& mark, table_form form = table_form::french)
{
    reading_rules rules;
    rules.hand_change_mark = mark;
    rules.form = form;
    return rules;
}

static reading_rules history_from(const QDate& first_date)
{
    reading_rules rules;
    rules.mode = reading_mode::history;
    rules.first_date = first_date;
    return rules;
}

static load_file_result read(const QByteArray& content, const reading_rules& rules)
{
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    load_file_reader reader(rules);
    reader.read_device(buffer);
    return reader.result();
}

static void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64{content.size()});
}

/// A header as the year file has it; the month name is that of this computer's language.
static QByteArray header_of(const QDate& day)
{
    const QString moment =
        QDateTime(day, QTime(20, 15)).toString(QStringLiteral("dddd,dd.MMMM.yyyy hh:mm:ss"));
    return (QStringLiteral("::  ") + moment + QStringLiteral(" - ") + moment +
            QStringLiteral(" Coups : 3\n"))
        .toUtf8();
}

/// The line rules in regular expressions and lists, one step after the other.
static load_file_result read_by_hand(const QByteArray& content, const reading_rules& rules)
{
    load_file_result result;
    const QRegExp letters(QStringLiteral("[a-zA-Z]+"), Qt::CaseInsensitive);
    const QRegExp digits(QStringLiteral("\\d*"));
    QTextStream stream(content);
    stream.setCodec(QTextCodec::codecForLocale());
    while (!stream.atEnd()) {
        const QString line = stream.readLine().trimmed();
        if (line.isEmpty()) continue;
        if (letters.indexIn(line) >= 0) {
            result.info.description = line;
        } else if (line.startsWith(rules.hand_change_mark)) {
            result.numbers.push_back(99);
            ++result.info.hand_changes;
        } else {
            for (const QString& part : line.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                const bool is_double_zero = part == QLatin1String("00");
                if (!digits.exactMatch(part)) {
                    result.info.description = line;
                } else if (is_double_zero && rules.form == table_form::american) {
                    result.numbers.push_back(37);
                } else if (part.toInt() > 36) {
                    result.illegal_values.push_back(part.toInt());
                } else {
                    if (is_double_zero) ++result.double_zero_warnings;
                    result.numbers.push_back(static_cast<quint8>(part.toInt()));
                }
            }
        }
    }
    result.info.numbers = static_cast<int>(result.numbers.size()) - result.info.hand_changes;
    return result;
}

class tst_load_file_reader : public QObject
{
    Q_OBJECT

private slots:
    void a_line_is_read_by_the_line_rules_data();
    void a_line_is_read_by_the_line_rules();
    void the_double_zero_depends_on_the_table_data();
    void the_double_zero_depends_on_the_table();
    void values_above_36_are_illegal_and_told_in_order();
    void any_text_is_read_as_regular_expressions_read_it();
    void lines_may_cross_the_blocks_of_a_read();
    void a_byte_order_mark_chooses_the_encoding_data();
    void a_byte_order_mark_chooses_the_encoding();
    void text_beside_numbers_is_decoded_for_the_locale();
    void a_character_broken_off_is_no_number_data();
    void a_character_broken_off_is_no_number();
    void digits_of_other_scripts_are_illegal();
    void bytes_of_any_kind_do_no_harm();
    void a_description_is_cut_when_it_is_very_long();

    void blocks_before_the_first_date_are_left_out();
    void a_header_without_a_date_hides_its_block_data();
    void a_header_without_a_date_hides_its_block();
    void date_lines_act_in_history_mode_only();
    void the_skip_flag_goes_from_read_to_read();
    void hand_changes_are_partly_lost_in_a_year_file();
    void a_leading_blank_of_a_year_file_is_no_number();

    void files_are_read_one_behind_the_other();
    void what_is_no_file_gives_nothing_data();
    void what_is_no_file_gives_nothing();
    void the_hook_is_called_before_each_line();

    void a_collection_sorts_its_lines();
    void collection_paths_are_relative_to_its_folder();
    void a_collection_names_more_than_nine_files();
    void a_collection_that_cannot_be_read_is_told();
};

void tst_load_file_reader::a_line_is_read_by_the_line_rules_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("mark");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("description");
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    // clang-format off
    row("nothing")               << ""                     << "-"  << ""         << "";
    row("empty lines")           << "\n \n\t\n\r\n"        << "-"  << ""         << "";
    row("one to a line")         << "1\n2\n36\n"           << "-"  << "1 2 36"   << "";
    row("many to a line")        << "1 2  3\n4"            << "-"  << "1 2 3 4"  << "";
    row("Windows line ends")     << "1 2\r\n3\r\n"         << "-"  << "1 2 3"    << "";
    row("blanks around")         << "   7 \t\n"            << "-"  << "7"        << "";
    row("leading zeros")         << "007 000 05 000000005" << "-"  << "7 0 5 5"  << "";
    row("word in the line")      << "12 13 Tisch"          << "-"  << ""         << "12 13 Tisch";
    row("last text counts")      << "  one \n5\nTWO\n"     << "-"  << "5"        << "TWO";
    row("text lines alone")      << "a\nb 1\n"             << "-"  << ""         << "b 1";
    row("no letter of A to Z")   << "@ [ ` { 3"            << "-"  << "3"        << "@ [ ` { 3";
    row("mark between numbers")  << "12 - 13"              << "-"  << "12 13"    << "12 - 13";
    row("mark and number")       << "- 12"                 << "-"  << "99"       << "";
    row("mark alone")            << "1\n-\n2"              << "-"  << "1 99 2"   << "";
    row("longer than the mark")  << "--\n-5\n------"       << "-"  << "99 99 99" << "";
    row("shorter than the mark") << "-\n--\n-5"            << "--" << "99"       << "-5";
    row("mark with a word")      << "- new hand"           << "-"  << ""         << "- new hand";
    row("comma and plus")        << "1,2 +3 4"             << "-"  << "4"        << "1,2 +3 4";
    row("tab between numbers")   << "1\t2 3"               << "-"  << "3"        << "1\t2 3";
    row("lone carriage return")  << "1\r2\n3"              << "-"  << "3"        << "1\r2";
    row("dates are numbers too") << "01.02.2018\n4"        << "-"  << "4"        << "01.02.2018";
    // clang-format on
}

void tst_load_file_reader::a_line_is_read_by_the_line_rules()
{
    QFETCH(QString, content);
    QFETCH(QString, mark);
    QFETCH(QString, list);
    QFETCH(QString, description);
    const load_file_result result = read(content.toLatin1(), rules_of(mark));
    const numbers expected = numbers_in(list);
    QCOMPARE(list_of(result.numbers), expected);
    QCOMPARE(result.info.hand_changes, expected.count(99));
    QCOMPARE(result.info.numbers, expected.size() - expected.count(99));
    QCOMPARE(result.info.description, description);
    QCOMPARE(result.info.played, 0);
    QCOMPARE(result.double_zero_warnings, 0);
    QVERIFY(result.illegal_values.empty());
}

void tst_load_file_reader::the_double_zero_depends_on_the_table_data()
{
    QTest::addColumn<bool>("is_american");
    QTest::addColumn<numbers>("list");
    QTest::addColumn<int>("warnings");
    QTest::newRow("French") << false << numbers{0, 0, 5, 0} << 2;
    QTest::newRow("American") << true << numbers{0, 37, 5, 37} << 0;
}

void tst_load_file_reader::the_double_zero_depends_on_the_table()
{
    QFETCH(bool, is_american);
    QFETCH(numbers, list);
    QFETCH(int, warnings);
    const table_form form = is_american ? table_form::american : table_form::french;
    const load_file_result result = read("0\n00\n5 00", rules_of("-", form));
    QCOMPARE(list_of(result.numbers), list);
    QCOMPARE(result.double_zero_warnings, warnings);
}

void tst_load_file_reader::values_above_36_are_illegal_and_told_in_order()
{
    const QByteArray content = "37 1 99\n2147483646 2147483647\n2147483648 3 037 "
                               "99999999999999999999999999999999";
    for (const table_form form : {table_form::french, table_form::american}) {
        const load_file_result result = read(content, rules_of("-", form));
        QCOMPARE(list_of(result.numbers), (numbers{1, 3}));
        const numbers illegal = {37, 99, 2147483646, 2147483647, 2147483647, 37, 2147483647};
        QCOMPARE(list_of(result.illegal_values), illegal);
        QCOMPARE(result.info.description, QString());
    }
}

// Short lines of the characters on which the rules turn.
void tst_load_file_reader::any_text_is_read_as_regular_expressions_read_it()
{
    const QStringList pieces = {"0",
                                "1",
                                "2",
                                "3",
                                "7",
                                "00",
                                " ",
                                " ",
                                " ",
                                "  ",
                                "-",
                                "--",
                                "\n",
                                "\n",
                                "\n",
                                "\n",
                                "\r\n",
                                "\t",
                                "a",
                                "Z",
                                "q",
                                ":",
                                ",",
                                "+",
                                ".",
                                "[",
                                "`",
                                "@",
                                "{",
                                "\u00e4",
                                "\u0131",
                                "\u017f",
                                "\u212a",
                                "\u00a0",
                                "\u2003",
                                QString(QChar(0)),
                                QString(QChar(1))};
    std::mt19937 random(2);
    for (int round = 0; round < 20'000; ++round) {
        QString text;
        const quint32 size = static_cast<quint32>(random()) % 24;
        for (quint32 piece = 0; piece < size; ++piece) {
            text += pieces.at(static_cast<int>(random() % static_cast<quint32>(pieces.size())));
        }
        const QByteArray content = QTextCodec::codecForLocale()->fromUnicode(text);
        const reading_rules rules =
            rules_of(round % 2 ? "-" : "--", round % 3 ? table_form::french : table_form::american);
        const load_file_result expected = read_by_hand(content, rules);
        const load_file_result result = read(content, rules);
        const QByteArray hint = content.toPercentEncoding();
        QVERIFY2(result.numbers == expected.numbers, hint);
        QVERIFY2(result.illegal_values == expected.illegal_values, hint);
        QVERIFY2(result.double_zero_warnings == expected.double_zero_warnings, hint);
        QVERIFY2(result.info.numbers == expected.info.numbers, hint);
        QVERIFY2(result.info.hand_changes == expected.info.hand_changes, hint);
        QVERIFY2(result.info.description == expected.info.description, hint);
    }
}

// The line of 300,000 numbers is longer than two blocks.
void tst_load_file_reader::lines_may_cross_the_blocks_of_a_read()
{
    QByteArray content;
    numbers expected;
    for (int place = 0; place < 150'000; ++place) {
        content.append(QByteArray::number(place % 37)).append('\n');
        expected.append(place % 37);
    }
    for (int place = 0; place < 300'000; ++place) {
        content.append(QByteArray::number(place % 36 + 1)).append(' ');
        expected.append(place % 36 + 1);
    }
    content += "\n-\n8";
    expected << 99 << 8;
    QVERIFY(list_of(read(content, rules_of("-")).numbers) == expected);
}

void tst_load_file_reader::a_byte_order_mark_chooses_the_encoding_data()
{
    QTest::addColumn<QByteArray>("codec");
    for (const char* codec : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
        QTest::newRow(codec) << QByteArray(codec);
    }
}

void tst_load_file_reader::a_byte_order_mark_chooses_the_encoding()
{
    QFETCH(QByteArray, codec);
    const QString text = QStringLiteral("\ufeffTisch \u00e4\n17 00\n-\n3\n");
    QTextCodec::ConverterState no_other_mark(QTextCodec::IgnoreHeader);
    const QByteArray content =
        QTextCodec::codecForName(codec)->fromUnicode(text.data(), text.size(), &no_other_mark);
    const load_file_result result = read(content, rules_of("-"));
    QCOMPARE(list_of(result.numbers), (numbers{17, 0, 99, 3}));
    QCOMPARE(result.info.description, QStringLiteral("Tisch \u00e4"));
    QCOMPARE(result.double_zero_warnings, 1);
}

void tst_load_file_reader::text_beside_numbers_is_decoded_for_the_locale()
{
    QTextCodec* const codec_before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    const load_file_result result = read("Br\xfcnn 5\n\xe4 7\n", rules_of("-"));
    QTextCodec::setCodecForLocale(codec_before);
    QCOMPARE(list_of(result.numbers), numbers{7});
    QCOMPARE(result.info.description, QStringLiteral("\u00e4 7"));
}

void tst_load_file_reader::a_character_broken_off_is_no_number_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<numbers>("left");
    // clang-format off
    QTest::newRow("Latin-1 letter at the end of a line") << QByteArray("5\xe4\n7\n")          << numbers{7};
    QTest::newRow("double zero with a lead byte")        << QByteArray("00\xc3\n7\n")         << numbers{7};
    QTest::newRow("at the end of the file")              << QByteArray("7\n5\xe4")             << numbers{7};
    QTest::newRow("byte order mark of a second file")    << QByteArray("7\n\xef\xbb\xbf" "9\n8\n") << numbers{7, 8};
    // clang-format on
}

void tst_load_file_reader::a_character_broken_off_is_no_number()
{
    QFETCH(QByteArray, content);
    QTextCodec* const codec_before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const load_file_result result = read(content, rules_of("-"));
    QTextCodec::setCodecForLocale(codec_before);
    QTEST(list_of(result.numbers), "left");
    QVERIFY(result.illegal_values.empty());
    QVERIFY(!result.info.description.isEmpty());
}

void tst_load_file_reader::digits_of_other_scripts_are_illegal()
{
    QTextCodec* const codec_before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const load_file_result result = read("1\xd9\xa3"
                                         "1 4\n",
                                         rules_of("-"));
    QTextCodec::setCodecForLocale(codec_before);
    QCOMPARE(list_of(result.numbers), numbers{4});
    QCOMPARE(result.illegal_values, std::vector<int>{std::numeric_limits<int>::max()});
    QCOMPARE(result.info.description, QString());
}

void tst_load_file_reader::bytes_of_any_kind_do_no_harm()
{
    QCOMPARE(list_of(read(QByteArray("1\n\0\n2 \0 3\n", 11), rules_of("-")).numbers),
             (numbers{1, 2, 3}));
    QVERIFY(read(QByteArray(1'000'000, '\0'), rules_of("-")).numbers.empty());

    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        QByteArray content;
        for (int byte = 0; byte < 2'000; ++byte)
            content += static_cast<char>(random() & 0xFF);
        if (round % 4 == 0) content.prepend("\xff\xfe");
        reading_rules rules = history_from(QDate(2018, 3, 2));
        for (const quint8 entry : read(content, rules).numbers) {
            QVERIFY(entry <= 37 || entry == 99);
        }
    }
}

void tst_load_file_reader::a_description_is_cut_when_it_is_very_long()
{
    const load_file_result result = read(QByteArray(2'000'000, 'x') + "\n4\n", rules_of("-"));
    QCOMPARE(result.info.description, QString(1'000'000, QLatin1Char('x')));
    QCOMPARE(list_of(result.numbers), numbers{4});
}

void tst_load_file_reader::blocks_before_the_first_date_are_left_out()
{
    const QByteArray content = header_of(QDate(2018, 3, 1)) + "01 02\n--\n\n" +
                               header_of(QDate(2018, 3, 3)) + "07 08 09\n\n";
    const load_file_result result = read(content, history_from(QDate(2018, 3, 2)));
    QCOMPARE(list_of(result.numbers), (numbers{99, 7, 8, 9})); // a mark line is no number line
    QCOMPARE(result.info.numbers, 3);
    QCOMPARE(result.skip_by_date, false);

    const load_file_result same_day = read(content, history_from(QDate(2018, 3, 3)));
    QCOMPARE(list_of(same_day.numbers), (numbers{99, 7, 8, 9}));
    const load_file_result day_before = read(content, history_from(QDate(2018, 3, 1)));
    QCOMPARE(list_of(day_before.numbers), (numbers{1, 2, 99, 7, 8, 9}));
    const load_file_result later = read(content, history_from(QDate(2018, 3, 4)));
    QCOMPARE(list_of(later.numbers), numbers{99});
    QCOMPARE(later.skip_by_date, true);
    QVERIFY(later.info.description.startsWith(QLatin1String("::  ")));
}

void tst_load_file_reader::a_header_without_a_date_hides_its_block_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::newRow("unknown month") << QByteArray("::  Montag,01.Lenzing.2018 20:00:00 - x");
    QTest::newRow("no comma") << QByteArray("::  Montag 01.03.2018");
    QTest::newRow("nothing behind the comma") << QByteArray(":: x,");
    QTest::newRow("blanks behind the comma") << QByteArray(":: x,   ,y");
    QTest::newRow("a very long date") << QByteArray(":: x,") + QByteArray(500'000, '1');
}

void tst_load_file_reader::a_header_without_a_date_hides_its_block()
{
    QFETCH(QByteArray, header);
    const load_file_result result =
        read("5\n" + header + "\n7 8\n", history_from(QDate(1970, 1, 1)));
    QCOMPARE(list_of(result.numbers), numbers{5});
    QCOMPARE(result.skip_by_date, true);
}

void tst_load_file_reader::date_lines_act_in_history_mode_only()
{
    const QByteArray content = header_of(QDate(2018, 3, 1)) + "7 8\n";
    for (const reading_mode mode : {reading_mode::play, reading_mode::count}) {
        reading_rules rules = history_from(QDate(2018, 3, 2));
        rules.mode = mode;
        QCOMPARE(list_of(read(content, rules).numbers), (numbers{7, 8}));
    }
    // A colon inside the line makes no date line.
    const load_file_result result =
        read("Tisch :: x,01.x.2018\n7\n", history_from(QDate(2018, 3, 2)));
    QCOMPARE(list_of(result.numbers), numbers{7});
}

void tst_load_file_reader::the_skip_flag_goes_from_read_to_read()
{
    reading_rules rules;
    rules.skip_by_date = true;
    const load_file_result hidden = read("1 2\n-\n", rules);
    QCOMPARE(list_of(hidden.numbers), numbers{99});
    QCOMPARE(hidden.skip_by_date, true);

    rules = history_from(QDate(2018, 3, 2));
    rules.skip_by_date = true;
    const load_file_result cleared = read("1\n" + header_of(QDate(2018, 3, 2)) + "2\n", rules);
    QCOMPARE(list_of(cleared.numbers), numbers{2});
    QCOMPARE(cleared.skip_by_date, false);
}

void tst_load_file_reader::hand_changes_are_partly_lost_in_a_year_file()
{
    for (const char* mark : {"-", "--"}) {
        reading_rules rules = history_from(QDate(1970, 1, 1));
        rules.hand_change_mark = QLatin1String(mark);
        const load_file_result result = read("07 -- 23\n-- 11 12\n05\n", rules);
        QCOMPARE(list_of(result.numbers), (numbers{7, 23, 99, 5}));
        QCOMPARE(result.info.description, QStringLiteral("07 -- 23"));
    }
}

void tst_load_file_reader::a_leading_blank_of_a_year_file_is_no_number()
{
    const load_file_result result = read(" 0 07  0 00\n", history_from(QDate(1970, 1, 1)));
    QCOMPARE(list_of(result.numbers), (numbers{0, 7, 0, 0}));
    QCOMPARE(result.double_zero_warnings, 1);
}

void tst_load_file_reader::files_are_read_one_behind_the_other()
{
    write("first.inp", "one\n1\n-\n");
    write("second.inp", "two\n2 3");
    const load_file_result result =
        read_load_files({"first.inp", "absent.inp", "second.inp"}, reading_rules());
    QCOMPARE(list_of(result.numbers), (numbers{1, 99, 2, 3}));
    QCOMPARE(result.info.file_name, QStringLiteral("second.inp"));
    QCOMPARE(result.info.description, QStringLiteral("two"));
    QCOMPARE(result.info.numbers, 3);
    QCOMPARE(result.info.hand_changes, 1);
}

void tst_load_file_reader::what_is_no_file_gives_nothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("file_name");
    QTest::newRow("empty path") << ""
                                << "";
    QTest::newRow("absent file") << "absent.inp"
                                 << "";
    QTest::newRow("folder") << "."
                            << ".";
}

void tst_load_file_reader::what_is_no_file_gives_nothing()
{
    QFETCH(QString, path);
    QFETCH(QString, file_name);
    const load_file_result result = read_load_files({path}, reading_rules());
    QVERIFY(result.numbers.empty());
    QCOMPARE(result.info.file_name, file_name);
    QCOMPARE(result.info.description, QString());
    QCOMPARE(result.info.numbers, 0);
    QCOMPARE(result.info.hand_changes, 0);
}

void tst_load_file_reader::the_hook_is_called_before_each_line()
{
    write("hook.inp", "1\n\ntext\n2");
    int lines = 0;
    read_load_files({"hook.inp"}, reading_rules(), [&lines] { ++lines; });
    QCOMPARE(lines, 4);

    write("unicode.inp",
          "\xef\xbb\xbf"
          "1\n\ntext\n2");
    lines = 0;
    read_load_files({"unicode.inp"}, reading_rules(), [&lines] { ++lines; });
    QCOMPARE(lines, 4);
}

void tst_load_file_reader::a_collection_sorts_its_lines()
{
    const QStringList lines = {"(* first", "a.inp", "b (*.inp", "// last", "gone.inp", " // c.inp"};
    const auto exists = [](const QString& path) { return !path.endsWith("gone.inp"); };
    const load_file_collection collection = collect_load_files(lines, "/games", exists);
    QVERIFY(collection.is_read);
    QCOMPARE(collection.description, QStringLiteral("// last"));
    QCOMPARE(collection.found, (QStringList{"/games/a.inp", "/games/ // c.inp"}));
    QCOMPARE(collection.not_found, QStringList{"/games/gone.inp"});
}

void tst_load_file_reader::collection_paths_are_relative_to_its_folder()
{
    QVERIFY(QDir().mkpath("sysin"));
    write("sysin/a.inp", "1");
    write("b.inp", "2"); // beside the folder of the collection, in the working directory
    write("sysin/games.snp", "a.inp\r\nb.inp\r\n\r\nD:/c.inp\r\n");
    const load_file_collection collection = read_load_file_collection("sysin/games.snp");
    const QString folder = QDir("sysin").absolutePath();
    QVERIFY(collection.is_read);
    QCOMPARE(collection.found, (QStringList{folder + "/a.inp", folder + "/"}));
    QCOMPARE(collection.not_found, (QStringList{folder + "/b.inp", "D:/c.inp"}));
    QCOMPARE(collection.description, QString());
}

void tst_load_file_reader::a_collection_names_more_than_nine_files()
{
    QByteArray content;
    for (int file = 1; file <= 12; ++file) {
        const QString name = QStringLiteral("many%1.inp").arg(file);
        write(name, "1");
        content += name.toUtf8() + '\n';
    }
    write("many.snp", content);
    const load_file_collection collection = read_load_file_collection("many.snp");
    QCOMPARE(collection.found.size(), 12);
    QVERIFY(collection.found.last().endsWith("/many12.inp"));
    QVERIFY(collection.not_found.isEmpty());
}

void tst_load_file_reader::a_collection_that_cannot_be_read_is_told()
{
    for (const char* path : {"", "absent.snp", "."}) {
        const load_file_collection collection = read_load_file_collection(path);
        QVERIFY(!collection.is_read);
        QVERIFY(collection.found.isEmpty());
        QVERIFY(collection.not_found.isEmpty());
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_load_file_reader>(argc, argv);
}
#include "tst_load_file_reader.moc"
