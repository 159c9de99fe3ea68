#include "statement_reader.h"
#include "system_pattern.h"
#include "test_box.h"

#include <random>

class tst_statement_reader : public QObject
{
    Q_OBJECT

private slots:
    void a_word_that_stands_alone_is_known_by_its_separator_data();
    void a_word_that_stands_alone_is_known_by_its_separator();
    void every_action_is_read_by_its_first_letters_data();
    void every_action_is_read_by_its_first_letters();
    void every_test_is_read_by_its_first_letters_data();
    void every_test_is_read_by_its_first_letters();
    void consequences_in_a_row_form_one_chain();
    void the_first_word_is_compared_exactly_data();
    void the_first_word_is_compared_exactly();
    void a_bound_knows_what_follows_it_data();
    void a_bound_knows_what_follows_it();
    void the_target_of_a_signal_is_no_action_of_its_own();
    void any_text_is_read();
};

/// Alternatives of `set_action` and `test_step`, by their place in the variant.
enum action_place { bet, unit, counter, play_table, signal_target, options, fill, unknown };
enum test_place { single_throw, argument, count, signal_of, counter_value, table_value, faulty };

static statement_program read(const QString& token_text)
{
    static const system_pattern patterns(0);
    static const statement_reader reader(patterns);
    return reader.read(token_text);
}

void tst_statement_reader::a_word_that_stands_alone_is_known_by_its_separator_data()
{
    QTest::addColumn<QString>("token_text");
    QTest::addColumn<int>("end"); // of `statement_end`
    const int nothing = int(statement_end::nothing);
    const int restart = int(statement_end::restart);
    const int restart_full = int(statement_end::restart_full);
    const int stop = int(statement_end::stop);
    const int message = int(statement_end::message);
    // clang-format off
    QTest::newRow("restart")                  << "RESTART|"                       << restart;
    QTest::newRow("restart, lower case")      << "restart|"                       << restart;
    QTest::newRow("restart N")                << "RESTART(N)|"                    << restart;
    QTest::newRow("restart N, lower case")    << "restart(n)|"                    << restart;
    QTest::newRow("restart F")                << "RESTART(F)|"                    << restart_full;
    QTest::newRow("restart F, lower case")    << "restart(f)|"                    << restart_full;
    QTest::newRow("restart with a comma")     << "RESTART(,)|"                    << nothing;
    QTest::newRow("restart without its bar")  << "RESTART"                        << nothing;
    QTest::newRow("stop")                     << "STOP|"                          << stop;
    QTest::newRow("stop, lower case")         << "stop|"                          << stop;
    QTest::newRow("message")                  << "MESSAGE(GZ)|"                   << message;
    QTest::newRow("message on")               << "messageON|"                     << message;
    QTest::newRow("behind THEN, restart")     << "IF|CO01(0)|THEN|RESTART"        << nothing;
    QTest::newRow("behind THEN, restart N")   << "IF|CO01(0)|THEN|RESTART(N)"     << restart;
    QTest::newRow("behind THEN, restart F")   << "IF|CO01(0)|THEN|RESTART(F)"     << restart_full;
    QTest::newRow("behind THEN, with a comma")<< "IF|CO01(0)|THEN|RESTART(,)"     << nothing;
    QTest::newRow("behind THEN, stop")        << "IF|CO01(0)|THEN|STOP"           << stop;
    QTest::newRow("behind THEN, message")     << "IF|CO01(0)|THEN|MESSAGE('x')"   << message;
    QTest::newRow("behind THEN, nothing")     << "IF|CO01(0)|THEN"                << nothing;
    QTest::newRow("no THEN")                  << "IF|CO01(0)"                     << nothing;
    QTest::newRow("nothing at all")           << ""                               << nothing;
    QTest::newRow("unknown word")             << "HALT|"                          << nothing;
    // clang-format on
}

void tst_statement_reader::a_word_that_stands_alone_is_known_by_its_separator()
{
    QFETCH(QString, token_text);
    QFETCH(int, end);
    const statement_program program = read(token_text);
    QCOMPARE(int(program.end), end);
    QVERIFY(program.steps.empty());
}

