#include "serie.h"

#include "jetons.h"

static constexpr int first_size = 20; // entries of a fresh histogram
static constexpr int spare_size = 10; // entries beyond a run that did not fit

template <typename key_type>
serie<key_type>::serie(const QList<key_type>& known_keys)
    : keys(known_keys)
{
    reset();
}

template <typename key_type>
void serie<key_type>::add(key_type value)
{
    if (!keys.contains(value)) return;
    if (!current_run.isEmpty() && current_run.last() != value) close_run();
    current_run.append(value);
}

template <typename key_type>
void serie<key_type>::close_run()
{
    if (current_run.isEmpty()) return;
    const int length = current_run.size();
    QVector<int>& histogram = histograms[keys.indexOf(current_run.last())];
    if (histogram.size() <= length) histogram.resize(length + spare_size);
    ++histogram[length];
    current_run.erase(current_run.begin(), current_run.end()); // keeps the memory, clear() does not
}

template <typename key_type>
QList<int> serie<key_type>::get(key_type value) const
{
    const int index = keys.indexOf(value);
    if (index < 0) {
        Q_ASSERT(false);
        return {};
    }
    return histograms.at(index).toList();
}

template <typename key_type>
void serie<key_type>::reset()
{
    current_run.clear();
    histograms.fill(QVector<int>(first_size), keys.size());
}

template class serie<jetons::jeton_names>;
template class serie<jetons::ext_jeton_names>;
