// The part numbers that an item has borne.
#include "core/dates.h"
#include "core/text.h"
#include "inventory/items.h"
#include "screens/browse/browse_session.h"

namespace {

bool isCurrent(const QString& FDATE)
{
    return FDATE.trimmed() == "<Current>";
}

EntryCheck checkNumber(const ItemKind& kind)
{
    return [index = kind.numbersByNumber](const Entry& entry) -> QString {
        if (entry.isBlank("PARTNO"))
            return "Superceded Part Number is Empty.";
        return entry.isTakenInParent(index, {{"PARTNO", entry["PARTNO"].trimmed()}})
                   ? "Duplicate Superceded Part Number Detected.\nThe Part Number you have "
                     "entered\n"
                     "already exists in another record."
                   : QString();
    };
}

QString checkDate(const Entry& entry)
{
    return isCurrent(entry["FDATE"]) || dnNotBlank(dnFixDate(entry["FDATE"])) ? QString()
                                                                              : "Invalid Date.";
}

QString fixedDate(const QString& text)
{
    const QString date = dnFixDate(text);
    return isCurrent(text) || dnIsBlank(date) ? text : date;
}

// The date stands beside its sortable form; the present number has none and heads the list.
class NumberRules : public EntryRules
{
public:
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        const QString date = entry["FDATE"];
        rows["PARTNO"] = entry["PARTNO"].trimmed();
        rows["FDATE"] = isCurrent(date) ? QString(" <Current>") : date;
        rows["LDATE"] = isCurrent(date) ? QString(10, ' ') : dnDateKey(date);
        if (!entry.isAdding())
            return;
        for (const schema::FieldName key : {schema::FieldName("ILCTAG"), {"ISNTAG"}, {"ICNTAG"}})
            if (entry.parentKey(key).isNull())
                rows[key] = 0;
    }
};

BrowseSpec numberList(const ItemKind& kind, const char* name,
                      const std::vector<schema::FieldName>& keys)
{
    return {
        .name = name,
        .caption = "Superseded Part Numbers",
        .table = "INVPNMASTER",
        .index = kind.numbersByDate,
        .parent = {.kind = BrowseParent::Kind::Given, .keys = keys},
        .columns = {{.field = "PARTNO",
                     .length = 18,
                     .heading = "Part Number",
                     .width = 2600,
                     .entry = "txtPARTNO",
                     .keys = {.upperCase = true},
                     .check = checkNumber(kind)},
                    {.field = "FDATE",
                     .length = 10,
                     .heading = "Date Superseded",
                     .width = 2000,
                     .entry = "txtFDATE",
                     .tidy = fixedDate,
                     .check = checkDate}},
        .rules = std::make_shared<NumberRules>(),
        .deleteQuestion = askToDelete("Superceded Part Number", {"PARTNO", "FDATE"}, " - "),
        .print = {.window = "Print Superseded Part Numbers", .title = "Superseded Part Numbers"},
    };
}

}  // namespace

BrowseSpec frmVEXINV08()
{
    return numberList(branchItems, "frmVEXINV08", {"ILCTAG", "ISNTAG"});
}

BrowseSpec frmVEXINVCAT08()
{
    return numberList(catalogItems, "frmVEXINVCAT08", {"ICNTAG"});
}
