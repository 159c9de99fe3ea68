#include "message_box.h"
#include "options.h"
#include "program_language.h"
#include "setting.h"
#include "test_box.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>

using general_setting::LANG_AUTO;
using general_setting::LANG_ENGLISH;
using general_setting::LANG_GERMAN;
using general_setting::setting_language;

static const QStringList three_years = {"2023", "2021", "2020"};

// The dialog, as a user sees and handles it: a widget by its name, and what it shows.

template <typename widget_type = QWidget>
static widget_type* find(const Options& dialog, const QString& name)
{
    auto* const widget = dialog.findChild<widget_type*>(name);
    if (!widget) qFatal("no widget %s", qPrintable(name));
    return widget;
}

static QVariant shown_by(const QWidget* widget)
{
    if (auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->isChecked();
    if (auto* spin_box = qobject_cast<const QSpinBox*>(widget)) return spin_box->value();
    if (auto* slider = qobject_cast<const QSlider*>(widget)) return slider->value();
    if (auto* combo_box = qobject_cast<const QComboBox*>(widget)) return combo_box->currentText();
    if (auto* date_edit = qobject_cast<const QDateEdit*>(widget)) return date_edit->date();
    return {};
}

/// Buttons are clicked, whatever the value.
static void change(QWidget* widget, const QVariant& value)
{
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) button->click();
    if (auto* spin_box = qobject_cast<QSpinBox*>(widget)) spin_box->setValue(value.toInt());
    if (auto* slider = qobject_cast<QSlider*>(widget)) slider->setValue(value.toInt());
    if (auto* combo = qobject_cast<QComboBox*>(widget)) combo->setCurrentText(value.toString());
    if (auto* date_edit = qobject_cast<QDateEdit*>(widget)) date_edit->setDate(value.toDate());
}

static void press(const Options& dialog, QDialogButtonBox::StandardButton button)
{
    find<QDialogButtonBox>(dialog, "buttonBox")->button(button)->click();
}

/// The keys of a settings file and their texts.
static QMap<QString, QString> content_of(const QString& file)
{
    QSettings stored(file, QSettings::IniFormat);
    QMap<QString, QString> content;
    for (const QString& key : stored.allKeys())
        content.insert(key, stored.value(key).toString());
    return content;
}

static QMap<QString, QString> default_content()
{
    if (!setting().write_settings("defaults.ini")) return {};
    return content_of("defaults.ini");
}

namespace
{

/// Closes every box that opens, as a user would with Enter, and notes what it says.
class box_reader : public QObject
{
public:
    box_reader() { qApp->installEventFilter(this); }

    QStringList titles;
    QStringList texts;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const box = qobject_cast<QMessageBox*>(watched);
        if (box && event->type() == QEvent::Show) {
            titles.append(box->windowTitle());
            texts.append(box->text());
            QMetaObject::invokeMethod(box, &QDialog::accept, Qt::QueuedConnection);
        }
        return false;
    }
};

} // namespace

class tst_options : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void a_widget_shows_its_setting_data();
    void a_widget_shows_its_setting();
    void a_widget_changes_its_setting_alone_data();
    void a_widget_changes_its_setting_alone();
    void accepting_alone_changes_nothing_data();
    void accepting_alone_changes_nothing();
    void a_button_confirms_what_stands_beside_it_data();
    void a_button_confirms_what_stands_beside_it();
    void the_texts_stand_as_told_data();
    void the_texts_stand_as_told();
    void the_lists_offer_what_is_told_data();
    void the_lists_offer_what_is_told();
    void the_ranges_are_as_told_data();
    void the_ranges_are_as_told();
    void an_empty_file_gives_sixty_seconds();
    void an_unknown_piece_size_selects_the_first();
    void there_may_be_no_years();
    void manual_time_needs_no_seconds();
    void the_piece_size_belongs_to_real_mode();
    void the_date_belongs_to_the_history();
    void a_language_is_tried_at_once();
    void cancel_returns_to_the_stored_language_data();
    void cancel_returns_to_the_stored_language();
    void cancel_stores_nothing();
    void accepting_tells_when_all_is_stored();
    void a_file_that_cannot_be_written_is_told_once();
    void a_super_short_game_keeps_the_short_throw_data();
    void a_super_short_game_keeps_the_short_throw();
    void a_super_short_game_may_end_meanwhile();
    void the_language_changes_live();
    void everything_fits_1024_by_600_data();
    void everything_fits_1024_by_600();
    void the_options_scroll_on_a_small_screen();
};

