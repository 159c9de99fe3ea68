#include "naive_bets.h"
#include "number_records.h"
#include "statistic_data.h"
#include "test_box.h"

#include <QHash>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

/**
 * Every figure of the store against a second way of working it out: from the list of the numbers
 * that fell, the bets told by what they cover, runs and figures cut out of texts.
 */
class tst_statistic_counters : public QObject
{
    Q_OBJECT

private slots:
    void the_numbers_hold_what_the_figures_need_data();
    void the_numbers_hold_what_the_figures_need();
    void figures_agree_at_every_stop_data();
    void figures_agree_at_every_stop();
};

namespace
{

constexpr int coup_count = 100000;

/// Coups behind which all figures are compared.
const std::vector<int> stops = {0, 1, 2, 37, 1000, coup_count};

/// A number for each of the two sides of the three pairs of even chances.
constexpr std::array<int, 4> numbers_of_streaks = {1, 2, 35, 36};

/// Random numbers with streaks among them, and a zero behind every second streak: chance alone
/// gives hardly a run that is longer than a fresh histogram.
QVector<int> permanence(bool american)
{
    std::mt19937 generator(american ? 38 : 37);
    QVector<int> numbers;
    while (numbers.size() < coup_count) {
        numbers += naive_bets::random_numbers(
            generator, 200 + static_cast<int>(generator() % 300), american);
        const int number = numbers_of_streaks[generator() % numbers_of_streaks.size()];
        const int length = 15 + static_cast<int>(generator() % 30);
        numbers += QVector<int>(length, number);
        if (generator() % 2 == 0) numbers.append(0);
    }
    return numbers.mid(0, coup_count);
}

/// The numbers that fell so far, and what follows from them.
class naive_statistic
{
public:
    naive_statistic(QVector<int> fallen, bool on_american_table)
        : numbers(std::move(fallen))
        , american(on_american_table)
    {
    }

    int hits(const QString& bet) const
    {
        const std::array<bool, 38> wins = winning_numbers(bet);
        return static_cast<int>(std::count_if(numbers.begin(), numbers.end(), [&](int number) {
            return wins[static_cast<std::size_t>(number)];
        }));
    }

    /// Coups behind the last hit, looked for from the end.
    int since(const QString& bet) const
    {
        const std::array<bool, 38> wins = winning_numbers(bet);
        int coups = 0;
        while (coups < numbers.size() &&
               !wins[static_cast<std::size_t>(numbers.at(numbers.size() - 1 - coups))]) {
            ++coups;
        }
        return coups;
    }

    QList<int> hits_or_since(const QStringList& bets, bool want_since) const
    {
        QList<int> values;
        for (const QString& bet : bets)
            values.append(want_since ? since(bet) : hits(bet));
        return values;
    }

    QList<int> follow_row(int number) const
    {
        QHash<int, int> followers;
        for (int i = 1; i < numbers.size(); ++i) {
            if (numbers.at(i - 1) == number) ++followers[numbers.at(i)];
        }
        QList<int> row;
        for (int follower = 0; follower <= 37; ++follower)
            row.append(followers.value(follower));
        return row;
    }

    /// One letter per coup: 'A' for the first of the chances, 'B' for the second and so on, '0'
    /// where none of them hit.
    QString letters(const QStringList& chances) const
    {
        std::array<QChar, 38> letter_of;
        letter_of.fill('0');
        for (int i = 0; i < chances.size(); ++i) {
            for (const int number : naive_bets::covered_by(chances.at(i), american))
                letter_of[static_cast<std::size_t>(number)] = QChar('A' + i);
        }
        QString text;
        for (const int number : numbers)
            text += letter_of[static_cast<std::size_t>(number)];
        return text;
    }

    /// The pairs of hits and coups since, and of them the two ends.
    hot_and_cold_numbers hot_and_cold(int count) const
    {
        std::vector<std::tuple<int, int, int>> ranks; // hits, place of the last hit, number
        for (int number = 0; number <= (american ? 37 : 36); ++number) {
            ranks.emplace_back(numbers.count(number), numbers.lastIndexOf(number), number);
        }
        std::sort(ranks.begin(), ranks.end());
        hot_and_cold_numbers ends;
        for (int i = 0; i < count; ++i) {
            ends.cold.append(rank_of(ranks.at(static_cast<std::size_t>(i))));
            ends.hot.append(rank_of(ranks.at(ranks.size() - 1 - static_cast<std::size_t>(i))));
        }
        return ends;
    }

    QVector<int> numbers;
    bool american;

private:
    std::array<bool, 38> winning_numbers(const QString& bet) const
    {
        std::array<bool, 38> wins{};
        for (const int number : naive_bets::covered_by(bet, american))
            wins[static_cast<std::size_t>(number)] = true;
        return wins;
    }

