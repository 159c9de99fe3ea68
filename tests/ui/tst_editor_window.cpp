#include "editor_window.h"
#include "file_dialog.h"
#include "numberstorage.h"
#include "players_control.h"
#include "setting.h"
#include "window_bench.h"
#include "zv_editor.h"

#include <QComboBox>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFontComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTranslator>
#include <QTreeWidget>

#include <memory>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using system_status::sys_error_infos;

Q_DECLARE_METATYPE(edit_mode)

namespace
{

const QString close_question = "Sollen die Änderungen gespeichert werden?";
const QString system_question = "Die aktive Systemspieldatei wurde geändert - Änderungen "
                                "übernehmen und System neu starten?";
const QString load_question = "Die aktive Hauptladedatei wurde geändert - Änderungen übernehmen "
                              "und Hauptladedatei neu laden?";

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(path));
    }
}

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

/// An editor window with a world of its own and a user who answers it.
struct editor_desk {
    editor_desk()
    {
        file_dialog::set_chooser([this](const file_dialog::request& what) {
            requests.append(what);
            return chosen;
        });
        settings.set_s_user_sys_file_1("one.syf");
        settings.set_s_user_sys_file_2("two.SYF");
        settings.set_s_user_out_file_1("one.out");
        write("one.syf", "ST:\nSZ EC03;\nAL:\nSZ EC03,EC03;\n");
        write("two.SYF", "AL:\nSZ EC01;\n");
        write("one.out", "1. Coup\n");
        write("main.inp", "1\n2\n3\n");
        write("follow.inp", "4\n5\n");
    }
    ~editor_desk() { file_dialog::set_chooser({}); }

    void open(edit_mode mode = edit_mode::system_file,
              general_player::player_names player = PLAYER_1,
              general_loadfile::loadfile_type place = general_loadfile::FOLLOW_LOADFILE_1)
    {
        window = std::make_unique<editor_window>(
            mode, player, settings, players, numbers, nullptr, place);
        window->set_check([this](const QString& text, const system_pattern&) {
            checked.append(text);
            return found;
        });
        window->show();
    }
    void open_file(const QString& path)
    {
        chosen = path;
        open(edit_mode::open_file);
    }
    void open_error(const sys_error_infos& error)
    {
        window = std::make_unique<editor_window>(error, PLAYER_1, settings, players, numbers);
        window->show();
        QCoreApplication::processEvents();
    }
    void play_load_files()
    {
        load_file_settings run;
        run.active = true;
        run.files[0] = "main.inp";
        run.files[1] = "follow.inp";
        numbers.set_load_files(run);
    }

    ZV_Editor& editor() { return *child_of<ZV_Editor>(*window, "editor"); }
    QAction& action(const char* name) { return *child_of<QAction>(*window, name); }
    void trigger(const char* name) { action(name).trigger(); }
    bool is_enabled(const char* name) { return action(name).isEnabled(); }
    QString label(const char* name) { return child_of<QLabel>(*window, name)->text(); }
    QTimer* timer(const char* name) { return child_of<QTimer>(*window, name); }
    void load_all()
    {
        while (window->is_loading())
            fire(timer("load_timer"));
    }
    void write_text(const QString& text)
    {
        QTest::keyClicks(&editor(), text);
        QCoreApplication::processEvents();
    }
    bool is_changed() { return is_enabled("actionSpeichern"); }
    bool has_colours()
    {
        QCoreApplication::processEvents();
        for (QTextBlock block = editor().document()->begin(); block.isValid(); block = block.next())
            if (!block.layout()->formats().isEmpty()) return true;
        return false;
    }
    QStringList titles() const
    {
        QStringList all;
        for (const shown_box& box : user.boxes())
            all.append(box.title);
        return all;
    }
    QStringList questions() const
    {
        QStringList all;
        for (const shown_box& box : user.boxes())
            all.append(box.text);
        return all;
    }

    setting settings;
    players_control players{settings};
    numberStorage numbers{settings};
    QString chosen;
    QVector<file_dialog::request> requests;
    QStringList checked;
    QVector<system_finding> found;
    box_user user;
    std::unique_ptr<editor_window> window;
};

bool has_underline(const QTextBlock& block)
{
    for (auto place = block.begin(); !place.atEnd(); ++place)
        if (place.fragment().charFormat().underlineStyle() != QTextCharFormat::NoUnderline)
            return true;
    return false;
}

} // namespace

class tst_editor_window : public QObject
{
    Q_OBJECT

private slots:
    void a_mode_opens_its_text_data();
    void a_mode_opens_its_text();
    void follow_files_are_told_by_their_place();
    void a_new_file_is_named_first();
    void a_file_is_asked_for();
    void no_name_gives_an_empty_text_data();
    void no_name_gives_an_empty_text();
    void a_missing_file_gives_an_empty_text();
    void a_protocol_is_read_only();
    void the_actions_carry_their_texts_data();
    void the_actions_carry_their_texts();
    void colours_follow_the_suffix_data();
    void colours_follow_the_suffix();
    void colours_are_switched();
    void the_fonts_come_from_the_settings();
    void the_fonts_go_to_the_settings();

    void a_file_keeps_its_form_data();
    void a_file_keeps_its_form();
    void what_latin_1_lacks_is_saved_all_the_same();
    void a_failed_save_is_told();

    void opening_is_no_change();
    void colours_are_no_change();
    void undo_takes_the_change_back();
    void saving_ends_the_change();
    void a_running_system_is_restarted_data();
    void a_running_system_is_restarted();
    void other_systems_are_left_alone_data();
    void other_systems_are_left_alone();
    void the_load_file_in_play_is_read_again_data();
    void the_load_file_in_play_is_read_again();
    void a_load_file_without_load_mode_is_saved();
    void save_as_takes_the_new_name();
    void save_as_can_be_cancelled();
    void new_saves_and_empties();
    void open_saves_and_opens();
    void an_unsaved_text_is_kept_data();
    void an_unsaved_text_is_kept();

    void an_unchanged_text_closes_without_a_question();
    void a_changed_text_asks_at_its_close_data();
    void a_changed_text_asks_at_its_close();
    void a_text_without_a_name_is_named_at_its_close();
    void a_text_given_up_is_not_asked_about_again();

    void an_error_is_shown_and_marked();
    void an_error_beyond_the_text_is_only_shown();
    void a_change_in_its_line_takes_the_mark_off();
    void undo_keeps_the_mark_that_it_brings_back();
    void the_cursor_moves_to_the_error();

    void findings_come_half_a_second_behind_the_last_key();
    void findings_are_listed();
    void a_finding_is_gone_to();
    void only_systems_are_checked();
    void a_huge_system_is_checked_on_demand();

