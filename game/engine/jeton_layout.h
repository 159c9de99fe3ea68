#ifndef JETON_LAYOUT_H
#define JETON_LAYOUT_H

#include "jetons.h"

#include <array>
#include <cstdint>

/**
 * A set of places of the table: one bit for each of the 163 places, so that "which of my
 * jetons are hit" is three machine words instead of a walk over the table.
 */
class place_set
{
public:
    constexpr bool contains(int place) const
    {
        return (words[word_of(place)] >> bit_of(place) & 1U) != 0;
    }
    constexpr void insert(int place) { words[word_of(place)] |= std::uint64_t(1) << bit_of(place); }
    constexpr void remove(int place)
    {
        words[word_of(place)] &= ~(std::uint64_t(1) << bit_of(place));
    }
    constexpr void clear() { words = {}; }
    constexpr bool is_empty() const { return (words[0] | words[1] | words[2]) == 0; }

    /// The places that are in both sets.
    constexpr place_set common_with(const place_set& other) const
    {
        place_set result;
        for (std::size_t i = 0; i < words.size(); ++i)
            result.words[i] = words[i] & other.words[i];
        return result;
    }

    /// The places of this set that are not in the other.
    constexpr place_set without(const place_set& other) const
    {
        place_set result;
        for (std::size_t i = 0; i < words.size(); ++i)
            result.words[i] = words[i] & ~other.words[i];
        return result;
    }

    /// Calls visit(place) for every place, in ascending order.
    template <typename visitor>
    void for_each(visitor visit) const
    {
        for (std::size_t i = 0; i < words.size(); ++i) {
            for (std::uint64_t rest = words[i]; rest != 0; rest &= rest - 1) {
                visit(static_cast<int>(i) * word_bits + lowest_bit(rest));
            }
        }
    }

private:
    static constexpr int word_bits = 64;

    static constexpr std::size_t word_of(int place)
    {
        return static_cast<std::size_t>(place) / word_bits;
    }
    static constexpr int bit_of(int place) { return place % word_bits; }
    static int lowest_bit(std::uint64_t word)
    {
        return static_cast<int>(qCountTrailingZeroBits(quint64(word)));
    }

    std::array<std::uint64_t, 3> words{};
};

/// What lies on one place: `count` pieces of `value` each.
struct jeton_stack {
    int value = 0;
    int count = 0;

    qint64 stake() const { return static_cast<qint64>(value) * count; }
};

/// The jetons of one player, place by place.
class jeton_layout
{
public:
    bool is_empty() const { return taken.is_empty(); }
    bool lies(int place) const { return taken.contains(place); }

    /// The places on which something lies.
    const place_set& places() const { return taken; }

    /// What lies on a place; only meaningful where `lies()`.
    const jeton_stack& at(int place) const { return stacks[static_cast<std::size_t>(place)]; }
    jeton_stack& at(int place) { return stacks[static_cast<std::size_t>(place)]; }

    /// Puts a stack on a place, over what lay there.
    void put(int place, const jeton_stack& stack)
    {
        taken.insert(place);
        at(place) = stack;
    }

    void remove(int place) { taken.remove(place); }
    void remove(const place_set& places) { taken = taken.without(places); }
    void clear() { taken.clear(); }

    /// Takes over the stacks of another layout; only what lies there is copied.
    void copy_from(const jeton_layout& other)
    {
        taken = other.taken;
        taken.for_each([&](int place) { at(place) = other.at(place); });
    }

    /// Worth of all stacks of a set of places.
    qint64 stake_on(const place_set& places) const
    {
        qint64 sum = 0;
        places.for_each([&](int place) { sum += at(place).stake(); });
        return sum;
    }

private:
    place_set taken;
    std::array<jeton_stack, jetons::LAST_JN> stacks{};
};

#endif // JETON_LAYOUT_H
