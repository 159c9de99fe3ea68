#include "desktop_bench.h"
#include "file_dialog.h"
#include "known_draws.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSpinBox>

using general_player::PLAYER_1;

/// Recorded numbers instead of the generator: chosen in the load menu, played coup by coup at the
/// table, and what the user sees of it.
class tst_load_run_in_window : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void a_run_from_the_menu_to_its_end();
    void without_the_pause_flag_it_ends_silently();
    void follow_files_show_their_name_with_their_first_number();
    void a_name_may_hold_what_looks_like_a_place();
    void three_hand_changes_are_three_entries_and_one_coup();
    void a_mark_at_the_beginning_comes_before_the_first_number();
    void a_run_that_ends_on_a_mark_has_no_coup_behind_it();
    void a_file_of_marks_alone_is_played_between_two_files();
    void a_start_mode_that_leaves_nothing_ends_the_run_at_the_first_draw();
    void the_fix_start_begins_behind_its_numbers();
    void a_collection_is_played_through();
    void the_end_of_the_run_ends_a_super_short_game();
    void a_super_short_game_goes_on_behind_a_silent_end();
    void three_hundred_numbers_come_in_order();
    void the_load_menu_rests_while_the_game_runs();
    void a_manual_number_comes_between_two_of_the_file();
    void a_double_zero_data();
    void a_double_zero();
    void values_above_36_are_left_out();
    void a_file_that_is_gone_before_ok_gives_no_number();
    void a_follow_file_that_is_gone_ends_the_run();
    void an_unreadable_file_gives_no_number_data();
    void an_unreadable_file_gives_no_number();
    void a_cancelled_file_dialog_chooses_nothing();
    void switched_off_the_generator_plays();
    void stop_keeps_the_run();
    void stop_while_a_follow_file_is_read();

private:
    using place = QPair<const char*, QString>; ///< line edit, and the file chosen in it
    void choose(const desktop_bench& bench,
                const QVector<place>& files,
                const std::function<void(QWidget&)>& act = {});
    void expect_end_box() { user.answer(QMessageBox::Ok); }
    void check_end_box() const;

    box_user user;
    QString chosen;
    QVector<file_dialog::request> requests;
};

namespace
{

constexpr const char* main_edit = "LE_loadfile_main";
constexpr const char* follow_edit_1 = "LE_loadfile_follow_1";
constexpr const char* follow_edit_2 = "LE_loadfile_follow_2";
constexpr const char* group_edit = "LE_loadfile_group";

QString file_of(const QString& name, const QByteArray& content)
{
    const QString path = QDir::current().absoluteFilePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
    return path;
}

QString label(const desktop_bench& bench, const QString& name)
{
    return bench.child<QLabel>(name)->text();
}

/// The file in play as the table names it; "hidden" while it names none.
QString load_label(const desktop_bench& bench)
{
    auto* shown = bench.child<QLabel>("LB_actual_load_file");
    return shown->isVisible() ? shown->text() : QStringLiteral("hidden");
}

/// The two columns of last numbers, the oldest shown first, as "left/right".
QStringList last_labels(const desktop_bench& bench, int count)
{
    QStringList texts;
    for (int i = 11 - count; i <= 10; ++i) {
        texts.append(label(bench, QStringLiteral("LB_ND_DA_N_%1").arg(i)) + QLatin1Char('/') +
                     label(bench, QStringLiteral("LB_ND_DA_R_%1").arg(i)));
    }
    return texts;
}

void throw_ball(const desktop_bench& bench)
{
    bench.right_click_wheel();
    bench.finish_coup();
}

/// A permanence to its beginning, the oldest first.
QList<int> all_numbers(const desktop_bench& bench)
{
    QList<int> numbers;
    for (const quint8 number : bench.numbers().history().all())
        numbers.append(number);
    return numbers;
}

void no_pause(QWidget& dialog)
{
    child_of<QCheckBox>(dialog, QStringLiteral("CB_break_modus"))->setChecked(false);
}

} // namespace

void tst_load_run_in_window::init()
{
    user.forget();
    requests.clear();
    file_dialog::set_chooser([this](const file_dialog::request& what) {
        requests.append(what);
        return chosen;
    });
}

