// The list of job sites, from which the one to work on is chosen.
#pragma once

#include "core/locators.h"
#include "core/session.h"
#include "screens/small_dialog.h"

class QListWidget;

class frmDBPSelect : public SmallDialog
{
public:
    // Begins on the session's job site.
    explicit frmDBPSelect(const Session& session);

    // Folder of the chosen job site; blank after a cancel.
    QString selectedPath() const { return m_selectedPath; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void load(const Session& session);
    void select();

    QListWidget* m_list;
    OpenTable m_sites;
    QString m_selectedPath;
};
