#include "muster_statistic_serien.h"

#include "page_export.h"
#include "printer_c.h"
#include "ui_muster_statistic_serien.h"
#include "window_font.h"

#include <QEvent>

namespace
{

constexpr std::array<muster_serie_widget::pair_colours, statistic_data::pair_count> colours = {{
    {Qt::darkYellow, Qt::cyan},
    {Qt::darkYellow, Qt::cyan},
    {Qt::red, Qt::black},
}};

} // namespace

muster_statistic_serien::muster_statistic_serien(const statistic_data& statistic,
                                                 double scale_reduction,
                                                 const setting& settings,
                                                 QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::muster_statistic_serien>())
    , print_setting(settings)
    , figures{
          statistic.pattern_figures(0), statistic.pattern_figures(1), statistic.pattern_figures(2)}
{
    setFont(window_font(font(), scale_reduction));
    ui->setupUi(this);
    using place = std::array<muster_serie_widget*, 3>;
    const std::array<place, statistic_data::pair_count> places = {{
        {ui->WD_pair_0_length_2, ui->WD_pair_0_length_3, ui->WD_pair_0_length_4},
        {ui->WD_pair_1_length_2, ui->WD_pair_1_length_3, ui->WD_pair_1_length_4},
        {ui->WD_pair_2_length_2, ui->WD_pair_2_length_3, ui->WD_pair_2_length_4},
    }};
    for (std::size_t pair = 0; pair < places.size(); ++pair) {
        for (std::size_t length = 0; length < places[pair].size(); ++length) {
            places[pair][length]->set_figures(
                figures[pair].sets[length].all_figures(), colours[pair], scale_reduction);
        }
    }
    ui->buttonBox->addButton(ui->PB_print, QDialogButtonBox::ActionRole);
    new page_export(*this, *ui->buttonBox, {ui->TW_pairs, [this] { return rows(); }});
}

muster_statistic_serien::~muster_statistic_serien() = default;

QVector<QStringList> muster_statistic_serien::rows() const
{
    QVector<QStringList> table = {{tr("Chance"), tr("Figur"), tr("Anzahl")}};
    for (int pair = 0; pair < statistic_data::pair_count; ++pair) {
        for (const muster_figure_set& set : figures.at(static_cast<std::size_t>(pair)).sets) {
            for (const muster_figure& figure : set.all_figures()) {
                table.append(
                    {ui->TW_pairs->tabText(pair), figure.figure, QString::number(figure.count)});
            }
        }
    }
    return table;
}

void muster_statistic_serien::on_PB_print_clicked()
{
    const QPixmap picture = grab();
    printer_c(print_setting, this).print_pixmap(picture, picture.width(), picture.height());
}

void muster_statistic_serien::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
