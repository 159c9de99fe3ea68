#include "desktop_bench.h"
#include "load_files_option.h"
#include "systemgame_monitor.h"
#include "systemspiel_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>

/// What makes the table a well-behaved window: keys, dropped and recent files, places of windows.
class tst_files_and_keys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void every_regular_action_has_a_key_of_its_own();
    void the_keys_play_the_game();
    void keys_choose_the_player();
    void a_dropped_system_waits_in_the_system_dialog();
    void a_dropped_load_file_waits_in_the_load_menu_data();
    void a_dropped_load_file_waits_in_the_load_menu();
    void a_load_file_in_a_running_game_is_refused();
    void other_files_are_not_taken();
    void a_played_load_file_can_be_taken_again();
    void a_system_and_its_protocol_can_be_taken_again();
    void the_table_comes_back_where_it_stood();
    void open_monitors_come_back();
    void a_statistic_window_opens_where_it_stood();

private:
    static void write(const QString& name, const QByteArray& text);
    static void drop(const desktop_bench& bench, const QString& path);
    void play_load_file(const desktop_bench& bench);

    box_user user;
};

namespace
{

const QByteArray quiet_system = "ST:\nSZ EC03;\nVE:\nSZ EC03;\nGW:\nSZ EC03;\n";

void accept(QWidget* dialog)
{
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

void cancel(QWidget* dialog)
{
    qobject_cast<QDialog*>(dialog)->reject();
}

QStringList entries_of(const desktop_bench& bench, const char* menu)
{
    QStringList texts;
    auto* const shown = bench.child<QMenu>(menu);
    emit qobject_cast<QMenu*>(shown->parentWidget())->aboutToShow();
    const auto actions = shown->actions();
    for (const QAction* action : actions)
        texts.append(action->text());
    return texts;
}

} // namespace

void tst_files_and_keys::init()
{
    user.forget();
    QFile::remove("zarvello_desktop.ini");
    write("quiet.syf", quiet_system);
    write("three.inp", "1 2 3\n");
    write("all.snp", "three.inp\n");
}

void tst_files_and_keys::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.dialogs_left(), 0);
    QCOMPARE(user.answers_left(), 0);
}

void tst_files_and_keys::write(const QString& name, const QByteArray& text)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly)) qFatal("can't write a file");
    file.write(text);
}

void tst_files_and_keys::drop(const desktop_bench& bench, const QString& path)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QDir::current().absoluteFilePath(path))});
    QDragEnterEvent enter({10, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(bench.window.get(), &enter);
    if (!enter.isAccepted()) return;
    QDropEvent event(QPointF(10, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bench.window.get(), &event);
    bench.settle();
}

void tst_files_and_keys::every_regular_action_has_a_key_of_its_own()
{
    const desktop_bench bench;
    QHash<QString, QString> owners;
    const auto menus = bench.child<QMenuBar>("menubar")->findChildren<QMenu*>();
    int keys = 0;
    for (const QMenu* menu : menus) {
        const auto actions = menu->actions();
        for (const QAction* action : actions) {
            const auto shortcuts = action->shortcuts();
            for (const QKeySequence& key : shortcuts) {
                const QString text = key.toString();
                QVERIFY2(!owners.contains(text), qPrintable(text + " " + action->objectName()));
                owners.insert(text, action->objectName());
                ++keys;
            }
        }
    }
    QVERIFY(keys > 30);
    for (const char* name : {"actionStart",
                             "actionPause",
                             "actionStop",
                             "actionReset",
                             "actionWurf",
                             "actionZahl_waehlen",
                             "actionJetons_abraeumen",
                             "actionWiederholen",
                             "actionSuperkurzspiel",
                             "actionOptionen",
                             "actionBeenden",
                             "actionLadedateien",
                             "actionNeue_Datei",
                             "actionDatei_oeffnen",
                             "actionAktuelle_Permanenz",
                             "actionJahrespermanenz",
                             "actionHistory_laden",
                             "actionSystemspiel",
                             "actionHilfe"}) {
        QVERIFY2(!bench.child<QAction>(name)->shortcut().isEmpty(), name);
    }
}

void tst_files_and_keys::the_keys_play_the_game()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL17);
    QCOMPARE(bench.table().seeded(general_player::PLAYER_1), qint64(1));
    bench.trigger("actionJetons_abraeumen");
    QCOMPARE(bench.table().seeded(general_player::PLAYER_1), qint64(0));
    bench.trigger("actionWiederholen");
    QVERIFY(bench.child<QPushButton>("PB_replay")->isChecked());
    bench.trigger("actionWiederholen");
    bench.numbers().set_manual_number(17);
    bench.trigger("actionWurf");
    bench.settle();
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({17}));
    user.with_dialog("wheel_number_selection", [](QWidget* dialog) { cancel(dialog); });
    bench.trigger("actionZahl_waehlen");
}

void tst_files_and_keys::keys_choose_the_player()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.trigger("actionSpieler_3");
    QCOMPARE(bench.table().active_player(), general_player::PLAYER_3);
    bench.trigger("actionSpieler_1");
    QCOMPARE(bench.table().active_player(), general_player::PLAYER_1);
}

void tst_files_and_keys::a_dropped_system_waits_in_the_system_dialog()
{
    const desktop_bench bench;
    QString offered;
    bool is_on = false;
    user.with_dialog("systemspiel_dialog", [&](QWidget* dialog) {
        bench.settle();
        offered = child_of<QLineEdit>(*dialog, "LE_system_game_file_1")->text();
        is_on = child_of<QCheckBox>(*dialog, "CB_system_game_activ_1")->isChecked();
        cancel(dialog);
    });
    drop(bench, "quiet.syf");
    QVERIFY2(offered.endsWith("quiet.syf"), qPrintable(offered));
    QVERIFY(is_on);
    QVERIFY(bench.settings().s_user_sys_file(general_player::PLAYER_1).isEmpty());
}

