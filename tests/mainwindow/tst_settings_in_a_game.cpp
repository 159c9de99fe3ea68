#include "options_user.h"
#include "pictures.h"

#include <QFontInfo>
#include <QProgressBar>
#include <QPropertyAnimation>
#include <QScrollBar>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_3;
using general_player::PLAYER_4;

/// Every setting changed by the options while a game runs, and what it does to the game.
class tst_settings_in_a_game : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void options_do_not_pause();
    void options_open_once();
    void accepting_without_a_change_leaves_the_bar_alone();
    void another_betting_time_while_the_bar_runs();
    void a_shorter_betting_time_than_is_used_up();
    void from_time_to_manual_and_back();
    void from_manual_to_time_in_pause();
    void one_colour_for_the_bar();
    void every_scale_step_there_and_back();
    void another_table_form_with_jetons();
    void the_french_table_after_a_double_zero();
    void a_manual_double_zero_does_not_outlive_its_table();
    void the_start_capital_is_asked_for_player_by_player();
    void an_empty_purse_is_filled_without_question();
    void the_start_capital_waits_for_the_end_of_the_coup();
    void scale_and_table_wait_for_the_end_of_the_coup();
    void a_stop_in_the_coup_takes_the_changes_over();
    void real_mode();
    void the_stake_and_the_win();
    void the_piece_for_the_staff();
    void the_prison_rule();
    void the_mark_of_the_hit();
    void a_standing_wheel();
    void the_short_throw_comes_with_the_next_coup();
    void a_super_short_game_keeps_the_short_throw();
    void cancel_restores_language_and_keeps_all();
    void the_file_is_written_at_once();

private:
    box_user user;
};

namespace
{

const QString slow_game = QStringLiteral("s_su_shortthrow_activ=false");
const QString ten_seconds = QStringLiteral("s_balkenzeit=10000"); // 330 ticks

QProgressBar* bar(const desktop_bench& bench)
{
    return bench.child<QProgressBar>("time_bar");
}

bool bar_runs(const desktop_bench& bench)
{
    return bench.child<QTimer>("update_timer")->isActive();
}

void tick(const desktop_bench& bench, int count)
{
    auto* timer = bench.child<QTimer>("update_timer");
    for (int i = 0; i < count; ++i)
        fire(timer);
    bench.settle();
}

void let_the_ball_rest(const desktop_bench& bench)
{
    const auto animations =
        bench.child<QAbstractScrollArea>("GV_Wheel")->findChildren<QPropertyAnimation*>();
    for (QPropertyAnimation* animation : animations)
        animation->setCurrentTime(animation->duration());
}

QPushButton* jeton(const desktop_bench& bench, const char* name)
{
    return bench.window->findChild<QPushButton*>(QString::fromLatin1(name));
}

int coups_stored(const desktop_bench& bench)
{
    return bench.numbers().last_numbers(1, true).size();
}

/// Takes the marks off that the table shows for a while only.
void end_all_marks(const desktop_bench& bench)
{
    for (int i = 0; i < 20; ++i) {
        fire(bench.child<QTimer>("hit_blink_timer"));
        fire(bench.child<QTimer>("display_timer"));
        fire(bench.window->findChild<QTimer*>(QStringLiteral("blink_timer"),
                                              Qt::FindDirectChildrenOnly));
    }
    bench.settle();
}

/// A game with something of everything on the window.
void set_the_scene(const desktop_bench& bench)
{
    bench.trigger("actionStart");
    bench.click(jetons::EC03);
    bench.table().make_active(PLAYER_2);
    bench.click(jetons::EC05);
    bench.table().make_active(PLAYER_1);
    bench.play(0); // two prison pictures
    bench.click(jetons::PL12);
    bench.click(jetons::CH05);
    bench.click(jetons::CA01);
    bench.click(jetons::DZ02);
    bench.table().make_active(PLAYER_2);
    bench.click(jetons::KL03);
    bench.click(jetons::TS11);
    bench.table().make_active(PLAYER_1);
    end_all_marks(bench);
}

QString described(const QWidget& widget)
{
    const QFont font = widget.font();
    const auto text = [](const QSize& size) {
        return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    };
    // Where a window stands is the business of the desktop.
    const QPoint corner = widget.isWindow() ? QPoint() : widget.pos();
    return QStringLiteral("%1,%2 %3 from %4 to %5 font %6/%7 shown %8")
        .arg(corner.x())
        .arg(corner.y())
        .arg(text(widget.size()), text(widget.minimumSize()), text(widget.maximumSize()))
        .arg(QFontInfo(font).pixelSize())
        .arg(font.weight())
        .arg(!widget.isHidden());
}

/// Where everything stands in the window and in its dialogs, by name.
QMap<QString, QString> arrangement(const desktop_bench& bench)
{
    QMap<QString, QString> places;
    places.insert(QStringLiteral("window"), described(*bench.window));
    const auto widgets = bench.window->findChildren<QWidget*>();
    for (QWidget* widget : widgets)
        if (auto* dialog = qobject_cast<QDialog*>(widget)) dialog->grab(); // lays it out
    for (const QWidget* widget : widgets) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith(QLatin1String("qt_"))) continue;
        const bool is_mark =
            name == QLatin1String("LB_hit_label") || name == QLatin1String("LB_sel_label");
        if (is_mark && widget->isHidden()) continue; // gets its place when it is shown
        const QString window = widget->window()->objectName();
        QString text = described(*widget);
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            if (label->pixmap(Qt::ReturnByValue).isNull()) text += QLatin1String(" no");
            text += QStringLiteral(" picture");
        }
        places.insert(window + QLatin1Char('/') + name, text);
    }
    return places;
}

