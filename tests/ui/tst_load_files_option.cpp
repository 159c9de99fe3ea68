#include "file_dialog.h"
#include "load_files_option.h"
#include "numberstorage.h"
#include "pictures.h"
#include "setting.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <memory>
#include <utility>

using namespace general_loadfile;

static const QStringList file_names = {"zero.inp",
                                       "one.inp",
                                       "two.inp",
                                       "three.inp",
                                       "four.inp",
                                       "five.inp",
                                       "six.inp",
                                       "seven.inp",
                                       "eight.inp",
                                       "nine.inp",
                                       "ten.inp",
                                       "eleven.inp"};

namespace
{

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(path));
    }
}

QString place_of(const QString& name)
{
    return QDir::currentPath() + '/' + name;
}

/// The dialog with a source of its own and a user who chooses files and answers boxes.
struct load_desk {
    load_desk()
    {
        file_dialog::set_chooser([this](const file_dialog::request& what) {
            requests.append(what);
            return chosen;
        });
        dialog->show();
    }
    ~load_desk()
    {
        numbers.set_line_hook({});
        file_dialog::set_chooser({});
    }

    bool choose(int kind, const QString& name)
    {
        chosen = name.isEmpty() ? QString() : place_of(name);
        return dialog->select_load_file(static_cast<loadfile_type>(kind));
    }
    void accept()
    {
        dialog->show();
        child_of<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    }
    void click(const char* name) { child_of<QPushButton>(*dialog, name)->click(); }
    QString text(const QString& name) { return child_of<QLineEdit>(*dialog, name)->text(); }
    QString label(const QString& name) { return child_of<QLabel>(*dialog, name)->text(); }
    bool is_enabled(const QString& name) { return child_of<QWidget>(*dialog, name)->isEnabled(); }
    bool is_shown(const QString& name) { return child_of<QWidget>(*dialog, name)->isVisible(); }
    QSpinBox& spin(const QString& name) { return *child_of<QSpinBox>(*dialog, name); }
    QTimer& wait_timer() { return *child_of<QTimer>(*dialog, "wait_timer"); }
    QCheckBox& active_box() { return *child_of<QCheckBox>(*dialog, "CB_loadfile_activ"); }

    /// The start mode that is checked, by the name of its button.
    QString start_mode()
    {
        for (const char* name :
             {"RB_normal_start", "RB_fix_start", "RB_random_1_start", "RB_random_2_start"}) {
            if (child_of<QRadioButton>(*dialog, name)->isChecked()) return name;
        }
        return {};
    }
    void check(const char* name) { child_of<QRadioButton>(*dialog, name)->setChecked(true); }

    /// The colour of a LED: red, yellow, green, or empty if its picture is none of these.
    QString led(const QString& name)
    {
        const QPixmap shown = child_of<QLabel>(*dialog, name)->pixmap(Qt::ReturnByValue);
        for (const QString colour : {"red", "yellow", "green"}) {
            const QPixmap picture =
                scaled_picture(":/led/grafik/led/led_" + colour + ".png", dialog->reduction());
            if (!shown.isNull() && shown.toImage() == picture.toImage()) return colour;
        }
        return {};
    }
    QString leds()
    {
        return led("LED_fix_start") + ' ' + led("LED_random_1") + ' ' + led("LED_random_2");
    }

    /// Runs something once, in the middle of the next file that is read.
    void in_the_middle_of_a_read(std::function<void()> what)
    {
        const auto is_due = std::make_shared<bool>(true);
        numbers.set_line_hook([is_due, what = std::move(what)] {
            if (std::exchange(*is_due, false)) what();
        });
    }

    QString chosen;
    QVector<file_dialog::request> requests;
    setting settings;
    numberStorage numbers{settings};
    std::unique_ptr<load_files_option> dialog =
        std::make_unique<load_files_option>(numbers, settings);
    box_user user;
};

} // namespace

class tst_load_files_option : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void the_widgets_carry_their_texts_data();
    void the_widgets_carry_their_texts();
    void the_line_edits_are_read_only();
    void it_begins_without_files();

    void the_file_dialog_is_asked_for_data();
    void the_file_dialog_is_asked_for();
    void the_file_dialog_opens_where_the_last_file_was();
    void cancel_leaves_everything_data();
    void cancel_leaves_everything();
    void a_disabled_field_opens_no_dialog();
    void a_second_choice_waits_for_the_first();

    void a_main_file_is_shown_and_counted();
    void a_long_path_is_shortened();
    void follow_files_stay_without_gaps();
    void a_ninth_file_replaces_the_main_file();

    void the_smallest_file_limits_the_start();
    void a_file_without_numbers_shows_red_data();
    void a_file_without_numbers_shows_red();
    void a_smaller_file_pulls_the_limits_down();
    void a_spin_box_checks_its_start_mode_data();
    void a_spin_box_checks_its_start_mode();
    void begin_and_end_bound_each_other();
    void attacks_divide_the_file();
    void too_many_attacks_show_yellow();

    void a_collection_fills_the_list();
    void a_collection_is_relative_to_its_folder();
    void all_files_of_a_collection_are_played();
    void a_collection_without_files_is_refused_data();
    void a_collection_without_files_is_refused();
    void missing_files_of_a_collection_are_asked_about_data();
    void missing_files_of_a_collection_are_asked_about();
    void the_same_collection_again_is_no_change();

    void off_clears_the_load_state();
    void without_a_main_file_nothing_happens();
    void the_first_load_run_is_applied_at_once_data();
    void the_first_load_run_is_applied_at_once();
    void nothing_new_is_not_applied();
    void a_change_is_asked_about_at_each_ok();
    void a_refused_change_is_not_applied();
    void a_new_file_is_applied_at_each_ok();
    void cancel_applies_nothing();

    void the_main_reset_asks_first();
    void the_group_reset_asks_nothing();
    void the_active_box_disables_the_files();
    void the_active_box_opens_what_fits_the_choice();

    void a_double_zero_is_warned_of_data();
    void a_double_zero_is_warned_of();
    void the_warning_follows_the_slot();

    void counting_shows_that_it_waits();
    void nothing_begins_a_second_count();
    void a_dialog_closed_while_it_counts_closes_behind_it();
    void a_dialog_deleted_while_it_counts_leaves_the_cursor_alone_data();
    void a_dialog_deleted_while_it_counts_leaves_the_cursor_alone();
    void a_run_that_is_read_shows_that_it_waits();

    void the_files_left_follow_the_run();
    void the_choice_outlives_the_run();

    void the_language_changes_live();
    void nothing_is_clipped_at_any_scale_data();
    void nothing_is_clipped_at_any_scale();
};

