#include "number_generator.h"

void number_generator::seed(quint32 value, int first, int last)
{
    twister.seed(value);
    draw(first, last);
}

// The twister's outputs are split into range + 1 pieces of equal size. What is left over behind
// the last piece is drawn again; it is empty when the outputs divide evenly.
void number_generator::divide_up(quint32 range)
{
    constexpr quint64 largest_output = 0xFFFFFFFF;
    const quint64 pieces = quint64{range} + 1;
    quint64 size = largest_output / pieces;
    if (largest_output % pieces == range) ++size;
    scaling = static_cast<quint32>(size);
    known_range = range;
}