    void texts_are_found_data();
    void texts_are_found();
    void texts_are_replaced();
    void all_are_replaced_in_one_step();
    void a_protocol_is_searched_but_not_replaced();
    void a_line_is_gone_to();
    void a_dropped_file_is_opened();
    void what_is_no_file_is_not_dropped();

    void a_long_text_comes_in_parts();
    void a_long_text_is_coloured_where_it_is_read();
    void the_error_of_a_long_text_waits();
    void several_windows_are_open();
    void the_language_changes_live();
    void nothing_is_clipped();
};

void tst_editor_window::a_mode_opens_its_text_data()
{
    QTest::addColumn<edit_mode>("mode");
    QTest::addColumn<int>("player");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("is_read_only");
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    row("system") << edit_mode::system_file << 0 << "ST:\nSZ EC03;\nAL:\nSZ EC03,EC03;\n"
                  << "one.syf" << false;
    row("system of 2") << edit_mode::system_file << 1 << "AL:\nSZ EC01;\n"
                       << "two.SYF" << false;
    row("protocol") << edit_mode::protocol_file << 0 << "1. Coup\n"
                    << "one.out (schreibgeschützt)" << true;
    row("main") << edit_mode::main_load_file << 0 << "1\n2\n3\n"
                << "main.inp" << false;
    row("follow") << edit_mode::follow_load_file << 0 << "4\n5\n"
                  << "follow.inp" << false;
    row("new") << edit_mode::new_file << 0 << ""
               << "two.SYF" << false;
    row("open") << edit_mode::open_file << 0 << "AL:\nSZ EC01;\n"
                << "two.SYF" << false;
}

void tst_editor_window::a_mode_opens_its_text()
{
    QFETCH(edit_mode, mode);
    QFETCH(int, player);
    QFETCH(QString, text);
    QFETCH(QString, title);
    QFETCH(bool, is_read_only);
    editor_desk desk;
    desk.play_load_files();
    desk.chosen = "two.SYF";
    desk.open(mode, static_cast<general_player::player_names>(player));
    QCOMPARE(desk.editor().text(), text);
    QCOMPARE(desk.window->windowTitle(), title);
    QCOMPARE(desk.editor().isReadOnly(), is_read_only);
    QVERIFY(!desk.is_changed());
}

void tst_editor_window::follow_files_are_told_by_their_place()
{
    editor_desk desk;
    load_file_settings run;
    run.active = true;
    run.files[0] = "main.inp";
    run.files[1] = "main.inp";
    run.files[8] = "follow.inp";
    desk.numbers.set_load_files(run);
    desk.open(edit_mode::follow_load_file, PLAYER_1, general_loadfile::FOLLOW_LOADFILE_8);
    QCOMPARE(desk.window->windowTitle(), QString("follow.inp"));
}

static QString expected_filter(int blanks)
{
    const QString gap = ";;" + QString(blanks, ' ');
    return "Systemspieldateien (*.syf)" + gap + "Systemprotokolldateien (*.out)" + gap +
           "Ladedateien (*.inp)" + gap + "Sammelladedateien (*.snp)" + gap +
           "Text Dateien (*.txt)" + gap + "Alle Dateien (*.*)";
}

void tst_editor_window::a_new_file_is_named_first()
{
    editor_desk desk;
    desk.chosen = "fresh.syf";
    desk.open(edit_mode::new_file);
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests[0].title, QString("Neue Datei"));
    QCOMPARE(desk.requests[0].folder, QDir::currentPath());
    QCOMPARE(desk.requests[0].filter, expected_filter(62));
    QVERIFY(!QFile::exists("fresh.syf"));
    desk.write_text("AL:");
    desk.trigger("actionSpeichern");
    QCOMPARE(content_of("fresh.syf"), QByteArray("AL:"));
    QCOMPARE(desk.requests.size(), 1);
}

void tst_editor_window::a_file_is_asked_for()
{
    editor_desk desk;
    desk.open_file("one.syf");
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests[0].title, QString("Datei öffnen"));
    QCOMPARE(desk.requests[0].folder, QDir::currentPath());
    QCOMPARE(desk.requests[0].filter, expected_filter(60));
}

void tst_editor_window::no_name_gives_an_empty_text_data()
{
    QTest::addColumn<edit_mode>("mode");
    QTest::newRow("new") << edit_mode::new_file;
    QTest::newRow("open") << edit_mode::open_file;
    QTest::newRow("no load file") << edit_mode::main_load_file;
}

void tst_editor_window::no_name_gives_an_empty_text()
{
    QFETCH(edit_mode, mode);
    editor_desk desk;
    desk.open(mode);
    QCOMPARE(desk.window->windowTitle(), QString("Neue Datei"));
    QCOMPARE(desk.window->file_path(), QString());
    QCOMPARE(desk.editor().text(), QString());
    desk.chosen = "named.txt";
    desk.write_text("a");
    desk.trigger("actionSpeichern");
    QCOMPARE(desk.requests.last().title, QString("Speichere unter..."));
    QCOMPARE(content_of("named.txt"), QByteArray("a"));
}

void tst_editor_window::a_missing_file_gives_an_empty_text()
{
    editor_desk desk;
    desk.settings.set_s_user_sys_file_1("away.syf");
    desk.open();
    QCOMPARE(desk.editor().text(), QString());
    QCOMPARE(desk.window->windowTitle(), QString("away.syf"));
}

void tst_editor_window::a_protocol_is_read_only()
{
    editor_desk desk;
    desk.open(edit_mode::protocol_file);
    for (const char* name : {"actionNeu", "action_ffnen", "actionSpeichern", "actionSave_as"})
        QVERIFY2(!desk.is_enabled(name), name);
    QVERIFY(!desk.is_enabled("actionSyntax_Highligther"));
    QVERIFY(desk.is_enabled("actionClose"));
    desk.write_text("x");
    QCOMPARE(desk.editor().text(), QString("1. Coup\n"));
    QVERIFY(desk.editor().extraSelections().isEmpty());
    QVERIFY(!desk.has_colours());
    desk.editor().setPlainText("other"); // even then
    QMetaObject::invokeMethod(desk.window.get(), "user_textChange");
    QVERIFY(!desk.is_changed());
    QVERIFY(desk.window->close());
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(content_of("one.out"), QByteArray("1. Coup\n"));
}

void tst_editor_window::the_actions_carry_their_texts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("new")      << "actionNeu"                << "Neu";
    QTest::newRow("open")     << "action_ffnen"             << "Öffnen...";
    QTest::newRow("save")     << "actionSpeichern"          << "Speichern";
    QTest::newRow("save as")  << "actionSave_as"            << "Speichern unter...";
    QTest::newRow("close")    << "actionClose"              << "Beenden";
    QTest::newRow("colours")  << "actionSyntax_Highligther" << "Syntax Highligther";
    QTest::newRow("cursor")   << "MoveCursor"               << "MoveCursor";
    QTest::newRow("check")    << "actionCheck"              << "Prüfen";
    // clang-format on
}

