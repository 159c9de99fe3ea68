#include "player_status_widget.h"
#include "players_control.h"
#include "setting.h"
#include "window_bench.h"

#include <QFontMetrics>
#include <QLabel>
#include <QSignalSpy>
#include <QTranslator>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;
using general_player::player_names;

/// The table of the four players.
class tst_player_status_widget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void it_shows_what_the_accounts_hold();
    void figures_are_written_per_player();
    void a_status_goes_to_its_player();
    void the_active_players_name_stands_out();
    void a_score_is_counted_by_its_player();
    void a_stop_breaks_all_counts_off();
    void the_replay_of_all_players_is_shown();
    void everything_follows_the_scale_data();
    void everything_follows_the_scale();
    void eight_digits_fit_at_every_scale_data();
    void eight_digits_fit_at_every_scale();
    void more_digits_are_written_smaller();
    void a_press_beside_the_buttons_reaches_the_table_itself();
    void texts_follow_the_language();
    void texts_fit_in_both_languages_data();
    void texts_fit_in_both_languages();
};

namespace
{

/// The table of a game in which player 1 is active and each player holds 2000.
struct panel_desk {
    explicit panel_desk(double reduction = 0.0)
    {
        for (int i = 0; i < general_player::player_count; ++i)
            players.table().set_credit(static_cast<player_names>(i), 2000);
        panel = std::make_unique<player_status_widget>(players, settings, reduction, nullptr);
        panel->show();
    }

    template <typename widget>
    widget* child(const QString& name) const
    {
        return child_of<widget>(*panel, name);
    }
    QLabel* label(const QString& name) const { return child<QLabel>(name); }
    status_button* button(int number) const
    {
        return child<status_button>(QString("PB_status_%1").arg(number));
    }
    QTimer* timer(int number, const char* name) const
    {
        return child_of<QTimer>(*button(number), name);
    }

    setting settings;
    players_control players;
    std::unique_ptr<player_status_widget> panel;
};

/// Gives each text its English, or puts it between brackets where none is known here.
class small_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        const QString german = QString::fromUtf8(text);
        if (german == "Spieler %1") return "Player %1";
        if (german == "Gesetzt") return "Staked";
        if (german == "Kapital") return "Capital";
        if (german == "Aktiv") return "Active";
        return '<' + german + '>';
    }
};

void tell_language_change(QWidget* widget)
{
    QEvent language(QEvent::LanguageChange);
    QApplication::sendEvent(widget, &language);
}

int integer_part(int v, int tenths)
{
    return v * (10 - tenths) / 10;
}

} // namespace

void tst_player_status_widget::initTestCase()
{
    qRegisterMetaType<general_player::player_names>("general_player::player_names");
}

void tst_player_status_widget::it_shows_what_the_accounts_hold()
{
    panel_desk desk;
    QCOMPARE(desk.panel->objectName(), QString("WD_SpTable"));
    for (int number = 1; number <= 4; ++number) {
        const QString end = QString::number(number);
        QCOMPARE(desk.label("LB_name_" + end)->text(), "Spieler " + end);
        QCOMPARE(desk.label("LB_seeded_" + end)->text(), QString("0"));
        QCOMPARE(desk.label("LB_credit_" + end)->text(), QString("2000"));
        QCOMPARE(desk.button(number)->text(), number == 1 ? QString("Aktiv") : QString());
    }
}

void tst_player_status_widget::figures_are_written_per_player()
{
    const panel_desk desk;
    desk.panel->show_seeded(PLAYER_2, 15);
    desk.panel->show_credit(PLAYER_4, 1985);
    QCOMPARE(desk.label("LB_seeded_2")->text(), QString("15"));
    QCOMPARE(desk.label("LB_credit_4")->text(), QString("1985"));
    QCOMPARE(desk.label("LB_seeded_1")->text(), QString("0"));
    QCOMPARE(desk.label("LB_credit_1")->text(), QString("2000"));
    desk.panel->show_credit(PLAYER_4, -120); // a system may owe
    QCOMPARE(desk.label("LB_credit_4")->text(), QString("-120"));
}

void tst_player_status_widget::a_status_goes_to_its_player()
{
    const panel_desk desk;
    desk.panel->show_player_status(PLAYER_1, 2);
    desk.panel->show_player_status(PLAYER_2, 0);
    desk.panel->show_player_status(PLAYER_3, 1);
    QCOMPARE(desk.button(1)->text(), QString());
    QCOMPARE(desk.button(2)->text(), QString("Aktiv"));
    QCOMPARE(desk.button(3)->text(), QString("System"));
    QCOMPARE(desk.button(3)->styleSheet(), QString("color: rgb(0, 128, 0);"));
}

