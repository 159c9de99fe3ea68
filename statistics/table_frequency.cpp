#include "table_frequency.h"

#include "hit_ranking.h"
#include "statistic_data.h"
#include "ui_table_frequency.h"

#include <QEvent>
#include <QPushButton>

/// The bets of a kind, counted from 1.
static QVector<ranked_bet> counted(const QList<int>& hits)
{
    QVector<ranked_bet> bets;
    for (const int count : hits)
        bets.append({QString::number(bets.size() + 1), count});
    return bets;
}

/// The numbers by themselves, the double zero behind 36.
static QVector<ranked_bet> numbers_of(const statistic_data& store, bool has_double_zero)
{
    const QList<int> zeros = store.zero_numbers(false);
    QVector<ranked_bet> bets = counted(store.numbers(false));
    bets.prepend({QStringLiteral("0"), zeros.first()});
    if (has_double_zero) bets.append({QStringLiteral("00"), zeros.last()});
    return bets;
}

/// Takes out what the table form lacks: of the bets with zero one is French, the last are American.
static QVector<ranked_bet>
of_form(QVector<ranked_bet> bets, bool is_american, int french_only, int first_american)
{
    if (is_american) {
        bets.remove(french_only);
    } else {
        bets.resize(first_american);
    }
    return bets;
}

table_frequency::table_frequency(const statistic_data& store,
                                 double scale_reduction,
                                 const setting& settings,
                                 QWidget* parent)
    : statistic_table_window(scale_reduction, settings, parent)
    , ui(std::make_unique<Ui::table_frequency>())
{
    ui->setupUi(this);
    fill_table(store);
    print_button = add_print_button(*ui->buttonBox);
    connect(print_button, &QPushButton::clicked, this, &table_frequency::print_chart);
    set_texts();
    new page_export(*this, *ui->buttonBox, {ui->GB_frequency, [this] {
                                                return hit_ranking::rows_of(*ui->TW_frequency);
                                            }});
    open_at_full_view();
}

table_frequency::~table_frequency() = default;

// The store counts the bets of both table forms; only those of this one take part.
void table_frequency::fill_table(const statistic_data& store)
{
    const QVector<ranked_bet> splits = of_form(counted(store.splits(false)),
                                               is_american_table(),
                                               jetons::CH03 - jetons::CH01,
                                               jetons::CH61 - jetons::CH01);
    const QVector<ranked_bet> streets = of_form(counted(store.streets(false)),
                                                is_american_table(),
                                                jetons::TP02 - jetons::TP01,
                                                jetons::TP15 - jetons::TP01);
    const QList<int> thirds = store.columns_and_dozens(false);
    const QVector<QPair<QString, QVector<ranked_bet>>> kinds = {
        {QStringLiteral(" H-PL"), numbers_of(store, is_american_table())},
        {QStringLiteral(" H-CH"), splits},
        {QStringLiteral(" H-CA"), counted(store.corners(false))},
        {QStringLiteral(" H-TP"), streets},
        {QStringLiteral(" H-TS"), counted(store.six_lines(false))},
        {QStringLiteral(" H-KL"), counted(thirds.mid(0, 3))},
        {QStringLiteral(" H-DZ"), counted(thirds.mid(3, 3))},
        {QStringLiteral(" H-EC"), counted(store.simple_chances(false))}};
    QStringList heads;
    QVector<QStringList> rows;
    for (const auto& kind : kinds) {
        heads.append(kind.first);
        rows.append(hit_ranking::cells(kind.second));
    }
    hit_ranking::show(*ui->TW_frequency, heads, rows, reduction());
}

void table_frequency::set_texts()
{
    setWindowTitle(tr("Häufigkeit"));
    ui->GB_frequency->setTitle(windowTitle()); // so that a printed page tells what it is
    print_button->setText(tr("Drucken"));
}

void table_frequency::print_chart()
{
    print_page(*ui->GB_frequency);
}

void table_frequency::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
    }
    statistic_table_window::changeEvent(event);
}