void tst_editor_window::the_actions_carry_their_texts()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    editor_desk desk;
    desk.open();
    QCOMPARE(child_of<QAction>(*desk.window, name)->text(), text);
    QCOMPARE(desk.label("LB_error"), QString("Error:"));
    QCOMPARE(child_of<QMenu>(*desk.window, "menuDatei")->title(), QString("Datei"));
}

void tst_editor_window::colours_follow_the_suffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("has_colours");
    QTest::newRow("system") << "a.syf" << true;
    QTest::newRow("capitals") << "a.SYF" << true;
    QTest::newRow("protocol") << "a.out" << false;
    QTest::newRow("load file") << "a.inp" << false;
    QTest::newRow("longer") << "a.syf.txt" << false;
    QTest::newRow("none") << "syf" << false;
}

void tst_editor_window::colours_follow_the_suffix()
{
    QFETCH(QString, name);
    QFETCH(bool, has_colours);
    editor_desk desk;
    write(name, "SZ EC03;");
    desk.open_file(name);
    QCOMPARE(desk.has_colours(), has_colours);
    QCOMPARE(desk.is_enabled("actionSyntax_Highligther"), has_colours);
    QCOMPARE(desk.action("actionSyntax_Highligther").isChecked(), has_colours);
    QCOMPARE(desk.is_enabled("actionCheck"), has_colours);

    // The next file decides anew.
    write("other.inp", "SZ");
    write("other.syf", "SZ");
    desk.chosen = has_colours ? "other.inp" : "other.syf";
    desk.trigger("action_ffnen");
    QCOMPARE(desk.has_colours(), !has_colours);
    QCOMPARE(desk.action("actionSyntax_Highligther").isChecked(), !has_colours);
}

void tst_editor_window::colours_are_switched()
{
    editor_desk desk;
    desk.open();
    desk.trigger("actionSyntax_Highligther");
    QVERIFY(!desk.has_colours());
    QVERIFY(!desk.action("actionSyntax_Highligther").isChecked());
    desk.trigger("actionSyntax_Highligther");
    QVERIFY(desk.has_colours());
    QVERIFY(desk.action("actionSyntax_Highligther").isChecked());
    desk.window->deactivate_highlighter();
    QVERIFY(!desk.has_colours());
    desk.window->activate_highlighter();
    QVERIFY(desk.has_colours());
    QVERIFY(!desk.is_changed());
}

void tst_editor_window::the_fonts_come_from_the_settings()
{
    editor_desk desk;
    desk.settings.set_s_editor_font("DejaVu Sans Mono");
    desk.settings.set_s_editor_font_size("14");
    desk.open();
    auto* fonts = child_of<QFontComboBox>(*desk.window, "COB_font");
    auto* sizes = child_of<QComboBox>(*desk.window, "COB_size");
    QCOMPARE(fonts->fontFilters(), QFontComboBox::FontFilters(QFontComboBox::MonospacedFonts));
    QCOMPARE(fonts->currentFont().family(), QString("DejaVu Sans Mono"));
    QStringList items;
    for (int i = 0; i < sizes->count(); ++i)
        items.append(sizes->itemText(i));
    QCOMPARE(items.join(' '), QString("72 48 36 28 26 24 22 20 18 16 14 12 11 10 9 8 7 6"));
    QCOMPARE(sizes->currentText(), QString("14"));
    QCOMPARE(desk.editor().font().pointSize(), 14);
    QCOMPARE(desk.editor().font().family(), QString("DejaVu Sans Mono"));

    const double small_tab = desk.editor().tabStopDistance();
    sizes->setCurrentText("28");
    QCOMPARE(desk.editor().font().pointSize(), 28);
    QVERIFY(desk.editor().tabStopDistance() > 1.8 * small_tab);
}

void tst_editor_window::the_fonts_go_to_the_settings()
{
    editor_desk desk;
    desk.open();
    QCOMPARE(child_of<QComboBox>(*desk.window, "COB_size")->currentText(), QString("8"));
    child_of<QComboBox>(*desk.window, "COB_size")->setCurrentText("11");
    QCOMPARE(desk.settings.s_editor_font_size(), QString("8"));
    desk.window->close();
    QCOMPARE(desk.settings.s_editor_font_size(), QString("11"));
    QCOMPARE(desk.settings.s_editor_font(),
             child_of<QFontComboBox>(*desk.window, "COB_font")->currentFont().family());
}

void tst_editor_window::a_file_keeps_its_form_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char* name,
                        const QByteArray& before,
                        const QString& text,
                        const QByteArray& after) {
        QTest::newRow(name) << before << text << after;
    };
    row("ASCII", "a\nb\n", "a\nb\n", "xa\nb\n");
    row("no line end", "a", "a", "xa");
    row("UTF-8", "\xC3\xA4\n", "ä\n", "x\xC3\xA4\n");
    row("Latin-1", "\xE4\n", "ä\n", "x\xE4\n");
    row("broken UTF-8", "\xC3\xA4\xE4", "Ã¤ä", "x\xC3\xA4\xE4");
    row("cut UTF-8", "a\xC3", "aÃ", "xa\xC3");
    row("UTF-8, mark", "\xEF\xBB\xBF\xC3\xA4", "ä", "\xEF\xBB\xBFx\xC3\xA4");
    row("UTF-16, mark", QByteArray("\xFF\xFE\xE4\0", 4), "ä", QByteArray("\xFF\xFEx\0\xE4\0", 6));
    row("CR LF", "a\r\nb\r\n", "a\nb\n", "xa\r\nb\r\n");
    row("CR", "a\rb\r", "a\nb\n", "xa\rb\r");
    row("mixed, most CR LF", "a\r\nb\r\nc\n", "a\nb\nc\n", "xa\r\nb\r\nc\r\n");
    row("mixed, most LF", "a\nb\nc\r\n", "a\nb\nc\n", "xa\nb\nc\n");
    row("hard blank", "\xC2\xA0", QString(QChar(0xa0)), "x\xC2\xA0");
    row("empty", "", "", "x");
}

void tst_editor_window::a_file_keeps_its_form()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, text);
    QFETCH(QByteArray, after);
    editor_desk desk;
    write("form.txt", before);
    desk.open_file("form.txt");
    QCOMPARE(desk.editor().text(), text);
    desk.write_text("x");
    desk.trigger("actionSpeichern");
    QCOMPARE(content_of("form.txt"), after);
}

