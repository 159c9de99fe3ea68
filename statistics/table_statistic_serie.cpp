#include "table_statistic_serie.h"

#include "statistic_data.h"
#include "ui_table_statistic_serie.h"

#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>

static constexpr int column_width = 28;        // px at full size
static constexpr int greatest_two_digits = 99; // beyond it a column fits its contents

/// In the order of the sections.
static const QVector<jetons::jeton_names> shown_chances = {jetons::EC01,
                                                           jetons::EC02,
                                                           jetons::EC03,
                                                           jetons::EC04,
                                                           jetons::EC05,
                                                           jetons::EC06,
                                                           jetons::DZ01,
                                                           jetons::DZ02,
                                                           jetons::DZ03,
                                                           jetons::KL01,
                                                           jetons::KL02,
                                                           jetons::KL03};

table_statistic_serie::table_statistic_serie(const statistic_data& store,
                                             double scale_reduction,
                                             const setting& settings,
                                             QWidget* parent)
    : statistic_table_window(scale_reduction, settings, parent)
    , ui(std::make_unique<Ui::table_statistic_serie>())
{
    ui->setupUi(this);
    build_sections();
    fill_tables(store);
    print_button = add_print_button(*ui->buttonBox);
    connect(print_button, &QPushButton::clicked, this, &table_statistic_serie::print_chart);
    set_texts();
    page_content content;
    content.table = [this] { return rows(); };
    content.current_page = [this] { return current_page(); };
    new page_export(*this, *ui->buttonBox, content);
    open_at_full_view();
}

table_statistic_serie::~table_statistic_serie() = default;

void table_statistic_serie::build_sections()
{
    const QStringList lengths = statistic_cells::two_digits(1, run_columns);
    sections = {{ui->LB_serien_EC01, {ui->TW_EC01}, lengths},
                {ui->LB_serien_EC02, {ui->TW_EC02}, lengths},
                {ui->LB_serien_EC03, {ui->TW_EC03}, lengths},
                {ui->LB_serien_EC04, {ui->TW_EC04}, lengths},
                {ui->LB_serien_EC05, {ui->TW_EC05}, lengths},
                {ui->LB_serien_EC06, {ui->TW_EC06}, lengths},
                {ui->LB_serien_DZ01, {ui->TW_DZ01}, lengths},
                {ui->LB_serien_DZ02, {ui->TW_DZ02}, lengths},
                {ui->LB_serien_DZ03, {ui->TW_DZ03}, lengths},
                {ui->LB_serien_KL01, {ui->TW_KL01}, lengths},
                {ui->LB_serien_KL02, {ui->TW_KL02}, lengths},
                {ui->LB_serien_KL03, {ui->TW_KL03}, lengths}};
    for (const statistic_cells::section& section : qAsConst(sections)) {
        statistic_cells::build(section);
        statistic_cells::fit(section, column_width, reduction());
    }
}

void table_statistic_serie::fill_tables(const statistic_data& store)
{
    for (int place = 0; place < sections.size(); ++place)
        fill_table(*sections.at(place).tables.first(), store.run_lengths(shown_chances.at(place)));
}

void table_statistic_serie::fill_table(QTableWidget& table, const QList<int>& runs)
{
    const int most = *std::max_element(runs.cbegin(), runs.cend());
    const int shown = std::min(run_columns, runs.size());
    table.horizontalHeader()->setMinimumSectionSize(table.horizontalHeader()->defaultSectionSize());
    for (int column = 0; column < shown; ++column) {
        statistic_cells::write_value(*table.item(1, column), runs.at(column), most);
        if (runs.at(column) > greatest_two_digits) table.resizeColumnToContents(column);
    }
    statistic_cells::fix_size(table);
}

void table_statistic_serie::set_texts()
{
    setWindowTitle(tr("Serien"));
    print_button->setText(tr("Print"));
    statistic_cells::name_tables(sections);
}

QWidget* table_statistic_serie::current_page() const
{
    const QScrollArea* area = ui->tab_Widget->currentIndex() == 0 ? ui->SA_simple : ui->SA_thirds;
    return area->widget();
}

QVector<QStringList> table_statistic_serie::rows() const
{
    QVector<QStringList> all;
    for (const statistic_cells::section& section : sections)
        all += statistic_cells::rows_of(section);
    return all;
}

// One tab fills a page.
void table_statistic_serie::print_chart()
{
    print_page(*current_page());
}

void table_statistic_serie::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
    }
    statistic_table_window::changeEvent(event);
}
