#include "systemspiel_dialog.h"

#include "file_dialog.h"
#include "game_table.h"
#include "message_box.h"
#include "setting.h"
#include "ui_systemspiel_dialog.h"

#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QPointer>

using general_player::player_count;
using general_player::player_names;

static const char* const system_folder = "./system";
static const char* const protocol_folder = "./sysout";

static std::size_t index(player_names player)
{
    return static_cast<std::size_t>(player);
}

static bool is_player(int player)
{
    return player >= 0 && player < player_count;
}

// The settings can name a file in another way than a file dialog does.
static bool is_same_file(const QString& one, const QString& other)
{
    const auto place = [](const QString& path) {
        return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    };
    return place(one) == place(other);
}

systemspiel_dialog::systemspiel_dialog(game_table& players, setting& settings, QWidget* parent)
    : dialog_layout_control(settings, parent)
    , table(players)
    , game_setting(settings)
    , ui(std::make_unique<Ui::systemspiel_dialog>())
{
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    find_rows();
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        systems[index(player)].box->setChecked(table.account_of(player).is_system);
        protocols[index(player)].box->setChecked(table.account_of(player).system_flag);
        take_path(systems[index(player)], game_setting.s_user_sys_file(player));
        take_path(protocols[index(player)], game_setting.s_user_out_file(player));
    }
    remember_full_size();
}

systemspiel_dialog::~systemspiel_dialog() = default;

void systemspiel_dialog::find_rows()
{
    for (int i = 0; i < player_count; ++i) {
        const QString number = QString::number(i + 1);
        file_row& game = systems[static_cast<std::size_t>(i)];
        file_row& output = protocols[static_cast<std::size_t>(i)];
        game.box = findChild<QCheckBox*>("CB_system_game_activ_" + number);
        game.edit = findChild<QLineEdit*>("LE_system_game_file_" + number);
        output.box = findChild<QCheckBox*>("CB_system_out_activ_" + number);
        output.edit = findChild<QLineEdit*>("LE_system_output_file_" + number);
        connect(
            game.box, &QCheckBox::clicked, this, [this, i] { CB_system_game_activ_clicked(i); });
        connect(output.box, &QCheckBox::clicked, this, [this, i] {
            CB_system_output_activ_clicked(i);
        });
        connect(findChild<QPushButton*>("PB_reset_sys_" + number),
                &QPushButton::clicked,
                this,
                [this, i] { PB_reset_sys_clicked(i); });
        connect(findChild<QPushButton*>("PB_reset_sys_out_" + number),
                &QPushButton::clicked,
                this,
                [this, i] { PB_reset_sys_out_clicked(i); });
    }
}

// What is shown

void systemspiel_dialog::show_path(const file_row& row) const
{
    const bool has_file = !row.path.isEmpty();
    row.edit->setText(has_file ? QFileInfo(row.path).fileName()
                               : tr("Doppelklick links zur Auswahl"));
    row.edit->setToolTip(row.path);
    row.edit->setCursorPosition(0); // a long name is seen from its beginning
    QPalette colours = palette();
    if (!has_file) colours.setBrush(QPalette::Text, colours.brush(QPalette::PlaceholderText));
    row.edit->setPalette(colours);
}

void systemspiel_dialog::take_path(file_row& row, const QString& path) const
{
    row.path = path;
    show_path(row);
}

void systemspiel_dialog::tell(const QString& text)
{
    is_busy = true;
    message_box::tell(this, tr("Zarvello Info"), text);
    is_busy = false;
}

void systemspiel_dialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        for (const file_rows* rows : {&systems, &protocols}) {
            for (const file_row& row : *rows)
                show_path(row);
        }
    }
    dialog_layout_control::changeEvent(event);
}

// Choosing

/// The bets of a running system are no bets of a human.
bool systemspiel_dialog::plays_by_hand(player_names player) const
{
    return !table.account_of(player).is_system && table.has_jetons(player);
}

void systemspiel_dialog::set_system_game_file(player_names player)
{
    if (is_busy || !is_player(player)) return;
    is_busy = true;
    const QString path = file_dialog::open_file(
        this, {tr("Öffnen"), QString::fromLatin1(system_folder), tr("Systemspieldateien (*.syf)")});
    is_busy = false;
    offer_system(player, path);
}

void systemspiel_dialog::offer_system(player_names player, const QString& path)
{
    if (is_busy || !is_player(player)) return;
    if (path.isEmpty() || !QFileInfo::exists(path)) return;
    take_path(systems[index(player)], path);
    systems[index(player)].box->setChecked(true);
    CB_system_game_activ_clicked(player);
}

