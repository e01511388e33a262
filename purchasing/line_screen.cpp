#include "purchasing/line_screen.h"

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
#include "inventory/items.h"
#include "inventory/ledger_posting.h"
#include "purchasing/document_lines.h"
#include "purchasing/line_checks.h"
#include "purchasing/line_deletion.h"
#include "screens/data/data_session.h"
#include "screens/data/data_window.h"

using Kind = EntryField::Kind;

namespace {

constexpr char amountMask[] = "##,###,###.00";

EntryField shown(const char* name, const QString& caption,
                 std::function<QString(const Entry&)> shows)
{
    return {.kind = Kind::Shown, .name = name, .caption = caption, .shows = std::move(shows)};
}

// Carried from one new line to the next.
constexpr schema::FieldName carried[] = {"QTY",       "UNIT",      "Desc",      "UNITFACT",
                                         "UNITPRICE", "COSTCODEA", "COSTCODEB", "COSTCODEC",
                                         "MCODE",     "GLCODE",    "ASSET"};

class LineRules : public EntryRules
{
public:
    LineRules(const LineOwner& owner, std::shared_ptr<bool> carries)
        : m_owner(owner), m_carries(std::move(carries))
    {
    }

    // Its amount beside those of the document's other lines.
    double total(const Entry& entry) const
    {
        return roundedToCents(m_others + line::amountOf(entry).value_or(0));
    }
    bool hasDrifted() const { return m_hasDrifted; }
    void awaitItem() { m_awaitsItem = true; }
    void settle() { m_hasDrifted = false; }

    bool begin(Entry& entry) override
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
        if (const auto item = line::itemAt(session, m_item))
            m_hasDrifted = item->UOM != entry["UNIT"].trimmed() ||
                           item->Desc.trimmed() != entry["Desc"].trimmed() ||
                           item->RETAIL != numberOf(rows["UNITPRICE"]);
        return true;
    }

    // An item that was added on its own screen for this line.
    void inFront(Entry& entry) override
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
    }

    Step beforeWrite(Entry& entry) override
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

    void complete(const Entry& entry, storage::Recordset& rows) override
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

    void written(Entry& entry, storage::Recordset& rows) override
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

    bool beforeDelete(const Session& session, storage::Recordset& rows) override
    {
        const QString bookmark = rows.Bookmark();
        deleteLine(session, *m_owner.kind, intOf(rows["RQITAG"]));
        // It is deleted with what hangs on it, or it stays as a whole.
        return !goToFound(rows, bookmark);
    }

private:
    static constexpr int shortLength = 255;

    void beginNew(Entry& entry) const
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

    static void showItem(Entry& entry, qint32 ILCTAG, qint32 ISNTAG)
    {
        const Session& session = entry.session();
        const auto branch = codeRowAt(session.JobSitePath, branchCodes, ILCTAG);
        const auto item = line::itemAt(session, ISNTAG);
        entry.setNamed(line::branch, branch ? branch->code : QString());
        entry.setNamed(line::part, item ? item->PARTNO : QString());
    }

    bool postToLedger(const Entry& entry, qint32 ISNTAG)
    {
        if (ISNTAG == 0 && m_item == 0)
            return true;
        if (dnIsBlank(dnFixDate(m_owner.FDATE))) {
            showCritical("Cannot Update",
                         "Cannot Update Inventory Because PO Date is Invalid.\n"
                         "PO Date is used as the Transaction Date for Inventory Item.");
            return false;
        }
        const qint32 RQITAG =
            entry.isAdding() ? entry.tag()
                             : (entry.goToRecord() ? intOf(entry.rows()["RQITAG"]) : entry.tag());
        const qint32 old = entry.isAdding() ? 0 : m_item;
        return zorInvTransUpdate(entry.session().JobSitePath, line::branchOf(entry), "PO",
                                 m_owner.docTag, "RQI", RQITAG, ISNTAG, old, m_owner.FDATE,
                                 m_owner.LDATE, line::quantityOf(entry));
    }

    // The pair of the document; those of the other one stay 0.
    void giveNumbers(Entry& entry) const
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

    static void keepCarried(const Session& session, const storage::Recordset& rows)
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

    static void takeCarried(Entry& entry)
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

    LineOwner m_owner;
    std::shared_ptr<bool> m_carries;
    double m_others = 0;
    qint32 m_item = 0;  // that the stored line names
    bool m_hasDrifted = false;
    bool m_awaitsItem = false;
};

