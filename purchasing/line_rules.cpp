#include "purchasing/line_rules.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/line_amount.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/stamps.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "inventory/item_codes.h"
#include "inventory/ledger_posting.h"
#include "purchasing/document_lines.h"
#include "purchasing/line_checks.h"
#include "purchasing/line_deletion.h"

namespace {

constexpr int shortLength = 255;

// Carried from one new line to the next.
constexpr schema::FieldName carried[] = {"QTY",       "UNIT",      "Desc",      "UNITFACT",
                                         "UNITPRICE", "COSTCODEA", "COSTCODEB", "COSTCODEC",
                                         "MCODE",     "GLCODE",    "ASSET"};

void showItem(Entry& entry, qint32 ILCTAG, qint32 ISNTAG)
{
    const Session& session = entry.session();
    const auto item = line::itemAt(session, ISNTAG);
    // The line of a cloned order has its item, but no branch.
    const auto branch =
        codeRowAt(session.JobSitePath, branchCodes, ILCTAG == 0 && item ? item->ILCTAG : ILCTAG);
    entry.setNamed(line::branch, branch ? branch->code : QString());
    entry.setNamed(line::part, item ? item->PARTNO : QString());
}

void keepCarried(const Session& session, const storage::Recordset& rows)
{
    OpenTable open = openTable(session, "ZORUSER.mdb", "VEXRQIAUTO");
    if (open.rows.RecordCount() == 0) {
        open.rows.AddNew();
    } else {
        open.rows.MoveFirst();
        open.rows.Edit();
    }
    for (const schema::FieldName field : carried)
        open.rows[field] = rows[field].value();
    open.rows["ISNTAG"] = rows["ISNTAG"].value();
    open.rows["AMOUNT"] = rows["AMOUNT"].value();
    open.rows.Update();
}

void takeCarried(Entry& entry)
{
    OpenTable open = openTable(entry.session(), "ZORUSER.mdb", "VEXRQIAUTO");
    const storage::Recordset& rows = open.rows;
    if (rows.RecordCount() == 0)
        return;
    for (const schema::FieldName field : carried) {
        const bool isPrice = field == schema::FieldName("UNITPRICE");
        const bool isQuantity = field == schema::FieldName("QTY");
        entry.setText(field, isPrice || isQuantity
                                 ? dnFormat(numberOf(rows[field]),
                                            isPrice ? line::priceMask : line::quantityMask)
                                       .trimmed()
                                 : textOf(rows[field]).trimmed());
    }
    if (const auto item = line::itemAt(entry.session(), intOf(rows["ISNTAG"])))
        showItem(entry, item->ILCTAG, item->ISNTAG);
}

}  // namespace

double LineRules::total(const Entry& entry) const
{
    return roundedToCents(m_others + line::amountOf(entry).value_or(0));
}

bool LineRules::begin(Entry& entry)
{
    const Session& session = entry.session();
    m_awaitsItem = false;
    m_hasDrifted = false;
    {
        OpenTable lines = openTable(session, "ZORVEX.mdb", "RQILIST");
        const qint32 own = entry.isAdding() ? 0 : intOf(entry.rows()["RQITAG"]);
        m_others = sumOfLines(lines.rows, *m_owner.kind, m_owner.docTag, own);
    }
    if (entry.isAdding()) {
        beginNew(entry);
        return true;
    }
    const storage::Recordset& rows = entry.rows();
    for (const schema::FieldName code :
         {schema::FieldName("COSTCODEA"), {"COSTCODEB"}, {"COSTCODEC"}})
        entry.setText(code, trimmedTextOf(rows[code]));
    m_item = intOf(rows["ISNTAG"]);
    showItem(entry, intOf(rows["ILCTAG"]), m_item);
    compare(entry);
    return true;
}

// A new line takes what the item has.
void LineRules::compare(const Entry& entry)
{
    const auto price = [](double amount) { return dnFormat(amount, line::priceMask); };
    const auto item = entry.isAdding() ? std::nullopt : line::itemOf(entry);
    m_hasDrifted = item && (item->UOM != entry["UNIT"].trimmed() ||
                            item->Desc.trimmed() != entry["Desc"].trimmed() ||
                            price(item->RETAIL) != price(entry.number("UNITPRICE")));
}

void LineRules::inFront(Entry& entry)
{
    if (!m_awaitsItem)
        return;
    OpenTable settings = openTable(entry.session(), "ZORUSER.mdb", "VEXSETTINGS");
    const qint32 tag =
        zorGetUserSetting(settings.rows, entry.session().SiteTag, "RQIISNTAG").toInt();
    if (tag == 0)
        return;
    m_awaitsItem = false;
    if (const auto item = line::itemAt(entry.session(), tag))
        showItem(entry, item->ILCTAG, tag);
    compare(entry);
}

