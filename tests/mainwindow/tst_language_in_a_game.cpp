#include "load_files_option.h"
#include "options_user.h"

#include <QComboBox>
#include <QGroupBox>
#include <QProcess>
#include <QProgressBar>
#include <QPropertyAnimation>

using general_player::PLAYER_1;
using general_player::PLAYER_3;

/// German and English, switched by the options while a game runs: every text follows at once, and
/// nothing of the game changes.
class tst_language_in_a_game : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void texts_of_the_window_data();
    void texts_of_the_window();
    void a_switched_window_reads_as_a_fresh_one();
    void labels_keep_their_numbers();
    void pause_and_its_text();
    void the_super_short_game();
    void the_bar_in_every_phase();
    void dialogs_follow();
    void boxes_and_the_buttons_of_qt();
    void the_questions_of_the_start_capital();
    void nothing_of_the_game_changes();
    void the_ball_runs_on();
    void the_language_accepted_is_stored();
    void cancel_returns_from_every_language();
    void auto_is_the_language_of_the_system();
    void auto_by_the_locale_data();
    void auto_by_the_locale();

private:
    box_user user;
};

namespace
{

constexpr char tell_bar_text[] = "--tell-bar-text";

const QString german_game = QStringLiteral("s_language=1");
const QString english_game = QStringLiteral("s_language=2");

QString bar_text(const desktop_bench& bench)
{
    return bench.child<QProgressBar>("time_bar")->text();
}

QString label(const desktop_bench& bench, const char* name)
{
    return bench.child<QLabel>(name)->text();
}

/// Chooses the language in the options and accepts them.
void speak(const desktop_bench& bench, box_user& user, const char* radio)
{
    const options_user options(bench, user);
    options.accept([&](QWidget& dialog) { options_user::press(dialog, radio); });
}

/// Tries a language in the open options.
void try_language(const desktop_bench& bench, const QWidget& dialog, const char* radio)
{
    options_user::press(dialog, radio);
    bench.settle();
}

QString text_of(const QObject& object)
{
    static const char* const kinds[] = {"text", "title", "placeholderText"};
    for (const char* kind : kinds) {
        const QVariant text = object.property(kind);
        if (text.isValid() && !text.toString().isEmpty()) return text.toString();
    }
    return {};
}

/// Every text that stands somewhere in the window or in a dialog of it, by the name of its object.
QMap<QString, QString> all_texts(const desktop_bench& bench)
{
    QMap<QString, QString> texts;
    const auto objects = bench.window->findChildren<QObject*>();
    for (const QObject* object : objects) {
        const QString name = object->objectName();
        if (name.isEmpty()) continue;
        QString path = name;
        if (const auto* widget = qobject_cast<const QWidget*>(object)) {
            if (widget->window()->inherits("Options")) continue; // is there only while it is open
            path.prepend(widget->window()->objectName() + QLatin1Char('/'));
            if (widget->isWindow()) texts.insert(path + "/title", widget->windowTitle());
            if (!widget->toolTip().isEmpty()) texts.insert(path + "/tip", widget->toolTip());
        }
        if (const auto* combo = qobject_cast<const QComboBox*>(object)) {
            for (int i = 0; i < combo->count(); ++i)
                texts.insert(path + QString::number(i), combo->itemText(i));
        }
        if (const auto* box = qobject_cast<const QDialogButtonBox*>(object)) {
            const auto buttons = box->buttons();
            for (const QAbstractButton* button : buttons)
                texts.insert(path + QString::number(
                                        box->standardButton(const_cast<QAbstractButton*>(button))),
                             button->text());
        }
        const QString text = text_of(*object);
        if (!text.isEmpty()) texts.insert(path, text);
    }
    return texts;
}

QStringList differences(const QMap<QString, QString>& one, const QMap<QString, QString>& other)
{
    QStringList found;
    const auto names = one.keys() + other.keys();
    for (const QString& name : names)
        if (one.value(name) != other.value(name))
            found.append(name + ": \"" + one.value(name) + "\" / \"" + other.value(name) + '"');
    return found;
}

/// A running game with a chosen number and some figures on the panels.
void set_the_scene(const desktop_bench& bench)
{
    bench.trigger("actionStart");
    bench.click(jetons::PL05);
    bench.play(5);
    bench.click(jetons::PL06);
}

void choose_number(const desktop_bench& bench, box_user& user, const char* pocket)
{
    user.with_dialog("wheel_number_selection", [pocket](QWidget* dialog) {
        child_of<QAbstractButton>(*dialog, QString::fromLatin1(pocket))->click();
    });
    QTest::mouseClick(bench.child<QAbstractScrollArea>("GV_Wheel")->viewport(), Qt::LeftButton);
    bench.settle();
}

/// Presses Ok of the dialog that asks for the coups of a super short game.
void begin_super_short_game(const desktop_bench& bench, box_user& user)
{
    user.with_dialog("dialog_supershort_game_counter", [](QWidget* dialog) {
        child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
            ->button(QDialogButtonBox::Ok)
            ->click();
    });
    bench.trigger("actionSuperkurzspiel");
}

/// The texts of the buttons of each box that is shown while it lives, mnemonics left out.
class button_reader : public QObject
{
public:
    button_reader() { qApp->installEventFilter(this); }
    ~button_reader() override { qApp->removeEventFilter(this); }