using Rules = std::shared_ptr<LineRules>;

// ---- fields
std::vector<EntryField> itemFields(const LineOwner& owner)
{
    return {{.name = line::branch,
             .caption = "&Branch Code:",
             .length = 2,
             .keys = {.upperCase = true},
             .check = line::checkBranch,
             .search = line::searchBranch},
            shown("lblILCNAME", "", line::branchName),
            {.name = line::part,
             .caption = "&Part Number:",
             .length = 18,
             .keys = {.upperCase = true},
             .check = line::checkPart,
             .choose = line::choosePart,
             .left = line::partLeft},
            {.name = "txtQTY",
             .field = "QTY",
             .caption = "&Quantity:",
             .length = 13,
             .alignment = Qt::AlignRight,
             .check = line::checkQuantity(owner),
             .left = line::quantityLeft},
            {.name = "txtUNIT", .field = "UNIT", .caption = "U&nit:"},
            {.name = "txtVINVNO",
             .field = "VINVNO",
             .caption = "Vendor's In&voice #:",
             .left = line::vendorInvoiceLeft(owner)},
            {.kind = Kind::Memo,
             .name = "txtDESC",
             .field = "Desc",
             .caption = "&Description:",
             .check = required("Desc", "Description is Empty.")},
            {.name = "txtUNITPRICE",
             .field = "UNITPRICE",
             .caption = "Unit P&rice:",
             .length = 15,
             .format = line::priceMask,
             .alignment = Qt::AlignRight},
            {.name = "txtUNITFACT",
             .field = "UNITFACT",
             .caption = "Unit &Factor:",
             .length = 1,
             .check = line::checkFactor,
             .hint = "Blank or e each, d dozen, g gross, c hundred, m thousand"}};
}

std::vector<EntryField> amountFields(const Rules& rules)
{
    const auto money = [](double amount) { return dnFormat(amount, amountMask).trimmed(); };
    return {shown("lblDAmount", "Amount:",
                  [money](const Entry& entry) { return money(line::amountOf(entry).value_or(0)); }),
            shown("lblTotal", "Document Total:",
                  [money, rules](const Entry& entry) { return money(rules->total(entry)); }),
            shown("lblINVWarning", "", [rules](const Entry&) {
                return rules->hasDrifted() ? QString(
                                                 "Warning: Inventory Item's Unit, \n"
                                                 "Description and/or Unit Price\n"
                                                 "have -``Changed Since this PO Item was Last "
                                                 "Updated.")
                                           : QString();
            })};
}

