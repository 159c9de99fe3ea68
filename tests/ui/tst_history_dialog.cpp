#include "file_dialog.h"
#include "history_dialog.h"
#include "historystorage.h"
#include "numberstorage.h"
#include "setting.h"
#include "window_bench.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>

#include <memory>

namespace
{

const QString red_border = "QPushButton {border-color: #fc0109;border-style: outset;border-radius: "
                           "3px;border-width: 2px;}";
const QStringList begin_of_load = {"Daten werden geladen - bitte warten ..."};
const QStringList nothing_found = {"Daten werden geladen - bitte warten ...",
                                   "Es wurden keine gültigen/revelanten Coups gefunden!",
                                   "Einarbeitung nicht erfolgreich!"};

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

QByteArray block_of(const QDate& day, const QByteArray& lines)
{
    return "::  " + day.toString("dddd,dd.MMMM.yyyy").toUtf8() + " 20:00:00 - x Coups : 1\n" +
           lines + "\n";
}

/// The dialog over a storage whose numbers nobody counts; the test says when they are counted.
struct history_desk {
    explicit history_desk(double reduction = 0.0)
    {
        settings.set_s_scr_res_factor(qRound(reduction * 10));
        QObject::connect(&storage, &historystorage::load_hist_number, [this](int number) {
            sent.append(number);
        });
        file_dialog::set_chooser([this](const file_dialog::request& what) {
            requests.append(what);
            return chosen;
        });
        dialog = std::make_unique<history_dialog>(storage, settings, [this] { ++drains; });
        dialog->show();
    }
    ~history_desk() { file_dialog::set_chooser({}); }

    template <typename widget>
    widget& child(const char* name) const
    {
        return *child_of<widget>(*dialog, QString::fromLatin1(name));
    }
    bool is_checked(const char* name) const { return child<QRadioButton>(name).isChecked(); }
    bool is_enabled(const char* name) const { return child<QWidget>(name).isEnabled(); }
    void click(const char* name) const { child<QAbstractButton>(name).click(); }
    QAbstractButton& ok() const
    {
        return *child<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Ok);
    }
    QTimer& blink() const { return child<QTimer>("blink_timer"); }

    void choose_file(const QString& path)
    {
        chosen = path;
        dialog->select_single_history_file();
    }
    void load() const { click("PB_load_file"); }

    QStringList protocol() const
    {
        QStringList lines;
        const auto& list = child<QListWidget>("LW_load_protocol");
        for (int row = 0; row < list.count(); ++row)
            lines.append(list.item(row)->text());
        return lines;
    }
    QList<QColor> colours() const
    {
        QList<QColor> lines;
        const auto& list = child<QListWidget>("LW_load_protocol");
        for (int row = 0; row < list.count(); ++row)
            lines.append(list.item(row)->foreground().color());
        return lines;
    }

    setting settings;
    numberStorage source{settings};
    historystorage storage{source, settings};
    QList<int> sent;
    int drains = 0;
    QString chosen;
    QVector<file_dialog::request> requests;
    std::unique_ptr<history_dialog> dialog;
    box_user user;
};

} // namespace

/// The choice of what to load, the load itself with its protocol, and the close of the dialog.
class tst_history_dialog : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void the_widgets_carry_their_texts_data();
    void the_widgets_carry_their_texts();
    void it_opens_idle();
    void the_years_are_listed_newest_first();
    void a_radio_button_enables_the_load_data();
    void a_radio_button_enables_the_load();
    void a_changed_field_clicks_its_radio_button_data();
    void a_changed_field_clicks_its_radio_button();
    void without_year_files_days_leave_the_button();
    void the_button_blinks();
    void a_file_is_chosen_and_shown();
    void the_button_beside_the_field_chooses_too();
    void cancel_empties_the_choice();
    void reset_empties_the_choice();

    void a_year_is_loaded();
    void a_date_is_loaded();
    void the_last_days_are_loaded();
    void a_single_file_is_loaded();
    void hand_changes_are_told();
    void a_load_that_finds_nothing_data();
    void a_load_that_finds_nothing();
    void a_load_that_ends_on_a_hand_change_ends_by_itself();
    void while_it_works_nothing_can_be_pressed();
    void during_the_read_the_cursor_waits();
    void the_next_load_adds();
    void the_end_of_another_coup_is_no_end_of_a_load();

    void the_statistic_is_cleared_first();
    void a_refused_clearing_breaks_off();
    void an_answer_that_was_not_asked_for_loads_nothing();

    void illegal_numbers_are_told();
    void a_double_zero_is_told();
    void many_illegal_numbers_do_not_flood_the_protocol();
    void the_protocol_follows();
    void the_protocol_is_legible_on_a_dark_desktop();

    void ok_closes();
    void ok_asks_while_the_button_blinks_data();
    void ok_asks_while_the_button_blinks();
    void it_does_not_close_while_it_works();

    void the_dialog_may_die_in_a_load();
    void the_language_changes_live();
    void nothing_is_clipped_at_any_scale_data();
    void nothing_is_clipped_at_any_scale();
};

