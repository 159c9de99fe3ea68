#include "test_box.h"
#include "version_check.h"

#include <QVector>

/// Versions: found in a version file, taken apart, compared.
class tst_version_check : public QObject
{
    Q_OBJECT

private slots:
    void the_version_is_found_in_the_file_data();
    void the_version_is_found_in_the_file();
    void a_version_has_three_numbers_data();
    void a_version_has_three_numbers();
    void the_greater_one_is_newer_data();
    void the_greater_one_is_newer();
    void one_of_two_is_newer();
};

void tst_version_check::the_version_is_found_in_the_file_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("version");
    // clang-format off
    QTest::newRow("as told")              << "[V4]\nZvlHaupt = V4.2.0\n"                      << "V4.2.0";
    QTest::newRow("nothing between")      << "[V4]ZvlHaupt =V4.2.0"                           << "V4.2.0";
    QTest::newRow("other sections")       << "[V3]\nZvlHaupt = V3.9.9\n[V4]\nZvlHilfe = 7\n"
                                             "ZvlHaupt = V4.3.1"                              << "V4.3.1";
    QTest::newRow("lines of Windows")     << "[V4]\r\nZvlHaupt =\tV5.0.0 \r\n"                << "V5.0.0";
    QTest::newRow("first mark counts")    << "[V4] [V4] ZvlHaupt = V4.2.1"                    << "V4.2.1";
    QTest::newRow("text behind")          << "[V4]\nZvlHaupt = V4.2.1\nmore"                  << "V4.2.1\nmore";
    QTest::newRow("200 characters")       << "[V4]ZvlHaupt =" + QString(200, '7')             << QString(200, '7');
    QTest::newRow("201 characters")       << "[V4]ZvlHaupt =" + QString(201, '7')             << QString();
    QTest::newRow("empty file")           << ""                                               << QString();
    QTest::newRow("no section")           << "ZvlHaupt = V9.9.9"                              << QString();
    QTest::newRow("no key")               << "[V4]\nV9.9.9"                                   << QString();
    QTest::newRow("no marks")             << "V9.9.9"                                         << QString();
    QTest::newRow("key before section")   << "ZvlHaupt = V9.9.9\n[V4]\n"                      << QString();
    QTest::newRow("key written together") << "[V4]\nZvlHaupt= V9.9.9"                         << QString();
    QTest::newRow("other case")           << "[v4]\nZVLHAUPT = V9.9.9"                        << QString();
    QTest::newRow("nothing behind")       << "[V4]\nZvlHaupt = \n"                            << QString();
    // clang-format on
}

void tst_version_check::the_version_is_found_in_the_file()
{
    QFETCH(QString, file);
    QTEST(version_check::version_text(file), "version");
}

void tst_version_check::a_version_has_three_numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("numbers"); // empty: it is no version
    using list = QVector<int>;
    // clang-format off
    QTest::newRow("as told")             << "V4.2.0"          << list{4, 2, 0};
    QTest::newRow("two digits")          << "V4.10.11"        << list{4, 10, 11};
    QTest::newRow("another letter")      << "x1.2.3"          << list{1, 2, 3};
    QTest::newRow("no letter")           << "41.2.3"          << list{1, 2, 3};
    QTest::newRow("four parts")          << "V1.2.3.4"        << list{1, 2, 3};
    QTest::newRow("empty parts dropped") << "V1..2...3."      << list{1, 2, 3};
    QTest::newRow("text behind")         << "V4.2.7\nmore"    << list{4, 2, 0};
    QTest::newRow("text with dots")      << "V4.2.7 a. b."    << list{4, 2, 0};
    QTest::newRow("letters")             << "Va.b.c"          << list{0, 0, 0};
    QTest::newRow("too large")           << "V99999999999.1.1" << list{0, 1, 1};
    QTest::newRow("two parts")           << "V4.2"            << list{};
    QTest::newRow("third part empty")    << "V4.2."           << list{};
    QTest::newRow("one part")            << "V9"              << list{};
    QTest::newRow("dots alone")          << "V..."            << list{};
    QTest::newRow("letter alone")        << "V"               << list{};
    QTest::newRow("nothing")             << ""                << list{};
    // clang-format on
}

void tst_version_check::a_version_has_three_numbers()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, numbers);
    const auto read = version_check::version_numbers(text);
    QCOMPARE(read.has_value(), !numbers.isEmpty());
    if (!read) return;
    for (std::size_t i = 0; i < read->size(); ++i)
        QCOMPARE(read->at(i), numbers.at(static_cast<int>(i)));
}

void tst_version_check::the_greater_one_is_newer_data()
{
    QTest::addColumn<QString>("remote");
    QTest::addColumn<bool>("is_newer");
    // clang-format off
    QTest::newRow("equal")                     << "V4.2.0"     << false;
    QTest::newRow("third above")               << "V4.2.1"     << true;
    QTest::newRow("second above")              << "V4.3.0"     << true;
    QTest::newRow("second above as a number")  << "V4.10.0"    << true;
    QTest::newRow("first above")               << "V5.0.0"     << true;
    QTest::newRow("first above, others below") << "V5.1.0"     << true;
    QTest::newRow("first above as a number")   << "V10.0.0"    << true;
    QTest::newRow("first below, others above") << "V3.9.9"     << false;
    QTest::newRow("second below, third above") << "V4.1.9"     << false;
    QTest::newRow("equal, a fourth part")      << "V4.2.0.9"   << false;
    QTest::newRow("text makes the third 0")    << "V4.2.5 new" << false;
    QTest::newRow("two parts")                 << "V9.9"       << false;
    QTest::newRow("below zero")                << "V-5.9.9"    << false;
    QTest::newRow("garbage")                   << "<html>.a.b" << false;
    QTest::newRow("nothing")                   << ""           << false;
    // clang-format on
}

void tst_version_check::the_greater_one_is_newer()
{
    QFETCH(QString, remote);
    QTEST(version_check::is_newer(remote), "is_newer");
}

/// Of all pairs of versions the one with the greater number to the base of 100 is newer.
void tst_version_check::one_of_two_is_newer()
{
    const QVector<int> parts = {0, 1, 2, 9, 10, 11, 99};
    QVector<QPair<QString, int>> versions;
    for (const int first : parts)
        for (const int second : parts)
            for (const int third : parts)
                versions.append({QStringLiteral("V%1.%2.%3").arg(first).arg(second).arg(third),
                                 first * 10000 + second * 100 + third});
    for (const auto& remote : qAsConst(versions))
        for (const auto& own : qAsConst(versions))
            QCOMPARE(version_check::is_newer(remote.first, own.first), remote.second > own.second);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_version_check>(argc, argv);
}

#include "tst_version_check.moc"
