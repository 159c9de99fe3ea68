#include "players_control.h"
#include "setting.h"
#include "status_button.h"
#include "window_bench.h"

#include <QSignalSpy>
#include <QTranslator>

#include <limits>

using general_player::PLAYER_2;

Q_DECLARE_METATYPE(status_button::status)

/// A player's state, and a score that is counted into the credit.
class tst_status_button : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void a_status_has_its_style_and_text_data();
    void a_status_has_its_style_and_text();
    void a_click_switches_the_replay();
    void the_replay_of_a_system_stays_off();
    void the_score_blinks_eleven_ticks_and_is_counted_then();
    void the_count_takes_its_steps_data();
    void the_count_takes_its_steps();
    void the_rest_is_shown_while_it_is_counted();
    void a_score_of_zero_takes_the_same_road();
    void in_a_super_short_game_the_score_moves_at_once_data();
    void in_a_super_short_game_the_score_moves_at_once();
    void a_count_never_slows_down_data();
    void a_count_never_slows_down();
    void changes_show_when_the_count_has_ended();
    void a_stopped_count_sends_nothing_data();
    void a_stopped_count_sends_nothing();
    void a_count_stopped_by_its_own_step_does_not_finish();
    void a_new_score_begins_anew();
    void texts_follow_the_language();
};

namespace
{

const QString red = "color: rgb(255, 0, 0);";
const QString green = "color: rgb(0, 128, 0);";
const QString black = "color: rgb(0, 0, 0);";

/// The button of player 2, its timers, and what it sends.
struct status_desk {
    bool blink() const { return fire(blink_timer); }
    bool count() const { return fire(count_timer); }
    void blink_to_the_end() const
    {
        for (int tick = 0; tick < 11; ++tick)
            QVERIFY(blink());
    }
    QList<int> steps() const
    {
        QList<int> told;
        for (const auto& arguments : added)
            told.append(arguments.at(1).toInt());
        return told;
    }

