#include "muster_statistic.h"

#include "chance_geometry.h"
#include "page_export.h"
#include "printer_c.h"
#include "ui_muster_statistic.h"

#include <QEvent>
#include <QHash>

namespace
{

// Sides of a square, in pixels.
constexpr int least_grid_size = 4;
constexpr int greatest_grid_size = 48;
constexpr int first_grid_size = 18; // at full size

} // namespace

muster_statistic::muster_statistic(const statistic_data& statistic,
                                   double scale_reduction,
                                   const setting& settings,
                                   QWidget* parent)
    : dialog_layout_control(settings, parent)
    , ui(std::make_unique<Ui::muster_statistic>())
    , store(statistic)
    , print_setting(settings)
{
    ui->setupUi(this);
    ui->WD_muster->set_tool_tips([this](int index) { return description(index); });
    ui->SB_grid_size->setRange(least_grid_size, greatest_grid_size);
    ui->SB_grid_size->setValue(scaled(first_grid_size, scale_reduction));
    ui->buttonBox->addButton(ui->PB_print, QDialogButtonBox::ActionRole);
    new page_export(*this, *ui->buttonBox, {ui->WD_page, [this] { return rows(); }});
    on_CB_course_currentIndexChanged(ui->CB_course->currentIndex());
    remember_full_size();
}

muster_statistic::~muster_statistic() = default;

void muster_statistic::on_CB_course_currentIndexChanged(int index)
{
    if (index < 0) return;
    shown_course = static_cast<colour_course_index>(index);
    colours = store.colours_from(shown_course, 0);
    ui->WD_legend->set_course(shown_course);
    ui->WD_muster->set_course(colours);
}

void muster_statistic::on_CB_vertical_toggled(bool checked)
{
    ui->WD_muster->set_vertical(checked);
}

void muster_statistic::on_SB_grid_size_valueChanged(int pixels)
{
    ui->WD_muster->set_grid_size(pixels);
}

void muster_statistic::on_PB_print_clicked()
{
    const QPixmap picture = grab();
    printer_c(print_setting, this).print_pixmap(picture, picture.width(), picture.height());
}

QString muster_statistic::description(int index) const
{
    const auto entries = muster_legend_widget::entries_of(shown_course);
    for (const muster_legend_widget::entry& entry : entries) {
        if (entry.colour == colours.at(index))
            return tr("Nr. %1: %2").arg(index + 1).arg(entry.chance);
    }
    return {};
}

QVector<QStringList> muster_statistic::rows() const
{
    QHash<int, QStringList> texts;
    const auto entries = muster_legend_widget::entries_of(shown_course);
    for (const muster_legend_widget::entry& entry : entries)
        texts.insert(entry.colour, {entry.colour_name, entry.chance});

    QVector<QStringList> table = {{tr("Nr."), tr("Farbe"), tr("Chance")}};
    table.reserve(colours.size() + 1);
    for (int index = 0; index < colours.size(); ++index)
        table.append(QStringList(QString::number(index + 1)) + texts.value(colours.at(index)));
    return table;
}

void muster_statistic::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
    dialog_layout_control::changeEvent(event);
}
