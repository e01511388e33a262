// Moving an item with its history to another branch.
#include "core/locators.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/item_rules.h"
#include "inventory/items.h"
#include "screens/data/data_session.h"
#include "screens/search/inventory_searches.h"

using Kind = EntryField::Kind;

namespace {

constexpr char branchField[] = "txtNEWILCCODE";
constexpr char numberField[] = "txtNEWPARTNO";

const QString& siteOf(const Entry& entry)
{
    return entry.session().JobSitePath;
}

// A code that the item takes in the new branch.
struct NewCode
{
    const CodeTable& codes;
    const char* codeField;
    const char* nameField;
    QString word;       // as its own messages name it
    QString ownerWord;  // what it belongs to
    schema::FieldName itemTag;
};
const NewCode newSeries{seriesCodes,   "txtNEWSERIESCODE", "txtNEWSERIESNAME",
                        "Series Code", "Branch Code",      "SERIESTAG"};
const NewCode newSubcategory{subcategoryCodes,   "txtNEWSUBCATCODE", "txtNEWSUBCATNAME",
                             "Subcategory Code", "Series Code",      "SUBCATTAG"};
const NewCode newBin{binCodes,     "txtNEWBINNO", "txtNEWBINNAME",
                     "Bin Number", "Branch Code", "BINTAG"};

std::optional<CodeRow> branchIn(const Entry& entry)
{
    return codeRow(siteOf(entry), branchCodes, 0, entry.named(branchField));
}

std::optional<CodeRow> rowIn(const Entry& entry, const NewCode& code);

// The tag of what the code belongs to; nothing where that is not typed yet.
std::optional<qint32> ownerIn(const Entry& entry, const NewCode& code)
{
    const auto owner = &code == &newSubcategory ? rowIn(entry, newSeries) : branchIn(entry);
    return owner ? std::optional<qint32>(owner->tag) : std::nullopt;
}

std::optional<CodeRow> rowIn(const Entry& entry, const NewCode& code)
{
    const std::optional<qint32> owner = ownerIn(entry, code);
    if (!owner)
        return {};
    return codeRow(siteOf(entry), code.codes, *owner, entry.named(code.codeField));
}

qint32 tagIn(const Entry& entry, const NewCode& code)
{
    const auto row = rowIn(entry, code);
    return row ? row->tag : 0;
}

// ---- checks
QString checkBranch(const Entry& entry)
{
    const QString code = entry.named(branchField).trimmed();
    if (code.isEmpty())
        return "New Branch Code is Empty";
    const auto branch = branchIn(entry);
    if (branch && branch->tag == entry.parentKey("ILCTAG").toInt())
        return "New Branch Code is Same as Old Branch Code.";
    return branch ? QString() : "Cannot Find Branch Code: " + code;
}

QString checkSeries(const Entry& entry)
{
    const QString code = entry.named(newSeries.codeField).trimmed();
    if (code.isEmpty())
        return "Series Code is Empty.";
    return rowIn(entry, newSeries) ? QString() : "Cannot Find Series Code: " + code;
}

QString checkSubcategory(const Entry& entry)
{
    if (dnIsBlank(entry.named(newSubcategory.codeField)))
        return "Subcategory Code is Blank";
    return rowIn(entry, newSubcategory) ? QString()
                                        : "Cannot Find Subcategory for Above Series Code.";
}

QString checkBin(const Entry& entry)
{
    const QString code = entry.named(newBin.codeField).trimmed();
    return code.isEmpty() || rowIn(entry, newBin) ? QString() : "Cannot Find Bin Number: " + code;
}

QString checkNumber(const Entry& entry)
{
    const QString number = entry.named(numberField).trimmed();
    if (number.isEmpty())
        return "Part Number is Empty.";
    const auto branch = branchIn(entry);
    OpenTable items = openTable(entry.session(), "ZORVEX.mdb", "INVENTORY");
    items.rows.Index("INVPARTNO");
    return branch && items.rows.Seek("=", branch->tag, number)
               ? "Part Number Already Exists for New Branch Code: " + branch->code
               : QString();
}

// ---- what a field does to others
void codeLeft(Entry& entry, const NewCode& code)
{
    if (const auto row = rowIn(entry, code))
        entry.setNamed(code.nameField, row->name);
}

// The codes of the same spelling, as far as the new branch has them; those that are typed already
// take the names that they have there.
void branchLeft(Entry& entry)
{
    if (!entry.goToRecord())
        return;
    for (const NewCode* code : {&newSeries, &newSubcategory, &newBin}) {
        const auto old = codeRowAt(siteOf(entry), code->codes, intOf(entry.rows()[code->itemTag]));
        const auto owner = ownerIn(entry, *code);
        if (dnNotBlank(entry.named(code->codeField))) {
            codeLeft(entry, *code);
            continue;
        }
        if (!old || !owner)
            continue;
        if (const auto same = codeRow(siteOf(entry), code->codes, *owner, old->code)) {
            entry.setNamed(code->codeField, same->code);
            entry.setNamed(code->nameField, same->name);
        }
    }
}

// ---- adding and renaming what the new branch lacks
QString refusalOf(const Entry& entry, const NewCode& code, bool adds)
{
    if (dnIsBlank(entry.named(branchField)))
        return adds ? "New Branch Code is Empty." : "Branch Code is Empty.";
    const auto branch = branchIn(entry);
    if (!branch)
        return "Cannot Find Branch Code: " + entry.named(branchField).trimmed();
    const bool isSubcategory = &code == &newSubcategory;
    if (isSubcategory && dnIsBlank(entry.named(newSeries.codeField)))
        return "Series Code is Empty.";
    if (isSubcategory && !rowIn(entry, newSeries))
        return "Cannot Find Series Code: " + entry.named(newSeries.codeField).trimmed();
    const QString typed = entry.named(code.codeField).trimmed();
    if (typed.isEmpty())
        return code.word + " is Empty.";
    if (&code != &newBin && dnIsBlank(entry.named(code.nameField)))
        return code.word + " Description is Empty.";
    const bool isThere = rowIn(entry, code).has_value();
    if (adds && isThere)
        return code.word + ": " + typed + " Already Exists for " + code.ownerWord;
    if (!adds && !isThere)
        return "Edit Not Allowed. This " + code.word + "\nDoes Not Yet Exist for " +
               code.ownerWord + ": " +
               (isSubcategory ? entry.named(newSeries.codeField).trimmed() : branch->code) +
               "\nUse the Add Button Instead to add this " + code.word + '.';
    return {};
}

DataCommand codeCommand(const QString& name, const QString& caption, const NewCode& code, bool adds)
{
    return {name, caption, [&code, adds](DataSession& screen) {
                Entry& entry = screen.entry();
                if (const QString text = refusalOf(entry, code, adds); !text.isEmpty())
                    return showCritical("Cannot Update", text);
                (adds ? addCode : renameCode)(siteOf(entry), code.codes, *ownerIn(entry, code),
                                              entry.named(code.codeField),
                                              entry.named(code.nameField));
                for (const char* control : {code.codeField, code.nameField})
                    entry.setNamed(control, entry.named(control));  // their errors are out of date
            }};
}

// ---- the screen
QString searchCode(const Entry& entry, const NewCode& code)
{
    const auto owner = ownerIn(entry, code);
    if (!owner)
        return {};
    const QString found = &code == &newSeries ? zorSearchSeries(siteOf(entry), *owner)
                          : &code == &newBin
                              ? zorSearchBin(siteOf(entry), *owner)
                              : zorSearchSubcategory(siteOf(entry), *owner,
                                                     entry.named(newSeries.codeField).trimmed());
    OpenTable open = openTable(entry.session(), "ZORVEX.mdb", code.codes.table);
    return goToFound(open.rows, found) ? trimmedTextOf(open.rows[code.codes.code]) : QString();
}

QString searchBranch(const Entry& entry)
{
    OpenTable branches = openTable(entry.session(), "ZORVEX.mdb", "ILCLIST");
    return goToFound(branches.rows, zorSearchBranch(siteOf(entry)))
               ? trimmedTextOf(branches.rows["ILCCODE"])
               : QString();
}

// What the item has now; the handle is moved by the checks and put back.
EntryField oldCode(const QString& caption, const CodeTable& codes, schema::FieldName itemTag)
{
    return {.kind = Kind::Shown,
            .caption = caption,
            .shows = [&codes, itemTag](const Entry& entry) -> QString {
                if (!entry.goToRecord())
                    return {};
                const auto row = codeRowAt(siteOf(entry), codes, intOf(entry.rows()[itemTag]));
                return row ? row->code + " - " + row->name : QString("<None>");
            }};
}

void addPair(std::vector<EntryField>& fields, const NewCode& code, const QString& caption,
             const QString& nameCaption, int length, EntryCheck check)
{
    fields.push_back({.name = code.codeField,
                      .caption = caption,
                      .length = length,
                      .keys = {.upperCase = true},
                      .check = std::move(check),
                      .search = [&code](const Entry& entry) { return searchCode(entry, code); },
                      .left = [&code](Entry& entry) { codeLeft(entry, code); }});
    fields.push_back({.name = code.nameField, .caption = nameCaption, .length = 40});
}

std::vector<EntryField> fields()
{
    std::vector<EntryField> all = {
        {.kind = Kind::Heading, .caption = "New"},
        {.name = branchField,
         .caption = "New &Branch Code:",
         .length = 2,
         .keys = {.upperCase = true},
         .check = checkBranch,
         .search = searchBranch,
         .left = branchLeft},
    };
    addPair(all, newSeries, "New &Series Code:", "Series Name:", 3, checkSeries);
    addPair(all, newSubcategory, "New S&ubcategory Code:", "Subcategory Name:", 4,
            checkSubcategory);
    addPair(all, newBin, "New Bi&n Number:", "Bin Name:", 6, checkBin);
    all.push_back({.name = numberField,
                   .caption = "New &Part Number:",
                   .length = 18,
                   .keys = {.upperCase = true},
                   .check = checkNumber});
    all.push_back({.kind = Kind::Heading, .caption = "Old"});
    all.push_back(oldCode("Branch Code:", branchCodes, "ILCTAG"));
    all.push_back(oldCode("Series Code:", seriesCodes, "SERIESTAG"));
    all.push_back(oldCode("Subcategory Code:", subcategoryCodes, "SUBCATTAG"));
    all.push_back(oldCode("Bin Number:", binCodes, "BINTAG"));
    all.push_back({.kind = Kind::Shown, .caption = "Part Number:", .shows = [](const Entry& entry) {
                       return entry.goToRecord() ? trimmedTextOf(entry.rows()["PARTNO"])
                                                 : QString();
                   }});
    return all;
}

// The move is made by itself; nothing of the entry is written.
class BranchChangeRules : public EntryRules
{
public:
    bool begin(Entry& entry) override
    {
        m_ISNTAG = intOf(entry.rows()["ISNTAG"]);
        entry.setNamed(numberField, trimmedTextOf(entry.rows()["PARTNO"]));
        return true;
    }
    Step beforeWrite(Entry& entry) override
    {
        const auto branch = branchIn(entry);
        if (!branch)
            return Step::Stay;
        const QString report =
            changeBranch(siteOf(entry), {.ISNTAG = m_ISNTAG,
                                         .ILCTAG = branch->tag,
                                         .ILCCODE = branch->code,
                                         .SERIESTAG = tagIn(entry, newSeries),
                                         .SUBCATTAG = tagIn(entry, newSubcategory),
                                         .BINTAG = tagIn(entry, newBin),
                                         .PARTNO = entry.named(numberField).trimmed()});
        if (report.isEmpty())
            showCritical("Cannot Update", "Invalid Inventory Item. No Changes Made.");
        else
            showInformation("Changes Made", "Changes Made: " + report);
        return Step::Leave;
    }

private:
    qint32 m_ISNTAG = 0;
};

}  // namespace

DataSpec frmVEXINV10()
{
    return {
        .name = "frmVEXINV10",
        .caption = "Change Item's Branch Code",
        .namesMode = false,
        .table = "INVENTORY",
        .index = "INVPARTNO",
        .parent = {"ILCTAG"},
        .sections = {{.fields = fields(), .columns = 2}},
        .rules = std::make_shared<BranchChangeRules>(),
        .commands = {codeCommand("cmdSERIESAdd", "&1 - Add Series", newSeries, true),
                     codeCommand("cmdSERIESEdit", "&2 - Edit Series", newSeries, false),
                     codeCommand("cmdSUBCATAdd", "&3 - Add Subcategory", newSubcategory, true),
                     codeCommand("cmdSUBCATEdit", "&4 - Edit Subcategory", newSubcategory, false),
                     codeCommand("cmdBINNOAdd", "&5 - Add Bin", newBin, true),
                     codeCommand("cmdBINNOEdit", "&6 - Edit Bin", newBin, false)},
    };
}
