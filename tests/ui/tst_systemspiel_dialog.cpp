#include "file_dialog.h"
#include "game_table.h"
#include "setting.h"
#include "systemspiel_dialog.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <memory>

using namespace general_player;

static const QString no_file = "Doppelklick links zur Auswahl";
static const QString jetons_lie =
    "Aktivierung nicht möglich, da ein normales Spiel für diesen Spieler aktiv (Jetons gesetzt) "
    "ist!";

namespace
{

QString place_of(const QString& name)
{
    return QDir::currentPath() + '/' + name;
}

/// The dialog with a table of its own, a user who chooses files and answers boxes, and everything
/// that the dialog told, in order.
struct system_desk {
    system_desk()
    {
        file_dialog::set_chooser([this](const file_dialog::request& what) {
            requests.append(what);
            if (while_choosing) while_choosing();
            return chosen;
        });
        for (int i = 0; i < player_count; ++i)
            table.set_credit(static_cast<player_names>(i), 1000);
    }
    ~system_desk() { file_dialog::set_chooser({}); }

    /// A player who is played by a system, as the program leaves it.
    void run_system(player_names player, const QString& file)
    {
        settings.set_s_user_sys_file(player, place_of(file));
        table.make_system_player(player);
    }
    void run_protocol(player_names player, const QString& file)
    {
        settings.set_s_user_out_file(player, place_of(file));
        table.set_protocol_flag(player, true);
    }
    void set_jeton(player_names player)
    {
        if (!table.set_jeton(player, jetons::EC01, 1, 5, debit::from_credit)) qFatal("no jeton");
    }

    void open()
    {
        dialog = std::make_unique<systemspiel_dialog>(table, settings);
        const auto tell = [this](const char* what) {
            return [this, what](player_names player) {
                told.append(QString("%1 %2").arg(what).arg(player + 1));
                told_marks.append(QString("%1%2")
                                      .arg(int(table.account_of(player).is_system))
                                      .arg(int(table.account_of(player).system_flag)));
                if (when_told) when_told(told.last());
            };
        };
        auto* const sender = dialog.get();
        using dia = systemspiel_dialog;
        QObject::connect(sender, &dia::system_game_start, sender, tell("start"));
        QObject::connect(sender, &dia::system_game_stop, sender, tell("stop"));
        QObject::connect(sender, &dia::system_out_start, sender, tell("out start"));
        QObject::connect(sender, &dia::system_out_stop, sender, tell("out stop"));
        QObject::connect(
            sender, &dia::display_player_status, sender, [this] { told.append("status"); });
        dialog->show();
    }
    void choose_system(player_names player, const QString& name)
    {
        chosen = name.isEmpty() ? QString() : place_of(name);
        dialog->set_system_game_file(player);
    }
    void choose_protocol(player_names player, const QString& name)
    {
        chosen = name.isEmpty() ? QString() : place_of(name);
        dialog->set_system_output_file(player);
    }
    void press(QDialogButtonBox::StandardButton button)
    {
        child_of<QDialogButtonBox>(*dialog, "buttonBox")->button(button)->click();
    }
    void accept() { press(QDialogButtonBox::Ok); }

    QCheckBox& box(const char* kind, player_names player)
    {
        return *child_of<QCheckBox>(*dialog, QString("CB_%1_activ_%2").arg(kind).arg(player + 1));
    }
    QCheckBox& system_box(player_names player) { return box("system_game", player); }
    QCheckBox& protocol_box(player_names player) { return box("system_out", player); }
    QLineEdit& edit(const char* kind, player_names player)
    {
        return *child_of<QLineEdit>(*dialog, QString("LE_system_%1_%2").arg(kind).arg(player + 1));
    }
    QLineEdit& system_edit(player_names player) { return edit("game_file", player); }
    QLineEdit& protocol_edit(player_names player) { return edit("output_file", player); }
    void click(const char* button, player_names player)
    {
        child_of<QPushButton>(*dialog, QString("%1_%2").arg(button).arg(player + 1))->click();
    }