// File k holds k + 3 numbers, of which the first is k.
void tst_load_files_option::initTestCase()
{
    init_pictures();
    for (int file = 0; file < file_names.size(); ++file) {
        QByteArray content = QByteArray::number(file) + '\n';
        for (int number = 0; number < file + 2; ++number)
            content += "20\n";
        write(file_names[file], content);
    }
    write("text.inp", "12 7 word\nonly text\n");
    write("empty.inp", "");
    write("marks.inp", "1\n-\n2\n3\n");
    write("double_zero.inp", "5\n00\n6\n00\n");
    write("collection.snp", file_names.join('\n').toUtf8());
    write("short.snp", "(* two files\none.inp\ntwo.inp\n");
    write("other.snp", "two.inp\none.inp\n");
    write("gone.snp", "away.inp\none.inp\nsub/lost.inp\n");
    write("nothing.snp", "away.inp\nsub/lost.inp\n");
    write("comment.snp", "(* nothing\n// at all\n");
    QVERIFY(QDir().mkpath("sub/folder"));
    write("sub/folder/inner.inp", "1 2 3 4 5 6 7\n");
    write("sub/folder/inner.snp", "inner.inp\n");
}

void tst_load_files_option::the_widgets_carry_their_texts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
    const QByteArray text = "text", title = "title", tip = "toolTip", style = "styleSheet";
    const QString bold = "QGroupBox\n{\n    font-weight: bold;\n}";
    // clang-format off
    const struct { const char* name; QByteArray property; QString text; } rows[] = {
        {"GB_main",                title, "Hauptladedatei"},
        {"GB_follow",              title, "Folgeladedateien"},
        {"GB_group",               title, "Sammelladedatei"},
        {"GB_start",               title, "Start Einstellungen"},
        {"GB_main",                style, bold},
        {"GB_follow",              style, bold},
        {"GB_group",               style, bold},
        {"GB_start",               style, bold},
        {"LA_main_file_cups",      text,  "Coups"},
        {"CB_loadfile_activ",      text,  "Aktiv"},
        {"PB_main_loadfile_reset", text,  "Reset"},
        {"CB_break_modus",         text,  "Pausemodus bei Ladedatei Modus Ende"},
        {"LB_please_wait",         text,  "Datei wird geladen - Bitte warten!"},
        {"LB_00_warning",          text,  ""},
        {"LB_00_warning",          style, "color: rgb(255, 0, 0);"},
        {"LB_continue",            text,  "...."},
        {"LE_left_total_files",    tip,   "Dateien noch zu laden/total"},
        {"LE_left_total_files",    text,  "0/0"},
        {"PB_group_loadfile_reset", text, "Reset"},
        {"RB_normal_start",        text,  "Normal Start"},
        {"RB_fix_start",           text,  "Fix Start"},
        {"RB_random_1_start",      text,  "Zufall Start 1"},
        {"RB_random_2_start",      text,  "Zufall Start 2"},
    };
    // clang-format on
    for (const auto& row : rows)
        QTest::addRow("%s, %s", row.name, row.property.constData())
            << QString(row.name) << row.property << row.text;
}

void tst_load_files_option::the_widgets_carry_their_texts()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, property);
    QFETCH(QString, text);
    load_desk desk;
    const auto* widget = child_of<QWidget>(*desk.dialog, name);
    QCOMPARE(widget->property(property.constData()).toString(), text);
}

void tst_load_files_option::the_line_edits_are_read_only()
{
    load_desk desk;
    QStringList names = {
        "LE_loadfile_main", "LE_loadfile_main_cups", "LE_loadfile_group", "LE_left_total_files"};
    for (int place = 1; place <= 8; ++place) {
        names.append(QString("LE_loadfile_follow_%1").arg(place));
        names.append(QString("LE_loadfile_follow_cup_%1").arg(place));
    }
    for (const QString& name : names)
        QVERIFY2(child_of<QLineEdit>(*desk.dialog, name)->isReadOnly(), qPrintable(name));
    QCOMPARE(child_of<QLineEdit>(*desk.dialog, "LE_loadfile_main")->maxLength(), 50);
    QCOMPARE(desk.dialog->windowTitle(), QString("Lademenü"));
}

void tst_load_files_option::it_begins_without_files()
{
    load_desk desk;
    QVERIFY(child_of<QCheckBox>(*desk.dialog, "CB_break_modus")->isChecked());
    QCOMPARE(desk.start_mode(), QString("RB_normal_start"));
    QCOMPARE(desk.leds(), QString("red red red"));
    QCOMPARE(desk.label("LB_max_fix_start"), QString());
    QVERIFY(desk.is_enabled("LE_loadfile_main"));
    QVERIFY(!desk.is_enabled("LE_loadfile_follow_1"));
    QVERIFY(desk.is_enabled("LE_loadfile_group"));
    QVERIFY(!desk.is_shown("LB_please_wait"));
    QVERIFY(!desk.is_shown("LB_continue"));
}

void tst_load_files_option::the_file_dialog_is_asked_for_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("filter");
    QTest::newRow("main") << int(MAIN_LOADFILE) << "Ladedateien (*.inp)";
    QTest::newRow("follow 1") << int(FOLLOW_LOADFILE_1) << "Ladedateien (*.inp)";
    QTest::newRow("follow 8") << int(FOLLOW_LOADFILE_8) << "Ladedateien (*.inp)";
    QTest::newRow("collection") << int(GROUP_LOADFILE) << "Sammelladedateien (*.snp)";
}

void tst_load_files_option::the_file_dialog_is_asked_for()
{
    QFETCH(int, kind);
    QFETCH(QString, filter);
    load_desk desk;
    desk.click("PB_group_loadfile_reset"); // opens all groups
    QVERIFY(!desk.choose(kind, {}));
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests.first().title, QString("Datei öffnen"));
    QCOMPARE(desk.requests.first().filter, filter);
    QCOMPARE(desk.requests.first().folder, QString("./sysin"));
}

