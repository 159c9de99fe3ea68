#include "numberstorage.h"
#include "setting.h"
#include "test_box.h"

#include <QSignalSpy>

#include <array>

using numbers = QList<int>;

static void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64{content.size()});
}

static load_file_settings choice_of(const QStringList& files)
{
    load_file_settings choice;
    choice.active = true;
    choice.files = files;
    return choice;
}

static numbers next_numbers(numberStorage& source, int count)
{
    numbers taken;
    for (int coup = 0; coup < count; ++coup)
        taken.append(source.next_number());
    return taken;
}

/// What a source told, in the order in which it told it.
static QStringList told_by(numberStorage& source, const std::function<void()>& work)
{
    QStringList told;
    QObject ear;
    QObject::connect(
        &source, &numberStorage::last_number_from_file_loaded, &ear, [&] { told += "last"; });
    QObject::connect(&source,
                     &numberStorage::load_file_warning_00_on_franz_table,
                     &ear,
                     [&](bool display) { told += display ? "00" : "no 00"; });
    QObject::connect(&source, &numberStorage::load_file_illegal_number_found, &ear, [&](int value) {
        told += "illegal " + QString::number(value);
    });
    QObject::connect(&source, &numberStorage::next_load_file_is_loaded, &ear, [&](bool is_loaded) {
        told += (is_loaded ? "next " : "none ") + source.get_load_file_name();
    });
    QObject::connect(&source, &numberStorage::load_file_modus_ended, &ear, [&] {
        told += source.load_active() ? "ended too early" : "ended";
    });
    work();
    return told;
}

class tst_numberstorage : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void a_fresh_source_is_random();
    void a_seed_makes_a_game_repeatable();
    void the_table_form_changes_the_range_at_once();
    void the_double_zero_is_as_frequent_as_any_number();
    void the_zero_mode_gives_zeros();

    void a_manual_number_counts_for_one_coup();
    void a_later_manual_number_overrides_an_earlier_one();
    void a_cancelled_manual_number_is_not_played();
    void a_mode_change_acts_behind_the_manual_number();
    void a_double_zero_by_hand_needs_the_american_table();
    void numbers_that_do_not_exist_are_not_taken_by_hand();
    void the_text_of_the_manual_number_data();
    void the_text_of_the_manual_number();
    void the_hand_change_text_follows_the_setting();

    void the_permanence_shows_marks_when_asked();

    void load_numbers_are_played_in_order();
    void follow_files_are_played_one_after_the_other();
    void the_name_changes_with_the_first_number_of_a_file();
    void a_follow_file_without_numbers_ends_the_run_data();
    void a_follow_file_without_numbers_ends_the_run();
    void a_follow_file_of_marks_alone_is_played();
    void all_files_of_a_collection_are_played();
    void an_empty_main_file_gives_no_number_data();
    void an_empty_main_file_gives_no_number();
    void a_file_that_ends_with_a_mark_leaves_no_number();
    void double_zeros_on_the_french_table_are_warned_of();
    void illegal_numbers_are_told_and_left_out();
    void a_double_zero_left_over_becomes_a_zero();
    void the_hand_change_sign_is_taken_anew_for_each_read();
    void start_modes_cut_every_file();
    void random_starts_repeat_with_a_seed();
    void a_manual_number_in_load_mode_is_not_from_a_file();

    void clearing_gives_back_the_first_state();
    void an_inactive_choice_ends_the_load_mode();
    void the_state_can_be_saved_and_put_back();
    void the_end_flag_is_cleared_by_a_new_run();

    void counting_leaves_the_run_alone();
    void a_read_reports_what_it_read();
    void the_skip_flag_outlives_a_history_read();

    void a_step_goes_to_the_next_file();
    void a_step_does_not_skip_an_unplayed_file();
    void a_step_into_an_empty_file_ends_the_run();
    void a_step_outside_of_a_run_does_nothing();
    void reads_during_a_read_do_nothing();
    void oddities_are_told_among_other_work();
};

void tst_numberstorage::init()
{
    write("abc.inp", "1 2 3\n");
    write("de.inp", "4 5\n");
    write("f.inp", "6\n");
    write("text.inp", "no number 7\n");
    write("empty.inp", "");
}

