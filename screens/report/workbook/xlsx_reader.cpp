#include "screens/report/workbook/xlsx_reader.h"

#include <QHash>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <cmath>

#include "screens/report/workbook/number_form.h"
#include "screens/report/workbook/xlsx_package.h"
#include "screens/report/workbook/xml_elements.h"

namespace {

constexpr int maxRow = 1048576;
constexpr int maxColumn = 16384;

// Characters that XML cannot hold stand as "_x0007_".
QString withoutEscapes(const QString& text)
{
    if (!text.contains("_x"))
        return text;
    static const QRegularExpression escape("_x([0-9A-Fa-f]{4})_");
    QString result;
    qsizetype done = 0;
    for (const QRegularExpressionMatch& match : escape.globalMatch(text)) {
        result += QStringView(text).mid(done, match.capturedStart() - done);
        result += QChar(match.captured(1).toUShort(nullptr, 16));
        done = match.capturedEnd();
    }
    result += QStringView(text).mid(done);
    return result;
}

// The texts in an element, without the reading aids of Asian scripts. Stands at its end afterwards.
QString richText(QXmlStreamReader& xml)
{
    QString text;
    int depth = 1;
    while (depth > 0 && !xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement()) {
            --depth;
        } else if (xml.isStartElement()) {
            if (xml.name() == u"t")
                text += elementText(xml);
            else if (xml.name() == u"rPh")
                skipElement(xml);
            else
                ++depth;
        }
        if (depth > maxElementDepth || text.size() > longestXmlText)
            throw WorkbookTooLarge();
    }
    return withoutEscapes(text);
}

// "AB12" as row and column; zeros when it is none.
struct Place
{
    int row = 0;
    int column = 0;
};

Place placeOf(QStringView reference)
{
    Place place;
    for (const QChar character : reference) {
        const char16_t code = character.toUpper().unicode();
        if (code >= u'A' && code <= u'Z' && place.row == 0 && place.column <= maxColumn)
            place.column = place.column * 26 + (code - u'A' + 1);
        else if (code >= u'0' && code <= u'9' && place.row <= maxRow)
            place.row = place.row * 10 + (code - u'0');
        else
            return {};
    }
    return place;
}

// A date as it is written out; a time alone, and what is neither, stay texts, so that whoever takes
// the rows in can tell which one is wrong.
storage::Value dateOr(const QString& text)
{
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    if (date.isValid())
        return date;
    const QTime time = QTime::fromString(text, Qt::ISODate);
    return time.isValid() ? time.toString("HH:mm:ss") : text;
}

class XlsxReader
{
public:
    XlsxReader(const QString& file, const WorkbookLimits& limits)
        : m_package(file, limits), m_room(limits)
    {
    }

    std::vector<WorkbookSheet> sheets()
    {
        const QString workbook = workbookPart();
        QHash<QString, QString> parts;  // by id
        for (const auto& relation : m_package.relationsOf(workbook, m_room)) {
            parts.insert(relation.id, relation.target);
            if (relation.type == "sharedStrings")
                readTexts(relation.target);
            else if (relation.type == "styles")
                readForms(relation.target);
        }
        std::vector<std::pair<QString, QString>> listed;
        m_package.read(workbook, [&](QXmlStreamReader& xml) {
            const QXmlStreamAttributes attributes = xml.attributes();
            if (xml.name() == u"sheet") {
                m_room.takeSheet();
                listed.emplace_back(m_room.takeText(attributes.value("name").toString()),
                                    parts.value(idOf(attributes)));
            } else if (xml.name() == u"workbookPr") {
                m_since1904 = isTrue(attributes.value("date1904"));
            }
        });
        std::vector<WorkbookSheet> found;
        for (const auto& [name, part] : listed)
            if (!part.isEmpty())
                found.push_back(readSheet(name, part));
        return found;
    }

private:
    static bool isTrue(QStringView text) { return text == u"1" || text == u"true"; }

    static QString idOf(const QXmlStreamAttributes& attributes)
    {
        for (const QXmlStreamAttribute& attribute : attributes)
            if (attribute.name() == u"id" && !attribute.prefix().isEmpty())
                return attribute.value().toString();
        return {};
    }

    QString workbookPart()
    {
        for (const auto& relation : m_package.relationsOf("", m_room))
            if (relation.type == "officeDocument")
                return relation.target;
        return "xl/workbook.xml";
    }