void tst_options::initTestCase()
{
    qRegisterMetaType<setting_language>("general_setting::setting_language");
    QApplication::setFont(QFont("DejaVu Sans", 9));
}

void tst_options::cleanup()
{
    QFile::remove("zarvello.ini");
}

void tst_options::a_widget_shows_its_setting_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QVariant>("shown");

    const auto row = [](const char* key, const char* value, const char* widget, QVariant shown) {
        QTest::addRow("%s %s %s", key, value, widget) << key << value << widget << shown;
    };
    const auto check_box = [&](const char* key, const char* widget) {
        row(key, "true", widget, true);
        row(key, "false", widget, false);
    };
    row("s_balkenzeit", "5000", "SB_bet_time", 5);
    row("s_balkenzeit", "7000", "SB_bet_time", 7);
    row("s_balkenzeit", "300000", "SB_bet_time", 300);
    row("s_balkenzeit", "300000", "RB_bet_time_enable", true);
    row("s_balkenzeit", "0", "RB_bet_time_disable", true);
    row("s_balkenzeit", "0", "SB_bet_time", 60);
    row("s_language", "0", "RB_language_auto", true);
    row("s_language", "1", "RB_language_german", true);
    row("s_language", "2", "RB_language_english", true);
    row("s_language", "9", "RB_language_english", true);
    row("s_language_term", "0", "RB_term_french", true);
    row("s_language_term", "1", "RB_term_american", true);
    row("s_language_term", "5", "RB_term_american", true);
    row("s_start_jetons", "750", "SB_start_jetons", 750);
    row("s_start_jetons", "1000000", "SB_start_jetons", 1000000);
    row("s_setzart", "0", "RB_setzart_piece", true);
    row("s_setzart", "1", "RB_setzart_real", true);
    row("s_setzart", "2", "RB_setzart_piece", true);
    row("s_setzart_real_size", "2", "COB_setzart_real_size", "2");
    row("s_setzart_real_size", "25", "COB_setzart_real_size", "25");
    row("s_setzart_real_size", "500", "COB_setzart_real_size", "500");
    check_box("s_wheel_disabled", "CB_wheel_disabled");
    check_box("s_su_shortthrow_activ", "CB_su_shortthrow_activ");
    check_box("s_jeton_to_win", "CB_jeton_to_win");
    row("s_tip_def_index", "0", "COB_tip_def_index", "keines");
    row("s_tip_def_index", "2", "COB_tip_def_index", "PL-CH");
    row("s_table_form", "0", "RB_table_french", true);
    row("s_table_form", "1", "RB_table_american", true);
    check_box("s_pr_color", "CB_pr_color");
    row("s_pr_landscape", "false", "RB_pr_portrait", true);
    row("s_pr_landscape", "true", "RB_pr_landscape", true);
    row("s_hand_change_sign_index", "0", "COB_hand_change_sign_index", "-");
    row("s_hand_change_sign_index", "5", "COB_hand_change_sign_index", "------");
    row("s_scr_res_factor", "-1", "SL_scr_res_factor", 0);
    row("s_scr_res_factor", "3", "SL_scr_res_factor", 3);
    check_box("s_year_statistic", "CB_year_statistic");
    row("s_use_history_text_files", "true", "RB_history_text_files", true);
    row("s_use_history_text_files", "false", "RB_history_database", true);
    check_box("s_use_history_throws_startup", "CB_load_history_file");
    row("s_load_history_stat_type_index", "0", "RB_history_year", true);
    row("s_load_history_stat_type_index", "1", "RB_history_last_day", true);
    row("s_load_history_stat_type_index", "2", "RB_history_more_days", true);
    row("s_load_history_stat_type_index", "3", "RB_history_fix_date", true);
    row("s_load_history_stat_type_index", "4", "RB_history_year", true);
    row("s_history_days_count", "0", "SB_history_days_count", 2);
    row("s_history_days_count", "90", "SB_history_days_count", 90);
    row("s_history_year_index", "0", "COB_history_year_index", "2023");
    row("s_history_year_index", "2", "COB_history_year_index", "2020");
    row("s_history_year_index", "3", "COB_history_year_index", "");
    row("s_history_fix_date", "2021-02-28", "DE_history_fix_date", QDate(2021, 2, 28));
    check_box("s_add_lofil_throw_to_year_stat", "CB_add_lofil_throw_to_year_stat");
    check_box("s_single_color_timebar", "CB_single_color_timebar");
    check_box("s_zero_handling", "CB_zero_handling");
    check_box("s_auto_update_check", "CB_auto_update_check");
    check_box("s_classic_dolly", "CB_classic_dolly");
    row("s_activation_coldhot_display", "30", "SB_activation_coldhot_display", 30);
    row("s_activation_coldhot_display", "999999", "SB_activation_coldhot_display", 999999);
}

