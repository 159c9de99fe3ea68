#include "desktop_bench.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QPropertyAnimation>

using general_player::PLAYER_1;

/// A game as a visitor plays it: nothing but the menu and the mouse.
class tst_coup_by_mouse : public QObject
{
    Q_OBJECT

private slots:
    void from_the_bet_to_the_credit();
    void the_score_is_blinked_and_counted();
    void the_last_numbers_stand_in_their_columns_data();
    void the_last_numbers_stand_in_their_columns();
    void the_last_number_blinks();
    void the_hit_mark_blinks_five_times();
    void the_classic_dolly_has_a_picture_of_its_own();
    void the_selection_follows_the_mouse();
    void nobody_bets_while_the_ball_runs();
    void a_player_without_a_bet_is_counted_too();
    void an_announcement_lays_all_its_jetons();
    void an_announcement_beyond_the_credit_is_refused();
    void finals_and_neighbours_come_from_their_dialog_data();
    void finals_and_neighbours_come_from_their_dialog();
    void another_player_sits_down();
    void clearing_gives_the_bets_back();
    void a_manual_number_falls_once();
};

static QString text_of(const desktop_bench& bench, const char* name)
{
    return bench.child<QLabel>(name)->text();
}

void tst_coup_by_mouse::from_the_bet_to_the_credit()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL17);
    bench.click(jetons::PL17); // the second click meets the jeton that lies there
    bench.click(jetons::EC03);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL17), 2);
    QCOMPARE(text_of(bench, "LB_credit_1"), QStringLiteral("1997"));
    QCOMPARE(text_of(bench, "LB_seeded_1"), QStringLiteral("3"));

    bench.play(17); // black: red loses, the plein pays 35 to 1 and the stake joins the win
    QCOMPARE(text_of(bench, "LB_credit_1"), QStringLiteral("2069"));
    QCOMPARE(text_of(bench, "LB_seeded_1"), QStringLiteral("0"));
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    QVERIFY(!bench.window->findChild<QPushButton*>(QStringLiteral("jeton_1_PL17")));
    QVERIFY(bench.table().all_may_set()); // the next bets are open
}

void tst_coup_by_mouse::the_score_is_blinked_and_counted()
{
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    bench.click(jetons::PL05);
    bench.numbers().set_manual_number(5);
    bench.right_click_wheel();
    const auto animations =
        bench.child<QGraphicsView>("GV_Wheel")->findChildren<QPropertyAnimation*>();
    QCOMPARE(animations.size(), 2);
    for (QPropertyAnimation* animation : animations) {
        QCOMPARE(animation->duration(), 17400);
        QCOMPARE(animation->state(), QAbstractAnimation::Running);
    }
    for (QPropertyAnimation* animation : animations)
        animation->setCurrentTime(animation->duration());
    bench.settle();

    auto* button = bench.child<QPushButton>("PB_status_1");
    QCOMPARE(button->text(), QStringLiteral("36"));
    for (int tick = 0; tick < 10; ++tick) {
        bench.fire_all({QStringLiteral("blink_timer")});
        const QString shown = tick % 2 == 0 ? QString() : QStringLiteral("36");
        QCOMPARE(button->text(), shown);
    }
    bench.fire_all({QStringLiteral("blink_timer")}); // more than ten ticks: the count begins
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
    // 36: above 20 by tens, then by ones.
    const QVector<int> credits = {2009, 2019, 2020, 2021};
    for (const int credit : credits) {
        bench.fire_all({QStringLiteral("count_timer")});
        QCOMPARE(bench.table().credit(PLAYER_1), qint64(credit));
    }
    bench.finish_coup();
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QCOMPARE(button->text(), QStringLiteral("Aktiv"));
}

void tst_coup_by_mouse::the_last_numbers_stand_in_their_columns_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::newRow("black") << 17 << "17"
                           << "";
    QTest::newRow("red") << 18 << ""
                         << "18";
    QTest::newRow("zero") << 0 << "0"
                          << "0";
}

void tst_coup_by_mouse::the_last_numbers_stand_in_their_columns()
{
    QFETCH(int, number);
    QFETCH(QString, left);
    QFETCH(QString, right);
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(number);
    QCOMPARE(text_of(bench, "LB_ND_DA_N_10"), left);
    QCOMPARE(text_of(bench, "LB_ND_DA_R_10"), right);
    QCOMPARE(text_of(bench, "LB_ND_DA_N_9"), QString());
    const QString style = number == 0 ? QStringLiteral("color: rgb(0, 128, 0);")
                                      : QStringLiteral("color: rgb(0, 0, 0);");
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_N_10")->styleSheet(), style);
    bench.play(36); // red: the one before moves up
    QCOMPARE(text_of(bench, "LB_ND_DA_R_10"), QStringLiteral("36"));
    QCOMPARE(text_of(bench, "LB_ND_DA_N_9"), left);
    QCOMPARE(text_of(bench, "LB_ND_DA_R_9"), right);
}

