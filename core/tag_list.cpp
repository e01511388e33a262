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
