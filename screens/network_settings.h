// Who the user is on the network, and where the network database lies.
#pragma once

#include "core/session.h"
#include "screens/small_dialog.h"

class FolderField;

class frmNETSET : public SmallDialog
{
public:
    // `moduleCode` is one of the suite's, such as "VEX".
    frmNETSET(const Session& session, const QString& moduleCode);

private:
    void load();
    void addOrCancel();
    void addThisUser();
    void changeOrUpdate();
    void setEditing(bool editing);

    QString m_userName;
    QLabel* m_userTag;
    FolderField* m_path;
    QPushButton* m_change;
    QPushButton* m_add;
    QPushButton* m_exit;
};
