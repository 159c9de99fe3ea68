#include "chart_statistic.h"
#include "chart_statistic_player.h"
#include "chart_statistic_widget.h"
#include "design_geometry.h"
#include "mainwindow.h"
#include "muster_statistic.h"
#include "muster_statistic_serien.h"
#include "setting.h"
#include "statistic_data.h"
#include "table_follow_number.h"
#include "table_frequency.h"
#include "table_statistic_base.h"
#include "table_statistic_extended.h"
#include "table_statistic_serie.h"
#include "ui_mainwindow.h"
#include "wheel_distribution.h"
#include "window_places.h"

#include <QLabel>

#include <algorithm>
#include <functional>

static constexpr int ranked_numbers = 4; // of each end of the order
static constexpr int shown_numbers = 3;

static const QColor hot_bar_colour(200, 40, 30);
static const QColor cold_bar_colour(40, 90, 200);

// ---- hot and cold numbers

void MainWindow::create_hot_cold_charts()
{
    const auto create = [this](const QString& name) {
        auto* const chart = new chart_statistic_widget(ui->centralwidget);
        chart->setObjectName(name);
        chart->setFocusPolicy(Qt::NoFocus);
        chart->setAttribute(Qt::WA_TransparentForMouseEvents);
        chart->stackUnder(ui->LB_to_less_coup1);
        chart->set_transparent();
        return chart;
    };
    hot_place.chart = create(QStringLiteral("hot_number_widget"));
    cold_place.chart = create(QStringLiteral("cold_number_widget"));
    hot_place.chart->set_bar_colour(hot_bar_colour);
    cold_place.chart->set_bar_colour(cold_bar_colour);
    set_hot_cold_titles();
    empty_hot_cold_charts();
}

void MainWindow::place_hot_cold_charts()
{
    hot_place.chart->setGeometry(design::scaled_rect(design::hot_chart, scale_reduction));
    cold_place.chart->setGeometry(design::scaled_rect(design::cold_chart, scale_reduction));
    for (const ranked_chart* place : {&hot_place, &cold_place}) {
        place->chart->set_fonts(chart_fonts(ui->centralwidget->font(), scale_reduction));
    }
    set_hot_cold_titles();
}

void MainWindow::set_hot_cold_titles()
{
    hot_place.chart->set_titles(tr("Hot"), {}, {}, Qt::red);
    cold_place.chart->set_titles(tr("Cold"), {}, {}, Qt::blue);
    hot_place.chart->setAccessibleName(tr("Hot"));
    cold_place.chart->setAccessibleName(tr("Cold"));
}

void MainWindow::update_cold_hot_data()
{
    if (statistic->coup_count() <= game_setting.s_activation_coldhot_display()) {
        if (has_ranks) empty_hot_cold_charts();
        return;
    }
    has_ranks = true;
    ui->LB_to_less_coup1->hide();
    ui->LB_to_less_coup2->hide();
    const hot_and_cold_numbers ends = statistic->hot_and_cold(ranked_numbers);
    show_ranks(hot_place, ends.hot);
    show_ranks(cold_place, ends.cold);
}

void MainWindow::show_ranks(ranked_chart& place, const QList<statistic_number_rank>& ranks)
{
    QVector<double> counts;
    QStringList texts;
    for (const statistic_number_rank& rank : ranks.mid(0, shown_numbers)) {
        counts.append(rank.count);
        texts.append(rank.text);
    }
    const auto [lowest, highest] = std::minmax_element(counts.cbegin(), counts.cend());
    place.chart->set_labels(texts);
    place.chart->setAccessibleDescription(texts.join(QStringLiteral(", ")));
    place.chart->set_values(counts, bar_labels::list);
    if (place.axis.update(static_cast<qint64>(*highest), static_cast<qint64>(*lowest))) {
        place.chart->set_y_scale(static_cast<double>(place.axis.lower()),
                                 static_cast<double>(place.axis.upper()));
    } else {
        place.chart->replot();
    }
}

void MainWindow::empty_hot_cold_charts()
{
    has_ranks = false;
    for (const ranked_chart* place : {&hot_place, &cold_place}) {
        place->chart->show_empty(shown_numbers);
        place->chart->setAccessibleDescription({});
    }
    ui->LB_to_less_coup1->show();
    ui->LB_to_less_coup2->show();
}

/// The counts begin anew, and the axes with them.
void MainWindow::reset_hot_cold_charts()
{
    hot_place.axis.reset();
    cold_place.axis.reset();
    empty_hot_cold_charts();
}

// ---- windows of the statistic

/// A window that is open already gives way: it shows the figures of an earlier moment. All tables
/// of a window tell of the same coup.
void MainWindow::show_statistic_window(const QString& name, const std::function<QDialog*()>& create)
{
    drain_statistic();
    QDialog* const window = create();
    if (auto* const earlier = findChild<QDialog*>(name)) {
        earlier->close(); // its place is remembered
        earlier->setObjectName(QString());
    }
    window->setObjectName(name);
    window->setAttribute(Qt::WA_DeleteOnClose);
    places->watch(*window);
    window->show();
}

void MainWindow::on_actionWie_oft_triggered()
{
    show_statistic_window(QStringLiteral("table_statistic_base_hits"), [this] {
        return new table_statistic_base(0, *statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionSeit_wann_triggered()
{
    show_statistic_window(QStringLiteral("table_statistic_base_since"), [this] {
        return new table_statistic_base(1, *statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionAnnoncen_wie_oft_triggered()
{
    show_statistic_window(QStringLiteral("table_statistic_extended_hits"), [this] {
        return new table_statistic_extended(0, *statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionAnnoncen_seit_wann_triggered()
{
    show_statistic_window(QStringLiteral("table_statistic_extended_since"), [this] {
        return new table_statistic_extended(1, *statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionSerien_triggered()
{
    show_statistic_window(QStringLiteral("table_statistic_serie"), [this] {
        return new table_statistic_serie(*statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionHaeufigkeit_triggered()
{
    show_statistic_window(QStringLiteral("table_frequency"), [this] {
        return new table_frequency(*statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionFolgezahlen_triggered()
{
    show_statistic_window(QStringLiteral("table_follow_number"), [this] {
        return new table_follow_number(*statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionBalken_wie_oft_triggered()
{
    show_statistic_window(QStringLiteral("chart_statistic_hits"), [this] {
        return new chart_statistic(0, *statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionBalken_seit_wann_triggered()
{
    show_statistic_window(QStringLiteral("chart_statistic_since"), [this] {
        return new chart_statistic(1, *statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionSpielerstatistik_triggered()
{
    show_statistic_window(QStringLiteral("chart_statistic_player"), [this] {
        return new chart_statistic_player(*statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionKesselverteilung_triggered()
{
    show_statistic_window(QStringLiteral("wheel_distribution"), [this] {
        return new wheel_distribution(*statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionFigurenverlauf_triggered()
{
    show_statistic_window(QStringLiteral("muster_statistic"), [this] {
        return new muster_statistic(*statistic, scale_reduction, game_setting, this);
    });
}

void MainWindow::on_actionFigurenstatistik_triggered()
{
    show_statistic_window(QStringLiteral("muster_statistic_serien"), [this] {
        return new muster_statistic_serien(*statistic, scale_reduction, game_setting, this);
    });
}
