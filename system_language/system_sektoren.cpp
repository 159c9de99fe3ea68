#include "system_sektoren.h"

#include "system_pattern.h"

system_sektoren::system_sektoren(const system_pattern& patterns, QObject* parent)
    : QObject(parent)
    , sieve(patterns)
    , section_patterns(patterns.get_section_patterns())
{
}

sys_result_info system_sektoren::split_system_file(const QList<section_line>& lines, int table_type)
{
    clear_sections();
    const sys_result_info result = sieve.check_lines(lines, table_type);
    if (result.status == system_status::all_right)
        sections = split_statements(lines, section_patterns);
    return result;
}

void system_sektoren::clear_sections()
{
    sections = {};
}