    QStringList texts;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* box = qobject_cast<QMessageBox*>(watched);
        if (!box || event->type() != QEvent::Show) return false;
        const auto buttons = box->buttons();
        for (const QAbstractButton* button : buttons)
            texts.append(button->text().remove(QLatin1Char('&')));
        texts.sort();
        return false;
    }
};

} // namespace

void tst_language_in_a_game::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_language_in_a_game::texts_of_the_window_data()
{
    QTest::addColumn<QString>("german");
    QTest::addColumn<QString>("english");

    const auto row = [](const char* name, const char* german, const char* english) {
        QTest::newRow(name) << QString::fromUtf8(german) << QString::fromUtf8(english);
    };
    row("menuSpiel", "Spiel", "Game");
    row("menuDateien", "Dateien", "Files");
    row("menuLadedatei_bearbeiten", "Ladedatei bearbeiten", "Edit load file");
    row("menuPermanenz", "Permanenz", "Permanence");
    row("menuSystemspiel", "Systemspiel", "System game");
    row("menuStatistik", "Statistik", "Statistics");
    row("menuHilfe", "Hilfe", "Help");
    row("actionReset", "Zurücksetzen...", "Reset...");
    row("actionSuperkurzspiel", "Superkurzspiel", "Super short game");
    row("actionOptionen", "Optionen...", "Options...");
    row("actionBeenden", "Beenden", "Quit");
    row("actionLadedateien", "Lademenü...", "Load files...");
    row("actionInfo", "Über Zarvello...", "About Zarvello...");
    row("PB_clear_jetons", "Setzung löschen", "Clear bets");
    row("PB_last_bet", "Letzte Setzung", "Last bet");
    row("PB_replay", "Wiederholen", "Repeat bet");
    row("PB_super_short_play", "Superkurzspiel", "Super short game");
    row("LB_to_less_coup1", "zu wenige Coups", "too few coups");
    row("LB_to_less_coup2", "zu wenige Coups", "too few coups");
    row("LB_name_1", "Spieler 1", "Player 1");
    row("LB_name_4", "Spieler 4", "Player 4");
    row("LB_caption_2", "Gesetzt", "Stake");
    row("LB_caption_3", "Kapital", "Capital");
    row("PB_status_1", "Aktiv", "Active");
    row("LB_player", "Spieler 1", "Player 1");
    row("LB_caption_plus_coups", "Plus-Coups", "Winning coups");
    row("LB_caption_win_loss", "Gewinn/Verlust", "Profit/loss");
}

