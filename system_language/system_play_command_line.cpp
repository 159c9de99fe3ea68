#include "system_play_command_line.h"

#include "language_fault.h"

namespace
{

/// One call operator per alternative of a variant.
template <typename... handlers>
struct overloaded : handlers... {
    using handlers::operator()...;
};
template <typename... handlers>
overloaded(handlers...) -> overloaded<handlers...>;

} // namespace

system_play_command_line::language_state::language_state(const play_environment& environment,
                                                         general_player::player_names player,
                                                         play_listener*& listener,
                                                         option_receiver& receiver)
    : tables(counters)
    , units(tables)
    , settings(tables, receiver)
    , arguments(environment)
    , cheton(units, arguments, listener, player)
    , playtables(cheton, environment)
    , throw_compare(environment)
    , signal_compare(environment)
    , message({counters, tables, arguments, units, playtables}, environment, listener, player)
{
}

system_play_command_line::system_play_command_line(const play_environment& environment,
                                                   general_player::player_names own_player,
                                                   play_listener*& outward,
                                                   option_receiver& run)
    : game(environment)
    , player(own_player)
    , listener(outward)
    , receiver(run)
{
    rebuild_command_line(false);
}

void system_play_command_line::rebuild_command_line(bool keep_delay_off)
{
    state = std::make_unique<language_state>(game, player, listener, receiver);
    if (keep_delay_off) state->settings.mark_delay_done();
}

void system_play_command_line::save_counter_start_values()
{
    state->counters.save_counter_start_values();
}

void system_play_command_line::end_of_round()
{
    state->arguments.end_of_round();
}

void system_play_command_line::run_command(sys_result_info& result,
                                           const statement_program& program,
                                           bool start_section)
{
    if (!program.tests.empty() && !all_tests_hold(result, program)) return;
    switch (program.end) {
    case statement_end::nothing:
        return;
    case statement_end::set:
        run_steps(result, program, start_section);
        return;
    case statement_end::restart:
        result.status = system_status::restart;
        return;
    case statement_end::restart_full:
        result.status = system_status::restart_full;
        return;
    case statement_end::stop:
        result.status = system_status::stop;
        return;
    case statement_end::message:
        state->message.run(result, program.message);
        return;
    }
}

/// The evaluation stops at the first test that fails; a failed test is no error.
bool system_play_command_line::all_tests_hold(sys_result_info& result,
                                              const statement_program& program)
{
    const auto invert = [&](bool is_inverted) {
        if (is_inverted && result.status == system_status::all_right) {
            result.check_result = !result.check_result;
        }
    };
    const overloaded run_test = {
        [&](const throw_test& test) {
            state->throw_compare.check_throw(result, test.thrown, test.target);
            invert(test.is_inverted);
        },
        [&](const argument_test& test) {
            state->arguments.check(result, test.thrown, test.number);
            invert(test.is_inverted);
        },
        [&](const count_test& test) { state->throw_compare.count_check(result, test); },
        [&](const signal_test& test) { state->signal_compare.signal_check(result, test); },
        [&](const counter_test& test) { result.check_result = state->counters.check(test); },
        [&](const table_test& test) { state->tables.check(result, test); },
        [&](const faulty_step& fault) { set_fault(result, fault.error_text, fault.mark_text); },
    };
    for (const test_step& test : program.tests) {
        std::visit(run_test, test);
        if (result.status != system_status::all_right || !result.check_result) return false;
    }
    return true;
}

void system_play_command_line::run_steps(sys_result_info& result,
                                         const statement_program& program,
                                         bool start_section)
{
    const auto count = static_cast<int>(program.steps.size());
    for (int position = 0; position < count;) {
        const set_step& step = program.steps[static_cast<std::size_t>(position)];
        position = run_step(result, program, step, start_section);
        if (result.status != system_status::all_right) return;
    }
}

/// Runs one action; returns the step that follows.
int system_play_command_line::run_step(sys_result_info& result,
                                       const statement_program& program,
                                       const set_step& step,
                                       bool start_section)
{
    int next = step.next;
    std::visit(
        overloaded{
            [&](const bet_target& target) { state->cheton.set(result, target); },
            [&](const bounded_unit_action& unit) { next = run_unit(result, unit, next); },
            [&](const counter_action& action) { state->counters.set(action); },
            [&](const playtable_action& action) { state->playtables.action(result, action); },
            [&](const signal_action& action) { run_signal(result, program, action); },
            [&](const options_action& action) {
                state->settings.read_options(result, action.token);
            },
            [&](const fill_action& action) { run_fill(result, action, start_section); },
            [&](const unknown_action& action) {
                qCDebug(language_log) << "Not implemented sz action: " << action.token;
            },
        },
        step.action);
    return next;
}

int system_play_command_line::run_unit(sys_result_info& result,
                                       const bounded_unit_action& action,
                                       int next)
{
    if (action.bound != unit_bound::none && action.limit < 1) {
        const bool is_maximum = action.bound == unit_bound::maximum;
        const QString text =
            action.limit_is_readable
                ? (is_maximum ? tr("MAX Wert muss größer als 0 sein!")
                              : tr("MIN Wert muss größer als 0 sein!"))
                : (is_maximum ? tr("S: MAX Wert ungültig!") : tr("S: MIN Wert ungültig!"));
        set_fault(result, text, action.limit_token);
        return next;
    }
    state->units.set(result, action.unit, action.bound, action.limit);
    if (result.status != system_status::bound_reached) return next;
    result.status = system_status::all_right;
    return action.next_when_touched;
}

void system_play_command_line::run_signal(sys_result_info& result,
                                          const statement_program& program,
                                          const signal_action& action)
{
    const auto& test = std::get<signal_test>(program.tests[static_cast<std::size_t>(action.test)]);
    if (test.target == signal_test::target_kind::counter) {
        state->counters.set({counter_action::kind::assign, test.counter, result.value});
        return;
    }
    state->cheton.set(result, test.jetons[static_cast<std::size_t>(result.value)]);
}

void system_play_command_line::run_fill(sys_result_info& result,
                                        const fill_action& action,
                                        bool start_section)
{
    if (start_section) {
        state->tables.fill(result, action.token);
        return;
    }
    set_fault(result,
              tr("Eine Steigerungstabellen Belegung ist nur in der Start Sektion erlaubt!"),
              action.token,
              system_status::error,
              system_status::mark_line);
}
