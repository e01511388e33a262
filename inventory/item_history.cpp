// The history of an item, of a branch or of the catalog, line by line with both balances, and its
// print.
#include "core/number_format.h"
#include "core/zap.h"
#include "inventory/item_codes.h"
#include "inventory/items.h"
#include "inventory/ledger_history.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/desktop.h"
#include "screens/report/list_report.h"
#include "screens/report/report_window.h"

namespace {

constexpr char quantityMask[] = "###,###.00";

// What is particular to the two screens.
struct HistoryScreens
{
    const char* list;
    const char* print;
    const char* buffer;  // and its index
    int (*fill)(const QString& jobSitePath, qint32 tag, OpenTable& buffer);
};
const HistoryScreens& screensOf(const ItemKind& kind)
{
    static constexpr HistoryScreens ofBranch{"frmVEXINV04", "frmVEXINV05", "INVHISTORY",
                                             fillItemHistory};
    static constexpr HistoryScreens ofCatalog{"frmVEXINVCAT04", "frmVEXINVCAT05", "INVCATHISTORY",
                                              fillCatalogHistory};
    return kind.isOfBranch ? ofBranch : ofCatalog;
}

// What stands above the lines, on the screen and on paper.
struct ItemHead
{
    QString branch;  // blank for the catalog, whose history is of all
    QString PARTNO;
    QString SHORTDESC;
    QString UPCCODE;
    QString series;
    QString subcategory;
};

QString codeText(const QString& jobSitePath, const CodeTable& codes, qint32 tag)
{
    const auto row = codeRowAt(jobSitePath, codes, tag);
    return row ? row->code + " - " + row->name : QString("??? - ?????");
}

std::optional<ItemHead> headOf(const ItemKind& kind, const Session& session, qint32 tag)
{
    OpenTable items = openTable(session, "ZORVEX.mdb", kind.table);
    items.rows.Index(kind.byTag);
    if (!items.rows.Seek("=", tag))
        return {};
    const storage::Recordset& item = items.rows;
    const QString& site = session.JobSitePath;
    return ItemHead{
        .branch = kind.isOfBranch ? codeText(site, branchCodes, intOf(item["ILCTAG"])) : QString(),
        .PARTNO = trimmedTextOf(item["PARTNO"]),
        .SHORTDESC = trimmedTextOf(item["SHORTDESC"]),
        .UPCCODE = trimmedTextOf(item["UPCCODE"]),
        .series = codeText(site, seriesCodes, intOf(item["SERIESTAG"])),
        .subcategory = codeText(site, subcategoryCodes, intOf(item["SUBCATTAG"]))};
}

OpenTable openHistory(const ItemKind& kind, const Session& session)
{
    OpenTable history = openTable(session, "ZORUSER.mdb", screensOf(kind).buffer);
    history.rows.Index(screensOf(kind).buffer);
    return history;
}

void addLines(const ItemKind& kind, ReportRun& run, ReportLines& lines)
{
    OpenTable history = openHistory(kind, run.session());
    storage::Recordset& rows = history.rows;
    run.expectRows(rows.RecordCount());
    for (bool more = rows.RecordCount() > 0 && rows.MoveFirst(); more; more = rows.MoveNext())
        if (!lines.add({.cells = {trimmedTextOf(rows["DOCDESC"]), trimmedTextOf(rows["DOCNO"]),
                                  trimmedTextOf(rows["DOCFDATE"]), rows["QUANTITY"].value(),
                                  rows["ONORDER"].value(), rows["AVAILABLE"].value()}}))
            return;
}

ReportSpec historyPrint(const ItemKind& kind, const ItemHead& head)
{
    const ReportPlan plan{
        .title = QString(kind.noun) + " History",
        .headingLines = {"Series Code: " + head.series, "Subcategory Code: " + head.subcategory,
                         "Part Number: " + head.PARTNO + "  " + head.SHORTDESC},
        .columns = {{.heading = "Document Description", .width = 3600},
                    {.heading = "Document No.", .width = 1700},
                    {.heading = "Date", .width = 1200},
                    {.heading = "Doc. Quantity", .width = 1400, .mask = quantityMask},
                    {.heading = "On Order", .width = 1400, .mask = quantityMask},
                    {.heading = "On Hand", .width = 1400, .mask = quantityMask}}};
    return {.name = screensOf(kind).print,
            .caption = QString("Print ") + kind.noun + " History",
            .check = [&kind](const ReportRun& run) -> std::optional<ReportRefusal> {
                if (openHistory(kind, run.session()).rows.RecordCount() > 0)
                    return {};
                return ReportRefusal{"Cannot Continue", "Inventory History Table is Empty."};
            },
            .print = listReport(
                [plan](const ReportRun&) { return plan; },
                [&kind](ReportRun& run, ReportLines& lines) { addLines(kind, run, lines); })};
}

BrowseColumn number(schema::FieldName field, const QString& heading)
{
    return {.field = field,
            .length = 10,
            .heading = heading,
            .width = 1500,
            .format = quantityMask,
            .alignment = Qt::AlignRight};
}

BrowseSpec historyList(const ItemKind& kind, const Session& session, qint32 tag)
{
    const ItemHead head = headOf(kind, session, tag).value_or(ItemHead{});
    return {
        .name = screensOf(kind).list,
        .caption = QString(kind.noun) + " History",
        .file = "ZORUSER.mdb",
        .table = screensOf(kind).buffer,
        .index = screensOf(kind).buffer,
        .columns =
            {{.field = "DOCDESC", .length = 50, .heading = "Document Description", .width = 4200},
             {.field = "DOCNO", .length = 16, .heading = "Document No.", .width = 1900},
             {.field = "DOCFDATE", .length = 10, .heading = "Date", .width = 1300},
             number("QUANTITY", "Doc. Quantity"),
             number("ONORDER", "On Order"),
             number("AVAILABLE", "On Hand")},
        .mayAdd = false,
        .mayEdit = false,
        .mayDelete = false,
        .print = {.run =
                      [&kind, head](BrowseSession& list) {
                          openScreen(new ReportWindow(historyPrint(kind, head), list.session()));
                      },
                  .caption = "&Print History"},
        .status =
            [head](const BrowseSession&) {
                return "Part Number: " + head.PARTNO + "     " + head.SHORTDESC +
                       "     UPC Code: " + head.UPCCODE + '\n' +
                       (head.branch.isEmpty() ? "" : "Branch: " + head.branch + "     ") +
                       "Series: " + head.series + "     Subcategory: " + head.subcategory;
            },
    };
}

}  // namespace

BrowseSpec frmVEXINV04(const Session& session, qint32 ISNTAG)
{
    return historyList(branchItems, session, ISNTAG);
}

BrowseSpec frmVEXINVCAT04(const Session& session, qint32 ICNTAG)
{
    return historyList(catalogItems, session, ICNTAG);
}

void openItemHistory(const ItemKind& kind, const Session& session, qint32 tag)
{
    const HistoryScreens& screens = screensOf(kind);
    OpenTable history = emptiedTable(session.UserSettingsPath, "ZORUSER.mdb", screens.buffer);
    if (!headOf(kind, session, tag))
        return showCritical("Error", "Cannot Find " + QString::fromLatin1(kind.tag.text()) + ": " +
                                         QString::number(tag));
    screens.fill(session.JobSitePath, tag, history);
    openBrowseScreen(historyList(kind, session, tag), session);
}
