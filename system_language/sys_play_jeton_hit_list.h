#ifndef SYS_PLAY_JETON_HIT_LIST_H
#define SYS_PLAY_JETON_HIT_LIST_H

#include "game_types.h"
#include "number_hit_property.h"
#include "sys_play_operator_check.h"

#include <array>

/// The jeton types that a signal may ask for, and what a type that it may not ask for is.
enum class signal_type : quint8 { pl, ec, dz, kl, tp, ts, ca, ch, fi, not_allowed };

/// Which entry of the hit list a signal takes.
struct signal_selector {
    enum class kind : quint8 { most_hit, least_hit, compared };

    kind what = kind::compared;
    sys_play_operator_check condition; ///< for `compared`
};

/**
 * Hits of the jetons of one type, counted by the number in the jeton's name. Place 0 names no
 * jeton for all types but pleins and finals, but takes part in every choice.
 */
class sys_play_jeton_hit_list
{
    Q_DECLARE_TR_FUNCTIONS(sys_play_jeton_hit_list)

public:
    /// The type that a word names, without regard to case.
    static signal_type read_type(const QString& type_token);

    /// Empties the list and sizes it for a type. @param type  anything but `not_allowed`
    void prepare(signal_type type, table_form form);

    /// Counts what a number hits of the type.
    void add_number(const number_hit_property& property);

    /// Writes `check_result` and, when it is true, the chosen index into `value`. Of equal counts
    /// the lowest index is chosen.
    void evaluate(sys_result_info& result, const signal_selector& selector) const;

private:
    static constexpr std::size_t largest_size = 64;

    void add_jeton(int jeton)
    {
        const auto index = static_cast<std::size_t>(jeton - first_jeton);
        if (index < size) ++hits[index];
    }

    template <std::size_t places>
    void add_jetons(const int (&list)[places]);

    signal_type counted_type = signal_type::pl;
    std::size_t size = 0;
    int first_jeton = 0; // the value that stands for index 0
    std::array<int, largest_size> hits{};
};

#endif // SYS_PLAY_JETON_HIT_LIST_H
