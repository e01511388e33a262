#include "core/tag_list.h"

#include "core/keyed_access.h"
#include "core/text.h"

bool zorTagListCheck(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode, qint32 itemTag)
{
    if (itemTag == 0)
        return false;
    rs.Index("TAGLIST");
    return rs.Seek("=", docCode, docTag, itemCode, itemTag);
}

bool zorTagListFind(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                    const QString& itemCode, QString* bookmark)
{
    const QString found =
        dnSeek(rs, "TAGLIST", {{"DOCCODE", docCode}, {"DOCTAG", docTag}, {"ITEMCODE", itemCode}});
    if (bookmark)
        *bookmark = found;
    return dnIsBlank(found);
}

void zorTagListSet(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                   const QString& itemCode, qint32 itemTag, const QString& docNo)
{
    if (itemTag == 0 || zorTagListCheck(rs, docCode, docTag, itemCode, itemTag))
        return;
    rs.AddNew();
    rs["DOCCODE"] = docCode;
    rs["DOCTAG"] = docTag;
    rs["ITEMCODE"] = itemCode;
    rs["ITEMTAG"] = itemTag;
    rs["DOCNO"] = docNo;
    rs.Update();
}

void zorTagListUnset(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode, qint32 itemTag)
{
    if (zorTagListCheck(rs, docCode, docTag, itemCode, itemTag))
        rs.Delete();
}

void zorTagListClear(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode)
{
    deleteWithin(rs, "TAGLIST", {{"DOCCODE", docCode}, {"DOCTAG", docTag}, {"ITEMCODE", itemCode}});
}

std::vector<qint32> zorTagListItems(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                                    const QString& itemCode)
{
    std::vector<qint32> tags;
    forEachWithin(rs, "TAGLIST", {{"DOCCODE", docCode}, {"DOCTAG", docTag}, {"ITEMCODE", itemCode}},
                  [&] {
                      tags.push_back(intOf(rs["ITEMTAG"]));
                      return true;
                  });
    return tags;
}
