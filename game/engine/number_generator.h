#ifndef NUMBER_GENERATOR_H
#define NUMBER_GENERATOR_H

#include <QtGlobal>

#include <random>

/**
 * The random numbers of the game: the standard 32-bit Mersenne twister with a range reduction of
 * our own, so that a seed gives the same numbers with every compiler and library.
 * A fresh generator stands at the twister's default seed 5489 with nothing drawn.
 */
class number_generator
{
public:
    /// Starts anew from the seed and throws one number of the range away.
    void seed(quint32 value, int first, int last);

    /// A random number. Range: the closed range first to last, every number with the same weight.
    /// A range that holds one number or none gives first and uses up no random output.
    int draw(int first, int last)
    {
        if (last <= first) return first;
        const quint32 range = static_cast<quint32>(last) - static_cast<quint32>(first);
        if (range != known_range) divide_up(range);
        quint32 quotient = 0;
        do {
            quotient = static_cast<quint32>(twister()) / scaling;
        } while (quotient > range);
        return static_cast<int>(static_cast<qint64>(first) + quotient);
    }

private:
    void divide_up(quint32 range);

    std::mt19937 twister;
    quint32 known_range = 0; // the range that `scaling` belongs to
    quint32 scaling = 1;     // outputs of the twister that stand for one number
};

#endif // NUMBER_GENERATOR_H
