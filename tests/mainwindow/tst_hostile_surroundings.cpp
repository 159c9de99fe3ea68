#include "desktop_bench.h"
#include "mainwindow_start.h"

#include <QDate>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QProcess>
#include <QProgressBar>
#include <QPropertyAnimation>
#include <QScreen>
#include <QSet>
#include <QSpinBox>
#include <QSplashScreen>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>

using general_player::PLAYER_1;

/// The program among damaged files, without a place to write to, on small screens, without
/// OpenGL, and ended at the worst moment. What ends a process or belongs to it runs in a process
/// of its own: this program, started with the name of a case.
class tst_hostile_surroundings : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void a_damaged_settings_file_data();
    void a_damaged_settings_file();
    void absurd_numbers_data();
    void absurd_numbers();
    void a_settings_file_that_is_a_folder();
    void a_settings_file_that_cannot_be_written();
    void the_working_directory_is_gone();
    void the_step_fits_the_screen_data();
    void the_step_fits_the_screen();
    void a_game_on_a_small_screen_data();
    void a_game_on_a_small_screen();
    void a_screen_without_open_gl();
    void translations_are_missing();
    void an_argument_ends_the_program_data();
    void an_argument_ends_the_program();
    void quit_with_something_open_data();
    void quit_with_something_open();
    void closed_while_the_ball_runs();
    void ended_in_the_load_at_the_start_data();
    void ended_in_the_load_at_the_start();

private:
    box_user user;
};