std::vector<EntryField> codeFields(const LineOwner& owner)
{
    static constexpr const char* controls[] = {"txtCOSTCODEA", "txtCOSTCODEB", "txtCOSTCODEC"};
    static constexpr const char* labels[] = {"lblDESCA", "lblDESCB", "lblDESCC"};
    std::vector<EntryField> fields;
    for (size_t i = 0; i < costCodeGroups.size(); ++i) {
        const CostCodeGroup& group = costCodeGroups[i];
        const CostCodeSettings& settings = owner.groups[i];
        const bool isUsed = settings.isDefined();
        fields.push_back({.name = controls[i],
                          .field = group.code,
                          .caption = isUsed ? settings.name + ':' : QString("Not Used"),
                          .length = isUsed ? settings.size : 15,
                          .keys = {.upperCase = true},
                          .check = line::checkCostCode(owner, group),
                          .search = line::searchCostCode(owner, group),
                          .left = line::costCodeLeft(owner, group),
                          .isLive = [isUsed](const Entry&) { return isUsed; }});
        fields.push_back(shown(labels[i], "", line::costCodeName(owner, group)));
    }
    const std::vector<EntryField> rest = {
        {.name = "txtMCODE",
         .field = "MCODE",
         .caption = "&Material Code:",
         .keys = {.upperCase = true},
         .check = line::checkMaterialCode,
         .search = line::searchMaterialCode},
        {.name = "txtGLCODE",
         .field = "GLCODE",
         .caption = "&G/L Code:",
         .keys = {.upperCase = true},
         .check = line::checkGlCode(owner),
         .search = line::searchGlCode(owner)},
        {.name = "txtASSET",
         .field = "ASSET",
         .caption = "&Asset:",
         .keys = {.upperCase = true},
         .check = line::yesNo("ASSET", "Asset Must be Blank, 'Y' or 'N'")}};
    fields.insert(fields.end(), rest.begin(), rest.end());
    return fields;
}

std::vector<EntryField> stockFields(const DocumentKind& kind)
{
    std::vector<EntryField> fields = {
        {.name = "txtDRAWINGNO", .field = "DRAWINGNO", .caption = "Dra&wing Number:"},
        {.name = "txtSALE",
         .field = "SALE",
         .caption = "&Sale:",
         .keys = {.upperCase = true},
         .check = line::yesNo("SALE", "SALE Must be Blank, 'Y' or 'N'."),
         .isCheckedOnlyWhenLeft = true},
        {.name = "txtWHOLESALE",
         .field = "WHOLESALE",
         .caption = "W&holesale:",
         .length = 13,
         .format = "#########.00",
         .alignment = Qt::AlignRight},
        {.name = "txtMARKUP",
         .field = "MARKUP",
         .caption = "Default Mar&kup %:",
         .length = 6,
         .format = "###.00",
         .alignment = Qt::AlignRight,
         .check = line::checkMarkup,
         .isCheckedOnlyWhenLeft = true,
         .left = line::markupLeft},
        {.name = "txtRETAIL",
         .field = "RETAIL",
         .caption = "Re&tail:",
         .length = 13,
         .format = "#########.00",
         .alignment = Qt::AlignRight,
         .check = line::checkRetail,
         .isCheckedOnlyWhenLeft = true}};
    if (kind.isOrder())
        fields.push_back({.name = "txtREVNO", .field = "REVNO", .caption = "PO Revisi&on #:"});
    return fields;
}

// ---- commands
void openItem(DataSession& screen, const QString& mode)
{
    const Entry& entry = screen.entry();
    const auto item = line::itemOf(entry);
    if (!item)
        return showCritical("Invalid Part Number",
                            QString(mode == "V" ? "Cannot View" : "Cannot Edit") +
                                " Inventory Item. Part Number is Empty or Invalid.");
    openDataScreen(frmVEXINV02(screen.session(), {.ILCTAG = item->ILCTAG}), screen.session(),
                   {.mode = mode,
                    .index = "INVISNTAG",
                    .keys = {{"ISNTAG", item->ISNTAG}},
                    .parent = {{"ILCTAG", item->ILCTAG}},
                    .tag = item->ISNTAG});
}

void addItem(const Rules& rules, DataSession& screen, const char* title, const char* noBranch)
{
    Entry& entry = screen.entry();
    const qint32 branch = line::branchOf(entry);
    if (branch == 0)
        return showCritical(title, noBranch);
    if (entry.isAdding())
        return showCritical(title,
                            "Click on 'Save and Stay' Command Button First\n"
                            "and Then Click the 'Inventory Add' Button");
    if (!entry.goToRecord())
        return;
    rules->awaitItem();
    openDataScreen(
        frmVEXINV02(screen.session(), {.ILCTAG = branch},
                    {.line = ItemCaller::Line::Purchase, .tag = intOf(entry.rows()["RQITAG"])}),
        screen.session(), {.mode = "A", .parent = {{"ILCTAG", branch}}});
}

