#include "start_modes.h"
#include "test_box.h"

#include <limits>
#include <random>

using numbers = QList<int>;

static start_numbers file_of(const numbers& entries)
{
    start_numbers file;
    for (const int entry : entries) {
        file.numbers.push_back(static_cast<quint8>(entry));
        if (entry == 99) ++file.hand_changes;
    }
    return file;
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

static numbers entries_of(const start_numbers& file)
{
    numbers entries;
    for (const quint8 entry : file.numbers)
        entries.append(entry);
    return entries;
}

static load_file_settings fix_start(int count)
{
    load_file_settings settings;
    settings.start_mode = general_loadfile::FIX_START;
    settings.fix_start = count;
    return settings;
}

static load_file_settings random_start_1(int begin, int end)
{
    load_file_settings settings;
    settings.start_mode = general_loadfile::RANDOM_START_1;
    settings.random_1_begin = begin;
    settings.random_1_end = end;
    return settings;
}

static load_file_settings random_start_2(int attacks, int length)
{
    load_file_settings settings;
    settings.start_mode = general_loadfile::RANDOM_START_2;
    settings.random_2_max_attack = attacks;
    settings.random_2_length = length;
    return settings;
}

/// Hands out the values in turn, and 0 behind them.
static std::function<int()> sequence(const numbers& values)
{
    return [values, next = 0]() mutable { return values.value(next++, 0); };
}

static const numbers one_to_ten = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};

/// The start modes as lists are cut by hand: entry by entry from the head of the list.
namespace by_hand
{

static void fix_start(numbers& list, int& marks, int count)
{
    int steps = 0;
    int dropped = 0;
    for (;;) {
        if (list.takeFirst() == 99) {
            --marks;
        } else if (++dropped == count) {
            return;
        }
        if (++steps >= list.size()) return;
    }
}

static void random_start_1(numbers& list, int& marks, int place)
{
    int counter = 1;
    while (!list.isEmpty()) {
        if (list.takeFirst() == 99) {
            --marks;
        } else if (++counter == place) {
            return;
        }
    }
}

static void attack(const numbers& list, int place, int length, numbers& result, int& marks)
{
    int count = 0;
    int run = 0;
    for (const int entry : list) {
        if (run > 0) {
            result.append(entry);
            if (entry == 99) {
                ++marks;
            } else {
                ++run;
            }
        } else if (entry != 99 && ++count == place) {
            result.append(entry);
            run = 1;
            marks = 0;
        }
        if (run > 0 && run == length && entry != 99) return;
    }
}

} // namespace by_hand

class tst_start_modes : public QObject
{
    Q_OBJECT

private slots:
    void the_normal_start_plays_everything();
    void the_fix_start_drops_numbers_up_to_the_half_data();
    void the_fix_start_drops_numbers_up_to_the_half();
    void the_random_start_1_begins_at_a_place_data();
    void the_random_start_1_begins_at_a_place();
    void the_random_start_2_plays_attacks_data();
    void the_random_start_2_plays_attacks();
    void every_mode_equals_a_walk_by_hand();
    void overlapping_attacks_are_limited();
    void any_settings_come_to_an_end_data();
    void any_settings_come_to_an_end();
};

void tst_start_modes::the_normal_start_plays_everything()
{
    load_file_settings settings;
    for (const int mode : {0, 4, -1}) { // the normal start and unknown ones
        settings.start_mode = mode;
        const start_numbers cut = apply_start_mode(file_of({1, 99, 2}), settings, sequence({}));
        QCOMPARE(entries_of(cut), (numbers{1, 99, 2}));
        QCOMPARE(cut.hand_changes, 1);
    }
}

void tst_start_modes::the_fix_start_drops_numbers_up_to_the_half_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("played");
    QTest::addColumn<int>("marks"); // hand changes counted afterwards
    const QString ten = "1 2 3 4 5 6 7 8 9 10";
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    // clang-format off
    row("start on nothing")            << ""                  << 3 << ""                   << 0;
    row("begins at the second number") << ten                 << 1 << "2 3 4 5 6 7 8 9 10" << 0;
    row("four numbers")                << ten                 << 4 << "5 6 7 8 9 10"       << 0;
    row("8 of 10 drops 5")             << ten                 << 8 << "6 7 8 9 10"         << 0;
    row("9 of 9 drops 5")              << "1 2 3 4 5 6 7 8 9" << 9 << "6 7 8 9"            << 0;
    row("0 drops the half")            << ten                 << 0 << "6 7 8 9 10"         << 0;
    row("one of one number")           << "5"                 << 1 << ""                   << 0;
    row("leaves marks out")            << "99 1 2 99 3 4"     << 1 << "2 99 3 4"           << 1;
    row("marks count for the half")    << "99 1 99 2 3 4"     << 2 << "2 3 4"              << 0;
    // clang-format on
}

