#include "screens/folder_search.h"

#include "core/messages.h"
#include "core/storage/file_paths.h"

namespace {
constexpr char oneUp[] = "..";
}

frmDBPSearch::frmDBPSearch(const QString& path)
    : SmallDialog("frmDBPSearch", "Select Location of Database Files"),
      m_drives(drives()),
      m_drive(new QComboBox),
      m_folders(new QListWidget),
      m_files(new QListWidget)
{
    build();
    for (const Drive& drive : m_drives)
        m_drive->addItem(drive.caption);
    goTo(nearestFolder(path));
    showDriveOfFolder();
    QObject::connect(m_drive, &QComboBox::activated, this, [this](int row) { takeDrive(row); });
    QObject::connect(m_folders, &QListWidget::itemDoubleClicked, this,
                     [this](QListWidgetItem* item) { enter(item->text()); });
    m_folders->setFocus();
}

void frmDBPSearch::build()
{
    m_drive->setObjectName("drvDRIVE");
    m_folders->setObjectName("dirFOLDER");
    m_folders->installEventFilter(this);
    m_files->setObjectName("filFILES");
    m_files->setFocusPolicy(Qt::NoFocus);
    m_files->setSelectionMode(QAbstractItemView::NoSelection);

    auto* lists = new QWidget;
    auto* grid = new QGridLayout(lists);
    grid->setContentsMargins(0, 0, 0, 0);
    auto* folderCaption = new QLabel("&Folders");
    folderCaption->setBuddy(m_folders);
    grid->addWidget(folderCaption, 0, 0);
    grid->addWidget(new QLabel("Database files here"), 0, 1);
    grid->addWidget(m_folders, 1, 0);
    grid->addWidget(m_files, 1, 1);
    m_folders->setMinimumSize(260, 260);
    m_files->setMinimumWidth(200);

    addField("&Drive", m_drive);
    addAcross(lists);
    m_pathName = addText("lblPATHNAME", {});
    addClosingButton("cmdSelect", "&Select This Folder", Accepted)->setDefault(true);
    escTakes(addClosingButton("cmdCancel", "&Cancel"));
}

bool frmDBPSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_folders && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_folders->currentItem()) {
            enter(m_folders->currentItem()->text());
            return true;
        }
        if (key == Qt::Key_Backspace) {
            goUp();
            return true;
        }
    }
    return SmallDialog::eventFilter(watched, event);
}

void frmDBPSearch::takeDrive(int row)
{
    const Drive drive = m_drives.value(row);
    if (!canBeRead(drive.root)) {
        showCritical("Drive Unavailable.", "Cannot access drive: " + drive.caption);
        showDriveOfFolder();
        return;
    }
    goTo(drive.root);
}

void frmDBPSearch::enter(const QString& name)
{
    if (name == oneUp)
        goUp();
    else
        goTo(storage::joinPath(m_folder, name));
}

void frmDBPSearch::goUp()
{
    if (const QString parent = parentFolder(m_folder); !parent.isEmpty())
        goTo(parent);
}

void frmDBPSearch::goTo(const QString& folder)
{
    if (!canBeRead(folder)) {
        showCritical("Drive Unavailable.", "Cannot access drive: " + folder);
        return;
    }
    m_folder = folder;
    m_pathName->setText(folder);
    m_folders->clear();
    if (!parentFolder(folder).isEmpty())
        m_folders->addItem(oneUp);
    m_folders->addItems(foldersIn(folder));
    m_folders->setCurrentRow(0);
    m_files->clear();
    m_files->addItems(databasesIn(folder));
}

// The drive whose root leads furthest into the folder.
void frmDBPSearch::showDriveOfFolder()
{
    qsizetype longest = 0;
    for (int row = 0; row < m_drives.size(); ++row) {
        const QString& root = m_drives[row].root;
        const bool within =
            m_folder.startsWith(root, Qt::CaseInsensitive) || m_folder + '/' == root;
        if (within && root.size() > longest) {
            longest = root.size();
            m_drive->setCurrentIndex(row);
        }
    }
}

QString chooseFolder(const QString& beginAt)
{
    frmDBPSearch search(beginAt);
    return search.exec() == QDialog::Accepted ? search.pathName() : QString();
}
