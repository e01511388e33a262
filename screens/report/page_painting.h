// Pages on a screen, a printer and in a PDF file: all through the one function paintPage.
#pragma once

#include <QRectF>
#include <functional>

#include "screens/report/page_document.h"

class QPainter;

// Paints a page with the painter's units as twips. What lies outside `exposed`, in twips, may be
// left out; an empty one paints all.
void paintPage(QPainter& painter, const PageDocument& document, int page,
               const QRectF& exposed = {});

// Offers the printer dialog and prints the pages chosen there; a long print can be stopped. False
// after a cancel, and after a failure, which was told.
bool printDocument(const PageDocument& document);

// Writes the document as a PDF file; what was there before stays when that fails, and when `goOn`,
// asked before each page, says no. Gives the reason, empty for success.
QString writePdf(const PageDocument& document, const QString& path,
                 const std::function<bool()>& goOn = {});

// Asks for the file and writes it; a long document can be stopped, a failure is told.
void savePdf(const PageDocument& document, const QString& suggestedName);