void tst_language_in_a_game::texts_of_the_window()
{
    QFETCH(QString, german);
    QFETCH(QString, english);
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    desktop_bench bench({german_game});
    bench.trigger("actionStart");
    const auto* object = bench.child<QObject>(name);
    QCOMPARE(text_of(*object), german);
    const options_user options(bench, user);
    options.cancel([&](QWidget& dialog) {
        try_language(bench, dialog, "RB_language_english");
        QCOMPARE(text_of(*object), english);
        try_language(bench, dialog, "RB_language_german");
        QCOMPARE(text_of(*object), german);
        try_language(bench, dialog, "RB_language_english");
    });
    QCOMPARE(text_of(*object), german);
}

void tst_language_in_a_game::a_switched_window_reads_as_a_fresh_one()
{
    QMap<QString, QString> german;
    QMap<QString, QString> english;
    for (auto* texts : {&german, &english}) {
        const bool is_german = texts == &german;
        desktop_bench bench({is_german ? german_game : english_game});
        set_the_scene(bench);
        *texts = all_texts(bench);
    }
    QVERIFY(german.size() > 100);
    QVERIFY(differences(german, english).size() > 100);

    const auto other = [](const QMap<QString, QString>& wanted, const desktop_bench& bench) {
        return differences(wanted, all_texts(bench)).join(QLatin1Char('\n'));
    };
    for (bool begins_german : {true, false}) {
        desktop_bench bench({begins_german ? german_game : english_game});
        set_the_scene(bench);
        const options_user options(bench, user);
        options.cancel([&](QWidget& dialog) {
            try_language(bench, dialog, "RB_language_english");
            QCOMPARE(other(english, bench), QString());
            try_language(bench, dialog, "RB_language_german");
            QCOMPARE(other(german, bench), QString());
            try_language(bench, dialog, "RB_language_english");
            QCOMPARE(other(english, bench), QString());
        });
        QCOMPARE(other(begins_german ? german : english, bench), QString());
    }
}

