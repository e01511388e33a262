// What stands in a table, for comparing it as a whole.
#pragma once

#include <QStringList>

#include "core/keyed_access.h"
#include "tests/support/test_installation.h"

// A line a row in the order of the file: the fields' texts, parted by '|'; a null is "~".
inline QStringList rowsOf(const TestInstallation& site, const QString& file, const QString& table,
                          const QStringList& fields)
{
    OpenTable open = site.open(file, table);
    QStringList lines;
    if (open.rows.RecordCount() == 0)
        return lines;
    for (bool more = open.rows.MoveFirst(); more; more = open.rows.MoveNext()) {
        QStringList cells;
        for (const QString& field : fields) {
            const storage::Value value = open.rows.fieldNamed(field).value();
            cells.append(value.isNull() ? QString("~") : value.toString());
        }
        lines.append(cells.join('|'));
    }
    return lines;
}
