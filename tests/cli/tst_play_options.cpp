// The small parts of the runner: start modes, progress, figures of a run.

#include "play_options.h"
#include "progress_bar.h"
#include "run_figures.h"
#include "test_box.h"

class tst_play_options : public QObject
{
    Q_OBJECT

private slots:
    void a_start_is_read_or_refused_data();
    void a_start_is_read_or_refused();
    void progress_tells_speed_and_time_left_data();
    void progress_tells_speed_and_time_left();
    void figures_follow_the_credit();
    void coups_without_a_bet_belong_to_no_run();
};

void tst_play_options::a_start_is_read_or_refused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QVector<int>>("values"); // fix, begin, end, attacks, length
    // clang-format off
    QTest::newRow("normal")            << "normal"        << true  << 0 << QVector<int>{0, 0, 0, 0, 0};
    QTest::newRow("fix")               << "fix:7"         << true  << 1 << QVector<int>{7, 0, 0, 0, 0};
    QTest::newRow("random 1")          << "random1:2-9"   << true  << 2 << QVector<int>{0, 2, 9, 0, 0};
    QTest::newRow("random 1, one")     << "random1:4-4"   << true  << 2 << QVector<int>{0, 4, 4, 0, 0};
    QTest::newRow("random 2")          << "random2:3,40"  << true  << 3 << QVector<int>{0, 0, 0, 3, 40};
    QTest::newRow("fix of nothing")    << "fix:0"         << false << 1 << QVector<int>();
    QTest::newRow("fix without count") << "fix:"          << false << 0 << QVector<int>();
    QTest::newRow("range upside down") << "random1:9-2"   << false << 2 << QVector<int>();
    QTest::newRow("range from 0")      << "random1:0-2"   << false << 2 << QVector<int>();
    QTest::newRow("no attacks")        << "random2:0,5"   << false << 3 << QVector<int>();
    QTest::newRow("no length")         << "random2:5"     << false << 0 << QVector<int>();
    QTest::newRow("too long a number") << "fix:9999999999" << false << 0 << QVector<int>();
    QTest::newRow("trailing text")     << "fix:3x"        << false << 0 << QVector<int>();
    QTest::newRow("unknown")           << "Normal"        << false << 0 << QVector<int>();
    QTest::newRow("empty")             << ""              << false << 0 << QVector<int>();
    // clang-format on
}

void tst_play_options::a_start_is_read_or_refused()
{
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    QFETCH(int, mode);
    QFETCH(QVector<int>, values);
    load_file_settings numbers;
    QCOMPARE(play_options::read_start(text, numbers), accepted);
    if (!accepted) return;
    QCOMPARE(numbers.start_mode, mode);
    QCOMPARE((QVector<int>{numbers.fix_start,
                           numbers.random_1_begin,
                           numbers.random_1_end,
                           numbers.random_2_max_attack,
                           numbers.random_2_length}),
             values);
}

void tst_play_options::progress_tells_speed_and_time_left_data()
{
    QTest::addColumn<qint64>("coups");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QString>("line");
    // clang-format off
    QTest::newRow("start")         << 0LL   << 100LL << 0LL    << "0 coups, 0 coups/s";
    QTest::newRow("half way")      << 50LL  << 100LL << 5000LL << "[===============               ] 50 %, 50 coups, 10 coups/s, 5 s left";
    QTest::newRow("end")           << 100LL << 100LL << 1000LL << "[==============================] 100 %, 100 coups, 100 coups/s, 0 s left";
    QTest::newRow("beyond")        << 130LL << 100LL << 1000LL << "[==============================] 100 %, 130 coups, 130 coups/s, 0 s left";
    QTest::newRow("unknown total") << 700LL << 0LL   << 1000LL << "700 coups, 700 coups/s";
    // clang-format on
}

void tst_play_options::progress_tells_speed_and_time_left()
{
    QFETCH(qint64, coups);
    QFETCH(qint64, total);
    QFETCH(qint64, milliseconds);
    QTEST(progress_bar::line(coups, total, milliseconds), "line");
}

void tst_play_options::figures_follow_the_credit()
{
    run_figures figures;
    figures.begin(100);
    figures.add_coup(10, 20, 110);
    figures.add_coup(10, 0, 100);
    figures.add_coup(10, 0, 90);
    figures.add_coup(10, 40, 120);
    figures.add_coup(10, 0, 110);
    QCOMPARE(figures.coups, 5);
    QCOMPARE(figures.start_credit, 100);
    QCOMPARE(figures.end_credit, 110);
    QCOMPARE(figures.highest_credit, 120);
    QCOMPARE(figures.lowest_credit, 90);
    QCOMPARE(figures.largest_drawdown, 20); // from 110 to 90
    QCOMPARE(figures.longest_lost, 2);
    QCOMPARE(figures.longest_won, 1);
    QCOMPARE(figures.sum_set, 50);
    QCOMPARE(figures.sum_returned, 60);
}

void tst_play_options::coups_without_a_bet_belong_to_no_run()
{
    run_figures figures;
    figures.begin(100);
    figures.add_coup(1, 0, 99);
    figures.add_coup(0, 0, 99);
    figures.add_coup(1, 0, 98);
    QCOMPARE(figures.longest_lost, 2);
    QCOMPARE(figures.longest_won, 0);
    figures.add_coup(1, 1, 98); // an even coup counts as won
    QCOMPARE(figures.longest_won, 1);
    QCOMPARE(figures.longest_lost, 2);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_play_options>(argc, argv);
}

#include "tst_play_options.moc"
