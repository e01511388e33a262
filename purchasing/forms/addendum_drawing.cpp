#include "purchasing/forms/addendum_drawing.h"

#include "screens/report/report_page.h"

bool drawAddendum(ReportRun& run, const QString& heading, const QString& documentName,
                  const QString& text)
{
    PageDocument& pages = run.pages;
    const StyleKeeper keeper(pages);
    const PageFont body{FontFamily::Arial, false, 10};
    const int width = pages.pageWidth() - pages.margins.left - pages.margins.right;
    const int bottom = pages.pageHeight() - pages.margins.bottom - lineHeight(body);
    int y = bottom;
    QString shown = text;
    for (const QString& line :
         wrappedLines(shown.remove('\r').replace('\t', "    "), body, width)) {
        if (!run.proceed())
            return false;
        if (y >= bottom) {
            if (!pages.page(pages.pageCount()).operations.empty())
                pages.newPage();
            pages.style.alignment = TextAlignment::Right;
            pages.setFont("Arial", 8);
            pages.setPosition(pages.margins.left, pages.margins.top);
            pages.writeText(documentName);
            y = writeReportTitle(pages, heading, {}) + 2 * lineHeight(body);
            pages.style.alignment = TextAlignment::Left;
            pages.style.font = body;
        }
        pages.setPosition(pages.margins.left, y);
        pages.writeText(line);
        y += lineHeight(body);
    }
    return true;
}