// 2018 has two blocks, 2020 one.
void tst_history_dialog::init()
{
    const QStringList files = QDir().entryList(QDir::Files);
    for (const QString& file : files)
        QFile::remove(file);
    put("Stat2018.log", block_of({2018, 3, 1}, "01 02\n") + block_of({2018, 3, 3}, "03\n--\n"));
    put("Stat2020.log", block_of({2020, 1, 5}, "04\n"));
}

void tst_history_dialog::the_widgets_carry_their_texts_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
    const QByteArray text = "text", title = "title";
    // clang-format off
    const struct { const char* name; QByteArray property; const char* text; } rows[] = {
        {"GB_date_range",                    title, "Datum/Zeitbereich"},
        {"RB_history_year",                  text,  "ab Jahr (inkl.)"},
        {"RB_history_last_day",              text,  "einen Tag*"},
        {"RB_history_more_days",             text,  "die letzten"},
        {"LA_more_days",                     text,  "Tage*"},
        {"RB_history_fix_date",              text,  "ab dem Datum"},
        {"RB_history_permanenz_file",        text,  "lade Datei"},
        {"PB_reset_load_file",               text,  "Reset"},
        {"LA_day_hint",                      text,  "* absolut vom Programmstarttag"},
        {"GB_settings",                      title, "Einstellungen"},
        {"RB_extend_existing_statistic_data",text,  "Daten an bestehende Statistik anhängen"},
        {"RB_reset_statistic",               text,  "Statistik vor dem Laden löschen"},
        {"PB_load_file",                     text,  "Laden"},
        {"GB_protocol",                      title, "Ladeprotokoll"},
    };
    // clang-format on
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.property << QString::fromUtf8(row.text);
}

void tst_history_dialog::the_widgets_carry_their_texts()
{
    QFETCH(QByteArray, property);
    const history_desk desk;
    QTEST(desk.child<QWidget>(QTest::currentDataTag()).property(property).toString(), "text");
}

void tst_history_dialog::it_opens_idle()
{
    const history_desk desk;
    QVERIFY(!desk.is_enabled("PB_load_file"));
    QVERIFY(!desk.blink().isActive());
    QCOMPARE(desk.blink().interval(), 1000);
    QCOMPARE(desk.protocol(), QStringList());
    QVERIFY(desk.is_checked("RB_extend_existing_statistic_data"));
    QVERIFY(desk.ok().isEnabled());
    QVERIFY(desk.child<QLineEdit>("LE_history_loadfile").isReadOnly());
    QCOMPARE(desk.child<QSpinBox>("SP_more_days").minimum(), 2);
    QCOMPARE(desk.child<QSpinBox>("SP_more_days").maximum(), 365);
    QCOMPARE(desk.child<QDateEdit>("DE_fix_date").date(), QDate(2017, 1, 1));
}

void tst_history_dialog::the_years_are_listed_newest_first()
{
    const history_desk desk;
    const auto& years = desk.child<QComboBox>("CB_year_storage");
    QCOMPARE(years.count(), 2);
    QCOMPARE(years.itemText(0), QString("2020"));
    QCOMPARE(years.itemData(0).toString(), QString("2020"));
    QCOMPARE(years.itemText(1), QString("2018"));
}

void tst_history_dialog::a_radio_button_enables_the_load_data()
{
    QTest::addColumn<bool>("has_years");
    QTest::addColumn<bool>("enables");
    QTest::newRow("RB_history_year") << true << true;
    QTest::newRow("RB_history_last_day") << true << true;
    QTest::newRow("RB_history_more_days") << true << true;
    QTest::newRow("RB_history_fix_date") << true << true;
    QTest::newRow("RB_history_permanenz_file") << true << false; // no file is chosen yet
    QTest::newRow("RB_history_year no years") << false << false;
    QTest::newRow("RB_history_last_day no years") << false << false;
    QTest::newRow("RB_history_more_days no years") << false << false;
    QTest::newRow("RB_history_fix_date no years") << false << false;
    QTest::newRow("RB_history_permanenz_file no years") << false << false;
}

