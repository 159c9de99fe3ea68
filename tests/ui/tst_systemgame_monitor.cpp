#include "game_table.h"
#include "pictures.h"
#include "setting.h"
#include "systemgame_monitor.h"
#include "window_bench.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

using namespace general_player;

namespace
{

/// The monitor of a player with a table of its own.
struct monitor_desk {
    explicit monitor_desk(player_names player = PLAYER_2)
        : monitor(player, table, settings)
    {
    }

    QTableWidget& rows() { return *child_of<QTableWidget>(monitor, "TW_system_actions"); }
    QStringList row_texts()
    {
        QStringList texts;
        for (int row = 0; row < rows().rowCount(); ++row)
            texts.append(rows().item(row, 0)->text());
        return texts;
    }
    QPushButton& button(const QString& name) { return *child_of<QPushButton>(monitor, name); }
    QPushButton& manual() { return button("PB_number_selection"); }
    QPushButton& throw_button() { return button("PB_play_number"); }
    QString text(const QString& name) { return child_of<QLineEdit>(monitor, name)->text(); }
    QString label(const QString& name) { return child_of<QLabel>(monitor, name)->text(); }
    QString lamp()
    {
        const QPixmap shown = child_of<QLabel>(monitor, "LB_system_led")->pixmap(Qt::ReturnByValue);
        for (const QString colour : {"red", "green"}) {
            const QPixmap picture =
                scaled_picture(":/led/grafik/led/led_" + colour + ".png", monitor.reduction());
            if (!shown.isNull() && shown.toImage() == picture.toImage()) return colour;
        }
        return {};
    }

    setting settings;
    game_table table;
    systemgame_monitor monitor;
};

} // namespace

class tst_systemgame_monitor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { init_pictures(); }

    void it_names_its_player_data();
    void it_names_its_player();
    void it_stays_beside_the_table();
    void bets_and_actions_are_rows();
    void rows_can_not_be_edited();
    void only_the_monitored_player_has_rows();
    void a_throw_drops_the_rows();
    void only_the_newest_rows_are_kept();
    void a_hidden_monitor_takes_rows();

    void a_chosen_number_can_be_thrown();
    void a_throw_makes_the_chosen_number_the_last();
    void the_buttons_tell_what_is_wanted();
    void the_lamp_follows_the_system_mark();
    void opening_refreshes_the_lamp();
    void it_tells_when_it_opens_and_closes_data();
    void it_tells_when_it_opens_and_closes();
    void four_monitors_do_not_hide_each_other();

    void the_language_changes_live();
    void it_follows_the_scale_data();
    void it_follows_the_scale();
};

void tst_systemgame_monitor::it_names_its_player_data()
{
    QTest::addColumn<int>("player");
    QTest::addColumn<QString>("name");
    QTest::newRow("1") << int(PLAYER_1) << "Spieler 1";
    QTest::newRow("4") << int(PLAYER_4) << "Spieler 4";
}

void tst_systemgame_monitor::it_names_its_player()
{
    QFETCH(int, player);
    QFETCH(QString, name);
    monitor_desk desk(static_cast<player_names>(player));
    QCOMPARE(desk.monitor.objectName(), QString("systemgame_monitor_%1").arg(player + 1));
    QCOMPARE(desk.monitor.windowTitle(), QString("SysMonitor"));
    QCOMPARE(desk.label("LB_player"), QString("Player"));
    QCOMPARE(desk.label("LB_player_name"), name);
    QCOMPARE(desk.label("LB_system_active"), QString("System aktiv"));
    QCOMPARE(desk.manual().text(), QString("Manuell"));
    QCOMPARE(desk.throw_button().text(), QString("Wurf"));
    QCOMPARE(desk.rows().columnCount(), 1);
    QCOMPARE(desk.rows().horizontalHeaderItem(0)->text(), QString("Einheiten/Setzungen"));
    QCOMPARE(desk.rows().rowCount(), 0);
    QVERIFY(!desk.throw_button().isEnabled());
}

void tst_systemgame_monitor::it_stays_beside_the_table()
{
    monitor_desk desk;
    QVERIFY(!desk.monitor.isModal());
    QCOMPARE(desk.monitor.windowType(), Qt::Tool);
    QVERIFY(desk.monitor.isHidden());
}

void tst_systemgame_monitor::bets_and_actions_are_rows()
{
    monitor_desk desk;
    desk.monitor.addSet_to_display(PLAYER_2, 12, "EC 1-18");
    desk.monitor.addAction_to_display(PLAYER_2, "Verzögerung aktiv");
    desk.monitor.addSet_to_display(PLAYER_2, 0, "PL 0");
    QCOMPARE(desk.row_texts(), QStringList({"12 / EC 1-18", "A: Verzögerung aktiv", "0 / PL 0"}));
}