void tst_options::a_widget_shows_its_setting()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, widget);
    QFETCH(QVariant, shown);

    setting settings;
    QCOMPARE(settings.set_value(key, value), QString());
    const Options dialog(settings, three_years);
    QCOMPARE(shown_by(find(dialog, widget)), shown);
}

void tst_options::a_widget_changes_its_setting_alone_data()
{
    QTest::addColumn<QString>("before"); // of the key; empty: the default
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");

    const auto row = [](const char* before,
                        const char* widget,
                        const QVariant& value,
                        const char* key,
                        const char* stored) {
        QTest::addRow("%s %s", widget, stored) << before << widget << value << key << stored;
    };
    const auto button = [&](const char* before, const char* name, const char* key, const char* to) {
        row(before, name, true, key, to);
    };
    const auto check_box = [&](const char* name, const char* key) {
        button("false", name, key, "true");
        button("true", name, key, "false");
    };
    row("", "SB_bet_time", 5, "s_balkenzeit", "5000");
    row("", "SB_bet_time", 300, "s_balkenzeit", "300000");
    row("7500", "SB_bet_time", 8, "s_balkenzeit", "8000");
    button("", "RB_bet_time_disable", "s_balkenzeit", "0");
    button("0", "RB_bet_time_enable", "s_balkenzeit", "60000");
    button("", "RB_language_german", "s_language", "1");
    button("", "RB_language_english", "s_language", "2");
    button("1", "RB_language_auto", "s_language", "0");
    button("", "RB_term_american", "s_language_term", "1");
    button("1", "RB_term_french", "s_language_term", "0");
    row("", "SB_start_jetons", 1000000, "s_start_jetons", "1000000");
    row("5000000", "SB_start_jetons", 400, "s_start_jetons", "400");
    button("", "RB_setzart_real", "s_setzart", "1");
    button("1", "RB_setzart_piece", "s_setzart", "0");
    for (const char* size : {"5", "10", "20", "25", "50", "100", "500"})
        row("", "COB_setzart_real_size", size, "s_setzart_real_size", size);
    check_box("CB_wheel_disabled", "s_wheel_disabled");
    check_box("CB_su_shortthrow_activ", "s_su_shortthrow_activ");
    check_box("CB_jeton_to_win", "s_jeton_to_win");
    row("", "COB_tip_def_index", "PL", "s_tip_def_index", "1");
    row("", "COB_tip_def_index", "PL-CH", "s_tip_def_index", "2");
    row("2", "COB_tip_def_index", "keines", "s_tip_def_index", "0");
    button("", "RB_table_american", "s_table_form", "1");
    button("1", "RB_table_french", "s_table_form", "0");
    check_box("CB_pr_color", "s_pr_color");
    button("true", "RB_pr_portrait", "s_pr_landscape", "false");
    button("false", "RB_pr_landscape", "s_pr_landscape", "true");
    row("", "COB_hand_change_sign_index", "--", "s_hand_change_sign_index", "1");
    row("", "COB_hand_change_sign_index", "------", "s_hand_change_sign_index", "5");
    row("", "SL_scr_res_factor", 3, "s_scr_res_factor", "3");
    row("3", "SL_scr_res_factor", 0, "s_scr_res_factor", "0");
    check_box("CB_year_statistic", "s_year_statistic");
    button("true", "RB_history_database", "s_use_history_text_files", "false");
    button("false", "RB_history_text_files", "s_use_history_text_files", "true");
    check_box("CB_load_history_file", "s_use_history_throws_startup");
    button("", "RB_history_last_day", "s_load_history_stat_type_index", "1");
    button("", "RB_history_fix_date", "s_load_history_stat_type_index", "3");
    button("1", "RB_history_year", "s_load_history_stat_type_index", "0");
    row("", "SB_history_days_count", 365, "s_history_days_count", "365");
    row("", "COB_history_year_index", "2020", "s_history_year_index", "2");
    row("7", "COB_history_year_index", "2023", "s_history_year_index", "0");
    row("", "DE_history_fix_date", QDate(2024, 2, 29), "s_history_fix_date", "2024-02-29");
    check_box("CB_add_lofil_throw_to_year_stat", "s_add_lofil_throw_to_year_stat");
    check_box("CB_single_color_timebar", "s_single_color_timebar");
    check_box("CB_zero_handling", "s_zero_handling");
    check_box("CB_auto_update_check", "s_auto_update_check");
    check_box("CB_classic_dolly", "s_classic_dolly");
    row("", "SB_activation_coldhot_display", 10, "s_activation_coldhot_display", "10");
    row("", "CB_history_protocol", true, "s_year_statistic", "true"); // stored nowhere
}

