// What the pages of all reports are made of: the strip at the foot, boxes, bands, column heads and
// cells. Each leaves font, alignment, brush and pen as they were.
#pragma once

#include "screens/report/page_document.h"

// The strip along the bottom margin.
struct PageFoot
{
    QString moduleName = "Vexley Module";
    QString reportName;
    bool showsDate = true;
    bool showsTime = true;
    bool showsPage = true;
    int pageOverride = 0;  // 0: the number of the page
};
void dnReportPageFoot(PageDocument& pages, const PageFoot& foot);

struct BoxFieldFlags
{
    bool boldLabel = false;
    bool large = false;  // the text in Times New Roman 14, otherwise in Courier New 10
    bool wraps = false;
    bool shrinks = false;  // down to 6, where the text fits in a smaller size only
};
// A box with a small label in its corner and the text below it. A text that wraps has its first
// line always, further ones as the box has room.
void dnReportBoxField(PageDocument& pages, const PageBox& box, const QString& label,
                      const QString& text, BoxFieldFlags flags = {});

// A grey heading band, in one or two lines.
void dnReportBar(PageDocument& pages, const PageBox& box, const QString& text,
                 const QString& secondLine = {});

// A column's heading on grey; a '\n' in it makes two lines. Centred unless said otherwise.
void dnReportColumnHead(PageDocument& pages, const PageBox& box, const QString& heading,
                        TextAlignment alignment = TextAlignment::Centre);

struct CellFlags
{
    TextAlignment alignment = TextAlignment::Left;
    bool middle = false;  // centred vertically, at 0.95 of the height
    bool wraps = false;
    bool bold = false;
    bool grey = false;
};
// A cell of a list, in Courier New 8, or 7 or 6 if only that fits; what does not fit in 6 is cut. A
// cell that wraps stays at 8 and grows downward. Gives the cell's depth: its height, or more.
int dnReportCell(PageDocument& pages, const PageBox& box, const QString& text,
                 CellFlags flags = {});

// The text of such a cell alone, in one line, without box and fill.
void dnReportCellText(PageDocument& pages, const PageBox& box, const QString& text,
                      CellFlags flags = {});

// The depth that dnReportCell would give.
int reportCellDepth(const PageBox& box, const QString& text, CellFlags flags = {});

// The lines of a cell that wraps, and how many of them a cell of this depth holds.
QStringList reportCellLines(int width, const QString& text);
int reportLinesIn(int depth);

// "Letter, 8½ x 11 in." and so on; "Invalid Size Detected" for a paper other than the three.
QString paperSizeText(const PaperSize& paper);

// A title centred at y 600 in Times New Roman 18, and below it the heading lines in 14; blank ones
// are left out. What is wider than the page goes on in further lines. Gives the y below them.
int writeReportTitle(PageDocument& pages, const QString& title, const QStringList& headingLines);
