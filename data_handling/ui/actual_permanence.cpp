#include "actual_permanence.h"

#include "chance_geometry.h"
#include "numberstorage.h"
#include "permanenz_widget.h"
#include "pictures.h"
#include "ui_actual_permanence.h"

#include <QEvent>
#include <QIcon>
#include <QScrollBar>

// Pixels at full size.
static constexpr int widest = 920;
static constexpr int narrowest = 320;

actual_permanence::actual_permanence(const numberStorage& numbers,
                                     const number_table& colours,
                                     double reduction,
                                     QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::actual_permanence>())
{
    init_pictures();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    const std::vector<quint8>& list = numbers.history().all();
    ui->scrollArea->setVisible(!list.empty());
    ui->LB_no_throw_display->setVisible(list.empty());
    if (list.empty()) return;

    auto* permanence = new permanenz_widget(list, colours, reduction);
    permanence->setObjectName(QStringLiteral("permanence"));
    ui->scrollArea->setWidget(permanence);
    const int frame = 2 * ui->scrollArea->frameWidth();
    const int bar = ui->scrollArea->horizontalScrollBar()->sizeHint().height();
    ui->scrollArea->setMinimumHeight(permanence->height() + frame + bar);
    const QMargins margins = ui->VL_dialog->contentsMargins();
    const int width = permanence->width() + frame + margins.left() + margins.right();
    resize(qBound(scaled(narrowest, reduction), width, scaled(widest, reduction)),
           sizeHint().height());
}

actual_permanence::~actual_permanence() = default;

/// The newest numbers are of interest first.
void actual_permanence::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    ui->scrollArea->horizontalScrollBar()->setValue(
        ui->scrollArea->horizontalScrollBar()->maximum());
}

void actual_permanence::on_buttonBox_accepted()
{
    emit later_display_continue();
    accept();
}

void actual_permanence::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
}
