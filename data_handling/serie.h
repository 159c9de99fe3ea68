#ifndef SERIE_H
#define SERIE_H

#include <QList>
#include <QVector>

/**
 * Run-length histograms: how often the same value came n coups in a row.
 * A run is counted when it ends, so the run in progress stands in no histogram.
 * Plain value, not thread-safe: the owner locks.
 *
 * @tparam key_type  enumeration of table places; compared with ==, copied by value
 */
template <typename key_type>
class serie
{
public:
    /// @param known_keys  the values to count, each once; their order is that of the histograms
    explicit serie(const QList<key_type>& known_keys);

    /// Takes the value of one coup; a different value first ends the run in progress.
    /// A value outside the keys is ignored: the run in progress goes on.
    void add(key_type value);

    /// Ends and counts the run in progress, as a zero does. Without a run: no effect.
    void close_run();

    /// Shape: [n] = finished runs of exactly n coups, [0] = 0; at least 20 entries. Unit: runs.
    /// Error: an unknown key asserts; in a release build the list is empty.
    QList<int> get(key_type value) const;

    /// Back to the state after construction: no run in progress, every count 0.
    void reset();

private:
    QList<key_type> current_run; // equal values only
    QList<key_type> keys;
    QVector<QVector<int>> histograms; // one per key, same order
};

#endif // SERIE_H
