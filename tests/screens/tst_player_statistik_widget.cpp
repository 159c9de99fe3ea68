#include "player_statistik_widget.h"
#include "window_bench.h"

#include <QFontMetrics>
#include <QLabel>
#include <QTranslator>

using general_player::PLAYER_1;
using general_player::PLAYER_3;
using general_player::PLAYER_4;

/// The small panel of figures.
class tst_player_statistik_widget : public QObject
{
    Q_OBJECT

private slots:
    void it_begins_empty();
    void the_figures_of_a_player_are_shown();
    void a_win_or_a_loss_is_told_data();
    void a_win_or_a_loss_is_told();
    void the_counter_belongs_to_no_player();
    void everything_fits_at_every_scale_data();
    void everything_fits_at_every_scale();
    void texts_follow_the_language();
};

namespace
{

QString text_of(const player_statistik_widget& panel, const char* name)
{
    return child_of<QLabel>(panel, name)->text();
}

/// Puts every text between angle brackets.
class bracket_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return '<' + QString::fromUtf8(text) + '>';
    }
};

} // namespace

void tst_player_statistik_widget::it_begins_empty()
{
    const player_statistik_widget panel(0.0, nullptr);
    QCOMPARE(text_of(panel, "LB_player"), QString("Spieler 1"));
    QCOMPARE(panel.selected_player(), PLAYER_1);
    for (const char* name :
         {"LB_cup_counter", "LB_plus_coups", "LB_minus_coups", "LB_seeded", "LB_win_loss"})
        QCOMPARE(text_of(panel, name), QString("0"));
}

void tst_player_statistik_widget::the_figures_of_a_player_are_shown()
{
    player_statistik_widget panel(0.0, nullptr);
    player_status figures;
    figures.plus_coups = 12;
    figures.minus_coups = 31;
    figures.last_seeded = 250;
    panel.show_status(PLAYER_3, figures);
    QCOMPARE(panel.selected_player(), PLAYER_3);
    QCOMPARE(text_of(panel, "LB_player"), QString("Spieler 3"));
    QCOMPARE(text_of(panel, "LB_plus_coups"), QString("12"));
    QCOMPARE(text_of(panel, "LB_minus_coups"), QString("31"));
    QCOMPARE(text_of(panel, "LB_seeded"), QString("250"));
}

void tst_player_statistik_widget::a_win_or_a_loss_is_told_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("last");
    QTest::addColumn<bool>("has_credit");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("win")              << qint64{2000} << qint64{2035} << true  << "+35";
    QTest::newRow("loss")             << qint64{2000} << qint64{1990} << true  << "-10";
    QTest::newRow("neither")          << qint64{2000} << qint64{2000} << true  << "0";
    QTest::newRow("system in debt")   << qint64{2000} << qint64{-500} << true  << "-2500";
    QTest::newRow("no coup yet")      << qint64{2000} << qint64{0}    << false << "0";
    // clang-format on
}

void tst_player_statistik_widget::a_win_or_a_loss_is_told()
{
    QFETCH(qint64, start);
    QFETCH(qint64, last);
    QFETCH(bool, has_credit);
    QFETCH(QString, text);
    player_statistik_widget panel(0.0, nullptr);
    player_status figures;
    figures.start_credit = start;
    figures.last_credit = last;
    figures.has_credit = has_credit;
    panel.show_status(PLAYER_1, figures);
    QCOMPARE(text_of(panel, "LB_win_loss"), text);
}

void tst_player_statistik_widget::the_counter_belongs_to_no_player()
{
    player_statistik_widget panel(0.0, nullptr);
    panel.update_cup_counter(117);
    panel.show_status(PLAYER_4, player_status());
    QCOMPARE(text_of(panel, "LB_cup_counter"), QString("117"));
    panel.update_cup_counter(118);
    QCOMPARE(text_of(panel, "LB_cup_counter"), QString("118"));
    QCOMPARE(panel.selected_player(), PLAYER_4);
}

void tst_player_statistik_widget::everything_fits_at_every_scale_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full size") << 0.0 << QSize(258, 172);
    QTest::newRow("0.1") << 0.1 << QSize(232, 154);
    QTest::newRow("0.2") << 0.2 << QSize(206, 137);
    QTest::newRow("0.3") << 0.3 << QSize(180, 120);
}

void tst_player_statistik_widget::everything_fits_at_every_scale()
{
    QFETCH(double, reduction);
    QFETCH(QSize, size);
    player_statistik_widget panel(reduction, nullptr);
    QCOMPARE(panel.size(), size);
    panel.update_cup_counter(2147483647);
    player_status figures;
    figures.plus_coups = 2147483647;
    figures.last_seeded = 123456789012;
    figures.last_credit = -123456789012;
    figures.has_credit = true;
    panel.show_status(PLAYER_3, figures);
    const auto labels = panel.findChildren<QLabel*>();
    QCOMPARE(labels.size(), 11); // the title, and five rows of two
    for (const QLabel* label : labels) {
        const QFontMetrics metrics(label->font());
        QVERIFY2(metrics.horizontalAdvance(label->text()) <= label->width(),
                 qPrintable(label->objectName()));
        QVERIFY2(metrics.height() <= label->height(), qPrintable(label->objectName()));
        QVERIFY(panel.rect().contains(label->geometry()));
        for (const QLabel* other : labels)
            QVERIFY(other == label || !other->geometry().intersects(label->geometry()));
    }
}

void tst_player_statistik_widget::texts_follow_the_language()
{
    player_statistik_widget panel(0.0, nullptr);
    panel.show_status(PLAYER_3, player_status());
    panel.update_cup_counter(5);
    bracket_translator brackets;
    QApplication::installTranslator(&brackets);
    QEvent language(QEvent::LanguageChange);
    QApplication::sendEvent(&panel, &language);
    QCOMPARE(text_of(panel, "LB_player"), QString("<Spieler 3>"));
    QCOMPARE(text_of(panel, "LB_caption_cup_counter"), QString("<Coups>"));
    QCOMPARE(text_of(panel, "LB_caption_win_loss"), QString("<Gewinn/Verlust>"));
    QCOMPARE(text_of(panel, "LB_cup_counter"), QString("5"));
    QApplication::removeTranslator(&brackets);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_player_statistik_widget>(argc, argv);
}

#include "tst_player_statistik_widget.moc"