void tst_history_dialog::a_radio_button_enables_the_load()
{
    QFETCH(bool, has_years);
    QFETCH(bool, enables);
    if (!has_years) {
        QFile::remove("Stat2018.log");
        QFile::remove("Stat2020.log");
    }
    const history_desk desk;
    desk.click(QByteArray(QTest::currentDataTag()).split(' ').first());
    QCOMPARE(desk.is_enabled("PB_load_file"), enables);
    QCOMPARE(desk.blink().isActive(), enables);
}

void tst_history_dialog::a_changed_field_clicks_its_radio_button_data()
{
    QTest::addColumn<QString>("radio");
    QTest::newRow("year") << "RB_history_year";
    QTest::newRow("days") << "RB_history_more_days";
    QTest::newRow("date") << "RB_history_fix_date";
    QTest::newRow("file") << "RB_history_permanenz_file";
}

void tst_history_dialog::a_changed_field_clicks_its_radio_button()
{
    QFETCH(QString, radio);
    const QByteArray field = QTest::currentDataTag();
    history_desk desk;
    if (field == "year") emit desk.child<QComboBox>("CB_year_storage").activated(1);
    if (field == "days") desk.child<QSpinBox>("SP_more_days").setValue(9);
    if (field == "date") desk.child<QDateEdit>("DE_fix_date").setDate({2018, 3, 2});
    if (field == "file") desk.choose_file(QDir::current().absoluteFilePath("Stat2018.log"));
    QVERIFY(desk.is_checked(radio.toLatin1()));
    QVERIFY(desk.is_enabled("PB_load_file"));
    QVERIFY(desk.blink().isActive());
}

void tst_history_dialog::without_year_files_days_leave_the_button()
{
    QFile::remove("Stat2018.log");
    QFile::remove("Stat2020.log");
    put("table.inp", "1\n");
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    QVERIFY(desk.is_enabled("PB_load_file"));
    desk.click("RB_history_last_day"); // it was enabled and stays so
    QVERIFY(desk.is_enabled("PB_load_file"));
    QVERIFY(desk.blink().isActive());
    desk.click("RB_history_year");
    QVERIFY(!desk.is_enabled("PB_load_file"));
    QVERIFY(!desk.blink().isActive());
    desk.click("RB_history_last_day"); // it was disabled and stays so
    QVERIFY(!desk.is_enabled("PB_load_file"));
}

void tst_history_dialog::the_button_blinks()
{
    const history_desk desk;
    const auto& button = desk.child<QPushButton>("PB_load_file");
    desk.click("RB_history_year");
    QCOMPARE(button.styleSheet(), QString());
    QVERIFY(fire(&desk.blink()));
    QCOMPARE(button.styleSheet(), red_border);
    fire(&desk.blink());
    QCOMPARE(button.styleSheet(), QString());
    fire(&desk.blink());
    QCOMPARE(button.styleSheet(), red_border);
    desk.click("RB_history_permanenz_file"); // no file: nothing to press
    QCOMPARE(button.styleSheet(), QString());
    QVERIFY(!desk.blink().isActive());
}

void tst_history_dialog::a_file_is_chosen_and_shown()
{
    QVERIFY(QDir().mkpath("a folder/with a long name beyond the limit/of fifty characters"));
    const QString path = QDir::current().absoluteFilePath(
        "a folder/with a long name beyond the limit/of fifty characters/evening.inp");
    put(path, "17\n");
    history_desk desk;
    desk.choose_file(path);
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests[0].title, QString("Datei öffnen"));
    QCOMPARE(desk.requests[0].folder, QString("./sysin"));
    const QStringList filters = desk.requests[0].filter.split(";;");
    QCOMPARE(filters.size(), 2);
    QCOMPARE(filters[0], QString("Lade Dateien (*.inp)"));
    QVERIFY(filters[1].startsWith("  "));
    QCOMPARE(filters[1].trimmed(), QString("Alle Dateien (*.*)"));
    const auto& field = desk.child<QLineEdit>("LE_history_loadfile");
    QCOMPARE(field.toolTip(), path);
    QVERIFY(field.text().endsWith("/.../of fifty characters/evening.inp"));
    QVERIFY(field.text().size() <= 50);

    desk.choose_file(path);
    QCOMPARE(desk.requests[1].folder, path.section('/', 0, -2));
}

