#include "load_files_option.h"

#include "file_dialog.h"
#include "legible_colour.h"
#include "load_file_reader.h"
#include "message_box.h"
#include "numberstorage.h"
#include "pictures.h"
#include "shortened_path.h"
#include "ui_load_files_option.h"

#include <QEvent>
#include <QFileInfo>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>

using general_loadfile::file_place_count;
using general_loadfile::GROUP_LOADFILE;
using general_loadfile::loadfile_type;
using general_loadfile::MAIN_LOADFILE;

static constexpr int blink_milliseconds = 1000;
static constexpr int no_file_counted = 100000000; // more numbers than any file holds

load_files_option::load_files_option(numberStorage& numbers,
                                     const setting& settings,
                                     QWidget* parent)
    : dialog_layout_control(settings, parent)
    , number_storage(numbers)
    , ui(std::make_unique<Ui::load_files_option>())
    , wait_timer(new QTimer(this))
{
    init_pictures();
    wait_timer->setObjectName(QStringLiteral("wait_timer"));
    wait_timer->setInterval(blink_milliseconds);
    connect(wait_timer, &QTimer::timeout, this, &load_files_option::display_blink_wait_load_label);

    ui->setupUi(this);
    show_disabled_texts_legibly();
    show_warning_legibly();
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    path_edits = {ui->LE_loadfile_main,
                  ui->LE_loadfile_follow_1,
                  ui->LE_loadfile_follow_2,
                  ui->LE_loadfile_follow_3,
                  ui->LE_loadfile_follow_4,
                  ui->LE_loadfile_follow_5,
                  ui->LE_loadfile_follow_6,
                  ui->LE_loadfile_follow_7,
                  ui->LE_loadfile_follow_8};
    count_edits = {ui->LE_loadfile_main_cups,
                   ui->LE_loadfile_follow_cup_1,
                   ui->LE_loadfile_follow_cup_2,
                   ui->LE_loadfile_follow_cup_3,
                   ui->LE_loadfile_follow_cup_4,
                   ui->LE_loadfile_follow_cup_5,
                   ui->LE_loadfile_follow_cup_6,
                   ui->LE_loadfile_follow_cup_7,
                   ui->LE_loadfile_follow_cup_8};
    fix_start_led.label = ui->LED_fix_start;
    random_1_led.label = ui->LED_random_1;
    random_2_led.label = ui->LED_random_2;
    for (QLabel* label : {ui->LB_please_wait, ui->LB_continue}) {
        QSizePolicy policy = label->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        label->setSizePolicy(policy);
        label->hide();
    }

    connect(&number_storage,
            &numberStorage::load_file_warning_00_on_franz_table,
            this,
            &load_files_option::display_loadfile_00_warning_on_franz_table);
    connect(&number_storage,
            &numberStorage::next_load_file_is_loaded,
            this,
            &load_files_option::show_files_left);
    connect(&number_storage,
            &numberStorage::load_file_modus_ended,
            this,
            &load_files_option::show_files_left);

    set_start_limits({});
    show_collection();
    enable_widgets();
    remember_full_size();
}

/// The files of a collection stand in fields that are disabled, and are read all the same.
void load_files_option::show_disabled_texts_legibly()
{
    QPalette colours = palette();
    const QColor text = colours.color(QPalette::Active, QPalette::Text);
    const QColor base = colours.color(QPalette::Active, QPalette::Window);
    colours.setColor(QPalette::Disabled,
                     QPalette::Text,
                     QColor((2 * text.red() + base.red()) / 3,
                            (2 * text.green() + base.green()) / 3,
                            (2 * text.blue() + base.blue()) / 3));
    setPalette(colours);
}

void load_files_option::show_warning_legibly()
{
    const QColor colour = legible_colour(Qt::red, palette().color(QPalette::Window));
    ui->LB_00_warning->setStyleSheet(QStringLiteral("color: rgb(%1, %2, %3);")
                                         .arg(colour.red())
                                         .arg(colour.green())
                                         .arg(colour.blue()));
}

