#include "inventory/item_columns.h"

#include "core/keyed_access.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/items.h"
#include "screens/browse/browse_session.h"

namespace {

QString binNumber(const BrowseSession& list, storage::Recordset& rows)
{
    const int tag = intOf(rows["BINTAG"]);
    storage::Recordset& bins = list.beside("BINLIST");
    if (tag == 0)
        return {};
    return bins.Seek("=", tag) ? trimmedTextOf(bins["BINNO"]) : QString(" ??????");
}

QString codeText(storage::Recordset& codes, const CodeTable& table, int tag)
{
    if (!codes.Seek("=", tag))
        return "??? - ?????";
    return trimmedTextOf(codes[table.code]) + " - " + trimmedTextOf(codes[table.name]);
}

QString catalogNumber(const BrowseSession& list, int ICNTAG)
{
    if (ICNTAG == 0)
        return "<none>";
    storage::Recordset& catalog = list.beside("INVCATALOG");
    return catalog.Seek("=", ICNTAG) ? trimmedTextOf(catalog["ICNUMBER"]) : QString("Invalid Tag");
}

BrowseColumn quantity(schema::FieldName field, const QString& heading)
{
    return {.field = field,
            .length = 10,
            .heading = heading,
            .width = 1300,
            .format = "###,###.00",
            .alignment = Qt::AlignRight};
}

}  // namespace

// The table stands beside the list a second time, so that looking does not move the list.
QString itemText(const ItemKind& kind, const BrowseSession& list, bool isFiltered)
{
    storage::Recordset& item = list.beside(kind.table);
    const QString filter = isFiltered ? "\nFilter is On" : "\n";
    if (!list.hasParent() || !goToFound(item, list.list().BrowseCurrent))
        return filter;
    QString text =
        "Series: " + codeText(list.beside("SERIESCODES"), seriesCodes, intOf(item["SERIESTAG"])) +
        "     Subcategory: " +
        codeText(list.beside("SUBCATEGORIES"), subcategoryCodes, intOf(item["SUBCATTAG"]));
    if (kind.isOfBranch)
        text += "     I/C Number: " + catalogNumber(list, intOf(item["ICNTAG"]));
    return text + filter;
}

std::vector<BrowseColumn> itemColumns(const ItemKind& kind)
{
    std::vector<BrowseColumn> all = {
        {.field = "TAGGED",
         .length = 1,
         .heading = "Tag",
         .width = 500,
         .alignment = Qt::AlignHCenter},
        {.field = "PARTNO", .length = 18, .heading = "Part #", .width = 2100},
        {.field = "SHORTDESC", .length = 50, .heading = "Description", .width = 4600},
        {.field = "UPCCODE", .length = 14, .heading = "UPC Code", .width = 1500}};
    if (kind.isOfBranch) {
        all.push_back({.field = "BINTAG",
                       .length = 6,
                       .heading = "Bin #",
                       .width = 1000,
                       .shows = binNumber});
        all.push_back(quantity("ONORDER", "On Order"));
        all.push_back(quantity("AVAILABLE", "On Hand"));
    } else {
        all.push_back({.field = "ICNUMBER", .length = 11, .heading = "I/C Number", .width = 1500});
    }
    all.push_back({.field = "INACTIVE",
                   .length = 3,
                   .heading = "Inactive",
                   .width = 900,
                   .alignment = Qt::AlignHCenter,
                   .shows = [](const BrowseSession&, storage::Recordset& rows) {
                       return rows["INACTIVE"].value().toBool() ? QString("Yes") : QString();
                   }});
    return all;
}
