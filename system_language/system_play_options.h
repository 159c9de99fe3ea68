#ifndef SYSTEM_PLAY_OPTIONS_H
#define SYSTEM_PLAY_OPTIONS_H

#include <QObject>

/// The options that a system sets with `STMAX`.
namespace system_play_options
{
Q_NAMESPACE

// clang-format off
enum sg_rescan_options {
    option_delay            = 0,  ///< I(n): wait n coups
    option_overflow_restart = 1,  ///< A: a table that overflows restarts the system
    option_overflow_wrap    = 2,  ///< S: a table that overflows goes back to its first value
    option_overflow_reset   = 3,  ///< S(STt(COnn)): as 2, and counters go back to their start
    option_hand_change      = 4,  ///< H: a hand change resets the system
    option_overflow_stop    = 5,  ///< E: a table that overflows stops the system
    option_loss_limit       = 6,  ///< V(n)
    option_gain_limit       = 7,  ///< G(n)
    option_coup_limit       = 8,  ///< C(n)
    option_pause            = 10, ///< P: a limit pauses the game as well
    option_next_load_file   = 11, ///< R: at a limit take the next load file and restart
    option_limit_restart    = 12  ///< N: at a limit restart instead of stopping
};
// clang-format on
Q_ENUM_NS(sg_rescan_options)

/// One more than the highest option.
constexpr int option_count = 13;

} // namespace system_play_options

/// Where the options of `STMAX` go that concern the run of the whole system.
class option_receiver
{
public:
    virtual ~option_receiver() = default;

    /// Rounds that the system still waits behind this one.
    virtual void sys_ignore_counter(int ignore_counter) = 0;

    virtual void set_rescan_option(system_play_options::sg_rescan_options rescan_opt,
                                   qlonglong rescan_opt_value) = 0;
};

#endif // SYSTEM_PLAY_OPTIONS_H