void tst_statement_reader::every_action_is_read_by_its_first_letters_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("place"); // of `action_place`
    // clang-format off
    QTest::newRow("options")                  << "STMAX(S)"    << int(options);
    QTest::newRow("options, lower case")      << "stmax(S)"    << int(options);
    QTest::newRow("unit")                     << "EI1(5)"      << int(unit);
    QTest::newRow("unit, lower case")         << "ei1+1"       << int(unit);
    QTest::newRow("counter")                  << "CO01(5)"     << int(counter);
    QTest::newRow("counter alone")            << "CO01"        << int(counter);
    QTest::newRow("fill")                     << "ST1(1,2)"    << int(fill);
    QTest::newRow("play table")               << "PT1"         << int(play_table);
    QTest::newRow("play table, entry")        << "PT1(EC01)"   << int(play_table);
    QTest::newRow("jeton")                    << "EC01"        << int(bet);
    QTest::newRow("jeton, lower case")        << "ec01"        << int(bet);
    QTest::newRow("announcement")             << "GS"          << int(bet);
    QTest::newRow("jeton type")               << "EC"          << int(bet);
    QTest::newRow("jeton that there is not")  << "EC00"        << int(bet);
    QTest::newRow("jeton of the other table") << "PL37"        << int(bet);
    QTest::newRow("form of a jeton")          << "XX99"        << int(bet);
    QTest::newRow("word of a bound")          << "MAX"         << int(unknown);
    QTest::newRow("number of a bound")        << "100"         << int(unknown);
    QTest::newRow("orphans en plein")         << "OP"          << int(unknown);
    QTest::newRow("number word")              << "GZ"          << int(unknown);
    QTest::newRow("signal")                   << "UZ(5/2)"     << int(unknown);
    QTest::newRow("jeton behind a letter")    << "xEC01"       << int(unknown);
    QTest::newRow("nothing")                  << ""            << int(unknown);
    // clang-format on
}

void tst_statement_reader::every_action_is_read_by_its_first_letters()
{
    QFETCH(QString, token);
    QFETCH(int, place);
    const statement_program program = read("SZ|" + token);
    QCOMPARE(int(program.end), int(statement_end::set));
    QCOMPARE(program.steps.size(), std::size_t(1));
    QCOMPARE(int(program.steps.front().action.index()), place);
}

void tst_statement_reader::every_test_is_read_by_its_first_letters_data()
{
    QTest::addColumn<QString>("test");
    QTest::addColumn<int>("place"); // of `test_place`
    // clang-format off
    QTest::newRow("last number")              << "GZ|IN|EC01"               << int(single_throw);
    QTest::newRow("number before")            << "VZ|NOTIN|EC01"            << int(single_throw);
    QTest::newRow("number further back")      << "v3|in|EC01"               << int(single_throw);
    QTest::newRow("last number, bet before")  << "GZ|IN|AG(1)"              << int(argument);
    QTest::newRow("V0, bet before")           << "V0|NOTIN|ag(1)"           << int(argument);
    QTest::newRow("count")                    << "RZ(5/=2)|IN|EC01"         << int(count);
    QTest::newRow("count, negated")           << "RZ(5/=2)|NOTIN|EC01"      << int(faulty);
    QTest::newRow("signal")                   << "UZ(5/H)|IN|EC|RESULT|SZ|EC" << int(signal_of);
    QTest::newRow("signal, negated")          << "UZ(5/H)|NOTIN|EC|RESULT|SZ|EC" << int(signal_of);
    QTest::newRow("counter")                  << "CO01(5)"                  << int(counter_value);
    QTest::newRow("table")                    << "ST1(5)"                   << int(table_value);
    QTest::newRow("options")                  << "STMAX(A)"                 << int(table_value);
    QTest::newRow("unit")                     << "EI1(5)|IN|EC01"           << int(faulty);
    QTest::newRow("play table")               << "PT1|IN|EC01"              << int(faulty);
    QTest::newRow("nothing")                  << ""                         << int(faulty);
    // clang-format on
}

void tst_statement_reader::every_test_is_read_by_its_first_letters()
{
    QFETCH(QString, test);
    QFETCH(int, place);
    const statement_program program = read("IF|" + test);
    QVERIFY(!program.tests.empty());
    QCOMPARE(int(program.tests.front().index()), place);
}

void tst_statement_reader::consequences_in_a_row_form_one_chain()
{
    const statement_program program =
        read("IF|CO01(1)|AND|IF|GZ|IN|EC01|THEN|IF|ST1(4)|THEN|SZ|EC01|EC02");
    QCOMPARE(program.tests.size(), std::size_t(3));
    QCOMPARE(int(program.tests[0].index()), int(counter_value));
    QCOMPARE(int(program.tests[1].index()), int(single_throw));
    QCOMPARE(int(program.tests[2].index()), int(table_value));
    QCOMPARE(program.steps.size(), std::size_t(2));
}

