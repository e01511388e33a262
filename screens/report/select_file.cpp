#include "screens/report/select_file.h"

#include "core/storage/file_paths.h"
#include "screens/folder_lists.h"

frmdnSelectFile::frmdnSelectFile(const QString& pattern, const QString& folder)
    : SmallDialog("frmdnSelectFile", "File Selection Form"),
      m_lists(new FolderLists({"Drive1", "Dir1", "File1", "F&iles"}, pattern, true))
{
    addValue("File Type", "lblFileType", pattern + " Files");
    addField("&Drive", m_lists->drive());
    addAcross(m_lists);
    m_pathName = addText("lblPATHNAME", {});
    m_select = addClosingButton("cmdSelect", "&Select", Accepted);
    m_select->setDefault(true);
    escTakes(addClosingButton("cmdCancel", "&Cancel"));
    m_lists->onChange = [this] { showChoice(); };
    m_lists->onFileActivated = [this] { m_select->click(); };
    m_lists->goTo(nearestFolder(folder));
    m_lists->focusFolders();
}

void frmdnSelectFile::showChoice()
{
    const QString file = m_lists->file();
    m_pathName->setText(file.isEmpty() ? m_lists->folder()
                                       : storage::joinPath(m_lists->folder(), file));
    m_select->setEnabled(!file.isEmpty());
}

QString frmdnSelectFile::pathName() const
{
    return m_pathName->text();
}

QString selectFile(const QString& pattern, const QString& folder)
{
    frmdnSelectFile dialog(pattern, folder);
    return dialog.exec() == QDialog::Accepted ? dialog.pathName() : QString();
}