void tst_options::a_widget_changes_its_setting_alone()
{
    QFETCH(QString, before);
    QFETCH(QString, widget);
    QFETCH(QVariant, value);
    QFETCH(QString, key);
    QFETCH(QString, stored);

    setting settings;
    if (!before.isEmpty()) QCOMPARE(settings.set_value(key, before), QString());
    Options dialog(settings, three_years);
    change(find(dialog, widget), value);
    press(dialog, QDialogButtonBox::Ok);

    QMap<QString, QString> expected = default_content();
    QVERIFY(expected.contains("option/" + key));
    expected["option/" + key] = stored;
    QCOMPARE(content_of("zarvello.ini"), expected);
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
}

void tst_options::accepting_alone_changes_nothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    const auto row = [](const char* key, const char* value) {
        QTest::addRow("%s %s", key, value) << key << value;
    };
    row("s_balkenzeit", "0");
    row("s_balkenzeit", "1000");
    row("s_balkenzeit", "7500");
    row("s_balkenzeit", "900000");
    row("s_start_jetons", "5000000");
    row("s_scr_res_factor", "-1");
    row("s_history_days_count", "0");
    row("s_history_days_count", "1000");
    row("s_history_year_index", "-1");
    row("s_history_year_index", "7");
    row("s_history_fix_date", "1700-03-01");
    row("s_activation_coldhot_display", "3");
    row("s_activation_coldhot_display", "2000000");
    row("s_editor_font", "Mono, 9");
    row("s_user_sys_file_3", "system/a.syf");
}

void tst_options::accepting_alone_changes_nothing()
{
    QFETCH(QString, key);
    QFETCH(QString, value);

    setting settings;
    QCOMPARE(settings.set_value(key, value), QString());
    QVERIFY(settings.write_settings("before.ini"));
    const Options dialog(settings, three_years);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(content_of("zarvello.ini"), content_of("before.ini"));
    QCOMPARE(content_of("zarvello.ini").value("option/" + key), value);
}

void tst_options::a_button_confirms_what_stands_beside_it_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("clicked");
    QTest::addColumn<int>("expected");

    QTest::newRow("days below the range") << "s_history_days_count"
                                          << "0" << QStringList{"RB_history_more_days"} << 2;
    QTest::newRow("days above the range") << "s_history_days_count"
                                          << "1000" << QStringList{"RB_history_more_days"} << 365;
    QTest::newRow("automatic again")
        << "s_balkenzeit"
        << "7500" << QStringList{"RB_bet_time_disable", "RB_bet_time_enable"} << 7000;
}

void tst_options::a_button_confirms_what_stands_beside_it()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QStringList, clicked);
    QFETCH(int, expected);

    setting settings;
    QCOMPARE(settings.set_value(key, value), QString());
    const Options dialog(settings, three_years);
    for (const QString& button : qAsConst(clicked))
        find<QRadioButton>(dialog, button)->click();
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(content_of("zarvello.ini").value("option/" + key).toInt(), expected);
}

