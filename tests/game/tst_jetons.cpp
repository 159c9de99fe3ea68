#include "jetons.h"
#include "test_box.h"

#include <QSet>

class tst_jetons : public QObject
{
    Q_OBJECT

private slots:
    void keys_are_a_kind_and_two_digits_data();
    void keys_are_a_kind_and_two_digits();
    void ext_keys_are_a_kind_and_two_digits_data();
    void ext_keys_are_a_kind_and_two_digits();
    void every_value_finds_its_key_and_back();
    void a_text_that_is_no_key_gives_the_end_mark_data();
    void a_text_that_is_no_key_gives_the_end_mark();
    void a_value_without_a_key_has_no_name();
    void places_are_shown_by_their_text_data();
    void places_are_shown_by_their_text();
    void announcements_are_shown_by_their_text_data();
    void announcements_are_shown_by_their_text();
    void every_place_has_a_text_of_its_own();
    void marks_and_prison_places_have_no_text();
    void separators_of_announcements_have_no_text();
};

static jetons::jeton_names place(int value)
{
    return static_cast<jetons::jeton_names>(value);
}

static jetons::ext_jeton_names announcement(int value)
{
    return static_cast<jetons::ext_jeton_names>(value);
}

static QString key(const QString& kind, int number)
{
    return kind + QString::number(number).rightJustified(2, QLatin1Char('0'));
}

void tst_jetons::keys_are_a_kind_and_two_digits_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("first");       // number in the first key
    QTest::addColumn<int>("last");        // number in the last key
    QTest::addColumn<int>("first_value"); // value of the first key
    // clang-format off
    QTest::newRow("plein")               << "PL"        << 0 << 37 <<   0;
    QTest::newRow("cheval")              << "CH"        << 1 << 63 <<  38;
    QTest::newRow("transversale pleine") << "TP"        << 1 << 16 << 101;
    QTest::newRow("transversale simple") << "TS"        << 1 << 11 << 117;
    QTest::newRow("even chance")         << "EC"        << 1 <<  6 << 128;
    QTest::newRow("carré")               << "CA"        << 1 << 23 << 134;
    QTest::newRow("column")              << "KL"        << 1 <<  3 << 157;
    QTest::newRow("dozen")               << "DZ"        << 1 <<  3 << 160;
    QTest::newRow("prison")              << "PRIS_EC"   << 1 <<  6 << 165;
    QTest::newRow("double prison")       << "D_PRIS_EC" << 1 <<  6 << 171;
    // clang-format on
}

void tst_jetons::keys_are_a_kind_and_two_digits()
{
    QFETCH(QString, kind);
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, first_value);
    for (int number = first; number <= last; ++number) {
        const int value = first_value + number - first;
        QCOMPARE(int(jetons::value_of(key(kind, number))), value);
        QCOMPARE(jetons::name(place(value)), key(kind, number));
    }
    QCOMPARE(jetons::value_of(key(kind, last + 1)), jetons::NO_JETON);
}

void tst_jetons::ext_keys_are_a_kind_and_two_digits_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("last"); // number in the last key, the first is 0
    QTest::addColumn<int>("first_value");
    // clang-format off
    QTest::newRow("finale")           << "FI" <<  9 <<  0;
    QTest::newRow("one neighbour")    << "EN" << 37 << 16;
    QTest::newRow("two neighbours")   << "ZN" << 37 << 54;
    QTest::newRow("three neighbours") << "DN" << 37 << 92;
    // clang-format on
}

void tst_jetons::ext_keys_are_a_kind_and_two_digits()
{
    QFETCH(QString, kind);
    QFETCH(int, last);
    QFETCH(int, first_value);
    for (int number = 0; number <= last; ++number) {
        const int value = first_value + number;
        QCOMPARE(int(jetons::ext_value_of(key(kind, number))), value);
        QCOMPARE(jetons::name(announcement(value)), key(kind, number));
    }
    QCOMPARE(jetons::ext_value_of(key(kind, last + 1)), jetons::NO_EXT_JETON);
}