    QString chosen;
    QVector<file_dialog::request> requests;
    std::function<void()> while_choosing;
    std::function<void(const QString&)> when_told;
    QStringList told;
    QStringList told_marks; // system mark and protocol mark at each signal of a player
    setting settings;
    game_table table;
    std::unique_ptr<systemspiel_dialog> dialog;
    box_user user;
};

} // namespace

class tst_systemspiel_dialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void it_begins_with_what_is_stored();
    void the_system_file_is_asked_for();
    void the_protocol_file_is_asked_for();
    void a_chosen_system_file_is_switched_on();
    void no_choice_leaves_everything_data();
    void no_choice_leaves_everything();
    void jetons_on_the_table_refuse_a_chosen_file();
    void jetons_of_the_running_system_refuse_nothing();
    void a_protocol_follows_its_system_box();
    void an_existing_protocol_is_taken_without_a_question();
    void a_second_choice_waits_for_the_first();

    void a_box_needs_its_file();
    void a_system_box_needs_a_table_without_jetons();
    void a_protocol_box_needs_its_system();
    void a_system_switched_off_takes_its_protocol_along();
    void resets_drop_files();

    void accepting_starts_what_is_on();
    void players_are_applied_in_order();
    void accepting_without_a_change_restarts_nothing();
    void another_way_to_name_the_file_is_no_change();
    void a_changed_file_is_asked_about_data();
    void a_changed_file_is_asked_about();
    void off_stops_what_runs();
    void another_protocol_file_closes_the_first();
    void a_protocol_is_stopped_alone();
    void a_file_that_is_off_is_not_stored();
    void cancel_changes_nothing();
    void a_system_that_ends_meanwhile_is_not_started_anew();
    void a_start_that_fails_leaves_the_others();
    void nothing_is_accepted_twice();
    void a_dialog_deleted_by_a_start_is_left_alone();

    void the_language_changes_live();
    void nothing_is_clipped_at_any_scale_data();
    void nothing_is_clipped_at_any_scale();
};

void tst_systemspiel_dialog::initTestCase()
{
    for (const char* name : {"one.syf", "two.syf", "one.out"}) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void tst_systemspiel_dialog::it_begins_with_what_is_stored()
{
    system_desk desk;
    desk.run_system(PLAYER_2, "one.syf");
    desk.run_protocol(PLAYER_3, "one.out");
    desk.settings.set_s_user_sys_file(PLAYER_4, place_of("away.syf"));
    desk.open();
    QCOMPARE(desk.dialog->windowTitle(), QString("Systemspiel"));
    for (const player_names player : {PLAYER_1, PLAYER_2, PLAYER_3, PLAYER_4}) {
        QCOMPARE(desk.system_box(player).isChecked(), player == PLAYER_2);
        QCOMPARE(desk.protocol_box(player).isChecked(), player == PLAYER_3);
        QVERIFY(desk.system_edit(player).isReadOnly());
        QVERIFY(desk.protocol_edit(player).isReadOnly());
    }
    QCOMPARE(desk.system_edit(PLAYER_1).text(), no_file);
    QCOMPARE(desk.system_edit(PLAYER_1).toolTip(), QString());
    QCOMPARE(desk.system_edit(PLAYER_2).text(), QString("one.syf"));
    QCOMPARE(desk.system_edit(PLAYER_2).toolTip(), place_of("one.syf"));
    QCOMPARE(desk.protocol_edit(PLAYER_2).text(), no_file);
    QCOMPARE(desk.protocol_edit(PLAYER_3).text(), QString("one.out"));
    QCOMPARE(desk.protocol_edit(PLAYER_3).toolTip(), place_of("one.out"));
    QCOMPARE(desk.system_edit(PLAYER_4).text(), QString("away.syf"));
}

void tst_systemspiel_dialog::the_system_file_is_asked_for()
{
    system_desk desk;
    desk.open();
    desk.choose_system(PLAYER_1, {});
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests.first().title, QString("Öffnen"));
    QCOMPARE(desk.requests.first().folder, QString("./system"));
    QCOMPARE(desk.requests.first().filter, QString("Systemspieldateien (*.syf)"));
}

