#include "language_bench.h"
#include "system_output.h"
#include "test_box.h"

#include <QDir>

#include <limits>

using general_player::player_names;

static constexpr qint64 largest = std::numeric_limits<qint64>::max();
static constexpr qint64 smallest = std::numeric_limits<qint64>::min();

class tst_system_output : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void a_new_protocol_begins_with_its_header();
    void a_protocol_is_written_on_behind_an_empty_line_data();
    void a_protocol_is_written_on_behind_an_empty_line();
    void every_start_begins_a_new_block();
    void a_coup_is_one_line_data();
    void a_coup_is_one_line();
    void a_wide_figure_pushes_the_columns_data();
    void a_wide_figure_pushes_the_columns();
    void a_number_chosen_by_hand_is_marked_once();
    void without_a_number_there_is_no_line_data();
    void without_a_number_there_is_no_line();
    void only_a_counted_coup_gives_a_line();
    void coups_before_the_protocol_get_no_line();
    void a_stake_alone_gives_no_line();
    void a_load_file_is_told_where_it_begins_and_ends();
    void a_collection_is_told_with_its_description();
    void names_are_written_as_utf8();
    void every_player_has_a_protocol_of_its_own();
    void a_protocol_that_cannot_be_written_is_passed_over_data();
    void a_protocol_that_cannot_be_written_is_passed_over();
    void line_by_line_is_on_the_disk_at_once();
    void by_the_block_gives_the_same_bytes();
};

static const QString protocol = QStringLiteral("protocol.out");
static const QByteArray rule = "---------------------------------------  \n";
static const QByteArray columns = " GZ     Gew/Ver     Gesetzt    Guthaben    ";
static const QByteArray margin(41, ' ');

static QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

static player_status status(qint64 coups, qint64 seeded, qint64 score, qint64 credit)
{
    player_status status;
    status.coups = coups;
    status.counted_coups = coups;
    status.last_seeded = seeded;
    status.last_score = score;
    status.last_credit = credit;
    status.has_credit = true;
    return status;
}

namespace
{

/// The protocol of player 1.
class protocol_bench : public language_bench
{
public:
    explicit protocol_bench(protocol_flushing flushing = protocol_flushing::line_by_line)
        : language_bench(table_form::american)
        , output(numbers, settings, general_player::PLAYER_1, flushing)
    {
        settings.set_s_user_sys_file(general_player::PLAYER_1, "rot.syf");
        settings.set_s_user_out_file(general_player::PLAYER_1, protocol);
    }

    /// A coup without a bet, its number drawn from wherever numbers come from.
    void coup()
    {
        numbers.add_to_permanence(numbers.next_number());
        output.write_coup_line(status(++coups, 0, 0, 1000));
    }

    /// What stands behind the header.
    QByteArray lines() const { return content_of(protocol).mid(header().size()); }

    static QByteArray header() { return columns + "rot.syf\n" + rule; }

    system_output output;
    qint64 coups = 0;
};

} // namespace

/// The line of a coup without a bet.
static QByteArray line_of(const QByteArray& number, const QByteArray& comment = QByteArray())
{
    return number + "           0           0        1000  " + comment + '\n';
}

static QByteArray remark(const QByteArray& text)
{
    return margin + text + '\n';
}

void tst_system_output::cleanup()
{
    QDir().remove(protocol);
}

void tst_system_output::a_new_protocol_begins_with_its_header()
{
    protocol_bench bench;
    bench.settings.set_s_user_sys_file(general_player::PLAYER_1, "./systems/rot.syf");
    QVERIFY(bench.output.open());
    bench.output.close();
    QCOMPARE(content_of(protocol),
             QByteArray(" GZ     Gew/Ver     Gesetzt    Guthaben    ./systems/rot.syf\n"
                        "---------------------------------------  \n"));
    QVERIFY(!bench.output.failed());
}

void tst_system_output::a_protocol_is_written_on_behind_an_empty_line_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::newRow("some lines") << QByteArray("what was written before\n");
    QTest::newRow("no end of line") << QByteArray("cut of");
    QTest::newRow("empty") << QByteArray();
}

