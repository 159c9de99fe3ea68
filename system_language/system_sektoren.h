#ifndef SYSTEM_SEKTOREN_H
#define SYSTEM_SEKTOREN_H

#include "line_sieve.h"
#include "statement_split.h"

#include <QObject>

/**
 * The four sections of a system file: checks the lines of the file and keeps their statements.
 */
class system_sektoren : public QObject
{
    Q_OBJECT

public:
    explicit system_sektoren(const system_pattern& patterns, QObject* parent = nullptr);

    /// Checks the lines and, when no fault is found, sorts their statements into the sections;
    /// with a fault all sections are empty.
    /// @param table_type  0 French, any other value American
    /// @return status `all_right`, or `error` with everything that the error box shows
    sys_result_info split_system_file(const QList<section_line>& lines, int table_type);

    /// The statements of a section in the order of the file, each with its final ';'.
    const QList<section_line>& section_st() const { return sections.section_st; }
    const QList<section_line>& section_gw() const { return sections.section_gw; }
    const QList<section_line>& section_ve() const { return sections.section_ve; }
    const QList<section_line>& section_al() const { return sections.section_al; }

protected:
    void clear_sections();

private:
    line_sieve sieve;
    QStringList section_patterns;
    system_sections sections;
};

#endif // SYSTEM_SEKTOREN_H
