#include "system_sektor_check.h"

static const QLatin1String options_keyword("STMAX");

sys_result_info system_sektor_check::check_section(const QList<section_line>& section) const
{
    sys_result_info result;
    for (const section_line& line : section) {
        if (!line.text.contains(options_keyword, Qt::CaseInsensitive)) continue;
        result.status = system_status::error;
        result.error_text = tr("Bedingung STMAX in falscher Sektion gefunden!");
        result.error_line = line.number;
        result.mark_mode = system_status::mark_line;
        result.line_text = line.text;
        break;
    }
    return result;
}
