#include "letter_pairs.h"

static constexpr int no_letter = -1;
static constexpr int foreign_letter = -2;
static constexpr ushort first_foreign = 0x80;

// A few letters outside of ASCII become an ASCII letter when their case is changed (the Turkish
// dotted I, the long s, the Kelvin sign).
static bool may_equal_ascii(QChar character)
{
    return character.toLower() < QChar(first_foreign) ||
           character.toUpper() < QChar(first_foreign) ||
           character.toCaseFolded() < QChar(first_foreign);
}

letter_pairs::letter_pairs(QStringView text)
{
    int previous = no_letter;
    for (const QChar character : text) {
        const int letter = letter_index(character);
        if (letter == foreign_letter) {
            pairs.set();
            return;
        }
        if (previous != no_letter && letter != no_letter) pairs.set(place_of(previous, letter));
        previous = letter;
    }
}

int letter_pairs::letter_index(QChar character)
{
    const ushort code = character.unicode();
    if (code >= u'A' && code <= u'Z') return code - u'A';
    if (code >= u'a' && code <= u'z') return code - u'a';
    if (code >= first_foreign && may_equal_ascii(character)) return foreign_letter;
    return no_letter;
}