void tst_player_status_widget::the_active_players_name_stands_out()
{
    const panel_desk desk;
    const QString outstanding = desk.label("LB_name_1")->styleSheet();
    const QString usual = desk.label("LB_name_2")->styleSheet();
    QVERIFY(outstanding != usual);
    desk.panel->show_player_status(PLAYER_1, 2);
    desk.panel->show_player_status(PLAYER_3, 0);
    QCOMPARE(desk.label("LB_name_1")->styleSheet(), usual);
    QCOMPARE(desk.label("LB_name_3")->styleSheet(), outstanding);
}

void tst_player_status_widget::a_score_is_counted_by_its_player()
{
    panel_desk desk;
    desk.settings.set_s_su_shortthrow_activ(true);
    const QSignalSpy added(desk.panel.get(), &player_status_widget::addCredit_to_player);
    const QSignalSpy finished(desk.panel.get(), &player_status_widget::count_finished);
    desk.panel->show_score(PLAYER_3, 36);
    QVERIFY(!desk.button(2)->is_counting());
    QVERIFY(fire(desk.timer(3, "count_timer")));
    QCOMPARE(added.count(), 1);
    QCOMPARE(added.first().at(0).toInt(), 2);
    QCOMPARE(added.first().at(1).toInt(), 36);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().at(0).toInt(), 2);
    QCOMPARE(finished.first().at(1).toLongLong(), 36LL);
}

void tst_player_status_widget::a_stop_breaks_all_counts_off()
{
    panel_desk desk;
    const QSignalSpy finished(desk.panel.get(), &player_status_widget::count_finished);
    for (int i = 0; i < general_player::player_count; ++i)
        desk.panel->show_score(static_cast<player_names>(i), 10 * i);
    desk.panel->stop_count();
    for (int number = 1; number <= 4; ++number) {
        QVERIFY(!desk.button(number)->is_counting());
        QVERIFY(!fire(desk.timer(number, "blink_timer")));
        QVERIFY(!fire(desk.timer(number, "count_timer")));
    }
    QVERIFY(finished.isEmpty());
    QCOMPARE(desk.button(1)->text(), QString("Aktiv"));
}

void tst_player_status_widget::the_replay_of_all_players_is_shown()
{
    panel_desk desk;
    const QSignalSpy switched(desk.panel.get(), &player_status_widget::checkStatusReplay);
    desk.players.set_replay_for_all(true);
    desk.panel->refresh_replay_display();
    for (int number = 1; number <= 4; ++number)
        QVERIFY(desk.button(number)->styleSheet().contains("replay.png"));
    QVERIFY(switched.isEmpty());
    QTest::mouseClick(desk.button(4), Qt::LeftButton);
    QCOMPARE(switched.count(), 1);
    QVERIFY(!desk.players.table().account_of(PLAYER_4).replay);
    QVERIFY(desk.players.table().account_of(PLAYER_1).replay);
}

void tst_player_status_widget::everything_follows_the_scale_data()
{
    QTest::addColumn<int>("tenths");
    for (int tenths = 0; tenths < 4; ++tenths)
        QTest::addRow("0.%d", tenths) << tenths;
}

void tst_player_status_widget::everything_follows_the_scale()
{
    QFETCH(int, tenths);
    constexpr std::array<double, 4> reductions = {0.0, 0.1, 0.2, 0.3};
    constexpr std::array<int, 4> left = {115, 225, 333, 441};
    constexpr std::array<int, 4> right = {214, 322, 430, 538};
    const panel_desk desk(reductions[std::size_t(tenths)]);
    QCOMPARE(desk.panel->size(), QSize(integer_part(560, tenths), integer_part(282, tenths)));
    for (std::size_t i = 0; i < 4; ++i) {
        const QString end = QString::number(i + 1);
        const QRect name = desk.label("LB_name_" + end)->geometry();
        QCOMPARE(name.left(), integer_part(left[i], tenths));
        QCOMPARE(name.right(), integer_part(right[i], tenths));
        QCOMPARE(name.top(), integer_part(7, tenths));
        QCOMPARE(name.bottom(), integer_part(44, tenths));
        const QRect status = desk.button(int(i) + 1)->geometry();
        const QRect seeded = desk.label("LB_seeded_" + end)->geometry();
        const QRect credit = desk.label("LB_credit_" + end)->geometry();
        QVERIFY(name.bottom() < status.top());
        QVERIFY(status.bottom() < seeded.top());
        QVERIFY(seeded.bottom() < credit.top());
        QVERIFY(desk.panel->rect().contains(credit));
        for (const QRect& field : {status, seeded, credit}) {
            QCOMPARE(field.left(), name.left());
            QCOMPARE(field.right(), name.right());
        }
    }
}

