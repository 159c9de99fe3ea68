#ifndef PLAIN_MARTINGALE_H
#define PLAIN_MARTINGALE_H

#include <fstream>
#include <iomanip>
#include <string>

/// The system that `plain_martingale()` plays, in the language of systems.
constexpr char martingale_system[] = "ST:\n"
                                     "SZ STMAX(S);\n"
                                     "SZ ST1(1,2,4,8,16,32,64,128);\n"
                                     "SZ EI1(ST1(1)),EC03;\n"
                                     "VE: SZ EI1(ST1(+1));\n"
                                     "GW: SZ EI1(ST1(1));\n"
                                     "AL: SZ EC03;\n";

/// A martingale on red over a file of French numbers, written as one flat loop over streams the
/// way a user would write a script of his own: a second way to the same protocol, and the
/// measure of speed. Plays with prison and with the stake paid out with the win.
/// @return the last credit
inline long long plain_martingale(const std::string& numbers_path,
                                  const std::string& protocol_path,
                                  const std::string& system_name,
                                  const std::string& numbers_name)
{
    const int steps[] = {1, 2, 4, 8, 16, 32, 64, 128};
    const int reds[] = {1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};
    bool is_red[37] = {};
    for (const int red : reds)
        is_red[red] = true;

    std::ifstream numbers(numbers_path);
    std::ofstream protocol(protocol_path);
    protocol << std::setw(3) << "GZ" << std::setw(12) << "Gew/Ver" << std::setw(12) << "Gesetzt"
             << std::setw(12) << "Guthaben"
             << "    " << system_name << "\n"
             << std::string(39, '-') << "  \n";

    long long credit = 2000;
    int step = 0;
    bool in_prison = false;
    bool in_double_prison = false;
    long long table = steps[0];
    std::string first_mark = numbers_name;
    credit -= table;
    for (int number = 0; numbers >> number;) {
        const long long seeded = table;
        long long score = 0;
        long long back = 0;
        if (number == 0) {
            in_double_prison = in_prison;
            in_prison = table % 2 == 1;
            score = table / 2;
        } else if (is_red[number]) {
            score = 2 * table;
            back = in_prison ? 1 : 0;
            in_prison = in_double_prison;
            in_double_prison = false;
        } else {
            in_prison = false;
            in_double_prison = false;
        }
        credit += score;
        protocol << std::setw(3) << ((number < 10 ? "0" : "") + std::to_string(number))
                 << std::setw(12) << score - seeded << std::setw(12) << seeded << std::setw(12)
                 << credit << "  " << first_mark << "\n";
        first_mark.clear();
        step = score < seeded ? (step + 1) % 8 : 0;
        table = back + steps[step];
        credit -= steps[step];
    }
    return credit;
}

#endif // PLAIN_MARTINGALE_H
