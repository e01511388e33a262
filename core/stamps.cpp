#include "core/stamps.h"

#include "core/keyed_access.h"
#include "core/system.h"
#include "core/text.h"

namespace {

struct Moment
{
    QString date;
    QString time;
};

Moment presentMoment()
{
    const QDateTime now = System::current().now();
    return {now.toString("MM/dd/yyyy"), now.toString("h:mm AP")};
}

QString shown(const storage::Field& field)
{
    const QString text = trimmedTextOf(field);
    return text.isEmpty() ? QString("<Empty>") : text;
}

}  // namespace

void zorStampAdd(storage::Recordset& rs, const QString& bookmark, const QString& userName)
{
    const Moment now = presentMoment();
    rs.Bookmark(bookmark);
    rs.Edit();
    rs["ADDNAME"] = userName.trimmed();
    rs["ADDDATE"] = now.date;
    rs["ADDTIME"] = now.time;
    rs["EDITNAME"] = " ";
    rs["EDITDATE"] = " ";
    rs["EDITTIME"] = " ";
    rs.Update();
}

void zorStampEdit(storage::Recordset& rs, const QString& bookmark, const QString& userName)
{
    const Moment now = presentMoment();
    rs.Bookmark(bookmark);
    rs.Edit();
    rs["EDITNAME"] = userName.trimmed();
    rs["EDITDATE"] = now.date;
    rs["EDITTIME"] = now.time;
    rs.Update();
}

UpdateHistory updateHistoryOf(storage::Recordset& rs, const QString& bookmark)
{
    rs.Bookmark(bookmark);
    return {.created = {shown(rs["ADDNAME"]), shown(rs["ADDDATE"]), shown(rs["ADDTIME"])},
            .lastUpdated = {shown(rs["EDITNAME"]), shown(rs["EDITDATE"]), shown(rs["EDITTIME"])}};
}
