// ledger_poster FOLDER FIRST COUNT: posts so many adjustments of 1 to item 1, tags from FIRST on.
// Another program beside that of the test.
#include <QCoreApplication>

#include "inventory/ledger_posting.h"
#include "tests/support/complaints.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const Complaints complaints;
    const QStringList arguments = QCoreApplication::arguments();
    const int first = arguments.value(2).toInt();
    for (int i = 0; i < arguments.value(3).toInt(); ++i)
        if (!zorInvTransUpdate(arguments.value(1), 1, "IA", first + i, "IAI", 0, 1, 0, "03/07/2026",
                               "20260307", 1))
            return 1;
    return 0;
}
