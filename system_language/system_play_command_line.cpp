#include "system_play_command_line.h"

#include "language_fault.h"

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

/// Runs a test: one call operator per kind of test.
struct system_play_command_line::test_runner {
    language_state& state;
    sys_result_info& result;

    void operator()(const throw_test& test)
    {
        state.throw_compare.check_throw(result, test.thrown, test.target);
        invert(test.is_inverted);
    }
    void operator()(const argument_test& test)
    {
        state.arguments.check(result, test.thrown, test.number);
        invert(test.is_inverted);
    }
    void operator()(const count_test& test) { state.throw_compare.count_check(result, test); }
    void operator()(const signal_test& test) { state.signal_compare.signal_check(result, test); }
    void operator()(const counter_test& test) { result.check_result = state.counters.check(test); }
    void operator()(const table_test& test) { state.tables.check(result, test); }
    void operator()(const faulty_step& fault)
    {
        set_fault(result, fault.error_text, fault.mark_text);
    }

    void invert(bool is_inverted)
    {
        if (is_inverted && result.status == system_status::all_right) {
            result.check_result = !result.check_result;
        }
    }
};

/// The evaluation stops at the first test that fails; a failed test is no error.
bool system_play_command_line::all_tests_hold(sys_result_info& result,
                                              const statement_program& program)
{
    test_runner runner{*state, result};
    for (const test_step& test : program.tests) {
        std::visit(runner, test);
        if (result.status != system_status::all_right || !result.check_result) return false;
    }
    return true;
}

/// Runs an action: one call operator per kind of action. Each returns the step that follows.
struct system_play_command_line::step_runner {
    language_state& state;
    sys_result_info& result;
    const statement_program& program;
    bool start_section;
    int next;

    int operator()(const bet_target& target)
    {
        state.cheton.set(result, target);
        return next;
    }
    int operator()(const counter_action& action)
    {
        state.counters.set(action);
        return next;
    }
    int operator()(const playtable_action& action)
    {
        state.playtables.action(result, action);
        return next;
    }
    int operator()(const options_action& action)
    {
        state.settings.read_options(result, action.token);
        return next;
    }
    int operator()(const unknown_action& action)
    {
        qCDebug(language_log).noquote().nospace() << "Not implemented sz action: " << action.token;
        return next;
    }
    int operator()(const bounded_unit_action& action);
    int operator()(const signal_action& action);
    int operator()(const fill_action& action);
};

void system_play_command_line::run_steps(sys_result_info& result,
                                         const statement_program& program,
                                         bool start_section)
{
    const auto count = static_cast<int>(program.steps.size());
    for (int position = 0; position < count;) {
        const set_step& step = program.steps[static_cast<std::size_t>(position)];
        step_runner runner{*state, result, program, start_section, step.next};
        position = std::visit(runner, step.action);
        if (result.status != system_status::all_right) return;
    }
}

int system_play_command_line::step_runner::operator()(const bounded_unit_action& action)
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
    state.units.set(result, action.unit, action.bound, action.limit);
    if (result.status != system_status::bound_reached) return next;
    result.status = system_status::all_right;
    return action.next_when_touched;
}

int system_play_command_line::step_runner::operator()(const signal_action& action)
{
    const auto& test = std::get<signal_test>(program.tests[static_cast<std::size_t>(action.test)]);
    if (test.target == signal_test::target_kind::counter) {
        state.counters.set({counter_action::kind::assign, test.counter, result.value});
    } else {
        state.cheton.set(result, test.jetons[static_cast<std::size_t>(result.value)]);
    }
    return next;
}

int system_play_command_line::step_runner::operator()(const fill_action& action)
{
    if (start_section) {
        state.tables.fill(result, action.token);
    } else {
        set_fault(result,
                  tr("Eine Steigerungstabellen Belegung ist nur in der Start Sektion erlaubt!"),
                  action.token,
                  system_status::error,
                  system_status::mark_line);
    }
    return next;
}