QStringList differences(const QMap<QString, QString>& one, const QMap<QString, QString>& other)
{
    QStringList found;
    const auto names = one.keys() + other.keys();
    for (const QString& name : names) {
        if (one.value(name) == other.value(name)) continue;
        found.append(name + QStringLiteral(": ") + one.value(name, QStringLiteral("not there")) +
                     QStringLiteral(" / ") + other.value(name, QStringLiteral("not there")));
    }
    found.removeDuplicates();
    return found;
}

} // namespace

void tst_settings_in_a_game::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_settings_in_a_game::options_do_not_pause()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    tick(bench, 40);
    options.cancel([&](QWidget&) {
        QCOMPARE(bench.settings().state(), game_state::running);
        tick(bench, 5);
        QCOMPARE(bar(bench)->value(), 45);
        tick(bench, 286); // to the full bar, and one more
        QCOMPARE(coups_stored(bench), 1);
    });
    bench.finish_coup();
    QCOMPARE(bench.settings().state(), game_state::running);
    QVERIFY(bar_runs(bench));
}

void tst_settings_in_a_game::options_open_once()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    options.cancel([&](QWidget& dialog) {
        bench.trigger("actionOptionen");
        int shown = 0;
        const auto windows = QApplication::topLevelWidgets();
        for (const QWidget* window : windows)
            if (window->inherits("Options")) ++shown;
        QCOMPARE(shown, 1);
        QVERIFY(dialog.isVisible());
    });
}

void tst_settings_in_a_game::accepting_without_a_change_leaves_the_bar_alone()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL30);
    bench.click(jetons::PL30);
    tick(bench, 40);
    user.answer(QMessageBox::No); // the credit is no longer the start capital
    options.accept([](QWidget&) {});
    QCOMPARE(bar(bench)->value(), 40);
    QCOMPARE(bar(bench)->maximum(), 330);
    QVERIFY(bar_runs(bench));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 2);
}

void tst_settings_in_a_game::another_betting_time_while_the_bar_runs()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    tick(bench, 40);
    options.accept([](QWidget& dialog) { options_user::set_number(dialog, "SB_bet_time", 20); });
    QCOMPARE(bar(bench)->maximum(), 660);
    QCOMPARE(bar(bench)->value(), 40);
    QVERIFY(bench.table().all_may_set());
    tick(bench, 620);
    QCOMPARE(coups_stored(bench), 0);
    tick(bench, 1);
    QCOMPARE(coups_stored(bench), 1);
    bench.finish_coup();
    QCOMPARE(bar(bench)->maximum(), 660);
    QCOMPARE(bar(bench)->value(), 0);
    QVERIFY(bar_runs(bench));
}

