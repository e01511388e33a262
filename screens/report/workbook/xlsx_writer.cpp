#include "screens/report/workbook/xlsx_writer.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QXmlStreamReader>
#include <cmath>
#include <cstdio>

#include "screens/report/workbook/xlsx_package.h"

namespace {

constexpr int maxRows = 1048576;
constexpr int maxColumns = 16384;
constexpr qsizetype maxShownAsText = 255;

// A name of our own in the folder, so that the rename stays on one disk.
QString temporaryBeside(const QString& file)
{
    QTemporaryFile temporary(file + ".XXXXXX");
    temporary.setAutoRemove(false);
    return temporary.open() ? temporary.fileName() : QString();
}

// What looks like the escape of a character, and so is escaped itself.
const QRegularExpression& escapeLike()
{
    static const QRegularExpression escape("_(?=x[0-9A-Fa-f]{4}_)");
    return escape;
}

}  // namespace

XlsxWriter::XlsxWriter(const QString& file)
    : WorkbookWriter(maxRows, maxColumns), m_file(file), m_temporary(temporaryBeside(file))
{
    if (m_temporary.isEmpty())
        throw WorkbookError("Cannot write the workbook " + m_file + ".");
    // Rows go to the disk as they come.
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    m_workbook = workbook_new_opt(QFile::encodeName(m_temporary).constData(), &options);
    if (!m_workbook) {
        QFile::remove(m_temporary);
        throw WorkbookError("Cannot write the workbook " + m_file + ".");
    }
    m_plain = makeFormat(false, false);
    m_text = makeFormat(false, true);
    m_bold = makeFormat(true, false);
    m_boldText = makeFormat(true, true);
}

XlsxWriter::~XlsxWriter()
{
    // Closing is the library's only way to give a workbook back.
    if (m_workbook)
        workbook_close(m_workbook);
    if (!m_temporary.isEmpty())
        QFile::remove(m_temporary);
}

lxw_format* XlsxWriter::makeFormat(bool bold, bool isText)
{
    lxw_format* format = workbook_add_format(m_workbook);
    if (bold)
        format_set_bold(format);
    if (isText)
        format_set_num_format_index(format, 49);
    return format;
}

void XlsxWriter::check(lxw_error error) const
{
    if (error != LXW_NO_ERROR)
        throw WorkbookError("Cannot write the workbook " + m_file + ": " +
                            QString::fromUtf8(lxw_strerror(error)));
}

void XlsxWriter::addSheet(const QString& name, const std::vector<double>& widths)
{
    m_sheet = workbook_add_worksheet(m_workbook, name.toUtf8().constData());
    if (!m_sheet)
        throw WorkbookError("Cannot write the workbook " + m_file + ".");
    ++m_sheetCount;
    lxw_col_t column = 0;
    for (const double width : widths) {
        if (width > 0)
            check(worksheet_set_column(m_sheet, column, column, std::min(width, 255.0), nullptr));
        ++column;
    }
}

void XlsxWriter::addRow(int row, const WorkbookRow& cells, bool bold)
{
    const auto place = static_cast<lxw_row_t>(row);
    lxw_col_t column = 0;
    for (const storage::Value& cell : cells) {
        if (cell.as<QString>() || cell.as<QDateTime>() || cell.as<QByteArray>()) {
            addText(cell.toString(), place, column, bold);
        } else if (const double value = cell.toDouble(); !cell.isNull() && std::isfinite(value)) {
            check(worksheet_write_number(m_sheet, place, column, value, bold ? m_bold : m_plain));
            ++m_cellCount;
        }
        ++column;
    }
}

void XlsxWriter::addText(const QString& text, lxw_row_t row, lxw_col_t column, bool bold)
{
    const QString clean = workbookText(text);
    if (clean.isEmpty())
        return;
    const bool isShort = clean.size() <= maxShownAsText;
    lxw_format* format = bold ? (isShort ? m_boldText : m_bold) : (isShort ? m_text : m_plain);
    if (clean.contains(escapeLike()))
        addEscapedText(clean, row, column, format);
    else
        check(worksheet_write_string(m_sheet, row, column, clean.toUtf8().constData(), format));
    ++m_cellCount;
}

// Such texts stand in the table of shared ones, where all readers know escapes, and which takes
// what is longer than a cell only for its escapes. The library fills that table only when it keeps
// all rows in memory; so the cell is put as a number and then told to be one of a text.
void XlsxWriter::addEscapedText(const QString& text, lxw_row_t row, lxw_col_t column,
                                lxw_format* format)
{
    check(worksheet_write_number(m_sheet, row, column, 0, format));
    const QByteArray escaped = QString(text).replace(escapeLike(), "_x005F_").toUtf8();
    const sst_element* shared = lxw_get_sst_index(m_sheet->sst, escaped.constData(), LXW_FALSE);
    lxw_cell* cell = m_sheet->array[column];
    if (!shared || !cell)
        throw WorkbookError("Cannot write the workbook " + m_file + ".");
    cell->type = STRING_CELL;
    cell->u.string_id = static_cast<int32_t>(shared->index);
}

// The library does not look whether its own temporary files were written: on a full disk it closes
// a workbook in which rows are missing.
void XlsxWriter::checkWhole() const
{
    constexpr qint64 any = std::numeric_limits<qint64>::max();
    qint64 count = 0;
    try {
        XlsxPackage package(m_temporary,
                            {.fileBytes = any, .unpackedBytes = any, .ratio = any >> 40});
        for (int sheet = 1; sheet <= m_sheetCount; ++sheet)
            package.read(QString("xl/worksheets/sheet%1.xml").arg(sheet),
                         [&](QXmlStreamReader& xml) { count += xml.name() == u"c"; });
    } catch (const WorkbookError&) {
        count = -1;
    } catch (const WorkbookTooLarge&) {
        count = -1;
    }
    if (count != m_cellCount)
        throw WorkbookError("Cannot write the workbook " + m_file + ": the disk may be full.");
}

void XlsxWriter::finish()
{
    check(workbook_close(std::exchange(m_workbook, nullptr)));
    checkWhole();
    // Readable by those who may read new files here; the temporary one was for its owner alone.
    QFile::setPermissions(m_temporary,
                          QFile::permissions(m_temporary) | QFile::ReadGroup | QFile::ReadOther);
    if (std::rename(QFile::encodeName(m_temporary).constData(),
                    QFile::encodeName(m_file).constData()) != 0)
        throw WorkbookError("Cannot write the workbook " + m_file + ": " + qt_error_string(errno));
    m_temporary.clear();
}
