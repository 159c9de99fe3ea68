#include "systemgame_monitor.h"

#include "game_table.h"
#include "pictures.h"
#include "ui_systemgame_monitor.h"

#include <QEvent>
#include <QScreen>
#include <QShowEvent>

#include <algorithm>

static constexpr int row_padding = 4;   // px above and below the text of a row, together
static constexpr int window_gap = 8;    // px between the table and a monitor
static constexpr int cascade_step = 32; // px from the monitor of a player to that of the next

systemgame_monitor::systemgame_monitor(general_player::player_names monitored_player,
                                       const game_table& players,
                                       const setting& settings,
                                       QWidget* parent)
    : dialog_layout_control(settings, parent)
    , player(monitored_player)
    , table(players)
    , ui(std::make_unique<Ui::systemgame_monitor>())
{
    init_pictures();
    ui->setupUi(this);
    setObjectName(QStringLiteral("systemgame_monitor_%1").arg(player + 1));
    // Stays above the table, and leaves the keys of the table's menus working.
    setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint);
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    show_player_name();
    remember_full_size();
}

systemgame_monitor::~systemgame_monitor() = default;

void systemgame_monitor::show_player_name()
{
    ui->LB_player_name->setText(tr("Spieler %1").arg(player + 1));
}

void systemgame_monitor::updatePlayerStatus()
{
    const bool is_system = table.account_of(player).is_system;
    const QString picture = is_system ? QStringLiteral(":/led/grafik/led/led_green.png")
                                      : QStringLiteral(":/led/grafik/led/led_red.png");
    ui->LB_system_led->setPixmap(scaled_picture(picture, reduction(), devicePixelRatioF()));
    ui->PB_number_selection->setEnabled(is_system);
}

// The scaling comes first here, since the lamp is drawn for the new scale.
void systemgame_monitor::modify_window_based_on_scale()
{
    dialog_layout_control::modify_window_based_on_scale();
    updatePlayerStatus();
    const QFontMetrics text(ui->TW_system_actions->font());
    ui->TW_system_actions->verticalHeader()->setDefaultSectionSize(text.height() + row_padding);
}

// The coup

void systemgame_monitor::display_selected_manual_number(const QString& number)
{
    ui->LE_selected_number->setText(number);
    ui->PB_play_number->setEnabled(!number.isEmpty());
}

void systemgame_monitor::wheel_direct_started(int /*number*/)
{
    ui->LE_last_number->setText(ui->LE_selected_number->text());
    display_selected_manual_number({});
    ui->TW_system_actions->setRowCount(0);
}

void systemgame_monitor::addSet_to_display(general_player::player_names p_name,
                                           int einheiten,
                                           const QString& set)
{
    if (p_name != player) return;
    append_row(QStringLiteral("%1 / %2").arg(QString::number(einheiten), set));
}

void systemgame_monitor::addAction_to_display(general_player::player_names p_name,
                                              const QString& action)
{
    if (p_name != player) return;
    append_row(QStringLiteral("A: ") + action);
}

void systemgame_monitor::append_row(const QString& text)
{
    QTableWidget& rows = *ui->TW_system_actions;
    if (rows.rowCount() >= row_limit) rows.removeRow(0);
    auto* const item = new QTableWidgetItem(text);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    const int row = rows.rowCount();
    rows.insertRow(row);
    rows.setItem(row, 0, item);
}

void systemgame_monitor::on_PB_number_selection_clicked()
{
    emit select_number_by_user_trigger();
}

void systemgame_monitor::on_PB_play_number_clicked()
{
    emit doubleMouseEventTriggerd();
}

// The window

void systemgame_monitor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        show_player_name();
    }
    dialog_layout_control::changeEvent(event);
}

void systemgame_monitor::showEvent(QShowEvent* event)
{
    dialog_layout_control::showEvent(event);
    if (event->spontaneous()) return;
    place_beside_parent();
    updatePlayerStatus();
    emit visibility_changed(true);
}

void systemgame_monitor::hideEvent(QHideEvent* event)
{
    dialog_layout_control::hideEvent(event);
    if (!event->spontaneous()) emit visibility_changed(false);
}

/// At the right of the table as far as the screen reaches, in steps, so that none of four
/// monitors hides another one.
void systemgame_monitor::place_beside_parent()
{
    if (is_placed || testAttribute(Qt::WA_Moved) || !parentWidget()) return;
    is_placed = true;
    const QRect frame = parentWidget()->window()->frameGeometry();
    const QRect room = parentWidget()->window()->screen()->availableGeometry();
    const int all_steps = (general_player::player_count - 1) * cascade_step;
    const int x = std::min(frame.right() + window_gap, room.right() - width() - all_steps);
    const int y = std::min(frame.top(), room.bottom() - height() - all_steps);
    const QPoint corner(std::max(x, room.left()), std::max(y, room.top()));
    move(corner + QPoint(player, player) * cascade_step);
}
