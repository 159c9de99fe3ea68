#ifndef NAIVE_BETS_H
#define NAIVE_BETS_H

#include <QString>
#include <QStringList>
#include <QVector>

#include <random>

// What a bet covers, told from the side of the bet: "CH 1/4", "TS 1-6", "EN 17". The program
// tells it from the side of the number; that both agree is worth a test.

namespace naive_bets
{

constexpr int double_zero = 37;

inline QVector<int> from_to(int first, int last, int step = 1)
{
    QVector<int> numbers;
    for (int number = first; number <= last; number += step)
        numbers.append(number);
    return numbers;
}

inline QVector<int> wheel(bool american)
{
    // clang-format off
    static const QVector<int> french_wheel = {
        0, 32, 15, 19, 4, 21, 2, 25, 17, 34, 6, 27, 13, 36, 11, 30, 8, 23, 10,
        5, 24, 16, 33, 1, 20, 14, 31, 9, 22, 18, 29, 7, 28, 12, 35, 3, 26};
    static const QVector<int> american_wheel = {
        0, 28, 9, 26, 30, 11, 7, 20, 32, 17, 5, 22, 34, 15, 3, 24, 36, 13, 1,
        37, 27, 10, 25, 29, 12, 8, 19, 31, 18, 6, 21, 33, 16, 4, 23, 35, 14, 2};
    // clang-format on
    return american ? american_wheel : french_wheel;
}

inline QVector<int> neighbours(int number, int reach, bool american)
{
    const QVector<int> pockets = wheel(american);
    const int place = pockets.indexOf(number);
    QVector<int> numbers;
    if (place < 0) return numbers;
    for (int offset = -reach; offset <= reach; ++offset)
        numbers.append(pockets.at((place + offset + pockets.size()) % pockets.size()));
    return numbers;
}

inline QVector<int> even_chance(int index)
{
    static const QVector<int> reds = {
        1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};
    if (index == 1) return from_to(1, 18);
    if (index == 2) return from_to(2, 36, 2);
    if (index == 3) return reds;
    if (index == 5) return from_to(1, 35, 2);
    if (index == 6) return from_to(19, 36);
    QVector<int> blacks = from_to(1, 36);
    for (const int red : reds)
        blacks.removeOne(red);
    return blacks;
}

inline QVector<int> sector(const QString& name)
{
    // clang-format off
    if (name == "GS") return {4, 7, 12, 15, 18, 21, 19, 22, 32, 35, 0, 2, 3, 25, 29, 26, 28};
    if (name == "KS") return {5, 8, 10, 11, 13, 16, 23, 24, 27, 30, 33, 36};
    if (name == "OR") return {1, 6, 9, 14, 17, 20, 31, 34};
    if (name == "OP") return {1, 6, 9, 14, 17, 20, 31, 34};
    if (name == "ZS") return {0, 3, 12, 15, 26, 32, 35};
    // clang-format on
    return {};
}

/// The number in front of a gap between two columns: 1, 2, 4, 5, 7, 8, ...
inline int number_at_gap(int gap)
{
    return 3 * (gap / 2) + gap % 2 + 1;
}

inline QVector<int> cheval(int index)
{
    if (index <= 3) return {0, index};
    if (index <= 36) return {index - 3, index};
    if (index == 61) return {0, double_zero};
    if (index == 62) return {2, double_zero};
    if (index == 63) return {3, double_zero};
    const int number = number_at_gap(index - 37);
    return {number, number + 1};
}

inline QVector<int> transversale(int index)
{
    if (index <= 2) return {0, index, index + 1};
    if (index == 15) return {0, 2, double_zero};
    if (index == 16) return {2, 3, double_zero};
    return from_to(3 * (index - 3) + 1, 3 * (index - 3) + 3);
}

inline QVector<int> carre(int index)
{
    if (index == 1) return {0, 1, 2, 3, double_zero};
    const int number = number_at_gap(index - 2);
    return {number, number + 1, number + 3, number + 4};
}

inline QVector<int> finale(int digit)
{
    QVector<int> numbers = from_to(digit, 36, 10);
    if (digit == 0) numbers.append(double_zero);
    return numbers;
}

/// The numbers with which a bet wins, by its name; 37 is the double zero.
inline QVector<int> covered_by(const QString& name, bool american)
{
    const QString type = name.left(2);
    const int index = name.mid(2).toInt();
    if (type == "PL") return {index};
    if (type == "EC") return even_chance(index);
    if (type == "DZ") return from_to(12 * index - 11, 12 * index);
    if (type == "KL") return from_to(index, 36, 3);
    if (type == "TP") return transversale(index);
    if (type == "TS") return from_to(3 * index - 2, 3 * index + 3);
    if (type == "CA") return carre(index);
    if (type == "CH") return cheval(index);
    if (type == "FI") return finale(index);
    if (type == "EN") return neighbours(index, 1, american);
    if (type == "ZN") return neighbours(index, 2, american);
    if (type == "DN") return neighbours(index, 3, american);
    return sector(name);
}

/// How many of the last numbers a bet covers.
inline int hits_among(const QVector<int>& numbers, int range, const QString& name, bool american)
{
    const QVector<int> covered = covered_by(name, american);
    int hits = 0;
    for (int i = numbers.size() - range; i < numbers.size(); ++i) {
        if (covered.contains(numbers.at(i))) ++hits;
    }
    return hits;
}

inline QString numbered_name(const QString& type, int index)
{
    return type + QString::number(index).rightJustified(2, '0');
}

/// Numbers of a table, by a generator whose range reduction is the same everywhere.
inline QVector<int> random_numbers(std::mt19937& generator, int count, bool american)
{
    const unsigned pockets = american ? 38 : 37;
    QVector<int> numbers;
    for (int i = 0; i < count; ++i)
        numbers.append(static_cast<int>(generator() % pockets));
    return numbers;
}

} // namespace naive_bets

#endif // NAIVE_BETS_H
