#include "inventory/ledger_refresh.h"

#include <QCoreApplication>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QTableWidget>

#include "core/locators.h"
#include "core/messages.h"
#include "core/user_settings.h"
#include "inventory/ledger_rebuild.h"
#include "screens/selectors/branch_selector.h"

frmVEXINVCALC::frmVEXINVCALC(Session session)
    : SmallDialog("frmVEXINVCALC", "Refresh Inventory Transactions Utility"),
      m_session(std::move(session)),
      m_branch(new BranchSelector),
      m_progress(new QProgressBar)
{
    addAcross(m_branch);
    m_branch->setFolder(m_session.JobSitePath);
    OpenTable settings = openTable(m_session, "ZORUSER.mdb", "VEXSETTINGS");
    m_branch->setTag(zorGetUserSetting(settings.rows, m_session.SiteTag, "ILCTAG").toInt());
    connect(m_branch, &Selector::entered, this, [this] { m_branch->setActive(true); });
    connect(m_branch, &Selector::left, this, [this] {
        saveBranch();
        m_branch->setActive(false);
    });
    m_progress->setObjectName("ProgressBar1");
    m_progress->setTextVisible(false);
    m_progress->setRange(0, 1000);
    addAcross(m_progress);
    addText({}, "Inventory Items Where Changes Were Made");
    auto* changes = new QTableWidget(0, 5);
    changes->setHorizontalHeaderLabels(
        {"Part Number", "Old On Hand", "New On Hand", "Old On Order", "New On Order"});
    changes->setFocusPolicy(Qt::NoFocus);
    changes->setMinimumWidth(560);
    addAcross(changes);
    m_start = addButton("cmdRecalculate", "&Refresh Inventory Transactions", [this] { refresh(); });
    m_exit = addButton("CmdExit", "E&xit", [this] {
        if (m_isRunning)
            m_isCancelled = true;
        else
            done(Rejected);
    });
    escTakes(m_exit);
}

void frmVEXINVCALC::saveBranch()
{
    if (m_branch->tag() == 0)
        return;
    OpenTable settings = openTable(m_session, "ZORUSER.mdb", "VEXSETTINGS");
    zorSaveUserSetting(settings.rows, m_session.SiteTag, "ILCTAG", m_branch->tag());
}

void frmVEXINVCALC::refresh()
{
    if (m_isRunning)
        return;
    if (m_branch->tag() == 0) {
        showCritical("Error", branchHint);
        m_branch->setFocus();
        return;
    }
    saveBranch();
    setRunning(true);
    bool isWhole = false;
    {
        const auto done = qScopeGuard([this] { setRunning(false); });
        isWhole =
            rebuildLedger(m_session.JobSitePath, m_branch->tag(), [this] { return proceed(); });
    }
    if (isWhole)
        showInformation("Finished", "Invenotory Quantities have been Recalculated.");
    else
        showCritical("Process Incomplete",
                     "Process has been interrupted. \n"
                     "Warning: Not all Quantities were Recalculated.");
}

// The bar goes round: nobody knows how many rows there will be.
bool frmVEXINVCALC::proceed()
{
    constexpr qint64 longestHold = 20;  // milliseconds
    ++m_rows;
    if (m_sinceShown.isValid() && m_sinceShown.elapsed() < longestHold)
        return !m_isCancelled;
    m_progress->setValue(static_cast<int>(m_rows % 1000) + 1);
    QCoreApplication::processEvents();
    m_sinceShown.start();
    return !m_isCancelled;
}

void frmVEXINVCALC::setRunning(bool isRunning)
{
    m_isRunning = isRunning;
    m_isCancelled = false;
    m_rows = 0;
    m_sinceShown.invalidate();  // the first row shows that work has begun
    m_progress->setValue(0);
    m_start->setEnabled(!isRunning);
    m_branch->setEnabled(!isRunning);
    m_exit->setText(isRunning ? "&Cancel" : "E&xit");
    m_exit->setFocus();
}