void updateFields(const Rules& rules, DataSession& screen)
{
    if (!rules->hasDrifted())
        return;
    line::takeItem(screen.entry());
    rules->settle();
}

std::vector<DataCommand> commands(const Rules& rules)
{
    return {
        {"cmdInventoryView", "&1 - View Item", [](DataSession& in) { openItem(in, "V"); }, true},
        {"cmdInventoryEdit", "&2 - Edit Item", [](DataSession& in) { openItem(in, "E"); }},
        {"cmdInventoryAdd", "&3 - Inventory Add",
         [rules](DataSession& in) {
             addItem(rules, in, "Invalid Branch Code",
                     "Cannot Add a New Item to Inventory. Select a Valid Branch Code.");
         }},
        {"cmdAdd2Inventory", "&4 - Add Line to Inventory",
         [rules](DataSession& in) {
             addItem(rules, in, "Invalid ILC",
                     "Cannot Add this Item to Inventory. Select a Valid Branch Code (ILC) "
                     "First.");
         }},
        {"cmdUpdateFields", "&5 - Update Fields",
         [rules](DataSession& in) { updateFields(rules, in); }}};
}

}  // namespace

std::optional<LineOwner> lineOwnerOf(const Session& session, const DocumentKind& kind,
                                     qint32 docTag)
{
    OpenTable documents = openTable(session, "ZORVEX.mdb", kind.table);
    const storage::Recordset& rows = documents.rows;
    documents.rows.Index(kind.byTag);
    if (!documents.rows.Seek("=", docTag))
        return {};
    LineOwner owner{.kind = &kind,
                    .docTag = docTag,
                    .REQTAG = intOf(rows["REQTAG"]),
                    .CONO = intOf(rows["CONO"]),
                    .JOBNO = textOf(rows["JOBNO"]),
                    .FDATE = textOf(rows["FDATE"]),
                    .LDATE = textOf(rows["LDATE"])};
    owner.groups = costCodeSettingsOf(session.JobSitePath, owner.CONO, owner.JOBNO)
                       .value_or(JobCostCodeSettings{});
    return owner;
}

DataSpec frmVEXRQI02(const Session& session, const LineOwner& owner,
                     const std::shared_ptr<bool>& carries)
{
    const DocumentKind& kind = *owner.kind;
    const auto rules = std::make_shared<LineRules>(owner, carries);
    DataSection section{.fields = {}, .columns = 2};
    for (const std::vector<EntryField>& part :
         {itemFields(owner), amountFields(rules), codeFields(owner), stockFields(kind)})
        section.fields.insert(section.fields.end(), part.begin(), part.end());
    if (siteSwitch(session.JobSitePath, "VEXUCASEONLY"))
        for (EntryField& field : section.fields)
            field.keys.upperCase = field.name != "txtUNITFACT";
    return {
        .name = "frmVEXRQI02",
        .caption = QString(kind.noun) + " Line Item",
        .table = "RQILIST",
        .index = kind.lines,
        .parent = {kind.tag},
        .sections = {section},
        .tag = {.field = "RQITAG", .hasSiteNumber = true},
        .rules = rules,
        .deleteQuestion =
            [&kind](storage::Recordset&) {
                return Message{.kind = MessageKind::Question,
                               .title = "Confirm Delete",
                               .text = QString("OK to Delete ") + kind.noun +
                                       " Item\nand any related Payment/Receiving Detail?",
                               .buttons = Buttons::YesNo,
                               .enterTakes = Answer::No};
            },
        .commands = commands(rules),
        .updateCaption = "Save and E&xit",
        .updateName = "cmdUpdateExit",
        .addsOnAt = "txtQTY",
        .stayCaption = "Save and Stay",
    };
}
