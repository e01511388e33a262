#include "screens/report/workbook/xls_writer.h"

#include <QSaveFile>
#include <cmath>

#include "screens/report/workbook/compound_file.h"

namespace {

constexpr int maxRows = 65536;
constexpr int maxColumns = 256;
// Places in the stream are 32 bits, of which readers take 31.
constexpr qsizetype maxBytes = 0x7000'0000;

enum RecordNumber : quint16 {
    endOfFile = 0x000a,
    dateMode = 0x0022,
    font = 0x0031,
    window1 = 0x003d,
    codePage = 0x0042,
    columnInfo = 0x007d,
    boundSheet = 0x0085,
    extendedFormat = 0x00e0,
    labelSharedText = 0x00fd,
    dimensions = 0x0200,
    number = 0x0203,
    window2 = 0x023e,
    style = 0x0293,
    beginOfFile = 0x0809,
};

// The extended formats, in the order in which they are written.
enum Format : quint16 { plainFormat = 15, textFormat, boldFormat, boldTextFormat };

constexpr quint16 generalNumbers = 0;
constexpr quint16 asText = 49;  // "@"
// A cell of the form "@" shows a longer text as number signs.
constexpr qsizetype maxShownAsText = 255;

void writeBegin(BiffStream& stream, quint16 kind)
{
    stream.record(beginOfFile, 16);
    stream.put16(0x0600).put16(kind).put16(0x0dbb).put16(0x07cc).put32(0x41).put32(6);
}

void writeFont(BiffStream& stream, bool bold)
{
    const QString name = "Arial";
    stream.record(font, static_cast<quint16>(16 + 2 * name.size()));
    stream.put16(200).put16(bold ? 1 : 0).put16(0x7fff).put16(bold ? 700 : 400).putZeros(6);
    stream.putShortText(name);
}

void writeFormat(BiffStream& stream, quint16 fontNumber, quint16 numberForm, bool isStyle)
{
    stream.record(extendedFormat, 20);
    stream.put16(fontNumber).put16(numberForm).put16(isStyle ? 0xfff5 : 0x0001);
    stream.put8(0x20).put8(0).put8(0);
    stream.put8(isStyle ? 0 : 0x0c);  // a cell's own number form and font
    stream.put32(0).put32(0).put16(0x20c0);
}

void writeFormats(BiffStream& stream)
{
    // Four fonts, since the number 4 is never used, and fifteen styles: readers count on them.
    for (const bool bold : {false, true, false, false})
        writeFont(stream, bold);
    for (int styleNumber = 0; styleNumber < plainFormat; ++styleNumber)
        writeFormat(stream, 0, generalNumbers, true);
    writeFormat(stream, 0, generalNumbers, false);
    writeFormat(stream, 0, asText, false);
    writeFormat(stream, 1, generalNumbers, false);
    writeFormat(stream, 1, asText, false);
    stream.record(style, 4);
    stream.put16(0x8000).put8(0).put8(0xff);  // "Normal"
}

void writeCellHead(BiffStream& stream, quint16 recordNumber, quint16 length, quint16 row,
                   quint16 column)
{
    stream.record(recordNumber, length);
    stream.put16(row).put16(column);
}

}  // namespace

XlsWriter::XlsWriter(const QString& file) : WorkbookWriter(maxRows, maxColumns), m_file(file) {}

void XlsWriter::addSheet(const QString& name, const std::vector<double>& widths)
{
    m_sheets.push_back({.name = name, .widths = widths, .cells = {}});
}