void tst_load_run_in_window::cleanup()
{
    file_dialog::set_chooser({});
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

/// Opens the load menu, presses line edits and chooses their files, acts, and says OK.
void tst_load_run_in_window::choose(const desktop_bench& bench,
                                    const QVector<place>& files,
                                    const std::function<void(QWidget&)>& act)
{
    user.with_dialog("load_files_option", [&, files, act](QWidget* dialog) {
        for (const place& file : files) {
            chosen = file.second;
            QTest::mouseClick(child_of<QLineEdit>(*dialog, QString::fromLatin1(file.first)),
                              Qt::LeftButton);
            bench.settle();
        }
        if (act) act(*dialog);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionLadedateien");
    bench.settle();
}

void tst_load_run_in_window::check_end_box() const
{
    QCOMPARE(user.boxes().size(), 1);
    QCOMPARE(user.boxes().first().title, QStringLiteral("Die Ladedatei Funktion wurde beendet!"));
    QCOMPARE(user.boxes().first().text,
             QStringLiteral("Alle Dateien wurden fertig gespielt und der Pause Modus wurde "
                            "aktiviert!"));
}

void tst_load_run_in_window::a_run_from_the_menu_to_its_end()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("evening.inp", "an evening\n17 4\n0\n")}});
    QCOMPARE(requests.size(), 1); // one press, one file dialog
    QCOMPARE(requests.first().title, QStringLiteral("Datei öffnen"));
    QCOMPARE(requests.first().filter, QStringLiteral("Ladedateien (*.inp)"));
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: evening.inp (3 Coups)"));

    bench.trigger("actionStart");
    bench.click(jetons::PL17);
    throw_ball(bench);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    throw_ball(bench);
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: evening.inp (3 Coups)"));
    QCOMPARE(bench.numbers().get_source_mode(), number_source::load_file);
    bench.click(jetons::PL00);
    expect_end_box();
    throw_ball(bench); // the last number is played before the run ends
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2070));
    QCOMPARE(all_numbers(bench), QList<int>({17, 4, 0}));
    QCOMPARE(last_labels(bench, 3), QStringList({"17/", "4/", "0/0"}));
    check_end_box();
    QCOMPARE(bench.settings().state(), game_state::paused);
    QCOMPARE(bench.child<QAction>("actionPause")->text(), QStringLiteral("Weiter"));
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    QCOMPARE(bench.numbers().get_source_mode(), number_source::random);

    throw_ball(bench); // nothing moves in the pause
    QCOMPARE(all_numbers(bench).size(), 3);
    bench.trigger("actionPause");
    throw_ball(bench);
    known_draws draws(1, 37);
    QCOMPARE(all_numbers(bench), QList<int>({17, 4, 0, draws.next()}));
}

void tst_load_run_in_window::without_the_pause_flag_it_ends_silently()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("two.inp", "8 9")}}, no_pause);
    bench.trigger("actionStart");
    throw_ball(bench);
    throw_ball(bench);
    QCOMPARE(bench.settings().state(), game_state::running);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    QCOMPARE(bench.numbers().get_source_mode(), number_source::random);
    throw_ball(bench);
    known_draws draws(1, 37);
    QCOMPARE(all_numbers(bench), QList<int>({8, 9, draws.next()}));
}

void tst_load_run_in_window::follow_files_show_their_name_with_their_first_number()
{
    desktop_bench bench;
    choose(bench,
           {{main_edit, file_of("one.inp", "1")},
            {follow_edit_1, file_of("two.inp", "2 3")},
            {follow_edit_2, file_of("three.inp", "4")}});
    QCOMPARE(requests.size(), 3);
    bench.trigger("actionStart");
    throw_ball(bench);
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: one.inp (1 Coups)"));
    throw_ball(bench);
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: two.inp (2 Coups)"));
    throw_ball(bench);
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: two.inp (2 Coups)"));
    expect_end_box();
    throw_ball(bench);
    check_end_box();
    QCOMPARE(all_numbers(bench), QList<int>({1, 2, 3, 4}));
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
}

void tst_load_run_in_window::a_name_may_hold_what_looks_like_a_place()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("50%1 %2.inp", "1 2 3")}});
    bench.trigger("actionStart");
    throw_ball(bench);
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: 50%1 %2.inp (3 Coups)"));
}

