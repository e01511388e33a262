#include "purchasing/vendor_panel.h"

#include <QLineEdit>
#include <QPushButton>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/tags.h"
#include "core/text.h"
#include "screens/field_keys.h"
#include "screens/small_dialog.h"

namespace {

struct PanelField
{
    QString VendorPanel::*value;
    schema::FieldName field;
    const char* control;
    const char* caption;
    int length;
    bool upperCase = false;
};
constexpr PanelField fields[] = {
    {&VendorPanel::VENNO, "VENNO", "txtVENNO", "Vendor &Number:", 10, true},
    {&VendorPanel::Name, "Name", "txtVENNAME", "Vendor N&ame:", 40},
    {&VendorPanel::ADDRESS1, "ADDRESS1", "txtADDRESS1", "A&ddress:", 40},
    {&VendorPanel::ADDRESS2, "ADDRESS2", "txtADDRESS2", "", 40},
    {&VendorPanel::CITY, "CITY", "txtCITY", "C&ity:", 30},
    {&VendorPanel::State, "State", "txtState", "S&tate:", 2, true},
    {&VendorPanel::ZIP, "ZIP", "txtZIP", "&Zip:", 10},
    {&VendorPanel::PLUS4, "PLUS4", "txtPLUS4", "Plus &4:", 4},
    {&VendorPanel::PHONE, "PHONE", "txtPHONE", "P&hone:", 20},
    {&VendorPanel::FAX, "FAX", "txtFAX", "Fa&x:", 20},
};

OpenTable openVendors(const Session& session)
{
    OpenTable vendors = openTable(session, "ZORVEX.mdb", "VENDORS");
    vendors.rows.Index("VENNO");
    return vendors;
}

bool refuse(const QString& text)
{
    showCritical("Cannot Update", text);
    return false;
}

}  // namespace

std::optional<VendorPanel> vendorPanelOf(const Session& session, const QString& VENNO)
{
    OpenTable vendors = openVendors(session);
    if (dnIsBlank(VENNO) || !vendors.rows.Seek("=", VENNO.trimmed()))
        return {};
    VendorPanel panel;
    for (const PanelField& field : fields)
        panel.*field.value = trimmedTextOf(vendors.rows[field.field]);
    return panel;
}

bool saveVendorPanel(const Session& session, const QString& oldVENNO, const VendorPanel& panel)
{
    const QString number = panel.VENNO.trimmed().toUpper();
    if (number.isEmpty())
        return refuse("Vendor Number is Blank.");
    if (dnIsBlank(panel.Name))
        return refuse("Vendor Name is Blank.");
    OpenTable vendors = openVendors(session);
    storage::Recordset& rows = vendors.rows;
    const bool isNew = dnIsBlank(oldVENNO);
    const bool isRenamed = number.compare(oldVENNO.trimmed(), Qt::CaseInsensitive) != 0;
    if ((isNew || isRenamed) && rows.Seek("=", number))
        return refuse(
            "Duplicate Vendor Number Detected.\nThe Vendor Number you have entered\n"
            "already exists in the Vendor Table.");
    qint32 tag = 0;
    if (isNew) {
        tag = dnGetNewTag(session.JobSitePath, "VENTAG", "ZORVEX.mdb", "VEXTAGS", session.SiteTag);
        if (tag == 0)
            return false;
        rows.AddNew();
        rows["VENTAG"] = tag;
        rows["TERMSCODETAG"] = 0;
    } else {
        if (!rows.Seek("=", oldVENNO.trimmed()))
            return refuse("Cannot Find Vendor Number: " + oldVENNO.trimmed());
        rows.Edit();
    }
    for (const PanelField& field : fields)
        rows[field.field] = panel.*field.value;
    rows["VENNO"] = number;
    rows.Update();
    return true;
}

std::optional<QString> editVendorPanel(const Session& session, const QString& VENNO)
{
    const std::optional<VendorPanel> stored = vendorPanelOf(session, VENNO);
    const QString oldNumber = stored ? stored->VENNO : QString();
    SmallDialog dialog("frmVendorPanel", stored ? "Edit Vendor" : "Add Vendor");
    std::vector<QLineEdit*> edits;
    for (const PanelField& field : fields) {
        auto* edit = new QLineEdit(stored ? *stored.*field.value : QString());
        edit->setObjectName(field.control);
        edit->setMaxLength(field.length);
        edit->setMinimumWidth(260);
        setFieldKeys(*edit, {.upperCase = field.upperCase});
        dialog.addField(field.caption, edit);
        edits.push_back(edit);
    }
    std::optional<QString> saved;
    dialog.addButton("cmdVUpdate", "&Update", [&] {
        VendorPanel panel;
        for (size_t i = 0; i < edits.size(); ++i)
            panel.*fields[i].value = edits[i]->text();
        if (!saveVendorPanel(session, oldNumber, panel))
            return edits.front()->setFocus();
        saved = panel.VENNO.trimmed().toUpper();
        dialog.accept();
    });
    dialog.escTakes(dialog.addClosingButton("cmdVCancel", "&Cancel"));
    edits.front()->setFocus();
    dialog.exec();
    return saved;
}
