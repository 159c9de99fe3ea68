#ifndef PAST_THROW_H
#define PAST_THROW_H

#include "sys_result_info.h"

#include <QCoreApplication>

class number_history;

/**
 * The throw that a test names: `GZ` is the last number, `VZ` the one before it, and `V0` to `V9`
 * go on backward from there, so that `V9` is the twelfth number counted from the last.
 */
class past_throw
{
    Q_DECLARE_TR_FUNCTIONS(past_throw)

public:
    past_throw() = default;
    explicit past_throw(const QString& token);

    /// Status 4 when the token names no throw.
    bool check_token(sys_result_info& result) const;

    /// The number, or -1 when it has not fallen yet.
    int number_in(const number_history& history) const;

    const QString& token() const { return throw_token; }

private:
    enum class fault : quint8 { none, no_throw_word, no_number };

    QString throw_token;
    int numbers_back = 0; // 0 is the last number
    fault reason = fault::no_throw_word;
};

#endif // PAST_THROW_H