EntryRules::Step LineRules::beforeWrite(Entry& entry)
{
    const auto item = line::itemOf(entry);
    const qint32 ISNTAG = item ? item->ISNTAG : 0;
    if (m_owner.kind->isOrder() && !postToLedger(entry, ISNTAG))
        return Step::Stay;
    giveNumbers(entry);
    entry.give("ISNTAG", ISNTAG);
    entry.give("ILCTAG", line::branchOf(entry));
    return Step::Write;
}

void LineRules::complete(const Entry& entry, storage::Recordset& rows)
{
    for (const CostCodeGroup& group : costCodeGroups)
        rows[group.code] = line::storedCode(entry, m_owner, group);
    const QString text = entry["Desc"];
    rows["SHORTDESC"] = text.section('\n', 0, 0).remove('\r').left(shortLength);
    rows["AMOUNT"] = line::amountOf(entry).value_or(0);
    if (!entry.isAdding())
        return;
    rows["IBCTAG"] = 0;
    rows["ADJUSTMENT"] = "";
    rows["DOCTYPE"] = "";
    rows["BRQWOMTAG"] = 0;
    rows["BRQROMTAG"] = 0;
    if (!m_owner.kind->isOrder())
        rows["REVNO"] = 0;
}

void LineRules::written(Entry& entry, storage::Recordset& rows)
{
    const QString bookmark = rows.Bookmark();
    const Session& session = entry.session();
    entry.isAdding() ? zorStampAdd(rows, bookmark, session.UserName)
                     : zorStampEdit(rows, bookmark, session.UserName);
    rows.Bookmark(bookmark);
    m_item = intOf(rows["ISNTAG"]);
    if (const qint32 branch = intOf(rows["ILCTAG"]); branch != 0) {
        OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
        zorSaveUserSetting(settings.rows, session.SiteTag, "ILCTAG", branch);
    }
    if (*m_carries)
        keepCarried(session, rows);
}

bool LineRules::beforeDelete(const Session& session, storage::Recordset& rows)
{
    const QString bookmark = rows.Bookmark();
    deleteLine(session, *m_owner.kind, intOf(rows["RQITAG"]));
    // It is deleted with what hangs on it, or it stays as a whole.
    return !goToFound(rows, bookmark);
}

void LineRules::beginNew(Entry& entry) const
{
    const Session& session = entry.session();
    OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
    const int branch = zorGetUserSetting(settings.rows, session.SiteTag, "ILCTAG").toInt();
    if (const auto row = codeRowAt(session.JobSitePath, branchCodes, branch))
        entry.setNamed(line::branch, row->code);
    const QString MCODE = siteSetting(session.JobSitePath, "MCODEDEFAULT").toString().trimmed();
    if (!MCODE.isEmpty())
        entry.setText("MCODE", MCODE);
    if (*m_carries)
        takeCarried(entry);
    entry.setFocus(schema::FieldName("QTY"));
}

bool LineRules::postToLedger(const Entry& entry, qint32 ISNTAG) const
{
    if (ISNTAG == 0 && m_item == 0)
        return true;
    if (dnIsBlank(dnFixDate(m_owner.FDATE))) {
        showCritical("Cannot Update",
                     "Cannot Update Inventory Because PO Date is Invalid.\n"
                     "PO Date is used as the Transaction Date for Inventory Item.");
        return false;
    }
    const qint32 RQITAG = entry.isAdding()
                              ? entry.tag()
                              : (entry.goToRecord() ? intOf(entry.rows()["RQITAG"]) : entry.tag());
    const qint32 old = entry.isAdding() ? 0 : m_item;
    return zorInvTransUpdate(entry.session().JobSitePath, line::branchOf(entry), "PO",
                             m_owner.docTag, "RQI", RQITAG, ISNTAG, old, m_owner.FDATE,
                             m_owner.LDATE, line::quantityOf(entry));
}

void LineRules::giveNumbers(Entry& entry) const
{
    if (!entry.isAdding())
        return;
    const DocumentKind& kind = *m_owner.kind;
    OpenTable lines = openTable(entry.session(), "ZORVEX.mdb", "RQILIST");
    const LineNumbers numbers =
        numbersForNewLine(lines.rows, kind, m_owner.docTag, line::quantityOf(entry) == 0);
    for (const DocumentKind* each : {&requisitions, &purchaseOrders}) {
        const bool isOwn = each == &kind;
        entry.give(each->itemNo, isOwn ? numbers.item : 0);
        entry.give(each->lineNo, isOwn ? numbers.line : 0);
    }
    if (kind.isOrder())
        entry.give("REQTAG", m_owner.REQTAG);
    else
        entry.give("POTAG", 0);
}