void tst_settings_in_a_game::a_shorter_betting_time_than_is_used_up()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    tick(bench, 200);
    options.accept([](QWidget& dialog) { options_user::set_number(dialog, "SB_bet_time", 5); });
    QCOMPARE(bar(bench)->maximum(), 165);
    QCOMPARE(bar(bench)->value(), 165);
    QVERIFY(bench.table().all_may_set());
    tick(bench, 1);
    QCOMPARE(coups_stored(bench), 1);
    bench.finish_coup();
    QCOMPARE(coups_stored(bench), 1);
    QVERIFY(bench.table().all_may_set());
}

void tst_settings_in_a_game::from_time_to_manual_and_back()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::EC01);
    tick(bench, 100);
    user.answer(QMessageBox::No);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "RB_bet_time_disable"); });
    QVERIFY(!bar_runs(bench));
    QCOMPARE(bar(bench)->value(), 0);
    QCOMPARE(bar(bench)->text(), QStringLiteral("Manuell"));
    QVERIFY(bench.table().all_may_set());
    bench.play(36); // high: low loses
    QCOMPARE(coups_stored(bench), 1);
    QCOMPARE(bar(bench)->text(), QStringLiteral("Manuell"));
    QVERIFY(!bar_runs(bench));

    user.answer(QMessageBox::No);
    options.accept([](QWidget& dialog) {
        options_user::press(dialog, "RB_bet_time_enable");
        options_user::set_number(dialog, "SB_bet_time", 15);
    });
    QVERIFY(bar_runs(bench));
    QCOMPARE(bar(bench)->maximum(), 495);
    QCOMPARE(bar(bench)->value(), 0);
    QCOMPARE(bar(bench)->text(), QStringLiteral("Machen Sie Ihr Spiel!"));
    tick(bench, 496);
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(2, true).count(-1), 0); // two numbers
}

void tst_settings_in_a_game::from_manual_to_time_in_pause()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.trigger("actionPause");
    QCOMPARE(bar(bench)->text(), QStringLiteral("Manuell / Pause"));
    options.accept([](QWidget& dialog) {
        options_user::press(dialog, "RB_bet_time_enable");
        options_user::set_number(dialog, "SB_bet_time", 5);
    });
    QCOMPARE(bench.settings().state(), game_state::paused);
    tick(bench, 500);
    QCOMPARE(coups_stored(bench), 0);
    QCOMPARE(bar(bench)->value(), 0);
    bench.trigger("actionPause");
    tick(bench, 165);
    QCOMPARE(bar(bench)->value(), 165);
    tick(bench, 1);
    QCOMPARE(coups_stored(bench), 1);
}

void tst_settings_in_a_game::one_colour_for_the_bar()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    tick(bench, 300); // 91 percent: orange from 75 percent on
    const auto is_green = [&](int percent) {
        const QImage image = bar(bench)->grab().toImage();
        const QColor colour = image.pixelColor(image.width() * percent / 100, image.height() / 2);
        return colour.green() > colour.red();
    };
    QVERIFY(is_green(10));
    QVERIFY(!is_green(83));
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_single_color_timebar"); });
    QVERIFY(is_green(10));
    QVERIFY(is_green(83));
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_single_color_timebar"); });
    QVERIFY(!is_green(83));
    QCOMPARE(bar(bench)->value(), 300);
}

