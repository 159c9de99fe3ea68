#include "options.h"

#include "message_box.h"
#include "setting.h"
#include "ui_options.h"

#include <QButtonGroup>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>

#include <algorithm>
#include <functional>

using general_setting::setting_language;

static constexpr int milliseconds_per_second = 1000;

Options::Options(setting& game_settings,
                 const QStringList& years,
                 short_throw_place kept_short_throw,
                 QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::Options>())
    , settings(game_settings)
    , short_throw(std::move(kept_short_throw))
{
    ui->setupUi(this);
    bind_general_options();
    bind_player_options();
    bind_output_options();
    bind_statistic_options(years);
}

Options::~Options() = default;

void Options::bind_general_options()
{
    bind_choice({ui->RB_language_auto, ui->RB_language_german, ui->RB_language_english},
                &setting::s_language,
                &setting::set_s_language);
    try_language_when_chosen(ui->RB_language_auto, general_setting::LANG_AUTO);
    try_language_when_chosen(ui->RB_language_german, general_setting::LANG_GERMAN);
    try_language_when_chosen(ui->RB_language_english, general_setting::LANG_ENGLISH);
    bind_choice({ui->RB_term_french, ui->RB_term_american},
                &setting::s_language_term,
                &setting::set_s_language_term);
    bind_choice({ui->RB_table_french, ui->RB_table_american},
                &setting::s_table_form,
                &setting::set_s_table_form);
    bind_bet_time();
    bind(ui->CB_single_color_timebar,
         &setting::s_single_color_timebar,
         &setting::set_s_single_color_timebar);
    bind(ui->CB_wheel_disabled, &setting::s_wheel_disabled, &setting::set_s_wheel_disabled);
    bind_short_throw();
    bind(ui->CB_classic_dolly, &setting::s_classic_dolly, &setting::set_s_classic_dolly);
}

void Options::bind_player_options()
{
    bind(ui->SB_start_jetons, &setting::s_start_jetons, &setting::set_s_start_jetons);
    bind_choice(
        {ui->RB_setzart_piece, ui->RB_setzart_real}, &setting::s_setzart, &setting::set_s_setzart);
    bind_piece_size();
    bind(ui->COB_tip_def_index, &setting::s_tip_def_index, &setting::set_s_tip_def_index);
    bind(ui->CB_jeton_to_win, &setting::s_jeton_to_win, &setting::set_s_jeton_to_win);
    bind(ui->CB_zero_handling, &setting::s_zero_handling, &setting::set_s_zero_handling);
}

void Options::bind_output_options()
{
    bind(ui->COB_hand_change_sign_index,
         &setting::s_hand_change_sign_index,
         &setting::set_s_hand_change_sign_index);
    bind(ui->CB_pr_color, &setting::s_pr_color, &setting::set_s_pr_color);
    bind_choice({ui->RB_pr_portrait, ui->RB_pr_landscape},
                &setting::s_pr_landscape,
                &setting::set_s_pr_landscape);
    bind(ui->SL_scr_res_factor, &setting::s_scr_res_factor, &setting::set_s_scr_res_factor);
    bind(
        ui->CB_auto_update_check, &setting::s_auto_update_check, &setting::set_s_auto_update_check);
}

void Options::bind_statistic_options(const QStringList& years)
{
    bind(ui->CB_year_statistic, &setting::s_year_statistic, &setting::set_s_year_statistic);
    bind_choice({ui->RB_history_database, ui->RB_history_text_files},
                &setting::s_use_history_text_files,
                &setting::set_s_use_history_text_files);
    bind(ui->CB_add_lofil_throw_to_year_stat,
         &setting::s_add_lofil_throw_to_year_stat,
         &setting::set_s_add_lofil_throw_to_year_stat);
    bind(ui->CB_load_history_file,
         &setting::s_use_history_throws_startup,
         &setting::set_s_use_history_throws_startup);
    on_CB_load_history_file_clicked(ui->CB_load_history_file->isChecked());
    bind_choice({ui->RB_history_year,
                 ui->RB_history_last_day,
                 ui->RB_history_more_days,
                 ui->RB_history_fix_date},
                &setting::s_load_history_stat_type_index,
                &setting::set_s_load_history_stat_type_index);
    ui->COB_history_year_index->addItems(years);
    bind(ui->COB_history_year_index,
         &setting::s_history_year_index,
         &setting::set_s_history_year_index);
    bind(ui->SB_history_days_count,
         &setting::s_history_days_count,
         &setting::set_s_history_days_count);
    touch_when_chosen(ui->RB_history_more_days, ui->SB_history_days_count);
    bind(ui->DE_history_fix_date, &setting::s_history_fix_date, &setting::set_s_history_fix_date);
    bind(ui->SB_activation_coldhot_display,
         &setting::s_activation_coldhot_display,
         &setting::set_s_activation_coldhot_display);
}

