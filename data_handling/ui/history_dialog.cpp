#include "history_dialog.h"

#include "file_dialog.h"
#include "historystorage.h"
#include "message_box.h"
#include "pictures.h"
#include "shortened_path.h"
#include "ui_history_dialog.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QPalette>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

static constexpr int blink_milliseconds = 1000;
static constexpr int most_notes = 100; // a file of nothing but illegal numbers tells enough then

static const QColor plain_text(Qt::black);
static const QColor bad_text(Qt::darkRed);
static const QColor good_text(Qt::darkGreen);

history_dialog::history_dialog(historystorage& storage,
                               const setting& settings,
                               std::function<void()> wait_for_statistic,
                               QWidget* parent)
    : dialog_layout_control(settings, parent)
    , history(storage)
    , wait_for_store(std::move(wait_for_statistic))
    , ui(std::make_unique<Ui::history_dialog>())
    , blink_timer(new QTimer(this))
{
    init_pictures();
    blink_timer->setObjectName(QStringLiteral("blink_timer"));
    blink_timer->setInterval(blink_milliseconds);
    connect(blink_timer, &QTimer::timeout, this, &history_dialog::endisable_red_border_load_button);

    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    ui->buttonBox->button(QDialogButtonBox::Ok)->setAutoDefault(false);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->PB_select_load_file,
            &QPushButton::clicked,
            this,
            &history_dialog::select_single_history_file);
    connect(&history,
            &historystorage::load_file_illegal_number_found,
            this,
            &history_dialog::info_from_load_file_illegal_number);
    connect(&history,
            &historystorage::load_file_warning_00_on_franz_table,
            this,
            &history_dialog::info_from_load_file_warning_00_on_french_table);
    connect(ui->LW_load_protocol->model(),
            &QAbstractItemModel::rowsInserted,
            ui->LW_load_protocol,
            &QListWidget::scrollToBottom);
    list_years();
    take_light_paper();
    ui->LW_load_protocol->clear();
    remember_full_size();
}

history_dialog::~history_dialog() = default;

/// The colours of the lines could not be read on a dark desktop.
void history_dialog::take_light_paper()
{
    QPalette paper = ui->LW_load_protocol->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, plain_text);
    ui->LW_load_protocol->setPalette(paper);
}

void history_dialog::list_years()
{
    const QStringList years = permanence_years();
    for (const QString& year : years)
        ui->CB_year_storage->addItem(year, year);
}

// ---- the choice

void history_dialog::on_RB_history_year_clicked(bool checked)
{
    choose_rule(history_rule::from_year, checked);
}

void history_dialog::on_RB_history_last_day_clicked(bool checked)
{
    choose_rule(history_rule::one_day, checked);
}

void history_dialog::on_RB_history_more_days_clicked(bool checked)
{
    choose_rule(history_rule::last_days, checked);
}

void history_dialog::on_RB_history_fix_date_clicked(bool checked)
{
    choose_rule(history_rule::from_date, checked);
}

void history_dialog::on_RB_history_permanenz_file_clicked(bool checked)
{
    choose_rule(history_rule::single_file, checked);
}

void history_dialog::choose_rule(int rule, bool checked)
{
    if (checked) load_rule = rule;
    check_load_button();
}

static void click_if_unchecked(QRadioButton& button)
{
    if (!button.isChecked()) button.click();
}

void history_dialog::on_CB_year_storage_activated(int /*index*/)
{
    click_if_unchecked(*ui->RB_history_year);
}

void history_dialog::on_SP_more_days_valueChanged(int /*days*/)
{
    click_if_unchecked(*ui->RB_history_more_days);
}

void history_dialog::on_DE_fix_date_dateChanged(QDate /*date*/)
{
    click_if_unchecked(*ui->RB_history_fix_date);
}

void history_dialog::on_LE_history_loadfile_textChanged(const QString& /*text*/)
{
    click_if_unchecked(*ui->RB_history_permanenz_file);
}