/// A window that was scaled looks as one that was built at that step, whichever way it came there.
void tst_settings_in_a_game::every_scale_step_there_and_back()
{
    QVector<QMap<QString, QString>> fresh;
    QVector<QImage> fresh_pictures;
    for (int step = 0; step <= 3; ++step) {
        desktop_bench bench({QStringLiteral("s_scr_res_factor=%1").arg(step)});
        set_the_scene(bench);
        user.answer(QMessageBox::No); // both have lost a piece to the prison
        user.answer(QMessageBox::No);
        options_user(bench, user).accept([](QWidget&) {}); // the statistic begins anew
        fresh.append(arrangement(bench));
        fresh_pictures.append(bench.window->grab().toImage());
    }
    // Of 1460 x 793 with the bars of 31 and 20 pixels around it.
    const QVector<QSize> sizes = {{1460, 844}, {1314, 764}, {1168, 685}, {1022, 606}};
    for (int step = 0; step <= 3; ++step)
        QCOMPARE(fresh_pictures[step].size(), sizes[step]);

    desktop_bench bench;
    const options_user options(bench, user);
    set_the_scene(bench);
    for (int step : {1, 2, 3, 2, 1, 0, 3, 0, 2, 0}) {
        user.answer(QMessageBox::No);
        user.answer(QMessageBox::No);
        options.accept([step](QWidget& dialog) { options_user::set_scale_step(dialog, step); });
        QCOMPARE(bench.window->size(), sizes[step]);
        const QStringList other = differences(fresh[step], arrangement(bench));
        QVERIFY2(other.isEmpty(), qPrintable(other.join(QLatin1Char('\n'))));
        QCOMPARE(bench.window->grab().toImage(), fresh_pictures[step]);
        QVERIFY(jeton(bench, "jeton_1_PRIS_EC03")->isVisible());
        QVERIFY(jeton(bench, "jeton_2_PRIS_EC05")->isVisible());
    }
    bench.click(jetons::PL07);
    bench.play(7);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL07), 0);
    QCOMPARE(bench.numbers().last_numbers(2, true), QList<int>({0, 7}));
}

void tst_settings_in_a_game::another_table_form_with_jetons()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    for (auto place : {jetons::CH03, jetons::TP02, jetons::PL00, jetons::PL01})
        bench.click(place);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1996));
    QCOMPARE(jeton(bench, "jeton_1_PL00")->pos(), QPoint(854, 31 + 430));
    const QImage french_table =
        bench.child<QLabel>("LA_Table")->pixmap(Qt::ReturnByValue).toImage();
    const QImage french_wheel = bench.child<QWidget>("GV_Wheel")->grab().toImage();

    user.answer(QMessageBox::No);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "RB_table_american"); });
    QCOMPARE(user.boxes().size(), 1); // two pieces came back, two lie: player 1 was asked
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(2));
    QVERIFY(!jeton(bench, "jeton_1_CH03"));
    QVERIFY(!jeton(bench, "jeton_1_TP02"));
    QCOMPARE(jeton(bench, "jeton_1_PL01")->pos(), QPoint(792, 31 + 334));
    QCOMPARE(jeton(bench, "jeton_1_PL00")->pos(), QPoint(854, 31 + 358));
    QVERIFY(bench.child<QLabel>("LA_Table")->pixmap(Qt::ReturnByValue).toImage() != french_table);
    QVERIFY(bench.child<QWidget>("GV_Wheel")->grab().toImage() != french_wheel);
    QCOMPARE(bench.window->size(), QSize(1460, 844));

    const QVector<jetons::jeton_names> american_only = {
        jetons::PL37, jetons::CH61, jetons::CH62, jetons::CH63, jetons::TP15, jetons::TP16};
    for (auto place : american_only) {
        bench.click(place);
        QCOMPARE(bench.table().count(PLAYER_1, place), 1);
    }
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1992));
    user.answer(QMessageBox::No);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "RB_table_french"); });
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    for (auto place : american_only)
        QVERIFY(!bench.table().lies(PLAYER_1, place));
    QVERIFY(!jeton(bench, "jeton_1_PL37"));
    QCOMPARE(jeton(bench, "jeton_1_PL00")->pos(), QPoint(854, 31 + 430));
    QCOMPARE(bench.child<QLabel>("LA_Table")->pixmap(Qt::ReturnByValue).toImage(), french_table);
    QCOMPARE(bench.child<QWidget>("GV_Wheel")->grab().toImage(), french_wheel);
}