void tst_editor_window::what_latin_1_lacks_is_saved_all_the_same()
{
    editor_desk desk;
    write("form.txt", "\xE4");
    desk.open_file("form.txt");
    QCOMPARE(desk.label("LB_form"), QString("Latin-1"));
    desk.editor().insertPlainText("€");
    desk.trigger("actionSpeichern");
    QCOMPARE(content_of("form.txt"), QByteArray("\xE2\x82\xAC\xC3\xA4"));
    QCOMPARE(desk.label("LB_form"), QString("UTF-8"));
}

void tst_editor_window::a_failed_save_is_told()
{
    editor_desk desk;
    QVERIFY(QDir().mkpath("gone"));
    write("gone/a.txt", "a");
    desk.open_file("gone/a.txt");
    desk.write_text("x");
    QVERIFY(QDir("gone").removeRecursively());
    desk.user.answer(QMessageBox::Ok);
    desk.trigger("actionSpeichern");
    QCOMPARE(desk.titles(), QStringList("Zarvello"));
    QVERIFY(desk.questions().first().contains("a.txt"));
    QCOMPARE(desk.editor().text(), QString("xa"));
    QVERIFY(desk.is_changed());

    // Closing with Yes does not lose the text either.
    desk.user.answer(QMessageBox::Yes);
    desk.user.answer(QMessageBox::Ok);
    QVERIFY(!desk.window->close());
    QVERIFY(desk.window->isVisible());
}

void tst_editor_window::opening_is_no_change()
{
    editor_desk desk;
    desk.open();
    QVERIFY(!desk.is_changed());
    QVERIFY(!desk.is_enabled("actionUndo"));
    QVERIFY(desk.is_enabled("actionSave_as"));
    desk.write_text("x");
    QVERIFY(desk.is_changed());
    QVERIFY(desk.is_enabled("actionSave_as"));
    QVERIFY(desk.is_enabled("actionUndo"));
}

void tst_editor_window::colours_are_no_change()
{
    editor_desk desk;
    desk.open();
    desk.timer("check_timer")->stop();
    desk.trigger("actionSyntax_Highligther");
    desk.trigger("actionSyntax_Highligther");
    QVERIFY(desk.has_colours());
    QVERIFY(!desk.is_changed());
    QVERIFY(!desk.timer("check_timer")->isActive());
}

void tst_editor_window::undo_takes_the_change_back()
{
    editor_desk desk;
    desk.open();
    desk.write_text("xy");
    desk.trigger("actionUndo");
    QVERIFY(!desk.is_changed());
    desk.trigger("actionRedo");
    QVERIFY(desk.is_changed());
    // As many letters as before.
    desk.trigger("actionSpeichern");
    desk.editor().go_to(1, 1, 1);
    desk.write_text("z");
    QVERIFY(desk.is_changed());
}

void tst_editor_window::saving_ends_the_change()
{
    editor_desk desk;
    desk.open();
    desk.write_text("x");
    QSignalSpy restart(desk.window.get(), &editor_window::restart_systemplay);
    desk.trigger("actionSpeichern");
    QCOMPARE(content_of("one.syf"), QByteArray("xST:\nSZ EC03;\nAL:\nSZ EC03,EC03;\n"));
    QVERIFY(!desk.is_changed());
    QCOMPARE(restart.size(), 0);
    QVERIFY(desk.user.boxes().isEmpty());
    desk.trigger("actionUndo");
    QVERIFY(desk.is_changed());
}

void tst_editor_window::a_running_system_is_restarted_data()
{
    QTest::addColumn<bool>("is_wanted");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

void tst_editor_window::a_running_system_is_restarted()
{
    QFETCH(bool, is_wanted);
    editor_desk desk;
    desk.players.table().make_system_player(PLAYER_2);
    desk.open(edit_mode::system_file, PLAYER_2);
    QSignalSpy restart(desk.window.get(), &editor_window::restart_systemplay);
    desk.write_text("x");
    desk.user.answer(is_wanted ? QMessageBox::Yes : QMessageBox::No);
    desk.trigger("actionSpeichern");
    QCOMPARE(desk.titles(), QStringList("Zarvello"));
    QCOMPARE(desk.questions(), QStringList(system_question));
    QCOMPARE(restart.size(), is_wanted ? 1 : 0);
    QCOMPARE(desk.is_changed(), !is_wanted);
    QCOMPARE(content_of("two.SYF"), QByteArray(is_wanted ? "xAL:\nSZ EC01;\n" : "AL:\nSZ EC01;\n"));
    if (is_wanted) {
        QCOMPARE(restart[0][0].value<general_player::player_names>(), PLAYER_2);
    }
}

void tst_editor_window::other_systems_are_left_alone_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("another player plays") << "other";
    QTest::newRow("another file was opened") << "open";
    QTest::newRow("opened as a file") << "mode";
    QTest::newRow("saved under another name") << "as";
}

void tst_editor_window::other_systems_are_left_alone()
{
    QFETCH(QString, way);
    editor_desk desk;
    desk.players.table().make_system_player(way == "other" ? PLAYER_2 : PLAYER_1);
    desk.chosen = way == "mode" ? "one.syf" : "third.syf";
    write("third.syf", "AL:");
    desk.open(way == "mode" ? edit_mode::open_file : edit_mode::system_file);
    if (way == "open") desk.trigger("action_ffnen");
    QSignalSpy restart(desk.window.get(), &editor_window::restart_systemplay);
    desk.write_text("x");
    desk.trigger(way == "as" ? "actionSave_as" : "actionSpeichern");
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(restart.size(), 0);
    QVERIFY(!desk.is_changed());
}

void tst_editor_window::the_load_file_in_play_is_read_again_data()
{
    a_running_system_is_restarted_data();
}

void tst_editor_window::the_load_file_in_play_is_read_again()
{
    QFETCH(bool, is_wanted);
    editor_desk desk;
    desk.play_load_files();
    desk.open(edit_mode::main_load_file);
    QSignalSpy restart(desk.window.get(), &editor_window::restart_mainloadfile);
    desk.write_text("7");
    desk.user.answer(is_wanted ? QMessageBox::Yes : QMessageBox::No);
    desk.trigger("actionSpeichern");
    QCOMPARE(desk.titles(), QStringList("Zarvello"));
    QCOMPARE(desk.questions(), QStringList(load_question));
    QCOMPARE(restart.size(), is_wanted ? 1 : 0);
    QCOMPARE(content_of("main.inp"), QByteArray(is_wanted ? "71\n2\n3\n" : "1\n2\n3\n"));
}

void tst_editor_window::a_load_file_without_load_mode_is_saved()
{
    editor_desk desk;
    load_file_settings run;
    run.files[0] = "main.inp";
    desk.numbers.set_load_state({run, {}, 0});
    desk.open(edit_mode::main_load_file);
    desk.write_text("7");
    desk.trigger("actionSpeichern");
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(content_of("main.inp"), QByteArray("71\n2\n3\n"));

    // A follow load file is never asked about.
    desk.play_load_files();
    desk.open(edit_mode::follow_load_file);
    desk.write_text("7");
    desk.trigger("actionSpeichern");
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(content_of("follow.inp"), QByteArray("74\n5\n"));
}

