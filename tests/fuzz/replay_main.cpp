// A short run without a fuzzer: every file of the corpus as it is, and many mutations of it.

#include "fuzz_target.h"

#include <QDirIterator>
#include <QFile>
#include <QLoggingCategory>

#include <cstdio>
#include <random>

static constexpr int mutations_per_file = 60;

static void feed(const QByteArray& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

/// Changes, doubles, removes or exchanges a piece of the input.
static QByteArray mutated(QByteArray input, const QByteArray& other, std::mt19937& generator)
{
    const auto below = [&](int bound) {
        return bound < 1 ? 0 : static_cast<int>(generator() % static_cast<unsigned>(bound));
    };
    for (int changes = 1 + below(4); changes > 0; --changes) {
        const int place = below(input.size());
        const int length = below(std::min(30, input.size() - place));
        switch (below(5)) {
        case 0:
            input.insert(place, static_cast<char>(below(256)));
            break;
        case 1:
            input.remove(place, length);
            break;
        case 2:
            input.insert(place, input.mid(place, length));
            break;
        case 3:
            input.insert(place, other.mid(below(other.size()), length));
            break;
        default:
            if (!input.isEmpty()) input[place] = static_cast<char>(below(256));
        }
    }
    return input;
}

int main(int argc, char** argv)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    if (argc < 2) {
        std::fputs("usage: fuzz_TARGET CORPUS_FOLDER\n", stderr);
        return 2;
    }
    QByteArrayList corpus;
    for (QDirIterator files(QString::fromLocal8Bit(argv[1]), QDir::Files); files.hasNext();) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly)) corpus.append(file.readAll());
    }
    if (corpus.isEmpty()) {
        std::fputs("the corpus is empty\n", stderr);
        return 2;
    }
    std::sort(corpus.begin(), corpus.end());
    std::mt19937 generator(1);
    for (const QByteArray& input : qAsConst(corpus)) {
        feed(input);
        for (int i = 0; i < mutations_per_file; ++i) {
            const auto other = static_cast<int>(generator() % static_cast<unsigned>(corpus.size()));
            feed(mutated(input, corpus.at(other), generator));
        }
    }
    std::printf("%d inputs and %d mutations of each\n", corpus.size(), mutations_per_file);
    return 0;
}