namespace
{

constexpr char run_case[] = "--case";
constexpr int longest_wait = 60000; // ms

const QString slow_game = QStringLiteral("s_su_shortthrow_activ=false");

void press_ok(QWidget* dialog)
{
    child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
        ->button(QDialogButtonBox::Ok)
        ->click();
}

void write_file(const QByteArray& bytes)
{
    QFile file(QStringLiteral("zarvello.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QByteArray read_file(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void remove_settings()
{
    QFile::remove(QStringLiteral("zarvello.ini"));
    QDir(QStringLiteral("zarvello.ini")).removeRecursively();
}

/// The window of the program with the settings file as it lies there.
class bare_window
{
public:
    bare_window()
    {
        numberStorage::instance().clear_permanence();
        numberStorage::instance().cancel_manual_number();
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) qFatal("the window did not come up");
    }

    MainWindow window;
};

/// Whether something is painted: a blank picture has one colour.
int colours_of(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            colours.insert(image.pixel(x, y));
    return colours.size();
}

void let_the_ball_rest(const desktop_bench& bench)
{
    const auto animations =
        bench.child<QAbstractScrollArea>("GV_Wheel")->findChildren<QPropertyAnimation*>();
    for (QPropertyAnimation* animation : animations)
        animation->setCurrentTime(animation->duration());
}

/// What another run of this program with a case has done.
struct outcome {
    bool has_finished = false;
    bool has_crashed = true;
    int code = -1;
    QString output;
    QStringList errors;

    QString told() const
    {
        return QStringLiteral("code %1\n%2\n%3")
            .arg(code)
            .arg(output, errors.join(QLatin1Char('\n')));
    }
    bool is_good() const { return has_finished && !has_crashed && code == 0; }
};

outcome run(const QString& program, const QStringList& arguments, const QProcessEnvironment& around)
{
    QProcess process;
    process.setProcessEnvironment(around);
    process.setWorkingDirectory(QDir::currentPath());
    process.start(program, arguments);
    outcome result;
    result.has_finished = process.waitForFinished(longest_wait);
    if (!result.has_finished) {
        process.kill();
        process.waitForFinished();
    }
    result.has_crashed = process.exitStatus() != QProcess::NormalExit;
    result.code = process.exitCode();
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    const QString errors = QString::fromUtf8(process.readAllStandardError());
    result.errors = errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return result;
}

outcome run_this(const QString& name,
                 const QProcessEnvironment& around = QProcessEnvironment::systemEnvironment())
{
    return run(
        QCoreApplication::applicationFilePath(), {QString::fromLatin1(run_case), name}, around);
}

} // namespace

void tst_hostile_surroundings::cleanup()
{
    remove_settings();
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_hostile_surroundings::a_damaged_settings_file_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QByteArray rubbish;
    for (int i = 0; i < 4096; ++i)
        rubbish.append(static_cast<char>(i * 167 + i / 7));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("rubbish") << rubbish;
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("no group") << QByteArray("s_balkenzeit=5000\ns_table_form=1\n");
    QTest::newRow("a group that does not end") << QByteArray("[option\n=5\n[[[\n");
    QTest::newRow("wrong types") << QByteArray(
        "[option]\ns_balkenzeit=soon\ns_start_jetons=\ns_scr_res_factor=big\n"
        "s_jeton_to_win=perhaps\ns_history_fix_date=31.02.1999\ns_setzart=@Variant(\\0\\0)\n");
    QTest::newRow("broken escapes") << QByteArray(
        "[option]\ns_balkenzeit=\\x\ns_user_sys_file_1=\"open\ns_start_jetons=\\xzz\\\n");
    QTest::newRow("one line of a megabyte")
        << "[option]\ns_balkenzeit=" + QByteArray(1 << 20, '9') + "\n";
}

/// Everything that can't be read is as in a fresh program; the file is whole again behind it.
void tst_hostile_surroundings::a_damaged_settings_file()
{
    QFETCH(QByteArray, bytes);
    write_file(bytes);
    {
        const bare_window program;
        const setting_values defaults;
        const setting& settings = setting::instance();
        QCOMPARE(settings.s_balkenzeit(), defaults.s_balkenzeit);
        QCOMPARE(settings.s_start_jetons(), defaults.s_start_jetons);
        QCOMPARE(settings.s_table_form(), defaults.s_table_form);
        QCOMPARE(settings.s_jeton_to_win(), defaults.s_jeton_to_win);
        QCOMPARE(settings.s_history_fix_date(), defaults.s_history_fix_date);
        QVERIFY(settings.s_scr_res_factor() >= 0);
        QVERIFY(settings.s_scr_res_factor() <= 3);
        child_of<QAction>(program.window, QStringLiteral("actionStart"))->trigger();
        QCOMPARE(players_control::instance().table().credit(PLAYER_1), qint64(2000));
        QVERIFY(players_control::instance().table().all_may_set());
    }
    setting read;
    QVERIFY(read.read_settings(QStringLiteral("zarvello.ini")));
    QCOMPARE(read.s_balkenzeit(), 60000);
    QCOMPARE(read.s_start_jetons(), 2000);
}

void tst_hostile_surroundings::absurd_numbers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<qint64>("capital");
    QTest::addColumn<int>("bar_maximum"); // 0: the betting time is manual

    const auto row = [](const char* line, qint64 capital, int bar_maximum) {
        QTest::newRow(line) << QString::fromLatin1(line) << capital << bar_maximum;
    };
    constexpr int minute = 60 * 33;
    row("s_balkenzeit=-5000", 2000, 0);
    row("s_balkenzeit=999", 2000, 0);
    row("s_balkenzeit=2147483647", 2000, 1000000 * 33); // the bar takes so many seconds
    row("s_balkenzeit=2147483648", 2000, minute);       // no int
    row("s_scr_res_factor=99", 2000, minute);
    row("s_scr_res_factor=-99", 2000, minute);
    row("s_start_jetons=-1", 0, minute);
    row("s_start_jetons=2147483647", 2147483647, minute);
    row("s_language=77", 2000, minute);
    row("s_table_form=-3", 2000, minute);
    row("s_setzart=9", 2000, minute);
    row("s_hand_change_sign_index=1000", 2000, minute);
    row("s_tip_def_index=-1", 2000, minute);
    row("s_history_year_index=4711", 2000, minute);
    row("s_activation_coldhot_display=-7", 2000, minute);
}

void tst_hostile_surroundings::absurd_numbers()
{
    QFETCH(QString, line);
    QFETCH(qint64, capital);
    QFETCH(int, bar_maximum);
    desktop_bench bench({QStringLiteral("s_balkenzeit=60000"), line});
    bench.trigger("actionStart");
    QCOMPARE(bench.table().credit(PLAYER_1), capital);
    const bool is_manual = bar_maximum == 0;
    QCOMPARE(bench.child<QTimer>("update_timer")->isActive(), !is_manual);
    if (!is_manual) QCOMPARE(bench.child<QProgressBar>("time_bar")->maximum(), bar_maximum);
    QVERIFY(bench.reduction() >= 0.0);
    QVERIFY(bench.reduction() <= 0.3);
    bench.numbers().set_manual_number(7);
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({7}));
    // The dialog shows what it can of it, and accepting it hurts nothing.
    user.with_dialog("Options", press_ok);
    bench.trigger("actionOptionen");
    QCOMPARE(bench.table().credit(PLAYER_1), capital);
}

