// The history of an item, line by line with both balances, and its print.
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

// What stands above the lines, on the screen and on paper.
struct ItemHead
{
    QString PARTNO;
    QString SHORTDESC;
    QString UPCCODE;
    QString series;
    QString subcategory;
};

QString codeText(const QString& jobSitePath, const CodeTable& codes, qint32 tag)
{
    const auto row = codeRowAt(jobSitePath, codes, tag);
    return row ? row->code + " - " + row->name : QString();
}

std::optional<ItemHead> headOf(const Session& session, qint32 ISNTAG)
{
    OpenTable items = openTable(session, "ZORVEX.mdb", "INVENTORY");
    items.rows.Index("INVISNTAG");
    if (!items.rows.Seek("=", ISNTAG))
        return {};
    const storage::Recordset& item = items.rows;
    const QString& site = session.JobSitePath;
    return ItemHead{.PARTNO = trimmedTextOf(item["PARTNO"]),
                    .SHORTDESC = trimmedTextOf(item["SHORTDESC"]),
                    .UPCCODE = trimmedTextOf(item["UPCCODE"]),
                    .series = codeText(site, seriesCodes, intOf(item["SERIESTAG"])),
                    .subcategory = codeText(site, subcategoryCodes, intOf(item["SUBCATTAG"]))};
}

OpenTable openHistory(const Session& session)
{
    return openTable(session, "ZORUSER.mdb", "INVHISTORY");
}

void addLines(ReportRun& run, ReportLines& lines)
{
    OpenTable history = openHistory(run.session());
    storage::Recordset& rows = history.rows;
    rows.Index("INVHISTORY");
    run.expectRows(rows.RecordCount());
    for (bool more = rows.RecordCount() > 0 && rows.MoveFirst(); more; more = rows.MoveNext())
        if (!lines.add({.cells = {trimmedTextOf(rows["DOCDESC"]), trimmedTextOf(rows["DOCNO"]),
                                  trimmedTextOf(rows["DOCFDATE"]), rows["QUANTITY"].value(),
                                  rows["ONORDER"].value(), rows["AVAILABLE"].value()}}))
            return;
}

ReportSpec historyPrint(const ItemHead& head)
{
    const ReportPlan plan{
        .title = "Inventory Item History",
        .headingLines = {"Series Code: " + head.series, "Subcategory Code: " + head.subcategory,
                         "Part Number: " + head.PARTNO + "  " + head.SHORTDESC},
        .columns = {{.heading = "Document Description", .width = 3600},
                    {.heading = "Document No.", .width = 1700},
                    {.heading = "Date", .width = 1200},
                    {.heading = "Doc. Quantity", .width = 1400, .mask = quantityMask},
                    {.heading = "On Order", .width = 1400, .mask = quantityMask},
                    {.heading = "On Hand", .width = 1400, .mask = quantityMask}}};
    return {.name = "frmVEXINV05",
            .caption = "Print Inventory Item History",
            .check = [](const ReportRun& run) -> std::optional<ReportRefusal> {
                if (openHistory(run.session()).rows.RecordCount() > 0)
                    return {};
                return ReportRefusal{"Cannot Continue", "Inventory History Table is Empty."};
            },
            .print = listReport([plan](const ReportRun&) { return plan; }, addLines)};
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

}  // namespace

BrowseSpec frmVEXINV04(const Session& session, qint32 ISNTAG)
{
    const ItemHead head = headOf(session, ISNTAG).value_or(ItemHead{});
    return {
        .name = "frmVEXINV04",
        .caption = "Inventory Item History",
        .file = "ZORUSER.mdb",
        .table = "INVHISTORY",
        .index = "INVHISTORY",
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
                      [head](BrowseSession& list) {
                          openScreen(new ReportWindow(historyPrint(head), list.session()));
                      }},
        .status =
            [head](const BrowseSession&) {
                return "Part Number: " + head.PARTNO + "     " + head.SHORTDESC +
                       "     UPC Code: " + head.UPCCODE + "\nSeries: " + head.series +
                       "     Subcategory: " + head.subcategory;
            },
    };
}

void openItemHistory(const Session& session, qint32 ISNTAG)
{
    OpenTable history = openHistory(session);
    dnZap(session.UserSettingsPath, "ZORUSER.mdb", history.rows);
    if (!headOf(session, ISNTAG))
        return showCritical("Error", "Cannot Find ISNTAG: " + QString::number(ISNTAG));
    history = openHistory(session);
    fillItemHistory(session.JobSitePath, ISNTAG, history);
    openBrowseScreen(frmVEXINV04(session, ISNTAG), session);
}
