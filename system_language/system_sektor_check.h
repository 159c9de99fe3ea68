#ifndef SYSTEM_SEKTOR_CHECK_H
#define SYSTEM_SEKTOR_CHECK_H

#include "section_line.h"
#include "sys_result_info.h"

#include <QObject>

/**
 * The rule that the options of a system stand in its start section only.
 */
class system_sektor_check : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Looks for "STMAX" in the statements of one of the other sections, in any case and anywhere,
    /// within a message text too. Status `all_right`, or `error` at the first statement that holds
    /// it.
    sys_result_info check_section(const QList<section_line>& section) const;
};

#endif // SYSTEM_SEKTOR_CHECK_H
