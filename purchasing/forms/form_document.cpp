#include "purchasing/forms/form_document.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/storage/file_paths.h"
#include "cost/companies.h"
#include "purchasing/document_numbers.h"

namespace {

constexpr char amountMask[] = "###,###,###.00";

QString phoneOf(const storage::Field& field)
{
    return printedPhone(textOf(field));
}

QString joined(const QString& before, const QString& separator, const QString& after)
{
    return before.isEmpty() || after.isEmpty() ? before + after : before + separator + after;
}

QString zipOf(const storage::Recordset& rows)
{
    return joined(trimmedTextOf(rows["ZIP"]), "-", trimmedTextOf(rows["PLUS4"]));
}

void setLetterhead(FormDocument& document, const Session& session)
{
    OpenTable open = openTable(session, "MAIN.mdb", "COLIST");
    const storage::Recordset& rows = open.rows;
    open.rows.Index("CONO");
    if (!open.rows.Seek("=", document.CONO))
        return;
    document.companyName = trimmedTextOf(rows["CONAME"]);
    document.logo = logoPath(textOf(rows["LOGOFILENAME"]));
    const QString stateAndZip = joined(trimmedTextOf(rows["State"]), " ", zipOf(rows));
    QString phones;
    if (const QString voice = phoneOf(rows["VOICE"]); !voice.isEmpty())
        phones = "Voice: " + voice;
    if (const QString fax = phoneOf(rows["FAX"]); !fax.isEmpty())
        phones = joined(phones, "    ", "Fax: " + fax);
    for (const QString& line : {trimmedTextOf(rows["ADDRESS1"]), trimmedTextOf(rows["ADDRESS2"]),
                                joined(trimmedTextOf(rows["CITY"]), ", ", stateAndZip), phones,
                                trimmedTextOf(rows["INFOLINE1"]), trimmedTextOf(rows["INFOLINE2"])})
        if (!line.isEmpty())
            document.companyLines.append(line);
}

void setVendor(FormDocument& document, const Session& session, qint32 VENTAG)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "VENDORS");
    const storage::Recordset& rows = open.rows;
    open.rows.Index("VENTAG");
    if (VENTAG == 0 || !open.rows.Seek("=", VENTAG))
        return;
    document.vendorNumber = trimmedTextOf(rows["VENNO"]);
    document.vendor = trimmedTextOf(rows["Name"]);
    document.address =
        joined(trimmedTextOf(rows["ADDRESS1"]), "\n", trimmedTextOf(rows["ADDRESS2"]));
    document.city = trimmedTextOf(rows["CITY"]);
    document.state = trimmedTextOf(rows["State"]);
    document.zip = zipOf(rows);
    document.phone = phoneOf(rows["PHONE"]);
    document.fax = phoneOf(rows["FAX"]);
}

// A record of the equipment's file, where the site has one.
struct EquipmentOrder
{
    const char* table;
    schema::FieldName tag;
    schema::FieldName number;
    schema::FieldName equipment;
    const char* numberLabel;
    const char* equipmentLabel;
};
constexpr EquipmentOrder workOrder = {"BRQWOLIST",
                                      "BRQWOTAG",
                                      "BRQWONO",
                                      "EQNO",
                                      " Equipment Maintenance W/O #: ",
                                      "   Equipment Number: "};
constexpr EquipmentOrder repairOrder = {"BRQROLIST", "BRQROTAG",          "BRQRONO",
                                        "UNITNO",    " Repair Order #: ", "  Unit Number: "};

void setEquipment(FormDocument& document, const Session& session, const EquipmentOrder& order,
                  qint32 tag)
{
    constexpr char file[] = "ZORBRQ.mdb";
    if (tag == 0 || !storage::pathExists(storage::joinPath(folderOf(session, file), file)))
        return;
    OpenTable open = openTable(session, file, order.table);
    if (!dnSeek(open.rows, QString::fromLatin1(order.tag.text()), {{order.tag, tag}}).isEmpty())
        document.equipment = order.numberLabel + trimmedTextOf(open.rows[order.number]) +
                             order.equipmentLabel + trimmedTextOf(open.rows[order.equipment]);
}

