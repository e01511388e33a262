#include "screens/report/workbook/xls_reader.h"

#include <freexl.h>

#include <QFile>

namespace {

[[noreturn]] void refuse(int result, const QString& file)
{
    if (result == FREEXL_INSUFFICIENT_MEMORY)
        throw WorkbookError("The workbook is too large: " + file);
    if (result == FREEXL_BIFF_WORKBOOK_NOT_FOUND)
        throw WorkbookError("The file is not a workbook: " + file);
    throw WorkbookError("The workbook is damaged: " + file);
}

class XlsFile
{
public:
    explicit XlsFile(const QString& file) : m_file(file)
    {
        const int result = freexl_open(QFile::encodeName(file).constData(), &m_handle);
        if (result != FREEXL_OK) {
            close();
            refuse(result, file);
        }
    }
    ~XlsFile() { close(); }
    XlsFile(const XlsFile&) = delete;
    XlsFile& operator=(const XlsFile&) = delete;

    const void* handle() const { return m_handle; }
    void check(int result) const
    {
        if (result != FREEXL_OK)
            refuse(result, m_file);
    }
    unsigned info(unsigned short what) const
    {
        unsigned value = 0;
        check(freexl_get_info(m_handle, what, &value));
        return value;
    }

private:
    void close()
    {
        if (m_handle)
            freexl_close(m_handle);
    }

    QString m_file;
    const void* m_handle = nullptr;
};

storage::Value valueOf(const FreeXL_CellValue& cell)
{
    switch (cell.type) {
        case FREEXL_CELL_INT:
            return static_cast<double>(cell.value.int_value);
        case FREEXL_CELL_DOUBLE:
            return cell.value.double_value;
        case FREEXL_CELL_TEXT:
        case FREEXL_CELL_SST_TEXT:
        case FREEXL_CELL_TIME:
            return cell.value.text_value;
        case FREEXL_CELL_DATE:
            return QDate::fromString(cell.value.text_value, Qt::ISODate);
        case FREEXL_CELL_DATETIME:
            return QDateTime::fromString(
                QString::fromLatin1(cell.value.text_value).replace(' ', 'T'), Qt::ISODate);
        default:
            return {};
    }
}

WorkbookSheet readSheet(const XlsFile& workbook, unsigned short number, qint64& room)
{
    const char* name = nullptr;
    workbook.check(freexl_get_worksheet_name(workbook.handle(), number, &name));
    workbook.check(freexl_select_active_worksheet(workbook.handle(), number));
    unsigned rows = 0;
    unsigned short columns = 0;
    workbook.check(freexl_worksheet_dimensions(workbook.handle(), &rows, &columns));
    WorkbookSheet sheet(QString::fromUtf8(name));
    for (unsigned row = 0; row < rows; ++row) {
        for (unsigned short column = 0; column < columns; ++column) {
            FreeXL_CellValue cell;
            workbook.check(freexl_get_cell_value(workbook.handle(), row, column, &cell));
            storage::Value value = valueOf(cell);
            if (!value.isNull())
                room -= sheet.setCell(static_cast<int>(row) + 1, column + 1, std::move(value));
            if (room < 0)
                refuse(FREEXL_INSUFFICIENT_MEMORY, QString::fromUtf8(name));
        }
    }
    return sheet;
}

// A workbook of the new form that is protected by a password lies in a compound file too.
bool isEncryptedPackage(const QString& file)
{
    QFile bytes(file);
    const QString name = "EncryptedPackage";
    return bytes.open(QIODevice::ReadOnly) &&
           bytes.readAll().contains(QByteArray(reinterpret_cast<const char*>(name.utf16()),
                                               name.size() * qsizetype(sizeof(char16_t))));
}

}  // namespace

std::vector<WorkbookSheet> readXls(const QString& file, const WorkbookLimits& limits)
{
    const QString isProtected = "The workbook is protected by a password: " + file;
    if (isEncryptedPackage(file))
        throw WorkbookError(isProtected);
    const XlsFile workbook(file);
    if (workbook.info(FREEXL_BIFF_PASSWORD) == FREEXL_BIFF_OBFUSCATED)
        throw WorkbookError(isProtected);
    std::vector<WorkbookSheet> sheets;
    qint64 room = limits.cells;
    const unsigned count = workbook.info(FREEXL_BIFF_SHEET_COUNT);
    for (unsigned number = 0; number < count; ++number)
        sheets.push_back(readSheet(workbook, static_cast<unsigned short>(number), room));
    return sheets;
}