void tst_coup_by_mouse::the_last_number_blinks()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(17);
    auto* label = bench.child<QLabel>("LB_ND_DA_N_10");
    QTimer* timer = nullptr;
    const auto timers = bench.window->findChildren<QTimer*>(QStringLiteral("blink_timer"),
                                                            Qt::FindDirectChildrenOnly);
    QCOMPARE(timers.size(), 1);
    timer = timers.first();
    QCOMPARE(timer->interval(), 200);
    QVERIFY(timer->isActive());
    for (int tick = 1; tick < 10; ++tick) {
        QVERIFY(fire(timer));
        QCOMPARE(label->isVisible(), tick % 2 == 0);
    }
    QVERIFY(fire(timer));
    QVERIFY(label->isVisible());
    QVERIFY(!timer->isActive());
}

void tst_coup_by_mouse::the_hit_mark_blinks_five_times()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(7);
    auto* mark = bench.child<QLabel>("LB_hit_label");
    auto* timer = bench.child<QTimer>("hit_blink_timer");
    // PL07: x 668, y 334: the field is 62 x 96 with the jeton in its middle.
    QCOMPARE(mark->pos(), QPoint(668 - 16, 334 - 33));
    QCOMPARE(mark->size(), QSize(62, 96));
    for (int shown = 1; shown <= 5; ++shown) {
        QVERIFY(mark->isVisible());
        QCOMPARE(timer->interval(), 500);
        fire(timer);
        QVERIFY(!mark->isVisible());
        if (shown == 5) break;
        QCOMPARE(timer->interval(), 250);
        fire(timer);
    }
    QVERIFY(!timer->isActive());
}

void tst_coup_by_mouse::the_classic_dolly_has_a_picture_of_its_own()
{
    desktop_bench plain;
    plain.trigger("actionStart");
    plain.play(7);
    const QImage hit = plain.child<QLabel>("LB_hit_label")->pixmap(Qt::ReturnByValue).toImage();
    plain.window.reset();
    desktop_bench classic({QStringLiteral("s_classic_dolly=true")});
    classic.trigger("actionStart");
    classic.play(7);
    const QImage dolly = classic.child<QLabel>("LB_hit_label")->pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(!dolly.isNull());
    QVERIFY(dolly != hit);
}

void tst_coup_by_mouse::the_selection_follows_the_mouse()
{
    desktop_bench bench;
    auto* selection = bench.child<QLabel>("LB_sel_label");
    const auto move_to = [&](jetons::jeton_names jeton) {
        QTest::mouseMove(bench.window->windowHandle(), bench.middle_of(jeton) + QPoint(0, base_y));
        bench.settle();
    };
    move_to(jetons::PL08);
    QVERIFY(!selection->isVisible()); // nobody may set yet
    bench.trigger("actionStart");
    move_to(jetons::KL01);
    QVERIFY(selection->isVisible());
    QCOMPARE(selection->pos(), QPoint(90, 301));
    move_to(jetons::PL08);
    QVERIFY(selection->isVisible());
    QCOMPARE(selection->pos(), QPoint(668 - 16, 430 - 33));
    QVERIFY(fire(bench.child<QTimer>("display_timer")));
    QVERIFY(!selection->isVisible());
    // A light over the table does not keep clicks from it.
    move_to(jetons::PL08);
    bench.click(jetons::PL08);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL08), 1);
}

void tst_coup_by_mouse::nobody_bets_while_the_ball_runs()
{
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    bench.click(jetons::PL01);
    bench.numbers().set_manual_number(2);
    bench.right_click_wheel();
    bench.click(jetons::PL01);
    bench.click(jetons::PL02);
    bench.click(jetons::PL01, Qt::RightButton);
    QTest::mouseMove(bench.window->windowHandle(),
                     bench.middle_of(jetons::PL08) + QPoint(0, base_y));
    bench.settle();
    QVERIFY(!bench.child<QLabel>("LB_sel_label")->isVisible());
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL01), 1);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL02), 0);
    // The bets are not given back either.
    QTest::mouseClick(bench.child<QPushButton>("PB_clear_jetons"), Qt::LeftButton);
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(1));
}

void tst_coup_by_mouse::a_player_without_a_bet_is_counted_too()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(3);
    QVERIFY(bench.table().all_may_set());
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({3}));
    for (int i = 1; i <= 4; ++i)
        QCOMPARE(text_of(bench, qPrintable(QStringLiteral("LB_credit_%1").arg(i))),
                 QStringLiteral("2000"));
}