void tst_systemspiel_dialog::the_protocol_file_is_asked_for()
{
    system_desk desk;
    desk.open();
    const QString format = "yyyyMMdd_hhmm";
    const QString before = QDateTime::currentDateTime().toString(format);
    desk.choose_protocol(PLAYER_3, {});
    const QString after = QDateTime::currentDateTime().toString(format);
    QCOMPARE(desk.requests.size(), 1);
    const file_dialog::request& what = desk.requests.first();
    QCOMPARE(what.title, QString("Öffnen oder Neu"));
    QCOMPARE(what.filter, QString("Systemprotokolldatei (*.out)"));
    QVERIFY(!what.confirms_overwriting);
    const auto match =
        QRegularExpression("^\\./sysout/syspr_3_(\\d{8}_\\d{4})\\.out$").match(what.folder);
    QVERIFY2(match.hasMatch(), qPrintable(what.folder));
    QVERIFY(match.captured(1) >= before && match.captured(1) <= after);
    QVERIFY(QDir("sysout").exists()); // or the proposal could not be taken
}

void tst_systemspiel_dialog::a_chosen_system_file_is_switched_on()
{
    system_desk desk;
    desk.open();
    desk.choose_system(PLAYER_3, "one.syf");
    QCOMPARE(desk.system_edit(PLAYER_3).text(), QString("one.syf"));
    QCOMPARE(desk.system_edit(PLAYER_3).toolTip(), place_of("one.syf"));
    QVERIFY(desk.system_box(PLAYER_3).isChecked());
    QVERIFY(!desk.system_box(PLAYER_2).isChecked());
    QVERIFY(desk.user.boxes().isEmpty());
    QVERIFY(desk.told.isEmpty());
    QVERIFY(desk.settings.s_user_sys_file(PLAYER_3).isEmpty());
}

void tst_systemspiel_dialog::no_choice_leaves_everything_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("cancelled") << QString();
    QTest::newRow("no such file") << "away.syf";
}

void tst_systemspiel_dialog::no_choice_leaves_everything()
{
    QFETCH(QString, name);
    system_desk desk;
    desk.settings.set_s_user_sys_file(PLAYER_1, place_of("one.syf"));
    desk.open();
    desk.choose_system(PLAYER_1, name);
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.system_edit(PLAYER_1).text(), QString("one.syf"));
    QVERIFY(!desk.system_box(PLAYER_1).isChecked());
    desk.choose_protocol(PLAYER_1, {});
    QCOMPARE(desk.protocol_edit(PLAYER_1).text(), no_file);
}

void tst_systemspiel_dialog::jetons_on_the_table_refuse_a_chosen_file()
{
    system_desk desk;
    desk.set_jeton(PLAYER_1);
    desk.open();
    desk.user.answer(QMessageBox::Ok);
    desk.choose_system(PLAYER_1, "one.syf");
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().text, jetons_lie);
    QCOMPARE(desk.user.boxes().first().icon, QMessageBox::Information);
    QCOMPARE(desk.system_edit(PLAYER_1).text(), QString("one.syf"));
    QVERIFY(!desk.system_box(PLAYER_1).isChecked());

    desk.choose_system(PLAYER_2, "one.syf"); // the jetons of another player
    QVERIFY(desk.system_box(PLAYER_2).isChecked());
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.unexpected(), 0);
}

void tst_systemspiel_dialog::jetons_of_the_running_system_refuse_nothing()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.set_jeton(PLAYER_1);
    desk.open();
    desk.choose_system(PLAYER_1, "two.syf");
    QVERIFY(desk.system_box(PLAYER_1).isChecked());
    desk.system_box(PLAYER_1).click();
    desk.system_box(PLAYER_1).click();
    QVERIFY(desk.system_box(PLAYER_1).isChecked());
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_systemspiel_dialog::a_protocol_follows_its_system_box()
{
    system_desk desk;
    desk.open();
    desk.choose_protocol(PLAYER_1, "new.out"); // need not be there yet
    QCOMPARE(desk.protocol_edit(PLAYER_1).text(), QString("new.out"));
    QCOMPARE(desk.protocol_edit(PLAYER_1).toolTip(), place_of("new.out"));
    QVERIFY(!desk.protocol_box(PLAYER_1).isChecked());

    desk.choose_system(PLAYER_2, "one.syf");
    desk.choose_protocol(PLAYER_2, "new.out");
    QVERIFY(desk.protocol_box(PLAYER_2).isChecked());
}