    statistic_number_rank rank_of(const std::tuple<int, int, int>& rank) const
    {
        const auto [hits, last_place, number] = rank;
        const QString text = number == 37 ? QString("00") : QString::number(number);
        return {hits, text, last_place + 1 - numbers.size()};
    }
};

/// The lengths of the runs of a letter, in order; the run at the end still goes on.
QList<int> finished_runs(const QString& letters, QChar letter)
{
    QList<int> lengths;
    for (int begin = 0; begin < letters.size();) {
        int end = begin;
        while (end < letters.size() && letters.at(end) == letters.at(begin))
            ++end;
        if (letters.at(begin) == letter && end < letters.size()) lengths.append(end - begin);
        begin = end;
    }
    return lengths;
}

/// Runs of 1, 2, 3 ... coups: 19 entries, and nine more than the run whenever one does not fit.
QList<int> run_histogram(const QString& letters, QChar letter)
{
    const QList<int> lengths = finished_runs(letters, letter);
    int size = 19;
    for (const int length : lengths) {
        if (length > size) size = length + 9;
    }
    QList<int> histogram;
    for (int length = 1; length <= size; ++length)
        histogram.append(lengths.count(length));
    return histogram;
}

/// How often a figure stands in the letters, zeros cut out: "0,1" is 'A' and behind it 'B'.
QHash<QString, int> figure_counts(QString letters, int length)
{
    letters.remove('0');
    letters.replace('A', "0,").replace('B', "1,");
    QHash<QString, int> counts;
    for (int begin = 0; begin + 2 * length <= letters.size(); begin += 2)
        ++counts[letters.mid(begin, 2 * length - 1)];
    return counts;
}

QStringList bets(const QString& type, int first, int last)
{
    QStringList names;
    for (int index = first; index <= last; ++index)
        names.append(naive_bets::numbered_name(type, index));
    return names;
}

/// A getter of counters and the bets of its result.
struct counter_getter {
    QList<int> (statistic_data::*read)(bool) const;
    QStringList names;
};

QList<counter_getter> counter_getters()
{
    // clang-format off
    return {
        {&statistic_data::zero_numbers,         {"PL00", "PL37"}},
        {&statistic_data::numbers,              bets("PL", 1, 36)},
        {&statistic_data::splits,               bets("CH", 1, 63)},
        {&statistic_data::streets,              bets("TP", 1, 16)},
        {&statistic_data::six_lines,            bets("TS", 1, 11)},
        {&statistic_data::simple_chances,       bets("EC", 1, 6)},
        {&statistic_data::corners,              bets("CA", 1, 23)},
        {&statistic_data::columns_and_dozens,   bets("KL", 1, 3) + bets("DZ", 1, 3)},
        {&statistic_data::finals,               bets("FI", 0, 9)},
        {&statistic_data::sectors,              {"GS", "KS", "OR", "OP", "ZS"}},
        {&statistic_data::one_neighbour_bets,   bets("EN", 0, 37)},
        {&statistic_data::two_neighbour_bets,   bets("ZN", 0, 37)},
        {&statistic_data::three_neighbour_bets, bets("DN", 0, 37)},
    };
    // clang-format on
}

/// A course and its chances, with the colours in their order.
struct course_of_chances {
    colour_course_index index;
    QStringList chances;
    QList<Qt::GlobalColor> colours;
};

QList<course_of_chances> all_courses()
{
    using course = colour_course_index;
    const QList<Qt::GlobalColor> thirds = {Qt::darkYellow, Qt::cyan, Qt::darkRed};
    // clang-format off
    return {
        {course::low_high,  {"EC01", "EC06"},         {Qt::darkYellow, Qt::cyan}},
        {course::even_odd,  {"EC02", "EC05"},         {Qt::darkYellow, Qt::cyan}},
        {course::red_black, {"EC03", "EC04"},         {Qt::red, Qt::black}},
        {course::dozens,    {"DZ01", "DZ02", "DZ03"}, thirds},
        {course::columns,   {"KL01", "KL02", "KL03"}, thirds},
    };
    // clang-format on
}

jetons::jeton_names chance_of(const QString& name)
{
    return static_cast<jetons::jeton_names>(
        QMetaEnum::fromType<jetons::jeton_names>().keyToValue(name.toLatin1().constData()));
}

jetons::ext_jeton_names announcement_of(const QString& name)
{
    return static_cast<jetons::ext_jeton_names>(
        QMetaEnum::fromType<jetons::ext_jeton_names>().keyToValue(name.toLatin1().constData()));
}

void compare_counters(const statistic_data& store, const naive_statistic& naive)
{
    QCOMPARE(store.coup_count(), naive.numbers.size());
    for (const counter_getter& getter : counter_getters()) {
        for (const bool since : {false, true})
            QCOMPARE((store.*getter.read)(since), naive.hits_or_since(getter.names, since));
    }
}

void compare_follow_rows(const statistic_data& store, const naive_statistic& naive)
{
    for (int number = 0; number <= 37; ++number)
        QCOMPARE(store.follow_row(number), naive.follow_row(number));
}

void compare_chance_runs(const statistic_data& store, const naive_statistic& naive)
{
    for (const course_of_chances& course : all_courses()) {
        const QString letters = naive.letters(course.chances);
        for (int i = 0; i < course.chances.size(); ++i) {
            QCOMPARE(store.run_lengths(chance_of(course.chances.at(i))),
                     run_histogram(letters, QChar('A' + i)));
        }
    }
}

/// The runs of announcements, which a zero does not end.
void compare_announcement_runs(const statistic_data& store, const naive_statistic& naive)
{
    const QStringList finals = bets("FI", 0, 9);
    const QString final_letters = naive.letters(finals);
    for (int i = 0; i < finals.size(); ++i) {
        QCOMPARE(store.run_lengths(announcement_of(finals.at(i))),
                 run_histogram(final_letters, QChar('A' + i)));
    }
    const QStringList sectors = {"GS", "KS", "OR"};
    const QString sector_letters = naive.american ? QString() : naive.letters(sectors);
    for (int i = 0; i < sectors.size(); ++i) {
        QCOMPARE(store.run_lengths(announcement_of(sectors.at(i))),
                 run_histogram(sector_letters, QChar('A' + i)));
    }
}

void compare_courses(const statistic_data& store, const naive_statistic& naive)
{
    for (const course_of_chances& course : all_courses()) {
        QList<Qt::GlobalColor> expected;
        const QString letters = naive.letters(course.chances).remove('0');
        for (const QChar letter : letters)
            expected.append(course.colours.at(letter.unicode() - 'A'));
        QCOMPARE(store.colour_course(course.index), expected);
        QCOMPARE(store.colours_from(course.index, 0), expected.toVector());
        const int half = expected.size() / 2;
        QCOMPARE(store.colours_from(course.index, half), expected.toVector().mid(half));
    }
}

void compare_figures(const statistic_data& store, const naive_statistic& naive)
{
    for (int pair = 0; pair < statistic_data::pair_count; ++pair) {
        const QString letters = naive.letters(all_courses().at(pair).chances);
        for (const muster_figure_set& set : store.pattern_figures(pair).sets) {
            const QHash<QString, int> counts = figure_counts(letters, set.figure_length());
            int counted = 0;
            for (const muster_figure& figure : set.all_figures()) {
                QCOMPARE(figure.count, counts.value(figure.figure));
                counted += figure.count;
            }
            const int coups = letters.size() - letters.count('0');
            QCOMPARE(counted, std::max(0, coups + 1 - set.figure_length()));
        }
    }
}

void compare_ranks(const QList<statistic_number_rank>& ranks,
                   const QList<statistic_number_rank>& expected)
{
    QCOMPARE(ranks.size(), expected.size());
    for (int i = 0; i < ranks.size(); ++i) {
        QCOMPARE(ranks.at(i).text, expected.at(i).text);
        QCOMPARE(ranks.at(i).count, expected.at(i).count);
        QCOMPARE(ranks.at(i).negative_since, expected.at(i).negative_since);
    }
}

void compare_hot_and_cold(const statistic_data& store, const naive_statistic& naive)
{
    const int pockets = naive.american ? 38 : 37;
    for (const int count : {4, pockets}) {
        const hot_and_cold_numbers ends = store.hot_and_cold(count);
        const hot_and_cold_numbers expected = naive.hot_and_cold(count);
        compare_ranks(ends.hot, expected.hot);
        compare_ranks(ends.cold, expected.cold);
    }
}

void add_tables()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("French table") << false;
    QTest::newRow("American table") << true;
}

} // namespace

