#ifndef SYS_PLAY_OPERATOR_CHECK_H
#define SYS_PLAY_OPERATOR_CHECK_H

#include "sys_result_info.h"

#include <QCoreApplication>
#include <QStringView>

/// The compare operators of the language.
enum class compare_operator : quint8 {
    equal,
    less,
    less_or_equal,
    greater,
    greater_or_equal,
    unequal
};

/// An operator found at the start of a text.
struct operator_at_start {
    bool found = false;
    compare_operator sign = compare_operator::equal;
    int length = 0; ///< characters that the operator takes
};

/// Looks for an operator: the first two characters, then the first one.
operator_at_start read_operator(QStringView text);

inline bool compare(qint64 left, compare_operator sign, qint64 right)
{
    switch (sign) {
    case compare_operator::equal:
        return left == right;
    case compare_operator::less:
        return left < right;
    case compare_operator::less_or_equal:
        return left <= right;
    case compare_operator::greater:
        return left > right;
    case compare_operator::greater_or_equal:
        return left >= right;
    case compare_operator::unequal:
        return left != right;
    }
    return false;
}

/**
 * The condition of a count, such as ">=3": read once from its text, checked against many
 * values. A text that is no condition is told at each check.
 */
class sys_play_operator_check
{
    Q_DECLARE_TR_FUNCTIONS(sys_play_operator_check)

public:
    sys_play_operator_check() = default;
    explicit sys_play_operator_check(const QString& text);

    /// Writes `check_result`. Status 4 when the operator is unknown or the number below 1.
    void check(sys_result_info& result, int value) const
    {
        if (is_valid) {
            result.check_result = compare(value, sign, right);
            return;
        }
        report_fault(result);
    }

private:
    void report_fault(sys_result_info& result) const;

    QString selector_text;
    bool operator_found = false;
    bool is_valid = false;
    compare_operator sign = compare_operator::equal;
    int right = 0;
};

#endif // SYS_PLAY_OPERATOR_CHECK_H
