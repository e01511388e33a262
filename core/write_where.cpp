#include "core/write_where.h"

#include <vector>

#include "core/write_batch.h"

int writeWhere(OpenTable& open, const QString& index, KeyFields keys, schema::FieldName field,
               const storage::Value& value,
               const std::function<bool(const storage::Recordset&)>& isWanted)
{
    storage::Recordset& rows = open.rows;
    std::vector<QString> found;
    forEachWithin(rows, index, keys, [&] {
        if (isWanted(rows))
            found.push_back(rows.Bookmark());
        return true;
    });
    WriteBatch batch(open.workspace);
    for (const QString& bookmark : found) {
        batch.begin();
        if (!goToFound(rows, bookmark))
            continue;
        rows.Edit();
        rows[field] = value;
        rows.Update();
        batch.added();
    }
    batch.commit();
    return static_cast<int>(found.size());
}
