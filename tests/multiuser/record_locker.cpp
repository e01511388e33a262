// A user who locks the records 1 to N in the installation of the current folder, as fast as
// another does the same. Tells the tags that were got. Or gives up all of these locks.
//
// record_locker NAME N [unlock]
#include <QCoreApplication>
#include <cstdio>

#include "multiuser/record_locks.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    std::puts("ready");
    std::fflush(stdout);
    std::getchar();  // both begin together
    const bool unlocks = arguments.value(3) == "unlock";
    for (int tag = 1; tag <= arguments.at(2).toInt(); ++tag)
        if (unlocks)
            dnRecordUnlock(tag, "VENDORS");
        else if (!dnRecordLock(tag, "VENDORS", 1, arguments.at(1), 1))
            std::printf("%d\n", tag);
    return 0;
}