void tst_start_modes::the_fix_start_drops_numbers_up_to_the_half()
{
    QFETCH(QString, list);
    QFETCH(int, count);
    QFETCH(QString, played);
    QFETCH(int, marks);
    const start_numbers cut =
        apply_start_mode(file_of(numbers_in(list)), fix_start(count), sequence({}));
    QCOMPARE(entries_of(cut), numbers_in(played));
    QCOMPARE(cut.hand_changes, marks);
}

void tst_start_modes::the_random_start_1_begins_at_a_place_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("begin");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("random");
    QTest::addColumn<QString>("played");
    QTest::addColumn<int>("marks"); // hand changes counted afterwards
    const QString ten = "1 2 3 4 5 6 7 8 9 10";
    const int far = std::numeric_limits<int>::max();
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    // clang-format off
    row("place 2")         << ten           << 2    << 2   << "77" << "2 3 4 5 6 7 8 9 10" << 0;
    row("place 1")         << ten           << 1    << 1   << "77" << ""                   << 0;
    row("of a range")      << ten           << 3    << 6   << "5"  << "4 5 6 7 8 9 10"     << 0;
    row("last place")      << ten           << 3    << 6   << "7"  << "6 7 8 9 10"         << 0;
    row("beyond the list") << ten           << 50   << 50  << "0"  << ""                   << 0;
    row("without range")   << ten           << 5    << 4   << "3"  << "5 6 7 8 9 10"       << 0;
    row("upside down")     << ten           << 5    << 2   << "3"  << "5 6 7 8 9 10"       << 0;
    row("counts no marks") << "99 1 99 2 3" << 2    << 2   << "0"  << "99 2 3"             << 1;
    row("at the limits")   << ten           << -far << far << "0"  << ""                   << 0;
    // clang-format on
}

void tst_start_modes::the_random_start_1_begins_at_a_place()
{
    QFETCH(QString, list);
    QFETCH(int, begin);
    QFETCH(int, end);
    QFETCH(QString, random);
    QFETCH(QString, played);
    QFETCH(int, marks);
    const start_numbers cut = apply_start_mode(
        file_of(numbers_in(list)), random_start_1(begin, end), sequence(numbers_in(random)));
    QCOMPARE(entries_of(cut), numbers_in(played));
    QCOMPARE(cut.hand_changes, marks);
}

void tst_start_modes::the_random_start_2_plays_attacks_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("attacks");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("random");
    QTest::addColumn<QString>("played");
    QTest::addColumn<int>("marks"); // hand changes counted afterwards
    const QString ten = "1 2 3 4 5 6 7 8 9 10";
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    // clang-format off
    row("the defaults") << ten                    << 1  << 10 << "77"    << ten               << 0;
    row("two attacks")  << ten                    << 2  << 2  << "1 4"   << "2 3 6 7"         << 0;
    row("divisor 0")    << ten                    << 2  << 4  << "9 9"   << "1 2 3 4 6 7 8 9" << 0;
    row("length 1")     << "1 2 3 4 5 6 7 8"      << 4  << 1  << ""      << "1 3 5 7"         << 0;
    row("one each")     << ten                    << 10 << 1  << "3 3 3" << ten               << 0;
    row("no attack")    << ten                    << 0  << 3  << ""      << ten               << 0;
    row("-3 attacks")   << ten                    << -3 << 3  << ""      << ten               << 0;
    row("no length")    << ten                    << 1  << 0  << "8"     << "9 10"            << 0;
    row("to the end")   << "1 2 3"                << 1  << 5  << "2"     << "3"               << 0;
    row("marks at end") << "1 2 3 99"             << 1  << 5  << "2"     << "3 99"            << 1;
    row("last marks")   << "1 99 2 99 3 4 99 5 6" << 2  << 2  << ""      << "1 99 2 4 99 5"   << 1;
    row("all beyond")   << "1 99 2"               << 3  << 10 << "5 5 5" << "1 99 2"          << 1;
    row("many attacks") << "1 2"                  << 3  << 1  << "0 1 2" << "1 2 1"           << 0;
    row("marks alone")  << "99 99"                << 1  << 1  << ""      << "99 99"           << 2;
    // clang-format on
}

