#include "system_pattern.h"
#include "test_box.h"
#include "token_taker.h"

#include <QRegExp>

#include <random>

static constexpr int french = 0;

class tst_token_taker : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void items_end_at_a_blank_behind_a_comma_data();
    void items_end_at_a_blank_behind_a_comma();
    void keywords_keep_the_blanks_between_quotes_data();
    void keywords_keep_the_blanks_between_quotes();
    void a_taker_takes_only_its_own_data();
    void a_taker_takes_only_its_own();
    void what_is_not_at_the_beginning_stays();
    void random_texts_are_cut_as_by_a_plain_search();

private:
    QScopedPointer<system_pattern> patterns;
    QScopedPointer<token_taker> taker;
};

void tst_token_taker::init()
{
    patterns.reset(new system_pattern(french));
    taker.reset(new token_taker(*patterns));
}

void tst_token_taker::items_end_at_a_blank_behind_a_comma_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("rest");
    // clang-format off
    QTest::newRow("one jeton")            << "EC01;"           << QStringList{"EC01"}             << ";";
    QTest::newRow("two jetons")           << "EC01,EC02;"      << QStringList{"EC01", "EC02"}     << ";";
    QTest::newRow("forms and jetons")     << "CO01(0),EC03;"   << QStringList{"CO01(0)", "EC03"}  << ";";
    QTest::newRow("blank behind comma")   << "EC01, EC02;"     << QStringList{"EC01"}             << " EC02;";
    QTest::newRow("blank before comma")   << "EC01 ,EC02;"     << QStringList{"EC01"}             << " ,EC02;";
    QTest::newRow("the same, action form")<< "EI1(5) ,EC02;"   << QStringList{"EI1(5)", "EC02"}   << ";";
    QTest::newRow("blank behind a jeton") << "EC01 ;"          << QStringList{"EC01"}             << " ;";
    QTest::newRow("blank behind a form")  << "EI1(5) ;"        << QStringList{"EI1(5)"}           << ";";
    QTest::newRow("comma first")          << ",EC01;"          << QStringList{"EC01"}             << ";";
    QTest::newRow("double comma")         << "EC01,,EC02;"     << QStringList{"EC01", "EC02"}     << ";";
    QTest::newRow("comma last")           << "EC01,;"          << QStringList{"EC01"}             << ";";
    QTest::newRow("commas only")          << ",,;"             << QStringList{}                   << ";";
    QTest::newRow("blanks of a form")     << "ST1 (1 , 2 );"   << QStringList{"ST1(1,2)"}         << ";";
    QTest::newRow("nothing")              << "THEN;"           << QStringList{}                   << "THEN;";
    QTest::newRow("empty")                << ""                << QStringList{}                   << "";
    // clang-format on
}

void tst_token_taker::items_end_at_a_blank_behind_a_comma()
{
    QFETCH(QString, text);
    QStringView rest = text;
    QTEST(taker->take_items(rest), "items");
    QTEST(rest.toString(), "rest");
}

void tst_token_taker::keywords_keep_the_blanks_between_quotes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("keyword");
    // clang-format off
    QTest::newRow("no quotes")     << "NOT   IN EC01"               << QStringList{"NOTIN"};
    QTest::newRow("message on")    << "MESSAGE  ON;"                << QStringList{"MESSAGEON"};
    QTest::newRow("restart")       << "RESTART ( F ) ;"             << QStringList{"RESTART(F)"};
    QTest::newRow("one pair")      << "MESSAGE ( 'a b' , V0 );"     << QStringList{"MESSAGE('a b',V0)"};
    QTest::newRow("two pairs")     << "MESSAGE ( ' a ' , ' ' );"    << QStringList{"MESSAGE(' a ',' ')"};
    QTest::newRow("one quote")     << "MESSAGE ( 'a b , V0 );"      << QStringList{"MESSAGE('ab,V0)"};
    QTest::newRow("three quotes")  << "MESSAGE( 'a b' , ' c d );"   << QStringList{"MESSAGE('a b','cd)"};
    QTest::newRow("empty pair")    << "MESSAGE( '' , 'c d' );"      << QStringList{"MESSAGE('','c d')"};
    QTest::newRow("quotes behind") << "MESSAGE('a) ');b') x 'c d';" << QStringList{"MESSAGE('a) ');b')"};
    QTest::newRow("no keyword")    << "EC01"                        << QStringList{};
    // clang-format on
}