/// Without a year file the days and dates leave the button as it is.
void history_dialog::check_load_button()
{
    const bool has_years = ui->CB_year_storage->count() > 0;
    const bool has_year = ui->RB_history_year->isChecked() && has_years;
    const bool has_file =
        ui->RB_history_permanenz_file->isChecked() && !ui->LE_history_loadfile->text().isEmpty();
    const bool by_day = ui->RB_history_last_day->isChecked() ||
                        ui->RB_history_more_days->isChecked() ||
                        ui->RB_history_fix_date->isChecked();
    if (has_year || has_file || (by_day && has_years)) {
        ui->PB_load_file->setEnabled(true);
        start_blink();
    } else if (!by_day) {
        ui->PB_load_file->setEnabled(false);
        stop_blink();
    }
}

void history_dialog::start_blink()
{
    if (!blink_timer->isActive()) blink_timer->start();
}

void history_dialog::stop_blink()
{
    blink_timer->stop();
    reset_blink = false;
    ui->PB_load_file->setStyleSheet(QString());
}

/// The red border calls for the press that loads.
void history_dialog::endisable_red_border_load_button()
{
    const QString red_border =
        QStringLiteral("QPushButton {border-color: #fc0109;border-style: outset;"
                       "border-radius: 3px;border-width: 2px;}");
    ui->PB_load_file->setStyleSheet(reset_blink ? QString() : red_border);
    reset_blink = !reset_blink;
}

void history_dialog::select_single_history_file()
{
    if (phase != load_phase::none || is_asking) return;
    is_asking = true;
    const QPointer<history_dialog> alive(this);
    const QString path = file_dialog::open_file(
        this,
        {tr("Datei öffnen"),
         last_folder,
         tr("Lade Dateien (*.inp)") + QStringLiteral(";;        ") + tr("Alle Dateien (*.*)")});
    if (!alive) return;
    is_asking = false;
    if (QFileInfo::exists(path)) {
        last_folder = QFileInfo(path).absolutePath();
        load_file_path = path;
        ui->LE_history_loadfile->setToolTip(path);
        ui->LE_history_loadfile->setText(
            shortened_path(path, ui->LE_history_loadfile->maxLength()));
    } else {
        forget_single_file();
    }
    check_load_button();
}

void history_dialog::on_PB_reset_load_file_clicked()
{
    forget_single_file();
    check_load_button();
}

void history_dialog::forget_single_file()
{
    load_file_path.clear();
    ui->LE_history_loadfile->setToolTip(QString());
    ui->LE_history_loadfile->clear();
}

history_choice history_dialog::choice() const
{
    history_choice chosen;
    chosen.rule = load_rule;
    chosen.year_index = ui->CB_year_storage->currentIndex();
    chosen.days = ui->SP_more_days->value();
    chosen.fix_date = ui->DE_fix_date->date();
    chosen.single_path = load_file_path;
    return chosen;
}

// ---- the load

void history_dialog::on_PB_load_file_clicked()
{
    if (phase != load_phase::none) return;
    load_file_path = ui->LE_history_loadfile->toolTip();
    const history_files found = determine_history_files_and_date().determine(choice(), first_date);
    files_to_load = found.files;
    first_date = found.first_date;
    stop_blink();
    phase = load_phase::clearing;
    if (!ui->RB_reset_statistic->isChecked()) {
        load_file(true);
        return;
    }
    add_line(tr("Statistik wird zurückgesetzt ..."), plain_text);
    emit statistik_clear_request();
}

void history_dialog::load_file(bool reset_status)
{
    if (phase != load_phase::clearing) return; // the statistic was not cleared for a load
    phase = load_phase::reading;
    add_line(tr("Daten werden geladen - bitte warten ..."), plain_text);
    const QPointer<history_dialog> alive(this);
    QCoreApplication::processEvents();
    if (!alive) return;
    if (reset_status) {
        read_files();
        return;
    }
    add_line(tr("Statistik wurde nicht zurückgesetzt - Ladevorgang abgebrochen!"), plain_text);
    end_load(tr("Einarbeitung nicht erfolgreich!"), bad_text);
}

