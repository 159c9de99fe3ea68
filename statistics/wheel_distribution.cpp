#include "wheel_distribution.h"

#include "number_records.h"
#include "page_export.h"
#include "printer_c.h"
#include "setting.h"
#include "statistic_data.h"
#include "ui_wheel_distribution.h"
#include "wheel_distribution_widget.h"
#include "wheel_order.h"
#include "wheel_quadrants.h"
#include "window_font.h"

#include <QEvent>
#include <QHideEvent>

#include <algorithm>
#include <numeric>

namespace
{

constexpr int list_places = number_code::number_count;

// Wheel positions, one per hit: rounds over the wheel, in each every position that has a hit left.
QList<int> work_list(const QList<int>& hits)
{
    QList<int> positions;
    positions.reserve(std::accumulate(hits.begin(), hits.end(), 0));
    QVector<int> in_round;
    for (int position = 0; position < hits.size(); ++position)
        in_round.append(position);
    for (int round = 1; !in_round.isEmpty(); ++round) {
        const auto is_spent = [&](int position) { return hits.at(position) < round; };
        in_round.erase(std::remove_if(in_round.begin(), in_round.end(), is_spent), in_round.end());
        for (const int position : qAsConst(in_round))
            positions.append(position);
    }
    return positions;
}

int highest(const QList<int>& hits)
{
    return *std::max_element(hits.begin(), hits.end());
}

table_form form_of(wheel_distribution::setting_wheel_list_type list_type)
{
    return list_type == wheel_distribution::AMERICAN_WHEEL_LIST ? table_form::american
                                                                : table_form::french;
}

} // namespace

wheel_distribution::wheel_distribution(const statistic_data& statistic,
                                       double scale_reduction,
                                       const setting& settings,
                                       QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::wheel_distribution>())
    , store(statistic)
    , print_setting(settings)
    , form(settings.form())
{
    setFont(window_font(font(), scale_reduction));
    ui->setupUi(this);
    sum_fields = {ui->LE_quadrant_1,
                  ui->LE_quadrant_2,
                  ui->LE_quadrant_3,
                  ui->LE_quadrant_4,
                  ui->LE_zero,
                  ui->LE_double_zero};
    const bool is_american = form == table_form::american;
    ui->LB_double_zero->setVisible(is_american);
    ui->LE_double_zero->setVisible(is_american);
    ui->wheel_dist_widget->set_wheel(form, scale_reduction);
    on_CB_verzoegerung_currentIndexChanged(ui->CB_verzoegerung->currentIndex());
    connect(ui->wheel_dist_widget,
            &wheel_distribution_widget::dyn_draw_finished,
            this,
            &wheel_distribution::widget_dyn_finished);
    connect(ui->wheel_dist_widget,
            &wheel_distribution_widget::count_number_to_quadrant,
            this,
            qOverload<setting_wheel_list_type, QList<int>*, int>(
                &wheel_distribution::calculate_quadranten));
    build_buttons();
    show_texts();
    show_all_hits();
}

wheel_distribution::~wheel_distribution() = default;

void wheel_distribution::build_buttons()
{
    ui->buttonBox->addButton(ui->PB_print, QDialogButtonBox::ActionRole);
    new page_export(*this, *ui->buttonBox, {ui->WD_page, [this] { return rows(); }});
}

wheel_distribution::setting_wheel_list_type wheel_distribution::list_type() const
{
    return form == table_form::american ? AMERICAN_WHEEL_LIST : FRENCH_WHEEL_LIST;
}

QList<int> wheel_distribution::hits_in_wheel_order() const
{
    const QList<int> zeros = store.zero_numbers(false);
    const QList<int> numbers = store.numbers(false);
    QVector<int> by_number(number_code::number_count);
    by_number[0] = zeros.at(0);
    by_number[number_code::double_zero] = zeros.at(1);
    std::copy(numbers.begin(), numbers.end(), by_number.begin() + 1);

    QList<int> by_position;
    for (int position = 0; position < list_places; ++position) {
        const bool is_pocket = position < pocket_count(form);
        by_position.append(is_pocket ? by_number.at(wheel_number(position, form)) : 0);
    }
    return by_position;
}

void wheel_distribution::take_snapshot()
{
    hits = hits_in_wheel_order();
    total = std::accumulate(hits.begin(), hits.end(), 0);
}

