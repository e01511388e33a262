#include "screens/report/workbook/workbook_writer.h"

#include <QRegularExpression>

#include "core/storage/file_paths.h"
#include "screens/report/workbook/xls_writer.h"
#include "screens/report/workbook/xlsx_writer.h"

namespace {

constexpr qsizetype maxText = 32767;
constexpr qsizetype maxSheetName = 31;

bool isUnwanted(QChar character)
{
    const ushort code = character.unicode();
    return (code < ' ' && code != '\t' && code != '\n') || code >= 0xfffe;
}

bool isPlain(const QString& text)
{
    return text.size() <= maxText && std::ranges::none_of(text, [](QChar character) {
               return isUnwanted(character) || character.isSurrogate();
           });
}

// Halves of characters would make the file one that readers refuse.
void mendSurrogates(QString& text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
            ++at;
        else if (text[at].isSurrogate())
            text[at] = QChar::ReplacementCharacter;
    }
}

// The start of a text, without half of a character at its end.
QString startOf(const QString& text, qsizetype length)
{
    const bool isCut = text.size() > length;
    return text.left(isCut && text[length - 1].isHighSurrogate() ? length - 1 : length);
}

QString sheetName(const QString& text)
{
    static const QRegularExpression refused("[\\[\\]:*?/\\\\]");
    QString name = startOf(workbookText(text).replace(refused, " ").simplified(), maxSheetName);
    while (name.startsWith('\''))
        name.remove(0, 1);
    while (name.endsWith('\''))
        name.chop(1);
    return name.isEmpty() ? "Sheet" : name;
}

}  // namespace

QString workbookText(const QString& text)
{
    if (isPlain(text))
        return text;
    QString clean = text;
    clean.replace("\r\n", "\n").replace('\r', '\n');
    clean.removeIf(isUnwanted);
    mendSurrogates(clean);
    return startOf(clean, maxText);
}

void WorkbookWriter::beginSheet(const QString& name, const std::vector<double>& widths,
                                std::vector<WorkbookRow> headRows)
{
    m_name = sheetName(name);
    m_widths = widths;
    m_headRows = std::move(headRows);
    startSheet();
}

void WorkbookWriter::startSheet()
{
    addSheet(freeName(), m_widths);
    m_nextRow = 0;
    for (const WorkbookRow& head : m_headRows)
        writeRow(head, true);
}

QString WorkbookWriter::freeName()
{
    QString name = m_name;
    for (int number = 2; !m_usedNames.insert(name.toLower()).second; ++number) {
        const QString suffix = QString(" (%1)").arg(number);
        name = startOf(m_name, maxSheetName - suffix.size()) + suffix;
    }
    return name;
}

void WorkbookWriter::writeRow(const WorkbookRow& row, bool bold)
{
    if (static_cast<int>(row.size()) > m_maxColumns)
        throw WorkbookError(
            QString("A workbook of this form has no more than %1 columns.").arg(m_maxColumns));
    if (m_usedNames.empty())
        beginSheet("Sheet1");
    if (m_nextRow == m_maxRows)
        startSheet();
    addRow(m_nextRow++, row, bold);
}

std::unique_ptr<WorkbookWriter> createWorkbook(const QString& path)
{
    const QString file = storage::nativePath(path);
    if (file.endsWith(".xlsx", Qt::CaseInsensitive))
        return std::make_unique<XlsxWriter>(file);
    return std::make_unique<XlsWriter>(file);
}