void tst_hostile_surroundings::a_settings_file_that_is_a_folder()
{
    remove_settings();
    QVERIFY(QDir().mkdir(QStringLiteral("zarvello.ini")));
    const outcome other = run_this(QStringLiteral("no_writing"));
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QVERIFY(QFileInfo(QStringLiteral("zarvello.ini")).isDir());
}

void tst_hostile_surroundings::a_settings_file_that_cannot_be_written()
{
    const QByteArray kept("[option]\ns_language=1\n");
    write_file(kept);
    QVERIFY(QFile::setPermissions(QStringLiteral("zarvello.ini"), QFile::ReadOwner));
    if (QFileInfo(QStringLiteral("zarvello.ini")).isWritable())
        QSKIP("permissions do not bind this user");
    const outcome other = run_this(QStringLiteral("no_writing"));
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QCOMPARE(read_file(QStringLiteral("zarvello.ini")), kept);
}

/// A directory that is gone takes no file from anyone, whatever his rights.
void tst_hostile_surroundings::the_working_directory_is_gone()
{
    const outcome other = run_this(QStringLiteral("no_directory"));
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QVERIFY2(other.errors.size() < 10, qPrintable(other.told()));
}

void tst_hostile_surroundings::the_step_fits_the_screen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("step");

    const auto row = [](int width, int height, int step) {
        QTest::addRow("%dx%d", width, height) << QSize(width, height) << step;
    };
    row(1920, 1080, 0);
    row(1485, 861, 0);
    row(1484, 900, 1);
    row(1485, 860, 1);
    row(1366, 780, 1);
    row(1366, 768, 2);
    row(1280, 720, 2);
    row(1280, 698, 3);
    row(1188, 699, 2);
    row(1187, 2000, 3);
    row(1024, 600, 3);
}

/// The window of the step that is chosen for a screen is not larger than the screen.
void tst_hostile_surroundings::the_step_fits_the_screen()
{
    QFETCH(QSize, screen);
    QFETCH(int, step);
    QCOMPARE(scale_factor_for_screen(screen.width(), screen.height()), step);
    write_file("[option]\ns_scr_res_factor=-1\n");
    setting chosen;
    QVERIFY(chosen.read_settings(QStringLiteral("zarvello.ini"), screen));
    QCOMPARE(chosen.s_scr_res_factor(), step);

    const desktop_bench bench({QStringLiteral("s_scr_res_factor=%1").arg(step)});
    const QSize window = bench.window->size();
    QVERIFY(window.width() <= screen.width());
    // 6 pixels of the empty status bar may hang over on the smallest screen.
    QVERIFY(window.height() - 20 <= screen.height());
}

void tst_hostile_surroundings::a_game_on_a_small_screen_data()
{
    QTest::addColumn<QString>("size");
    QTest::newRow("netbook") << QStringLiteral("1024x600");
    QTest::newRow("smaller than our smallest window") << QStringLiteral("640x480");
}

/// On a screen of its own, which decides the scale.
void tst_hostile_surroundings::a_game_on_a_small_screen()
{
    const QString screen = QStandardPaths::findExecutable(QStringLiteral("xvfb-run"));
    if (screen.isEmpty()) QSKIP("xvfb-run is not there");
    QFETCH(QString, size);
    const outcome other = run(screen,
                              {QStringLiteral("-a"),
                               QStringLiteral("--server-args=-screen 0 %1x24").arg(size),
                               QCoreApplication::applicationFilePath(),
                               QString::fromLatin1(run_case),
                               QStringLiteral("small_screen")},
                              QProcessEnvironment::systemEnvironment());
    QVERIFY2(other.is_good(), qPrintable(other.told()));
}