void tst_load_run_in_window::three_hand_changes_are_three_entries_and_one_coup()
{
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    QSignalSpy changed(bench.window.get(), &MainWindow::hand_change_throw_end);
    choose(bench, {{main_edit, file_of("marks.inp", "5\n-\n-\n-\n7\n20\n")}});
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: marks.inp (3 Coups)"));
    bench.trigger("actionStart");
    throw_ball(bench);
    bench.click(jetons::PL07);
    throw_ball(bench);
    QCOMPARE(thrown.size(), 2);
    QCOMPARE(changed.size(), 3);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QCOMPARE(all_numbers(bench), QList<int>({5, 99, 99, 99, 7}));
    QCOMPARE(last_labels(bench, 6), QStringList({"/", "/5", "--/--", "--/--", "--/--", "/7"}));
}

void tst_load_run_in_window::a_mark_at_the_beginning_comes_before_the_first_number()
{
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench, {{main_edit, file_of("marks.inp", "-\n-\n31\n2\n")}});
    bench.trigger("actionStart");
    QCOMPARE(all_numbers(bench), QList<int>());
    throw_ball(bench);
    QCOMPARE(thrown.size(), 1);
    QCOMPARE(all_numbers(bench), QList<int>({99, 99, 31}));
    QCOMPARE(last_labels(bench, 3), QStringList({"--/--", "--/--", "31/"}));
}

void tst_load_run_in_window::a_run_that_ends_on_a_mark_has_no_coup_behind_it()
{
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench, {{main_edit, file_of("marks.inp", "4\n-\n")}});
    bench.trigger("actionStart");
    throw_ball(bench);
    QCOMPARE(bench.settings().state(), game_state::running); // an entry is left
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: marks.inp (1 Coups)"));
    bench.click(jetons::PL30);
    expect_end_box();
    throw_ball(bench); // the mark comes, and no number behind it
    check_end_box();
    QCOMPARE(thrown.size(), 1);
    QCOMPARE(all_numbers(bench), QList<int>({4, 99}));
    QCOMPARE(last_labels(bench, 2), QStringList({"4/", "--/--"}));
    QCOMPARE(bench.settings().state(), game_state::paused);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 1); // the bet waits for the next coup
    QVERIFY(bench.table().all_may_set());

    bench.trigger("actionPause");
    QCOMPARE(bench.child<QProgressBar>("time_bar")->text(), QStringLiteral("Manuell"));
    bench.play(30);
    QCOMPARE(thrown.size(), 2);
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
}

void tst_load_run_in_window::a_file_of_marks_alone_is_played_between_two_files()
{
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench,
           {{main_edit, file_of("one.inp", "1")},
            {follow_edit_1, file_of("marks.inp", "-\n-\n")},
            {follow_edit_2, file_of("three.inp", "3 6")}});
    bench.trigger("actionStart");
    throw_ball(bench);
    throw_ball(bench);
    QCOMPARE(thrown.size(), 2);
    QCOMPARE(all_numbers(bench), QList<int>({1, 99, 99, 3}));
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: three.inp (2 Coups)"));
}

void tst_load_run_in_window::a_start_mode_that_leaves_nothing_ends_the_run_at_the_first_draw()
{
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench, {{main_edit, file_of("five.inp", "1 2 3 4 5")}}, [](QWidget& dialog) {
        child_of<QSpinBox>(dialog, QStringLiteral("SB_random_1_end"))->setValue(1);
        QVERIFY(child_of<QRadioButton>(dialog, QStringLiteral("RB_random_1_start"))->isChecked());
    });
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: five.inp (0 Coups)"));
    bench.trigger("actionStart");
    bench.click(jetons::PL30);
    expect_end_box();
    throw_ball(bench);
    check_end_box();
    QCOMPARE(thrown.size(), 0);
    QCOMPARE(all_numbers(bench), QList<int>());
    QCOMPARE(bench.table().count(PLAYER_1, jetons::PL30), 1);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    bench.trigger("actionPause");
    throw_ball(bench);
    known_draws draws(1, 37);
    QCOMPARE(all_numbers(bench), QList<int>({draws.next()}));
}

void tst_load_run_in_window::the_fix_start_begins_behind_its_numbers()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("five.inp", "1 2 3 4 5")}}, [](QWidget& dialog) {
        child_of<QSpinBox>(dialog, QStringLiteral("SB_fix_start"))->setValue(2);
    });
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: five.inp (3 Coups)"));
    bench.trigger("actionStart");
    throw_ball(bench);
    QCOMPARE(all_numbers(bench), QList<int>({3}));
}