void systemspiel_dialog::set_system_output_file(player_names player)
{
    if (is_busy || !is_player(player)) return;
    QDir().mkpath(QString::fromLatin1(protocol_folder));
    const QString proposal =
        QStringLiteral("%1/syspr_%2_%3.out")
            .arg(QString::fromLatin1(protocol_folder))
            .arg(player + 1)
            .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmm")));
    is_busy = true;
    const QString path = file_dialog::save_file(
        this, {tr("Öffnen oder Neu"), proposal, tr("Systemprotokolldatei (*.out)"), false});
    is_busy = false;
    if (path.isEmpty()) return;
    take_path(protocols[index(player)], path);
    if (systems[index(player)].box->isChecked()) protocols[index(player)].box->setChecked(true);
}

void systemspiel_dialog::PB_reset_sys_clicked(int player)
{
    if (is_busy || !is_player(player)) return;
    file_row& game = systems[static_cast<std::size_t>(player)];
    game.box->setChecked(false);
    take_path(game, {});
    PB_reset_sys_out_clicked(player);
}

void systemspiel_dialog::PB_reset_sys_out_clicked(int player)
{
    if (is_busy || !is_player(player)) return;
    file_row& output = protocols[static_cast<std::size_t>(player)];
    output.box->setChecked(false);
    take_path(output, {});
}

void systemspiel_dialog::CB_system_game_activ_clicked(int player)
{
    if (!is_player(player)) return;
    const file_row& game = systems[static_cast<std::size_t>(player)];
    if (!game.box->isChecked()) {
        protocols[static_cast<std::size_t>(player)].box->setChecked(false);
    } else if (game.path.isEmpty()) {
        game.box->setChecked(false);
        tell(tr("Bitte zuerst die Systemspieldatei wählen!"));
    } else if (plays_by_hand(static_cast<player_names>(player))) {
        game.box->setChecked(false);
        tell(tr("Aktivierung nicht möglich, da ein normales Spiel für diesen Spieler aktiv "
                "(Jetons gesetzt) ist!"));
    }
}

void systemspiel_dialog::CB_system_output_activ_clicked(int player)
{
    if (!is_player(player)) return;
    const file_row& output = protocols[static_cast<std::size_t>(player)];
    if (!output.box->isChecked()) return;
    if (output.path.isEmpty()) {
        output.box->setChecked(false);
        tell(tr("Bitte zuerst die Systemprotokolldatei wählen!"));
    } else if (!systems[static_cast<std::size_t>(player)].box->isChecked()) {
        output.box->setChecked(false);
        tell(tr("Bitte zuerst die Systemspieldatei aktivieren!"));
    }
}

// Its protocol is written on, so that box stays as it is.
void systemspiel_dialog::system_game_ended(player_names player)
{
    if (is_player(player)) systems[index(player)].box->setChecked(false);
}

// Accepting

// A first round that is played at once can show boxes: even the dialog can be gone behind it.
void systemspiel_dialog::on_buttonBox_accepted()
{
    if (is_busy) return;
    is_busy = true;
    const QPointer<systemspiel_dialog> alive(this);
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        apply_system(player);
        if (!alive) return;
        apply_protocol(player);
        if (!alive) return;
    }
    emit display_player_status();
    if (!alive) return;
    is_busy = false;
    accept();
}

void systemspiel_dialog::apply_system(player_names player)
{
    const file_row& game = systems[index(player)];
    const bool is_running = table.account_of(player).is_system;
    if (!game.box->isChecked()) {
        if (is_running) stop_system(player);
        return;
    }
    if (is_running) {
        if (is_same_file(game.path, game_setting.s_user_sys_file(player))) return;
        if (!change_is_wanted(player)) return;
        if (!game.box->isChecked()) return; // it has ended under the question
        emit system_game_stop(player);
    }
    start_system(player);
}

bool systemspiel_dialog::change_is_wanted(player_names player)
{
    return message_box::ask(this,
                            tr("Systemspieldatei wurde geändert"),
                            tr("Die Systemspieldatei für Spieler%1 wurde geändert - Änderung "
                               "beibehalten?")
                                .arg(player + 1));
}

void systemspiel_dialog::start_system(player_names player)
{
    game_setting.set_s_user_sys_file(player, systems[index(player)].path);
    table.make_system_player(player);
    emit system_game_start(player);
}

void systemspiel_dialog::stop_system(player_names player)
{
    emit system_game_stop(player);
    if (table.account_of(player).is_system) table.make_normal_player(player);
}

void systemspiel_dialog::apply_protocol(player_names player)
{
    const file_row& output = protocols[index(player)];
    const bool is_running = table.account_of(player).system_flag;
    if (!output.box->isChecked()) {
        if (is_running) stop_protocol(player);
        return;
    }
    if (is_running) {
        if (is_same_file(output.path, game_setting.s_user_out_file(player))) return;
        stop_protocol(player);
    }
    start_protocol(player);
}

void systemspiel_dialog::start_protocol(player_names player)
{
    game_setting.set_s_user_out_file(player, protocols[index(player)].path);
    table.set_protocol_flag(player, true);
    emit system_out_start(player);
}

void systemspiel_dialog::stop_protocol(player_names player)
{
    emit system_out_stop(player);
    table.set_protocol_flag(player, false);
}
