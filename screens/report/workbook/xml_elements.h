// What stands in an element of a workbook's part, within limits: the readers of the library would
// follow an element to any depth and take a text of any length.
#pragma once

#include <QString>

class QXmlStreamReader;

// Deeper than any true part; the reader's own stack grows with it.
constexpr int maxElementDepth = 64;
// A cell holds 32,767 characters, of which each may stand as an escape of seven.
constexpr qsizetype longestXmlText = 8 * 32767;

// The text of the element whose start was read, without that of the elements inside. The reader
// stands at the element's end afterwards. Throws WorkbookTooLarge.
QString elementText(QXmlStreamReader& xml);
void skipElement(QXmlStreamReader& xml);
