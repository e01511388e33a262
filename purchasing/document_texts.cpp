#include "purchasing/document_texts.h"

#include "screens/browse/browse_session.h"
#include "screens/search/order_searches.h"

namespace {

// What differs between the lists; each is one column of text.
struct TextList
{
    const char* name;
    const char* caption;
    const char* table;  // and its index
    schema::FieldName field;
    int length;
    const char* entry;
    const char* what;  // one text, in boxes
    QString (*search)(const QString& path);
    const char* printWindow;
    const char* printTitle;
};

BrowseSpec specOf(const TextList& list)
{
    return {
        .name = list.name,
        .caption = list.caption,
        .table = list.table,
        .index = list.table,
        .columns = {{.field = list.field,
                     .length = list.length,
                     .heading = "Description",
                     .width = 6000,
                     .entry = list.entry,
                     .check = required(list.field, list.what + QString(" Description is Blank."))}},
        .refusals = BrowseSpec::Refusals::BoxWithCancel,
        .deleteQuestion = askToDelete(list.what, {list.field}),
        .search = [search = list.search](
                      const BrowseSession& screen) { return search(screen.session().JobSitePath); },
        .print = {.window = list.printWindow, .title = list.printTitle},
    };
}

}  // namespace

BrowseSpec frmVEXSHIPTO01()
{
    return specOf({.name = "frmVEXSHIPTO01",
                   .caption = "Ship To Items",
                   .table = "SHIPTOITEMS",
                   .field = "SHIPTO",
                   .length = 50,
                   .entry = "txtSHIPTO",
                   .what = "Ship To Item",
                   .search = zorSearchShipTo,
                   .printWindow = "Print Ship To Items",
                   .printTitle = "List of Ship To Items"});
}

BrowseSpec frmVEXSHIPVIA01()
{
    return specOf({.name = "frmVEXSHIPVIA01",
                   .caption = "Ship Via Items",
                   .table = "SHIPVIAITEMS",
                   .field = "SHIPVIA",
                   .length = 50,
                   .entry = "txtSHIPVIA",
                   .what = "Ship Via Item",
                   .search = zorSearchShipVia,
                   .printWindow = "Print Ship Via Items",
                   .printTitle = "List of Ship Via Items"});
}

BrowseSpec frmVEXWHODIDIT01()
{
    return specOf({.name = "frmVEXWHODIDIT01",
                   .caption = "Requisitioned by Items",
                   .table = "WHODIDITITEMS",
                   .field = "WHODIDIT",
                   .length = 30,
                   .entry = "txtWHODIDIT",
                   .what = "Requisitioned by Item",
                   .search = zorSearchWhoDidIt,
                   .printWindow = "Print Requisitioned by Items",
                   .printTitle = "List of Requisitioned by Items"});
}
