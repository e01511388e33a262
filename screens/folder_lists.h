// Drives, the folders of one folder, and files in it, by mouse or keyboard: Enter goes into a
// folder, Backspace up. What pickers of folders and of files are made of.
#pragma once

#include <QWidget>
#include <functional>

#include "screens/folder_places.h"

class QComboBox;
class QListWidget;

class FolderLists : public QWidget
{
public:
    struct Names
    {
        QString drive;
        QString folders;
        QString files;
        QString filesCaption;
    };
    // Files that match the pattern are listed; they can be chosen where `choosesFiles` is set.
    FolderLists(const Names& names, const QString& pattern, bool choosesFiles);

    // Goes to a folder; one that cannot be read is told, and the place stays.
    void goTo(const QString& folder);
    const QString& folder() const { return m_folder; }
    QString file() const;  // the chosen one's name; blank for none

    QComboBox* drive() const { return m_drive; }
    void focusFolders();

    std::function<void()> onChange = [] {};         // folder or file
    std::function<void()> onFileActivated = [] {};  // Enter or a double click

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build(const Names& names);
    void takeDrive(int row);
    void enter(const QString& name);
    void goUp();
    void showDriveOfFolder();

    QString m_pattern;
    bool m_choosesFiles;
    QList<Drive> m_drives;
    QComboBox* m_drive;
    QListWidget* m_folders;
    QListWidget* m_files;
    QString m_folder;
};
