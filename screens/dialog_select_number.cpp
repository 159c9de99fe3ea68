#include "dialog_select_number.h"

#include "game_table.h"
#include "number_records.h"
#include "setting.h"
#include "ui_dialog_select_number.h"

#include <QEvent>

using general_setting::REMOVE_JETON;
using general_setting::setting_jeton_action;

static constexpr int finale_count = 10;

Dialog_Select_Number::Dialog_Select_Number(const game_table& table,
                                           const setting& settings,
                                           QWidget* parent)
    : dialog_layout_control(settings, parent)
    , accounts(table)
    , game_setting(settings)
    , ui(std::make_unique<Ui::Dialog_Select_Number>())
{
    ui->setupUi(this);
    show_texts();
    remember_full_size();
}

Dialog_Select_Number::~Dialog_Select_Number() = default;

void Dialog_Select_Number::open_for(setting_jeton_action wanted_action,
                                    jetons::ext_jeton_names first_of_range)
{
    switch (first_of_range) {
    case jetons::FI00:
    case jetons::EN00:
    case jetons::ZN00:
    case jetons::DN00:
        break;
    default:
        return;
    }
    action = wanted_action;
    first_name = first_of_range;
    show_texts();
    fill_numbers();
    ui->COB_number->setFocus();
}

void Dialog_Select_Number::show_texts()
{
    const bool is_removal = action == REMOVE_JETON;
    switch (first_name) {
    case jetons::EN00:
        setWindowTitle(is_removal ? tr("Einen Nachbar löschen") : tr("Einen Nachbar setzen"));
        break;
    case jetons::ZN00:
        setWindowTitle(is_removal ? tr("Zwei Nachbarn löschen") : tr("Zwei Nachbarn setzen"));
        break;
    case jetons::DN00:
        setWindowTitle(is_removal ? tr("Drei Nachbarn löschen") : tr("Drei Nachbarn setzen"));
        break;
    default:
        setWindowTitle(is_removal ? tr("Finale löschen") : tr("Finale setzen"));
    }
    ui->LA_number->setText(first_name == jetons::FI00 ? tr("Finale:") : tr("Zahl:"));
}

// The double zero stands behind 36, so that the index of an entry is its number.
void Dialog_Select_Number::fill_numbers()
{
    const bool is_finale = first_name == jetons::FI00;
    const int count = is_finale ? finale_count : pocket_count(game_setting.form());
    ui->COB_number->clear();
    for (int number = 0; number < count; ++number)
        ui->COB_number->addItem(number_text(number));
}

int Dialog_Select_Number::selected_number() const
{
    const bool is_double_zero = ui->COB_number->currentIndex() == number_code::double_zero;
    return is_double_zero ? number_code::double_zero : ui->COB_number->currentText().toInt();
}

void Dialog_Select_Number::on_buttonBox_accepted()
{
    if (accounts.active_player() == general_player::NO_PLAYER) return;
    if (ui->COB_number->currentIndex() < 0) return;
    const auto ext_jeton = static_cast<jetons::ext_jeton_names>(first_name + selected_number());
    emit special_combo_set_by_type(action, ext_jeton, accounts.active_player(), 1);
}

void Dialog_Select_Number::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        show_texts();
    }
    dialog_layout_control::changeEvent(event);
}