void tst_coup_by_mouse::an_announcement_lays_all_its_jetons()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    bench.press_table({960, 420}); // the small series, y 407 to 434
    // 5/8, 10/11, 13/16, 23/24, 27/30, 33/36
    const QVector<jetons::jeton_names> places = {
        jetons::CH08, jetons::CH43, jetons::CH16, jetons::CH52, jetons::CH30, jetons::CH36};
    QCOMPARE(bench.table().jetons_of(PLAYER_1).size(), places.size());
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(6));
    for (const jetons::jeton_names place : places)
        QCOMPARE(bench.table().count(PLAYER_1, place), 1);
    bench.press_table({960, 420}, Qt::RightButton);
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(0));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
}

void tst_coup_by_mouse::an_announcement_beyond_the_credit_is_refused()
{
    box_user user;
    desktop_bench bench({QStringLiteral("s_start_jetons=5")});
    bench.trigger("actionStart");
    user.answer(QMessageBox::Ok);
    bench.press_table({960, 420});
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.boxes().first().title, QStringLiteral("Zarvello Nachricht"));
    QCOMPARE(user.boxes().first().text,
             QStringLiteral("Setzung konnte auf Grund Kaptialmangel nicht durchgeführt werden! "
                            "Notwendiges Kapital wären 6 Einheiten!"));
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(0));
}

void tst_coup_by_mouse::finals_and_neighbours_come_from_their_dialog_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("index");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::newRow("final 7") << 556 << "Finale setzen" << 7 << QVector<int>{7, 17, 27};
    QTest::newRow("one neighbour of 0")
        << 590 << "Einen Nachbar setzen" << 0 << QVector<int>{26, 0, 32};
    QTest::newRow("two neighbours of 10")
        << 624 << "Zwei Nachbarn setzen" << 10 << QVector<int>{8, 23, 10, 5, 24};
    QTest::newRow("three neighbours of 26")
        << 658 << "Drei Nachbarn setzen" << 26 << QVector<int>{12, 35, 3, 26, 0, 32, 15};
}

void tst_coup_by_mouse::finals_and_neighbours_come_from_their_dialog()
{
    QFETCH(int, y);
    QFETCH(QString, title);
    QFETCH(int, index);
    QFETCH(QVector<int>, numbers);
    box_user user;
    desktop_bench bench;
    bench.trigger("actionStart");
    user.with_dialog("Dialog_Select_Number", [&](QWidget* dialog) {
        QCOMPARE(dialog->windowTitle(), title);
        QCOMPARE(bench.settings().state(), game_state::paused);
        child_of<QComboBox>(*dialog, QStringLiteral("COB_number"))->setCurrentIndex(index);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.press_table({960, y});
    QCOMPARE(user.dialogs_left(), 0);
    QCOMPARE(bench.settings().state(), game_state::running);
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(numbers.size()));
    for (const int number : numbers)
        QCOMPARE(bench.table().count(PLAYER_1, static_cast<jetons::jeton_names>(number)), 1);
}

void tst_coup_by_mouse::another_player_sits_down()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    auto* panel = bench.child<QWidget>("WD_SpTable");
    QTest::mouseClick(panel, Qt::LeftButton, {}, QPoint(380, 25)); // the third name tab
    QCOMPARE(bench.table().active_player(), general_player::PLAYER_3);
    QCOMPARE(bench.child<QPushButton>("PB_status_3")->text(), QStringLiteral("Aktiv"));
    QCOMPARE(bench.child<QPushButton>("PB_status_1")->text(), QString());
    bench.click(jetons::DZ02);
    QCOMPARE(bench.table().count(general_player::PLAYER_3, jetons::DZ02), 1);
    QCOMPARE(text_of(bench, "LB_credit_3"), QStringLiteral("1999"));
}

void tst_coup_by_mouse::clearing_gives_the_bets_back()
{
    desktop_bench bench;
    auto* clear = bench.child<QPushButton>("PB_clear_jetons");
    bench.trigger("actionStart");
    QVERIFY(!clear->isEnabled());
    bench.click(jetons::PL36);
    QVERIFY(clear->isEnabled());
    QTest::mouseClick(clear, Qt::LeftButton);
    QVERIFY(!clear->isEnabled());
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
}

void tst_coup_by_mouse::a_manual_number_falls_once()
{
    box_user user;
    desktop_bench bench;
    bench.trigger("actionStart");
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        child_of<QPushButton>(*dialog, QStringLiteral("PB_29"))->click();
    });
    auto* wheel = bench.child<QAbstractScrollArea>("GV_Wheel");
    QTest::mouseClick(wheel->viewport(), Qt::LeftButton);
    bench.settle();
    auto* label = bench.child<QLabel>("LB_selected_number");
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QStringLiteral("Nächste gewählte Roulettezahl: 29"));
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({29}));
    QVERIFY(!label->isVisible());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_coup_by_mouse>(argc, argv);
}
#include "tst_coup_by_mouse.moc"