void tst_load_run_in_window::a_collection_is_played_through()
{
    desktop_bench bench;
    QVERIFY(QDir().mkpath(QStringLiteral("days")));
    QByteArray names = "// twelve days\n";
    for (int day = 1; day <= 12; ++day) {
        const QString name = QStringLiteral("days/day%1.inp").arg(day);
        file_of(name, QByteArray::number(day) + '\n');
        names += name.mid(5).toLatin1() + '\n';
    }
    choose(bench, {{group_edit, file_of("days/all.snp", names)}});
    QCOMPARE(requests.first().filter, QStringLiteral("Sammelladedateien (*.snp)"));
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: day1.inp (1 Coups)"));
    bench.trigger("actionStart");
    QList<int> expected;
    for (int day = 1; day <= 12; ++day) {
        if (day == 12) expect_end_box();
        throw_ball(bench);
        expected.append(day);
        const QString shown = QStringLiteral("Ladedatei: day%1.inp (1 Coups)").arg(day);
        QCOMPARE(load_label(bench), day == 12 ? QStringLiteral("hidden") : shown);
    }
    QCOMPARE(all_numbers(bench), expected);
    check_end_box();
}

void tst_load_run_in_window::the_end_of_the_run_ends_a_super_short_game()
{
    desktop_bench bench(
        {QStringLiteral("s_su_shortthrow_activ=false"), QStringLiteral("s_balkenzeit=10000")});
    choose(bench, {{main_edit, file_of("six.inp", "6 5 4\n-\n3 2 1")}});
    bench.trigger("actionStart");
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QSpinBox>(*dialog, QStringLiteral("SB_coups"))->setValue(0);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSuperkurzspiel");
    expect_end_box();
    bench.finish_coup();
    check_end_box();
    QCOMPARE(all_numbers(bench), QList<int>({6, 5, 4, 99, 3, 2, 1}));
    QVERIFY(!bench.child<QAction>("actionSuperkurzspiel")->isChecked());
    QCOMPARE(bench.child<QPushButton>("PB_super_short_play")->text(),
             QStringLiteral("Superkurzspiel"));
    QVERIFY(!bench.settings().s_su_shortthrow_activ());
    QVERIFY(!bench.child<QTimer>("pause_poll_timer")->isActive());
    QCOMPARE(bench.settings().state(), game_state::paused);

    auto* bar = bench.child<QProgressBar>("time_bar");
    auto* timer = bench.child<QTimer>("update_timer");
    fire(timer);
    QCOMPARE(bar->text(), QStringLiteral("Pause"));
    QCOMPARE(bar->value(), 0);
    bench.trigger("actionPause");
    fire(timer);
    QCOMPARE(bar->text(), QStringLiteral("Machen Sie Ihr Spiel!"));
    QCOMPARE(bar->value(), 1);
}

void tst_load_run_in_window::a_super_short_game_goes_on_behind_a_silent_end()
{
    desktop_bench bench({QStringLiteral("s_balkenzeit=10000")});
    choose(bench, {{main_edit, file_of("marks.inp", "6 5\n-\n")}}, no_pause);
    bench.trigger("actionStart");
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QSpinBox>(*dialog, QStringLiteral("SB_coups"))->setValue(5);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSuperkurzspiel");
    bench.finish_coup();
    known_draws draws(1, 37);
    QList<int> expected = {6, 5, 99}; // the mark behind the last number is no coup
    for (int coup = 0; coup < 3; ++coup)
        expected.append(draws.next());
    QCOMPARE(all_numbers(bench), expected);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    QCOMPARE(bench.settings().state(), game_state::running);
    QVERIFY(!bench.child<QAction>("actionSuperkurzspiel")->isChecked());
}

void tst_load_run_in_window::three_hundred_numbers_come_in_order()
{
    QByteArray content;
    QList<int> expected;
    for (int i = 0; i < 300; ++i) {
        const int number = (i * i + 5 * i) % 37;
        expected.append(number);
        content += QByteArray::number(number) + (i % 7 == 6 ? '\n' : ' ');
    }
    desktop_bench bench(
        {QStringLiteral("s_su_shortthrow_activ=false"), QStringLiteral("s_balkenzeit=10000")});
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench, {{main_edit, file_of("many.inp", content)}});
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: many.inp (300 Coups)"));
    bench.trigger("actionStart");
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QSpinBox>(*dialog, QStringLiteral("SB_coups"))->setValue(300);
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSuperkurzspiel");
    expect_end_box();
    bench.finish_coup();
    check_end_box();
    QCOMPARE(thrown.size(), 300);
    for (int i = 0; i < 300; ++i)
        QCOMPARE(thrown.at(i).first().toInt(), expected.at(i));
    QCOMPARE(all_numbers(bench), expected);
    QCOMPARE(bench.settings().state(), game_state::paused);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
}