    setting settings;
    players_control players;
    status_button button{PLAYER_2, players, settings, nullptr};
    QTimer* blink_timer = child_of<QTimer>(button, "blink_timer");
    QTimer* count_timer = child_of<QTimer>(button, "count_timer");
    QSignalSpy added{&button, &status_button::addCredit_to_player};
    QSignalSpy finished{&button, &status_button::count_finished};
    QSignalSpy replay_switched{&button, &status_button::checkStatusReplay};
};

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

void tst_status_button::initTestCase()
{
    qRegisterMetaType<general_player::player_names>("general_player::player_names");
}

void tst_status_button::a_status_has_its_style_and_text_data()
{
    QTest::addColumn<status_button::status>("status");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("text");
    QTest::newRow("active") << status_button::status::active << red << "Aktiv";
    QTest::newRow("system") << status_button::status::system << green << "System";
    QTest::newRow("waiting") << status_button::status::waiting << ""
                             << "";
}

void tst_status_button::a_status_has_its_style_and_text()
{
    QFETCH(status_button::status, status);
    QFETCH(QString, style);
    QFETCH(QString, text);
    status_desk desk;
    desk.button.show_status(status);
    QCOMPARE(desk.button.styleSheet(), style);
    QCOMPARE(desk.button.text(), text);

    desk.players.table().set_replay(PLAYER_2, true);
    desk.button.refresh_replay_display();
    QVERIFY(desk.button.styleSheet().startsWith(style));
    QVERIFY(desk.button.styleSheet().contains(":/table/grafik/playertable/replay.png"));
    QCOMPARE(desk.button.text(), text);

    desk.players.table().set_replay(PLAYER_2, false);
    desk.button.refresh_replay_display();
    QCOMPARE(desk.button.styleSheet(), style);
    QCOMPARE(desk.button.objectName(), QString("PB_status_2"));
}

void tst_status_button::a_click_switches_the_replay()
{
    status_desk desk;
    QTest::mouseClick(&desk.button, Qt::LeftButton);
    QVERIFY(desk.players.table().account_of(PLAYER_2).replay);
    QVERIFY(desk.button.styleSheet().contains("replay.png"));
    QCOMPARE(desk.replay_switched.count(), 1);
    QTest::mouseClick(&desk.button, Qt::LeftButton);
    QVERIFY(!desk.players.table().any_replay());
    QVERIFY(!desk.button.styleSheet().contains("replay.png"));
    QCOMPARE(desk.replay_switched.count(), 2);
}

void tst_status_button::the_replay_of_a_system_stays_off()
{
    status_desk desk;
    desk.players.table().make_system_player(PLAYER_2);
    desk.button.show_status(status_button::status::system);
    QTest::mouseClick(&desk.button, Qt::LeftButton);
    QVERIFY(!desk.players.table().any_replay());
    QCOMPARE(desk.button.styleSheet(), green);
}

void tst_status_button::the_score_blinks_eleven_ticks_and_is_counted_then()
{
    status_desk desk;
    desk.button.show_status(status_button::status::active);
    desk.button.display_score(36);
    QCOMPARE(desk.button.styleSheet(), black);
    QCOMPARE(desk.button.text(), QString("36"));
    QCOMPARE(desk.blink_timer->interval(), 200);
    QCOMPARE(desk.count_timer->interval(), 50);
    for (int tick = 1; tick <= 11; ++tick) {
        QVERIFY(desk.blink_timer->isActive());
        QVERIFY(!desk.count_timer->isActive());
        QVERIFY(desk.blink());
        QCOMPARE(desk.button.text(), tick % 2 == 1 ? QString() : QString("36"));
    }
    QVERIFY(!desk.blink_timer->isActive());
    QVERIFY(desk.count_timer->isActive());
    QVERIFY(desk.added.isEmpty() && desk.finished.isEmpty());
}

void tst_status_button::the_count_takes_its_steps_data()
{
    QTest::addColumn<qlonglong>("score");
    QTest::addColumn<int>("hundreds");
    QTest::addColumn<int>("tens");
    QTest::addColumn<int>("ones");
    // 100 above 1000, 10 above 20, else 1.
    // clang-format off
    QTest::newRow("1")    << 1LL    <<  0 <<  0 <<  1;
    QTest::newRow("20")   << 20LL   <<  0 <<  0 << 20;
    QTest::newRow("21")   << 21LL   <<  0 <<  1 << 11;
    QTest::newRow("25")   << 25LL   <<  0 <<  1 << 15;
    QTest::newRow("1000") << 1000LL <<  0 << 98 << 20;
    QTest::newRow("1001") << 1001LL <<  1 << 89 << 11;
    QTest::newRow("1250") << 1250LL <<  3 << 93 << 20;
    // clang-format on
}

void tst_status_button::the_count_takes_its_steps()
{
    QFETCH(qlonglong, score);
    QFETCH(int, hundreds);
    QFETCH(int, tens);
    QFETCH(int, ones);
    status_desk desk;
    desk.button.display_score(score);
    desk.blink_to_the_end();
    while (desk.count()) {
    }
    QList<int> expected;
    for (int i = 0; i < hundreds; ++i)
        expected.append(100);
    for (int i = 0; i < tens; ++i)
        expected.append(10);
    for (int i = 0; i < ones; ++i)
        expected.append(1);
    QCOMPARE(desk.steps(), expected);
    QCOMPARE(desk.added.first().first().toInt(), 1);
    QCOMPARE(desk.finished.count(), 1);
    QCOMPARE(desk.finished.first().at(0).toInt(), 1);
    QCOMPARE(desk.finished.first().at(1).toLongLong(), score);
    QVERIFY(!desk.button.is_counting());
}

void tst_status_button::the_rest_is_shown_while_it_is_counted()
{
    status_desk desk;
    desk.button.show_status(status_button::status::active);
    desk.button.display_score(22);
    desk.blink_to_the_end();
    QVERIFY(desk.count());
    QCOMPARE(desk.button.text(), QString("12"));
    QVERIFY(desk.count());
    QCOMPARE(desk.button.text(), QString("11"));
    QCOMPARE(desk.button.styleSheet(), black);
    for (int rest = 10; rest >= 0; --rest)
        QVERIFY(desk.count());
    QCOMPARE(desk.button.text(), QString("Aktiv"));
    QCOMPARE(desk.button.styleSheet(), red);
}

void tst_status_button::a_score_of_zero_takes_the_same_road()
{
    status_desk desk;
    desk.button.display_score(0);
    QCOMPARE(desk.button.text(), QString("0"));
    desk.blink_to_the_end();
    QVERIFY(desk.finished.isEmpty());
    QVERIFY(desk.count());
    QCOMPARE(desk.steps(), QList<int>{0});
    QCOMPARE(desk.finished.count(), 1);
    QCOMPARE(desk.finished.first().at(1).toLongLong(), 0LL);
    QVERIFY(!desk.count_timer->isActive());
}

void tst_status_button::in_a_super_short_game_the_score_moves_at_once_data()
{
    QTest::addColumn<qlonglong>("score");
    QTest::addColumn<QList<int>>("steps");
    constexpr int most = std::numeric_limits<int>::max(); // 2147483647
    // clang-format off
    QTest::newRow("nothing")         << 0LL          << QList<int>{0};
    QTest::newRow("plein")           << 36LL         << QList<int>{36};
    QTest::newRow("largest int")     << 2147483647LL << QList<int>{most};
    QTest::newRow("one more")        << 2147483648LL << QList<int>{most, 1};
    QTest::newRow("five milliards")  << 5000000000LL << QList<int>{most, most, 705032706};
    // clang-format on
}

void tst_status_button::in_a_super_short_game_the_score_moves_at_once()
{
    QFETCH(qlonglong, score);
    QFETCH(QList<int>, steps);
    status_desk desk;
    desk.settings.set_s_su_shortthrow_activ(true);
    desk.button.show_status(status_button::status::active);
    desk.button.display_score(score);
    QVERIFY(!desk.blink_timer->isActive());
    QVERIFY(desk.added.isEmpty());
    QVERIFY(desk.count());
    QCOMPARE(desk.steps(), steps);
    QCOMPARE(desk.finished.count(), 1);
    QCOMPARE(desk.finished.first().at(1).toLongLong(), score);
    QVERIFY(!desk.count_timer->isActive());
    QCOMPARE(desk.button.text(), QString("Aktiv"));
    QCOMPARE(desk.button.styleSheet(), red);
}

void tst_status_button::a_count_never_slows_down_data()
{
    QTest::addColumn<bool>("begins_at_once"); // and is switched over behind the beginning
    QTest::newRow("a super short game ends") << true;
    QTest::newRow("a super short game begins") << false;
}

void tst_status_button::a_count_never_slows_down()
{
    QFETCH(bool, begins_at_once);
    status_desk desk;
    desk.settings.set_s_su_shortthrow_activ(begins_at_once);
    desk.button.display_score(50);
    desk.settings.set_s_su_shortthrow_activ(!begins_at_once);
    if (!begins_at_once) desk.blink_to_the_end();
    QVERIFY(desk.count());
    QCOMPARE(desk.steps(), QList<int>{50});
    QCOMPARE(desk.finished.count(), 1);
}

void tst_status_button::changes_show_when_the_count_has_ended()
{
    status_desk desk;
    desk.button.show_status(status_button::status::active);
    desk.button.display_score(1);
    desk.button.show_status(status_button::status::system);
    desk.players.table().set_replay(PLAYER_2, true);
    desk.button.refresh_replay_display();
    QEvent language(QEvent::LanguageChange);
    QApplication::sendEvent(&desk.button, &language);
    QCOMPARE(desk.button.styleSheet(), black);
    QCOMPARE(desk.button.text(), QString("1"));
    desk.blink_to_the_end();
    QVERIFY(desk.count());
    QCOMPARE(desk.button.text(), QString("System"));
    QVERIFY(desk.button.styleSheet().startsWith(green));
    QVERIFY(desk.button.styleSheet().contains("replay.png"));
}

void tst_status_button::a_stopped_count_sends_nothing_data()
{
    QTest::addColumn<int>("blinks"); // ticks before the stop
    QTest::addColumn<int>("counts");
    QTest::newRow("at once") << 0 << 0;
    QTest::newRow("while it blinks") << 3 << 0;
    QTest::newRow("before the first step") << 11 << 0;
    QTest::newRow("while it counts") << 11 << 2;
}

void tst_status_button::a_stopped_count_sends_nothing()
{
    QFETCH(int, blinks);
    QFETCH(int, counts);
    status_desk desk;
    desk.button.show_status(status_button::status::active);
    desk.button.display_score(500);
    for (int tick = 0; tick < blinks; ++tick)
        QVERIFY(desk.blink());
    for (int tick = 0; tick < counts; ++tick)
        QVERIFY(desk.count());
    desk.button.stop_count();
    QVERIFY(!desk.blink_timer->isActive());
    QVERIFY(!desk.count_timer->isActive());
    QCOMPARE(desk.added.count(), counts);
    QVERIFY(desk.finished.isEmpty());
    QCOMPARE(desk.button.text(), QString("Aktiv"));
    QCOMPARE(desk.button.styleSheet(), red);
    desk.button.stop_count();
    desk.button.move_credit_to_score(); // a tick that was on its way
    QCOMPARE(desk.added.count(), counts);
    QVERIFY(desk.finished.isEmpty());
}

void tst_status_button::a_count_stopped_by_its_own_step_does_not_finish()
{
    status_desk desk;
    desk.settings.set_s_su_shortthrow_activ(true);
    connect(&desk.button, &status_button::addCredit_to_player, &desk.button, [&desk] {
        desk.button.stop_count();
    });
    desk.button.display_score(5000000000LL);
    QVERIFY(desk.count());
    QCOMPARE(desk.added.count(), 1);
    QVERIFY(desk.finished.isEmpty());
}

void tst_status_button::a_new_score_begins_anew()
{
    status_desk desk;
    desk.button.display_score(500);
    desk.blink_to_the_end();
    QVERIFY(desk.count());
    desk.button.display_score(3);
    QCOMPARE(desk.button.text(), QString("3"));
    QVERIFY(!desk.count_timer->isActive());
    desk.blink_to_the_end();
    while (desk.count()) {
    }
    QCOMPARE(desk.steps(), (QList<int>{10, 1, 1, 1}));
    QCOMPARE(desk.finished.count(), 1);
    QCOMPARE(desk.finished.first().at(1).toLongLong(), 3LL);
}

void tst_status_button::texts_follow_the_language()
{
    status_desk desk;
    desk.button.show_status(status_button::status::active);
    bracket_translator brackets;
    QApplication::installTranslator(&brackets);
    QCoreApplication::sendPostedEvents();
    QEvent language(QEvent::LanguageChange);
    QApplication::sendEvent(&desk.button, &language);
    QCOMPARE(desk.button.text(), QString("<Aktiv>"));
    QVERIFY(desk.button.toolTip().startsWith('<'));
    QApplication::removeTranslator(&brackets);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_status_button>(argc, argv);
}

#include "tst_status_button.moc"