void tst_statistic_counters::the_numbers_hold_what_the_figures_need_data()
{
    add_tables();
}

void tst_statistic_counters::the_numbers_hold_what_the_figures_need()
{
    QFETCH(bool, american);
    const naive_statistic naive(permanence(american), american);
    QCOMPARE(naive.numbers.contains(37), american);
    for (const course_of_chances& course : all_courses()) {
        const QString letters = naive.letters(course.chances);
        for (int i = 0; i < course.chances.size(); ++i) {
            // Streaks are of 1, 2, 35 and 36: they make long runs of every even chance, of the
            // outer dozens and of every column.
            if (course.chances.at(i) == "DZ02") continue;
            const QString long_run = QString(21, QChar('A' + i));
            QVERIFY2(letters.contains(long_run + '0'), qPrintable(course.chances.at(i)));
        }
    }
}

void tst_statistic_counters::figures_agree_at_every_stop_data()
{
    add_tables();
}

void tst_statistic_counters::figures_agree_at_every_stop()
{
    QFETCH(bool, american);
    const table_form form = american ? table_form::american : table_form::french;
    const QVector<int> numbers = permanence(american);
    statistic_data store;
    store.set_table_form(form);
    int fed = 0;
    for (const int stop : stops) {
        for (; fed < stop; ++fed)
            store.addtoStat(property_of(numbers.at(fed)), false);
        const naive_statistic naive(numbers.mid(0, stop), american);
        for (const auto compare : {compare_counters,
                                   compare_follow_rows,
                                   compare_chance_runs,
                                   compare_announcement_runs,
                                   compare_courses,
                                   compare_figures,
                                   compare_hot_and_cold}) {
            compare(store, naive);
            if (!QTest::currentTestFailed()) continue;
            qWarning("behind %d coups", stop);
            return;
        }
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_statistic_counters>(argc, argv);
}

#include "tst_statistic_counters.moc"