load_files_option::~load_files_option()
{
    if (is_busy()) QGuiApplication::restoreOverrideCursor();
}

// Choosing files

bool load_files_option::select_load_file(loadfile_type load_file_type)
{
    if (is_busy() || is_asking) return false;
    const bool is_collection = load_file_type == GROUP_LOADFILE;
    const auto place = static_cast<size_t>(load_file_type);
    if (!is_collection && place >= path_edits.size()) return false;
    const QLineEdit* edit = is_collection ? ui->LE_loadfile_group : path_edits[place];
    if (!edit->isEnabled()) return false;

    return take_choice(load_file_type, ask_for_file(load_file_type));
}

bool load_files_option::offer_file(const QString& path)
{
    if (is_busy() || is_asking) return false;
    ui->CB_loadfile_activ->setChecked(true);
    const bool is_collection = path.endsWith(QLatin1String(".snp"), Qt::CaseInsensitive);
    const QLineEdit* edit = is_collection ? ui->LE_loadfile_group : path_edits[MAIN_LOADFILE];
    if (!edit->isEnabled()) return false;
    return take_choice(is_collection ? GROUP_LOADFILE : MAIN_LOADFILE, path);
}

bool load_files_option::take_choice(loadfile_type load_file_type, const QString& path)
{
    const bool is_collection = load_file_type == GROUP_LOADFILE;
    if (path.isEmpty() || !QFileInfo::exists(path)) return false;
    last_folder = QFileInfo(path).absolutePath();
    if (!is_collection) {
        take_file(load_file_type, path);
    } else if (!take_collection(path)) {
        return false;
    }
    choice_is_played = false;
    show_collection();
    refresh();
    return true;
}

QString load_files_option::ask_for_file(loadfile_type load_file_type)
{
    const bool is_collection = load_file_type == GROUP_LOADFILE;
    is_asking = true;
    const QString path = file_dialog::open_file(
        this,
        {tr("Datei öffnen"),
         last_folder,
         is_collection ? tr("Sammelladedateien (*.snp)") : tr("Ladedateien (*.inp)")});
    is_asking = false;
    return path;
}

bool load_files_option::ask_user(const QString& title, const QString& text)
{
    is_asking = true;
    const bool is_yes = message_box::ask(this, title, text);
    is_asking = false;
    return is_yes;
}

// Follow load files stay without gaps. A file for which no place is left becomes the main one.
void load_files_option::take_file(int wanted_place, const QString& path)
{
    ui->LB_continue->hide();
    if (wanted_place == MAIN_LOADFILE) {
        follow_is_open = true;
        group_is_open = false;
        put_file(MAIN_LOADFILE, path);
        return;
    }
    const int first_empty = choice.files.indexOf(QString(), MAIN_LOADFILE + 1);
    const bool all_are_full = first_empty < 0 || first_empty >= file_place_count;
    put_file(all_are_full ? MAIN_LOADFILE : std::min(wanted_place, first_empty), path);
}

void load_files_option::put_file(int place, const QString& path)
{
    QString& entry = choice.files[place];
    if (entry.isEmpty()) {
        new_file = true;
    } else if (entry != path) {
        changed_file = true;
    }
    entry = path;
}

bool load_files_option::take_collection(const QString& path)
{
    const load_file_collection collection = read_load_file_collection(path);
    if (collection.found.isEmpty()) {
        is_asking = true;
        message_box::tell(this,
                          tr("Öffnen"),
                          tr("Es wurde keine gültige Ladedatei in der Sammelladedatei gefunden!"),
                          QMessageBox::Warning);
        is_asking = false;
        return false;
    }
    if (!rest_is_wanted(collection.not_found)) return false;

    QStringList files = collection.found;
    while (files.size() < file_place_count)
        files.append(QString());
    if (choice.files.first().isEmpty()) {
        new_file = true;
    } else if (files != choice.files) {
        changed_file = true;
    }
    choice.files = files;
    choice.group_file = path;
    choice.group_file_count = collection.found.size();
    choice.description = collection.description;
    main_is_open = false;
    follow_is_open = false;
    ui->LB_continue->setVisible(collection.found.size() > file_place_count);
    return true;
}

