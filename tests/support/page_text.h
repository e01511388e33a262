// Pages as the words on them and their places.
#pragma once

#include "screens/report/page_document.h"

// The texts of a page, one a line, as "x y text".
inline QString placesOn(const PageDocument& document, int page)
{
    QString dump;
    for (const PlacedText& text : textsOf(document, page))
        dump += QString("%1 %2 %3\n").arg(text.x).arg(text.y).arg(text.text.trimmed());
    return dump;
}

// The texts of a page, top to bottom and left to right, those of one height in a line with '|'
// between them.
inline QStringList linesOn(const PageDocument& document, int page)
{
    std::vector<PlacedText> texts = textsOf(document, page);
    std::stable_sort(texts.begin(), texts.end(), [](const PlacedText& a, const PlacedText& b) {
        return a.y != b.y ? a.y < b.y : a.x < b.x;
    });
    QStringList lines;
    int y = -1;
    for (const PlacedText& text : texts) {
        if (text.y == y)
            lines.last() += '|' + text.text.trimmed();
        else
            lines.append(text.text.trimmed());
        y = text.y;
    }
    return lines;
}
