// The picker of a folder that holds database files: drive, folders and the files of the folder.
#pragma once

#include "screens/small_dialog.h"

class FolderLists;

class frmDBPSearch : public SmallDialog
{
public:
    // Begins at `path` or near it.
    explicit frmDBPSearch(const QString& path);

    // The folder shown in lblPATHNAME; the choice when the dialog was accepted.
    QString pathName() const;

private:
    FolderLists* m_lists;
};

// Runs the picker; blank after a cancel.
QString chooseFolder(const QString& beginAt);
