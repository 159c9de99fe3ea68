#include "chart_statistic_player.h"

#include "course_curve.h"
#include "page_export.h"
#include "printer_c.h"
#include "setting.h"
#include "statistic_data.h"
#include "ui_chart_statistic_player.h"

#include <QEvent>
#include <QHeaderView>
#include <QPixmap>
#include <QPushButton>

#include <algorithm>

using general_player::player_count;
using general_player::player_names;

namespace
{

enum figure_row { start_credit, coups, plus_coups, minus_coups, seeded, score, credit, row_count };

constexpr std::array<Qt::GlobalColor, player_count> player_colours{
    Qt::red, Qt::blue, Qt::darkGreen, Qt::black};

/// A cell of the table: centred, not to be edited.
QTableWidgetItem* new_cell(const QColor& background, QFont::Weight weight, const QFont& font)
{
    auto* const cell = new QTableWidgetItem;
    QFont cell_font = font;
    cell_font.setWeight(weight);
    cell->setFont(cell_font);
    cell->setTextAlignment(Qt::AlignCenter);
    cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
    cell->setBackground(background);
    cell->setForeground(Qt::black);
    return cell;
}

} // namespace

chart_statistic_player::chart_statistic_player(const statistic_data& store,
                                               double scale_reduction,
                                               const setting& settings,
                                               QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::chart_statistic_player>())
    , statistic(store)
    , print_setting(settings)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    player_boxes = {ui->CB_player_1, ui->CB_player_2, ui->CB_player_3, ui->CB_player_4};
    build_buttons();
    setTabOrder(ui->CB_display_Y_Grid, ui->chart_stat_player_display->canvas());
    setTabOrder(ui->chart_stat_player_display->canvas(), ui->COB_player_tbl_sel);
    scale_chart_dialog(*this, scale_reduction);
    build_table();
    ui->chart_stat_player_display->set_fonts(chart_fonts(font(), scale_reduction));
    ui->chart_stat_player_display->show_grid(ui->CB_display_Y_Grid->isChecked());
    read_store();
    check_players_who_bet();
    set_texts();
    resize(size().expandedTo(minimumSizeHint()));
}

chart_statistic_player::~chart_statistic_player() = default;

void chart_statistic_player::build_buttons()
{
    print_button = new QPushButton(this);
    print_button->setObjectName(QStringLiteral("PB_print"));
    print_button->setAutoDefault(false);
    ui->buttonBox->addButton(print_button, QDialogButtonBox::ActionRole);
    connect(print_button, &QPushButton::clicked, this, &chart_statistic_player::print_chart);
    new page_export(*this, *ui->buttonBox, {ui->chart_stat_player_display, [this] {
                                                return exported_table();
                                            }});
}

void chart_statistic_player::build_table()
{
    QTableWidget& table = *ui->TW_player_stat;
    table.setRowCount(row_count);
    table.setColumnCount(2);
    for (int row = 0; row < row_count; ++row) {
        table.setItem(row, 0, new_cell(QColor(227, 247, 255), QFont::Bold, font()));
        table.setItem(row, 1, new_cell(Qt::white, QFont::Normal, font()));
    }
    table.horizontalHeader()->hide();
    table.verticalHeader()->hide();
}

// Reading

void chart_statistic_player::refresh()
{
    read_store();
    draw_curves();
    fill_table();
}

void chart_statistic_player::read_store()
{
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        player_figures& figures = players[static_cast<std::size_t>(i)];
        figures = {};
        figures.status = statistic.status_of(player);
        if (view == curve_view::credit) {
            figures.credit = statistic.credit_course(player);
        } else {
            figures.score = statistic.score_course(player);
            figures.seeded = statistic.seeded_course(player);
        }
    }
}

void chart_statistic_player::check_players_who_bet()
{
    bool has_nobody_bet = true;
    for (std::size_t i = 0; i < player_boxes.size(); ++i) {
        const player_status& status = players[i].status;
        const bool has_bet = status.plus_coups + status.minus_coups > 0;
        player_boxes[i]->setChecked(has_bet);
        if (has_bet) has_nobody_bet = false;
    }
    if (has_nobody_bet) ui->CB_player_1->setChecked(true);
}

// Drawing

void chart_statistic_player::draw_curves()
{
    ui->chart_stat_player_display->show_curves(view, wanted_curves());
}

QVector<player_curve> chart_statistic_player::wanted_curves() const
{
    QVector<player_curve> curves;
    for (std::size_t i = 0; i < players.size(); ++i) {
        if (!player_boxes[i]->isChecked()) continue;
        const player_figures& figures = players[i];
        const QString name = player_boxes[i]->text();
        const QColor colour = player_colours[i];
        if (view == curve_view::credit) {
            curves.append({name, colour, figures.status.start_credit, figures.credit, false});
            continue;
        }
        const QString title = QStringLiteral("%1, %2");
        curves.append({title.arg(name, tr("Gewinn")), colour, 0, figures.score, false});
        curves.append({title.arg(name, tr("Gesetzt")), colour, 0, figures.seeded, true});
    }
    return curves;
}