void tst_editor_window::save_as_takes_the_new_name()
{
    editor_desk desk;
    desk.open();
    desk.chosen = "copy.txt";
    desk.trigger("actionSave_as");
    QCOMPARE(desk.requests.last().title, QString("Speichere unter..."));
    QCOMPARE(desk.requests.last().folder, QDir::currentPath());
    QCOMPARE(desk.requests.last().filter, expected_filter(62));
    QCOMPARE(desk.window->windowTitle(), QString("copy.txt"));
    QCOMPARE(content_of("copy.txt"), content_of("one.syf"));
    QVERIFY(!desk.has_colours());
    desk.write_text("x");
    desk.trigger("actionSpeichern");
    QVERIFY(content_of("copy.txt").startsWith("xST:"));
    QVERIFY(content_of("one.syf").startsWith("ST:"));
}

void tst_editor_window::save_as_can_be_cancelled()
{
    editor_desk desk;
    desk.open();
    desk.write_text("x");
    desk.trigger("actionSave_as");
    QCOMPARE(desk.window->windowTitle(), QString("one.syf"));
    QVERIFY(desk.is_changed());
}

void tst_editor_window::new_saves_and_empties()
{
    editor_desk desk;
    desk.open();
    desk.write_text("x");
    desk.trigger("actionNeu");
    QVERIFY(content_of("one.syf").startsWith("xST:"));
    QCOMPARE(desk.editor().text(), QString());
    QCOMPARE(desk.window->windowTitle(), QString("Neue Datei"));
    QVERIFY(!desk.is_changed());
    QVERIFY(!desk.is_enabled("actionUndo"));

    desk.write_text("y");
    desk.chosen = "later.txt";
    desk.trigger("actionNeu");
    QCOMPARE(desk.requests.last().title, QString("Speichere unter..."));
    QCOMPARE(content_of("later.txt"), QByteArray("y"));
    QCOMPARE(desk.window->windowTitle(), QString("Neue Datei"));
}

void tst_editor_window::open_saves_and_opens()
{
    editor_desk desk;
    desk.open();
    desk.write_text("x");
    desk.chosen = "two.SYF";
    desk.trigger("action_ffnen");
    QVERIFY(content_of("one.syf").startsWith("xST:"));
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests[0].title, QString("Datei öffnen"));
    QCOMPARE(desk.requests[0].filter, expected_filter(60));
    QCOMPARE(desk.editor().text(), QString("AL:\nSZ EC01;\n"));
    QCOMPARE(desk.window->windowTitle(), QString("two.SYF"));
    QVERIFY(!desk.is_changed());

    desk.chosen.clear();
    desk.trigger("action_ffnen");
    QCOMPARE(desk.window->windowTitle(), QString("two.SYF"));
}

void tst_editor_window::an_unsaved_text_is_kept_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("new") << "actionNeu";
    QTest::newRow("open") << "action_ffnen";
}

void tst_editor_window::an_unsaved_text_is_kept()
{
    QFETCH(QString, action);
    editor_desk desk;
    desk.open(edit_mode::new_file);
    desk.requests.clear();
    desk.write_text("y");
    desk.trigger(action.toLatin1().constData()); // no name is chosen for the text
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests[0].title, QString("Speichere unter..."));
    QCOMPARE(desk.editor().text(), QString("y"));
    QVERIFY(desk.is_changed());
}

void tst_editor_window::an_unchanged_text_closes_without_a_question()
{
    editor_desk desk;
    desk.open();
    QSignalSpy closed(desk.window.get(), &editor_window::editor_window_close);
    desk.trigger("actionClose");
    QVERIFY(!desk.window->isVisible());
    QCOMPARE(closed.size(), 1);
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_editor_window::a_changed_text_asks_at_its_close_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("is_closed");
    QTest::addColumn<bool>("is_saved");
    QTest::newRow("Yes") << int(QMessageBox::Yes) << true << true;
    QTest::newRow("No") << int(QMessageBox::No) << true << false;
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << false << false;
}

void tst_editor_window::a_changed_text_asks_at_its_close()
{
    QFETCH(int, answer);
    QFETCH(bool, is_closed);
    QFETCH(bool, is_saved);
    editor_desk desk;
    desk.open();
    desk.write_text("x");
    QSignalSpy closed(desk.window.get(), &editor_window::editor_window_close);
    desk.user.answer(QMessageBox::StandardButton(answer));
    desk.trigger("actionClose");
    QCOMPARE(desk.titles(), QStringList("Zarvello"));
    QCOMPARE(desk.questions(), QStringList(close_question));
    QCOMPARE(desk.user.boxes().first().icon, QMessageBox::Question);
    QCOMPARE(!desk.window->isVisible(), is_closed);
    QCOMPARE(closed.size(), is_closed ? 1 : 0);
    QCOMPARE(content_of("one.syf").startsWith("xST:"), is_saved);
}

void tst_editor_window::a_text_without_a_name_is_named_at_its_close()
{
    editor_desk desk;
    desk.open();
    desk.trigger("actionNeu");
    desk.write_text("y");
    desk.user.answer(QMessageBox::Yes);
    QVERIFY(!desk.window->close()); // no name is chosen
    desk.chosen = "named.syf";
    desk.user.answer(QMessageBox::Yes);
    QVERIFY(desk.window->close());
    QCOMPARE(content_of("named.syf"), QByteArray("y"));
}

void tst_editor_window::a_text_given_up_is_not_asked_about_again()
{
    editor_desk desk;
    desk.open();
    QVERIFY(desk.window->ask_to_save());
    desk.write_text("x");
    desk.user.answer(QMessageBox::No);
    QVERIFY(desk.window->ask_to_save());
    QVERIFY(desk.window->ask_to_save());
    QCOMPARE(desk.user.boxes().size(), 1);
    desk.write_text("y");
    desk.user.answer(QMessageBox::Cancel);
    QVERIFY(!desk.window->ask_to_save());
    desk.user.answer(QMessageBox::Yes);
    QVERIFY(desk.window->ask_to_save());
    QVERIFY(content_of("one.syf").startsWith("xyST:"));
    QVERIFY(desk.window->ask_to_save());
    QCOMPARE(desk.user.boxes().size(), 3);
}