void tst_numberstorage::a_fresh_source_is_random()
{
    const setting settings;
    numberStorage source(settings);
    QCOMPARE(source.get_source_mode(), number_source::random);
    QCOMPARE(source.get_last_number(), -1);
    QCOMPARE(source.load_active(), false);
    QCOMPARE(source.load_files(), QStringList({"", "", "", "", "", "", "", "", ""}));
    QCOMPARE(source.get_load_file_name(), QString());
    QCOMPARE(source.follow_files_left(), 0);
    const int number = source.next_number();
    QVERIFY(number >= 0 && number <= 36);
    QCOMPARE(source.get_last_number(), number);
    QCOMPARE(source.number_is_from_load_file(), false);
    QVERIFY(&numberStorage::instance() == &numberStorage::instance());
}

// The twister with the standard's default seed begins 3499211612, 581869302, 3890346734. On the
// French table one number stands for 116,080,197 outputs, so they are 30, 5 and 33. The first is
// thrown away.
void tst_numberstorage::a_seed_makes_a_game_repeatable()
{
    const setting settings;
    numberStorage source(settings);
    source.set_seed(5489);
    QCOMPARE(next_numbers(source, 2), (numbers{5, 33}));
    source.clear_permanence(); // leaves the generator alone
    const numbers later = next_numbers(source, 50);
    source.set_seed(5489);
    QCOMPARE(next_numbers(source, 52), (numbers{5, 33}) + later);
}

