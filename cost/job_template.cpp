#include "cost/job_template.h"

#include "core/locators.h"

using storage::FieldType;

namespace {

OpenTable openTemplate(const Entry& entry)
{
    return openTable(entry.session(), "ZORUSER.mdb", "JOBDEFAULTS");
}

}  // namespace

void saveJobTemplate(const Entry& entry, std::span<const schema::FieldName> fields)
{
    OpenTable open = openTemplate(entry);
    storage::Recordset& row = open.rows;
    if (row.RecordCount() == 0) {
        row.AddNew();
    } else {
        row.MoveFirst();
        row.Edit();
    }
    for (const schema::FieldName field : fields)
        switch (row[field].Type()) {
            case FieldType::Boolean:
                row[field] = entry.isTicked(field);
                break;
            case FieldType::Text:
                row[field] = entry[field];
                break;
            default:
                row[field] = entry.number(field);
        }
    row.Update();
}

bool loadJobTemplate(Entry& entry, std::span<const schema::FieldName> fields)
{
    OpenTable open = openTemplate(entry);
    storage::Recordset& row = open.rows;
    if (row.RecordCount() == 0)
        return false;
    row.MoveFirst();
    for (const schema::FieldName field : fields)
        if (row[field].Type() == FieldType::Boolean)
            entry.setText(field, intOf(row[field]) != 0 ? "-1" : "0");
        else
            entry.setText(field, trimmedTextOf(row[field]));
    return true;
}