    void readTexts(const QString& part)
    {
        m_package.read(part, [&](QXmlStreamReader& xml) {
            if (xml.name() != u"si")
                return;
            m_room.take(sizeof(QString));
            m_texts.append(m_room.takeText(richText(xml)));
        });
    }

    void readForms(const QString& part)
    {
        QHash<int, NumberForm> own;
        bool inCells = false;
        m_package.read(part, [&](QXmlStreamReader& xml) {
            const QXmlStreamAttributes attributes = xml.attributes();
            const int number = attributes.value("numFmtId").toInt();
            if (xml.name() == u"numFmt" || xml.name() == u"xf")
                m_room.takeForm();
            if (xml.name() == u"numFmt")
                own.insert(number, formOfMask(attributes.value("formatCode").toString()));
            else if (xml.name() == u"cellXfs" || xml.name() == u"cellStyleXfs")
                inCells = xml.name() == u"cellXfs";
            else if (xml.name() == u"xf" && inCells)
                m_forms.push_back(own.contains(number) ? own[number] : builtInForm(number));
            else if (xml.name() == u"cellStyles" || xml.name() == u"dxfs")
                inCells = false;
        });
    }

    WorkbookSheet readSheet(const QString& name, const QString& part)
    {
        WorkbookSheet sheet(name);
        Place last;
        m_package.read(part, [&](QXmlStreamReader& xml) {
            if (xml.name() == u"row") {
                const int told = xml.attributes().value("r").toInt();
                last = {told > 0 ? told : last.row + 1, 0};
                if (last.row > maxRow)
                    m_package.refuseDamaged();
            } else if (xml.name() == u"c") {
                const QStringView reference = xml.attributes().value("r");
                const Place place =
                    reference.isEmpty() ? Place{last.row, last.column + 1} : placeOf(reference);
                if (place.row < 1 || place.column < 1 || place.row > maxRow ||
                    place.column > maxColumn)
                    m_package.refuseDamaged();
                last = place;
                addCell(xml, sheet, place);
            }
        });
        return sheet;
    }

    void addCell(QXmlStreamReader& xml, WorkbookSheet& sheet, const Place& place)
    {
        storage::Value value = readCell(xml);
        if (value.isNull())
            return;
        m_room.takeCells(sheet.setCell(place.row, place.column, std::move(value)));
    }

    // Stands at the cell's end afterwards.
    storage::Value readCell(QXmlStreamReader& xml)
    {
        const QString type = xml.attributes().value("t").toString();
        const int form = xml.attributes().value("s").toInt();
        QString text;
        bool hasValue = false;
        while (xml.readNextStartElement()) {
            if (xml.name() == u"v") {
                text = elementText(xml);
                hasValue = true;
            } else if (xml.name() == u"is") {
                text = richText(xml);
                hasValue = true;
            } else {
                skipElement(xml);
            }
        }
        return hasValue ? valueOf(type, form, text) : storage::Value();
    }

    storage::Value valueOf(const QString& type, int form, const QString& text)
    {
        if (type == "s") {
            bool isNumber = false;
            const int number = text.toInt(&isNumber);
            if (!isNumber || number < 0 || number >= m_texts.size())
                m_package.refuseDamaged();
            return m_texts[number];
        }
        if (type == "inlineStr" || type == "e")
            return m_room.takeText(text);
        if (type == "str")
            return m_room.takeText(withoutEscapes(text));
        if (type == "b")
            return isTrue(text);
        if (type == "d")
            return dateOr(m_room.takeText(text));
        if (text.isEmpty())
            return {};
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number))
            m_package.refuseDamaged();
        const auto place = static_cast<size_t>(form);
        return place < m_forms.size() ? shownAs(m_forms[place], number, m_since1904) : number;
    }

    XlsxPackage m_package;
    WorkbookRoom m_room;
    bool m_since1904 = false;
    QStringList m_texts;
    std::vector<NumberForm> m_forms;
};

}  // namespace

std::vector<WorkbookSheet> readXlsx(const QString& file, const WorkbookLimits& limits)
{
    try {
        return XlsxReader(file, limits).sheets();
    } catch (const WorkbookTooLarge&) {
        throw WorkbookError("The workbook is too large: " + file);
    }
}
