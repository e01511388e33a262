#include "screens/search/cost_code_searches.h"

#include "core/messages.h"
#include "core/text.h"
#include "screens/search/search_window.h"

namespace {

QString searchGroup(const QString& letter, const QString& path, qint16 CONO, const QString& JOBNO,
                    const QString& groupName, CostCodeOrder order)
{
    if (dnIsBlank(groupName)) {
        showCritical("Invalid Cost Code",
                     "Cost Code Group '" + letter + "' is not Defined for Job Number: " + JOBNO);
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
         .TableName = "CC" + letter + "LIST",
         .IndexList = pair("CC" + letter + "LIST", "CC" + letter + "NAME"),
         .WindowTitle = "Search " + plural,
         .SearchTitle = plural + " for Company: " + QString::number(CONO) + " and Job: " + JOBNO,
         .FieldList = pair("COSTCODE" + letter, "DESC" + letter),
         .TypeList = "C|C",
         .LengthList = pair("15", "30"),
         .HeadingList = pair(groupName.trimmed(), "Description"),
         .WidthList = pair("1500", "6000"),
         .AlignList = "0|0",
         .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}}});
}

}  // namespace

QString zorSearchCCA(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName, CostCodeOrder order)
{
    return searchGroup("A", path, CONO, JOBNO, groupName, order);
}

QString zorSearchCCB(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName)
{
    return searchGroup("B", path, CONO, JOBNO, groupName, CostCodeOrder::ByDescription);
}

QString zorSearchCCC(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName)
{
    return searchGroup("C", path, CONO, JOBNO, groupName, CostCodeOrder::ByDescription);
}

QString costCodeGroupPlural(const QString& groupName)
{
    const QString name = groupName.trimmed();
    const QString capitalised = name.left(1).toUpper() + name.mid(1).toLower();
    if (capitalised.endsWith('s', Qt::CaseInsensitive))
        return capitalised;
    if (capitalised.endsWith('y', Qt::CaseInsensitive))
        return capitalised.chopped(1) + "ies";
    return capitalised + 's';
}
