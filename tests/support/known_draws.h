#ifndef KNOWN_DRAWS_H
#define KNOWN_DRAWS_H

#include <cstdint>
#include <random>

/**
 * The random numbers of a seeded game, worked out once more: the Mersenne twister's outputs are
 * cut into as many equal parts as the wheel has pockets, and the first draw is thrown away.
 */
class known_draws
{
public:
    known_draws(std::uint32_t seed, int pocket_count)
        : twister(seed)
        , pockets(static_cast<std::uint32_t>(pocket_count))
    {
        next();
    }

    int next()
    {
        constexpr std::uint32_t highest = 0xFFFFFFFF;
        const std::uint32_t part = highest / pockets + (highest % pockets == pockets - 1 ? 1 : 0);
        std::uint32_t place = pockets;
        while (place >= pockets)
            place = static_cast<std::uint32_t>(twister()) / part;
        return static_cast<int>(place);
    }

private:
    std::mt19937 twister;
    std::uint32_t pockets;
};

#endif // KNOWN_DRAWS_H