void tst_numberstorage::the_table_form_changes_the_range_at_once()
{
    setting settings;
    numberStorage source(settings);
    source.set_seed(4);
    for (int round = 0; round < 5; ++round) {
        settings.set_s_table_form(1);
        QVERIFY(next_numbers(source, 2'000).contains(37));
        settings.set_s_table_form(0);
        QVERIFY(!next_numbers(source, 2'000).contains(37));
    }
}

// A number is expected 100,000 / 38 = 2632 times with a deviation of 51; five of them are allowed.
void tst_numberstorage::the_double_zero_is_as_frequent_as_any_number()
{
    setting settings;
    settings.set_s_table_form(1);
    numberStorage source(settings);
    source.set_seed(11);
    std::array<int, 38> hits = {};
    for (int coup = 0; coup < 100'000; ++coup) {
        const int number = source.next_number();
        QVERIFY(number >= 0 && number <= 37);
        ++hits[static_cast<size_t>(number)];
    }
    for (const int count : hits)
        QVERIFY(qAbs(count - 2632) < 255);
}

void tst_numberstorage::the_zero_mode_gives_zeros()
{
    const setting settings;
    numberStorage source(settings);
    source.set_source_mode(number_source::zero);
    QCOMPARE(next_numbers(source, 3), (numbers{0, 0, 0}));
    source.set_source_mode(number_source::manual); // needs a number
    QCOMPARE(source.get_source_mode(), number_source::zero);
}

void tst_numberstorage::a_manual_number_counts_for_one_coup()
{
    const setting settings;
    numberStorage source(settings);
    source.set_source_mode(number_source::zero);
    source.set_manual_number(17);
    QCOMPARE(source.get_source_mode(), number_source::manual);
    QCOMPARE(next_numbers(source, 3), (numbers{17, 0, 0}));
    QCOMPARE(source.get_source_mode(), number_source::zero);
}

void tst_numberstorage::a_later_manual_number_overrides_an_earlier_one()
{
    const setting settings;
    numberStorage source(settings);
    source.set_source_mode(number_source::zero);
    source.set_manual_number(17);
    source.set_manual_number(18);
    QCOMPARE(next_numbers(source, 2), (numbers{18, 0}));
}

void tst_numberstorage::a_cancelled_manual_number_is_not_played()
{
    const setting settings;
    numberStorage source(settings);
    source.set_source_mode(number_source::zero);
    source.set_manual_number(17);
    source.cancel_manual_number();
    QCOMPARE(source.get_source_mode(), number_source::zero);
    QCOMPARE(source.next_number(), 0);

    source.set_manual_number(18); // leaves zero behind as the mode before
    source.next_number();
    source.set_source_mode(number_source::load_file);
    source.cancel_manual_number();
    QCOMPARE(source.get_source_mode(), number_source::load_file);
}

void tst_numberstorage::a_mode_change_acts_behind_the_manual_number()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp"}));
    source.set_manual_number(17);
    source.set_source_mode(number_source::zero);
    QCOMPARE(source.get_source_mode(), number_source::manual);
    QCOMPARE(next_numbers(source, 2), (numbers{17, 0}));

    source.set_load_files(choice_of({"abc.inp"}));
    source.set_manual_number(17);
    source.reset_load_files();
    QCOMPARE(source.get_source_mode(), number_source::manual);
    QCOMPARE(source.next_number(), 17);
    QCOMPARE(source.get_source_mode(), number_source::random);

    source.set_manual_number(17);
    source.set_load_files(choice_of({"abc.inp"}));
    QCOMPARE(source.in_load_mode(), true);
    QCOMPARE(next_numbers(source, 2), (numbers{17, 1}));
}

void tst_numberstorage::a_double_zero_by_hand_needs_the_american_table()
{
    setting settings;
    numberStorage source(settings);
    source.set_source_mode(number_source::zero);
    source.set_manual_number(37);
    QCOMPARE(source.get_source_mode(), number_source::zero);

    settings.set_s_table_form(1);
    source.set_manual_number(37);
    QCOMPARE(source.next_number(), 37);
    source.set_manual_number(37);
    settings.set_s_table_form(0);
    QCOMPARE(source.get_source_mode(), number_source::zero);
    settings.set_s_table_form(1);
    QCOMPARE(source.next_number(), 0);

    source.set_manual_number(36);
    settings.set_s_table_form(0);
    QCOMPARE(source.next_number(), 36);
}

void tst_numberstorage::numbers_that_do_not_exist_are_not_taken_by_hand()
{
    setting settings;
    settings.set_s_table_form(1);
    numberStorage source(settings);
    for (const int value : {-1, 38, 99})
        source.set_manual_number(value);
    QCOMPARE(source.get_source_mode(), number_source::random);
}

void tst_numberstorage::the_text_of_the_manual_number_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << "0";
    QTest::newRow("one digit") << 7 << "7";
    QTest::newRow("two digits") << 36 << "36";
    QTest::newRow("double zero") << 37 << "00";
}

void tst_numberstorage::the_text_of_the_manual_number()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    setting settings;
    settings.set_s_table_form(1);
    numberStorage source(settings);
    source.set_manual_number(number);
    QCOMPARE(source.manual_number_text(), text);
}

void tst_numberstorage::the_hand_change_text_follows_the_setting()
{
    setting settings;
    const numberStorage source(settings);
    const QStringList texts = {"-", "--", "-", "-", "-", "-"};
    for (int index = 0; index < texts.size(); ++index) {
        settings.set_s_hand_change_sign_index(index);
        QCOMPARE(source.hand_change_text(), texts.at(index));
    }
}

void tst_numberstorage::the_permanence_shows_marks_when_asked()
{
    const setting settings;
    numberStorage source(settings);
    QCOMPARE(source.last_numbers(10, true), numbers{});
    for (const int number : {5, 99, 37})
        source.add_to_permanence(number);
    QCOMPARE(source.last_numbers(10, true), (numbers{-1, -1, -1, -1, -1, -1, -1, 5, 99, 37}));
    QCOMPARE(source.last_numbers(3, false), (numbers{-1, 5, 37}));
    QCOMPARE(source.history().all().size(), size_t{3});
    source.clear_permanence();
    QCOMPARE(source.last_numbers(10, true), numbers{});
}

void tst_numberstorage::load_numbers_are_played_in_order()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp"}));
    QCOMPARE(source.get_source_mode(), number_source::load_file);
    QCOMPARE(source.get_load_file_name(), QStringLiteral("abc.inp"));
    QCOMPARE(source.load_files().size(), 9);
    QCOMPARE(source.load_info().numbers, 3);

    QCOMPARE(next_numbers(source, 2), (numbers{1, 2}));
    QVERIFY(source.number_is_from_load_file());
    QVERIFY(!source.last_number_is_out());
    QCOMPARE(source.get_load_throw_counter(), 2);
    QCOMPARE(source.load_info().played, 2);

    const QStringList told = told_by(source, [&] { QCOMPARE(source.next_number(), 3); });
    QCOMPARE(told, QStringList{"last"});
    QVERIFY(source.last_number_is_out());
    QVERIFY(source.load_active()); // until it is cleared
    source.clear_last_number_is_out();
    QVERIFY(!source.last_number_is_out());
}