void tst_editor_window::an_error_is_shown_and_marked()
{
    editor_desk desk;
    desk.open_error({"Syntax Fehler!", 4, system_status::mark_token, "EC03"});
    QCOMPARE(desk.label("LB_error"), QString("Fehler: Syntax Fehler!"));
    QVERIFY(child_of<QLabel>(*desk.window, "LB_error")->isVisible());
    QCOMPARE(desk.window->windowTitle(), QString("one.syf"));
    QCOMPARE(desk.editor().textCursor().blockNumber(), 3);
    QVERIFY(has_underline(desk.editor().document()->findBlockByNumber(3)));
    QVERIFY(!has_underline(desk.editor().document()->findBlockByNumber(1)));
    QVERIFY(!desk.is_changed());
    QVERIFY(!desk.is_enabled("actionUndo"));
    QVERIFY(desk.window->close());
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_editor_window::an_error_beyond_the_text_is_only_shown()
{
    editor_desk desk;
    desk.open_error({"Die Systemspieldatei konnte nicht geöffnet werden!", 0, 2, ""});
    QCOMPARE(desk.label("LB_error"),
             QString("Fehler: Die Systemspieldatei konnte nicht geöffnet werden!"));
    QCOMPARE(desk.editor().textCursor().position(), 0);
    QVERIFY(!desk.action("MoveCursor").isVisible());
}

void tst_editor_window::a_change_in_its_line_takes_the_mark_off()
{
    editor_desk desk;
    desk.open_error({"", 4, system_status::mark_line, ""});
    const auto marked_line = [&desk] { return desk.editor().document()->findBlockByNumber(3); };
    desk.editor().go_to(2);
    desk.write_text("x");
    QVERIFY(has_underline(marked_line()));
    QVERIFY(desk.is_changed());
    desk.editor().go_to(4, 3);
    desk.write_text("x");
    QVERIFY(!has_underline(marked_line()));
    desk.write_text("y");
    QVERIFY(!has_underline(marked_line()));
    QCOMPARE(marked_line().text(), QString("SZxy EC03,EC03;"));
}

void tst_editor_window::undo_keeps_the_mark_that_it_brings_back()
{
    editor_desk desk;
    desk.open_error({"", 4, system_status::mark_line, ""});
    const auto marked_line = [&desk] { return desk.editor().document()->findBlockByNumber(3); };
    desk.write_text("x");
    QVERIFY(!has_underline(marked_line()));
    while (desk.is_enabled("actionUndo"))
        desk.trigger("actionUndo");
    QVERIFY(has_underline(marked_line()));
    QCOMPARE(marked_line().text(), QString("SZ EC03,EC03;"));
    QVERIFY(!desk.is_changed());
    QVERIFY(desk.is_enabled("actionRedo"));
    desk.write_text("z");
    QVERIFY(!has_underline(marked_line()));
}

void tst_editor_window::the_cursor_moves_to_the_error()
{
    editor_desk desk;
    desk.open_error({"", 2, system_status::mark_line, ""});
    QSignalSpy moved(desk.window.get(), &editor_window::changeCursor);
    QVERIFY(desk.action("MoveCursor").isVisible());
    desk.editor().moveCursor(QTextCursor::End);
    desk.trigger("MoveCursor");
    QCOMPARE(desk.editor().textCursor().blockNumber(), 1);
    QCOMPARE(moved.size(), 1);
}

void tst_editor_window::findings_come_half_a_second_behind_the_last_key()
{
    editor_desk desk;
    desk.open();
    QTimer* timer = desk.timer("check_timer");
    QCOMPARE(timer->interval(), 500);
    QVERIFY(timer->isSingleShot());
    QVERIFY(fire(timer)); // of the text as it was opened
    QCOMPARE(desk.checked, QStringList("ST:\nSZ EC03;\nAL:\nSZ EC03,EC03;\n"));
    QVERIFY(!timer->isActive());

    desk.found = {{system_finding::kind::error, 2, 4, 4, "falsch"},
                  {system_finding::kind::warning, 1, 1, 1, "seltsam"}};
    desk.write_text("x");
    QCOMPARE(desk.checked.size(), 1);
    QVERIFY(fire(timer));
    QCOMPARE(desk.checked.last(), QString("xST:\nSZ EC03;\nAL:\nSZ EC03,EC03;\n"));
    QCOMPARE(desk.label("LB_findings"), QString("Fehler: 1, Warnungen: 1"));
    const int row = desk.editor().cursorRect().height();
    QCOMPARE(desk.editor().finding_text_at(4 + row + row / 2), QString("falsch"));
    QVERIFY(!child_of<QDockWidget>(*desk.window, "findings_list")->isVisible());
}

void tst_editor_window::findings_are_listed()
{
    editor_desk desk;
    desk.open();
    auto* rows = child_of<QTreeWidget>(*desk.window, "TW_findings");
    desk.found = {{system_finding::kind::error, 4, 9, 4, "spät"},
                  {system_finding::kind::warning, 2, 1, 2, "früh"}};
    desk.trigger("actionCheck");
    QCOMPARE(desk.checked.size(), 1);
    QVERIFY(child_of<QDockWidget>(*desk.window, "findings_list")->isVisible());
    QStringList shown;
    for (int row = 0; row < rows->topLevelItemCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < 4; ++column)
            texts.append(rows->topLevelItem(row)->text(column));
        shown.append(texts.join('|'));
    }
    QCOMPARE(shown, QStringList({"Warnung|2|1|früh", "Fehler|4|9|spät"}));

    desk.found.clear();
    desk.trigger("actionCheck");
    QCOMPARE(rows->topLevelItemCount(), 1);
    QCOMPARE(rows->topLevelItem(0)->text(3), QString("Keine Fehler gefunden"));
    QCOMPARE(desk.label("LB_findings"), QString());
}

void tst_editor_window::a_finding_is_gone_to()
{
    editor_desk desk;
    desk.open();
    desk.found = {{system_finding::kind::error, 4, 9, 4, "hier"}};
    desk.trigger("actionCheck");
    auto* rows = child_of<QTreeWidget>(*desk.window, "TW_findings");
    QCoreApplication::processEvents();
    QTest::mouseClick(
        rows->viewport(), Qt::LeftButton, {}, rows->visualItemRect(rows->topLevelItem(0)).center());
    QCOMPARE(desk.editor().textCursor().blockNumber(), 3);
    QCOMPARE(desk.editor().textCursor().selectedText(), QString("EC03"));
    QCOMPARE(desk.editor().textCursor().selectionStart() -
                 desk.editor().textCursor().block().position(),
             8);
    desk.found.clear();
    desk.trigger("actionCheck"); // the row that tells of no findings leads nowhere
    QTest::mouseClick(
        rows->viewport(), Qt::LeftButton, {}, rows->visualItemRect(rows->topLevelItem(0)).center());
    QCOMPARE(desk.editor().textCursor().blockNumber(), 3);
}

void tst_editor_window::only_systems_are_checked()
{
    editor_desk desk;
    desk.open_file("main.inp");
    desk.write_text("1");
    QVERIFY(!desk.timer("check_timer")->isActive());
    desk.trigger("actionCheck");
    QVERIFY(desk.checked.isEmpty());
    desk.chosen = "now.syf";
    desk.trigger("actionSave_as");
    QCOMPARE(desk.checked.size(), 1);
}