// What requisitions and orders have in common.
FormDocument headOf(const Session& session, const storage::Recordset& rows)
{
    const auto text = [&rows](schema::FieldName field) { return trimmedTextOf(rows[field]); };
    FormDocument document{.CONO = intOf(rows["CONO"]),
                          .JOBNO = textOf(rows["JOBNO"]),
                          .amount = numberOf(rows["AMOUNT"])};
    document.date = text("FDATE");
    document.shipTo = text("SHIPTO");
    document.number = text("PONO");
    document.jobNumber = text("JOBNO");
    document.shipVia = text("SHIPVIA");
    document.fob = text("FOB");
    document.promisedBy = text("PROMBY");
    document.terms = text("TERMS");
    const QString REIMB = text("REIMB").toUpper();
    document.reimbursable = REIMB == "Y" ? "Yes" : REIMB == "N" ? "No" : "";
    document.vendorContact = text("VCONTACT");
    document.qualityLevel = text("QLEVEL");
    document.intendedUse = text("INTEND");
    document.requiredBy = text("Required");
    document.requisitioner = text("WHODIDIT");
    document.approver = text("APPROVER");
    document.total = dnFormat(document.amount, amountMask);
    setLetterhead(document, session);
    setVendor(document, session, intOf(rows["VENTAG"]));
    setEquipment(document, session, workOrder, intOf(rows["BRQWOTAG"]));
    setEquipment(document, session, repairOrder, intOf(rows["BRQROTAG"]));
    return document;
}

QString requisitionNumberOf(const Session& session, qint32 REQTAG)
{
    if (REQTAG == 0)
        return "(none)";
    OpenTable open = openTable(session, "ZORVEX.mdb", "REQLIST");
    return dnSeek(open.rows, "REQTAG", {{"REQTAG", REQTAG}}).isEmpty()
               ? QString("(Cannot Find Req)")
               : shownRequisitionNumber(intOf(open.rows["REQNO"]));
}

}  // namespace

QString printedPhone(const QString& text)
{
    const bool hasDigits =
        std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    return hasDigits ? text.trimmed() : QString();
}

FormSettings formSettings(const Session& session)
{
    const QString& site = session.JobSitePath;
    return {.wholeQuantities = siteSwitch(site, "VEXNODECIMAL"),
            .hasSecondColumn = siteSwitch(site, "VEXUSECOL2"),
            .secondColumn = siteSetting(site, "VEXCOL2TXT").toString().trimmed(),
            .hasSubtotals = siteSwitch(site, "VEXCCSTL"),
            .hasNotice = siteSwitch(site, "VEXPRINTPONOTICE"),
            .noticeLimit = siteSetting(site, "POLIMIT").toDouble(),
            .hasQualityBlocks = siteSwitch(site, "VEXPRTQCSIGBLK"),
            .hasAddendum = siteSwitch(site, "VEXPRINTPOTERMS"),
            .printsGroupA = siteSwitch(site, "VEXJOBNOPRINTOPT"),
            .joinsNumbers = siteSwitch(site, "VEXCOMBINEJNPONO"),
            .hasAssetColumn = siteSwitch(site, "VEXPRINTASSETCOL")};
}

FormDocument requisitionDocument(const Session& session, const storage::Recordset& rows)
{
    FormDocument document = headOf(session, rows);
    document.requisitionNumber = shownRequisitionNumber(intOf(rows["REQNO"]));
    return document;
}

FormDocument orderDocument(const Session& session, const storage::Recordset& rows)
{
    FormDocument document = headOf(session, rows);
    document.revision = QString::number(intOf(rows["REVNO"]));
    document.requisitionNumber = requisitionNumberOf(session, intOf(rows["REQTAG"]));
    return document;
}

FormDocument blankDocument(const Session& session, int CONO)
{
    FormDocument document{.CONO = CONO};
    setLetterhead(document, session);
    return document;
}

void setNumbers(FormDocument& document, const FormSettings& settings, const QString& costCodeA)
{
    if (settings.printsGroupA)
        document.jobNumber = costCodeA.trimmed();
    if (settings.joinsNumbers)
        document.number = joined(document.jobNumber, "-", document.number);
}