void tst_history_dialog::the_button_beside_the_field_chooses_too()
{
    history_desk desk;
    desk.chosen = QDir::current().absoluteFilePath("Stat2018.log");
    desk.click("PB_select_load_file");
    QCOMPARE(desk.child<QLineEdit>("LE_history_loadfile").toolTip(), desk.chosen);
}

void tst_history_dialog::cancel_empties_the_choice()
{
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("Stat2018.log"));
    desk.choose_file(QString());
    QCOMPARE(desk.child<QLineEdit>("LE_history_loadfile").text(), QString());
    QCOMPARE(desk.child<QLineEdit>("LE_history_loadfile").toolTip(), QString());
    QVERIFY(!desk.is_enabled("PB_load_file"));
    desk.choose_file("/no/such/file.inp");
    QCOMPARE(desk.child<QLineEdit>("LE_history_loadfile").toolTip(), QString());
    QVERIFY(!desk.is_enabled("PB_load_file"));
}

void tst_history_dialog::reset_empties_the_choice()
{
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("Stat2018.log"));
    desk.click("PB_reset_load_file");
    QCOMPARE(desk.child<QLineEdit>("LE_history_loadfile").text(), QString());
    QCOMPARE(desk.child<QLineEdit>("LE_history_loadfile").toolTip(), QString());
    QVERIFY(!desk.is_enabled("PB_load_file"));
    QVERIFY(!desk.blink().isActive());
}

// ---- the load

void tst_history_dialog::a_year_is_loaded()
{
    const history_desk desk;
    desk.click("RB_history_year");
    desk.load();
    QCOMPARE(desk.sent, QList<int>{4});
    QVERIFY(!desk.blink().isActive());
    QCOMPARE(desk.protocol(),
             begin_of_load + QStringList({"Das Laden war erfolgreich! Coups: 1 Handwechsel: 0",
                                          "Einarbeitung läuft - bitte warten ..."}));
    desk.dialog->load_incorporation_complete();
    QCOMPARE(desk.protocol().last(), QString("Einarbeitung komplett und erfolgreich!"));
    QCOMPARE(desk.colours(), (QList<QColor>{Qt::black, Qt::darkGreen, Qt::black, Qt::darkGreen}));
    QVERIFY(desk.ok().isEnabled());
    QVERIFY(desk.is_enabled("GB_date_range"));
    QVERIFY(desk.is_enabled("GB_settings"));
    QVERIFY(desk.is_enabled("PB_load_file"));
    QCOMPARE(desk.dialog->cursor().shape(), Qt::ArrowCursor);
}

void tst_history_dialog::a_date_is_loaded()
{
    const history_desk desk;
    desk.child<QDateEdit>("DE_fix_date").setDate({2018, 3, 2});
    desk.load();
    QCOMPARE(desk.sent, (QList<int>{3, 99, 4})); // the block of 1 March is left out
}

void tst_history_dialog::the_last_days_are_loaded()
{
    const QDate today = QDate::currentDate();
    const QDate three_days_ago = today.addDays(-3);
    put(QString("Stat%1.log").arg(today.year()), "");
    QFile year_file(QString("Stat%1.log").arg(three_days_ago.year()));
    QVERIFY(year_file.open(QIODevice::WriteOnly));
    year_file.write(block_of(three_days_ago, "31\n"));
    year_file.close();
    const history_desk desk;
    desk.child<QSpinBox>("SP_more_days").setValue(3);
    desk.load();
    QCOMPARE(desk.sent, QList<int>{31});

    const history_desk shorter;
    shorter.click("RB_history_more_days"); // two days
    shorter.load();
    QCOMPARE(shorter.sent, QList<int>());
    const history_desk one_day;
    one_day.click("RB_history_last_day");
    one_day.load();
    QCOMPARE(one_day.sent, QList<int>());
}

void tst_history_dialog::a_single_file_is_loaded()
{
    put("table.inp", "an evening\n9 8 7\n");
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    desk.load();
    QCOMPARE(desk.sent, (QList<int>{9, 8, 7}));
    QCOMPARE(desk.protocol()[1], QString("Das Laden war erfolgreich! Coups: 3 Handwechsel: 0"));
}

