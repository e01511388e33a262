#include "screens/search/job_searches.h"

#include "screens/search/search_window.h"

namespace {

QString ofCompanyAndJob(const QString& what, qint16 CONO, const QString& JOBNO)
{
    return what + " for Company: " + QString::number(CONO) + " and Job: " + JOBNO;
}

}  // namespace

QString zorSearchCompany(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .DBName = "MAIN",
                     .TableName = "COLIST",
                     .IndexList = "CONO",
                     .WindowTitle = "Search Company Numbers",
                     .SearchTitle = "Company Numbers",
                     .FieldList = "CONO|CONAME",
                     .TypeList = "N|C",
                     .LengthList = "2|30",
                     .HeadingList = "Co. #|Company Name",
                     .WidthList = "600|4000",
                     .AlignList = "0|0"});
}

QString zorSearchJob(const QString& path, qint16 CONO)
{
    return dnSearch({.DBPath = path,
                     .DBName = "MAIN",
                     .TableName = "JOBLIST",
                     .IndexList = "JOBLIST|JOBNAME",
                     .WindowTitle = "Search Job Numbers",
                     .SearchTitle = "Job Numbers for Company: " + QString::number(CONO),
                     .FieldList = "JOBNO|JOBNAME",
                     .TypeList = "C|C",
                     .LengthList = "8|50",
                     .HeadingList = "Job #|Description",
                     .WidthList = "1000|6000",
                     .AlignList = "0|0",
                     .keys = {{"CONO", CONO}}});
}

QString zorSearchUDS(const QString& path, qint16 CONO, const QString& JOBNO)
{
    return dnSearch({.DBPath = path,
                     .DBName = "MAIN",
                     .TableName = "UDSLIST",
                     .IndexList = "UDSLIST|UDSNAME",
                     .WindowTitle = "Search SCF Codes",
                     .SearchTitle = ofCompanyAndJob("SCF Codes", CONO, JOBNO),
                     .FieldList = "UDSCODE|UDSNAME",
                     .TypeList = "C|C",
                     .LengthList = "6|50",
                     .HeadingList = "Code|Description",
                     .WidthList = "1000|4800",
                     .AlignList = "2|0",
                     .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}}});
}

QString zorSearchXref(const QString& path, qint16 CONO, const QString& JOBNO)
{
    return dnSearch({.DBPath = path,
                     .DBName = "MAIN",
                     .TableName = "XILXREF",
                     .IndexList = "XILXREF",
                     .WindowTitle = "Search Lookup Table",
                     .SearchTitle = ofCompanyAndJob("XIL X-Ref Items", CONO, JOBNO),
                     .FieldList = "ITEMA|ITEMB|ITEMC",
                     .TypeList = "C|C|C",
                     .LengthList = "15|15|15",
                     .HeadingList = "Item 1|Item 2|Item 3",
                     .WidthList = "1400|1400|1400",
                     .AlignList = "0|0|0",
                     .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}}});
}

QString zorSearchGLCode(const QString& path, qint16 CONO)
{
    return dnSearch({.DBPath = path,
                     .TableName = "GLCODES",
                     .IndexList = "GLDESC|GLCODES",
                     .WindowTitle = "Search General Ledger Codes",
                     .SearchTitle = "G/L Codes for Company: " + QString::number(CONO),
                     .FieldList = "DESC|GLCODE",
                     .TypeList = "C|C",
                     .LengthList = "50|10",
                     .HeadingList = "Description|G/L Code",
                     .WidthList = "5000|1400",
                     .AlignList = "0|0",
                     .keys = {{"CONO", CONO}}});
}

QString zorSearchInvoiceCode(const QString& path, qint16 CONO, const QString& JOBNO)
{
    return dnSearch(
        {.DBPath = path,
         .TableName = "INVCODES",
         .IndexList = "INVCODES",
         .WindowTitle = "Search Invoice Codes",
         .SearchTitle = "Invoice Codes for Co.: " + QString::number(CONO) + " and Job: " + JOBNO,
         .FieldList = "INVCODE|DESC|UOM",
         .TypeList = "C|C|C",
         .LengthList = "10|30|3",
         .HeadingList = "Invoice Code|Description|UOM",
         .WidthList = "1000|4000|600",
         .AlignList = "0|0|0",
         .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}}});
}

QString zorSearchJobSite()
{
    return dnSearch({.DBPath = {},
                     .DBName = "DBPATHS",
                     .TableName = "DBPATHS",
                     .IndexList = "DBPATHS",
                     .WindowTitle = "Search Job Sites",
                     .SearchTitle = "Job Sites",
                     .FieldList = "PATHNAME",
                     .TypeList = "C",
                     .WidthList = "3000",
                     .AlignList = "0"});
}

QString zorSearchProject(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .DBName = "EDUMAIN",
                     .TableName = "PROJECTS",
                     .IndexList = "PROJECTS",
                     .WindowTitle = "Search EcoSys Projects List",
                     .SearchTitle = "Projects",
                     .FieldList = "PROJCODE|PROJNAME",
                     .TypeList = "C|C",
                     .LengthList = "10|50",
                     .HeadingList = "Code|Project Name",
                     .WidthList = "1200|6000",
                     .AlignList = "0|0"});
}

QString zorSearchWorkOrder(const QString& path)
{
    return dnSearch({.DBPath = path,
                     .DBName = "ZORBRQ",
                     .TableName = "BRQWOLIST",
                     .IndexList = "BRQWONO",
                     .WindowTitle = "Search Eq. Maintenance Workorders",
                     .SearchTitle = "Eq. Maint. Workorders",
                     .FieldList = "BRQWONO|REMARKS",
                     .TypeList = "C|C",
                     .LengthList = "10|40",
                     .HeadingList = "W/O No.|Remarks",
                     .WidthList = "1500|6000",
                     .AlignList = "0|0"});
}
