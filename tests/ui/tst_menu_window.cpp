#include "menu_window.h"
#include "setting.h"
#include "window_bench.h"

#include <QMenu>
#include <QSignalSpy>

using namespace general_loadfile;
using namespace general_player;

namespace
{

/// The menus as the main window has them.
struct menu_desk {
    menu_desk()
    {
        menu_Window::load_file_actions actions{};
        for (QAction*& action : actions) {
            action = new QAction(&owner);
            load_actions.append(action);
        }
        system_menu.setEnabled(false);
        entries = std::make_unique<menu_Window>(system_menu, actions, settings);
    }

    QAction& system_action(int number)
    {
        return *child_of<QAction>(*entries, QString("actionSystemdatei_%1").arg(number));
    }
    QStringList visible_system_texts()
    {
        QStringList texts;
        const auto actions = system_menu.actions();
        for (const QAction* action : actions)
            if (action->isVisible()) texts.append(action->text());
        return texts;
    }

    QObject owner;
    QMenu system_menu;
    QVector<QAction*> load_actions;
    setting settings;
    std::unique_ptr<menu_Window> entries;
};

} // namespace

class tst_menu_window : public QObject
{
    Q_OBJECT

private slots:
    void it_begins_without_files();
    void load_files_carry_their_names();
    void a_collection_fills_nine_entries();
    void a_gap_is_disabled();
    void an_ampersand_is_no_mnemonic();
    void system_files_carry_their_names();
    void the_entries_outlive_a_change();
    void the_entries_tell_what_to_open();
    void the_language_changes_live();
};

void tst_menu_window::it_begins_without_files()
{
    menu_desk desk;
    QCOMPARE(desk.load_actions[0]->text(), QString("Hauptladedatei"));
    QCOMPARE(desk.load_actions[1]->text(), QString("Folgeladedatei 1"));
    QCOMPARE(desk.load_actions[8]->text(), QString("Folgeladedatei 8"));
    for (const QAction* action : qAsConst(desk.load_actions))
        QVERIFY(!action->isEnabled());
    QVERIFY(desk.visible_system_texts().isEmpty());
    QVERIFY(!desk.system_menu.isEnabled());
    QVERIFY(desk.entries->isHidden());
}

void tst_menu_window::load_files_carry_their_names()
{
    menu_desk desk;
    desk.entries->show_load_files({"/a/main.inp", "folder/next.inp", "", "", "", "", "", "", ""});
    QCOMPARE(desk.load_actions[0]->text(), QString("Hauptladedatei (main.inp)"));
    QCOMPARE(desk.load_actions[1]->text(), QString("Folgeladedatei 1 (next.inp)"));
    QCOMPARE(desk.load_actions[2]->text(), QString("Folgeladedatei 2"));
    QVERIFY(desk.load_actions[0]->isEnabled() && desk.load_actions[1]->isEnabled());
    QVERIFY(!desk.load_actions[2]->isEnabled());

    desk.entries->show_load_files(empty_file_places());
    QCOMPARE(desk.load_actions[0]->text(), QString("Hauptladedatei"));
    QVERIFY(!desk.load_actions[0]->isEnabled());
}

void tst_menu_window::a_collection_fills_nine_entries()
{
    menu_desk desk;
    QStringList files;
    for (int i = 0; i < 12; ++i)
        files.append(QString("file%1.inp").arg(i));
    desk.entries->show_load_files(files);
    QCOMPARE(desk.load_actions[8]->text(), QString("Folgeladedatei 8 (file8.inp)"));
    QVERIFY(desk.load_actions[8]->isEnabled());
}

void tst_menu_window::a_gap_is_disabled()
{
    menu_desk desk;
    desk.entries->show_load_files({"", "next.inp"});
    QVERIFY(!desk.load_actions[0]->isEnabled());
    QVERIFY(desk.load_actions[1]->isEnabled());
}

void tst_menu_window::an_ampersand_is_no_mnemonic()
{
    menu_desk desk;
    desk.entries->show_load_files({"/a&b/red & black.inp"});
    QCOMPARE(desk.load_actions[0]->text(), QString("Hauptladedatei (red && black.inp)"));
}

void tst_menu_window::system_files_carry_their_names()
{
    menu_desk desk;
    desk.settings.set_s_user_sys_file(PLAYER_2, "/system/second.syf");
    desk.settings.set_s_user_sys_file(PLAYER_4, "fourth.syf");
    desk.entries->show_system_files();
    QCOMPARE(desk.visible_system_texts(),
             QStringList({"Spieler 2 (second.syf)", "Spieler 4 (fourth.syf)"}));
    QVERIFY(desk.system_menu.isEnabled());

    desk.settings.set_s_user_sys_file(PLAYER_2, {});
    desk.settings.set_s_user_sys_file(PLAYER_4, {});
    desk.entries->show_system_files();
    QVERIFY(desk.visible_system_texts().isEmpty());
    QVERIFY(!desk.system_menu.isEnabled());
}

void tst_menu_window::the_entries_outlive_a_change()
{
    menu_desk desk;
    const QPointer<QAction> entry(&desk.system_action(1));
    desk.settings.set_s_user_sys_file(PLAYER_1, "one.syf");
    desk.entries->show_system_files();
    desk.settings.set_s_user_sys_file(PLAYER_1, "two.syf");
    desk.entries->show_system_files();
    QVERIFY(entry);
    QCOMPARE(entry->text(), QString("Spieler 1 (two.syf)"));
    QCOMPARE(desk.system_menu.actions().size(), 4);
    desk.entries.reset();
    QVERIFY(desk.system_menu.actions().isEmpty());
}

void tst_menu_window::the_entries_tell_what_to_open()
{
    menu_desk desk;
    desk.entries->show_load_files({"main.inp", "next.inp"});
    desk.settings.set_s_user_sys_file(PLAYER_3, "third.syf");
    desk.entries->show_system_files();
    qRegisterMetaType<loadfile_type>();
    qRegisterMetaType<player_names>();
    QSignalSpy load_files(desk.entries.get(), &menu_Window::open_load_file);
    QSignalSpy system_files(desk.entries.get(), &menu_Window::open_system_file);
    desk.load_actions[0]->trigger();
    desk.load_actions[1]->trigger();
    desk.system_action(3).trigger();
    QCOMPARE(load_files.size(), 2);
    QCOMPARE(load_files[0].first().value<loadfile_type>(), MAIN_LOADFILE);
    QCOMPARE(load_files[1].first().value<loadfile_type>(), FOLLOW_LOADFILE_1);
    QCOMPARE(system_files.size(), 1);
    QCOMPARE(system_files[0].first().value<player_names>(), PLAYER_3);
}

void tst_menu_window::the_language_changes_live()
{
    menu_desk desk;
    desk.entries->show_load_files({"main.inp"});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(desk.entries.get(), &change);
    desk.load_actions[0]->setText("Hauptladedatei"); // by the form that owns the action
    QCoreApplication::processEvents();
    QCOMPARE(desk.load_actions[0]->text(), QString("Hauptladedatei (main.inp)"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_menu_window>(argc, argv);
}

#include "tst_menu_window.moc"
