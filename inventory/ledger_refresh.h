// The utility that makes a branch's ledger anew from its documents.
#pragma once

#include <QElapsedTimer>

#include "core/session.h"
#include "screens/small_dialog.h"

class BranchSelector;
class QProgressBar;

class frmVEXINVCALC : public SmallDialog
{
public:
    explicit frmVEXINVCALC(Session session);

private:
    void saveBranch();
    void refresh();
    void setRunning(bool isRunning);
    bool proceed();

    Session m_session;
    BranchSelector* m_branch;
    QProgressBar* m_progress;
    QPushButton* m_start;
    QPushButton* m_exit;
    QElapsedTimer m_sinceShown;
    qint64 m_rows = 0;
    bool m_isRunning = false;
    bool m_isCancelled = false;
};
