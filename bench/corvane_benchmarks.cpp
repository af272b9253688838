#include "app/CVApplication.h"

#include "bench/Benchmarks.h"
#include "bench/Budget.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (const auto status = Benchmarks::runAsChild(argc, argv)) {
        return *status;
    }
    const CVApplication application(argc, argv);
    Benchmarks::registerModel();
    Benchmarks::registerWindow();
    benchmark::Initialize(&argc, argv);
    BudgetReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
