#include "inventory/item_prints.h"

#include "core/locators.h"
#include "core/number_format.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/item_kind.h"
#include "inventory/item_search.h"
#include "screens/report/data_sheet.h"
#include "screens/report/list_report.h"
#include "screens/selectors/report_selectors.h"

namespace {

constexpr char quantityMask[] = "###,###.00";
constexpr char priceMask[] = "###,###,###.00";

// ---- codes beside the items, each row looked up where it is needed
class Codes
{
public:
    Codes(const Session& session, const CodeTable& table)
        : m_table(table), m_open(openTable(session, "ZORVEX.mdb", table.table))
    {
        m_open.rows.Index(table.byTag);
    }

    // Such as "100 - Pipe and Fittings"; what stands for none where the tag is 0, question marks
    // where the row is gone.
    QString text(int tag, const QString& none) const
    {
        if (tag == 0)
            return none;
        storage::Recordset rows = m_open.rows;
        if (!rows.Seek("=", tag))
            return "??????";
        return trimmedTextOf(rows[m_table.code]) + " - " + trimmedTextOf(rows[m_table.name]);
    }
    QString code(int tag) const { return text(tag, {}).section(" - ", 0, 0); }

private:
    const CodeTable& m_table;
    OpenTable m_open;
};

struct ItemCodes
{
    explicit ItemCodes(const Session& session)
        : series(session, seriesCodes),
          subcategories(session, subcategoryCodes),
          bins(session, binCodes),
          vendors(session, vendorCodes)
    {
    }
    Codes series;
    Codes subcategories;
    Codes bins;
    Codes vendors;
};

// ---- the data sheet
std::vector<SheetLine> sheetOf(const ItemKind& kind, const Session& session,
                               const storage::Recordset& item)
{
    const ItemCodes codes(session);
    const auto text = [&item](schema::FieldName field) { return trimmedTextOf(item[field]); };
    const auto amount = [&item](schema::FieldName field, const char* mask) {
        return dnFormat(numberOf(item[field]), mask).trimmed();
    };
    std::vector<SheetLine> lines;
    if (!kind.isOfBranch)
        lines.push_back({.label = "I/C Number:", .value = text("ICNUMBER")});
    const std::vector<SheetLine> identity = {
        {.label = "Series Code:", .value = codes.series.text(intOf(item["SERIESTAG"]), "")},
        {.label = "Subcategory Code:",
         .value = codes.subcategories.text(intOf(item["SUBCATTAG"]), "")},
        {.label = "Part Number:", .value = text("PARTNO")},
        {.label = "MFG Part Number:", .value = text("MFGPARTNO")},
        {.label = "Description:", .value = text("Desc")},
        {.label = "Unit of Measure:", .value = text("UOM")},
        {.label = "UPC Code:", .value = text("UPCCODE")},
        {.label = "Wholesale:", .value = amount("WHOLESALE", priceMask)},
        {.label = "Default Markup %:", .value = amount("MARKUP", "###.00")},
        {.label = "Retail:", .value = amount("RETAIL", priceMask)},
        {.label = "Preferred Vendor:",
         .value = codes.vendors.text(intOf(item["VENTAG"]), "Vendor Not Selected.")}};
    lines.insert(lines.end(), identity.begin(), identity.end());
    if (kind.isOfBranch) {
        lines.push_back(
            {.label = "Bin Number:", .value = codes.bins.text(intOf(item["BINTAG"]), "<None>")});
        lines.push_back({.label = "Quantity on Order:", .value = amount("ONORDER", quantityMask)});
        lines.push_back(
            {.label = "Quantity Available:", .value = amount("AVAILABLE", quantityMask)});
        lines.push_back({.label = "Maximum:", .value = amount("Maximum", quantityMask)});
        lines.push_back({.label = "Minimum:", .value = amount("MINIMUM", quantityMask)});
    }
    lines.push_back(
        {.label = "Inactive:", .value = item["INACTIVE"].value().toBool() ? "Yes" : "No"});
    return lines;
}

void printSheet(const ItemKind& kind, ReportRun& run, qint32 tag)
{
    OpenTable items = openTable(run.session(), "ZORVEX.mdb", kind.table);
    items.rows.Index(kind.byTag);
    DataSheets sheets(run, {.reportName = QString(kind.noun) + " Information"});
    if (sheets.isOpen() && items.rows.Seek("=", tag))
        sheets.add(sheetOf(kind, run.session(), items.rows));
}

ReportSpec sheetScreen(const ItemKind& kind, const char* name, qint32 tag)
{
    return {.name = name,
            .caption = QString("Print an ") + kind.noun + " Data Sheet",
            .print = [&kind, tag](ReportRun& run) { printSheet(kind, run, tag); }};
}

// ---- the lists
enum class Order { Series, PartNumber, Bin, Vendor };

struct ItemList
{
    const char* name;
    const char* caption;
    const char* index;
    Order order;
    std::vector<ReportLevel> levels = {};
};

QStringList headsOf(const ItemList& list, const ItemCodes& codes, const storage::Recordset& item)
{
    switch (list.order) {
        case Order::Series:
            return {"Series Code: " + codes.series.text(intOf(item["SERIESTAG"]), "(none)"),
                    "Subcategory Code: " +
                        codes.subcategories.text(intOf(item["SUBCATTAG"]), "(none)")};
        case Order::Bin:
            return {"Bin Number: " + codes.bins.text(intOf(item["BINTAG"]), "<None>")};
        case Order::Vendor:
            return {"Preferred Vendor: " +
                    codes.vendors.text(intOf(item["VENTAG"]), "Vendor Not Selected.")};
        case Order::PartNumber:
            break;
    }
    return {};
}

ReportPlan planOf(const ItemList& list, const ReportRun& run)
{
    const auto branch =
        codeRowAt(run.session().JobSitePath, branchCodes, run.selection["ILCTAG"].toInt());
    return {.title = QString(list.caption).mid(6),  // without "Print "
            .headingLines = {branch ? "Branch Code: " + branch->code + " - " + branch->name
                                    : QString()},
            .columns = {{.heading = "Part Number", .width = 1900},
                        {.heading = "Description", .width = 3900, .wraps = true},
                        {.heading = "UPC Code", .width = 1400},
                        {.heading = "Bin No.", .width = 800},
                        {.heading = "Unit", .width = 600},
                        {.heading = "On Order", .width = 1250, .mask = quantityMask},
                        {.heading = "On Hand", .width = 1250, .mask = quantityMask},
                        {.heading = "Retail", .width = 1350, .mask = priceMask}},
            .levels = list.levels};
}

bool isInRange(const ReportRun& run, const QString& PARTNO)
{
    const QString begin = run.selection["txtBPARTNO"].trimmed();
    const QString end = run.selection["txtEPARTNO"].trimmed();
    return (begin.isEmpty() || PARTNO.compare(begin, Qt::CaseInsensitive) >= 0) &&
           (end.isEmpty() || PARTNO.compare(end, Qt::CaseInsensitive) <= 0);
}

void addItems(const ItemList& list, ReportRun& run, ReportLines& lines)
{
    const ItemCodes codes(run.session());
    OpenTable items = openTable(run.session(), "ZORVEX.mdb", "INVENTORY");
    const storage::Recordset& item = items.rows;
    forEachWithin(items.rows, list.index, {{"ILCTAG", run.selection["ILCTAG"].toInt()}}, [&] {
        const QString PARTNO = trimmedTextOf(item["PARTNO"]);
        if (!isInRange(run, PARTNO))
            return run.proceed();
        return lines.add(
            {.cells = {PARTNO, trimmedTextOf(item["SHORTDESC"]), trimmedTextOf(item["UPCCODE"]),
                       codes.bins.code(intOf(item["BINTAG"])), trimmedTextOf(item["UOM"]),
                       item["ONORDER"].value(), item["AVAILABLE"].value(), item["RETAIL"].value()},
             .keys = headsOf(list, codes, item)});
    });
}

ReportSpec listOf(const ItemList& list)
{
    return {.name = list.name,
            .caption = list.caption,
            .fields = {branchField()},
            .check = checkReportSelectors,
            .print = listReport(
                [list](const ReportRun& run) { return planOf(list, run); },
                [list](ReportRun& run, ReportLines& lines) { addItems(list, run, lines); })};
}

ReportLevel head()
{
    return {.totalCaption = {}, .hasHead = true};
}

QString searchPartNumber(const ReportSelection& selection, const Session& session)
{
    const QString found = zorVEXINVSearch(session, {.ILCTAG = selection["ILCTAG"].toInt()});
    OpenTable items = openTable(session, "ZORVEX.mdb", "INVENTORY");
    return goToFound(items.rows, found) ? trimmedTextOf(items.rows["PARTNO"]) : QString();
}

}  // namespace