void tst_load_files_option::the_file_dialog_opens_where_the_last_file_was()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "missing/away.inp");
    desk.choose(MAIN_LOADFILE, "sub/folder/inner.inp");
    desk.choose(FOLLOW_LOADFILE_1, "one.inp");
    desk.choose(FOLLOW_LOADFILE_2, {});
    desk.choose(FOLLOW_LOADFILE_2, {});
    QCOMPARE(desk.requests.size(), 5);
    QCOMPARE(desk.requests[1].folder, QString("./sysin"));
    QCOMPARE(desk.requests[2].folder, place_of("sub/folder"));
    QCOMPARE(desk.requests[3].folder, QDir::currentPath());
    QCOMPARE(desk.requests[4].folder, QDir::currentPath());
}

void tst_load_files_option::cancel_leaves_everything_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("cancel") << "";
    QTest::newRow("a file that is gone") << "away.inp";
}

void tst_load_files_option::cancel_leaves_everything()
{
    QFETCH(QString, file);
    load_desk desk;
    QVERIFY(desk.choose(MAIN_LOADFILE, "one.inp"));
    desk.spin("SB_fix_start").setValue(3);
    QVERIFY(!desk.choose(MAIN_LOADFILE, file));
    QCOMPARE(desk.requests.size(), 2);
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
    QCOMPARE(desk.start_mode(), QString("RB_fix_start"));
    desk.accept();
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(desk.numbers.load_files().first(), place_of("one.inp"));
}

void tst_load_files_option::a_disabled_field_opens_no_dialog()
{
    load_desk desk;
    QVERIFY(!desk.choose(FOLLOW_LOADFILE_1, "one.inp"));
    QVERIFY(desk.choose(MAIN_LOADFILE, "one.inp"));
    QVERIFY(!desk.choose(GROUP_LOADFILE, "short.snp"));
    desk.active_box().setChecked(false);
    QVERIFY(!desk.choose(MAIN_LOADFILE, "two.inp"));
    QVERIFY(!desk.choose(12, "two.inp"));
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
}

void tst_load_files_option::a_second_choice_waits_for_the_first()
{
    load_desk desk;
    bool second = true;
    int opened = 0;
    file_dialog::set_chooser([&](const file_dialog::request&) {
        if (++opened == 1) second = desk.dialog->select_load_file(MAIN_LOADFILE);
        return place_of("two.inp");
    });
    QVERIFY(desk.dialog->select_load_file(MAIN_LOADFILE));
    QVERIFY(!second);
    QCOMPARE(opened, 1);
}

void tst_load_files_option::a_main_file_is_shown_and_counted()
{
    load_desk desk;
    QVERIFY(desk.choose(MAIN_LOADFILE, "marks.inp"));
    QVERIFY(desk.text("LE_loadfile_main").endsWith("/marks.inp"));
    QVERIFY(desk.text("LE_loadfile_main").contains("/.../"));
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("3"));
    QCOMPARE(desk.text("LE_loadfile_follow_1"), QString());
    QCOMPARE(desk.text("LE_loadfile_follow_cup_8"), QString("0"));
    QCOMPARE(desk.text("LE_loadfile_group"), QString());
    QVERIFY(desk.is_enabled("LE_loadfile_follow_1"));
    QVERIFY(desk.is_enabled("LE_loadfile_follow_8"));
    QVERIFY(!desk.is_enabled("LE_loadfile_group"));
    QVERIFY(!desk.is_enabled("PB_group_loadfile_reset"));
    QVERIFY(desk.is_enabled("PB_main_loadfile_reset"));
}

void tst_load_files_option::a_long_path_is_shortened()
{
    load_desk desk;
    const QString folder = QString(45, 'f');
    QVERIFY(QDir().mkpath(folder));
    write(folder + "/a.inp", "1 2\n");
    QVERIFY(desk.choose(MAIN_LOADFILE, folder + "/a.inp"));
    const QString first = QDir::currentPath().split('/', Qt::SkipEmptyParts).first();
    QCOMPARE(desk.text("LE_loadfile_main"), first + "/.../a.inp");
}

void tst_load_files_option::follow_files_stay_without_gaps()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "zero.inp");
    desk.choose(FOLLOW_LOADFILE_5, "one.inp"); // goes to 1
    desk.choose(FOLLOW_LOADFILE_2, "two.inp");
    desk.choose(FOLLOW_LOADFILE_8, "three.inp"); // goes to 3
    desk.choose(FOLLOW_LOADFILE_1, "four.inp");  // replaces the first
    desk.accept();
    QStringList files = {
        place_of("zero.inp"), place_of("four.inp"), place_of("two.inp"), place_of("three.inp")};
    while (files.size() < 9)
        files.append(QString());
    QCOMPARE(desk.user.boxes().size(), 1); // the replaced file is a change
    QVERIFY(!desk.numbers.load_active());
    desk.user.answer(QMessageBox::Yes);
    desk.accept();
    QCOMPARE(desk.numbers.load_files(), files);
    QCOMPARE(desk.text("LE_loadfile_follow_cup_1"), QString("7"));
    QCOMPARE(desk.text("LE_loadfile_follow_cup_3"), QString("6"));
    QCOMPARE(desk.text("LE_loadfile_follow_cup_4"), QString("0"));
}

void tst_load_files_option::a_ninth_file_replaces_the_main_file()
{
    load_desk desk;
    for (int place = 0; place < 9; ++place)
        QVERIFY(desk.choose(place, file_names[place]));
    QVERIFY(desk.choose(FOLLOW_LOADFILE_3, "nine.inp"));
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("12"));
    QCOMPARE(desk.text("LE_loadfile_follow_cup_3"), QString("6"));
    desk.user.answer(QMessageBox::Yes);
    desk.accept();
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.numbers.load_files().first(), place_of("nine.inp"));
    QCOMPARE(desk.numbers.load_files().at(8), place_of("eight.inp"));
}

