#include "number_history.h"

void number_history::clear()
{
    numbers.clear();
    entries.clear();
}

QList<int> number_history::last_numbers(int count, bool with_marks) const
{
    const std::vector<quint8>& view = with_marks ? entries : numbers;
    QList<int> newest;
    if (view.empty() || count < 1) return newest;

    newest.reserve(count);
    const qint64 first = static_cast<qint64>(view.size()) - count;
    for (qint64 place = first; place < static_cast<qint64>(view.size()); ++place) {
        const bool is_reached = place >= 0;
        newest.append(is_reached ? view[static_cast<size_t>(place)] : number_code::no_number);
    }
    return newest;
}