void tst_history_dialog::hand_changes_are_told()
{
    const history_desk desk;
    emit desk.child<QComboBox>("CB_year_storage").activated(1);
    desk.child<QComboBox>("CB_year_storage").setCurrentIndex(1);
    desk.load();
    QCOMPARE(desk.sent, (QList<int>{1, 2, 3, 99, 4}));
    QCOMPARE(desk.protocol()[1], QString("Das Laden war erfolgreich! Coups: 4 Handwechsel: 1"));
}

void tst_history_dialog::a_load_that_finds_nothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("hello\n");
    QTest::newRow("hand changes only") << QByteArray("-\n-\n");
    QTest::newRow("a block of another language")
        << QByteArray("::  Lundi,01.Brumaire.2018 20:00:00 - x\n07\n\n");
}

void tst_history_dialog::a_load_that_finds_nothing()
{
    QFETCH(QByteArray, content);
    put("table.inp", content);
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    desk.load();
    QCOMPARE(desk.protocol(), nothing_found);
    QCOMPARE(desk.colours().at(1), QColor(Qt::darkRed));
    QVERIFY(desk.ok().isEnabled());
    QVERIFY(desk.is_enabled("GB_date_range"));
    QVERIFY(desk.is_enabled("PB_load_file"));
    QCOMPARE(desk.dialog->cursor().shape(), Qt::ArrowCursor);
}

void tst_history_dialog::a_load_that_ends_on_a_hand_change_ends_by_itself()
{
    put("table.inp", "5\n-\n");
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    desk.load();
    QCOMPARE(desk.drains, 1);
    QCOMPARE(desk.protocol().last(), QString("Einarbeitung läuft - bitte warten ..."));
    QVERIFY(!desk.ok().isEnabled());
    QCoreApplication::processEvents();
    QCOMPARE(desk.protocol().last(), QString("Einarbeitung komplett und erfolgreich!"));
    QVERIFY(desk.ok().isEnabled());
}

void tst_history_dialog::while_it_works_nothing_can_be_pressed()
{
    const history_desk desk;
    desk.click("RB_history_year");
    desk.load();
    QCOMPARE(desk.drains, 0); // the statistic tells the end of this one
    QVERIFY(!desk.ok().isEnabled());
    QVERIFY(!desk.is_enabled("GB_date_range"));
    QVERIFY(!desk.is_enabled("PB_load_file"));
    QCOMPARE(desk.dialog->cursor().shape(), Qt::WaitCursor);
    desk.load();
    QCOMPARE(desk.sent, QList<int>{4});
}

void tst_history_dialog::during_the_read_the_cursor_waits()
{
    history_desk desk;
    Qt::CursorShape shape = Qt::ArrowCursor;
    bool was_ok_enabled = true;
    connect(&desk.storage, &historystorage::load_hist_number, this, [&] {
        shape = desk.dialog->cursor().shape();
        was_ok_enabled = desk.ok().isEnabled();
    });
    desk.click("RB_history_year");
    desk.load();
    QCOMPARE(shape, Qt::WaitCursor);
    QVERIFY(!was_ok_enabled);
}

void tst_history_dialog::the_next_load_adds()
{
    history_desk desk;
    QSignalSpy totals(&desk.storage, &historystorage::dis_history_stat_counter);
    desk.click("RB_history_year");
    desk.load();
    desk.dialog->load_incorporation_complete();
    desk.load();
    desk.dialog->load_incorporation_complete();
    QCOMPARE(desk.sent, (QList<int>{4, 4}));
    QCOMPARE(totals, (QList<QVariantList>{{1}, {2}}));
}

void tst_history_dialog::the_end_of_another_coup_is_no_end_of_a_load()
{
    const history_desk desk;
    desk.dialog->load_incorporation_complete();
    QCOMPARE(desk.protocol(), QStringList());
}

void tst_history_dialog::the_statistic_is_cleared_first()
{
    history_desk desk;
    QSignalSpy requests(desk.dialog.get(), &history_dialog::statistik_clear_request);
    desk.click("RB_history_year");
    desk.click("RB_reset_statistic");
    desk.load();
    QCOMPARE(requests.count(), 1);
    QCOMPARE(desk.sent, QList<int>()); // it waits for the answer
    QCOMPARE(desk.protocol(), QStringList({"Statistik wird zurückgesetzt ..."}));
    desk.dialog->load_file(true);
    QCOMPARE(desk.sent, QList<int>{4});
    QCOMPARE(desk.protocol()[1], begin_of_load[0]);
    QCOMPARE(desk.colours().first(), QColor(Qt::black));
}

