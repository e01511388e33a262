// vexley_bench [NAME]: runs the benchmarks whose names contain NAME.
// vexley_bench --worker ROLE FILE COUNT: one of the processes of a contention benchmark.
#include <QCoreApplication>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"

void registerStoreBenchmarks();
void registerContentionBenchmarks();
void registerSearchBenchmarks();
void registerWorkbookBenchmarks();
int runContentionWorker(const QStringList& arguments);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--worker")
        return runContentionWorker(arguments.mid(2));
    std::string program = argv[0];
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    char* options[] = {program.data(), interleave.data(), nullptr};
    int optionCount = 2;
    benchmark::Initialize(&optionCount, options);
    registerStoreBenchmarks();
    registerContentionBenchmarks();
    registerSearchBenchmarks();
    registerWorkbookBenchmarks();
    return runPairs(arguments.value(1)) ? 0 : 1;
}