void tst_options::the_texts_stand_as_told_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, const char* property, const char* text) {
        QTest::addRow("%s", name) << name << property << QString::fromUtf8(text);
    };
    row("GB_general", "title", "Allgemeine Optionen");
    row("GB_printer", "title", "Drucker Optionen");
    row("GB_player", "title", "Spieler Optionen");
    row("GB_file", "title", "Datei Optionen");
    row("GB_update", "title", "Update");
    row("GB_display", "title", "Anzeige");
    row("GB_statistic", "title", "Statistik Optionen");
    row("LB_bet_time", "text", "Setzzeit");
    row("SB_bet_time", "suffix", " sec");
    row("RB_bet_time_disable", "text", "manuell");
    row("LB_language", "text", "Sprache");
    row("RB_language_auto", "text", "Auto");
    row("RB_language_german", "text", "Deutsch");
    row("RB_language_english", "text", "Englisch");
    row("LB_language_term", "text", "Begriffe");
    row("RB_term_french", "text", "französisch");
    row("RB_term_american", "text", "amerikanisch");
    row("LB_start_jetons", "text", "Anfangsjetons");
    row("LB_setzart", "text", "Setzart");
    row("RB_setzart_piece", "text", "Stück");
    row("RB_setzart_real", "text", "Real");
    row("LB_setzart_real_size", "text", "zu");
    row("CB_wheel_disabled", "text", "Kesselumdrehungen  deaktivieren");
    row("CB_su_shortthrow_activ", "text", "Superkurzwurf aktivieren");
    row("CB_jeton_to_win", "text", "Setzjetons zum Gewinn");
    row("LB_tip_def_index", "text", "Angestellen Stück ");
    row("LB_table_form", "text", "Spieltisch");
    row("RB_table_french", "text", "französischer Tisch");
    row("RB_table_american", "text", "amerikanischer Tisch");
    row("CB_pr_color", "text", "in Farbe drucken");
    row("RB_pr_portrait", "text", "Hochformat");
    row("RB_pr_landscape", "text", "Querformat");
    row("LB_hand_change_sign", "text", "Handwechsel Zeichen");
    row("LB_scr_res_max", "text", "max");
    row("LB_scr_res_min", "text", "min");
    row("CB_year_statistic", "text", "Jahresstatistik");
    row("RB_history_text_files", "text", "Textdatei");
    row("RB_history_database", "text", "Datenbank");
    row("CB_load_history_file", "text", "Jahresstatistik als Historie bei Programmstart laden **");
    row("RB_history_year", "text", "ab Jahr");
    row("RB_history_last_day", "text", "einen Tag*");
    row("RB_history_more_days", "text", "die letzten");
    row("LB_history_days", "text", "Tage*");
    row("RB_history_fix_date", "text", "ab Datum");
    row("CB_add_lofil_throw_to_year_stat", "text", "Ladefiles zur Jahresstatisk hinzufügen");
    row("LB_history_day_note", "text", "* absolut vom Programmstarttag");
    row("LB_history_start_note", "text", "** Änderungen werden ab dem nächsten Start aktiv");
    row("CB_single_color_timebar", "text", "Einfärbiger Zeitbalken");
    row("CB_zero_handling", "text", "En Prison Regel");
    row("CB_auto_update_check", "text", "automatischer Updatecheck nach Programmstart");
    row("CB_classic_dolly", "text", "Klassik Dolly");
    row("LB_coldhot_display", "text", "Aktivierung der Hot/Cold Anzeige ab Coup ");
    row("LB_coldhot_display_inclusive", "text", "(inkl.)");
    row("CB_history_protocol", "text", "Datei Verlaufprotokoll aktivieren");
}

void tst_options::the_texts_stand_as_told()
{
    QFETCH(QString, name);
    QFETCH(QString, property);
    QFETCH(QString, text);

    setting settings;
    const Options dialog(settings, {});
    QCOMPARE(dialog.windowTitle(), QString("Einstellungen"));
    QCOMPARE(find(dialog, name)->property(qPrintable(property)).toString(), text);
}

void tst_options::the_lists_offer_what_is_told_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("size of a piece")
        << "COB_setzart_real_size" << QStringList{"2", "5", "10", "20", "25", "50", "100", "500"};
    QTest::newRow("staff piece") << "COB_tip_def_index" << QStringList{"keines", "PL", "PL-CH"};
    QTest::newRow("hand change") << "COB_hand_change_sign_index"
                                 << QStringList{"-", "--", "---", "----", "-----", "------"};
    QTest::newRow("years") << "COB_history_year_index" << three_years;
}