void tst_systemgame_monitor::rows_can_not_be_edited()
{
    monitor_desk desk;
    desk.monitor.addSet_to_display(PLAYER_2, 1, "EC 1-18");
    desk.monitor.addAction_to_display(PLAYER_2, "%1");
    for (int row = 0; row < 2; ++row)
        QVERIFY(!(desk.rows().item(row, 0)->flags() & Qt::ItemIsEditable));
    QCOMPARE(desk.row_texts().last(), QString("A: %1"));
}

void tst_systemgame_monitor::only_the_monitored_player_has_rows()
{
    monitor_desk desk(PLAYER_2);
    for (const player_names other : {PLAYER_1, PLAYER_3, PLAYER_4, NO_PLAYER}) {
        desk.monitor.addSet_to_display(other, 1, "EC 1-18");
        desk.monitor.addAction_to_display(other, "Verzögerung aktiv");
    }
    QCOMPARE(desk.rows().rowCount(), 0);
}

void tst_systemgame_monitor::a_throw_drops_the_rows()
{
    monitor_desk desk;
    desk.monitor.addSet_to_display(PLAYER_2, 1, "EC 1-18");
    desk.monitor.addSet_to_display(PLAYER_2, 2, "DZ 1-12");
    desk.monitor.wheel_direct_started(17);
    QCOMPARE(desk.rows().rowCount(), 0);
    desk.monitor.addSet_to_display(PLAYER_2, 3, "PL 5");
    QCOMPARE(desk.row_texts(), QStringList("3 / PL 5"));
    desk.monitor.wheel_direct_started(0);
    desk.monitor.wheel_direct_started(1);
    QCOMPARE(desk.rows().rowCount(), 0);
}

void tst_systemgame_monitor::only_the_newest_rows_are_kept()
{
    monitor_desk desk;
    for (int row = 1; row <= systemgame_monitor::row_limit + 3; ++row)
        desk.monitor.addSet_to_display(PLAYER_2, row, "PL 5");
    QCOMPARE(desk.rows().rowCount(), 10000);
    QCOMPARE(desk.rows().item(0, 0)->text(), QString("4 / PL 5"));
    QCOMPARE(desk.rows().item(9999, 0)->text(), QString("10003 / PL 5"));
}

void tst_systemgame_monitor::a_hidden_monitor_takes_rows()
{
    monitor_desk desk;
    desk.monitor.addSet_to_display(PLAYER_2, 1, "EC 1-18");
    desk.monitor.show();
    desk.monitor.hide();
    desk.monitor.addSet_to_display(PLAYER_2, 2, "DZ 1-12");
    desk.monitor.show();
    QCOMPARE(desk.row_texts(), QStringList({"1 / EC 1-18", "2 / DZ 1-12"}));
}

void tst_systemgame_monitor::a_chosen_number_can_be_thrown()
{
    monitor_desk desk;
    desk.monitor.display_selected_manual_number("00");
    QCOMPARE(desk.text("LE_selected_number"), QString("00"));
    QVERIFY(desk.throw_button().isEnabled());
    desk.monitor.display_selected_manual_number("");
    QCOMPARE(desk.text("LE_selected_number"), QString());
    QVERIFY(!desk.throw_button().isEnabled());
}

void tst_systemgame_monitor::a_throw_makes_the_chosen_number_the_last()
{
    monitor_desk desk;
    desk.monitor.display_selected_manual_number("17");
    desk.monitor.wheel_direct_started(17);
    QCOMPARE(desk.text("LE_selected_number"), QString());
    QCOMPARE(desk.text("LE_last_number"), QString("17"));
    QVERIFY(!desk.throw_button().isEnabled());
    desk.monitor.wheel_direct_started(5); // nobody chose it
    QCOMPARE(desk.text("LE_last_number"), QString());
}

void tst_systemgame_monitor::the_buttons_tell_what_is_wanted()
{
    monitor_desk desk;
    desk.table.make_system_player(PLAYER_2);
    desk.monitor.updatePlayerStatus();
    desk.monitor.display_selected_manual_number("17");
    const QSignalSpy selections(&desk.monitor, &systemgame_monitor::select_number_by_user_trigger);
    const QSignalSpy throws(&desk.monitor, &systemgame_monitor::doubleMouseEventTriggerd);
    desk.manual().click();
    QCOMPARE(selections.size(), 1);
    QCOMPARE(throws.size(), 0);
    desk.throw_button().click();
    QCOMPARE(selections.size(), 1);
    QCOMPARE(throws.size(), 1);
}

void tst_systemgame_monitor::the_lamp_follows_the_system_mark()
{
    monitor_desk desk(PLAYER_2);
    QCOMPARE(desk.lamp(), QString("red"));
    QVERIFY(!desk.manual().isEnabled());
    desk.table.make_system_player(PLAYER_1);
    desk.monitor.updatePlayerStatus();
    QCOMPARE(desk.lamp(), QString("red"));
    desk.table.make_system_player(PLAYER_2);
    desk.monitor.updatePlayerStatus();
    QCOMPARE(desk.lamp(), QString("green"));
    QVERIFY(desk.manual().isEnabled());
    desk.table.make_normal_player(PLAYER_2);
    desk.monitor.modify_window_based_on_scale();
    QCOMPARE(desk.lamp(), QString("red"));
    QVERIFY(!desk.manual().isEnabled());
}