void tst_numberstorage::follow_files_are_played_one_after_the_other()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp", "de.inp", "f.inp"}));
    QCOMPARE(source.follow_files_left(), 2);
    numbers taken;
    const QStringList told = told_by(source, [&] { taken = next_numbers(source, 6); });
    QCOMPARE(taken, (numbers{1, 2, 3, 4, 5, 6}));
    QCOMPARE(told, (QStringList{"next de.inp", "next f.inp", "last"}));
    QCOMPARE(source.load_files(), QStringList({"", "", "", "", "", "", "", "", ""}));
    QCOMPARE(source.follow_files_left(), 0);
}

void tst_numberstorage::the_name_changes_with_the_first_number_of_a_file()
{
    QVERIFY(QDir().mkpath("sysin"));
    write("sysin/first.inp", "first\n1\n");
    write("sysin/second.inp", "second\n2\n3\n");
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"sysin/first.inp", "sysin/second.inp"}));
    QCOMPARE(source.next_number(), 1);
    QCOMPARE(source.get_load_file_name(), QStringLiteral("first.inp"));
    QCOMPARE(source.load_info().description, QStringLiteral("first"));
    QCOMPARE(source.get_load_throw_counter(), 1);
    QCOMPARE(source.follow_files_left(), 1); // open, but not in play
    QCOMPARE(source.next_number(), 2);
    QCOMPARE(source.get_load_file_name(), QStringLiteral("second.inp"));
    QCOMPARE(source.load_info().description, QStringLiteral("second"));
    QCOMPARE(source.load_info().file_name, QStringLiteral("sysin/second.inp"));
    QCOMPARE(source.load_info().played, 1);
    QCOMPARE(source.get_load_throw_counter(), 1);
    QCOMPARE(source.follow_files_left(), 0);
}

void tst_numberstorage::a_follow_file_without_numbers_ends_the_run_data()
{
    QTest::addColumn<QString>("follow_file");
    QTest::newRow("empty entry") << "";
    QTest::newRow("empty file") << "empty.inp";
    QTest::newRow("text alone") << "text.inp";
    QTest::newRow("absent file") << "absent.inp";
    QTest::newRow("folder") << ".";
}

void tst_numberstorage::a_follow_file_without_numbers_ends_the_run()
{
    QFETCH(QString, follow_file);
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"f.inp", follow_file, "de.inp"}));
    const QStringList told = told_by(source, [&] { QCOMPARE(source.next_number(), 6); });
    QCOMPARE(told, QStringList{"last"});
    QVERIFY(source.last_number_is_out());
    QCOMPARE(source.get_load_file_name(), QStringLiteral("f.inp"));
    QCOMPARE(source.step_to_next_load_file(), false); // the run is over
    QCOMPARE(source.next_number(), -1);
}

void tst_numberstorage::a_follow_file_of_marks_alone_is_played()
{
    write("marks.inp", "-\n-\n");
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"f.inp", "marks.inp", "de.inp"}));
    numbers taken;
    const QStringList told = told_by(source, [&] { taken = next_numbers(source, 5); });
    QCOMPARE(taken, (numbers{6, 99, 99, 4, 5}));
    QCOMPARE(told, (QStringList{"next marks.inp", "next de.inp", "last"}));
}