void tst_editor_window::a_huge_system_is_checked_on_demand()
{
    editor_desk desk;
    write("huge.syf", QByteArray("SZ EC03;\n").repeated(40000));
    desk.open_file("huge.syf");
    desk.load_all();
    desk.write_text("x");
    QVERIFY(fire(desk.timer("check_timer")));
    QVERIFY(desk.checked.isEmpty());
    desk.trigger("actionCheck");
    QCOMPARE(desk.checked.size(), 1);
}

void tst_editor_window::texts_are_found_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("minds_case");
    QTest::addColumn<QString>("way");
    QTest::addColumn<QVector<int>>("places");
    // "ab Ab ab\nAB x": ab at 0, 6; Ab at 3; AB at 9.
    // clang-format off
    QTest::newRow("forward")       << "ab" << false << "nnnnn" << QVector<int>{0, 3, 6, 9, 0};
    QTest::newRow("with case")     << "ab" << true  << "nnn"   << QVector<int>{0, 6, 0};
    QTest::newRow("backward")      << "ab" << false << "ppp"   << QVector<int>{9, 6, 3};
    QTest::newRow("to and fro")    << "ab" << false << "nnp"   << QVector<int>{0, 3, 0};
    QTest::newRow("not there")     << "zz" << false << "n"     << QVector<int>{0};
    // clang-format on
}

void tst_editor_window::texts_are_found()
{
    QFETCH(QString, text);
    QFETCH(bool, minds_case);
    QFETCH(QString, way);
    QFETCH(QVector<int>, places);
    editor_desk desk;
    write("find.txt", "ab Ab ab\nAB x");
    desk.open_file("find.txt");
    desk.trigger("actionFind");
    QVERIFY(child_of<QWidget>(*desk.window, "search_bar")->isVisible());
    QVERIFY(!child_of<QLineEdit>(*desk.window, "LE_replace")->isVisible());
    child_of<QLineEdit>(*desk.window, "LE_search")->setText(text);
    child_of<QAbstractButton>(*desk.window, "CB_case")->setChecked(minds_case);
    QVector<int> found;
    for (const QChar step : way) {
        desk.trigger(step == 'n' ? "actionFind_next" : "actionFind_previous");
        found.append(desk.editor().textCursor().selectionStart());
    }
    QCOMPARE(found, places);
    QCOMPARE(desk.label("LB_search_result") == "Nicht gefunden", text == "zz");
    QTest::keyClick(child_of<QLineEdit>(*desk.window, "LE_search"), Qt::Key_Escape);
    QVERIFY(!child_of<QWidget>(*desk.window, "search_bar")->isVisible());
}

void tst_editor_window::texts_are_replaced()
{
    editor_desk desk;
    write("find.txt", "ab Ab ab");
    desk.open_file("find.txt");
    desk.editor().go_to(1, 4, 2);
    desk.trigger("actionReplace");
    QCOMPARE(child_of<QLineEdit>(*desk.window, "LE_search")->text(), QString("Ab"));
    child_of<QLineEdit>(*desk.window, "LE_replace")->setText("x");
    auto* replace = child_of<QPushButton>(*desk.window, "PB_replace");
    replace->click();
    QCOMPARE(desk.editor().text(), QString("ab x ab"));
    QCOMPARE(desk.editor().textCursor().selectionStart(), 5);
    replace->click();
    QCOMPARE(desk.editor().text(), QString("ab x x"));
    QCOMPARE(desk.editor().textCursor().selectionStart(), 0); // on from the other end
    QVERIFY(desk.is_changed());
}

void tst_editor_window::all_are_replaced_in_one_step()
{
    editor_desk desk;
    write("find.txt", "ab Ab\nab");
    desk.open_file("find.txt");
    desk.trigger("actionReplace");
    child_of<QLineEdit>(*desk.window, "LE_search")->setText("ab");
    child_of<QLineEdit>(*desk.window, "LE_replace")->setText("abab"); // holds what is searched
    child_of<QPushButton>(*desk.window, "PB_replace_all")->click();
    QCOMPARE(desk.editor().text(), QString("abab abab\nabab"));
    QCOMPARE(desk.label("LB_search_result"), QString("Ersetzt: 3"));
    desk.trigger("actionUndo");
    QCOMPARE(desk.editor().text(), QString("ab Ab\nab"));
    QVERIFY(!desk.is_changed());
}

void tst_editor_window::a_protocol_is_searched_but_not_replaced()
{
    editor_desk desk;
    desk.open(edit_mode::protocol_file);
    QVERIFY(!desk.is_enabled("actionReplace"));
    desk.trigger("actionFind");
    child_of<QLineEdit>(*desk.window, "LE_search")->setText("Coup");
    desk.trigger("actionFind_next");
    QCOMPARE(desk.editor().textCursor().selectedText(), QString("Coup"));
    child_of<QPushButton>(*desk.window, "PB_replace")->click();
    child_of<QPushButton>(*desk.window, "PB_replace_all")->click();
    QCOMPARE(desk.editor().text(), QString("1. Coup\n"));
}

void tst_editor_window::a_line_is_gone_to()
{
    editor_desk desk;
    desk.open();
    const auto answer = [&desk](int line, bool is_taken) {
        desk.user.with_dialog("QInputDialog", [line, is_taken](QWidget* widget) {
            auto* dialog = qobject_cast<QInputDialog*>(widget);
            dialog->setIntValue(line);
            if (is_taken) {
                dialog->accept();
            } else {
                dialog->reject();
            }
        });
        desk.trigger("actionGo_to_line");
        return desk.editor().textCursor().blockNumber() + 1;
    };
    QCOMPARE(answer(3, true), 3);
    QCOMPARE(desk.label("LB_position"), QString("Zeile 3, Spalte 1"));
    QCOMPARE(answer(2, false), 3);
    QCOMPARE(answer(99, true), 5); // the text has five lines
}

static void drop(QWidget& window, const QMimeData& dragged)
{
    QDragEnterEvent enter({50, 200}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent release({50, 200}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &release);
}

void tst_editor_window::a_dropped_file_is_opened()
{
    editor_desk desk;
    desk.open();
    desk.write_text("x");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QDir::currentPath()),
                   QUrl::fromLocalFile(QDir::current().filePath("two.SYF"))});
    drop(*desk.editor().viewport(), files); // the window stands behind the text
    QCOMPARE(desk.window->windowTitle(), QString("two.SYF"));
    QCOMPARE(desk.editor().text(), QString("AL:\nSZ EC01;\n"));
    QVERIFY(content_of("one.syf").startsWith("xST:"));
}

