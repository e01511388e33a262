#include "screens/report/report_window.h"
#include "screens/help.h"

#include "screens/command_bar.h"
#include "screens/command_runner.h"
#include "screens/report/page_preview.h"
#include "screens/report/page_view.h"
#include "screens/report/report_fields.h"

ReportWindow::ReportWindow(ReportSpec spec, const Session& session)
    : m_run(std::move(spec), session),
      m_fields(new QWidget),
      m_begin(new QPushButton),
      m_exit(new QPushButton("E&xit")),
      m_process(new QLabel),
      m_progress(new QProgressBar),
      m_paper(new QLabel),
      m_preview(new PagePreview(m_run.pages, m_run.spec().caption)),
      m_emptySpace(new QWidget)
{
    setObjectName(m_run.spec().name);
    setProperty(helpPageProperty, "report");
    setWindowTitle(m_run.spec().caption);
    buildFields();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->addWidget(m_fields);
    if (!m_run.spec().begins.empty())
        layout->addWidget(buildBegins());
    layout->addWidget(buildStrip());
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_emptySpace, 1);
    m_process->hide();
    m_progress->hide();
    m_preview->hide();
    QString paper;
    dnReportPaperSize(m_run.pages, paper);
    m_paper->setText(paper);
    m_run.onChange = [this] { showState(); };
    resize(960, 600);
    showState();
    focusFirst();
}

// A field that loses the keyboard as it goes takes what was typed; the run has to be there still.
ReportWindow::~ReportWindow()
{
    m_run.onChange = [] {};
    m_choices.clear();
    delete m_fields;
}

// The first field, not a button among them, or Begin where the report has none.
void ReportWindow::focusFirst()
{
    QWidget* first = m_fields->nextInFocusChain();
    while (m_fields->isAncestorOf(first) &&
           (!(first->focusPolicy() & Qt::TabFocus) || qobject_cast<QPushButton*>(first)))
        first = first->nextInFocusChain();
    (m_fields->isAncestorOf(first) ? first
     : !m_begins.empty()           ? m_begins.front()
     : m_run.spec().canBegin       ? static_cast<QWidget*>(m_begin)
                                   : m_exit)
        ->setFocus();
}

void ReportWindow::buildFields()
{
    auto* rows = new QFormLayout(m_fields);
    rows->setContentsMargins(0, 0, 0, 4);
    const auto changed = [this] {
        m_run.selectionChanged();
        askChoices();
    };
    for (const ReportField& field : m_run.spec().fields)
        if (auto ask = addReportField(rows, field, m_run.selection, m_run.session(), changed))
            m_choices.push_back(std::move(ask));
    askChoices();
    if (m_run.offersWorkbook())
        addWorkbookFields(rows, m_run);
    m_fields->setObjectName("fraSelection");
    m_fields->setVisible(rows->rowCount() > 0);
}

void ReportWindow::askChoices()
{
    for (const std::function<void()>& ask : m_choices)
        ask();
}

QWidget* ReportWindow::buildBegins()
{
    auto* bar = new CommandBar;
    for (size_t i = 0; i < m_run.spec().begins.size(); ++i) {
        const ReportBegin& one = m_run.spec().begins[i];
        m_begins.push_back(bar->add(one.name, one.caption, [this, i] { beginRun(i); }));
    }
    return bar;
}

QWidget* ReportWindow::buildStrip()
{
    auto* strip = new QWidget;
    auto* lines = new QVBoxLayout(strip);
    lines->setContentsMargins(0, 0, 0, 0);
    // Several commands with their captions fill a line of their own.
    auto* begins = new QHBoxLayout;
    lines->addLayout(begins);
    auto* row = new QHBoxLayout;
    lines->addLayout(row);
    m_begin->setObjectName("cmdBegin");
    m_exit->setObjectName("CmdExit");
    m_process->setObjectName("lblProcess");
    m_process->setTextFormat(Qt::PlainText);
    m_progress->setObjectName("prgProgress");
    m_paper->setObjectName("lblPaperSize");
    // As wide as its widest caption, so that the strip does not jump.
    m_begin->setMinimumWidth(fontMetrics().horizontalAdvance("Max View") + 40);
    m_progress->setMinimumWidth(220);
    for (QPushButton* button : {m_begin, m_exit})
        button->setAutoDefault(true);
    onPressed(m_begin, [this] { pressBegin(); });
    onPressed(m_exit, [this] { pressExit(); });
    row->addWidget(m_begin);
    row->addWidget(m_exit);
    row->addWidget(m_process);
    row->addStretch();
    row->addWidget(m_progress);
    row->addWidget(m_paper);
    return strip;
}