void tst_numberstorage::all_files_of_a_collection_are_played()
{
    QByteArray content = "// twelve tables\n";
    numbers expected;
    for (int file = 1; file <= 12; ++file) {
        const QByteArray name = "table" + QByteArray::number(file) + ".inp";
        write(name, QByteArray::number(file));
        content += name + '\n';
        expected.append(file);
    }
    write("tables.snp", content);
    const load_file_collection collection = read_load_file_collection("tables.snp");
    load_file_settings choice = choice_of(collection.found);
    choice.description = collection.description;

    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice);
    QCOMPARE(source.load_files().size(), 12);
    QCOMPARE(source.follow_files_left(), 11);
    QCOMPARE(source.load_settings().description, QStringLiteral("// twelve tables"));
    QCOMPARE(next_numbers(source, 12), expected);
    QVERIFY(source.last_number_is_out());
    QCOMPARE(source.get_load_file_name(), QStringLiteral("table12.inp"));
}

void tst_numberstorage::an_empty_main_file_gives_no_number_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("none") << "";
    QTest::newRow("empty file") << "empty.inp";
    QTest::newRow("text alone") << "text.inp";
    QTest::newRow("absent file") << "absent.inp";
}

void tst_numberstorage::an_empty_main_file_gives_no_number()
{
    QFETCH(QString, file);
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({file, "de.inp"}));
    QCOMPARE(source.get_source_mode(), number_source::load_file);
    QVERIFY(!source.last_number_is_out());
    const QStringList told = told_by(source, [&] { QCOMPARE(source.next_number(), -1); });
    QCOMPARE(told, QStringList{});
    QCOMPARE(source.get_last_number(), -1);
    QCOMPARE(source.number_is_from_load_file(), false);
    QVERIFY(source.last_number_is_out());
}

void tst_numberstorage::a_file_that_ends_with_a_mark_leaves_no_number()
{
    write("mark.inp", "1\n-\n");
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"mark.inp"}));
    QCOMPARE(next_numbers(source, 3), (numbers{1, 99, -1}));
    QVERIFY(source.last_number_is_out());
}

void tst_numberstorage::double_zeros_on_the_french_table_are_warned_of()
{
    write("zeros.inp", "0 00 5\n00");
    setting settings;
    numberStorage source(settings);
    const load_file_settings choice = choice_of({"zeros.inp"});
    QCOMPARE(told_by(source, [&] { source.set_load_files(choice); }), (QStringList{"00", "00"}));
    QCOMPARE(next_numbers(source, 4), (numbers{0, 0, 5, 0}));

    settings.set_s_table_form(1);
    QCOMPARE(told_by(source, [&] { source.set_load_files(choice); }), QStringList{});
    QCOMPARE(next_numbers(source, 4), (numbers{0, 37, 5, 37}));
}

void tst_numberstorage::illegal_numbers_are_told_and_left_out()
{
    write("illegal.inp", "37 1 99 4000000000");
    setting settings;
    numberStorage source(settings);
    const QStringList expected = {"illegal 37", "illegal 99", "illegal 2147483647"};
    for (const int form : {0, 1}) {
        settings.set_s_table_form(form);
        QTest::ignoreMessage(QtDebugMsg, "illegal number found 37");
        QTest::ignoreMessage(QtDebugMsg, "illegal number found 99");
        QTest::ignoreMessage(QtDebugMsg, "illegal number found 2147483647");
        const auto read = [&] { source.set_load_files(choice_of({"illegal.inp"})); };
        QCOMPARE(told_by(source, read), expected);
        QCOMPARE(next_numbers(source, 2), (numbers{1, -1}));
    }
}

void tst_numberstorage::a_double_zero_left_over_becomes_a_zero()
{
    write("zeros.inp", "00 00 3");
    setting settings;
    settings.set_s_table_form(1);
    numberStorage source(settings);
    source.set_load_files(choice_of({"zeros.inp"}));
    QCOMPARE(source.next_number(), 37);
    settings.set_s_table_form(0);
    QCOMPARE(next_numbers(source, 2), (numbers{0, 3}));
}

void tst_numberstorage::the_hand_change_sign_is_taken_anew_for_each_read()
{
    write("signs.inp", "-\n--\n1\n");
    setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"signs.inp"}));
    QCOMPARE(next_numbers(source, 3), (numbers{99, 99, 1}));
    settings.set_s_hand_change_sign_index(1);
    source.set_load_files(choice_of({"signs.inp"}));
    QCOMPARE(next_numbers(source, 2), (numbers{99, 1}));
}

