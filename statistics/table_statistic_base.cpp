#include "table_statistic_base.h"

#include "statistic_data.h"
#include "ui_table_statistic_base.h"

#include <QEvent>
#include <QPushButton>

using statistic_cells::two_digits;

static constexpr int column_width = 44; // px at full size
static constexpr int red_column = 2;    // of the even chances
static constexpr int black_column = 3;

static void colour_head(QTableWidgetItem& head, const QColor& colour, const QString& name)
{
    head.setBackground(colour);
    head.setToolTip(name);
}

table_statistic_base::table_statistic_base(int statistic_type,
                                           const statistic_data& store,
                                           double scale_reduction,
                                           const setting& settings,
                                           QWidget* parent)
    : statistic_table_window(scale_reduction, settings, parent)
    , type(statistic_type)
    , ui(std::make_unique<Ui::table_statistic_base>())
{
    ui->setupUi(this);
    build_sections();
    fill_tables(store);
    for (const statistic_cells::section& section : qAsConst(sections))
        statistic_cells::fit(section, column_width, reduction());
    print_button = add_print_button(*ui->buttonBox);
    connect(print_button, &QPushButton::clicked, this, &table_statistic_base::print_chart);
    set_texts();
    new page_export(*this, *ui->buttonBox, {ui->GB_since_statistic, [this] { return rows(); }});
    open_at_full_view();
}

table_statistic_base::~table_statistic_base() = default;

void table_statistic_base::build_sections()
{
    const QStringList zeros = {QStringLiteral("0"), QStringLiteral("00")};
    const QStringList chances = {QStringLiteral("1-18"),
                                 QStringLiteral("EVEN"),
                                 QString(), // red
                                 QString(), // black
                                 QStringLiteral("ODD"),
                                 QStringLiteral("19-36")};
    const QStringList columns = {
        QStringLiteral("K I"), QStringLiteral("K II"), QStringLiteral("K III")};
    const QStringList dozens = {
        QStringLiteral("D I"), QStringLiteral("D II"), QStringLiteral("D III")};
    const int streets = is_american_table() ? 16 : 14;
    const int splits = is_american_table() ? 63 : 60;
    // clang-format off
    sections = {
        {nullptr,        {ui->TW_General},                     {QStringLiteral("Coups")}},
        {nullptr,        {ui->TW_Zero},                        zeros.mid(0, is_american_table() ? 2 : 1), {{0}, {1}}},
        {ui->LB_EC,      {ui->TW_EC},                          chances, {{0, 5}, {1, 4}, {2, 3}}},
        {ui->LB_Plein,   {ui->TW_PL_1_18, ui->TW_PL_19_36},    two_digits(1, 36)},
        {ui->LB_Kolonne, {ui->TW_KL},                          columns},
        {ui->LB_Dutzend, {ui->TW_DZ},                          dozens},
        {ui->LB_Carre,   {ui->TW_CA_01_12, ui->TW_CA_13_23},   two_digits(1, 23)},
        {ui->LB_TS,      {ui->TW_TS},                          two_digits(1, 11)},
        {ui->LB_TP,      {ui->TW_TP},                          two_digits(1, streets)},
        {ui->LB_Cheval,  {ui->TW_CH_01_20, ui->TW_CH_21_40, ui->TW_CH_41_60}, two_digits(1, splits)}};
    // clang-format on
    if (!is_american_table()) sections[1].compared = {{0}};
    for (const statistic_cells::section& section : qAsConst(sections))
        statistic_cells::build(section);
}

// The store counts the bets of both table forms; the sections show those of this one.
void table_statistic_base::fill_tables(const statistic_data& store)
{
    const bool since = type == 1;
    const QList<int> thirds = store.columns_and_dozens(since);
    const QVector<QList<int>> values = {{store.coup_count()},
                                        store.zero_numbers(since),
                                        store.simple_chances(since),
                                        store.numbers(since),
                                        thirds.mid(0, 3),
                                        thirds.mid(3, 3),
                                        store.corners(since),
                                        store.six_lines(since),
                                        store.streets(since),
                                        store.splits(since)};
    for (int place = 0; place < sections.size(); ++place)
        statistic_cells::fill(sections.at(place), values.at(place));
}

void table_statistic_base::set_texts()
{
    setWindowTitle(type == 1 ? tr("Standard - Seit wann nicht?") : tr("Standard - Wie oft?"));
    ui->GB_since_statistic->setTitle(windowTitle()); // so that a printed page tells what it is
    colour_head(*ui->TW_EC->item(0, red_column), QColor(255, 0, 0), tr("ROT"));
    colour_head(*ui->TW_EC->item(0, black_column), QColor(0, 0, 0), tr("SCHWARZ"));
    print_button->setText(tr("Print"));
    set_terms();
    statistic_cells::name_tables(sections);
}

void table_statistic_base::set_terms()
{
    if (is_american_table()) {
        ui->LB_Cheval->setText(tr("Cheval (CH01 - CH63)"));
        ui->LB_TP->setText(tr("Transversale Plein (TP01 - TP16)"));
    }
    if (!has_american_terms()) return;
    ui->LB_Plein->setText(tr("Straight Up (PL01 - PL36)"));
    ui->LB_Carre->setText(tr("Corner (CA01 - CA23)"));
    ui->LB_TS->setText(tr("Six Line (TS01 - TS11)"));
    ui->LB_Cheval->setText(is_american_table() ? tr("Split (CH01 - CH63)")
                                               : tr("Split (CH01 - CH60)"));
    ui->LB_TP->setText(is_american_table() ? tr("Street (TP01 - TP16)")
                                           : tr("Street (TP01 - TP14)"));
}

QVector<QStringList> table_statistic_base::rows() const
{
    QVector<QStringList> all;
    for (const statistic_cells::section& section : sections)
        all += statistic_cells::rows_of(section);
    return all;
}

void table_statistic_base::print_chart()
{
    print_page(*ui->GB_since_statistic);
}

void table_statistic_base::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
    }
    statistic_table_window::changeEvent(event);
}
