#include "purchasing/line_columns.h"

#include "core/locators.h"
#include "purchasing/document_numbers.h"

namespace {

BrowseColumn text(schema::FieldName field, int length, const QString& heading, int width)
{
    return {.field = field, .length = length, .heading = heading, .width = width};
}

QString orderNumber(const BrowseSession& list, storage::Recordset& rows)
{
    const int tag = intOf(rows["POTAG"]);
    if (tag == 0)
        return {};
    storage::Recordset& orders = list.beside("POLIST");
    return orders.Seek("=", tag) ? trimmedTextOf(orders["PONO"]) : QString("??????????");
}

}  // namespace

std::vector<BrowseColumn> lineColumns(const LineState& state)
{
    const DocumentKind& kind = state->kind();
    std::vector<BrowseColumn> all = {
        {.field = "RQITAG",
         .length = 1,
         .heading = "Tag",
         .width = 450,
         .alignment = Qt::AlignHCenter,
         .shows =
             [state](const BrowseSession&, storage::Recordset& rows) {
                 return state->marked.contains(intOf(rows["RQITAG"])) ? QString("T") : QString();
             },
         .isPrinted = false},
        numberColumn(kind.itemNo, 4, "Item", 600, "###0"),
        numberColumn("QTY", 11, "Quantity", 1050, "###,###,###.00"),
        text("UNIT", 5, "Unit", 600),
        text("SHORTDESC", 60, "Description", 3700),
        numberColumn("UNITPRICE", 13, "Unit Price", 1300, "#########.000"),
        text("UNITFACT", 1, "U/F", 450),
        numberColumn("AMOUNT", 13, "Amount", 1400, "##,###,###.00")};
    for (const CostCodeGroup& group : costCodeGroups) {
        const CostCodeSettings& settings =
            state->owner.groups[static_cast<size_t>(group.letter - 'A')];
        all.push_back(
            text(group.code, 15, settings.isDefined() ? settings.name : QString("Not Used"), 1050));
    }
    all.push_back(text("MCODE", 1, "M/C", 450));
    all.push_back(text("GLCODE", 10, "G/L Code", 1000));
    if (!kind.isOrder())
        all.push_back({.field = "POTAG",
                       .length = 16,
                       .heading = "PO No.",
                       .width = 1500,
                       .shows = orderNumber});
    return all;
}

QString ownerText(const BrowseSession& list, const LineListState& state)
{
    const DocumentKind& kind = state.kind();
    OpenTable documents = openTable(list.session(), "ZORVEX.mdb", kind.table);
    documents.rows.Index(kind.byTag);
    if (!documents.rows.Seek("=", state.owner.docTag))
        return {};
    const storage::Recordset& rows = documents.rows;
    const QString number = shownNumberOf(kind, rows);
    return QString(kind.noun) + ": " + number +
           "     Company: " + QString::number(state.owner.CONO) +
           "     Job Number: " + state.owner.JOBNO.trimmed() + "     " +
           trimmedTextOf(rows["INTEND"]);
}
