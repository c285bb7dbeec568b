// The main of every benchmark executable: the benchmarks run inside an application object.
#include <QCoreApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
