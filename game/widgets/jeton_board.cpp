#include "jeton_board.h"

#include "players_control.h"
#include "setting.h"
#include "settings_rules.h"

using general_player::NO_PLAYER;

static constexpr int even_chances = 6;

/// Takes a jeton out of sight; it may be on the stack, so it dies later.
static void put_away(QPointer<jeton_button>& jeton)
{
    if (!jeton) return;
    jeton->hide();
    jeton->deleteLater();
    jeton = nullptr;
}

template <typename visitor>
void jeton_board::for_each_jeton(visitor visit) const
{
    for (const player_jetons& each : shown) {
        each.lying.for_each([&](int place) {
            jeton_button* const jeton = each.on_table[static_cast<std::size_t>(place)];
            if (jeton) visit(jeton);
        });
        for (const QPointer<jeton_button>& jeton : each.in_prison) {
            if (jeton) visit(jeton.data());
        }
    }
}

jeton_board::jeton_board(QWidget* table_window, players_control& accounts, const setting& settings)
    : QObject(table_window)
    , window(table_window)
    , players(accounts)
    , game_setting(settings)
    , form(settings.form())
{
    using sender = players_control;
    connect(&players, &sender::player_credit_seeded_update, this, &jeton_board::refresh);
    connect(&players, &sender::player_changed, this, &jeton_board::raise_active_player);
    connect(&players, &sender::change_play_statistic_view, this, &jeton_board::raise_jetons_of);
    connect(&players, &sender::recreate_prison_jetons, this, &jeton_board::recreate_prison_jetons);
}

jeton_board::~jeton_board()
{
    for_each_jeton([](jeton_button* jeton) { jeton->deleteLater(); });
}

jeton_button* jeton_board::jeton(player_names player, jetons::jeton_names place) const
{
    if (player == NO_PLAYER) return nullptr;
    const player_jetons& own = of(player);
    if (place < jetons::LAST_JN) return own.on_table[static_cast<std::size_t>(place)];
    if (place < jetons::PRIS_EC01) return nullptr;
    return own.in_prison[static_cast<std::size_t>(place - jetons::PRIS_EC01)];
}

void jeton_board::set_reduction(double new_reduction)
{
    reduction = new_reduction;
    form = game_setting.form();
    for_each_jeton([this](jeton_button* jeton) { jeton->place_on(form, reduction); });
}

void jeton_board::refresh(player_names player)
{
    if (player == NO_PLAYER) return;
    player_jetons& own = of(player);
    place_set gone = own.lying;
    const QVector<jeton_info> lying = players.table().jetons_of(player);
    for (const jeton_info& info : lying) {
        gone.remove(info.jeton);
        show_jeton(info);
    }
    own.lying = own.lying.without(gone);
    gone.for_each([&](int place) { put_away(own.on_table[static_cast<std::size_t>(place)]); });
    refresh_prison(player);
}

void jeton_board::refresh_all()
{
    for (std::size_t i = 0; i < player_count; ++i)
        refresh(static_cast<player_names>(i));
    set_reduction(reduction);
}

void jeton_board::show_jeton(const jeton_info& info)
{
    QPointer<jeton_button>& jeton = of(info.player).on_table[static_cast<std::size_t>(info.jeton)];
    if (jeton) {
        jeton->set_stack(info.value, info.count);
    } else {
        jeton = lay_jeton(info);
        of(info.player).lying.insert(info.jeton);
    }
}

jeton_button* jeton_board::lay_jeton(const jeton_info& info)
{
    auto* const jeton = new jeton_button(info, window);
    jeton->place_on(form, reduction);
    connect(jeton, &jeton_button::request_increaseJeton, this, [this, jeton](jeton_info piece) {
        increase(jeton, piece);
    });
    connect(jeton, &jeton_button::request_decreaseJeton, this, [this, jeton](jeton_info piece) {
        decrease(jeton, piece);
    });
    jeton->show();
    return jeton;
}

/// A press on the jeton of somebody else changes the active player's jeton by one piece only.
void jeton_board::stop_foreign_jeton(jeton_button* pressed) const
{
    if (pressed->info().player != players.table().active_player()) pressed->stop_repeat();
}

void jeton_board::increase(jeton_button* pressed, const jeton_info& info)
{
    stop_foreign_jeton(pressed);
    players.increase_jeton_value(info);
}

void jeton_board::decrease(jeton_button* pressed, const jeton_info& info)
{
    stop_foreign_jeton(pressed);
    players.decrease_jeton_value(info);
}

void jeton_board::raise_active_player()
{
    raise_jetons_of(players.table().active_player());
}

void jeton_board::raise_jetons_of(player_names player)
{
    if (player == NO_PLAYER) return;
    player_jetons& own = of(player);
    own.lying.for_each([&](int place) {
        if (own.on_table[static_cast<std::size_t>(place)])
            own.on_table[static_cast<std::size_t>(place)]->raise();
    });
}

int jeton_board::prison_piece_value(player_names player) const
{
    return piece_value(game_setting, players.table().account_of(player).is_system);
}

void jeton_board::create_prison_jetons(player_names player)
{
    if (player == NO_PLAYER) return;
    for (std::size_t i = 0; i < prison_count; ++i) {
        QPointer<jeton_button>& jeton = of(player).in_prison[i];
        put_away(jeton);
        const auto place =
            static_cast<jetons::jeton_names>(jetons::PRIS_EC01 + static_cast<int>(i));
        jeton = new jeton_button({player, place, prison_piece_value(player), 1}, window);
        jeton->setAttribute(Qt::WA_TransparentForMouseEvents);
        jeton->hide();
        jeton->place_on(form, reduction);
    }
    refresh_prison(player);
}

void jeton_board::remove_prison_jetons()
{
    for (player_jetons& each : shown) {
        for (QPointer<jeton_button>& jeton : each.in_prison)
            put_away(jeton);
    }
}

void jeton_board::recreate_prison_jetons(player_names player)
{
    if (game_setting.state() == game_state::stopped) return;
    create_prison_jetons(player);
}

void jeton_board::refresh_prison(player_names player)
{
    const prison_record& prison = players.table().prison_of(player);
    const unsigned sits = prison.in_prison | prison.in_double_prison << even_chances;
    for (std::size_t i = 0; i < prison_count; ++i) {
        jeton_button* const jeton = of(player).in_prison[i];
        if (jeton) jeton->setVisible((sits >> i & 1U) != 0);
    }
}
