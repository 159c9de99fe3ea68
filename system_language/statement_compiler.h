#ifndef STATEMENT_COMPILER_H
#define STATEMENT_COMPILER_H

#include "sys_result_info.h"
#include "token_taker.h"

#include <QString>

/**
 * Turns the text of one statement into its token text: the tokens in the order of the source,
 * joined by '|', free of blanks and checked for their order.
 * It knows neither file nor section; line and source text of an error are the caller's.
 */
class statement_compiler
{
public:
    explicit statement_compiler(const system_pattern& patterns);

    /// Compiles one statement, its ';' included. A text that holds a '|' is compiled already and
    /// must not come here.
    /// On `all_right` `result.command_text` is the token text. The only other status is `error`,
    /// with `error_text`, `mark_mode` and, in `mark_text`, the piece at fault: the rest of the
    /// statement from the fault on, or a single token. `command_text` is then of no use.
    /// The remaining fields stay as they are. The length of a chain of tests is not limited. The
    /// The text may well be a field of the result.
    void compile_statement(sys_result_info& result, const QString& text) const;

private:
    token_taker taker;
};

#endif // STATEMENT_COMPILER_H