void tst_numberstorage::start_modes_cut_every_file()
{
    const setting settings;
    numberStorage source(settings);
    load_file_settings choice = choice_of({"abc.inp", "de.inp"});
    choice.start_mode = general_loadfile::FIX_START;
    choice.fix_start = 1;
    source.set_load_files(choice);
    QCOMPARE(source.load_info().numbers, 2);
    QCOMPARE(next_numbers(source, 3), (numbers{2, 3, 5}));

    // A place of 1 empties the list: as the main file and as a follow file.
    choice.start_mode = general_loadfile::RANDOM_START_1;
    choice.random_1_begin = 1;
    choice.random_1_end = 1;
    source.set_load_files(choice);
    QCOMPARE(source.load_info().numbers, 0);
    QCOMPARE(source.next_number(), -1);

    choice.random_1_begin = 3; // the third of three, but beyond two
    choice.random_1_end = 3;
    source.set_load_files(choice);
    const QStringList told = told_by(source, [&] { QCOMPARE(source.next_number(), 3); });
    QCOMPARE(told, QStringList{"last"});
}

void tst_numberstorage::random_starts_repeat_with_a_seed()
{
    QByteArray content;
    for (int count = 0; count < 1'000; ++count)
        content += QByteArray::number(count % 37) + '\n';
    write("long.inp", content);
    const setting settings;
    numberStorage source(settings);
    load_file_settings choice = choice_of({"long.inp"});
    choice.start_mode = general_loadfile::RANDOM_START_1;
    choice.random_1_begin = 2;
    choice.random_1_end = 900;

    QList<int> first_run;
    QList<int> second_run;
    for (QList<int>* run : {&first_run, &second_run}) {
        source.set_seed(99);
        for (int start = 0; start < 10; ++start) {
            source.set_load_files(choice);
            run->append(source.load_info().numbers);
        }
    }
    QCOMPARE(second_run, first_run);
    for (const int left : first_run)
        QVERIFY(left >= 101 && left <= 999);
    QVERIFY(QSet<int>(first_run.begin(), first_run.end()).size() > 5);
}

void tst_numberstorage::a_manual_number_in_load_mode_is_not_from_a_file()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp"}));
    source.set_manual_number(17);
    QCOMPARE(source.in_load_mode(), true);
    QCOMPARE(source.next_number(), 17);
    QCOMPARE(source.number_is_from_load_file(), false);
    QCOMPARE(source.get_load_throw_counter(), 0);
    QCOMPARE(source.next_number(), 1);
    QCOMPARE(source.number_is_from_load_file(), true);
}

void tst_numberstorage::clearing_gives_back_the_first_state()
{
    const setting settings;
    numberStorage source(settings);
    load_file_settings choice = choice_of({"abc.inp", "de.inp"});
    choice.group_file = "tables.snp";
    choice.group_file_count = 2;
    choice.pause_at_end = true;
    choice.description = "// tables";
    source.set_load_files(choice);
    source.next_number();
    QCOMPARE(told_by(source, [&] { source.reset_load_files(); }), QStringList{"ended"});

    QCOMPARE(source.get_source_mode(), number_source::random);
    QCOMPARE(source.in_load_mode(), false);
    QVERIFY(source.load_settings() == load_file_settings());
    QCOMPARE(source.load_files(), QStringList({"", "", "", "", "", "", "", "", ""}));
    QCOMPARE(source.get_load_file_name(), QString());
    QCOMPARE(source.get_load_throw_counter(), 0);
    source.set_source_mode(number_source::load_file);
    QCOMPARE(source.next_number(), -1);

    QCOMPARE(told_by(source, [&] { source.reset_load_files(); }), QStringList{});
}

void tst_numberstorage::an_inactive_choice_ends_the_load_mode()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp"}));
    load_file_settings choice = choice_of({"abc.inp"});
    choice.active = false;
    source.set_load_files(choice);
    QCOMPARE(source.get_source_mode(), number_source::random);
    QCOMPARE(source.load_active(), false);
    QCOMPARE(source.load_files().first(), QStringLiteral("abc.inp"));
    QCOMPARE(source.get_load_file_name(), QString());
}