bool load_files_option::rest_is_wanted(const QStringList& not_found)
{
    if (not_found.isEmpty()) return true;
    QStringList names;
    for (const QString& path : not_found)
        names.append(QFileInfo(path).fileName());
    return ask_user(tr("Öffnen"),
                    tr("Folgende Dateien (in der Sammelladedatei) wurden nicht gefunden:") +
                        QLatin1Char('\n') + names.join(QLatin1Char(' ')) + QLatin1Char('\n') +
                        tr("Sollen die restlichen Dateien trotzdem geladen werden?"));
}

void load_files_option::on_PB_main_loadfile_reset_clicked()
{
    if (is_busy() || is_asking) return;
    if (!ask_user(tr("Reset"), tr("Hauptladefile und Folgefiles wirklich löschen?"))) return;
    follow_is_open = false;
    group_is_open = true;
    forget_files();
}

void load_files_option::on_PB_group_loadfile_reset_clicked()
{
    if (is_busy() || is_asking) return;
    main_is_open = true;
    follow_is_open = true;
    forget_files();
}

void load_files_option::forget_files()
{
    choice.files = general_loadfile::empty_file_places();
    choice.group_file.clear();
    choice.group_file_count = 0;
    choice.description.clear();
    choice_is_played = false;
    ui->LB_continue->hide();
    show_collection();
    refresh();
}

// A group that cannot take a file beside the present choice stays closed.
void load_files_option::on_CB_loadfile_activ_toggled(bool checked)
{
    if (checked) {
        const bool has_collection = !choice.group_file.isEmpty();
        main_is_open = !has_collection;
        follow_is_open = !has_collection;
        group_is_open = has_collection || choice.files.first().isEmpty();
    }
    enable_widgets();
}

// Counting

bool load_files_option::is_busy() const
{
    return wait_timer->isActive();
}

// The user can act during each count; even the dialog can be gone behind it.
void load_files_option::refresh()
{
    if (is_busy()) return;
    display_loadfile_00_warning_on_franz_table(false);
    begin_wait();
    const QPointer<load_files_option> alive(this);
    file_counts counts{};
    for (size_t place = 0; place < counts.size(); ++place) {
        const QString path = choice.files.at(static_cast<int>(place));
        path_edits[place]->setText(shortened_path(path, path_edits[place]->maxLength()));
        const int count = number_storage.count_load_file_numbers(path);
        if (!alive) return;
        counts[place] = count;
        count_edits[place]->setText(QString::number(count));
    }
    set_start_limits(counts);
    end_wait();
}

void load_files_option::begin_wait()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ui->LB_please_wait->show();
    wait_timer->start();
    enable_widgets();
}

void load_files_option::end_wait()
{
    wait_timer->stop();
    ui->LB_please_wait->hide();
    QGuiApplication::restoreOverrideCursor();
    enable_widgets();
    if (!close_is_due) return;
    close_is_due = false;
    dialog_layout_control::reject();
}

void load_files_option::display_blink_wait_load_label()
{
    ui->LB_please_wait->setVisible(ui->LB_please_wait->isHidden());
}

void load_files_option::reject()
{
    if (is_busy()) {
        close_is_due = true;
        return;
    }
    dialog_layout_control::reject();
}

