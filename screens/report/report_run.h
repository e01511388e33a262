// A report screen without its widgets: idle, running or finished. Begin checks the selection and
// runs the report's print function on this thread. Between rows that function calls `proceed`,
// which lets the program live (the screen's own Cancel included) every 20 ms or so and tells
// whether to go on. The pages made stay until the next run, also those of a run that was stopped.
#pragma once

#include <QElapsedTimer>

#include "screens/report/report_sink.h"
#include "screens/report/report_spec.h"

class ReportRun
{
public:
    enum class State { Idle, Running, Finished };

    ReportRun(ReportSpec spec, Session session);
    ReportRun(const ReportRun&) = delete;
    ReportRun& operator=(const ReportRun&) = delete;

    const ReportSpec& spec() const { return m_spec; }
    const Session& session() const { return m_session; }
    ReportSelection selection;
    PageDocument pages;

    // ---- the user
    // A refusal and a failure of the store are shown. Does nothing while this run is under way. One
    // report runs at a time: while another does, which waits as long as this would run, it is
    // refused. The screen must not go before it returns. `which` is one of the spec's `begins`.
    void begin(size_t which = 0);
    void requestCancel() { m_isCancelled = m_isCancelled || isRunning(); }
    // Every run that is under way, when the program ends.
    static void cancelAll();
    // A field was changed: a finished screen is idle again, with its pages.
    void selectionChanged();
    State state() const { return m_state; }
    bool isRunning() const { return m_state == State::Running; }
    bool isCancelled() const { return m_isCancelled; }
    const QString& processText() const { return m_processText; }  // of lblProcess

    // ---- the report
    // After each row of the step in hand; false as soon as the run is cancelled. The lines of a
    // list report do it themselves.
    bool proceed();
    // A step begins, of so many rows, or of an unknown number where it is 0: the count of rows
    // starts over, and so do progress and time left. A report that fills a work table first calls
    // it before each of its two steps, so that "1,200 of 50,000" are rows of the step whose text
    // showStatus shows; a report that never calls it shows the count alone.
    void expectRows(int count);
    // In place of the page that is being printed, until the next text or the end; a blank one shows
    // the page again.
    void showStatus(const QString& text);

    // The sinks of this run beside the paper: the workbook, when one is wanted.
    const std::vector<std::unique_ptr<ReportSink>>& furtherSinks() const { return m_furtherSinks; }

    // ---- the workbook, wanted when ckbCreateExcel is ticked
    bool offersWorkbook() const { return m_spec.workbookName != nullptr; }
    QString workbookPath() const;  // in the user's folder

    // ---- what the screen shows of a run
    int rowCount() const { return m_rowCount; }  // of the step in hand
    int expectedRows() const { return m_expectedRows; }
    // Such as "1,200 of 50,000, 0:12 left"; the count alone where no end is known.
    QString progressText() const;
    // State, texts or progress have changed.
    std::function<void()> onChange = [] {};

private:
    friend bool dnReportBegin(ReportRun&, const QString&, const PageMargins&);
    friend void dnReportEnd(ReportRun&);

    void setState(State state, const QString& processText);
    void letLive();
    void printGuarded(const std::function<void(ReportRun&)>& print);
    bool isRefused(const std::function<std::optional<ReportRefusal>(const ReportRun&)>& check);

    ReportSpec m_spec;
    Session m_session;
    State m_state = State::Idle;
    bool m_isStarted = false;  // between dnReportBegin and dnReportEnd
    bool m_isCancelled = false;
    bool m_isBroken = false;
    bool m_savedLandscape = false;
    QString m_processText;
    QString m_status;
    std::vector<std::unique_ptr<ReportSink>> m_furtherSinks;
    int m_rowCount = 0;
    int m_expectedRows = 0;
    QElapsedTimer m_sinceStep;
    QElapsedTimer m_sinceLived;
};

// Sets up a run: orientation "P" or "L" (blank is "P"), margins, of which 0 is 500, pen width 10,
// and the document's first page. False, after the box "Printer Problem Detected", when no document
// can be made.
bool dnReportBegin(ReportRun& run, const QString& orientation, const PageMargins& margins = {});
// Ends the document; orientation, pen and brush are as before, and the process text tells whether
// the report is whole. Without a begun run it does nothing.
void dnReportEnd(ReportRun& run);

// Page Up and Page Down step the previewed page, Home and End go to the first and last. True if the
// key is one of these, whether or not the page changed.
bool dnReportKeys(PageDocument& pages, int key);

// True for A4 paper only, by which reports choose their A4 layouts. `caption` becomes what the
// screen shows: "Paper Size: " and the paper.
bool dnReportPaperSize(const PageDocument& pages, QString& caption);

// The default printer's paper; Letter without a printer.
PaperSize systemPaper();