void tst_hostile_surroundings::a_screen_without_open_gl()
{
    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    around.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    const outcome other = run_this(QStringLiteral("a_coup"), around);
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QVERIFY2(other.errors.size() <= 5, qPrintable(other.told()));

    QProcessEnvironment no_driver = QProcessEnvironment::systemEnvironment();
    no_driver.insert(QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none"));
    const outcome plain = run_this(QStringLiteral("a_coup"), no_driver);
    QVERIFY2(plain.is_good(), qPrintable(plain.told()));
}

/// Behind a switch to English without its file the texts are German, and the game goes on.
void tst_hostile_surroundings::translations_are_missing()
{
    const QTemporaryDir elsewhere;
    const QString program = elsewhere.filePath(QStringLiteral("moved"));
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    const outcome other = run(program,
                              {QString::fromLatin1(run_case), QStringLiteral("no_translations")},
                              QProcessEnvironment::systemEnvironment());
    QVERIFY2(other.is_good(), qPrintable(other.told()));
}

void tst_hostile_surroundings::an_argument_ends_the_program_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("a word") << QStringList({QStringLiteral("game")});
    QTest::newRow("an option") << QStringList({QStringLiteral("--help")});
    QTest::newRow("nothing between the quotes") << QStringList({QString()});
    QTest::newRow("two") << QStringList({QStringLiteral("a"), QStringLiteral("b")});
}

void tst_hostile_surroundings::an_argument_ends_the_program()
{
    QFETCH(QStringList, arguments);
    const outcome other =
        run(QStringLiteral(ZARVELLO_PROGRAM), arguments, QProcessEnvironment::systemEnvironment());
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QCOMPARE(other.output, QString());
    QVERIFY(!QFile::exists(QStringLiteral("zarvello.ini"))); // no window, no settings
}