void tst_load_files_option::the_smallest_file_limits_the_start()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "seven.inp");     // 10 numbers
    desk.choose(FOLLOW_LOADFILE_1, "three.inp"); // 6
    desk.choose(FOLLOW_LOADFILE_2, "five.inp");  // 8
    QCOMPARE(desk.leds(), QString("green green green"));
    QCOMPARE(desk.label("LB_max_fix_start"), QString("(max. 6)"));
    const struct {
        const char* name;
        int value;
    } rows[] = {{"SB_fix_start", 1},
                {"SB_random_1_begin", 1},
                {"SB_random_1_end", 6},
                {"SB_random_2_length", 6},
                {"SB_random_2_max_attack", 1}};
    for (const auto& row : rows) {
        QCOMPARE(desk.spin(row.name).value(), row.value);
        QCOMPARE(desk.spin(row.name).minimum(), 1);
        QCOMPARE(desk.spin(row.name).maximum(), 6);
    }
    QCOMPARE(desk.start_mode(), QString("RB_normal_start"));
}

void tst_load_files_option::a_file_without_numbers_shows_red_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("text alone") << "text.inp";
    QTest::newRow("empty") << "empty.inp";
}

void tst_load_files_option::a_file_without_numbers_shows_red()
{
    QFETCH(QString, file);
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "seven.inp");
    desk.spin("SB_fix_start").setValue(4);
    desk.choose(FOLLOW_LOADFILE_1, file);
    QCOMPARE(desk.text("LE_loadfile_follow_cup_1"), QString("0"));
    QCOMPARE(desk.leds(), QString("red red red"));
    QCOMPARE(desk.start_mode(), QString("RB_normal_start"));
    QCOMPARE(desk.spin("SB_fix_start").value(), 4);
    QCOMPARE(desk.spin("SB_fix_start").maximum(), 10);
}

void tst_load_files_option::a_smaller_file_pulls_the_limits_down()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "nine.inp"); // 12 numbers
    desk.spin("SB_random_1_begin").setValue(9);
    desk.spin("SB_random_2_max_attack").setValue(5);
    desk.spin("SB_random_2_length").setValue(11);
    QCOMPARE(desk.led("LED_random_2"), QString("yellow"));
    desk.choose(MAIN_LOADFILE, "one.inp"); // 4 numbers
    QCOMPARE(desk.leds(), QString("green green green"));
    QCOMPARE(desk.spin("SB_random_1_begin").value(), 1);
    QCOMPARE(desk.spin("SB_random_1_end").value(), 4);
    QCOMPARE(desk.spin("SB_random_1_end").minimum(), 1);
    QCOMPARE(desk.spin("SB_random_2_max_attack").value(), 1);
    QCOMPARE(desk.spin("SB_random_2_length").value(), 4);
    desk.choose(MAIN_LOADFILE, "nine.inp");
    QCOMPARE(desk.spin("SB_random_1_begin").maximum(), 12);
    QCOMPARE(desk.spin("SB_random_1_end").value(), 12);
    QCOMPARE(desk.spin("SB_random_2_length").value(), 12);
    QCOMPARE(desk.start_mode(), QString("RB_normal_start"));
}

void tst_load_files_option::a_spin_box_checks_its_start_mode_data()
{
    QTest::addColumn<QString>("spin_box");
    QTest::addColumn<QString>("start_mode");
    QTest::newRow("fix") << "SB_fix_start"
                         << "RB_fix_start";
    QTest::newRow("begin") << "SB_random_1_begin"
                           << "RB_random_1_start";
    QTest::newRow("end") << "SB_random_1_end"
                         << "RB_random_1_start";
    QTest::newRow("attacks") << "SB_random_2_max_attack"
                             << "RB_random_2_start";
    QTest::newRow("length") << "SB_random_2_length"
                            << "RB_random_2_start";
}

void tst_load_files_option::a_spin_box_checks_its_start_mode()
{
    QFETCH(QString, spin_box);
    QFETCH(QString, start_mode);
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "seven.inp");
    desk.spin(spin_box).setValue(5);
    QCOMPARE(desk.start_mode(), start_mode);
}

void tst_load_files_option::begin_and_end_bound_each_other()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "seven.inp"); // 10 numbers
    desk.spin("SB_random_1_begin").setValue(4);
    QCOMPARE(desk.spin("SB_random_1_end").minimum(), 4);
    desk.spin("SB_random_1_end").setValue(6);
    QCOMPARE(desk.spin("SB_random_1_begin").maximum(), 6);
    desk.spin("SB_random_1_begin").setValue(9);
    QCOMPARE(desk.spin("SB_random_1_begin").value(), 6);
    desk.spin("SB_random_1_end").setValue(1);
    QCOMPARE(desk.spin("SB_random_1_end").value(), 6);
}

void tst_load_files_option::attacks_divide_the_file()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "seven.inp"); // 10 numbers
    const QVector<int> lengths = {5, 3, 2, 2, 1, 1, 1, 1, 1};
    for (int attacks = 2; attacks <= 10; ++attacks) {
        desk.spin("SB_random_2_max_attack").setValue(attacks);
        QCOMPARE(desk.spin("SB_random_2_length").value(), lengths[attacks - 2]);
        QCOMPARE(desk.led("LED_random_2"), QString("green"));
    }
    QCOMPARE(desk.spin("SB_random_2_length").maximum(), 10);
}

void tst_load_files_option::too_many_attacks_show_yellow()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "seven.inp"); // 10 numbers
    desk.spin("SB_random_2_max_attack").setValue(3);
    desk.spin("SB_random_2_length").setValue(4); // 12
    QCOMPARE(desk.leds(), QString("green green yellow"));
    desk.spin("SB_random_2_length").setValue(3);
    QCOMPARE(desk.led("LED_random_2"), QString("green"));
    desk.spin("SB_random_2_length").setValue(5); // 15
    QCOMPARE(desk.led("LED_random_2"), QString("yellow"));
    desk.spin("SB_random_2_max_attack").setValue(2); // 10 again, with the same length
    QCOMPARE(desk.spin("SB_random_2_length").value(), 5);
    QCOMPARE(desk.led("LED_random_2"), QString("green"));
}

