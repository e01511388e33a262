#include "screens/selectors/job_list_selector.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "core/messages.h"
#include "screens/command_runner.h"
#include "screens/selectors/job_selector.h"

namespace {

enum Column { Company, Job, Name };

}  // namespace

tqJobList::tqJobList(const QString& name)
    : Selector(name),
      m_entry(new tqCoJobNumber(name + "Entry")),
      m_list(new QTreeWidget),
      m_add(new QPushButton("Add to &List")),
      m_remove(new QPushButton("&Remove"))
{
    m_entry->setToolTip({});  // the hint is the whole control's
    m_add->setObjectName("cmdAddJob");
    m_remove->setObjectName("cmdRemoveJob");
    m_list->setObjectName("lstJobs");
    m_list->setHeaderLabels({"Co. #", "Job #", "Description"});
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setSectionResizeMode(Company, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(Job, QHeaderView::ResizeToContents);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    rows()->addRow(m_entry);
    rows()->addRow(buttons);
    rows()->addRow(m_list);
    setFocusProxy(m_entry);
    onPressed(m_add, [this] { add(); });
    onPressed(m_remove, [this] { remove(); });
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this] { showState(); });
    showState();
}

void tqJobList::setDBPath(const QString& path)
{
    m_path = path;
    m_entry->setDBPath(path);
}

std::vector<tqJobList::Pair> tqJobList::pairs() const
{
    std::vector<Pair> all;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = m_list->topLevelItem(i);
        all.push_back({static_cast<qint16>(item->text(Company).toInt()),
                       item->data(Job, Qt::UserRole).toString()});
    }
    return all;
}

void tqJobList::setPairs(const std::vector<Pair>& pairs)
{
    m_list->clear();
    runCommand([&] {
        for (const Pair& pair : pairs)
            append(pair);
    });
    showState();
}

bool tqJobList::isEntryUnfinished() const
{
    return !m_entry->isEmpty();
}

void tqJobList::append(const Pair& pair)
{
    const std::vector<Pair> present = pairs();
    if (std::find(present.begin(), present.end(), pair) != present.end())
        return;
    auto* item = new QTreeWidgetItem(m_list);
    item->setText(Company, QString::number(pair.CoNumber));
    item->setText(Job, pair.JobNo.trimmed());
    item->setData(Job, Qt::UserRole, pair.JobNo);
    item->setText(
        Name,
        JobDirectory(m_path).jobName(pair.CoNumber, pair.JobNo).value_or("Job Number Not Found"));
}

void tqJobList::add()
{
    m_entry->checkTyped();
    if (!m_entry->IsValid())
        return showCritical("Error", "Invalid Company/Job Number Pair Detected.");
    append({m_entry->CoNumber(), m_entry->JobNo()});
    m_entry->setJobNo({});
    m_entry->setCoNumber(0);
    showState();
    m_entry->setFocus();
    Q_EMIT pairsChanged();
}

void tqJobList::remove()
{
    delete m_list->currentItem();
    showState();
    Q_EMIT pairsChanged();
}

void tqJobList::showState()
{
    m_remove->setEnabled(m_list->currentItem() != nullptr);
}