void tst_system_output::a_protocol_is_written_on_behind_an_empty_line()
{
    QFETCH(QByteArray, before);
    QVERIFY(write_file(protocol, before));
    protocol_bench bench;
    QVERIFY(bench.output.open());
    bench.output.close();
    QCOMPARE(content_of(protocol), before + '\n' + protocol_bench::header());
}

void tst_system_output::every_start_begins_a_new_block()
{
    protocol_bench bench;
    bench.throw_numbers({17});
    QVERIFY(bench.output.open());
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    bench.output.close();
    bench.output.write_coup_line(status(2, 0, 0, 1000)); // closed: passed over
    QVERIFY(bench.output.open());
    bench.output.write_coup_line(status(3, 0, 0, 1000));
    bench.output.close();
    const QByteArray block = protocol_bench::header() + line_of(" 17");
    QCOMPARE(content_of(protocol), block + '\n' + block);
}

void tst_system_output::a_coup_is_one_line_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<qint64>("seeded");
    QTest::addColumn<qint64>("score");
    QTest::addColumn<qint64>("credit");
    QTest::addColumn<QByteArray>("line");
    using row = QByteArray;
    const auto sum = [](int value) { return qint64(value); };
    // clang-format off
    QTest::newRow("won")           << 5  << sum(1)  << sum(2)  << sum(1001) << row(" 05           1           1        1001  \n");
    QTest::newRow("lost")          << 17 << sum(30) << sum(0)  << sum(970)  << row(" 17         -30          30         970  \n");
    QTest::newRow("even")          << 36 << sum(2)  << sum(2)  << sum(1000) << row(" 36           0           2        1000  \n");
    QTest::newRow("nothing set")   << 0  << sum(0)  << sum(0)  << sum(1000) << row(" 00           0           0        1000  \n");
    QTest::newRow("prison score")  << 0  << sum(0)  << sum(5)  << sum(1005) << row(" 00           5           0        1005  \n");
    QTest::newRow("double zero")   << 37 << sum(1)  << sum(36) << sum(1035) << row(" 37          35           1        1035  \n");
    QTest::newRow("below zero")    << 9  << sum(99) << sum(0)  << sum(-98)  << row(" 09         -99          99         -98  \n");
    // clang-format on
}

void tst_system_output::a_coup_is_one_line()
{
    QFETCH(int, number);
    QFETCH(qint64, seeded);
    QFETCH(qint64, score);
    QFETCH(qint64, credit);
    QFETCH(QByteArray, line);
    protocol_bench bench;
    bench.throw_numbers({1, number, 99});
    QVERIFY(bench.output.open());
    bench.output.write_coup_line(status(1, seeded, score, credit));
    bench.output.close();
    QCOMPARE(bench.lines(), line);
}

void tst_system_output::a_wide_figure_pushes_the_columns_data()
{
    QTest::addColumn<qint64>("credit");
    QTest::addColumn<QByteArray>("figure");
    using row = QByteArray;
    // clang-format off
    QTest::newRow("eleven digits")            << Q_INT64_C(99999999999)    << row(" 99999999999");
    QTest::newRow("twelve digits")            << Q_INT64_C(100000000000)   << row("100000000000");
    QTest::newRow("the widest that fits")     << Q_INT64_C(999999999999)   << row("999999999999");
    QTest::newRow("one wider")                << Q_INT64_C(1000000000000)  << row("1000000000000");
    QTest::newRow("negative, fits")           << Q_INT64_C(-99999999999)   << row("-99999999999");
    QTest::newRow("negative, one wider")      << Q_INT64_C(-100000000000)  << row("-100000000000");
    QTest::newRow("largest")                  << largest                   << row("9223372036854775807");
    QTest::newRow("smallest")                 << smallest                  << row("-9223372036854775808");
    // clang-format on
}

void tst_system_output::a_wide_figure_pushes_the_columns()
{
    QFETCH(qint64, credit);
    QFETCH(QByteArray, figure);
    protocol_bench bench;
    bench.throw_numbers({1});
    QVERIFY(bench.output.open());
    bench.output.write_coup_line(status(1, Q_INT64_C(1234567890123), 0, credit));
    bench.output.close();
    QCOMPARE(bench.lines(), " 01-12345678901231234567890123" + figure + "  \n");
}

