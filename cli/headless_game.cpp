#include "headless_game.h"

#include <QCoreApplication>

using general_player::player_count;

static constexpr qint64 coups_between_progress = 1 << 15;

static QString message(const char* text)
{
    return QCoreApplication::translate("headless_game", text);
}

headless_game::headless_game(const play_request& asked, setting& settings)
    : request(asked)
    , game_setting(settings)
    , number_storage(settings)
    , accounting(course_keeping::last_coup)
    , patterns(settings.s_table_form())
    , cycle(table, number_storage, settings, *this)
    , seats({table, number_storage, accounting, patterns, settings}, cycle, *this)
{
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        game_setting.set_s_user_sys_file(player, request.systems[index(player)]);
        game_setting.set_s_user_out_file(player, request.protocols[index(player)]);
        table.set_credit(player, game_setting.start_capital());
        accounting.set_start_credit(player, table.credit(player));
        if (request.systems[index(player)].isEmpty()) continue;
        watched.push_back(player);
        figures[index(player)].emplace().begin(table.credit(player));
    }
}

headless_game::~headless_game() = default;

QString headless_game::prepare()
{
    if (request.seed) number_storage.set_seed(*request.seed);
    if (request.numbers.active) number_storage.set_load_files(request.numbers);
    if (!request.trace_file.isEmpty()) {
        trace = std::make_unique<run_trace>();
        if (!trace->open(request.trace_file)) {
            return message("cannot write %1: %2").arg(request.trace_file, trace->error_text());
        }
    }
    for (const player_names player : watched) {
        trace_open[index(player)] = true;
        seats.start(player);
    }
    return open_protocols();
}

QString headless_game::open_protocols()
{
    for (const player_names player : watched) {
        if (request.protocols[index(player)].isEmpty()) continue;
        table.set_protocol_flag(player, true);
        auto& output = outputs[index(player)];
        output = std::make_unique<system_output>(
            number_storage, game_setting, player, protocol_flushing::by_the_block);
        if (!output->open()) return write_fault();
    }
    return {};
}

QString headless_game::play(const progress_callback& progress)
{
    game_setting.set_state(game_state::running);
    cycle.open_bets();
    qint64 next_progress = coups_between_progress;
    while (numbers_remain()) {
        cycle.close_bets();
        if (trace) close_trace_of_ended();
        if (coup_count < next_progress) continue;
        next_progress += coups_between_progress;
        if (progress) progress(coup_count);
        if (!write_fault().isEmpty()) break;
    }
    game_setting.set_state(game_state::stopped);
    return finish();
}

bool headless_game::numbers_remain() const
{
    return request.numbers.active ? !load_ended : coup_count < request.random_count;
}

/// The first protocol that could not be written, with the reason; empty when all went well.
QString headless_game::write_fault() const
{
    for (const player_names player : watched) {
        const auto& output = outputs[index(player)];
        if (!output || !output->failed()) continue;
        return message("cannot write %1: %2")
            .arg(request.protocols[index(player)], output->error_text());
    }
    return {};
}

QString headless_game::finish()
{
    for (const auto& output : outputs) {
        if (output) output->flush();
    }
    if (trace) {
        for (const player_names player : watched) {
            if (trace_open[index(player)]) trace->write_closing(coup_count + 1, player);
        }
        if (!trace->close()) {
            return message("cannot write %1: %2").arg(request.trace_file, trace->error_text());
        }
    }
    return write_fault();
}

void headless_game::bets_closed(const player_sums& seeded)
{
    seeded_sums = seeded;
    for (const player_names player : watched)
        accounting.add_seeded(player, seeded[index(player)]);
}

void headless_game::hand_change_thrown()
{
    if (trace) {
        for (const player_names player : watched) {
            if (is_traced(player)) trace->write_hand_change(coup_count + 1, player);
        }
    }
    seats.hand_change();
}

void headless_game::start_throw(int)
{
    ++coup_count;
    cycle.throw_finished();
}

void headless_game::count_scores(const number_hit_property&, const player_sums& scores)
{
    for (int i = 0; i < player_count; ++i) {
        const auto player = static_cast<player_names>(i);
        table.add_credit(player, scores[index(player)]);
        cycle.score_counted(player, scores[index(player)]);
    }
}

void headless_game::score_entered(player_names player, qint64 score)
{
    std::optional<run_figures>& own = figures[index(player)];
    if (!own) return;
    const qint64 credit = table.credit(player);
    accounting.add_score(player, score, credit);
    own->add_coup(seeded_sums[index(player)], score, credit);
    if (outputs[index(player)]) {
        outputs[index(player)]->write_coup_line(accounting.status_of(player));
    }
    if (trace) trace_coup(player, score);
}

void headless_game::load_file_ended()
{
    load_ended = true;
    number_storage.reset_load_files();
}

/// True while a system plays or bets of it are still on the table.
bool headless_game::is_traced(player_names player) const
{
    return trace_open[index(player)];
}

void headless_game::trace_coup(player_names player, qint64 score)
{
    if (!is_traced(player)) return;
    trace->write_coup(
        coup_count,
        cycle.number(),
        player,
        {seeded_sums[index(player)], score, table.credit(player), table.imprisoned(player)});
}

/// A player whose system has ended is traced until its last bets are off the table.
void headless_game::close_trace_of_ended()
{
    for (const player_names player : watched) {
        const bool goes_on =
            seats.plays(player) || table.has_jetons(player) || !table.prison_of(player).is_empty();
        if (!is_traced(player) || goes_on) continue;
        trace_open[index(player)] = false;
        trace->write_closing(coup_count + 1, player);
    }
}

void headless_game::jeton_set(player_names player,
                              jetons::jeton_names jeton,
                              jetons::ext_jeton_names ext_jeton,
                              int amount,
                              int line)
{
    if (!trace) return;
    const bool is_announcement = jeton == jetons::NO_JETON;
    trace->add_bet(
        player, is_announcement ? jetons::name(ext_jeton) : jetons::name(jeton), amount, line);
}

void headless_game::monitor_action(player_names player, const QString& action)
{
    if (trace) trace->add_action(player, action);
}

void headless_game::bets_returned(player_names player)
{
    if (trace) trace->drop_bets(player);
}

void headless_game::message_shown(player_names player, const QStringList& lines)
{
    if (trace) trace->add_message(player, lines);
}

void headless_game::pause_wanted(player_names player)
{
    ++figures[index(player)]->pauses;
}

void headless_game::system_ended(player_names player, const sys_result_info& info)
{
    run_figures& own = *figures[index(player)];
    own.end_info = info;
    own.end_coup = coup_count;
    if (info.status != system_status::stop) {
        own.end = run_end::error;
    } else {
        own.end = info.error_text.isEmpty() ? run_end::stop : run_end::limit;
    }
}
