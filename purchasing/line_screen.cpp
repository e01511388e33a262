#include "purchasing/line_screen.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "inventory/items.h"
#include "purchasing/document_numbers.h"
#include "purchasing/line_checks.h"
#include "purchasing/line_rules.h"
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

using Rules = std::shared_ptr<LineRules>;

// ---- fields
std::vector<EntryField> itemFields(const LineOwner& owner, const Rules& rules)
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
             .left =
                 [rules](Entry& entry) {
                     line::partLeft(entry);
                     rules->compare(entry);
                 }},
            {.name = "txtQTY",
             .field = "QTY",
             .caption = "&Quantity:",
             .length = 13,
             .alignment = Qt::AlignRight,
             .check = line::checkQuantity,
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
             .boxWhenLeft = "Invalid Unit Factor",
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
    line::takeItem(screen.entry());
    rules->compare(screen.entry());
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
        {.name = "cmdUpdateFields",
         .caption = "&5 - Update Fields",
         .run = [rules](DataSession& in) { updateFields(rules, in); },
         .isShown = [rules] { return rules->hasDrifted(); }}};
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
                    .number = shownNumberOf(kind, rows),
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
         {itemFields(owner, rules), amountFields(rules), codeFields(owner), stockFields(kind)})
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
        .viewRefusal = {},
        .updateCaption = "Save and E&xit",
        .updateName = "cmdUpdateExit",
        .addsOnAt = "txtQTY",
        .stayCaption = "Save and Stay",
    };
}