void tst_settings_in_a_game::the_french_table_after_a_double_zero()
{
    desktop_bench bench({QStringLiteral("s_table_form=1")});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL37);
    bench.play(37);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_R_10")->text(), QStringLiteral("00"));
    user.answer(QMessageBox::No);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "RB_table_french"); });
    QCOMPARE(bench.child<QLabel>("LB_ND_DA_R_10")->text(), QStringLiteral("00"));
    QVERIFY(bench.child<QLabel>("LB_hit_label")->isHidden());
    end_all_marks(bench);
    QVERIFY(bench.child<QLabel>("LB_hit_label")->isHidden());
    bench.click(jetons::PL00);
    bench.play(0);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2070));
}

void tst_settings_in_a_game::a_manual_double_zero_does_not_outlive_its_table()
{
    desktop_bench bench({QStringLiteral("s_table_form=1")});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        child_of<QAbstractButton>(*dialog, QStringLiteral("PB_37"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    auto* label = bench.child<QLabel>("LB_selected_number");
    QCOMPARE(label->text(), QStringLiteral("Nächste gewählte Roulettezahl: 00"));
    QVERIFY(label->isVisible());
    QSignalSpy told(bench.window.get(), &MainWindow::distribute_selected_manual_number);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "RB_table_french"); });
    QCOMPARE(bench.numbers().get_source_mode(), number_source::random);
    QVERIFY(!label->isVisible());
    QVERIFY(!told.isEmpty());
    QCOMPARE(told.last().first().toString(), QString());

    user.with_dialog("wheel_number_selection", [](QWidget* dialog) {
        QVERIFY(!dialog->findChild<QAbstractButton*>(QStringLiteral("PB_37")) ||
                !dialog->findChild<QAbstractButton*>(QStringLiteral("PB_37"))->isVisible());
        child_of<QAbstractButton>(*dialog, QStringLiteral("PB_5"))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
    options.accept([](QWidget& dialog) { options_user::press(dialog, "RB_table_american"); });
    QCOMPARE(label->text(), QStringLiteral("Nächste gewählte Roulettezahl: 5"));
    QVERIFY(label->isVisible());
}

void tst_settings_in_a_game::the_start_capital_is_asked_for_player_by_player()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL09);
    QSignalSpy start_credits(bench.window.get(), &MainWindow::update_player_stat_credit);
    for (auto answer : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes, QMessageBox::No})
        user.answer(answer);
    options.accept(
        [](QWidget& dialog) { options_user::set_number(dialog, "SB_start_jetons", 3000); });
    QCOMPARE(user.boxes().size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(
            user.boxes()[i].text,
            QStringLiteral("Soll das Startkaptital für Player %1 übernommen werden?").arg(i + 1));
        QCOMPARE(user.boxes()[i].icon, QMessageBox::Question);
    }
    const QVector<qint64> credits = {3000, 2000, 3000, 2000};
    QCOMPARE(start_credits.size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(bench.table().credit(static_cast<general_player::player_names>(i)), credits[i]);
        QCOMPARE(bench.child<QLabel>(QStringLiteral("LB_credit_%1").arg(i + 1))->text(),
                 QString::number(credits[i]));
        QCOMPARE(start_credits[i][0].value<general_player::player_names>(),
                 static_cast<general_player::player_names>(i));
        QCOMPARE(start_credits[i][1].toLongLong(), credits[i]);
    }
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL09), 1); // what lies stays

    // Those who have taken it over are not asked again.
    user.forget();
    user.answer(QMessageBox::Yes);
    user.answer(QMessageBox::No);
    options.accept([](QWidget&) {});
    QCOMPARE(user.boxes().size(), 2);
    QVERIFY(user.boxes()[0].text.contains(QStringLiteral("Player 2")));
    QVERIFY(user.boxes()[1].text.contains(QStringLiteral("Player 4")));
    QCOMPARE(bench.table().credit(PLAYER_2), qint64(3000));
}

