#include "benchmarks/bare_pages.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "screens/report/page_painting.h"

BarePages::BarePages(const PageDocument& document)
{
    std::vector<PageFont> known;
    for (int number = 1; number <= document.pageCount(); ++number) {
        OnePage& page = m_pages.emplace_back();
        const Page& source = document.page(number);
        for (const PageOperation& operation : source.operations) {
            if (operation.kind == PageOperation::Kind::Rectangle) {
                page.boxes.emplace_back(operation.x, operation.y, operation.width,
                                        operation.height);
            } else if (operation.kind == PageOperation::Kind::Text) {
                const PageFont& font = document.font(operation.style);
                const auto place = static_cast<size_t>(std::find(known.begin(), known.end(), font) -
                                                       known.begin());
                if (place == known.size()) {
                    known.push_back(font);
                    m_fonts.push_back(paintingFont(font));
                }
                page.texts.push_back({QPointF(operation.x, operation.y + ascentOf(font)),
                                      source.textOf(operation), place});
            }
        }
    }
}

bool BarePages::writePdf(const QString& path, QPageLayout::Orientation orientation) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QPdfWriter writer(&file);
    writer.setResolution(twipsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), orientation, {}));
    QPainter painter(&writer);
    bool isFirst = true;
    for (const OnePage& page : m_pages) {
        if (!std::exchange(isFirst, false))
            writer.newPage();
        painter.setPen(QPen(Qt::black, 10));
        painter.setBrush(Qt::white);
        for (const QRectF& box : page.boxes)
            painter.drawRect(box);
        for (const Text& text : page.texts) {
            painter.setFont(m_fonts[text.font]);
            painter.drawText(text.baseline, text.text);
        }
    }
    return true;
}
