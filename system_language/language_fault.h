#ifndef LANGUAGE_FAULT_H
#define LANGUAGE_FAULT_H

#include "sys_result_info.h"

#include <QLoggingCategory>

/// The debug log of the language: what is accepted in silence and an author hardly means.
Q_DECLARE_LOGGING_CATEGORY(language_log)

/// Writes an error into a result, by default one whose piece of text is underlined.
inline void set_fault(sys_result_info& result,
                      const QString& error_text,
                      const QString& mark_text,
                      int status = system_status::error,
                      int mark_mode = system_status::mark_token)
{
    result.status = status;
    result.error_text = error_text;
    result.mark_text = mark_text;
    result.mark_mode = mark_mode;
}

/// A result as it stands in front of each statement. Only what a fault has filled is emptied:
/// this is on the path of every coup.
inline void begin_statement(sys_result_info& result)
{
    result.status = system_status::all_right;
    result.mark_mode = system_status::mark_token;
    result.check_result = false;
    if (!result.error_text.isEmpty()) result.error_text.clear();
    if (!result.mark_text.isEmpty()) result.mark_text.clear();
}

#endif // LANGUAGE_FAULT_H