/// Without a time bar (0 ms) the spin box offers the default time.
void Options::bind_bet_time()
{
    auto* const modes = new QButtonGroup(this);
    modes->addButton(ui->RB_bet_time_enable);
    modes->addButton(ui->RB_bet_time_disable);

    const bool is_manual = settings.s_balkenzeit() == 0;
    const int shown = is_manual ? setting_values().s_balkenzeit : settings.s_balkenzeit();
    ui->SB_bet_time->setValue(shown / milliseconds_per_second);
    (is_manual ? ui->RB_bet_time_disable : ui->RB_bet_time_enable)->setChecked(true);
    connect(ui->SB_bet_time, qOverload<int>(&QSpinBox::valueChanged), this, [this] {
        touched.insert(ui->SB_bet_time);
    });
    touch_when_chosen(ui->RB_bet_time_enable, ui->SB_bet_time);
    copies.emplace_back([this] {
        if (ui->RB_bet_time_disable->isChecked()) {
            settings.set_s_balkenzeit(0);
        } else if (touched.contains(ui->SB_bet_time)) {
            settings.set_s_balkenzeit(ui->SB_bet_time->value() * milliseconds_per_second);
        }
    });
}

void Options::bind_short_throw()
{
    const bool* const kept = short_throw ? short_throw() : nullptr;
    ui->CB_su_shortthrow_activ->setChecked(kept ? *kept : settings.s_su_shortthrow_activ());
    copies.emplace_back([this] {
        const bool is_checked = ui->CB_su_shortthrow_activ->isChecked();
        if (bool* const place = short_throw ? short_throw() : nullptr) {
            *place = is_checked;
        } else {
            settings.set_s_su_shortthrow_activ(is_checked);
        }
    });
}

void Options::bind_piece_size()
{
    QComboBox* const box = ui->COB_setzart_real_size;
    const int entry = box->findText(QString::number(settings.s_setzart_real_size()));
    box->setCurrentIndex(std::max(entry, 0));
    box->setEnabled(ui->RB_setzart_real->isChecked());
    copies.emplace_back(
        [this, box] { settings.set_s_setzart_real_size(box->currentText().toInt()); });
}

void Options::bind(QAbstractButton* box,
                   bool (setting::*value)() const,
                   void (setting::*set_value)(bool))
{
    box->setChecked(std::invoke(value, settings));
    copies.emplace_back(
        [this, box, set_value] { std::invoke(set_value, settings, box->isChecked()); });
}

void Options::bind(QSpinBox* box, int (setting::*value)() const, void (setting::*set_value)(int))
{
    box->setValue(std::invoke(value, settings));
    connect(
        box, qOverload<int>(&QSpinBox::valueChanged), this, [this, box] { touched.insert(box); });
    copies.emplace_back([this, box, set_value] {
        if (touched.contains(box)) std::invoke(set_value, settings, box->value());
    });
}

void Options::bind(QSlider* slider, int (setting::*value)() const, void (setting::*set_value)(int))
{
    slider->setValue(std::invoke(value, settings));
    connect(slider, &QSlider::valueChanged, this, [this, slider] { touched.insert(slider); });
    copies.emplace_back([this, slider, set_value] {
        if (touched.contains(slider)) std::invoke(set_value, settings, slider->value());
    });
}

/// Binds the place of an entry. A stored place without an entry shows as a blank.
void Options::bind(QComboBox* box, int (setting::*value)() const, void (setting::*set_value)(int))
{
    const int stored = std::invoke(value, settings);
    box->setCurrentIndex(stored < box->count() ? stored : -1);
    copies.emplace_back([this, box, set_value] {
        if (box->currentIndex() >= 0) std::invoke(set_value, settings, box->currentIndex());
    });
}