void tst_load_files_option::a_collection_fills_the_list()
{
    load_desk desk;
    QVERIFY(desk.choose(GROUP_LOADFILE, "collection.snp"));
    QVERIFY(desk.text("LE_loadfile_group").endsWith("/collection.snp"));
    QCOMPARE(desk.text("LE_left_total_files"), QString("12/12"));
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("3"));
    QCOMPARE(desk.text("LE_loadfile_follow_cup_8"), QString("11"));
    QVERIFY(desk.is_shown("LB_continue"));
    QVERIFY(!desk.is_enabled("LE_loadfile_main"));
    QVERIFY(!desk.is_enabled("PB_main_loadfile_reset"));
    QVERIFY(!desk.is_enabled("LE_loadfile_follow_1"));
    QVERIFY(desk.is_enabled("LE_loadfile_group"));
    QCOMPARE(desk.label("LB_max_fix_start"), QString("(max. 3)"));
    QVERIFY(desk.choose(GROUP_LOADFILE, "short.snp"));
    QVERIFY(!desk.is_shown("LB_continue"));
    QCOMPARE(desk.text("LE_left_total_files"), QString("2/2"));
    QCOMPARE(desk.text("LE_loadfile_follow_2"), QString());
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_load_files_option::a_collection_is_relative_to_its_folder()
{
    load_desk desk;
    QVERIFY(desk.choose(GROUP_LOADFILE, "sub/folder/inner.snp"));
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("7"));
    desk.accept();
    QCOMPARE(desk.numbers.load_files().first(), place_of("sub/folder/inner.inp"));
}

void tst_load_files_option::all_files_of_a_collection_are_played()
{
    load_desk desk;
    desk.choose(GROUP_LOADFILE, "collection.snp");
    desk.accept();
    QCOMPARE(desk.numbers.load_settings().group_file, place_of("collection.snp"));
    QCOMPARE(desk.numbers.load_settings().group_file_count, 12);
    for (int file = 0; file < 12; ++file) {
        QCOMPARE(desk.text("LE_left_total_files"), QString("%1/12").arg(12 - file));
        QCOMPARE(desk.numbers.next_number(), file);
        for (int number = 0; number < file + 2; ++number)
            QCOMPARE(desk.numbers.next_number(), 20);
        desk.dialog->hide();
        desk.dialog->show();
    }
    QVERIFY(desk.numbers.last_number_is_out());
    QCOMPARE(desk.text("LE_left_total_files"), QString("0/12"));
}

void tst_load_files_option::a_collection_without_files_is_refused_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("missing files") << "nothing.snp";
    QTest::newRow("comments") << "comment.snp";
}

void tst_load_files_option::a_collection_without_files_is_refused()
{
    QFETCH(QString, file);
    load_desk desk;
    desk.user.answer(QMessageBox::Ok);
    QVERIFY(!desk.choose(GROUP_LOADFILE, file));
    QCOMPARE(desk.user.boxes().size(), 1);
    const shown_box box = desk.user.boxes().first();
    QCOMPARE(box.title, QString("Öffnen"));
    QCOMPARE(box.text,
             QString("Es wurde keine gültige Ladedatei in der Sammelladedatei gefunden!"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(desk.text("LE_loadfile_group"), QString());
    QVERIFY(desk.is_enabled("LE_loadfile_main"));
    desk.accept();
    QVERIFY(!desk.numbers.load_active());
}

void tst_load_files_option::missing_files_of_a_collection_are_asked_about_data()
{
    QTest::addColumn<bool>("is_wanted");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void tst_load_files_option::missing_files_of_a_collection_are_asked_about()
{
    QFETCH(bool, is_wanted);
    load_desk desk;
    desk.user.answer(is_wanted ? QMessageBox::Yes : QMessageBox::No);
    QCOMPARE(desk.choose(GROUP_LOADFILE, "gone.snp"), is_wanted);
    QCOMPARE(desk.user.boxes().size(), 1);
    const shown_box box = desk.user.boxes().first();
    QCOMPARE(box.title, QString("Öffnen"));
    QCOMPARE(box.text,
             QString("Folgende Dateien (in der Sammelladedatei) wurden nicht gefunden:\n"
                     "away.inp lost.inp\n"
                     "Sollen die restlichen Dateien trotzdem geladen werden?"));
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(desk.text("LE_left_total_files"), QString(is_wanted ? "1/1" : "0/0"));
    QCOMPARE(desk.is_enabled("LE_loadfile_main"), !is_wanted);
}

void tst_load_files_option::the_same_collection_again_is_no_change()
{
    load_desk desk;
    desk.choose(GROUP_LOADFILE, "short.snp");
    desk.choose(GROUP_LOADFILE, "short.snp");
    desk.accept();
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(desk.numbers.load_settings().description, QString("(* two files"));
    desk.choose(GROUP_LOADFILE, "other.snp"); // the same files, the other way round
    desk.user.answer(QMessageBox::Yes);
    desk.accept();
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.numbers.load_files().first(), place_of("two.inp"));
}

void tst_load_files_option::off_clears_the_load_state()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.accept();
    QVERIFY(desk.numbers.load_active());
    const QSignalSpy shown(desk.dialog.get(), &load_files_option::display_actual_load_file_info);
    desk.active_box().setChecked(false);
    desk.accept();
    QVERIFY(!desk.numbers.load_active());
    QCOMPARE(desk.numbers.get_source_mode(), number_source::random);
    QCOMPARE(desk.numbers.load_files(), empty_file_places());
    QCOMPARE(shown.size(), 1);
    QCOMPARE(shown.first().first().toBool(), false);
    QVERIFY(desk.dialog->isHidden());
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4")); // the choice stays
}

void tst_load_files_option::without_a_main_file_nothing_happens()
{
    load_desk desk;
    load_file_settings other;
    other.active = true;
    other.files[0] = place_of("two.inp");
    desk.numbers.set_load_files(other);
    const QSignalSpy shown(desk.dialog.get(), &load_files_option::display_actual_load_file_info);
    const QSignalSpy waits(desk.dialog.get(),
                           &load_files_option::display_wait_actual_load_file_info);
    desk.accept();
    QVERIFY(shown.isEmpty() && waits.isEmpty() && desk.user.boxes().isEmpty());
    QVERIFY(desk.numbers.load_active());
    QCOMPARE(desk.numbers.load_files().first(), place_of("two.inp"));
}

void tst_load_files_option::the_first_load_run_is_applied_at_once_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("start_mode");
    QTest::addColumn<bool>("pauses");
    QTest::newRow("normal") << "RB_normal_start" << 0 << true;
    QTest::newRow("fix") << "RB_fix_start" << 1 << false;
    QTest::newRow("random 1") << "RB_random_1_start" << 2 << true;
    QTest::newRow("random 2") << "RB_random_2_start" << 3 << false;
}