void tst_systemspiel_dialog::an_existing_protocol_is_taken_without_a_question()
{
    system_desk desk;
    file_dialog::set_chooser({}); // the real dialog
    desk.open();
    QString folder, proposal;
    desk.user.with_dialog("QFileDialog", [&](QWidget* widget) {
        auto* const chooser = qobject_cast<QFileDialog*>(widget);
        folder = chooser->directory().path();
        proposal = child_of<QLineEdit>(*chooser, "fileNameEdit")->text();
        chooser->setDirectory(QDir::currentPath());
        chooser->selectFile("one.out");
        QMetaObject::invokeMethod(chooser, "accept");
        if (chooser->isVisible()) chooser->reject(); // refused
    });
    desk.dialog->set_system_output_file(PLAYER_1);
    QCOMPARE(desk.user.dialogs_left(), 0);
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(folder, place_of("sysout"));
    QVERIFY2(proposal.startsWith("syspr_1_"), qPrintable(proposal));
    QCOMPARE(desk.protocol_edit(PLAYER_1).toolTip(), place_of("one.out"));
}

void tst_systemspiel_dialog::a_second_choice_waits_for_the_first()
{
    system_desk desk;
    desk.open();
    desk.while_choosing = [&desk] {
        desk.dialog->set_system_game_file(PLAYER_2);
        desk.dialog->set_system_output_file(PLAYER_2);
        desk.accept();
    };
    desk.choose_system(PLAYER_1, "one.syf");
    QCOMPARE(desk.requests.size(), 1);
    QVERIFY(desk.dialog->isVisible());
    QVERIFY(desk.told.isEmpty());
    desk.while_choosing = {};
    desk.choose_system(PLAYER_2, "two.syf");
    QCOMPARE(desk.requests.size(), 2);
    QCOMPARE(desk.system_edit(PLAYER_2).text(), QString("two.syf"));
}

void tst_systemspiel_dialog::a_box_needs_its_file()
{
    system_desk desk;
    desk.open();
    desk.user.answer(QMessageBox::Ok);
    desk.system_box(PLAYER_4).click();
    QVERIFY(!desk.system_box(PLAYER_4).isChecked());
    QCOMPARE(desk.user.boxes().last().text, QString("Bitte zuerst die Systemspieldatei wählen!"));
    desk.user.answer(QMessageBox::Ok);
    desk.protocol_box(PLAYER_4).click();
    QVERIFY(!desk.protocol_box(PLAYER_4).isChecked());
    QCOMPARE(desk.user.boxes().last().text,
             QString("Bitte zuerst die Systemprotokolldatei wählen!"));
    QCOMPARE(desk.user.boxes().last().icon, QMessageBox::Information);
    QCOMPARE(desk.user.boxes().size(), 2);
    QCOMPARE(desk.user.unexpected(), 0);
}

void tst_systemspiel_dialog::a_system_box_needs_a_table_without_jetons()
{
    system_desk desk;
    desk.settings.set_s_user_sys_file(PLAYER_1, place_of("one.syf"));
    desk.set_jeton(PLAYER_1);
    desk.open();
    desk.user.answer(QMessageBox::Ok);
    desk.system_box(PLAYER_1).click();
    QVERIFY(!desk.system_box(PLAYER_1).isChecked());
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().text, jetons_lie);
    desk.table.clear_jetons(PLAYER_1);
    desk.system_box(PLAYER_1).click();
    QVERIFY(desk.system_box(PLAYER_1).isChecked());
    QCOMPARE(desk.user.boxes().size(), 1);
}

void tst_systemspiel_dialog::a_protocol_box_needs_its_system()
{
    system_desk desk;
    desk.settings.set_s_user_sys_file(PLAYER_1, place_of("one.syf"));
    desk.settings.set_s_user_out_file(PLAYER_1, place_of("one.out"));
    desk.open();
    desk.user.answer(QMessageBox::Ok);
    desk.protocol_box(PLAYER_1).click();
    QVERIFY(!desk.protocol_box(PLAYER_1).isChecked());
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().text,
             QString("Bitte zuerst die Systemspieldatei aktivieren!"));
    desk.system_box(PLAYER_1).click();
    desk.protocol_box(PLAYER_1).click();
    QVERIFY(desk.protocol_box(PLAYER_1).isChecked());
    QCOMPARE(desk.user.boxes().size(), 1);
}

