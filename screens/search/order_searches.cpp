#include "screens/search/order_searches.h"

#include "screens/search/search_window.h"

namespace {

constexpr char dateInstruction[] = "Type the date as  YYYYMMDD";

// The three lists of texts differ by their table, which has one field to show.
QString searchItems(const QString& path, const QString& table, const QString& field,
                    const QString& width)
{
    return dnSearch({.DBPath = path,
                     .TableName = table,
                     .IndexList = table,
                     .WindowTitle = "Search Ship To Items",
                     .SearchTitle = "Ship To Items",
                     .FieldList = field,
                     .TypeList = "C",
                     .HeadingList = "Description",
                     .WidthList = width,
                     .AlignList = "0"});
}

}  // namespace

QString zorSearchPOItem(const QString& path, qint32 POTAG)
{
    return dnSearch({.DBPath = path,
                     .TableName = "RQILIST",
                     .IndexList = "RQIPOITEMNO",
                     .WindowTitle = "Select a PO Line Item",
                     .FieldList = "POITEMNO|QTY|SHORTDESC|UNITPRICE",
                     .TypeList = "N###|N###,###.0|C|N###,###,###.00",
                     .LengthList = "3|9|50|14",
                     .HeadingList = "Item|Qty|Description|Unit Price",
                     .WidthList = "500|1000|6000|1500",
                     .AlignList = "2|2|0|1",
                     .keys = {{"POTAG", POTAG}}});
}

QString zorSearchRequisition(const QString& path, qint32 VENTAG, const QString& vendorNumber,
                             const QString& vendorName)
{
    return dnSearch({.DBPath = path,
                     .TableName = "REQLIST",
                     .IndexList = "REQVEN",
                     .WindowTitle = "Search Requisitions",
                     .SearchTitle = "Requisitions for Vendor: " + vendorNumber + " - " + vendorName,
                     .FieldList = "LDATE|REQNO|CONO|JOBNO|INTEND",
                     .TypeList = "C|N|N|C|C",
                     .LengthList = "10|5|2|4|70",
                     .HeadingList = "Date|Req. #|Co|Job|Intended Use",
                     .WidthList = "800|600|600|800|5000",
                     .AlignList = "0|2|2|2|0",
                     .keys = {{"VENTAG", VENTAG}},
                     .Instruction = dateInstruction});
}

QString zorSearchPOByVendor(const QString& path, qint32 VENTAG, const QString& vendorNumber,
                            const QString& vendorName)
{
    return dnSearch(
        {.DBPath = path,
         .TableName = "POLIST",
         .IndexList = "POVEN",
         .WindowTitle = "Search Purchase Orders",
         .SearchTitle = "Purchase Orders for Vendor: " + vendorNumber + " - " + vendorName,
         .FieldList = "LDATE|PONO|CONO|JOBNO|INTEND|AMOUNT",
         .TypeList = "C|C|N|C|C|N###,###,###.00",
         .LengthList = "10|16|2|4|70|14",
         .HeadingList = "Date|PO Number|Co|Job|Intended Use|Amount",
         .WidthList = "800|1400|600|800|5000|1600",
         .AlignList = "0|2|2|2|0|1",
         .keys = {{"VENTAG", VENTAG}},
         .Instruction = dateInstruction});
}

QString zorSearchPOByJob(const QString& path, qint16 CONO, const QString& JOBNO)
{
    return dnSearch({.DBPath = path,
                     .TableName = "POLIST",
                     .IndexList = "POLIST",
                     .WindowTitle = "Search Purchase Orders",
                     .SearchTitle = "POs for Co.: " + QString::number(CONO) + " and Job: " + JOBNO,
                     .FieldList = "PONO|FDATE",
                     .TypeList = "C|C",
                     .LengthList = "16|10",
                     .HeadingList = "PO Number|Date",
                     .WidthList = "2000|2000",
                     .AlignList = "0|0",
                     .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}}});
}

QString zorSearchPO(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "POLIST",
                     .IndexList = "PONO",
                     .WindowTitle = "Search Purchase Orders",
                     .SearchTitle = "Purchase Orders",
                     .FieldList = "PONO|FDATE|INTEND",
                     .TypeList = "C|C|C",
                     .LengthList = "16|10,70",
                     .HeadingList = "PO Number|Date|Intended Use",
                     .WidthList = "1600|1200|7000",
                     .AlignList = "0|0|0"});
}

QString zorSearchPOByCMRNO(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "POLIST",
                     .IndexList = "POCMRNO",
                     .WindowTitle = "Search POs by Cust. Req. #",
                     .SearchTitle = "Purchase Orders",
                     .FieldList = "CMRNO|PONO|FDATE|INTEND",
                     .TypeList = "C|C|C|C",
                     .LengthList = "10|16|10,70",
                     .HeadingList = "Cust. Req. #|PO Number|Date|Intended Use",
                     .WidthList = "1600|1600|1200|7000",
                     .AlignList = "0|0|0|0"});
}

QString zorSearchMaterialCode(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "MCLIST",
                     .IndexList = "MCODE",
                     .WindowTitle = "Search Material Codes",
                     .SearchTitle = "Material Codes",
                     .FieldList = "MCODE|MCNAME",
                     .TypeList = "C|C",
                     .LengthList = "1|30",
                     .HeadingList = "Code|Description",
                     .WidthList = "800|3000",
                     .AlignList = "0|0"});
}

QString zorSearchTemplate(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "RSTLIST",
                     .IndexList = "RSTCODE",
                     .WindowTitle = "Search Template Codes",
                     .SearchTitle = "Template Codes",
                     .FieldList = "RSTCODE|RSTNAME",
                     .TypeList = "C|C",
                     .LengthList = "10|30",
                     .HeadingList = "Template Code|Description",
                     .WidthList = "1800|5000",
                     .AlignList = "0|0"});
}

QString zorSearchAddendum(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "PONOTETEXT",
                     .IndexList = "PONTAG",
                     .WindowTitle = "Search PO Addendum Text",
                     .FieldList = "PONTITLE",
                     .TypeList = "C",
                     .HeadingList = "Text Title",
                     .WidthList = "6000",
                     .AlignList = "0"});
}

QString zorSearchShipTo(const QString& path)
{
    return searchItems(path, "SHIPTOITEMS", "SHIPTO", "6000");
}

QString zorSearchShipVia(const QString& path)
{
    return searchItems(path, "SHIPVIAITEMS", "SHIPVIA", "6000");
}

QString zorSearchWhoDidIt(const QString& path)
{
    return searchItems(path, "WHODIDITITEMS", "WHODIDIT", "4000");
}
