#include "purchasing/forms/addendum.h"

#include "core/keyed_access.h"
#include "core/locators.h"

namespace {

OpenTable openTexts(const Session& session)
{
    return openTable(session, "ZORVEX.mdb", "PONOTETEXT");
}

bool isDefault(const storage::Recordset& text)
{
    return dnNullCheck(text["PONDEFAULT"]).toBool();
}

bool seek(storage::Recordset& texts, qint32 PONTAG)
{
    return PONTAG != 0 && !dnSeek(texts, "PONTAG", {{"PONTAG", PONTAG}}).isEmpty();
}

bool seekDefault(storage::Recordset& texts)
{
    return !forEachWithin(texts, "PONTAG", {}, [&texts] { return !isDefault(texts); });
}

Addendum textOn(const storage::Recordset& texts)
{
    return {.title = trimmedTextOf(texts["PONTITLE"]), .text = textOf(texts["PONTEXT"])};
}

void setDefault(storage::Recordset& texts, bool isSet)
{
    texts.Edit();
    texts["PONDEFAULT"] = isSet;
    texts.Update();
}

}  // namespace

std::optional<Addendum> addendumText(const Session& session, qint32 PONTAG)
{
    OpenTable texts = openTexts(session);
    return seek(texts.rows, PONTAG) ? std::optional(textOn(texts.rows)) : std::nullopt;
}

std::optional<Addendum> addendumOf(const Session& session, qint32 POTAG)
{
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    if (dnSeek(orders.rows, "POTAG", {{"POTAG", POTAG}}).isEmpty())
        return {};
    OpenTable texts = openTexts(session);
    // A chosen text that was deleted since counts as none.
    if (seek(texts.rows, intOf(orders.rows["PONTAG"])) || seekDefault(texts.rows))
        return textOn(texts.rows);
    return {};
}

bool hasAddenda(const Session& session)
{
    return openTexts(session).rows.RecordCount() > 0;
}

void setAddendum(const Session& session, qint32 POTAG, const QString& bookmark)
{
    OpenTable texts = openTexts(session);
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    if (!goToFound(texts.rows, bookmark) ||
        dnSeek(orders.rows, "POTAG", {{"POTAG", POTAG}}).isEmpty())
        return;
    orders.rows.Edit();
    orders.rows["PONTAG"] = intOf(texts.rows["PONTAG"]);
    orders.rows.Update();
}

void toggleDefaultAddendum(const Session& session, qint32 PONTAG)
{
    OpenTable texts = openTexts(session);
    forEachWithin(texts.rows, "PONTAG", {}, [&] {
        const bool isMeant = intOf(texts.rows["PONTAG"]) == PONTAG;
        if (isMeant || isDefault(texts.rows))
            setDefault(texts.rows, isMeant && !isDefault(texts.rows));
        return true;
    });
}