void tst_jetons::every_value_finds_its_key_and_back()
{
    QSet<QString> names;
    for (int value = 0; value <= 176; ++value) {
        const QString name = jetons::name(place(value));
        QVERIFY2(!name.isEmpty(), qPrintable(QString::number(value)));
        QCOMPARE(int(jetons::value_of(name)), value);
        names.insert(name);
    }
    QCOMPARE(names.size(), 177);

    names.clear();
    for (int value = 0; value <= 131; ++value) {
        const QString name = jetons::name(announcement(value));
        QVERIFY2(!name.isEmpty(), qPrintable(QString::number(value)));
        QCOMPARE(int(jetons::ext_value_of(name)), value);
        names.insert(name);
    }
    QCOMPARE(names.size(), 132);

    QCOMPARE(int(jetons::value_of("LAST_JN")), 163);
    QCOMPARE(int(jetons::value_of("NO_JETON")), 164);
    QCOMPARE(int(jetons::ext_value_of("GS")), 10);
    QCOMPARE(int(jetons::ext_value_of("KS")), 11);
    QCOMPARE(int(jetons::ext_value_of("OR")), 12);
    QCOMPARE(int(jetons::ext_value_of("OP")), 13);
    QCOMPARE(int(jetons::ext_value_of("ZS")), 14);
    QCOMPARE(int(jetons::ext_value_of("ENZNDN")), 15);
    QCOMPARE(int(jetons::ext_value_of("LAST_ext_JN")), 130);
    QCOMPARE(int(jetons::ext_value_of("NO_EXT_JETON")), 131);
}

void tst_jetons::a_text_that_is_no_key_gives_the_end_mark_data()
{
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("one digit")            << "PL7";
    QTest::newRow("three digits")         << "PL007";
    QTest::newRow("beyond the last")      << "PL38";
    QTest::newRow("before the first")     << "CH00";
    QTest::newRow("lower case")           << "pl07";
    QTest::newRow("blank in front")       << " PL07";
    QTest::newRow("display text")         << "PL 7";
    QTest::newRow("with its class")       << "jetons::PL07";
    QTest::newRow("kind alone")           << "PL";
    QTest::newRow("one digit, ext")       << "EN7";
    QTest::newRow("beyond the last, ext") << "FI10";
    QTest::newRow("lower case, ext")      << "gs";
    QTest::newRow("empty")                << "";
    QTest::newRow("null")                 << QString();
    QTest::newRow("no Latin")             << QStringLiteral("\u0420L07");
    // clang-format on
}

void tst_jetons::a_text_that_is_no_key_gives_the_end_mark()
{
    QFETCH(QString, text);
    QCOMPARE(int(jetons::value_of(text)), 164);
    QCOMPARE(int(jetons::ext_value_of(text)), 131);
}

void tst_jetons::a_value_without_a_key_has_no_name()
{
    QCOMPARE(jetons::name(place(177)), QString());
    QCOMPARE(jetons::name(announcement(132)), QString());
}

