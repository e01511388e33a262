#include "purchasing/document_head_checks.h"

#include <QPushButton>

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "cost/document_fields.h"
#include "screens/search/job_searches.h"
#include "screens/search/search_window.h"
#include "screens/search/vendor_searches.h"
#include "screens/small_dialog.h"

namespace head {

namespace {

constexpr char equipmentFile[] = "ZORBRQ.mdb";

// The two kinds of equipment orders that a document may belong to.
struct EquipmentOrder
{
    const char* prefix;
    const char* table;
    schema::FieldName tag;
    const char* byTag;
    schema::FieldName number;
    const char* notFound;
};
constexpr EquipmentOrder workOrders{
    "W/O: ",    "BRQWOLIST", "BRQWOTAG",
    "BRQWOTAG", "BRQWONO",   "Cannot Find Equipment Maintenance Work Order Number."};
constexpr EquipmentOrder repairOrders{"R/O: ",    "BRQROLIST",
                                      "BRQROTAG", "BRQROTAG",
                                      "BRQRONO",  "Cannot Find Equipment Repair Order Number: "};

bool hasEquipment(const Session& session)
{
    return storage::pathExists(storage::joinPath(session.JobSitePath, equipmentFile));
}

OpenTable openOrders(const Session& session, const EquipmentOrder& orders)
{
    return openTable(session.JobSitePath, equipmentFile, orders.table);
}

std::optional<Vendor> vendorOn(const OpenTable& vendors)
{
    const storage::Recordset& rows = vendors.rows;
    const auto text = [&rows](schema::FieldName field) { return trimmedTextOf(rows[field]); };
    QStringList address = {text("ADDRESS1"), text("ADDRESS2")};
    const QString place = (text("CITY") + ", " + text("State") + ' ' + text("ZIP")).trimmed();
    address.append(place == "," ? QString() : place);
    address.removeAll(QString());
    return Vendor{intOf(rows["VENTAG"]), text("VENNO"), text("Name"), address.join('\n')};
}

SearchRequest repairOrderRequest(const QString& path)
{
    return {.DBPath = path,
            .DBName = "ZORBRQ",
            .TableName = "BRQROLIST",
            .IndexList = "BRQRONO",
            .WindowTitle = "Search Eq. Repair Orders",
            .SearchTitle = "Eq. Repair Orders",
            .FieldList = "BRQRONO|FDATE|UNITNO|INSTRUCTIONS",
            .TypeList = "C|C|C|C",
            .LengthList = "10|10|20|100",
            .HeadingList = "R/O No.|Date|Unit No.|Instructions",
            .WidthList = "1200|1200|1500|5000",
            .AlignList = "0|0|0|0"};
}

// frmVEXPO08: 1 work orders, 2 repair orders, 0 a cancel. The choice is remembered.
int chooseDocSearch(const Session& session)
{
    OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
    const int last = zorGetUserSetting(settings.rows, session.SiteTag, "DOCSEARCHOPT").toInt();
    SmallDialog dialog("frmVEXPO08", "Select an Inventory Search Option");
    int chosen = 0;
    QPushButton* buttons[2] = {};
    constexpr const char* captions[] = {"Search Equipment Module &Work Orders",
                                        "Search Equipment Module &Repair Orders"};
    for (int option = 1; option <= 2; ++option) {
        auto* button = new QPushButton(captions[option - 1]);
        button->setObjectName("cmdOption" + QString::number(option));
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &chosen, option] {
            chosen = option;
            dialog.accept();
        });
        dialog.addAcross(button);
        buttons[option - 1] = button;
    }
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    dialog.enterTakes(buttons[last == 2 ? 1 : 0]);
    buttons[last == 2 ? 1 : 0]->setFocus();
    dialog.exec();
    if (chosen != 0)
        zorSaveUserSetting(settings.rows, session.SiteTag, "DOCSEARCHOPT", chosen);
    return chosen;
}

}  // namespace

std::optional<Vendor> vendorOf(const Session& session, const QString& VENNO)
{
    OpenTable vendors = openTable(session, "ZORVEX.mdb", "VENDORS");
    vendors.rows.Index("VENNO");
    if (dnIsBlank(VENNO) || !vendors.rows.Seek("=", VENNO.trimmed()))
        return {};
    return vendorOn(vendors);
}

std::optional<Vendor> vendorAt(const Session& session, qint32 VENTAG)
{
    OpenTable vendors = openTable(session, "ZORVEX.mdb", "VENDORS");
    vendors.rows.Index("VENTAG");
    if (VENTAG == 0 || !vendors.rows.Seek("=", VENTAG))
        return {};
    return vendorOn(vendors);
}

DocReference docReferenceOf(const Session& session, const QString& text)
{
    const QString typed = text.trimmed().toUpper();
    for (const EquipmentOrder* orders : {&workOrders, &repairOrders}) {
        const QString prefix = QString(orders->prefix).trimmed();
        if (!typed.startsWith(prefix.left(3)))
            continue;
        const QString number = typed.mid(typed.startsWith(prefix) ? prefix.size() : 3).trimmed();
        DocReference found;
        if (hasEquipment(session)) {
            OpenTable open = openOrders(session, *orders);
            open.rows.Index(QString::fromLatin1(orders->number.text()));
            if (open.rows.Seek("=", number)) {
                (orders == &workOrders ? found.BRQWOTAG : found.BRQROTAG) =
                    intOf(open.rows[orders->tag]);
                return found;
            }
        }
        found.refusal = QString(orders->notFound);
        if (orders == &repairOrders)
            found.refusal += number;
        return found;
    }
    return {};
}

