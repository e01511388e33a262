// What the main window knows about this run of the program. Each screen is given a copy of what it
// needs when it is opened; there is no other session object.
#pragma once

#include <QString>

struct Session
{
    QString JobSitePath;
    QString JobSiteName;  // "Undefined" when the path is no known job site
    qint32 SiteTag = 0;   // prefix of the tags given out on this job site
    QString UserName;
    qint32 UserTag = 0;  // 0 without a network database
    qint32 SessionTag = 0;
    QString UserSettingsPath;
    QString ModuleCode = "M";
    QString VersionText = "Version 5.6.0";
    QString MainTitle = "Zorvane Suite - Vexley Module";
    QString StartupErrors;
    bool EcoSysXref = false;
    qint16 SiteType = 0;  // the last three only when EcoSysXref is set
    qint32 ProjTag = 0;
    QString EcoSysPath;
};

// The folder of this run's copy of a file of the system, such as "ZORVEX.mdb": of a job site's or a
// sibling's file the job site, of the user's own his settings, blank for one beside the program.
QString folderOf(const Session& session, const QString& file);
