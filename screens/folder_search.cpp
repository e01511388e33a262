#include "screens/folder_search.h"

#include "screens/folder_lists.h"

frmDBPSearch::frmDBPSearch(const QString& path)
    : SmallDialog("frmDBPSearch", "Select Location of Database Files"),
      m_lists(new FolderLists({"drvDRIVE", "dirFOLDER", "filFILES", "Database files here"}, "*.mdb",
                              false))
{
    addField("&Drive", m_lists->drive());
    addAcross(m_lists);
    QLabel* pathNameLabel = addText("lblPATHNAME", {});
    addClosingButton("cmdSelect", "&Select This Folder", Accepted)->setDefault(true);
    escTakes(addClosingButton("cmdCancel", "&Cancel"));
    m_lists->onChange = [this, pathNameLabel] { pathNameLabel->setText(m_lists->folder()); };
    m_lists->goTo(nearestFolder(path));
    m_lists->focusFolders();
}

QString frmDBPSearch::pathName() const
{
    return m_lists->folder();
}

QString chooseFolder(const QString& beginAt)
{
    frmDBPSearch search(beginAt);
    return search.exec() == QDialog::Accepted ? search.pathName() : QString();
}