void tst_language_in_a_game::labels_keep_their_numbers()
{
    QFile file(QStringLiteral("night.inp"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("4\n5\n6\n7\n");
    file.close();

    desktop_bench bench;
    load_file_settings choice;
    choice.active = true;
    choice.files[0] = QStringLiteral("night.inp");
    bench.numbers().set_load_files(choice);
    auto* load_dialog = bench.window->findChild<load_files_option*>();
    emit load_dialog->display_actual_load_file_info(true); // as it does behind its Ok
    bench.trigger("actionStart");
    bench.right_click_wheel();
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({4}));
    // The tab of the third player shows his figures.
    bench.table().make_active(PLAYER_3);
    emit players_control::instance().change_play_statistic_view(PLAYER_3);
    choose_number(bench, user, "PB_17");
    QCOMPARE(label(bench, "LB_actual_load_file"), QStringLiteral("Ladedatei: night.inp (4 Coups)"));

    speak(bench, user, "RB_language_english");
    QCOMPARE(label(bench, "LB_selected_number"), QStringLiteral("Next chosen number: 17"));
    QCOMPARE(label(bench, "LB_actual_load_file"), QStringLiteral("Load file: night.inp (4 coups)"));
    QCOMPARE(label(bench, "LB_player"), QStringLiteral("Player 3"));
    QCOMPARE(label(bench, "LB_ND_DA_N_10"), QStringLiteral("4")); // black

    speak(bench, user, "RB_language_german");
    QCOMPARE(label(bench, "LB_selected_number"),
             QStringLiteral("Nächste gewählte Roulettezahl: 17"));
    QCOMPARE(label(bench, "LB_actual_load_file"), QStringLiteral("Ladedatei: night.inp (4 Coups)"));
    QCOMPARE(label(bench, "LB_player"), QStringLiteral("Spieler 3"));
    bench.numbers().reset_load_files();
}

void tst_language_in_a_game::pause_and_its_text()
{
    desktop_bench bench;
    auto* pause = bench.child<QAction>("actionPause");
    bench.trigger("actionStart");
    bench.trigger("actionPause");
    QCOMPARE(pause->text(), QStringLiteral("Weiter"));
    QCOMPARE(bar_text(bench), QStringLiteral("Manuell / Pause"));
    speak(bench, user, "RB_language_english");
    QCOMPARE(pause->text(), QStringLiteral("Continue"));
    QCOMPARE(bar_text(bench), QStringLiteral("Manual / Pause"));
    QCOMPARE(bench.settings().state(), game_state::paused);
    bench.trigger("actionPause");
    QCOMPARE(pause->text(), QStringLiteral("Pause"));
    bench.trigger("actionPause");
    QCOMPARE(pause->text(), QStringLiteral("Continue"));
    speak(bench, user, "RB_language_german");
    QCOMPARE(pause->text(), QStringLiteral("Weiter"));
    QCOMPARE(pause->shortcut(), QKeySequence(Qt::Key_F3));
}

void tst_language_in_a_game::the_super_short_game()
{
    desktop_bench bench({QStringLiteral("s_balkenzeit=10000")});
    auto* button = bench.child<QPushButton>("PB_super_short_play");
    bench.trigger("actionStart");
    bench.trigger("actionPause"); // no coup while we look
    begin_super_short_game(bench, user);
    QCOMPARE(button->text(), QStringLiteral("Superkurzspiel aktiv"));
    speak(bench, user, "RB_language_english");
    QCOMPARE(button->text(), QStringLiteral("Super short is on"));
    QVERIFY(button->isChecked());
    bench.trigger("actionPause");
    QVERIFY(fire(bench.child<QTimer>("pause_poll_timer")));
    bench.trigger("actionPause"); // in front of the coup that begins
    QCOMPARE(bar_text(bench), QStringLiteral("Super short game is on!"));
    speak(bench, user, "RB_language_german");
    QCOMPARE(button->text(), QStringLiteral("Superkurzspiel aktiv"));
    QCOMPARE(bar_text(bench), QStringLiteral("Superkurzspiel aktiv!"));
    QVERIFY(button->isChecked());
    for (const QString& text : {button->text(), QStringLiteral("Super short is on")})
        QVERIFY(button->fontMetrics().horizontalAdvance(text) < button->width());
    bench.trigger("actionSuperkurzspiel"); // off
    QCOMPARE(button->text(), QStringLiteral("Superkurzspiel"));
}

void tst_language_in_a_game::the_bar_in_every_phase()
{
    desktop_bench bench({QStringLiteral("s_balkenzeit=10000"),
                         QStringLiteral("s_su_shortthrow_activ=false"),
                         english_game});
    QCOMPARE(bar_text(bench), QStringLiteral("Start your game!"));
    bench.trigger("actionStart");
    QCOMPARE(bar_text(bench), QStringLiteral("Place your bets!"));
    speak(bench, user, "RB_language_german");
    QCOMPARE(bar_text(bench), QStringLiteral("Machen Sie Ihr Spiel!"));
    bench.right_click_wheel();
    QCOMPARE(bar_text(bench), QStringLiteral("Nichts geht mehr!"));
    speak(bench, user, "RB_language_english");
    QCOMPARE(bar_text(bench), QStringLiteral("No more bets!"));
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(bar_text(bench), QStringLiteral("Start your game!"));
    speak(bench, user, "RB_language_german");
    QCOMPARE(bar_text(bench), QStringLiteral("Starten Sie Ihr Spiel!"));
}

void tst_language_in_a_game::dialogs_follow()
{
    desktop_bench bench;
    QStringList shown;
    const auto look_at = [&](const char* class_name) {
        user.with_dialog(class_name, [&shown](QWidget* dialog) {
            shown.append(dialog->windowTitle());
            // Nothing that it says is cut off.
            const auto labels = dialog->findChildren<QLabel*>();
            for (const QLabel* label : labels)
                if (label->isVisible() && !label->wordWrap() && !label->text().isEmpty())
                    QVERIFY2(label->width() >= label->minimumSizeHint().width(),
                             qPrintable(label->text()));
            qobject_cast<QDialog*>(dialog)->reject();
        });
    };
    const auto show_all = [&] {
        shown.clear();
        look_at("load_files_option");
        bench.trigger("actionLadedateien");
        bench.trigger("actionStart");
        look_at("wheel_number_selection");
        auto* wheel = bench.child<QAbstractScrollArea>("GV_Wheel");
        QTest::mouseClick(wheel->viewport(), Qt::LeftButton);
        bench.settle();
        look_at("dialog_supershort_game_counter");
        bench.trigger("actionSuperkurzspiel");
        bench.settle();
        const auto press = [&](int y, Qt::MouseButton button) {
            look_at("Dialog_Select_Number");
            bench.press_table({scaled(960, bench.reduction()), scaled(y, bench.reduction())},
                              button);
        };
        press(556, Qt::LeftButton);
        press(556, Qt::RightButton);
        press(590, Qt::LeftButton);
        press(624, Qt::RightButton);
        press(658, Qt::LeftButton);
        user.answer(QMessageBox::Yes);
        bench.trigger("actionStop");
    };
    const QStringList german = {QStringLiteral("Lademenü"),
                                QStringLiteral("Nächste Roulettezahl wählen"),
                                QStringLiteral("Superkurzspiel"),
                                QStringLiteral("Finale setzen"),
                                QStringLiteral("Finale löschen"),
                                QStringLiteral("Einen Nachbar setzen"),
                                QStringLiteral("Zwei Nachbarn löschen"),
                                QStringLiteral("Drei Nachbarn setzen")};
    const QStringList english = {QStringLiteral("Load files"),
                                 QStringLiteral("Choose the next number"),
                                 QStringLiteral("Super short game"),
                                 QStringLiteral("Bet a finale"),
                                 QStringLiteral("Remove a finale"),
                                 QStringLiteral("Bet one neighbour"),
                                 QStringLiteral("Remove two neighbours"),
                                 QStringLiteral("Bet three neighbours")};
    const options_user options(bench, user);
    for (int step : {0, 3}) {
        options.accept([step](QWidget& dialog) { options_user::set_scale_step(dialog, step); });
        show_all();
        QCOMPARE(shown, german);
        speak(bench, user, "RB_language_english");
        show_all();
        QCOMPARE(shown, english);
        speak(bench, user, "RB_language_german");
        show_all();
        QCOMPARE(shown, german);
    }
}

void tst_language_in_a_game::boxes_and_the_buttons_of_qt()
{
    desktop_bench bench;
    button_reader buttons;
    bench.trigger("actionStart");
    user.answer(QMessageBox::No);
    bench.trigger("actionStop");
    QCOMPARE(buttons.texts, QStringList({QStringLiteral("Ja"), QStringLiteral("Nein")}));
    buttons.texts.clear();
    user.answer(QMessageBox::No);
    bench.trigger("actionReset");
    QCOMPARE(buttons.texts, QStringList({QStringLiteral("Ja"), QStringLiteral("Nein")}));

    const options_user options(bench, user);
    options.accept([&](QWidget& dialog) {
        const auto* cancel = child_of<QDialogButtonBox>(dialog, QStringLiteral("buttonBox"))
                                 ->button(QDialogButtonBox::Cancel);
        const auto text = [&] { return cancel->text().remove(QLatin1Char('&')); };
        QCOMPARE(text(), QStringLiteral("Abbrechen"));
        try_language(bench, dialog, "RB_language_english");
        QCOMPARE(text(), QStringLiteral("Cancel"));
        try_language(bench, dialog, "RB_language_german");
        QCOMPARE(text(), QStringLiteral("Abbrechen"));
        try_language(bench, dialog, "RB_language_english");
    });
    buttons.texts.clear();
    user.answer(QMessageBox::No);
    bench.trigger("actionStop");
    QCOMPARE(buttons.texts, QStringList({QStringLiteral("No"), QStringLiteral("Yes")}));
    QCOMPARE(user.boxes().last().text,
             QStringLiteral("Do you really want to end the current game?"));
    user.answer(QMessageBox::No);
    bench.trigger("actionReset");
    QCOMPARE(user.boxes().last().title, QStringLiteral("Zarvello Info"));
    QCOMPARE(user.boxes().last().text,
             QStringLiteral("Do you want to reset all values (statistics, throws) for all "
                            "players?"));
}

void tst_language_in_a_game::the_questions_of_the_start_capital()
{
    desktop_bench bench({english_game});
    bench.trigger("actionStart");
    for (int player = 1; player <= 4; ++player)
        user.answer(QMessageBox::No);
    const options_user options(bench, user);
    options.accept(
        [](QWidget& dialog) { options_user::set_number(dialog, "SB_start_jetons", 50); });
    QCOMPARE(user.boxes().size(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(user.boxes()[i].text,
                 QStringLiteral("Do you want to give Player %1 the new start capital?").arg(i + 1));
}

void tst_language_in_a_game::nothing_of_the_game_changes()
{
    desktop_bench bench({QStringLiteral("s_balkenzeit=10000")});
    bench.trigger("actionStart");
    bench.click(jetons::EC01);
    bench.click(jetons::PL13);
    QTest::mouseClick(bench.child<QPushButton>("PB_replay"), Qt::LeftButton);
    auto* timer = bench.child<QTimer>("update_timer");
    for (int i = 0; i < 40; ++i)
        fire(timer);
    const auto* jeton = bench.child<QPushButton>("jeton_1_PL13");
    const auto* wheel = bench.child<QWidget>("GV_Wheel");
    const QRect place = jeton->geometry();
    const QSize size = bench.window->size();
    QSignalSpy credits(bench.window.get(), &MainWindow::update_player_stat_credit);

    const options_user options(bench, user);
    options.cancel([&](QWidget& dialog) {
        for (const char* radio :
             {"RB_language_english", "RB_language_german", "RB_language_auto"}) {
            try_language(bench, dialog, radio);
            QCOMPARE(bench.table().credit(PLAYER_1), qint64(1998));
            QCOMPARE(bench.table().seeded(PLAYER_1), qint64(2));
            QCOMPARE(bench.child<QLabel>("LB_credit_1")->text(), QStringLiteral("1998"));
            QCOMPARE(bench.child<QPushButton>("jeton_1_PL13"), jeton);
            QCOMPARE(bench.child<QWidget>("GV_Wheel"), wheel);
            QCOMPARE(jeton->geometry(), place);
            QCOMPARE(bench.window->size(), size);
            QCOMPARE(bench.child<QProgressBar>("time_bar")->value(), 40);
            QVERIFY(timer->isActive());
            QVERIFY(bench.child<QPushButton>("PB_replay")->isChecked());
            QVERIFY(bench.child<QPushButton>("PB_replay")->isEnabled());
            QVERIFY(!bench.child<QAction>("actionStart")->isEnabled());
            QVERIFY(bench.child<QAction>("actionStop")->isEnabled());
            QVERIFY(bench.child<QPushButton>("PB_super_short_play")->isEnabled());
            QVERIFY(bench.table().all_may_set());
        }
    });
    QCOMPARE(bench.settings().state(), game_state::running);
    QCOMPARE(credits.size(), 0);
}

void tst_language_in_a_game::the_ball_runs_on()
{
    desktop_bench bench({QStringLiteral("s_su_shortthrow_activ=false")});
    bench.trigger("actionStart");
    bench.click(jetons::PL12);
    bench.numbers().set_manual_number(12);
    bench.right_click_wheel();
    auto* ball = bench.child<QPropertyAnimation>("ball_animation");
    speak(bench, user, "RB_language_english");
    QCOMPARE(ball->state(), QAbstractAnimation::Running);
    ball->setCurrentTime(ball->duration());
    bench.settle();
    // The panels count; the shown text of the status returns behind it.
    user.answer(QMessageBox::No); // the credit is not the start capital
    speak(bench, user, "RB_language_german");
    bench.finish_coup();
    QCOMPARE(bench.table().credit(PLAYER_1), qint64(2035));
    QCOMPARE(bench.child<QPushButton>("PB_status_1")->text(), QStringLiteral("Aktiv"));
    QCOMPARE(label(bench, "LB_credit_1"), QStringLiteral("2035"));
}

void tst_language_in_a_game::the_language_accepted_is_stored()
{
    {
        desktop_bench bench;
        bench.trigger("actionStart");
        speak(bench, user, "RB_language_english");
        QCOMPARE(bench.settings().s_language(), 2);
        QCOMPARE(bench.child<QMenu>("menuSpiel")->title(), QStringLiteral("Game"));
    }
    setting read;
    QVERIFY(read.read_settings(QStringLiteral("zarvello.ini")));
    QCOMPARE(read.language(), general_setting::LANG_ENGLISH);
}

void tst_language_in_a_game::cancel_returns_from_every_language()
{
    for (const QString& stored : {german_game, english_game}) {
        desktop_bench bench({stored});
        auto* menu = bench.child<QMenu>("menuSpiel");
        bench.settle();
        const QString title = menu->title();
        QCOMPARE(title, stored == german_game ? QStringLiteral("Spiel") : QStringLiteral("Game"));
        const options_user options(bench, user);
        for (const char* radio :
             {"RB_language_english", "RB_language_german", "RB_language_auto"}) {
            options.cancel([&](QWidget& dialog) { try_language(bench, dialog, radio); });
            QCOMPARE(menu->title(), title);
        }
    }
}

void tst_language_in_a_game::auto_is_the_language_of_the_system()
{
    const bool is_german = QLocale::system().name().startsWith(QLatin1String("de"));
    const QString wanted = is_german ? QStringLiteral("Spiel") : QStringLiteral("Game");
    for (const QString& stored : {german_game, english_game}) {
        desktop_bench bench({stored});
        bench.trigger("actionStart");
        speak(bench, user, "RB_language_auto");
        QCOMPARE(bench.child<QMenu>("menuSpiel")->title(), wanted);
        QCOMPARE(bench.settings().s_language(), 0);
    }
}

void tst_language_in_a_game::auto_by_the_locale_data()
{
    QTest::addColumn<QString>("text");
    const QString german = QStringLiteral("Manuell - Starten Sie Ihr Spiel!");
    const QString english = QStringLiteral("Manual - start your game!");
    QTest::newRow("de_DE.UTF-8") << german;
    QTest::newRow("de_AT.UTF-8") << german;
    QTest::newRow("en_GB.UTF-8") << english;
    QTest::newRow("fr_FR.UTF-8") << english;
    QTest::newRow("C") << english;
}

/// The locale belongs to the process, so another one is asked.
void tst_language_in_a_game::auto_by_the_locale()
{
    QFETCH(QString, text);
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.remove(QStringLiteral("LANGUAGE"));
    for (const char* name : {"LC_ALL", "LANG", "LC_MESSAGES"})
        surroundings.insert(QString::fromLatin1(name), QString::fromUtf8(QTest::currentDataTag()));
    QProcess other;
    other.setProcessEnvironment(surroundings);
    other.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(tell_bar_text)});
    QVERIFY(other.waitForFinished(60000));
    QCOMPARE(other.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(other.readAllStandardOutput()).trimmed(), text);
}

/// Prints what the time bar of a fresh program says in its automatic language.
static int print_bar_text(int argc, char** argv)
{
    const QTemporaryDir box;
    if (!box.isValid() || !QDir::setCurrent(box.path())) return 1;
    QApplication application(argc, argv);
    {
        const desktop_bench bench({QStringLiteral("s_language=0")});
        bench.settle();
        puts(qUtf8Printable(bar_text(bench)));
    }
    QDir::setCurrent(QDir::rootPath());
    return 0;
}

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], tell_bar_text) == 0) return print_bar_text(argc, argv);
    return run_window_test<tst_language_in_a_game>(argc, argv);
}
#include "tst_language_in_a_game.moc"