void ReportWindow::pressBegin()
{
    switch (m_run.state()) {
        case ReportRun::State::Running:
            m_run.requestCancel();
            return;
        case ReportRun::State::Finished:
            if (m_isMaxView)
                dnReportRestoreScreen();
            else
                dnReportFullScreen();
            return;
        case ReportRun::State::Idle:
            return beginRun(0);
    }
}

void ReportWindow::beginRun(size_t which)
{
    m_run.selectionChanged();  // another thing is printed than the one that is finished
    // A control in which the keyboard still is takes what was typed when it loses it.
    const QPointer<QWidget> before = focusWidget();
    (m_begins.empty() ? m_begin : m_begins[which])->setFocus();
    m_run.begin(which);
    if (m_run.state() == ReportRun::State::Finished)
        m_preview->setFocus();
    else if (before)
        before->setFocus();
    if (std::exchange(m_closesAfterRun, false))
        close();
}

void ReportWindow::pressExit()
{
    if (m_run.isRunning())
        m_run.requestCancel();
    else
        close();
}

void ReportWindow::closeEvent(QCloseEvent* event)
{
    if (!m_run.isRunning()) {
        event->accept();
        return;
    }
    m_run.requestCancel();
    m_closesAfterRun = true;
    event->ignore();
}

void ReportWindow::dnReportFullScreen()
{
    m_isMaxView = true;
    showState();
}

void ReportWindow::dnReportRestoreScreen()
{
    m_isMaxView = false;
    showState();
}

void ReportWindow::showState()
{
    const bool isRunning = m_run.isRunning();
    const bool isFinished = m_run.state() == ReportRun::State::Finished;
    const bool hasPages = m_run.pages.pageCount() > 0;
    QString caption = isRunning ? "&Cancel" : "&Begin";
    if (isFinished)
        caption = m_isMaxView ? "&Restore" : "&Max View";
    if (m_begin->text() != caption)
        m_begin->setText(caption);
    const bool hasSeveral = !m_begins.empty();
    m_begin->setVisible(m_run.spec().canBegin && (!hasSeveral || isRunning || isFinished));
    for (QPushButton* button : m_begins)
        button->setVisible(!isRunning && !m_isMaxView);
    m_process->setText(m_run.processText());
    m_process->setVisible(!m_run.processText().isEmpty());

    const bool hasFields = static_cast<QFormLayout*>(m_fields->layout())->rowCount() > 0;
    m_fields->setVisible(hasFields && !m_isMaxView);
    m_fields->setEnabled(!isRunning);
    m_paper->setVisible(!m_isMaxView && !isRunning);
    m_progress->setVisible(isRunning);
    m_progress->setRange(0, m_run.expectedRows());
    m_progress->setValue(m_run.rowCount());
    m_progress->setFormat(m_run.progressText().replace('%', "%%"));
    m_preview->setVisible(hasPages);
    m_emptySpace->setVisible(!hasPages);
    m_preview->setComplete(!isRunning);
    if (isRunning && m_run.rowCount() == 0 && m_run.pages.pageCount() <= 1)
        m_preview->restart();
}

void ReportWindow::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier ||
                         event->modifiers() == Qt::ShiftModifier;
    if (event->key() == Qt::Key_Escape) {
        m_exit->click();
        return;
    }
    if (m_preview->view().takeZoomKey(*event))
        return;
    if (!m_run.isRunning() && m_run.pages.pageCount() > 0 && isPlain) {
        if (event->key() == Qt::Key_P) {
            m_preview->print();
            return;
        }
        if (dnReportKeys(m_run.pages, event->key())) {
            m_preview->refresh();
            return;
        }
    }
    for (size_t i = 0; i < m_begins.size(); ++i)
        if (isPlain && event->key() == m_run.spec().begins[i].key && m_begins[i]->isVisible())
            return beginRun(i);
    QWidget::keyPressEvent(event);
}
