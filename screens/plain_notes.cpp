#include "screens/plain_notes.h"

namespace {

NoteScreen makeNote(const QString& name, const QString& caption)
{
    return std::make_unique<SmallDialog>(name, caption);
}

void addOk(SmallDialog& note)
{
    note.enterTakes(note.addClosingButton("cmdOK", "&OK", QDialog::Accepted));
}

void addStamp(SmallDialog& note, const QString& heading, const QString& prefix,
              const UpdateHistory::Stamp& stamp)
{
    note.addHeading(heading);
    note.addValue("User Name:", "lbl" + prefix + "NAME", stamp.userName);
    note.addValue("Date:", "lbl" + prefix + "DATE", stamp.date);
    note.addValue("Time:", "lbl" + prefix + "TIME", stamp.time);
}

}  // namespace

NoteScreen frmAboutView(const QString& title, const QString& moduleName, const QString& version)
{
    NoteScreen note = makeNote("frmAboutView", title);
    QLabel* module = note->addText("lblModuleName", moduleName);
    QFont large = module->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    module->setFont(large);
    note->addText("lblVersion", version);
    addOk(*note);
    return note;
}

NoteScreen frmDNNETNoAccess(const QString& userName, const QString& process)
{
    NoteScreen note = makeNote("frmDNNETNoAccess", "Access Denied");
    note->addValue("User Name: ", "lblUSERNAME", userName);
    note->addValue("Process: ", "lblProcess", process);
    note->addText("lblText",
                  "The above User is denied access to the above process.  For permission to access "
                  "the above process contact your network administrator.");
    addOk(*note);
    return note;
}

NoteScreen frmDNNETRLocked(const HeldLock& lock, bool mayRemove)
{
    NoteScreen note = makeNote("frmDNNETRLocked", "Record Locked");
    note->addValue("Table Name:", "lblTABLENAME", lock.tableName);
    note->addValue("User Name: ", "lblUSERNAME", lock.userName);
    note->addValue("Date/Time:", "lblRLTIMESTAMP", lock.takenAt);
    note->addText("lblText", "The Record you are attemping to access is locked by the above user.");
    addOk(*note);
    QPushButton* remove = note->addClosingButton("cmdREMOVE", "&Remove Lock", removesLock);
    remove->setHidden(!mayRemove);
    return note;
}

NoteScreen frmZORUpdateHistory(const UpdateHistory& history)
{
    NoteScreen note = makeNote("frmZORUpdateHistory", "Update Information");
    addStamp(*note, "When This Record was Created", "ADD", history.created);
    addStamp(*note, "When This Record was Last Updated", "EDIT", history.lastUpdated);
    addOk(*note);
    return note;
}

void zorShowUpdateHistory(storage::Recordset& rs, const QString& bookmark)
{
    frmZORUpdateHistory(updateHistoryOf(rs, bookmark))->exec();
}
