// The picker of a folder that holds database files: drive, folders and the files of the folder.
#pragma once

#include "screens/folder_places.h"
#include "screens/small_dialog.h"

class QComboBox;
class QListWidget;

class frmDBPSearch : public SmallDialog
{
public:
    // Begins at `path` or near it.
    explicit frmDBPSearch(const QString& path);

    // The folder shown in lblPATHNAME; the choice when the dialog was accepted.
    QString pathName() const { return m_folder; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void takeDrive(int row);
    void enter(const QString& name);
    void goTo(const QString& folder);
    void goUp();
    void showDriveOfFolder();

    QList<Drive> m_drives;
    QComboBox* m_drive;
    QListWidget* m_folders;
    QListWidget* m_files;
    QLabel* m_pathName;
    QString m_folder;
};

// Runs the picker; blank after a cancel.
QString chooseFolder(const QString& beginAt);