void load_files_option::enable_widgets()
{
    const bool is_active = ui->CB_loadfile_activ->isChecked();
    const bool may_act = !is_busy();
    ui->LE_loadfile_main->setEnabled(is_active && main_is_open);
    ui->LE_loadfile_main_cups->setEnabled(is_active && main_is_open);
    ui->PB_main_loadfile_reset->setEnabled(is_active && main_is_open && may_act);
    ui->GB_follow->setEnabled(is_active && follow_is_open);
    ui->GB_group->setEnabled(is_active && group_is_open);
    ui->PB_group_loadfile_reset->setEnabled(may_act);
    ui->buttonBox->setEnabled(may_act);
}

// Where play begins

void load_files_option::set_start_limits(const file_counts& counts)
{
    int files = 0;
    for (const QString& path : qAsConst(choice.files))
        files += path.isEmpty() ? 0 : 1;
    files = std::min(files, file_place_count);
    int smallest = no_file_counted;
    for (int place = 0; place < files; ++place)
        smallest = std::min(smallest, counts[static_cast<size_t>(place)]);

    const bool has_limit = smallest >= 1 && smallest < no_file_counted;
    if (has_limit) set_spin_ranges(smallest);
    for (led_place* place : {&fix_start_led, &random_1_led, &random_2_led})
        set_led(*place, has_limit ? led::green : led::red);
    ui->RB_normal_start->setChecked(true);
}

// All values are set here, so they need not pull each other along.
void load_files_option::set_spin_ranges(int limit)
{
    const QSignalBlocker quiet[] = {QSignalBlocker(ui->SB_fix_start),
                                    QSignalBlocker(ui->SB_random_1_begin),
                                    QSignalBlocker(ui->SB_random_1_end),
                                    QSignalBlocker(ui->SB_random_2_length),
                                    QSignalBlocker(ui->SB_random_2_max_attack)};
    Q_UNUSED(quiet)
    start_limit = limit;
    ui->SB_fix_start->setMaximum(limit);
    ui->SB_fix_start->setValue(1);
    for (QSpinBox* spin_box : {ui->SB_random_1_begin,
                               ui->SB_random_1_end,
                               ui->SB_random_2_length,
                               ui->SB_random_2_max_attack}) {
        spin_box->setRange(1, limit);
    }
    ui->SB_random_1_begin->setValue(1);
    ui->SB_random_1_end->setValue(limit);
    ui->SB_random_2_length->setValue(limit);
    ui->SB_random_2_max_attack->setValue(1);
    show_changing_texts();
}

void load_files_option::on_SB_fix_start_valueChanged(int /*value*/)
{
    ui->RB_fix_start->setChecked(true);
}

void load_files_option::on_SB_random_1_begin_valueChanged(int value)
{
    ui->RB_random_1_start->setChecked(true);
    ui->SB_random_1_end->setMinimum(value);
}

void load_files_option::on_SB_random_1_end_valueChanged(int value)
{
    ui->RB_random_1_start->setChecked(true);
    ui->SB_random_1_begin->setMaximum(value);
}

void load_files_option::on_SB_random_2_max_attack_valueChanged(int value)
{
    ui->RB_random_2_start->setChecked(true);
    ui->SB_random_2_length->setValue(ui->SB_random_2_length->maximum() / std::max(value, 1));
    check_attacks();
}

void load_files_option::on_SB_random_2_length_valueChanged(int /*value*/)
{
    ui->RB_random_2_start->setChecked(true);
    check_attacks();
}

void load_files_option::check_attacks()
{
    const qint64 numbers =
        qint64{ui->SB_random_2_max_attack->value()} * ui->SB_random_2_length->value();
    const bool fits = numbers <= ui->SB_random_2_length->maximum();
    set_led(random_2_led, fits ? led::green : led::yellow);
}

void load_files_option::set_led(led_place& place, led light)
{
    place.light = light;
    show_led(place);
}

void load_files_option::show_led(const led_place& place)
{
    QString picture = QStringLiteral(":/led/grafik/led/led_red.png");
    if (place.light == led::yellow) picture = QStringLiteral(":/led/grafik/led/led_yellow.png");
    if (place.light == led::green) picture = QStringLiteral(":/led/grafik/led/led_green.png");
    place.label->setPixmap(scaled_picture(picture, reduction(), devicePixelRatioF()));
}

