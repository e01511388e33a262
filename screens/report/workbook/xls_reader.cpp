#include "screens/report/workbook/xls_reader.h"

#include <QFile>

#include "screens/report/workbook/biff_input.h"
#include "screens/report/workbook/compound_file.h"
#include "screens/report/workbook/number_form.h"
#include "screens/report/workbook/workbook_room.h"

namespace {

enum RecordNumber : quint16 {
    formula = 0x0006,
    endOfFile = 0x000a,
    dateMode = 0x0022,
    filePassword = 0x002f,
    continued = 0x003c,
    boundSheet = 0x0085,
    manyShortNumbers = 0x00bd,
    richLabel = 0x00d6,
    extendedFormat = 0x00e0,
    sharedTexts = 0x00fc,
    labelSharedText = 0x00fd,
    number = 0x0203,
    label = 0x0204,
    booleanOrError = 0x0205,
    textOfFormula = 0x0207,
    shortNumber = 0x027e,
    numberMask = 0x041e,
    beginOfFile = 0x0809,
};

constexpr qsizetype recordHead = 4;  // its number and length
constexpr quint16 version8 = 0x0600;
constexpr quint16 version5 = 0x0500;

QString errorText(quint8 code)
{
    switch (code) {
        case 0x00:
            return "#NULL!";
        case 0x07:
            return "#DIV/0!";
        case 0x0f:
            return "#VALUE!";
        case 0x17:
            return "#REF!";
        case 0x1d:
            return "#NAME?";
        case 0x24:
            return "#NUM!";
        default:
            return "#N/A";
    }
}

// 30 bits of a whole number or of a number's upper half; a hundredth of it where the last bit says.
double shortNumberOf(quint32 bits)
{
    const double value =
        bits & 2 ? double(qint32(bits) >> 2) : std::bit_cast<double>(quint64(bits & ~3U) << 32);
    return bits & 1 ? value / 100 : value;
}

struct SheetPlace
{
    QString name;
    quint32 place;
};

struct CellPlace
{
    int row;
    int column;
};

struct PasswordNeeded
{
};

// Reads one stream. Throws PasswordNeeded, WorkbookTooLarge and DamagedBiff.
class XlsReader
{
public:
    XlsReader(const QByteArray& stream, const WorkbookLimits& limits)
        : m_stream(stream), m_room(limits), m_unread(stream.size())
    {
    }

    std::vector<WorkbookSheet> sheets()
    {
        readGlobals();
        std::vector<WorkbookSheet> found;
        for (const SheetPlace& place : m_places)
            found.push_back(readSheet(place));
        return found;
    }

private:
    QString takeText(BiffData& data, bool shortLength = false)
    {
        return m_room.takeText(m_isOld ? data.takeBytesAsText(shortLength)
                                       : data.takeText(shortLength));
    }

    // Of the record and of those that continue it.
    static BiffData dataOf(const BiffRecord& record, BiffRecords& records)
    {
        BiffData data(record.data);
        BiffRecord more;
        while (records.isNext(continued) && records.next(more))
            data.addPart(more.data);
        return data;
    }

    void readGlobals()
    {
        BiffRecords records(m_stream);
        BiffRecord record;
        if (!records.next(record) || record.number != beginOfFile)
            throw DamagedBiff();
        const quint16 version = BiffData(record.data).take<quint16>();
        if (version != version8 && version != version5)
            throw DamagedBiff();
        m_isOld = version == version5;
        while (records.next(record) && record.number != endOfFile)
            readGlobal(record, records);
    }

    void readGlobal(const BiffRecord& record, BiffRecords& records)
    {
        BiffData data(record.data);
        if (record.number == filePassword) {
            throw PasswordNeeded();
        } else if (record.number == dateMode) {
            m_since1904 = data.take<quint16>() == 1;
        } else if (record.number == numberMask) {
            const int place = data.take<quint16>();
            m_masks[place] = formOfMask(takeText(data, m_isOld));
        } else if (record.number == extendedFormat) {
            m_room.takeForm();
            data.skip(2);
            const int place = data.take<quint16>();
            const auto own = m_masks.find(place);
            m_forms.push_back(own == m_masks.end() ? builtInForm(place) : own.value());
        } else if (record.number == boundSheet) {
            const quint32 place = data.take<quint32>();
            data.skip(1);
            const bool isSheet = data.take<quint8>() == 0;  // not a chart or a macro
            m_room.takeSheet();
            if (isSheet)
                m_places.push_back({takeText(data, true), place});
        } else if (record.number == sharedTexts) {
            readTexts(dataOf(record, records));
        }
    }

    void readTexts(BiffData data)
    {
        data.skip(4);
        const quint32 count = data.take<quint32>();
        for (quint32 at = 0; at < count && !data.atEnd(); ++at) {
            m_room.take(sizeof(QString));
            m_texts.append(m_room.takeText(data.takeText()));
        }
    }

