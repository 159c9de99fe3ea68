#include "dialog_supershort_game_counter.h"

#include "ui_dialog_supershort_game_counter.h"

#include <QEvent>

dialog_supershort_game_counter::dialog_supershort_game_counter(const setting& settings,
                                                               QWidget* parent)
    : dialog_layout_control(settings, parent)
    , ui(std::make_unique<Ui::dialog_supershort_game_counter>())
{
    ui->setupUi(this);
    connect(this, &QDialog::accepted, this, [this] {
        emit dia_activate_supershort_game(ui->SB_coups->value());
    });
    connect(this,
            &QDialog::rejected,
            this,
            &dialog_supershort_game_counter::dia_deactivate_supershort_game);
    remember_full_size();
}

dialog_supershort_game_counter::~dialog_supershort_game_counter() = default;

void dialog_supershort_game_counter::showEvent(QShowEvent* event)
{
    dialog_layout_control::showEvent(event);
    ui->SB_coups->setFocus();
    ui->SB_coups->selectAll();
}

void dialog_supershort_game_counter::changeEvent(QEvent* event)
{
    dialog_layout_control::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
}
