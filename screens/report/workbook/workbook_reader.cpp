#include "screens/report/workbook/workbook_reader.h"

#include <QFile>
#include <QFileInfo>

#include "core/storage/file_paths.h"
#include "screens/report/workbook/xls_reader.h"
#include "screens/report/workbook/xlsx_reader.h"

const storage::Value& WorkbookSheet::cell(int row, int column) const
{
    static const storage::Value none;
    if (row < 1 || row > rowCount())
        return none;
    const std::vector<storage::Value>& cells = m_rows[static_cast<size_t>(row - 1)];
    return column < 1 || column > static_cast<int>(cells.size())
               ? none
               : cells[static_cast<size_t>(column - 1)];
}

qint64 WorkbookSheet::setCell(int row, int column, storage::Value value)
{
    const auto place = static_cast<size_t>(row);
    qint64 taken = 0;
    if (m_rows.size() < place) {
        taken += static_cast<qint64>(place - m_rows.size());
        m_rows.resize(place);
    }
    std::vector<storage::Value>& cells = m_rows[place - 1];
    if (cells.size() < static_cast<size_t>(column)) {
        taken += column - static_cast<qint64>(cells.size());
        cells.resize(static_cast<size_t>(column));
    }
    cells[static_cast<size_t>(column - 1)] = std::move(value);
    m_columnCount = std::max(m_columnCount, column);
    return taken;
}

std::vector<WorkbookSheet> readWorkbook(const QString& path, const WorkbookLimits& limits)
{
    const QString name = storage::nativePath(path);
    if (!QFileInfo(name).isFile())
        throw WorkbookError("Cannot find the workbook " + name + ".");
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw WorkbookError("Cannot read the workbook " + name + ": " + file.errorString());
    if (file.size() > limits.fileBytes)
        throw WorkbookError("The workbook is too large: " + name);
    const QByteArray start = file.read(8);
    file.close();
    if (start == "\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1")
        return readXls(name, limits);
    if (start.startsWith("PK\x03\x04"))
        return readXlsx(name, limits);
    throw WorkbookError("The file is not a workbook: " + name);
}
