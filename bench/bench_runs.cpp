// Whole runs of a million recorded numbers, against a plain program of the same work.

#include "headless_game.h"
#include "number_generator.h"
#include "plain_martingale.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>

namespace
{

constexpr int coup_count = 1000000;

constexpr char busy_system[] = "ST:\n"
                               "SZ STMAX(S,I(40));\n"
                               "SZ ST1(1,2,3,5,8,13,21);\n"
                               "SZ ST2(1,1,2,2,3,3);\n"
                               "SZ EI1(ST1(1)),CO01(0),CO02(0);\n"
                               "VE:\n"
                               "SZ CO01(+1);\n"
                               "SZ EI1(ST1(+1));\n"
                               "GW:\n"
                               "SZ CO01(0),CO02(+1);\n"
                               "SZ EI1(ST1(1));\n"
                               "AL:\n"
                               "SZ PT1(GZ);\n"
                               "IF CO02(>8) THEN SZ PT1(C),CO02(0);\n"
                               "IF RZ(12/>=3) IN DZ01 THEN SZ DZ02;\n"
                               "IF RZ(20/<5) IN EC01 AND IF GZ NOT IN EC01 THEN SZ EC01;\n"
                               "IF RZ(37/=1) IN FI03 THEN SZ FI03;\n"
                               "IF UZ(30/H) IN EC RESULT SZ EC;\n"
                               "IF UZ(37/H) IN DZ RESULT SZ DZ;\n"
                               "IF UZ(37/>=3) IN PL RESULT SZ PL;\n"
                               "IF V3 IN KL02 AND IF VZ IN EC03 THEN SZ KL02;\n"
                               "IF GZ IN AG(1) THEN SZ EI2(ST2(+1));\n"
                               "IF CO01(>=6) THEN SZ CO01(0);\n"
                               "SZ PT1(1),PT1(2),PT1(3);\n"
                               "IF CO01(<3) THEN SZ EI1+1 MAX 50 THEN SZ EI1(1);\n";

/// Numbers and systems in a folder of their own, written once.
class bench_files
{
public:
    bench_files()
    {
        write("martingale.syf", martingale_system);
        write("busy.syf", busy_system);
        number_generator generator;
        generator.seed(1, 0, 36);
        QByteArray text;
        for (int i = 0; i < coup_count; ++i)
            text += QByteArray::number(generator.draw(0, 36)) + '\n';
        write("numbers.inp", text);
    }

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

private:
    void write(const char* name, const QByteArray& text) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) std::abort();
    }

    QTemporaryDir folder;
};

const bench_files& files()
{
    static const bench_files shared;
    return shared;
}

/// Plays one run, from opening the files to the last byte of the protocol.
void play(const char* system, bool with_protocol)
{
    play_request request;
    request.systems[0] = files().path(system);
    request.numbers.active = true;
    request.numbers.files[0] = files().path("numbers.inp");
    if (with_protocol) {
        request.protocols[0] = files().path("run.out");
        QFile::remove(request.protocols[0]);
    }
    setting settings;
    headless_game game(request, settings);
    if (!game.prepare().isEmpty() || !game.play().isEmpty() || game.coups() != coup_count) {
        std::abort();
    }
}

void play_plain()
{
    benchmark::DoNotOptimize(plain_martingale(files().path("numbers.inp").toStdString(),
                                              files().path("plain.out").toStdString(),
                                              files().path("martingale.syf").toStdString(),
                                              "numbers.inp"));
}

void count_coups(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * coup_count);
}

void plain_program(benchmark::State& state)
{
    for (auto _ : state)
        play_plain();
    count_coups(state);
}

void martingale_with_protocol(benchmark::State& state)
{
    for (auto _ : state)
        play("martingale.syf", true);
    count_coups(state);
}

void martingale_summary_alone(benchmark::State& state)
{
    for (auto _ : state)
        play("martingale.syf", false);
    count_coups(state);
}

void twenty_statements(benchmark::State& state)
{
    for (auto _ : state)
        play("busy.syf", false);
    count_coups(state);
}

BENCHMARK(plain_program)->Unit(benchmark::kMillisecond);
BENCHMARK(martingale_with_protocol)->Unit(benchmark::kMillisecond);
BENCHMARK(martingale_summary_alone)->Unit(benchmark::kMillisecond);
BENCHMARK(twenty_statements)->Unit(benchmark::kMillisecond);

/// Best of several runs, taken in turn so that a busy machine slows all alike. Unit: seconds.
struct best_times {
    double plain = 1e9;
    double with_protocol = 1e9;
    double summary_alone = 1e9;
};

template <typename work>
double seconds_of(work run)
{
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void print_ratios()
{
    constexpr int rounds = 7;
    best_times best;
    for (int i = 0; i < rounds; ++i) {
        best.plain = std::min(best.plain, seconds_of(play_plain));
        best.with_protocol =
            std::min(best.with_protocol, seconds_of([] { play("martingale.syf", true); }));
        best.summary_alone =
            std::min(best.summary_alone, seconds_of([] { play("martingale.syf", false); }));
    }
    std::printf("\nmartingale on red, %d coups, best of %d, million coups a second (ratio)\n"
                "plain program with protocol   %6.2f  (1.0)\n"
                "zarvello with protocol        %6.2f  (%.1f, aim 2.8)\n"
                "zarvello with summary alone   %6.2f  (%.1f, aim 7.4)\n",
                coup_count,
                rounds,
                coup_count / best.plain / 1e6,
                coup_count / best.with_protocol / 1e6,
                best.plain / best.with_protocol,
                coup_count / best.summary_alone / 1e6,
                best.plain / best.summary_alone);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    print_ratios();
    return 0;
}