void tst_options::the_lists_offer_what_is_told()
{
    QFETCH(QString, name);
    QFETCH(QStringList, entries);

    setting settings;
    const Options dialog(settings, three_years);
    const auto* const box = find<QComboBox>(dialog, name);
    QStringList found;
    for (int i = 0; i < box->count(); ++i)
        found.append(box->itemText(i));
    QCOMPARE(found, entries);
}

void tst_options::the_ranges_are_as_told_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("smallest");
    QTest::addColumn<int>("largest");
    QTest::addColumn<int>("step");

    QTest::newRow("betting time") << "SB_bet_time" << 5 << 300 << 5;
    QTest::newRow("start capital") << "SB_start_jetons" << 0 << 1000000 << 100;
    QTest::newRow("scale") << "SL_scr_res_factor" << 0 << 3 << 1;
    QTest::newRow("days") << "SB_history_days_count" << 2 << 365 << 1;
    QTest::newRow("hot and cold") << "SB_activation_coldhot_display" << 10 << 999999 << 1;
}

void tst_options::the_ranges_are_as_told()
{
    QFETCH(QString, name);
    QFETCH(int, smallest);
    QFETCH(int, largest);
    QFETCH(int, step);

    setting settings;
    const Options dialog(settings, {});
    const QWidget* const widget = find(dialog, name);
    QCOMPARE(widget->property("minimum").toInt(), smallest);
    QCOMPARE(widget->property("maximum").toInt(), largest);
    QCOMPARE(widget->property("singleStep").toInt(), step);
}

void tst_options::an_empty_file_gives_sixty_seconds()
{
    QFile file("zarvello.ini");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    setting settings;
    QVERIFY(settings.read_settings());
    const Options dialog(settings, {});
    QCOMPARE(find<QSpinBox>(dialog, "SB_bet_time")->text(), QString("60 sec"));
    QVERIFY(find(dialog, "SB_bet_time")->isEnabled());
}

void tst_options::an_unknown_piece_size_selects_the_first()
{
    QFile file("zarvello.ini");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("[option]\ns_setzart=1\ns_setzart_real_size=7\n") > 0);
    file.close();
    setting settings;
    QVERIFY(settings.read_settings());
    const Options dialog(settings, {});
    QCOMPARE(find<QComboBox>(dialog, "COB_setzart_real_size")->currentIndex(), 0);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(content_of("zarvello.ini").value("option/s_setzart_real_size"), QString("2"));
}

void tst_options::there_may_be_no_years()
{
    setting settings;
    settings.set_s_history_year_index(1);
    const Options dialog(settings, {});
    QCOMPARE(find<QComboBox>(dialog, "COB_history_year_index")->count(), 0);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(settings.s_history_year_index(), 1);
}

void tst_options::manual_time_needs_no_seconds()
{
    setting settings;
    const Options dialog(settings, {});
    const auto* const seconds = find<QSpinBox>(dialog, "SB_bet_time");
    QVERIFY(seconds->isEnabled());
    find<QRadioButton>(dialog, "RB_bet_time_disable")->click();
    QVERIFY(!seconds->isEnabled());
    find<QRadioButton>(dialog, "RB_bet_time_enable")->click();
    QVERIFY(seconds->isEnabled());

    settings.set_s_balkenzeit(0);
    const Options manual(settings, {});
    QVERIFY(!find(manual, "SB_bet_time")->isEnabled());
}

void tst_options::the_piece_size_belongs_to_real_mode()
{
    setting settings;
    const Options dialog(settings, {});
    const auto* const size = find<QComboBox>(dialog, "COB_setzart_real_size");
    QVERIFY(!size->isEnabled());
    find<QRadioButton>(dialog, "RB_setzart_real")->click();
    QVERIFY(size->isEnabled());
    find<QRadioButton>(dialog, "RB_setzart_piece")->click();
    QVERIFY(!size->isEnabled());

    settings.set_s_setzart(1);
    const Options real(settings, {});
    QVERIFY(find(real, "COB_setzart_real_size")->isEnabled());
}

void tst_options::the_date_belongs_to_the_history()
{
    setting settings;
    const Options dialog(settings, {});
    const auto* const date = find<QDateEdit>(dialog, "DE_history_fix_date");
    QVERIFY(!date->isEnabled());
    find<QCheckBox>(dialog, "CB_load_history_file")->click();
    QVERIFY(date->isEnabled());
    find<QCheckBox>(dialog, "CB_load_history_file")->click();
    QVERIFY(!date->isEnabled());

    settings.set_s_use_history_throws_startup(true);
    const Options loading(settings, {});
    QVERIFY(find(loading, "DE_history_fix_date")->isEnabled());
}