void Options::bind(QDateEdit* field,
                   QDate (setting::*value)() const,
                   void (setting::*set_value)(const QDate&))
{
    field->setDate(std::invoke(value, settings));
    connect(field, &QDateEdit::dateChanged, this, [this, field] { touched.insert(field); });
    copies.emplace_back([this, field, set_value] {
        if (touched.contains(field)) std::invoke(set_value, settings, field->date());
    });
}

/// Binds the place of the checked button in the list.
template <typename value_type>
void Options::bind_choice(const QList<QRadioButton*>& buttons,
                          value_type (setting::*value)() const,
                          void (setting::*set_value)(value_type))
{
    auto* const choice = new QButtonGroup(this);
    for (int place = 0; place < buttons.size(); ++place)
        choice->addButton(buttons.at(place), place);
    choice->button(std::invoke(value, settings))->setChecked(true);
    copies.emplace_back([this, choice, set_value] {
        std::invoke(set_value, settings, static_cast<value_type>(choice->checkedId()));
    });
}

/// Choosing the button confirms what the widget beside it shows.
void Options::touch_when_chosen(QRadioButton* button, QWidget* shown_beside)
{
    connect(button, &QRadioButton::toggled, this, [this, shown_beside](bool is_chosen) {
        if (is_chosen) touched.insert(shown_beside);
    });
}

void Options::try_language_when_chosen(QRadioButton* button, setting_language language)
{
    connect(button, &QRadioButton::toggled, this, [this, language](bool is_chosen) {
        if (is_chosen) emit setting_language_changend(language);
    });
}

/// Shows everything at once where the screen allows it; else the options scroll.
void Options::fit_to_screen()
{
    ui->contents->layout()->invalidate(); // it holds sizes of other texts
    ui->contents->layout()->activate();
    QSize wanted = ui->contents->sizeHint();
    ui->scroll_area->setMinimumSize(wanted);
    const QSize around = layout()->totalMinimumSize() - wanted;
    const QSize title_bar(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize room = screen()->availableGeometry().size() - around - title_bar;
    if (wanted.height() > room.height()) {
        wanted.rwidth() += ui->scroll_area->verticalScrollBar()->sizeHint().width();
    }
    ui->scroll_area->setMinimumSize(wanted.boundedTo(room));
    resize(size().expandedTo(layout()->totalMinimumSize()));
}

void Options::on_RB_bet_time_disable_toggled(bool checked)
{
    ui->SB_bet_time->setDisabled(checked);
}

void Options::on_RB_setzart_real_clicked(bool /*checked*/)
{
    ui->COB_setzart_real_size->setEnabled(true);
}

void Options::on_RB_setzart_piece_clicked(bool /*checked*/)
{
    ui->COB_setzart_real_size->setEnabled(false);
}

void Options::on_CB_load_history_file_clicked(bool checked)
{
    ui->DE_history_fix_date->setEnabled(checked);
}

void Options::on_buttonBox_accepted()
{
    for (const auto& copy : copies)
        copy();
    const bool is_written = write_file();
    emit ini_value_changend();
    accept();
    if (is_written) return;
    message_box::tell(
        parentWidget(),
        windowTitle(),
        tr("Die Datei zarvello.ini konnte nicht geschrieben werden!\nDie Einstellungen "
           "gelten nur bis zum Ende des Programms."),
        QMessageBox::Warning);
}

/// What a super short game has borrowed stays out of the file.
bool Options::write_file()
{
    const bool* const kept = short_throw ? short_throw() : nullptr;
    if (!kept) return settings.write_settings();
    const bool borrowed = settings.s_su_shortthrow_activ();
    settings.set_s_su_shortthrow_activ(*kept);
    const bool is_written = settings.write_settings();
    settings.set_s_su_shortthrow_activ(borrowed);
    return is_written;
}

void Options::on_buttonBox_rejected()
{
    reject();
}

void Options::reject()
{
    emit setting_language_changend(settings.language());
    QDialog::reject();
}

void Options::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) fit_to_screen();
    QDialog::showEvent(event);
}

/// The columns may grow with a language that is tried, but not shrink: the next radio button
/// stays under the mouse.
void Options::keep_column_widths()
{
    for (QWidget* box : {ui->GB_general, ui->GB_statistic})
        box->setMinimumWidth(box->width());
}

void Options::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        if (isVisible()) keep_column_widths();
        ui->retranslateUi(this);
        if (isVisible()) fit_to_screen();
    }
    QDialog::changeEvent(event);
}