void tst_settings_in_a_game::an_empty_purse_is_filled_without_question()
{
    desktop_bench bench({QStringLiteral("s_start_jetons=2")});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL09);
    QTest::mouseClick(jeton(bench, "jeton_1_PL09"), Qt::LeftButton);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(0));
    bench.play(10);
    for (int player = 2; player <= 4; ++player)
        user.answer(QMessageBox::No);
    options.accept(
        [](QWidget& dialog) { options_user::set_number(dialog, "SB_start_jetons", 500); });
    QCOMPARE(user.boxes().size(), 3);
    QVERIFY(user.boxes()[0].text.contains(QStringLiteral("Player 2")));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(500));
    QCOMPARE(bench.table().credit(PLAYER_4), qint64(2));
    QCOMPARE(bench.child<QLabel>("LB_credit_1")->text(), QStringLiteral("500"));
}

void tst_settings_in_a_game::the_start_capital_waits_for_the_end_of_the_coup()
{
    desktop_bench bench({slow_game});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    options.accept(
        [](QWidget& dialog) { options_user::set_number(dialog, "SB_start_jetons", 3000); });
    QCOMPARE(user.boxes().size(), 0);
    QCOMPARE(bench.settings().s_start_jetons(), 3000);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1999));
    let_the_ball_rest(bench);
    bench.settle(); // the panels count
    QCOMPARE(user.boxes().size(), 0);
    for (auto answer : {QMessageBox::No, QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes})
        user.answer(answer);
    bench.finish_coup();
    QCOMPARE(user.boxes().size(), 4);
    QVERIFY(user.boxes()[0].text.contains(QStringLiteral("Player 1")));
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035)); // the win was paid before
    QCOMPARE(bench.table().credit(PLAYER_2), qint64(3000));
    QCOMPARE(bench.table().credit(PLAYER_3), qint64(2000));
    QCOMPARE(bench.table().credit(PLAYER_4), qint64(3000));
    QVERIFY(bench.table().all_may_set());
    QCOMPARE(bar(bench)->text(), QStringLiteral("Manuell"));
}

void tst_settings_in_a_game::scale_and_table_wait_for_the_end_of_the_coup()
{
    desktop_bench bench({slow_game});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::CH03);
    bench.numbers().set_manual_number(3);
    bench.right_click_wheel();
    auto* wheel = bench.child<QWidget>("GV_Wheel");
    options.accept([](QWidget& dialog) {
        options_user::set_scale_step(dialog, 3);
        options_user::press(dialog, "RB_table_american");
    });
    QCOMPARE(bench.window->size(), QSize(1460, 844));
    QCOMPARE(bench.child<QWidget>("GV_Wheel"), wheel);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::CH03), 1);
    let_the_ball_rest(bench);
    bench.settle();
    QCOMPARE(bench.window->size(), QSize(1460, 844));
    user.answer(QMessageBox::No);
    bench.finish_coup();
    QCOMPARE(bench.window->size(), QSize(1022, 606));
    QVERIFY(bench.child<QWidget>("GV_Wheel") != wheel);
    QCOMPARE(bench.child<QWidget>("GV_Wheel")->size(), QSize(280, 280)); // 401 * 7 / 10
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2017));
    QCOMPARE(bench.child<QLabel>("LB_credit_1")->text(), QStringLiteral("2017"));
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({3}));
    bench.click(jetons::PL37);
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL37), 1);
}

void tst_settings_in_a_game::a_stop_in_the_coup_takes_the_changes_over()
{
    desktop_bench bench({slow_game});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.right_click_wheel();
    options.accept([](QWidget& dialog) {
        options_user::set_number(dialog, "SB_start_jetons", 3000);
        options_user::set_scale_step(dialog, 2);
    });
    QCOMPARE(bench.window->size(), QSize(1460, 844));
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    bench.settle();
    QCOMPARE(user.boxes().size(), 1); // nobody is asked: all begin anew
    QCOMPARE(bench.window->size(), QSize(1168, 685));
    for (auto player : {PLAYER_1, PLAYER_2, PLAYER_3, PLAYER_4})
        QCOMPARE(bench.table().credit(player), qint64(3000));
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2999));
}

