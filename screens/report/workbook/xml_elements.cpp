#include "screens/report/workbook/xml_elements.h"

#include <QXmlStreamReader>

#include "screens/report/workbook/workbook_room.h"

QString elementText(QXmlStreamReader& xml)
{
    QString text;
    int depth = 1;
    while (depth > 0 && !xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement())
            ++depth;
        else if (xml.isEndElement())
            --depth;
        else if (depth == 1 && xml.isCharacters())
            text += xml.text();
        if (depth > maxElementDepth || text.size() > longestXmlText)
            throw WorkbookTooLarge();
    }
    return text;
}

void skipElement(QXmlStreamReader& xml)
{
    elementText(xml);
}