void tst_hostile_surroundings::quit_with_something_open_data()
{
    QTest::addColumn<QString>("what");
    for (const char* what : {"options",
                             "options_with_a_question",
                             "load_files",
                             "announcement",
                             "number",
                             "super_short",
                             "super_short_game",
                             "stop_question",
                             "question_in_a_coup",
                             "ball"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

/// The program ends with status 0 and the settings are in the file, complete.
void tst_hostile_surroundings::quit_with_something_open()
{
    QFETCH(QString, what);
    const outcome other = run_this(QStringLiteral("quit_") + what);
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QCOMPARE(other.output.trimmed(), QStringLiteral("ended"));
    setting read;
    QVERIFY(read.read_settings(QStringLiteral("zarvello.ini")));
    QCOMPARE(read.s_history_days_count(), 123);
    QCOMPARE(read.s_su_shortthrow_activ(), false);
    QCOMPARE(read.s_start_jetons(), what.contains(QLatin1String("options_with")) ? 444 : 2000);
}

void tst_hostile_surroundings::closed_while_the_ball_runs()
{
    const outcome other = run_this(QStringLiteral("quit_by_closing"));
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QCOMPARE(other.output.trimmed(), QStringLiteral("ended"));
    setting read;
    QVERIFY(read.read_settings(QStringLiteral("zarvello.ini")));
    QCOMPARE(read.s_history_days_count(), 123);
}

void tst_hostile_surroundings::ended_in_the_load_at_the_start_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("by the frame of the window") << "load_closed";
    QTest::newRow("by the menu") << "load_quit";
}

void tst_hostile_surroundings::ended_in_the_load_at_the_start()
{
    QFETCH(QString, way);
    const outcome other = run_this(way);
    QVERIFY2(other.is_good(), qPrintable(other.told()));
    QCOMPARE(other.output.trimmed(), QStringLiteral("ended"));
}

// The cases that have a process of their own. Each returns what its process returns.

namespace
{

/// Ends the process at once where a case finds something wrong.
void must(bool is_right, const char* what)
{
    if (is_right) return;
    fprintf(stderr, "wrong: %s\n", what);
    std::_Exit(3);
}

/// A settings file that fails is kept in mind by Qt for the rest of the process.
int play_without_writing()
{
    box_user user;
    const bare_window program;
    must(setting::instance().s_start_jetons() == 2000, "defaults");
    child_of<QAction>(program.window, QStringLiteral("actionStart"))->trigger();
    user.answer(QMessageBox::Ok);
    user.with_dialog("Options", [](QWidget* dialog) {
        child_of<QAbstractButton>(*dialog, QStringLiteral("CB_classic_dolly"))->click();
        press_ok(dialog);
    });
    child_of<QAction>(program.window, QStringLiteral("actionOptionen"))->trigger();
    must(user.boxes().size() == 1, "the user is told, once");
    must(user.unexpected() == 0, "and nothing else");
    must(user.boxes()[0].text.contains(QLatin1String("zarvello.ini")), "what failed");
    must(user.boxes()[0].icon == QMessageBox::Warning, "as a warning");
    must(setting::instance().s_classic_dolly(), "it holds until the program ends");
    must(players_control::instance().table().all_may_set(), "the game goes on");
    return 0;
}

int lose_the_directory()
{
    QTemporaryDir lost;
    must(QDir::setCurrent(lost.path()), "a directory to lose");
    must(lost.remove(), "the directory is gone");
    return play_without_writing();
}

int play_a_coup()
{
    const desktop_bench bench({slow_game});
    must(colours_of(bench.child<QWidget>("GV_Wheel")->grab().toImage()) > 100, "the wheel shows");
    must(colours_of(bench.window->grab().toImage()) > 500, "the table shows");
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    let_the_ball_rest(bench);
    bench.finish_coup();
    must(bench.table().credit(PLAYER_1) == 2035, "the win is paid");
    return 0;
}

int play_on_a_small_screen()
{
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const desktop_bench bench({QStringLiteral("s_scr_res_factor=-1")});
    must(bench.settings().s_scr_res_factor() == 3, "the smallest step");
    must(bench.window->size() == QSize(1022, 606), "the smallest window");
    bench.trigger("actionStart");
    bench.click(jetons::EC01);
    bench.play(36);
    must(bench.table().credit(PLAYER_1) == 1999, "the coup is played");
    if (screen.width() < 1024) return 0;

    const QRect inside(QPoint(), screen);
    for (const char* name : {"PB_clear_jetons",
                             "PB_replay",
                             "PB_super_short_play",
                             "GV_Wheel",
                             "LA_Table",
                             "LB_selected_number",
                             "time_bar"}) {
        const auto* widget = bench.child<QWidget>(name);
        const QRect place(widget->mapTo(bench.window.get(), QPoint()), widget->size());
        must(inside.contains(place), name);
    }
    return 0;
}

int speak_without_translations()
{
    const desktop_bench bench({QStringLiteral("s_language=2")});
    bench.settle();
    const auto* menu = bench.child<QMenu>("menuSpiel");
    must(menu->title() == QLatin1String("Spiel"), "the texts of the source");
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.play(12);
    must(bench.table().credit(PLAYER_1) == 2035, "the win is paid");
    return 0;
}

/// Quits as soon as a box is on the screen, instead of answering it.
class box_quitter : public QObject
{
public:
    explicit box_quitter(std::function<void()> what)
        : quit(std::move(what))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox*>(watched))
            QTimer::singleShot(0, this, quit);
        return false;
    }

private:
    std::function<void()> quit;
};

/// Brings the window to where something is open, and quits there. The last act of each case opens
/// it.
void prepare(const QString& name,
             const desktop_bench& bench,
             box_user& user,
             const std::function<void()>& quit)
{
    auto* wheel = bench.child<QAbstractScrollArea>("GV_Wheel");
    if (name == QLatin1String("load_files")) {
        user.with_dialog("load_files_option", [quit](QWidget*) { quit(); });
        bench.trigger("actionLadedateien");
        return;
    }
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    if (name == QLatin1String("options")) {
        user.with_dialog("Options", [quit](QWidget*) { quit(); });
        bench.trigger("actionOptionen");
    } else if (name == QLatin1String("announcement")) {
        user.with_dialog("Dialog_Select_Number", [quit](QWidget*) { quit(); });
        bench.press_table({960, 590});
    } else if (name == QLatin1String("number")) {
        user.with_dialog("wheel_number_selection", [quit](QWidget*) { quit(); });
        QTest::mouseClick(wheel->viewport(), Qt::LeftButton);
    } else if (name == QLatin1String("super_short")) {
        user.with_dialog("dialog_supershort_game_counter", [quit](QWidget*) { quit(); });
        bench.trigger("actionSuperkurzspiel");
    } else if (name == QLatin1String("super_short_game")) {
        user.with_dialog("dialog_supershort_game_counter",
                         [](QWidget* dialog) { press_ok(dialog); });
        bench.trigger("actionSuperkurzspiel");
        must(bench.settings().s_su_shortthrow_activ(), "the short throw is borrowed");
        quit();
    } else if (name == QLatin1String("stop_question")) {
        const box_quitter quitter(quit);
        bench.child<QAction>("actionStop")->trigger();
    } else if (name == QLatin1String("options_with_a_question")) {
        const box_quitter quitter(quit);
        user.with_dialog("Options", [](QWidget* dialog) {
            child_of<QSpinBox>(*dialog, QStringLiteral("SB_start_jetons"))->setValue(444);
            press_ok(dialog);
        });
        bench.trigger("actionOptionen"); // asks player by player
    } else if (name == QLatin1String("question_in_a_coup")) {
        bench.right_click_wheel();
        const box_quitter quitter(quit);
        bench.child<QAction>("actionReset")->trigger();
    } else if (name == QLatin1String("ball")) {
        bench.right_click_wheel();
        quit();
    } else {
        must(name == QLatin1String("by_closing"), "a known case");
        bench.right_click_wheel();
        bench.window->close();
    }
}

/// The whole life of the program, with a real event loop around it.
int quit_with_open(const QString& name)
{
    {
        const desktop_bench bench({slow_game, QStringLiteral("s_history_days_count=123")});
        box_user user;
        const auto quit = [&] { bench.child<QAction>("actionBeenden")->trigger(); };
        QTimer::singleShot(0, bench.window.get(), [&] { prepare(name, bench, user, quit); });
        QTimer::singleShot(
            longest_wait / 2, bench.window.get(), [] { must(false, "the program does not end"); });
        must(QCoreApplication::exec() == 0, "status");
        must(!qobject_cast<QMessageBox*>(QApplication::activeModalWidget()), "no box is left");
        must(user.dialogs_left() == 0, "it was open");
    }
    puts("ended");
    return 0;
}

bool is_splash_up()
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return qobject_cast<const QSplashScreen*>(window) && window->isVisible();
    });
}