void tst_settings_in_a_game::real_mode()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL07);
    for (int player = 1; player <= 4; ++player)
        user.answer(QMessageBox::Yes);
    options.accept([](QWidget& dialog) {
        options_user::press(dialog, "RB_setzart_real");
        options_user::select(dialog, "COB_setzart_real_size", "5");
    });
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(10000));
    QTest::mouseClick(jeton(bench, "jeton_1_PL07"), Qt::LeftButton); // as what lies there
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(9999));
    bench.click(jetons::PL08);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(9994));
    QCOMPARE(bench.table().seeded(PLAYER_1), qint64(7));
    QCOMPARE(bench.child<QLabel>("LB_seeded_1")->text(), QStringLiteral("7"));
    bench.play(8);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(9994 + 36 * 5));
}

void tst_settings_in_a_game::the_stake_and_the_win()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    user.answer(QMessageBox::No);
    bench.click(jetons::EC03);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_jeton_to_win"); });
    bench.play(1); // red: the stake stays
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_jeton_to_win"); });
    bench.play(3); // red: the stake comes with the win
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2002));
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    QVERIFY(!jeton(bench, "jeton_1_EC03"));
}

void tst_settings_in_a_game::the_piece_for_the_staff()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    options.accept(
        [](QWidget& dialog) { options_user::select(dialog, "COB_tip_def_index", "PL-CH"); });
    bench.click(jetons::PL04);
    bench.click(jetons::CH04); // 1/4
    bench.play(4);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998 + 35 + 17));
    user.answer(QMessageBox::No);
    options.accept(
        [](QWidget& dialog) { options_user::select(dialog, "COB_tip_def_index", "PL"); });
    bench.click(jetons::PL04);
    bench.click(jetons::CH04);
    bench.play(4);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2050 - 2 + 35 + 18));
}

void tst_settings_in_a_game::the_prison_rule()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::EC03);
    bench.play(0);
    QVERIFY(jeton(bench, "jeton_1_PRIS_EC03")->isVisible());
    bench.click(jetons::EC05);
    user.answer(QMessageBox::No);
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_zero_handling"); });
    QVERIFY(jeton(bench, "jeton_1_PRIS_EC03")->isVisible());
    bench.play(0); // now the even chances just lose
    QVERIFY(!jeton(bench, "jeton_1_PRIS_EC05")->isVisible());
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
    QVERIFY(!bench.table().has_jetons(PLAYER_1));
    bench.play(1); // red: who sat before is let out all the same
    QVERIFY(!jeton(bench, "jeton_1_PRIS_EC03")->isVisible());
    QCOMPARE(bench.table().count(PLAYER_1, jetons::EC03), 1);
}

void tst_settings_in_a_game::the_mark_of_the_hit()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    const auto mark = [&] {
        return bench.child<QLabel>("LB_hit_label")->pixmap(Qt::ReturnByValue).toImage();
    };
    const auto picture = [](const char* name) {
        return scaled_picture(
                   QStringLiteral(":/selection/grafik/selection/%1.png").arg(QLatin1String(name)),
                   0.0)
            .toImage();
    };
    QVERIFY(picture("hit_plein") != picture("dolly_plein"));
    bench.play(17);
    QCOMPARE(mark(), picture("hit_plein"));
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_classic_dolly"); });
    bench.play(18);
    QCOMPARE(mark(), picture("dolly_plein"));
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_classic_dolly"); });
    bench.play(19);
    QCOMPARE(mark(), picture("hit_plein"));
}

void tst_settings_in_a_game::a_standing_wheel()
{
    desktop_bench bench({slow_game});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    const auto runs = [&](const char* name) {
        return bench.child<QPropertyAnimation>(name)->state() == QAbstractAnimation::Running;
    };
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_wheel_disabled"); });
    bench.right_click_wheel();
    QVERIFY(runs("ball_animation"));
    QVERIFY(!runs("wheel_animation"));
    let_the_ball_rest(bench);
    bench.finish_coup();
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_wheel_disabled"); });
    bench.right_click_wheel();
    QVERIFY(runs("ball_animation"));
    QVERIFY(runs("wheel_animation"));
    let_the_ball_rest(bench);
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(2, true).count(-1), 0);
}

