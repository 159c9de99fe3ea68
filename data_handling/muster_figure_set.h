#ifndef MUSTER_FIGURE_SET_H
#define MUSTER_FIGURE_SET_H

#include <QList>
#include <QString>
#include <QVector>

#include <array>

/// One figure of two symbols: 0 is the first chance of a pair, 1 the second.
struct muster_figure {
    QString id;       ///< length and place in the table: "4_10"
    QString figure;   ///< the symbols, oldest coup first: "0,1,0,1"
    QList<int> codes; ///< of a window that shows the figure, one per pair of colour values
    int count = 0;    ///< how often it has occurred
};

/**
 * Counts how often each figure of one length has occurred in a course of two colours. Every coup
 * ends a figure, so figures overlap. A plain value.
 */
class muster_figure_set
{
public:
    /// @param figure_length  2 to 4
    explicit muster_figure_set(int figure_length);

    /// Takes the colour of one coup. A colour that no figure has is reported to the log and not
    /// counted.
    void add(int colour);

    /// All counts 0, no coup remembered.
    void reset();

    /// Ends the sharing of memory with the set that this one was copied from, so that the copy
    /// may go to another thread.
    void detach();

    /// Coups in a figure.
    int figure_length() const { return length; }

    /// The figures with their counts, in the order of the table.
    const QList<muster_figure>& all_figures() const { return figures; }

private:
    QList<int> window; // the last colours, oldest first
    int length;
    QList<int> weights; // of the places of a window
    QList<muster_figure> figures;
    int code = 0;                // of the last full window
    QVector<int> figure_by_code; // index of the figure, no_figure for a code that none has
};

/// The figures of lengths 2, 3 and 4 of one pair of even chances.
struct muster {
    std::array<muster_figure_set, 3> sets{
        muster_figure_set(2), muster_figure_set(3), muster_figure_set(4)};

    void add(int colour);
    void reset();
    void detach();
};

#endif // MUSTER_FIGURE_SET_H