QString docReferenceText(const Session& session, qint32 BRQWOTAG, qint32 BRQROTAG)
{
    const EquipmentOrder& orders = BRQWOTAG != 0 ? workOrders : repairOrders;
    const qint32 tag = BRQWOTAG != 0 ? BRQWOTAG : BRQROTAG;
    if (tag == 0 || !hasEquipment(session))
        return {};
    OpenTable open = openOrders(session, orders);
    open.rows.Index(orders.byTag);
    return open.rows.Seek("=", tag) ? orders.prefix + trimmedTextOf(open.rows[orders.number])
                                    : QString();
}

QString searchDocReference(const Entry& entry)
{
    const Session& session = entry.session();
    const int choice = chooseDocSearch(session);
    if (choice == 0)
        return {};
    if (!hasEquipment(session)) {
        showCritical("Cannot Find Item", "The Equipment Module is Not Installed at this Job Site.");
        return {};
    }
    const EquipmentOrder& orders = choice == 1 ? workOrders : repairOrders;
    const QString found = choice == 1 ? zorSearchWorkOrder(session.JobSitePath)
                                      : dnSearch(repairOrderRequest(session.JobSitePath));
    OpenTable open = openOrders(session, orders);
    return goToFound(open.rows, found) ? orders.prefix + trimmedTextOf(open.rows[orders.number])
                                       : QString();
}

QString checkRequisitionNumber(const Entry& entry)
{
    return entry.number("REQNO") == 0 ? "Requisition Number is Zero. This Item is Numeric only, up "
                                        "to 5 digits."
                                      : QString();
}

QString checkRequisitionType(const Entry& entry)
{
    return dnIsBlank(entry["REQTYPE"].left(1)) ? "Requisition Type is Blank." : QString();
}

// A requisition shares its number with the orders made from it.
EntryCheck checkOrderNumber(const DocumentKind& kind)
{
    return [&kind](const Entry& entry) -> QString {
        const QString number = entry["PONO"].trimmed();
        if (number.isEmpty())
            return "PO Number is Blank.";
        OpenTable orders = openTable(entry.session(), "ZORVEX.mdb", "POLIST");
        orders.rows.Index("PONO");
        if (!orders.rows.Seek("=", number))
            return {};
        const bool isOwn = !entry.isAdding() && entry.goToRecord() &&
                           intOf(orders.rows[kind.tag]) == intOf(entry.rows()[kind.tag]);
        return isOwn ? QString()
                     : "Duplicate PO Number Detected.\nThe PO Number: " + number +
                           "\nHas Already Been Used.";
    };
}

QString checkVendor(const Entry& entry)
{
    const QString number = entry.named(vendor).trimmed();
    return number.isEmpty() || vendorOf(entry.session(), number)
               ? QString()
               : "Cannot Find Vendor Number: " + number;
}

EntryCheck checkDate(schema::FieldName field, bool mayBeBlank, const QString& refusal)
{
    return [=](const Entry& entry) {
        const bool isFine = entry.isBlank(field) ? mayBeBlank : dnNotBlank(dnFixDate(entry[field]));
        return isFine ? QString() : refusal;
    };
}

QString checkReimbursable(const Entry& entry)
{
    const QString text = entry["REIMB"].trimmed().toUpper();
    return text.isEmpty() || text == "Y" || text == "N" ? QString()
                                                        : "Reimbursible Must be Blank, 'Y' or 'N'.";
}

QString checkDocReference(const Entry& entry)
{
    return docReferenceOf(entry.session(), entry.named(docReference)).refusal;
}

QString searchVendor(const Entry& entry)
{
    OpenTable vendors = openTable(entry.session(), "ZORVEX.mdb", "VENDORS");
    return goToFound(vendors.rows, zorSearchVendor(entry.session().JobSitePath))
               ? trimmedTextOf(vendors.rows["VENNO"])
               : QString();
}

void takeJobDefaults(Entry& entry, const JobNoFormat& format, bool isNew)
{
    const int CONO = companyOf(entry);
    const QString JOBNO = storedJobOf(entry, format);
    if (CONO == 0 || dnIsBlank(JOBNO))
        return;
    OpenTable open = openTable(entry.session(), "ZORVEX.mdb", "JOB_NO_DEFAULTS");
    const storage::Recordset& rows = open.rows;
    open.rows.Index("JOB_NO_DEFAULTS");
    if (!open.rows.Seek("=", CONO, JOBNO))
        return showCritical(
            "Item Not Found",
            isNew ? "Cannot Find Defaults for Company/Job Number Pair: " + QString::number(CONO) +
                        '/' + JOBNO.trimmed()
                  : "Cannot Find Job Number Defaults for Job Number: " + JOBNO.trimmed());
    for (const schema::FieldName field :
         {schema::FieldName("SHIPTO"), {"SHIPVIA"}, {"FOB"}, {"TERMS"}, {"WHODIDIT"}})
        entry.setText(field, trimmedTextOf(rows[field]));
    if (isNew && entry.indexOf(schema::FieldName("REQTYPE")) >= 0)
        entry.setText("REQTYPE", trimmedTextOf(rows["REQTYPE"]));
}

}  // namespace head