void tst_player_status_widget::eight_digits_fit_at_every_scale_data()
{
    everything_follows_the_scale_data();
}

void tst_player_status_widget::eight_digits_fit_at_every_scale()
{
    QFETCH(int, tenths);
    const panel_desk desk(tenths / 10.0);
    const int room = integer_part(100, tenths);
    const QString digits = "88888888";
    const QFont figures = desk.label("LB_credit_1")->font();
    const QFont names = desk.button(1)->font();
    QCOMPARE(figures.weight(), 50);
    QCOMPARE(names.weight(), 63);
    for (QFont font : {figures, names}) {
        QVERIFY(QFontMetrics(font).horizontalAdvance(digits) <= room);
        QVERIFY(font.pointSize() <= 20);
        if (font.pointSize() == 20) continue;
        font.setPointSize(font.pointSize() + 1);
        QVERIFY(QFontMetrics(font).horizontalAdvance(digits) > room);
    }
    for (int number = 1; number <= 4; ++number) {
        const QString end = QString::number(number);
        desk.panel->show_credit(static_cast<player_names>(number - 1), 88888888);
        QCOMPARE(desk.label("LB_credit_" + end)->font().pointSize(), figures.pointSize());
        QCOMPARE(desk.label("LB_seeded_" + end)->font().pointSize(), figures.pointSize());
        QCOMPARE(desk.button(number)->font().pointSize(), names.pointSize());
    }
}

void tst_player_status_widget::more_digits_are_written_smaller()
{
    const panel_desk desk(0.3);
    QLabel* credit = desk.label("LB_credit_2");
    const QFont usual = credit->font();
    desk.panel->show_credit(PLAYER_2, 9223372036854775807LL);
    QCOMPARE(credit->text(), QString("9223372036854775807"));
    QVERIFY(QFontMetrics(credit->font()).horizontalAdvance(credit->text()) <= credit->width());
    QVERIFY(credit->font().pointSize() < usual.pointSize());
    QCOMPARE(desk.label("LB_credit_1")->font().pointSize(), usual.pointSize());
    desk.panel->show_credit(PLAYER_2, 12);
    QCOMPARE(credit->font().pointSize(), usual.pointSize());
}

void tst_player_status_widget::a_press_beside_the_buttons_reaches_the_table_itself()
{
    for (const double reduction : {0.0, 0.3}) {
        const panel_desk desk(reduction);
        const auto labels = desk.panel->findChildren<QLabel*>();
        QCOMPARE(labels.size(), 15); // four columns of three, and three captions
        for (const QLabel* label : labels)
            QCOMPARE(desk.panel->childAt(label->geometry().center()), nullptr);
        QCOMPARE(desk.panel->childAt(desk.button(2)->geometry().center()), desk.button(2));
    }
}

void tst_player_status_widget::texts_follow_the_language()
{
    const panel_desk desk;
    desk.panel->show_credit(PLAYER_1, 1234);
    small_translator english;
    QApplication::installTranslator(&english);
    QCoreApplication::sendPostedEvents();
    tell_language_change(desk.panel.get());
    QCOMPARE(desk.label("LB_name_4")->text(), QString("Player 4"));
    QCOMPARE(desk.label("LB_caption_2")->text(), QString("Staked"));
    QCOMPARE(desk.label("LB_caption_3")->text(), QString("Capital"));
    QCOMPARE(desk.button(1)->text(), QString("Active"));
    QCOMPARE(desk.label("LB_credit_1")->text(), QString("1234"));
    QApplication::removeTranslator(&english);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(desk.label("LB_name_4")->text(), QString("Spieler 4"));
}

void tst_player_status_widget::texts_fit_in_both_languages_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<bool>("is_english");
    for (const double reduction : {0.0, 0.1, 0.2, 0.3}) {
        QTest::addRow("German, %.1f", reduction) << reduction << false;
        QTest::addRow("English, %.1f", reduction) << reduction << true;
    }
}

void tst_player_status_widget::texts_fit_in_both_languages()
{
    QFETCH(double, reduction);
    QFETCH(bool, is_english);
    small_translator english;
    if (is_english) QApplication::installTranslator(&english);
    const panel_desk desk(reduction);
    const auto labels = desk.panel->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        const QFontMetrics metrics(label->font());
        QVERIFY2(metrics.horizontalAdvance(label->text()) <= label->width(),
                 qPrintable(label->objectName()));
        QVERIFY2(metrics.ascent() <= label->height(), qPrintable(label->objectName()));
    }
    const QFontMetrics metrics(desk.button(1)->font());
    QVERIFY(metrics.horizontalAdvance(desk.button(1)->text()) <= desk.button(1)->width());
    QApplication::removeTranslator(&english);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_player_status_widget>(argc, argv);
}

#include "tst_player_status_widget.moc"