void tst_settings_in_a_game::the_short_throw_comes_with_the_next_coup()
{
    desktop_bench bench({slow_game});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.right_click_wheel();
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_su_shortthrow_activ"); });
    auto* ball = bench.child<QPropertyAnimation>("ball_animation");
    QCOMPARE(ball->state(), QAbstractAnimation::Running); // this one takes its time
    let_the_ball_rest(bench);
    bench.finish_coup();
    QCOMPARE(coups_stored(bench), 1);
    bench.right_click_wheel();
    QCOMPARE(ball->state(), QAbstractAnimation::Stopped);
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(2, true).count(-1), 0);
}

void tst_settings_in_a_game::a_super_short_game_keeps_the_short_throw()
{
    desktop_bench bench({slow_game});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSuperkurzspiel");
    QVERIFY(bench.settings().s_su_shortthrow_activ());
    options.accept([](QWidget& dialog) {
        auto* box = child_of<QAbstractButton>(dialog, QStringLiteral("CB_su_shortthrow_activ"));
        QVERIFY(!box->isChecked());
        box->click();
    });
    QVERIFY(bench.settings().s_su_shortthrow_activ());
    options.accept([](QWidget& dialog) { options_user::press(dialog, "CB_su_shortthrow_activ"); });
    QVERIFY(bench.settings().s_su_shortthrow_activ());
    QTest::mouseClick(bench.child<QPushButton>("PB_super_short_play"), Qt::LeftButton);
    QVERIFY(!bench.settings().s_su_shortthrow_activ());
}

void tst_settings_in_a_game::cancel_restores_language_and_keeps_all()
{
    desktop_bench bench({ten_seconds});
    const options_user options(bench, user);
    bench.trigger("actionStart");
    bench.click(jetons::PL30);
    tick(bench, 40);
    const setting_values before = bench.settings().values();
    auto* menu = bench.child<QMenu>("menuSpiel");
    options.cancel([&](QWidget& dialog) {
        options_user::press(dialog, "RB_language_english");
        bench.settle();
        QCOMPARE(menu->title(), QStringLiteral("Game"));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Settings"));
        options_user::set_number(dialog, "SB_bet_time", 20);
        options_user::set_number(dialog, "SB_start_jetons", 7);
        options_user::set_scale_step(dialog, 3);
        options_user::press(dialog, "RB_table_american");
        options_user::press(dialog, "CB_jeton_to_win");
    });
    QCOMPARE(menu->title(), QStringLiteral("Spiel"));
    QCOMPARE(bench.settings().s_balkenzeit(), before.s_balkenzeit);
    QCOMPARE(bench.settings().s_start_jetons(), before.s_start_jetons);
    QCOMPARE(bench.settings().s_scr_res_factor(), before.s_scr_res_factor);
    QCOMPARE(bench.settings().s_table_form(), before.s_table_form);
    QCOMPARE(bench.settings().s_jeton_to_win(), before.s_jeton_to_win);
    QCOMPARE(bench.settings().s_language(), before.s_language);
    QCOMPARE(bench.window->size(), QSize(1460, 844));
    QCOMPARE(bar(bench)->value(), 40);
    QCOMPARE(bar(bench)->maximum(), 330);
    QVERIFY(bar_runs(bench));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 1);
}

void tst_settings_in_a_game::the_file_is_written_at_once()
{
    desktop_bench bench;
    const options_user options(bench, user);
    bench.trigger("actionStart");
    options.accept([](QWidget& dialog) {
        options_user::set_number(dialog, "SB_bet_time", 25);
        options_user::press(dialog, "RB_bet_time_enable");
        options_user::press(dialog, "CB_classic_dolly");
    });
    setting read;
    QVERIFY(read.read_settings(QStringLiteral("zarvello.ini")));
    QCOMPARE(read.s_balkenzeit(), 25000);
    QVERIFY(read.s_classic_dolly());
    QCOMPARE(read.s_start_jetons(), 2000);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_settings_in_a_game>(argc, argv);
}
#include "tst_settings_in_a_game.moc"
