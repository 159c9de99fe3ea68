#include "window_bench.h"
#include "year_file_permanenz.h"

#include <QFile>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QPushButton>

/// The window that shows the year file and the running game.
class tst_year_file_permanenz : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove("Stat2018.log"); }

    void the_file_and_the_run_data();
    void the_file_and_the_run();
    void of_a_very_long_file_the_end_is_shown();
    void without_a_file_nothing_is_shown_data();
    void without_a_file_nothing_is_shown();
    void the_window_has_its_form();
    void close_closes();
};

static void put(const QByteArray& content)
{
    QFile file("Stat2018.log");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

static QPlainTextEdit& text_field(const QWidget& window)
{
    return *child_of<QPlainTextEdit>(window, "PE_year_file");
}

void tst_year_file_permanenz::the_file_and_the_run_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("run");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("no run")    << QByteArray(":: a\n01\n\n") << QString()
                               << ":: a\n01\n*aktueller Lauf\n-";
    QTest::newRow("a run")     << QByteArray(":: a\n01\n\n") << ":: b\n02\n\n"
                               << ":: a\n01\n*aktueller Lauf\n:: b\n02\n\n";
    QTest::newRow("two blocks")<< QByteArray(":: a\n01\n\n:: b\n02\n\n") << QString()
                               << ":: a\n01\n\n:: b\n02\n*aktueller Lauf\n-";
    QTest::newRow("line ends") << QByteArray(":: a\r\n01\r\n\r\n") << QString()
                               << ":: a\n01\n*aktueller Lauf\n-";
    QTest::newRow("empty")     << QByteArray() << QString() << "\n*aktueller Lauf\n-";
    // clang-format on
}

void tst_year_file_permanenz::the_file_and_the_run()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, run);
    put(file);
    const year_file_permanenz window(2018, run);
    QTEST(text_field(window).toPlainText(), "text");
    QCOMPARE(window.windowTitle(), QString("Stat2018.log (schreibgeschützt)"));
    QVERIFY(text_field(window).isReadOnly());
}

// Lines of 32 bytes: the last 16 MiB begin in the middle of one, behind which 524287 are left.
void tst_year_file_permanenz::of_a_very_long_file_the_end_is_shown()
{
    const QByteArray line = "01 02 03 04 05 06 07 08 09 10 1\n";
    QCOMPARE(line.size(), 32);
    const int lines = 16 * 1024 * 1024 / 32;
    put(":: first\n" + line.repeated(lines) + ":: last\n05\n\n");
    const year_file_permanenz window(2018, QString());
    const QStringList shown = text_field(window).toPlainText().split('\n');
    QCOMPARE(shown.first(), QString("... (die Datei ist zu lang, gezeigt wird ihr Ende)"));
    QCOMPARE(shown.mid(shown.size() - 5),
             QStringList({line.trimmed(), ":: last", "05", "*aktueller Lauf", "-"}));
    QCOMPARE(shown.count(QString(line.trimmed())), lines - 1);
    QVERIFY(!shown.contains(":: first"));
}

void tst_year_file_permanenz::without_a_file_nothing_is_shown_data()
{
    QTest::addColumn<QString>("run");
    QTest::newRow("no run") << QString();
    QTest::newRow("a run") << ":: b\n02\n\n";
}

void tst_year_file_permanenz::without_a_file_nothing_is_shown()
{
    QFETCH(QString, run);
    const year_file_permanenz window(2018, run);
    QCOMPARE(text_field(window).toPlainText(), QString());
    QCOMPARE(window.windowTitle(), QString("Keine Jahres Permanenz gefunden!"));
}

void tst_year_file_permanenz::the_window_has_its_form()
{
    put(":: a\n01\n\n");
    year_file_permanenz window(2018, QString());
    window.show();
    QCOMPARE(window.size(), QSize(1000, 583));
    QCOMPARE(window.minimumWidth(), 1000);
    QCOMPARE(text_field(window).font().pointSize(), 9);
    QVERIFY(QFontInfo(text_field(window).font()).fixedPitch());
    const QPushButton& button = *child_of<QPushButton>(window, "PB_close");
    QCOMPARE(button.text(), QString("Schließen"));
    QVERIFY(qAbs(button.geometry().center().x() - window.rect().center().x()) <= 1);
}

void tst_year_file_permanenz::close_closes()
{
    year_file_permanenz window(2018, QString());
    window.show();
    child_of<QPushButton>(window, "PB_close")->click();
    QVERIFY(!window.isVisible());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_year_file_permanenz>(argc, argv);
}

#include "tst_year_file_permanenz.moc"