void tst_numberstorage::the_state_can_be_saved_and_put_back()
{
    const setting settings;
    numberStorage source(settings);
    load_file_settings choice = choice_of({"abc.inp", "de.inp"});
    choice.start_mode = general_loadfile::FIX_START;
    choice.fix_start = 1;
    source.set_load_files(choice);
    source.next_number();
    const load_file_state saved = source.load_state();
    QCOMPARE(saved.settings.active, true);
    QCOMPARE(saved.settings.fix_start, 1);
    QCOMPARE(saved.load_file_name, QStringLiteral("abc.inp"));
    QCOMPARE(saved.load_throw_counter, 1);

    source.reset_load_files();
    source.set_load_state(saved);
    QVERIFY(source.load_settings() == saved.settings);
    QCOMPARE(source.get_load_file_name(), QStringLiteral("abc.inp"));
    QCOMPARE(source.get_load_throw_counter(), 1);

    load_file_state bare;
    bare.settings.files.clear();
    source.set_load_state(bare);
    QCOMPARE(source.load_files().size(), 9);
}

void tst_numberstorage::the_end_flag_is_cleared_by_a_new_run()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"f.inp"}));
    source.next_number();
    QVERIFY(source.last_number_is_out());
    source.set_load_files(choice_of({"f.inp"}));
    QVERIFY(!source.last_number_is_out());
    source.next_number();
    source.reset_load_files();
    QVERIFY(!source.last_number_is_out());
}

void tst_numberstorage::counting_leaves_the_run_alone()
{
    write("marked.inp", "one table\n1 2\n-\n3\n");
    const setting settings;
    numberStorage source(settings);
    load_file_settings choice = choice_of({"abc.inp"});
    choice.start_mode = general_loadfile::FIX_START;
    choice.fix_start = 1;
    source.set_load_files(choice);
    QCOMPARE(source.count_load_file_numbers("marked.inp"), 3); // no start mode
    QCOMPARE(source.load_info().hand_changes, 1);
    QCOMPARE(source.load_info().description, QStringLiteral("one table"));
    QCOMPARE(source.count_load_file_numbers(""), 0);
    QCOMPARE(source.count_load_file_numbers("absent.inp"), 0);
    QCOMPARE(source.load_files().first(), QStringLiteral("abc.inp"));
    QCOMPARE(next_numbers(source, 2), (numbers{2, 3}));
}

void tst_numberstorage::a_read_reports_what_it_read()
{
    const setting settings;
    numberStorage source(settings);
    std::vector<quint8> list = {9, 9};
    const load_file_info info = source.read_number_files(
        {"abc.inp", "text.inp", "de.inp"}, list, reading_mode::history, QDate(1970, 1, 1));
    QVERIFY(list == (std::vector<quint8>{1, 2, 3, 4, 5}));
    QCOMPARE(info.numbers, 5);
    QCOMPARE(info.description, QStringLiteral("no number 7"));
    QCOMPARE(info.file_name, QStringLiteral("de.inp"));
    QCOMPARE(info.played, 0);
}

void tst_numberstorage::the_skip_flag_outlives_a_history_read()
{
    write("old.log", "::  x,no date\n1 2\n");
    const setting settings;
    numberStorage source(settings);
    std::vector<quint8> list;
    source.read_number_files({"old.log"}, list, reading_mode::history, QDate(2018, 3, 2));
    QVERIFY(list.empty());
    QCOMPARE(source.count_load_file_numbers("abc.inp"), 0);
    source.reset_load_files();
    QCOMPARE(source.count_load_file_numbers("abc.inp"), 0);

    const QDateTime moment(QDate(2018, 3, 3), QTime(20, 0));
    const QString header = "::  " + moment.toString("dddd,dd.MMMM.yyyy hh:mm:ss");
    write("new.log", header.toUtf8() + "\n3\n");
    source.read_number_files({"new.log"}, list, reading_mode::history, QDate(2018, 3, 2));
    QVERIFY(list == std::vector<quint8>{3});
    QCOMPARE(source.count_load_file_numbers("abc.inp"), 3);
}