// What is shown

void load_files_option::modify_window_based_on_scale()
{
    dialog_layout_control::modify_window_based_on_scale();
    for (const led_place* place : {&fix_start_led, &random_1_led, &random_2_led})
        show_led(*place);
}

void load_files_option::show_collection()
{
    QLineEdit* const edit = ui->LE_loadfile_group;
    edit->setText(shortened_path(choice.group_file, edit->maxLength()));
    show_files_left();
}

void load_files_option::show_files_left()
{
    const QStringList& files = choice_is_played ? number_storage.load_files() : choice.files;
    const auto left = std::count_if(
        files.begin(), files.end(), [](const QString& path) { return !path.isEmpty(); });
    ui->LE_left_total_files->setText(
        QStringLiteral("%1/%2").arg(left).arg(choice.group_file_count));
}

void load_files_option::display_loadfile_00_warning_on_franz_table(bool display)
{
    warns_of_double_zero = display;
    show_changing_texts();
}

void load_files_option::show_changing_texts()
{
    ui->LB_max_fix_start->setText(start_limit > 0 ? tr("(max. %1)").arg(start_limit) : QString());
    ui->LB_00_warning->setText(
        warns_of_double_zero
            ? tr("WARNUNG - 00 (Dopple Zero) in den Ladefiles gefunden (Französicher Tisch)!")
            : QString());
}

void load_files_option::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        show_changing_texts();
    }
    dialog_layout_control::changeEvent(event);
}

void load_files_option::showEvent(QShowEvent* event)
{
    show_files_left();
    dialog_layout_control::showEvent(event);
}

// Accepting

void load_files_option::on_buttonBox_accepted()
{
    if (is_busy() || is_asking) return;
    const QPointer<load_files_option> alive(this);
    choice.active = ui->CB_loadfile_activ->isChecked() && !choice.files.first().isEmpty();
    if (!ui->CB_loadfile_activ->isChecked()) {
        switch_off();
    } else if (choice.active) {
        take_start_mode();
        if (apply_is_wanted()) apply();
    }
    if (alive) accept();
}

void load_files_option::switch_off()
{
    number_storage.reset_load_files();
    choice_is_played = false;
    show_files_left();
    emit display_actual_load_file_info(false);
}

void load_files_option::take_start_mode()
{
    choice.pause_at_end = ui->CB_break_modus->isChecked();
    choice.start_mode = general_loadfile::NORMAL_START;
    if (ui->RB_fix_start->isChecked()) choice.start_mode = general_loadfile::FIX_START;
    if (ui->RB_random_1_start->isChecked()) choice.start_mode = general_loadfile::RANDOM_START_1;
    if (ui->RB_random_2_start->isChecked()) choice.start_mode = general_loadfile::RANDOM_START_2;
    choice.fix_start = ui->SB_fix_start->value();
    choice.random_1_begin = ui->SB_random_1_begin->value();
    choice.random_1_end = ui->SB_random_1_end->value();
    choice.random_2_max_attack = ui->SB_random_2_max_attack->value();
    choice.random_2_length = ui->SB_random_2_length->value();
}

// Both flags last for the life of the dialog: once a file was changed, each OK asks again.
bool load_files_option::apply_is_wanted()
{
    if (changed_file) {
        return ask_user(tr("Reset"), tr("Sollen die neuen Ladedateien übernommen werden?"));
    }
    if (new_file) emit display_wait_actual_load_file_info();
    return new_file;
}

void load_files_option::apply()
{
    begin_wait();
    const QPointer<load_files_option> alive(this);
    number_storage.set_load_files(choice);
    if (!alive) return;
    choice_is_played = true;
    close_is_due = false; // it closes anyway
    show_files_left();
    end_wait();
    emit display_actual_load_file_info(true);
}
