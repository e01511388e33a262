#include "screens/folder_lists.h"

#include "core/messages.h"
#include "core/storage/file_paths.h"

namespace {
constexpr char oneUp[] = "..";
}

FolderLists::FolderLists(const Names& names, const QString& pattern, bool choosesFiles)
    : m_pattern(pattern),
      m_choosesFiles(choosesFiles),
      m_drives(drives()),
      m_drive(new QComboBox),
      m_folders(new QListWidget),
      m_files(new QListWidget)
{
    build(names);
    for (const Drive& drive : m_drives)
        m_drive->addItem(drive.caption);
    QObject::connect(m_drive, &QComboBox::activated, this, [this](int row) { takeDrive(row); });
    QObject::connect(m_folders, &QListWidget::itemDoubleClicked, this,
                     [this](QListWidgetItem* item) { enter(item->text()); });
    if (!choosesFiles)
        return;
    QObject::connect(m_files, &QListWidget::currentRowChanged, this, [this] { onChange(); });
    QObject::connect(m_files, &QListWidget::itemDoubleClicked, this, [this] { onFileActivated(); });
}

void FolderLists::build(const Names& names)
{
    m_drive->setObjectName(names.drive);
    m_folders->setObjectName(names.folders);
    m_folders->installEventFilter(this);
    m_files->setObjectName(names.files);
    if (!m_choosesFiles) {
        m_files->setFocusPolicy(Qt::NoFocus);
        m_files->setSelectionMode(QAbstractItemView::NoSelection);
    }
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    auto* folderCaption = new QLabel("&Folders");
    folderCaption->setBuddy(m_folders);
    auto* fileCaption = new QLabel(names.filesCaption);
    if (m_choosesFiles)
        fileCaption->setBuddy(m_files);
    grid->addWidget(folderCaption, 0, 0);
    grid->addWidget(fileCaption, 0, 1);
    grid->addWidget(m_folders, 1, 0);
    grid->addWidget(m_files, 1, 1);
    m_folders->setMinimumSize(260, 260);
    m_files->setMinimumWidth(200);
}

void FolderLists::focusFolders()
{
    m_folders->setFocus();
}

QString FolderLists::file() const
{
    return m_choosesFiles && m_files->currentItem() ? m_files->currentItem()->text() : QString();
}

bool FolderLists::eventFilter(QObject* watched, QEvent* event)
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
    return QWidget::eventFilter(watched, event);
}

void FolderLists::takeDrive(int row)
{
    const Drive drive = m_drives.value(row);
    if (!canBeRead(drive.root)) {
        showCritical("Drive Unavailable.", "Cannot access drive: " + drive.caption);
        showDriveOfFolder();
        return;
    }
    goTo(drive.root);
}

void FolderLists::enter(const QString& name)
{
    if (name == oneUp)
        goUp();
    else
        goTo(storage::joinPath(m_folder, name));
}

void FolderLists::goUp()
{
    if (const QString parent = parentFolder(m_folder); !parent.isEmpty())
        goTo(parent);
}

void FolderLists::goTo(const QString& folder)
{
    if (!canBeRead(folder)) {
        showCritical("Drive Unavailable.", "Cannot access drive: " + folder);
        return;
    }
    const bool isFirst = m_folder.isEmpty();
    m_folder = folder;
    m_folders->clear();
    if (!parentFolder(folder).isEmpty())
        m_folders->addItem(oneUp);
    m_folders->addItems(foldersIn(folder));
    m_folders->setCurrentRow(0);
    m_files->clear();
    m_files->addItems(filesIn(folder, m_pattern));
    if (isFirst)
        showDriveOfFolder();
    onChange();
}

// The drive whose root leads furthest into the folder.
void FolderLists::showDriveOfFolder()
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
