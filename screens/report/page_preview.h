// The preview of a document: the page, and the commands to turn, zoom, print and save it. Its
// shortcuts are Alt with W, G, P and D; the keys of the page are told in page_view.h.
#pragma once

#include <QWidget>
#include <functional>

class PageDocument;
class PageView;
class QLabel;
class QPushButton;
class QSlider;

class PagePreview : public QWidget
{
public:
    // The document stays the caller's. `documentName` is offered as the name of a PDF file of one
    // that has no name.
    PagePreview(PageDocument& document, const QString& documentName);

    // After the document has got more pages, or the previewed page is another.
    void refresh();
    // A new document has begun.
    void restart();
    // While a run goes on pages can be looked at, but neither printed nor saved.
    void setComplete(bool complete);
    PageView& view() { return *m_view; }

    void print();
    void savePdf();

private:
    QPushButton* addButton(const QString& name, const QString& caption, const QString& tip,
                           const std::function<void()>& command);
    void build();
    void showPlace();

    PageDocument& m_document;
    QString m_documentName;
    PageView* m_view;
    QWidget* m_bar;
    QSlider* m_slider;
    QLabel* m_place;
    QLabel* m_zoom;
    QPushButton* m_print;
    QPushButton* m_pdf;
    bool m_isComplete = false;
};