void tst_files_and_keys::a_dropped_load_file_waits_in_the_load_menu_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("field");
    QTest::newRow("a load file") << "three.inp"
                                 << "LE_loadfile_main";
    QTest::newRow("a collection") << "all.snp"
                                  << "LE_loadfile_group";
}

void tst_files_and_keys::a_dropped_load_file_waits_in_the_load_menu()
{
    QFETCH(QString, file);
    QFETCH(QString, field);
    const desktop_bench bench;
    QString offered;
    user.with_dialog("load_files_option", [&](QWidget* dialog) {
        bench.settle();
        offered = child_of<QLineEdit>(*dialog, field)->text();
        cancel(dialog);
    });
    drop(bench, file);
    QVERIFY2(offered.endsWith(file), qPrintable(offered));
    QVERIFY(!bench.numbers().load_active());
}

void tst_files_and_keys::a_load_file_in_a_running_game_is_refused()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    user.answer(QMessageBox::Ok);
    drop(bench, "three.inp");
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.boxes().at(0).text,
             QStringLiteral("Eine Ladedatei kann nur gewählt werden, solange kein Spiel läuft."));
}

void tst_files_and_keys::other_files_are_not_taken()
{
    const desktop_bench bench;
    write("picture.png", "no picture");
    drop(bench, "picture.png");
    QVERIFY(user.boxes().isEmpty());
    QVERIFY(!bench.child<load_files_option>("load_files_option")->isVisible());
}

/// The dialog keeps the dropped file; it is accepted when its numbers are counted.
void tst_files_and_keys::play_load_file(const desktop_bench& bench)
{
    user.with_dialog("load_files_option", [](QWidget* dialog) { cancel(dialog); });
    drop(bench, "three.inp");
    user.with_dialog("load_files_option", [](QWidget* dialog) { accept(dialog); });
    bench.trigger("actionLadedateien");
}

void tst_files_and_keys::a_played_load_file_can_be_taken_again()
{
    const desktop_bench bench;
    QVERIFY(!bench.child<QMenu>("menuZuletzt_Ladedateien")->menuAction()->isEnabled());
    play_load_file(bench);
    QVERIFY(bench.numbers().load_active());
    QCOMPARE(entries_of(bench, "menuZuletzt_Ladedateien"), QStringList("&1  three.inp"));

    bool was_shown = false;
    user.with_dialog("load_files_option", [&](QWidget* dialog) {
        was_shown = true;
        cancel(dialog);
    });
    bench.child<QMenu>("menuZuletzt_Ladedateien")->actions().at(0)->trigger();
    QVERIFY(was_shown);
}

void tst_files_and_keys::a_system_and_its_protocol_can_be_taken_again()
{
    const desktop_bench bench;
    bench.settings().set_s_user_out_file(general_player::PLAYER_1, QStringLiteral("./quiet.out"));
    user.with_dialog("systemspiel_dialog", [&](QWidget* dialog) {
        bench.settle();
        child_of<QCheckBox>(*dialog, "CB_system_out_activ_1")->setChecked(true);
        accept(dialog);
    });
    drop(bench, "quiet.syf");
    QCOMPARE(entries_of(bench, "menuZuletzt_Systeme"), QStringList("&1  quiet.syf"));
    bench.trigger("actionStart");
    bench.play(3);
    QCOMPARE(entries_of(bench, "menuZuletzt_Protokolle"), QStringList("&1  quiet.out"));

    bench.child<QMenu>("menuZuletzt_Protokolle")->actions().at(0)->trigger();
    bench.settle();
    QWidget* editor = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->inherits("editor_window") && window->isVisible()) editor = window;
    QVERIFY(editor);
    QVERIFY(editor->findChild<QPlainTextEdit*>()->isReadOnly());
    QVERIFY2(editor->windowTitle().contains("quiet.out"), qPrintable(editor->windowTitle()));
}

void tst_files_and_keys::the_table_comes_back_where_it_stood()
{
    {
        const desktop_bench bench;
        bench.window->move(40, 30);
        bench.window->hide();
    }
    const desktop_bench bench;
    QCOMPARE(bench.window->pos(), QPoint(40, 30));
}

void tst_files_and_keys::open_monitors_come_back()
{
    {
        const desktop_bench bench;
        bench.trigger("actionSysMonitor_2");
        bench.child<systemgame_monitor>("systemgame_monitor_2")->move(90, 80);
        bench.trigger("actionBeenden");
    }
    const desktop_bench bench;
    auto* const second = bench.child<systemgame_monitor>("systemgame_monitor_2");
    QVERIFY(second->isVisible());
    QCOMPARE(second->pos(), QPoint(90, 80));
    QVERIFY(bench.child<QAction>("actionSysMonitor_2")->isChecked());
    QVERIFY(!bench.child<systemgame_monitor>("systemgame_monitor_1")->isVisible());
}

void tst_files_and_keys::a_statistic_window_opens_where_it_stood()
{
    const desktop_bench bench;
    bench.trigger("actionSerien");
    bench.child<QDialog>("table_statistic_serie")->move(70, 60);
    bench.trigger("actionSerien"); // the same window with fresh figures
    QCOMPARE(bench.child<QDialog>("table_statistic_serie")->pos(), QPoint(70, 60));
    bench.child<QDialog>("table_statistic_serie")->close();
    bench.settle();
    bench.trigger("actionSerien");
    QCOMPARE(bench.child<QDialog>("table_statistic_serie")->pos(), QPoint(70, 60));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_files_and_keys>(argc, argv);
}

#include "tst_files_and_keys.moc"
