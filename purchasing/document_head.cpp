#include "purchasing/document_head.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/stamps.h"
#include "core/system.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "cost/document_fields.h"
#include "cost/job_checks.h"
#include "purchasing/document_head_checks.h"
#include "purchasing/document_numbers.h"
#include "purchasing/header_changes.h"
#include "purchasing/vendor_panel.h"
#include "screens/data/data_session.h"

using Kind = EntryField::Kind;

namespace {

constexpr schema::FieldName overridden = "OVERRIDEPOAF";

EntryField shown(const char* name, const QString& caption,
                 std::function<QString(const Entry&)> shows)
{
    return {.kind = Kind::Shown, .name = name, .caption = caption, .shows = std::move(shows)};
}

// ---- the number of the order, which follows other fields
NumberSource sourceOf(const Entry& entry)
{
    return orderNumberSource(entry.session().JobSitePath, entry.isTicked(overridden));
}

// A requisition's own number is that of its first order; an order's keeps its suffix.
QString formattedNumber(const Entry& entry, const DocumentKind& kind, const JobNoFormat& format)
{
    int suffix = kind.isOrder() ? 0 : 1;
    QString type = kind.isOrder() ? QString() : entry["REQTYPE"].left(1);
    auto REQNO = static_cast<qint32>(kind.isOrder() ? 0 : entry.number("REQNO"));
    if (kind.isOrder() && !entry.isAdding() && entry.goToRecord()) {
        REQNO = intOf(entry.rows()["REQNO"]);
        suffix = intOf(entry.rows()["POSUFFIX"]);
        type = trimmedTextOf(entry.rows()["REQTYPE"]);
    }
    return autoFormattedNumber(storedJobOf(entry, format), type, REQNO, suffix);
}

// What the head is now, and what it was.
RequisitionHead headOf(const Entry& entry, const JobNoFormat& format)
{
    return {.CONO = companyOf(entry),
            .JOBNO = storedJobOf(entry, format),
            .REQTYPE = entry["REQTYPE"].left(1),
            .REQNO = static_cast<qint32>(entry.number("REQNO"))};
}

RequisitionHead headOf(const storage::Recordset& rows)
{
    return {.CONO = intOf(rows["CONO"]),
            .JOBNO = textOf(rows["JOBNO"]),
            .REQTYPE = trimmedTextOf(rows["REQTYPE"]),
            .REQNO = intOf(rows["REQNO"])};
}

class HeadRules : public EntryRules
{
public:
    HeadRules(const DocumentKind& kind, const JobNoFormat& format) : m_kind(kind), m_format(format)
    {
    }

    bool begin(Entry& entry) override
    {
        m_change.reset();
        if (entry.isAdding()) {
            beginNew(entry);
            return true;
        }
        const storage::Recordset& rows = entry.rows();
        const Session& session = entry.session();
        const QString reference =
            head::docReferenceText(session, intOf(rows["BRQWOTAG"]), intOf(rows["BRQROTAG"]));
        const auto vendor = head::vendorAt(session, intOf(rows["VENTAG"]));
        entry.setText("JOBNO", trimmedTextOf(rows["JOBNO"]));
        entry.setNamed(head::docReference, reference);
        if (vendor)
            entry.setNamed(head::vendor, vendor->VENNO);
        return true;
    }

    Step beforeWrite(Entry& entry) override
    {
        if (entry.isAdding())
            saveCounter(entry);
        if (m_kind.isOrder() || entry.isAdding() || !entry.goToRecord())
            return Step::Write;
        const Session& session = entry.session();
        const qint32 tag = intOf(entry.rows()["REQTAG"]);
        const QString stored = trimmedTextOf(entry.rows()["PONO"]);
        const QString typed = entry["PONO"].trimmed();
        m_change = headChange(session, tag, headOf(entry.rows()), headOf(entry, m_format),
                              typed == stored ? QString() : typed);
        if (!m_change)
            return Step::Write;
        if (const QString taken = takenNumber(session, *m_change); !taken.isEmpty()) {
            showCritical("Cannot Update", "Duplicate PO Number Detected.\nThe PO Number: " + taken +
                                              "\nHas Already Been Used.");
            return Step::Stay;
        }
        return askYesNo("PO Number Changed", headChangeText(*m_change)) ? Step::Write : Step::Stay;
    }

    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        const Session& session = entry.session();
        const auto vendor = head::vendorOf(session, entry.named(head::vendor));
        const head::DocReference reference =
            head::docReferenceOf(session, entry.named(head::docReference));
        rows["JOBNO"] = storedJobOf(entry, m_format);
        rows["PONO"] = entry["PONO"].trimmed();
        rows["VENTAG"] = vendor ? vendor->VENTAG : 0;
        rows["LDATE"] = dnDateKey(entry["FDATE"]);
        rows["REIMB"] = entry["REIMB"].trimmed().toUpper();
        rows["BRQWOTAG"] = reference.BRQWOTAG;
        rows["BRQROTAG"] = reference.BRQROTAG;
        if (entry.isAdding())
            completeNew(rows);
    }

    void written(Entry& entry, storage::Recordset& rows) override
    {
        const QString bookmark = rows.Bookmark();
        const Session& session = entry.session();
        const bool isNew = entry.isAdding();
        isNew ? zorStampAdd(rows, bookmark, session.UserName)
              : zorStampEdit(rows, bookmark, session.UserName);
        rows.Bookmark(bookmark);
        OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
        zorSaveUserSetting(settings.rows, session.SiteTag, "CONOPAIR", companyOf(entry));
        zorSaveUserSetting(settings.rows, session.SiteTag, "JOBNOPAIR",
                           storedJobOf(entry, m_format));
        if (m_change)
            applyHeadChange(session, *std::exchange(m_change, {}));
    }

