#include "purchasing/terms_codes.h"

#include "screens/browse/browse_session.h"
#include "screens/search/vendor_searches.h"

namespace {

QString search(const BrowseSession& screen)
{
    return zorSearchTerms(screen.session().JobSitePath);
}

}  // namespace

BrowseSpec frmVEXTRMC01()
{
    return {
        .name = "frmVEXTRMC01",
        .caption = "Terms Code Maintenance",
        .table = "TERMSCODES",
        .index = "TERMSCODES",
        .columns = {{.field = "TERMSCODE",
                     .length = 2,
                     .heading = "Code",
                     .width = 800,
                     .entry = "txtTERMSCODE",
                     .keys = {.upperCase = true},
                     .check = inOrder({required("TERMSCODE", "Terms Code is Empty."),
                                       unusedCode("TERMSCODE", "Duplicate Terms Code Detected.")})},
                    {.field = "TCNAME",
                     .length = 30,
                     .heading = "Description",
                     .width = 4000,
                     .entry = "txtTCNAME",
                     .check = required("TCNAME", "Terms Code Description is Blank.")},
                    {.field = "DAYSB4DUE",
                     .length = 5,
                     .heading = "Days Before Due",
                     .width = 1700,
                     .entry = "txtDAYSB4DUE",
                     .alignment = Qt::AlignRight},
                    {.field = "DAYSDISALLOW",
                     .length = 5,
                     .heading = "Days Disallowed",
                     .width = 1700,
                     .entry = "txtDAYSDISALLOW",
                     .alignment = Qt::AlignRight},
                    {.field = "DISCOUNTRATE",
                     .length = 8,
                     .heading = "Discount %",
                     .width = 1300,
                     .entry = "txtDISCOUNTRATE",
                     .alignment = Qt::AlignRight}},
        .tag = {.field = "TERMSCODETAG"},
        .deleteQuestion = askToDelete("Terms Code", {"TERMSCODE", "TCNAME"}),
        .search = search,
        .print = {.window = "Print Terms Codes", .title = "List of Terms Codes"},
    };
}