void tst_system_output::a_number_chosen_by_hand_is_marked_once()
{
    protocol_bench bench;
    QVERIFY(bench.output.open());
    bench.throw_numbers({5});
    bench.output.set_manual_number(true);
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    bench.output.write_coup_line(status(2, 0, 0, 1000));
    bench.output.set_manual_number(true);
    bench.output.set_manual_number(false); // the choice was taken back
    bench.output.write_coup_line(status(3, 0, 0, 1000));
    bench.output.close();
    QCOMPARE(bench.lines(), line_of("*05") + line_of(" 05") + line_of(" 05"));
}

void tst_system_output::without_a_number_there_is_no_line_data()
{
    QTest::addColumn<QVector<int>>("thrown");
    QTest::newRow("nothing") << QVector<int>{};
    QTest::newRow("only hand changes") << QVector<int>{99, 99};
}

void tst_system_output::without_a_number_there_is_no_line()
{
    QFETCH(QVector<int>, thrown);
    protocol_bench bench;
    bench.throw_numbers(thrown);
    QVERIFY(bench.output.open());
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    bench.output.close();
    QCOMPARE(bench.lines(), QByteArray());
}

void tst_system_output::only_a_counted_coup_gives_a_line()
{
    protocol_bench bench;
    bench.throw_numbers({5});
    QVERIFY(bench.output.open());
    bench.output.write_coup_line(status(0, 0, 0, 0)); // a start capital
    QCOMPARE(bench.lines(), QByteArray());
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    bench.output.write_coup_line(status(2, 0, 0, 1000));
    bench.output.write_coup_line(status(2, 0, 0, 1000)); // a start capital
    QCOMPARE(bench.lines(), line_of(" 05") + line_of(" 05"));
    bench.output.write_coup_line(status(0, 0, 0, 0)); // the statistic was emptied
    QCOMPARE(bench.lines(), line_of(" 05") + line_of(" 05"));
    bench.output.write_coup_line(status(1, 0, 0, 1000)); // and counts anew
    QCOMPARE(bench.lines(), line_of(" 05") + line_of(" 05") + line_of(" 05"));
}

void tst_system_output::coups_before_the_protocol_get_no_line()
{
    protocol_bench bench;
    bench.throw_numbers({5});
    QVERIFY(bench.output.open(7));
    bench.output.write_coup_line(status(7, 0, 0, 1000)); // a start capital
    QCOMPARE(bench.lines(), QByteArray());
    bench.output.write_coup_line(status(8, 0, 0, 1000));
    QCOMPARE(bench.lines(), line_of(" 05"));
}

void tst_system_output::a_stake_alone_gives_no_line()
{
    protocol_bench bench;
    bench.throw_numbers({5});
    QVERIFY(bench.output.open());
    player_status running = status(1, 0, 0, 1000);
    running.counted_coups = 0; // the ball still rolls
    bench.output.write_coup_line(running);
    QCOMPARE(bench.lines(), QByteArray());
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    QCOMPARE(bench.lines(), line_of(" 05"));
}

void tst_system_output::a_load_file_is_told_where_it_begins_and_ends()
{
    QVERIFY(write_file("first.inp", "1 2"));
    QVERIFY(write_file("second.inp", "3 4"));
    protocol_bench bench;
    QVERIFY(bench.output.open());
    bench.numbers.set_manual_number(20);
    bench.coup();
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = "./first.inp";
    choice.files[1] = "second.inp";
    bench.numbers.set_load_files(choice);
    for (int i = 0; i < 4; ++i)
        bench.coup();
    bench.numbers.reset_load_files();
    bench.numbers.set_manual_number(36);
    bench.coup();
    bench.numbers.set_manual_number(0);
    bench.coup();
    QCOMPARE(bench.lines(),
             line_of(" 20") + line_of(" 01", "first.inp") + line_of(" 02") +
                 remark("Ende first.inp") + line_of(" 03", "second.inp") + line_of(" 04") +
                 remark("Ende second.inp") + line_of(" 36") + line_of(" 00"));
}

