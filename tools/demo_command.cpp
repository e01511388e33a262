#include <QCommandLineOption>
#include <QDir>
#include <QElapsedTimer>

#include "tools/command.h"
#include "tools/demo/demo.h"
#include "tools/new_files.h"

namespace {

constexpr int largestScale = 150;  // requisition numbers have five digits

}  // namespace

int runDemo(const QStringList& arguments)
{
    const Arguments given(
        arguments,
        "Makes an installation in FOLDER as `vexsite create` does, and fills its job site with\n"
        "the data of a contractor: companies, jobs, vendors, an inventory, and two years of\n"
        "documents. The same scale and seed give the same data.",
        {"FOLDER"},
        {{"scale", "1 makes some 5,000 line items, 100 half a million.", "N", "1"},
         {"seed", "Another number, other data.", "S", "1"},
         {"site", "Name of the job site.", "NAME", "DEMO CONTRACTOR"},
         {"user", "Login name of the first user.", "LOGIN", ownLoginName()}});
    const auto scale = static_cast<int>(given.number("scale", 1, largestScale));
    const auto seed = static_cast<quint64>(given.number("seed", 0, INT_MAX));
    const QString folder = QDir(given[0]).absolutePath();
    if (!QDir().mkpath(folder))
        throw CommandFailure("Cannot make the folder " + folder + '.');
    enterInstallation(folder);

    QElapsedTimer watch;
    watch.start();
    const NewJobSite site = createInstallation({given.text("site"), given.text("user")});
    for (const char* user : demo::demoUsers)
        if (given.text("user").compare(user, Qt::CaseInsensitive) != 0)
            createUser(user, "Demo user", false);
    demo::fillJobSite(demo::planFor(scale, seed), site.storedPath, site.tag);
    say(QString("Made the job site %1 in %2 in %3 seconds.")
            .arg(site.name, folder)
            .arg(static_cast<double>(watch.elapsed()) / 1000, 0, 'f', 1));
    return exitDone;
}
