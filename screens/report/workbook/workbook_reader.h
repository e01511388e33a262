// Reads the cells of a workbook, `.xls` or `.xlsx`; which of them it is its bytes tell, not its
// name. Rows and columns are numbered from 1, as the user sees them.
//
// A cell is null, a number, a text, a boolean, or a date where its number is shown as one; a time
// of day without a date is the text "HH:MM:SS". Formulas give the value that was stored with them.
#pragma once

#include <QString>
#include <vector>

#include "core/storage/value.h"
#include "screens/report/workbook/workbook_error.h"

// Workbooks beyond these are refused: they are nobody's list of materials, and reading them would
// take the machine's memory.
struct WorkbookLimits
{
    qint64 fileBytes = 64 << 20;
    qint64 unpackedBytes = 512 << 20;  // of all parts together
    qint64 ratio = 250;                // unpacked to packed, of a part above a megabyte
    qint64 keptBytes = 512 << 20;      // of cells, texts and names
    qint64 cells = 4'000'000;          // with the empty ones before the last of each row
    qint64 sheets = 1000;
    qint64 forms = 1 << 16;  // the programs that write them have fewer
};

class WorkbookSheet
{
public:
    explicit WorkbookSheet(const QString& name = {}) : m_name(name) {}

    const QString& name() const { return m_name; }
    int rowCount() const { return static_cast<int>(m_rows.size()); }  // up to the last used
    int columnCount() const { return m_columnCount; }
    // Null outside the sheet.
    const storage::Value& cell(int row, int column) const;
    // Makes room; gives how many cells that took.
    qint64 setCell(int row, int column, storage::Value value);

private:
    QString m_name;
    std::vector<std::vector<storage::Value>> m_rows;
    int m_columnCount = 0;
};

// The sheets in their order, hidden ones too. `path` is a path as the files keep them. What is no
// workbook, damaged, protected by a password or too large is thrown as a WorkbookError.
std::vector<WorkbookSheet> readWorkbook(const QString& path, const WorkbookLimits& limits = {});