void tst_system_output::a_collection_is_told_with_its_description()
{
    QVERIFY(write_file("first.inp", "1"));
    QVERIFY(write_file("second.inp", "2"));
    protocol_bench bench;
    QVERIFY(bench.output.open());
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = "first.inp";
    choice.files[1] = "second.inp";
    choice.description = QStringLiteral("Spielbank, März");
    bench.numbers.set_load_files(choice);
    bench.coup();
    bench.coup();
    const QByteArray description = remark("Spielbank, M\xc3\xa4rz");
    QCOMPARE(bench.lines(),
             description + line_of(" 01", "first.inp") + remark("Ende first.inp") + description +
                 line_of(" 02", "second.inp"));
}

void tst_system_output::names_are_written_as_utf8()
{
    const QString load_file = QStringLiteral("Zürich.inp");
    QVERIFY(write_file(load_file, "1"));
    protocol_bench bench;
    bench.settings.set_s_user_sys_file(general_player::PLAYER_1, QStringLiteral("Größe.syf"));
    QVERIFY(bench.output.open());
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = load_file;
    bench.numbers.set_load_files(choice);
    bench.coup();
    bench.output.close();
    QCOMPARE(content_of(protocol),
             columns +
                 "Gr\xc3\xb6\xc3\x9f"
                 "e.syf\n" +
                 rule + line_of(" 01", "Z\xc3\xbcrich.inp"));
}

void tst_system_output::every_player_has_a_protocol_of_its_own()
{
    language_bench bench;
    bench.throw_numbers({5});
    for (int i = 0; i < general_player::player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        const QString path = QStringLiteral("player_%1.out").arg(i);
        bench.settings.set_s_user_out_file(player, path);
        bench.settings.set_s_user_sys_file(player, QString::number(i));
        system_output output(bench.numbers, bench.settings, player);
        QVERIFY(output.open());
        QCOMPARE(content_of(path), columns + QByteArray::number(i) + '\n' + rule);
    }
}

void tst_system_output::a_protocol_that_cannot_be_written_is_passed_over_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such folder") << "no/such/folder/protocol.out";
    QTest::newRow("a folder") << ".";
    QTest::newRow("no path") << "";
}

void tst_system_output::a_protocol_that_cannot_be_written_is_passed_over()
{
    QFETCH(QString, path);
    protocol_bench bench;
    bench.settings.set_s_user_out_file(general_player::PLAYER_1, path);
    bench.throw_numbers({5});
    if (path.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    QVERIFY(!bench.output.open());
    QVERIFY(bench.output.failed());
    QVERIFY(!bench.output.error_text().isEmpty());
    bench.output.write_header();
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    bench.output.flush();
    bench.output.close();
    QVERIFY(!QFile::exists(protocol));
    QVERIFY(!QFileInfo(path).isFile());
}

void tst_system_output::line_by_line_is_on_the_disk_at_once()
{
    protocol_bench bench;
    bench.throw_numbers({5});
    QVERIFY(bench.output.open());
    QCOMPARE(content_of(protocol), protocol_bench::header());
    bench.output.write_coup_line(status(1, 0, 0, 1000));
    QCOMPARE(bench.lines(), line_of(" 05"));
}

void tst_system_output::by_the_block_gives_the_same_bytes()
{
    constexpr int coups = 5000; // more than one block
    QByteArray expected = protocol_bench::header();
    for (int coup = 0; coup < coups; ++coup)
        expected += line_of(" 05");
    {
        protocol_bench bench(protocol_flushing::by_the_block);
        bench.throw_numbers({5});
        QVERIFY(bench.output.open());
        bench.output.flush();
        QCOMPARE(content_of(protocol), protocol_bench::header());
        for (int coup = 1; coup <= coups; ++coup)
            bench.output.write_coup_line(status(coup, 0, 0, 1000));
        bench.output.flush();
        QCOMPARE(content_of(protocol), expected);
        bench.output.write_coup_line(status(coups + 1, 0, 0, 1000));
    }
    QCOMPARE(content_of(protocol), expected + line_of(" 05")); // written at the end
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_system_output>(argc, argv);
}

#include "tst_system_output.moc"
