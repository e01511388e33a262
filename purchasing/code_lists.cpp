#include "purchasing/code_lists.h"

#include "screens/browse/browse_session.h"
#include "screens/search/order_searches.h"
#include "screens/search/search_window.h"

namespace {

EntryCheck materialCodeCheck(schema::FieldName field)
{
    return inOrder({required(field, "Blank Material Code Detected."),
                    unusedCode(field,
                               "Duplicate Material Code Detected.\n"
                               "The code you have entered\nalready exists on another line.")});
}

EntryCheck requisitionTypeCheck()
{
    return inOrder({required("REQTYPE", "Blank Requisition Type Detected."),
                    unusedCode("REQTYPE",
                               "Duplicate Requisition Type Detected.\n"
                               "The Type you have entered\nalready exists on another line.")});
}

QString searchMaterialCode(const BrowseSession& screen)
{
    return zorSearchMaterialCode(screen.session().JobSitePath);
}

QString searchRequisitionType(const BrowseSession& screen)
{
    return dnSearch({.DBPath = screen.session().JobSitePath,
                     .TableName = "REQTYPES",
                     .IndexList = "REQTYPE",
                     .WindowTitle = "Search Requisition Types",
                     .SearchTitle = "Requisition Types",
                     .FieldList = "REQTYPE|RTNAME",
                     .TypeList = "C|C",
                     .LengthList = "1|30",
                     .HeadingList = "Type|Description",
                     .WidthList = "800|3000",
                     .AlignList = "0|0"});
}

QString searchShipperCode(const BrowseSession& screen)
{
    return dnSearch({.DBPath = screen.session().JobSitePath,
                     .TableName = "MCLIST",
                     .IndexList = "SHIPPERCODE",
                     .WindowTitle = "Search Shipper Codes",
                     .SearchTitle = "Shipper Codes",
                     .FieldList = "SHIPPERCODE|SHIPPERDESC",
                     .TypeList = "C|C",
                     .LengthList = "10|30",
                     .HeadingList = "Code|Description",
                     .WidthList = "1400|3000",
                     .AlignList = "0|0"});
}

}  // namespace

BrowseSpec frmVEXMC01()
{
    return {
        .name = "frmVEXMC01",
        .caption = "Material Codes",
        .table = "MCLIST",
        .index = "MCODE",
        .columns = {{.field = "MCODE",
                     .length = 1,
                     .heading = "Code",
                     .width = 800,
                     .entry = "txtMCODE",
                     .keys = {.upperCase = true},
                     .check = materialCodeCheck("MCODE")},
                    {.field = "MCNAME",
                     .length = 30,
                     .heading = "Description",
                     .width = 4000,
                     .entry = "txtMCNAME",
                     .check = required("MCNAME", "Material Code Description is Blank.")}},
        .tag = {.field = "MCTAG"},
        .refusals = BrowseSpec::Refusals::BoxWithCancel,
        .deleteQuestion = askToDelete("Material Code", {"MCODE", "MCNAME"}),
        .search = searchMaterialCode,
        .print = {.window = "Print Material Codes", .title = "List of Material Codes"},
    };
}

BrowseSpec frmVEXRT01()
{
    return {
        .name = "frmVEXRT01",
        .caption = "Requisition Types",
        .table = "REQTYPES",
        .index = "REQTYPE",
        .columns = {{.field = "REQTYPE",
                     .length = 1,
                     .heading = "Type",
                     .width = 800,
                     .entry = "txtREQTYPE",
                     .keys = {.upperCase = true},
                     .check = requisitionTypeCheck()},
                    {.field = "RTNAME",
                     .length = 30,
                     .heading = "Description",
                     .width = 4000,
                     .entry = "txtRTNAME",
                     .check = required("RTNAME", "Requisition Type Description is Blank.")}},
        .refusals = BrowseSpec::Refusals::BoxWithCancel,
        .deleteQuestion = askToDelete("Requisition Type", {"REQTYPE", "RTNAME"}),
        .search = searchRequisitionType,
        .print = {.window = "Print Requisition Types", .title = "List of Requisition Types"},
    };
}

BrowseSpec frmCCBQSHIP01()
{
    return {
        .name = "frmCCBQSHIP01",
        .caption = "Shipper Codes",
        .table = "MCLIST",
        .index = "SHIPPERCODE",
        .columns = {{.field = "SHIPPERCODE",
                     .length = 10,
                     .heading = "Code",
                     .width = 1400,
                     .entry = "txtSHIPPERCODE",
                     .keys = {.upperCase = true},
                     .check = materialCodeCheck("SHIPPERCODE")},
                    {.field = "SHIPPERDESC",
                     .length = 30,
                     .heading = "Description",
                     .width = 4000,
                     .entry = "txtSHIPPERDESC",
                     .check = required("SHIPPERDESC", "Material Code Description is Blank.")}},
        .tag = {.field = "MCTAG"},
        .refusals = BrowseSpec::Refusals::BoxWithCancel,
        .deleteQuestion = askToDelete("Shipper Code", {"SHIPPERCODE", "SHIPPERDESC"}),
        .search = searchShipperCode,
        .print = {.window = "Print Shipper Codes", .title = "List of Shipper Codes"},
    };
}
