#ifndef SYSTEM_PLAY_SETTINGS_H
#define SYSTEM_PLAY_SETTINGS_H

#include "sys_result_info.h"
#include "system_play_options.h"

#include <QCoreApplication>

#include <array>

class system_play_steigerungstabelle;

/**
 * Reads the option list of `STMAX` and hands each option to whom it concerns: the progression
 * tables or the run of the system.
 */
class system_play_settings
{
    Q_DECLARE_TR_FUNCTIONS(system_play_settings)

public:
    system_play_settings(system_play_steigerungstabelle& tables, option_receiver& receiver);

    /// Reads the token "STMAX(...)". Status 5 when a delay begins, which does not keep the options
    /// behind it from being read; status 4 at an option that is wrong, which ends the list.
    void read_options(sys_result_info& result, const QString& text);

    /// The delay of the option I has been acted on.
    void mark_delay_done() { delay_done = true; }

    bool has_option(system_play_options::sg_rescan_options option) const
    {
        return options[static_cast<std::size_t>(option)];
    }

private:
    void read_option(sys_result_info& result, const QString& option);
    void read_delay(sys_result_info& result, const QString& option);
    void read_reset(sys_result_info& result, const QString& option);
    void read_counter_reset(sys_result_info& result, const QString& option, int name_length);
    void send_limit(system_play_options::sg_rescan_options option, const QString& text);
    void send_to_run(system_play_options::sg_rescan_options option);
    void
    set_ext_rescan_option(system_play_options::sg_rescan_options option, int table, int counter);

    system_play_steigerungstabelle& tables;
    option_receiver& receiver;
    bool delay_done = false;
    std::array<bool, system_play_options::option_count> options{};
    int counter_number = 0; // last counter of an S(...) option
    int table_number = 0;   // last table of an S(...) option
    bool list_open = false; // an S( list waits for its end
};

#endif // SYSTEM_PLAY_SETTINGS_H