void tst_systemspiel_dialog::a_system_switched_off_takes_its_protocol_along()
{
    system_desk desk;
    desk.run_system(PLAYER_2, "one.syf");
    desk.run_protocol(PLAYER_2, "one.out");
    desk.run_protocol(PLAYER_3, "one.out");
    desk.open();
    desk.system_box(PLAYER_2).click();
    QVERIFY(!desk.protocol_box(PLAYER_2).isChecked());
    QVERIFY(desk.protocol_box(PLAYER_3).isChecked());
}

void tst_systemspiel_dialog::resets_drop_files()
{
    system_desk desk;
    desk.open();
    for (const player_names player : {PLAYER_1, PLAYER_2}) {
        desk.choose_system(player, "one.syf");
        desk.choose_protocol(player, "new.out");
    }
    desk.click("PB_reset_sys", PLAYER_1);
    QVERIFY(!desk.system_box(PLAYER_1).isChecked());
    QVERIFY(!desk.protocol_box(PLAYER_1).isChecked());
    QCOMPARE(desk.system_edit(PLAYER_1).text(), no_file);
    QCOMPARE(desk.system_edit(PLAYER_1).toolTip(), QString());
    QCOMPARE(desk.protocol_edit(PLAYER_1).text(), no_file);
    QCOMPARE(desk.protocol_edit(PLAYER_1).toolTip(), QString());
    desk.user.answer(QMessageBox::Ok);
    desk.system_box(PLAYER_1).click();
    QCOMPARE(desk.user.boxes().last().text, QString("Bitte zuerst die Systemspieldatei wählen!"));

    desk.click("PB_reset_sys_out", PLAYER_2);
    QVERIFY(desk.system_box(PLAYER_2).isChecked());
    QCOMPARE(desk.system_edit(PLAYER_2).text(), QString("one.syf"));
    QVERIFY(!desk.protocol_box(PLAYER_2).isChecked());
    QCOMPARE(desk.protocol_edit(PLAYER_2).text(), no_file);
}

void tst_systemspiel_dialog::accepting_starts_what_is_on()
{
    system_desk desk;
    desk.open();
    desk.choose_system(PLAYER_2, "one.syf");
    desk.choose_protocol(PLAYER_2, "new.out");
    bool path_was_stored = false;
    desk.when_told = [&](const QString& what) {
        if (what == "start 2") {
            path_was_stored = desk.settings.s_user_sys_file(PLAYER_2) == place_of("one.syf");
        }
    };
    desk.accept();
    QCOMPARE(desk.told, QStringList({"start 2", "out start 2", "status"}));
    QCOMPARE(desk.told_marks, QStringList({"10", "11"}));
    QVERIFY(path_was_stored);
    QCOMPARE(desk.settings.s_user_out_file(PLAYER_2), place_of("new.out"));
    QVERIFY(desk.dialog->isHidden());
    QCOMPARE(desk.dialog->result(), int(QDialog::Accepted));
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_systemspiel_dialog::players_are_applied_in_order()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.choose_system(PLAYER_4, "two.syf");
    desk.choose_system(PLAYER_3, "one.syf");
    desk.choose_protocol(PLAYER_3, "new.out");
    desk.system_box(PLAYER_1).click();
    desk.accept();
    QCOMPARE(desk.told,
             QStringList({"stop 1", "out stop 1", "start 3", "out start 3", "start 4", "status"}));
}

void tst_systemspiel_dialog::accepting_without_a_change_restarts_nothing()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.accept();
    QCOMPARE(desk.told, QStringList("status"));
    QVERIFY(desk.user.boxes().isEmpty());
    QVERIFY(desk.table.account_of(PLAYER_1).is_system);
    QVERIFY(desk.table.account_of(PLAYER_1).system_flag);
}

