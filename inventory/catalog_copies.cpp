#include "inventory/catalog_copies.h"

#include <QLineEdit>
#include <QPushButton>

#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/storage_error.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "core/zap.h"
#include "inventory/catalog_rules.h"
#include "inventory/item_codes.h"
#include "inventory/item_rules.h"
#include "inventory/item_vendor.h"
#include "multiuser/run_log.h"
#include "screens/desktop.h"
#include "screens/logs/error_log.h"
#include "screens/logs/log_prints.h"
#include "screens/progress.h"
#include "screens/report/report_window.h"
#include "screens/selectors/branch_selector.h"
#include "screens/selectors/look_up_field.h"
#include "screens/small_dialog.h"

namespace {

constexpr char logWord[] = "Inventory Catalog";

void tellStopped()
{
    showCritical("Process Incomplete", "Process has been interrupted. ");
}

// Writes each remark to the user's buffer and, with its part number, to the log that is shown.
class CopyLog
{
public:
    explicit CopyLog(const Session& session)
        : m_errors(session.UserSettingsPath),
          m_buffer(emptiedTable(session.UserSettingsPath, "ZORUSER.mdb", "VEXINVCOPYBUF"))
    {
        m_errors.empty();
    }
    void add(const QString& PARTNO, const QString& remark)
    {
        constexpr int numberWidth = 18;
        m_buffer.rows.AddNew();
        m_buffer.rows["PARTNO"] = PARTNO;
        m_buffer.rows["REMARK"] = remark;
        m_buffer.rows.Update();
        m_errors.add(PARTNO.leftJustified(numberWidth) + "  " + remark);
    }

private:
    ErrorLog m_errors;
    OpenTable m_buffer;
};

// Runs a copy with progress and log, and tells its end.
void runCopy(SmallDialog* dialog, const Session& session, const ItemKind& kind, qint32 ILCTAG,
             qint32 VENTAG, const QString& done)
{
    if (!hasTaggedItems(kind, session.JobSitePath, ILCTAG))
        return showCritical("Cannot Post.", "Nothing to Do (There are No Tagged Items).");
    bool isStopped = false;
    try {
        CopyLog log(session);
        Progress progress(dialog, "Copying items...");
        const ItemCopies copies{.jobSitePath = session.JobSitePath,
                                .userName = session.UserName,
                                .ILCTAG = ILCTAG,
                                .VENTAG = VENTAG,
                                .tell = [&log](const QString& PARTNO,
                                               const QString& remark) { log.add(PARTNO, remark); },
                                .proceed =
                                    [&] {
                                        isStopped = !progress.step();
                                        return !isStopped;
                                    }};
        (kind.isOfBranch ? copyToCatalog : copyToBranch)(copies);
    } catch (const storage::StorageError& error) {
        return showCritical("Error", "Error During Processing: " + error.description());
    }
    if (isStopped)
        tellStopped();
    else
        showInformation("Posting Complete", done);
}

void addLogAndExit(SmallDialog* dialog, const Session& session)
{
    dialog->addButton("cmdViewErrorLog", "View Error &Log",
                      [session] { openScreen(new frmZORERRLOG01(session, logWord)); });
    dialog->escTakes(dialog->addClosingButton("cmdExit", "E&xit"));
}

void refreshNumbers(SmallDialog* dialog, const Session& session)
{
    ActivityLog log(session.UserSettingsPath);
    if (!log.empty())
        return;
    NumberRefresh result;
    {
        Progress progress(dialog, "Refreshing part numbers...");
        result = refreshPartNumbers(
            session.JobSitePath, [&log](const QString& line) { log.add(line); },
            [&progress] { return progress.step(); });
    }
    if (!result.isComplete)
        return tellStopped();
    showInformation("Process Complete",
                    result.updated > 0 ? QString::number(result.updated) + " Items Were Updated."
                                       : QString("No Part Numbers were Updated."));
}

}  // namespace

SmallDialog* frmVEXINV09(const Session& session, qint32 ILCTAG)
{
    auto* dialog = new SmallDialog("frmVEXINV09", "Add Tagged Items to Inventory Catalog");
    LookUpField* vendor = vendorLookUp(session);
    dialog->addText({},
                    "A vendor chosen here becomes the preferred vendor of the items that are "
                    "added to the catalog; without one each keeps its own.");
    dialog->addField("&Vendor Number:", vendor);
    dialog->enterTakes(dialog->addButton("cmdPost", "&Post", [dialog, vendor, session, ILCTAG] {
        qint32 VENTAG = 0;
        if (dnNotBlank(vendor->code())) {
            const auto row = codeRow(session.JobSitePath, vendorCodes, 0, vendor->code());
            if (!row) {
                showCritical("Cannot Post", "Cannot Find Vendor Number: " + vendor->code());
                return vendor->edit().setFocus();
            }
            VENTAG = row->tag;
        }
        runCopy(dialog, session, branchItems, ILCTAG, VENTAG,
                "Tagged Items Have Been Added to the Inventory Catalog.");
    }));
    addLogAndExit(dialog, session);
    vendor->edit().setFocus();
    return dialog;
}

SmallDialog* frmVEXINVCAT09(const Session& session)
{
    auto* dialog = new SmallDialog("frmVEXINVCAT09",
                                   "Add Tagged Inventory Catalog Items to a Branch Inventory");
    auto* branch = new BranchSelector;
    dialog->addAcross(branch);
    branch->setFolder(session.JobSitePath);
    OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
    branch->setTag(zorGetUserSetting(settings.rows, session.SiteTag, "ILCTAG").toInt());
    QObject::connect(branch, &Selector::entered, dialog, [branch] { branch->setActive(true); });
    QObject::connect(branch, &Selector::left, dialog, [branch] { branch->setActive(false); });
    dialog->enterTakes(dialog->addButton("cmdPost", "&Post", [dialog, branch, session] {
        if (branch->tag() == 0) {
            showCritical("Cannot Post", branchHint);
            return branch->setFocus();
        }
        runCopy(dialog, session, catalogItems, branch->tag(), 0,
                "Tagged Items Have Been Added to the Branch Inventory.");
    }));
    addLogAndExit(dialog, session);
    return dialog;
}

SmallDialog* frmVEXREFRESHPN(const Session& session)
{
    auto* dialog = new SmallDialog("frmVEXREFRESHPN", "Refresh Masteer Part Numbers List Utility");
    dialog->addText({},
                    "Gives every part number in the master list the branch of its item. What "
                    "was changed stands in the activity log.");
    dialog->enterTakes(dialog->addButton("cmdBegin", "&Begin",
                                         [dialog, session] { refreshNumbers(dialog, session); }));
    dialog->addButton("cmdPrint", "&Print Activity Log",
                      [session] { openScreen(new ReportWindow(frmZORPRINTACT(), session)); });
    dialog->escTakes(dialog->addClosingButton("cmdExit", "E&xit"));
    return dialog;
}