void tst_systemgame_monitor::opening_refreshes_the_lamp()
{
    monitor_desk desk(PLAYER_2);
    desk.table.make_system_player(PLAYER_2);
    desk.monitor.show();
    QCOMPARE(desk.lamp(), QString("green"));
}

void tst_systemgame_monitor::it_tells_when_it_opens_and_closes_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"close", "escape", "hide"})
        QTest::newRow(way) << way;
}

void tst_systemgame_monitor::it_tells_when_it_opens_and_closes()
{
    QFETCH(QString, way);
    monitor_desk desk;
    QSignalSpy told(&desk.monitor, &systemgame_monitor::visibility_changed);
    desk.monitor.show();
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.takeFirst().first().toBool(), true);
    if (way == "close") desk.monitor.close();
    if (way == "escape") QTest::keyClick(&desk.monitor, Qt::Key_Escape);
    if (way == "hide") desk.monitor.hide();
    QVERIFY(desk.monitor.isHidden());
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toBool(), false);
}

void tst_systemgame_monitor::four_monitors_do_not_hide_each_other()
{
    QWidget window;
    window.setGeometry(0, 0, 400, 300);
    const setting settings;
    const game_table table;
    QVector<QPoint> corners;
    for (int player = 0; player < player_count; ++player) {
        auto* const monitor =
            new systemgame_monitor(static_cast<player_names>(player), table, settings, &window);
        monitor->show();
        corners.append(monitor->pos());
        if (player > 0) QVERIFY(corners.at(player).x() > corners.at(player - 1).x());
        if (player > 0) QVERIFY(corners.at(player).y() > corners.at(player - 1).y());
    }
    auto* const first = child_of<systemgame_monitor>(window, "systemgame_monitor_1");
    first->move(5, 7); // by the user
    first->hide();
    first->show();
    QCOMPARE(first->pos(), QPoint(5, 7));
}

void tst_systemgame_monitor::the_language_changes_live()
{
    monitor_desk desk;
    desk.monitor.addSet_to_display(PLAYER_2, 1, "EC 1-18");
    desk.monitor.display_selected_manual_number("17");
    desk.monitor.setWindowTitle({});
    child_of<QLabel>(desk.monitor, "LB_player_name")->clear();
    desk.rows().horizontalHeaderItem(0)->setText({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.monitor, &change);
    QCOMPARE(desk.monitor.windowTitle(), QString("SysMonitor"));
    QCOMPARE(desk.label("LB_player_name"), QString("Spieler 2"));
    QCOMPARE(desk.rows().horizontalHeaderItem(0)->text(), QString("Einheiten/Setzungen"));
    QCOMPARE(desk.row_texts(), QStringList("1 / EC 1-18"));
    QCOMPARE(desk.text("LE_selected_number"), QString("17"));
    QCOMPARE(desk.monitor.objectName(), QString("systemgame_monitor_2"));
}

void tst_systemgame_monitor::it_follows_the_scale_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full") << 0 << QSize(320, 440);
    QTest::newRow("0.1") << 1 << QSize(288, 396);
    QTest::newRow("0.2") << 2 << QSize(256, 352);
    QTest::newRow("0.3") << 3 << QSize(224, 308);
}

void tst_systemgame_monitor::it_follows_the_scale()
{
    QFETCH(int, step);
    QFETCH(QSize, size);
    monitor_desk desk;
    desk.monitor.addSet_to_display(PLAYER_2, 1, "EC 1-18");
    desk.settings.set_s_scr_res_factor(step);
    desk.monitor.show();
    desk.monitor.modify_window_based_on_scale();
    QCoreApplication::processEvents();
    // Larger fonts of another desktop may make it larger.
    QVERIFY(desk.monitor.width() >= size.width() && desk.monitor.height() >= size.height());
    QCOMPARE(desk.lamp(), QString("red"));
    QVERIFY(desk.rows().rowHeight(0) >= desk.rows().fontMetrics().height());
    const auto children = desk.monitor.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        const QString name = child->objectName();
        if (child->isHidden() || name.isEmpty() || name.startsWith("qt_")) continue;
        QVERIFY2(child->parentWidget()->rect().contains(child->geometry()), qPrintable(name));
        const QString text = child->property("text").toString();
        if (text.isEmpty()) continue;
        const QSize needed = child->fontMetrics().size(Qt::TextSingleLine, text);
        QVERIFY2(child->height() + 1 >= needed.height(), qPrintable(name));
        QVERIFY2(child->width() >= needed.width(), qPrintable(name));
    }
}

int main(int argc, char** argv)
{
    return run_window_test<tst_systemgame_monitor>(argc, argv);
}

#include "tst_systemgame_monitor.moc"