void tst_systemspiel_dialog::another_way_to_name_the_file_is_no_change()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.settings.set_s_user_sys_file(PLAYER_1, "./sysout/../one.syf");
    desk.open();
    desk.choose_system(PLAYER_1, "one.syf");
    desk.accept();
    QCOMPARE(desk.told, QStringList("status"));
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_systemspiel_dialog::a_changed_file_is_asked_about_data()
{
    QTest::addColumn<bool>("is_yes");
    QTest::addColumn<QStringList>("told");
    QTest::addColumn<QString>("stored");
    QTest::newRow("yes") << true << QStringList({"stop 3", "start 3", "status"}) << "two.syf";
    QTest::newRow("no") << false << QStringList("status") << "one.syf";
}

void tst_systemspiel_dialog::a_changed_file_is_asked_about()
{
    QFETCH(bool, is_yes);
    QFETCH(QStringList, told);
    QFETCH(QString, stored);
    system_desk desk;
    desk.run_system(PLAYER_3, "one.syf");
    desk.open();
    desk.choose_system(PLAYER_3, "two.syf");
    // The program makes the player a human when it stops the system.
    desk.when_told = [&desk](const QString& what) {
        if (what == "stop 3") desk.table.make_normal_player(PLAYER_3);
    };
    desk.user.answer(is_yes ? QMessageBox::Yes : QMessageBox::No);
    desk.accept();
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().title, QString("Systemspieldatei wurde geändert"));
    QCOMPARE(desk.user.boxes().first().text,
             QString("Die Systemspieldatei für Spieler3 wurde geändert - Änderung beibehalten?"));
    QCOMPARE(desk.user.boxes().first().icon, QMessageBox::Question);
    QCOMPARE(desk.told, told);
    QCOMPARE(desk.settings.s_user_sys_file(PLAYER_3), place_of(stored));
    QVERIFY(desk.table.account_of(PLAYER_3).is_system);
}

void tst_systemspiel_dialog::off_stops_what_runs()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.system_box(PLAYER_1).click();
    desk.accept();
    QCOMPARE(desk.told, QStringList({"stop 1", "out stop 1", "status"}));
    QCOMPARE(desk.told_marks, QStringList({"11", "01"}));
    QVERIFY(!desk.table.account_of(PLAYER_1).is_system);
    QVERIFY(!desk.table.account_of(PLAYER_1).system_flag);
    QCOMPARE(desk.settings.s_user_sys_file(PLAYER_1), place_of("one.syf"));
}

void tst_systemspiel_dialog::another_protocol_file_closes_the_first()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.choose_protocol(PLAYER_1, "new.out");
    desk.accept();
    QCOMPARE(desk.told, QStringList({"out stop 1", "out start 1", "status"}));
    QCOMPARE(desk.told_marks, QStringList({"11", "11"}));
    QCOMPARE(desk.settings.s_user_out_file(PLAYER_1), place_of("new.out"));
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_systemspiel_dialog::a_protocol_is_stopped_alone()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.protocol_box(PLAYER_1).click();
    desk.accept();
    QCOMPARE(desk.told, QStringList({"out stop 1", "status"}));
    QVERIFY(desk.table.account_of(PLAYER_1).is_system);
    QVERIFY(!desk.table.account_of(PLAYER_1).system_flag);
}

void tst_systemspiel_dialog::a_file_that_is_off_is_not_stored()
{
    system_desk desk;
    desk.settings.set_s_user_sys_file(PLAYER_1, place_of("one.syf"));
    desk.open();
    desk.choose_system(PLAYER_1, "two.syf");
    desk.choose_protocol(PLAYER_1, "new.out");
    desk.system_box(PLAYER_1).click();
    desk.accept();
    QCOMPARE(desk.told, QStringList("status"));
    QCOMPARE(desk.settings.s_user_sys_file(PLAYER_1), place_of("one.syf"));
    QVERIFY(desk.settings.s_user_out_file(PLAYER_1).isEmpty());
}

