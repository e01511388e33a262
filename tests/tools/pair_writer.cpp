// Writes the same number into two databases, again and again, under one rule: either both have it
// or none. Until it is killed.

#include <QCoreApplication>
#include <cstdio>

#include "core/storage/workspace.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    storage::Workspace workspace = storage::CreateWorkspace("wksPAIR");
    storage::Recordset one = workspace.OpenDatabase(arguments.at(1)).OpenRecordset("SHIPTOITEMS");
    storage::Recordset two = workspace.OpenDatabase(arguments.at(2)).OpenRecordset("SITEINFO");
    for (int number = 1;; ++number) {
        workspace.BeginTrans();
        const auto writeOne = [&] {
            one.AddNew();
            one["SHIPTO"] = QString::number(number);
            one.Update();
        };
        const auto writeTwo = [&] {
            two.AddNew();
            two["SITENAME"] = QString::number(number);
            two.Update();
        };
        // Sometimes against the order in which a backup takes the files.
        if (number % 3 == 0) {
            writeTwo();
            writeOne();
        } else {
            writeOne();
            writeTwo();
        }
        workspace.CommitTrans();
        if (number == 1) {
            std::puts("writing");
            std::fflush(stdout);
        }
    }
}
