#include "chart_statistic.h"

#include "hot_cold_axis.h"
#include "page_export.h"
#include "printer_c.h"
#include "setting.h"
#include "statistic_data.h"
#include "ui_chart_statistic_base.h"

#include <QEvent>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

chart_statistic::chart_statistic(int type_at_opening,
                                 const statistic_data& store,
                                 double scale_reduction,
                                 const setting& settings,
                                 QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::chart_statistic_base>())
    , game_setting(settings)
    , statistic(store)
    , type(type_at_opening == 1 ? 1 : 0)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    {
        const QSignalBlocker not_yet(ui->COB_occurrence);
        const QSignalBlocker nor_this(ui->COB_jetontype);
        ui->COB_occurrence->addItems({QString(), QString()});
        for (int entry = 0; entry < chart_bet_kind_count; ++entry)
            ui->COB_jetontype->addItem(QString());
        ui->COB_occurrence->setCurrentIndex(type);
    }
    build_buttons();
    ui->chart_stat_display->enable_zoom();
    ui->chart_stat_display->set_fonts(chart_fonts(font(), scale_reduction));
    set_texts();
    scale_chart_dialog(*this, scale_reduction);
    refresh();
}

chart_statistic::~chart_statistic() = default;

void chart_statistic::build_buttons()
{
    print_button = new QPushButton(this);
    print_button->setObjectName(QStringLiteral("PB_print"));
    print_button->setAutoDefault(false);
    ui->buttonBox->addButton(print_button, QDialogButtonBox::ActionRole);
    connect(print_button, &QPushButton::clicked, this, &chart_statistic::print_chart);
    new page_export(
        *this, *ui->buttonBox, {ui->chart_stat_display, [this] { return exported_table(); }});
}

// Drawing

void chart_statistic::refresh()
{
    chart_statistic_widget& chart = *ui->chart_stat_display;
    const auto shown_kind = static_cast<chart_bet_kind>(kind);
    shown_form = game_setting.form();
    const QVector<double> values = chart_values(shown_kind, statistic, type == 1, shown_form);
    const auto largest = static_cast<qint64>(*std::max_element(values.cbegin(), values.cend()));

    setWindowTitle(title_text());
    chart.set_titles(title_text(), x_title(), ui->COB_occurrence->currentText());
    chart.set_bar_names(chart_bar_names(shown_kind, shown_form));
    chart.show_grid(has_grid);
    chart.set_values(values, chart_labels(shown_kind, shown_form));
    chart.set_y_scale(0, static_cast<double>(largest + axis_margin(largest)));
}

QVector<QStringList> chart_statistic::exported_table() const
{
    const QStringList names = chart_bar_names(static_cast<chart_bet_kind>(kind), shown_form);
    const QVector<double> values = ui->chart_stat_display->values();
    QVector<QStringList> rows{{windowTitle(), ui->COB_occurrence->currentText()}};
    for (int bar = 0; bar < values.size(); ++bar)
        rows.append({names.value(bar), QString::number(values.at(bar), 'f', 0)});
    return rows;
}

void chart_statistic::print_chart()
{
    const QPixmap picture = ui->chart_stat_display->grab();
    printer_c(game_setting, this).print_pixmap(picture, picture.width(), picture.height());
}

// What the user does

void chart_statistic::on_COB_occurrence_currentIndexChanged(int index)
{
    type = index;
    refresh();
}

void chart_statistic::on_COB_jetontype_currentIndexChanged(int index)
{
    kind = index;
    refresh();
}

void chart_statistic::on_CB_grid_display_toggled(bool checked)
{
    has_grid = checked;
    refresh();
}

// Texts

bool chart_statistic::has_american_terms() const
{
    return game_setting.s_language_term() != 0;
}

QString chart_statistic::entry_text(chart_bet_kind shown_kind) const
{
    const bool american = has_american_terms();
    switch (shown_kind) {
    case chart_bet_kind::plein:
        return american ? tr("Straight Up") : tr("Plein");
    case chart_bet_kind::cheval:
        return american ? tr("Split") : tr("Cheval");
    case chart_bet_kind::carre:
        return american ? tr("Corner") : tr("Carre");
    case chart_bet_kind::transversale_plein:
        return american ? tr("Street") : tr("Transversale Plein");
    case chart_bet_kind::transversale_simple:
        return american ? tr("Six Line") : tr("Transversale Simple");
    case chart_bet_kind::columns_and_dozens:
        return tr("Kolonne/Dutzend");
    case chart_bet_kind::simple_chances:
        return tr("Einfache Chancen");
    case chart_bet_kind::finals:
        return tr("Finale");
    case chart_bet_kind::sectors:
        return tr("GS,KS,OR,OP,ZS");
    case chart_bet_kind::one_neighbour:
        return tr("Ein Nachbar");
    case chart_bet_kind::two_neighbours:
        return tr("Zwei Nachbaren");
    case chart_bet_kind::three_neighbours:
        return tr("Drei Nachbaren");
    }
    return {};
}

QString chart_statistic::title_text() const
{
    const auto shown_kind = static_cast<chart_bet_kind>(kind);
    switch (shown_kind) {
    case chart_bet_kind::columns_and_dozens:
        return tr("Kolonne / Dutzend");
    case chart_bet_kind::two_neighbours:
        return tr("Zwei Nachbarn");
    case chart_bet_kind::three_neighbours:
        return tr("Drei Nachbarn");
    default:
        return entry_text(shown_kind);
    }
}

QString chart_statistic::x_title() const
{
    switch (static_cast<chart_bet_kind>(kind)) {
    case chart_bet_kind::plein:
    case chart_bet_kind::one_neighbour:
    case chart_bet_kind::two_neighbours:
    case chart_bet_kind::three_neighbours:
        return tr("Zahl");
    case chart_bet_kind::finals:
        return tr("Endziffer");
    case chart_bet_kind::columns_and_dozens:
    case chart_bet_kind::simple_chances:
    case chart_bet_kind::sectors:
        return tr("Chance");
    default:
        return tr("Nummer des Feldes");
    }
}

void chart_statistic::set_texts()
{
    print_button->setText(tr("Drucken"));
    ui->chart_stat_display->canvas()->setAccessibleName(ui->chart_stat_display->accessibleName());
    ui->COB_occurrence->setItemText(0, tr("Wie oft?"));
    ui->COB_occurrence->setItemText(1, tr("Seit wann nicht?"));
    for (int entry = 0; entry < chart_bet_kind_count; ++entry)
        ui->COB_jetontype->setItemText(entry, entry_text(static_cast<chart_bet_kind>(entry)));
}

void chart_statistic::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        set_texts();
        refresh();
    }
    QDialog::changeEvent(event);
}
