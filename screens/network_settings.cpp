#include "screens/network_settings.h"

#include "core/locators.h"
#include "core/messages.h"
#include "multiuser/users.h"
#include "screens/folder_field.h"
#include "screens/load_error.h"

namespace {

constexpr char none[] = "<none>";

QString moduleTitle(const QString& code)
{
    static const QHash<QString, QString> titles = {{"VEX", "Vexley Module"}};
    return titles.value(code, code);
}

QString storedNetworkFolder()
{
    if (!locatorExists("NETPATH"))
        return {};
    const OpenTable locator = openLocator("NETPATH");
    return locator.rows.RecordCount() > 0 ? trimmedPath(locator.rows) : QString();
}

void storeNetworkFolder(const QString& folder)
{
    OpenTable locator = openLocator("NETPATH");
    if (locator.rows.RecordCount() > 0)
        locator.rows.Edit();
    else
        locator.rows.AddNew();
    locator.rows["Path"] = folder;
    locator.rows.Update();
}

}  // namespace

frmNETSET::frmNETSET(const Session& session, const QString& moduleCode)
    : SmallDialog("frmNETSET", "Network Settings"), m_userName(session.UserName)
{
    addValue("Module:", "lblMODULE", moduleTitle(moduleCode));
    addValue("User Name:", "lblUSERNAME", m_userName);
    m_userTag = addValue("User Number:", "lblUSERTAG");
    m_path = new FolderField("NETPATH");
    addField("Network Database Path:", m_path);
    m_change = addButton("cmdNETPATH", {}, [this] { changeOrUpdate(); });
    m_add = addButton("cmdAdd", {}, [this] { addOrCancel(); });
    m_exit = addClosingButton("cmdExit", "E&xit");
    setEditing(false);
    loadScreen(this, [this] { load(); });
}

void frmNETSET::load()
{
    // The folder first: it is what there is to mend when the database in it cannot be opened.
    const QString folder = storedNetworkFolder();
    m_path->setFolder(folder.isEmpty() ? QString(none) : folder);
    m_userTag->setText(none);
    const qint32 tag = listedUserTag(m_userName);
    if (tag != 0)
        m_userTag->setText(QString::number(tag));
}

void frmNETSET::setEditing(bool editing)
{
    m_change->setText(editing ? "&Update Location Setting" : "&Change Location (Path)");
    m_add->setText(editing ? "&Cancel" : "&Add this User to List");
    m_exit->setVisible(!editing);
    escTakes(editing ? m_add : m_exit);
    if (editing) {
        m_change->setDefault(true);
        m_path->beginEdit(storedNetworkFolder());
    } else {
        m_path->endEdit();
        enterTakes(m_exit);
    }
}

void frmNETSET::changeOrUpdate()
{
    if (!m_path->isEditing()) {
        if (locatorExists("NETPATH"))
            setEditing(true);
        else
            showCritical("Cannot Continue", "The Database NETPATH.mdb is Missing.");
        return;
    }
    storeNetworkFolder(m_path->entered());
    setEditing(false);
    load();
}

void frmNETSET::addOrCancel()
{
    if (m_path->isEditing())
        setEditing(false);
    else
        addThisUser();
}

void frmNETSET::addThisUser()
{
    switch (addUser(m_userName)) {
        case UserAdded::Duplicate:
            showCritical("Cannot Update Record",
                         "Duplicate User Name Detected.\n"
                         "The User Name you have entered already exists.");
            break;
        case UserAdded::EmptyName:
            showCritical("Cannot Update Record", "Empty User Name Detected");
            break;
        case UserAdded::NoNetwork:
            break;
        case UserAdded::Added:
            load();
            showInformation("User List Updated",
                            "The User Name: " + m_userName.trimmed().toLower() +
                                " has been added to the list of users.");
            break;
    }
}
