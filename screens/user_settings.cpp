#include "screens/user_settings.h"

#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "screens/folder_field.h"
#include "screens/load_error.h"

namespace {

// The users' folders, on the row of this user if there is one.
struct UserRow
{
    OpenTable locator = openLocator("USERPATH");
    bool found = false;

    explicit UserRow(qint32 userTag)
    {
        locator.rows.Index("USERTAG");
        found = locator.rows.Seek("=", userTag);
    }
};

}  // namespace

frmUSERSET::frmUSERSET(const Session& session)
    : SmallDialog("frmUSERSET", "User Settings"),
      m_userTag(session.UserTag),
      m_userSettingsPath(session.UserSettingsPath)
{
    addValue("User Name:", "lblUSERNAME", session.UserName);
    m_path = new FolderField("USERPATH");
    addField("User Settings Database Location:", m_path);
    if (m_userTag == 0)
        addHeading("User Number is Zero. Add User First.")->setObjectName("lblMESSAGE");
    m_modify = addButton("cmdUSERPATH", {}, [this] { modifyOrUpdate(); });
    m_modify->setEnabled(m_userTag != 0);
    m_exit = addButton("cmdExit", {}, [this] { exitOrCancel(); });
    escTakes(m_exit);
    setEditing(false);
    loadScreen(this, [this] { load(); });
}

void frmUSERSET::load()
{
    const UserRow row(m_userTag);
    if (row.found)
        m_userSettingsPath = trimmedPath(row.locator.rows);
    m_path->setFolder(row.found ? m_userSettingsPath : QString(defaults::shownUserPath));
}

void frmUSERSET::setEditing(bool editing)
{
    m_modify->setText(editing ? "&Update Location Setting"
                              : "&Modify User Settings  Database Location");
    m_exit->setText(editing ? "&Cancel" : "E&xit");
    if (editing) {
        m_modify->setDefault(true);
        m_path->beginEdit(m_path->folder());
    } else {
        m_path->endEdit();
        enterTakes(m_exit);
    }
}

void frmUSERSET::modifyOrUpdate()
{
    if (m_path->isEditing())
        update();
    else
        setEditing(true);
}

void frmUSERSET::update()
{
    const QString folder = m_path->entered();
    const QString database = storage::joinPath(folder, "ZORUSER.mdb");
    if (!storage::pathExists(database)) {
        showCritical("Error", missingUserDatabaseText(database));
        m_path->setFocus();
        return;
    }
    {
        UserRow row(m_userTag);
        if (row.found)
            row.locator.rows.Edit();
        else
            row.locator.rows.AddNew();
        row.locator.rows["USERTAG"] = m_userTag;
        row.locator.rows["Path"] = folder;
        row.locator.rows.Update();
    }
    setEditing(false);
    load();
}

void frmUSERSET::exitOrCancel()
{
    if (m_path->isEditing())
        setEditing(false);
    else
        accept();
}