void wheel_distribution::show_all_hits()
{
    take_snapshot();
    remaining = 0;
    ui->wheel_dist_widget->show_hits(hits, highest(hits));
    calculate_quadranten(list_type(), &hits);
}

// The animation

void wheel_distribution::on_PB_wheel_dyn_start_toggled(bool checked)
{
    ui->CB_verzoegerung->setEnabled(!checked);
    show_texts();
    if (!checked) {
        ui->wheel_dist_widget->stop_dyn_wheel_distribution();
        return;
    }
    take_snapshot();
    remaining = total;
    calculate_quadranten(list_type());
    ui->wheel_dist_widget->start_dyn_wheel_distribution(work_list(hits), highest(hits));
}

void wheel_distribution::widget_dyn_finished()
{
    ui->PB_wheel_dyn_start->setChecked(false);
}

void wheel_distribution::on_CB_verzoegerung_currentIndexChanged(int index)
{
    ui->wheel_dist_widget->set_delay(ui->CB_verzoegerung->itemText(index).toInt());
}

// The sums

int& wheel_distribution::sum_of(int number, table_form summed_form)
{
    const int quadrant = wheel_quadrants::quadrant_of(number, summed_form);
    if (quadrant >= 0) return sums.at(static_cast<std::size_t>(quadrant));
    return sums.at(number == number_code::double_zero ? double_zero_place : zero_place);
}

void wheel_distribution::calculate_quadranten(setting_wheel_list_type list_type,
                                              QList<int>* /*stat_data_list*/,
                                              int stat_data_single)
{
    ++sum_of(stat_data_single, form_of(list_type));
    --remaining;
    show_sums();
}

void wheel_distribution::calculate_quadranten(setting_wheel_list_type list_type,
                                              QList<int>* stat_data_list)
{
    sums.fill(0);
    const table_form summed_form = form_of(list_type);
    for (int position = 0; position < pocket_count(summed_form); ++position) {
        sum_of(wheel_number(position, summed_form), summed_form) += stat_data_list->at(position);
    }
    show_sums();
}

void wheel_distribution::calculate_quadranten(setting_wheel_list_type /*list_type*/)
{
    sums.fill(0);
    show_sums();
}

void wheel_distribution::show_sums()
{
    for (std::size_t place = 0; place < sums.size(); ++place)
        sum_fields.at(place)->setText(QString::number(sums.at(place)));
    ui->LB_total_value->setText(QString::number(total));
    ui->LB_remaining_value->setText(QString::number(remaining));
}

// The window

void wheel_distribution::show_texts()
{
    ui->PB_wheel_dyn_start->setText(ui->PB_wheel_dyn_start->isChecked() ? tr("Stop") : tr("Start"));
    const std::array<QLabel*, wheel_quadrants::quadrant_count> captions = {
        ui->LB_quadrant_1, ui->LB_quadrant_2, ui->LB_quadrant_3, ui->LB_quadrant_4};
    for (int index = 0; index < wheel_quadrants::quadrant_count; ++index) {
        const auto place = static_cast<std::size_t>(index);
        const QString numbers = wheel_quadrants::number_list(index, form);
        captions.at(place)->setToolTip(numbers);
        sum_fields.at(place)->setToolTip(numbers);
    }
}

QVector<QStringList> wheel_distribution::rows() const
{
    QVector<QStringList> table = {{tr("Zahl"), tr("Treffer")}};
    for (int position = 0; position < pocket_count(form); ++position) {
        table.append({number_text(wheel_number(position, form)),
                      QString::number(ui->wheel_dist_widget->hits_at(position))});
    }
    for (int index = 0; index < wheel_quadrants::quadrant_count; ++index) {
        const auto place = static_cast<std::size_t>(index);
        table.append({tr("Quadrant %1").arg(index + 1), QString::number(sums.at(place))});
    }
    return table;
}

void wheel_distribution::on_PB_print_clicked()
{
    const QPixmap picture = grab();
    printer_c(print_setting, this).print_pixmap(picture, picture.width(), picture.height());
}

// A window that nobody sees needs no animation.
void wheel_distribution::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) ui->PB_wheel_dyn_start->setChecked(false);
    QDialog::hideEvent(event);
}

void wheel_distribution::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        show_texts();
    }
    QDialog::changeEvent(event);
}
