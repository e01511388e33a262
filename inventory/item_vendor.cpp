#include "inventory/item_vendor.h"

#include <QCheckBox>
#include <QLineEdit>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "screens/search/vendor_searches.h"
#include "screens/selectors/look_up_field.h"
#include "screens/small_dialog.h"

LookUpField* vendorLookUp(const Session& session)
{
    const QString site = session.JobSitePath;
    return new LookUpField("txtVENNO", "lblVENNAME",
                           {.nameOf = [site](const QString& code) -> std::optional<QString> {
                                const auto row = codeRow(site, vendorCodes, 0, code);
                                return row ? std::optional<QString>(row->name) : std::nullopt;
                            },
                            .choices = [] { return std::vector<CodeChoice>(); },
                            .search =
                                [site] {
                                    OpenTable vendors = openTable(site, "ZORVEX.mdb", "VENDORS");
                                    return goToFound(vendors.rows, zorSearchVendor(site))
                                               ? trimmedTextOf(vendors.rows["VENNO"])
                                               : QString();
                                },
                            .notFound = "Vendor Not Found"});
}

std::optional<qint32> frmVEXINV06(const Session& session)
{
    SmallDialog dialog("frmVEXINV06", "Post Preferred Vendor");
    dialog.addText("lblNotice",
                   "Notice: Select a Vendor Number or Click on the 'Clear Existing Vendors' Check "
                   "Box Below to CLEAR ALL PREFERRED VENDORS for those Items that have Been "
                   "Tagged.");
    LookUpField* vendor = vendorLookUp(session);
    auto* clear = new QCheckBox("&Clear Existing Vendors");
    clear->setObjectName("ckbClearVENTAGS");
    dialog.addField("&Vendor Number:", vendor);
    dialog.addAcross(clear);
    std::optional<qint32> chosen;
    dialog.enterTakes(dialog.addButton("cmdPost", "&Post", [&] {
        chosen = vendorToPost(session.JobSitePath, vendor->code(), clear->isChecked());
        if (chosen)
            dialog.accept();
        else
            vendor->edit().setFocus();
    }));
    dialog.escTakes(dialog.addClosingButton("cmdExit", "E&xit"));
    vendor->edit().setFocus();
    return dialog.exec() == QDialog::Accepted ? chosen : std::nullopt;
}

std::optional<qint32> vendorToPost(const QString& jobSitePath, const QString& VENNO, bool clears)
{
    if (clears)
        return 0;
    if (dnIsBlank(VENNO)) {
        showCritical("Cannot Post", "Nothing to Post. Vendor Number is Blank.");
        return {};
    }
    const auto row = codeRow(jobSitePath, vendorCodes, 0, VENNO);
    if (!row) {
        showCritical("Cannot Post", "Cannot Find Vendor Number: " + VENNO.trimmed());
        return {};
    }
    return row->tag;
}