void tst_start_modes::the_random_start_2_plays_attacks()
{
    QFETCH(QString, list);
    QFETCH(int, attacks);
    QFETCH(int, length);
    QFETCH(QString, random);
    QFETCH(QString, played);
    QFETCH(int, marks);
    const start_numbers cut = apply_start_mode(
        file_of(numbers_in(list)), random_start_2(attacks, length), sequence(numbers_in(random)));
    QCOMPARE(entries_of(cut), numbers_in(played));
    QCOMPARE(cut.hand_changes, marks);
}

void tst_start_modes::every_mode_equals_a_walk_by_hand()
{
    std::mt19937 random(7);
    const auto up_to = [&random](int last) { return static_cast<int>(random() >> 1) % (last + 1); };
    for (int round = 0; round < 3'000; ++round) {
        numbers list;
        const int size = 1 + up_to(30);
        for (int entry = 0; entry < size; ++entry)
            list.append(up_to(4) == 0 ? 99 : up_to(36));
        const start_numbers file = file_of(list);
        const int value = up_to(32);
        const int decision = up_to(1000);

        numbers expected = list;
        int marks = file.hand_changes;
        by_hand::fix_start(expected, marks, value);
        start_numbers cut = apply_start_mode(file, fix_start(value), sequence({}));
        QCOMPARE(entries_of(cut), expected);
        QCOMPARE(cut.hand_changes, marks);

        expected = list;
        marks = file.hand_changes;
        const int end = value + up_to(5);
        by_hand::random_start_1(expected, marks, decision % (end + 1 - value) + value);
        cut = apply_start_mode(file, random_start_1(value, end), sequence({decision}));
        QCOMPARE(entries_of(cut), expected);
        QCOMPARE(cut.hand_changes, marks);

        const int attacks = 1 + up_to(6);
        const int length = 1 + up_to(8);
        const int segment = (size - file.hand_changes) / attacks;
        const int divisor = segment - length - 1;
        expected.clear();
        marks = file.hand_changes;
        for (int attack = 0; attack < attacks; ++attack) {
            const int remainder = divisor == 0 ? 0 : (decision + attack) % divisor;
            by_hand::attack(list, attack * segment + remainder + 1, length, expected, marks);
        }
        if (expected.isEmpty()) expected = list;
        int next = decision;
        cut = apply_start_mode(file, random_start_2(attacks, length), [&next] { return next++; });
        QCOMPARE(entries_of(cut), expected);
        QCOMPARE(cut.hand_changes, marks);
    }
}

// Attack k of 10,000 copies the rest of the list from number k on: fifty million entries.
void tst_start_modes::overlapping_attacks_are_limited()
{
    start_numbers file;
    file.numbers.assign(10'000, 17);
    const start_numbers cut =
        apply_start_mode(file, random_start_2(10'000, 10'000), [] { return 0; });
    QVERIFY(cut.numbers.size() <= longest_attack_list);
    QVERIFY(cut.numbers.size() > longest_attack_list - 10'000);
}

void tst_start_modes::any_settings_come_to_an_end_data()
{
    QTest::addColumn<load_file_settings>("settings");
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    QTest::newRow("fix start far") << fix_start(most);
    QTest::newRow("fix start negative") << fix_start(least);
    QTest::newRow("random 1 over all numbers") << random_start_1(least, most);
    QTest::newRow("random 1 upside down") << random_start_1(most, least);
    QTest::newRow("random 2 with the most attacks") << random_start_2(most, most);
    QTest::newRow("random 2 with the least length") << random_start_2(1, least);
    QTest::newRow("random 2 with the least of all") << random_start_2(least, least);
}

void tst_start_modes::any_settings_come_to_an_end()
{
    QFETCH(load_file_settings, settings);
    const auto largest = [] { return std::numeric_limits<int>::max(); };
    const start_numbers cut = apply_start_mode(file_of(one_to_ten), settings, largest);
    QVERIFY(cut.numbers.size() <= longest_attack_list);
    QCOMPARE(cut.hand_changes, 0);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_start_modes>(argc, argv);
}
#include "tst_start_modes.moc"