void tst_load_run_in_window::the_load_menu_rests_while_the_game_runs()
{
    desktop_bench bench;
    auto* action = bench.child<QAction>("actionLadedateien");
    QVERIFY(action->isEnabled());
    bench.trigger("actionStart");
    QVERIFY(!action->isEnabled());
    bench.play(3);
    QVERIFY(!action->isEnabled());
    bench.trigger("actionPause");
    QVERIFY(!action->isEnabled());
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QVERIFY(action->isEnabled());
}

void tst_load_run_in_window::a_manual_number_comes_between_two_of_the_file()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("two.inp", "10 11")}});
    bench.trigger("actionStart");
    throw_ball(bench);
    bench.play(36);
    QCOMPARE(bench.numbers().get_source_mode(), number_source::load_file);
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: two.inp (2 Coups)"));
    expect_end_box();
    throw_ball(bench);
    check_end_box();
    QCOMPARE(all_numbers(bench), QList<int>({10, 36, 11}));
}

void tst_load_run_in_window::a_double_zero_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("shown");
    QTest::newRow("French table")
        << QStringLiteral("s_table_form=0")
        << QStringLiteral("WARNUNG - 00 (Dopple Zero) in den Ladefiles gefunden (Französicher "
                          "Tisch)!")
        << 0 << QStringLiteral("0/0");
    QTest::newRow("American table")
        << QStringLiteral("s_table_form=1") << QString() << 37 << QStringLiteral("00/00");
}

void tst_load_run_in_window::a_double_zero()
{
    QFETCH(QString, form);
    QFETCH(QString, warning);
    QFETCH(int, number);
    QFETCH(QString, shown);
    desktop_bench bench({form});
    QString shown_warning;
    choose(bench, {{main_edit, file_of("zero.inp", "0 00 5")}}, [&](QWidget& dialog) {
        shown_warning = child_of<QLabel>(dialog, QStringLiteral("LB_00_warning"))->text();
    });
    QCOMPARE(shown_warning, warning);
    bench.trigger("actionStart");
    throw_ball(bench);
    throw_ball(bench);
    QCOMPARE(all_numbers(bench), QList<int>({0, number}));
    QCOMPARE(last_labels(bench, 2), QStringList({QStringLiteral("0/0"), shown}));
}

void tst_load_run_in_window::values_above_36_are_left_out()
{
    desktop_bench bench({QStringLiteral("s_table_form=1")});
    choose(bench, {{main_edit, file_of("high.inp", "37 36 99 1\n12345678901 2")}});
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: high.inp (3 Coups)"));
    bench.trigger("actionStart");
    throw_ball(bench);
    throw_ball(bench);
    expect_end_box();
    throw_ball(bench);
    QCOMPARE(all_numbers(bench), QList<int>({36, 1, 2}));
}

void tst_load_run_in_window::a_file_that_is_gone_before_ok_gives_no_number()
{
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    const QString path = file_of("gone.inp", "1 2 3");
    choose(bench, {{main_edit, path}}, [path](QWidget&) { QVERIFY(QFile::remove(path)); });
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: gone.inp (0 Coups)"));
    bench.trigger("actionStart");
    expect_end_box();
    throw_ball(bench);
    check_end_box();
    QCOMPARE(thrown.size(), 0);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    bench.trigger("actionPause");
    throw_ball(bench);
    QCOMPARE(thrown.size(), 1);
}

void tst_load_run_in_window::a_follow_file_that_is_gone_ends_the_run()
{
    desktop_bench bench;
    const QString gone = file_of("gone.inp", "7 7 7");
    choose(bench,
           {{main_edit, file_of("two.inp", "1 2")},
            {follow_edit_1, gone},
            {follow_edit_2, file_of("never.inp", "3")}});
    QVERIFY(QFile::remove(gone));
    bench.trigger("actionStart");
    throw_ball(bench);
    expect_end_box();
    throw_ball(bench);
    check_end_box();
    QCOMPARE(all_numbers(bench), QList<int>({1, 2}));
}

void tst_load_run_in_window::an_unreadable_file_gives_no_number_data()
{
    QTest::addColumn<bool>("is_folder");
    QTest::newRow("folder") << true;
    QTest::newRow("no permission") << false;
}

