#include <QCommandLineOption>
#include <QDir>

#include "core/system.h"
#include "tools/command.h"
#include "tools/new_files.h"

QString ownLoginName()
{
    const QString name = System::current().loginName();
    return name.isEmpty() ? "Guest" : name;
}

int runCreate(const QStringList& arguments)
{
    const Arguments given(
        arguments,
        "Makes an installation in FOLDER: the locator files, the network files, the files of the\n"
        "first user and of a first job site. An installation that is there is left alone.",
        {"FOLDER"},
        {{"site", "Name of the first job site.", "NAME", "MAIN OFFICE"},
         {"user", "Login name of the first user, an administrator.", "LOGIN", ownLoginName()}});
    const QString folder = QDir(given[0]).absolutePath();
    if (!QDir().mkpath(folder))
        throw CommandFailure("Cannot make the folder " + folder + '.');
    enterInstallation(folder);
    createInstallation({given.text("site"), given.text("user")});
    say("Made an installation in " + folder + " with the job site " +
        given.text("site").trimmed().toUpper() + '.');
    return exitDone;
}

int runSite(const QStringList& arguments)
{
    const Arguments given(
        arguments,
        "Adds the job site NAME to the installation in FOLDER, with a site number of its own.",
        {"FOLDER", "NAME"}, {});
    enterInstallation(given[0]);
    const NewJobSite site = addJobSite(given[1]);
    say(QString("Made the job site %1, number %2, in %3.")
            .arg(site.name)
            .arg(site.tag)
            .arg(site.storedPath));
    return exitDone;
}
