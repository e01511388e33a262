#include "screens/folder_field.h"

#include "screens/command_runner.h"
#include "screens/folder_search.h"

FolderField::FolderField(const QString& name)
    : m_shown(new QLabel), m_entry(new QLineEdit), m_search(new QPushButton("&Browse..."))
{
    m_shown->setObjectName("lbl" + name);
    m_shown->setTextFormat(Qt::PlainText);
    // As high as the entry, so that nothing moves when the edit begins.
    m_shown->setMinimumSize(360, qMax(m_entry->sizeHint().height(), m_search->sizeHint().height()));
    m_entry->setObjectName("txt" + name);
    m_entry->setMaxLength(255);
    m_entry->setMinimumWidth(260);
    m_search->setObjectName("cmdSelectPath");
    m_search->setAutoDefault(false);
    onPressed(m_search, [this] {
        const QString chosen = chooseFolder(m_entry->text());
        if (!chosen.isEmpty())
            m_entry->setText(chosen);
        m_entry->setFocus();
    });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_shown, 1);
    layout->addWidget(m_entry, 1);
    layout->addWidget(m_search);
    setFocusProxy(m_entry);
    setEditing(false);
}

void FolderField::setFolder(const QString& folder)
{
    m_shown->setText(folder);
}

QString FolderField::folder() const
{
    return m_shown->text();
}

void FolderField::beginEdit(const QString& folder)
{
    m_entry->setText(folder);
    setEditing(true);
    m_entry->selectAll();
    m_entry->setFocus();
}

void FolderField::endEdit()
{
    setEditing(false);
}

bool FolderField::isEditing() const
{
    return m_shown->isHidden();
}

QString FolderField::entered() const
{
    return m_entry->text().trimmed();
}

void FolderField::setEditing(bool editing)
{
    m_shown->setHidden(editing);
    m_entry->setVisible(editing);
    m_search->setVisible(editing);
}
