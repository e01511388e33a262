#include "screens/job_site_choice.h"

#include "core/keyed_access.h"
#include "core/messages.h"
#include "screens/command_runner.h"
#include "screens/load_error.h"

frmDBPSelect::frmDBPSelect(const Session& session)
    : SmallDialog("frmDBPSelect", "Select Job Site"), m_list(new QListWidget)
{
    m_list->setObjectName("lstPATHNAME");
    m_list->setMinimumSize(380, 240);
    m_list->installEventFilter(this);
    QObject::connect(m_list, &QListWidget::itemDoubleClicked, this,
                     [this] { runCommand([this] { select(); }); });
    addAcross(m_list);
    addButton("cmdSelect", "&Select", [this] { select(); });
    escTakes(addClosingButton("cmdCancel", "&Cancel"));
    loadScreen(this, [&] { load(session); });
    m_list->setFocus();
}

void frmDBPSelect::load(const Session& session)
{
    m_sites = openLocator("DBPATHS");
    storage::Recordset& rows = m_sites.rows;
    rows.Index("DBPATHS");
    if (rows.RecordCount() == 0)
        return;
    for (bool more = rows.MoveFirst(); more; more = rows.MoveNext()) {
        // The list shows the name trimmed and seeks it as it is stored.
        auto* item = new QListWidgetItem(trimmedTextOf(rows["PATHNAME"]), m_list);
        item->setData(Qt::UserRole, textOf(rows["PATHNAME"]));
        if (trimmedTextOf(rows["PathText"]) == session.JobSitePath)
            m_list->setCurrentRow(m_list->count() - 1);
    }
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(0);
}

bool frmDBPSelect::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            runCommand([this] { select(); });
            return true;
        }
    }
    return SmallDialog::eventFilter(watched, event);
}

void frmDBPSelect::select()
{
    const QListWidgetItem* chosen = m_list->currentItem();
    if (!m_sites.rows.Seek("=", chosen ? chosen->data(Qt::UserRole).toString() : QString())) {
        showCritical("Invalid Selection", "Invalid Job Site Selected");
        m_list->setFocus();
        return;
    }
    m_selectedPath = trimmedTextOf(m_sites.rows["PathText"]);
    accept();
}