void tst_token_taker::keywords_keep_the_blanks_between_quotes()
{
    QFETCH(QString, text);
    QStringView rest = text;
    QTEST(taker->take_keyword(rest), "keyword");
}

void tst_token_taker::a_taker_takes_only_its_own_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("argument");
    QTest::addColumn<QStringList>("keyword");
    QTest::addColumn<QStringList>("jeton");
    QTest::addColumn<QStringList>("argument_number");
    // clang-format off
    QTest::newRow("form")    << "UZ ( 12 / >= 3 );" << QStringList{"UZ(12/>=3)"} << QStringList{}     << QStringList{}       << QStringList{};
    QTest::newRow("keyword") << "in EC01;"          << QStringList{}             << QStringList{"in"} << QStringList{}       << QStringList{};
    QTest::newRow("jeton")   << "ec01;"             << QStringList{}             << QStringList{}     << QStringList{"ec01"} << QStringList{};
    QTest::newRow("bet")     << "AG ( 3 );"         << QStringList{"AG(3)"}      << QStringList{}     << QStringList{}       << QStringList{"AG(3)"};
    // clang-format on
}

void tst_token_taker::a_taker_takes_only_its_own()
{
    QFETCH(QString, text);
    QStringView rest = text;
    QTEST(taker->take_argument(rest), "argument");
    rest = text;
    QTEST(taker->take_keyword(rest), "keyword");
    rest = text;
    QTEST(taker->take_jeton(rest), "jeton");
    rest = text;
    QTEST(taker->take_argument_number(rest), "argument_number");
}

void tst_token_taker::what_is_not_at_the_beginning_stays()
{
    const QString text = " EC01,EI1(5) IN AG(3)";
    QStringView rest = text;
    QVERIFY(taker->take_items(rest).isEmpty());
    QVERIFY(taker->take_argument(rest).isEmpty());
    QVERIFY(taker->take_keyword(rest).isEmpty());
    QVERIFY(taker->take_jeton(rest).isEmpty());
    QVERIFY(taker->take_argument_number(rest).isEmpty());
    QCOMPARE(rest.toString(), text);
}

// One token the plain way: every pattern is built and searched for in the whole text.
static QString plain_token(const QStringList& patterns, const QString& text)
{
    for (const QString& pattern : patterns) {
        QRegExp expression(pattern, Qt::CaseInsensitive, QRegExp::RegExp);
        if (text.indexOf(expression, 0) == 0) return expression.cap(0);
    }
    return QString();
}

void tst_token_taker::random_texts_are_cut_as_by_a_plain_search()
{
    // clang-format off
    const QStringList pieces{
        "EI1", "CO01", "ST1", "PT1", "STMAX", "GZ", "VZ", "V", "RZ", "UZ", "AG", "EC01", "PL36", "EC",
        "IN", "NOT", "RESTART", "MESSAGE", "ON", "SZ", "H", "N", "F", "S", "A", "(", "(", ")", ")", ",",
        "/", "<", ">", "=", "+", "*", "-", "1", "12", "0", " ", " ", ";", "'", "x",
    };
    // clang-format on
    std::mt19937 generator(20210405);
    const auto random_below = [&generator](int limit) {
        return int(generator() % std::mt19937::result_type(limit));
    };
    int found = 0;
    for (int round = 0; round < 800; ++round) {
        QString text;
        for (int count = random_below(12); count > 0; --count)
            text += pieces.at(random_below(pieces.size()));

        const QString argument = plain_token(patterns->get_argument_patterns(), text);
        QStringView rest = text;
        const QStringList taken = taker->take_argument(rest);
        QCOMPARE(taken.value(0), QString(argument).remove(' '));
        QCOMPARE(rest.toString(), text.mid(argument.size()));
        if (!taken.isEmpty()) ++found;

        const QString keyword = plain_token(patterns->get_keyword_patterns(), text);
        rest = text;
        QCOMPARE(taker->take_keyword(rest).isEmpty(), keyword.isEmpty());
        QCOMPARE(rest.toString(), text.mid(keyword.size()));

        const QString jeton = plain_token(patterns->get_jeton_patterns(), text);
        rest = text;
        QCOMPARE(taker->take_jeton(rest).value(0), jeton);
    }
    QVERIFY(found > 30);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_token_taker>(argc, argv);
}

#include "tst_token_taker.moc"
