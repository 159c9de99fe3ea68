#ifndef EVERY_WINDOW_H
#define EVERY_WINDOW_H

#include "desktop_bench.h"
#include "download_update_dialog.h"
#include "editor_window.h"
#include "file_dialog.h"
#include "table_regions.h"

/// Opens every window and dialog of the program, one at a time, as the user comes to it, and hands
/// it to a look; behind the look it is closed again.
class every_window
{
public:
    using look = std::function<void(QWidget&)>;

    every_window(const desktop_bench& used_bench, box_user& answering_user)
        : bench(used_bench)
        , user(answering_user)
    {
    }

    static QStringList names() { return ways().keys(); }

    /// @param name  one of the names
    void open(const QString& name, const look& with_window)
    {
        const opening way = ways().value(name);
        if (!way) qFatal("there is no window \"%s\"", qPrintable(name));
        (this->*way)(name, counted(with_window));
        if (looks != 1) qFatal("the window \"%s\" was shown %d times", qPrintable(name), looks);
    }

private:
    using opening = void (every_window::*)(const QString& name, const look& with_window);

    static QMap<QString, opening> ways()
    {
        using self = every_window;
        QMap<QString, opening> all = {
            {"table", &self::table},
            {"table in a game", &self::table_in_a_game},
            {"Options", &self::dialog<&self::to_options>},
            {"load_files_option", &self::dialog<&self::to_load_menu>},
            {"systemspiel_dialog", &self::dialog<&self::to_systems>},
            {"Dialog_Select_Number", &self::dialog<&self::to_announcements>},
            {"wheel_number_selection", &self::dialog<&self::to_number_choice>},
            {"dialog_supershort_game_counter", &self::dialog<&self::to_short_game>},
            {"history_dialog", &self::dialog<&self::to_history>},
            {"actual_permanence", &self::dialog<&self::to_permanence>},
            {"year_file_permanenz", &self::dialog<&self::to_year_permanence>},
            {"editor_window", &self::editor},
            {"systemgame_monitor_1", &self::monitor},
            {"download_update_dialog", &self::download},
            {"download that failed", &self::failed_download},
            {"information", &self::box<&self::to_information>},
            {"question", &self::box<&self::to_question>},
            {"error of a system", &self::box<&self::to_system_error>},
        };
        const auto statistics = statistic_actions().keys();
        for (const QString& name : statistics)
            all.insert(name, &self::statistic);
        return all;
    }

    static QMap<QString, const char*> statistic_actions()
    {
        return {
            {"table_statistic_base_hits", "actionWie_oft"},
            {"table_statistic_base_since", "actionSeit_wann"},
            {"table_statistic_extended_hits", "actionAnnoncen_wie_oft"},
            {"table_statistic_extended_since", "actionAnnoncen_seit_wann"},
            {"table_statistic_serie", "actionSerien"},
            {"table_frequency", "actionHaeufigkeit"},
            {"table_follow_number", "actionFolgezahlen"},
            {"chart_statistic_hits", "actionBalken_wie_oft"},
            {"chart_statistic_since", "actionBalken_seit_wann"},
            {"chart_statistic_player", "actionSpielerstatistik"},
            {"wheel_distribution", "actionKesselverteilung"},
            {"muster_statistic", "actionFigurenverlauf"},
            {"muster_statistic_serien", "actionFigurenstatistik"},
        };
    }

    look counted(const look& with_window)
    {
        return [this, with_window](QWidget& window) {
            ++looks;
            bench.settle();
            with_window(window);
        };
    }

    // ---- the table

    void table(const QString&, const look& with_window) { with_window(*bench.window); }

    void table_in_a_game(const QString&, const look& with_window)
    {
        play_some_coups();
        for (const auto jeton : {jetons::PL17, jetons::EC03, jetons::DZ02, jetons::CH20})
            bench.click(jeton);
        with_window(*bench.window);
    }

    void play_some_coups() const
    {
        bench.trigger("actionStart");
        for (const int number : {17, 0, 32, 17, 5, 36})
            bench.play(number);
        bench.wait_for_statistic();
    }

    // ---- modal dialogs, which are named as their class

    template <void (every_window::*go)()>
    void dialog(const QString& name, const look& with_window)
    {
        user.with_dialog(qPrintable(name), [with_window](QWidget* window) {
            with_window(*window);
            qobject_cast<QDialog*>(window)->reject();
        });
        (this->*go)();
        bench.settle();
    }