void tst_load_files_option::the_first_load_run_is_applied_at_once()
{
    QFETCH(QString, button);
    QFETCH(int, start_mode);
    QFETCH(bool, pauses);
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "nine.inp"); // 12 numbers
    desk.choose(FOLLOW_LOADFILE_1, "ten.inp");
    desk.spin("SB_fix_start").setValue(2);
    desk.spin("SB_random_1_begin").setValue(3);
    desk.spin("SB_random_1_end").setValue(7);
    desk.spin("SB_random_2_max_attack").setValue(4);
    desk.spin("SB_random_2_length").setValue(2);
    desk.check(qPrintable(button));
    child_of<QCheckBox>(*desk.dialog, "CB_break_modus")->setChecked(pauses);

    QStringList told;
    const auto is_loaded = [&] { return desk.numbers.load_active() ? " loaded" : " not yet"; };
    connect(desk.dialog.get(), &load_files_option::display_wait_actual_load_file_info, this, [&] {
        told.append(QString("wait") + is_loaded());
    });
    connect(
        desk.dialog.get(),
        &load_files_option::display_actual_load_file_info,
        this,
        [&](bool display) { told.append((display ? "shown" : "hidden") + QString(is_loaded())); });
    desk.accept();
    QCOMPARE(told, QStringList({"wait not yet", "shown loaded"}));
    QVERIFY(desk.user.boxes().isEmpty());
    QVERIFY(desk.dialog->isHidden());

    load_file_settings expected;
    expected.active = true;
    expected.files[0] = place_of("nine.inp");
    expected.files[1] = place_of("ten.inp");
    expected.start_mode = start_mode;
    expected.fix_start = 2;
    expected.random_1_begin = 3;
    expected.random_1_end = 7;
    expected.random_2_max_attack = 4;
    expected.random_2_length = 2;
    expected.pause_at_end = pauses;
    QVERIFY(desk.numbers.load_settings() == expected);
    QCOMPARE(desk.numbers.get_source_mode(), number_source::load_file);
}

void tst_load_files_option::nothing_new_is_not_applied()
{
    load_desk desk;
    desk.click("PB_group_loadfile_reset");
    const QSignalSpy shown(desk.dialog.get(), &load_files_option::display_actual_load_file_info);
    desk.accept();
    QVERIFY(shown.isEmpty());
    QVERIFY(desk.dialog->isHidden());
    QVERIFY(!desk.numbers.load_active());
}

void tst_load_files_option::a_change_is_asked_about_at_each_ok()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.accept();
    QVERIFY(desk.user.boxes().isEmpty());

    const QSignalSpy waits(desk.dialog.get(),
                           &load_files_option::display_wait_actual_load_file_info);
    desk.choose(MAIN_LOADFILE, "two.inp");
    for (int ok = 1; ok <= 3; ++ok) {
        desk.user.answer(QMessageBox::Yes);
        desk.accept();
        QCOMPARE(desk.user.boxes().size(), ok);
        QCOMPARE(desk.user.boxes().last().title, QString("Reset"));
        QCOMPARE(desk.user.boxes().last().text,
                 QString("Sollen die neuen Ladedateien übernommen werden?"));
        QCOMPARE(desk.user.boxes().last().icon, QMessageBox::Question);
        QCOMPARE(desk.numbers.load_files().first(), place_of("two.inp"));
        QCOMPARE(desk.numbers.next_number(), 2); // from the beginning again
    }
    QVERIFY(waits.isEmpty());
}

void tst_load_files_option::a_refused_change_is_not_applied()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.accept();
    QCOMPARE(desk.numbers.next_number(), 1);
    desk.choose(MAIN_LOADFILE, "two.inp");
    const QSignalSpy shown(desk.dialog.get(), &load_files_option::display_actual_load_file_info);
    desk.user.answer(QMessageBox::No);
    desk.accept();
    QVERIFY(shown.isEmpty());
    QVERIFY(desk.dialog->isHidden());
    QCOMPARE(desk.numbers.load_files().first(), place_of("one.inp"));
    QCOMPARE(desk.numbers.next_number(), 20);
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("5"));
}

void tst_load_files_option::a_new_file_is_applied_at_each_ok()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.accept();
    QCOMPARE(desk.numbers.next_number(), 1);
    QCOMPARE(desk.numbers.next_number(), 20);
    desk.accept();
    QCOMPARE(desk.numbers.next_number(), 1);
    QVERIFY(desk.user.boxes().isEmpty());
}

void tst_load_files_option::cancel_applies_nothing()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    const QSignalSpy shown(desk.dialog.get(), &load_files_option::display_actual_load_file_info);
    child_of<QDialogButtonBox>(*desk.dialog, "buttonBox")
        ->button(QDialogButtonBox::Cancel)
        ->click();
    QVERIFY(desk.dialog->isHidden());
    QVERIFY(shown.isEmpty());
    QVERIFY(!desk.numbers.load_active());
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
}

void tst_load_files_option::the_main_reset_asks_first()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "double_zero.inp");
    desk.choose(FOLLOW_LOADFILE_1, "two.inp");
    desk.user.answer(QMessageBox::No);
    desk.click("PB_main_loadfile_reset");
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().title, QString("Reset"));
    QCOMPARE(desk.user.boxes().first().text,
             QString("Hauptladefile und Folgefiles wirklich löschen?"));
    QCOMPARE(desk.user.boxes().first().icon, QMessageBox::Question);
    QCOMPARE(desk.text("LE_loadfile_follow_cup_1"), QString("5"));
    QVERIFY(!desk.label("LB_00_warning").isEmpty());

    desk.user.answer(QMessageBox::Yes);
    desk.click("PB_main_loadfile_reset");
    QCOMPARE(desk.text("LE_loadfile_main"), QString());
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("0"));
    QCOMPARE(desk.text("LE_loadfile_follow_1"), QString());
    QCOMPARE(desk.leds(), QString("red red red"));
    QVERIFY(!desk.is_enabled("LE_loadfile_follow_1"));
    QVERIFY(desk.is_enabled("LE_loadfile_group"));
    QVERIFY(desk.is_enabled("LE_loadfile_main"));
    QVERIFY(desk.label("LB_00_warning").isEmpty());
}