void tst_numberstorage::a_step_goes_to_the_next_file()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp", "de.inp", "f.inp"}));
    source.next_number();
    QCOMPARE(told_by(source, [&] { QVERIFY(source.step_to_next_load_file()); }), QStringList{});
    QCOMPARE(source.get_load_file_name(), QStringLiteral("abc.inp"));
    QCOMPARE(told_by(source, [&] { QCOMPARE(source.next_number(), 4); }),
             QStringList{"next de.inp"});
    QCOMPARE(source.follow_files_left(), 1);
}

void tst_numberstorage::a_step_does_not_skip_an_unplayed_file()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp", "de.inp", "f.inp"}));
    QVERIFY(source.step_to_next_load_file());
    QVERIFY(source.step_to_next_load_file()); // a second system in the same coup
    QCOMPARE(next_numbers(source, 2), (numbers{4, 5}));
    QVERIFY(source.step_to_next_load_file()); // opened behind the 5
    QCOMPARE(source.next_number(), 6);
}

void tst_numberstorage::a_step_into_an_empty_file_ends_the_run()
{
    const setting settings;
    numberStorage source(settings);
    source.set_load_files(choice_of({"abc.inp", "empty.inp", "f.inp"}));
    source.next_number();
    QCOMPARE(told_by(source, [&] { QVERIFY(!source.step_to_next_load_file()); }),
             QStringList{"last"});
    QVERIFY(source.last_number_is_out());
    QVERIFY(!source.step_to_next_load_file());
    QCOMPARE(source.next_number(), -1);
}

void tst_numberstorage::a_step_outside_of_a_run_does_nothing()
{
    const setting settings;
    numberStorage source(settings);
    QVERIFY(!source.step_to_next_load_file());

    source.set_load_files(choice_of({"abc.inp"})); // no file follows
    QVERIFY(!source.step_to_next_load_file());
    QVERIFY(!source.last_number_is_out());
    QCOMPARE(next_numbers(source, 3), (numbers{1, 2, 3}));
}

void tst_numberstorage::reads_during_a_read_do_nothing()
{
    const setting settings;
    numberStorage source(settings);
    int lines = 0;
    source.set_line_hook([&] {
        ++lines;
        std::vector<quint8> list = {1};
        const load_file_info info =
            source.read_number_files({"abc.inp"}, list, reading_mode::count, QDate());
        QVERIFY(list.empty());
        QCOMPARE(info.numbers, 0);
        QCOMPARE(source.count_load_file_numbers("abc.inp"), 0);
        source.set_load_files(choice_of({"f.inp"}));
        source.reset_load_files();
        QVERIFY(!source.step_to_next_load_file());
    });
    source.set_load_files(choice_of({"abc.inp", "de.inp"}));
    QCOMPARE(next_numbers(source, 5), (numbers{1, 2, 3, 4, 5}));
    QCOMPARE(lines, 2);
}

// There may be millions of them, and what hears of them may take its time. Each of the six calls
// stands before what it is about: two lines, two double zeros, two illegal values.
void tst_numberstorage::oddities_are_told_among_other_work()
{
    write("odd.inp", "5 00 40\n00 41\n");
    QTest::ignoreMessage(QtDebugMsg, "illegal number found 40");
    QTest::ignoreMessage(QtDebugMsg, "illegal number found 41");
    const setting settings;
    numberStorage source(settings);
    int calls = 0;
    QList<int> calls_before; // each thing that was told
    const auto note = [&] { calls_before.append(calls); };
    connect(&source, &numberStorage::load_file_warning_00_on_franz_table, this, note);
    connect(&source, &numberStorage::load_file_illegal_number_found, this, note);
    source.set_line_hook([&] {
        ++calls;
        QCOMPARE(source.count_load_file_numbers("abc.inp"), 0); // it is still reading
        if (calls == 5) source.set_line_hook({});
    });
    QCOMPARE(source.count_load_file_numbers("odd.inp"), 3);
    QCOMPARE(calls_before, (QList<int>{3, 4, 5, 6}));
    QCOMPARE(source.count_load_file_numbers("abc.inp"), 3);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_numberstorage>(argc, argv);
}
#include "tst_numberstorage.moc"