    WorkbookSheet readSheet(const SheetPlace& place)
    {
        WorkbookSheet sheet(place.name);
        BiffRecords records(m_stream, place.place);
        BiffRecord record;
        int depth = 0;  // charts lie inside sheets
        m_formula.reset();
        while (records.next(record)) {
            // A list that names one place over and over would have it read as often.
            m_unread -= recordHead + record.data.size();
            if (m_unread < 0)
                throw DamagedBiff();
            if (record.number == beginOfFile)
                ++depth;
            else if (record.number == endOfFile && --depth <= 0)
                return sheet;
            else if (depth == 0)
                throw DamagedBiff();
            else if (depth == 1)
                readCells(record, records, sheet);
        }
        throw DamagedBiff();
    }

    void readCells(const BiffRecord& record, BiffRecords& records, WorkbookSheet& sheet)
    {
        if (record.number == textOfFormula) {
            if (!m_formula)
                throw DamagedBiff();
            BiffData text = dataOf(record, records);
            put(sheet, m_formula->row, m_formula->column, takeText(text));
            return;
        }
        static const QSet<quint16> cells = {formula,         manyShortNumbers, richLabel,
                                            labelSharedText, number,           label,
                                            booleanOrError,  shortNumber};
        if (!cells.contains(record.number))
            return;
        BiffData data = dataOf(record, records);
        const int row = data.take<quint16>();
        const int column = data.take<quint16>();
        if (record.number == manyShortNumbers) {
            // After the numbers stands the last column.
            const qsizetype count = (record.data.size() - 6) / 6;
            for (qsizetype at = 0; at < count; ++at) {
                const quint16 form = data.take<quint16>();
                const double value = shortNumberOf(data.take<quint32>());
                put(sheet, row, column + static_cast<int>(at), shown(form, value));
            }
            return;
        }
        const quint16 form = data.take<quint16>();
        put(sheet, row, column, valueOf(record.number, data, form, row, column));
    }

    storage::Value valueOf(quint16 kind, BiffData& data, quint16 form, int row, int column)
    {
        switch (kind) {
            case number:
                return shown(form, data.take<double>());
            case shortNumber:
                return shown(form, shortNumberOf(data.take<quint32>()));
            case labelSharedText: {
                const quint32 place = data.take<quint32>();
                if (place >= static_cast<quint32>(m_texts.size()))
                    throw DamagedBiff();
                return m_texts[place];
            }
            case booleanOrError: {
                const quint8 value = data.take<quint8>();
                return booleanOr(value, data.take<quint8>() != 0);
            }
            case formula:
                return resultOf(data, form, row, column);
            default:
                return takeText(data);
        }
    }

    static storage::Value booleanOr(quint8 value, bool isError)
    {
        return isError ? storage::Value(errorText(value)) : storage::Value(value != 0);
    }

    // A number, or in its place the kind of another result; a text follows in a record of its own.
    storage::Value resultOf(BiffData& data, quint16 form, int row, int column)
    {
        m_formula = {row, column};
        const double value = data.take<double>();
        const auto bits = std::bit_cast<quint64>(value);
        if (bits >> 48 != 0xffff)
            return shown(form, value);
        const auto kind = static_cast<quint8>(bits);
        if (kind == 1 || kind == 2)
            return booleanOr(static_cast<quint8>(bits >> 16), kind == 2);
        return {};
    }

    storage::Value shown(quint16 form, double value) const
    {
        return form < m_forms.size() ? shownAs(m_forms[form], value, m_since1904) : value;
    }

    void put(WorkbookSheet& sheet, int row, int column, storage::Value value)
    {
        if (value.isNull())
            return;
        m_room.takeCells(sheet.setCell(row + 1, column + 1, std::move(value)));
    }

    const QByteArray& m_stream;
    WorkbookRoom m_room;
    qint64 m_unread;  // bytes of sheets, of which no two share any
    bool m_isOld = false;
    bool m_since1904 = false;
    QHash<int, NumberForm> m_masks;
    std::vector<NumberForm> m_forms;
    std::vector<SheetPlace> m_places;
    QStringList m_texts;
    std::optional<CellPlace> m_formula;  // the last of the sheet
};

}  // namespace

std::vector<WorkbookSheet> readXls(const QString& file, const WorkbookLimits& limits)
{
    const QString isProtected = "The workbook is protected by a password: " + file;
    QFile bytes(file);
    if (!bytes.open(QIODevice::ReadOnly))
        throw WorkbookError("Cannot read the workbook " + file + ": " + bytes.errorString());
    const QByteArray container = bytes.readAll();
    // A workbook of the new form that is protected by a password lies in such a container too.
    if (readCompoundFile(container, {"EncryptedPackage"}))
        throw WorkbookError(isProtected);
    const std::optional<QByteArray> stream = readCompoundFile(container, {"Workbook", "Book"});
    if (!stream)
        throw WorkbookError("The file is not a workbook, or it is damaged: " + file);
    try {
        return XlsReader(*stream, limits).sheets();
    } catch (const PasswordNeeded&) {
        throw WorkbookError(isProtected);
    } catch (const WorkbookTooLarge&) {
        throw WorkbookError("The workbook is too large: " + file);
    } catch (const DamagedBiff&) {
        throw WorkbookError("The workbook is damaged: " + file);
    }
}