void tst_jetons::places_are_shown_by_their_text_data()
{
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("PL00") << "PL 0";
    QTest::newRow("PL05") << "PL 5";
    QTest::newRow("PL36") << "PL 36";
    QTest::newRow("PL37") << "PL 00";
    QTest::newRow("CH01") << "CH 0/1";
    QTest::newRow("CH02") << "CH 0/2";
    QTest::newRow("CH03") << "CH 0/3";
    QTest::newRow("CH04") << "CH 1/4";
    QTest::newRow("CH15") << "CH 12/15";
    QTest::newRow("CH36") << "CH 33/36";
    QTest::newRow("CH37") << "CH 1/2";
    QTest::newRow("CH38") << "CH 2/3";
    QTest::newRow("CH39") << "CH 4/5";
    QTest::newRow("CH60") << "CH 35/36";
    QTest::newRow("CH61") << "CH 0/00";
    QTest::newRow("CH62") << "CH 00/2";
    QTest::newRow("CH63") << "CH 00/3";
    QTest::newRow("TP01") << "TP 0/1/2";
    QTest::newRow("TP02") << "TP 0/2/3";
    QTest::newRow("TP03") << "TP 1/2/3";
    QTest::newRow("TP14") << "TP 34/35/36";
    QTest::newRow("TP15") << "TP 0/00/2";
    QTest::newRow("TP16") << "TP 00/2/3";
    QTest::newRow("TS01") << "TS 1/6";
    QTest::newRow("TS02") << "TS 4/9";
    QTest::newRow("TS11") << "TS 31/36";
    QTest::newRow("EC01") << "EC 1-18";
    QTest::newRow("EC02") << "EC EVEN";
    QTest::newRow("EC03") << "EC RED";
    QTest::newRow("EC04") << "EC BLACK";
    QTest::newRow("EC05") << "EC ODD";
    QTest::newRow("EC06") << "EC 19-36";
    QTest::newRow("CA01") << "CA 0-3";
    QTest::newRow("CA02") << "CA 1-5";
    QTest::newRow("CA03") << "CA 2-6";
    QTest::newRow("CA04") << "CA 4-8";
    QTest::newRow("CA22") << "CA 31-35";
    QTest::newRow("CA23") << "CA 32-36";
    QTest::newRow("KL01") << "KL 1";
    QTest::newRow("KL03") << "KL 3";
    QTest::newRow("DZ01") << "DZ 1";
    QTest::newRow("DZ03") << "DZ 3";
    // clang-format on
}

void tst_jetons::places_are_shown_by_their_text()
{
    QFETCH(QString, text);
    const auto jeton = jetons::value_of(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(jetons::instance().display_text(jeton), text);
}

void tst_jetons::announcements_are_shown_by_their_text_data()
{
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("FI00") << "FI 0";
    QTest::newRow("FI09") << "FI 9";
    QTest::newRow("GS")   << "GS";
    QTest::newRow("KS")   << "KS";
    QTest::newRow("OR")   << "OR";
    QTest::newRow("OP")   << "OP";
    QTest::newRow("ZS")   << "ZS";
    QTest::newRow("EN00") << "EN 0";
    QTest::newRow("EN36") << "EN 36";
    QTest::newRow("EN37") << "EN 00";
    QTest::newRow("ZN12") << "ZN 12";
    QTest::newRow("ZN37") << "ZN 00";
    QTest::newRow("DN07") << "DN 7";
    QTest::newRow("DN37") << "DN 00";
    // clang-format on
}

void tst_jetons::announcements_are_shown_by_their_text()
{
    QFETCH(QString, text);
    const auto ext_jeton = jetons::ext_value_of(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(jetons::instance().display_text(ext_jeton), text);
}

void tst_jetons::every_place_has_a_text_of_its_own()
{
    QSet<QString> texts;
    for (int value = 0; value < jetons::LAST_JN; ++value) {
        texts.insert(jetons::instance().display_text(place(value)));
    }
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(texts.size(), 163);

    texts.clear();
    for (int value = 0; value < jetons::LAST_ext_JN; ++value) {
        if (value == jetons::ENZNDN) continue;
        texts.insert(jetons::instance().display_text(announcement(value)));
    }
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(texts.size(), 129);
}

void tst_jetons::marks_and_prison_places_have_no_text()
{
    for (int value = 163; value <= 177; ++value) {
        QCOMPARE(jetons::instance().display_text(place(value)), QString());
    }
}

void tst_jetons::separators_of_announcements_have_no_text()
{
    for (const int value : {15, 130, 131, 132}) {
        QCOMPARE(jetons::instance().display_text(announcement(value)), QString());
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_jetons>(argc, argv);
}

#include "tst_jetons.moc"
