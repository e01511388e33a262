// The pages of a document, ready at hand for a bare painter: the baseline of prints.
#pragma once

#include <QFont>
#include <QPageLayout>
#include <QRectF>
#include <vector>

#include "screens/report/page_document.h"

class BarePages
{
public:
    explicit BarePages(const PageDocument& document);

    double count() const { return static_cast<double>(m_pages.size()); }
    // On Letter paper; false when the file cannot be written.
    bool writePdf(const QString& path, QPageLayout::Orientation orientation) const;

private:
    struct Text
    {
        QPointF baseline;
        QString text;
        size_t font;
    };
    struct OnePage
    {
        std::vector<QRectF> boxes;
        std::vector<Text> texts;
    };
    std::vector<OnePage> m_pages;
    std::vector<QFont> m_fonts;
};