void tst_load_files_option::the_group_reset_asks_nothing()
{
    load_desk desk;
    desk.choose(GROUP_LOADFILE, "collection.snp");
    desk.click("PB_group_loadfile_reset");
    QVERIFY(desk.user.boxes().isEmpty());
    QCOMPARE(desk.text("LE_loadfile_group"), QString());
    QCOMPARE(desk.text("LE_left_total_files"), QString("0/0"));
    QCOMPARE(desk.text("LE_loadfile_main"), QString());
    QCOMPARE(desk.text("LE_loadfile_follow_cup_8"), QString("0"));
    QVERIFY(!desk.is_shown("LB_continue"));
    QVERIFY(desk.is_enabled("LE_loadfile_main"));
    QVERIFY(desk.is_enabled("LE_loadfile_follow_1"));
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.accept();
    QVERIFY(desk.numbers.load_settings().group_file.isEmpty());
    QCOMPARE(desk.numbers.load_settings().group_file_count, 0);
}

void tst_load_files_option::the_active_box_disables_the_files()
{
    load_desk desk;
    desk.active_box().setChecked(false);
    QStringList names = {"LE_loadfile_main",
                         "LE_loadfile_main_cups",
                         "PB_main_loadfile_reset",
                         "LE_loadfile_group",
                         "LE_left_total_files",
                         "PB_group_loadfile_reset"};
    for (int place = 1; place <= 8; ++place) {
        names.append(QString("LE_loadfile_follow_%1").arg(place));
        names.append(QString("LE_loadfile_follow_cup_%1").arg(place));
    }
    for (const QString& name : qAsConst(names))
        QVERIFY2(!desk.is_enabled(name), qPrintable(name));
    desk.active_box().setChecked(true);
    for (const QString& name : qAsConst(names))
        QVERIFY2(desk.is_enabled(name), qPrintable(name));
}

void tst_load_files_option::the_active_box_opens_what_fits_the_choice()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    desk.active_box().setChecked(false);
    desk.active_box().setChecked(true);
    QVERIFY(desk.is_enabled("LE_loadfile_main") && desk.is_enabled("LE_loadfile_follow_1"));
    QVERIFY(!desk.is_enabled("LE_loadfile_group"));

    desk.user.answer(QMessageBox::Yes);
    desk.click("PB_main_loadfile_reset");
    desk.choose(GROUP_LOADFILE, "short.snp");
    desk.active_box().setChecked(false);
    desk.active_box().setChecked(true);
    QVERIFY(!desk.is_enabled("LE_loadfile_main") && !desk.is_enabled("LE_loadfile_follow_1"));
    QVERIFY(desk.is_enabled("LE_loadfile_group"));
}

void tst_load_files_option::a_double_zero_is_warned_of_data()
{
    QTest::addColumn<bool>("american");
    QTest::newRow("french") << false;
    QTest::newRow("american") << true;
}

void tst_load_files_option::a_double_zero_is_warned_of()
{
    QFETCH(bool, american);
    load_desk desk;
    desk.settings.set_s_table_form(american ? 1 : 0);
    desk.choose(MAIN_LOADFILE, "double_zero.inp");
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
    QCOMPARE(desk.label("LB_00_warning"),
             american ? QString()
                      : QString("WARNUNG - 00 (Dopple Zero) in den Ladefiles gefunden "
                                "(Französicher Tisch)!"));
    desk.choose(MAIN_LOADFILE, "one.inp");
    QCOMPARE(desk.label("LB_00_warning"), QString());
}

void tst_load_files_option::the_warning_follows_the_slot()
{
    load_desk desk;
    desk.dialog->display_loadfile_00_warning_on_franz_table(true);
    QCOMPARE(desk.label("LB_00_warning"),
             QString("WARNUNG - 00 (Dopple Zero) in den Ladefiles gefunden (Französicher Tisch)!"));
    desk.dialog->display_loadfile_00_warning_on_franz_table(false);
    QCOMPARE(desk.label("LB_00_warning"), QString());
}

void tst_load_files_option::counting_shows_that_it_waits()
{
    load_desk desk;
    QCOMPARE(desk.wait_timer().interval(), 1000);
    bool was_read = false;
    desk.in_the_middle_of_a_read([&] {
        was_read = true;
        QVERIFY(desk.wait_timer().isActive());
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QVERIFY(desk.is_shown("LB_please_wait"));
        QVERIFY(!desk.is_enabled("buttonBox"));
        QVERIFY(!desk.is_enabled("PB_main_loadfile_reset"));
        QVERIFY(!desk.is_enabled("PB_group_loadfile_reset"));
        fire(&desk.wait_timer());
        QVERIFY(!desk.is_shown("LB_please_wait"));
        fire(&desk.wait_timer());
        QVERIFY(desk.is_shown("LB_please_wait"));
    });
    desk.choose(MAIN_LOADFILE, "one.inp");
    QVERIFY(was_read);
    QVERIFY(!desk.wait_timer().isActive());
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(!desk.is_shown("LB_please_wait"));
    QVERIFY(desk.is_enabled("buttonBox"));
    QVERIFY(desk.is_enabled("PB_main_loadfile_reset"));
}

void tst_load_files_option::nothing_begins_a_second_count()
{
    load_desk desk;
    const QSignalSpy shown(desk.dialog.get(), &load_files_option::display_actual_load_file_info);
    bool was_read = false;
    desk.in_the_middle_of_a_read([&] {
        was_read = true;
        QVERIFY(!desk.dialog->select_load_file(MAIN_LOADFILE));
        for (const char* slot : {"on_buttonBox_accepted",
                                 "on_PB_main_loadfile_reset_clicked",
                                 "on_PB_group_loadfile_reset_clicked"}) {
            QVERIFY(QMetaObject::invokeMethod(desk.dialog.get(), slot));
        }
        desk.active_box().setChecked(false);
        desk.active_box().setChecked(true);
        QVERIFY(!desk.is_enabled("PB_main_loadfile_reset"));
    });
    desk.choose(MAIN_LOADFILE, "one.inp");
    QVERIFY(was_read);
    QCOMPARE(desk.requests.size(), 1);
    QVERIFY(desk.user.boxes().isEmpty() && shown.isEmpty());
    QVERIFY(desk.dialog->isVisible());
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
    QVERIFY(desk.is_enabled("PB_main_loadfile_reset"));
}