void tst_systemspiel_dialog::cancel_changes_nothing()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.click("PB_reset_sys", PLAYER_1);
    desk.choose_system(PLAYER_2, "two.syf");
    desk.press(QDialogButtonBox::Cancel);
    QVERIFY(desk.dialog->isHidden());
    QVERIFY(desk.told.isEmpty());
    QVERIFY(desk.table.account_of(PLAYER_1).is_system);
    QVERIFY(desk.table.account_of(PLAYER_1).system_flag);
    QVERIFY(!desk.table.account_of(PLAYER_2).is_system);
    QCOMPARE(desk.settings.s_user_sys_file(PLAYER_1), place_of("one.syf"));
    QVERIFY(desk.settings.s_user_sys_file(PLAYER_2).isEmpty());
}

void tst_systemspiel_dialog::a_system_that_ends_meanwhile_is_not_started_anew()
{
    system_desk desk;
    desk.run_system(PLAYER_1, "one.syf");
    desk.run_protocol(PLAYER_1, "one.out");
    desk.open();
    desk.table.make_normal_player(PLAYER_1);
    desk.dialog->system_game_ended(PLAYER_1);
    QVERIFY(!desk.system_box(PLAYER_1).isChecked());
    QVERIFY(desk.protocol_box(PLAYER_1).isChecked());
    desk.accept();
    QCOMPARE(desk.told, QStringList("status"));
    QVERIFY(desk.table.account_of(PLAYER_1).system_flag);
}

void tst_systemspiel_dialog::a_start_that_fails_leaves_the_others()
{
    system_desk desk;
    desk.open();
    for (const player_names player : {PLAYER_1, PLAYER_2}) {
        desk.choose_system(player, "one.syf");
        desk.choose_protocol(player, "new.out");
    }
    desk.when_told = [&desk](const QString& what) {
        if (what != "start 1") return;
        desk.table.make_normal_player(PLAYER_1);
        desk.dialog->system_game_ended(PLAYER_1);
    };
    desk.accept();
    QCOMPARE(desk.told,
             QStringList({"start 1", "out start 1", "start 2", "out start 2", "status"}));
    QVERIFY(!desk.table.account_of(PLAYER_1).is_system);
    QVERIFY(desk.table.account_of(PLAYER_2).is_system);
}

void tst_systemspiel_dialog::nothing_is_accepted_twice()
{
    system_desk desk;
    desk.open();
    desk.choose_system(PLAYER_1, "one.syf");
    desk.when_told = [&desk](const QString& what) {
        if (what == "start 1") desk.accept(); // a box of the first round lets events through
    };
    desk.accept();
    QCOMPARE(desk.told, QStringList({"start 1", "status"}));
}

void tst_systemspiel_dialog::a_dialog_deleted_by_a_start_is_left_alone()
{
    system_desk desk;
    desk.open();
    desk.choose_system(PLAYER_1, "one.syf");
    desk.choose_system(PLAYER_2, "two.syf");
    desk.when_told = [&desk](const QString&) { desk.dialog.reset(); };
    QVERIFY(QMetaObject::invokeMethod(desk.dialog.get(), "on_buttonBox_accepted"));
    QCOMPARE(desk.told, QStringList("start 1"));
}

void tst_systemspiel_dialog::the_language_changes_live()
{
    system_desk desk;
    desk.settings.set_s_user_sys_file(PLAYER_1, place_of("one.syf"));
    desk.open();
    desk.dialog->setWindowTitle({});
    desk.system_edit(PLAYER_2).setText({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(desk.dialog.get(), &change);
    QCOMPARE(desk.dialog->windowTitle(), QString("Systemspiel"));
    QCOMPARE(desk.system_edit(PLAYER_1).text(), QString("one.syf"));
    QCOMPARE(desk.system_edit(PLAYER_2).text(), no_file);
}

void tst_systemspiel_dialog::nothing_is_clipped_at_any_scale_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("full") << 0;
    QTest::newRow("0.1") << 1;
    QTest::newRow("0.2") << 2;
    QTest::newRow("0.3") << 3;
}

void tst_systemspiel_dialog::nothing_is_clipped_at_any_scale()
{
    QFETCH(int, step);
    system_desk desk;
    desk.settings.set_s_scr_res_factor(step);
    desk.open();
    QCoreApplication::processEvents();
    const auto children = desk.dialog->findChildren<QWidget*>();
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
    return run_window_test<tst_systemspiel_dialog>(argc, argv);
}

#include "tst_systemspiel_dialog.moc"
