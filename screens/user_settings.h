// Where the user's own database lies.
#pragma once

#include "core/session.h"
#include "screens/small_dialog.h"

class FolderField;

class frmUSERSET : public SmallDialog
{
public:
    explicit frmUSERSET(const Session& session);

    // The folder for the session: as stored for the user, else the one that it had.
    QString userSettingsPath() const { return m_userSettingsPath; }

private:
    void load();
    void modifyOrUpdate();
    void update();
    void exitOrCancel();
    void setEditing(bool editing);

    qint32 m_userTag;
    QString m_userSettingsPath;
    FolderField* m_path;
    QPushButton* m_modify;
    QPushButton* m_exit;
};
