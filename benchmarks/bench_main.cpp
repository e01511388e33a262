// vexley_bench [NAME]: runs the benchmarks whose names contain NAME.
// vexley_bench --worker ROLE FILE COUNT: one of the processes of a contention benchmark.
#include <QApplication>
#include <cstdio>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"

void registerStoreBenchmarks();
void registerContentionBenchmarks();
void registerPrintBenchmarks();
void registerSearchBenchmarks();
void registerBrowseBenchmarks();
void registerWorkbookBenchmarks();
void registerCostBenchmarks();
void registerLedgerBenchmarks();
void registerFormBenchmarks();
void registerItemBenchmarks();
void registerPurchasingBenchmarks();
int runContentionWorker(const QStringList& arguments);

// Windows drawn in memory say of each that they are.
static void dropPlatformRemarks(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

int main(int argc, char** argv)
{
    qInstallMessageHandler(dropPlatformRemarks);
    // Nobody has to watch: without a display, and without one chosen, windows are drawn in memory.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
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
    registerPrintBenchmarks();
    registerSearchBenchmarks();
    registerBrowseBenchmarks();
    registerWorkbookBenchmarks();
    registerCostBenchmarks();
    registerLedgerBenchmarks();
    registerFormBenchmarks();
    registerItemBenchmarks();
    registerPurchasingBenchmarks();
    return runPairs(arguments.value(1)) ? 0 : 1;
}
