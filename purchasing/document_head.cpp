#include "purchasing/document_head.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/text.h"
#include "cost/document_fields.h"
#include "cost/job_checks.h"
#include "purchasing/document_head_checks.h"
#include "purchasing/document_head_rules.h"
#include "purchasing/document_numbers.h"
#include "purchasing/header_changes.h"
#include "purchasing/vendor_panel.h"
#include "screens/data/data_session.h"

using Kind = EntryField::Kind;

namespace {

EntryField shown(const char* name, const QString& caption,
                 std::function<QString(const Entry&)> shows)
{
    return {.kind = Kind::Shown, .name = name, .caption = caption, .shows = std::move(shows)};
}

// ---- fields
// A new number follows what it is made of; that of a stored requisition, too, which Update then
// asks about.
std::function<void(Entry&)> renumbers(const DocumentKind& kind, const JobNoFormat& format)
{
    return [&kind, format](Entry& entry) {
        if (!kind.isOrder() && head::numberSourceOf(entry) == NumberSource::AutoFormat)
            entry.setText("PONO", head::formattedNumber(entry, kind, format));
    };
}

std::vector<EntryField> numberFields(const DocumentKind& kind, const JobNoFormat& format,
                                     const EntryField& type)
{
    std::vector<EntryField> fields;
    const auto renumber = renumbers(kind, format);
    if (!kind.isOrder()) {
        fields.push_back({.name = "txtREQNO",
                          .field = "REQNO",
                          .caption = "Re&quisition Number:",
                          .length = 5,
                          .keys = {.numbers = NumberKeys::Digits},
                          .format = "00000",
                          .check = head::checkRequisitionNumber,
                          .left = renumber});
        fields.push_back(type);
        fields.back().check = head::checkRequisitionType;
        fields.back().left = renumber;
    }
    return fields;
}

EntryField orderNumberField(const DocumentKind& kind)
{
    return {.name = "txtPONO",
            .field = "PONO",
            .caption = "PO Number:",
            .keys = {.upperCase = true},
            .check = head::checkOrderNumber(kind),
            .isCheckedOnlyWhenLeft = !kind.isOrder(),
            .isLive = [](const Entry& entry) {
                return head::numberSourceOf(entry) != NumberSource::AutoFormat;
            }};
}

EntryField overrideField(const DocumentKind& kind, const JobNoFormat& format)
{
    return {.kind = Kind::Box,
            .name = "ckbPOAFOverRide",
            .field = head::overridden,
            .caption = "Ove&rride PO #   Auto Format ",
            .left = renumbers(kind, format)};
}

std::vector<EntryField> pairFields(const DocumentKind& kind, const JobNoFormat& format)
{
    const auto renumber = renumbers(kind, format);
    const auto changed = [renumber, format](Entry& entry) {
        head::takeJobDefaults(entry, format, false);
        renumber(entry);
    };
    std::vector<EntryField> fields = {
        typedCompanyField([](const Entry& entry) {
            return jobDefaultsCompanyError(entry.session().JobSitePath, companyOf(entry));
        }),
        companyNameField(),
        typedJobField(format,
                      [format](const Entry& entry) {
                          return jobDefaultsJobError(entry.session().JobSitePath, companyOf(entry),
                                                     storedJobOf(entry, format));
                      }),
        jobNameField(format)};
    fields[2].left = changed;
    return fields;
}

std::vector<EntryField> vendorFields()
{
    const auto text = [](QString head::Vendor::*member) {
        return [member](const Entry& entry) {
            const auto vendor = head::vendorOf(entry.session(), entry.named(head::vendor));
            return vendor ? *vendor.*member : QString();
        };
    };
    return {{.name = head::vendor,
             .caption = "&Vendor Number:",
             .length = 10,
             .keys = {.upperCase = true},
             .check = head::checkVendor,
             .search = head::searchVendor,
             .searchName = "cmdVENNO"},
            shown("lblVENNAME", "", text(&head::Vendor::Name)),
            shown("lblVENADDRESS", "", text(&head::Vendor::address))};
}

// What need not be given is kept as it is typed.
EntryField dateField(const char* name, schema::FieldName field, const QString& caption,
                     bool mayBeBlank, const QString& refusal)
{
    return {.kind = Kind::Date,
            .name = name,
            .field = field,
            .caption = caption,
            .check = head::checkDate(field, mayBeBlank, refusal),
            .keepsTyped = mayBeBlank};
}

std::vector<EntryField> dateFields(const DocumentKind& kind)
{
    return {
        dateField("txtFDATE", "FDATE", kind.isOrder() ? "PO &Date:" : "Requisition &Date:", false,
                  "Invalid Requisition Date."),
        dateField("txtPROMBY", "PROMBY", "&Promised By:", true, "Invalid Promised By Date."),
        dateField("txtREQUIRED", "Required", "R&equired By:", true, "Invalid Requiured By Date.")};
}

std::vector<EntryField> textFields()
{
    return {
        {.name = "txtVCONTACT", .field = "VCONTACT", .caption = "Vendor Contact:"},
        {.name = "txtQLEVEL", .field = "QLEVEL", .caption = "Q &Level:"},
        {.name = "txtINTEND", .field = "INTEND", .caption = "&Intended Use:"},
        {.name = "txtCMRNO", .field = "CMRNO", .caption = "Client Req. No.:"},
        {.name = "txtAPPROVER", .field = "APPROVER", .caption = "Client &Approver:"},
        {.name = "txtLOCDISPOSITION", .field = "LOCDISPOSITION", .caption = "Loc./Disposition:"},
        {.name = "txtREIMB",
         .field = "REIMB",
         .caption = "Rei&mbursible:",
         .length = 1,
         .keys = {.upperCase = true},
         .check = head::checkReimbursable,
         .hint = "Y, N or blank"},
        {.name = head::docReference,
         .caption = "Document Reference:",
         .length = 15,
         .keys = {.upperCase = true},
         .check = head::checkDocReference,
         .search = head::searchDocReference,
         .searchName = "cmdPODOCREF",
         .hint = "W/O: or R/O: and the number"}};
}

QString requisitionText(const Entry& entry)
{
    if (entry.isAdding() || !entry.goToRecord() || intOf(entry.rows()["REQTAG"]) == 0)
        return " - <none>";
    OpenTable open = openTable(entry.session(), "ZORVEX.mdb", "REQLIST");
    open.rows.Index("REQTAG");
    if (!open.rows.Seek("=", intOf(entry.rows()["REQTAG"])))
        return "??????????";
    return shownRequisitionNumber(intOf(open.rows["REQNO"])) +
           "   Type: " + trimmedTextOf(open.rows["REQTYPE"]);
}

std::function<QString(const Entry&)> storedText(schema::FieldName field, const QString& ofNew)
{
    return [=](const Entry& entry) {
        if (entry.isAdding() || !entry.goToRecord())
            return ofNew;
        const QString text = trimmedTextOf(entry.rows()[field]);
        return text.isEmpty() ? ofNew : text;
    };
}

QString amountText(const Entry& entry)
{
    const bool isStored = !entry.isAdding() && entry.goToRecord();
    return dnFormat(isStored ? numberOf(entry.rows()["AMOUNT"]) : 0, "##,###,###.00").trimmed();
}

DataSection sectionOf(const DocumentKind& kind, const JobNoFormat& format, const Session& session)
{
    DataSection section{.fields = {}, .columns = 2};
    const auto add = [&section](const std::vector<EntryField>& fields) {
        section.fields.insert(section.fields.end(), fields.begin(), fields.end());
    };
    add(numberFields(kind, format, requisitionTypeField(session)));
    if (kind.isOrder())
        add({orderNumberField(kind), overrideField(kind, format)});
    add(pairFields(kind, format));
    if (kind.isOrder())
        add({shown("lblREQNO", "Requisition Number:", requisitionText),
             shown("lblPOSTATUS", "Status:", storedText("Status", "Open"))});
    else
        add({orderNumberField(kind), overrideField(kind, format)});
    add(vendorFields());
    add(dateFields(kind));
    add(deliveryFields());
    add(textFields());
    add({shown("lblAMOUNT", kind.isOrder() ? "PO Total:" : "Requisition Total:", amountText)});
    if (siteSwitch(session.JobSitePath, "VEXUCASEONLY"))
        for (EntryField& field : section.fields)
            field.keys.upperCase = true;
    return section;
}

// ---- commands of the vendor's panel
void editVendor(DataSession& screen, bool isNew)
{
    const QString number = isNew ? QString() : screen.entry().named(head::vendor);
    if (!isNew && dnIsBlank(number))
        return showCritical("Cannot Update", "Vendor Number is Blank.");
    if (const auto saved = editVendorPanel(screen.session(), number))
        screen.entry().setNamed(head::vendor, *saved);
}

}  // namespace

DataSpec frmVEXREQ02(const Session& session, const DocumentKind& kind, const JobNoFormat& format)
{
    return {
        .name = "frmVEXREQ02",
        .caption = kind.isOrder() ? "Purchase Order Information" : "Requisition Information",
        .table = kind.table,
        .index = kind.byNumber,
        .sections = {sectionOf(kind, format, session)},
        .tag = {.field = kind.tagName(), .hasSiteNumber = true},
        .lock = kind.lock,
        .rules = std::make_shared<head::Rules>(kind, format),
        .deleteQuestion =
            [session, &kind](storage::Recordset& rows) {
                const QString number = shownNumberOf(kind, rows);
                return confirmDelete("Confirm Delete.",
                                     deletionText(session, kind, intOf(rows[kind.tag]), number));
            },
        .commands = {{"cmdVAdd", "&1 - Add Vendor", [](DataSession& in) { editVendor(in, true); }},
                     {"cmdVEdit", "&2 - Edit Vendor",
                      [](DataSession& in) { editVendor(in, false); }}},
        .viewRefusal = {},
    };
}