void XlsWriter::addRow(int row, const WorkbookRow& cells, bool bold)
{
    BiffStream& stream = m_sheets.back().cells;
    const qsizetype before = stream.size();
    quint16 column = 0;
    for (const storage::Value& cell : cells) {
        const auto place = static_cast<quint16>(row);
        if (const auto* text = cell.as<QString>()) {
            addText(*text, place, column, bold);
        } else if (cell.as<QDateTime>() || cell.as<QByteArray>()) {
            addText(cell.toString(), place, column, bold);
        } else if (const double value = cell.toDouble(); !cell.isNull() && std::isfinite(value)) {
            writeCellHead(stream, number, 14, place, column);
            stream.put16(bold ? boldFormat : plainFormat).putDouble(value);
        }
        ++column;
    }
    Sheet& sheet = m_sheets.back();
    sheet.rowCount = row + 1;
    sheet.columnCount = std::max(sheet.columnCount, static_cast<int>(cells.size()));
    m_cellBytes += stream.size() - before;
    if (m_cellBytes + m_texts.size() > maxBytes)
        throw WorkbookError("The workbook is too large for this form.");
}

void XlsWriter::addText(const QString& text, quint16 row, quint16 column, bool bold)
{
    const QString clean = workbookText(text);
    if (clean.isEmpty())
        return;
    const bool isShort = clean.size() <= maxShownAsText;
    BiffStream& stream = m_sheets.back().cells;
    writeCellHead(stream, labelSharedText, 10, row, column);
    stream.put16(bold ? (isShort ? boldTextFormat : boldFormat)
                      : (isShort ? textFormat : plainFormat));
    stream.put32(m_texts.numberOf(clean));
}

// All that stands before the list of sheets.
BiffStream XlsWriter::globals() const
{
    BiffStream stream;
    writeBegin(stream, 0x0005);
    stream.record(codePage, 2);
    stream.put16(1200);
    stream.record(window1, 18);
    stream.put16(0x0168).put16(0x010e).put16(0x3a5c).put16(0x23be).put16(0x0038);
    stream.put16(0).put16(0).put16(1).put16(0x0258);
    stream.record(dateMode, 2);
    stream.put16(0);
    writeFormats(stream);
    return stream;
}

BiffStream XlsWriter::sheetHead(const Sheet& sheet) const
{
    BiffStream stream;
    writeBegin(stream, 0x0010);
    for (size_t column = 0; column < sheet.widths.size() && column < maxColumns; ++column) {
        if (sheet.widths[column] <= 0)
            continue;
        const auto place = static_cast<quint16>(column);
        const double width = std::min(sheet.widths[column], 255.0);
        stream.record(columnInfo, 12);
        stream.put16(place).put16(place).put16(static_cast<quint16>(std::lround(width * 256)));
        stream.put16(plainFormat).put16(0).put16(0);
    }
    stream.record(dimensions, 14);
    stream.put32(0).put32(static_cast<quint32>(sheet.rowCount));
    stream.put16(0).put16(static_cast<quint16>(sheet.columnCount)).put16(0);
    return stream;
}

BiffStream XlsWriter::sheetTail(bool isFirst) const
{
    BiffStream stream;
    stream.record(window2, 18);
    stream.put16(isFirst ? 0x06b6 : 0x00b6).putZeros(4).put32(0x40).putZeros(8);
    stream.record(endOfFile, 0);
    return stream;
}

QByteArray XlsWriter::workbookStream() const
{
    BiffStream stream = globals();
    std::vector<qsizetype> places;  // of the sheets' places in the list
    for (const Sheet& sheet : m_sheets) {
        stream.record(boundSheet, static_cast<quint16>(8 + 2 * sheet.name.size()));
        places.push_back(stream.size());
        stream.put32(0).put16(0);
        stream.putShortText(sheet.name);
    }
    m_texts.write(stream);
    stream.record(endOfFile, 0);
    for (size_t at = 0; at < m_sheets.size(); ++at) {
        stream.patch32(places[at], static_cast<quint32>(stream.size()));
        stream.append(sheetHead(m_sheets[at]).bytes());
        stream.append(m_sheets[at].cells.bytes());
        stream.append(sheetTail(at == 0).bytes());
    }
    return stream.bytes();
}

void XlsWriter::finish()
{
    if (m_sheets.empty())
        beginSheet("Sheet1");
    QSaveFile file(m_file);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         writeCompoundFile(file, "Workbook", workbookStream()) && file.commit();
    if (!written)
        throw WorkbookError("Cannot write the workbook " + m_file + ": " + file.errorString());
}
