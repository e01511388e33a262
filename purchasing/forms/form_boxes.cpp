#include "purchasing/forms/form_boxes.h"

#include "core/number_format.h"
#include "screens/report/page_document.h"
#include "screens/report/report_page.h"

namespace {

constexpr int textTop = 200;       // of a box's text
constexpr int deepBox = 600;       // from here on it has several lines
constexpr int signedHeight = 190;  // of the text below a signature
constexpr int padding = 70;
constexpr int behindOf = 90;

// The numbers stand in the gap behind PAGE and behind OF, on the line of the other boxes' texts.
void drawPageBox(PageDocument& pages, const FormBox& box, const PageBox& place, PageCount count)
{
    dnReportBoxField(pages, place, {}, {});
    const int y = place.top + textTop;
    const PageFont small{FontFamily::Arial, false, 6};
    const PageFont large{FontFamily::CourierNew, false, 10};
    const int free = place.width - textWidth(box.label, small) - behindOf - textWidth(u"99", large);
    const int left = place.left + std::max(40, free / 2);
    const qsizetype gapBegin = box.label.indexOf(' ');
    const qsizetype gapEnd = box.label.lastIndexOf(' ') + 1;
    const int from = textWidth(QStringView(box.label).left(gapBegin), small);
    const int to = textWidth(QStringView(box.label).left(gapEnd), small);
    pages.style.font = small;
    pages.setPosition(left, y + ascentOf(large) - ascentOf(small));
    pages.writeText(box.label);
    if (count.of == 0)
        return;
    pages.style.font = large;
    const QString number = dnFormat(count.page, "##");
    pages.setPosition(left + (from + to - pages.widthOf(number)) / 2, y);
    pages.writeText(number);
    pages.setPosition(left + textWidth(box.label, small) + behindOf, y);
    pages.writeText(dnFormat(count.of, "##"));
}

void drawTotalBox(PageDocument& pages, const FormBox& box, const PageBox& place,
                  const QString& text)
{
    dnReportBoxField(pages, place, box.label, {});
    pages.setFont("Courier New", 10, true);
    pages.style.isFilled = false;
    pages.style.penWidth = 0;
    pages.style.alignment = TextAlignment::Right;
    pages.drawTextBox(text, {place.left, place.top + 160, place.width, place.height - 160}, false,
                      100);
}

void drawBox(PageDocument& pages, const FormBox& box, const FormDocument& document,
             const PageBox& place, PageCount count)
{
    const StyleKeeper keeper(pages);
    const QString text = box.text ? document.*box.text : QString();
    const int bottom = place.top + place.height;
    switch (box.kind) {
        case FormBox::Kind::Field:
            dnReportBoxField(pages, place, box.label, text,
                             {.wraps = place.height > deepBox, .shrinks = true});
            return;
        case FormBox::Kind::Page:
            drawPageBox(pages, box, place, count);
            return;
        case FormBox::Kind::Total:
            drawTotalBox(pages, box, place, count.page == count.of ? text : QString("continued"));
            return;
        case FormBox::Kind::Signature:
            dnReportBoxField(pages, place, box.label, {});
            dnReportCellText(pages,
                             {place.left + padding, bottom - signedHeight - padding / 2,
                              place.width - padding, signedHeight},
                             text);
            return;
    }
}

}  // namespace

int drawBoxRow(PageDocument& pages, const FormBoxRow& row, const FormDocument& document,
               const PageBox& place, PageCount count)
{
    int parts = 0;
    for (const FormBox& box : row.boxes) {
        const int from = place.left + place.width * parts / pageParts;
        parts += box.width;
        const int to = place.left + place.width * parts / pageParts;
        drawBox(pages, box, document, {from, place.top, to - from, row.height}, count);
    }
    return place.top + row.height;
}
