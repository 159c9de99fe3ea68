#include "table_follow_number.h"

#include "hit_ranking.h"
#include "statistic_data.h"
#include "ui_table_follow_number.h"

#include <QEvent>
#include <QPushButton>

static constexpr int last_of_first_table = 18;

static QString number_text(int number)
{
    return number == number_code::double_zero ? QStringLiteral("00") : QString::number(number);
}

table_follow_number::table_follow_number(const statistic_data& store,
                                         double scale_reduction,
                                         const setting& settings,
                                         QWidget* parent)
    : statistic_table_window(scale_reduction, settings, parent)
    , ui(std::make_unique<Ui::table_follow_number>())
{
    ui->setupUi(this);
    fill_table(*ui->TW_follow_number_0_18, store, 0, last_of_first_table);
    fill_table(*ui->TW_follow_number_19_36, store, last_of_first_table + 1, last_number());
    print_button = add_print_button(*ui->buttonBox);
    connect(print_button, &QPushButton::clicked, this, &table_follow_number::print_chart);
    set_texts();
    new page_export(*this, *ui->buttonBox, {ui->GB_follow_number, [this] { return rows(); }});
    open_at_full_view();
}

table_follow_number::~table_follow_number() = default;

int table_follow_number::last_number() const
{
    return is_american_table() ? number_code::double_zero : 36;
}

void table_follow_number::fill_table(QTableWidget& table,
                                     const statistic_data& store,
                                     int first,
                                     int last)
{
    QStringList heads;
    QVector<QStringList> rows;
    for (int number = first; number <= last; ++number) {
        const QList<int> followers = store.follow_row(number);
        QVector<ranked_bet> bets;
        for (int follower = 0; follower <= last_number(); ++follower)
            bets.append({number_text(follower), followers.at(follower)});
        heads.append(number_text(number));
        rows.append(hit_ranking::cells(bets));
    }
    hit_ranking::show(table, heads, rows, reduction());
}

void table_follow_number::set_texts()
{
    setWindowTitle(tr("Folgezahlen"));
    ui->GB_follow_number->setTitle(windowTitle()); // so that a printed page tells what it is
    print_button->setText(tr("Drucken"));
}

QVector<QStringList> table_follow_number::rows() const
{
    QVector<QStringList> all = hit_ranking::rows_of(*ui->TW_follow_number_0_18);
    all += hit_ranking::rows_of(*ui->TW_follow_number_19_36).mid(1); // the heads stand once
    return all;
}

void table_follow_number::print_chart()
{
    print_page(*ui->GB_follow_number);
}

void table_follow_number::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
    }
    statistic_table_window::changeEvent(event);
}