void tst_options::a_language_is_tried_at_once()
{
    setting settings;
    const Options dialog(settings, {});
    QSignalSpy tried(&dialog, &Options::setting_language_changend);
    find<QRadioButton>(dialog, "RB_language_english")->click();
    find<QRadioButton>(dialog, "RB_language_german")->click();
    find<QRadioButton>(dialog, "RB_language_auto")->click();
    QCOMPARE(tried.size(), 3);
    QCOMPARE(tried.at(0).first().value<setting_language>(), LANG_ENGLISH);
    QCOMPARE(tried.at(1).first().value<setting_language>(), LANG_GERMAN);
    QCOMPARE(tried.at(2).first().value<setting_language>(), LANG_AUTO);
    QCOMPARE(settings.language(), LANG_AUTO);
}

void tst_options::cancel_returns_to_the_stored_language_data()
{
    QTest::addColumn<setting_language>("stored");
    QTest::addColumn<bool>("by_key");

    QTest::newRow("auto") << LANG_AUTO << false;
    QTest::newRow("German") << LANG_GERMAN << false;
    QTest::newRow("Escape") << LANG_GERMAN << true;
}

void tst_options::cancel_returns_to_the_stored_language()
{
    QFETCH(setting_language, stored);
    QFETCH(bool, by_key);

    setting settings;
    settings.set_s_language(stored);
    Options dialog(settings, {});
    QSignalSpy shown(&dialog, &Options::setting_language_changend);
    find<QRadioButton>(dialog, "RB_language_english")->click();
    if (by_key) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        press(dialog, QDialogButtonBox::Cancel);
    }
    QCOMPARE(shown.size(), 2);
    QCOMPARE(shown.at(0).first().value<setting_language>(), LANG_ENGLISH);
    QCOMPARE(shown.at(1).first().value<setting_language>(), stored);
    QCOMPARE(settings.language(), stored);
    QCOMPARE(dialog.result(), int{QDialog::Rejected});
}

void tst_options::cancel_stores_nothing()
{
    setting settings;
    const Options dialog(settings, {});
    QSignalSpy changed(&dialog, &Options::ini_value_changend);
    find<QCheckBox>(dialog, "CB_classic_dolly")->click();
    press(dialog, QDialogButtonBox::Cancel);
    QVERIFY(!settings.s_classic_dolly());
    QVERIFY(!QFile::exists("zarvello.ini"));
    QCOMPARE(changed.size(), 0);
}

void tst_options::accepting_tells_when_all_is_stored()
{
    setting settings;
    const Options dialog(settings, {});
    find<QSpinBox>(dialog, "SB_start_jetons")->setValue(333);
    int told = 0;
    connect(&dialog, &Options::ini_value_changend, &dialog, [&] {
        ++told;
        QCOMPARE(settings.s_start_jetons(), 333);
        QCOMPARE(content_of("zarvello.ini").value("option/s_start_jetons"), QString("333"));
    });
    QSignalSpy language(&dialog, &Options::setting_language_changend);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(told, 1);
    QCOMPARE(language.size(), 0);
}

void tst_options::a_file_that_cannot_be_written_is_told_once()
{
    QVERIFY(QDir().mkdir("zarvello.ini"));
    const box_reader boxes;
    setting settings;
    const Options dialog(settings, {});
    QSignalSpy changed(&dialog, &Options::ini_value_changend);
    find<QCheckBox>(dialog, "CB_classic_dolly")->click();
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(QDir().rmdir("zarvello.ini"));

    QCOMPARE(boxes.titles, QStringList("Einstellungen"));
    QVERIFY(boxes.texts.value(0).contains("zarvello.ini"));
    QVERIFY(settings.s_classic_dolly());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
}

void tst_options::a_super_short_game_keeps_the_short_throw_data()
{
    QTest::addColumn<bool>("kept");
    QTest::newRow("switched on") << false;
    QTest::newRow("switched off") << true;
}