    bool beforeDelete(const Session& session, storage::Recordset& rows) override
    {
        const qint32 tag = intOf(rows[m_kind.tag]);
        const bool hasDetail = m_kind.isOrder() || hasLines(session, m_kind, tag) ||
                               !relatedOrders(session, tag).empty();
        if (hasDetail &&
            !askYesNo("Confirm Delete.", m_kind.isOrder() ? "Are You Sure?" : "Are You Sure? "))
            return false;
        m_kind.isOrder() ? deleteOfOrder(session, tag) : deleteOfRequisition(session, tag);
        return true;
    }

private:
    void beginNew(Entry& entry) const
    {
        const Session& session = entry.session();
        OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
        const auto remembered = [&](const char* name) {
            return zorGetUserSetting(settings.rows, session.SiteTag, name);
        };
        if (const int CONO = remembered("CONOPAIR").toInt(); CONO != 0)
            entry.setText("CONO", QString::number(CONO));
        entry.setText("JOBNO", remembered("JOBNOPAIR").toString().trimmed());
        entry.setText("FDATE", System::current().now().toString("MM/dd/yyyy"));
        head::takeJobDefaults(entry, m_format, true);
        if (!m_kind.isOrder())
            if (const qint32 number = nextRequisitionNumber(session.JobSitePath); number != 0)
                entry.setText("REQNO", shownRequisitionNumber(number));
        const NumberSource source = sourceOf(entry);
        if (source == NumberSource::AutoFormat)
            entry.setText("PONO", formattedNumber(entry, m_kind, m_format));
        else if (source == NumberSource::Counter)
            entry.setText("PONO", nextOrderNumber(session.JobSitePath));
    }

    void completeNew(storage::Recordset& rows) const
    {
        rows["Status"] = "Open";
        rows["AMOUNT"] = 0;
        if (!m_kind.isOrder())
            return;
        for (const schema::FieldName field : {schema::FieldName("REQTAG"),
                                              {"REQNO"},
                                              {"POSUFFIX"},
                                              {"REVNO"},
                                              {"VEXDLTAG"},
                                              {"PONTAG"}})
            rows[field] = 0;
        rows["REQTYPE"] = "";
    }

    // Whatever the user has typed, the number after it is offered next.
    void saveCounter(const Entry& entry) const
    {
        const QString& site = entry.session().JobSitePath;
        if (!m_kind.isOrder()) {
            saveRequisitionCounter(site, static_cast<qint32>(entry.number("REQNO")));
        } else if (sourceOf(entry) == NumberSource::Counter &&
                   !saveOrderCounter(site, entry["PONO"])) {
            showCritical("Empty Table",
                         "Purchase Order Number Counter Table is Empty.\n"
                         "Counter has Not Been Setup.\nCannot Update PO Number Counter Properly.");
        }
    }

    const DocumentKind& m_kind;
    JobNoFormat m_format;
    std::optional<HeadChange> m_change;
};

// ---- fields
// A new number follows what it is made of; that of a stored requisition, too, which Update then
// asks about.
std::function<void(Entry&)> renumbers(const DocumentKind& kind, const JobNoFormat& format)
{
    return [&kind, format](Entry& entry) {
        if (!kind.isOrder() && sourceOf(entry) == NumberSource::AutoFormat)
            entry.setText("PONO", formattedNumber(entry, kind, format));
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
    return {
        .name = "txtPONO",
        .field = "PONO",
        .caption = "PO Number:",
        .keys = {.upperCase = true},
        .check = head::checkOrderNumber(kind),
        .isCheckedOnlyWhenLeft = !kind.isOrder(),
        .isLive = [](const Entry& entry) { return sourceOf(entry) != NumberSource::AutoFormat; }};
}

EntryField overrideField(const DocumentKind& kind, const JobNoFormat& format)
{
    return {.kind = Kind::Box,
            .name = "ckbPOAFOverRide",
            .field = overridden,
            .caption = "O&verride PO #   Auto Format ",
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

EntryField dateField(const char* name, schema::FieldName field, const QString& caption,
                     bool mayBeBlank, const QString& refusal)
{
    EntryField date{.kind = Kind::Date,
                    .name = name,
                    .field = field,
                    .caption = caption,
                    .check = head::checkDate(field, mayBeBlank, refusal)};
    if (!mayBeBlank)
        date.tidy = [](const QString& text) {
            const QString fixed = dnFixDate(text);
            return dnIsBlank(fixed) ? text : fixed;
        };
    return date;
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
        .rules = std::make_shared<HeadRules>(kind, format),
        .deleteQuestion =
            [session, &kind](storage::Recordset& rows) {
                const QString number = kind.isOrder()
                                           ? trimmedTextOf(rows["PONO"])
                                           : shownRequisitionNumber(intOf(rows["REQNO"]));
                return confirmDelete("Confirm Delete.",
                                     deletionText(session, kind, intOf(rows[kind.tag]), number));
            },
        .commands = {{"cmdVAdd", "&1 - Add Vendor", [](DataSession& in) { editVendor(in, true); }},
                     {"cmdVEdit", "&2 - Edit Vendor",
                      [](DataSession& in) { editVendor(in, false); }}},
    };
}
