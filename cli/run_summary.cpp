#include "run_summary.h"

#include "headless_game.h"

#include <QJsonArray>

using general_player::player_count;
using general_player::player_names;

namespace
{

/// One figure of a run: its key in JSON, its title in the table.
struct figure_row {
    const char* key;
    const char* title;
    qint64 run_figures::*figure;
};

// clang-format off
constexpr std::array<figure_row, 11> figure_rows = {{
    {"coups",              "Coups",            &run_figures::coups},
    {"start_credit",       "Start credit",     &run_figures::start_credit},
    {"end_credit",         "End credit",       &run_figures::end_credit},
    {"highest_credit",     "Highest credit",   &run_figures::highest_credit},
    {"lowest_credit",      "Lowest credit",    &run_figures::lowest_credit},
    {"largest_drawdown",   "Largest drawdown", &run_figures::largest_drawdown},
    {"longest_lost_run",   "Longest lost run", &run_figures::longest_lost},
    {"longest_won_run",    "Longest won run",  &run_figures::longest_won},
    {"sum_set",            "Sum set",          &run_figures::sum_set},
    {"sum_returned",       "Sum returned",     &run_figures::sum_returned},
    {"pauses",             "Pauses asked for", &run_figures::pauses},
}};
// clang-format on

constexpr int title_width = 18;
constexpr int figure_width = 14;

const char* word_of(run_end end)
{
    switch (end) {
    case run_end::numbers:
        return "numbers";
    case run_end::limit:
        return "limit";
    case run_end::stop:
        return "stop";
    case run_end::error:
        return "error";
    }
    return "";
}

QJsonObject end_of(const run_figures& figures)
{
    QJsonObject object = {{"how", word_of(figures.end)}};
    if (figures.end == run_end::numbers) return object;
    object.insert("coup", figures.end_coup);
    object.insert("text", figures.end_info.error_text);
    object.insert("line", figures.end_info.error_line);
    if (figures.end != run_end::error) return object;
    object.insert("line_text", figures.end_info.line_text);
    object.insert("mark_mode", figures.end_info.mark_mode);
    object.insert("mark", figures.end_info.mark_text);
    return object;
}

QVector<player_names> players_of(const headless_game& game)
{
    QVector<player_names> players;
    for (int i = 0; i < player_count; ++i) {
        if (game.plays(static_cast<player_names>(i))) players.append(static_cast<player_names>(i));
    }
    return players;
}

} // namespace

QJsonObject run_summary::to_json(const headless_game& game)
{
    QJsonArray players;
    for (const player_names player : players_of(game)) {
        const run_figures& figures = *game.figures_of(player);
        QJsonObject object = {{"player", player + 1}, {"end", end_of(figures)}};
        for (const figure_row& row : figure_rows)
            object.insert(row.key, figures.*row.figure);
        players.append(object);
    }
    return {{"coups", game.coups()}, {"players", players}};
}

QString run_summary::to_table(const headless_game& game)
{
    const QVector<player_names> players = players_of(game);
    const auto row_of = [&](const QString& title, auto cell_of) {
        QString row = title.leftJustified(title_width);
        for (const player_names player : players) {
            row += QLatin1Char(' ') + QString(cell_of(player)).rightJustified(figure_width);
        }
        return row + QLatin1Char('\n');
    };
    QString table = row_of(
        QString(), [](player_names player) { return QStringLiteral("Player %1").arg(player + 1); });
    for (const figure_row& row : figure_rows) {
        table += row_of(QLatin1String(row.title), [&](player_names player) {
            return QString::number((*game.figures_of(player)).*row.figure);
        });
    }
    table += row_of(QStringLiteral("Ended by"), [&](player_names player) {
        return QLatin1String(word_of(game.figures_of(player)->end));
    });
    return table;
}
