// Picks an existing file, for spreadsheets and imports.
#pragma once

#include "screens/small_dialog.h"

class FolderLists;

class frmdnSelectFile : public SmallDialog
{
public:
    // `pattern` is such as "*.xls", or several parted by ';'. Begins at `folder` or near it.
    frmdnSelectFile(const QString& pattern, const QString& folder);

    // The full name in lblPATHNAME: the choice when the dialog was accepted.
    QString pathName() const;

private:
    void showChoice();

    FolderLists* m_lists;
    QLabel* m_pathName;
    QPushButton* m_select;
};

// Runs the dialog; blank after a cancel.
QString selectFile(const QString& pattern, const QString& folder);