void history_dialog::read_files()
{
    enable_widgets(false);
    setCursor(Qt::WaitCursor);
    const QPointer<history_dialog> alive(this);
    QCoreApplication::processEvents();
    if (!alive) return;
    notes = 0;
    const load_file_info info = history.load_History_to_game(files_to_load, first_date);
    if (alive) tell_result(info);
}

void history_dialog::tell_result(const load_file_info& info)
{
    if (info.numbers < 1) {
        add_line(tr("Es wurden keine gültigen/revelanten Coups gefunden!"), bad_text);
        end_load(tr("Einarbeitung nicht erfolgreich!"), bad_text);
        return;
    }
    add_line(tr("Das Laden war erfolgreich! Coups: ") + QString::number(info.numbers) +
                 tr(" Handwechsel: ") + QString::number(info.hand_changes),
             good_text);
    add_line(tr("Einarbeitung läuft - bitte warten ..."), plain_text);
    phase = load_phase::incorporating;
    if (!history.ends_on_hand_change()) return;
    // The statistic tells nothing of an entry that is no number.
    wait_for_store();
    QMetaObject::invokeMethod(
        this, &history_dialog::load_incorporation_complete, Qt::QueuedConnection);
}

void history_dialog::load_incorporation_complete()
{
    if (phase != load_phase::incorporating) return;
    end_load(tr("Einarbeitung komplett und erfolgreich!"), good_text);
}

void history_dialog::end_load(const QString& text, const QColor& colour)
{
    add_line(text, colour);
    phase = load_phase::none;
    enable_widgets(true);
    unsetCursor();
}

void history_dialog::enable_widgets(bool on)
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(on);
    ui->GB_date_range->setEnabled(on);
    ui->GB_settings->setEnabled(on);
    ui->PB_load_file->setEnabled(on);
}

// ---- the protocol

void history_dialog::add_line(const QString& text, const QColor& colour)
{
    auto* line = new QListWidgetItem(text);
    line->setForeground(colour);
    ui->LW_load_protocol->addItem(line);
}

void history_dialog::info_from_load_file_illegal_number(int number)
{
    add_note(tr("In der Ladedatei wurde die nicht gültige Zahl") + QLatin1Char(' ') +
                 QString::number(number) + tr(" gefunden!"),
             bad_text,
             tr("Die ungültige Zahl wird ignoriert - Laden wird fortgesetzt!"));
}

void history_dialog::info_from_load_file_warning_00_on_french_table(bool display)
{
    if (!display) return;
    add_note(tr("In der Ladedatei wurde 00 gefunden - aktueller Spieltisch ist aber französich - "
                "00 wurde in 0 umgewandelt!"),
             bad_text,
             tr("Laden wird fortgesetzt ..."));
}

void history_dialog::add_note(const QString& text, const QColor& colour, const QString& consequence)
{
    if (notes > most_notes) return;
    if (++notes > most_notes) {
        add_line(tr("Weitere Hinweise werden nicht mehr angezeigt."), plain_text);
        return;
    }
    add_line(text, colour);
    add_line(consequence, plain_text);
}

// ---- the window

void history_dialog::done(int result)
{
    if (phase != load_phase::none || is_asking) return;
    if (blink_timer->isActive()) {
        is_asking = true;
        const QPointer<history_dialog> alive(this);
        const bool is_wanted = message_box::ask(
            this, tr("Daten wurden noch nicht geladen!"), tr("Soll trotzdem geschlossen werden?"));
        if (!alive) return;
        is_asking = false;
        if (!is_wanted) return;
        blink_timer->stop();
    }
    dialog_layout_control::done(result);
}

void history_dialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
    dialog_layout_control::changeEvent(event);
}