void tst_history_dialog::a_refused_clearing_breaks_off()
{
    history_desk desk;
    connect(desk.dialog.get(), &history_dialog::statistik_clear_request, this, [&desk] {
        desk.dialog->load_file(false);
    });
    desk.click("RB_history_year");
    desk.click("RB_reset_statistic");
    desk.load();
    QCOMPARE(desk.sent, QList<int>());
    QCOMPARE(desk.protocol(),
             QStringList({"Statistik wird zurückgesetzt ...",
                          "Daten werden geladen - bitte warten ...",
                          "Statistik wurde nicht zurückgesetzt - Ladevorgang abgebrochen!",
                          "Einarbeitung nicht erfolgreich!"}));
    QCOMPARE(desk.colours()[2], QColor(Qt::black));
    QVERIFY(desk.ok().isEnabled());
    QVERIFY(desk.is_enabled("PB_load_file"));
}

void tst_history_dialog::an_answer_that_was_not_asked_for_loads_nothing()
{
    const history_desk desk;
    desk.click("RB_history_year");
    desk.dialog->load_file(true);
    QCOMPARE(desk.sent, QList<int>());
    QCOMPARE(desk.protocol(), QStringList());
}

// ---- what is told of the numbers

void tst_history_dialog::illegal_numbers_are_told()
{
    put("table.inp", "5 40\n");
    QTest::ignoreMessage(QtDebugMsg, "illegal number found 40");
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    desk.load();
    QCOMPARE(desk.protocol().mid(1, 3),
             QStringList({"In der Ladedatei wurde die nicht gültige Zahl 40 gefunden!",
                          "Die ungültige Zahl wird ignoriert - Laden wird fortgesetzt!",
                          "Das Laden war erfolgreich! Coups: 1 Handwechsel: 0"}));
    QCOMPARE(desk.colours().mid(1, 2), (QList<QColor>{Qt::darkRed, Qt::black}));
}

void tst_history_dialog::a_double_zero_is_told()
{
    history_desk desk;
    desk.dialog->info_from_load_file_warning_00_on_french_table(false);
    QCOMPARE(desk.protocol(), QStringList());
    put("table.inp", "00\n");
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    desk.load();
    QCOMPARE(desk.protocol().mid(1, 2),
             QStringList({"In der Ladedatei wurde 00 gefunden - aktueller Spieltisch ist aber "
                          "französich - 00 wurde in 0 umgewandelt!",
                          "Laden wird fortgesetzt ..."}));
    QCOMPARE(desk.colours().mid(1, 2), (QList<QColor>{Qt::darkRed, Qt::black}));
    QCOMPARE(desk.sent, QList<int>{0});
}

void tst_history_dialog::many_illegal_numbers_do_not_flood_the_protocol()
{
    const history_desk desk;
    for (int i = 0; i < 2000; ++i)
        desk.dialog->info_from_load_file_illegal_number(40);
    QCOMPARE(desk.protocol().size(), 2 * 100 + 1);
    QCOMPARE(desk.protocol().last(), QString("Weitere Hinweise werden nicht mehr angezeigt."));
}

void tst_history_dialog::the_protocol_follows()
{
    const history_desk desk;
    for (int i = 0; i < 100; ++i)
        desk.dialog->info_from_load_file_illegal_number(40);
    const auto& bar = *desk.child<QListWidget>("LW_load_protocol").verticalScrollBar();
    QVERIFY(bar.maximum() > 0);
    QCOMPARE(bar.value(), bar.maximum());
}

void tst_history_dialog::the_protocol_is_legible_on_a_dark_desktop()
{
    const QPalette own = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    {
        const history_desk desk;
        desk.click("RB_history_year");
        desk.load();
        const QImage protocol = desk.child<QListWidget>("LW_load_protocol").grab().toImage();
        const int lines = desk.child<QListWidget>("LW_load_protocol").sizeHintForRow(0) * 3;
        int dark = 0, light = 0;
        for (int y = 2; y < lines; ++y) {
            for (int x = 2; x < 300; ++x) {
                const int brightness = qGray(protocol.pixel(x, y));
                dark += brightness < 100;
                light += brightness > 200;
            }
        }
        QVERIFY2(light > 5 * dark, qPrintable(QString("%1 : %2").arg(light).arg(dark)));
        QVERIFY2(dark > 200, qPrintable(QString::number(dark))); // the black letters
    }
    QApplication::setPalette(own);
}