/// While the game is on the setting itself is always on.
void tst_options::a_super_short_game_keeps_the_short_throw()
{
    QFETCH(bool, kept);

    bool place = kept;
    setting settings;
    settings.set_s_su_shortthrow_activ(true);
    const Options dialog(settings, {}, [&] { return &place; });
    auto* const box = find<QCheckBox>(dialog, "CB_su_shortthrow_activ");
    QCOMPARE(box->isChecked(), kept);
    box->click();
    QCOMPARE(place, kept);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(place, !kept);
    QVERIFY(settings.s_su_shortthrow_activ());
}

void tst_options::a_super_short_game_may_end_meanwhile()
{
    bool kept = false;
    bool is_on = true;
    setting settings;
    settings.set_s_su_shortthrow_activ(true);
    const Options dialog(settings, {}, [&] { return is_on ? &kept : nullptr; });
    find<QCheckBox>(dialog, "CB_su_shortthrow_activ")->click();
    is_on = false;
    settings.set_s_su_shortthrow_activ(kept);
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(settings.s_su_shortthrow_activ());
    QVERIFY(!kept);
}

void tst_options::the_language_changes_live()
{
    setting settings;
    settings.set_s_language(LANG_GERMAN);
    const Options dialog(settings, three_years);
    program_language switcher(ZARVELLO_TRANSLATION_FOLDER, "C");
    switcher.set_game_language(settings.language());
    connect(&dialog,
            &Options::setting_language_changend,
            &switcher,
            &program_language::set_game_language);
    const QStringList lists = {"COB_setzart_real_size",
                               "COB_tip_def_index",
                               "COB_hand_change_sign_index",
                               "COB_history_year_index"};
    for (const QString& list : lists)
        find<QComboBox>(dialog, list)->setCurrentIndex(2);
    find<QSpinBox>(dialog, "SB_start_jetons")->setValue(123);

    find<QRadioButton>(dialog, "RB_language_english")->click();
    QCoreApplication::processEvents();
    QCOMPARE(dialog.windowTitle(), QString("Settings"));
    QCOMPARE(find<QGroupBox>(dialog, "GB_printer")->title(), QString("Printer options"));
    QCOMPARE(find<QComboBox>(dialog, "COB_tip_def_index")->itemText(0), QString("none"));
    for (const QString& list : lists)
        QCOMPARE(find<QComboBox>(dialog, list)->currentIndex(), 2);
    QCOMPARE(find<QSpinBox>(dialog, "SB_start_jetons")->value(), 123);

    press(dialog, QDialogButtonBox::Cancel);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.windowTitle(), QString("Einstellungen"));
    QCOMPARE(find<QDialogButtonBox>(dialog, "buttonBox")
                 ->button(QDialogButtonBox::Cancel)
                 ->text()
                 .remove('&'),
             QString("Abbrechen"));
}

void tst_options::everything_fits_1024_by_600_data()
{
    QTest::addColumn<setting_language>("language");
    QTest::newRow("German") << LANG_GERMAN;
    QTest::newRow("English") << LANG_ENGLISH;
}

void tst_options::everything_fits_1024_by_600()
{
    QFETCH(setting_language, language);

    setting settings;
    program_language switcher(ZARVELLO_TRANSLATION_FOLDER, "C");
    switcher.set_game_language(language);
    Options dialog(settings, three_years);
    dialog.show();
    const auto* const area = find<QScrollArea>(dialog, "scroll_area");
    const QSize all = area->widget()->sizeHint() + dialog.size() - area->size();
    QVERIFY2(all.width() <= 1010 && all.height() <= 550,
             qPrintable(QString("%1 x %2").arg(all.width()).arg(all.height())));
    if (dialog.screen()->availableGeometry().height() >= 600) {
        QCOMPARE(dialog.height(), all.height());
    }
}

/// In a font that makes the dialog larger than the screen of the test.
void tst_options::the_options_scroll_on_a_small_screen()
{
    const QFont usual = QApplication::font();
    QApplication::setFont(QFont(usual.family(), 40));
    setting settings;
    Options dialog(settings, three_years);
    dialog.show();
    QCoreApplication::processEvents();
    QApplication::setFont(usual);
    const QSize room = dialog.screen()->availableGeometry().size();
    QVERIFY(dialog.width() <= room.width());
    QVERIFY(dialog.height() <= room.height());
    const auto* const area = find<QScrollArea>(dialog, "scroll_area");
    QVERIFY(area->widget()->height() > area->viewport()->height());
    QVERIFY(area->verticalScrollBar()->isVisible());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_options, QApplication>(argc, argv);
}
#include "tst_options.moc"
