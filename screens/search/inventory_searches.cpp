#include "screens/search/inventory_searches.h"

#include "screens/search/search_window.h"

namespace {

// The three documents that move material differ by the letters in their names.
QString searchDocuments(const QString& path, const QString& letters, const QString& caption)
{
    return dnSearch({.DBPath = path,
                     .TableName = letters + "LIST",
                     .IndexList = letters + "NO",
                     .WindowTitle = "Search " + caption,
                     .SearchTitle = caption,
                     .FieldList = letters + "NO|FDATE|CONO|JOBNO|" + letters + "COMMENT",
                     .TypeList = "C|C|N|C|C",
                     .LengthList = "8|10|2|8|70",
                     .HeadingList = letters + " #|Date|Co|Job|Comment",
                     .WidthList = "800|1000|600|800|5000",
                     .AlignList = "0|0|2|0|0"});
}

}  // namespace

QString zorSearchBranch(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "ILCLIST",
                     .IndexList = "ILCCODE",
                     .WindowTitle = "Search Inventory Location Codes",
                     .SearchTitle = "ILC Codes",
                     .FieldList = "ILCCODE|ILCNAME",
                     .TypeList = "C|C",
                     .LengthList = "2|40",
                     .HeadingList = "Code|Description",
                     .WidthList = "1000|5000",
                     .AlignList = "0|0"});
}

QString zorSearchBin(const QString& path, qint32 ILCTAG)
{
    return dnSearch({.DBPath = path,
                     .TableName = "BINLIST",
                     .IndexList = "BINNO",
                     .WindowTitle = "Search Bin Numbers",
                     .SearchTitle = "Bin Numbers",
                     .FieldList = "BINNO|BINNAME",
                     .TypeList = "C|C",
                     .LengthList = "6|40",
                     .HeadingList = "Number|Description",
                     .WidthList = "1000|6000",
                     .AlignList = "0|0",
                     .keys = {{"ILCTAG", ILCTAG}}});
}

QString zorSearchSeries(const QString& path, qint32 ILCTAG)
{
    return dnSearch({.DBPath = path,
                     .TableName = "SERIESCODES",
                     .IndexList = "SERIESCODE",
                     .WindowTitle = "Search Series Codes",
                     .SearchTitle = "Series Codes",
                     .FieldList = "SERIESCODE|SERIESNAME",
                     .TypeList = "C|C",
                     .LengthList = "3|40",
                     .HeadingList = "Code|Description",
                     .WidthList = "1000|5000",
                     .AlignList = "0|0",
                     .keys = {{"ILCTAG", ILCTAG}}});
}

QString zorSearchSubcategory(const QString& path, qint32 SERIESTAG, const QString& seriesCode)
{
    return dnSearch({.DBPath = path,
                     .TableName = "SUBCATEGORIES",
                     .IndexList = "SUBCATEGORIES",
                     .WindowTitle = "Search Subcategories",
                     .SearchTitle = "Subcategories for Series Code: " + seriesCode,
                     .FieldList = "SUBCATNAME|SUBCATCODE",
                     .TypeList = "C|C",
                     .LengthList = "40|4",
                     .HeadingList = "Description|Code",
                     .WidthList = "6000|1000",
                     .AlignList = "0|0",
                     .keys = {{"SERIESTAG", SERIESTAG}}});
}

QString zorSearchMTR(const QString& path)
{
    return searchDocuments(path, "MTR", "Material Transfer Reports");
}

QString zorSearchMRR(const QString& path)
{
    return searchDocuments(path, "MRR", "Material Return Reports");
}

QString zorSearchMIR(const QString& path)
{
    return searchDocuments(path, "MIR", "Material Issue Reports");
}

QString zorVEXINVSearch(const QString& path, qint32 ILCTAG)
{
    return dnSearch({.DBPath = path,
                     .TableName = "INVENTORY",
                     .IndexList = "INVSHORTDESC|INVPARTNO|INVUPCCODE",
                     .WindowTitle = "Search Inventory Items",
                     .SearchTitle = "Inventory Items by Description",
                     .FieldList = "SHORTDESC|PARTNO|UPCCODE",
                     .TypeList = "C|C|C",
                     .LengthList = "50|18|14",
                     .HeadingList = "Description|Part #|UPC Code",
                     .WidthList = "6000|2000|1400",
                     .AlignList = "0|0|0",
                     .keys = {{"ILCTAG", ILCTAG}}});
}

QString zorVEXINVCATSearch(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "INVCATALOG",
                     .IndexList = "ICNSHORTDESC|ICNPARTNO|ICNUPCCODE",
                     .WindowTitle = "Search Inventory Catalog Items",
                     .SearchTitle = "Inventory Catalog Items by Description",
                     .FieldList = "SHORTDESC|PARTNO|UPCCODE",
                     .TypeList = "C|C|C",
                     .LengthList = "50|18|14",
                     .HeadingList = "Description|Part #|UPC Code",
                     .WidthList = "6000|2000|1400",
                     .AlignList = "0|0|0"});
}
