// New database files, from the schema, and a new installation of them.
//
//   FOLDER/                    VEXPATH, DBPATHS, USERPATH, NETPATH, ZORDEF
//   FOLDER/ZORDATA/ZORNET/     network files
//   FOLDER/ZORDATA/<SITE>/     a job site's files
//   FOLDER/ZORUSER/<USER>/     a user's files
//
// Locators hold these paths relative to FOLDER, in capitals as the program keeps them, so that an
// installation can be moved. The current directory is FOLDER throughout.
#pragma once

#include <QString>

#include "core/schema/files.h"
#include "core/storage/workspace.h"

struct NewInstallation
{
    QString siteName;
    QString userName;  // login name of the first user, an administrator
};

struct NewJobSite
{
    QString name;        // in capitals
    QString storedPath;  // its folder, as DBPATHS has it
    qint32 tag;
};

// Fails when the folder holds an installation already. Gives its first job site.
NewJobSite createInstallation(const NewInstallation& wanted);

// A further job site with a site number of its own. Fails for a name that is taken.
NewJobSite addJobSite(const QString& name);

// Lists a user in the network files and makes the user's own.
void createUser(const QString& loginName, const QString& remarks, bool administrator);

// Makes every file of the place in the folder, which is made as well. Fails where one exists.
void createFiles(schema::Place place, const QString& storedFolder);

// Fills ZORDEF.mdb from the schema: the databases, their fields and indexes, the protected
// processes. Thousands of rows: best in a transaction of the caller's.
void fillMasterDefinitions(const storage::Database& zordef);

// Fills the list of protected processes, the same in the network's file and in the master.
void fillAccessItems(const storage::Database& database);