ReportSpec frmVEXINV03(qint32 ISNTAG)
{
    return sheetScreen(branchItems, "frmVEXINV03", ISNTAG);
}

ReportSpec frmVEXINVCAT03(qint32 ICNTAG)
{
    return sheetScreen(catalogItems, "frmVEXINVCAT03", ICNTAG);
}

ReportSpec frmVEXINVP04()
{
    return listOf({.name = "frmVEXINVP04",
                   .caption = "Print Inventory Items by Series Code/Subcategory",
                   .index = "INVSUBPARTNO",
                   .order = Order::Series,
                   .levels = {head(), head()}});
}

ReportSpec frmVEXINVP05()
{
    ReportSpec screen = listOf({.name = "frmVEXINVP05",
                                .caption = "Print Inventory Items by Part Number",
                                .index = "INVPARTNO",
                                .order = Order::PartNumber});
    const auto partNumber = [](const char* name, const QString& caption) {
        return ReportField{.kind = ReportField::Kind::Text,
                           .name = name,
                           .caption = caption,
                           .search = searchPartNumber};
    };
    screen.fields.push_back(partNumber("txtBPARTNO", "Be&ginning Part Number:"));
    screen.fields.push_back(partNumber("txtEPARTNO", "&Ending Part Number:"));
    return screen;
}

ReportSpec frmVEXINVP06()
{
    return listOf({.name = "frmVEXINVP06",
                   .caption = "Print Inventory Items by Bin Number",
                   .index = "INVILCBINTAG",
                   .order = Order::Bin,
                   .levels = {head()}});
}

ReportSpec frmVEXINVP07()
{
    return listOf({.name = "frmVEXINVP07",
                   .caption = "Print Inventory Items by Preferred Vendor",
                   .index = "INVVENTAG",
                   .order = Order::Vendor,
                   .levels = {head()}});
}
