#include "muster_figure_set.h"

#include <QDebug>
#include <QStringList>

namespace
{

constexpr int no_figure = -1;

/// The colours of the symbols 0 and 1: of the pairs by place and parity, of red and black.
struct colour_pair {
    int symbol_0;
    int symbol_1;
};
constexpr std::array<colour_pair, 2> colour_pairs{
    {{Qt::darkYellow, Qt::cyan}, {Qt::red, Qt::black}}};

QList<int> place_weights()
{
    return {11, 13, 16, 20};
}

QStringList figures_of_length(int length)
{
    switch (length) {
    case 2:
        return {"0,0", "0,1", "1,0", "1,1"};
    case 3:
        return {"0,0,0", "0,0,1", "0,1,1", "0,1,0", "1,0,1", "1,0,0", "1,1,0", "1,1,1"};
    case 4:
        return {"0,0,0,0",
                "0,0,0,1",
                "0,0,1,1",
                "0,1,1,1",
                "1,0,1,1",
                "1,1,0,1",
                "1,1,1,0",
                "1,1,0,0",
                "1,0,0,0",
                "0,1,0,1",
                "1,0,1,0",
                "0,1,1,0",
                "1,0,0,1",
                "0,0,1,0",
                "0,1,0,0",
                "1,1,1,1"};
    default:
        return {};
    }
}

/// The figures of a length, by the code of a window that shows them.
QVector<int> index_by_code(const QList<muster_figure>& figures)
{
    QVector<int> index;
    for (int i = 0; i < figures.size(); ++i) {
        for (const int code : figures.at(i).codes) {
            while (index.size() <= code)
                index.append(no_figure);
            index[code] = i;
        }
    }
    return index;
}

int code_of(const QString& figure, const colour_pair& colours, const QList<int>& weights)
{
    const QStringList symbols = figure.split(',');
    int code = 0;
    for (int i = 0; i < symbols.size(); ++i) {
        code += (symbols.at(i) == "0" ? colours.symbol_0 : colours.symbol_1) * weights.at(i);
    }
    return code;
}

} // namespace

muster_figure_set::muster_figure_set(int figure_length)
    : length(figure_length)
    , weights(place_weights())
{
    Q_ASSERT(figure_length >= 2 && figure_length <= weights.size());
    const QStringList texts = figures_of_length(figure_length);
    for (int i = 0; i < texts.size(); ++i) {
        muster_figure figure;
        figure.id = QString::number(figure_length) + '_' + QString::number(i + 1);
        figure.figure = texts.at(i);
        for (const colour_pair& colours : colour_pairs) {
            figure.codes.append(code_of(figure.figure, colours, weights));
        }
        figures.append(figure);
    }
    figure_by_code = index_by_code(figures);
}

void muster_figure_set::add(int colour)
{
    window.append(colour);
    if (window.size() > length) window.removeFirst();
    if (window.size() < length) return;
    code = 0;
    for (int i = 0; i < length; ++i)
        code += window.at(i) * weights.at(i);

    const int found = figure_by_code.value(code, no_figure);
    if (found == no_figure) {
        qDebug() << "ERROR - model not found";
        return;
    }
    ++figures[found].count;
}

void muster_figure_set::reset()
{
    window.clear();
    for (muster_figure& figure : figures)
        figure.count = 0;
}

void muster_figure_set::detach()
{
    window.detach();
    figures.detach();
}

void muster::add(int colour)
{
    for (muster_figure_set& set : sets)
        set.add(colour);
}

void muster::reset()
{
    for (muster_figure_set& set : sets)
        set.reset();
}

void muster::detach()
{
    for (muster_figure_set& set : sets)
        set.detach();
}