// ---- the window

void tst_history_dialog::ok_closes()
{
    history_desk desk;
    QSignalSpy accepted(desk.dialog.get(), &QDialog::accepted);
    desk.ok().click();
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!desk.dialog->isVisible());
    QCOMPARE(desk.user.boxes().size(), 0);
}

void tst_history_dialog::ok_asks_while_the_button_blinks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closes");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
}

void tst_history_dialog::ok_asks_while_the_button_blinks()
{
    QFETCH(int, answer);
    QFETCH(bool, closes);
    history_desk desk;
    desk.click("RB_history_year");
    desk.user.answer(static_cast<QMessageBox::StandardButton>(answer));
    desk.ok().click();
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes()[0].title, QString("Daten wurden noch nicht geladen!"));
    QCOMPARE(desk.user.boxes()[0].text, QString("Soll trotzdem geschlossen werden?"));
    QCOMPARE(desk.dialog->isVisible(), !closes);
    QCOMPARE(desk.blink().isActive(), !closes);
}

void tst_history_dialog::it_does_not_close_while_it_works()
{
    const history_desk desk;
    desk.click("RB_history_year");
    desk.load();
    desk.dialog->reject();
    desk.dialog->close();
    QVERIFY(desk.dialog->isVisible());
    desk.dialog->load_incorporation_complete();
    desk.dialog->reject();
    QVERIFY(!desk.dialog->isVisible());
}

void tst_history_dialog::the_dialog_may_die_in_a_load()
{
    put("table.inp", QByteArray("17\n").repeated(2500));
    history_desk desk;
    desk.choose_file(QDir::current().absoluteFilePath("table.inp"));
    connect(&desk.storage, &historystorage::load_hist_number, this, [&desk] {
        if (desk.sent.size() != 100) return;
        QMetaObject::invokeMethod(
            qApp, [&desk] { desk.dialog.reset(); }, Qt::QueuedConnection);
    });
    desk.dialog->findChild<QPushButton*>("PB_load_file")->click();
    QVERIFY(!desk.dialog);
    QCOMPARE(desk.sent.size(), 2500);
}

namespace
{

/// English for the one text that is looked at.
class few_words : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (qstrcmp(context, "history_dialog") != 0) return {};
        return qstrcmp(text, "Laden") == 0 ? QStringLiteral("Load") : QString();
    }
};

} // namespace

void tst_history_dialog::the_language_changes_live()
{
    const history_desk desk;
    few_words english;
    QVERIFY(QCoreApplication::installTranslator(&english));
    QCoreApplication::processEvents();
    QCOMPARE(desk.child<QPushButton>("PB_load_file").text(), QString("Load"));
    QCoreApplication::removeTranslator(&english);
    QCoreApplication::processEvents();
    QCOMPARE(desk.child<QPushButton>("PB_load_file").text(), QString("Laden"));
}

void tst_history_dialog::nothing_is_clipped_at_any_scale_data()
{
    QTest::addColumn<double>("reduction");
    QTest::newRow("0.0") << 0.0;
    QTest::newRow("0.1") << 0.1;
    QTest::newRow("0.2") << 0.2;
    QTest::newRow("0.3") << 0.3;
}

void tst_history_dialog::nothing_is_clipped_at_any_scale()
{
    QFETCH(double, reduction);
    const history_desk desk(reduction);
    QCOMPARE(desk.dialog->reduction(), reduction);
    const auto buttons = desk.dialog->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        const int text = button->fontMetrics().horizontalAdvance(button->text());
        QVERIFY2(text <= button->width(), qPrintable(button->text()));
        QVERIFY2(button->fontMetrics().height() <= button->height(), qPrintable(button->text()));
    }
    const auto& date = desk.child<QDateEdit>("DE_fix_date");
    const auto* field = date.findChild<QLineEdit*>();
    QVERIFY(field->fontMetrics().horizontalAdvance("00.00.0000") <= field->width());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_history_dialog>(argc, argv);
}

#include "tst_history_dialog.moc"
