#include "setting.h"
#include "system_pattern.h"

const system_pattern& system_pattern::instance()
{
    static const system_pattern patterns(setting::instance().s_table_form());
    return patterns;
}
