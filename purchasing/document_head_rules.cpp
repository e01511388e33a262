#include "purchasing/document_head_rules.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/stamps.h"
#include "core/system.h"
#include "core/user_settings.h"
#include "cost/document_fields.h"
#include "purchasing/document_head_checks.h"

namespace head {

namespace {

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

}  // namespace

NumberSource numberSourceOf(const Entry& entry)
{
    return orderNumberSource(entry.session().JobSitePath, entry.isTicked(overridden));
}

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

bool Rules::begin(Entry& entry)
{
    m_change.reset();
    if (entry.isAdding()) {
        beginNew(entry);
        return true;
    }
    const storage::Recordset& rows = entry.rows();
    const Session& session = entry.session();
    const QString reference =
        docReferenceText(session, intOf(rows["BRQWOTAG"]), intOf(rows["BRQROTAG"]));
    const auto known = vendorAt(session, intOf(rows["VENTAG"]));
    entry.setText("JOBNO", trimmedTextOf(rows["JOBNO"]));
    entry.setNamed(docReference, reference);
    m_reference = reference;
    if (known)
        entry.setNamed(vendor, known->VENNO);
    return true;
}

EntryRules::Step Rules::beforeWrite(Entry& entry)
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

void Rules::complete(const Entry& entry, storage::Recordset& rows)
{
    const Session& session = entry.session();
    const auto chosen = vendorOf(session, entry.named(vendor));
    rows["JOBNO"] = storedJobOf(entry, m_format);
    rows["PONO"] = entry["PONO"].trimmed();
    rows["VENTAG"] = chosen ? chosen->VENTAG : 0;
    rows["LDATE"] = dnDateKey(entry["FDATE"]);
    rows["REIMB"] = entry["REIMB"].trimmed().toUpper();
    // One that was left alone stands, also where its order cannot be shown.
    if (const QString typed = entry.named(docReference); entry.isAdding() || typed != m_reference) {
        const DocReference reference = docReferenceOf(session, typed);
        rows["BRQWOTAG"] = reference.BRQWOTAG;
        rows["BRQROTAG"] = reference.BRQROTAG;
    }
    if (entry.isAdding())
        completeNew(rows);
}

void Rules::written(Entry& entry, storage::Recordset& rows)
{
    const QString bookmark = rows.Bookmark();
    const Session& session = entry.session();
    const bool isNew = entry.isAdding();
    isNew ? zorStampAdd(rows, bookmark, session.UserName)
          : zorStampEdit(rows, bookmark, session.UserName);
    rows.Bookmark(bookmark);
    OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
    zorSaveUserSetting(settings.rows, session.SiteTag, "CONOPAIR", companyOf(entry));
    zorSaveUserSetting(settings.rows, session.SiteTag, "JOBNOPAIR", storedJobOf(entry, m_format));
    if (m_change)
        applyHeadChange(session, *std::exchange(m_change, {}));
}

bool Rules::beforeDelete(const Session& session, storage::Recordset& rows)
{
    const qint32 tag = intOf(rows[m_kind.tag]);
    const bool hasDetail = m_kind.isOrder() || hasLines(session, m_kind, tag);
    if (hasDetail &&
        !askYesNo("Confirm Delete.", m_kind.isOrder() ? "Are You Sure?" : "Are You Sure? "))
        return false;
    m_kind.isOrder() ? deleteOfOrder(session, tag) : deleteOfRequisition(session, tag);
    return true;
}

void Rules::beginNew(Entry& entry) const
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
    takeJobDefaults(entry, m_format, true);
    if (!m_kind.isOrder())
        if (const qint32 number = nextRequisitionNumber(session.JobSitePath); number != 0)
            entry.setText("REQNO", shownRequisitionNumber(number));
    const NumberSource source = numberSourceOf(entry);
    if (source == NumberSource::AutoFormat)
        entry.setText("PONO", formattedNumber(entry, m_kind, m_format));
    else if (source == NumberSource::Counter)
        entry.setText("PONO", nextOrderNumber(session.JobSitePath));
}

void Rules::completeNew(storage::Recordset& rows) const
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
void Rules::saveCounter(const Entry& entry) const
{
    const QString& site = entry.session().JobSitePath;
    if (!m_kind.isOrder()) {
        saveRequisitionCounter(site, static_cast<qint32>(entry.number("REQNO")));
    } else if (numberSourceOf(entry) == NumberSource::Counter &&
               !saveOrderCounter(site, entry["PONO"])) {
        showCritical("Empty Table",
                     "Purchase Order Number Counter Table is Empty.\n"
                     "Counter has Not Been Setup.\nCannot Update PO Number Counter Properly.");
    }
}

}  // namespace head