/// Before the first coup a player still holds the start credit.
void chart_statistic_player::fill_table()
{
    const int player = ui->COB_player_tbl_sel->currentIndex();
    if (player < 0) return;
    const player_status& status = players[static_cast<std::size_t>(player)].status;
    const auto write = [this](figure_row row, qint64 figure) {
        ui->TW_player_stat->item(row, 1)->setText(QString::number(figure));
    };
    write(start_credit, status.start_credit);
    write(coups, status.coups);
    write(plus_coups, status.plus_coups);
    write(minus_coups, status.minus_coups);
    write(seeded, status.last_seeded);
    write(score, status.last_score);
    write(credit, status.has_credit ? status.last_credit : status.start_credit);
    set_table_size();
}

/// As large as its contents, without scroll bars.
void chart_statistic_player::set_table_size()
{
    QTableWidget& table = *ui->TW_player_stat;
    table.resizeColumnsToContents();
    table.resizeRowsToContents();
    const int frame = 2 * table.frameWidth();
    const int wanted = table.horizontalHeader()->length();
    const int width = std::max(wanted, ui->COB_player_tbl_sel->sizeHint().width());
    table.setColumnWidth(1, table.columnWidth(1) + width - wanted);
    table.setFixedSize(width + frame, table.verticalHeader()->length() + frame);
}

QVector<QStringList> chart_statistic_player::exported_table() const
{
    const auto& curves = ui->chart_stat_player_display->curves();
    QStringList heads(tr("Coup"));
    std::size_t coup_count = 0;
    for (const course_curve* curve : curves) {
        heads.append(curve->title().text());
        coup_count = std::max(coup_count, curve->dataSize());
    }
    QVector<QStringList> rows{heads};
    rows.reserve(static_cast<int>(coup_count) + 1);
    for (std::size_t coup = 0; coup < coup_count; ++coup) {
        QStringList row(QString::number(coup));
        for (const course_curve* curve : curves) {
            const bool has_coup = coup < curve->dataSize();
            row.append(has_coup ? QString::number(curve->course().amount(coup)) : QString());
        }
        rows.append(row);
    }
    return rows;
}

void chart_statistic_player::print_chart()
{
    const QPixmap picture = ui->chart_stat_player_display->grab();
    printer_c(print_setting, this).print_pixmap(picture, picture.width(), picture.height());
}

// What the user does

void chart_statistic_player::on_CB_player_1_clicked(bool /*checked*/)
{
    draw_curves();
}

void chart_statistic_player::on_CB_player_2_clicked(bool /*checked*/)
{
    draw_curves();
}

void chart_statistic_player::on_CB_player_3_clicked(bool /*checked*/)
{
    draw_curves();
}

void chart_statistic_player::on_CB_player_4_clicked(bool /*checked*/)
{
    draw_curves();
}

void chart_statistic_player::on_RB_credit_data_line_toggled(bool checked)
{
    if (!checked) return;
    view = curve_view::credit;
    set_titles();
    refresh();
}

void chart_statistic_player::on_RB_seeded_score_data_line_toggled(bool checked)
{
    if (!checked) return;
    view = curve_view::score_and_stake;
    set_titles();
    refresh();
}

void chart_statistic_player::on_CB_display_Y_Grid_toggled(bool checked)
{
    ui->chart_stat_player_display->show_grid(checked);
}

void chart_statistic_player::on_COB_player_tbl_sel_currentIndexChanged(int /*index*/)
{
    if (ui->TW_player_stat->rowCount() == row_count) fill_table();
}

// Texts

void chart_statistic_player::set_texts()
{
    print_button->setText(tr("Drucken"));
    ui->chart_stat_player_display->canvas()->setAccessibleName(
        ui->chart_stat_player_display->accessibleName());
    const QStringList heads = {tr("Startkapital"),
                               tr("Coups"),
                               tr("Gewinncoups"),
                               tr("Verlustcoups"),
                               tr("Gesetzt"),
                               tr("Gewinn"),
                               tr("Guthaben")};
    for (int row = 0; row < row_count; ++row)
        ui->TW_player_stat->item(row, 0)->setText(heads.at(row));
    set_titles();
    draw_curves();
    fill_table();
}

/// The axes tell how the curves of each are drawn.
void chart_statistic_player::set_titles()
{
    const bool is_credit = view == curve_view::credit;
    ui->chart_stat_player_display->set_titles(
        {tr("Coups"),
         is_credit ? tr("Guthaben") : tr("Gewinn (durchgezogen)"),
         tr("Gesetzt (gestrichelt)")});
}

void chart_statistic_player::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
    }
    QDialog::changeEvent(event);
}
