#include "screens/search/vendor_searches.h"

#include "screens/search/search_window.h"

QString zorSearchVendor(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "VENDORS",
                     .IndexList = "VENNAME|VENNO",
                     .WindowTitle = "Search Vendors",
                     .SearchTitle = "Vendors",
                     .FieldList = "NAME|VENNO",
                     .TypeList = "C|C",
                     .LengthList = "40|10",
                     .HeadingList = "Name|Number",
                     .WidthList = "5000|1600",
                     .AlignList = "0|0"});
}

QString zorSearchManufacturer(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "MANUFACTURERS",
                     .IndexList = "MANUFACTURERS",
                     .WindowTitle = "Search Manufacturers",
                     .SearchTitle = "Manufacturers",
                     .FieldList = "MFGNAME|MFGNO",
                     .TypeList = "C|C",
                     .LengthList = "40|7",
                     .HeadingList = "Name|Number",
                     .WidthList = "6000|1000",
                     .AlignList = "0|0"});
}

QString zorSearchTerms(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "TERMSCODES",
                     .IndexList = "TERMSCODES",
                     .WindowTitle = "Search Term Codes",
                     .SearchTitle = "Term Codes",
                     .FieldList = "TERMSCODE|TCNAME",
                     .TypeList = "C|C",
                     .LengthList = "2|30",
                     .HeadingList = "Code|Description",
                     .WidthList = "800|5000",
                     .AlignList = "0|0"});
}

QString zorSearchPayment(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .TableName = "PAYMENTS",
                     .IndexList = "PAYVENINV",
                     .WindowTitle = "Search Payment Detail",
                     .SearchTitle = "Payments",
                     .FieldList = "VENINV|VENINVDATE",
                     .TypeList = "C|C",
                     .LengthList = "20|10",
                     .HeadingList = "Invoice No.|Date",
                     .WidthList = "2000|2000",
                     .AlignList = "0|0"});
}