void tst_load_run_in_window::an_unreadable_file_gives_no_number()
{
    QFETCH(bool, is_folder);
    QString path = QDir::current().absoluteFilePath(QStringLiteral("folder.inp"));
    if (is_folder) {
        QVERIFY(QDir().mkpath(path));
    } else {
        path = file_of("closed.inp", "1 2 3");
        QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
        if (QFile file(path); file.open(QIODevice::ReadOnly))
            QSKIP("this user may read every file");
    }
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench, {{main_edit, path}});
    bench.trigger("actionStart");
    expect_end_box();
    throw_ball(bench);
    check_end_box();
    QCOMPARE(thrown.size(), 0);
}

void tst_load_run_in_window::a_cancelled_file_dialog_chooses_nothing()
{
    desktop_bench bench;
    choose(bench, {{main_edit, QString()}});
    QCOMPARE(requests.size(), 1);
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    QVERIFY(!bench.numbers().load_active());
    bench.trigger("actionStart");
    throw_ball(bench);
    known_draws draws(1, 37);
    QCOMPARE(all_numbers(bench), QList<int>({draws.next()}));
}

void tst_load_run_in_window::switched_off_the_generator_plays()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("two.inp", "1 2")}});
    QVERIFY(bench.numbers().load_active());
    choose(bench, {}, [](QWidget& dialog) {
        child_of<QCheckBox>(dialog, QStringLiteral("CB_loadfile_activ"))->setChecked(false);
    });
    QCOMPARE(load_label(bench), QStringLiteral("hidden"));
    bench.trigger("actionStart");
    throw_ball(bench);
    known_draws draws(1, 37);
    QCOMPARE(all_numbers(bench), QList<int>({draws.next()}));
}

void tst_load_run_in_window::stop_keeps_the_run()
{
    desktop_bench bench;
    choose(bench, {{main_edit, file_of("three.inp", "1 2 3")}});
    bench.trigger("actionStart");
    throw_ball(bench);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(all_numbers(bench), QList<int>());
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: three.inp (3 Coups)"));
    bench.trigger("actionStart");
    throw_ball(bench);
    QCOMPARE(all_numbers(bench), QList<int>({2}));
}

void tst_load_run_in_window::stop_while_a_follow_file_is_read()
{
    constexpr int lines = 3000000; // reading them takes longer than the window waits for events
    QByteArray many;
    many.reserve(2 * lines);
    for (int i = 0; i < lines; ++i)
        many += "7\n";
    desktop_bench bench;
    QSignalSpy thrown(bench.window.get(), &MainWindow::start_throw);
    choose(bench,
           {{main_edit, file_of("one.inp", "4")},
            {follow_edit_1, file_of("two.inp", "1")},
            {follow_edit_2, file_of("many.inp", many)}});
    bench.trigger("actionStart");
    throw_ball(bench);
    bench.click(jetons::PL01);

    // The draw of the 1 tells of its file first and then reads the next one; that is when what is
    // posted here arrives.
    bool is_posted = false;
    int left_at_stop = -1;
    const auto stop = [&] {
        left_at_stop = bench.numbers().follow_files_left();
        user.answer(QMessageBox::Yes);
        bench.trigger("actionStop");
    };
    connect(&bench.numbers(), &numberStorage::next_load_file_is_loaded, bench.window.get(), [&] {
        if (is_posted) return;
        is_posted = true;
        QMetaObject::invokeMethod(bench.window.get(), stop, Qt::QueuedConnection);
    });
    bench.right_click_wheel();
    QCOMPARE(left_at_stop, 0); // the file is in work, its numbers aren't there yet
    QCOMPARE(thrown.size(), 1);
    QCOMPARE(bench.settings().state(), game_state::stopped);
    QCOMPARE(all_numbers(bench), QList<int>());
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2000));
    QVERIFY(bench.child<QAction>("actionStart")->isEnabled());

    bench.trigger("actionStart"); // the 1 is lost, the file that was read waits
    throw_ball(bench);
    QCOMPARE(thrown.size(), 2);
    QCOMPARE(all_numbers(bench), QList<int>({7}));
    QCOMPARE(load_label(bench), QStringLiteral("Ladedatei: many.inp (%1 Coups)").arg(lines));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_load_run_in_window>(argc, argv);
}
#include "tst_load_run_in_window.moc"
