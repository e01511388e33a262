#include "screens/search/cost_code_searches.h"

#include "core/cost_code_groups.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/text.h"
#include "screens/search/search_window.h"

namespace {

const CostCodeGroup& groupA = costCodeGroups[0];
const CostCodeGroup& groupB = costCodeGroups[1];
const CostCodeGroup& groupC = costCodeGroups[2];

QString nameOf(schema::FieldName field)
{
    return QString::fromLatin1(field.text());
}

}  // namespace

QString searchCostCodes(const CostCodeGroup& group, const QString& path, qint16 CONO,
                        const QString& JOBNO, const QString& groupName, CostCodeOrder order)
{
    if (dnIsBlank(groupName)) {
        showCritical("Invalid Cost Code", "Cost Code Group '" + group.letterText() +
                                              "' is not Defined for Job Number: " + JOBNO);
        return noBookmark;
    }
    const bool byCode = order == CostCodeOrder::ByCode;
    const auto pair = [byCode](const QString& code, const QString& description) {
        return byCode ? code + '|' + description : description + '|' + code;
    };
    const QString plural = costCodeGroupPlural(groupName);
    return dnSearch(
        {.DBPath = path,
         .DBName = "MAIN",
         .TableName = group.table,
         .IndexList = pair(group.table, group.nameIndex),
         .WindowTitle = "Search " + plural,
         .SearchTitle = plural + " for Company: " + QString::number(CONO) + " and Job: " + JOBNO,
         .FieldList = pair(nameOf(group.code), nameOf(group.description)),
         .TypeList = "C|C",
         .LengthList = pair("15", "30"),
         .HeadingList = pair(groupName.trimmed(), "Description"),
         .WidthList = pair("1500", "6000"),
         .AlignList = "0|0",
         .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}}});
}

QString pickCostCode(const CostCodeGroup& group, const QString& path, const QString& typed,
                     qint16 CONO, const QString& JOBNO, const QString& groupName,
                     CostCodeOrder order)
{
    const QString bookmark = searchCostCodes(group, path, CONO, JOBNO, groupName, order);
    if (dnIsBlank(groupName))
        return noBookmark;
    if (dnIsBlank(bookmark))
        return typed;
    OpenTable codes = openTable(path, "MAIN.mdb", group.table);
    return goToFound(codes.rows, bookmark) ? textOf(codes.rows[group.code]) : typed;
}

QString zorSearchCCA(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName, CostCodeOrder order)
{
    return searchCostCodes(groupA, path, CONO, JOBNO, groupName, order);
}

QString zorSearchCCB(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName)
{
    return searchCostCodes(groupB, path, CONO, JOBNO, groupName, CostCodeOrder::ByDescription);
}

QString zorSearchCCC(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName)
{
    return searchCostCodes(groupC, path, CONO, JOBNO, groupName, CostCodeOrder::ByDescription);
}

QString zorCCASearch(const QString& path, const QString& typed, qint16 CONO, const QString& JOBNO,
                     const QString& groupName, CostCodeOrder order)
{
    return pickCostCode(groupA, path, typed, CONO, JOBNO, groupName, order);
}

QString zorCCBSearch(const QString& path, const QString& typed, qint16 CONO, const QString& JOBNO,
                     const QString& groupName)
{
    return pickCostCode(groupB, path, typed, CONO, JOBNO, groupName, CostCodeOrder::ByDescription);
}

QString zorCCCSearch(const QString& path, const QString& typed, qint16 CONO, const QString& JOBNO,
                     const QString& groupName)
{
    return pickCostCode(groupC, path, typed, CONO, JOBNO, groupName, CostCodeOrder::ByDescription);
}
