#include "cost/invoice_codes.h"

#include "screens/browse/browse_session.h"
#include "screens/search/job_searches.h"

namespace {

QString search(const BrowseSession& screen)
{
    return zorSearchInvoiceCode(screen.session().JobSitePath,
                                static_cast<qint16>(screen.parentKey("CONO").toInt()),
                                screen.parentKey("JOBNO").toString());
}

}  // namespace

BrowseSpec frmVEXIC01()
{
    return {
        .name = "frmVEXIC01",
        .caption = "Invoice Codes",
        .table = "INVCODES",
        .index = "INVCODES",
        .parent = companyAndJobParent(),
        .columns = {{.field = "INVCODE",
                     .length = 10,
                     .heading = "Invoice Code",
                     .width = 2000,
                     .entry = "txtINVCODE",
                     .keys = {.upperCase = true},
                     .check = required("INVCODE", "Invoice Code is Empty.")},
                    {.field = "DESC",
                     .length = 30,
                     .heading = "Description",
                     .width = 6000,
                     .entry = "txtDESC",
                     .check = required("DESC", "Description is Empty.")},
                    {.field = "UOM",
                     .length = 3,
                     .heading = "Unit of Measure",
                     .width = 2000,
                     .entry = "txtUOM",
                     .keys = {.upperCase = true},
                     .check = required("UOM", "UOM Text is Empty.")}},
        .deleteQuestion = askToDelete("Invoice Code:", {"INVCODE"}),
        .search = search,
        .print = {.window = "Print Invoice Codes", .title = "List of Invoice Codes"},
    };
}
