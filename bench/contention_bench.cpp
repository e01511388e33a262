// Several processes in one file: tags drawn, records written while others read.
void registerContentionBenchmarks() {}
#include <QStringList>
int runContentionWorker(const QStringList&) { return 0; }