    void to_options() { bench.trigger("actionOptionen"); }
    void to_load_menu() { bench.trigger("actionLadedateien"); }
    void to_systems() { bench.trigger("actionSystemspiel"); }
    void to_number_choice() { bench.trigger("actionZahl_waehlen"); }
    void to_history() { bench.trigger("actionHistory_laden"); }
    void to_year_permanence() { bench.trigger("actionJahrespermanenz"); }

    void to_announcements()
    {
        bench.trigger("actionStart");
        QPoint row(1, 1);
        const QSize size = bench.window->size();
        while (announcement_dialog_at(row, bench.reduction()) == jetons::NO_EXT_JETON) {
            row.rx() += 4;
            if (row.x() >= size.width()) row = {1, row.y() + 4};
            if (row.y() >= size.height()) qFatal("the table has no announcements");
        }
        bench.press_table(row + QPoint(2, 2));
    }

    void to_short_game()
    {
        bench.trigger("actionStart");
        bench.trigger("actionSuperkurzspiel");
    }

    void to_permanence()
    {
        play_some_coups();
        bench.trigger("actionAktuelle_Permanenz");
    }

    // ---- windows beside the table

    /// A text with an error, a warning, and what searches and lists them.
    void editor(const QString&, const look& with_window)
    {
        write("odd.syf", "// a system\nST:\nSZ EC03;\nFOO BAR;\nVE:\nSZ EC03;\n");
        file_dialog::set_chooser([](const file_dialog::request&) {
            return QDir::current().absoluteFilePath(QStringLiteral("odd.syf"));
        });
        bench.trigger("actionDatei_oeffnen");
        file_dialog::set_chooser({});
        bench.settle();
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (!qobject_cast<editor_window*>(window) || !window->isVisible()) continue;
            child_of<QAction>(*window, QStringLiteral("actionReplace"))->trigger();
            child_of<QAction>(*window, QStringLiteral("actionCheck"))->trigger();
            with_window(*window);
            window->close();
        }
    }

    void monitor(const QString& name, const look& with_window)
    {
        bench.trigger("actionSysMonitor_1");
        play_some_coups();
        with_window(*bench.child<QWidget>(name));
    }

    void statistic(const QString& name, const look& with_window)
    {
        play_some_coups();
        bench.trigger(statistic_actions().value(name));
        auto* const window = bench.child<QDialog>(name);
        with_window(*window);
        window->close();
    }

    void download(const QString&, const look& with_window)
    {
        download_update_dialog window(QStringLiteral("V4.10.0"), bench.window.get());
        window.show();
        with_window(window);
    }

    /// A file lies where the folder of the download should be.
    void failed_download(const QString&, const look& with_window)
    {
        write("update", "no folder");
        user.with_dialog("download_update_dialog", [with_window](QWidget* window) {
            with_window(*window);
            window->close();
        });
        download_update_dialog(QStringLiteral("V4.10.0"), bench.window.get()).exec();
        QFile::remove("update");
    }

    // ---- boxes

    template <void (every_window::*go)()>
    void box(const QString&, const look& with_window)
    {
        user.looks_at_box = [with_window] { with_window(*QApplication::activeModalWidget()); };
        (this->*go)();
        bench.settle();
        user.looks_at_box = {};
    }

    void to_information()
    {
        user.answer(QMessageBox::Ok);
        bench.trigger("actionInfo");
    }

    void to_question()
    {
        user.answer(QMessageBox::No);
        bench.trigger("actionReset");
    }

    void to_system_error()
    {
        write("wrong.syf", "ST:\nSZ EC99;\nVE:\nSZ EC03;\nGW:\nSZ EC03;\n");
        bench.settings().set_s_user_sys_file(general_player::PLAYER_1,
                                             QStringLiteral("./wrong.syf"));
        bench.trigger("actionStart");
        user.answer(QMessageBox::No);
        QMetaObject::invokeMethod(bench.window.get(),
                                  "dia_system_start",
                                  Q_ARG(general_player::player_names, general_player::PLAYER_1));
        bench.play(1);
    }

    static void write(const QString& name, const QByteArray& text)
    {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly)) qFatal("can't write a file");
        file.write(text);
    }

    const desktop_bench& bench;
    box_user& user;
    int looks = 0;
};

#endif // EVERY_WINDOW_H
