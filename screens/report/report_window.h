// The screen of a report: its selection fields, cmdBegin, CmdExit and lblProcess in a strip, and
// the preview, which comes with the first run. cmdBegin is Begin, then Cancel, and after the run it
// toggles Max View, which leaves the strip and the preview alone. Changing a field after a run
// makes it Begin again; the pages stay. CmdExit and the window's own close button cancel a run; the
// latter closes the screen when the run has ended. A screen that prints several things has a
// command for each, and cmdBegin only while one runs and after.
#pragma once

#include <QWidget>

#include "screens/report/report_run.h"

class PagePreview;
class QLabel;
class QProgressBar;
class QPushButton;

class ReportWindow : public QWidget
{
public:
    ReportWindow(ReportSpec spec, const Session& session);
    ~ReportWindow() override;

    ReportRun& run() { return m_run; }
    PagePreview& preview() { return *m_preview; }

    bool isMaxView() const { return m_isMaxView; }
    // The two halves of the Max View toggle.
    void dnReportFullScreen();
    void dnReportRestoreScreen();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildFields();
    void askChoices();
    void focusFirst();
    QWidget* buildBegins();
    QWidget* buildStrip();
    void pressBegin();
    void beginRun(size_t which);
    void pressExit();
    void showState();

    ReportRun m_run;
    QWidget* m_fields;
    std::vector<std::function<void()>> m_choices;  // of the fields whose selection decides them
    QPushButton* m_begin;
    std::vector<QPushButton*> m_begins;  // of a screen that prints several things
    QPushButton* m_exit;
    QLabel* m_process;
    QProgressBar* m_progress;
    QLabel* m_paper;
    PagePreview* m_preview;
    QWidget* m_emptySpace;
    bool m_isMaxView = false;
    bool m_closesAfterRun = false;
};