void tst_editor_window::what_is_no_file_is_not_dropped()
{
    editor_desk desk;
    desk.open();
    QMimeData other;
    other.setUrls({QUrl("http://localhost/a.syf"), QUrl::fromLocalFile("/no/such.syf")});
    drop(*desk.window, other);
    QCOMPARE(desk.window->windowTitle(), QString("one.syf"));

    desk.open(edit_mode::protocol_file);
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(QDir::current().filePath("two.SYF"))});
    drop(*desk.window, file);
    QCOMPARE(desk.window->windowTitle(), QString("one.out (schreibgeschützt)"));
}

void tst_editor_window::a_long_text_comes_in_parts()
{
    editor_desk desk;
    const QByteArray content = QByteArray("0123456789\n").repeated(60000) + "end";
    write("long.txt", content);
    desk.open_file("long.txt");
    QVERIFY(desk.window->is_loading());
    QVERIFY(desk.editor().blockCount() < 15000);
    QVERIFY(desk.editor().isReadOnly());
    for (const char* name : {"actionNeu", "action_ffnen", "actionSpeichern", "actionSave_as"})
        QVERIFY2(!desk.is_enabled(name), name);
    QCOMPARE(desk.label("LB_changed"), QString("Wird geladen..."));
    int parts = 1;
    while (desk.window->is_loading()) {
        const int before = desk.editor().blockCount();
        QVERIFY(fire(desk.timer("load_timer")));
        QVERIFY(desk.editor().blockCount() - before < 15000);
        ++parts;
    }
    QVERIFY(parts >= 5);
    QCOMPARE(desk.editor().blockCount(), 60001);
    QCOMPARE(desk.editor().text().toLatin1(), content);
    QVERIFY(!desk.editor().isReadOnly());
    QVERIFY(!desk.is_changed());
    QVERIFY(!desk.is_enabled("actionUndo"));
    desk.write_text("x");
    QVERIFY(desk.is_changed());
    desk.trigger("actionSpeichern");
    QCOMPARE(content_of("long.txt"), "x" + content);
}

void tst_editor_window::a_long_text_is_coloured_where_it_is_read()
{
    editor_desk desk;
    write("long.syf", QByteArray("SZ EC03;\n").repeated(40000));
    desk.open_file("long.syf");
    desk.load_all();
    QCoreApplication::processEvents();
    const auto coloured = [&desk] {
        int count = 0;
        for (QTextBlock block = desk.editor().document()->begin(); block.isValid();
             block = block.next())
            if (!block.layout()->formats().isEmpty()) ++count;
        return count;
    };
    const auto is_coloured = [&desk](int line) {
        const QTextBlock block = desk.editor().document()->findBlockByNumber(line);
        return !block.layout()->formats().isEmpty();
    };
    QVERIFY(coloured() < 300);
    QVERIFY(is_coloured(0));
    QVERIFY(!is_coloured(30000));
    desk.editor().go_to(30001);
    QCoreApplication::processEvents();
    QVERIFY(is_coloured(30000));
    QVERIFY(!is_coloured(25000));
    QVERIFY(coloured() < 600);
    QVERIFY(!desk.is_changed());
}

void tst_editor_window::the_error_of_a_long_text_waits()
{
    editor_desk desk;
    write("one.syf", QByteArray("SZ EC03;\n").repeated(40000));
    desk.open_error({"", 35000, system_status::mark_token, "EC03"});
    desk.load_all();
    QCOMPARE(desk.editor().textCursor().blockNumber(), 34999);
    QVERIFY(has_underline(desk.editor().document()->findBlockByNumber(34999)));
    QVERIFY(!desk.is_changed());
}

void tst_editor_window::several_windows_are_open()
{
    editor_desk desk;
    desk.open();
    editor_window second(
        edit_mode::system_file, PLAYER_2, desk.settings, desk.players, desk.numbers);
    second.show();
    desk.write_text("x");
    QVERIFY(desk.is_changed());
    QVERIFY(second.close());
    QVERIFY(desk.window->isVisible());
    QVERIFY(desk.user.boxes().isEmpty());
}

namespace
{

/// Every text of the program in capitals.
class loud_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        static const QStringList ours = {
            "editor_window", "find_bar", "findings_list", "highlighter_icon"};
        return ours.contains(QLatin1String(context)) ? QString::fromUtf8(source).toUpper()
                                                     : QString();
    }
};

} // namespace

void tst_editor_window::the_language_changes_live()
{
    editor_desk desk;
    desk.open_error({"Syntax Fehler!", 2, 1, ""});
    desk.trigger("actionFind");
    desk.trigger("actionNeu");
    loud_translator loud;
    QCoreApplication::installTranslator(&loud);
    QCoreApplication::processEvents();
    QCOMPARE(desk.action("actionNeu").text(), QString("NEU"));
    QCOMPARE(desk.action("actionSyntax_Highligther").text(), QString("SYNTAX HIGHLIGTHER"));
    QCOMPARE(desk.window->windowTitle(), QString("NEUE DATEI"));
    QCOMPARE(desk.label("LB_search"), QString("SUCHEN:"));
    QCOMPARE(desk.label("LB_position"), QString("ZEILE 1, SPALTE 1"));
    QCOMPARE(child_of<QDockWidget>(*desk.window, "findings_list")->windowTitle(),
             QString("PRÜFERGEBNIS"));
    QVERIFY(!child_of<QLabel>(*desk.window, "LB_error")->isVisible());
    QCoreApplication::removeTranslator(&loud);
    QCoreApplication::processEvents();
    QCOMPARE(desk.window->windowTitle(), QString("Neue Datei"));

    desk.open_error({"Syntax Fehler!", 2, 1, ""});
    QCoreApplication::installTranslator(&loud);
    QCoreApplication::processEvents();
    QCOMPARE(desk.label("LB_error"), QString("FEHLER: Syntax Fehler!"));
    QCOMPARE(desk.window->windowTitle(), QString("one.syf"));
    QCoreApplication::removeTranslator(&loud);
}

void tst_editor_window::nothing_is_clipped()
{
    editor_desk desk;
    desk.open();
    desk.trigger("actionReplace");
    QCoreApplication::processEvents();
    const auto* bar = child_of<QWidget>(*desk.window, "search_bar");
    for (const QWidget* child : bar->findChildren<QWidget*>()) {
        if (!child->isVisible() || child->inherits("QLineEdit")) continue;
        QVERIFY2(child->width() >= child->sizeHint().width(), qPrintable(child->objectName()));
        QVERIFY2(bar->rect().contains(child->geometry()), qPrintable(child->objectName()));
    }
}

int main(int argc, char** argv)
{
    qRegisterMetaType<general_player::player_names>();
    return run_window_test<tst_editor_window>(argc, argv);
}

#include "tst_editor_window.moc"