void tst_load_files_option::a_dialog_closed_while_it_counts_closes_behind_it()
{
    load_desk desk;
    desk.in_the_middle_of_a_read([&] {
        desk.dialog->close();
        QVERIFY(desk.dialog->isVisible());
        QTest::keyClick(desk.dialog.get(), Qt::Key_Escape);
        QVERIFY(desk.dialog->isVisible());
    });
    const QSignalSpy closed(desk.dialog.get(), &QDialog::finished);
    desk.choose(MAIN_LOADFILE, "one.inp");
    QVERIFY(desk.dialog->isHidden());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
    QVERIFY(!QGuiApplication::overrideCursor());

    desk.dialog->show();
    desk.choose(MAIN_LOADFILE, "two.inp"); // closes only once
    QVERIFY(desk.dialog->isVisible());
}

void tst_load_files_option::a_dialog_deleted_while_it_counts_leaves_the_cursor_alone_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("choice") << "choice";
    QTest::newRow("apply") << "apply";
}

void tst_load_files_option::a_dialog_deleted_while_it_counts_leaves_the_cursor_alone()
{
    QFETCH(QString, way);
    load_desk desk;
    if (way == "apply") desk.choose(MAIN_LOADFILE, "one.inp");
    bool was_deleted = false;
    desk.in_the_middle_of_a_read([&] {
        was_deleted = true;
        desk.dialog.reset();
    });
    if (way == "choice") desk.choose(MAIN_LOADFILE, "one.inp");
    if (way == "apply") {
        QMetaObject::invokeMethod(desk.dialog.get(), "on_buttonBox_accepted");
    }
    QVERIFY(was_deleted);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_load_files_option::a_run_that_is_read_shows_that_it_waits()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "one.inp");
    bool was_read = false;
    const QSignalSpy closed(desk.dialog.get(), &QDialog::finished);
    desk.in_the_middle_of_a_read([&] {
        was_read = true;
        QVERIFY(QGuiApplication::overrideCursor());
        QVERIFY(desk.dialog->isVisible());
        QVERIFY(!desk.is_enabled("buttonBox"));
        QVERIFY(!desk.dialog->select_load_file(MAIN_LOADFILE));
        desk.dialog->close();
    });
    desk.accept();
    QVERIFY(was_read);
    QVERIFY(desk.dialog->isHidden());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(desk.dialog->result(), int(QDialog::Accepted));
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(desk.numbers.load_active());
}

void tst_load_files_option::the_files_left_follow_the_run()
{
    load_desk desk;
    desk.choose(GROUP_LOADFILE, "short.snp"); // 4 and 5 numbers
    desk.accept();
    QCOMPARE(desk.text("LE_left_total_files"), QString("2/2"));
    for (int number = 0; number < 5; ++number)
        desk.numbers.next_number(); // the fifth is the first of the second file
    QCOMPARE(desk.text("LE_left_total_files"), QString("1/2"));
    desk.choose(GROUP_LOADFILE, "other.snp"); // not played yet
    QCOMPARE(desk.text("LE_left_total_files"), QString("2/2"));
}

void tst_load_files_option::the_choice_outlives_the_run()
{
    load_desk desk;
    desk.choose(GROUP_LOADFILE, "short.snp");
    desk.accept();
    desk.numbers.reset_load_files();
    QCOMPARE(desk.text("LE_left_total_files"), QString("0/2"));
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
    QVERIFY(!desk.text("LE_loadfile_group").isEmpty());
    desk.accept();
    QVERIFY(desk.numbers.load_active());
    QCOMPARE(desk.text("LE_left_total_files"), QString("2/2"));
    QCOMPARE(desk.numbers.next_number(), 1);
}

void tst_load_files_option::the_language_changes_live()
{
    load_desk desk;
    desk.choose(MAIN_LOADFILE, "double_zero.inp");
    desk.spin("SB_fix_start").setValue(2);
    desk.dialog->setWindowTitle({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(desk.dialog.get(), &change);
    QCOMPARE(desk.dialog->windowTitle(), QString("Lademenü"));
    QCOMPARE(desk.label("LB_max_fix_start"), QString("(max. 4)"));
    QVERIFY(!desk.label("LB_00_warning").isEmpty());
    QCOMPARE(desk.text("LE_loadfile_main_cups"), QString("4"));
    QVERIFY(!desk.text("LE_loadfile_main").isEmpty());
    QCOMPARE(desk.start_mode(), QString("RB_fix_start"));
}

void tst_load_files_option::nothing_is_clipped_at_any_scale_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full") << 0 << QSize(1200, 600);
    QTest::newRow("0.1") << 1 << QSize(1080, 540);
    QTest::newRow("0.2") << 2 << QSize(960, 480);
    QTest::newRow("0.3") << 3 << QSize(840, 420);
}

void tst_load_files_option::nothing_is_clipped_at_any_scale()
{
    QFETCH(int, step);
    QFETCH(QSize, size);
    load_desk desk;
    desk.choose(GROUP_LOADFILE, "collection.snp");
    desk.settings.set_s_scr_res_factor(step);
    desk.dialog->modify_window_based_on_scale();
    desk.dialog->show();
    QCoreApplication::processEvents();
    // Larger fonts of another desktop may make it larger.
    QVERIFY(desk.dialog->width() >= size.width() && desk.dialog->height() >= size.height());
    QCOMPARE(desk.leds(), QString("green green green"));
    const auto children = desk.dialog->findChildren<QWidget*>();
    for (const QWidget* child : children) {
        const QString name = child->objectName();
        if (child->isHidden() || name.isEmpty() || name.startsWith("qt_")) continue;
        const QRect inside = child->parentWidget()->rect();
        const QString text = child->property("text").toString();
        const QSize needed = child->fontMetrics().size(Qt::TextSingleLine, text);
        QVERIFY2(inside.contains(child->geometry()), qPrintable(child->objectName()));
        if (text.isEmpty() || child->inherits("QSpinBox")) continue;
        QVERIFY2(child->height() + 1 >= needed.height(), qPrintable(child->objectName()));
        if (child->inherits("QLineEdit") || child->objectName() == "LB_00_warning") continue;
        QVERIFY2(child->width() >= needed.width(), qPrintable(child->objectName()));
    }
}

int main(int argc, char** argv)
{
    return run_window_test<tst_load_files_option>(argc, argv);
}

#include "tst_load_files_option.moc"