void tst_statement_reader::the_first_word_is_compared_exactly_data()
{
    QTest::addColumn<QString>("token_text");
    QTest::newRow("set") << "sz|EC01";
    QTest::newRow("test") << "if|CO01(0)|THEN|STOP";
    QTest::newRow("set with more") << "SZZ|EC01";
    QTest::newRow("bar in a message behind a test") << "IF GZ IN EC01 THEN MESSAGE('a|b');";
    QTest::newRow("bar in front") << "|SZ|EC01";
}

void tst_statement_reader::the_first_word_is_compared_exactly()
{
    QFETCH(QString, token_text);
    const statement_program program = read(token_text);
    QCOMPARE(int(program.end), int(statement_end::nothing));
    QVERIFY(program.tests.empty());
    QVERIFY(program.steps.empty());
}

void tst_statement_reader::a_bound_knows_what_follows_it_data()
{
    QTest::addColumn<QString>("token_text");
    QTest::addColumn<int>("touched");   // step that follows when the bound was touched
    QTest::addColumn<int>("untouched"); // step that follows else
    QTest::addColumn<bool>("readable");
    // clang-format off
    QTest::newRow("no bound")              << "SZ|EI1+1|EC01"                     << 1 << 1 << false;
    QTest::newRow("bound alone")           << "SZ|EI1+1|MAX|3"                    << 3 << 3 << true;
    QTest::newRow("bound and an item")     << "SZ|EI1+1|MAX|3|THEN|SZ|EC01"       << 5 << 6 << true;
    QTest::newRow("bound and two items")   << "SZ|EI1+1|MIN|3|THEN|SZ|EC01|EC02"  << 5 << 6 << true;
    QTest::newRow("no number")             << "SZ|EI1+1|MAX|x|THEN|SZ|EC01"       << 5 << 6 << false;
    QTest::newRow("no THEN")               << "SZ|EI1+1|MAX|3|EC01"               << 3 << 3 << true;
    // clang-format on
}

void tst_statement_reader::a_bound_knows_what_follows_it()
{
    QFETCH(QString, token_text);
    QFETCH(int, touched);
    QFETCH(int, untouched);
    QFETCH(bool, readable);
    const statement_program program = read(token_text);
    const set_step& first = program.steps.front();
    const auto& action = std::get<bounded_unit_action>(first.action);
    QCOMPARE(action.next_when_touched, touched);
    QCOMPARE(first.next, untouched);
    QCOMPARE(action.limit_is_readable, readable);
}

void tst_statement_reader::the_target_of_a_signal_is_no_action_of_its_own()
{
    const statement_program program =
        read("IF|GZ|IN|EC01|AND|IF|UZ(5/H)|IN|EC|RESULT|SZ|EC|CO01(+1)");
    QCOMPARE(program.tests.size(), std::size_t(2));
    QCOMPARE(program.steps.size(), std::size_t(2));
    QCOMPARE(std::get<signal_action>(program.steps.front().action).test, 1);
    QCOMPARE(int(program.steps.back().action.index()), int(counter));
}

/// A missing token is an empty one: whatever the pieces and their order, reading them ends.
void tst_statement_reader::any_text_is_read()
{
    static const QStringList pieces = {"IF",
                                       "SZ",
                                       "THEN",
                                       "RESULT",
                                       "AND",
                                       "IN",
                                       "NOTIN",
                                       "GZ",
                                       "V9",
                                       "V12",
                                       "UZ(5/H)",
                                       "UZ(",
                                       "RZ(5/",
                                       "RZ(5/>2)",
                                       "CO",
                                       "CO99(+CO01)",
                                       "CO1",
                                       "ST",
                                       "ST1(",
                                       "STMAX(",
                                       "EI",
                                       "EI9",
                                       "EI1(ST",
                                       "MAX",
                                       "MIN",
                                       "99",
                                       "EC",
                                       "EC01",
                                       "PT",
                                       "PT1(",
                                       "AG(",
                                       "AG(1)",
                                       "MESSAGE(",
                                       "RESTART",
                                       "STOP",
                                       "",
                                       "ä",
                                       "(",
                                       ")",
                                       "''",
                                       "EN",
                                       "-1",
                                       "99999999999999999999"};
    std::mt19937 generator(7);
    for (int statement = 0; statement < 20000; ++statement) {
        QStringList tokens;
        const int count = static_cast<int>(generator() % 9);
        for (int i = 0; i < count; ++i)
            tokens.append(pieces.at(static_cast<int>(generator() % unsigned(pieces.size()))));
        const statement_program program = read(tokens.join('|'));
        for (const set_step& step : program.steps)
            QVERIFY(step.next > 0);
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_statement_reader>(argc, argv);
}

#include "tst_statement_reader.moc"
