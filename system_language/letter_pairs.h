#ifndef LETTER_PAIRS_H
#define LETTER_PAIRS_H

#include <QStringView>

#include <bitset>

/**
 * The pairs of neighbouring letters A to Z in a text, case ignored.
 * A quick test in front of a search that ignores case: what holds a word holds all its pairs.
 */
class letter_pairs
{
public:
    explicit letter_pairs(QStringView text);

    /// False when the text can't hold `other` as a word; true says nothing. A text with a letter
    /// outside of ASCII that equals one of A to Z without regard to case holds every pair.
    bool hold(const letter_pairs& other) const { return (pairs & other.pairs) == other.pairs; }

private:
    static constexpr int letter_count = 26;

    static int letter_index(QChar character);

    static size_t place_of(int first, int second)
    {
        return static_cast<size_t>(first) * letter_count + static_cast<size_t>(second);
    }

    std::bitset<size_t(letter_count) * letter_count> pairs; // by place_of()
};

#endif // LETTER_PAIRS_H
