#include "inventory/item_code_commands.h"

#include "core/messages.h"
#include "core/text.h"
#include "inventory/item_checks.h"
#include "screens/data/data_session.h"

namespace {

// Adds or renames the series, or the subcategory under it, that is typed.
struct CodeCommand
{
    const CodeTable& codes;
    const char* codeField;
    const char* nameField;
    QString word;  // such as "Series"

    std::optional<qint32> owner(const Entry& entry) const
    {
        if (codes.owner == schema::FieldName("ILCTAG"))
            return item::branchOf(entry);
        const std::optional<CodeRow> series = item::seriesIn(entry);
        return series ? std::optional<qint32>(series->tag) : std::nullopt;
    }
    QString refusal(const Entry& entry, bool adds) const
    {
        const std::optional<qint32> owns = owner(entry);
        if (!owns)
            return item::checkSeries(entry);
        const QString code = entry.named(codeField).trimmed();
        if (code.isEmpty())
            return word + " Code is Empty.";
        const bool isThere = codeRow(item::siteOf(entry), codes, *owns, code).has_value();
        if (adds && isThere)
            return "Duplicate " + word + " Code Detected.";
        if (!adds && !isThere)
            return "Cannot Find " + word + " Code: " + code;
        return dnIsBlank(entry.named(nameField)) ? "Description is Empty." : QString();
    }
    void run(DataSession& screen, bool adds) const
    {
        Entry& entry = screen.entry();
        if (const QString text = refusal(entry, adds); !text.isEmpty())
            return showCritical("Cannot Update", text);
        (adds ? addCode : renameCode)(item::siteOf(entry), codes, *owner(entry),
                                      entry.named(codeField), entry.named(nameField));
        for (const char* control : {codeField, nameField})
            entry.setNamed(control, entry.named(control));  // their errors are out of date
    }
};

}  // namespace

std::vector<DataCommand> itemCodeCommands()
{
    static const CodeCommand series{seriesCodes, item::seriesCode, item::seriesName, "Series"};
    static const CodeCommand subcategory{subcategoryCodes, item::subcatCode, item::subcatName,
                                         "Subcategory"};
    return {{"cmdSERIESAdd", "&1 - Add Series", [](DataSession& in) { series.run(in, true); }},
            {"cmdSERIESEdit", "&2 - Edit Series", [](DataSession& in) { series.run(in, false); }},
            {"cmdSUBCATAdd", "&3 - Add Subcategory",
             [](DataSession& in) { subcategory.run(in, true); }},
            {"cmdSUBCATEdit", "&4 - Edit Subcategory",
             [](DataSession& in) { subcategory.run(in, false); }}};
}
