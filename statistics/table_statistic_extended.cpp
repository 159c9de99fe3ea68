#include "table_statistic_extended.h"

#include "statistic_data.h"
#include "ui_table_statistic_extended.h"

#include <QEvent>
#include <QPushButton>

static constexpr int column_width = 44; // px at full size

table_statistic_extended::table_statistic_extended(int statistic_type,
                                                   const statistic_data& store,
                                                   double scale_reduction,
                                                   const setting& settings,
                                                   QWidget* parent)
    : statistic_table_window(scale_reduction, settings, parent)
    , type(statistic_type)
    , ui(std::make_unique<Ui::table_statistic_extended>())
{
    ui->setupUi(this);
    build_sections();
    fill_tables(store);
    for (const statistic_cells::section& section : qAsConst(sections))
        statistic_cells::fit(section, column_width, reduction());
    print_button = add_print_button(*ui->buttonBox);
    connect(print_button, &QPushButton::clicked, this, &table_statistic_extended::print_chart);
    set_texts();
    new page_export(*this, *ui->buttonBox, {ui->GB_extended, [this] { return rows(); }});
    open_at_full_view();
}

table_statistic_extended::~table_statistic_extended() = default;

void table_statistic_extended::build_sections()
{
    QStringList finals;
    for (int digit = 0; digit <= 9; ++digit)
        finals.append(QString::number(digit));
    const QStringList sectors = {QStringLiteral("GS"),
                                 QStringLiteral("KS"),
                                 QStringLiteral("OR"),
                                 QStringLiteral("OP"),
                                 QStringLiteral("ZS")};
    const QStringList numbers = neighbour_heads();
    // clang-format off
    sections = {
        {nullptr,               {ui->TW_General},                     {QStringLiteral("Coups")}},
        {ui->LB_finale,         {ui->TW_FI},                          finals},
        {ui->LB_sectors,        {ui->TW_AN},                          sectors},
        {ui->LB_one_neighbor,   {ui->TW_EN_1_19, ui->TW_EN_20_36},    numbers},
        {ui->LB_two_neighbor,   {ui->TW_ZN_1_19, ui->TW_ZN_20_36},    numbers},
        {ui->LB_three_neighbor, {ui->TW_DN_1_19, ui->TW_DN_20_36},    numbers}};
    // clang-format on
    for (const statistic_cells::section& section : qAsConst(sections))
        statistic_cells::build(section);
}

// The double zero has its bets on the American wheel alone.
QStringList table_statistic_extended::neighbour_heads() const
{
    QStringList heads = statistic_cells::two_digits(0, 36);
    heads.first() = QStringLiteral("0");
    if (is_american_table()) heads.append(QStringLiteral("00"));
    return heads;
}

void table_statistic_extended::fill_tables(const statistic_data& store)
{
    const bool since = type == 1;
    const QVector<QList<int>> values = {{store.coup_count()},
                                        store.finals(since),
                                        store.sectors(since),
                                        store.one_neighbour_bets(since),
                                        store.two_neighbour_bets(since),
                                        store.three_neighbour_bets(since)};
    for (int place = 0; place < sections.size(); ++place)
        statistic_cells::fill(sections.at(place), values.at(place));
}

void table_statistic_extended::set_texts()
{
    setWindowTitle(type == 1 ? tr("Annoncen - Seit wann nicht?") : tr("Annoncen - Wie oft?"));
    ui->GB_extended->setTitle(windowTitle()); // so that a printed page tells what it is
    print_button->setText(tr("Print"));
    statistic_cells::name_tables(sections);
}

QVector<QStringList> table_statistic_extended::rows() const
{
    QVector<QStringList> all;
    for (const statistic_cells::section& section : sections)
        all += statistic_cells::rows_of(section);
    return all;
}

void table_statistic_extended::print_chart()
{
    print_page(*ui->GB_extended);
}

void table_statistic_extended::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
    }
    statistic_table_window::changeEvent(event);
}