/// The program from its first picture on, ended with some of the coups loaded.
int end_in_the_load(const QString& name)
{
    constexpr std::size_t coups = 300'000, enough = 5'000;
    write_file("[option]\ns_use_history_throws_startup=true\ns_load_history_stat_type_index=0\n");
    const QDateTime now = QDateTime::currentDateTime();
    QFile year_file(QStringLiteral("Stat%1.log").arg(now.date().year()));
    must(year_file.open(QIODevice::WriteOnly), "a year file");
    year_file.write("::  " + now.toString("dddd,dd.MMMM.yyyy").toUtf8() + " 00:00:00 - x\n");
    year_file.write(QByteArray("1 2 3 4 5 6 7 8 9 10\n").repeated(coups / 10));
    year_file.close();

    const auto& loaded = numberStorage::instance().history().all();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (loaded.size() < enough) return;
        look.stop();
        must(loaded.size() < coups, "it is in the middle of the load");
        must(!is_splash_up(), "the picture does not cover the window");
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (!qobject_cast<MainWindow*>(window)) continue;
            if (name == QLatin1String("load_closed")) {
                window->close();
            } else {
                child_of<QAction>(*window, QStringLiteral("actionBeenden"))->trigger();
            }
        }
    });
    look.start(0);
    QTimer::singleShot(longest_wait / 2, [] { must(false, "the program does not end"); });
    must(run_mainwindow() == 0, "status");
    must(!look.isActive(), "it was ended in the load");
    year_file.remove();
    puts("ended");
    return 0;
}

int run_in_this_process(const QString& name, int argc, char** argv)
{
    QLocale::setDefault(QLocale::c());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (name == QLatin1String("no_writing")) return play_without_writing();
    if (name == QLatin1String("no_directory")) return lose_the_directory();
    if (name == QLatin1String("a_coup")) return play_a_coup();
    if (name == QLatin1String("small_screen")) return play_on_a_small_screen();
    if (name == QLatin1String("no_translations")) return speak_without_translations();
    if (name.startsWith(QLatin1String("load_"))) return end_in_the_load(name);
    const QString quit = QStringLiteral("quit_");
    must(name.startsWith(quit), "a known case");
    return quit_with_open(name.mid(quit.size()));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], run_case) == 0)
        return run_in_this_process(QString::fromLocal8Bit(argv[2]), argc, argv);
    return run_window_test<tst_hostile_surroundings>(argc, argv);
}
#include "tst_hostile_surroundings.moc"
