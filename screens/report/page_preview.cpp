#include "screens/report/page_preview.h"

#include "screens/command_runner.h"
#include "screens/report/page_painting.h"
#include "screens/report/page_view.h"

PagePreview::PagePreview(PageDocument& document, const QString& documentName)
    : m_document(document),
      m_documentName(documentName),
      m_view(new PageView(document)),
      m_bar(new QWidget),
      m_slider(new QSlider(Qt::Horizontal)),
      m_place(new QLabel),
      m_zoom(new QLabel)
{
    setObjectName("VSPrinter");
    m_view->setObjectName("VSPrinterPage");
    m_slider->setObjectName("sldPAGE");
    m_place->setObjectName("lblPAGE");
    m_zoom->setObjectName("lblZOOM");
    build();
    setFocusProxy(m_view);
    m_view->onPageTurned = [this] { showPlace(); };
    m_view->onZoomed = [this] { showPlace(); };
    QObject::connect(m_slider, &QSlider::valueChanged, this, [this](int page) {
        m_document.setPreviewPage(page);
        m_view->showPage();
        showPlace();
    });
    refresh();
}

QPushButton* PagePreview::addButton(const QString& name, const QString& caption, const QString& tip,
                                    const std::function<void()>& command)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    onPressed(button, command);
    m_bar->layout()->addWidget(button);
    return button;
}

void PagePreview::build()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    auto* bar = new QHBoxLayout(m_bar);
    bar->setContentsMargins(0, 0, 0, 0);
    addButton("cmdFitWidth", "Fit &Width", {}, [this] { m_view->setFit(PageView::Fit::Width); });
    addButton("cmdFitPage", "Fit Pa&ge", {}, [this] { m_view->setFit(PageView::Fit::Page); });
    const int narrow = fontMetrics().height() * 2;
    addButton("cmdZoomOut", "−", "Ctrl+-", [this] { m_view->zoomStep(-1); })->setFixedWidth(narrow);
    m_zoom->setAlignment(Qt::AlignCenter);
    m_zoom->setMinimumWidth(fontMetrics().horizontalAdvance("000 %"));
    bar->addWidget(m_zoom);
    addButton("cmdZoomIn", "+", "Ctrl++", [this] { m_view->zoomStep(1); })->setFixedWidth(narrow);
    m_slider->setMinimumWidth(80);
    m_slider->setFocusPolicy(Qt::NoFocus);  // the page keys are the view's
    bar->addWidget(m_slider, 1);
    bar->addWidget(m_place);
    m_print = addButton("cmdPrint", "&Print...", "P", [this] { print(); });
    m_pdf = addButton("cmdPDF", "P&DF...", {}, [this] { savePdf(); });
    layout->addWidget(m_bar);
    layout->addWidget(m_view, 1);
}

void PagePreview::showPlace()
{
    const int count = m_document.pageCount();
    const QSignalBlocker quiet(m_slider);
    m_slider->setRange(std::min(1, count), count);
    m_slider->setPageStep(std::max(1, count / 20));
    m_slider->setValue(m_document.previewPage());
    m_place->setText(
        count == 0 ? QString() : QString("Page %1 of %2").arg(m_document.previewPage()).arg(count));
    m_zoom->setText(QString("%1 %").arg(qRound(m_view->zoom() * 100)));
}

void PagePreview::refresh()
{
    m_view->showPage();
    showPlace();
    m_print->setEnabled(m_isComplete && m_document.pageCount() > 0);
    m_pdf->setEnabled(m_print->isEnabled());
}

void PagePreview::restart()
{
    m_view->restart();
    refresh();
}

void PagePreview::setComplete(bool complete)
{
    m_isComplete = complete;
    refresh();
}

void PagePreview::print()
{
    if (m_print->isEnabled())
        printDocument(m_document);
}

void PagePreview::savePdf()
{
    if (m_pdf->isEnabled())
        ::savePdf(m_document, m_document.name().isEmpty() ? m_documentName : m_document.name());
}
